// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"

#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"

namespace
{

constexpr int NotRated = -1000;

/// Good, average, bad, unknown, or the picture that was there.
QString letter(TilePicture picture)
{
    return QStringLiteral("GAB?-").at(static_cast<int>(picture));
}

} // namespace

/// Health, performance, life and temperature, and their tiles.
class tst_Rating : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { samples::forget(); }

    void ataHealth()
    {
        const auto health = [](const QString &rows) {
            return healthOfAta(samples::ataList(rows)).value_or(NotRated);
        };
        compareRows({" -> 0", "Runtime_Bad_Block=10 Current_Pending_Sector=5 -> 87",
                     "Wear_Leveling_Count=7@92 Offline_Uncorrectable=50 -> 46",
                     // A base goes ahead of blocks, these ahead of the rest of life. What left the factory
                     // bad is no base.
                     "Retired_Block_Count=60 Reallocated_Sector_Ct=2 SSD_Life_Left=0@1 -> 98",
                     "SSD_Life_Left=0@1 Retired_Block_Count=60 -> 40",
                     "SSD_Life_Left=0@253 Offline_Uncorrectable=50 -> 50",
                     "Initial_Bad_Block_Count=14 Total_Bad_Block_Count=19 -> -1000",
                     "Reallocated_Sector_Count=10 -> 90", "Reallocated_Sector_Ct=71 -> 30",
                     "Reallocated_Sector_Ct=2147483648 -> 100", "Reallocated_Sector_Ct=-5 -> 100",
                     "Reallocated_Sector_Ct=60 Current_Pending_Sector=50 Reallocated_Sector_Ct=2 -> 98"},
                    health);
        // Three times the count does not fit 32 bits; it must not wrap to a small damage. A damage of 30.6 is
        // truncated to 30.
        compareRows({"Spin_Retry_Count=1 -> 97", "Spin_Retry_Count=21 -> 40",
                     "Spin_Retry_Count=1431655766 -> 40", "Reallocated_Event_Count=3 -> 98",
                     "Reallocated_Event_Count=51 -> 69", "Reallocated_Event_Count=52 -> 70",
                     "Current_Pending_Sector=81 -> 51", "Current_Pending_Sector=82 -> 52",
                     "Offline_Uncorrectable=69 -> 31", "Offline_Uncorrectable=71 -> 30",
                     "Offline_Uncorrectable=50 Offline_Uncorrectable=1 -> 50",
                     "Current_Pending_Sector=1 Current_Pending_Sector=1 -> 99",
                     "x_Current_Pending_Sector_Count=10 -> 94"},
                    [health](const QString &rows) { return health("Reallocated_Sector_Ct=0 " + rows); });
        QCOMPARE(
            health("Reallocated_Sector_Ct=0" + QString(" Offline_Uncorrectable=-2147483548").repeated(20)),
            100);
    }

    void nvmeHealth()
    {
        compareRows(
            {"1% -> 100", "2% -> 98", "120% -> -20", " 13 % -> 87", "- -> 100", "-2147483648% -> 100"},
            [](const QString &used) {
                return *healthOfNvme(samples::nvmeList(
                    {"Available Spare=50%", "Percentage Used=" + used, "Percentage Used=33%"}));
            });
        QVERIFY(!healthOfNvme(samples::nvmeList({"Available Spare=50%"})));
        QCOMPARE(healthOfNvme({}).value_or(NotRated), 0);
    }

    /// Without SMART both ratings are 100.
    void availability()
    {
        compareRows(
            {"ATA/ATAPI-2 -> 100", "ATA1 ATA4 -> 100", "ata1 -> 100", "ATA2 rev 3 -> 50", "ATA1 -> 50"},
            performanceOf);
        g_smartTable.rows = samples::ataList("Reallocated_Sector_Ct=10");
        g_nvmeTable.rows = samples::nvmeList({"Percentage Used=20%"});
        g_strAtaVersion = "ATA2";
        QStringList ratings;
        for (const bool nvme : {false, true}) {
            for (const bool available : {true, false}) {
                g_App.m_bNVMe = nvme;
                g_bSmartAvailable = available;
                rateHealth();
                ratePerformance();
                ratings << g_strHealthText + ' ' + g_strPerformanceText;
            }
        }
        QCOMPARE(ratings, QStringList({"90% 50%", "100% 100%", "80% 100%", "100% 100%"}));
    }

    void life()
    {
        QCOMPARE(diskLifeDays(1000, 90), 668u);
        QCOMPARE(diskLifeDays(1725, -50), 25u);
        QCOMPARE(diskLifeDays(1825, 100), 0u);
        QCOMPARE(diskLifeDays(1826, 100), 4294967295u); // the number no longer fits
        // Days of life|days|hours|starts; half minutes are taken for hours.
        compareRows({"Power_On_Hours=24025 -> 824|1001|1|4",
                     "Power_On_Hours_and_Msec=50h+10m+20.000s -> 1823|2|2|4",
                     "Power_On_Half_Minutes=48 -> 1823|2|0|4", "Power_On_Hours=30000000000 -> 1825|0|0|4",
                     "Power_On_Minutes=50 -> 1|2|3|4", "Start_Stop_Count=x -> 1|2|3|0",
                     "Power_Cycle_Count=89 -> 1|2|3|4"},
                    [](const QString &row) {
                        LifeFigures f{1, 2, 3, 4};
                        takeLifeRow(f, *samples::ataList(row).head, 100);
                        return QStringLiteral("%1|%2|%3|%4")
                            .arg(f.nDiskLifeDays)
                            .arg(f.nPowerOnDays)
                            .arg(f.nPowerOnRestHours)
                            .arg(f.nStartStopCount);
                    });
    }

    void lifeLabels()
    {
        const auto texts = [](LifeKind kind, quint32 days, const QString &separator = LoadSeparator) {
            const LifeTexts found = lifeTexts(kind, {days, 41, 7, 12}, separator);
            return found.life + '|' + found.powerOn + '|' + found.startStop;
        };
        const LifeKind known = lifeKind(false, false, true);
        QCOMPARE(texts(known, 999), QString("999 days|41 days, 7 hours|12"));
        QCOMPARE(texts(known, 1000, RetranslateSeparator),
                 QString("More than 1000 days|41 days , 7 hours|12"));
        QCOMPARE(texts(lifeKind(true, true, true), 5), QString("Not available|Not available|Not available"));
        QCOMPARE(texts(lifeKind(false, true, false), 5),
                 QString("Not Available|Not Available|Not Available"));
        QCOMPARE(texts(lifeKind(false, false, false), 5), QString("||"));
        QCOMPARE(lifeTexts(known, {5, 0, 0, 0, false}).life, QString("Not Available"));
    }

    /// Of health and of performance, each at 100 percent, at 125 and at 150.
    void pictures()
    {
        compareRows({"81 -> GGG GGG", "80 -> GGG G--", "79 -> GGG A--", "76 -> GGG A--", "75 -> AAA A--",
                     "66 -> AAA A--", "65 -> -A- A--", "64 -> BBB BBB"},
                    [](const QString &percent) {
                        QString health;
                        QString performance;
                        for (const int scale : {100, 125, 150}) {
                            health += letter(healthPicture(percent.toInt(), scale));
                            performance += letter(performancePicture(percent.toInt(), scale));
                        }
                        return health + ' ' + performance;
                    });
        QCOMPARE(letter(healthPicture(std::nullopt, 100)), QString("?"));
        QCOMPARE(pictureText(TilePicture::Bad) + pictureText(TilePicture::Unknown), QString("Bad"));
        // Of the temperature, after a load and of a poll.
        compareRows({"49 -> G-", "50 -> AG", "65 -> AG", "66 -> BG"}, [](const QString &celsius) {
            return letter(loadTemperaturePicture(celsius.toInt())) +
                   letter(pollTemperaturePicture(celsius.toInt()));
        });
    }

    void overall()
    {
        QVERIFY(overallResult(true, 36, DriveVerdict::NotTold) == OverallResult::Passed);
        QVERIFY(overallResult(true, 0, DriveVerdict::Passed) == OverallResult::NotSupported);
        QVERIFY(overallResult(false, 36, DriveVerdict::Passed) == OverallResult::Failed);
        QVERIFY(overallResult(false, 0, DriveVerdict::Failed) == OverallResult::Failed);
    }

    void temperature()
    {
        compareRows({"Temperature_Case=30 Temperature_Internal=31 -> 0",
                     "Temperature_Celsius=- Airflow_Temperature_Cel=41 -> 0",
                     "Airflow_Temperature_Cel=41 Temperature_Celsius=36 -> 41",
                     "Spin_Up_Time=9 x_Temperature_Celsius_y=-5 -> -5",
                     "Temperature_Celsius=4294967332 -> 0"},
                    [](const QString &rows) { return ataTemperature(samples::ataList(rows)); });
        // A row that is written otherwise gives way to the next one.
        compareRows(
            {"Temperature=  36   Celsius  -> 36", "Temperature Sensor 1=-3 Celsius -> -3",
             "Temperature=- -> 0", "Temperature=97 Fahrenheit -> 0", "temperature=36 Celsius -> 1"},
            [](const QString &row) {
                return nvmeTemperature(samples::nvmeList({"Critical Warning=0x00", row, "Temperature=1"}));
            });
        // After a load, of a poll, and while a disk is read.
        compareRows({"37 C -> 37\u00B0C|37\u00B0C|0\u00B0C", "37 F -> 98\u00B0F|98\u00B0F|0\u00B0F",
                     "0 F -> 0\u00B0F|0\u00B0F|0\u00B0F", "-3 F -> 27\u00B0F|27\u00B0F|0\u00B0F",
                     "37 f -> 37\u00B0C||0\u00B0"},
                    [](const QString &row) {
                        const int celsius = row.section(' ', 0, 0).toInt();
                        const QString unit = row.section(' ', 1);
                        return loadTemperatureText(celsius, unit) + '|' + pollTemperatureText(celsius, unit) +
                               '|' + waitingTemperatureText(unit);
                    });
    }
};

QTEST_GUILESS_MAIN(tst_Rating)
#include "tst_Rating.moc"
