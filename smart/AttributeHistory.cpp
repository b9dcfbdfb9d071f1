#include "smart/AttributeHistory.h"

#include "inventory/CommandRunner.h"
#include "platform/Platform.h"
#include "smart/TextCuts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

constexpr std::size_t DaysKept = 10;

/// A serial number comes from the drive, which may say anything.
QString fileNameOf(const QString &serial)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f\\x7f]"));
    static const QRegularExpression dotsAlone(QStringLiteral("^[. ]*\\.[. ]*$"));
    static const QRegularExpression device(QStringLiteral("^(con|prn|aux|nul|(com|lpt)[0-9])[ ]*(\\.|$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    QString name = serial;
    name.replace(forbidden, QStringLiteral("_"));
    if (dotsAlone.match(name).hasMatch())
        name.replace(QLatin1Char('.'), QLatin1Char('_'));
    if (device.match(name).hasMatch())
        name.prepend(QLatin1Char('_'));
    return name;
}

/// The history may lie beside the program: a drive that bears the name of a program does not get its file.
bool isProgram(const QString &path)
{
    QFile file(path);
    const QByteArray start = file.open(QIODevice::ReadOnly) ? file.read(4) : QByteArray();
    return start.startsWith("MZ") || start == "\177ELF";
}

/// Nothing if the file does not open.
std::optional<std::vector<QByteArray>> linesOf(const QString &path, QIODevice::OpenMode mode)
{
    QFile file(path);
    if (!file.open(mode | QIODevice::Text))
        return std::nullopt;
    std::vector<QByteArray> lines;
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (line.endsWith('\n'))
            line.chop(1);
        lines.push_back(line);
    }
    return lines;
}

QByteArray textOf(const std::vector<QByteArray> &lines)
{
    QByteArray text;
    for (const QByteArray &line : lines)
        text += line + '\n';
    return text;
}

/// The old file stays what it is until the new one is on the disk, under a name of its own.
void replaceFile(const QString &path, const QByteArray &content, QIODevice::OpenMode mode)
{
    const QFileInfo old(path);
    QSaveFile file(path);
    if (old.isDir() || !file.open(QIODevice::WriteOnly | mode))
        return;
    if (file.write(content) != content.size() || !file.flush()) {
        file.cancelWriting();
        return;
    }
    // QSettings takes a file of the same size and time for the one that it read before.
    if (old.exists()) {
        const QDateTime later = old.lastModified().addMSecs(1);
        file.setFileTime(std::max(QDateTime::currentDateTime(), later), QFileDevice::FileModificationTime);
    }
    file.commit();
}

/// QSettings works on a copy: beside the file it would leave a lock when it is killed, and then wait for it.
void writeValues(const QString &valuePath, const QDateTime &now, const std::vector<HistoryValue> &rows)
{
    const QTemporaryDir scratch(nativePath(tempFile(QStringLiteral("history-XXXXXX"))));
    const QString copy = scratch.filePath(QStringLiteral("values"));
    if (!scratch.isValid() || (QFileInfo::exists(valuePath) && !QFile::copy(valuePath, copy)))
        return;
    QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    {
        QSettings values(copy, QSettings::IniFormat);
        values.beginGroup(historyDate(now));
        values.setValue(QStringLiteral("CompleteDate"), now.toString(Qt::TextDate));
        for (const HistoryValue &row : rows) {
            if (!row.key.isEmpty())
                values.setValue(row.key, row.value);
        }
        values.endGroup();
        values.sync();
        if (values.status() == QSettings::AccessError)
            return;
    }
    QFile written(copy);
    if (written.open(QIODevice::ReadOnly))
        replaceFile(valuePath, written.readAll(), QIODevice::NotOpen);
}

} // namespace

HistoryPaths historyPaths(const QString &serial)
{
    const QString path = Platform::current().HistoryFolder(QCoreApplication::applicationDirPath()) +
                         QLatin1Char('\\') + fileNameOf(serial);
    return {nativePath(path + QLatin1String("Date.txt")), nativePath(path)};
}

QString historyDate(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("dd-MM-yyyy"));
}

void AppendHistoryDate(const QString &datePath, const QString &date)
{
    auto lines = linesOf(datePath, QIODevice::ReadWrite);
    const QByteArray day = date.toUtf8();
    if (!lines || (!lines->empty() && lines->back() == day))
        return;
    lines->push_back(day);
    replaceFile(datePath, textOf(*lines), QIODevice::Text);
}

void PruneHistory(const QString &datePath, const QString &valuePath)
{
    auto lines = linesOf(datePath, QIODevice::ReadOnly);
    if (!lines || lines->size() <= DaysKept)
        return;
    const QByteArray oldest = lines->front();
    // The values go first: killed in between, the next call finds the date in the list and does it all again.
    // The other way round the section would stay for ever.
    RemoveHistoryGroup(QString::fromUtf8(oldest), valuePath);
    lines->erase(std::remove(lines->begin(), lines->end(), oldest), lines->end());
    replaceFile(datePath, textOf(*lines), QIODevice::Text);
}

void RemoveHistoryGroup(const QString &date, const QString &valuePath)
{
    const auto lines = linesOf(valuePath, QIODevice::ReadOnly);
    if (!lines)
        return;
    const QByteArray removed = date.toUtf8();
    QByteArray section;
    std::vector<QByteArray> kept;
    for (const QByteArray &line : *lines) {
        if (line.contains('[') && line.contains(']'))
            section = line.mid(line.indexOf('[') + 1, line.indexOf(']') - 1);
        if (section != removed)
            kept.push_back(line);
    }
    replaceFile(valuePath, textOf(kept), QIODevice::Text);
}

void recordHistory(const QString &serial, const QDateTime &now, const std::vector<HistoryValue> &rows)
{
    const HistoryPaths paths = historyPaths(serial);
    if (isProgram(paths.values))
        return;
    AppendHistoryDate(paths.dates, historyDate(now));
    PruneHistory(paths.dates, paths.values);
    writeValues(paths.values, now, rows);
}

std::vector<QString> readHistoryDates(const QString &datePath, bool *opened)
{
    const auto lines = linesOf(datePath, QIODevice::ReadWrite);
    if (opened)
        *opened = lines.has_value();
    std::vector<QString> dates;
    for (const QByteArray &line : lines.value_or(std::vector<QByteArray>()))
        dates.push_back(QString::fromUtf8(line));
    return dates;
}

std::vector<qint64> readHistoryValues(const QString &valuePath, const std::vector<QString> &dates,
                                      const QString &key)
{
    QSettings stored(valuePath, QSettings::IniFormat);
    std::vector<qint64> values;
    for (const QString &date : dates) {
        stored.beginGroup(date);
        // Days of earlier versions may hold grouped digits.
        const QString number = key.isEmpty() ? QString() : cuts::withoutGroups(stored.value(key).toString());
        values.push_back(number.toLongLong(nullptr, 10));
        stored.endGroup();
    }
    return values;
}
