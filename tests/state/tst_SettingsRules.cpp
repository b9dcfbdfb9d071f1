// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsRules.h"

#include <QtTest>

class SettingsRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void limitsFollowTheUnit_data();
    void limitsFollowTheUnit();
    void customThresholdsAreLostBackAndForth();
    void unitTexts();
    void logPathKeepsTheDriveOnly_data();
    void logPathKeepsTheDriveOnly();
};

void SettingsRulesTest::limitsFollowTheUnit_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("warning");
    QTest::addColumn<int>("shutDown");
    QTest::addColumn<QVector<int>>("expected"); // warning, shutdown, lowest of each
    QTest::newRow("defaults to Fahrenheit") << 1 << 45 << 50 << QVector<int>{113, 122, 104, 122};
    QTest::newRow("lowest to Fahrenheit") << 1 << 40 << 50 << QVector<int>{104, 122, 104, 122};
    QTest::newRow("fraction is cut") << 1 << 41 << 63 << QVector<int>{105, 145, 104, 122};
    QTest::newRow("zero") << 1 << 0 << 0 << QVector<int>{32, 32, 104, 122};
    QTest::newRow("to Celsius resets") << 0 << 140 << 176 << QVector<int>{40, 50, 40, 50};
}

void SettingsRulesTest::limitsFollowTheUnit()
{
    QFETCH(int, unit);
    QFETCH(int, warning);
    QFETCH(int, shutDown);
    const settings::AlarmLimits limits = settings::limitsForUnit(unit, warning, shutDown);
    const QVector<int> actual{limits.warning, limits.shutDown, limits.lowestWarning, limits.lowestShutDown};
    QTEST(actual, "expected");
}

void SettingsRulesTest::customThresholdsAreLostBackAndForth()
{
    const settings::AlarmLimits there = settings::limitsForUnit(settings::Fahrenheit, 60, 70);
    QCOMPARE(there.warning, 140);
    QCOMPARE(there.shutDown, 158);
    const settings::AlarmLimits back =
        settings::limitsForUnit(settings::Celsius, there.warning, there.shutDown);
    QCOMPARE(back.warning, 40);
    QCOMPARE(back.shutDown, 50);
}

void SettingsRulesTest::unitTexts()
{
    QCOMPARE(settings::unitText(settings::Celsius), QStringLiteral("C"));
    QCOMPARE(settings::unitText(settings::Fahrenheit), QStringLiteral("F"));
}

void SettingsRulesTest::logPathKeepsTheDriveOnly_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("path");
    const QString tail = QStringLiteral("\\VelmoraHalvane\\SmartLog\\log.txt");
    QTest::newRow("usual") << "C:\\Windows\\system32"
                           << "C:" + tail;
    QTest::newRow("capital system") << "D:\\Windows\\System32"
                                    << "D:" + tail;
    QTest::newRow("small windows") << "C:\\windows\\system32"
                                   << "C:" + tail;
    QTest::newRow("other spelling stays") << "C:\\WINDOWS\\system32"
                                          << "C:\\WINDOWS" + tail;
    QTest::newRow("other folder stays") << "E:\\WinNT\\System32"
                                        << "E:\\WinNT" + tail;
    QTest::newRow("empty") << QString() << tail;
}

void SettingsRulesTest::logPathKeepsTheDriveOnly()
{
    QFETCH(QString, folder);
    QTEST(settings::defaultLogPath(folder), "path");
}

QTEST_GUILESS_MAIN(SettingsRulesTest)

#include "tst_SettingsRules.moc"
