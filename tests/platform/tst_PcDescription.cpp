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
    void ranges();
};

void TestPcDescription::readsEveryKey()
{
    const DescribedFolder folder;
    folder.add("a.txt", "a");
    folder.add("old/values.ini", "x");
    QString error;
    const auto pc = parsePc(R"({
        "name": "Bench", "user": "eve", "dpi": 960, "pauses": false, "smartctl": false, "history": "old",
        "operatingSystem": "Some System", "processes": ["a.exe"], "installed": ["b.exe"], "later": [1],
        "settings": {"EN/rxUpdateLink": "http://x/", "FirstTimeLaunch": 1, "On": true},
        "selfTest": {"secondsPerMinute": 0.5, "result": "servo"}, "tour": {"about": true},
        "disks": [
          {"number": 7, "media": "removable", "model": "M", "interface": "USB", "status": "Pred Fail",
           "bytesPerSector": 4096, "sectors": 5000000000, "image": "i.img", "opens": false, "serial": "S",
           "badSectors": [3, [10, 2]], "unwritable": [[1, 1]], "bytesPerSecond": 1000, "pastEnd": "fail",
           "report": ["a.txt", "a.txt"], "capabilities": "a.txt", "selfTestLog": "a.txt",
           "identity": {"model": "IM", "serial": "IS", "firmware": "IF", "smart": "01 fF"},
           "selfTest": {"result": "read failure", "remaining": 60}},
          {"number": 1, "report": "a.txt"}],
        "volumes": [{"letter": "c", "label": "L", "type": "ramdisk", "fileSystem": "NTFS", "size": 10, "free": 4,
                     "bitLocker": "2.0", "extents": [{"disk": 7, "offset": 512, "length": 1024}]}],
        "partitions": [{"name": "P", "type": "T", "size": 9, "disk": 7}]})",
                            folder.path(), &error);
    QVERIFY2(pc.has_value(), qPrintable(error));
    const Disk &disk = *pc->disk(7);
    const inventory::Volume &volume = *pc->volume('C');
    const inventory::Partition &partition = pc->partitions.first();
    QCOMPARE(QStringList({pc->name, pc->user, pc->operatingSystem, disk.record.media, disk.record.model,
                          disk.record.interfaceType, disk.record.status, disk.record.serial,
                          disk.identity->model, disk.identity->serial, disk.identity->firmware, volume.label,
                          volume.type, volume.fileSystem, volume.bitLocker, partition.name, partition.type})
                 .join(' '),
             "Bench eve Some System removable M USB Pred Fail S IM IS IF L ramdisk NTFS 2.0 P T");
    QCOMPARE(QStringList({pc->history, disk.record.node}),
             QStringList({folder.path() + "/old", folder.path() + "/i.img"}));
    QCOMPARE(pc->processes + pc->installed + pc->settings.keys() + pc->tour.keys(),
             QStringList({"a.exe", "b.exe", "EN/rxUpdateLink", "FirstTimeLaunch", "On", "about"}));
    QVERIFY(!pc->pauses && !pc->hasSmartctl && !disk.opens && disk.failsPastEnd && volume.hasBitLockerLine);
    QVERIFY(disk.bad.touches(11, 1) && !disk.bad.touches(12, 1) && disk.unwritable.touches(1, 1));
    const inventory::Extent &extent = volume.extents.first();
    QCOMPARE(QList<quint64>({quint64(pc->dpi), disk.record.bytesPerSector, disk.record.sectors,
                             disk.bytesPerSecond, volume.size, volume.free, quint64(extent.disk),
                             extent.offset, extent.length, partition.size, quint64(partition.disk)}),
             QList<quint64>({960, 4096, 5000000000, 1000000, 10, 4, 7, 512, 1024, 9, 7}));
    QCOMPARE(disk.identity->smart, QByteArray("\x01\xff"));
    QCOMPARE(pc->secondsPerMinute, 0.5);
    QCOMPARE(disk.selfTestEnd.status, 7);
    QCOMPARE(disk.selfTestEnd.remainingTenths, 6);
    QCOMPARE(pc->disk(1)->selfTestEnd.status, 6); // from the PC's own "selfTest"
    QCOMPARE(disk.reports.size() + pc->disk(1)->reports.size(), 3);
}

void TestPcDescription::fillsInDefaults()
{
    QString error;
    const auto pc = parsePc(R"({"disks": [{"number": 0}], "volumes": [{"letter": "C"}]})", "/none", &error);
    QVERIFY2(pc.has_value(), qPrintable(error));
    const Disk &disk = *pc->disk(0);
    QVERIFY(pc->pauses && pc->hasSmartctl && !pc->network && pc->history.isEmpty());
    QVERIFY(disk.opens && !disk.failsPastEnd && !disk.identity && disk.bad.isEmpty());
    QCOMPARE(disk.record.media + disk.record.status + pc->volume('C')->type, "fixedOKfixed");
    QCOMPARE(pc->dpi, 96);
    QCOMPARE(disk.record.bytesPerSector, 512u);
    QCOMPARE(disk.selfTestEnd.status, 0);
    QVERIFY(!pc->volume('C')->hasBitLockerLine);
}

void TestPcDescription::errors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const QByteArray &json, const QByteArray &error) {
        QTest::newRow(json.constData()) << json << QString(error);
    };
    const auto disk = [&row](const QByteArray &json, const QByteArray &error) {
        row(R"({"disks": [{"number": 3}, {"number": )" + json + "}]}", "disks[1]." + error);
    };
    row("{\n \"name\": \"x\",\n \"dpi\": 9 6 }", "line 3: unterminated object");
    row("[]", "an object is wanted");
    row(R"({"user": null})", "user: a text is wanted");
    row(R"({"pauses": 1})", "pauses: true or false is wanted");
    row(R"({"dpi": 47})", "dpi: a number from 48 to 960 is wanted");
    row(R"({"dpi": 961})", "dpi: a number from 48 to 960 is wanted");
    row(R"({"disks": {}})", "disks: a list is wanted");
    row(R"({"disks": [4]})", "disks[0]: an object is wanted");
    row(R"({"disks": [{}]})", "disks[0].number: a whole number is wanted");
    disk("3", "number: there is a disk 3 already");
    disk(R"(1, "sectors": 1.5)", "sectors: a whole number is wanted");
    disk(R"(1, "sectors": "9")", "sectors: a whole number is wanted");
    disk(R"(0, "bytesPerSector": 700)", "bytesPerSector: a multiple of 512 is wanted");
    disk(R"(0, "badSectors": [1, [1]])", "badSectors[1]: a sector or [first, count] is wanted");
    disk(R"(0, "unwritable": [[1, 0]])", "unwritable[0][1]: a number from 1 to 17592186044416 is wanted");
    disk(R"(0, "pastEnd": "cut")", R"(pastEnd: one of "short", "fail" is wanted)");
    disk(R"(0, "identity": {"smart": "0g"})", "identity.smart: at most 512 bytes in hexadecimal are wanted");
    disk(R"(0, "report": ["there.txt", "gone.txt"])", "report[1]: <folder>/gone.txt: no such file");
    row(R"({"volumes": [{"letter": "CD"}]})", "volumes[0].letter: a letter from A to Z is wanted");
    row(R"({"volumes": [{"letter": "C"}, {"letter": "c"}]})",
        "volumes[1].letter: there is a volume C already");
    row(R"({"settings": {"A/b": []}})", R"(settings["A/b"]: a text, a number, true or false is wanted)");
    row(R"({"history": "gone"})", "history: <folder>/gone: no such folder");
}

void TestPcDescription::errors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const DescribedFolder folder;
    folder.add("there.txt", "size=1");
    QString told;
    QVERIFY(!parsePc(json, folder.path(), &told));
    QCOMPARE(told, error.replace("<folder>", folder.path()));
}

void TestPcDescription::missingPlaces()
{
    const DescribedFolder folder;
    QString error;
    QVERIFY(!readPc(folder.path(), &error));
    QCOMPARE(error, folder.path() + "/pc.json: no such file");
    folder.add("pc.json", "[]");
    QVERIFY(!readPc(folder.path(), &error));
    QCOMPARE(error, folder.path() + "/pc.json: an object is wanted");
    QVERIFY(!readPc(folder.path() + "/gone", &error));
    QCOMPARE(error, folder.path() + "/gone: no such folder");
}

void TestPcDescription::ranges()
{
    using Pairs = QList<std::pair<int, int>>;
    for (const auto &[added, inside] : {
             std::pair(Pairs{}, QString()),
             std::pair(Pairs{{3, 0}, {7, 1}, {2, 2}}, QString("237")),
             std::pair(Pairs{{2, 3}, {4, 3}}, QString("23456")),
             std::pair(Pairs{{1, 1}, {5, 1}, {9, 1}, {1, 5}}, QString("123459")),
             std::pair(Pairs{{3, 1}, {4, 1}, {2, 1}}, QString("234")),
         }) {
        SectorRanges ranges;
        for (const auto &[first, count] : added)
            ranges.add(first, count);
        for (int first = 0; first < 10; ++first) {
            bool expected = false;
            for (int count = 1; first + count <= 10; ++count) {
                expected = expected || inside.contains(QString::number(first + count - 1));
                QCOMPARE(ranges.touches(first, count), expected);
            }
        }
        QCOMPARE(ranges.lowest(), inside.isEmpty() ? -1 : inside.left(1).toInt());
    }
}

QTEST_GUILESS_MAIN(TestPcDescription)
#include "tst_PcDescription.moc"
