// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Images.h"

#include "state/Scale.h"

#include <QLabel>
#include <QMovie>
#include <QPixmap>

namespace images
{

namespace
{

QString pathInSet(int set, const QString &file, Family family)
{
    if (set == 96 && family == Family::Plain)
        return QStringLiteral(":/images/") + file;
    const QString folder = family == Family::MoreTools ? QStringLiteral("Others/") : QString();
    return QStringLiteral(":/images/Resources/%1%2-DPI/%3").arg(folder, QString::number(set), file);
}

} // namespace

QString path(const QString &file, Family family)
{
    const int set = scale::imageSet(scale::percent());
    return set == 0 ? QString() : pathInSet(set, file, family);
}

QString nearestPath(const QString &file, Family family)
{
    const int set = scale::imageSet(scale::percent());
    return pathInSet(set == 0 ? 96 : set, file, family);
}

void setLabelImage(QLabel *label, const QString &file, Family family)
{
    const QString found = path(file, family);
    if (found.isEmpty())
        return;
    label->setPixmap(QPixmap(found));
    if (scale::percent() > 150)
        label->setScaledContents(true);
    label->setProperty("imagePath", found);
}

QMovie *newMovie(const QString &file, QObject *parent)
{
    return new QMovie(nearestPath(file, Family::Folder), QByteArray(), parent);
}

} // namespace images
