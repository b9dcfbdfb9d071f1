// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DonutChartView.h"

#include <QtTest>

#include <limits>

/// The geometry of the ring.
class tst_Donut : public QObject
{
    Q_OBJECT

private slots:
    void spans_data();
    void spans();
    void theRingClosesShort();
    void clearing();
    void defaults();
};

void tst_Donut::spans_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<QList<int>>("sixteenths");
    QTest::addColumn<QList<int>>("degrees");
    using Values = QList<double>;
    using Spans = QList<int>;
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("one") << Values{12} << Spans{5760} << Spans{360};
    QTest::newRow("cut off") << Values{1, 6} << Spans{822, 4937} << Spans{51, 308};
    QTest::newRow("nothing at all") << Values{0, 0} << Spans{0, 0} << Spans{0, 0};
    QTest::newRow("an empty one") << Values{0, 5} << Spans{0, 5760} << Spans{0, 360};
    QTest::newRow("sizes of volumes")
        << Values{257698033664.0, 161061269504.0} << Spans{3544, 2215} << Spans{221, 138};
    QTest::newRow("sum beside the values")
        << Values{9e18, -8.999999999e18} << Spans{5760, -5760} << Spans{360, -360};
    QTest::newRow("no number") << Values{NoNumber, 1} << Spans{0, 0} << Spans{0, 0};
}

void tst_Donut::spans()
{
    QFETCH(QList<double>, values);
    DonutSeries series;
    for (const double value : values)
        series.AddSlice(value, QString(), QString());
    QList<int> sixteenths;
    QList<int> degrees;
    for (const double value : values) {
        sixteenths.append(series.SpanSixteenths(value));
        degrees.append(series.SpanDegrees(value));
    }
    QTEST(sixteenths, "sixteenths");
    QTEST(degrees, "degrees");
}

void tst_Donut::theRingClosesShort()
{
    DonutSeries series;
    int sum = 0;
    for (int i = 0; i < 7; ++i)
        series.AddSlice(1, QString(), QString());
    for (const DonutSlice *slice : qAsConst(series.listSlices))
        sum += series.SpanSixteenths(slice->dValue);
    QCOMPARE(sum, 7 * 822);
    QVERIFY(sum < 5760);
}

void tst_Donut::clearing()
{
    DonutSeries series;
    series.AddSlice(3, QStringLiteral("label"), QStringLiteral("red"));
    series.AddSlice(4, QString(), QString());
    QCOMPARE(series.dTotal, 7.0);
    QCOMPARE(series.listSlices.first()->strLabel, QStringLiteral("label"));
    QCOMPARE(series.listSlices.first()->strColorText, QStringLiteral("red"));
    series.Clear();
    QCOMPARE(series.dTotal, 0.0);
    QVERIFY(series.listSlices.isEmpty());
    QCOMPARE(series.SpanSixteenths(3), 0);
    series.AddSlice(5, QString(), QString());
    QCOMPARE(series.SpanDegrees(5), 360);
}

void tst_Donut::defaults()
{
    const DonutSeries series;
    QVERIFY(series.bFlagA);
    QVERIFY(!series.bColourSlices);
    const DonutLegend legend;
    QCOMPARE(legend.nStyleA, 1);
    QCOMPARE(legend.nStyleB, 1);
    QCOMPARE(legend.nStyleC, 1);
}

QTEST_GUILESS_MAIN(tst_Donut)
#include "tst_Donut.moc"
