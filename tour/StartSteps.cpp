// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QWidget>

namespace
{

const QString SplashClass = QStringLiteral("QWaitClass");
const QString MainWindowClass = QStringLiteral("MainWindow");

/// The splash fades in; its picture is taken when it is fully visible.
void seeSplash(Walk &walk)
{
    walk.waitFor(QStringLiteral("the splash"), []() {
        const QWidget *splash = windows::byClass(SplashClass);
        return splash && splash->windowOpacity() >= 1.0;
    });
    walk.record(QStringLiteral("splash"), SplashClass);
}

void reachMainWindow(Walk &walk)
{
    walk.waitForWindow(MainWindowClass);
    walk.waitIdle();
    walk.sweepDialogs();
}

} // namespace

StepList startSteps(Walk &)
{
    return {{QStringLiteral("splash"), seeSplash}, {QStringLiteral("main-window"), reachMainWindow, true}};
}
