#include "smart/SelfTestClock.h"

#include <QtTest>

/// The clock of the self-tests: one status reading and one tick a second.
class tst_SelfTestClock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void minutesFall_data();
    void minutesFall();
    void shortWithoutTime();
    void aReadingThatIsMissed();
};

void tst_SelfTestClock::init()
{
    g_nRemainingMinutes = {7, 7};
    g_nElapsedLimit = {0, 0};
    g_nElapsedSeconds = 99;
    g_nMinuteTicks = 99;
}

void tst_SelfTestClock::minutesFall_data()
{
    QTest::addColumn<bool>("extended");
    QTest::newRow("short") << false;
    QTest::newRow("extended") << true;
}

void tst_SelfTestClock::minutesFall()
{
    QFETCH(bool, extended);
    g_bExtendedTest = extended;
    (extended ? g_nExtendedMinutes : g_nShortMinutes) = 2;
    (extended ? g_nShortMinutes : g_nExtendedMinutes) = 50;
    const std::size_t own = extended ? 1 : 0;
    g_nRemainingMinutes[own] = 2;
    selftest::restartClock();
    QVector<int> drops;
    for (int second = 1; second <= 300; ++second) {
        selftest::setElapsedLimit();
        if (selftest::takeMinute())
            drops.append(second);
        selftest::tickClock();
    }
    // The count ends with the polling time, the tick behind it takes its reading's place; the time runs on.
    QCOMPARE(drops, (QVector<int>{61, 121}));
    QCOMPARE(g_nRemainingMinutes[own], 0);
    QCOMPARE(g_nRemainingMinutes[1 - own], 7);
    QCOMPARE(g_nElapsedSeconds, 120);
    QCOMPARE(g_nMinuteTicks, 0);
    QCOMPARE(g_timeElapsed, QTime(0, 5));
}

void tst_SelfTestClock::shortWithoutTime()
{
    g_bExtendedTest = false;
    g_nShortMinutes = 0;
    selftest::restartClock();
    selftest::setElapsedLimit();
    for (int second = 0; second < 61; ++second)
        selftest::tickClock();
    QVERIFY(!selftest::takeMinute());
    QCOMPARE(g_nElapsedSeconds, 0);
    QCOMPARE(selftest::elapsedText(), QStringLiteral("00:01:01"));
    g_timeElapsed = QTime(23, 59, 59);
    selftest::tickClock();
    QCOMPARE(selftest::elapsedText(), QStringLiteral("24:00:00"));
}

void tst_SelfTestClock::aReadingThatIsMissed()
{
    g_bExtendedTest = false;
    g_nShortMinutes = 2;
    selftest::restartClock();
    selftest::setElapsedLimit();
    for (int second = 0; second < 61; ++second)
        selftest::tickClock();
    // Only the 60th tick takes a minute, and it has gone by.
    QVERIFY(!selftest::takeMinute());
    QCOMPARE(g_nMinuteTicks, 61);
}

QTEST_GUILESS_MAIN(tst_SelfTestClock)
#include "tst_SelfTestClock.moc"
