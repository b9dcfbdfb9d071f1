// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "tests/platform/LoopDevice.h"
#include "tests/support/DiskImage.h"
#include "tests/support/Files.h"

#include <QtTest>

/// The demo PC as demo/make-pc makes it, with real partition tables and file systems.
class TestDemoPc : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void volumesLieOnPartitions();
    void fileSystems();
    void historyEndsYesterday();

private:
    QByteArray bytesOfDisk(int disk, qint64 offset, int count)
    {
        const auto handle = m_pc->CreateFileW(QString("\\\\.\\PHYSICALDRIVE%1").arg(disk), io::GenericRead, 7,
                                              io::OpenExisting);
        QByteArray bytes(count, '?');
        const bool read = m_pc->SetFilePointer(handle, offset) &&
                          m_pc->ReadFile(handle, bytes.data(), static_cast<quint32>(count), nullptr);
        m_pc->CloseHandle(handle);
        return read ? bytes : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<SimulatedPlatform> m_pc;
};

void TestDemoPc::initTestCase()
{
    if (!DiskImage::missingTool().isEmpty())
        QSKIP("the makers of partition tables and file systems are not installed");
    QVERIFY(runs(HALVANE_SOURCE_DIR "/demo/make-pc", {m_folder.filePath("pc")}));
    QString error;
    m_pc = SimulatedPlatform::open(m_folder.filePath("pc"), m_folder.filePath("state"), &error);
    QVERIFY2(m_pc, qPrintable(error));
}

void TestDemoPc::volumesLieOnPartitions()
{
    const QString place = "%1: start=%2, size=%3"; // in sectors
    static const QRegularExpression form("start= *([0-9]+), size= *([0-9]+)");
    QStringList partitions;
    for (const auto &disk : m_pc->description().disks) {
        const int number = disk.record.number;
        QCOMPARE(bytesOfDisk(number, 510, 2), QByteArray("\x55\xAA")); // the first opening makes the image
        QByteArray table;
        QVERIFY(runs("/sbin/sfdisk", {"--dump", m_pc->imageFile(number)}, &table));
        for (auto rows = form.globalMatch(table); rows.hasNext();) {
            const QRegularExpressionMatch row = rows.next();
            partitions << place.arg(number).arg(row.captured(1), row.captured(2));
        }
    }
    QCOMPARE(partitions.size(), 17);
    for (const inventory::Volume &volume : m_pc->description().volumes) {
        for (const inventory::Extent &extent : volume.extents)
            QVERIFY(partitions.contains(
                place.arg(extent.disk).arg(extent.offset / 512).arg(extent.length / 512)));
    }
}

void TestDemoPc::fileSystems()
{
    // A disk, the first sector of a partition on it, and a place in the partition.
    QCOMPARE(bytesOfDisk(2, 151001088 * 512LL + 1144, 7), QByteArray("/media\0", 7)); // name of an ext4
    QCOMPARE(bytesOfDisk(3, 83888128 * 512LL + 1160, 6), QByteArray("/home\0", 6));   // where one was mounted
    QCOMPARE(bytesOfDisk(3, 1246066688 * 512LL + 28, 4), QByteArray("\0\x78\x45\x4a", 4)); // place of an NTFS
    QCOMPARE(bytesOfDisk(4, 2048 * 512 + 71, 19), QByteArray("STICK      FAT32   "));
}

void TestDemoPc::historyEndsYesterday()
{
    const QList<QByteArray> lines =
        contentOf(m_pc->HistoryFolder({}) + "/OK-83H2F6610Date.txt").trimmed().split('\n');
    QCOMPARE(lines.size(), 10);
    QCOMPARE(lines.last(), QDate::currentDate().addDays(-1).toString("dd-MM-yyyy").toLatin1());
}

QTEST_GUILESS_MAIN(TestDemoPc)
#include "tst_DemoPc.moc"
