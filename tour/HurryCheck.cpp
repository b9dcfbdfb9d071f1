// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/HurryCheck.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace
{

QString shown(const QJsonValue &value)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
}

} // namespace

namespace hurrycheck
{

QJsonObject figures(const QJsonObject &contents)
{
    QJsonObject found;
    const QJsonArray widgets = contents[QStringLiteral("widgets")].toArray();
    for (const QJsonValue &value : widgets) {
        const QJsonObject widget = value.toObject();
        if (widget[QStringLiteral("class")] == QStringLiteral("MyButton"))
            continue;
        // Frames made in code may share a name.
        QString name = widget[QStringLiteral("name")].toString();
        while (found.contains(name))
            name += QLatin1Char('+');
        found[name] = QJsonArray{widget[QStringLiteral("text")], widget[QStringLiteral("image")],
                                 widget[QStringLiteral("enabled")]};
    }
    for (const char *part : {"combos", "trees", "charts", "donut", "map"})
        found[QLatin1String(part)] = contents[QLatin1String(part)];
    return found;
}

QString difference(const QJsonObject &wanted, const QJsonObject &seen)
{
    QStringList keys = wanted.keys() + seen.keys();
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        if (wanted[key] != seen[key])
            return QStringLiteral("%1 is %2, not %3").arg(key, shown(seen[key]), shown(wanted[key]));
    }
    return QString();
}

} // namespace hurrycheck
