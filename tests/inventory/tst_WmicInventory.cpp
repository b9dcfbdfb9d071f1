// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "inventory/WmicInventory.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/FakePlatform.h"

#include <QTest>

namespace
{

QByteArray sample(const QString &name)
{
    QFile file(QStringLiteral(HALVANE_TEST_DATA "/inventory/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no test data: %s", qPrintable(name));
    return file.readAll();
}

QByteArray utf16(const QString &text)
{
    return QByteArray("\xFF\xFE", 2) +
           QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
}

/// "index|interface|model|status" of all records.
QStringList diskRecords()
{
    QStringList rows;
    for (const WmicDiskRecord &record : g_wmicDisks) {
        rows << QStringLiteral("%1|%2|%3|%4")
                    .arg(QString::number(record.nIndex), record.szInterface.text(), record.szModel.text(),
                         record.szStatus.text());
    }
    return rows;
}

/// "caption|file system|free|size|encryption|disk" of all records.
QStringList volumeRecords()
{
    QStringList rows;
    for (const LogicalDiskRecord &record : g_logicalDisks) {
        rows << QStringLiteral("%1|%2|%3|%4|%5|%6")
                    .arg(record.szCaption.text(), record.szFileSystem.text(),
                         QString::number(record.nFreeBytes), QString::number(record.nSizeBytes),
                         record.szBitLocker.text(), QString::number(record.nDiskIndex));
    }
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
    void init();
    void cleanup();

    void parsesDiskDriveLine_data();
    void parsesDiskDriveLine();
    void parsesLogicalDiskLine_data();
    void parsesLogicalDiskLine();
    void readsBitLockerState_data();
    void readsBitLockerState();
    void loadsDiskDrives_data();
    void loadsDiskDrives();
    void joinsIdentity();
    void namesDisksThatDoNotTellThemselves();
    void keepsOrEmptiesOldDisks();
    void loadsLogicalDisks();
    void asksForEachVolume();
    void endsWhereEncryptionToolFails();
    void keepsOrEmptiesOldVolumes();
    void pairsByPosition_data();
    void pairsByPosition();
    void blankRowsOfPartitionsCountAsDisk0();
    void findsSystemDisk_data();
    void findsSystemDisk();

private:
    /// What a command prints that contains the key. A command without an entry does not start.
    QMap<QString, QByteArray> outputs;
    FakePlatform *fake = nullptr;
};

void WmicInventoryTest::init()
{
    fake = FakePlatform::install();
    g_App.m_strSystemFolder = fake->systemFolder;
    outputs.clear();
    fake->onCommand = [this](const QString &line) {
        for (auto it = outputs.cbegin(); it != outputs.cend(); ++it) {
            if (line.contains(it.key()))
                return FakePlatform::answer(line, it.value());
        }
        return false;
    };
}

void WmicInventoryTest::cleanup()
{
    g_wmicDisks.clear();
    g_logicalDisks.clear();
}

void WmicInventoryTest::parsesDiskDriveLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<quint32>("index");
    QTest::addColumn<QString>("interfaceText");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("status");
    const auto row = [](const char *name, const char *line, quint32 index, const char *interfaceText,
                        const char *model, const char *status) {
        QTest::newRow(name) << QString::fromUtf8(line) << index << QString::fromUtf8(interfaceText)
                            << QString::fromUtf8(model) << QString::fromUtf8(status);
    };
    row("bus word and Device go, a blank stays", "0  IDE  NORDWIND NW 500 ATA Device  OK  ", 0, "IDE",
        "NORDWIND NW 500 ", "OK");
    row("USB Device goes", "3  USB  Reader SD USB Device  OK  ", 3, "USB", "Reader SD ", "OK");
    row("a bus word of four letters", "1  SCSI  NORDWIND NW500 SCSI Device  OK", 1, "SCSI",
        "NORDWIND NW500 S", "OK");
    row("three words with SCSI Disk Device", "1  SCSI  NW500 SCSI Disk Device  OK", 1, "SCSI", "NW500 SCSI D",
        "OK");
    row("one word", "2  SCSI  NW500  OK", 2, "SCSI", "", "OK");
    row("two words lose their end", "2  SCSI  NORDWIND NW500  OK", 2, "SCSI", "NORDW", "OK");
    row("two words, the first too short", "2  SCSI  NW X  OK", 2, "SCSI", "", "OK");
    row("status of two words", "0  IDE  NORDWIND NW500 ATA Device  Pred Fail", 0, "IDE",
        "NORDWIND NW500 ATA Dev", "Fail");
    row("no model", "4  USB  OK", 4, "USB", "", "OK");
    row("two fields", "4  USB", 4, "USB", "", "");
    row("one field", "4", 4, "", "", "");
    row("blank", "   ", wmic::Nobody, "", "", "");
    row("no number", "x  IDE  NW500  OK", 0, "IDE", "", "OK");
}

void WmicInventoryTest::parsesDiskDriveLine()
{
    QFETCH(QString, line);
    const wmic::DiskDriveLine parsed = wmic::parseDiskDrive(line);
    QTEST(parsed.index, "index");
    QTEST(parsed.interfaceText, "interfaceText");
    QTEST(parsed.model, "model");
    QTEST(parsed.status, "status");
}

void WmicInventoryTest::parsesLogicalDiskLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("fields");
    QTest::newRow("all") << QStringLiteral("C:  NTFS  497654161408  539028877312  ")
                         << QStringLiteral("C:|NTFS|497654161408|539028877312");
    QTest::newRow("caption only") << QStringLiteral("A:       ") << QStringLiteral("A:||0|0");
    QTest::newRow("no size") << QStringLiteral("E:  RAW") << QStringLiteral("E:|RAW|0|0");
    QTest::newRow("blank") << QString() << QStringLiteral("||0|0");
}

void WmicInventoryTest::parsesLogicalDiskLine()
{
    QFETCH(QString, line);
    const wmic::LogicalDiskLine parsed = wmic::parseLogicalDisk(line);
    const QString fields = QStringLiteral("%1|%2|%3|%4")
                               .arg(parsed.caption, parsed.fileSystem, QString::number(parsed.freeBytes),
                                    QString::number(parsed.sizeBytes));
    QTEST(fields, "fields");
}

void WmicInventoryTest::readsBitLockerState_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("state");
    const auto file = [](const char *name) {
        return sample(QStringLiteral("manage-bde-%1.txt").arg(QLatin1String(name)));
    };
    QTest::newRow("decrypted") << file("c-decrypted-win11") << QStringLiteral("NO");
    QTest::newRow("encrypted") << file("os-used-space-on") << QStringLiteral("YES");
    QTest::newRow("three volumes") << file("three-volumes-decrypted") << QStringLiteral("NO");
    QTest::newRow("label that says so")
        << file("c-decrypted-win11").replace("[OS]", "[BitLocker Version:    2.0]") << QStringLiteral("NO");
    QTest::newRow("no rights") << file("access-denied") << QString();
    QTest::newRow("nothing printed") << QByteArray() << QString();
    QTest::newRow("two blanks only") << QByteArray("    BitLocker Version:  None\r\n")
                                     << QStringLiteral("YES");
    QTest::newRow("the first line decides")
        << QByteArray("BitLocker Version:    2.0\r\nBitLocker Version:    None\r\n") << QStringLiteral("YES");
}

void WmicInventoryTest::readsBitLockerState()
{
    QFETCH(QByteArray, output);
    outputs = {{QStringLiteral("logicaldisk"), sample(QStringLiteral("logicaldisk-one-volume.txt"))},
               {QStringLiteral("manage-bde"), output},
               {QStringLiteral("partition"), {}}};
    LoadLogicalDisks();
    QVERIFY(g_pLogicalDiskListHead);
    QTEST(g_pLogicalDiskListHead->szBitLocker.text(), "state");
}

void WmicInventoryTest::loadsDiskDrives_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QStringList>("records");
    const QString blank = QStringLiteral("4294967295|||");
    QTest::newRow("ATA Device") << sample(QStringLiteral("diskdrive-ata-device-suffix.txt"))
                                << QStringList({QStringLiteral("0|IDE|Hitachi HDS721010CLA332 |OK"),
                                                QStringLiteral("1|IDE|SAMSUNG SSD 830 Series |OK"), blank});
    QTest::newRow("disk 1 first") << sample(QStringLiteral("diskdrive-disk1-first.txt"))
                                  << QStringList({QStringLiteral("1|IDE|KINGS|OK"),
                                                  QStringLiteral("0|IDE||OK"), blank});
    QTest::newRow("long name") << sample(QStringLiteral("diskdrive-long-nvme-name.txt"))
                               << QStringList({QStringLiteral("0|IDE||OK"),
                                               QStringLiteral("1|SCSI|addlink M.2 PCIE G|OK"), blank});
    QTest::newRow("the header's word in a model")
        << utf16(QStringLiteral("Index  InterfaceType  Model  Status\r\n0  IDE  Index X 1 ATA Device  OK\r\n"
                                "1  USB  A B USB Device  OK\r\n"))
        << QStringList({QStringLiteral("0|IDE|Index X 1 |OK"), QStringLiteral("1|USB|A B |OK")});
    QTest::newRow("no mark") << QByteArray(
                                    "Index  InterfaceType  Model  Status\r\n7  USB  A B USB Device  OK\r\n")
                             << QStringList(QStringLiteral("7|USB|A B |OK"));
}

void WmicInventoryTest::loadsDiskDrives()
{
    QFETCH(QByteArray, table);
    outputs = {
        {QStringLiteral("\\wbem\\WMIC.exe diskdrive get Model,InterfaceType,Status,Index >> "), table}};
    LoadDiskDrives(ignoreIdentity);
    QTEST(diskRecords(), "records");
    QVERIFY(!QFile::exists(tempFile(QStringLiteral("DiskInfo.txt"))));
    // The record of a blank line belongs to no disk.
    const WmicDiskRecord *last = g_pWmicDiskListTail;
    QCOMPARE(last->nDiskId, last->nIndex == wmic::Nobody ? wmic::Nobody : last->nIndex + 128);
}

void WmicInventoryTest::joinsIdentity()
{
    outputs = {{QStringLiteral("diskdrive"), sample(QStringLiteral("diskdrive-card-reader.txt"))}};
    QStringList asked;
    LoadDiskDrives([&asked](int index, const QString &interfaceText) {
        asked << QString::number(index) + interfaceText;
        const QString number = QString::number(asked.size());
        return ProbedIdentity{"M" + number, "S" + number, "F" + number};
    });
    const QStringList expected =
        QStringLiteral("0SCSI 1USB 2USB 3USB 4USB 5SCSI 6SCSI").split(QLatin1Char(' '));
    QCOMPARE(asked, expected);
    const WmicDiskRecord *fifth = findWmicDisk(132);
    QVERIFY(fifth);
    QCOMPARE(fifth->szModel.text(), QStringLiteral("Generic SDXC/MMC "));
    QCOMPARE(fifth->szSmartSerial.text(), QStringLiteral("S5"));
    QCOMPARE(fifth->szSmartFirmware.text(), QStringLiteral("F5"));
    QCOMPARE(fifth->szSmartModel.text(), QStringLiteral("M5"));
}

void WmicInventoryTest::namesDisksThatDoNotTellThemselves()
{
    outputs = {{QStringLiteral("diskdrive get Model"), sample(QStringLiteral("diskdrive-card-reader.txt"))},
               {QStringLiteral("diskdrive get Index,SerialNumber"),
                utf16(QStringLiteral(
                    "Index  SerialNumber      \r\n4      2012 0926A  \r\n0      S0          \r\n\r\n"))}};
    LoadDiskDrives([](int index, const QString &) {
        const QString name = index == 5 ? QStringLiteral("Told") : QString();
        return ProbedIdentity{name, name, QString()};
    });
    QCOMPARE(findWmicDisk(133)->szSmartModel.text(), QStringLiteral("Told"));
    QCOMPARE(findWmicDisk(133)->szSmartSerial.text(), QStringLiteral("Told"));
    QCOMPARE(findWmicDisk(128)->szSmartSerial.text(), QStringLiteral("S0"));
    QCOMPARE(findWmicDisk(132)->szSmartModel.text(), QStringLiteral("Generic SDXC/MMC"));
    QCOMPARE(findWmicDisk(132)->szSmartSerial.text(), QStringLiteral("2012 0926A"));
}

void WmicInventoryTest::keepsOrEmptiesOldDisks()
{
    outputs = {{QStringLiteral("diskdrive"), sample(QStringLiteral("diskdrive-disk1-first.txt"))}};
    LoadDiskDrives(ignoreIdentity);
    outputs.clear();
    LoadDiskDrives(ignoreIdentity);
    QCOMPARE(diskRecords().size(), 3);
    outputs = {{QStringLiteral("diskdrive"), {}}};
    LoadDiskDrives(ignoreIdentity);
    QVERIFY(!g_pWmicDiskListHead);
    QVERIFY(!g_pWmicDiskListTail);
}

void WmicInventoryTest::loadsLogicalDisks()
{
    QFile old(tempFile(QStringLiteral("DiskInfo.txt")));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("X:  NTFS  1  2\r\n");
    old.close();
    outputs = {{QStringLiteral("logicaldisk"), sample(QStringLiteral("logicaldisk-empty-floppy.txt"))},
               {QStringLiteral("-status C:"), sample(QStringLiteral("manage-bde-os-used-space-on.txt"))},
               {QStringLiteral("-status D:"), sample(QStringLiteral("manage-bde-c-decrypted-win11.txt"))},
               {QStringLiteral("-status "), sample(QStringLiteral("manage-bde-access-denied.txt"))},
               {QStringLiteral("partition"), sample(QStringLiteral("partition-diskindex.txt"))}};
    // The longest key that fits decides.
    fake->onCommand = [this](const QString &line) {
        QString best;
        for (auto it = outputs.cbegin(); it != outputs.cend(); ++it) {
            if (line.contains(it.key()) && it.key().size() > best.size())
                best = it.key();
        }
        return !best.isEmpty() && FakePlatform::answer(line, outputs.value(best));
    };
    LoadLogicalDisks();
    QCOMPARE(
        volumeRecords(),
        QStringList({QStringLiteral("||0|0||0"), QStringLiteral("C:|NTFS|55366582272|135838822400|YES|1"),
                     QStringLiteral("D:|NTFS|63518740480|68718358528|NO|1"), QStringLiteral("||0|0||1")}));
    QVERIFY(QFile::exists(tempFile(QStringLiteral("DiskInfo.txt"))));
    QVERIFY(!QFile::exists(tempFile(QStringLiteral("File.txt"))));
}

void WmicInventoryTest::asksForEachVolume()
{
    outputs = {{QStringLiteral("logicaldisk"), sample(QStringLiteral("logicaldisk-empty-floppy.txt"))},
               {QStringLiteral("manage-bde"), {}},
               {QStringLiteral("partition"), {}}};
    LoadLogicalDisks();
    const QString shell = QStringLiteral("C:\\Windows\\system32\\cmd.exe /c C:\\Windows\\system32");
    const QString info = tempFile(QStringLiteral("DiskInfo.txt")) + QLatin1Char(' ');
    const QString file = tempFile(QStringLiteral("File.txt")) + QLatin1Char(' ');
    QCOMPARE(fake->commands(),
             QStringList({shell +
                              QLatin1String("\\wbem\\WMIC.exe logicaldisk get "
                                            "size,caption,freespace,filesystem >> ") +
                              info,
                          shell + QLatin1String("\\manage-bde.exe -status A: >> ") + file,
                          shell + QLatin1String("\\manage-bde.exe -status C: >> ") + file,
                          shell + QLatin1String("\\manage-bde.exe -status D: >> ") + file,
                          shell + QLatin1String("\\manage-bde.exe -status  >> ") + file,
                          shell + QLatin1String("\\wbem\\WMIC.exe partition get diskindex >> ") + info}));
}

void WmicInventoryTest::endsWhereEncryptionToolFails()
{
    outputs = {{QStringLiteral("logicaldisk"), sample(QStringLiteral("logicaldisk-empty-floppy.txt"))},
               {QStringLiteral("-status A:"), {}},
               {QStringLiteral("partition"), sample(QStringLiteral("partition-diskindex.txt"))}};
    LoadLogicalDisks();
    QCOMPARE(volumeRecords(), QStringList({QStringLiteral("||0|0||0"),
                                           QStringLiteral("C:|NTFS|55366582272|135838822400||0")}));
    QCOMPARE(fake->commands().size(), 3);
}

void WmicInventoryTest::keepsOrEmptiesOldVolumes()
{
    outputs = {{QStringLiteral("logicaldisk"), sample(QStringLiteral("logicaldisk-one-volume.txt"))},
               {QStringLiteral("manage-bde"), {}}};
    LoadLogicalDisks();
    QCOMPARE(volumeRecords().size(), 2);
    outputs.clear();
    LoadLogicalDisks();
    QCOMPARE(volumeRecords().size(), 2);
    outputs = {{QStringLiteral("logicaldisk"), {}}, {QStringLiteral("partition"), {}}};
    LoadLogicalDisks();
    QVERIFY(!g_pLogicalDiskListHead);
}

void WmicInventoryTest::pairsByPosition_data()
{
    QTest::addColumn<int>("volumes");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<QVector<int>>("paired");
    QTest::newRow("as many") << 2 << QVector<int>({1, 2}) << QVector<int>({1, 2});
    QTest::newRow("more volumes") << 3 << QVector<int>({4}) << QVector<int>({4, 0, 0});
    QTest::newRow("more partitions") << 1 << QVector<int>({5, 6, 7}) << QVector<int>({5});
    QTest::newRow("no volumes") << 0 << QVector<int>({5}) << QVector<int>();
}

void WmicInventoryTest::pairsByPosition()
{
    QFETCH(int, volumes);
    QFETCH(QVector<int>, numbers);
    for (int i = 0; i < volumes; ++i)
        g_logicalDisks.append();
    wmic::pairDiskIndexes(g_logicalDisks, numbers);
    QVector<int> paired;
    for (const LogicalDiskRecord &record : g_logicalDisks)
        paired << record.nDiskIndex;
    QTEST(paired, "paired");
}

void WmicInventoryTest::blankRowsOfPartitionsCountAsDisk0()
{
    outputs = {{QStringLiteral("logicaldisk"),
                "Caption  FileSystem  FreeSpace  Size\nC:  NTFS  1  2\nD:  NTFS  1  2\nE:  NTFS  1  2\n"},
               {QStringLiteral("manage-bde"), {}},
               {QStringLiteral("partition get diskindex"), "DiskIndex\n0\n\n1\n"}};
    LoadLogicalDisks();
    QVector<int> paired;
    for (const LogicalDiskRecord &record : g_logicalDisks)
        paired << record.nDiskIndex;
    QCOMPARE(paired, QVector<int>({0, 0, 1}));
}

void WmicInventoryTest::findsSystemDisk_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("number");
    const QString head = QStringLiteral("Name                   Size       Type                 \r\n");
    QTest::newRow("English") << utf16(head +
                                      QStringLiteral("Disk #1, Partition #0  524288000  GPT: Basic Data\r\n"
                                                     "Disk #0, Partition #0  104857600  GPT: System\r\n"
                                                     "Disk #2, Partition #0  104857600  GPT: System\r\n"))
                             << QStringLiteral("0");
    QTest::newRow("French") << sample(QStringLiteral("partition-types-french.txt"))
                            << QStringLiteral("Disque n\u00B0 0");
    QTest::newRow("file system counts too")
        << utf16(head + QStringLiteral("Disk #3, Partition #0  1  Installable File System\r\n"))
        << QStringLiteral("3");
    QTest::newRow("none") << utf16(head) << QStringLiteral("");
    QTest::newRow("only commas") << QByteArray("System") << QStringLiteral("System");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("");
}

void WmicInventoryTest::findsSystemDisk()
{
    QFETCH(QByteArray, table);
    outputs = {{QStringLiteral("\\wbem\\WMIC.exe partition get name,size,type >> "), table}};
    const QString found = GetSystemDiskIndex();
    QTEST(found, "number");
    QVERIFY(!found.isNull());
    QVERIFY(!QFile::exists(tempFile(QStringLiteral("SMART1.txt"))));
    outputs.clear();
    QVERIFY(GetSystemDiskIndex().isNull());
}

QTEST_GUILESS_MAIN(WmicInventoryTest)
#include "tst_WmicInventory.moc"
