// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/LoopDevice.h"
#include "tests/platform/RawDisk.h"
#include "tests/support/DiskImage.h"

/// The demo PC as demo/make-pc makes it, with real partition tables and file systems.
class TestDemoPc : public QObject
{
    Q_OBJECT

private slots:
    void isAsItIsDescribed()
    {
        if (!DiskImage::missingTool().isEmpty())
            QSKIP("the makers of partition tables and file systems are not installed");
        const QTemporaryDir folder;
        QVERIFY(runs(HALVANE_SOURCE_DIR "/demo/make-pc", {folder.filePath("pc")}));
        QString error;
        const auto pc = SimulatedPlatform::open(folder.filePath("pc"), folder.filePath("state"), &error);
        QVERIFY2(pc, qPrintable(error));
        const auto bytesOfDisk = [&pc](int disk, qint64 offset, int count) {
            const auto handle =
                rawdisk::open(*pc, QString("\\\\.\\PHYSICALDRIVE%1").arg(disk), io::GenericRead);
            QByteArray bytes(count, '?');
            const bool read = pc->SetFilePointer(handle, offset) &&
                              pc->ReadFile(handle, bytes.data(), quint32(count), nullptr);
            pc->CloseHandle(handle);
            return read ? bytes : QByteArray();
        };

        const QString place = "%1: start=%2, size=%3"; // in sectors
        const QRegularExpression form("start= *([0-9]+), size= *([0-9]+)");
        QStringList partitions;
        for (const auto &disk : pc->description().disks) {
            const int number = disk.record.number;
            QCOMPARE(bytesOfDisk(number, 510, 2),
                     QByteArray("\x55\xAA")); // the first opening makes the image
            QByteArray table;
            QVERIFY(runs("/sbin/sfdisk", {"--dump", pc->imageFile(number)}, &table));
            for (auto rows = form.globalMatch(table); rows.hasNext();) {
                const QRegularExpressionMatch row = rows.next();
                partitions << place.arg(number).arg(row.captured(1), row.captured(2));
            }
        }
        QCOMPARE(partitions.size(), 17);
        for (const inventory::Volume &volume : pc->description().volumes) {
            for (const inventory::Extent &extent : volume.extents)
                QVERIFY(partitions.contains(
                    place.arg(extent.disk).arg(extent.offset / 512).arg(extent.length / 512)));
        }
        // A disk, the first sector of a partition on it, and a place in the partition.
        QCOMPARE(bytesOfDisk(2, 151001088 * 512LL + 1144, 7), QByteArray("/media\0", 7)); // name of an ext4
        QCOMPARE(bytesOfDisk(3, 1246066688 * 512LL + 28, 4),
                 QByteArray("\0\x78\x45\x4a", 4)); // place of an NTFS
        QCOMPARE(bytesOfDisk(4, 2048 * 512 + 71, 19), QByteArray("STICK      FAT32   "));

        const QList<QByteArray> days =
            contentOf(pc->HistoryFolder({}) + "/OK-83H2F6610Date.txt").trimmed().split('\n');
        QCOMPARE(days.size(), 10);
        QCOMPARE(days.last(), QDate::currentDate().addDays(-1).toString("dd-MM-yyyy").toLatin1());
    }
};

QTEST_GUILESS_MAIN(TestDemoPc)
#include "tst_DemoPc.moc"
