// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/FileTargets.h"

#include "platform/JsonSettings.h"
#include "platform/linux/LsblkInventory.h"
#include "platform/simulated/PcDescription.h"
#include "platform/simulated/SelfTestText.h"
#include "smart/AttributeHistory.h"
#include "smart/SelfTestText.h"
#include "update/UpdateCheck.h"
#include "update/VersionCompare.h"

#include <QBuffer>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <sanitizer/lsan_interface.h>

// Qt's JSON parser leaks some bytes if a text is no JSON or names a key twice. So the readers of JSON are
// not checked for leaks here; the tests do that.

namespace filetargets
{

namespace
{

QByteArray settingsOf(const QByteArray &text)
{
    QBuffer in;
    in.setData(text);
    in.open(QIODevice::ReadOnly);
    QSettings::SettingsMap map;
    jsonsettings::read(in, map);
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    jsonsettings::write(out, map);
    return out.data();
}

/// "0=/dev/sda" and so on, in their order.
QStringList disksOf(const lsblk::Inventory &inventory)
{
    QStringList disks;
    for (const inventory::Disk &disk : inventory.machine.disks)
        disks << QString::number(disk.number) + QLatin1Char('=') + disk.node;
    return disks;
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("an input cannot be written");
}

} // namespace

QString runSettings(const QByteArray &input, Mutator &)
{
    const __lsan::ScopedDisabler parserLeaks;
    // Qt removes a byte-order mark from the begin of each text that it reads.
    const QByteArray kept = settingsOf(settingsOf(input).replace("\xEF\xBB\xBF", ""));
    return settingsOf(kept) == kept ? QString() : QStringLiteral("what is kept is read as something else");
}

QString runDescription(const QByteArray &input, Mutator &)
{
    const __lsan::ScopedDisabler parserLeaks;
    const QString folder = QStringLiteral(HALVANE_SOURCE_DIR "/demo");
    QString error;
    const auto pc = simulated::parsePc(input, folder, &error);
    if (pc.has_value() != error.isEmpty() || error.contains(QLatin1Char('\n')))
        return QStringLiteral("neither a PC nor one line of what is wrong");
    QStringList files;
    for (const simulated::Disk &disk : pc ? pc->disks : QVector<simulated::Disk>())
        files << disk.reports << disk.capabilities << disk.selfTestLog << disk.record.node;
    files << (pc ? pc->history : QString());
    const bool below = std::all_of(files.cbegin(), files.cend(), [&](const QString &file) {
        return file.isEmpty() ||
               (file.startsWith(folder + QLatin1Char('/')) && !file.contains(QLatin1String("/../")));
    });
    return below ? QString() : QStringLiteral("a file outside the folder");
}

QString runBlockDevices(const QByteArray &input, Mutator &mutator)
{
    const __lsan::ScopedDisabler parserLeaks;
    const lsblk::Inventory first = lsblk::parse(input);
    const lsblk::Inventory again = lsblk::parse(input, {}, first);
    if (disksOf(first) != disksOf(again) || first.volumeNodes != again.volumeNodes)
        return QStringLiteral("a disk or volume loses its number or letter");
    const QStringList only{QStringLiteral("/dev/sda"), QStringLiteral("/dev/none")};
    if (lsblk::parse(input, only, mutator.below(2) ? first : lsblk::Inventory()).machine.disks.size() != 2)
        return QStringLiteral("other disks than were asked for");
    return QString();
}

QString runHistory(const QByteArray &input, Mutator &mutator)
{
    // A new name each time, as Qt remembers what it read from a file.
    static int number = 0;
    const HistoryPaths paths = historyPaths(QString::number(++number));
    put(paths.dates, input);
    put(paths.values, input);
    const std::vector<QString> before = readHistoryDates(paths.dates, nullptr);
    const QString today = QStringLiteral("21-11-2026");
    AppendHistoryDate(paths.dates, today);
    const std::vector<QString> appended = readHistoryDates(paths.dates, nullptr);
    PruneHistory(paths.dates, paths.values);
    const std::vector<QString> pruned = readHistoryDates(paths.dates, nullptr);
    if (mutator.below(2))
        RemoveHistoryGroup(today, paths.values);
    const auto values = readHistoryValues(paths.values, pruned, QStringLiteral("Power On Hours"));
    for (const QString &path : {paths.dates, paths.values})
        QFile::remove(path);
    if (appended.size() > before.size() + 1 || appended.empty() || appended.back() != today)
        return QStringLiteral("the day does not stand at the end");
    if (pruned.size() > appended.size() || (appended.size() > 10 && pruned.size() == appended.size()))
        return QStringLiteral("the oldest day stays");
    return values.size() == pruned.size() ? QString() : QStringLiteral("not a value for each day");
}

QString runVersions(const QByteArray &input, Mutator &)
{
    const QStringList lines = update::versionLines(input);
    const version::Offer offer = version::offerOf(QStringLiteral("11.0.0.8"), lines);
    if (lines.size() > 2 || offer.latestMajor.size() > 8 || offer.latestMinor.size() > 8)
        return QStringLiteral("more than two versions");
    const bool any = !offer.latestMajor.isEmpty() || !offer.latestMinor.isEmpty();
    return any == (offer.major || offer.minor) ? QString() : QStringLiteral("an offer without a version");
}

QString runSelfTests(const QByteArray &input, Mutator &mutator)
{
    QTextStream log(input);
    selftest::newestTest(log);
    QTextStream capabilities(input);
    selftest::readCapabilities(capabilities, SelfTestKind(mutator.below(2)));
    QTextStream status(input);
    const auto events = selftest::readStatus(status);
    const QByteArray row = simulated::selftext::logRow(QStringLiteral("Short offline"),
                                                       int(mutator.below(16)), int(mutator.below(10)),
                                                       qint64(mutator.below(1 << 20)), QStringLiteral("-"));
    simulated::selftext::withLogRows(simulated::selftext::withStatus(input, int(mutator.below(16)), 9),
                                     {row});
    simulated::selftext::pollingMinutes(input, "Short");
    simulated::selftext::powerOnHours(input);
    return events.isEmpty() ? QStringLiteral("a status text tells nothing at all") : QString();
}

} // namespace filetargets
