// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"

#include "smart/HealthCatalogue.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

#include <limits>

constexpr int NotRated = -1000;

class tst_Rating : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void ataHealth()
    {
        const auto row = [](const QString &rows, int health) {
            const int got = healthOfAta(samples::ataList(rows)).value_or(NotRated);
            QCOMPARE(rows + QString(" -> %1").arg(got), rows + QString(" -> %1").arg(health));
        };
        const auto based = [row](const char *rows, int health) {
            row(QLatin1String("Reallocated_Sector_Ct=0 ") + rows, health);
        };
        row("", 0);
        for (const char *name : healthcatalogue::BlockRows)
            row(QString(name) + "=10 Current_Pending_Sector=5", 87);
        for (const char *name : healthcatalogue::LifeRows)
            row(QString(name) + "=7@92 Offline_Uncorrectable=50", 46);
        // A base goes ahead of blocks, these ahead of the rest of life. What left the factory bad is no base.
        row("Retired_Block_Count=60 Reallocated_Sector_Ct=2 SSD_Life_Left=0@1", 98);
        row("SSD_Life_Left=0@1 Retired_Block_Count=60", 40);
        row("SSD_Life_Left=0@253", 100);
        row("Initial_Bad_Block_Count=14 Total_Bad_Block_Count=19 Current_Pending_Sector=1", NotRated);
        row("Reallocated_Sector_Count=10", 90);
        row("Reallocated_Sector_Ct=70", 30);
        row("Reallocated_Sector_Ct=71", 30);
        row("Reallocated_Sector_Ct=4095", 30);
        row("Reallocated_Sector_Ct=0x12", 100);
        row("Reallocated_Sector_Ct=2147483648", 100);
        row("Reallocated_Sector_Ct=-5", 100);
        row("Reallocated_Sector_Ct=60 Current_Pending_Sector=50 Reallocated_Sector_Ct=2", 98);
        based("Spin_Retry_Count=1", 97);
        based("Spin_Retry_Count=20", 40);
        based("Spin_Retry_Count=21", 40);
        // Three times the count does not fit 32 bits; it must not wrap to a small damage.
        based("Spin_Retry_Count=1431655766", 40);
        based("Reallocated_Event_Count=3", 98);
        based("Reallocated_Event_Count=51", 69); // the damage is truncated to 30
        based("Reallocated_Event_Count=52", 70);
        based("Current_Pending_Sector=81", 51);
        based("Current_Pending_Sector=82", 52);
        based("Offline_Uncorrectable=69", 31);
        based("Offline_Uncorrectable=71", 30);
        based("Offline_Uncorrectable=50 Offline_Uncorrectable=1", 50); // 49.5
        based("Current_Pending_Sector=1 Current_Pending_Sector=1", 99);
        based("x_Current_Pending_Sector_Count=10", 94);
        row("Reallocated_Sector_Ct=0" + QString(" Offline_Uncorrectable=-2147483548").repeated(20), 100);
    }

    void nvmeHealth()
    {
        const auto row = [](const QString &used, int health) {
            const int got = *healthOfNvme(
                samples::nvmeList({"Available Spare=50%", "Percentage Used=" + used, "Percentage Used=33%"}));
            QCOMPARE(used + QString(" -> %1").arg(got), used + QString(" -> %1").arg(health));
        };
        row("0%", 100);
        row("1%", 100);
        row("2%", 98);
        row("120%", -20);
        row(" 13 %", 87);
        row("-", 100);
        row("-2147483648%", 100);
        QVERIFY(!healthOfNvme(samples::nvmeList({"Available Spare=50%"})));
        QCOMPARE(healthOfNvme({}).value_or(NotRated), 0);
    }

    void performance()
    {
        for (const char *version :
             {"", "ATA3", "ACS-2, ATA8-ACS T13/1699-D", "ATA1 ATA4", "ata1", "ATA/ATAPI-2"})
            QCOMPARE(performanceOf(version), 100);
        for (const char *version : {"ATA2 rev 3", "ATA1"})
            QCOMPARE(performanceOf(version), 50);
    }

    /// Without SMART both ratings are 100.
    void availability()
    {
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

    void lifeDays()
    {
        QCOMPARE(diskLifeDays(1000, 100), 825u);
        QCOMPARE(diskLifeDays(1000, 90), 668u);
        QCOMPARE(diskLifeDays(1000, 0), 0u);
        QCOMPARE(diskLifeDays(1725, -50), 25u);
        QCOMPARE(diskLifeDays(1825, 100), 0u);
        // A day later the number no longer fits.
        QCOMPARE(diskLifeDays(1826, 100), 4294967295u);
        QCOMPARE(diskLifeDays(2733, 100), 4294966272u);
        QCOMPARE(diskLifeDays(1826, std::numeric_limits<int>::min()), 4294967295u);
    }

    void lifeRows()
    {
        const auto row = [](const QString &text, const char *figures) { // days of life|days|hours|starts
            LifeFigures f{1, 2, 3, 4};
            takeLifeRow(f, *samples::ataList(text).head, 100);
            QCOMPARE(text + QString(" -> %1|%2|%3|%4")
                                .arg(f.nDiskLifeDays)
                                .arg(f.nPowerOnDays)
                                .arg(f.nPowerOnRestHours)
                                .arg(f.nStartStopCount),
                     text + " -> " + figures);
        };
        row("Power_On_Hours=24025", "824|1001|1|4");
        row("Power_On_Hours_and_Msec=50h+10m+20.000s", "1823|2|2|4");
        row("Power_On_Half_Minutes=48", "1823|2|0|4"); // taken for hours
        row("Power_On_Hours=30000000000", "1825|0|0|4");
        row("Power_On_Minutes=50", "1|2|3|4");
        row("Start_Stop_Count=89", "1|2|3|89");
        row("Start_Stop_Count=x", "1|2|3|0");
        row("Power_Cycle_Count=89", "1|2|3|4");
    }

    void figuresOutliveTheDisk()
    {
        g_nHealthPercent = 100;
        g_smartTable.rows = samples::ataList("Power_On_Hours=24 Start_Stop_Count=9");
        updateLifeFigures();
        g_smartTable.rows = samples::ataList("Start_Stop_Count=10");
        updateLifeFigures();
        QCOMPARE(g_nPowerOnDays, 1);
        QCOMPARE(g_nDiskLifeDays, 1824u);
        QCOMPARE(g_nStartStopCount, 10);
    }

    void lifeLabels()
    {
        const auto texts = [](LifeKind kind, quint32 days, const QString &separator = LoadSeparator) {
            const LifeTexts found = lifeTexts(kind, {days, 41, 7, 12}, separator);
            return found.life + '|' + found.powerOn + '|' + found.startStop;
        };
        const LifeKind known = lifeKind(false, false, true);
        QCOMPARE(texts(known, 999), QString("999 days|41 days, 7 hours|12"));
        QCOMPARE(texts(known, 1000), QString("More than 1000 days|41 days, 7 hours|12"));
        QCOMPARE(texts(known, 0, RetranslateSeparator), QString("0 days|41 days , 7 hours|12"));
        QCOMPARE(texts(lifeKind(true, true, true), 5), QString("Not available|Not available|Not available"));
        QCOMPARE(texts(lifeKind(false, true, false), 5),
                 QString("Not Available|Not Available|Not Available"));
        QCOMPARE(texts(lifeKind(false, false, false), 5), QString("||"));
        QCOMPARE(lifeTexts(known, {5, 0, 0, 0, false}).life, QString("Not Available"));
    }

    void pictures()
    {
        using P = TilePicture;
        // Each at 100 percent, at 125 and at 150.
        const struct {
            int percent;
            P health[3];
            P performance[3];
        } rows[] = {
            {81, {P::Good, P::Good, P::Good}, {P::Good, P::Good, P::Good}},
            {80, {P::Good, P::Good, P::Good}, {P::Good, P::Same, P::Same}},
            {79, {P::Good, P::Good, P::Good}, {P::Average, P::Same, P::Same}},
            {76, {P::Good, P::Good, P::Good}, {P::Average, P::Same, P::Same}},
            {75, {P::Average, P::Average, P::Average}, {P::Average, P::Same, P::Same}},
            {66, {P::Average, P::Average, P::Average}, {P::Average, P::Same, P::Same}},
            {65, {P::Same, P::Average, P::Same}, {P::Average, P::Same, P::Same}},
            {64, {P::Bad, P::Bad, P::Bad}, {P::Bad, P::Bad, P::Bad}},
        };
        for (const auto &row : rows) {
            for (int i = 0; i < 3; ++i) {
                QVERIFY2(healthPicture(row.percent, 100 + 25 * i) == row.health[i],
                         qPrintable(QString::number(row.percent)));
                QVERIFY2(performancePicture(row.percent, 100 + 25 * i) == row.performance[i],
                         qPrintable(QString::number(row.percent)));
            }
        }
        QVERIFY(healthPicture(std::nullopt, 100) == P::Unknown);
    }

    void overall()
    {
        QVERIFY(overallResult(true, 36, DriveVerdict::NotTold) == OverallResult::Passed);
        QVERIFY(overallResult(true, 0, DriveVerdict::Passed) == OverallResult::NotSupported);
        QVERIFY(overallResult(false, 0, DriveVerdict::Passed) == OverallResult::NotSupported);
        QVERIFY(overallResult(false, 36, DriveVerdict::Passed) == OverallResult::Failed);
        QVERIFY(overallResult(false, 0, DriveVerdict::Failed) == OverallResult::Failed);
    }
};

QTEST_GUILESS_MAIN(tst_Rating)
#include "tst_Rating.moc"
