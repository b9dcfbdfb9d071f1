#include "smart/ReportParser.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTranslator>
#include <QtTest>

namespace
{

const QByteArray AtaHeader =
    "ID# ATTRIBUTE_NAME          FLAG     VALUE WORST THRESH TYPE      UPDATED  WHEN_FAILED RAW_VALUE\n";
const QByteArray AtaRow = "  1 Raw_Read 0x000f   118   099   006    Pre-fail  Always       -       7\n";
const QByteArray AtaSection = "=== START OF READ SMART DATA SECTION ===\n";
const QByteArray NvmeHeader = "SMART/Health Information (NVMe Log 0x02)\n";

report::Markers englishMarkers()
{
    return {{"ID#", "ATTRIBUTE_NAME", "FLAG", "VALUE"}, "SMART/Health Information (NVMe Log"};
}

struct AtaTable : samples::List<SmartAttributeRecord> {
    bool passed = false;
    explicit AtaTable(const QString &text)
    {
        QString copy = text;
        QTextStream stream(&copy);
        passed = report::readAtaTable(stream, englishMarkers(), head, tail);
    }
};

struct NvmeLog : samples::List<NvmeAttributeRecord> {
    bool passed = false;
    explicit NvmeLog(const QString &text)
    {
        QString copy = text;
        QTextStream stream(&copy);
        passed = report::readNvmeLog(stream, englishMarkers(), head, tail);
    }
};

template<std::size_t N>
void putField(QVariantMap *fields, const char *name, const FixedText<N> &field)
{
    fields->insert(QLatin1String(name), field.text());
}

QVariantMap fieldsOf(const SmartAttributeRecord &row)
{
    QVariantMap fields;
#define PUT(name) putField(&fields, #name, row.name)
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
    PUT(AttributeName);
    PUT(Flag);
    PUT(Type);
    PUT(Updated);
    PUT(WhenFailed);
    PUT(RawValue);
#undef PUT
    fields.insert("Id", row.Id);
    fields.insert("Value", row.Value);
    fields.insert("Worst", row.Worst);
    fields.insert("Threshold", row.Threshold);
    return fields;
}

QVariantMap fieldsOf(const NvmeAttributeRecord &row)
{
    QVariantMap fields;
    putField(&fields, "ModelFamily", row.ModelFamily);
    putField(&fields, "ModelNumber", row.ModelNumber);
    putField(&fields, "SerialNumber", row.SerialNumber);
    putField(&fields, "Firmware", row.Firmware);
    putField(&fields, "Capacity", row.Capacity);
    putField(&fields, "LbaSize", row.LbaSize);
    putField(&fields, "LocalTime", row.LocalTime);
    putField(&fields, "MaxTransferSize", row.MaxTransferSize);
    putField(&fields, "Name", row.Name);
    putField(&fields, "Value", row.Value);
    return fields;
}

/// "name=raw" of all rows of the list that the last report filled.
QStringList rowTexts()
{
    QStringList rows;
    for (const auto *row = g_pSmartAttributeHead; row && !g_App.m_bNVMe; row = row->Next)
        rows << row->AttributeName.text() + '=' + row->RawValue.text();
    for (const auto *row = g_pNvmeAttributeHead; row && g_App.m_bNVMe; row = row->Next)
        rows << row->Name.text() + '=' + row->Value.text();
    return rows;
}

void readReport(const QByteArray &bytes)
{
    const QString path = samples::stage(bytes);
    DetectReportKind(path);
    ParseSmartReport(path);
}

/// Translates one text of the main window and no other.
class OneWord : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool mine = qstrcmp(context, "MainWindow") == 0 && qstrcmp(text, "ID#") == 0;
        return mine ? QStringLiteral("Nr.") : QString();
    }
};

} // namespace

class tst_ReportParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void realReports_data();
    void realReports();
    void tornReports_data();
    void tornReports();
    void kind_data();
    void kind();
    void identity_data();
    void identity();
    void probedIdentityEndsAtFirmware();
    void ataField_data();
    void ataField();
    void ataRow_data();
    void ataRow();
    void tableBounds_data();
    void tableBounds();
    void nvmeField_data();
    void nvmeField();
    void nvmeRows();
    void missingFileChangesNothing();
    void emptyFileEmptiesTheKind();
    void missingLinesKeepTheirTexts();
    void otherKindKeepsItsList();
    void rereadReplaces();
    void headersAreTranslated();
    void utf16();
    void noise_data();
    void noise();
};

void tst_ReportParser::realReports_data()
{
    QTest::addColumn<int>("index");
    const QVector<samples::Sample> all = samples::all();
    QVERIFY(all.size() > 50);
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).file.toUtf8().constData()) << i;
}

void tst_ReportParser::realReports()
{
    QFETCH(int, index);
    const samples::Sample sample = samples::all().at(index);
    g_App.m_bNVMe = sample.kind == "ata"; // has to be turned round where the report tells
    const QByteArray bytes = samples::bytesOf(sample.file);
    QVERIFY(!bytes.isEmpty());
    const QString path = samples::stage(bytes);
    DetectReportKind(path);
    QVERIFY(QFile::exists(nativePath(path)));
    QCOMPARE(g_App.m_bNVMe, sample.kind == "nvme");
    ParseSmartReport(path);
    QVERIFY(!QFile::exists(nativePath(path)));

    QCOMPARE(g_bSmartAvailable, sample.passed);
    QCOMPARE(g_strModelName, sample.model);
    QCOMPARE(g_strSerialNumber, sample.serial);
    QCOMPARE(g_strFirmware, sample.firmware);
    QCOMPARE(g_strAtaVersion, sample.ataVersion);
    QCOMPARE(samples::length(g_pSmartAttributeHead), g_App.m_bNVMe ? 0 : sample.rows);
    QCOMPARE(samples::length(g_pNvmeAttributeHead), g_App.m_bNVMe ? sample.rows : 0);
    QString lastRow;
    if (const SmartAttributeRecord *row = g_pSmartAttributeTail) {
        lastRow = QString("%1|%2|%3|%4|%5")
                      .arg(row->Id)
                      .arg(row->AttributeName.text())
                      .arg(row->Value)
                      .arg(row->Threshold)
                      .arg(row->RawValue.text());
        QCOMPARE(row->DeviceModel.text(), sample.model);
        QCOMPARE(row->SerialNumber.text(), sample.serial);
    }
    if (const NvmeAttributeRecord *row = g_pNvmeAttributeTail) {
        lastRow = row->Name.text() + '|' + row->Value.text();
        QCOMPARE(g_pNvmeAttributeHead->ModelNumber.text(), sample.model);
        QCOMPARE(row->Firmware.text(), sample.firmware);
    }
    QCOMPARE(lastRow, sample.lastRow);
}

void tst_ReportParser::tornReports_data()
{
    QTest::addColumn<QString>("file");
    for (const char *file : {"ata-seagate-st3000dm001.txt", "ata-win-intel-ssdsc2kw120h6.txt",
                             "nvme-win-netac-2tb-crlf.txt", "nvme-wdc-sn850-1tb.txt"})
        QTest::newRow(file) << file;
}

// A report cut anywhere has the rows that lie before the cut; the last of them may be cut too.
void tst_ReportParser::tornReports()
{
    QFETCH(QString, file);
    const QByteArray bytes = samples::bytesOf(file);
    readReport(bytes);
    const QStringList whole = rowTexts();
    QVERIFY(whole.size() > 15);
    int before = 0;
    for (int size = 0; size < bytes.size(); size += 13) {
        readReport(bytes.left(size));
        const QStringList rows = rowTexts();
        QVERIFY2(rows.size() >= before && rows.size() <= whole.size(), qPrintable(QString::number(size)));
        for (int i = 0; i + 1 < rows.size(); ++i)
            QCOMPARE(rows.at(i), whole.at(i));
        before = rows.size();
    }
    QCOMPARE(before, whole.size());
}

void tst_ReportParser::kind_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("none leaves NVMe") << QByteArray("hello\n") << true << true;
    QTest::newRow("none leaves ATA") << QByteArray("hello\n") << false << false;
    QTest::newRow("ATA") << AtaSection << true << false;
    QTest::newRow("NVMe") << NvmeHeader << false << true;
    QTest::newRow("later NVMe") << AtaSection + NvmeHeader << false << true;
    QTest::newRow("later ATA") << NvmeHeader + AtaSection << true << false;
    QTest::newRow("other section") << QByteArray("=== START OF SMART DATA SECTION ===\n") << true << true;
    QTest::newRow("case") << AtaSection.toLower() << true << true;
    QTest::newRow("no final newline") << QByteArray("x\nSMART/Health Information (NVMe Log") << false << true;
}

void tst_ReportParser::kind()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, before);
    g_App.m_bNVMe = before;
    DetectReportKind(samples::stage(text));
    QTEST(g_App.m_bNVMe, "after");
}

void tst_ReportParser::identity_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found"); // model|serial|firmware|version, "-" for a missing line
    QTest::newRow("nothing") << ""
                             << "-|-|-|-";
    QTest::newRow("model keeps the last piece") << "Device Model: A:B: C \n"
                                                << "C|-|-|-";
    QTest::newRow("empty parts do not count") << "Device Model: A:::\n"
                                              << "A|-|-|-";
    QTest::newRow("no value yields the caption") << "Serial Number:\n"
                                                 << "-|Serial Number|-|-";
    QTest::newRow("blank value") << "Serial Number:   \n"
                                 << "-||-|-";
    QTest::newRow("second one wins") << "Model Number: A\nDevice Model: B\n"
                                     << "B|-|-|-";
    QTest::newRow("section ends it") << "Serial Number: 1\n" + QString(AtaSection) + "Firmware Version: F\n"
                                     << "-|1|-|-";
    QTest::newRow("ATA version ends it") << "ATA Version is:   8\nSerial Number: 1\n"
                                         << "-|-|-|8";
    QTest::newRow("SATA line ends it too")
        << "SATA Version is:  SATA 3.1, 6.0 Gb/s (current: 6.0 Gb/s)\nSerial Number: 1\n"
        << "-|-|-|6.0 Gb/s)";
    QTest::newRow("within a line") << "xx Firmware Version: F"
                                   << "-|-|F|-";
    QTest::newRow("case") << "device model: A\n"
                          << "-|-|-|-";
    QTest::newRow("model rule comes first") << "Device Model: Serial Number: X\n"
                                            << "X|-|-|-";
}

void tst_ReportParser::identity()
{
    QFETCH(QString, text);
    QTextStream stream(&text);
    const report::Identity got = report::readIdentity(stream);
    const auto shown = [](const std::optional<QString> &value) { return value.value_or("-"); };
    QTEST(shown(got.model) + '|' + shown(got.serial) + '|' + shown(got.firmware) + '|' +
              shown(got.ataVersion),
          "found");
}

void tst_ReportParser::probedIdentityEndsAtFirmware()
{
    QString text = "ATA Version is: 8\nModel Number: M\nFirmware Version: F\nSerial Number: S\n";
    QTextStream stream(&text);
    const report::Identity got = report::readProbedIdentity(stream);
    QCOMPARE(got.model.value_or("-"), QString("M"));
    QCOMPARE(got.firmware.value_or("-"), QString("F"));
    QVERIFY(!got.serial);
    QString cut = AtaSection + "Serial Number: S\n";
    QTextStream section(&cut);
    QVERIFY(!report::readProbedIdentity(section).serial);
}

void tst_ReportParser::ataField_data()
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

void tst_ReportParser::ataField()
{
    QFETCH(QString, lines);
    QFETCH(QString, field);
    const AtaTable table(lines + '\n' + AtaHeader + AtaRow);
    QVERIFY(table.head);
    QVERIFY(fieldsOf(*table.head).contains(field));
    QTEST(fieldsOf(*table.head).value(field).toString(), "value");
}

void tst_ReportParser::ataRow_data()
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

void tst_ReportParser::ataRow()
{
    QFETCH(QString, line);
    const AtaTable table(AtaHeader + line);
    QCOMPARE(samples::length(table.head), 1);
    const QVariantMap fields = fieldsOf(*table.head);
    QStringList got;
    for (const char *name : {"Id", "AttributeName", "Flag", "Value", "Worst", "Threshold", "Type", "Updated",
                             "WhenFailed", "RawValue"})
        got << fields.value(name).toString();
    QTEST(got.join('|'), "fields");
}

void tst_ReportParser::tableBounds_data()
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

void tst_ReportParser::tableBounds()
{
    QFETCH(QString, text);
    const AtaTable table(text);
    QTEST(samples::length(table.head), "rows");
    QTEST(table.passed, "passed");
}

void tst_ReportParser::nvmeField_data()
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
    row("family never", "Model Family: X", "ModelFamily", "");
    row("long", "Model Number: " + QString(300, 'x'), "ModelNumber", QString(127, 'x'));
}

void tst_ReportParser::nvmeField()
{
    QFETCH(QString, lines);
    QFETCH(QString, field);
    const NvmeLog log(lines + '\n' + NvmeHeader + "Temperature: 3 Celsius\n");
    QVERIFY(log.head);
    QVERIFY(fieldsOf(*log.head).contains(field));
    QTEST(fieldsOf(*log.head).value(field).toString(), "value");
}

void tst_ReportParser::nvmeRows()
{
    const NvmeLog log("test result: PASSED\n" + NvmeHeader + "Temperature:    36 Celsius\n" +
                      "Warning  Comp. Temperature Time: 1:2\nAlone\n:::\n   \nEmpty:\n\nPower Cycles: 3\n");
    QStringList rows;
    for (const NvmeAttributeRecord *row = log.head; row; row = row->Next)
        rows << row->Name.text() + '=' + row->Value.text();
    QCOMPARE(rows, QStringList({"Temperature=36 Celsius", "Warning  Comp. Temperature Time=1", "Alone=", "=",
                                "Empty="}));
    QVERIFY(log.passed);
    const NvmeLog longRow(NvmeHeader + QByteArray(300, 'n') + ':' + QByteArray(300, 'v'));
    QCOMPARE(longRow.head->Name.text(), QString(199, 'n'));
    QCOMPARE(longRow.head->Value.text(), QString(199, 'v'));
}

void tst_ReportParser::missingFileChangesNothing()
{
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    const QStringList rows = rowTexts();
    const SmartAttributeRecord *head = g_pSmartAttributeHead;
    QVERIFY(head && g_bSmartAvailable);
    const QString path = tempFile("SMART.txt");
    QFile::remove(nativePath(path));
    DetectReportKind(path);
    ParseSmartReport(path);
    QCOMPARE(g_pSmartAttributeHead, head);
    QCOMPARE(rowTexts(), rows);
    QVERIFY(g_bSmartAvailable);
    QCOMPARE(g_strModelName, QString("ST3250318AS"));
}

void tst_ReportParser::emptyFileEmptiesTheKind()
{
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    readReport(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
    QVERIFY(g_pSmartAttributeHead && g_pNvmeAttributeHead && g_bSmartAvailable);
    readReport(QByteArray());
    QVERIFY(g_App.m_bNVMe);
    QVERIFY(!g_bSmartAvailable);
    QVERIFY(!g_pNvmeAttributeHead && !g_pNvmeAttributeTail);
    QVERIFY(g_pSmartAttributeHead);
    QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
}

void tst_ReportParser::missingLinesKeepTheirTexts()
{
    g_strModelName = "m";
    g_strSerialNumber = "s";
    g_strFirmware = "f";
    g_strAtaVersion = "v";
    readReport("Serial Number: new\n" + AtaSection + AtaHeader + AtaRow);
    QCOMPARE(g_strModelName, QString("m"));
    QCOMPARE(g_strSerialNumber, QString("new"));
    QCOMPARE(g_strFirmware, QString("f"));
    QCOMPARE(g_strAtaVersion, QString("v"));
    // The row has what this report says, not what the disk before it said.
    QCOMPARE(g_pSmartAttributeHead->SerialNumber.text(), QString("new"));
    QVERIFY(g_pSmartAttributeHead->DeviceModel.isEmpty());
    QVERIFY(g_pSmartAttributeHead->AtaVersion.isEmpty());
}

void tst_ReportParser::otherKindKeepsItsList()
{
    readReport(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
    const NvmeAttributeRecord *head = g_pNvmeAttributeHead;
    readReport(samples::bytesOf("ata-seagate-st3250318as.txt"));
    QCOMPARE(g_pNvmeAttributeHead, head);
    QCOMPARE(samples::length(head), 17);
    QVERIFY(!g_App.m_bNVMe);
}

void tst_ReportParser::rereadReplaces()
{
    readReport(samples::bytesOf("ata-transcend-ts120gmts420s.txt"));
    readReport(samples::bytesOf("ata-apple-sm0256f.txt"));
    QCOMPARE(samples::length(g_pSmartAttributeHead), 13);
    QCOMPARE(g_pSmartAttributeTail->DeviceModel.text(), QString("APPLE SSD SM0256F"));
    QVERIFY(!g_pSmartAttributeTail->Next);
}

void tst_ReportParser::headersAreTranslated()
{
    OneWord translator;
    QCoreApplication::installTranslator(&translator);
    readReport("ID# only\n1 a\nNr. Name\n2 b\n");
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(rowTexts(), QStringList("b="));
    QCOMPARE(report::translatedMarkers().ataHeaders, englishMarkers().ataHeaders);
    QCOMPARE(report::translatedMarkers().nvmeHeader, englishMarkers().nvmeHeader);
}

void tst_ReportParser::utf16()
{
    const QString text = QString(AtaSection + AtaHeader + AtaRow + AtaRow).replace("\n", "\r\n");
    QByteArray bytes("\xff\xfe");
    bytes.append(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    g_App.m_bNVMe = true;
    readReport(bytes);
    QCOMPARE(rowTexts(), QStringList({"Raw_Read=7", "Raw_Read=7"}));
}

void tst_ReportParser::noise_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("rows"); // -1: any number up to the limit
    constexpr int Size = 10 * 1024 * 1024;
    QByteArray random(Size, Qt::Uninitialized);
    QRandomGenerator generator(7);
    generator.fillRange(reinterpret_cast<quint32 *>(random.data()), Size / 4);
    QTest::newRow("random bytes") << random << -1;
    QTest::newRow("random table") << AtaHeader + random << -1;
    QTest::newRow("random health log") << NvmeHeader + random << -1;
    QTest::newRow("one line") << QByteArray(Size, 'x') << 0;
    QTest::newRow("one row of blanks and words") << AtaHeader + QByteArray("a ").repeated(Size / 2) << 1;
    QTest::newRow("one row of colons") << NvmeHeader + QByteArray("a:").repeated(Size / 2) << 1;
    QTest::newRow("one long value") << "Device Model:" + QByteArray(Size, ':') + "y\n" + AtaHeader +
                                           AtaRow.repeated(200)
                                    << 200;
    QTest::newRow("NULs") << QByteArray(Size, '\0') + '\n' + AtaHeader + AtaRow << 1;
    QTest::newRow("newlines") << QByteArray(Size, '\n') + AtaHeader + AtaRow << 1;
    QTest::newRow("broken UTF-8") << QByteArray("\xf0\x9f\x98").repeated(Size / 3) + '\n' + AtaHeader + AtaRow
                                  << 1;
    QTest::newRow("rows without end")
        << AtaHeader + QByteArray("1 a\n").repeated(Size / 4) << report::MaxRows;
    QTest::newRow("marker again and again")
        << "data collection:" + QByteArray("data collection:(  ").repeated(Size / 19) + '\n' + AtaHeader +
               AtaRow
        << 1;
}

void tst_ReportParser::noise()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, rows);
    readReport(bytes);
    const int got = rowTexts().size();
    if (rows < 0)
        QVERIFY(got <= report::MaxRows);
    else
        QCOMPARE(got, rows);
    QVERIFY(!QFile::exists(nativePath(tempFile("SMART.txt"))));
}

QTEST_GUILESS_MAIN(tst_ReportParser)
#include "tst_ReportParser.moc"
