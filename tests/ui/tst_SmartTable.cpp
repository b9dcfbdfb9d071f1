// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "smart/SmartGlobals.h"
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/SmartChartView.h"

#include <QPointer>
#include <QTreeWidget>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QLineSeries>

using namespace QtCharts;

/// The attribute tree, its history and its graph, by disk, click and language.
class tst_SmartTable : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpProgram(); }
    void init();
    void cleanup() { tearDown(); }

    void columnsByKind();
    void cells();
    void clickDrawsAnotherGraph();
    void eachDiskHasItsOwnHistory();
    void laterRunsOfAReadChangeNothing();
    void languageChangeKeepsHistoryAndGraph();
    void unopenableDatesDrawNoGraph();
    void serialOfTheDiskTable();
    void noTemperatureHidesTheChart();

private:
    static QByteArray ata(const QByteArray &serial, const QByteArray &temperature);
    void startOn(int disk);
    QTreeWidget *tree() const { return child<QTreeWidget>("m_pAttributeTree"); }
    QChart *chart() const { return g_pSmartChartView->chart(); }
    QVector<QPointF> points() const;
    /// Clicks the name of the row with the mouse.
    void click(int row);
    QStringList stored(const QString &serial, const char *key) const;
};

QByteArray tst_SmartTable::ata(const QByteArray &serial, const QByteArray &temperature)
{
    return "=== START OF INFORMATION SECTION ===\nDevice Model:     NW1\n" + serial +
           "Firmware Version: FW1\nATA Version is:   ATA2\n=== START OF READ SMART DATA SECTION ===\n"
           "SMART overall-health self-assessment test result: PASSED\n\n"
           "ID# ATTRIBUTE_NAME FLAG VALUE WORST THRESH TYPE UPDATED WHEN_FAILED RAW_VALUE\n"
           "  1 Raw_Read_Error_Rate 0x002f 036 036 036 Pre-fail Always - 7\n"
           "  5 Reallocated_Sector_Ct 0x0033 100 099 036 Pre-fail Always - 3\n" +
           temperature;
}

void tst_SmartTable::init()
{
    const QByteArray warm = "194 Temperature_Celsius 0x0022 064 045 000 Old_age Always - 36\n";
    addReport("ata.txt", ata("Serial Number:    SN0\n", warm));
    addReport("nvme.txt", "=== START OF INFORMATION SECTION ===\nModel Number: NW2\nSerial Number: SN1\n"
                          "Firmware Version: FW2\n=== START OF SMART DATA SECTION ===\n"
                          "SMART overall-health self-assessment test result: PASSED\n\n"
                          "SMART/Health Information (NVMe Log 0x02)\nTemperature:  41 Celsius\n"
                          "Data Units Written:  1,234,567 [632 GB]\n"
                          "Vendor Note:  <img src='/etc/motd'>\n\n");
    addReport("cold.txt", ata("Serial Number:    SN2\n", ""));
    addReport("named.txt", ata("Serial Number:    SN3\n", warm));
    addReport("nameless.txt", ata("", warm));
    QByteArray disks;
    for (const char *report :
         {R"("ata.txt")", R"("nvme.txt")", R"("cold.txt")", R"(["named.txt", "nameless.txt"])"})
        disks += QByteArray(disks.isEmpty() ? "" : ", ") + R"({"number": )" +
                 QByteArray::number(disks.count('{')) +
                 R"(, "model": "X Y", "interface": "IDE", "sectors": 2097152, "report": )" + report + "}";
    startPc(R"({"pauses": false, "disks": [)" + disks + R"(], "settings": {"FirstTimeLaunch": 1}})");
    makeWindow();
    waitForRead();
}

void tst_SmartTable::startOn(int disk)
{
    press("SmartStatusButton");
    waitForRead();
    if (disk != 0)
        select(disk);
}

QVector<QPointF> tst_SmartTable::points() const
{
    const auto *line = qobject_cast<QLineSeries *>(chart()->series().value(0));
    return line ? line->pointsVector() : QVector<QPointF>();
}

void tst_SmartTable::click(int row)
{
    const QRect place = tree()->visualRect(tree()->model()->index(row, 1));
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
}

QStringList tst_SmartTable::stored(const QString &serial, const char *key) const
{
    const HistoryPaths paths = historyPaths(serial);
    QStringList values;
    for (const qint64 value :
         readHistoryValues(paths.values, readHistoryDates(paths.dates, nullptr), QLatin1String(key)))
        values << QString::number(value);
    return values;
}

void tst_SmartTable::columnsByKind()
{
    const auto hidden = [this] {
        QList<int> columns;
        for (int column = 0; column < tree()->columnCount(); ++column) {
            if (tree()->isColumnHidden(column))
                columns << column;
        }
        return columns;
    };
    startOn(1);
    QCOMPARE(hidden(), QList<int>({3, 4, 5, 6, 7, 8, 9, 10, 11}));
    QCOMPARE(tree()->headerItem()->text(2), QStringLiteral("Values"));
    QCOMPARE(tree()->columnWidth(1), 300);
    QCOMPARE(tree()->topLevelItem(1)->text(2), QStringLiteral("1,234,567 [632 GB]"));
    QCOMPARE(tree()->topLevelItem(1)->text(3), QStringLiteral("Data Units Written"));
    QCOMPARE(tree()->topLevelItem(2)->toolTip(2), QStringLiteral("&lt;img src='/etc/motd'&gt;"));
    QCOMPARE(text("GraphLabel"), QStringLiteral("Graph : Temperature"));
    select(0);
    QCOMPARE(hidden(), QList<int>({7, 8, 9, 10, 11}));
    QCOMPARE(tree()->headerItem()->text(2), QStringLiteral("Status"));
    QCOMPARE(tree()->columnWidth(1), 150);
}

void tst_SmartTable::cells()
{
    startOn(0);
    QCOMPARE(tree()->topLevelItemCount(), 3);
    QVERIFY(tree()->topLevelItem(0)->isSelected());
    QCOMPARE(tree()->topLevelItem(0)->text(2), QStringLiteral("FAILED"));
    const QTreeWidgetItem *row = tree()->topLevelItem(1);
    const QStringList texts = {"5", "Reallocated Sector Count", "OK", "100", "99", "36",
                               "3", "Reallocated Sector Ct"};
    for (int column = 0; column < texts.size(); ++column) {
        QCOMPARE(row->text(column), texts[column]);
        QCOMPARE(row->toolTip(column), texts[column]);
        QCOMPARE(row->foreground(column).color(), column == 6 ? QColor(255, 0, 0) : QColor(0, 0, 0));
        QCOMPARE(row->sizeHint(column), QSize(12, 20));
    }
}

void tst_SmartTable::clickDrawsAnotherGraph()
{
    startOn(0);
    QCOMPARE(points(), QVector<QPointF>({{40, 7}, {40, 7}, {40, 6}}));
    QVector<QPointer<QObject>> before{chart()};
    for (QAbstractAxis *axis : chart()->axes())
        before << axis;
    for (QAbstractSeries *series : chart()->series())
        before << series;
    QCOMPARE(before.size(), 7);
    click(1);
    QCOMPARE(text("GraphLabel"), QStringLiteral("Graph : Reallocated Sector Count"));
    QCOMPARE(g_strGraphTitle, text("GraphLabel"));
    QCOMPARE(points(), QVector<QPointF>({{40, 3}, {40, 3}, {40, 2}}));
    for (const QPointer<QObject> &object : before)
        QVERIFY(object.isNull());
}

void tst_SmartTable::eachDiskHasItsOwnHistory()
{
    const QString yesterday = historyDate(QDateTime::currentDateTime().addDays(-1));
    AppendHistoryDate(historyPaths(QStringLiteral("SN0")).dates, yesterday);
    startOn(0);
    QCOMPARE(stored(QStringLiteral("SN0"), "Reallocated Sector Ct"), QStringList({"0", "3"}));
    QCOMPARE(points(), QVector<QPointF>({{0, 0}, {10, 7}, {20, 7}}));
    select(1);
    QCOMPARE(stored(QStringLiteral("SN1"), "Data Units Written"), QStringList("1234567"));
    QCOMPARE(points(), QVector<QPointF>({{40, 41}, {40, 41}, {40, 40}}));
}

void tst_SmartTable::laterRunsOfAReadChangeNothing()
{
    startOn(0);
    click(1);
    const QChart *shown = chart();
    m_pWindow->OnInitializeSmart();
    QCOMPARE(chart(), shown);
    QCOMPARE(text("GraphLabel"), QStringLiteral("Graph : Reallocated Sector Count"));
    QVERIFY(tree()->topLevelItem(1)->isSelected());
}

void tst_SmartTable::languageChangeKeepsHistoryAndGraph()
{
    startOn(0);
    click(1);
    const QChart *shown = chart();
    const HistoryPaths paths = historyPaths(QStringLiteral("SN0"));
    QVERIFY(QFile::remove(paths.dates) && QFile::remove(paths.values));
    // As after a disk without SMART.
    g_bSmartAvailable = false;
    tree()->topLevelItem(1)->setText(1, QStringLiteral("other language"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(child<QWidget>("m_pSmartWgt"), &change);
    QVERIFY(!QFile::exists(paths.dates) && !QFile::exists(paths.values));
    QCOMPARE(chart(), shown);
    QCOMPARE(tree()->topLevelItemCount(), 3);
    QCOMPARE(tree()->topLevelItem(1)->text(1), QStringLiteral("Reallocated Sector Count"));
    QCOMPARE(text("SmartResultLabel"), QStringLiteral("Failed"));
    QCOMPARE(text("GraphLabel"), QString());
}

void tst_SmartTable::unopenableDatesDrawNoGraph()
{
    startOn(0);
    QVERIFY(QDir().mkpath(historyPaths(QStringLiteral("SN1")).dates)); // a folder with the name of the file
    select(1);
    QCOMPARE(tree()->topLevelItemCount(), 3);
    // The graph of the previous disk does not stay either.
    QCOMPARE(chart()->series().size(), 0);
    QCOMPARE(text("GraphLabel") + g_strGraphTitle, QString());
}

void tst_SmartTable::serialOfTheDiskTable()
{
    // Its serial number was read at the load, and is missing since. The day is kept under no name; the graph
    // goes by the table's, and drawing it gives the disk no other identity.
    startOn(3);
    QCOMPARE(g_strSerialNumber, QString());
    QVERIFY(QFile::exists(historyPaths(QStringLiteral("SN3")).dates));
    QVERIFY(!readHistoryDates(historyPaths(QString()).dates, nullptr).empty());
    QCOMPARE(stored(QStringLiteral("SN3"), "Temperature Celsius"), QStringList());
    QCOMPARE(text("GraphLabel"), QString());
}

void tst_SmartTable::noTemperatureHidesTheChart()
{
    startOn(2);
    QVERIFY(!g_pSmartChartView->isVisible());
    QCOMPARE(text("SmartResultLabel"), QStringLiteral("Not Supported"));
    QCOMPARE(tree()->topLevelItemCount(), 2);
    select(0);
    QVERIFY(g_pSmartChartView->isVisible());
}

QTEST_MAIN(tst_SmartTable)
#include "tst_SmartTable.moc"
