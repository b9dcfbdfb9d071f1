// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "inventory/WmicInventory.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Files.h"

#include <QTest>

namespace
{

QByteArray sample(const char *name)
{
    const QByteArray bytes = contentOf(QStringLiteral(HALVANE_TEST_DATA "/inventory/%1.txt").arg(name));
    if (bytes.isEmpty())
        qFatal("no test data: %s", name);
    return bytes;
}

/// "index|interface|model|status" of all records.
QStringList diskRecords()
{
    QStringList rows;
    for (const WmicDiskRecord &record : g_wmicDisks)
        rows << QString::number(record.nIndex) + '|' + record.szInterface.text() + '|' +
                    record.szModel.text() + '|' + record.szStatus.text();
    return rows;
}

/// "caption|file system|free|size|encryption|disk" of all records.
QStringList volumeRecords()
{
    QStringList rows;
    for (const LogicalDiskRecord &record : g_logicalDisks)
        rows << QStringLiteral("%1|%2|%3|%4|%5|%6")
                    .arg(record.szCaption.text(), record.szFileSystem.text(),
                         QString::number(record.nFreeBytes), QString::number(record.nSizeBytes),
                         record.szBitLocker.text(), QString::number(record.nDiskIndex));
    return rows;
}

ProbedIdentity ignoreIdentity(int, const QString &)
{
    return {};
}

} // namespace

class WmicInventoryTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        fake = FakePlatform::install();
        g_App.m_strSystemFolder = fake->systemFolder;
        fake->onCommand = [this](const QString &line) {
            for (auto it = outputs.cbegin(); it != outputs.cend(); ++it) {
                if (line.contains(it.key()))
                    return FakePlatform::answer(line, it.value());
            }
            return false;
        };
    }

    void cleanup()
    {
        outputs.clear();
        g_wmicDisks.clear();
        g_logicalDisks.clear();
    }

    /// "index|interface|model|name|status".
    void parsesDiskDriveLine()
    {
        const auto told = [](const char *line) {
            const wmic::DiskDriveLine parsed = wmic::parseDiskDrive(QString::fromLatin1(line));
            return QString::number(parsed.index) + '|' + parsed.interfaceText + '|' + parsed.model + '|' +
                   parsed.name + '|' + parsed.status;
        };
        QCOMPARE(told("0  IDE  NORDWIND NW 500 ATA Device  OK  "),
                 QStringLiteral("0|IDE|NORDWIND NW 500 |NORDWIND NW 500|OK"));
        QCOMPARE(told("1  SCSI  NW500 SCSI Disk Device  OK"), QStringLiteral("1|SCSI|NW500 SCSI D|NW500|OK"));
        QCOMPARE(told("2  SCSI  NORDWIND NW500  OK"), QStringLiteral("2|SCSI|NORDW|NORDWIND NW500|OK"));
        QCOMPARE(told("0  IDE  NW500 Device  Pred Fail"),
                 QStringLiteral("0|IDE|NW500 Dev|NW500 Device|Fail"));
        QCOMPARE(told("4  USB  OK"), QStringLiteral("4|USB|||OK"));
        QCOMPARE(told("4  USB"), QStringLiteral("4|USB|||"));
    }

    void loadsDiskDrives()
    {
        const QString question = "\\wbem\\WMIC.exe diskdrive get Model,InterfaceType,Status,Index >> ";
        outputs = {{question, sample("diskdrive-ata-device-suffix")}};
        LoadDiskDrives(ignoreIdentity);
        // The record of a blank line belongs to no disk.
        QCOMPARE(diskRecords(), QStringList({"0|IDE|Hitachi HDS721010CLA332 |OK",
                                             "1|IDE|SAMSUNG SSD 830 Series |OK", "4294967295|||"}));
        QCOMPARE(g_pWmicDiskListTail->nDiskId, wmic::Nobody);
        QVERIFY(!QFile::exists(tempFile(QStringLiteral("DiskInfo.txt"))));
        // The header's word is data further down.
        outputs[question] = "Index  InterfaceType  Model  Status\r\n0  IDE  Index X 1 ATA Device  OK\r\n";
        LoadDiskDrives(ignoreIdentity);
        QCOMPARE(diskRecords(), QStringList("0|IDE|Index X 1 |OK"));
        QCOMPARE(g_pWmicDiskListTail->nDiskId, 128u);
    }

    void namesDisks()
    {
        outputs = {
            {"diskdrive get Model", sample("diskdrive-card-reader")},
            {"diskdrive get Index,SerialNumber",
             utf16("Index  SerialNumber      \r\n4      2012 0926A  \r\n5      Other       \r\n\r\n")}};
        QStringList asked;
        LoadDiskDrives([&asked](int index, const QString &interfaceText) {
            asked << QString::number(index) + interfaceText;
            return index == 5 ? ProbedIdentity{"Model", "Serial", "Firmware"} : ProbedIdentity();
        });
        QCOMPARE(asked.join(' '), QStringLiteral("0SCSI 1USB 2USB 3USB 4USB 5SCSI 6SCSI"));
        const auto names = [](quint32 disk) {
            const WmicDiskRecord &record = *findWmicDisk(disk);
            return record.szModel.text() + '|' + record.szSmartModel.text() + '|' +
                   record.szSmartSerial.text() + '|' + record.szSmartFirmware.text();
        };
        QCOMPARE(names(133).section('|', 1), QStringLiteral("Model|Serial|Firmware"));
        QCOMPARE(names(132), QStringLiteral("Generic SDXC/MMC |Generic SDXC/MMC|2012 0926A|"));
    }

    void keepsOrEmptiesOldLists()
    {
        outputs = {{"diskdrive", sample("diskdrive-card-reader")},
                   {"logicaldisk", sample("logicaldisk-one-volume")},
                   {"manage-bde", {}}};
        const auto load = [] {
            LoadDiskDrives(ignoreIdentity);
            LoadLogicalDisks();
        };
        load();
        outputs.clear();
        load();
        QCOMPARE(diskRecords().size(), 8);
        QCOMPARE(volumeRecords().size(), 2);
        outputs = {{"diskdrive", {}}, {"logicaldisk", {}}, {"partition", {}}};
        load();
        QVERIFY(!g_pWmicDiskListHead && !g_pWmicDiskListTail && !g_pLogicalDiskListHead);
    }

    void readsBitLockerState()
    {
        const auto state = [this](const QByteArray &output) {
            outputs = {{"logicaldisk", sample("logicaldisk-one-volume")}, {"manage-bde", output}};
            LoadLogicalDisks();
            return g_pLogicalDiskListHead ? g_pLogicalDiskListHead->szBitLocker.text() : "no volume";
        };
        const QByteArray decrypted = sample("manage-bde-c-decrypted-win11");
        QCOMPARE(state(decrypted), QStringLiteral("NO"));
        QCOMPARE(state(QByteArray(decrypted).replace("[OS]", "[BitLocker Version:    2.0]")),
                 QStringLiteral("NO"));
        QCOMPARE(state("    BitLocker Version:  None\r\n"), QStringLiteral("YES"));
        QCOMPARE(state("BitLocker Version:    2.0\r\nBitLocker Version:    None\r\n"), QStringLiteral("YES"));
        QCOMPARE(state(sample("manage-bde-access-denied")), QString());
    }

    void loadsLogicalDisks()
    {
        QVERIFY(writeFile(tempFile(QStringLiteral("DiskInfo.txt")), "X:  NTFS  1  2\r\n"));
        outputs = {{"logicaldisk", sample("logicaldisk-empty-floppy")},
                   {"-status A:", {}},
                   {"-status C:", sample("manage-bde-os-used-space-on")},
                   {"-status D:", sample("manage-bde-c-decrypted-win11")},
                   {"-status  >>", {}},
                   {"partition", sample("partition-diskindex")}};
        LoadLogicalDisks();
        QCOMPARE(volumeRecords(), QStringList({"||0|0||0", "C:|NTFS|55366582272|135838822400|YES|1",
                                               "D:|NTFS|63518740480|68718358528|NO|1", "||0|0||1"}));
        QVERIFY(QFile::exists(tempFile(QStringLiteral("DiskInfo.txt"))));
        QVERIFY(!QFile::exists(tempFile(QStringLiteral("File.txt"))));
        QString commands = fake->commands().join('\n').remove(tempFile({}));
        QCOMPARE(commands.remove("C:\\Windows\\system32\\").remove("cmd.exe /c "),
                 QStringLiteral(
                     "wbem\\WMIC.exe logicaldisk get size,caption,freespace,filesystem >> DiskInfo.txt \n"
                     "manage-bde.exe -status A: >> File.txt \nmanage-bde.exe -status C: >> File.txt \n"
                     "manage-bde.exe -status D: >> File.txt \nmanage-bde.exe -status  >> File.txt \n"
                     "wbem\\WMIC.exe partition get diskindex >> DiskInfo.txt "));
        // The list ends at a volume whose state cannot be asked for.
        outputs.remove("-status C:");
        LoadLogicalDisks();
        QCOMPARE(volumeRecords(), QStringList({"||0|0||0", "C:|NTFS|55366582272|135838822400||0"}));
        QCOMPARE(fake->commands().size(), 6 + 3);
    }

    void pairsByPosition()
    {
        const auto paired = [this](const char *partitions) {
            outputs = {{"logicaldisk", "FileSystem\nC:  NTFS\nD:  NTFS  -1  -2\nE:  NTFS\n"},
                       {"manage-bde", {}},
                       {"partition get diskindex", partitions}};
            LoadLogicalDisks();
            QVector<int> disks;
            for (const LogicalDiskRecord &record : g_logicalDisks)
                disks << record.nDiskIndex;
            return disks;
        };
        QCOMPARE(paired("DiskIndex\n4\n"), QVector<int>({4, 0, 0}));
        QCOMPARE(volumeRecords().at(1), QStringLiteral("D:|NTFS|0|0||0"));
        // A blank row counts as disk 0.
        QCOMPARE(paired("DiskIndex\n2\n\n1\n5\n"), QVector<int>({2, 0, 1}));
    }

    void findsSystemDisk()
    {
        const auto number = [this](const QByteArray &table) {
            outputs = {{"\\wbem\\WMIC.exe partition get name,size,type >> ", table}};
            return GetSystemDiskIndex();
        };
        QCOMPARE(number("Name                   Size       Type                 \r\n"
                        "Disk #1, Partition #0  524288000  GPT: Basic Data\r\n"
                        "Disk #3, Partition #0  104857600  Installable File System\r\n"
                        "Disk #2, Partition #0  104857600  GPT: System\r\n"),
                 QStringLiteral("3"));
        QCOMPARE(number(sample("partition-types-french")), QStringLiteral("Disque n\u00B0 0"));
        QVERIFY(!QFile::exists(tempFile(QStringLiteral("SMART1.txt"))));
        const QString none = number("Disk #1, Partition #0  524288000  GPT: Basic Data\r\n");
        QVERIFY(none.isEmpty() && !none.isNull());
        outputs.clear();
        QVERIFY(GetSystemDiskIndex().isNull());
    }

private:
    /// What a command prints that contains the key. A command without an entry does not start.
    QMap<QString, QByteArray> outputs;
    FakePlatform *fake = nullptr;
};

QTEST_GUILESS_MAIN(WmicInventoryTest)
#include "tst_WmicInventory.moc"
