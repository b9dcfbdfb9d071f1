// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "smart/AttributeRows.h"
#include "smart/ReportParser.h"
#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"
#include "tests/support/HistoryDays.h"

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

using Dates = std::vector<QString>;

/// Real reports, what they do not show, and the history that is kept of a disk.
class tst_ReportParser : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        Platform::install(std::make_unique<HistoryMachine>(m_folder->path()));
        samples::forget();
    }

    void reports_data()
    {
        QTest::addColumn<QStringList>("expected");
        for (const QString &line : ::linesOf(HALVANE_TEST_DATA "/smart/expected.tsv"))
            QTest::newRow(qPrintable(line.section('\t', 0, 0))) << line.split('\t');
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

    /// Lines between bars: the number of rows, whether the drive passes, and its serial number.
    void tableBounds()
    {
        compareRows("ReportParser/tableBounds", [](const QString &lines) {
            const SmartTable table = ataTable(QString(lines).replace('|', '\n'));
            const QString rows = QString::number(ataRows(table.rows).size());
            const QString told = rows + (table.passed ? " passed " : " ") + table.drive.SerialNumber.text();
            return told.trimmed();
        });
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

    void paths()
    {
        compareRows(
            {"OK-83H2_F6.610 a -> OK-83H2_F6.610 a", " -> ", "../../etc/x -> .._.._etc_x", "..\\x -> .._x",
             QString("a\nb:c") + QChar(0) + " -> a_b_c_"},
            [](const QString &serial) { return QFileInfo(historyPaths(serial).values).fileName().mid(7); });
        QCOMPARE(historyPaths("../x").values, m_folder->path() + "/values-.._x");
        QCOMPARE(historyPaths("../x").dates, m_folder->path() + "/dates-.._x.txt");
    }

    void twoVisitsOfADay()
    {
        const QDate day(2026, 11, 15);
        recordHistory(m_serial, QDateTime(day, QTime(3, 30, 12)),
                      {{"Raw Read Error Rate", "0"}, {"Temperature Celsius", "36 (Min/Max 17/54)"}});
        QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 03:30:12 2026\n"
                                              "Raw%20Read%20Error%20Rate=0\n"
                                              "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
        recordHistory(m_serial, QDateTime(day, QTime(9, 0)), {{"Raw Read Error Rate", "3"}});
        QCOMPARE(textOf(m_values), QByteArray("[15-11-2026]\nCompleteDate=Sun Nov 15 09:00:00 2026\n"
                                              "Raw%20Read%20Error%20Rate=3\n"
                                              "Temperature%20Celsius=36 (Min/Max 17/54)\n"));
        QCOMPARE(textOf("dates-SN-1.txt"), QByteArray("15-11-2026\n"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    /// Lines between bars.
    void append()
    {
        compareRows("AttributeHistory/append", [this](const QString &before) {
            put("list", linesOf(before));
            AppendHistoryDate(file("list"), "d");
            return textOf("list").replace('\n', '|');
        });
    }

    /// One date a call: the list, and the values that are left.
    void prune()
    {
        compareRows("AttributeHistory/prune", [this](const QString &before) {
            put("list", linesOf(before));
            put("values", "[1]\nA=1\n\n[2]\nA=2\n");
            PruneHistory(file("list"), file("values"));
            return QString(textOf("list") + ", " + textOf("values")).replace('\n', '|');
        });
    }

    void removeGroup()
    {
        // A value with brackets is taken for a header.
        compareRows("AttributeHistory/removeGroup", [this](const QString &before) {
            put("values", linesOf(before));
            RemoveHistoryGroup("d", file("values"));
            return textOf("values").replace('\n', '|');
        });
        RemoveHistoryGroup("d", file("missing"));
        QVERIFY(!QFile::exists(file("missing")));
    }

    void tornValues()
    {
        put(m_values, "[24-10-2026]\r\nPower%20On%20Hours=5\r\n\r\n[23-10-2026\nx\n[22-10-2026]\nPower%20On");
        put("dates-SN-1.txt", "24-10-2026\r\n23-1");
        days::record(m_serial, m_first, 1);
        checkTwoDays();
    }

    /// QSettings takes a file of the same size and time for the old one, so the time has to rise even if the
    /// clock does not.
    void rewrittenWithinATick()
    {
        days::record(m_serial, m_first, 10);
        const HistoryPaths paths = historyPaths(m_serial);
        const QDate day = m_first.addDays(10);
        QVERIFY(setAge(paths.values, -3600)); // in an hour
        for (const QString value : {"1", "2", "3"}) {
            const QDateTime before = QFileInfo(paths.values).lastModified();
            recordHistory(m_serial, QDateTime(day, QTime(8, 0)), {{days::key, value}});
            QVERIFY(QFileInfo(paths.values).lastModified() > before);
            const QSettings fresh(paths.values, QSettings::IniFormat);
            QCOMPARE(fresh.value(historyDate(day.startOfDay()) + '/' + days::key).toString(), value);
            QCOMPARE(fresh.childGroups().size(), 10);
        }
    }

    void noFolder()
    {
        put("blocked", "a file");
        for (const char *name : {"blocked", "missing"}) {
            Platform::install(std::make_unique<HistoryMachine>(file(name)));
            days::record(m_serial, m_first, 12);
            bool opened = true;
            QVERIFY(readHistoryDates(historyPaths(m_serial).dates, &opened).empty());
            QVERIFY(!opened);
            QCOMPARE(readHistoryValues(historyPaths(m_serial).values, {QStringLiteral("x")}, days::key),
                     std::vector<qint64>{0});
        }
        QCOMPARE(textOf("blocked"), QByteArray("a file"));
        QVERIFY(!QFile::exists(file("missing")));
    }

    /// Serial numbers that are names of other files, and files that an earlier version wrote.
    void earlierNames()
    {
        const QByteArray dates("24-10-2026\r\n23-1");
        const QByteArray values("[24-10-2026]\nPower%20On%20Hours=5\n");
        put("qt.conf", "[Paths]\n");
        put("qt.confDate.txt", dates);
        put("SN-1Date.txt", dates);
        put(m_serial, values);
        put("SN-1Date.txtDate.txt", dates);
        const QString below = file("history");
        QVERIFY(QDir().mkdir(below));
        Platform::install(std::make_unique<HistoryMachine>(below));
        for (const char *serial : {"qt.conf", "SN-1Date.txt", "SN-1"})
            days::record(QLatin1String(serial), m_first, 1);
        QCOMPARE(textOf("qt.conf"), QByteArray("[Paths]\n"));
        checkTwoDays();
        QVERIFY(!QFile::exists(file(m_serial)) && !QFile::exists(file("SN-1Date.txt")));
        QCOMPARE(readHistoryDates(historyPaths(QStringLiteral("SN-1Date.txt")).dates, nullptr).size(),
                 size_t(1));
    }

    void values()
    {
        put(m_values,
            "[a]\nBig%20One=31288407551\nText=5 5 9\nHex=0x10\nBelow=-4\nGroups=18.250.344\n[b]\nText=7\n");
        const Dates dates{"a", "b", "missing"};
        compareRows("AttributeHistory/values", [&](const QString &key) {
            QStringList found;
            for (const qint64 value : readHistoryValues(file(m_values), dates, key))
                found << QString::number(value);
            return found.join(' ');
        });
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

    QString file(const QString &name) const { return m_folder->filePath(name); }
    void put(const QString &name, const QByteArray &text) const { QVERIFY(writeFile(file(name), text)); }

    static QByteArray linesOf(const QString &row)
    {
        return QString(row).replace('|', '\n').replace('~', '\r').toUtf8();
    }

    /// One of an earlier run, with a torn date behind it, and the first one of this run.
    void checkTwoDays() const
    {
        const HistoryPaths paths = historyPaths(m_serial);
        bool opened = false;
        const Dates dates = readHistoryDates(paths.dates, &opened);
        QVERIFY(opened);
        QCOMPARE(dates, (Dates{"24-10-2026", "23-1", "25-10-2026"}));
        QCOMPARE(readHistoryValues(paths.values, dates, days::key),
                 (std::vector<qint64>{5, 0, days::valueOn(m_first)}));
    }

    /// The text of a file, with line feeds for the line ends of this platform.
    QByteArray textOf(const QString &name) const
    {
        QFile in(file(name));
        return in.open(QIODevice::ReadOnly | QIODevice::Text) ? in.readAll() : QByteArray("no file");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    const QDate m_first = QDate(2026, 10, 25);
    const QString m_serial = QStringLiteral("SN-1");
    const QString m_values = QStringLiteral("values-SN-1");
};

QTEST_GUILESS_MAIN(tst_ReportParser)
#include "tst_ReportParser.moc"
