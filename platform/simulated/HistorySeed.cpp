// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/HistorySeed.h"

#include "platform/simulated/StateFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace simulated
{

namespace
{

const QString dayFormat = QStringLiteral("dd-MM-yyyy");
const QString momentFormat = QStringLiteral("ddd MMM d HH:mm:ss yyyy");

/// Gives each file's text to `change` and writes back what it changed.
void eachFile(const QString &folder, const std::function<void(QString *)> &change)
{
    QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QFile file(each.next());
        if (!file.open(QIODevice::ReadWrite)) {
            continue;
        }
        const QString before = QString::fromLatin1(file.readAll());
        QString after = before;
        change(&after);
        if (after != before && file.resize(0) && file.seek(0)) {
            file.write(after.toLatin1());
        }
    }
}

/// Replaces what the one group of `pattern` holds.
void replaceEach(QString *text, const QRegularExpression &pattern,
                 const std::function<QString(const QString &)> &replacement)
{
    QString result;
    int end = 0;
    for (auto it = pattern.globalMatch(*text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += text->midRef(end, match.capturedStart(1) - end) + replacement(match.captured(1));
        end = match.capturedEnd(1);
    }
    *text = result + text->midRef(end);
}

void moveDays(const QString &folder, const QDate &newest)
{
    // The lines of the lists of dates, and the headers and moments of the values.
    static const QRegularExpression day(QStringLiteral("^\\[?(\\d\\d-\\d\\d-\\d{4})\\]?\\r?$"),
                                        QRegularExpression::MultilineOption);
    static const QRegularExpression moment(QStringLiteral("^CompleteDate=([^\\r\\n]*)"),
                                           QRegularExpression::MultilineOption);
    const QLocale words = QLocale::c();
    QDate last;
    eachFile(folder, [&](QString *text) {
        for (auto it = day.globalMatch(*text); it.hasNext();) {
            const QDate found = QDate::fromString(it.next().captured(1), dayFormat);
            last = found.isValid() && (last.isNull() || found > last) ? found : last;
        }
    });
    const qint64 shift = last.isValid() ? last.daysTo(newest) : 0;
    eachFile(folder, [&](QString *text) {
        replaceEach(text, day, [&](const QString &old) {
            const QDate found = QDate::fromString(old, dayFormat);
            return found.isValid() ? found.addDays(shift).toString(dayFormat) : old;
        });
        replaceEach(text, moment, [&](const QString &old) {
            const QDateTime found = words.toDateTime(old, momentFormat);
            return found.isValid() ? words.toString(found.addDays(shift), momentFormat) : old;
        });
    });
}

} // namespace

void seedHistory(const QString &from, const QString &to, const QDate &newest)
{
    const QString unready = to + QLatin1String(".new");
    QDir(unready).removeRecursively();
    QDir().mkpath(unready);
    if (!from.isEmpty()) {
        copyFolder(from, unready);
    }
    if (newest.isValid()) {
        moveDays(unready, newest);
    }
    QDir().rename(unready, to);
}

} // namespace simulated
