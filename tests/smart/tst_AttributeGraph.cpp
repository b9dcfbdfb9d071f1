// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeGraph.h"

#include "tests/support/ArrowRows.h"

namespace
{

/// Of "key: value value …", "NVMe" before an NVMe key, a day each from the first of November on, drawn on the
/// fifteenth.
GraphModel graphOf(QString row)
{
    const GraphKind kind = row.startsWith("NVMe ") ? GraphKind::Nvme : GraphKind::Ata;
    std::vector<QString> dates;
    std::vector<qint64> values;
    for (const QString &value : row.section(": ", 1).split(' ')) {
        values.push_back(value.toLongLong());
        dates.push_back(QStringLiteral("%1-11-2026").arg(values.size(), 2, 10, QLatin1Char('0')));
    }
    return *graphModel(kind, row.section(": ", 0, 0).remove("NVMe "), dates, values, QDate(2026, 11, 15));
}

/// "ticks: lowest to highest" of the Y axis, and its labels.
QString axisText(const GraphModel &model)
{
    QStringList parts{QStringLiteral("%1: %2 to %3")
                          .arg(model.yTicks)
                          .arg(model.yMin, 0, 'f', 0)
                          .arg(model.yMax, 0, 'f', 0)};
    for (const QString &label : model.yLabels)
        parts << label;
    return parts.join(' ');
}

/// "x,y x,y …"
QString pointsText(const GraphSeries &series)
{
    QStringList points;
    for (const GraphPoint &point : series.points)
        points.append(QStringLiteral("%1,%2").arg(point.x, 0, 'f', 0).arg(point.y, 0, 'f', 0));
    return points.join(QLatin1Char(' '));
}

/// The lines, and the X axis.
QString describe(const GraphModel &model)
{
    QString text;
    for (const GraphSeries &series : model.series)
        text += pointsText(series) + (series.dashed ? " dashed" : "") +
                (series.pointsVisible ? " dotted; " : "; ");
    return text + QStringLiteral("%1: %2 to %3").arg(model.xTicks).arg(model.xMin).arg(model.xMax);
}

} // namespace

class AttributeGraphTest : public QObject
{
    Q_OBJECT

private slots:
    void spoken()
    {
        QCOMPARE(graphText({"01-11-2026", "02-11-2026", "04-11-2026"}, {5, 9}),
                 QStringLiteral("From 01-Nov to 04-Nov: lowest value 0, highest 9, latest 0"));
        QCOMPARE(graphText({}, {5}), QString());
    }

    void axis()
    {
        // One name of each rule that is not as the first, with a small and a large highest value.
        compareRows({"Spin Up Time -> 3: 30 to 500 | 6: 30 to 5000000",
                     "Power On Hours -> 6: 30 to 500 | 6: 30 to 5000000",
                     "Power Cycle Count -> 3: 29 to 500 | 6: 30 to 5000000",
                     "Power-Off Retract Count -> 6: 30 to 500 | 6: 30 to 5000000",
                     "Load Cycle Count -> 6: 24 to 500 | 6: 30 to 5000000",
                     "Temperature Celsius -> 6: 0 to 500 | 6: 30 to 5000000",
                     "Airflow Temperature Cel -> 6: 0 to 500 | 6: 30 to 5000000",
                     "Hardware ECC Recovered -> 3: 30 to 500 | 6: 0 to 5000000",
                     "Head Flying Hours -> 4: 30 to 500 | 6: 30 to 5000000",
                     "Total LBAs Read -> 3: 30 to 500 | 6: 0 to 4882",
                     "power on hours -> 20: 30 to 500 | 20: 30 to 5000000",
                     "NVMe Temperature Sensor 1 -> 3: 30 to 500 | 6: 30 to 5000000",
                     "NVMe Available Spare -> 3: 30 to 500 | 6: 30 to 5000000",
                     "NVMe Threshold of Available Spare -> 0: 30 to 500 | 0: 30 to 5000000"},
                    [](const QString &key) {
                        return axisText(graphOf(key + ": 500 30")) + " | " +
                               axisText(graphOf(key + ": 30 5000000"));
                    });
        // If a key has two names of the list, the first one of the list decides.
        compareRows({"Spin Retry Count Power On Hours: 1 2 -> 6: 1 to 2",
                     "NVMe Temperature Power Cycles: 1 2 -> 3: 0 to 2",
                     "Temperature Celsius: 0 0 -> 3: -1 to 1", "Power On Hours: 700 700 700 -> 3: 699 to 701",
                     "Power Cycle Count: 7 7 -> 3: 6 to 7", "Spin Up Time: 1 999999 -> 3: 1 to 999999",
                     "Spin Up Time: 1 1000000 -> 6: 1 to 1000000",
                     "Spin Up Time: -2000000 -1000000 -> 6: -2000000 to -1000000",
                     "Load Cycle Count: 6 9 -> 6: 6 to 9", "Load Cycle Count: 7 9 -> 6: 1 to 9",
                     "Another: 9007199254740993 9007199254740993 -> "
                     "3: -1 to 1 9007199254740992 9007199254740993 9007199254740994",
                     "Spin Up Time: 10000000000000 10000000000010 -> "
                     "6: 0 to 10 10000000000000 10000000000005 10000000000010",
                     "Power Cycle Count: -9223372036854775808 5 -> 3: -9223372036854775808 to 5",
                     "Another: -9223372036854775808 9223372036854775807 -> "
                     "20: -9223372036854775808 to 9223372036854775808"},
                    [](const QString &row) { return axisText(graphOf(row)); });
    }

    /// Only large counts of sectors are divided.
    void lines()
    {
        compareRows({"Total LBAs Written: 999999 1000000 -1000000 2000000000 -> 0,999999 10,976 20,-976 "
                     "30,1953125 40,1953125 dotted; 4: 0 to 100",
                     "Total Writes: 0 3000000 -> 0,0 10,3000000 20,3000000 dotted; 2: 0 to 100",
                     "Power On Hours: 36 -> 40,36 40,36 40,35 dashed dotted; 40,36 40,37 dashed; "
                     "0,36 80,36 dashed; 2: 0 to 80",
                     "NVMe Total LBAs Read: 0 3000000 -> 0,0 10,3000000 20,3000000 dotted; 2: 0 to 100"},
                    [](const QString &row) { return describe(graphOf(row)); });
        const GraphModel many = graphOf("Another: 1 2");
        QVERIFY(!many.singleDay);
        QCOMPARE(many.labels, (std::vector<QString>{"01-Nov", "02-Nov"}));
    }

    void singleDay()
    {
        compareRows({"Power On Hours: 36 -> 40,36 40,36 40,35 | 3: 35 to 37",
                     "Total LBAs Written: 9999999 -> 40,9999999 40,9999999 40,9999998 | "
                     "3: 9999998 to 10000000",
                     "Total LBAs Read: 10000000 -> 40,9765 40,9765 40,9764 | 3: 9764 to 9766",
                     "Another: 999999999999 -> 40,999999999999 40,999999999999 40,999999999998 | "
                     "3: 999999999998 to 1000000000000",
                     "Another: 9223372036854775807 -> 40,0 40,0 40,-1 | 3: -1 to 1 9223372036854775806 "
                     "9223372036854775807 9223372036854775808",
                     "Another: -9223372036854775808 -> 40,0 40,0 40,-1 | 3: -1 to 1 -9223372036854775809 "
                     "-9223372036854775808 -9223372036854775807"},
                    [](const QString &row) {
                        const GraphModel model = graphOf(row);
                        return pointsText(model.series[0]) + " | " + axisText(model);
                    });
        const GraphModel nvme = graphOf("NVMe Total LBAs Read: 10000000");
        QCOMPARE(nvme.series[0].points[0].y, 10000000.0);
        QVERIFY(nvme.singleDay);
        // The label is the day of the drawing, which may differ from the stored day.
        QCOMPARE(nvme.labels, std::vector<QString>{QStringLiteral("15-Nov")});
        QCOMPARE(nvme.labelEnd, 80.0);
    }

    void daysWithoutValues()
    {
        QVERIFY(!graphModel(GraphKind::Nvme, QString(), {}, {5}, QDate()));
        const std::vector<QString> dates(200, QStringLiteral("01-01-2026"));
        const GraphModel model = *graphModel(GraphKind::Ata, QStringLiteral("Another"), dates, {4}, QDate());
        QCOMPARE(model.series[0].points.size(), std::size_t{201});
        QCOMPARE(model.series[0].points[1].y, 0.0);
        // So long a list is damaged; the chart has to show it all the same.
        QCOMPARE(model.yTicks, 1000);
        compareRows({"15-01-2026 -> 15-Jan", "15-12-2026 -> 15-Dec", "15-13-2026 -> 15", "15-00-2026 -> 15",
                     "15-1-2026 -> 15", "1 -> 1"},
                    dayLabel);
    }
};

QTEST_GUILESS_MAIN(AttributeGraphTest)
#include "tst_AttributeGraph.moc"
