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
    void tellsTimeAndPercent();
    void refuses_data();
    void refuses();
    void placesItsParts();
    void fillsTheFormat();
};

void tst_CloneGauge::tellsTimeAndPercent()
{
    const QMap<qint64, QString> times{
        {-5000, "1 minutes"},    {59000, "1 minutes"}, {119999, "1 minutes"},     {120000, "2 minutes"},
        {3599999, "59 minutes"}, {3600000, "1 hours"}, {7200000000, "2000 hours"}}; // more than 32 bits of ms
    for (auto it = times.cbegin(); it != times.cend(); ++it)
        QCOMPARE(clonemessages::remainingText(it.key()), it.value());
    QCOMPARE(clonemessages::percentDone(999999, 1000000), 99); // cut, not rounded
    QCOMPARE(clonemessages::percentDone(40000000000, 80000000000), 50);
    QCOMPARE(clonemessages::percentDone(32768, 0), 0); // the size is not known
}

void tst_CloneGauge::refuses_data()
{
    QTest::addColumn<clonemessages::Side>("destination");
    QTest::addColumn<QString>("reason");
    QTest::newRow("same disk") << clonemessages::Side{1, 1000} << "Source and destination disks are same.";
    QTest::newRow("same disk, smaller by now")
        << clonemessages::Side{1, 1} << "Source and destination disks are same.";
    QTest::newRow("one sector less") << clonemessages::Side{2, 999}
                                     << "Destination disk size is smaller than source disk.";
    QTest::newRow("equal") << clonemessages::Side{2, 1000} << QString();
    QTest::newRow("larger") << clonemessages::Side{0, 5000000000} << QString();
}

void tst_CloneGauge::refuses()
{
    QFETCH(clonemessages::Side, destination);
    const auto refusal = clonemessages::refusal({1, 1000}, destination);
    QTEST(refusal ? refusal->text : QString(), "reason");
}

void tst_CloneGauge::placesItsParts()
{
    const QRectF base = gauge::baseRect(gauge::DesignSide);
    QCOMPARE(base, QRectF(1, 1, 208, 208));
    QCOMPARE(gauge::baseArc(base).rect, QRect(9, 9, 192, 193));
    QCOMPARE(gauge::innerRect(210, 190), QRectF(10, 10, 190, 190));
    QCOMPARE(gauge::sweep(50, 100, 75), 405.0); // the minimum stays in
    QCOMPARE(gauge::sweep(5, 5, 5), 0.0);
}

void tst_CloneGauge::fillsTheFormat()
{
    const auto filled = [](const QString &format, int decimals) {
        return gauge::text(format, gauge::placeholders(format), {20, 70, 35, decimals});
    };
    QCOMPARE(filled(QStringLiteral("%p%"), 0), QStringLiteral("30%"));
    QCOMPARE(filled(QStringLiteral("%v of %m: %x"), 1), QStringLiteral("35.0 of 51.0: %x"));
    QCOMPARE(gauge::text(QStringLiteral("%p"), gauge::PercentPlaceholder, {5, 5, 5, 0}), QStringLiteral("0"));
}

QTEST_GUILESS_MAIN(tst_CloneGauge)
#include "tst_CloneGauge.moc"
