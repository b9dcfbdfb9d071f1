// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/PcDescription.h"
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

using namespace simulated;

class TestPcDescription : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryKey();
    void fillsInDefaults();
    void errors_data();
    void errors();
    void missingPlaces();
    void ranges_data();
    void ranges();
    void demoPcIsDescribed();
};

void TestPcDescription::readsEveryKey()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("a.txt"), "a");
    folder.add(QStringLiteral("old/values.ini"), "x");
    folder.add(QStringLiteral("pc.json"), R"({
        "name": "Bench", "user": "eve", "dpi": 120, "pauses": false, "smartctl": false, "history": "old",
        "operatingSystem": "Some System", "processes": ["a.exe"], "installed": ["b.exe"], "later": [1],
        "settings": {"EN/rxUpdateLink": "http://x/", "FirstTimeLaunch": 1, "On": true},
        "selfTest": {"secondsPerMinute": 0.5, "result": "servo"}, "tour": {"about": true},
        "disks": [
          {"number": 7, "media": "removable", "model": "M", "interface": "USB", "status": "Pred Fail",
           "bytesPerSector": 4096, "sectors": 5000000000, "image": "i.img", "opens": false,
           "badSectors": [3, [10, 2]], "unwritable": [[1, 1]], "bytesPerSecond": 1000, "pastEnd": "fail",
           "report": ["a.txt", "a.txt"], "capabilities": "a.txt", "selfTestLog": "a.txt",
           "identity": {"model": "IM", "serial": "IS", "firmware": "IF", "smart": "01 fF"},
           "selfTest": {"result": "read failure", "remaining": 60}},
          {"number": 1, "report": "a.txt"}],
        "volumes": [{"letter": "c", "label": "L", "type": "ramdisk", "fileSystem": "NTFS", "size": 10, "free": 4,
                     "bitLocker": "2.0", "extents": [{"disk": 7, "offset": 512, "length": 1024}]}],
        "partitions": [{"name": "P", "type": "T", "size": 9, "disk": 7}]})");
    QString error;
    const auto pc = readPc(folder.path(), &error);
    QVERIFY2(pc.has_value(), qPrintable(error));
    QCOMPARE(pc->name, QStringLiteral("Bench"));
    QCOMPARE(pc->user, QStringLiteral("eve"));
    QCOMPARE(pc->operatingSystem, QStringLiteral("Some System"));
    QCOMPARE(pc->dpi, 120);
    QVERIFY(!pc->pauses && !pc->hasSmartctl);
    QCOMPARE(pc->history, folder.path() + QStringLiteral("/old"));
    QCOMPARE(pc->processes, QStringList{QStringLiteral("a.exe")});
    QCOMPARE(pc->installed, QStringList{QStringLiteral("b.exe")});
    QCOMPARE(pc->settings.size(), 3);
    QCOMPARE(pc->secondsPerMinute, 0.5);
    QVERIFY(pc->tour.value(QStringLiteral("about")).toBool());

    const Disk &disk = *pc->disk(7);
    QCOMPARE(disk.record.media, QStringLiteral("removable"));
    QCOMPARE(disk.record.interfaceType, QStringLiteral("USB"));
    QCOMPARE(disk.record.status, QStringLiteral("Pred Fail"));
    QCOMPARE(disk.record.bytesPerSector, 4096u);
    QCOMPARE(disk.record.sectors, quint64(5000000000));
    QCOMPARE(disk.record.node, folder.path() + QStringLiteral("/i.img"));
    QVERIFY(!disk.opens && disk.failsPastEnd);
    QVERIFY(disk.bad.touches(11, 1) && !disk.bad.touches(12, 1) && disk.unwritable.touches(1, 1));
    QCOMPARE(disk.bytesPerSecond, quint64(1000000));
    QCOMPARE(disk.reports.size(), 2);
    QCOMPARE(disk.identity->smart, QByteArray("\x01\xff"));
    QCOMPARE(disk.selfTestEnd.status, 7);
    QCOMPARE(disk.selfTestEnd.remainingTenths, 6);
    QCOMPARE(pc->disk(1)->selfTestEnd.status, 6); // from the PC's own "selfTest"
    QCOMPARE(pc->disk(1)->reports.size(), 1);

    const inventory::Volume &volume = *pc->volume(QLatin1Char('C'));
    QCOMPARE(volume.type, QStringLiteral("ramdisk"));
    QVERIFY(volume.hasBitLockerLine);
    QCOMPARE(volume.extents.first().length, quint64(1024));
    QCOMPARE(pc->partitions.first().type, QStringLiteral("T"));
}

void TestPcDescription::fillsInDefaults()
{
    const DescribedFolder folder;
    folder.add(QStringLiteral("pc.json"), R"({"disks": [{"number": 0}], "volumes": [{"letter": "C"}]})");
    QString error;
    const auto pc = readPc(folder.path(), &error);
    QVERIFY2(pc.has_value(), qPrintable(error));
    QCOMPARE(pc->dpi, 96);
    QVERIFY(pc->pauses && pc->hasSmartctl);
    QVERIFY(pc->history.isEmpty());
    const Disk &disk = *pc->disk(0);
    QCOMPARE(disk.record.media, QStringLiteral("fixed"));
    QCOMPARE(disk.record.status, QStringLiteral("OK"));
    QCOMPARE(disk.record.bytesPerSector, 512u);
    QVERIFY(disk.opens && !disk.failsPastEnd && !disk.identity && disk.bad.isEmpty());
    QCOMPARE(disk.selfTestEnd.status, 0);
    QCOMPARE(pc->volume(QLatin1Char('C'))->type, QStringLiteral("fixed"));
    QVERIFY(!pc->volume(QLatin1Char('C'))->hasBitLockerLine);
}

void TestPcDescription::errors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &json, const QByteArray &error) {
        QTest::newRow(name) << json << QString::fromLatin1(error);
    };
    row("syntax", "{\n \"name\": \"x\",\n \"dpi\": 9 6 }", "line 3: unterminated object");
    row("not an object", "[]", "an object is wanted");
    row("text", R"({"user": 5})", "user: a text is wanted");
    row("truth", R"({"pauses": 1})", "pauses: true or false is wanted");
    row("null", R"({"name": null})", "name: a text is wanted");
    row("small", R"({"dpi": 1})", "dpi: a number from 48 to 960 is wanted");
    row("list", R"({"disks": {}})", "disks: a list is wanted");
    row("entry", R"({"disks": [4]})", "disks[0]: an object is wanted");
    row("no number", R"({"disks": [{}]})", "disks[0].number: a whole number is wanted");
    row("fraction", R"({"disks": [{"number": 0}, {"number": 1, "sectors": 1.5}]})",
        "disks[1].sectors: a whole number is wanted");
    row("sectors as text", R"({"disks": [{"number": 0, "sectors": "9"}]})",
        "disks[0].sectors: a whole number is wanted");
    row("twice", R"({"disks": [{"number": 3}, {"number": 3}]})",
        "disks[1].number: there is a disk 3 already");
    row("sector size", R"({"disks": [{"number": 0, "bytesPerSector": 700}]})",
        "disks[0].bytesPerSector: a multiple of 512 is wanted");
    row("bad sector", R"({"disks": [{"number": 0, "badSectors": [1, "2"]}]})",
        "disks[0].badSectors[1]: a sector or [first, count] is wanted");
    row("bad stretch", R"({"disks": [{"number": 0, "badSectors": [[1]]}]})",
        "disks[0].badSectors[0]: a sector or [first, count] is wanted");
    row("empty stretch", R"({"disks": [{"number": 0, "unwritable": [[1, 0]]}]})",
        "disks[0].unwritable[0][1]: a number from 1 to 17592186044416 is wanted");
    row("past end", R"({"disks": [{"number": 0, "pastEnd": "cut"}]})",
        R"(disks[0].pastEnd: one of "short", "fail" is wanted)");
    row("present", R"({"volumes": [{"letter": "C", "present": "no"}]})",
        "volumes[0].present: true or false is wanted");
    row("hex", R"({"disks": [{"number": 0, "identity": {"smart": "0g"}}]})",
        "disks[0].identity.smart: at most 512 bytes in hexadecimal are wanted");
    row("result", R"({"selfTest": {"result": "fine"}})",
        "selfTest.result: one of \"completed\", \"aborted\", \"interrupted\", \"fatal error\", \"unknown "
        "failure\", "
        "\"electrical\", \"servo\", \"read failure\", \"handling\", \"reserved\" is wanted");
    row("letter", R"({"volumes": [{"letter": "CD"}]})", "volumes[0].letter: a letter from A to Z is wanted");
    row("letter twice", R"({"volumes": [{"letter": "C"}, {"letter": "c"}]})",
        "volumes[1].letter: there is a volume C already");
    row("extent", R"({"volumes": [{"letter": "C", "extents": [{"disk": -1}]}]})",
        "volumes[0].extents[0].disk: a number from 0 to 127 is wanted");
    row("setting", R"({"settings": {"A/b": []}})",
        R"(settings["A/b"]: a text, a number, true or false is wanted)");
    row("missing file", R"({"disks": [{"number": 0, "report": ["there.txt", "gone.txt"]}]})",
        "disks[0].report[1]: <folder>/gone.txt: no such file");
    row("missing folder", R"({"history": "gone"})", "history: <folder>/gone: no such folder");
}

void TestPcDescription::errors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const DescribedFolder folder;
    folder.add(QStringLiteral("there.txt"), "size=1");
    folder.add(QStringLiteral("pc.json"), json);
    QString told;
    QVERIFY(!readPc(folder.path(), &told));
    QCOMPARE(told, folder.path() + QStringLiteral("/pc.json: ") +
                       error.replace(QStringLiteral("<folder>"), folder.path()));
}

void TestPcDescription::missingPlaces()
{
    const DescribedFolder folder;
    QString error;
    QVERIFY(!readPc(folder.path(), &error));
    QCOMPARE(error, folder.path() + QStringLiteral("/pc.json: no such file"));
    QVERIFY(!readPc(folder.path() + QStringLiteral("/gone"), &error));
    QCOMPARE(error, folder.path() + QStringLiteral("/gone: no such folder"));
}

void TestPcDescription::ranges_data()
{
    QTest::addColumn<QVector<QPair<int, int>>>("added");
    QTest::addColumn<QString>("inside"); // which of the sectors 0 to 9
    using Pairs = QVector<QPair<int, int>>;
    QTest::newRow("none") << Pairs{} << "";
    QTest::newRow("unsorted") << Pairs{{7, 1}, {2, 2}} << "237";
    QTest::newRow("overlapping") << Pairs{{2, 3}, {4, 3}} << "23456";
    QTest::newRow("bridging") << Pairs{{1, 1}, {5, 1}, {9, 1}, {1, 5}} << "123459";
    QTest::newRow("adjacent") << Pairs{{3, 1}, {4, 1}, {2, 1}} << "234";
    QTest::newRow("empty stretch") << Pairs{{3, 0}} << "";
}

void TestPcDescription::ranges()
{
    using Pairs = QVector<QPair<int, int>>;
    QFETCH(Pairs, added);
    QFETCH(QString, inside);
    SectorRanges ranges;
    for (const auto &pair : added) {
        ranges.add(pair.first, pair.second);
    }
    for (int first = 0; first < 10; ++first) {
        for (int count = 1; first + count <= 10; ++count) {
            bool expected = false;
            for (int sector = first; sector < first + count; ++sector) {
                expected = expected || inside.contains(QString::number(sector));
            }
            QCOMPARE(ranges.touches(first, count), expected);
        }
    }
    QCOMPARE(ranges.lowest(), inside.isEmpty() ? -1 : inside.left(1).toInt());
}

void TestPcDescription::demoPcIsDescribed()
{
    QString error;
    const auto pc = readPc(QStringLiteral(HALVANE_SOURCE_DIR "/demo"), &error);
    QVERIFY2(pc.has_value(), qPrintable(error));
    QVERIFY(!pc->disks.isEmpty() && !pc->volumes.isEmpty());
}

QTEST_GUILESS_MAIN(TestPcDescription)
#include "tst_PcDescription.moc"
