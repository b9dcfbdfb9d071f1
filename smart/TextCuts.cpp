// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/TextCuts.h"

#include <QRegularExpression>

#include <algorithm>

namespace cuts
{

QString lastPart(const QString &line, const QString &separator)
{
    QStringRef rest(&line);
    while (rest.endsWith(separator))
        rest.chop(separator.size());
    const int before = rest.lastIndexOf(separator);
    return (before < 0 ? rest : rest.mid(before + separator.size())).toString().trimmed();
}

QStringList firstParts(const QString &line, QChar separator, int count)
{
    QStringList parts;
    int start = 0;
    while (start < line.size() && parts.size() < count) {
        int end = line.indexOf(separator, start);
        if (end < 0)
            end = line.size();
        if (end > start)
            parts << line.mid(start, end - start);
        start = end + 1;
    }
    return parts;
}

bool holdsOneOf(const QString &text, const QStringList &words, Qt::CaseSensitivity letters)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return text.contains(word, letters); });
}

QString without(QString text, std::initializer_list<const char *> literals)
{
    for (const char *literal : literals)
        text.remove(QLatin1String(literal));
    return text;
}

QString withoutGroups(const QString &number)
{
    static const QRegularExpression grouped(
        QStringLiteral("^[0-9]{1,3}([^\\p{L}\\p{N}/:+*=-])[0-9]{3}(\\1[0-9]{3})*$"));
    const QRegularExpressionMatch match = grouped.match(number);
    return match.hasMatch() ? QString(number).remove(match.captured(1)) : number;
}

} // namespace cuts
