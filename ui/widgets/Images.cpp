// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Images.h"

#include "state/GlobalApp.h"

#include <QLabel>
#include <QMovie>
#include <QPixmap>
#include <QVariant>

namespace images
{

namespace
{
constexpr char PathProperty[] = "imagePath";
}

void setLabelImage(QLabel *label, const QString &file, scale::Family family)
{
    const QString path = scale::imagePath(file, g_App.m_fScale, family);
    if (path.isEmpty())
        return;
    label->setPixmap(QPixmap(path));
    if (g_App.m_fScale > 1.5F)
        label->setScaledContents(true);
    label->setProperty(PathProperty, path);
}

QString labelImage(const QLabel *label)
{
    return label->property(PathProperty).toString();
}

QMovie *newMovie(const QString &file, QObject *parent)
{
    QString path = scale::imagePath(file, g_App.m_fScale, scale::Family::Folder);
    if (path.isEmpty())
        path = QStringLiteral(":/images/Resources/96-DPI/") + file;
    return new QMovie(path, QByteArray(), parent);
}

} // namespace images
