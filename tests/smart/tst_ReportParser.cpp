// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/ReportParser.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QTextStream>
#include <QtTest>

namespace
{

const QByteArray AtaHeader =
    "ID# ATTRIBUTE_NAME          FLAG     VALUE WORST THRESH TYPE      UPDATED  WHEN_FAILED RAW_VALUE\n";
const QByteArray AtaRow = "  1 Raw_Read 0x000f   118   099   006    Pre-fail  Always       -       7\n";
const QByteArray AtaSection = "=== START OF READ SMART DATA SECTION ===\n";
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

/// "name=raw" of all rows of the list that the last report filled.
QStringList rowTexts()
{
    QStringList rows;
    for (const NvmeAttributeRecord &row : g_nvmeTable.rows)
        rows << row.Name.text() + '=' + row.Value.text();
    if (g_App.m_bNVMe)
        return rows;
    rows.clear();
    for (const SmartAttributeRecord &row : g_smartTable.rows)
        rows << row.AttributeName.text() + '=' + row.RawValue.text();
    return rows;
}

template<auto Field, typename Drive>
QString text(const Drive &drive)
{
    return (drive.*Field).text();
}

} // namespace

class tst_ReportParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void kinds()
    {
        const auto kind = [](QString text) {
            QTextStream stream(&text);
            return report::detectKind(stream);
        };
        QVERIFY(!kind("=== START OF SMART DATA SECTION ===\n"));
        QCOMPARE(kind(AtaSection), std::optional<bool>(false));
        QCOMPARE(kind(AtaSection + NvmeHeader), std::optional<bool>(true));
        QCOMPARE(kind(NvmeHeader + AtaSection), std::optional<bool>(false));
    }

    /// "model|serial|firmware|version", "-" for a missing line; then the same of the shorter reading.
    void identity()
    {
        const auto row = [](const char *name, QString text, const char *found, const char *probed) {
            const auto shown = [&text](report::Identity (*read)(QTextStream &)) {
                QTextStream stream(&text);
                const report::Identity got = read(stream);
                return got.model.value_or("-") + '|' + got.serial.value_or("-") + '|' +
                       got.firmware.value_or("-") + '|' + got.ataVersion.value_or("-");
            };
            QVERIFY2(shown(report::readIdentity) == found, name);
            QVERIFY2(shown(report::readProbedIdentity) == probed, name);
        };
        row("last piece", "Device Model: A:B: C \n", "C|-|-|-", "C|-|-|-");
        row("empty parts do not count", "Device Model: A:::\n", "A|-|-|-", "A|-|-|-");
        row("no value yields the caption", "Serial Number:\n", "-|Serial Number|-|-", "-|Serial Number|-|-");
        row("second one wins", "Model Number: A\nDevice Model: B\n", "B|-|-|-", "B|-|-|-");
        row("section ends it", "Serial Number: 1\n" + AtaSection + "Model Number: M\n", "-|1|-|-", "-|1|-|-");
        row("ATA version or firmware ends it",
            "Firmware Version: F\nSerial Number: 1\nATA Version is: 8\nModel Number: M\n", "-|1|F|8",
            "-|-|F|-");
        row("SATA line is one of ATA", "SATA Version is:  SATA 3.1 (current: 6.0 Gb/s)\nModel Number: M\n",
            "-|-|-|6.0 Gb/s)", "M|-|-|6.0 Gb/s)");
        row("model rule comes first", "Device Model: Serial Number: X\n", "X|-|-|-", "X|-|-|-");
    }

    void ataFields()
    {
        using A = SmartIdentity;
        const QString poll = "recommended polling time: \t ";
        const struct {
            QString lines;
            QString (*field)(const A &drive);
            QString value;
        } rows[] = {
            {"Model Number:     D 2", text<&A::DeviceModel>, "D 2"},
            {"Device Model: D\nLU WWN Device Id: 5 0014ee", text<&A::Wwn>, "5 0014ee"},
            {"LU WWN Device Id: 5 0014ee", text<&A::Wwn>, ""},
            // Without brackets it is cut to its field.
            {"User Capacity:    500,107,862,016 bytes", text<&A::UserCapacity>,
             "User Capacity:    500,107,862,0"},
            {"Sector Sizes:     512 bytes logical, 4096 bytes physical", text<&A::SectorSize>, "512 bytes "},
            {"Sector Size:      512 bytes logical/physical", text<&A::SectorSize>, "512 bytes /physical"},
            {"ATA Version is:   ACS-3 (minor revision: 4)", text<&A::AtaVersion>, "4)"},
            {"SATA Version is:  SATA 3.1 (current: 6.0 Gb/s)", text<&A::AtaVersion>, ""},
            {"SATA Version is:  SATA 3.1 (current: 6.0 Gb/s)", text<&A::SataVersion>, "6.0 Gb/s"},
            {"Local Time is:    Sat May 18 10:49:11 2019 CST", text<&A::LocalTime>,
             "Sat May 18 10:49:11 2019 CST"},
            {"Local Time is:", text<&A::LocalTime>, ""},
            {"SMART support is: Available\nSMART support is: Enabled", text<&A::SmartSupport>, "Enabled"},
            {"\t\twas never started.", text<&A::OfflineStatus>, "Never Started"},
            {"\t\twas completed without error.", text<&A::OfflineStatus>, "Successfully Completed"},
            {"Offline data collection status: was never started.", text<&A::OfflineStatus>, ""},
            {"Self-test execution status: completed\nSelf-test execution status: in progress",
             text<&A::SelfTestStatus>, "Successfully Completed"},
            {"Self-test execution status: ( 249)\tin progress...", text<&A::SelfTestStatus>, ""},
            {"data collection: \t\t(  120) seconds.", text<&A::OfflineTotalTime>, "120 seconds"},
            {"data collection: \t\t( 4680) seconds.", text<&A::OfflineTotalTime>, "( 4680 seconds"},
            // The three polling times look alike and go by their order.
            {poll + "(   2) minutes.", text<&A::ShortPollTime>, "2 minutes"},
            {poll + "(  10) minutes.", text<&A::ShortPollTime>, "10 minutes"},
            {poll + "( 255) minutes.", text<&A::ShortPollTime>, "255 minutes"},
            {poll + "1\n" + poll + "(   2) minutes.", text<&A::ExtendedPollTime>, " 2 minutes"},
            {poll + "1\n" + poll + "( 255) minutes.", text<&A::ExtendedPollTime>, "255 minutes"},
            {poll + "1\n" + poll + "2\n" + poll + "(   5) minutes.", text<&A::ConveyancePollTime>,
             "5 minutes"},
            {poll + "1\n" + poll + "2\n" + poll + "(  10) minutes.\n" + poll + "4",
             text<&A::ConveyancePollTime>, "(  10 minutes"},
            {"Model Family: Serial Number: X", text<&A::SerialNumber>, ""},
            {"Model Family: " + QString(500, QChar(0xe9)), text<&A::ModelFamily>, QString(63, QChar(0xe9))},
        };
        for (const auto &row : rows) {
            const SmartTable table = ataTable(row.lines + '\n' + AtaHeader + AtaRow);
            QCOMPARE(samples::length(table.rows), 1);
            QCOMPARE(row.lines + " -> " + row.field(table.drive), row.lines + " -> " + row.value);
        }
    }

    void ataRow()
    {
        const auto row = [](const QByteArray &line, const char *fields) { // in column order
            const SmartTable table = ataTable(AtaHeader + line);
            QCOMPARE(samples::length(table.rows), 1);
            const SmartAttributeRecord &read = *table.rows.head;
            const QStringList got{QString::number(read.Id),
                                  read.AttributeName.text(),
                                  read.Flag.text(),
                                  QString::number(read.Value),
                                  QString::number(read.Worst),
                                  QString::number(read.Threshold),
                                  read.Type.text(),
                                  read.Updated.text(),
                                  read.WhenFailed.text(),
                                  read.RawValue.text()};
            QCOMPARE(got.join('|'), QString(fields));
        };
        row("  5 Reallocated_Sector_Ct   0x0033   100   099   036    Pre-fail  Always       -  12 (Min/Max "
            "20/45)",
            "5|Reallocated_Sector_Ct|0x0033|100|99|36|Pre-fail|Always|-|12");
        row("9 P", "9|P||0|0|0||||");
        row("4294967296 P f 4294967295 -1 ---", "0|P|f|4294967295|0|0||||");
        row("9\tP q", "0|q||0|0|0||||");
    }

    // Lines of the report's head are also looked for in the first row of the table, but in no later one.
    void headLineInTheTable()
    {
        const QByteArray row = "9 Serial Number: X\n";
        const QString serial = "Serial Number: S\n";
        QCOMPARE(ataTable(serial + AtaHeader + AtaRow + row).drive.SerialNumber.text(), QString("S"));
        QCOMPARE(ataTable(serial + AtaHeader + row + AtaRow).drive.SerialNumber.text(), QString("X"));
        QVERIFY(ataTable(serial + AtaHeader).drive.SerialNumber.isEmpty());
    }

    void nvmeRows()
    {
        g_nvmeTable = nvmeLog("test result: PASSED\n" + NvmeHeader + "Temperature:    36 Celsius\n" +
                              "Warning  Comp. Temperature Time: 1:2\nAlone\n:::\n   \nEmpty:\n" +
                              QByteArray(300, 'n') + ':' + QByteArray(300, 'v') + "\n\nPower Cycles: 3\n");
        g_App.m_bNVMe = true;
        QCOMPARE(rowTexts(),
                 QStringList({"Temperature=36 Celsius", "Warning  Comp. Temperature Time=1", "Alone=", "=",
                              "Empty=", QString(199, 'n') + '=' + QString(199, 'v')}));
        QVERIFY(g_nvmeTable.passed);
    }

    void tableBounds()
    {
        const auto row = [](const QByteArray &text, int rows, bool passed) {
            const SmartTable table = ataTable(text);
            QVERIFY2(samples::length(table.rows) == rows && table.passed == passed, text);
        };
        row("PASSED\n" + AtaRow, 0, true);
        row(AtaHeader, 0, false);
        row("xFLAGx\n1 a\n", 1, false);
        row("ID#\n1 a\n\n2 b\n", 1, false);
        row("ID#\n1 a\n   \n2 b\n", 2, false);
        row("ID#\n1 a\nID#\n", 2, false);
        row("Device Model: PASSED 1\nID#\n1 a\n", 1, true);
        row("ID# PASSED\n1 a\n", 1, false);
        row("ID#\n1 PASSED\n", 1, false);
        row("test result: passed\nid#\n1 a\n", 0, false);
    }

    void verdict()
    {
        // `changes` are "old text>new text|…".
        const auto row = [](const char *name, const char *file, const char *changes, DriveVerdict verdict) {
            QByteArray report = samples::bytesOf(file);
            for (const QByteArray &change : QByteArray(changes).split('|')) {
                if (!change.isEmpty())
                    report.replace(change.split('>')[0], change.split('>')[1]);
            }
            samples::forget();
            samples::read(report);
            QVERIFY2(g_driveVerdict == verdict, name);
        };
        using V = DriveVerdict;
        const char *ata = "ata-seagate-st31500341as-failed.txt";
        const char *nvme = "nvme-wdc-sn850-1tb.txt";
        const char *sas = "sas-hgst-hus726040al5210.txt";
        row("ATA fails", ata, "FAILING_NOW>-", V::Failed);
        row("ATA, by its attribute alone", ata, "FAILED!>PASSED", V::Failed);
        row("ATA, of the past", ata, "FAILED!>PASSED|FAILING_NOW>In_the_past", V::Passed);
        row("ATA, of old age", "ata-marginal-attribute-H-only.txt", "", V::Passed);
        row("ATA does not know", ata, "FAILED!>UNKNOWN!|FAILING_NOW>-", V::NotTold);
        row("NVMe fails", nvme, "PASSED>FAILED!", V::Failed);
        row("NVMe is hot alone", nvme, "PASSED>FAILED!|0x00>0x02", V::Passed);
        row("NVMe, by its warning alone", nvme, "0x00>0x06", V::Failed);
        row("NVMe without the line", "nvme-win-toshiba-thnsn5512.txt", "", V::Passed);
        row("SCSI passes", sas, "", V::Passed);
        row("SCSI fails", sas, "Status: OK>Status: FAILURE PREDICTION THRESHOLD EXCEEDED [asc=5d]",
            V::Failed);
        row("SCSI is hot", sas, "Status: OK>Status: WARNING - SPECIFIED TEMPERATURE EXCEEDED", V::Passed);
        row("no SMART", "err-lacks-smart-capability.txt", "", V::NotTold);
    }

    // A report that is cut anywhere has the rows before the cut. The last of them may be cut, too.
    void tornReports()
    {
        for (const char *file : {"ata-seagate-st3000dm001.txt", "nvme-win-netac-2tb-crlf.txt"}) {
            const QByteArray bytes = samples::bytesOf(file);
            samples::read(bytes);
            const QStringList whole = rowTexts();
            QVERIFY(whole.size() > 15);
            int before = 0;
            for (int size = 0; size < bytes.size(); size += 13) {
                samples::read(bytes.left(size));
                const QStringList rows = rowTexts();
                QVERIFY2(rows.size() >= before && rows.size() <= whole.size(),
                         qUtf8Printable(QString::number(size)));
                QCOMPARE(rows.mid(0, rows.size() - 1), whole.mid(0, qMax(0, rows.size() - 1)));
                before = rows.size();
            }
            QCOMPARE(before, whole.size());
        }
    }

    void missingFileChangesNothing()
    {
        samples::read(samples::bytesOf("ata-seagate-st3250318as.txt"));
        const SmartAttributeRecord *head = g_pSmartAttributeHead;
        QVERIFY(head && g_bSmartAvailable);
        takeReportIn(tempFile("missing.txt"));
        QCOMPARE(g_pSmartAttributeHead, head);
        QVERIFY(g_bSmartAvailable);
        QCOMPARE(g_strModelName, QString("ST3250318AS"));
    }

    void eachKindHasItsList()
    {
        samples::read(samples::bytesOf("ata-micron-m550.txt"));
        samples::read(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
        const NvmeAttributeRecord *log = g_pNvmeAttributeHead;
        QCOMPARE(samples::length(g_smartTable.rows), 23);
        samples::read(samples::bytesOf("ata-seagate-st3250318as.txt"));
        QCOMPARE(samples::length(g_smartTable.rows), 22);
        QCOMPARE(g_pNvmeAttributeHead, log);
        // An empty file empties the list of the kind that was read last.
        samples::read(QByteArray());
        QVERIFY(!g_App.m_bNVMe && !g_bSmartAvailable);
        QVERIFY(!g_pSmartAttributeHead && !g_pSmartAttributeTail);
        QCOMPARE(samples::length(g_nvmeTable.rows), 17);
    }

    void missingLinesKeepTheirTexts()
    {
        g_strModelName = "m";
        g_strSerialNumber = "s";
        g_strFirmware = "f";
        g_strAtaVersion = "v";
        samples::read("Serial Number: new\n" + AtaSection + AtaHeader + AtaRow);
        QCOMPARE(g_strModelName + g_strSerialNumber + g_strFirmware + g_strAtaVersion, QString("mnewfv"));
        // The texts are those of this report, not of the disk before.
        QCOMPARE(g_smartTable.drive.SerialNumber.text(), QString("new"));
        QVERIFY(g_smartTable.drive.DeviceModel.isEmpty());
    }

    /// 10 MB each.
    void noise()
    {
        const auto row = [](const QByteArray &bytes, int rows) {
            samples::forget();
            samples::read(bytes);
            QCOMPARE(rowTexts().size(), rows);
        };
        constexpr int Size = 10 * 1024 * 1024;
        row(AtaHeader + QByteArray("a ").repeated(Size / 2), 1);
        row(NvmeHeader + QByteArray("a:").repeated(Size / 2), 1);
        row("Device Model:" + QByteArray(Size, ':') + "y\n" + AtaHeader + AtaRow, 1);
        row(AtaHeader + QByteArray("1 a\n").repeated(Size / 4), report::MaxRows);
    }
};

QTEST_GUILESS_MAIN(tst_ReportParser)
#include "tst_ReportParser.moc"
