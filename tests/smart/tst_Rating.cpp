// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeCatalogue.h"
#include "smart/AttributeColumns.h"
#include "smart/AttributeGraph.h"
#include "smart/AttributeRows.h"
#include "smart/Rating.h"
#include "smart/Temperature.h"
#include "tests/smart/SampleReports.h"
#include "tests/support/ArrowRows.h"

#include <QTranslator>

namespace
{

constexpr int NotRated = -1000;

/// Good, average, bad, unknown, or the picture that was there.
QString letter(TilePicture picture)
{
    return QString("GAB?-").at(int(picture));
}

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

/// Of "key: value value …", "NVMe" before an NVMe key, a day each from the first of November on, drawn on the
/// fifteenth.
GraphModel graphOf(QString row)
{
    const GraphKind kind = row.startsWith("NVMe ") ? GraphKind::Nvme : GraphKind::Ata;
    std::vector<QString> dates;
    std::vector<qint64> values;
    for (const QString &value : row.section(": ", 1).split(' ')) {
        values.push_back(value.toLongLong());
        dates.push_back(QString("%1-11-2026").arg(values.size(), 2, 10, QChar('0')));
    }
    return *graphModel(kind, row.section(": ", 0, 0).remove("NVMe "), dates, values, QDate(2026, 11, 15));
}

/// "ticks: lowest to highest", and the labels.
QString axisText(int ticks, double lowest, double highest, const std::vector<QString> &labels)
{
    QString text = QString("%1: %2 to %3").arg(ticks).arg(lowest, 0, 'f', 0).arg(highest, 0, 'f', 0);
    for (const QString &label : labels)
        text += ' ' + label;
    return text;
}

QString yAxis(const GraphModel &model)
{
    return axisText(model.yTicks, model.yMin, model.yMax, model.yLabels);
}

/// The lines, "x,y x,y …" each, and both axes.
QString describe(const GraphModel &model)
{
    QString text;
    for (const GraphSeries &series : model.series) {
        for (const GraphPoint &point : series.points)
            text += QString("%1,%2 ").arg(point.x, 0, 'f', 0).arg(point.y, 0, 'f', 0);
        text += QString(series.dashed ? "dashed " : "") + (series.pointsVisible ? "dotted | " : "| ");
    }
    text += axisText(model.xTicks, model.xMin, model.xMax, model.labels) + " | " + yAxis(model);
    return model.singleDay ? text + " | single, label to " + QString::number(model.labelEnd) : text;
}

} // namespace

/// Health, performance, life and temperature, and their tiles. The rows of the attribute tree in another
/// language, its columns, and the graphs. The rows of real reports: tst_ReportParser.
class tst_Rating : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::installTranslator(&m_foreign);
        samples::forget();
    }

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

    /// Of the three answers that lifeKind() goes by, and the days; "again" after a change of language.
    void lifeLabels()
    {
        compareRows("Rating/lifeLabels", [](const QString &row) {
            const LifeKind kind = lifeKind(row.at(0) == 'y', row.at(1) == 'y', row.at(2) == 'y');
            const QString separator = row.endsWith("again") ? RetranslateSeparator : LoadSeparator;
            const LifeTexts found = lifeTexts(kind, {row.section(' ', 1, 1).toUInt(), 41, 7, 12}, separator);
            return found.life + '|' + found.powerOn + '|' + found.startStop;
        });
        QCOMPARE(lifeTexts(lifeKind(false, false, true), {5, 0, 0, 0, false}).life, QString("Not Available"));
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
        compareRows("Rating/temperaturePictures", [](const QString &celsius) {
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

    /// Of number, value, threshold and raw value: in the tree, and in the report.
    void status()
    {
        compareRows("Attributes/status", [](const QString &row) {
            const QVector<qint64> figures = numbersOf(row);
            SmartAttributeList list = samples::ataList(QString("Row=%1@%2").arg(figures[3]).arg(figures[1]));
            list.head->Id = quint32(figures[0]);
            list.head->Threshold = quint32(figures[2]);
            return ataRows(list).front().cells[2] + (reportStatusFailed(*list.head) ? " FAILED" : " OK");
        });
    }

    /// The key decides, whatever the language.
    void red()
    {
        compareRows("Attributes/red",
                    [](const QString &row) { return ataRows(samples::ataList(row)).front().redCell; });
    }

    /// Of "key#number", or of an NVMe name: in the tree, and in the report.
    void names()
    {
        compareRows("Attributes/names", [](const QString &row) {
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
        compareRows("Attributes/cleanedValue", cleanedNvmeValue);
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

    void graphs()
    {
        compareRows("Attributes/graphs", [](const QString &row) { return describe(graphOf(row)); });
        // Of each rule that is not as the first, with a small and a large highest value.
        compareRows("Attributes/axes", [](const QString &key) {
            return yAxis(graphOf(key + ": 500 30")) + " | " + yAxis(graphOf(key + ": 30 5000000"));
        });
        compareRows("Attributes/axesOfValues", [](const QString &row) { return yAxis(graphOf(row)); });
        QCOMPARE(graphText({"01-11-2026", "02-11-2026", "04-11-2026"}, {5, 9}),
                 QString("From 01-Nov to 04-Nov: lowest value 0, highest 9, latest 0"));
        QCOMPARE(graphText({}, {5}), QString());
    }

    void daysWithoutValues()
    {
        QVERIFY(!graphModel(GraphKind::Nvme, QString(), {}, {5}, QDate()));
        const std::vector<QString> dates(200, "01-01-2026");
        const GraphModel model = *graphModel(GraphKind::Ata, "Another", dates, {4}, QDate());
        QCOMPARE(model.series[0].points.size(), std::size_t{201});
        QCOMPARE(model.series[0].points[1].y, 0.0);
        // So long a list is damaged; the chart has to show it all the same.
        QCOMPARE(model.yTicks, 1000);
        compareRows("Attributes/dayLabels", dayLabel);
    }

private:
    Foreign m_foreign;
};

QTEST_GUILESS_MAIN(tst_Rating)
#include "tst_Rating.moc"
