// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/StartLook.h"

#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QIcon>

// A resource of a static library has to be asked for from outside any namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(images);
}

namespace startlook
{

void install()
{
    initialiseResources();
    QApplication::setPalette(style::lightPalette());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/img_AppIcon.png")));
    new FocusRing(qApp);
}

void speak()
{
    style::substituteFonts(g_App.m_bChinese);
    languages::setOffered();
    languages::loadAtStart();
}

} // namespace startlook
