// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/Diskpart.h"

#include "platform/tools/MasterBootRecord.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/DiskImage.h"

#include <QtTest>

namespace
{

/// Records the actions on the disks 1 and 12. The outcome of a clean is set by the test.
class NotedDisks : public tools::ScriptedDisks
{
public:
    bool has(int disk) override { return disk == 1 || disk == 12; }
    tools::DiskOutcome act(tools::DiskAction action, int disk) override
    {
        static const char *const names[] = {"online", "clean", "mbr", "primary", "rescan"};
        did += QByteArray(names[int(action)]) + QByteArray::number(disk) + ' ';
        return action == tools::DiskAction::Clean ? ofCleaning : tools::DiskOutcome::Done;
    }

    tools::DiskOutcome ofCleaning = tools::DiskOutcome::Done;
    QByteArray did;
};

} // namespace

class tst_Diskpart : public QObject
{
    Q_OBJECT

private slots:
    void scripts_data();
    void scripts();
    void endsAtTheFirstError();
    void withoutScript();
    void wipesAndPartitions_data();
    void wipesAndPartitions();
    void largestPartition();
};

void tst_Diskpart::scripts_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("did");
    QTest::addColumn<QString>("said");
    const QString leaving = QStringLiteral("Leaving DiskPart...");
    const QString torn = QStringLiteral("Reached the end of the file.");
    const QString bad = QStringLiteral("The arguments specified for this command are not valid.");
    const QString noDisk = QStringLiteral("There is no disk selected.");
    QTest::newRow("all, in odd letters")
        << QByteArray(
               "sElEcT dIsK 12\r\n\r\nONLINE disk\nClean\r\n  convert   MBR \ncreate partition primary\n"
               "RESCAN\nexit")
        << QByteArray("online12 clean12 mbr12 primary12 rescan12 ") << leaving;
    QTest::newRow("two disks") << QByteArray("select disk 1\nclean\nselect disk 12\nrescan\nexit\n")
                               << QByteArray("clean1 rescan12 ") << leaving;
    QTest::newRow("nothing behind the exit")
        << QByteArray("select disk 1\nexit\nclean\n") << QByteArray() << leaving;
    QTest::newRow("empty") << QByteArray() << QByteArray() << torn;
    QTest::newRow("no exit") << QByteArray("SELECT DISK 1\nclean") << QByteArray() << torn;
    QTest::newRow("cut in the number") << QByteArray("SELECT DISK 1") << QByteArray() << torn;
    QTest::newRow("cut in a word") << QByteArray("SELECT DISK 12\nclean\nEX") << QByteArray() << bad;
    QTest::newRow("unknown line") << QByteArray("select disk 1\nclean all\nexit") << QByteArray() << bad;
    QTest::newRow("no number") << QByteArray("select disk\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("half a number") << QByteArray("select disk 1x\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("negative number") << QByteArray("select disk -1\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("no such disk") << QByteArray("select disk 2\nclean\nexit") << QByteArray() << noDisk;
    QTest::newRow("too large a number")
        << QByteArray("select disk 4294967297\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("nothing selected") << QByteArray("clean\nexit") << QByteArray() << noDisk;
    QTest::newRow("no bytes of a text") << QByteArray("\xFF\0\x01", 3) << QByteArray() << bad;
}

void tst_Diskpart::scripts()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, did);
    QFETCH(QString, said);
    const DescribedFolder folder;
    folder.add(QStringLiteral("script.txt"), script);
    NotedDisks disks;
    const auto native = [&folder](const QString &name) { return folder.path() + QLatin1Char('/') + name; };
    const QByteArray text =
        tools::diskpart({QStringLiteral("/S"), QStringLiteral("script.txt")}, native, disks);
    QCOMPARE(disks.did, did);
    QVERIFY2(text.contains(said.toLatin1()), text.constData());
}

void tst_Diskpart::endsAtTheFirstError()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("script.txt"), "select disk 1\nclean\nconvert mbr\nexit");
    NotedDisks disks;
    disks.ofCleaning = tools::DiskOutcome::SystemDisk;
    const QByteArray text = tools::diskpart(
        {QStringLiteral("/s"), folder.path() + QStringLiteral("/script.txt")},
        [](const QString &name) { return name; }, disks);
    QCOMPARE(disks.did, QByteArray("clean1 "));
    QVERIFY(
        text.endsWith("Disk 1 is now the selected disk.\r\n\r\nVirtual Disk Service error:\r\nClean is not "
                      "allowed on the disk containing the current boot,\r\nsystem, pagefile, crashdump or "
                      "hibernation volume.\r\n"));
}

void tst_Diskpart::withoutScript()
{
    const auto native = [](const QString &name) { return name; };
    NotedDisks disks;
    QVERIFY(tools::diskpart({}, native, disks).contains("Microsoft DiskPart syntax:"));
    QVERIFY(tools::diskpart({QStringLiteral("/s"), QStringLiteral("/no/such/file")}, native, disks)
                .contains("The system cannot find the file specified."));
    QCOMPARE(disks.did, QByteArray());
}

void tst_Diskpart::wipesAndPartitions_data()
{
    QTest::addColumn<int>("sectors");
    QTest::addColumn<int>("bytesPerSector");
    QTest::addColumn<int>("first"); // sector of the partition; 0: there is none
    QTest::newRow("some MiB") << 20480 << 512 << 2048;
    QTest::newRow("larger sectors") << 20480 << 4096 << 256;
    QTest::newRow("a sector of room") << 2049 << 512 << 2048;
    QTest::newRow("no room") << 2048 << 512 << 0;
}

void tst_Diskpart::wipesAndPartitions()
{
    QFETCH(int, sectors);
    QFETCH(int, bytesPerSector);
    QFETCH(int, first);
    const DescribedFolder folder;
    const QByteArray disk = R"(","media":"fixed","image":"old.img","bytesPerSector":)" +
                            QByteArray::number(bytesPerSector) + R"(,"sectors":)" +
                            QByteArray::number(sectors) + R"(,"number":)";
    const QByteArray old(sectors * 512, 'o');
    folder.add(QStringLiteral("old.img"), old);
    const auto pc =
        folder.open(R"({"name":"PC","disks":[{"model":"A)" + disk + R"(3},{"model":"B)" + disk + "4}]}");
    const QString script = pc->GetTempPathW() + QStringLiteral("s.txt");
    const auto runs = [&](const QByteArray &lines) {
        folder.add(QStringLiteral("s.txt"), lines);
        QFile::remove(script);
        QFile::copy(folder.path() + QStringLiteral("/s.txt"), script);
        return outputOf(*pc, QStringLiteral("diskpart.exe /s ") + script);
    };
    const QByteArray cleaned = runs("select disk 4\nclean\nexit");
    QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
    QByteArray expected = old;
    const int stretch = qMin(expected.size(), 1 << 20);
    expected.replace(0, stretch, QByteArray(stretch, '\0'));
    expected.replace(expected.size() - stretch, stretch, QByteArray(stretch, '\0'));
    QVERIFY(DescribedFolder::contents(pc->imageFile(4)) == expected);

    const QByteArray made = runs("select disk 4\nconvert mbr\ncreate partition primary\nexit");
    QCOMPARE(made.contains("succeeded in creating the specified partition."), first != 0);
    const QByteArray image = DescribedFolder::contents(pc->imageFile(4));
    QVERIFY(image.mid(512) == expected.mid(512));
    QVERIFY(runs("select disk 4\ncreate partition primary\nexit").contains("No usable free extent"));
    const QByteArray again = runs("select disk 4\nconvert mbr\nexit");
    QCOMPARE(again.contains("The disk is not empty."), first != 0);
    QVERIFY(!QFile::exists(pc->imageFile(3))); // made when it is first opened

    if (!DiskImage::missingTool().isEmpty())
        QSKIP("no tool to read the table with");
    const DiskImage copy(image.size());
    copy.put(0, image);
    const QJsonObject table = copy.table();
    QCOMPARE(table[QStringLiteral("label")].toString(), QStringLiteral("dos"));
    const QJsonArray partitions = table[QStringLiteral("partitions")].toArray();
    QCOMPARE(partitions.size(), first == 0 ? 0 : 1);
    const QJsonObject only = partitions.at(0).toObject();
    QCOMPARE(only[QStringLiteral("start")].toInt(), first);
    QCOMPARE(only[QStringLiteral("size")].toInt(), first == 0 ? 0 : sectors * 512 / bytesPerSector - first);
    QCOMPARE(only[QStringLiteral("type")].toString(), first == 0 ? QString() : QStringLiteral("7"));
}

void tst_Diskpart::largestPartition()
{
    // 8 TiB: more than the table can count.
    const QByteArray record = mbr::withOnePartition(mbr::emptyTable(7), quint64(1) << 34, 512);
    QCOMPARE(record.mid(446, 16).toHex(), QByteArray("0020210007feffff00080000ffffffff"));
}

QTEST_GUILESS_MAIN(tst_Diskpart)
#include "tst_Diskpart.moc"
