// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeHistory.h"
#include "smart/Rating.h"
#include "smart/SmartGlobals.h"
#include "smart/Temperature.h"
#include "state/SettingsStore.h"
#include "tests/ui/WindowFixture.h"
#include "ui/widgets/SmartChartView.h"
#include "ui/widgets/Style.h"

#include <QPointer>
#include <QTreeWidget>
#include <QtCharts/QAbstractAxis>
#include <QtCharts/QLineSeries>

using namespace QtCharts;

/// The two screens that read a disk: for different reports, with and without the companion, and the graph.
class tst_SmartRead : public QObject, private WindowFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { g_App.m_strApplicationFolder = QStringLiteral("C:\\Halvane"); }
    void init()
    {
        const QByteArray warm = "194 Temperature_Celsius 0x22 64 45 0 Old_age Always - 36\n";
        addReport("failed.txt", ata(identity("SN0"), "FAILED!", warm));
        addReport("nvme.txt", "=== START OF INFORMATION SECTION ===\nModel Number: NW2\nSerial Number: SN1\n"
                              "Firmware Version: FW2\n=== START OF SMART DATA SECTION ===\n"
                              "SMART overall-health self-assessment test result: PASSED\n\n"
                              "SMART/Health Information (NVMe Log 0x02)\nTemperature:  41 Celsius\n"
                              "Data Units Written:  1,234,567 [632 GB]\n"
                              "Vendor Note:  <img src='/etc/motd'>\n\n");
        addReport("cold.txt", ata(identity("SN2"), "PASSED", ""));
        addReport("named.txt", ata(identity("SN3"), "PASSED", warm));
        addReport("nameless.txt", ata("", "PASSED", warm));
    }
    void cleanup() { tearDown(); }

    void diskStatus()
    {
        open();
        const std::tuple<int, QString, QString, QString> rows[] = {
            // A disk with a temperature has SMART. A drive that calls itself failed reads "Failed".
            {Failed, "36\u00B0C|97%|50%", "Failed", "Failed: back up your data"},
            {Cold, "Not Supported|Not Supported|Not Supported", "Not Supported", "Passed"}};
        for (const auto &[disk, tiles, result, verdict] : rows) {
            press("DiskStatusButton");
            select(disk);
            const auto tilesAre = [&] {
                QCOMPARE(texts({"tempValueLbl", "healthValueLbl", "performanceValueLbl"}), tiles);
                QCOMPARE(texts({"ResultLabel", "DriveVerdictValue"}), result + '|' + verdict);
            };
            tilesAre();
            const QString sheet = disk == Failed ? style::FailedLabel : style::GreyLabel;
            QCOMPARE(child<QLabel>("ResultLabel")->styleSheet(), sheet);
            for (const char *tile : {"tempratureLbl", "PerformanceLbl", "HelthLable"})
                QCOMPARE(image(tile).contains("Unknown"), disk != Failed);
            for (const char *label : {"ResultLabel", "DriveVerdictValue"})
                child<QLabel>(label)->setText(QStringLiteral("other language"));
            changeLanguage(m_pWindow.get());
            changeLanguage(child<QWidget>("m_pDiskStatus"));
            m_pWindow->OnShowSettings();
            m_pWindow->OnSetSmartSettings();
            tilesAre();

            // The other screen rates the disk, too; its label depends on the temperature.
            goTo("SmartStatusButton");
            QCOMPARE(g_nHealthPercent, 97);
            QCOMPARE(text("SmartResultLabel"), result);
            QCOMPARE(child<QLabel>("SmartResultLabel")->styleSheet(), sheet);
            QCOMPARE(g_pSmartChartView->isVisible(), disk == Failed);
        }
    }

    void nothingToRate()
    {
        addReport("failed.txt",
                  ata("", "PASSED", "194 Temperature_Celsius 0x22 36 45 0 Old_age Always - 36\n")
                      .replace("Reallocated_Sector_Ct", "Initial_Bad_Block_Count"));
        open();
        const QString unknown = QStringLiteral("Not Supported|Not Available");
        QCOMPARE(texts({"healthValueLbl", "DiskLifeValue"}), unknown);
        QCOMPARE(image("HelthLable"), QStringLiteral(":/images/img_HealthUnknown.png"));
        child<QLabel>("healthValueLbl")->setText(QStringLiteral("other language"));
        changeLanguage(child<QWidget>("m_pDiskStatus"));
        QCOMPARE(texts({"healthValueLbl", "DiskLifeValue"}), unknown);
    }

    /// The last report has no identity. Nothing of the disk before shows, and the table's is not taken for
    /// it.
    void noIdentity()
    {
        open();
        const auto identity = {"tempValueLbl", "ModelNumValLbl", "SerialValLbl", "FrimvareVersValLbl"};
        QCOMPARE(texts(identity), QStringLiteral("36\u00B0C|NW1|SN0|FW1"));
        select(Nameless);
        QCOMPARE(texts(identity), QStringLiteral("36\u00B0C|NW1|SN3|")); // from the system's table
        goTo("SmartStatusButton");
        // The day is kept under no name. The graph goes by the table's serial number, and drawing it gives
        // the disk no other identity.
        QCOMPARE(g_strSerialNumber + text("GraphLabel"), QString());
        QVERIFY(QFile::exists(historyPaths(QStringLiteral("SN3")).dates));
        QVERIFY(!readHistoryDates(historyPaths(QString()).dates, nullptr).empty());
        QCOMPARE(stored("SN3", "Temperature Celsius"), std::vector<qint64>());
    }

    void choicesDuringARead()
    {
        open();
        QMutexLocker atWork(&m_tool);
        g_nDiskLifeDays = 7;
        const int reads = commands(" -a ");
        choose(Nvme);
        // No figure of the previous disk shows.
        QCOMPARE(text("ModelNumValLbl") + text("SerialValLbl") + text("DiskLifeValue"), QString());
        QCOMPARE(g_nDiskLifeDays, 0U);
        QVERIFY(!GetDiskTemperature());
        QTRY_COMPARE(commands(" -a "), reads + 1); // the tool runs now
        choose(Failed);
        choose(Nameless);
        // No poll of the temperature meanwhile.
        press("DiskPartitionButton");
        m_pWindow->GetSmartTemprature();
        QCOMPARE(commands(" -a "), reads + 1);
        press("SmartStatusButton");
        atWork.unlock();
        waitForRest();
        QCOMPARE(commands(" -a "), reads + 2);
        QCOMPARE(text("SmartResultLabel"), QStringLiteral("Passed"));
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QCOMPARE(GetDiskTemperature(), 36);
    }

    void companion()
    {
        // The window starts it, and the first read once more; but not if the user has ended it in this logon.
        const std::tuple<QByteArray, QByteArray, int> rows[] = {
            {R"(, "processes": ["VelmoraSMART.exe"])", "", 0},
            {R"(, "installed": ["VelmoraSMART.exe"])", "", 1},
            {"", "", 2},
            {"", R"(, "TrayQuit": 1)", 2},
            {R"(, "logon": "second")", R"(, "TrayQuit": "first")", 2},
            {R"(, "logon": "second")", R"(, "TrayQuit": "second")", 0}};
        for (const auto &[lists, settings, starts] : rows) {
            open(R"(, "ShowTrayIcon": 1)" + settings, lists);
            const QByteArray byPath = "\tC:\\Halvane\\VelmoraSMART.exe\t";
            QCOMPARE(logLines("opened.log").join(), byPath.repeated(starts));
            QCOMPARE(commands("C:\\Windows\\system32\\tasklist.exe | C:\\Windows\\system32\\findstr.exe "
                              "VelmoraSMART.exe >> "),
                     2);
            QCOMPARE(commands("TASKKILL.exe"), 0);
            QCOMPARE(text("tempValueLbl"), QStringLiteral("36\u00B0C"));
            tearDown();
            init();
        }
        open(R"(, "MetricsPath": "C:\\halvane.prom")"); // for which it runs without the tray, too
        QCOMPARE(commands("TASKKILL.exe"), 0);
    }

    void unreadableTaskListShowsTheDisk()
    {
        open();
        QCOMPARE(commands("TASKKILL.exe"), 1);
        SettingsStore().write(key::ShowTrayIcon, 1);
        // A folder with the name of the file.
        QVERIFY(QDir(m_strState).mkpath(QStringLiteral("temp/tmpFile")));
        select(Nvme);
        QCOMPARE(commands("tasklist.exe"), 1);
        QCOMPARE(text("ModelNumValLbl"), QStringLiteral("NW2"));
        QCOMPARE(logLines("opened.log").size(), 0);
        QCOMPARE(commands("TASKKILL.exe"), 1);
    }

    void table()
    {
        const auto hidden = [this] {
            QList<int> columns;
            for (int column = 0; column < tree()->columnCount(); ++column) {
                if (tree()->isColumnHidden(column))
                    columns << column;
            }
            return columns;
        };
        openTable();
        select(Nvme);
        QCOMPARE(hidden(), QList<int>({3, 4, 5, 6, 7, 8, 9, 10, 11}));
        QCOMPARE(tree()->headerItem()->text(2), QStringLiteral("Values"));
        QCOMPARE(tree()->columnWidth(1), 300);
        QCOMPARE(tree()->topLevelItem(1)->text(2), QStringLiteral("1,234,567 [632 GB]"));
        QCOMPARE(tree()->topLevelItem(2)->toolTip(2), QStringLiteral("&lt;img src='/etc/motd'&gt;"));
        QCOMPARE(text("GraphLabel"), QStringLiteral("Graph : Temperature"));
        select(Failed);
        QCOMPARE(hidden(), QList<int>({7, 8, 9, 10, 11}));
        QCOMPARE(tree()->headerItem()->text(2), QStringLiteral("Status"));
        QCOMPARE(tree()->columnWidth(1), 150);
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QVERIFY(tree()->topLevelItem(0)->isSelected());
        const QTreeWidgetItem *row = tree()->topLevelItem(1);
        const QStringList texts = {"5", "Reallocated Sector Count", "OK", "100", "99", "36",
                                   "3", "Reallocated Sector Ct"};
        for (int column = 0; column < texts.size(); ++column) {
            QCOMPARE(row->text(column) + row->toolTip(column), texts[column] + texts[column]);
            const bool red = column == 6;
            QCOMPARE(row->foreground(column), QBrush(red ? style::colour::Failed : style::colour::Text));
            QCOMPARE(row->font(column).weight() > QFont::Normal, red);
        }
    }

    void clickDrawsAnotherGraph()
    {
        openTable();
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
        // Later runs of the read change nothing.
        const QChart *shownChart = chart();
        m_pWindow->OnInitializeSmart();
        QVERIFY(chart() == shownChart && tree()->topLevelItem(1)->isSelected());

        // Nor does another language, except for the texts.
        const HistoryPaths paths = historyPaths(QStringLiteral("SN0"));
        QVERIFY(QFile::remove(paths.dates) && QFile::remove(paths.values));
        changeLanguage(child<QWidget>("m_pSmartWgt"));
        QCOMPARE(text("GraphLabel"), QStringLiteral("Graph"));
        g_bSmartAvailable = false; // as after a disk without SMART
        tree()->topLevelItem(1)->setText(1, QStringLiteral("other language"));
        changeLanguage(child<QWidget>("m_pSmartWgt"));
        QVERIFY(!QFile::exists(paths.dates) && !QFile::exists(paths.values));
        QCOMPARE(chart(), shownChart);
        QCOMPARE(tree()->topLevelItemCount(), 3);
        QCOMPARE(tree()->topLevelItem(1)->text(1), QStringLiteral("Reallocated Sector Count"));
        QCOMPARE(texts({"SmartResultLabel", "GraphLabel"}), QStringLiteral("Failed|"));
    }

    void eachDiskHasItsOwnHistory()
    {
        open();
        AppendHistoryDate(historyPaths(QStringLiteral("SN0")).dates,
                          historyDate(QDateTime::currentDateTime().addDays(-1)));
        goTo("SmartStatusButton");
        QCOMPARE(stored("SN0", "Reallocated Sector Ct"), (std::vector<qint64>{0, 3}));
        QCOMPARE(points(), QVector<QPointF>({{0, 0}, {10, 7}, {20, 7}}));
        select(Nvme);
        QCOMPARE(stored("SN1", "Data Units Written"), std::vector<qint64>{1234567});
        QCOMPARE(points(), QVector<QPointF>({{40, 41}, {40, 41}, {40, 40}}));
        // Days that cannot be read draw no graph, and that of the previous disk does not stay either.
        QVERIFY(QDir().mkpath(historyPaths(QStringLiteral("SN2")).dates)); // a folder of that name
        select(Cold);
        QCOMPARE(tree()->topLevelItemCount(), 2);
        QCOMPARE(chart()->series().size(), 0);
        QCOMPARE(text("GraphLabel") + g_strGraphTitle, QString());
    }

private:
    /// The places of the disks in the combo box.
    static constexpr int Failed = 0;
    static constexpr int Nvme = 1;
    static constexpr int Cold = 2;
    static constexpr int Nameless = 3; ///< its identity is in the report of the load alone

    static QByteArray identity(const QByteArray &serial)
    {
        return "Device Model: NW1\nSerial Number: " + serial +
               "\nFirmware Version: FW1\nATA Version is: ATA2\n";
    }
    static QByteArray ata(const QByteArray &identity, const QByteArray &verdict,
                          const QByteArray &temperature)
    {
        return identity + "\n=== START OF READ SMART DATA SECTION ===\n" +
               "SMART overall-health self-assessment test result: " + verdict +
               "\n\nID# ATTRIBUTE_NAME FLAG VALUE WORST THRESH TYPE UPDATED WHEN_FAILED RAW_VALUE\n"
               "  1 Raw_Read_Error_Rate 0x002f 036 036 036 Pre-fail Always - 7\n"
               "  5 Reallocated_Sector_Ct 0x0033 100 099 036 Pre-fail Always - 3\n" +
               temperature;
    }

    /// Disk Status on a PC with these disks. Its tool looks at the clock before it reads a disk.
    void open(const QByteArray &settings = QByteArray(), const QByteArray &more = QByteArray())
    {
        QByteArrayList disks;
        for (const char *report :
             {R"("failed.txt")", R"("nvme.txt")", R"("cold.txt")", R"(["named.txt", "nameless.txt"])"})
            disks << R"({"model": "X Y ATA Device", "sectors": 2097152, "number": )" +
                         QByteArray::number(10 + disks.size()) + R"(, "report": )" + report + "}";
        openWindow(pcOf(disks.join(','), settings, more), [this] {
            if (QThread::currentThread() != qApp->thread())
                const QMutexLocker waits(&m_tool);
            return QDateTime::currentMSecsSinceEpoch();
        });
    }

    /// The attributes of the first disk.
    void openTable()
    {
        open();
        goTo("SmartStatusButton");
    }

    QMutex m_tool; ///< while a test holds it, the tool is at work
    QTreeWidget *tree() const { return child<QTreeWidget>("m_pAttributeTree"); }
    static QChart *chart() { return g_pSmartChartView->chart(); }
    static QVector<QPointF> points()
    {
        const auto *line = qobject_cast<QLineSeries *>(chart()->series().value(0));
        return line ? line->pointsVector() : QVector<QPointF>();
    }

    /// Clicks the name of the row with the mouse.
    void click(int row) const
    {
        const QRect place = tree()->visualRect(tree()->model()->index(row, 1));
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    }

    static std::vector<qint64> stored(const char *serial, const char *key)
    {
        const HistoryPaths paths = historyPaths(QLatin1String(serial));
        return readHistoryValues(paths.values, readHistoryDates(paths.dates, nullptr), QLatin1String(key));
    }
};

QTEST_MAIN(tst_SmartRead)
#include "tst_SmartRead.moc"
