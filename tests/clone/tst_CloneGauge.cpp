// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneMessages.h"
#include "clone/GaugeGeometry.h"

#include <QTest>

Q_DECLARE_METATYPE(clonemessages::Side)

/// What the clone screen calculates without a disk: times, refusals and the geometry of the gauge.
class tst_CloneGauge : public QObject
{
    Q_OBJECT

private slots:
    void remainingTime_data();
    void remainingTime();
    void percentOfTheDisk_data();
    void percentOfTheDisk();
    void refuses_data();
    void refuses();
    void placesItsParts();
    void fillsTheFormat_data();
    void fillsTheFormat();
    void boundsThatMeet();
};

void tst_CloneGauge::remainingTime_data()
{
    QTest::addColumn<qint64>("remaining");
    QTest::addColumn<QString>("text");
    QTest::newRow("overdue") << qint64(-5000) << "1 minutes";
    QTest::newRow("nothing") << qint64(0) << "1 minutes";
    QTest::newRow("59 seconds") << qint64(59000) << "1 minutes";
    QTest::newRow("a bit below two minutes") << qint64(119999) << "1 minutes";
    QTest::newRow("a bit below an hour") << qint64(3599999) << "59 minutes";
    QTest::newRow("an hour") << qint64(3600000) << "1 hours";
    QTest::newRow("more than 32 bits of ms") << qint64(3600000) * 2000 << "2000 hours";
}

void tst_CloneGauge::remainingTime()
{
    QFETCH(qint64, remaining);
    QTEST(clonemessages::remainingText(remaining), "text");
}

void tst_CloneGauge::percentOfTheDisk_data()
{
    QTest::addColumn<qint64>("position");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<int>("percent");
    QTest::newRow("cut, not rounded") << qint64(999999) << quint64(1000000) << 99;
    QTest::newRow("begin") << qint64(0) << quint64(1000000) << 0;
    QTest::newRow("large disk") << qint64(40000000000) << quint64(80000000000) << 50;
    QTest::newRow("unknown size") << qint64(32768) << quint64(0) << 0;
}

void tst_CloneGauge::percentOfTheDisk()
{
    QFETCH(qint64, position);
    QFETCH(quint64, total);
    QTEST(clonemessages::percentDone(position, total), "percent");
}

void tst_CloneGauge::refuses_data()
{
    QTest::addColumn<clonemessages::Side>("source");
    QTest::addColumn<clonemessages::Side>("destination");
    QTest::addColumn<QString>("reason");
    const clonemessages::Side source{1, 1000};
    QTest::newRow("same disk") << source << clonemessages::Side{1, 1000}
                               << "Source and destination disks are same.";
    QTest::newRow("same disk, smaller by now")
        << source << clonemessages::Side{1, 1} << "Source and destination disks are same.";
    QTest::newRow("one sector less") << source << clonemessages::Side{2, 999}
                                     << "Destination disk size is smaller than source disk.";
    QTest::newRow("equal") << source << clonemessages::Side{2, 1000} << QString();
    QTest::newRow("larger") << source << clonemessages::Side{0, 5000000000} << QString();
}

void tst_CloneGauge::refuses()
{
    QFETCH(clonemessages::Side, source);
    QFETCH(clonemessages::Side, destination);
    const auto refusal = clonemessages::refusal(source, destination);
    QTEST(refusal ? refusal->text : QString(), "reason");
}

void tst_CloneGauge::placesItsParts()
{
    const QRectF base = gauge::baseRect(gauge::DesignSide);
    QCOMPARE(base, QRectF(1, 1, 208, 208));
    const gauge::Arc arc = gauge::baseArc(base);
    QCOMPARE(arc.rect, QRect(9, 9, 192, 193));
    QCOMPARE(arc.start, 5072);
    QCOMPARE(arc.span, 4256);
    const QRectF inner = gauge::innerRect(210, 210 * 0.84);
    QVERIFY(qFuzzyCompare(inner.x(), 16.8) && qFuzzyCompare(inner.width(), 176.4));
    QCOMPARE(gauge::sweep(0, 100, 35), 94.5);
    QCOMPARE(gauge::sweep(50, 100, 75), 405.0); // the minimum stays in
    QCOMPARE(gauge::percent(0, 100, 99), gauge::EndCapAbove);
}

void tst_CloneGauge::fillsTheFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("percent") << "%p%" << 0 << "30%";
    QTest::newRow("all of them") << "%v of %m: %p" << 1 << "35.0 of 51.0: 30.0";
    QTest::newRow("none") << "%x" << 1 << "%x";
}

void tst_CloneGauge::fillsTheFormat()
{
    QFETCH(QString, format);
    QFETCH(int, decimals);
    QTEST(gauge::text(format, gauge::placeholders(format), {20, 70, 35, decimals}), "text");
}

void tst_CloneGauge::boundsThatMeet()
{
    QCOMPARE(gauge::sweep(5, 5, 5), 0.0);
    QCOMPARE(gauge::percent(5, 5, 5), 0.0);
}

QTEST_GUILESS_MAIN(tst_CloneGauge)
#include "tst_CloneGauge.moc"
