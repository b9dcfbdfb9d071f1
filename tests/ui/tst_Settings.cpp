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
    QComboBox *const degreeComboBox = findChild<QComboBox *>(QStringLiteral("degreeComboBox"));
    QComboBox *const degreeComboBox_2 = findChild<QComboBox *>(QStringLiteral("degreeComboBox_2"));
    QSpinBox *const WarningSpinBox = findChild<QSpinBox *>(QStringLiteral("WarningSpinBox"));
    QSpinBox *const ShutDownSpinBox = findChild<QSpinBox *>(QStringLiteral("ShutDownSpinBox"));
    QSpinBox *const LogLImitSpinBox = findChild<QSpinBox *>(QStringLiteral("LogLImitSpinBox"));
    QCheckBox *const TrayChkBox = findChild<QCheckBox *>(QStringLiteral("TrayChkBox"));
    QCheckBox *const WarningTemp = findChild<QCheckBox *>(QStringLiteral("WarningTemp"));
    QCheckBox *const LogChkBox = findChild<QCheckBox *>(QStringLiteral("LogChkBox"));
    QCheckBox *const SizeLimitChkBox = findChild<QCheckBox *>(QStringLiteral("SizeLimitChkBox"));
    QLineEdit *const PathlineEdit = findChild<QLineEdit *>(QStringLiteral("PathlineEdit"));
    QPushButton *const BrowsButton_2 = findChild<QPushButton *>(QStringLiteral("BrowsButton_2"));
};

/// The settings window on a store of its own.
class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstRunShowsFahrenheitAtItsLowest();
    void laterRunOnlyChangesTheUnit();
    void firstOpeningShowsDefaultsAndIsRemembered();
    void storedValuesAreShown();
    void valuesBelowTheLowestAreRaised();
    void unitChangeConvertsOneWay();
    void savingStoresAllTogether();
    void alarmOffIsStoredAsPair();
    void checkBoxesEnableTheirFields();
    void menuOffersLanguages_data();
    void menuOffersLanguages();
};

void SettingsTest::init()
{
    FakePlatform::install();
    g_App.m_fScale = 1.0F;
    g_App.m_strSettingsPath = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Test");
    g_App.m_bShowLanguageMenu = true;
    g_App.m_bKorvaneBrand = false;
    languages::setOffered();
    languages::setFlag(0);
}

void SettingsTest::firstRunShowsFahrenheitAtItsLowest()
{
    OpenSettings window;
    window.ApplyFirstRunDefaults();
    QCOMPARE(window.degreeComboBox->currentIndex(), 1);
    // 45 and 50 are below the minimum in Fahrenheit.
    QCOMPARE(window.WarningSpinBox->value(), 104);
    QCOMPARE(window.ShutDownSpinBox->value(), 122);
    QCOMPARE(window.LogLImitSpinBox->value(), 99);
    QVERIFY(window.TrayChkBox->isChecked());
    QVERIFY(window.WarningTemp->isChecked());
}

void SettingsTest::laterRunOnlyChangesTheUnit()
{
    SettingsStore().write(key::FirstTimeLaunch, 1);
    OpenSettings window;
    window.ApplyFirstRunDefaults();
    QCOMPARE(window.degreeComboBox->currentIndex(), 1);
    QCOMPARE(window.WarningSpinBox->value(), 113);
    QCOMPARE(window.LogLImitSpinBox->value(), 100);
    QVERIFY(!window.TrayChkBox->isChecked());
}

void SettingsTest::firstOpeningShowsDefaultsAndIsRemembered()
{
    OpenSettings window;
    window.ApplyFirstRunDefaults();
    window.LoadFromStore();
    QCOMPARE(window.degreeComboBox->currentIndex(), 0);
    QCOMPARE(window.WarningSpinBox->value(), 45);
    QCOMPARE(window.ShutDownSpinBox->value(), 50);
    QCOMPARE(SettingsStore().number(key::FirstTimeLaunch), 1);
}

void SettingsTest::storedValuesAreShown()
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
    QCOMPARE(window.degreeComboBox->currentIndex(), 1);
    QVERIFY(window.TrayChkBox->isChecked());
    QVERIFY(!window.WarningTemp->isChecked());
    QVERIFY(!window.WarningSpinBox->isEnabled());
    QVERIFY(!window.ShutDownSpinBox->isEnabled());
    QVERIFY(!window.degreeComboBox_2->isEnabled());
    QCOMPARE(window.WarningSpinBox->value(), 131);
    QCOMPARE(window.ShutDownSpinBox->value(), 140);
}

void SettingsTest::valuesBelowTheLowestAreRaised()
{
    SettingsStore().write(key::FirstTimeLaunch, 1);
    OpenSettings window;
    window.LoadFromStore();
    QCOMPARE(window.WarningSpinBox->value(), 40);
    QCOMPARE(window.ShutDownSpinBox->value(), 50);
}

void SettingsTest::unitChangeConvertsOneWay()
{
    OpenSettings window;
    window.WarningSpinBox->setValue(60);
    window.ShutDownSpinBox->setValue(70);
    window.degreeComboBox->setCurrentIndex(1);
    QCOMPARE(window.WarningSpinBox->value(), 140);
    QCOMPARE(window.ShutDownSpinBox->value(), 158);
    QCOMPARE(window.WarningSpinBox->minimum(), 104);
    QCOMPARE(window.ShutDownSpinBox->minimum(), 122);
    window.degreeComboBox->setCurrentIndex(0);
    QCOMPARE(window.WarningSpinBox->value(), 40);
    QCOMPARE(window.ShutDownSpinBox->value(), 50);
    QCOMPARE(window.WarningSpinBox->minimum(), 40);
}

void SettingsTest::savingStoresAllTogether()
{
    OpenSettings window;
    window.degreeComboBox->setCurrentIndex(1);
    window.WarningTemp->setChecked(true);
    window.WarningSpinBox->setValue(150);
    window.ShutDownSpinBox->setValue(130); // a shutdown below the warning is accepted
    window.PathlineEdit->setText(QStringLiteral("D:\\logs\\disk.txt"));
    window.SaveToStore();
    const SettingsStore store;
    for (const TextSetting &unit : {key::TempValue, key::WarningtemValue, key::ShutDowntemValue})
        QCOMPARE(store.text(unit), QStringLiteral("F"));
    QVERIFY(store.flag(key::ShowWarning));
    QVERIFY(!store.flag(key::DontShow));
    QCOMPARE(store.number(key::WarningValue), 150);
    QCOMPARE(store.number(key::ShutDownValue), 130);
    QCOMPARE(store.text(key::LogSavePath), QStringLiteral("D:\\logs\\disk.txt"));
}

void SettingsTest::alarmOffIsStoredAsPair()
{
    OpenSettings window;
    window.WarningTemp->setChecked(false);
    window.PathlineEdit->clear();
    window.SaveToStore();
    const SettingsStore store;
    QVERIFY(!store.flag(key::ShowWarning));
    QVERIFY(store.flag(key::DontShow));
    QCOMPARE(store.text(key::LogSavePath), QString());
    QCOMPARE(store.text(key::TempValue), QStringLiteral("C"));
}

void SettingsTest::checkBoxesEnableTheirFields()
{
    OpenSettings window;
    const QVector<QPair<QCheckBox *, QVector<QWidget *>>> rows = {
        {window.LogChkBox, {window.PathlineEdit, window.BrowsButton_2}},
        {window.SizeLimitChkBox, {window.LogLImitSpinBox}},
        {window.WarningTemp, {window.WarningSpinBox, window.ShutDownSpinBox}},
    };
    for (const auto &row : rows) {
        for (const bool on : {true, false, true}) {
            row.first->setChecked(on);
            for (const QWidget *field : row.second)
                QCOMPARE(field->isEnabled(), on);
        }
    }
}

void SettingsTest::menuOffersLanguages_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("secondBrand");
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QString>("checked");
    const QStringList all{"English",  "German", "French", "Italian", "Spanish",
                          "Japanese", "Dutch",  "Brazil", "Hindi",   "Korean"};
    const QStringList second = all.mid(0, 8);
    QTest::newRow("German") << 1 << false << all << "German";
    QTest::newRow("Korean") << 7 << false << all << "Korean";
    QTest::newRow("none set") << -1 << false << all << "English";
    QTest::newRow("Chinese runs unoffered") << 6 << false << all << "Chinese";
    QTest::newRow("second brand") << 2 << true << second << "French";
}

void SettingsTest::menuOffersLanguages()
{
    QFETCH(int, current);
    QFETCH(bool, secondBrand);
    QFETCH(QString, checked);
    languages::setFlag(current);
    g_App.m_bKorvaneBrand = secondBrand;
    const Settings window;
    QStringList texts;
    const auto actions = buttonOf(&window, "m_pLanguageButton")->menu()->actions();
    for (const QAction *action : actions)
        texts << action->text();
    QTEST(texts, "offered");
    QStringList marked;
    for (const languages::Language &language : languages::table) {
        const auto *action = window.findChild<QAction *>(QLatin1String(language.text));
        QVERIFY(action->isCheckable());
        if (action->isChecked())
            marked << action->text();
    }
    QCOMPARE(marked, QStringList{checked});
}

QTEST_MAIN(SettingsTest)

#include "tst_Settings.moc"
