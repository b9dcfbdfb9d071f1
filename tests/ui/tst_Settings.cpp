// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/GlobalApp.h"
#include "state/Languages.h"
#include "state/SettingsStore.h"
#include "tests/support/FakePlatform.h"
#include "tests/ui/Named.h"
#include "ui/screens/Settings.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

/// The settings window with access to its fields.
class OpenSettings : public Settings
{
public:
    QComboBox *const unit = field<QComboBox>("degreeComboBox");
    QSpinBox *const warning = field<QSpinBox>("WarningSpinBox");
    QSpinBox *const shutDown = field<QSpinBox>("ShutDownSpinBox");
    QSpinBox *const logLimit = field<QSpinBox>("LogLImitSpinBox");
    QCheckBox *const tray = field<QCheckBox>("TrayChkBox");
    QCheckBox *const alarm = field<QCheckBox>("WarningTemp");
    QLineEdit *const logPath = field<QLineEdit>("PathlineEdit");

    template<typename Widget>
    Widget *field(const char *name) const
    {
        return findChild<Widget *>(QLatin1String(name));
    }

    /// Unit, warning, shutdown, limit of the log, tray and alarm.
    QVector<int> values() const
    {
        return {unit->currentIndex(), warning->value(),  shutDown->value(),
                logLimit->value(),    tray->isChecked(), alarm->isChecked()};
    }
};

/// The settings window on a store of its own.
class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FakePlatform::install();
        g_App.m_fScale = 1.0F;
        g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Test");
        g_App.m_bShowLanguageMenu = true;
        g_App.m_bKorvaneBrand = false;
        languages::setOffered();
        languages::setFlag(0);
    }

    void firstRun()
    {
        OpenSettings window;
        window.ApplyFirstRunDefaults();
        // 45 and 50 are below the minimum in Fahrenheit.
        QCOMPARE(window.values(), (QVector<int>{1, 104, 122, 99, 1, 1}));
        window.LoadFromStore();
        QCOMPARE(window.values(), (QVector<int>{0, 45, 50, 99, 1, 1}));
        QCOMPARE(SettingsStore().number(key::FirstTimeLaunch), 1);
    }

    void laterRunOnlyChangesTheUnit()
    {
        SettingsStore().write(key::FirstTimeLaunch, 1);
        OpenSettings window;
        window.ApplyFirstRunDefaults();
        QCOMPARE(window.values(), (QVector<int>{1, 113, 122, 100, 0, 0}));
        window.LoadFromStore();
        // What the store does not have counts as 0, and is raised.
        QCOMPARE(window.values(), (QVector<int>{0, 40, 50, 100, 0, 0}));
    }

    void storedValuesAreShown()
    {
        {
            SettingsStore store;
            store.write(key::FirstTimeLaunch, 1);
            store.write(key::TempValue, QStringLiteral("F"));
            store.write(key::ShowTrayIcon, 1);
            store.write(key::ShowWarning, 0);
            store.write(key::WarningValue, 131);
            store.write(key::ShutDownValue, 140);
        }
        OpenSettings window;
        window.LoadFromStore();
        QCOMPARE(window.values(), (QVector<int>{1, 131, 140, 100, 1, 0}));
        QVERIFY(!window.warning->isEnabled() && !window.shutDown->isEnabled());
        QVERIFY(!window.field<QComboBox>("degreeComboBox_2")->isEnabled());
    }

    void unitChangeConvertsOneWay()
    {
        OpenSettings window;
        const auto thresholds = [&window] {
            return QVector<int>{window.warning->value(), window.shutDown->value(), window.warning->minimum(),
                                window.shutDown->minimum()};
        };
        window.warning->setValue(60);
        window.shutDown->setValue(70);
        window.unit->setCurrentIndex(1);
        QCOMPARE(thresholds(), (QVector<int>{140, 158, 104, 122}));
        window.unit->setCurrentIndex(0);
        QCOMPARE(thresholds(), (QVector<int>{40, 50, 40, 50}));
    }

    void savingStoresAllTogether()
    {
        OpenSettings window;
        window.unit->setCurrentIndex(1);
        window.alarm->setChecked(true);
        window.warning->setValue(150);
        window.shutDown->setValue(130); // a shutdown below the warning is accepted
        window.logPath->setText(QStringLiteral("D:\\logs\\disk.txt"));
        window.SaveToStore();
        const SettingsStore store;
        for (const TextSetting &unit : {key::TempValue, key::WarningtemValue, key::ShutDowntemValue})
            QCOMPARE(store.text(unit), QStringLiteral("F"));
        QVERIFY(store.flag(key::ShowWarning) && !store.flag(key::DontShow));
        QCOMPARE(store.number(key::WarningValue), 150);
        QCOMPARE(store.number(key::ShutDownValue), 130);
        QCOMPARE(store.text(key::LogSavePath), QStringLiteral("D:\\logs\\disk.txt"));

        window.alarm->setChecked(false);
        window.logPath->clear();
        window.SaveToStore();
        QVERIFY(!store.flag(key::ShowWarning) && store.flag(key::DontShow));
        QCOMPARE(store.text(key::LogSavePath), QString());
    }

    void checkBoxesEnableTheirFields()
    {
        OpenSettings window;
        const QVector<QPair<const char *, QVector<QWidget *>>> rows = {
            {"LogChkBox", {window.logPath, window.field<QPushButton>("BrowsButton_2")}},
            {"SizeLimitChkBox", {window.logLimit}},
            {"WarningTemp", {window.warning, window.shutDown}},
        };
        for (const auto &row : rows) {
            for (const bool on : {true, false, true}) {
                window.field<QCheckBox>(row.first)->setChecked(on);
                for (const QWidget *field : row.second)
                    QCOMPARE(field->isEnabled(), on);
            }
        }
    }

    void menuOffersLanguages_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<bool>("secondBrand");
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("checked");
        const QStringList all{"English",  "German", "French", "Italian", "Spanish",
                              "Japanese", "Dutch",  "Brazil", "Hindi",   "Korean"};
        QTest::newRow("Korean") << 7 << false << all << "Korean";
        QTest::newRow("none set") << -1 << false << all << "English";
        QTest::newRow("Chinese runs unoffered") << 6 << false << all << "Chinese";
        QTest::newRow("second brand") << 2 << true << QStringList(all.mid(0, 8)) << "French";
    }

    void menuOffersLanguages()
    {
        QFETCH(int, current);
        QFETCH(bool, secondBrand);
        QFETCH(QString, checked);
        languages::setFlag(current);
        g_App.m_bKorvaneBrand = secondBrand;
        const Settings window;
        QStringList texts;
        for (const QAction *action : buttonOf(&window, "m_pLanguageButton")->menu()->actions())
            texts << action->text();
        QTEST(texts, "offered");
        QStringList marked;
        for (const languages::Language &language : languages::table) {
            const auto *action = window.findChild<QAction *>(QLatin1String(language.text));
            if (action->isChecked())
                marked << action->text();
        }
        QCOMPARE(marked, QStringList{checked});
    }
};

QTEST_MAIN(SettingsTest)
#include "tst_Settings.moc"
