// SPDX-License-Identifier: GPL-3.0-or-later
#include "monitor/PcCollection.h"

#include "inventory/CCreateDiskDriveList.h"
#include "inventory/CommandRunner.h"
#include "inventory/RawAccess.h"
#include "monitor/Schedule.h"
#include "monitor/SerialMask.h"
#include "platform/OwnFiles.h"
#include "platform/Platform.h"
#include "platform/SparseFile.h"
#include "smart/AttributeHistory.h"
#include "smart/ReportParser.h"
#include "smart/ToolInvocation.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTextStream>

#include <algorithm>
#include <map>

namespace
{

constexpr quint64 MostNumber = 1ULL << 53; // what a description takes
constexpr int GptSectors = 34;             // the table of protection, the header and 128 entries
const QString BitLockerFile = QStringLiteral("CollectedVolume.txt");

double number(quint64 value)
{
    return static_cast<double>(std::min(value, MostNumber));
}

/// The bytes of a sector, as far as a description takes them.
int sectorBytes(quint32 bytes)
{
    return bytes % SectorSize == 0 && bytes > 0 && bytes <= 65536 ? static_cast<int>(bytes) : int(SectorSize);
}

/// The sectors of one disk that are kept, by their number.
using Sectors = std::map<quint64, QByteArray>;

/// Whether a sector tells of partitions or of a file system. Anything else may be somebody's data.
bool isLayout(quint64 sector, const QByteArray &bytes, bool inDisk, bool isGpt)
{
    const bool isBootSector = bytes.endsWith("\x55\xAA");
    const bool isExt = bytes.mid(0x38, 2) == "\x53\xEF";
    return isBootSector || isExt || bytes.startsWith("EFI PART") || (inDisk && isGpt && sector < GptSectors);
}

class Collection
{
public:
    Collection(const QString &folder, bool anonymous) : m_folder(folder), m_mask(anonymous) {}

    QString write(bool *sawDisk)
    {
        m_wrong = ownfiles::makeFolder(m_folder);
        if (!m_wrong.isEmpty())
            return m_wrong;
        if (!QDir(m_folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
            return m_folder + QLatin1String(": is not empty");
        g_strRunMode.clear(); // the tool of the program's folder, not the copy that the program makes
        Platform &platform = Platform::current();
        platform.BeginListing();
        m_machine = platform.Machine();
        // Each serial number has to be known before the first text is written.
        for (inventory::Disk &disk : m_machine.disks)
            disk.serial = m_mask.serial(disk.serial.trimmed());
        readLayout();
        const QJsonObject pc{{"name", "Collected PC"},
                             {"user", m_mask.masks() ? QStringLiteral("user") : platform.GetUserNameW()},
                             {"operatingSystem", platform.OperatingSystemName()},
                             {"dpi", std::clamp(platform.LogPixelsX(), 48, 960)},
                             {"disks", disks()},
                             {"volumes", volumes()},
                             {"partitions", partitions()},
                             {"settings", settings()}};
        save(QStringLiteral("pc.json"), QJsonDocument(pc).toJson());
        *sawDisk = m_sawDisk;
        return m_wrong;
    }

private:
    /// Does nothing once something went wrong.
    void save(const QString &name, const QByteArray &bytes)
    {
        QFile file;
        if (m_wrong.isEmpty() && (!ownfiles::makeFile(&file, m_folder + QLatin1Char('/') + name) ||
                                  file.write(bytes) != bytes.size() || !file.flush()))
            m_wrong = m_folder + QLatin1Char('/') + name + QLatin1String(": cannot be written");
    }

    /// Builds the program's list of disks, and keeps the sectors that it reads for that.
    void readLayout()
    {
        observeReads([this](int driveCode, quint64 sector, const void *bytes, quint32 count) {
            const QByteArray read(static_cast<const char *>(bytes), static_cast<int>(count));
            for (int at = 0; at + SectorSize <= read.size(); at += SectorSize)
                keep(driveCode, sector + static_cast<quint64>(at / SectorSize), read.mid(at, SectorSize));
        });
        CCreateDiskDriveList().BuildDriveList();
        observeReads(nullptr);
    }

    void keep(int driveCode, quint64 sector, const QByteArray &bytes)
    {
        const bool inDisk = driveCode >= PhysicalDriveBase;
        int disk = driveCode - PhysicalDriveBase;
        if (!inDisk) {
            const std::vector<inventory::Extent> extents = extentsOf(QChar(u'A' + driveCode));
            if (extents.empty())
                return;
            disk = extents.front().disk;
            sector += extents.front().offset / SectorSize;
        }
        Sectors &sectors = m_sectors[disk];
        const auto header = sectors.find(1);
        const bool isGpt = header != sectors.end() && header->second.startsWith("EFI PART");
        if (isLayout(sector, bytes, inDisk, isGpt))
            sectors[sector] = m_mask.sector(bytes);
    }

    /// The system's own records where they have them, else what the volume itself says.
    std::vector<inventory::Extent> extentsOf(QChar letter)
    {
        for (const inventory::Volume &volume : qAsConst(m_machine.volumes)) {
            if (volume.letter == letter && !volume.extents.isEmpty())
                return {volume.extents.cbegin(), volume.extents.cend()};
        }
        const std::optional<VolumeExtents> known = m_extents.of(letter);
        if (!known)
            return {};
        std::vector<inventory::Extent> extents{{static_cast<int>(known->diskNumber),
                                                known->startSector * SectorSize,
                                                (known->endSector - known->startSector) * SectorSize}};
        for (int i = 1; i < known->disks.size(); ++i)
            extents.push_back({known->disks.at(i), 0, 0});
        return extents;
    }

    /// Makes the file of a disk, as long as what is kept of it. What lies between is a hole.
    void saveImage(const QString &name, const Sectors &sectors)
    {
        const QString path = m_folder + QLatin1Char('/') + name;
        const quint64 end = sectors.empty() ? 0 : sectors.rbegin()->first + 1;
        QFile file;
        bool saved = ownfiles::makeFile(&file, path);
        file.close();
        saved = saved && sparse::resize(path, static_cast<qint64>(end * SectorSize)) &&
                ownfiles::openRegular(&file, path, QIODevice::ReadWrite | QIODevice::Unbuffered);
        for (const auto &[sector, bytes] : sectors)
            saved = saved && sparse::write(file, static_cast<qint64>(sector * SectorSize), bytes.constData(),
                                           bytes.size());
        if (!saved)
            m_wrong = path + QLatin1String(": cannot be written");
    }

    /// What the report tool says of a disk; the name of its file, empty where it says nothing.
    QString toolText(const inventory::Disk &disk, ToolPurpose purpose, const char *suffix)
    {
        QString text;
        if (!m_wrong.isEmpty() || deviceName(disk.number).isEmpty() ||
            !readToolWithin(
                purpose, deviceString(disk.number, disk.interfaceType), Schedule::ToolLimit,
                [] { return true; }, [&text](QTextStream &stream) { text = stream.readAll(); }) ||
            text.isEmpty())
            return QString();
        if (purpose == ToolPurpose::FullReport)
            saveHistory(text);
        const QString name = QStringLiteral("disk%1%2.txt").arg(disk.number).arg(QLatin1String(suffix));
        save(name, m_mask.report(text).toUtf8());
        return name;
    }

    void saveHistory(QString report)
    {
        QTextStream stream(&report, QIODevice::ReadOnly);
        const QString serial = report::readProbedIdentity(stream).serial.value_or(QString());
        if (serial.isEmpty())
            return;
        m_sawDisk = true;
        const HistoryPaths paths = historyPaths(serial);
        const QByteArray dates = ownfiles::contents(paths.dates);
        if (dates.isEmpty())
            return;
        m_wrong = m_wrong.isEmpty() ? ownfiles::makeFolder(m_folder + QLatin1String("/history")) : m_wrong;
        const QString real = QFileInfo(paths.values).fileName().mid(QStringLiteral("values-").size());
        const QString name = m_mask.masks() ? m_mask.serial(serial) : real;
        save(QStringLiteral("history/dates-%1.txt").arg(name), dates);
        save(QStringLiteral("history/values-%1").arg(name), ownfiles::contents(paths.values));
    }

    QJsonArray disks()
    {
        QJsonArray list;
        for (const inventory::Disk &disk : qAsConst(m_machine.disks)) {
            if (disk.number < 0 || disk.number >= CCreateDiskDriveList::ProbedDisks)
                continue;
            QJsonObject object{{"number", disk.number},
                               {"media", disk.media},
                               {"model", disk.model},
                               {"interface", disk.interfaceType},
                               {"status", disk.status},
                               {"serial", disk.serial},
                               {"bytesPerSector", sectorBytes(disk.bytesPerSector)},
                               {"sectors", number(disk.sectors)}};
            addFiles(disk, &object);
            const Platform::RawHandle handle = OpenDisk(PhysicalDriveBase + disk.number);
            m_sawDisk = m_sawDisk || handle != Platform::InvalidHandle;
            if (handle == Platform::InvalidHandle)
                object.insert("opens", false);
            else
                Platform::current().CloseHandle(handle);
            list.append(object);
        }
        return list;
    }

    void addFiles(const inventory::Disk &disk, QJsonObject *object)
    {
        const struct {
            const char *key;
            ToolPurpose purpose;
            const char *suffix;
        } texts[] = {{"report", ToolPurpose::FullReport, ""},
                     {"capabilities", ToolPurpose::Capabilities, "-c"},
                     {"selfTestLog", ToolPurpose::SelfTestLog, "-l"}};
        for (const auto &text : texts) {
            const QString name = toolText(disk, text.purpose, text.suffix);
            if (!name.isEmpty())
                object->insert(QLatin1String(text.key), name);
        }
        const auto sectors = m_sectors.find(disk.number);
        if (m_wrong.isEmpty() && sectors != m_sectors.end() && disk.sectors > 0) {
            const QString name = QStringLiteral("disk%1.img").arg(disk.number);
            saveImage(name, sectors->second);
            object->insert("image", name);
        }
        const DiskNode *node = findPhysicalDisk(static_cast<quint32>(PhysicalDriveBase + disk.number));
        const DiskIdentity *identity = node && node->pDetails ? node->pDetails->pIdentity.get() : nullptr;
        if (identity && !identity->szModel.isEmpty())
            object->insert("identity", QJsonObject{{"model", identity->szModel.text()},
                                                   {"serial", m_mask.serial(identity->szSerial.text())},
                                                   {"firmware", identity->szFirmware.text()}});
    }

    QJsonArray volumes()
    {
        QJsonArray list;
        for (const inventory::Volume &volume : qAsConst(m_machine.volumes)) {
            QJsonArray extents;
            for (const inventory::Extent &extent : extentsOf(volume.letter))
                extents.append(QJsonObject{{"disk", extent.disk},
                                           {"offset", number(extent.offset)},
                                           {"length", number(extent.length)}});
            QJsonObject object{{"letter", QString(volume.letter)},
                               {"label", volume.label},
                               {"type", volume.type},
                               {"fileSystem", volume.fileSystem},
                               {"size", number(volume.size)},
                               {"free", number(volume.free)},
                               {"extents", extents}};
            if (const std::optional<QString> state = bitLocker(volume.letter))
                object.insert("bitLocker", *state);
            list.append(object);
        }
        return list;
    }

    /// The text behind the line of the encryption tool that tells of the volume; nothing without that line.
    static std::optional<QString> bitLocker(QChar letter)
    {
        std::optional<QString> state;
        const QString command =
            g_App.m_strSystemFolder + QLatin1String("\\manage-bde.exe -status ") + letter + QLatin1Char(':');
        runner::runAndRead(command, BitLockerFile, [&state](QTextStream &stream) {
            const QString begin = QStringLiteral("BitLocker Version:");
            while (!stream.atEnd() && !state) {
                const QString line = stream.readLine().trimmed();
                if (line.startsWith(begin))
                    state = line.mid(begin.size()).trimmed();
            }
        });
        return state;
    }

    QJsonArray partitions()
    {
        QJsonArray list;
        for (const inventory::Partition &partition : qAsConst(m_machine.partitions))
            list.append(QJsonObject{{"name", partition.name},
                                    {"type", partition.type},
                                    {"size", number(partition.size)},
                                    {"disk", partition.disk}});
        return list;
    }

    /// The program's own settings, without those that a description does not take. An anonymous PC tells
    /// language, units and numbers alone.
    QJsonObject settings() const
    {
        const QStringList harmless{"LanguageType", "TempValue", "WarningtemValue", "ShutDowntemValue"};
        QJsonObject kept;
        const auto store = Platform::current().OpenSettings(g_App.m_strSettingsPath);
        for (const QString &key : store->allKeys()) {
            const QVariant value = store->value(key);
            const bool isText = value.type() == QVariant::String;
            const QString text = value.toString();
            const bool isPath = key.endsWith(QLatin1String("Path"));
            const bool isOnDrive = text.isEmpty() || text.mid(1, 2) == QLatin1String(":\\");
            if ((m_mask.masks() && isText && !harmless.contains(key)) || (isPath && !isOnDrive) ||
                text.contains(QLatin1String("..")))
                continue;
            kept.insert(key, isText ? QJsonValue(text) : QJsonValue(value.toInt()));
        }
        return kept;
    }

    QString m_folder;
    SerialMask m_mask;
    inventory::Machine m_machine;
    KnownExtents m_extents;
    std::map<int, Sectors> m_sectors; ///< by disk
    QString m_wrong;
    bool m_sawDisk = false; ///< one could be opened, or gave a report
};

} // namespace

namespace collection
{

QString collect(const QString &folder, bool anonymous, bool *sawDisk)
{
    bool unasked = false;
    return Collection(QDir::cleanPath(folder), anonymous).write(sawDisk ? sawDisk : &unasked);
}

} // namespace collection
