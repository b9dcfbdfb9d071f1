// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/tools/SystemTools.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

using inventory::Disk;
using inventory::Machine;
using inventory::Volume;

Volume volume(char letter, const char *type, const char *fileSystem, quint64 size, quint64 free)
{
    Volume v;
    v.letter = letter;
    v.type = type;
    v.fileSystem = fileSystem;
    v.size = size;
    v.free = free;
    return v;
}

/// A volume that the tool for encryption tells a version of, or none.
Volume lockable(char letter, const char *label, const char *version)
{
    Volume v = volume(letter, "fixed", "NTFS", quint64{1} << 33, 0);
    v.label = label;
    v.hasBitLockerLine = version != nullptr;
    v.bitLocker = version;
    return v;
}

Disk disk(int number, const char *model, const char *bus, const char *media, quint64 sectors)
{
    Disk d;
    d.number = number;
    d.model = model;
    d.interfaceType = bus;
    d.media = media;
    d.status = "OK";
    d.sectors = sectors;
    return d;
}

Machine machine()
{
    Machine m;
    m.disks = {disk(1, "Quill Data 40 ATA Device", "IDE", "fixed", 1953525168),
               disk(0, "Tarn Stick USB\nDevice", "USB", "removable", 0)};
    m.volumes = {volume('A', "removable", "", 0, 0), volume('C', "fixed", "NTFS", 136464822272, 42720997376),
                 volume('D', "cdrom", "", 7, 0), volume('E', "cdrom", "UDF", 58601472, 0)};
    m.partitions = {{"Disk #1, Partition #0", "GPT: System", 104857600, 1},
                    {"Disk #1, Partition #1", "GPT: Basic Data", 989359767552, 1},
                    {"Disk #2, Partition #0", "GPT: Basic Data", 1024, 2}};
    return m;
}

QByteArray ask(const Machine &pc, const QString &question)
{
    return tools::wmic(pc, question.split(' ', Qt::SkipEmptyParts));
}

} // namespace

class tst_SystemTools : public QObject
{
    Q_OBJECT

private slots:
    void wmic_data();
    void wmic();
    void wmicRefuses();
    void manageBde_data();
    void manageBde();
    void tasklistRows();
    void findstrAndTaskkill();
};

void tst_SystemTools::wmic_data()
{
    QTest::addColumn<QString>("table");
    // Named after the question.
    QTest::newRow("diskdrive get Model,InterfaceType,Status,Index")
        << "Index  InterfaceType  Model                     Status  \r\n"
           "1      IDE            Quill Data 40 ATA Device  OK      \r\n"
           "0      USB            Tarn Stick USB\uFFFDDevice     OK      \r\n\r\n";
    // The size in whole cylinders, and blank without a medium.
    QTest::newRow("DISKDRIVE GET SIZE, deviceid,mediatype,partitions")
        << "DeviceID            MediaType              Partitions  Size           \r\n"
           "\\\\.\\PHYSICALDRIVE1  Fixed hard disk media  2           1000202273280  \r\n"
           "\\\\.\\PHYSICALDRIVE0  Removable Media        0                          \r\n\r\n";
    QTest::newRow("logicaldisk get size,caption,freespace,filesystem,drivetype")
        << "Caption  DriveType  FileSystem  FreeSpace    Size          \r\n"
           "A:       2                                                 \r\n"
           "C:       3          NTFS        42720997376  136464822272  \r\n"
           "D:       5                                                 \r\n"
           "E:       5          UDF         0            58601472      \r\n\r\n";
    QTest::newRow("partition get") << "Caption                DeviceID               DiskIndex  Index  Name  "
                                      "                 Size          Type             \r\n"
                                      "Disk #1, Partition #0  Disk #1, Partition #0  1          0      Disk "
                                      "#1, Partition #0  104857600     GPT: System      \r\n"
                                      "Disk #1, Partition #1  Disk #1, Partition #1  1          1      Disk "
                                      "#1, Partition #1  989359767552  GPT: Basic Data  \r\n"
                                      "Disk #2, Partition #0  Disk #2, Partition #0  2          0      Disk "
                                      "#2, Partition #0  1024          GPT: Basic Data  \r\n\r\n";
}

void tst_SystemTools::wmic()
{
    QFETCH(QString, table);
    QCOMPARE(ask(machine(), QTest::currentDataTag()), utf16(table));
}

void tst_SystemTools::wmicRefuses()
{
    for (const char *question : {"", "cpu get name", "diskdrive", "diskdrive delete model",
                                 "diskdrive get model,colour", "diskdrive get model Doe\\DiskInfo.txt"})
        QCOMPARE(ask(machine(), question), QByteArray());
    QCOMPARE(ask(Machine(), "diskdrive get model"), QByteArray());
}

void tst_SystemTools::manageBde_data()
{
    QTest::addColumn<QByteArray>("begin"); ///< behind the volume's own line
    QTest::addColumn<QByteArray>("end");
    const QByteArray size = "    Size:                 8.00 GB\r\n";
    const QByteArray version = "    BitLocker Version:    ";
    const QByteArray clear = "    Conversion Status:    Fully Decrypted\r\n";
    QTest::newRow("c:") << "[OS]\r\n[OS Volume]\r\n\r\n" + size + version + "None\r\n" + clear
                        << QByteArray("    Identification Field: None\r\n"
                                      "    Key Protectors:       None Found\r\n\r\n\r\n");
    QTest::newRow("D:")
        << "[Data]\r\n[Data Volume]\r\n\r\n" + size + version + "2.0\r\n    Conversion Status:    Used Space"
        << QByteArray("    Automatic Unlock:     Disabled\r\n    Key Protectors:\r\n        Password\r\n"
                      "        Numerical Password\r\n\r\n\r\n");
    QTest::newRow("E:") << "[Old]\r\n[Data Volume]\r\n\r\n" + size + clear
                        << QByteArray("    Automatic Unlock:     Disabled\r\n"
                                      "    Key Protectors:       None Found\r\n\r\n\r\n");
    const QByteArray refused = "could not be opened by BitLocker.\r\nThis may be because the volume does not "
                               "exist, or because it is not a valid\r\nBitLocker volume.\r\n";
    QTest::newRow("F:") << QByteArray() << refused; // a disc drive
    QTest::newRow("Z:") << QByteArray() << refused;
}

void tst_SystemTools::manageBde()
{
    QFETCH(QByteArray, begin);
    Machine pc;
    pc.volumes = {lockable('C', "OS", "None"), lockable('D', "Data", "2.0"), lockable('E', "Old", nullptr),
                  volume('F', "cdrom", "UDF", 1, 0)};
    const QByteArray answer = tools::manageBde(pc, {"-status", QTest::currentDataTag()});
    const int at = answer.indexOf("\r\nVolume ");
    QCOMPARE(answer.mid(at + 12, begin.size()), begin);
    QCOMPARE(at < 0, begin.isEmpty());
    QCOMPARE(answer.count("\r\nVolume "), begin.isEmpty() ? 0 : 1);
    QFETCH(QByteArray, end);
    QCOMPARE(answer.right(end.size()), end);
    QCOMPARE(tools::manageBde(pc, {"-status"}).count("\r\nVolume "), 3);
}

void tst_SystemTools::tasklistRows()
{
    Machine pc;
    pc.processes = QStringList{"System", "explorer.exe", "AVeryLongProgramNameIndeed.exe"};
    const QList<QByteArray> lines = tools::tasklist(pc).split('\n');
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.at(1),
             QByteArray("Image Name                     PID Session Name        Session#    Mem Usage\r"));
    QVERIFY(lines.at(3).startsWith("System                           4 Services                   0 "));
    QVERIFY(lines.at(4).startsWith("explorer.exe "));
    QVERIFY(lines.at(5).startsWith("AVeryLongProgramNameIndee "));
    for (int i = 3; i < 6; ++i) {
        QCOMPARE(lines.at(i).size(), lines.at(1).size());
        QVERIFY(lines.at(i).endsWith(" K\r"));
    }
    QVERIFY(lines.at(4).mid(26, 8).toInt() > 4);
    QVERIFY(lines.at(4).mid(26, 8) != lines.at(5).mid(26, 8));
}

void tst_SystemTools::findstrAndTaskkill()
{
    const QByteArray input = "Velmora.exe 12\r\nother\r\nVELMORA.EXE 3\r\nx Velmora.exe";
    QCOMPARE(tools::findstr({"/l", "Velmora.exe"}, input), QByteArray("Velmora.exe 12\r\nx Velmora.exe\r\n"));
    QCOMPARE(tools::findstr({}, input), QByteArray());
    QCOMPARE(tools::taskkillTarget({"/F", "/im", "VelmoraSMART.exe"}), "VelmoraSMART.exe");
    QCOMPARE(tools::taskkillTarget({"/F", "/IM"}), QString());
}

QTEST_GUILESS_MAIN(tst_SystemTools)
#include "tst_SystemTools.moc"
