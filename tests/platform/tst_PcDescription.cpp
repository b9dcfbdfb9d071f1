// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/simulated/PcDescription.h"
#include "tests/platform/DescribedFolder.h"

#include <QtTest>

using namespace simulated;

namespace
{

/// All that a description of one disk, one volume and perhaps a partition says.
QString told(const PcDescription &pc)
{
    const Disk &disk = pc.disks.first();
    const inventory::Disk &record = disk.record;
    const Identity identity = disk.identity.value_or(Identity());
    const inventory::Volume &volume = pc.volumes.first();
    const inventory::Extent extent = volume.extents.value(0);
    const inventory::Partition partition = pc.partitions.value(0);
    QString text;
    QTextStream out(&text);
    out << pc.name << '|' << pc.user << '|' << pc.operatingSystem << '|' << pc.dpi << '|' << pc.pauses
        << pc.hasSmartctl << pc.network << '|' << pc.history << '|' << pc.toolMilliseconds << '|'
        << (pc.processes + pc.installed + pc.settings.keys() + pc.tour.keys()).join(' ') << '|'
        << pc.secondsPerMinute << "\n";
    out << record.number << '|' << record.media << '|' << record.model << '|' << record.interfaceType << '|'
        << record.status << '|' << record.serial << '|' << record.bytesPerSector << '|' << record.sectors
        << '|' << record.node << '|' << disk.opens << disk.failsPastEnd << '|' << disk.bad.lowest() << '|'
        << disk.unwritable.lowest() << '|' << disk.bytesPerSecond << '|' << disk.reports.join(' ') << '|'
        << disk.capabilities << '|' << disk.selfTestLog << '|' << disk.identity.has_value() << identity.model
        << identity.serial << identity.firmware << identity.smart.toHex() << '|' << disk.selfTestEnd.status
        << ' ' << disk.selfTestEnd.remainingTenths << "\n";
    out << volume.letter << '|' << volume.label << '|' << volume.type << '|' << volume.fileSystem << '|'
        << volume.size << '|' << volume.free << '|' << volume.hasBitLockerLine << volume.bitLocker << '|'
        << extent.disk << ' ' << extent.offset << ' ' << extent.length << '|' << partition.name << '|'
        << partition.type << '|' << partition.size << '|' << partition.disk;
    return text;
}

} // namespace

class TestPcDescription : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryKey()
    {
        const DescribedFolder folder;
        folder.add("a.txt", "a");
        folder.add("old/values.ini", "x");
        QString error;
        const auto pc = parsePc(R"({
            "name": "Bench", "user": "eve", "dpi": 960, "pauses": false, "smartctl": false, "history": "old",
            "operatingSystem": "Some System", "processes": ["a.exe"], "installed": ["b.exe"], "later": [1],
            "network": true, "toolMilliseconds": 8, "selfTest": {"secondsPerMinute": 0.5, "result": "servo"},
            "settings": {"EN/rxUpdateLink": "x", "FirstTimeLaunch": 1, "On": true}, "tour": {"about": 1},
            "disks": [
              {"number": 7, "media": "removable", "model": "M", "interface": "USB", "status": "Pred Fail",
               "bytesPerSector": 4096, "sectors": 5000000000, "image": "i.img", "opens": false, "serial": "S",
               "badSectors": [3, [10, 2]], "unwritable": [[1, 1]], "bytesPerSecond": 1000, "pastEnd": "fail",
               "report": ["a.txt", "a.txt"], "capabilities": "a.txt", "selfTestLog": "a.txt",
               "identity": {"model": "IM", "serial": "IS", "firmware": "IF", "smart": "01 fF"},
               "selfTest": {"result": "read failure", "remaining": 90}},
              {"number": 1, "report": "a.txt"}],
            "volumes": [{"letter": "c", "label": "L", "type": "ramdisk", "fileSystem": "NTFS", "size": 10,
                "free": 4, "bitLocker": "2.0", "extents": [{"disk": 7, "offset": 512, "length": 1024}]}],
            "partitions": [{"name": "P", "type": "T", "size": 9, "disk": 7}]})",
                                folder.path(), &error);
        QVERIFY2(pc.has_value(), qPrintable(error));
        QCOMPARE(told(*pc).replace(folder.path(), "<pc>"),
                 "Bench|eve|Some System|960|001|<pc>/old|8|a.exe b.exe EN/rxUpdateLink FirstTimeLaunch On "
                 "about|0.5\n"
                 "7|removable|M|USB|Pred Fail|S|4096|5000000000|<pc>/i.img|01|3|1|1000000|<pc>/a.txt "
                 "<pc>/a.txt|<pc>/a.txt|<pc>/a.txt|1IMISIF01ff|7 9\n"
                 "C|L|ramdisk|NTFS|10|4|12.0|7 512 1024|P|T|9|7");
        QCOMPARE(pc->disk(1)->selfTestEnd.status, 6); // from the PC's own "selfTest"
        QCOMPARE(pc->disk(1)->reports.size(), 1);
    }

    void fillsInDefaults()
    {
        QString error;
        const auto pc =
            parsePc(R"({"disks": [{"number": 0}], "volumes": [{"letter": "C"}]})", "/none", &error);
        QVERIFY2(pc.has_value(), qPrintable(error));
        QCOMPARE(told(*pc), "PC|user|Microsoft Windows 10 10.0.19045 x64|96|110||0||1\n"
                            "0|fixed||SCSI|OK||512|0||10|-1|-1|0||||0|0 0\n"
                            "C||fixed||0|0|0|0 0 0|||0|0");
    }

    void errors()
    {
        const DescribedFolder folder;
        folder.add("there.txt", "size=1");
        const auto check = [&folder](const QByteArray &json, const char *error) {
            QString told;
            QVERIFY2(!parsePc(json, folder.path(), &told), json);
            QCOMPARE(told.replace(folder.path(), "<folder>"), error);
        };
        const auto disk = [&check](const QByteArray &json, const QByteArray &error) {
            check(R"({"disks": [{"number": 3}, {"number": )" + json + "}]}", "disks[1]." + error);
        };
        check("{\n \"name\": \"x\",\n \"dpi\": 9 6 }", "line 3: unterminated object");
        check("[]", "an object is wanted");
        check(R"({"user": null})", "user: a text is wanted");
        check(R"({"pauses": 1})", "pauses: true or false is wanted");
        check(R"({"dpi": 961})", "dpi: a number from 48 to 960 is wanted");
        check(R"({"disks": [4]})", "disks[0]: an object is wanted");
        check(R"({"disks": [{}]})", "disks[0].number: a whole number is wanted");
        disk("3", "number: there is a disk 3 already");
        disk(R"(1, "sectors": 1.5)", "sectors: a whole number is wanted");
        disk(R"(0, "bytesPerSector": 768)", "bytesPerSector: a multiple of 512 is wanted");
        disk(R"(0, "badSectors": [1, [1]])", "badSectors[1]: a sector or [first, count] is wanted");
        disk(R"(0, "unwritable": [[1, 0]])", "unwritable[0][1]: a number from 1 to 17592186044416 is wanted");
        disk(R"(0, "pastEnd": "cut")", R"(pastEnd: one of "short", "fail" is wanted)");
        disk(R"(0, "identity": {"smart": "0g"})",
             "identity.smart: at most 512 bytes in hexadecimal are wanted");
        disk(R"(0, "report": ["there.txt", "gone.txt"])", "report[1]: <folder>/gone.txt: no such file");
        check(R"({"volumes": [{"letter": "CD"}]})", "volumes[0].letter: a letter from A to Z is wanted");
        check(R"({"volumes": [{"letter": "C"}, {"letter": "c"}]})",
              "volumes[1].letter: there is a volume C already");
        check(R"({"settings": {"A/b": []}})",
              R"(settings["A/b"]: a text, a number, true or false is wanted)");
        check(R"({"history": "gone"})", "history: <folder>/gone: no such folder");
    }

    void missingPlaces()
    {
        const DescribedFolder folder;
        const auto refusal = [&folder](const QString &place) {
            QString error;
            return readPc(folder.path() + place, &error) ? "it opens" : error.remove(folder.path());
        };
        QCOMPARE(refusal({}), "/pc.json: no such file");
        folder.add("pc.json", "[]");
        QCOMPARE(refusal({}), "/pc.json: an object is wanted");
        QCOMPARE(refusal("/gone"), "/gone: no such folder");
    }
};

QTEST_GUILESS_MAIN(TestPcDescription)
#include "tst_PcDescription.moc"
