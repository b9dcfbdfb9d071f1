// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeRows.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QTranslator>
#include <QtTest>

#include <algorithm>

namespace
{

std::vector<AttributeRow> rowsOf(const QString &file)
{
    const QString path = samples::stage(samples::bytesOf(file));
    takeReportIn(path);
    return g_App.m_bNVMe ? nvmeRows(g_nvmeTable.rows) : ataRows(g_smartTable.rows);
}

/// "cell|cell|…", the red one marked.
QString asText(const AttributeRow &row)
{
    QStringList cells;
    for (const QString &cell : row.cells)
        cells.append(static_cast<int>(cells.size()) == row.redCell ? cell + QLatin1String(" (red)") : cell);
    return cells.join(QLatin1Char('|'));
}

/// A language without a word for a sector.
class Foreign : public QTranslator
{
public:
    QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("x");
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class AttributeRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void everyReport();
    void ataDisk();
    void nvmeDisk();
    void status_data();
    void status();
    void red_data();
    void red();
    void redGoesByTheKeyInEveryLanguage();
    void cleanedValue_data();
    void cleanedValue();
    void noRecords();
};

void AttributeRowsTest::everyReport()
{
    const QVector<samples::Sample> all = samples::all();
    QVERIFY(!all.isEmpty());
    for (const samples::Sample &sample : all) {
        samples::forget();
        const std::vector<AttributeRow> rows = rowsOf(sample.file);
        QVERIFY2(rows.size() == static_cast<std::size_t>(sample.rows), qUtf8Printable(sample.file));
        if (rows.empty())
            continue;
        const std::vector<QString> &cells = rows.back().cells;
        QStringList last = sample.lastRow.split(QLatin1Char('|'));
        if (sample.kind == QLatin1String("nvme")) {
            QCOMPARE(cells.size(), std::size_t{4});
            QCOMPARE((QStringList{cells[3], cells[2]}), last);
        } else {
            QCOMPARE(cells.size(), std::size_t{8});
            last[1].replace(QLatin1Char('_'), QLatin1Char(' '));
            const auto before = [&last](const AttributeRow &row) { return row.key == last[1]; };
            if (std::any_of(rows.begin(), rows.end() - 1, before)) {
                QCOMPARE(cells[1], last[1]);
                last[1] += QLatin1Char(' ') + last[0];
            }
            QCOMPARE((QStringList{cells[0], cells[7], cells[3], cells[5], cells[6]}), last);
            QCOMPARE(rows.back().historyValue, last[4]);
        }
        QCOMPARE(rows.back().key, cells.back());
    }
}

void AttributeRowsTest::ataDisk()
{
    QStringList shown;
    for (const AttributeRow &row : rowsOf(QStringLiteral("ata-seagate-st31500341as.txt")))
        shown.append(asText(row));
    QCOMPARE(shown.size(), 18);
    QCOMPARE(shown[0], QStringLiteral("1|Raw Read Error Rate|OK|118|99|6|194377985|Raw Read Error Rate"));
    QCOMPARE(shown[3],
             QStringLiteral("5|Reallocated Sector Count|OK|100|100|36|3 (red)|Reallocated Sector Ct"));
    QCOMPARE(shown[8], QStringLiteral("184|End-to-End Error |OK|100|100|99|0|End-to-End Error"));
    QCOMPARE(shown[13], QStringLiteral("194|Temperature Celsius|OK|40|49|0|40|Temperature Celsius"));
    QCOMPARE(shown[15],
             QStringLiteral("197|Current Pending Sector Count|OK|100|100|0|0|Current Pending Sector"));
}

void AttributeRowsTest::nvmeDisk()
{
    QStringList shown;
    for (const AttributeRow &row : rowsOf(QStringLiteral("nvme-win-netac-2tb-crlf.txt")))
        shown.append(asText(row) + QLatin1String(" -> ") + row.historyValue);
    QCOMPARE(shown.size(), 21);
    QCOMPARE(shown[0], QStringLiteral("0|Critical Warning|0x00|Critical Warning -> 0"));
    QCOMPARE(shown[1], QStringLiteral("1|Temperature|54 Celsius|Temperature -> 54"));
    QCOMPARE(shown[3], QStringLiteral("3|Available Spare Threshold|25%|Available Spare Threshold -> 25"));
    QCOMPARE(shown[5], QStringLiteral("5|Data Units Read|4,830,606 [2.47 TB]|Data Units Read -> 4830606"));
    QCOMPARE(shown[7], QStringLiteral("7|Host Read Commands|46,021,676|Host Read Commands -> 46021676"));
    QCOMPARE(shown[10], QStringLiteral("10|Power Cycles|106|Power Cycles -> 106"));
    QCOMPARE(shown[18], QStringLiteral("18|Temperature|46 Celsius|Temperature Sensor 2 -> 46"));
}

void AttributeRowsTest::status_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<quint32>("value");
    QTest::addColumn<quint32>("threshold");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<bool>("inTree");
    QTest::addColumn<bool>("inReport");
    QTest::newRow("above") << 5u << 37u << 36u << "9" << false << false;
    QTest::newRow("equal") << 5u << 36u << 36u << "0" << true << false;
    QTest::newRow("below") << 5u << 35u << 36u << "0" << true << true;
    QTest::newRow("no value") << 5u << 0u << 0u << "0" << true << false;
    QTest::newRow("beyond a signed number") << 5u << 4294967295u << 1u << "0" << false << false;
    QTest::newRow("cool in spite of its value") << 194u << 0u << 64u << "36" << false << false;
    QTest::newRow("49") << 194u << 64u << 0u << "49" << false << false;
    QTest::newRow("50") << 194u << 64u << 0u << "50" << true << true;
    QTest::newRow("64") << 194u << 64u << 0u << "64" << true << true;
    QTest::newRow("65") << 194u << 64u << 0u << "65" << true << true;
    QTest::newRow("no number") << 194u << 64u << 0u << "50/20" << false << false;
    QTest::newRow("beyond 32 bits") << 194u << 64u << 0u << "4294967346" << false << false;
    QTest::newRow("other temperatures by value") << 190u << 60u << 45u << "70" << false << false;
}

void AttributeRowsTest::status()
{
    QFETCH(quint32, id);
    QFETCH(quint32, value);
    QFETCH(quint32, threshold);
    QFETCH(QString, raw);
    QFETCH(bool, inTree);
    SmartAttributeList list;
    SmartAttributeRecord &record = list.append();
    record.Id = id;
    record.Value = value;
    record.Threshold = threshold;
    record.RawValue.assign(raw);
    QCOMPARE(attributeFailed(record), inTree);
    QTEST(reportStatusFailed(record), "inReport");
    QCOMPARE(ataRows(list).front().cells[2], inTree ? QStringLiteral("FAILED") : QStringLiteral("OK"));
}

void AttributeRowsTest::red_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<int>("redCell");
    QTest::newRow("one bad sector") << "Reallocated_Sector_Ct"
                                    << "1" << 6;
    QTest::newRow("none") << "Reallocated_Sector_Ct"
                          << "0" << -1;
    QTest::newRow("pending") << "Current_Pending_Sector"
                             << "8" << 6;
    QTest::newRow("beyond 32 bits") << "Reallocated_Sector_Ct"
                                    << "4294967296" << 6;
    QTest::newRow("beyond 64 bits") << "Reallocated_Sector_Ct"
                                    << "9223372036854775808" << -1;
    QTest::newRow("not a number") << "Reallocated_Sector_Ct"
                                  << "3/4" << -1;
    QTest::newRow("negative") << "Reallocated_Sector_Ct"
                              << "-1" << -1;
    QTest::newRow("own name") << "Grown_Sector_Ct"
                              << "1" << 6;
    QTest::newRow("events") << "Reallocated_Event_Count"
                            << "5" << -1;
    QTest::newRow("uncorrectable") << "Offline_Uncorrectable"
                                   << "5" << -1;
}

void AttributeRowsTest::red()
{
    QFETCH(QString, name);
    QFETCH(QString, raw);
    samples::AtaList list;
    list.add(name, raw);
    QTEST(ataRows(list).front().redCell, "redCell");
}

void AttributeRowsTest::redGoesByTheKeyInEveryLanguage()
{
    samples::AtaList list;
    list.add(QStringLiteral("Reallocated_Sector_Ct"), QStringLiteral("7"));
    Foreign language;
    QCoreApplication::installTranslator(&language);
    const AttributeRow row = ataRows(list).front();
    QCoreApplication::removeTranslator(&language);
    QCOMPARE(row.redCell, 6);
    QCOMPARE(row.cells[1], QStringLiteral("x"));
    QCOMPARE(row.cells[2], QStringLiteral("x"));
    QCOMPARE(row.key, QStringLiteral("Reallocated Sector Ct"));
}

void AttributeRowsTest::cleanedValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("flags") << "0x00"
                           << "0";
    QTest::newRow("other flags stay") << "0x04"
                                      << "0x04";
    QTest::newRow("flags first") << "1,2 [0x00]"
                                 << "0";
    QTest::newRow("size") << "1,234,567 [632 GB]"
                          << "1234567";
    QTest::newRow("quoted size") << "\"1,234\" [5%] [x]"
                                 << "1234";
    QTest::newRow("bracket without a blank") << "5[x]"
                                             << "5[x]";
    QTest::newRow("degrees") << "36 Celsius"
                             << "36";
    QTest::newRow("degrees first") << "1,036 Celsius"
                                   << "1036";
    QTest::newRow("percent") << "1,00%"
                             << "1,00";
    QTest::newRow("groups") << "46,021,676"
                            << "46021676";
    QTest::newRow("groups ahead of quotes") << "\"1,2\""
                                            << "\"12\"";
    QTest::newRow("quotes") << "\"12\""
                            << "12";
    const QString separators = QStringLiteral(".,' \u00A0\u2009\u202F");
    for (const QChar separator : separators)
        QTest::addRow("groups by %04x", separator.unicode())
            << QString(QStringLiteral("18?250?344 [9,34 TB]")).replace('?', separator) << "18250344";
    QTest::newRow("a pair") << "3/120"
                            << "3/120";
    QTest::newRow("no group of three") << "1.5"
                                       << "1.5";
    QTest::newRow("plain") << "509"
                           << "509";
    QTest::newRow("empty") << ""
                           << "";
}

void AttributeRowsTest::cleanedValue()
{
    QFETCH(QString, value);
    QTEST(cleanedNvmeValue(value), "cleaned");
}

void AttributeRowsTest::noRecords()
{
    QVERIFY(ataRows({}).empty());
    QVERIFY(nvmeRows({}).empty());
}

QTEST_GUILESS_MAIN(AttributeRowsTest)
#include "tst_AttributeRows.moc"
