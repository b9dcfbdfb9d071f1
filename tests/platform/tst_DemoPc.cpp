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
    void fileSystems_data();
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

void TestDemoPc::fileSystems_data()
{
    QTest::addColumn<int>("disk");
    QTest::addColumn<qint64>("sector");
    QTest::addColumn<int>("at"); // offset in the partition
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("ext4, name") << 2 << qint64(151001088) << 1144 << QByteArray("/media\0", 7);
    QTest::newRow("ext4, place") << 3 << qint64(83888128) << 1160 << QByteArray("/home\0", 6);
    QTest::newRow("NTFS, place") << 3 << qint64(1246066688) << 28 << QByteArray("\0\x78\x45\x4a", 4);
    QTest::newRow("FAT32, name") << 4 << qint64(2048) << 71 << QByteArray("STICK      FAT32   ");
}

void TestDemoPc::fileSystems()
{
    QFETCH(int, disk);
    QFETCH(qint64, sector);
    QFETCH(int, at);
    QFETCH(QByteArray, bytes);
    QCOMPARE(bytesOfDisk(disk, sector * 512 + at, bytes.size()), bytes);
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
