// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeCatalogue.h"
#include "smart/AttributeColumns.h"
#include "smart/AttributeRows.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"

#include <QTranslator>

namespace
{

/// Translates only texts of the catalogue, into one that no word of a report is found in.
class Foreign : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "AttributeCatalogue") == 0 ? QString(text).toUpper() + '!' : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// The rows of the attribute tree in another language, and its columns. Those of real reports:
/// tst_ReportParser.
class AttributeRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QCoreApplication::installTranslator(&m_foreign); }

    /// Of number, value, threshold and raw value: in the tree, and in the report.
    void status()
    {
        compareRows({"5 37 36 9 -> OK OK", "5 36 36 0 -> FAILED OK", "5 35 36 0 -> FAILED FAILED",
                     "5 4294967295 1 0 -> OK OK", "194 0 64 49 -> OK OK", "194 64 0 50 -> FAILED FAILED"},
                    [](const QString &row) {
                        SmartAttributeList list = samples::ataList("Row=" + row.section(' ', 3));
                        list.head->Id = row.section(' ', 0, 0).toUInt();
                        list.head->Value = row.section(' ', 1, 1).toUInt();
                        list.head->Threshold = row.section(' ', 2, 2).toUInt();
                        return ataRows(list).front().cells[2] +
                               (reportStatusFailed(*list.head) ? " FAILED" : " OK");
                    });
    }

    /// The key decides, whatever the language.
    void red()
    {
        compareRows({"Reallocated_Sector_Ct=1 -> 6", "Reallocated_Sector_Ct=0 -> -1",
                     "Reallocated_Sector_Ct=4294967296 -> 6", "Reallocated_Sector_Ct=3/4 -> -1",
                     "Grown_Sector_Count=1 -> 6", "Current_Pending_Sector=8 -> 6",
                     "Reallocated_Event_Count=5 -> -1"},
                    [](const QString &row) { return ataRows(samples::ataList(row)).front().redCell; });
    }

    /// Of "key#number", or of an NVMe name: in the tree, and in the report.
    void names()
    {
        const QStringList rows{
            "Raw Read Error Rate#1 -> RAW READ ERROR RATE!|RAW READ ERROR RATE!",
            "Reallocated Sector Ct#5 -> REALLOCATED SECTOR COUNT!|REALLOCATED SECTOR COUNT!",
            "Reallocated Sector Count#5 -> REALLOCATED SECTOR COUNT!|Reallocated Sector Count",
            "power on hours#9 -> power on hours|POWER ON HOURS!",
            "Unknown Attribute#170 -> AVAILABLE RESERVED SPACE!|AVAILABLE RESERVED SPACE!",
            "Unknown Attribute#175 -> Unknown Attribute|Unknown Attribute",
            "Command Timeout Unknown Attribute#175 -> COMMAND TIMEOUT!|Command Timeout Unknown Attribute",
            // If a text has two names of the list, the first one of the list counts.
            "Write Error Rate Multi Zone Error Rate#1 -> MULTI ZONE ERROR RATE!|MULTI ZONE ERROR RATE!",
            "Power Cycles -> Power Cycles|Power Cycles",
            "Available Spare -> AVAILABLE SPARE!|AVAILABLE SPARE!",
            "Available Spare Threshold -> AVAILABLE SPARE THRESHOLD!|AVAILABLE SPARE THRESHOLD!",
            "Threshold of Available Spare -> Threshold of Available Spare|AVAILABLE SPARE THRESHOLD!",
            "percentage used -> percentage used|PERCENTAGE USED!",
            "Temperature Critical Warning -> CRITICAL WARNING!|CRITICAL WARNING!",
        };
        compareRows(rows, [](const QString &row) {
            const auto name = [&row](NameIn place) {
                return row.contains('#')
                           ? ataName(row.section('#', 0, 0), row.section('#', 1).toUInt(), place)
                           : nvmeName(row, place);
            };
            return name(NameIn::Tree) + '|' + name(NameIn::Report);
        });
    }

    void cleanedValue()
    {
        compareRows({"0x04 -> 0x04", "1,2 [0x00] -> 0", "\"1,234\" [5%] [x] -> 1234", "5[x] -> 5[x]",
                     "1,036 Celsius -> 1036", "1,00% -> 1,00", "46,021,676 -> 46021676", "\"1,2\" -> \"12\"",
                     "\"12\" -> 12", "3/120 -> 3/120", "1.5 -> 1.5"},
                    cleanedNvmeValue);
        for (const QChar separator : QStringLiteral(".' \u00A0\u2009\u202F"))
            QCOMPARE(cleanedNvmeValue(QString("18?250?344 [9,34 TB]").replace('?', separator)),
                     QString("18250344"));
    }

    /// Widths follow the scale, truncated, but for NVMe.
    void columns()
    {
        using namespace attributecolumns;
        QCOMPARE(width(attributecolumns::columns(false)[1], false, 125), 187);
        QCOMPARE(width(attributecolumns::columns(true)[1], true, 125), 300);
        QCOMPARE(headerFontPixels(125, false), 18);
        QCOMPARE(headerFontPixels(150, true), 21);
    }

private:
    Foreign m_foreign;
};

QTEST_GUILESS_MAIN(AttributeRowsTest)
#include "tst_AttributeRows.moc"
