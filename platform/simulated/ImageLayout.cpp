// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/ImageLayout.h"

#include "platform/SparseFile.h"
#ifdef Q_OS_LINUX
#include "platform/linux/LinuxTools.h"
#endif

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace simulated
{
namespace
{

constexpr int ToolMilliseconds = 60000; ///< a tool that takes longer hangs
constexpr qint64 SectorBytes = 512;
constexpr int LongestTableLine = 512;

/// A field of a partition in a script: named, or a number with its unit, or the code of a type.
constexpr const char *TableField =
    R"re(((start|size|type|Id|uuid|name|attrs|bootable)\s*=\s*("[^"\p{Cc}]*"|[^"\s,;]*))re"
    R"re(|bootable|\d*[KMGTPkmgtp]?(iB|B)?|[-+*]|\+\d+[KMGTPkmgtp]?(iB|B)?|[LSEXUVRH]|[0-9A-Fa-f-]+|))re";

/// A partition, in sectors.
struct Place {
    qint64 start = 0;
    qint64 count = 0;
};

using Arguments = QStringList (*)(const FileSystem &, const Place &);

/// A program that makes file systems. Its last argument is the full path of the file.
struct Maker {
    const char *type;
    const char *tool;
    bool takesOffset; ///< writes into the image itself; the size in KiB then comes behind the file
    int longestLabel;
    Arguments arguments;
};

/// Option and value in one word: whatever the value begins with, it is no option of its own.
QStringList labelled(QStringList arguments, const char *option, const QString &value)
{
    return value.isEmpty() ? arguments : arguments << QLatin1String(option) + value;
}

QStringList extArguments(const FileSystem &system, const Place &place)
{
    // Inode tables and journal are written at the first mount only, so that the image stays small.
    const QString options = QStringLiteral("offset=%1,lazy_itable_init=1,lazy_journal_init=1,nodiscard");
    QStringList arguments{QStringLiteral("-q"), QStringLiteral("-F"), QStringLiteral("-t"),
                          system.type,          QStringLiteral("-E"), options.arg(place.start * SectorBytes)};
    arguments = labelled(arguments, "-L", system.label);
    return labelled(arguments, "-M", system.lastMounted);
}

QStringList fatArguments(const FileSystem &system, const Place &place)
{
    const QString start = QString::number(place.start);
    const QStringList arguments{QStringLiteral("-F"),       system.type.mid(3),
                                QStringLiteral("-h"),       start,
                                QStringLiteral("--offset"), start};
    return labelled(arguments, "-n", system.label);
}

QStringList ntfsArguments(const FileSystem &system, const Place &place)
{
    // The geometry is asked of a device; a file has none.
    const QStringList arguments{QStringLiteral("-q"),
                                QStringLiteral("-Q"),
                                QStringLiteral("-F"),
                                QStringLiteral("-s"),
                                QString::number(512),
                                QStringLiteral("-p"),
                                QString::number(std::min<qint64>(place.start, 0xFFFFFFFF)),
                                QStringLiteral("-H"),
                                QStringLiteral("255"),
                                QStringLiteral("-S"),
                                QStringLiteral("63")};
    return labelled(arguments, "-L", system.label);
}

QStringList exfatArguments(const FileSystem &system, const Place &)
{
    return labelled(QStringList(), "-L", system.label);
}

const Maker makers[] = {
    {"ext2", "mke2fs", true, 16, &extArguments},         {"ext3", "mke2fs", true, 16, &extArguments},
    {"ext4", "mke2fs", true, 16, &extArguments},         {"fat16", "mkfs.vfat", true, 11, &fatArguments},
    {"fat32", "mkfs.vfat", true, 11, &fatArguments},     {"ntfs", "mkfs.ntfs", false, 32, &ntfsArguments},
    {"exfat", "mkfs.exfat", false, 11, &exfatArguments},
};

const Maker *makerOf(const QString &type)
{
    const auto *const end = std::end(makers);
    const auto *const maker = std::find_if(
        std::begin(makers), end, [&type](const Maker &each) { return type == QLatin1String(each.type); });
    return maker == end ? nullptr : maker;
}

/// The full path of a tool; empty where there is none. They are the administrator's, whose folders a user's
/// path may lack. Off Linux, a tool of one of these names is another one.
QString pathOf(const char *tool)
{
#ifdef Q_OS_LINUX
    return linuxtools::find(QLatin1String(tool));
#else
    (void)tool;
    return QString();
#endif
}

/// Runs a tool, if the machine has it. On success its output, else nothing; a failure is told of.
std::optional<QByteArray> run(const char *tool, const QStringList &arguments, const QByteArray &input,
                              const QString &place)
{
    const QString path = pathOf(tool);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    process.start(path, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(ToolMilliseconds);
    if (!ended) {
        process.kill();
        process.waitForFinished();
    }
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        return process.readAllStandardOutput();
    }
    qWarning("%s: %s: %s", qUtf8Printable(place), tool,
             process.readAllStandardError().simplified().constData());
    return std::nullopt;
}

/// The partitions of the image, by number.
QHash<int, Place> partitionsOf(const QString &image, const QString &place)
{
    QHash<int, Place> places;
    const auto json = run("sfdisk", {QStringLiteral("--json"), image}, QByteArray(), place);
    const QJsonObject table = QJsonDocument::fromJson(json.value_or(QByteArray()))
                                  .object()
                                  .value(QLatin1String("partitiontable"))
                                  .toObject();
    const QJsonArray rows = table.value(QLatin1String("partitions")).toArray();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        QString number = row.value(QLatin1String("node")).toString().mid(image.size());
        number.remove(QLatin1Char('p')); // stands between two digits
        places.insert(number.toInt(), {static_cast<qint64>(row.value(QLatin1String("start")).toDouble()),
                                       static_cast<qint64>(row.value(QLatin1String("size")).toDouble())});
    }
    return places;
}

void makeInPlace(const Maker &maker, const FileSystem &system, const Place &at, const QString &image,
                 const QString &place)
{
    const QString kibibytes = QString::number(at.count / 2);
    const bool isFat = maker.arguments == &fatArguments;
    run(maker.tool,
        maker.arguments(system, at) << image << (isFat ? kibibytes : kibibytes + QLatin1Char('k')),
        QByteArray(), place);
}

/// For tools that take a whole file only.
void makeBeside(const Maker &maker, const FileSystem &system, const Place &at, const QString &image,
                const QString &place)
{
    const QString beside = image + QLatin1String(".fs");
    QFile::remove(beside);
    if (sparse::resize(beside, at.count * SectorBytes) &&
        run(maker.tool, maker.arguments(system, at) << beside, QByteArray(), place) &&
        !sparse::copyInto(beside, image, at.start * SectorBytes)) {
        qWarning("%s: %s", qUtf8Printable(place), "the image cannot be written");
    }
    QFile::remove(beside);
}

} // namespace

const QStringList &fileSystemTypes()
{
    static const QStringList types = [] {
        QStringList names;
        for (const Maker &maker : makers) {
            names.append(QLatin1String(maker.type));
        }
        return names;
    }();
    return types;
}

bool isExt(const QString &type)
{
    return type.startsWith(QLatin1String("ext"));
}

int longestLabel(const QString &type)
{
    const Maker *maker = makerOf(type);
    return maker == nullptr ? 0 : maker->longestLabel;
}

int strangeTableLine(const QByteArray &script)
{
    // A script may also hold commands of the tool, all of them bare words.
    static const QRegularExpression line(
        QStringLiteral(
            R"re(^\s*(|#.*|(label|label-id|device|unit|first-lba|last-lba|table-length|grain|sector-size):[ \w./:-]*)re"
            R"re(|([\w./-]+ ?: ?)?FIELD(\s*[,;]\s*FIELD)*[,;]?)\s*$)re")
            .replace(QLatin1String("FIELD"), QLatin1String(TableField)));
    const QList<QByteArray> lines = script.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).size() > LongestTableLine || !line.match(QString::fromUtf8(lines.at(i))).hasMatch())
            return i + 1;
    }
    return 0;
}

bool isPlainName(const QString &name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.isPrint() || c.isSurrogate(); });
}

void layOut(const Layout &layout, const QString &image, const QString &place)
{
    // Nothing but a file is ever handed to these tools.
    if (layout.table.isEmpty() || !QFileInfo(image).isFile() || QFileInfo(image).isSymLink()) {
        return;
    }
    const QStringList arguments{QStringLiteral("--quiet"), QStringLiteral("--no-reread"),
                                QStringLiteral("--no-tell-kernel"), image};
    if (!run("sfdisk", arguments, layout.table, place + QLatin1String(".table")) ||
        layout.fileSystems.isEmpty()) {
        return;
    }
    const QHash<int, Place> places = partitionsOf(image, place);
    for (int i = 0; i < layout.fileSystems.size(); ++i) {
        const FileSystem &system = layout.fileSystems.at(i);
        const Maker *maker = makerOf(system.type);
        const QString key = QStringLiteral("%1.fileSystems[%2]").arg(place).arg(i);
        const auto at = places.constFind(system.partition);
        if (at == places.constEnd()) {
            qWarning("%s: there is no partition %d", qUtf8Printable(key), system.partition);
        } else if (maker != nullptr) {
            (maker->takesOffset ? makeInPlace : makeBeside)(*maker, system, *at, image, key);
        }
    }
}

} // namespace simulated
