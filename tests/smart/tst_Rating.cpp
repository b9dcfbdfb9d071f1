// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/Rating.h"

#include "smart/HealthCatalogue.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/FakePlatform.h"

#include <QtTest>

#include <limits>

using samples::AtaList;
using samples::NvmeList;

constexpr int NotRated = -1000;

Q_DECLARE_METATYPE(TilePicture)

class tst_Rating : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { FakePlatform::install(); }
    void init() { samples::forget(); }
    void cleanup() { samples::forget(); }

    void realReports_data();
    void realReports();
    void ataHealth_data();
    void ataHealth();
    void nvmeHealth_data();
    void nvmeHealth();
    void performance_data();
    void performance();
    void availability_data();
    void availability();
    void lifeDays_data();
    void lifeDays();
    void lifeRows_data();
    void lifeRows();
    void figuresOutliveTheDisk();
    void lifeLabels_data();
    void lifeLabels();
    void lifeKinds();
    void pictures_data();
    void pictures();
    void overall();
};

void tst_Rating::realReports_data()
{
    QTest::addColumn<int>("index");
    const QVector<samples::Sample> all = samples::all();
    QVERIFY(!all.isEmpty());
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).file.toUtf8().constData()) << i;
}

void tst_Rating::realReports()
{
    QFETCH(int, index);
    const samples::Sample sample = samples::all().at(index);
    const QString path = samples::stage(samples::bytesOf(sample.file));
    takeReportIn(path);
    g_bSmartAvailable = true;
    rateHealth();
    ratePerformance();
    QCOMPARE(g_nHealthPercent, sample.health);
    QCOMPARE(g_bHealthKnown, sample.rated);
    QCOMPARE(g_strHealthText, QString::number(sample.health) + '%');
    QCOMPARE(g_nPerformancePercent, sample.performance);
    QCOMPARE(g_strPerformanceText, QString::number(sample.performance) + '%');
    if (!g_App.m_bNVMe)
        updateLifeFigures();
    QCOMPARE(g_nDiskLifeDays, sample.life.nDiskLifeDays);
    QCOMPARE(g_nPowerOnDays, sample.life.nPowerOnDays);
    QCOMPARE(g_nPowerOnRestHours, sample.life.nPowerOnRestHours);
    QCOMPARE(g_nStartStopCount, sample.life.nStartStopCount);
}

void tst_Rating::ataHealth_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("health");
    const auto row = [](const char *name, const char *rows, int health) {
        QTest::newRow(name) << rows << health;
    };
    const auto based = [](const char *name, const QString &rows, int health) {
        QTest::newRow(name) << "Reallocated_Sector_Ct=0 " + rows << health;
    };
    row("no rows", "", 0);
    row("no base", "Power_On_Hours=1", NotRated);
    for (const char *name : healthcatalogue::BlockRows)
        row(name, qPrintable(QString(name) + "=10 Current_Pending_Sector=5"), 87);
    for (const char *name : healthcatalogue::LifeRows)
        row(name, qPrintable(QString(name) + "=7@92 Offline_Uncorrectable=50"), 46);
    row("base ahead of blocks and life", "Retired_Block_Count=60 Reallocated_Sector_Ct=2 SSD_Life_Left=0@1",
        98);
    row("damage ahead of the life row", "Offline_Uncorrectable=50 Media_Wearout_Indicator=0@90", 45);
    row("blocks that left the factory bad", "Initial_Bad_Block_Count=14 Total_Bad_Block_Count=19", NotRated);
    row("base alone", "Reallocated_Sector_Ct=0", 100);
    row("base by its long name", "Reallocated_Sector_Count=10", 90);
    row("base 70", "Reallocated_Sector_Ct=70", 30);
    row("base 71", "Reallocated_Sector_Ct=71", 30);
    row("base 4095", "Reallocated_Sector_Ct=4095", 30);
    row("base unreadable", "Reallocated_Sector_Ct=0x12", 100);
    row("base beyond 32 bits", "Reallocated_Sector_Ct=2147483648", 100);
    row("base below zero is capped", "Reallocated_Sector_Ct=-5", 100);
    row("rows ahead of the base count for nothing", "Current_Pending_Sector=50 Reallocated_Sector_Ct=10", 90);
    row("the later base wins", "Reallocated_Sector_Ct=60 Current_Pending_Sector=50 Reallocated_Sector_Ct=2",
        98);
    row("the rest without a base", "Current_Pending_Sector=1 Offline_Uncorrectable=1", NotRated);
    row("10 and pending 5", "Reallocated_Sector_Ct=10 Current_Pending_Sector=5", 87);
    based("spin 20", "Spin_Retry_Count=20", 40);
    based("spin 21", "Spin_Retry_Count=21", 40);
    based("spin 1", "Spin_Retry_Count=1", 97);
    // Three times the count does not fit 32 bits; it must not wrap to a small damage.
    based("spin beyond 32 bits", "Spin_Retry_Count=1431655766", 40);
    based("spin 1000000000", "Spin_Retry_Count=1000000000", 40);
    based("events 51, truncated 30", "Reallocated_Event_Count=51", 69);
    based("events 52", "Reallocated_Event_Count=52", 70);
    based("events 3", "Reallocated_Event_Count=3", 98);
    based("pending 81", "Current_Pending_Sector=81", 51);
    based("pending 82", "Current_Pending_Sector=82", 52);
    based("pending beyond 32 bits", "Current_Pending_Sector=9999999999", 100);
    based("uncorrectable 70", "Offline_Uncorrectable=70", 30);
    based("uncorrectable 71", "Offline_Uncorrectable=71", 30);
    based("uncorrectable 2147483647", "Offline_Uncorrectable=2147483647", 30);
    based("rounds half up", "Offline_Uncorrectable=50 Offline_Uncorrectable=1", 50);
    based("rounds down", "Current_Pending_Sector=1 Current_Pending_Sector=1", 99);
    based("all at their worst",
          "Spin_Retry_Count=99 Reallocated_Event_Count=99 Current_Pending_Sector=99 "
          "Offline_Uncorrectable=99",
          4);
    based("row by part of its name", "Current_Pending_Sector_Count=10", 94);
    based("other rows", "Reported_Uncorrect=50 Runtime_Bad_Block=9", 100);
    based("negative without end", QString("Offline_Uncorrectable=-2147483548 ").repeated(20), 100);
    based("lowest number", "Offline_Uncorrectable=-2147483648", 100);
}

void tst_Rating::ataHealth()
{
    QFETCH(QString, rows);
    AtaList list;
    list.addAll(rows);
    QTEST(healthOfAta(list).value_or(NotRated), "health");
}

void tst_Rating::nvmeHealth_data()
{
    QTest::addColumn<QString>("used");
    QTest::addColumn<int>("health");
    QTest::newRow("0") << "0%" << 100;
    QTest::newRow("1") << "1%" << 100;
    QTest::newRow("2") << "2%" << 98;
    QTest::newRow("100") << "100%" << 0;
    QTest::newRow("120") << "120%" << -20;
    QTest::newRow("blank before the sign") << " 13 %" << 87;
    QTest::newRow("unreadable") << "-" << 100;
    QTest::newRow("negative") << "-7%" << 100;
    QTest::newRow("lowest") << "-2147483648%" << 100;
}

void tst_Rating::nvmeHealth()
{
    QFETCH(QString, used);
    QFETCH(int, health);
    NvmeList list;
    QCOMPARE(healthOfNvme(list), std::optional<int>(0));
    list.add("Available Spare", "50%");
    QVERIFY(!healthOfNvme(list));
    list.add("Percentage Used", used);
    list.add("Percentage Used", "33%");
    QCOMPARE(healthOfNvme(list), std::optional<int>(health));
}

void tst_Rating::performance_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<int>("percent");
    QTest::newRow("empty") << "" << 100;
    QTest::newRow("ATA8") << "ATA8-ACS T13/1699-D revision 4" << 100;
    QTest::newRow("within") << "ACS-2, ATA8-ACS T13/1699-D revision 4" << 100;
    QTest::newRow("ATA3") << "ATA3" << 100;
    QTest::newRow("ATA2") << "ATA2 rev 3" << 50;
    QTest::newRow("ATA1") << "ATA1" << 50;
    QTest::newRow("newer word wins") << "ATA1 ATA4" << 100;
    QTest::newRow("case") << "ata1" << 100;
    QTest::newRow("dash") << "ATA/ATAPI-2" << 100;
    QTest::newRow("number alone") << "1" << 100;
}

void tst_Rating::performance()
{
    QFETCH(QString, version);
    QTEST(performanceOf(version), "percent");
}

void tst_Rating::availability_data()
{
    QTest::addColumn<bool>("nvme");
    QTest::addColumn<bool>("available");
    QTest::addColumn<int>("health");
    QTest::addColumn<int>("performance");
    QTest::newRow("ATA") << false << true << 90 << 50;
    QTest::newRow("ATA, not available") << false << false << 100 << 100;
    QTest::newRow("NVMe") << true << true << 80 << 100;
    QTest::newRow("NVMe, not available") << true << false << 100 << 100;
}

void tst_Rating::availability()
{
    QFETCH(bool, nvme);
    QFETCH(bool, available);
    SmartAttributeRecord ata;
    ata.AttributeName.assign("Reallocated_Sector_Ct");
    ata.RawValue.assign("10");
    g_smartTable.rows.append(ata);
    NvmeAttributeRecord log;
    log.Name.assign("Percentage Used");
    log.Value.assign("20%");
    g_nvmeTable.rows.append(log);
    g_strAtaVersion = "ATA2";
    g_App.m_bNVMe = nvme;
    g_bSmartAvailable = available;
    rateHealth();
    ratePerformance();
    QTEST(g_nHealthPercent, "health");
    QTEST(g_nPerformancePercent, "performance");
}

void tst_Rating::lifeDays_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("health");
    QTest::addColumn<quint32>("life");
    QTest::newRow("new") << 0 << 100 << 1825u;
    QTest::newRow("1000 days") << 1000 << 100 << 825u;
    QTest::newRow("1000 days at 90") << 1000 << 90 << 668u;
    QTest::newRow("1000 days at 30") << 1000 << 30 << 74u;
    QTest::newRow("health 0") << 1000 << 0 << 0u;
    QTest::newRow("last day") << 1825 << 100 << 0u;
    QTest::newRow("a day later the number no longer fits") << 1826 << 100 << 4294967295u;
    QTest::newRow("long after") << 2733 << 100 << 4294966272u;
    QTest::newRow("long after, ill") << 2733 << 0 << 0u;
    QTest::newRow("negative health counts squared") << 1825 - 100 << -50 << 25u;
    QTest::newRow("beyond any number") << 1826 << std::numeric_limits<int>::min() << 4294967295u;
}

void tst_Rating::lifeDays()
{
    QFETCH(int, days);
    QFETCH(int, health);
    QTEST(diskLifeDays(days, health), "life");
}

void tst_Rating::lifeRows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("figures"); // life days|days|hours|starts, before: 1|2|3|4
    QTest::newRow("hours") << "Power_On_Hours"
                           << "24025"
                           << "824|1001|1|4";
    QTest::newRow("hours and msec") << "Power_On_Hours_and_Msec"
                                    << "50h+10m+20.000s"
                                    << "1823|2|2|4";
    QTest::newRow("half minutes are taken for hours") << "Power_On_Half_Minutes"
                                                      << "48"
                                                      << "1823|2|0|4";
    QTest::newRow("unreadable hours") << "Power_On_Hours"
                                      << "-"
                                      << "1825|0|0|4";
    QTest::newRow("hours beyond 32 bits") << "Power_On_Hours"
                                          << "30000000000"
                                          << "1825|0|0|4";
    QTest::newRow("minutes") << "Power_On_Minutes"
                             << "50"
                             << "1|2|3|4";
    QTest::newRow("starts") << "Start_Stop_Count"
                            << "89"
                            << "1|2|3|89";
    QTest::newRow("unreadable starts") << "Start_Stop_Count"
                                       << "x"
                                       << "1|2|3|0";
    QTest::newRow("other") << "Power_Cycle_Count"
                           << "89"
                           << "1|2|3|4";
}

void tst_Rating::lifeRows()
{
    QFETCH(QString, name);
    QFETCH(QString, raw);
    SmartAttributeRecord row;
    row.AttributeName.assign(name);
    row.RawValue.assign(raw);
    LifeFigures f{1, 2, 3, 4};
    takeLifeRow(f, row, 100);
    QTEST(QString("%1|%2|%3|%4")
              .arg(f.nDiskLifeDays)
              .arg(f.nPowerOnDays)
              .arg(f.nPowerOnRestHours)
              .arg(f.nStartStopCount),
          "figures");
}

void tst_Rating::figuresOutliveTheDisk()
{
    g_nHealthPercent = 100;
    AtaList first;
    first.addAll("Power_On_Hours=24 Start_Stop_Count=9");
    g_smartTable.rows = std::move(first);
    updateLifeFigures();
    AtaList second;
    second.addAll("Start_Stop_Count=10");
    g_smartTable.rows = std::move(second);
    updateLifeFigures();
    QCOMPARE(g_nPowerOnDays, 1);
    QCOMPARE(g_nDiskLifeDays, 1824u);
    QCOMPARE(g_nStartStopCount, 10);
}

void tst_Rating::lifeLabels_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<quint32>("days");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("texts");
    const auto known = int(LifeKind::Known);
    QTest::newRow("999") << known << 999u << LoadSeparator << "999 days|41 days, 7 hours|12";
    QTest::newRow("1000") << known << 1000u << LoadSeparator << "More than 1000 days|41 days, 7 hours|12";
    QTest::newRow("wrapped") << known << 4294967040u << LoadSeparator
                             << "More than 1000 days|41 days, 7 hours|12";
    QTest::newRow("after a change of language")
        << known << 0u << RetranslateSeparator << "0 days|41 days , 7 hours|12";
    QTest::newRow("NVMe") << int(LifeKind::Nvme) << 5u << LoadSeparator
                          << "Not available|Not available|Not available";
    QTest::newRow("removable") << int(LifeKind::Removable) << 5u << LoadSeparator
                               << "Not Available|Not Available|Not Available";
    QTest::newRow("no rows") << int(LifeKind::NoRows) << 5u << LoadSeparator << "||";
}

void tst_Rating::lifeLabels()
{
    QFETCH(int, kind);
    QFETCH(quint32, days);
    QFETCH(QString, separator);
    const LifeTexts texts = lifeTexts(static_cast<LifeKind>(kind), {days, 41, 7, 12}, separator);
    QTEST(texts.life + '|' + texts.powerOn + '|' + texts.startStop, "texts");
}

void tst_Rating::lifeKinds()
{
    QVERIFY(lifeKind(true, true, true) == LifeKind::Nvme);
    QVERIFY(lifeKind(false, true, false) == LifeKind::Removable);
    QVERIFY(lifeKind(false, false, false) == LifeKind::NoRows);
    QVERIFY(lifeKind(false, false, true) == LifeKind::Known);
}

void tst_Rating::pictures_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<QVector<TilePicture>>("health"); // at 100, 125, 150 and 200 percent
    QTest::addColumn<QVector<TilePicture>>("performance");
    using Row = QVector<TilePicture>;
    constexpr auto Good = TilePicture::Good;
    constexpr auto Average = TilePicture::Average;
    constexpr auto Bad = TilePicture::Bad;
    constexpr auto Same = TilePicture::Same;
    QTest::newRow("81") << 81 << Row(4, Good) << Row(4, Good);
    QTest::newRow("80") << 80 << Row(4, Good) << Row{Good, Same, Same, Same};
    QTest::newRow("76") << 76 << Row(4, Good) << Row{Average, Same, Same, Same};
    QTest::newRow("75") << 75 << Row(4, Average) << Row{Average, Same, Same, Same};
    QTest::newRow("66") << 66 << Row(4, Average) << Row{Average, Same, Same, Same};
    QTest::newRow("65") << 65 << Row{Same, Average, Same, Same} << Row{Average, Same, Same, Same};
    QTest::newRow("64") << 64 << Row(4, Bad) << Row(4, Bad);
    QTest::newRow("-20") << -20 << Row(4, Bad) << Row(4, Bad);
}

void tst_Rating::pictures()
{
    QFETCH(int, percent);
    QFETCH(QVector<TilePicture>, health);
    QFETCH(QVector<TilePicture>, performance);
    const int scales[] = {100, 125, 150, 200};
    for (int i = 0; i < 4; ++i) {
        QVERIFY(healthPicture(percent, scales[i]) == health[i]);
        QVERIFY(performancePicture(percent, scales[i]) == performance[i]);
    }
    QVERIFY(healthPicture(std::nullopt, 100) == TilePicture::Unknown);
}

void tst_Rating::overall()
{
    QVERIFY(overallResult(true, 36, DriveVerdict::NotTold) == OverallResult::Passed);
    QVERIFY(overallResult(true, 0, DriveVerdict::Passed) == OverallResult::NotSupported);
    QVERIFY(overallResult(false, 0, DriveVerdict::Passed) == OverallResult::NotSupported);
    QVERIFY(overallResult(false, 36, DriveVerdict::Passed) == OverallResult::Failed);
    QVERIFY(overallResult(false, 0, DriveVerdict::Failed) == OverallResult::Failed);
}

QTEST_GUILESS_MAIN(tst_Rating)
#include "tst_Rating.moc"
