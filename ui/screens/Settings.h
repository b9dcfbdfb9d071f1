// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/Languages.h"
#include "state/SettingsRules.h"
#include "ui/dialogs/DialogFrame.h"
#include "ui/screens/Page.h"
#include "update/HelpLinks.h"

#include <array>

#include "ui_Settings.h"

class QAction;
class QMenu;

/// The settings window: temperature unit and alarm, log path, tray, language. A top-level window without a
/// parent, made once and shown on demand; the main window stays live beside it. Nothing is stored before
/// SaveToStore().
class Settings : public Page
{
    Q_OBJECT

public:
    Settings();

    /// Shows the values that a first start begins with. Call once; afterwards only the unit changes.
    void ApplyFirstRunDefaults();

    /// Shows the stored values. Where nothing was stored yet it shows the defaults and marks the first start
    /// as done.
    void LoadFromStore();

    /// Stores units, alarm, thresholds (as shown, in the shown unit) and what belongs to the log.
    void SaveToStore();

    /// Whether the status is to show in the tray.
    bool WantsTray() const { return m_ui.TrayChkBox->isChecked(); }

signals:
    /// OK or the close button was pressed.
    void left();

public slots:
    void CloseWindow() { hide(); }
    void OnLogEventStateChanged(int state);
    void SizeLimittStateChanged(int state) { m_ui.LogLImitSpinBox->setEnabled(state == Qt::Checked); }
    void WarningTempStateChanged(int state) { setAlarmEnabled(state == Qt::Checked); }
    void OnSelectLogPath();
    /// Adapts the two thresholds and their lowest values to the unit chosen.
    void ChangeWarningTemperature();
    void OnCheckUpdate();
    /// Opens the help on the settings.
    void OnOpenSettingsHelp() { links::openHelp(links::Topic::Settings); }
    void CheckUpdate() { OnCheckUpdate(); }
    void OnNoUpdateAvailable();
    /// One door for each language, in the order of LanguageType
    void OnChangeEnglishLanguage() { changeLanguage(LanguageType::English); }
    void OnChangeGermanLanguage() { changeLanguage(LanguageType::German); }
    void OnChangeFrenchLanguage() { changeLanguage(LanguageType::French); }
    void OnChangeItalianLanguage() { changeLanguage(LanguageType::Italian); }
    void OnChangeSpanishLanguage() { changeLanguage(LanguageType::Spanish); }
    void OnChangeJapneaseLanguage() { changeLanguage(LanguageType::Japanese); }
    void OnChangeChineaseLanguage() { changeLanguage(LanguageType::Chinese); }
    void OnChangeKoreanLanguage() { changeLanguage(LanguageType::Korean); }
    void OnChangeDutchLanguage() { changeLanguage(LanguageType::Dutch); }
    void OnChangeBrazilLanguage() { changeLanguage(LanguageType::Brazil); }
    void OnChangeHindiLanguage() { changeLanguage(LanguageType::Hindi); }

protected:
    void retranslate() override;

private:
    /// Fills the language button's menu with the languages on offer and checks the current one.
    void BuildLanguageMenu();
    void changeLanguage(LanguageType type);
    void checkCurrentLanguage();
    void fillFields();
    void styleFields();
    void connectFields();
    void showValues(const settings::Values &values);
    void widenUnitCombo();
    void setAlarmEnabled(bool enabled);
    void setThresholds(int warning, int shutDown);

    Ui::m_pSettingswgt m_ui;
    /// By LanguageType. All eleven are there, also those that the menu leaves out.
    std::array<QAction *, LanguageCount> m_apLanguageActions{};
    DialogFrame m_Frame;
    QMenu *m_pLanguageMenu;
};
