// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ReportParser.h"

#include "tests/smart/SampleReports.h"

#include <QVariantMap>
#include <QtTest>

namespace
{

const QByteArray AtaHeader =
    "ID# ATTRIBUTE_NAME          FLAG     VALUE WORST THRESH TYPE      UPDATED  WHEN_FAILED RAW_VALUE\n";
const QByteArray AtaRow = "  1 Raw_Read 0x000f   118   099   006    Pre-fail  Always       -       7\n";
const QByteArray NvmeHeader = "SMART/Health Information (NVMe Log 0x02)\n";

SmartTable ataTable(QString text)
{
    QTextStream stream(&text);
    return report::readAtaTable(stream);
}

NvmeTable nvmeLog(QString text)
{
    QTextStream stream(&text);
    return report::readNvmeLog(stream);
}

template<std::size_t N>
void putField(QVariantMap *fields, const char *name, const FixedText<N> &field)
{
    fields->insert(QLatin1String(name), field.text());
}

#define PUT(name) putField(&fields, #name, from.name)
QVariantMap fieldsOf(const SmartIdentity &from)
{
    QVariantMap fields;
    PUT(ModelFamily);
    PUT(DeviceModel);
    PUT(SerialNumber);
    PUT(Wwn);
    PUT(Firmware);
    PUT(UserCapacity);
    PUT(SectorSize);
    PUT(RotationRate);
    PUT(AtaVersion);
    PUT(SataVersion);
    PUT(LocalTime);
    PUT(SmartSupport);
    PUT(OfflineStatus);
    PUT(SelfTestStatus);
    PUT(OfflineTotalTime);
    PUT(ShortPollTime);
    PUT(ExtendedPollTime);
    PUT(ConveyancePollTime);
    return fields;
}

QVariantMap fieldsOf(const SmartAttributeRecord &from)
{
    QVariantMap fields;
    PUT(AttributeName);
    PUT(Flag);
    PUT(Type);
    PUT(Updated);
    PUT(WhenFailed);
    PUT(RawValue);
    fields.insert("Id", from.Id);
    fields.insert("Value", from.Value);
    fields.insert("Worst", from.Worst);
    fields.insert("Threshold", from.Threshold);
    return fields;
}

QVariantMap fieldsOf(const NvmeIdentity &from)
{
    QVariantMap fields;
    PUT(ModelNumber);
    PUT(SerialNumber);
    PUT(Firmware);
    PUT(Capacity);
    PUT(LbaSize);
    PUT(LocalTime);
    PUT(MaxTransferSize);
    return fields;
}
#undef PUT

} // namespace

class tst_ReportLines : public QObject
{
    Q_OBJECT

private slots:
    void ataField_data();
    void ataField();
    void ataRow_data();
    void ataRow();
    void headLineInTheTable();
    void tableBounds_data();
    void tableBounds();
    void nvmeField_data();
    void nvmeField();
    void nvmeRows();
};

void tst_ReportLines::ataField_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    const QString poll = "recommended polling time: \t ";
    const auto row = [](const char *name, const QString &lines, const char *field, const QString &value) {
        QTest::newRow(name) << lines << field << value;
    };
    row("family", "Model Family:     Brand \"X\"", "ModelFamily", "Brand \"X\"");
    row("model", "Device Model:     D 1", "DeviceModel", "D 1");
    row("model of the other kind", "Model Number:     D 2", "DeviceModel", "D 2");
    row("WWN", "Device Model: D\nLU WWN Device Id: 5 0014ee 0ae6a92f8", "Wwn", "5 0014ee 0ae6a92f8");
    row("WWN without a model", "LU WWN Device Id: 5 0014ee 0ae6a92f8", "Wwn", "");
    row("firmware", "Firmware Version: 80.00A80", "Firmware", "80.00A80");
    row("capacity", "User Capacity:    500,107,862,016 bytes [500 GB]", "UserCapacity", "500 GB");
    row("capacity without brackets is cut to its field", "User Capacity:    500,107,862,016 bytes",
        "UserCapacity", "User Capacity:    500,107,862,0");
    row("sector sizes", "Sector Sizes:     512 bytes logical, 4096 bytes physical", "SectorSize",
        "512 bytes ");
    row("sector size", "Sector Size:      512 bytes logical/physical", "SectorSize", "512 bytes /physical");
    row("rotation", "Rotation Rate:    7200 rpm", "RotationRate", "7200 rpm");
    row("ATA version", "ATA Version is:   ACS-3 (minor revision: 4)", "AtaVersion", "4)");
    row("ATA version indented", "  ATA Version is:   ACS-3", "AtaVersion", "");
    row("SATA line is no ATA line", "SATA Version is:  SATA 2.6", "AtaVersion", "");
    row("SATA version", "SATA Version is:  SATA 3.1, 6.0 Gb/s (current: 6.0 Gb/s)", "SataVersion",
        "6.0 Gb/s");
    row("SATA version loses all brackets", "SATA Version is:  a) b)", "SataVersion", "a b");
    row("local time keeps colons", "Local Time is:    Sat May 18 10:49:11 2019 CST", "LocalTime",
        "Sat May 18 10:49:11 2019 CST");
    row("local time not at the start", "x Local Time is:    now", "LocalTime", "");
    row("local time without a time", "Local Time is:", "LocalTime", "");
    row("support, cut to its field", "SMART support is: Available - device has SMART capability.",
        "SmartSupport", "Available - device has SMART ca");
    row("support, the later line wins",
        "SMART support is: Available - device has SMART capability.\nSMART support is: Enabled",
        "SmartSupport", "Enabled");
    row("offline never", "Offline data collection status:  (0x00)\n\t\twas never started.", "OfflineStatus",
        "Never Started");
    row("offline done", "\t\twas completed without error.", "OfflineStatus", "Successfully Completed");
    row("offline in the status line", "Offline data collection status: was never started.", "OfflineStatus",
        "");
    row("self-test done", "Self-test execution status:      (   0)\tThe previous self-test routine completed",
        "SelfTestStatus", "Successfully Completed");
    row("self-test running", "Self-test execution status:      ( 249)\tSelf-test routine in progress...",
        "SelfTestStatus", "");
    row("self-test stays", "Self-test execution status: completed\nSelf-test execution status: in progress",
        "SelfTestStatus", "Successfully Completed");
    row("offline time", "data collection: \t\t(  120) seconds.", "OfflineTotalTime", "120 seconds");
    row("offline time of four digits", "data collection: \t\t( 4680) seconds.", "OfflineTotalTime",
        "( 4680 seconds");
    row("offline time without a time", "data collection:", "OfflineTotalTime", "");
    row("first poll", poll + "(   2) minutes.", "ShortPollTime", "2 minutes");
    row("first poll, two digits", poll + "(  10) minutes.", "ShortPollTime", "10 minutes");
    row("first poll, three digits", poll + "( 255) minutes.", "ShortPollTime", "255 minutes");
    row("second poll", poll + "(   2) minutes.\n" + poll + "(   2) minutes.", "ExtendedPollTime",
        " 2 minutes");
    row("second poll, three digits", poll + "(   1) minutes.\n" + poll + "( 255) minutes.",
        "ExtendedPollTime", "255 minutes");
    row("third poll", poll + "1\n" + poll + "2\n" + poll + "(   5) minutes.", "ConveyancePollTime",
        "5 minutes");
    row("third poll, two digits", poll + "1\n" + poll + "2\n" + poll + "(  10) minutes.",
        "ConveyancePollTime", "(  10 minutes");
    row("fourth poll", poll + "1\n" + poll + "2\n" + poll + "3\n" + poll + "4", "ConveyancePollTime", "3");
    row("no conveyance", poll + "1\n" + poll + "2", "ConveyancePollTime", "");
    row("first rule takes the line", "Model Family: Serial Number: X", "SerialNumber", "");
    row("long text", "Model Family: " + QString(500, 'm'), "ModelFamily", QString(127, 'm'));
    row("long text is cut at a character", "Model Family: " + QString(500, QChar(0xe9)), "ModelFamily",
        QString(63, QChar(0xe9)));
}

void tst_ReportLines::ataField()
{
    QFETCH(QString, lines);
    QFETCH(QString, field);
    const SmartTable table = ataTable(lines + '\n' + AtaHeader + AtaRow);
    QCOMPARE(samples::length(table.rows), 1);
    QVERIFY(fieldsOf(table.drive).contains(field));
    QTEST(fieldsOf(table.drive).value(field).toString(), "value");
}

void tst_ReportLines::ataRow_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("fields"); // in column order
    QTest::newRow("whole")
        << "  5 Reallocated_Sector_Ct   0x0033   100   099   036    Pre-fail  Always       -  12"
        << "5|Reallocated_Sector_Ct|0x0033|100|99|36|Pre-fail|Always|-|12";
    QTest::newRow("raw with more words")
        << "194 Temperature_Celsius 0x22 36 45 0 Old_age Always - 36 (Min/Max 20/45)"
        << "194|Temperature_Celsius|0x22|36|45|0|Old_age|Always|-|36";
    QTest::newRow("hours with minutes") << "9 P 0x32 1 2 3 Old_age Always - 12345h+06m+10.000s"
                                        << "9|P|0x32|1|2|3|Old_age|Always|-|12345h+06m+10.000s";
    QTest::newRow("no value") << "9 P 0x32 --- --- --- Old_age Offline - 1"
                              << "9|P|0x32|0|0|0|Old_age|Offline|-|1";
    QTest::newRow("name with a blank shifts") << "9 P Q 0x32 1 2 3 Old_age Always - 7"
                                              << "9|P|Q|0|1|2|3|Old_age|Always|-";
    QTest::newRow("short") << "9 P"
                           << "9|P||0|0|0||||";
    QTest::newRow("no number") << "x P"
                               << "0|P||0|0|0||||";
    QTest::newRow("numbers too large") << "4294967296 P f 4294967295 -1 99999999999999999999"
                                       << "0|P|f|4294967295|0|0||||";
    QTest::newRow("tab is no separator") << "9\tP q"
                                         << "0|q||0|0|0||||";
}

void tst_ReportLines::ataRow()
{
    QFETCH(QString, line);
    const SmartTable table = ataTable(AtaHeader + line);
    QCOMPARE(samples::length(table.rows), 1);
    const QVariantMap fields = fieldsOf(*table.rows.head);
    QStringList got;
    for (const char *name : {"Id", "AttributeName", "Flag", "Value", "Worst", "Threshold", "Type", "Updated",
                             "WhenFailed", "RawValue"})
        got << fields.value(name).toString();
    QTEST(got.join('|'), "fields");
}

// Lines of the report's head are also looked for in the first row of the table, but in no later one.
void tst_ReportLines::headLineInTheTable()
{
    const QByteArray row = "9 Serial Number: X\n";
    const QString serial = "Serial Number: S\n";
    QCOMPARE(ataTable(serial + AtaHeader + AtaRow + row).drive.SerialNumber.text(), QString("S"));
    QCOMPARE(ataTable(serial + AtaHeader + row + AtaRow).drive.SerialNumber.text(), QString("X"));
    QVERIFY(ataTable(serial + AtaHeader).drive.SerialNumber.isEmpty());
}

void tst_ReportLines::tableBounds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("passed");
    QTest::newRow("no header") << "PASSED\n" + QString(AtaRow) << 0 << true;
    QTest::newRow("header is no row") << QString(AtaHeader) << 0 << false;
    QTest::newRow("ID#") << "ID#\n1 a\n" << 1 << false;
    QTest::newRow("ATTRIBUTE_NAME") << "ATTRIBUTE_NAME\n1 a\n" << 1 << false;
    QTest::newRow("FLAG") << "xFLAGx\n1 a\n" << 1 << false;
    QTest::newRow("VALUE") << "VALUE\n1 a\n" << 1 << false;
    QTest::newRow("empty line ends it") << "ID#\n1 a\n\n2 b\n" << 1 << false;
    QTest::newRow("empty line ends it at once") << "ID#\n\n2 b\n" << 0 << false;
    QTest::newRow("blanks go on") << "ID#\n1 a\n   \n2 b\n" << 2 << false;
    QTest::newRow("header again is a row") << "ID#\n1 a\nID#\n" << 2 << false;
    QTest::newRow("PASSED in a model") << "Device Model: PASSED 1\nID#\n1 a\n" << 1 << true;
    QTest::newRow("PASSED in the header") << "ID# PASSED\n1 a\n" << 1 << false;
    QTest::newRow("PASSED in the table") << "ID#\n1 PASSED\n" << 1 << false;
    QTest::newRow("PASSED behind the table") << "ID#\n1 a\n\nPASSED\n" << 1 << false;
    QTest::newRow("FAILED") << "test result: FAILED!\nID#\n1 a\n" << 1 << false;
    QTest::newRow("case") << "test result: passed\nid#\n1 a\n" << 0 << false;
}

void tst_ReportLines::tableBounds()
{
    QFETCH(QString, text);
    const SmartTable table = ataTable(text);
    QTEST(samples::length(table.rows), "rows");
    QTEST(table.passed, "passed");
}

void tst_ReportLines::nvmeField_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QString &lines, const char *field, const QString &value) {
        QTest::newRow(name) << lines << field << value;
    };
    row("model", "Model Number:                       Disk 1", "ModelNumber", "Disk 1");
    row("no ATA model here", "Device Model: D", "ModelNumber", "");
    row("serial", "Serial Number:                      S1", "SerialNumber", "S1");
    row("firmware", "Firmware Version:                   F", "Firmware", "F");
    row("capacity", "Namespace 1 Size/Capacity:          500,107,862,016 [500 GB]", "Capacity", "500 GB");
    row("LBA", "Namespace 1 Formatted LBA Size:     512", "LbaSize", "512 bytes");
    row("time", "Local Time is:                      Tue Jul  6 01:02:03 2021 W", "LocalTime",
        "Tue Jul  6 01:02:03 2021 W");
    row("transfer", "Maximum Data Transfer Size:         512 Pages", "MaxTransferSize", "512 Pages");
    row("long", "Model Number: " + QString(300, 'x'), "ModelNumber", QString(127, 'x'));
}

void tst_ReportLines::nvmeField()
{
    QFETCH(QString, lines);
    QFETCH(QString, field);
    const NvmeTable log = nvmeLog(lines + '\n' + NvmeHeader + "Temperature: 3 Celsius\n");
    QCOMPARE(samples::length(log.rows), 1);
    QVERIFY(fieldsOf(log.drive).contains(field));
    QTEST(fieldsOf(log.drive).value(field).toString(), "value");
}

void tst_ReportLines::nvmeRows()
{
    const NvmeTable log =
        nvmeLog("test result: PASSED\n" + NvmeHeader + "Temperature:    36 Celsius\n" +
                "Warning  Comp. Temperature Time: 1:2\nAlone\n:::\n   \nEmpty:\n\nPower Cycles: 3\n");
    QStringList rows;
    for (const NvmeAttributeRecord &row : log.rows)
        rows << row.Name.text() + '=' + row.Value.text();
    QCOMPARE(rows, QStringList({"Temperature=36 Celsius", "Warning  Comp. Temperature Time=1", "Alone=", "=",
                                "Empty="}));
    QVERIFY(log.passed);
    const NvmeTable longRow = nvmeLog(NvmeHeader + QByteArray(300, 'n') + ':' + QByteArray(300, 'v'));
    QCOMPARE(longRow.rows.head->Name.text(), QString(199, 'n'));
    QCOMPARE(longRow.rows.head->Value.text(), QString(199, 'v'));
}

QTEST_GUILESS_MAIN(tst_ReportLines)
#include "tst_ReportLines.moc"
