// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeColumns.h"
#include "smart/AttributeRows.h"

#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QTranslator>
#include <QtTest>

namespace
{

/// "cell|cell|…", the red one marked, and what the history keeps.
QStringList asTexts(const std::vector<AttributeRow> &rows)
{
    QStringList texts;
    for (const AttributeRow &row : rows) {
        QStringList cells;
        for (const QString &cell : row.cells)
            cells << (cells.size() == row.redCell ? cell + QLatin1String(" (red)") : cell);
        texts << cells.join('|') + QLatin1String(" -> ") + row.key + '=' + row.historyValue;
    }
    return texts;
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

/// The rows of the attribute tree, and its columns.
class AttributeRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void cleanup() { samples::forget(); }

    void ataDisk()
    {
        samples::read(samples::bytesOf("ata-seagate-st31500341as.txt"));
        const QStringList shown = asTexts(ataRows(g_smartTable.rows));
        QCOMPARE(shown.size(), 18);
        QCOMPARE(shown[3],
                 QString("5|Reallocated Sector Count|OK|100|100|36|3 (red)|Reallocated Sector Ct -> "
                         "Reallocated Sector Ct=3"));
        QCOMPARE(shown[8],
                 QString("184|End-to-End Error |OK|100|100|99|0|End-to-End Error -> End-to-End Error=0"));
        // Of rows with one name the later ones have their number behind it.
        samples::read(samples::bytesOf("ata-noname-ssd-A-only.txt"));
        QCOMPARE(asTexts(ataRows(g_smartTable.rows)).last(),
                 QString("245|Unknown Attribute|OK|100|100|0|214960|Unknown Attribute 245 -> "
                         "Unknown Attribute 245=214960"));
    }

    void nvmeDisk()
    {
        samples::read(samples::bytesOf("nvme-win-netac-2tb-crlf.txt"));
        const QStringList shown = asTexts(nvmeRows(g_nvmeTable.rows));
        QCOMPARE(shown.size(), 21);
        QCOMPARE(shown[0], QString("0|Critical Warning|0x00|Critical Warning -> Critical Warning=0"));
        QCOMPARE(shown[5],
                 QString("5|Data Units Read|4,830,606 [2.47 TB]|Data Units Read -> Data Units Read=4830606"));
        QCOMPARE(shown[18],
                 QString("18|Temperature|46 Celsius|Temperature Sensor 2 -> Temperature Sensor 2=46"));
    }

    void status()
    {
        const auto row = [](quint32 id, quint32 value, quint32 threshold, const char *raw, bool inTree,
                            bool inReport) {
            SmartAttributeList list = samples::ataList(QLatin1String("Row=") + raw);
            list.head->Id = id;
            list.head->Value = value;
            list.head->Threshold = threshold;
            QCOMPARE(reportStatusFailed(*list.head), inReport);
            QCOMPARE(ataRows(list).front().cells[2], QString(inTree ? "FAILED" : "OK"));
        };
        row(5, 37, 36, "9", false, false);
        row(5, 36, 36, "0", true, false);
        row(5, 35, 36, "0", true, true);
        row(5, 4294967295, 1, "0", false, false);
        row(194, 0, 64, "49", false, false); // by its degrees alone
        row(194, 64, 0, "50", true, true);
        row(190, 60, 45, "70", false, false);
    }

    /// The key decides, whatever the language.
    void red()
    {
        Foreign language;
        QCoreApplication::installTranslator(&language);
        const auto row = [](const QString &text, bool red) {
            QCOMPARE(text + QString(" -> %1").arg(ataRows(samples::ataList(text)).front().redCell),
                     text + QString(" -> %1").arg(red ? 6 : -1));
        };
        row("Reallocated_Sector_Ct=1", true);
        row("Reallocated_Sector_Ct=0", false);
        row("Reallocated_Sector_Ct=4294967296", true);
        row("Reallocated_Sector_Ct=3/4", false);
        row("Reallocated_Sector_Ct=-1", false);
        row("Grown_Sector_Count=1", true);
        row("Current_Pending_Sector=8", true);
        row("Reallocated_Event_Count=5", false);
    }

    void cleanedValue()
    {
        const auto row = [](const QString &value, const char *cleaned) {
            QCOMPARE(value + " -> " + cleanedNvmeValue(value), value + " -> " + cleaned);
        };
        row("0x04", "0x04");
        row("1,2 [0x00]", "0");
        row("\"1,234\" [5%] [x]", "1234");
        row("5[x]", "5[x]");
        row("1,036 Celsius", "1036");
        row("1,00%", "1,00");
        row("46,021,676", "46021676");
        row("\"1,2\"", "\"12\"");
        row("\"12\"", "12");
        for (const QChar separator : QStringLiteral(".' \u00A0\u2009\u202F"))
            row(QStringLiteral("18?250?344 [9,34 TB]").replace('?', separator), "18250344");
        row("3/120", "3/120");
        row("1.5", "1.5");
        row("", "");
    }

    /// They follow the scale, truncated, but for NVMe.
    void columnWidths()
    {
        const auto widths = [](bool nvme) {
            QList<int> visible;
            for (const attributecolumns::Column &column : attributecolumns::columns(nvme)) {
                if (!column.hidden)
                    visible << attributecolumns::width(column, nvme, 125);
            }
            return visible;
        };
        QCOMPARE(widths(false), QList<int>({68, 187, 112, 112, 87, 112, 112}));
        QCOMPARE(widths(true), QList<int>({55, 300, 90}));
    }

    void headerFont()
    {
        QList<int> pixels;
        for (const int scale : {75, 100, 125, 150})
            pixels << attributecolumns::headerFontPixels(scale, false)
                   << attributecolumns::headerFontPixels(scale, true);
        QCOMPARE(pixels, QList<int>({0, 0, 14, 14, 18, 17, 22, 21}));
    }
};

QTEST_GUILESS_MAIN(AttributeRowsTest)
#include "tst_AttributeRows.moc"
