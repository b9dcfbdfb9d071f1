// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStringList>

#include "platform/tools/SystemTools.h"

#include <QtTest>

namespace
{

using inventory::Disk;
using inventory::Machine;
using inventory::Volume;

/// The tables are compared byte by byte, as a tool writes them to a file.
QByteArray utf16(const char *text)
{
    QByteArray bytes("\xFF\xFE");
    for (const char *c = text; *c; ++c) {
        bytes.append(*c);
        bytes.append('\0');
    }
    return bytes;
}

Volume volume(char letter, const char *type, const char *fileSystem, quint64 size, quint64 free)
{
    Volume v;
    v.letter = QLatin1Char(letter);
    v.type = QLatin1String(type);
    v.fileSystem = QLatin1String(fileSystem);
    v.size = size;
    v.free = free;
    return v;
}

Volume lockable(char letter, const char *label, const char *version)
{
    Volume v = volume(letter, "fixed", "NTFS", quint64{1} << 33, 0);
    v.label = QLatin1String(label);
    v.hasBitLockerLine = version != nullptr;
    v.bitLocker = QLatin1String(version);
    return v;
}

Disk disk(int number, const char *model, const char *bus, const char *media, quint64 sectors)
{
    Disk d;
    d.number = number;
    d.model = QLatin1String(model);
    d.interfaceType = QLatin1String(bus);
    d.media = QLatin1String(media);
    d.status = QStringLiteral("OK");
    d.sectors = sectors;
    return d;
}

Machine machine()
{
    Machine m;
    m.disks = {disk(1, "Quill Data 40 ATA Device", "IDE", "fixed", 1953525168),
               disk(0, "Tarn Stick USB Device", "USB", "removable", 0)};
    m.volumes = {volume('A', "removable", "", 0, 0), volume('C', "fixed", "NTFS", 135838822400, 55366582272),
                 volume('D', "cdrom", "", 0, 0), volume('E', "cdrom", "UDF", 58601472, 0)};
    m.partitions = {
        {QStringLiteral("Disk #1, Partition #0"), QStringLiteral("GPT: System"), 104857600, 1},
        {QStringLiteral("Disk #1, Partition #1"), QStringLiteral("GPT: Basic Data"), 989359767552, 1},
        {QStringLiteral("Disk #2, Partition #0"), QStringLiteral("GPT: Basic Data"), 1024, 2}};
    return m;
}

QByteArray ask(const Machine &pc, const char *question)
{
    return tools::wmic(pc, QString::fromLatin1(question).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

} // namespace

class tst_SystemTools : public QObject
{
    Q_OBJECT

private slots:
    void wmicMatchesRecordedBytes();
    void wmic_data();
    void wmic();
    void wmicRefuses_data();
    void wmicRefuses();
    void wmicWithoutRows();
    void manageBdeClear();
    void manageBdeSealedDataVolume();
    void manageBdeLine_data();
    void manageBdeLine();
    void tasklistRows();
    void findstrLines_data();
    void findstrLines();
    void taskkillImage_data();
    void taskkillImage();
};

void tst_SystemTools::wmicMatchesRecordedBytes()
{
    Machine pc;
    pc.volumes = {volume('C', "fixed", "NTFS", 136464822272, 42720997376)};
    QCOMPARE(ask(pc, "logicaldisk get size,caption,freespace"),
             utf16("Caption  FreeSpace    Size          \r\n"
                   "C:       42720997376  136464822272  \r\n"
                   "\r\n"));
}

void tst_SystemTools::wmic_data()
{
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("disks, columns by name, rows as they come")
        << QByteArray("diskdrive get Model,InterfaceType,Status,Index")
        << utf16("Index  InterfaceType  Model                     Status  \r\n"
                 "1      IDE            Quill Data 40 ATA Device  OK      \r\n"
                 "0      USB            Tarn Stick USB Device     OK      \r\n"
                 "\r\n");
    QTest::newRow("size in whole cylinders, blank without a medium")
        << QByteArray("DISKDRIVE GET SIZE,DEVICEID")
        << utf16("DeviceID            Size           \r\n"
                 "\\\\.\\PHYSICALDRIVE1  1000202273280  \r\n"
                 "\\\\.\\PHYSICALDRIVE0                 \r\n"
                 "\r\n");
    QTest::newRow("drives without a medium are blank")
        << QByteArray("logicaldisk get size, caption, freespace, filesystem")
        << utf16("Caption  FileSystem  FreeSpace    Size          \r\n"
                 "A:                                              \r\n"
                 "C:       NTFS        55366582272  135838822400  \r\n"
                 "D:                                              \r\n"
                 "E:       UDF         0            58601472      \r\n"
                 "\r\n");
    QTest::newRow("one column") << QByteArray("partition get diskindex")
                                << utf16("DiskIndex  \r\n1          \r\n1          \r\n2          \r\n\r\n");
    QTest::newRow("index within the disk") << QByteArray("partition get diskindex,index")
                                           << utf16("DiskIndex  Index  \r\n"
                                                    "1          0      \r\n"
                                                    "1          1      \r\n"
                                                    "2          0      \r\n"
                                                    "\r\n");
    QTest::newRow("partition names") << QByteArray("partition get name,size,type")
                                     << utf16("Name                   Size          Type             \r\n"
                                              "Disk #1, Partition #0  104857600     GPT: System      \r\n"
                                              "Disk #1, Partition #1  989359767552  GPT: Basic Data  \r\n"
                                              "Disk #2, Partition #0  1024          GPT: Basic Data  \r\n"
                                              "\r\n");
    QTest::newRow("media and partition count") << QByteArray("diskdrive get partitions,mediatype")
                                               << utf16("MediaType              Partitions  \r\n"
                                                        "Fixed hard disk media  2           \r\n"
                                                        "Removable Media        0           \r\n"
                                                        "\r\n");
}

void tst_SystemTools::wmic()
{
    QFETCH(QByteArray, question);
    QFETCH(QByteArray, expected);
    QCOMPARE(ask(machine(), question.constData()), expected);
}

void tst_SystemTools::wmicRefuses_data()
{
    QTest::addColumn<QByteArray>("question");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("unknown alias") << QByteArray("cpu get name");
    QTest::newRow("no verb") << QByteArray("diskdrive");
    QTest::newRow("other verb") << QByteArray("diskdrive delete model");
    QTest::newRow("unknown column") << QByteArray("diskdrive get model,colour");
    QTest::newRow("words behind the columns") << QByteArray("diskdrive get model Doe\\DiskInfo.txt");
}

void tst_SystemTools::wmicRefuses()
{
    QFETCH(QByteArray, question);
    QCOMPARE(ask(machine(), question.constData()), QByteArray());
}

void tst_SystemTools::wmicWithoutRows()
{
    QCOMPARE(ask(Machine(), "diskdrive get model"), QByteArray());
    // A line end in a model makes no row of its own.
    Machine pc;
    pc.disks = {disk(0, "A\r\n1", "IDE", "fixed", 1)};
    QCOMPARE(ask(pc, "diskdrive get model").count('\n'), 3);
}

void tst_SystemTools::manageBdeClear()
{
    Machine pc;
    pc.volumes = {lockable('C', "OS", "None"), lockable('D', "Data", "2.0")};
    QCOMPARE(tools::manageBde(pc, {QStringLiteral("-status"), QStringLiteral("c:")}),
             QByteArray("BitLocker Drive Encryption: Configuration Tool version 10.0.22000\r\n"
                        "Copyright (C) 2013 Microsoft Corporation. All rights reserved.\r\n"
                        "\r\n"
                        "Disk volumes that can be protected with\r\n"
                        "BitLocker Drive Encryption:\r\n"
                        "Volume C: [OS]\r\n"
                        "[OS Volume]\r\n"
                        "\r\n"
                        "    Size:                 8.00 GB\r\n"
                        "    BitLocker Version:    None\r\n"
                        "    Conversion Status:    Fully Decrypted\r\n"
                        "    Percentage Encrypted: 0.0%\r\n"
                        "    Encryption Method:    None\r\n"
                        "    Protection Status:    Protection Off\r\n"
                        "    Lock Status:          Unlocked\r\n"
                        "    Identification Field: None\r\n"
                        "    Key Protectors:       None Found\r\n"
                        "\r\n"
                        "\r\n"));
}

void tst_SystemTools::manageBdeSealedDataVolume()
{
    Machine pc;
    pc.volumes = {lockable('C', "OS", "None"), lockable('D', "Data", "2.0")};
    const QByteArray all = tools::manageBde(pc, {QStringLiteral("-status")});
    QVERIFY(all.contains(
        "None Found\r\n\r\nVolume D: [Data]\r\n[Data Volume]\r\n\r\n    Size:                 8.00"));
    QVERIFY(all.endsWith("    BitLocker Version:    2.0\r\n"
                         "    Conversion Status:    Used Space Only Encrypted\r\n"
                         "    Percentage Encrypted: 100.0%\r\n"
                         "    Encryption Method:    XTS-AES 128\r\n"
                         "    Protection Status:    Protection On\r\n"
                         "    Lock Status:          Unlocked\r\n"
                         "    Identification Field: Unknown\r\n"
                         "    Automatic Unlock:     Disabled\r\n"
                         "    Key Protectors:\r\n"
                         "        Password\r\n"
                         "        Numerical Password\r\n"
                         "\r\n"
                         "\r\n"));
}

void tst_SystemTools::manageBdeLine_data()
{
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("in the clear") << QStringLiteral("C:") << QByteArray("    BitLocker Version:    None\r\n");
    QTest::newRow("sealed") << QStringLiteral("D:") << QByteArray("    BitLocker Version:    2.0\r\n");
    QTest::newRow("no such line") << QStringLiteral("E:")
                                  << QByteArray("    Conversion Status:    Fully Decrypted\r\n");
    QTest::newRow("disc drive") << QStringLiteral("F:")
                                << QByteArray("ERROR: The volume F: could not be opened");
    QTest::newRow("no such volume") << QStringLiteral("Z:")
                                    << QByteArray(
                                           "ERROR: The volume Z: could not be opened by BitLocker.\r\n");
}

void tst_SystemTools::manageBdeLine()
{
    QFETCH(QString, letter);
    QFETCH(QByteArray, line);
    Machine pc;
    pc.volumes = {lockable('C', "OS", "None"), lockable('D', "Data", "2.0"), lockable('E', "Old", nullptr),
                  volume('F', "cdrom", "UDF", 1, 0)};
    const QByteArray answer = tools::manageBde(pc, {QStringLiteral("-status"), letter});
    QVERIFY2(answer.contains(line), answer.constData());
    QCOMPARE(answer.contains("BitLocker Version:"), line.contains("BitLocker Version:"));
    QCOMPARE(answer.count("Volume " + letter.toLatin1()), line.startsWith("ERROR") ? 0 : 1);
}

void tst_SystemTools::tasklistRows()
{
    Machine pc;
    pc.processes = QStringList{QStringLiteral("System"), QStringLiteral("explorer.exe"),
                               QStringLiteral("AVeryLongProgramNameIndeed.exe")};
    const QList<QByteArray> lines = tools::tasklist(pc).split('\n');
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.at(0), QByteArray("\r"));
    QCOMPARE(lines.at(1),
             QByteArray("Image Name                     PID Session Name        Session#    Mem Usage\r"));
    QCOMPARE(lines.at(2),
             QByteArray("========================= ======== ================ =========== ============\r"));
    QVERIFY(lines.at(3).startsWith("System                           4 Services                   0 "));
    QVERIFY(lines.at(4).startsWith("explorer.exe "));
    QVERIFY(lines.at(5).startsWith("AVeryLongProgramNameIndee "));
    for (int i = 3; i < 6; ++i) {
        QCOMPARE(lines.at(i).size(), lines.at(1).size());
        QVERIFY(lines.at(i).endsWith(" K\r"));
    }
    QVERIFY(lines.at(4).mid(26, 8).trimmed().toInt() > 4);
    QVERIFY(lines.at(4).mid(26, 8) != lines.at(5).mid(26, 8));
}

void tst_SystemTools::findstrLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("found") << QStringList{QStringLiteral("Velmora.exe")}
                           << QByteArray("Velmora.exe 12\r\nx Velmora.exe\r\n");
    QTest::newRow("other letter case")
        << QStringList{QStringLiteral("VELMORA.EXE")} << QByteArray("VELMORA.EXE 3\r\n");
    QTest::newRow("absent") << QStringList{QStringLiteral("nothing")} << QByteArray();
    QTest::newRow("no word") << QStringList() << QByteArray();
}

void tst_SystemTools::findstrLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, expected);
    QCOMPARE(tools::findstr(arguments, "Velmora.exe 12\r\nother\r\nVELMORA.EXE 3\r\nx Velmora.exe"),
             expected);
}

void tst_SystemTools::taskkillImage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("image");
    const QString name = QStringLiteral("VelmoraSMART.exe");
    QTest::newRow("image first") << QStringList{QStringLiteral("/IM"), name, QStringLiteral("/F")} << name;
    QTest::newRow("image last") << QStringList{QStringLiteral("/F"), QStringLiteral("/im"), name} << name;
    QTest::newRow("no image") << QStringList{QStringLiteral("/F"), QStringLiteral("/IM")} << QString();
}

void tst_SystemTools::taskkillImage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, image);
    QCOMPARE(tools::taskkillTarget(arguments), image);
}

QTEST_GUILESS_MAIN(tst_SystemTools)
#include "tst_SystemTools.moc"
