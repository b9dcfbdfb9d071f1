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

Q_DECLARE_METATYPE(GraphKind)
Q_DECLARE_METATYPE(Values)

class AttributeGraphTest : public QObject
{
    Q_OBJECT

private slots:
    void axisOfEveryName_data();
    void axisOfEveryName();
    void axis_data();
    void axis();
    void line_data();
    void line();
    void singleDay_data();
    void singleDay();
    void noDays();
    void missingValues();
    void labels_data();
    void labels();
};

void AttributeGraphTest::axisOfEveryName_data()
{
    QTest::addColumn<GraphKind>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("small");
    QTest::addColumn<QString>("large");
    const auto row = [](GraphKind kind, const char *key, const char *small, const char *large) {
        QTest::addRow("%s %s", kind == GraphKind::Ata ? "ATA" : "NVMe", key)
            << kind << QString::fromLatin1(key) << QString::fromLatin1(small) << QString::fromLatin1(large);
    };
    for (const char *key : {"Raw Read Error Rate",      "Spin Up Time",
                            "Start Stop Count",         "Reallocated Sector Ct",
                            "Reallocated Sector Count", "Seek Error Rate",
                            "Spin Retry Count",         "Calibration Retry Count",
                            "Reallocated Event Count",  "Current Pending Sector",
                            "Offline Uncorrectable",    "UDMA CRC Error Count",
                            "Runtime Bad Block",        "Multi Zone Error Rate",
                            "Soft Read Error Rate",     "End-to-End Error",
                            "Reported Uncorrect",       "Command Timeout",
                            "High Fly Writes",          "G-Sense Error Rate",
                            "Write Error Rate",         "Free Fall Event Count"})
        row(GraphKind::Ata, key, "3: 30 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Power On Hours", "6: 30 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Power Cycle Count", "3: 29 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Power-Off Retract Count", "6: 30 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Load Cycle Count", "6: 24 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Temperature Celsius", "6: 0 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Airflow Temperature Cel", "6: 0 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Hardware ECC Recovered", "3: 30 to 500", "6: 0 to 5000000");
    row(GraphKind::Ata, "Head Flying Hours", "4: 30 to 500", "6: 30 to 5000000");
    row(GraphKind::Ata, "Total LBAs Written", "3: 30 to 500", "6: 0 to 4882");
    row(GraphKind::Ata, "Total LBAs Read", "3: 30 to 500", "6: 0 to 4882");
    // Names of the tree or of NVMe disks that have no axis of their own here.
    for (const char *key :
         {"Free Fall Sensor", "Throughput Performance", "Power Cycles", "power on hours", ""})
        row(GraphKind::Ata, key, "20: 30 to 500", "20: 30 to 5000000");

    for (const char *key :
         {"Critical Warning", "Temperature", "Temperature Sensor 1", "Available Spare",
          "Available Spare Threshold", "Percentage Used", "Data Units Read", "Data Units Written",
          "Host Read Commands", "Host Write Commands", "Controller Busy Time", "Power On Hours",
          "Unsafe Shutdowns", "Media and Data Integrity Errors", "Error Information Log Entries"})
        row(GraphKind::Nvme, key, "3: 30 to 500", "6: 30 to 5000000");
    row(GraphKind::Nvme, "Power Cycles", "3: 29 to 500", "6: 30 to 5000000");
    for (const char *key : {"Power Cyles", "Total LBAs Written", "Threshold of Available Spare", ""})
        row(GraphKind::Nvme, key, "0: 30 to 500", "0: 30 to 5000000");
}

void AttributeGraphTest::axisOfEveryName()
{
    QFETCH(GraphKind, kind);
    QFETCH(QString, key);
    QTEST(axisText(*graphOf(kind, key, {500, 30})), "small");
    QTEST(axisText(*graphOf(kind, key, {30, 5000000})), "large");
}

void AttributeGraphTest::axis_data()
{
    QTest::addColumn<GraphKind>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *title, const char *key, const Values &values, const char *expected,
                        GraphKind kind = GraphKind::Ata) {
        QTest::newRow(title) << kind << QString::fromLatin1(key) << values << QString::fromLatin1(expected);
    };
    row("degrees", "Temperature Celsius", {36, 38}, "6: 0 to 38");
    row("same degrees", "Temperature Celsius", {36, 36}, "6: 0 to 36");
    row("no degrees", "Temperature Celsius", {0, 0}, "3: -1 to 1");
    row("same values", "Power On Hours", {700, 700, 700}, "3: 699 to 701");
    row("same values, unknown name", "Another", {7, 7}, "3: 6 to 8");
    row("same values, a step below", "Power Cycle Count", {7, 7}, "3: 6 to 7");
    row("three days, unknown name", "Another", {1, 2, 3}, "30: 1 to 3");
    row("NVMe, same values, unknown name", "Another", {7, 7}, "3: 6 to 8", GraphKind::Nvme);
    row("six digits", "Spin Up Time", {1, 999999}, "3: 1 to 999999");
    row("seven digits", "Spin Up Time", {1, 1000000}, "6: 1 to 1000000");
    row("digits of the highest", "Spin Up Time", {-5000000, 12}, "3: -5000000 to 12");
    row("digits without the sign", "Spin Up Time", {-2000000, -1000000}, "6: -2000000 to -1000000");
    row("load cycles of six", "Load Cycle Count", {6, 9}, "6: 6 to 9");
    row("load cycles of seven", "Load Cycle Count", {7, 9}, "6: 1 to 9");
    row("same values of 16 digits", "Another", {9007199254740993, 9007199254740993},
        "3: -1 to 1, 9007199254740992 9007199254740993 9007199254740994");
    row("close values of 14 digits", "Spin Up Time", {10000000000000, 10000000000010},
        "6: 0 to 10, 10000000000000 10000000000005 10000000000010");
    row("sectors written", "Total LBAs Written", {1000, 2000000000}, "6: 0 to 1953125");
    row("sectors without a difference", "Total LBAs Read", {2000000, 2000000}, "6: 0 to 1953");
    row("least number", "Power Cycle Count", {Lowest, 5}, "3: -9223372036854775808 to 5");
    row("all numbers", "Another", {Lowest, Highest}, "20: -9223372036854775808 to 9223372036854775808");
    // If a key has two names of the list, the first one of the list decides.
    row("hours ahead of retries", "Spin Retry Count Power On Hours", {1, 2}, "6: 1 to 2");
    row("rate ahead of hours", "Power On Hours Raw Read Error Rate", {1, 2}, "3: 1 to 2");
    row("degrees ahead of events", "Reallocated Event Count Temperature Celsius", {1, 2}, "6: 0 to 2");
    row("writes ahead of airflow", "Airflow Temperature Cel High Fly Writes", {1, 2}, "3: 1 to 2");
    row("airflow ahead of shocks", "G-Sense Error Rate Airflow Temperature Cel", {1, 2}, "6: 0 to 2");
    row("errors ahead of flying", "Head Flying Hours Write Error Rate", {1, 2}, "3: 1 to 2");
    row("flying ahead of sectors", "Total LBAs Read Head Flying Hours", {1, 2}, "4: 1 to 2");
    row("NVMe, cycles first", "Temperature Power Cycles", {1, 2}, "3: 0 to 2", GraphKind::Nvme);
}

void AttributeGraphTest::axis()
{
    QFETCH(GraphKind, kind);
    QFETCH(QString, key);
    QFETCH(Values, values);
    QTEST(axisText(*graphOf(kind, key, values)), "expected");
}

void AttributeGraphTest::line_data()
{
    QTest::addColumn<GraphKind>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("points");
    QTest::newRow("two days") << GraphKind::Ata << "Power On Hours" << Values{5, 7} << "0,5 10,7 20,7";
    QTest::newRow("ten days") << GraphKind::Ata << "Spin Up Time" << Values{1, 2, 3, 4, 5, 6, 7, 8, 9, 8}
                              << "0,1 10,2 20,3 30,4 40,5 50,6 60,7 70,8 80,9 90,8 100,8";
    QTest::newRow("only large counts divide")
        << GraphKind::Ata << "Total LBAs Written" << Values{999999, 1000000, -1000000, 2000000000}
        << "0,999999 10,976 20,-976 30,1953125 40,1953125";
    QTest::newRow("read") << GraphKind::Ata << "Total LBAs Read" << Values{0, 3000000}
                          << "0,0 10,2929 20,2929";
    QTest::newRow("other names stay")
        << GraphKind::Ata << "Total Writes" << Values{0, 3000000} << "0,0 10,3000000 20,3000000";
    QTest::newRow("NVMe stays") << GraphKind::Nvme << "Total LBAs Read" << Values{0, 3000000}
                                << "0,0 10,3000000 20,3000000";
}

void AttributeGraphTest::line()
{
    QFETCH(GraphKind, kind);
    QFETCH(QString, key);
    QFETCH(Values, values);
    const GraphModel model = *graphOf(kind, key, values);
    QVERIFY(!model.singleDay);
    QCOMPARE(model.series.size(), std::size_t{1});
    QTEST(pointsText(model.series[0]), "points");
    QVERIFY(model.series[0].pointsVisible);
    QVERIFY(!model.series[0].dashed);
    QCOMPARE(model.xMin, 0.0);
    QCOMPARE(model.xMax, 100.0);
    QCOMPARE(model.xTicks, static_cast<int>(values.size()));
    QCOMPARE(model.labels.size(), values.size());
    QCOMPARE(model.labels[1], QStringLiteral("02-Nov"));
}

void AttributeGraphTest::singleDay_data()
{
    QTest::addColumn<GraphKind>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << GraphKind::Ata << "Power On Hours" << qint64(36) << "40,36 40,36 40,35"
                           << "3: 35 to 37";
    QTest::newRow("seven digits stay")
        << GraphKind::Ata << "Total LBAs Written" << qint64(9999999) << "40,9999999 40,9999999 40,9999998"
        << "3: 9999998 to 10000000";
    QTest::newRow("eight divide") << GraphKind::Ata << "Total LBAs Read" << qint64(10000000)
                                  << "40,9765 40,9765 40,9764"
                                  << "3: 9764 to 9766";
    QTest::newRow("NVMe stays") << GraphKind::Nvme << "Total LBAs Read" << qint64(10000000)
                                << "40,10000000 40,10000000 40,9999999"
                                << "3: 9999999 to 10000001";
    QTest::newRow("twelve digits") << GraphKind::Ata << "Another" << qint64(999999999999)
                                   << "40,999999999999 40,999999999999 40,999999999998"
                                   << "3: 999999999998 to 1000000000000";
    QTest::newRow("highest") << GraphKind::Ata << "Another" << Highest << "40,0 40,0 40,-1"
                             << "3: -1 to 1, 9223372036854775806 9223372036854775807 9223372036854775808";
    QTest::newRow("lowest") << GraphKind::Ata << "Another" << Lowest << "40,0 40,0 40,-1"
                            << "3: -1 to 1, -9223372036854775809 -9223372036854775808 -9223372036854775807";
}

void AttributeGraphTest::singleDay()
{
    QFETCH(GraphKind, kind);
    QFETCH(QString, key);
    QFETCH(qint64, value);
    const GraphModel model = *graphOf(kind, key, {value});
    QVERIFY(model.singleDay);
    QCOMPARE(model.series.size(), std::size_t{3});
    QTEST(pointsText(model.series[0]), "first");
    QTEST(axisText(model), "expected");
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
}

void AttributeGraphTest::noDays()
{
    QVERIFY(!graphOf(GraphKind::Ata, QStringLiteral("Power On Hours"), {}));
    QVERIFY(!graphModel(GraphKind::Nvme, QString(), {}, {5}, QDate()));
}

void AttributeGraphTest::missingValues()
{
    const std::vector<QString> dates(200, QStringLiteral("01-01-2026"));
    const GraphModel model = *graphModel(GraphKind::Ata, QStringLiteral("Another"), dates, {4}, QDate());
    QCOMPARE(model.series[0].points.size(), std::size_t{201});
    QCOMPARE(model.series[0].points[1].y, 0.0);
    // So long a list is damaged; the chart has to show it all the same.
    QCOMPARE(model.yTicks, 1000);
}

void AttributeGraphTest::labels_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("label");
    const char *months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (int i = 0; i < 12; ++i)
        QTest::newRow(months[i]) << QStringLiteral("15-%1-2026").arg(i + 1, 2, 10, QLatin1Char('0'))
                                 << QStringLiteral("15-") + QLatin1String(months[i]);
    QTest::newRow("month 13") << "15-13-2026"
                              << "15";
    QTest::newRow("month 00") << "15-00-2026"
                              << "15";
    QTest::newRow("one digit") << "15-1-2026"
                               << "15";
    QTest::newRow("short") << "1"
                           << "1";
    QTest::newRow("empty") << ""
                           << "";
}

void AttributeGraphTest::labels()
{
    QFETCH(QString, date);
    QTEST(dayLabel(date), "label");
}

QTEST_GUILESS_MAIN(AttributeGraphTest)
#include "tst_AttributeGraph.moc"
