// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/IoControl.h"
#include "tests/platform/DescribedFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtEndian>
#include <QtTest>

namespace
{

constexpr qint64 MiB = 1024 * 1024;

const QStringList ToolFolders{QStringLiteral("/usr/sbin"), QStringLiteral("/sbin"),
                              QStringLiteral("/usr/bin")};

/// Output of a tool; a tool that fails gives a null array.
QByteArray outputOfTool(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(QStandardPaths::findExecutable(tool, ToolFolders), arguments);
    const bool done =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return done ? process.readAllStandardOutput() + ' ' : QByteArray();
}

/// Bytes of a disk of the PC, read as the program reads them.
QByteArray bytesOfDisk(Platform &pc, int disk, qint64 offset, int count)
{
    const auto handle = pc.CreateFileW(QStringLiteral("\\\\.\\PHYSICALDRIVE%1").arg(disk), io::GenericRead, 7,
                                       io::OpenExisting);
    QByteArray bytes(count, '?');
    quint32 moved = 0;
    const bool read = pc.SetFilePointer(handle, offset) &&
                      pc.ReadFile(handle, bytes.data(), static_cast<quint32>(count), &moved);
    pc.CloseHandle(handle);
    return read ? bytes.left(static_cast<int>(moved)) : QByteArray();
}

const QByteArray TwoPartitions = "label: dos\n\nstart=2048, size=204800, type=83\nsize=16384, type=83\n";

QByteArray described(const QByteArray &systems, const QByteArray &more = QByteArray())
{
    return R"({"disks": [{"number": 2, "sectors": 262144, )" + more +
           R"("layout": {"table": "t.sfdisk", "fileSystems": [)" + systems + "]}}]}";
}

} // namespace

/// Images with partition tables and file systems, made by the real tools.
class TestImageLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fileSystems_data();
    void fileSystems();
    void describedImageIsKept();
    void imageOfTheStateIsKept();
    void refusedTable();
    void missingPartition();
    void demoVolumesLieOnPartitions();
};

void TestImageLayout::initTestCase()
{
    for (const char *tool : {"sfdisk", "mke2fs", "mkfs.vfat", "mkfs.ntfs", "mkfs.exfat"}) {
        if (QStandardPaths::findExecutable(QLatin1String(tool), ToolFolders).isEmpty())
            QSKIP("the makers of partition tables and file systems are not installed");
    }
}

void TestImageLayout::fileSystems_data()
{
    QTest::addColumn<QByteArray>("system");
    QTest::addColumn<int>("at"); // offset in the partition
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("check"); // a tool that must find no fault
    const QStringList e2fsck{QStringLiteral("e2fsck"), QStringLiteral("-fn")};
    const QStringList fat{QStringLiteral("fsck.vfat"), QStringLiteral("-n")};
    const QByteArray hidden("\0\x08\0\0", 4); // sectors in front of the partition
    QTest::newRow("ext2") << QByteArray(R"("type": "ext2")") << 1080 << QByteArray("\x53\xEF") << e2fsck;
    QTest::newRow("ext3, name") << QByteArray(R"("type": "ext3", "label": "/srv")") << 1144
                                << QByteArray("/srv\0", 5) << e2fsck;
    QTest::newRow("ext4, place") << QByteArray(R"("label": "x", "lastMounted": "/home/eve")") << 1160
                                 << QByteArray("/home/eve\0", 10) << e2fsck;
    QTest::newRow("FAT16") << QByteArray(R"("type": "fat16")") << 54 << QByteArray("FAT16   ") << fat;
    QTest::newRow("FAT32, name") << QByteArray(R"("type": "fat32", "label": "STICK")") << 71
                                 << QByteArray("STICK      FAT32   ") << fat;
    QTest::newRow("FAT32, place") << QByteArray(R"("type": "fat32")") << 28 << hidden << fat;
    QTest::newRow("NTFS") << QByteArray(R"("type": "ntfs", "label": "N")") << 3 << QByteArray("NTFS    ")
                          << QStringList{QStringLiteral("ntfsfix"), QStringLiteral("-n")};
    QTest::newRow("NTFS, place") << QByteArray(R"("type": "ntfs")") << 28 << hidden
                                 << QStringList{QStringLiteral("ntfsfix"), QStringLiteral("-n")};
    QTest::newRow("exFAT") << QByteArray(R"("type": "exfat", "label": "E")") << 3 << QByteArray("EXFAT   ")
                           << QStringList{QStringLiteral("fsck.exfat"), QStringLiteral("-n")};
}

void TestImageLayout::fileSystems()
{
    QFETCH(QByteArray, system);
    QFETCH(int, at);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, check);
    const DescribedFolder folder;
    folder.add(QStringLiteral("t.sfdisk"), TwoPartitions);
    const auto pc = folder.open(described(R"({"partition": 1, )" + system + "}"));
    QCOMPARE(bytesOfDisk(*pc, 2, MiB + at, bytes.size()), bytes);
    // The other partition and the gap stay empty.
    QCOMPARE(bytesOfDisk(*pc, 2, 101 * MiB, int(8 * MiB)).count('\0'), int(8 * MiB));
    QCOMPARE(bytesOfDisk(*pc, 2, 512, int(MiB) - 512).count('\0'), int(MiB) - 512);
    QCOMPARE(QDir(folder.state() + QStringLiteral("/images")).entryList(QDir::Files),
             QStringList{QStringLiteral("disk2.img")});

    folder.add(QStringLiteral("partition"), bytesOfDisk(*pc, 2, MiB, int(100 * MiB)));
    const QString tool = check.takeFirst();
    QVERIFY(!outputOfTool(tool, check << folder.path() + QStringLiteral("/partition")).isNull());
}

void TestImageLayout::describedImageIsKept()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("t.sfdisk"), TwoPartitions);
    folder.add(QStringLiteral("i.img"), "mine");
    const auto pc = folder.open(described(R"({"partition": 1})", R"("image": "i.img", )"));
    QCOMPARE(bytesOfDisk(*pc, 2, 0, 512), QByteArray("mine").leftJustified(512, '\0'));
    QCOMPARE(bytesOfDisk(*pc, 2, MiB + 1024, 512).count('\0'), 512);
}

void TestImageLayout::imageOfTheStateIsKept()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("t.sfdisk"), TwoPartitions);
    const QByteArray json = described(R"({"partition": 1, "label": "first"})");
    QByteArray first;
    {
        const auto pc = folder.open(json);
        first = bytesOfDisk(*pc, 2, MiB + 1024, 1024);
    }
    QVERIFY(first.contains("first"));
    const auto again = folder.open(json);
    QCOMPARE(bytesOfDisk(*again, 2, MiB + 1024, 1024), first);
}

void TestImageLayout::refusedTable()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("t.sfdisk"), "label: dos\n\nstart=2048, size=9999999, type=83\n");
    const auto pc = folder.open(described(R"({"partition": 1})"));
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(folder.path()) +
                           QStringLiteral("/pc\\.json: disks\\[0\\]\\.layout\\.table: sfdisk: .+$")));
    QCOMPARE(bytesOfDisk(*pc, 2, MiB, 4096).count('\0'), 4096);
}

void TestImageLayout::missingPartition()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("t.sfdisk"), TwoPartitions);
    const auto pc = folder.open(described(R"({"partition": 3}, {"partition": 2, "type": "ext2"})"));
    const QByteArray warning =
        folder.path().toUtf8() + "/pc.json: disks[0].layout.fileSystems[0]: there is no partition 3";
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    QCOMPARE(bytesOfDisk(*pc, 2, 101 * MiB + 1080, 2), QByteArray("\x53\xEF"));
}

void TestImageLayout::demoVolumesLieOnPartitions()
{
    QTemporaryDir state;
    QString error;
    const auto pc = SimulatedPlatform::open(QStringLiteral(HALVANE_SOURCE_DIR "/demo"), state.path(), &error);
    QVERIFY2(pc, qPrintable(error));
    QSet<QString> partitions; // "disk offset length", all bytes
    for (const auto &disk : pc->description().disks) {
        QCOMPARE(bytesOfDisk(*pc, disk.record.number, 510, 2), QByteArray("\x55\xAA"));
        const QByteArray json = outputOfTool(QStringLiteral("sfdisk"),
                                             {QStringLiteral("--json"), pc->imageFile(disk.record.number)});
        const QJsonArray rows = QJsonDocument::fromJson(json)
                                    .object()[QStringLiteral("partitiontable")]
                                    .toObject()[QStringLiteral("partitions")]
                                    .toArray();
        for (const QJsonValue &row : rows)
            partitions.insert(QStringLiteral("%1 %2 %3")
                                  .arg(disk.record.number)
                                  .arg(qint64(row[QStringLiteral("start")].toDouble()) * 512)
                                  .arg(qint64(row[QStringLiteral("size")].toDouble()) * 512));
    }
    QCOMPARE(partitions.size(), 17);
    for (const inventory::Volume &volume : pc->description().volumes) {
        for (const inventory::Extent &extent : volume.extents)
            QVERIFY2(partitions.contains(
                         QStringLiteral("%1 %2 %3").arg(extent.disk).arg(extent.offset).arg(extent.length)),
                     qPrintable(QString(volume.letter)));
    }
}

QTEST_GUILESS_MAIN(TestImageLayout)
#include "tst_ImageLayout.moc"
