// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/WmicInventory.h"

#include "inventory/CommandRunner.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>

#include <algorithm>

namespace
{

const QString DiskInfoFile = QStringLiteral("DiskInfo.txt");
const QString BitLockerFile = QStringLiteral("File.txt");
const QString PartitionFile = QStringLiteral("SMART1.txt");

QStringList fieldsOf(const QString &line)
{
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// Calls `take` for each line of a table but its header: the first line with letters, which holds
/// `headerWord`. Further down that word is data, such as a model's name.
template<typename Take>
void eachDataLine(QTextStream &stream, const QLatin1String &headerWord, Take take)
{
    bool headerPassed = false;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const bool isHeader = !headerPassed && line.contains(headerWord);
        headerPassed = headerPassed || !line.trimmed().isEmpty();
        if (!isHeader)
            take(line);
    }
}

/// The model of a line as people know it: "NW500 ATA Device" gives "NW500". Empty where a cell is missing.
QString nameIn(const QString &line)
{
    static const QRegularExpression driver(QStringLiteral(" (SCSI Disk|[A-Z]{3,4}) Device$"));
    // Two blanks part the columns, one stands in a name.
    const QStringList cells = line.split(QStringLiteral("  "), Qt::SkipEmptyParts);
    return cells.size() < 4 ? QString() : cells.at(2).trimmed().remove(driver);
}

QString wmicCommand(const char *question)
{
    return g_App.m_strSystemFolder + QLatin1String("\\wbem\\WMIC.exe ") + QLatin1String(question);
}

/// What the drive said of itself through its own interface; null where it said nothing.
const DiskIdentity *identityOf(const WmicDiskRecord &record)
{
    const DiskNode *node =
        g_App.m_diskList.find([&record](const DiskNode &each) { return each.nId == record.nDiskId; });
    return node && node->pDetails ? node->pDetails->pIdentity.get() : nullptr;
}

/// The record of a disk whose report names neither gets the names that the system has for it.
void nameFromTable(WmicDiskRecord &record, const QString &name)
{
    const DiskIdentity *identity = identityOf(record);
    if (record.szSmartModel.isEmpty())
        record.szSmartModel.assign(name.isEmpty() && identity ? identity->szModel.text() : name);
    if (record.szSmartSerial.isEmpty() && identity)
        record.szSmartSerial.assign(identity->szSerial.text());
}

/// Asks the system for the serials of the disks that did not tell theirs.
void addMissingSerials(const QString &tempName)
{
    QVector<WmicDiskRecord *> nameless;
    for (WmicDiskRecord &record : g_wmicDisks) {
        if (record.szSmartSerial.isEmpty() && !record.szInterface.isEmpty())
            nameless << &record;
    }
    if (nameless.isEmpty())
        return;
    runner::runAndRead(
        wmicCommand("diskdrive get Index,SerialNumber"), tempName, [&nameless](QTextStream &stream) {
            QHash<quint32, QString> serials;
            eachDataLine(stream, QLatin1String("Index"), [&serials](const QString &line) {
                const QStringList fields = fieldsOf(line);
                if (fields.size() > 1)
                    serials.insert(fields.at(0).toUInt(), fields.mid(1).join(QLatin1Char(' ')));
            });
            for (WmicDiskRecord *record : nameless)
                record->szSmartSerial.assign(serials.value(record->nIndex));
        });
}

/// Asks whether a volume is protected. False if the tool could not be run.
bool readBitLocker(const QString &caption, LogicalDiskRecord &record)
{
    const QString command = g_App.m_strSystemFolder + QLatin1String("\\manage-bde.exe -status ") + caption;
    return runner::runAndRead(command, BitLockerFile, [&record](QTextStream &stream) {
        while (!stream.atEnd() && record.szBitLocker.isEmpty())
            record.szBitLocker.assign(wmic::bitLockerState(stream.readLine()));
    });
}

/// Appends a record for each line of the volume table. False if the walk was broken off.
bool readLogicalDisks(QTextStream &stream)
{
    g_logicalDisks.clear();
    bool complete = true;
    eachDataLine(stream, QLatin1String("FileSystem"), [&complete](const QString &text) {
        if (!complete)
            return;
        const wmic::LogicalDiskLine line = wmic::parseLogicalDisk(text);
        LogicalDiskRecord &record = g_logicalDisks.append();
        if (!line.fileSystem.isEmpty()) {
            record.szCaption.assign(line.caption);
            record.nFreeBytes = line.freeBytes;
            record.nSizeBytes = line.sizeBytes;
            record.szFileSystem.assign(line.fileSystem);
        }
        complete = readBitLocker(line.caption, record);
    });
    return complete;
}

} // namespace

void LoadDiskDrives(const IdentityProbe &probe, const QString &tempName)
{
    const QString command = wmicCommand("diskdrive get Model,InterfaceType,Status,Index");
    runner::runAndRead(command, tempName, [&probe](QTextStream &stream) {
        g_wmicDisks.clear();
        // A blank line makes a record too: lists that go by the table's lines count it.
        eachDataLine(stream, QLatin1String("Index"), [&probe](const QString &text) {
            const wmic::DiskDriveLine line = wmic::parseDiskDrive(text);
            WmicDiskRecord &record = g_wmicDisks.append();
            record.nIndex = line.index;
            record.nDiskId = line.index == wmic::Nobody ? wmic::Nobody : line.index + PhysicalDriveBase;
            record.szInterface.assign(line.interfaceText);
            record.szModel.assign(line.model);
            record.szStatus.assign(line.status);
            if (line.index == wmic::Nobody)
                return;
            const ProbedIdentity told = probe(static_cast<int>(line.index), line.interfaceText);
            record.szSmartSerial.assign(told.serial);
            record.szSmartFirmware.assign(told.firmware);
            record.szSmartModel.assign(told.model);
            nameFromTable(record, line.name);
        });
    });
    addMissingSerials(tempName); // into the same file
}

QHash<int, DiskMedium> LoadDiskMedia(const QString &tempName)
{
    QHash<int, DiskMedium> media;
    const auto take = [&media](const QString &line) {
        const QStringList fields = fieldsOf(line);
        const bool isRemovable =
            line.contains(QLatin1String("Removable")) || line.contains(QLatin1String("External"));
        // Where the size is missing, the last field is a word.
        if (fields.size() > 1)
            media.insert(fields.first().toInt(), {fields.last().toLongLong(), isRemovable});
    };
    runner::runAndRead(wmicCommand("diskdrive get Index,MediaType,Size"), tempName,
                       [&take](QTextStream &stream) { eachDataLine(stream, QLatin1String("Index"), take); });
    return media;
}

void LoadLogicalDisks()
{
    runner::freshTempFile(BitLockerFile);
    bool complete = false;
    runner::runAndRead(wmicCommand("logicaldisk get size,caption,freespace,filesystem"), DiskInfoFile,
                       [&complete](QTextStream &stream) { complete = readLogicalDisks(stream); });
    if (!complete)
        return;
    QVector<int> diskIndexes;
    const auto collect = [&diskIndexes](QTextStream &stream) {
        eachDataLine(stream, QLatin1String("DiskIndex"),
                     [&diskIndexes](const QString &line) { diskIndexes << line.trimmed().toInt(); });
    };
    if (runner::runAndRead(wmicCommand("partition get diskindex"), DiskInfoFile, collect,
                           runner::After::Keep))
        wmic::pairDiskIndexes(g_logicalDisks, diskIndexes);
}

QString GetSystemDiskIndex()
{
    QString number;
    const auto find = [&number](QTextStream &stream) {
        number = QLatin1String("");
        while (!stream.atEnd()) {
            const QString line = stream.readLine();
            if (line.contains(QLatin1String("System"))) {
                number = wmic::partitionDisk(line);
                return;
            }
        }
    };
    runner::runAndRead(wmicCommand("partition get name,size,type"), PartitionFile, find);
    return number;
}

namespace wmic
{

DiskDriveLine parseDiskDrive(const QString &line)
{
    const QStringList fields = fieldsOf(line);
    const int count = fields.size();
    DiskDriveLine result;
    if (count > 0)
        result.index = static_cast<quint32>(fields.at(0).toInt());
    if (count >= 3)
        result.status = fields.at(count - 1);
    for (int i = 2; i <= count - 3; ++i)
        result.model += fields.at(i) + QLatin1Char(' ');
    result.model.chop(4);
    result.name = nameIn(line);
    if (count > 1)
        result.interfaceText = fields.at(1);
    return result;
}

LogicalDiskLine parseLogicalDisk(const QString &line)
{
    const QStringList fields = fieldsOf(line);
    return {fields.value(0).trimmed(), fields.value(1).trimmed(),
            std::max<qint64>(0, fields.value(2).toLongLong()),
            std::max<qint64>(0, fields.value(3).toLongLong())};
}

QString bitLockerState(const QString &line)
{
    const QString told = line.trimmed();
    if (!told.startsWith(QLatin1String("BitLocker Version:")))
        return QString();
    return told.startsWith(QLatin1String("BitLocker Version:    None")) ? QStringLiteral("NO")
                                                                        : QStringLiteral("YES");
}

QString partitionDisk(const QString &line)
{
    QString number = line.split(QLatin1Char(','), Qt::SkipEmptyParts).value(0);
    return number.remove(QLatin1String("Disk #")).trimmed();
}

void pairDiskIndexes(RecordList<LogicalDiskRecord> &volumes, const QVector<int> &diskIndexes)
{
    auto index = diskIndexes.cbegin();
    for (LogicalDiskRecord &volume : volumes) {
        if (index == diskIndexes.cend())
            return;
        volume.nDiskIndex = *index++;
    }
}

} // namespace wmic
