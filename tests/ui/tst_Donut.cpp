// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DonutChartView.h"

#include <QtTest>

#include <limits>

/// The geometry of the ring.
class tst_Donut : public QObject
{
    Q_OBJECT

private slots:
    void spans_data()
    {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<QList<int>>("sixteenths");
        QTest::addColumn<QList<int>>("degrees");
        using Values = QList<double>;
        using Spans = QList<int>;
        // The ring closes short, as the spans are cut off.
        QTest::newRow("cut off") << Values{1, 6} << Spans{822, 4937} << Spans{51, 308};
        QTest::newRow("nothing at all") << Values{0, 0} << Spans{0, 0} << Spans{0, 0};
        QTest::newRow("sizes of volumes")
            << Values{257698033664.0, 161061269504.0} << Spans{3544, 2215} << Spans{221, 138};
        QTest::newRow("sum beside the values")
            << Values{9e18, -8.999999999e18} << Spans{5760, -5760} << Spans{360, -360};
        QTest::newRow("no number") << Values{std::numeric_limits<double>::quiet_NaN(), 1} << Spans{0, 0}
                                   << Spans{0, 0};
    }

    void spans()
    {
        QFETCH(QList<double>, values);
        DonutSeries series;
        series.AddSlice(3, QStringLiteral("of the disk before"), QString());
        series.Clear();
        QCOMPARE(series.SpanSixteenths(3), 0);
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
};

QTEST_GUILESS_MAIN(tst_Donut)
#include "tst_Donut.moc"
