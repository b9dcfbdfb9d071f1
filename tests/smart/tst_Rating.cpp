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
    return QString("GAB?-").at(int(picture));
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
        compareRows("Rating/ataHealth", health);
        compareRows("Rating/damage",
                    [health](const QString &rows) { return health("Reallocated_Sector_Ct=0 " + rows); });
        QCOMPARE(
            health("Reallocated_Sector_Ct=0" + QString(" Offline_Uncorrectable=-2147483548").repeated(20)),
            100);
    }

    void nvmeHealth()
    {
        compareRows("Rating/nvmeHealth", [](const QString &used) {
            return *healthOfNvme(
                samples::nvmeList({"Available Spare=50%", "Percentage Used=" + used, "Percentage Used=33%"}));
        });
        QVERIFY(!healthOfNvme(samples::nvmeList({"Available Spare=50%"})));
        QCOMPARE(healthOfNvme({}).value_or(NotRated), 0);
    }

    /// Without SMART both ratings are 100.
    void availability()
    {
        compareRows("Rating/performance", performanceOf);
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
        QCOMPARE(diskLifeDays(1725, -50), 25u);
        QCOMPARE(diskLifeDays(1825, 100), 0u);
        QCOMPARE(diskLifeDays(1826, 100), 4294967295u); // the number no longer fits
        // Days of life|days|hours|starts; half minutes are taken for hours.
        compareRows("Rating/life", [](const QString &row) {
            LifeFigures f{1, 2, 3, 4};
            takeLifeRow(f, *samples::ataList(row).head, 100);
            return QString("%1|%2|%3|%4")
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
        compareRows("Rating/pictures", [](const QString &percent) {
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
        compareRows("Rating/ataTemperature",
                    [](const QString &rows) { return ataTemperature(samples::ataList(rows)); });
        // A row that is written otherwise gives way to the next one.
        compareRows("Rating/nvmeTemperature", [](const QString &row) {
            return nvmeTemperature(samples::nvmeList({"Critical Warning=0x00", row, "Temperature=1"}));
        });
        // After a load, of a poll, and while a disk is read.
        compareRows("Rating/temperatureTexts", [](const QString &row) {
            const int celsius = row.section(' ', 0, 0).toInt();
            const QString unit = row.section(' ', 1);
            return loadTemperatureText(celsius, unit) + '|' + pollTemperatureText(celsius, unit) + '|' +
                   waitingTemperatureText(unit);
        });
    }
};

QTEST_GUILESS_MAIN(tst_Rating)
#include "tst_Rating.moc"
