// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeRows.h"
#include "smart/ReportParser.h"
#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/FakePlatform.h"

#include <QTextStream>

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

/// "name=raw" of all rows of the list that the last report filled.
QStringList rowTexts()
{
    QStringList rows;
    if (g_App.m_bNVMe) {
        for (const NvmeAttributeRecord &row : g_nvmeTable.rows)
            rows << row.Name.text() + '=' + row.Value.text();
        return rows;
    }
    for (const SmartAttributeRecord &row : g_smartTable.rows)
        rows << row.AttributeName.text() + '=' + row.RawValue.text();
    return rows;
}

/// The texts of these fields.
template<auto... Fields, typename Drive>
QString joined(const Drive &drive)
{
    return QStringList{(drive.*Fields).text()...}.join('|');
}

} // namespace

/// Real reports, and what they do not show.
class tst_ReportParser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }

    void reports_data()
    {
        QTest::addColumn<QStringList>("expected");
        for (const QString &line : QString::fromUtf8(samples::bytesOf("expected.tsv")).split('\n')) {
            if (!line.startsWith('#') && !line.isEmpty())
                QTest::newRow(qPrintable(line.section('\t', 0, 0))) << line.split('\t');
        }
    }

    /// All that is made of each real report, against tests/data/smart/expected.tsv.
    void reports()
    {
        QFETCH(QStringList, expected);
        const QByteArray bytes = samples::bytesOf(expected[0]);
        const QString path = samples::stage(bytes);
        const std::optional<bool> kind = DetectReportKind(path);
        g_App.m_bNVMe = expected[1] == "ata"; // wrong at first; the report has to correct it
        takeReportIn(path);
        QVERIFY(!QFile::exists(nativePath(path)));
        const bool nvme = g_App.m_bNVMe;
        QCOMPARE(nvme, kind.value_or(false));

        QVERIFY(nvme ? !g_pSmartAttributeHead : !g_pNvmeAttributeHead);
        const auto rows = nvme ? ::nvmeRows(g_nvmeTable.rows) : ataRows(g_smartTable.rows);
        const bool passed = std::exchange(g_bSmartAvailable, true);
        rateHealth();
        ratePerformance();
        if (!nvme)
            updateLifeFigures();
        const auto n = [](auto number) { return QString::number(number); };
        const QString fields = nvme ? fieldsOf(g_nvmeTable.drive) : fieldsOf(g_smartTable.drive);
        QStringList made{expected[0], kind ? nvme ? "nvme" : "ata" : "-", n(rows.size()), passed ? "1" : "0"};
        made << g_strModelName << g_strSerialNumber << g_strFirmware << g_strAtaVersion;
        made << n(GetDiskTemperature()) << (g_bHealthKnown ? n(g_nHealthPercent) : "-");
        made << n(g_nPerformancePercent) << n(g_nDiskLifeDays) << n(g_nPowerOnDays) << n(g_nPowerOnRestHours);
        made << n(g_nStartStopCount) << lastShown(rows);
        made << verdictWord() << fields;
        QCOMPARE(made, expected);

        QTextStream again(bytes);
        const report::Identity probed = report::readProbedIdentity(again);
        QCOMPARE((QStringList{probed.model.value_or(""), probed.serial.value_or(""),
                              probed.firmware.value_or("")}),
                 expected.mid(4, 3));
    }

    /// Of two reports in one the later decides.
    void kinds()
    {
        for (const bool nvme : {true, false}) {
            QTextStream stream(nvme ? AtaSection + NvmeHeader : NvmeHeader + AtaSection);
            QCOMPARE(report::detectKind(stream), std::optional<bool>(nvme));
        }
    }

    /// Lines between bars: "model,serial,firmware,version", "-" for a missing one, of both readings.
    void identity()
    {
        compareRows("ReportParser/identity", [](const QString &lines) {
            QStringList shown;
            for (const auto read : {report::readIdentity, report::readProbedIdentity}) {
                QString text = QString(lines).replace('|', '\n') + '\n';
                QTextStream stream(&text);
                const report::Identity got = read(stream);
                for (const auto &field : {got.model, got.serial, got.firmware, got.ataVersion})
                    shown << field.value_or("-");
            }
            return shown.join(',');
        });
    }

    void ataFields()
    {
        const auto fields = [](const QString &lines) {
            return fieldsOf(ataTable(QString(lines).replace('|', '\n') + '\n' + AtaHeader + AtaRow).drive);
        };
        compareRows("ReportParser/fields", fields);
        QCOMPARE(fields("Model Family: " + QString(500, QChar(0xe9))),
                 QString(63, QChar(0xe9)) + QString(17, '|'));
    }

    void ataRow()
    {
        compareRows("ReportParser/row", [](const QString &line) {
            const SmartTable table = ataTable(AtaHeader + line.toUtf8());
            const SmartAttributeRecord &row = *table.rows.head;
            using R = SmartAttributeRecord;
            return QString("%1 %2 %3 %4|").arg(row.Id).arg(row.Value).arg(row.Worst).arg(row.Threshold) +
                   joined<&R::AttributeName, &R::Flag, &R::Type, &R::Updated, &R::WhenFailed, &R::RawValue>(
                       row);
        });
    }

    void nvmeRows()
    {
        samples::read("test result: PASSED\n" + NvmeHeader + "Temperature:    36 Celsius\n" +
                      "Warning  Comp. Temperature Time: 1:2\nAlone\n:::\n   \nEmpty:\n" +
                      QByteArray(300, 'n') + ':' + QByteArray(300, 'v') + "\n\nPower Cycles: 3\n");
        QCOMPARE(rowTexts(),
                 QStringList({"Temperature=36 Celsius", "Warning  Comp. Temperature Time=1", "Alone=", "=",
                              "Empty=", QString(199, 'n') + '=' + QString(199, 'v')}));
        QVERIFY(g_nvmeTable.passed);
    }

    /// Lines between bars: the number of rows, and whether the drive passes.
    void tableBounds()
    {
        compareRows("ReportParser/tableBounds", [](const QString &lines) {
            const SmartTable table = ataTable(QString(lines).replace('|', '\n'));
            return QString::number(ataRows(table.rows).size()) + (table.passed ? " passed" : "");
        });
        // Lines of the report's head are also looked for in the first row of the table, but in no later one.
        const QByteArray row = "9 Serial Number: X\n";
        const QString serial = "Serial Number: S\n";
        QCOMPARE(ataTable(serial + AtaHeader + AtaRow + row).drive.SerialNumber.text(), QString("S"));
        QCOMPARE(ataTable(serial + AtaHeader + row + AtaRow).drive.SerialNumber.text(), QString("X"));
        QVERIFY(ataTable(serial + AtaHeader).drive.SerialNumber.isEmpty());
    }

    /// Of a real report with changes: "file: old text>new text|…".
    void verdict()
    {
        compareRows("ReportParser/verdict", [](const QString &row) {
            QByteArray report = samples::bytesOf(row.section(": ", 0, 0));
            for (const QString &change : row.section(": ", 1).split('|'))
                report.replace(change.section('>', 0, 0).toUtf8(), change.section('>', 1).toUtf8());
            samples::read(report);
            return verdictWord();
        });
    }

    // A report that is cut anywhere has the rows before the cut. The last of them may be cut, too.
    void tornReports()
    {
        for (const char *file : {"ata-seagate-st3000dm001.txt", "nvme-win-netac-2tb-crlf.txt"}) {
            const QByteArray bytes = samples::bytesOf(file);
            samples::read(bytes);
            const QStringList whole = rowTexts();
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

    void eachKindHasItsList()
    {
        samples::read(samples::bytesOf("nvme-wdc-sn850-1tb.txt"));
        const NvmeAttributeRecord *log = g_pNvmeAttributeHead;
        samples::read(samples::bytesOf("ata-seagate-st3250318as.txt"));
        const SmartAttributeRecord *head = g_pSmartAttributeHead;
        takeReportIn(tempFile("missing.txt")); // changes nothing
        QCOMPARE(g_pSmartAttributeHead, head);
        QVERIFY(g_bSmartAvailable);
        QCOMPARE(g_strModelName, QString("ST3250318AS"));
        // What a report does not tell stays, but in the drive's own fields.
        samples::read("Serial Number: new\n" + AtaSection + AtaHeader + AtaRow);
        QCOMPARE(g_strModelName + g_strSerialNumber + g_strFirmware + g_strAtaVersion,
                 QString("ST3250318ASnewCC46ATA8-ACS T13/1699-D revision 4"));
        QCOMPARE(g_smartTable.drive.SerialNumber.text(), QString("new"));
        QVERIFY(g_smartTable.drive.DeviceModel.isEmpty());
        QCOMPARE(int(ataRows(g_smartTable.rows).size()), 1);
        // An empty file empties the list of the kind that was read last.
        samples::read(QByteArray());
        QVERIFY(!g_App.m_bNVMe && !g_bSmartAvailable);
        QVERIFY(!g_pSmartAttributeHead && !g_pSmartAttributeTail);
        QCOMPARE(g_pNvmeAttributeHead, log);
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

private:
    static QString verdictWord() { return QStringList{"-", "passed", "failed"}[int(g_driveVerdict)]; }

    /// "cell|cell|… -> key=value of the history" of the last row in the tree.
    static QString lastShown(const std::vector<AttributeRow> &rows)
    {
        if (rows.empty())
            return QString();
        const AttributeRow &last = rows.back();
        const QStringList cells(last.cells.begin(), last.cells.end());
        return cells.join('|') + " -> " + last.key + '=' + last.historyValue;
    }

    static QString fieldsOf(const SmartIdentity &drive)
    {
        using A = SmartIdentity;
        return joined<&A::ModelFamily, &A::DeviceModel, &A::SerialNumber, &A::Wwn, &A::Firmware,
                      &A::UserCapacity, &A::SectorSize, &A::RotationRate, &A::AtaVersion, &A::SataVersion,
                      &A::LocalTime, &A::SmartSupport, &A::OfflineStatus, &A::SelfTestStatus,
                      &A::OfflineTotalTime, &A::ShortPollTime, &A::ExtendedPollTime, &A::ConveyancePollTime>(
            drive);
    }

    static QString fieldsOf(const NvmeIdentity &drive)
    {
        using N = NvmeIdentity;
        return joined<&N::ModelNumber, &N::SerialNumber, &N::Firmware, &N::Capacity, &N::LbaSize,
                      &N::LocalTime, &N::MaxTransferSize>(drive);
    }
};

QTEST_GUILESS_MAIN(tst_ReportParser)
#include "tst_ReportParser.moc"
