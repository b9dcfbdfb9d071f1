// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/CommandRunner.h"
#include "inventory/WmicInventory.h"
#include "platform/OwnFiles.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QTextCodec>

namespace
{

QByteArray sample(const char *name)
{
    const QByteArray bytes = contentOf(QStringLiteral(HALVANE_TEST_DATA "/inventory/%1.txt").arg(name));
    if (bytes.isEmpty())
        qFatal("no test data: %s", name);
    return bytes;
}

/// "index|interface|model|name|status" of all records.
QStringList diskRecords()
{
    QStringList rows;
    for (const WmicDiskRecord &record : g_wmicDisks)
        rows << joined(qint32(record.nIndex), record.szInterface.text(), record.szModel.text(),
                       record.szSmartModel.text(), record.szStatus.text());
    return rows;
}

/// "caption|file system|free|size|encryption|disk" of all records.
QStringList volumeRecords()
{
    QStringList rows;
    for (const LogicalDiskRecord &record : g_logicalDisks)
        rows << joined(record.szCaption.text(), record.szFileSystem.text(), record.nFreeBytes,
                       record.nSizeBytes, record.szBitLocker.text(), record.nDiskIndex);
    return rows;
}

const auto ignoreIdentity = [](int, const QString &) { return ProbedIdentity(); };

} // namespace

/// How tools run, and what is made of their tables.
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

    void runsThroughTheInterpreter()
    {
        qputenv("COMSPEC", "x /c diskpart /s evil.txt |");
        RunSilent("tool.exe", "-x");
        qunsetenv("COMSPEC");
        RunSilent("tool \u00FC");
        QCOMPARE(fake->commands(), QStringList({"C:\\Windows\\system32\\cmd.exe /c tool.exe -x",
                                                "C:\\Windows\\system32\\cmd.exe /c tool \u00C3\u00BC "}));
        QCOMPARE(fake->hiddenFlags, QVector<bool>({true, true}));
    }

    void leavesOutLinesThatDoNotFit()
    {
        const int frame = (fake->CommandInterpreter() + " /c  ").size();
        RunSilent(QString(511 - frame, 'x'));
        RunSilent(QString(512 - frame, 'x'));
        QCOMPARE(fake->commands().size(), 1);
        QCOMPARE(fake->commands().first().size(), 511);
    }

    void decodesBothKindsOfTool()
    {
        const auto decoded = [this](const QByteArray &output) {
            fake->onCommand = [output](const QString &line) { return FakePlatform::answer(line, output); };
            return run() ? text : "no file";
        };
        const auto inLocale = [](const char *utf8) {
            return QTextCodec::codecForLocale()->fromUnicode(QString::fromUtf8(utf8));
        };
        const char *const shown = "Name  n\u00B0\r\nC:    7\r\n\r\n";
        const QString plain = "Name  n\u00B0\nC:    7\n\n";
        QCOMPARE(decoded(utf16(QString::fromUtf8(shown))), plain);
        QCOMPARE(decoded(inLocale(shown)), plain);
        // A no-break blank; after a byte beyond ASCII, 0xA0 is a part of a letter.
        QCOMPARE(decoded("18\xA0" + QByteArray("250\xA0") + "344\n" + inLocale("\u00E0")),
                 "18\u00A0250\u00A0344\n\u00E0");
        QCOMPARE(decoded(utf16("a\u001B[2Jb\u202Ec\u2028d\u0085\re\tf\r\n")),
                 "a\uFFFD[2Jb\uFFFDc\uFFFDd\uFFFD\uFFFDe\tf\n");
        QCOMPARE(decoded(QByteArray(static_cast<int>(ownfiles::MostBytes) + 9, 'x')).size(),
                 16 * 1024 * 1024);
    }

    void leavesNoFileUnlessAsked()
    {
        const QString path = nativePath(tempFile("F.txt"));
        QVERIFY(writeFile(path, "old\n"));
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "new\n"); };
        QVERIFY(run(runner::After::Keep));
        QCOMPARE(contentOf(path), QByteArray("new\n"));
        QVERIFY(run());
        QCOMPARE(text, "new\n");
        QVERIFY(!QFile::exists(path));
        QCOMPARE(fake->commands().first(),
                 QStringLiteral("C:\\Windows\\system32\\cmd.exe /c tool >> ") + tempFile("F.txt") + ' ');
    }

    void reportsMissingFile()
    {
        fake->onCommand = {};
        QVERIFY(!run()); // the tool writes none
        // The interpreter takes a name up to its first blank, and no name beyond ASCII.
        fake->onCommand = [](const QString &line) { return FakePlatform::answer(line, "text\n"); };
        fake->useTempFolder("my temp");
        QVERIFY(!run());
        fake->useTempFolder("t\u00E9mp");
        QVERIFY(!run());
        QVERIFY(text.isNull());
    }

    void loadsDiskDrives()
    {
        const QString question = "\\wbem\\WMIC.exe diskdrive get Model,InterfaceType,Status,Index >> ";
        outputs = {{question, sample("diskdrive-ata-device-suffix")}};
        LoadDiskDrives(ignoreIdentity);
        // The record of a blank line belongs to no disk.
        QCOMPARE(diskRecords(),
                 QStringList({"0|IDE|Hitachi HDS721010CLA332 |Hitachi HDS721010CLA332|OK",
                              "1|IDE|SAMSUNG SSD 830 Series |SAMSUNG SSD 830 Series|OK", "-1||||"}));
        QCOMPARE(g_pWmicDiskListTail->nDiskId, wmic::Nobody);
        QVERIFY(!QFile::exists(tempFile("DiskInfo.txt")));
        // Of a line below the header, which has the word "Index", too.
        compareRows("WmicInventory/drives", [&](const QString &line) {
            outputs[question] = "Index  InterfaceType  Model  Status\r\n" + line.toLatin1() + "\r\n";
            LoadDiskDrives(ignoreIdentity);
            return diskRecords().join(' ');
        });
        QCOMPARE(g_pWmicDiskListTail->nDiskId, 128u + 6);
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
        QCOMPARE(asked.join(' '), "0SCSI 1USB 2USB 3USB 4USB 5SCSI 6SCSI");
        const auto names = [](quint32 disk) {
            const WmicDiskRecord &record = *findWmicDisk(disk);
            return joined(record.szSmartModel.text(), record.szSmartSerial.text(),
                          record.szSmartFirmware.text());
        };
        QCOMPARE(names(133), "Model|Serial|Firmware");
        QCOMPARE(names(132), "Generic SDXC/MMC|2012 0926A|");
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
        QCOMPARE(state(decrypted), "NO");
        QCOMPARE(state(QByteArray(decrypted).replace("[OS]", "[BitLocker Version:    2.0]")), "NO");
        QCOMPARE(state("    BitLocker Version:  None\r\n"), "YES");
        QCOMPARE(state("BitLocker Version:    2.0\r\nBitLocker Version:    None\r\n"), "YES");
        QCOMPARE(state(sample("manage-bde-access-denied")), QString());
    }

    void loadsLogicalDisks()
    {
        QVERIFY(writeFile(tempFile("DiskInfo.txt"), "X:  NTFS  1  2\r\n"));
        outputs = {{"logicaldisk", sample("logicaldisk-empty-floppy")},
                   {"-status A:", {}},
                   {"-status C:", sample("manage-bde-os-used-space-on")},
                   {"-status D:", sample("manage-bde-c-decrypted-win11")},
                   {"-status  >>", {}},
                   {"partition", sample("partition-diskindex")}};
        LoadLogicalDisks();
        QCOMPARE(volumeRecords(), QStringList({"||0|0||0", "C:|NTFS|55366582272|135838822400|YES|1",
                                               "D:|NTFS|63518740480|68718358528|NO|1", "||0|0||1"}));
        QVERIFY(QFile::exists(tempFile("DiskInfo.txt")));
        QVERIFY(!QFile::exists(tempFile("File.txt")));
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
            return volumeRecords().join(' ');
        };
        QCOMPARE(paired("DiskIndex\n4\n"), "C:|NTFS|0|0||4 D:|NTFS|0|0||0 E:|NTFS|0|0||0");
        // A blank row counts as disk 0.
        QCOMPARE(paired("DiskIndex\n2\n\n1\n5\n"), "C:|NTFS|0|0||2 D:|NTFS|0|0||0 E:|NTFS|0|0||1");
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
                 "3");
        QCOMPARE(number(sample("partition-types-french")), "Disque n\u00B0 0");
        QVERIFY(!QFile::exists(tempFile("SMART1.txt")));
        const QString none = number("Disk #1, Partition #0  524288000  GPT: Basic Data\r\n");
        QVERIFY(none.isEmpty() && !none.isNull());
        outputs.clear();
        QVERIFY(GetSystemDiskIndex().isNull());
    }

private:
    bool run(runner::After after = runner::After::Remove)
    {
        text.clear();
        const auto read = [this](QTextStream &stream) { text = stream.readAll(); };
        return runner::runAndRead("tool", "F.txt", read, after);
    }

    /// What a command prints that contains the key. A command without an entry does not start.
    QMap<QString, QByteArray> outputs;
    FakePlatform *fake = nullptr;
    QString text; ///< of the last run
};

QTEST_GUILESS_MAIN(WmicInventoryTest)
#include "tst_WmicInventory.moc"
