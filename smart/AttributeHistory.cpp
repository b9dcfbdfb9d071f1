// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"

#include "inventory/CommandRunner.h"
#include "platform/FileLock.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "smart/TextCuts.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>

namespace
{

constexpr int DaysKept = 10;
const QString ScratchName = QStringLiteral("history-XXXXXX");

QString historyFolder()
{
    return nativePath(Platform::current().HistoryFolder(QCoreApplication::applicationDirPath()));
}

/// A serial number comes from the drive, which may say anything.
QString fileNameOf(const QString &serial)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f\\x7f]"));
    return QString(serial).replace(forbidden, QStringLiteral("_"));
}

/// Nothing if the file does not open.
std::optional<QByteArrayList> linesOf(const QString &path, QIODevice::OpenMode mode)
{
    QFile file(path);
    if (!file.open(mode | QIODevice::Text))
        return std::nullopt;
    QByteArrayList lines = file.readAll().split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QByteArray textOf(const QByteArrayList &lines)
{
    return lines.isEmpty() ? QByteArray() : lines.join('\n') + '\n';
}

/// Writes a new file under another name, and puts it in place of the old one when it is on the disk. False if
/// that failed.
bool replaceFile(const QString &path, const QByteArray &content, QIODevice::OpenMode mode)
{
    const QFileInfo old(path);
    QSaveFile file(path);
    const bool written = !old.isDir() && file.open(QIODevice::WriteOnly | mode) &&
                         file.write(content) == content.size() && file.flush();
    // QSettings takes a file of the same size and time for the one that it read before.
    if (written && old.exists()) {
        const QDateTime later = old.lastModified().addMSecs(1);
        file.setFileTime(std::max(QDateTime::currentDateTime(), later), QFileDevice::FileModificationTime);
    }
    if (!written)
        file.cancelWriting();
    const bool replaced = written && file.commit();
    if (!replaced)
        qCDebug(logs::smart) << "history is not written:" << file.errorString();
    return replaced;
}

/// The values of the file, each as a text. QSettings turns a text that begins with `@` into whatever type it
/// names, so it reads a copy in which no value begins so. It would also put a lock beside the file: killed,
/// it leaves the lock, and the next one waits for it.
class StoredTexts
{
public:
    explicit StoredTexts(const QString &valuePath)
        : m_scratch(nativePath(tempFile(ScratchName))), m_copy(m_scratch.filePath(QStringLiteral("stored"))),
          m_isReadable(copyFrom(valuePath)), m_stored(m_copy, QSettings::IniFormat)
    {
    }

    /// False for a file that is there and cannot be read.
    bool isReadable() const { return m_isReadable; }
    QString scratch(const QString &name) const { return m_scratch.filePath(name); }
    QStringList keys() const { return m_stored.allKeys(); }

    QString text(const QString &key) const
    {
        QString text = m_stored.value(key).toString().replace(QLatin1String("=."), QLatin1String("="));
        text = text.mid(1).replace(CommaMark, QLatin1Char(',')).trimmed();
        text.remove(QChar::Null); // else the toolkit would write down a type, too
        return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
    }

private:
    /// In the copy a dot stands before each value, and a mark for each comma: QSettings would split there.
    bool copyFrom(const QString &valuePath) const
    {
        QFile from(valuePath);
        if (!m_scratch.isValid() || !from.open(QIODevice::ReadOnly))
            return m_scratch.isValid() && !from.exists();
        QFile to(m_copy);
        const QByteArray text = from.readAll().replace('=', "=.").replace(',', "\\v");
        return to.open(QIODevice::WriteOnly) && to.write(text) == text.size() && to.flush();
    }

    static constexpr QLatin1Char CommaMark{'\v'};
    const QTemporaryDir m_scratch;
    const QString m_copy;
    const bool m_isReadable;
    const QSettings m_stored;
};

bool writeValues(const QString &valuePath, const QDateTime &now, const std::vector<HistoryValue> &rows)
{
    const StoredTexts stored(valuePath);
    if (!stored.isReadable())
        return false;
    const QString fresh = stored.scratch(QStringLiteral("values"));
    {
        QSettings values(fresh, QSettings::IniFormat);
        for (const QString &key : stored.keys())
            values.setValue(key, stored.text(key));
        values.beginGroup(historyDate(now));
        values.setValue(QStringLiteral("CompleteDate"), now.toString(Qt::TextDate));
        for (const HistoryValue &row : rows) {
            if (!row.key.isEmpty())
                values.setValue(row.key, row.value);
        }
        values.endGroup();
        values.sync();
        if (values.status() == QSettings::AccessError)
            return false;
    }
    QFile written(fresh);
    return written.open(QIODevice::ReadOnly) && replaceFile(valuePath, written.readAll(), QIODevice::NotOpen);
}

/// Removes the scratch folders of processes that were killed.
void removeOldScratch()
{
    const QString path = Platform::current().GetTempPathW();
    const QDir temp(nativePath(path));
    const QDateTime recent = QDateTime::currentDateTime().addSecs(-60);
    const QString name = QString(ScratchName).replace(QLatin1Char('X'), QLatin1Char('?'));
    for (const QFileInfo &each : temp.entryInfoList({name}, QDir::Dirs)) {
        if (!path.isEmpty() && each.lastModified() < recent)
            QDir(each.filePath()).removeRecursively();
    }
}

/// Whether the value file begins with the section of a date, and each line of the date list is a date or the
/// rest of one.
bool isHistory(const QString &datePath, const QString &valuePath)
{
    static const QRegularExpression header(QStringLiteral("^\\[\\d\\d-\\d\\d-\\d{4}\\]$"));
    static const QRegularExpression date(QStringLiteral("^[\\d-]{0,10}$"));
    const auto all = [](const QByteArrayList &lines, const QRegularExpression &pattern) {
        return std::all_of(lines.cbegin(), lines.cend(), [&pattern](const QByteArray &line) {
            return pattern.match(QString::fromLatin1(line).trimmed()).hasMatch();
        });
    };
    const auto dates = linesOf(datePath, QIODevice::ReadOnly);
    const auto values = linesOf(valuePath, QIODevice::ReadOnly);
    return dates && values && !dates->isEmpty() && !values->isEmpty() && all(*dates, date) &&
           all({values->first()}, header);
}

/// Earlier versions named the files after the serial number alone, in this folder or in the one above, which
/// may be the program's. These are moved, the dates last: after a crash the next call goes on.
void takeOver(const QString &folder, const QString &serial, const HistoryPaths &paths)
{
    if (serial.isEmpty() || QFileInfo::exists(paths.dates))
        return;
    for (const QString &place : {folder, QFileInfo(folder).path()}) {
        const QString values = place + QLatin1Char('/') + fileNameOf(serial);
        const QString dates = values + QLatin1String("Date.txt");
        const bool begun = QFileInfo::exists(paths.values);
        if (isHistory(dates, begun ? paths.values : values) &&
            (begun || QFile::rename(values, paths.values)) && QFile::rename(dates, paths.dates))
            return;
    }
}

} // namespace

HistoryPaths historyPaths(const QString &serial)
{
    const QString folder = historyFolder();
    if (folder.isEmpty())
        return {};
    const QString name = fileNameOf(serial);
    const HistoryPaths paths{nativePath(folder + QLatin1String("\\dates-") + name + QLatin1String(".txt")),
                             nativePath(folder + QLatin1String("\\values-") + name)};
    takeOver(folder, serial, paths);
    return paths;
}

QString historyDate(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("dd-MM-yyyy"));
}

void AppendHistoryDate(const QString &datePath, const QString &date)
{
    auto lines = linesOf(datePath, QIODevice::ReadWrite);
    const QByteArray day = date.toUtf8();
    if (!lines || (!lines->isEmpty() && lines->last() == day))
        return;
    lines->append(day);
    replaceFile(datePath, textOf(*lines), QIODevice::Text);
}

void PruneHistory(const QString &datePath, const QString &valuePath)
{
    auto lines = linesOf(datePath, QIODevice::ReadOnly);
    if (!lines || lines->size() <= DaysKept)
        return;
    const QByteArray oldest = lines->first();
    // The values go first: after a crash in between the next call finds the date in the list and does both
    // again. The other way round the section would stay for ever.
    RemoveHistoryGroup(QString::fromUtf8(oldest), valuePath);
    lines->removeAll(oldest);
    replaceFile(datePath, textOf(*lines), QIODevice::Text);
}

void RemoveHistoryGroup(const QString &date, const QString &valuePath)
{
    const auto lines = linesOf(valuePath, QIODevice::ReadOnly);
    if (!lines)
        return;
    const QByteArray removed = date.toUtf8();
    QByteArray section;
    QByteArrayList kept;
    for (const QByteArray &line : *lines) {
        if (line.contains('[') && line.contains(']'))
            section = line.mid(line.indexOf('[') + 1, line.indexOf(']') - 1);
        if (section != removed)
            kept.append(line);
    }
    replaceFile(valuePath, textOf(kept), QIODevice::Text);
}

bool recordHistory(const QString &serial, const QDateTime &now, const std::vector<HistoryValue> &rows)
{
    constexpr qint32 LongestWait = 2000; // the window waits, too
    const QString folder = historyFolder();
    if (folder.isEmpty())
        return false;
    const FileLock lock(folder + QLatin1String("/.lock"), LongestWait);
    if (!lock.isHeld())
        return false;
    removeOldScratch();
    const HistoryPaths paths = historyPaths(serial);
    AppendHistoryDate(paths.dates, historyDate(now));
    PruneHistory(paths.dates, paths.values);
    return writeValues(paths.values, now, rows);
}

std::vector<QString> readHistoryDates(const QString &datePath, bool *opened)
{
    const auto lines = linesOf(datePath, QIODevice::ReadWrite);
    if (opened)
        *opened = lines.has_value();
    std::vector<QString> dates;
    for (const QByteArray &line : lines.value_or(QByteArrayList()))
        dates.push_back(QString::fromUtf8(line));
    return dates;
}

std::vector<qint64> readHistoryValues(const QString &valuePath, const std::vector<QString> &dates,
                                      const QString &key)
{
    const StoredTexts stored(valuePath);
    std::vector<qint64> values;
    for (const QString &date : dates) {
        const QString text = key.isEmpty() ? QString() : stored.text(date + QLatin1Char('/') + key);
        // Days of earlier versions may hold grouped digits.
        values.push_back(cuts::withoutGroups(text).toLongLong(nullptr, 10));
    }
    return values;
}
