// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

/// The ways in which a line of a tool is cut. Empty parts do not count. They look at no more of a line than
/// they need, so that a line of any length costs one pass.
namespace cuts
{

/// The last part of a line split on `separator`, trimmed; empty where there is none.
QString lastPart(const QString &line, const QString &separator);

/// The first parts of a line split on `separator`, at most `count`, untrimmed.
QStringList firstParts(const QString &line, QChar separator, int count);

/// Whether the text holds one of the words.
bool holdsOneOf(const QString &text, const QStringList &words,
                Qt::CaseSensitivity letters = Qt::CaseSensitive);

/// The text without the literals, taken out one after the other wherever they stand.
QString without(QString text, std::initializer_list<const char *> literals);

/// A number without what groups its digits by three, which each country writes in its own way: "18.250.344"
/// gives "18250344". Whatever else, "1.5" among them, stays as it is.
QString withoutGroups(const QString &number);

} // namespace cuts
