// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Targets.h"

#include "fuzz/FileTargets.h"
#include "fuzz/ReferenceWalk.h"
#include "inventory/BootSector.h"
#include "inventory/PartitionWalk.h"
#include "inventory/VolumeNodes.h"
#include "inventory/WmicInventory.h"
#include "smart/ReportParser.h"
#include "tests/support/FakePlatform.h"

#include <QTextStream>

namespace
{

constexpr int NamedPartitions = 16; ///< whose superblocks are read

FakePlatform *machine = nullptr;

QString runDisk(const QByteArray &input, Mutator &)
{
    machine->disks[0].bytes = input;
    ResetPartitionWalk();
    ScanPartitionTable(PhysicalDriveBase, 0);
    QVector<ReferenceWalk::Partition> found;
    for (const LinuxPartitionEntry &entry : g_linuxPartitions) {
        found << ReferenceWalk::Partition{entry.nStartSector, entry.nSectorCount, entry.nEndSector};
        if (found.size() > NamedPartitions)
            continue;
        const std::unique_ptr<DiskNode> node = makeLinuxNode(entry, found.size());
        if (node->pLogical->szRoot.isEmpty() || node->pLogical->szRoot.size() > 16)
            return QStringLiteral("a partition's name does not fit");
    }
    if (found != ReferenceWalk(input).found())
        return QStringLiteral("other partitions than the plain walk");
    if (g_partitionWalk.currentBase != 0 || g_partitionWalk.walkDepth != 0 ||
        g_partitionWalk.partitionCount != quint32(found.size()))
        return QStringLiteral("the state is not what it was");
    return machine->openHandles() == 0 ? QString() : QStringLiteral("a handle stays open");
}

QString runVolume(const QByteArray &input, Mutator &mutator)
{
    static const QStringList names{QString(),
                                   QString(),
                                   QString(),
                                   QStringLiteral("RAW"),
                                   QStringLiteral("FAT"),
                                   QStringLiteral("EXFAT"),
                                   QStringLiteral("NTFS")};
    FakePlatform::Volume &volume = machine->volumes[QLatin1Char('E')];
    volume.raw.bytes = input;
    volume.type = quint32(mutator.below(7));
    volume.fileSystem = names.at(int(mutator.below(quint64(names.size()))));
    volume.total = mutator.below(2) ? mutator.below(quint64(input.size()) + 1024) : 0;
    if (!mutator.below(16))
        volume.total = quint64(-1);
    volume.extents.fill({quint32(mutator.below(200)), 0, qint64(mutator.below(quint64(-1))),
                         qint64(mutator.below(quint64(-1)))},
                        int(mutator.below(4)));
    const std::unique_ptr<DiskNode> node = makeVolumeNode(QStringLiteral("E:\\"), RemovableDisks());
    KnownExtents extents;
    if (node)
        tieVolumeToDisk(node.get(), &extents);
    if (node && node->pLogical->szFileSystem.isEmpty())
        return QStringLiteral("a volume without a file system");
    const bool listed = volume.type == io::DriveFixed || volume.type == io::DriveRemovable;
    if (listed != (node != nullptr) && (listed || volume.total == 0))
        return QStringLiteral("a volume is listed that should not be, or the other way about");
    return machine->openHandles() == 0 ? QString() : QStringLiteral("a handle stays open");
}

QString runTable(const QByteArray &input, Mutator &)
{
    QTextStream stream(input);
    QVector<int> numbers;
    RecordList<LogicalDiskRecord> volumes;
    QString complaint;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const wmic::DiskDriveLine drive = wmic::parseDiskDrive(line);
        const wmic::LogicalDiskLine volume = wmic::parseLogicalDisk(line);
        if (drive.model.size() > line.size() || volume.caption.contains(QLatin1Char(' ')))
            complaint = QStringLiteral("a field is no piece of its line");
        if (!wmic::bitLockerState(line).isEmpty() && !line.contains(QLatin1String("BitLocker Version:")))
            complaint = QStringLiteral("a state out of nowhere");
        numbers << wmic::partitionDisk(line).toInt();
        LogicalDiskRecord &record = volumes.append();
        record.szCaption.assign(volume.caption);
        record.szFileSystem.assign(volume.fileSystem);
        record.nSizeBytes = volume.sizeBytes;
        WmicDiskRecord disk;
        disk.szModel.assign(drive.model);
        disk.szInterface.assign(drive.interfaceText);
        disk.szStatus.assign(drive.status);
    }
    numbers.resize(numbers.size() / 2 * 3);
    wmic::pairDiskIndexes(volumes, numbers);
    return complaint;
}

QString runReport(const QByteArray &input, Mutator &mutator)
{
    QTextStream kind(input);
    report::detectKind(kind);
    QTextStream whole(input);
    report::readIdentity(whole);
    QTextStream shortened(input);
    report::readProbedIdentity(shortened);
    QTextStream stream(input);
    const report::Report read = report::read(stream, mutator.below(2) == 0);
    int rows = 0;
    for (auto row = read.ata.rows.begin(); row != read.ata.rows.end(); ++row)
        ++rows;
    for (auto row = read.log.rows.begin(); row != read.log.rows.end(); ++row)
        ++rows;
    return rows > report::MaxRows ? QStringLiteral("more rows than are kept") : QString();
}

} // namespace

const QVector<Target> &allTargets()
{
    static const QVector<Target> targets{{"disks", &Mutator::disk, runDisk},
                                         {"volumes", &Mutator::volume, runVolume},
                                         {"tables", &Mutator::text, runTable},
                                         {"reports", &Mutator::text, runReport},
                                         {"settings", &Mutator::text, filetargets::runSettings},
                                         {"descriptions", &Mutator::text, filetargets::runDescription},
                                         {"lsblk", &Mutator::text, filetargets::runBlockDevices},
                                         {"history", &Mutator::text, filetargets::runHistory},
                                         {"versions", &Mutator::text, filetargets::runVersions},
                                         {"self-tests", &Mutator::text, filetargets::runSelfTests}};
    return targets;
}

void freshMachine()
{
    machine = FakePlatform::install();
}
