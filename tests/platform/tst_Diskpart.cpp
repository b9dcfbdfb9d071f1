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
    void scripts()
    {
        const auto play = [](const QByteArray &script, const QByteArray &did, const QByteArray &said,
                             tools::DiskOutcome ofCleaning = tools::DiskOutcome::Done) {
            const DescribedFolder folder;
            folder.add("script.txt", script);
            NotedDisks disks;
            disks.ofCleaning = ofCleaning;
            const auto native = [&folder](const QString &name) { return folder.path() + '/' + name; };
            const QByteArray text = tools::diskpart({"/S", "script.txt"}, native, disks);
            QCOMPARE(script + " => " + disks.did, script + " => " + did);
            QVERIFY2(text.contains(said), text.constData());
            QVERIFY(tools::diskpart({}, native, disks).contains("Microsoft DiskPart syntax:"));
            QVERIFY(
                tools::diskpart({"/s", "none"}, native, disks).contains("cannot find the file specified."));
            QCOMPARE(disks.did, did);
        };
        const QByteArray leaving = "Leaving DiskPart...";
        const QByteArray bad = "The arguments specified for this command are not valid.";
        const QByteArray noDisk = "There is no disk selected.";
        play("sElEcT dIsK 12\r\n\r\nONLINE disk\nClean\r\n  convert   MBR \ncreate partition "
             "primary\nRESCAN\nexit",
             "online12 clean12 mbr12 primary12 rescan12 ", leaving);
        play("select disk 1\nclean\nselect disk 12\nrescan\nexit\nclean", "clean1 rescan12 ", leaving);
        play("SELECT DISK 1\nclean", "", "Reached the end of the file.");
        play("SELECT DISK 12\nclean\nEX", "", bad);
        play("select disk 1\nclean all\nexit", "", bad);
        play("select disk 1x\nclean\nexit", "", bad);
        play("select disk 4294967297\nclean\nexit", "", bad);
        play("select disk 2\nclean\nexit", "", noDisk);
        play("clean\nexit", "", noDisk);
        // It ends at the first error.
        play("select disk 1\nclean\nconvert mbr\nexit", "clean1 ",
             "Disk 1 is now the selected disk.\r\n\r\nVirtual Disk Service error:\r\nClean is not allowed on "
             "the "
             "disk containing the current boot,\r\nsystem, pagefile, crashdump or hibernation volume.\r\n",
             tools::DiskOutcome::SystemDisk);
    }

    void wipesAndPartitions_data()
    {
        QTest::addColumn<int>("sectors");
        QTest::addColumn<int>("bytesPerSector");
        QTest::addColumn<int>("first"); // sector of the partition; 0: there is none
        QTest::newRow("some MiB, larger sectors") << 20480 << 4096 << 256;
        QTest::newRow("a sector of room") << 2049 << 512 << 2048;
        QTest::newRow("no room") << 2048 << 512 << 0;
    }

    void wipesAndPartitions()
    {
        QFETCH(int, sectors);
        QFETCH(int, bytesPerSector);
        QFETCH(int, first);
        const DescribedFolder folder;
        const QByteArray disk = R"({"image":"old.img","bytesPerSector":)" +
                                QByteArray::number(bytesPerSector) + R"(,"sectors":)" +
                                QByteArray::number(sectors) + R"(,"number":)";
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

    void largestPartition()
    {
        // 8 TiB: more than the table can count.
        const QByteArray record = mbr::withOnePartition(mbr::emptyTable(7), quint64(1) << 34, 512);
        QCOMPARE(record.mid(446, 16).toHex(), QByteArray("0020210007feffff00080000ffffffff"));
    }
};

QTEST_GUILESS_MAIN(tst_Diskpart)
#include "tst_Diskpart.moc"
