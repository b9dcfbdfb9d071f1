// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/SettingsRules.h"

#include <QtTest>

class SettingsRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void limitsFollowTheUnit()
    {
        const auto limits = [](int unit, int warning, int shutDown) {
            const settings::AlarmLimits found = settings::limitsForUnit(unit, warning, shutDown);
            return QVector<int>{found.warning, found.shutDown, found.lowestWarning, found.lowestShutDown};
        };
        QCOMPARE(limits(settings::Fahrenheit, 40, 50), QVector<int>({104, 122, 104, 122}));
        QCOMPARE(limits(settings::Fahrenheit, 41, 63),
                 QVector<int>({105, 145, 104, 122})); // cut, not rounded
        // Whatever they were before, they begin at their lowest.
        QCOMPARE(limits(settings::Celsius, 140, 176), QVector<int>({40, 50, 40, 50}));
    }

    void unitTexts()
    {
        QCOMPARE(settings::unitText(settings::Celsius), QStringLiteral("C"));
        QCOMPARE(settings::unitText(settings::Fahrenheit), QStringLiteral("F"));
    }

    void logPathKeepsTheDriveOnly()
    {
        const QString tail = QStringLiteral("\\VelmoraHalvane\\SmartLog\\log.txt");
        QCOMPARE(settings::defaultLogPath("D:\\Windows\\System32"), "D:" + tail);
        QCOMPARE(settings::defaultLogPath("C:\\windows\\system32"), "C:" + tail);
        QCOMPARE(settings::defaultLogPath("C:\\WINDOWS\\system32"), "C:\\WINDOWS" + tail);
    }

    void logFolder()
    {
        QCOMPARE(settings::logFolderOf("C:\\a\\b\\log.txt"), QStringLiteral("C:\\a\\b\\"));
        QCOMPARE(settings::logFolderOf("C:\\a\\\\b\\"), QStringLiteral("C:\\a\\"));
        QCOMPARE(settings::logFolderOf("log.txt"), QString());
    }
};

QTEST_APPLESS_MAIN(SettingsRulesTest)
#include "tst_SettingsRules.moc"
