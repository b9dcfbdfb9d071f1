// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tools/Diskpart.h"

#include "platform/tools/MasterBootRecord.h"
#include "tests/platform/DescribedFolder.h"
#include "tests/support/DiskImage.h"
#include "tests/support/Files.h"

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
    void wipesAndPartitions_data();
    void wipesAndPartitions();
    void largestPartition();
};

void tst_Diskpart::scripts_data()
{
    QTest::addColumn<QByteArray>("did");
    QTest::addColumn<QByteArray>("said");
    const QByteArray leaving = "Leaving DiskPart...";
    const QByteArray torn = "Reached the end of the file.";
    const QByteArray bad = "The arguments specified for this command are not valid.";
    const QByteArray noDisk = "There is no disk selected.";
    // Named after the script.
    QTest::newRow("sElEcT dIsK 12\r\n\r\nONLINE disk\nClean\r\n  convert   MBR \ncreate partition primary\n"
                  "RESCAN\nexit")
        << QByteArray("online12 clean12 mbr12 primary12 rescan12 ") << leaving;
    QTest::newRow("select disk 1\nclean\nselect disk 12\nrescan\nexit\nclean")
        << QByteArray("clean1 rescan12 ") << leaving;
    QTest::newRow("SELECT DISK 1\nclean") << QByteArray() << torn;
    QTest::newRow("SELECT DISK 1") << QByteArray() << torn;
    QTest::newRow("SELECT DISK 12\nclean\nEX") << QByteArray() << bad;
    QTest::newRow("select disk 1\nclean all\nexit") << QByteArray() << bad;
    QTest::newRow("select disk 1x\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("select disk 4294967297\nclean\nexit") << QByteArray() << bad;
    QTest::newRow("select disk 2\nclean\nexit") << QByteArray() << noDisk;
    QTest::newRow("clean\nexit") << QByteArray() << noDisk;
}

void tst_Diskpart::scripts()
{
    QFETCH(QByteArray, said);
    const DescribedFolder folder;
    folder.add("script.txt", QTest::currentDataTag());
    NotedDisks disks;
    const auto native = [&folder](const QString &name) { return folder.path() + '/' + name; };
    const QByteArray text = tools::diskpart({"/S", "script.txt"}, native, disks);
    QTEST(disks.did, "did");
    QVERIFY2(text.contains(said), text.constData());
}

void tst_Diskpart::endsAtTheFirstError()
{
    const DescribedFolder folder;
    folder.add("script.txt", "select disk 1\nclean\nconvert mbr\nexit");
    const auto native = [](const QString &name) { return name; };
    NotedDisks disks;
    QVERIFY(tools::diskpart({}, native, disks).contains("Microsoft DiskPart syntax:"));
    QVERIFY(tools::diskpart({"/s", "/no/such/file"}, native, disks)
                .contains("The system cannot find the file specified."));
    QCOMPARE(disks.did, QByteArray());
    disks.ofCleaning = tools::DiskOutcome::SystemDisk;
    const QByteArray text = tools::diskpart({"/s", folder.path() + "/script.txt"}, native, disks);
    QCOMPARE(disks.did, QByteArray("clean1 "));
    QVERIFY(
        text.endsWith("Disk 1 is now the selected disk.\r\n\r\nVirtual Disk Service error:\r\nClean is not "
                      "allowed on the disk containing the current boot,\r\nsystem, pagefile, crashdump or "
                      "hibernation volume.\r\n"));
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
    const QByteArray disk = R"({"image":"old.img","bytesPerSector":)" + QByteArray::number(bytesPerSector) +
                            R"(,"sectors":)" + QByteArray::number(sectors) + R"(,"number":)";
    const QByteArray old(sectors * 512, 'o');
    folder.add("old.img", old);
    const auto pc = folder.open(R"({"disks":[)" + disk + "3}," + disk + "4}]}");
    const auto runs = [&](const QByteArray &lines) {
        const QString script = pc->GetTempPathW() + "s.txt";
        return writeFile(script, lines) ? outputOf(*pc, "diskpart.exe /s " + script) : QByteArray();
    };
    const QByteArray cleaned = runs("select disk 4\nclean\nexit");
    QVERIFY2(cleaned.contains("DiskPart succeeded in cleaning the disk."), cleaned.constData());
    QByteArray expected = old;
    const int stretch = qMin(expected.size(), 1 << 20);
    expected.replace(0, stretch, QByteArray(stretch, '\0'));
    expected.replace(expected.size() - stretch, stretch, QByteArray(stretch, '\0'));
    QVERIFY(contentOf(pc->imageFile(4)) == expected);

    const QByteArray made = runs("select disk 4\nconvert mbr\ncreate partition primary\nexit");
    QCOMPARE(made.contains("succeeded in creating the specified partition."), first != 0);
    const QByteArray image = contentOf(pc->imageFile(4));
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
    QCOMPARE(table["label"].toString(), "dos");
    const QJsonArray partitions = table["partitions"].toArray();
    QCOMPARE(partitions.size(), first == 0 ? 0 : 1);
    const QJsonObject only = partitions.at(0).toObject();
    QCOMPARE(only["start"].toInt(), first);
    QCOMPARE(only["size"].toInt(), first == 0 ? 0 : sectors * 512 / bytesPerSector - first);
    QCOMPARE(only["type"].toString(), first == 0 ? "" : "7");
}

void tst_Diskpart::largestPartition()
{
    // 8 TiB: more than the table can count.
    const QByteArray record = mbr::withOnePartition(mbr::emptyTable(7), quint64(1) << 34, 512);
    QCOMPARE(record.mid(446, 16).toHex(), QByteArray("0020210007feffff00080000ffffffff"));
}

QTEST_GUILESS_MAIN(tst_Diskpart)
#include "tst_Diskpart.moc"
