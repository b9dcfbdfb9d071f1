// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeGraph.h"

#include <QTest>

#include <limits>

namespace
{

constexpr qint64 Lowest = std::numeric_limits<qint64>::min();
constexpr qint64 Highest = std::numeric_limits<qint64>::max();

using Values = std::vector<qint64>;

std::optional<GraphModel> graphOf(GraphKind kind, const QString &key, const Values &values)
{
    std::vector<QString> dates;
    for (std::size_t i = 0; i < values.size(); ++i)
        dates.push_back(QStringLiteral("%1-11-2026").arg(i + 1, 2, 10, QLatin1Char('0')));
    return graphModel(kind, key, dates, values, QDate(2026, 11, 15));
}

/// "ticks: lowest to highest" of the Y axis.
QString axisText(const GraphModel &model)
{
    return QStringLiteral("%1: %2 to %3")
               .arg(model.yTicks)
               .arg(model.yMin, 0, 'f', 0)
               .arg(model.yMax, 0, 'f', 0) +
           (model.yLabels.empty() ? QString() : QStringLiteral(", ")) +
           QStringList(model.yLabels.begin(), model.yLabels.end()).join(' ');
}

/// "x,y x,y …"
QString pointsText(const GraphSeries &series)
{
    QStringList points;
    for (const GraphPoint &point : series.points)
        points.append(QStringLiteral("%1,%2").arg(point.x, 0, 'f', 0).arg(point.y, 0, 'f', 0));
    return points.join(QLatin1Char(' '));
}

} // namespace

class AttributeGraphTest : public QObject
{
    Q_OBJECT

private slots:
    void axis()
    {
        const auto row = [](const QString &key, const Values &values, const char *expected,
                            GraphKind kind = GraphKind::Ata) {
            QCOMPARE(key + ", " + axisText(*graphOf(kind, key, values)), key + ", " + expected);
        };
        // One name of each rule, with a small and a large highest value.
        const struct {
            const char *key;
            const char *small;
            const char *large;
            GraphKind kind = GraphKind::Ata;
        } rules[] = {
            {"Spin Up Time", "3: 30 to 500", "6: 30 to 5000000"},
            {"Power On Hours", "6: 30 to 500", "6: 30 to 5000000"},
            {"Spin Retry Count", "3: 30 to 500", "6: 30 to 5000000"},
            {"Power Cycle Count", "3: 29 to 500", "6: 30 to 5000000"},
            {"Power-Off Retract Count", "6: 30 to 500", "6: 30 to 5000000"},
            {"Load Cycle Count", "6: 24 to 500", "6: 30 to 5000000"},
            {"Temperature Celsius", "6: 0 to 500", "6: 30 to 5000000"},
            {"Reallocated Event Count", "3: 30 to 500", "6: 30 to 5000000"},
            {"Airflow Temperature Cel", "6: 0 to 500", "6: 30 to 5000000"},
            {"G-Sense Error Rate", "3: 30 to 500", "6: 30 to 5000000"},
            {"Hardware ECC Recovered", "3: 30 to 500", "6: 0 to 5000000"},
            {"Head Flying Hours", "4: 30 to 500", "6: 30 to 5000000"},
            {"Total LBAs Read", "3: 30 to 500", "6: 0 to 4882"},
            {"power on hours", "20: 30 to 500", "20: 30 to 5000000"},
            {"Temperature Sensor 1", "3: 30 to 500", "6: 30 to 5000000", GraphKind::Nvme},
            {"Available Spare", "3: 30 to 500", "6: 30 to 5000000", GraphKind::Nvme},
            {"Power Cycles", "3: 29 to 500", "6: 30 to 5000000", GraphKind::Nvme},
            {"Threshold of Available Spare", "0: 30 to 500", "0: 30 to 5000000", GraphKind::Nvme},
        };
        for (const auto &rule : rules) {
            row(rule.key, {500, 30}, rule.small, rule.kind);
            row(rule.key, {30, 5000000}, rule.large, rule.kind);
        }
        row("Temperature Celsius", {0, 0}, "3: -1 to 1");
        row("Power On Hours", {700, 700, 700}, "3: 699 to 701");
        row("Power Cycle Count", {7, 7}, "3: 6 to 7");
        row("Spin Up Time", {1, 999999}, "3: 1 to 999999");
        row("Spin Up Time", {1, 1000000}, "6: 1 to 1000000");
        row("Spin Up Time", {-5000000, 12}, "3: -5000000 to 12");
        row("Spin Up Time", {-2000000, -1000000}, "6: -2000000 to -1000000");
        row("Load Cycle Count", {6, 9}, "6: 6 to 9");
        row("Load Cycle Count", {7, 9}, "6: 1 to 9");
        row("Another", {9007199254740993, 9007199254740993},
            "3: -1 to 1, 9007199254740992 9007199254740993 9007199254740994");
        row("Spin Up Time", {10000000000000, 10000000000010},
            "6: 0 to 10, 10000000000000 10000000000005 10000000000010");
        row("Power Cycle Count", {Lowest, 5}, "3: -9223372036854775808 to 5");
        row("Another", {Lowest, Highest}, "20: -9223372036854775808 to 9223372036854775808");
        // If a key has two names of the list, the first one of the list decides.
        row("Spin Retry Count Power On Hours", {1, 2}, "6: 1 to 2");
        row("Temperature Power Cycles", {1, 2}, "3: 0 to 2", GraphKind::Nvme);
    }

    void line()
    {
        const auto row = [](GraphKind kind, const QString &key, const Values &values, const char *points) {
            const GraphModel model = *graphOf(kind, key, values);
            QVERIFY(!model.singleDay);
            QCOMPARE(model.series.size(), std::size_t{1});
            QCOMPARE(pointsText(model.series[0]), QString(points));
            QVERIFY(model.series[0].pointsVisible);
            QVERIFY(!model.series[0].dashed);
            QCOMPARE(model.xMin, 0.0);
            QCOMPARE(model.xMax, 100.0);
            QCOMPARE(model.xTicks, static_cast<int>(values.size()));
            QCOMPARE(model.labels.size(), values.size());
            QCOMPARE(model.labels[1], QStringLiteral("02-Nov"));
        };
        // Only large counts of sectors are divided.
        row(GraphKind::Ata, "Total LBAs Written", {999999, 1000000, -1000000, 2000000000},
            "0,999999 10,976 20,-976 30,1953125 40,1953125");
        row(GraphKind::Ata, "Total Writes", {0, 3000000}, "0,0 10,3000000 20,3000000");
        row(GraphKind::Nvme, "Total LBAs Read", {0, 3000000}, "0,0 10,3000000 20,3000000");
    }

    void singleDay()
    {
        const auto row = [](const QString &key, qint64 value, const char *first, const char *expected,
                            GraphKind kind = GraphKind::Ata) {
            const GraphModel model = *graphOf(kind, key, {value});
            QVERIFY(model.singleDay);
            QCOMPARE(model.series.size(), std::size_t{3});
            QCOMPARE(pointsText(model.series[0]), QString(first));
            QCOMPARE(axisText(model), QString(expected));
            const double y = model.series[0].points[0].y;
            QCOMPARE(pointsText(model.series[1]),
                     QStringLiteral("40,%1 40,%2").arg(y, 0, 'f', 0).arg(y + 1, 0, 'f', 0));
            QCOMPARE(pointsText(model.series[2]), QStringLiteral("0,%1 80,%1").arg(y, 0, 'f', 0));
            for (std::size_t i = 0; i < 3; ++i) {
                QVERIFY(model.series[i].dashed);
                QCOMPARE(model.series[i].pointsVisible, i == 0);
            }
            QCOMPARE(model.xMax, 80.0);
            QCOMPARE(model.xTicks, 2);
            // The label is the day of the drawing, which may differ from the stored day.
            QCOMPARE(model.labels, std::vector<QString>{QStringLiteral("15-Nov")});
            QCOMPARE(model.labelEnd, 80.0);
        };
        row("Power On Hours", 36, "40,36 40,36 40,35", "3: 35 to 37");
        row("Total LBAs Written", 9999999, "40,9999999 40,9999999 40,9999998", "3: 9999998 to 10000000");
        row("Total LBAs Read", 10000000, "40,9765 40,9765 40,9764", "3: 9764 to 9766");
        row("Total LBAs Read", 10000000, "40,10000000 40,10000000 40,9999999", "3: 9999999 to 10000001",
            GraphKind::Nvme);
        row("Another", 999999999999, "40,999999999999 40,999999999999 40,999999999998",
            "3: 999999999998 to 1000000000000");
        row("Another", Highest, "40,0 40,0 40,-1",
            "3: -1 to 1, 9223372036854775806 9223372036854775807 9223372036854775808");
        row("Another", Lowest, "40,0 40,0 40,-1",
            "3: -1 to 1, -9223372036854775809 -9223372036854775808 -9223372036854775807");
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
    }

    void labels()
    {
        QStringList labels;
        for (const char *date : {"15-01-2026", "15-12-2026", "15-13-2026", "15-00-2026", "15-1-2026", "1"})
            labels << dayLabel(date);
        QCOMPARE(labels, QStringList({"15-Jan", "15-Dec", "15", "15", "15", "1"}));
    }
};

QTEST_GUILESS_MAIN(AttributeGraphTest)
#include "tst_AttributeGraph.moc"
