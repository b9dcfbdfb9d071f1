// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/tools/SystemTools.h"
#include "tests/support/Files.h"

#include <QtTest>

namespace
{

using inventory::Machine;

Machine machine()
{
    Machine m;
    m.disks = {{1, "fixed", "Quill Data 40 ATA Device", "IDE", "OK", "", 512, 1953525168, "", 0},
               {0, "removable", "Tarn Stick USB\nDevice", "USB", "OK", "", 512, 0, "", 0}};
    m.volumes = {{'A', "", "removable", "", 0, 0, false, "", {}, ""},
                 {'C', "", "fixed", "NTFS", 136464822272, 42720997376, false, "", {}, ""},
                 {'D', "", "cdrom", "", 7, 0, false, "", {}, ""},
                 {'E', "", "cdrom", "UDF", 58601472, 0, false, "", {}, ""}};
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

void tst_SystemTools::manageBde()
{
    Machine pc;
    pc.volumes = {{'C', "OS", "fixed", "NTFS", quint64{1} << 33, 0, true, "None", {}, ""},
                  {'D', "Data", "fixed", "NTFS", quint64{1} << 33, 0, true, "2.0", {}, ""},
                  {'E', "Old", "fixed", "NTFS", quint64{1} << 33, 0, false, "", {}, ""},
                  {'F', "", "cdrom", "UDF", 1, 0, false, "", {}, ""}};
    const QByteArray size = "    Size:                 8.00 GB\r\n";
    const QByteArray version = "    BitLocker Version:    ";
    const QByteArray clear = "    Conversion Status:    Fully Decrypted\r\n";
    const QByteArray ownLock = "    Automatic Unlock:     Disabled\r\n";
    const QByteArray noKey = "    Key Protectors:       None Found\r\n\r\n\r\n";
    for (const auto &[letter, begin, end] : {
             std::tuple("c:", "[OS]\r\n[OS Volume]\r\n\r\n" + size + version + "None\r\n" + clear,
                        "    Identification Field: None\r\n" + noKey),
             std::tuple(
                 "D:",
                 "[Data]\r\n[Data Volume]\r\n\r\n" + size + version + "2.0\r\n    Conversion Status:    Used",
                 ownLock +
                     "    Key Protectors:\r\n        Password\r\n        Numerical Password\r\n\r\n\r\n"),
             std::tuple("E:", "[Old]\r\n[Data Volume]\r\n\r\n" + size + clear, ownLock + noKey),
         }) {
        const QByteArray answer = tools::manageBde(pc, {"-status", letter});
        const int at = answer.indexOf("\r\nVolume ");
        QCOMPARE(answer.mid(at + 12, begin.size()), QByteArray(begin));
        QCOMPARE(answer.right(end.size()), QByteArray(end));
        QCOMPARE(answer.count("\r\nVolume "), 1);
    }
    for (const char *letter : {"F:", "Z:"}) {
        const QByteArray answer = tools::manageBde(pc, {"-status", letter});
        QVERIFY(answer.contains("\r\nERROR: The volume " + QByteArray(letter) +
                                " could not be opened by BitLocker.\r\n"));
        QVERIFY(!answer.contains("\r\nVolume "));
    }
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
