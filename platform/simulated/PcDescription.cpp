// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/PcDescription.h"

#include "platform/OwnFiles.h"
#include "platform/simulated/JsonReader.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace simulated
{
namespace
{

constexpr qint64 most = 9007199254740992; // what a JSON number tells exactly
constexpr qint64 mostSectors = most / 512;
constexpr quint64 slowest = 1000000; // bytes/s; the start reads from each disk and waits for it

/// The ends of a self-test; the place is the drive's own number of it.
const QStringList &selfTestResults()
{
    static const QStringList words{QStringLiteral("completed"),       QStringLiteral("aborted"),
                                   QStringLiteral("interrupted"),     QStringLiteral("fatal error"),
                                   QStringLiteral("unknown failure"), QStringLiteral("electrical"),
                                   QStringLiteral("servo"),           QStringLiteral("read failure"),
                                   QStringLiteral("handling"),        QStringLiteral("reserved")};
    return words;
}

SelfTestEnd readSelfTestEnd(const JsonReader &in, const SelfTestEnd &fallback)
{
    SelfTestEnd end = fallback;
    if (in.has("result")) {
        end.status = in.word("result", 0, selfTestResults());
        end.remainingTenths = end.status == 0 ? 0 : 1;
    }
    end.remainingTenths = static_cast<int>(in.whole("remaining", end.remainingTenths * 10, 0, 90)) / 10;
    return end;
}

/// The full path of a file or folder that the description names, without links; it lies below the described
/// folder, whether or not it is there.
QString pathBelow(const JsonReader &in, const QString &keyPath, const QString &name, const QString &folder)
{
    const bool isPlain =
        std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.isPrint() || c.isSurrogate(); });
    if (!isPlain) {
        in.fail(keyPath, QStringLiteral("a text without control characters is wanted"));
        return QString();
    }
    const QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(name));
    const QString real = QFileInfo(path).canonicalFilePath();
    const QString realFolder = QFileInfo(folder).canonicalFilePath();
    if (!path.startsWith(folder + QLatin1Char('/')) ||
        (!real.isEmpty() && !real.startsWith(realFolder + QLatin1Char('/')))) {
        in.fail(keyPath, path + QLatin1String(": lies outside the folder"));
    }
    return real.isEmpty() ? path : folder + real.mid(realFolder.size());
}

/// The same of a file, which has to exist.
QString existingFile(const JsonReader &in, const QString &keyPath, const QString &name, const QString &folder)
{
    const QString file = pathBelow(in, keyPath, name, folder);
    const QFileInfo info(file);
    if (!info.exists())
        in.fail(keyPath, file + QLatin1String(": no such file"));
    else if (!info.isFile() || !info.isReadable())
        in.fail(keyPath, file + QLatin1String(": no regular file that can be read"));
    else if (info.size() > ownfiles::MostBytes)
        in.fail(keyPath, file + QLatin1String(": more than 16 MiB"));
    return file;
}

QString readFileName(const JsonReader &in, const char *key, const QString &folder)
{
    return in.has(key) ? existingFile(in, in.path(key), in.text(key), folder) : QString();
}

/// A text or a list of texts.
QStringList readReports(const JsonReader &in, const QString &folder)
{
    constexpr const char *key = "report";
    if (!in.value(key).isArray()) {
        const QString file = readFileName(in, key, folder);
        return file.isEmpty() ? QStringList() : QStringList(file);
    }
    QStringList files;
    const QStringList names = in.texts(key);
    for (int i = 0; i < names.size(); ++i)
        files.append(
            existingFile(in, QStringLiteral("%1[%2]").arg(in.path(key)).arg(i), names.at(i), folder));
    return files;
}

SectorRanges readRanges(const JsonReader &in, const char *key)
{
    SectorRanges ranges;
    const QJsonArray array = in.list(key);
    for (int i = 0; i < array.size(); ++i) {
        const QString place = QStringLiteral("%1[%2]").arg(in.path(key)).arg(i);
        const QJsonValue value = array.at(i);
        const bool single = value.isDouble();
        const QJsonArray pair = single ? QJsonArray{value, 1} : value.toArray();
        if (pair.size() != 2) {
            in.fail(place, QStringLiteral("a sector or [first, count] is wanted"));
            continue;
        }
        const QString firstPlace = single ? place : place + QLatin1String("[0]");
        const qint64 first = in.wholeValue(pair.at(0), firstPlace, 0, mostSectors);
        ranges.add(first, in.wholeValue(pair.at(1), place + QLatin1String("[1]"), 1, mostSectors));
    }
    return ranges;
}

std::optional<Identity> readIdentity(const JsonReader &disk)
{
    constexpr const char *key = "identity";
    if (!disk.has(key))
        return std::nullopt;
    const JsonReader in = disk.below(key);
    Identity identity;
    identity.model = in.text("model");
    identity.serial = in.text("serial");
    identity.firmware = in.text("firmware");
    QString hex = in.text("smart");
    hex.remove(QLatin1Char(' '));
    identity.smart = QByteArray::fromHex(hex.toLatin1());
    if (identity.smart.toHex() != hex.toLower().toLatin1() || identity.smart.size() > 512)
        in.wrong("smart", QStringLiteral("at most 512 bytes in hexadecimal are wanted"));
    return identity;
}

/// The image may be missing. If it is there, it is a regular file of any size.
QString readImage(const JsonReader &in, const QString &folder)
{
    constexpr const char *key = "image";
    const QString image = in.text(key);
    if (image.isEmpty())
        return QString();
    const QString file = pathBelow(in, in.path(key), image, folder);
    const QFileInfo info(file);
    if ((info.exists() && !info.isFile()) || info.isSymLink())
        in.wrong(key, file + QLatin1String(": no regular file that can be read"));
    return file;
}

Disk readDisk(const JsonReader &in, const PcDescription &pc, const SelfTestEnd &end)
{
    Disk disk;
    inventory::Disk &record = disk.record;
    if (!in.has("number"))
        in.wrong("number", QStringLiteral("a whole number is wanted"));
    record.number = static_cast<int>(in.whole("number", 0, 0, 127));
    if (pc.disk(record.number) != nullptr)
        in.wrong("number", QStringLiteral("there is a disk %1 already").arg(record.number));
    record.media = in.text("media", QStringLiteral("fixed"));
    record.model = in.text("model");
    record.interfaceType = in.text("interface", QStringLiteral("SCSI"));
    record.status = in.text("status", QStringLiteral("OK"));
    record.serial = in.text("serial");
    record.bytesPerSector = static_cast<quint32>(in.whole("bytesPerSector", 512, 512, 65536));
    if (record.bytesPerSector % 512 != 0)
        in.wrong("bytesPerSector", QStringLiteral("a multiple of 512 is wanted"));
    record.sectors = static_cast<quint64>(in.whole("sectors", 0, 0, mostSectors));
    record.node = readImage(in, pc.folder);
    disk.opens = in.truth("opens", true);
    disk.bad = readRanges(in, "badSectors");
    disk.unwritable = readRanges(in, "unwritable");
    const auto speed = static_cast<quint64>(in.whole("bytesPerSecond", 0, 0, most));
    disk.bytesPerSecond = speed > 0 ? std::max(speed, slowest) : 0;
    disk.failsPastEnd = in.word("pastEnd", 0, {QStringLiteral("short"), QStringLiteral("fail")}) == 1;
    disk.reports = readReports(in, pc.folder);
    disk.asleep = in.truth("asleep", false);
    disk.idle = in.truth("idle", false);
    disk.capabilities = readFileName(in, "capabilities", pc.folder);
    disk.selfTestLog = readFileName(in, "selfTestLog", pc.folder);
    disk.identity = readIdentity(in);
    disk.selfTestEnd = readSelfTestEnd(in.below("selfTest"), end);
    return disk;
}

inventory::Volume readVolume(const JsonReader &in, const PcDescription &pc)
{
    static const QStringList types{QStringLiteral("fixed"),   QStringLiteral("removable"),
                                   QStringLiteral("cdrom"),   QStringLiteral("remote"),
                                   QStringLiteral("ramdisk"), QStringLiteral("noroot"),
                                   QStringLiteral("unknown")};
    inventory::Volume volume;
    const QString letter = in.text("letter").toUpper();
    if (letter.size() != 1 || letter.at(0) < QLatin1Char('A') || letter.at(0) > QLatin1Char('Z')) {
        in.wrong("letter", QStringLiteral("a letter from A to Z is wanted"));
        return volume;
    }
    volume.letter = letter.at(0);
    if (pc.volume(volume.letter) != nullptr)
        in.wrong("letter", QStringLiteral("there is a volume %1 already").arg(letter));
    volume.label = in.text("label");
    volume.type = types.value(in.word("type", 0, types));
    volume.fileSystem = in.text("fileSystem");
    volume.size = static_cast<quint64>(in.whole("size", 0, 0, most));
    volume.free = static_cast<quint64>(in.whole("free", 0, 0, most));
    volume.hasBitLockerLine = in.has("bitLocker");
    volume.bitLocker = in.text("bitLocker");
    in.each("extents", [&volume](const JsonReader &from) {
        inventory::Extent extent;
        extent.disk = static_cast<int>(from.whole("disk", 0, 0, 127));
        extent.offset = static_cast<quint64>(from.whole("offset", 0, 0, most / 2));
        extent.length = static_cast<quint64>(from.whole("length", 0, 0, most / 2));
        volume.extents.append(extent);
    });
    return volume;
}

ReportChange readChange(const JsonReader &in, const PcDescription &pc)
{
    constexpr qint64 mostSeconds = 10 * 366 * 86400;
    ReportChange change;
    for (const char *key : {"afterSeconds", "disk"}) {
        if (!in.has(key))
            in.wrong(key, QStringLiteral("a whole number is wanted"));
    }
    change.afterSeconds = in.whole("afterSeconds", 0, 0, mostSeconds);
    change.disk = static_cast<int>(in.whole("disk", 0, 0, 127));
    if (pc.disk(change.disk) == nullptr)
        in.wrong("disk", QStringLiteral("there is no disk %1").arg(change.disk));
    change.report = readFileName(in, "report", pc.folder);
    if (in.has("asleep"))
        change.asleep = in.truth("asleep", false);
    else if (!in.has("report"))
        in.wrong("report", QStringLiteral("a text is wanted"));
    return change;
}

inventory::Partition readPartition(const JsonReader &in)
{
    inventory::Partition partition;
    partition.name = in.text("name");
    partition.type = in.text("type");
    partition.size = static_cast<quint64>(in.whole("size", 0, 0, most));
    partition.disk = static_cast<int>(in.whole("disk", 0, 0, 127));
    return partition;
}

QJsonObject readSettings(const JsonReader &in)
{
    static const QRegularExpression upwards(QStringLiteral("(^|[/\\\\])\\.\\.([/\\\\]|$)"));
    static const QRegularExpression onADrive(QStringLiteral("^([A-Za-z]:[/\\\\]|$)"));
    constexpr const char *key = "settings";
    const QJsonObject values = in.object(key);
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QString place = QStringLiteral("%1[\"%2\"]").arg(in.path(key), it.key());
        const QString text = it.value().toString();
        if (!it.value().isString() && !it.value().isDouble() && !it.value().isBool())
            in.fail(place, QStringLiteral("a text, a number, true or false is wanted"));
        else if (text.contains(upwards))
            in.fail(place, QStringLiteral("a text without \"..\" is wanted"));
        else if (it.key().endsWith(QLatin1String("Path")) && !text.contains(onADrive))
            in.fail(place, QStringLiteral("a path on a drive is wanted"));
    }
    return values;
}

QString readHistory(const JsonReader &in, const QString &folder)
{
    constexpr const char *key = "history";
    const QString path = pathBelow(in, key, in.text(key, key), folder);
    if (!in.error().isEmpty() || !QFileInfo(path).isDir()) {
        if (in.has(key))
            in.wrong(key, path + QLatin1String(": no such folder"));
        return QString();
    }
    const QString strange = ownfiles::irregularIn(path);
    if (!strange.isEmpty()) {
        in.wrong(key, strange + QLatin1String(": no regular file that can be read"));
        return QString();
    }
    qint64 bytes = 0;
    for (QDirIterator each(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); each.hasNext();) {
        each.next();
        bytes += each.fileInfo().size();
    }
    if (bytes > ownfiles::MostBytes)
        in.wrong(key, path + QLatin1String(": more than 16 MiB"));
    return path;
}

void readParts(const JsonReader &in, const SelfTestEnd &end, PcDescription *pc)
{
    constexpr const char *present = "present";
    in.each("disks", [&](const JsonReader &disk) {
        pc->disks.append(readDisk(disk, *pc, end));
        if (!disk.truth(present, true))
            pc->absentDisks.insert(pc->disks.last().record.number);
    });
    in.each("volumes", [&](const JsonReader &volume) {
        pc->volumes.append(readVolume(volume, *pc));
        if (!volume.truth(present, true))
            pc->absentVolumes.insert(pc->volumes.last().letter);
    });
    in.each("partitions",
            [&](const JsonReader &partition) { pc->partitions.append(readPartition(partition)); });
    in.each("reportChanges",
            [&](const JsonReader &change) { pc->reportChanges.append(readChange(change, *pc)); });
    std::stable_sort(pc->reportChanges.begin(), pc->reportChanges.end(),
                     [](const ReportChange &one, const ReportChange &other) {
                         return one.afterSeconds < other.afterSeconds;
                     });
}

PcDescription readObject(const QJsonObject &object, const QString &folder, QString *error)
{
    const JsonReader in(object, QString(), error);
    PcDescription pc;
    pc.folder = folder;
    pc.name = in.text("name", QStringLiteral("PC"));
    pc.user = in.text("user", QStringLiteral("user"));
    pc.logon = in.text("logon", QStringLiteral("first"));
    pc.operatingSystem = in.text("operatingSystem", QStringLiteral("Microsoft Windows 10 10.0.19045 x64"));
    pc.dpi = static_cast<int>(in.whole("dpi", 96, 48, 960));
    pc.pauses = in.truth("pauses", true);
    pc.hasSmartctl = in.truth("smartctl", true);
    pc.network = in.truth("network", false);
    pc.toolMilliseconds = static_cast<int>(in.whole("toolMilliseconds", 0, 0, 10000));
    pc.processes = in.texts("processes");
    pc.installed = in.texts("installed");
    pc.settings = readSettings(in);
    pc.history = readHistory(in, folder);
    pc.tour = in.object("tour");
    pc.clockSpeed = in.number("clockSpeed", 1.0, 0.001, 100000.0);
    const JsonReader test = in.below("selfTest");
    pc.secondsPerMinute = test.number("secondsPerMinute", 1.0, 0.0, 3600.0);
    readParts(in, readSelfTestEnd(test, SelfTestEnd()), &pc);
    return pc;
}

/// The object of the text; on failure the error names the line.
std::optional<QJsonObject> parseText(const QByteArray &bytes, QString *error)
{
    QJsonParseError syntax{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        *error = QStringLiteral("line %1: %2")
                     .arg(bytes.left(syntax.offset).count('\n') + 1)
                     .arg(syntax.errorString());
        return std::nullopt;
    }
    if (!document.isObject()) {
        *error = QLatin1String("an object is wanted");
        return std::nullopt;
    }
    return document.object();
}

/// Why a file cannot be the description; empty if it can.
QString unfit(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return QStringLiteral("no such file");
    if (!info.isFile() || info.isSymLink() || !info.isReadable())
        return QStringLiteral("no regular file that can be read");
    return info.size() > ownfiles::MostBytes ? QStringLiteral("more than 16 MiB") : QString();
}

} // namespace

const Disk *PcDescription::disk(int number) const
{
    for (const Disk &each : disks) {
        if (each.record.number == number)
            return &each;
    }
    return nullptr;
}

const inventory::Volume *PcDescription::volume(QChar letter) const
{
    for (const inventory::Volume &each : volumes) {
        if (each.letter == letter.toUpper())
            return &each;
    }
    return nullptr;
}

std::optional<PcDescription> parsePc(const QByteArray &json, const QString &folder, QString *error)
{
    error->clear();
    std::optional<PcDescription> pc;
    if (const std::optional<QJsonObject> object = parseText(json, error))
        pc = readObject(*object, folder, error);
    if (error->isEmpty())
        return pc;
    static const QRegularExpression control(QStringLiteral("\\p{Cc}"));
    error->replace(control, QStringLiteral(" ")); // a key may hold anything
    return std::nullopt;
}

std::optional<PcDescription> readPc(const QString &folder, QString *error)
{
    const QString path = QDir(folder).absolutePath();
    if (!QFileInfo(path).isDir()) {
        *error = path + QLatin1String(": no such folder");
        return std::nullopt;
    }
    const QString file = path + QLatin1String("/pc.json");
    std::optional<PcDescription> pc;
    *error = unfit(file);
    if (error->isEmpty())
        pc = parsePc(ownfiles::contents(file), path, error);
    if (!error->isEmpty())
        error->prepend(file + QLatin1String(": "));
    return pc;
}

} // namespace simulated
