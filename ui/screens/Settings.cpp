// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/Settings.h"

#include "state/SettingsStore.h"
#include "ui/dialogs/MessageDialog.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace
{

/// A flat picture button of the title strip.
void styleTitleButton(QPushButton *button, const QString &file)
{
    button->setStyleSheet(
        style::sheet(QStringLiteral("QPushButton{border: none; border-radius: %1px; background: "
                                    "transparent; image: url(%2);}"
                                    "QPushButton:hover, QPushButton:focus{background: @chosen;}"
                                    "QPushButton::menu-indicator{image: none; width: 0px;}")
                         .arg(style::px(4))
                         .arg(images::nearestPath(file))));
    button->setCursor(Qt::PointingHandCursor);
}

} // namespace

Settings::Settings() : Page(nullptr), m_Frame(this), m_pLanguageMenu(new QMenu(this))
{
    m_ui.setupUi(this);
    fillFields();
    m_Frame.dress(m_ui.HeaderLabel, m_ui.CloseButton, m_ui.OkButton);
    styleFields();
    BuildLanguageMenu();
    retranslate();
    connectFields();
    m_Frame.fit();
}

void Settings::fillFields()
{
    m_ui.PathlineEdit->setPlaceholderText(settings::defaultLogPath(g_App.m_strSystemFolder));
    m_ui.PathlineEdit->setText(QLatin1String(key::LogSavePath.first));
    m_ui.WarningSpinBox->setValue(key::WarningValue.first);
    m_ui.ShutDownSpinBox->setValue(key::ShutDownValue.first);
}

void Settings::styleFields()
{
    setStyleSheet(style::fieldSheet());
    const auto fields = m_ui.frame->findChildren<QWidget *>();
    for (QWidget *field : fields)
        field->setFont(style::font(10));
    for (QLabel *caption : {m_ui.logSizeLbl, m_ui.logSizeLbl_2, m_ui.logSizeLbl_3, m_ui.logSizeLbl_4})
        caption->setStyleSheet(style::GreyLabel);
    for (QLabel *group : {m_ui.GeneraLabel, m_ui.GeneraLabel_2, m_ui.TempLabel})
        group->setFont(style::semiBold(10));
    m_ui.ButtonLabel->setStyleSheet(style::sheet(QStringLiteral("QLabel{background: @pale;}")));
    styleTitleButton(m_ui.m_pUpdateButton, QStringLiteral("img_CheckUpdate.png"));
    styleTitleButton(m_ui.m_pHelpButton, QStringLiteral("img_Help.png"));
    styleTitleButton(m_ui.m_pLanguageButton, QStringLiteral("img_Language.png"));
    styleTitleButton(m_ui.CloseButton, QStringLiteral("img_Close.png"));
    m_pLanguageMenu->setFont(style::font(10));
    m_pLanguageMenu->setStyleSheet(QStringLiteral("QMenu::indicator{left: %1px; width: %2px; height: %2px;}"
                                                  "QMenu::indicator:checked{image: url(%3);}")
                                       .arg(style::px(8))
                                       .arg(style::px(14))
                                       .arg(images::nearestPath(QStringLiteral("img_CheckOn.png"))));
    m_ui.m_pUpdateButton->setHidden(g_App.m_bHideUpdateButton);
    m_ui.m_pLanguageButton->setVisible(g_App.m_bShowLanguageMenu);
}

void Settings::connectFields()
{
    connect(m_ui.CloseButton, &QPushButton::clicked, this, &Settings::CloseWindow);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            &Settings::OnOpenSettingsHelp);
    for (const QPushButton *button : {m_ui.OkButton, m_ui.CloseButton})
        connect(button, &QPushButton::clicked, this, &Settings::left);
    connect(m_ui.LogChkBox, &QCheckBox::stateChanged, this, &Settings::OnLogEventStateChanged);
    connect(m_ui.SizeLimitChkBox, &QCheckBox::stateChanged, this, &Settings::SizeLimittStateChanged);
    connect(m_ui.WarningTemp, &QCheckBox::stateChanged, this, &Settings::WarningTempStateChanged);
    connect(m_ui.BrowsButton_2, &QPushButton::clicked, this, &Settings::OnSelectLogPath);
    connect(m_ui.degreeComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &Settings::ChangeWarningTemperature);
    connect(m_ui.m_pUpdateButton, &QPushButton::clicked, this, &Settings::OnCheckUpdate);
    connect(m_ui.m_pHelpButton, &QPushButton::clicked, this, &Settings::OnOpenSettingsHelp);
    constexpr std::array<void (Settings::*)(), LanguageCount> changes = {
        &Settings::OnChangeEnglishLanguage,  &Settings::OnChangeGermanLanguage,
        &Settings::OnChangeFrenchLanguage,   &Settings::OnChangeItalianLanguage,
        &Settings::OnChangeSpanishLanguage,  &Settings::OnChangeJapneaseLanguage,
        &Settings::OnChangeChineaseLanguage, &Settings::OnChangeKoreanLanguage,
        &Settings::OnChangeDutchLanguage,    &Settings::OnChangeBrazilLanguage,
        &Settings::OnChangeHindiLanguage};
    for (std::size_t type = 0; type < changes.size(); ++type)
        connect(m_apLanguageActions[type], &QAction::triggered, this, changes[type]);
}

void Settings::BuildLanguageMenu()
{
    for (const languages::Language &language : languages::table) {
        auto *action = new QAction(this);
        action->setCheckable(true);
        action->setObjectName(QLatin1String(language.text));
        m_apLanguageActions[language.index()] = action;
        if (g_App.m_abLanguageOffered[language.index()] && (language.ofSecondBrand || !g_App.m_bKorvaneBrand))
            m_pLanguageMenu->addAction(action);
    }
    // Korean is the last one of the menu.
    QAction *korean = m_apLanguageActions[static_cast<std::size_t>(LanguageType::Korean)];
    if (m_pLanguageMenu->actions().contains(korean))
        m_pLanguageMenu->addAction(korean);
    checkCurrentLanguage();
    if (g_App.m_bShowLanguageMenu)
        m_ui.m_pLanguageButton->setMenu(m_pLanguageMenu);
}

void Settings::checkCurrentLanguage()
{
    for (const languages::Language &language : languages::table)
        m_apLanguageActions[language.index()]->setChecked(&language == &languages::current());
}

void Settings::changeLanguage(LanguageType type)
{
    languages::change(type);
    checkCurrentLanguage();
}

void Settings::retranslate()
{
    m_ui.retranslateUi(this);
    for (const languages::Language &language : languages::table)
        m_apLanguageActions[language.index()]->setText(
            QCoreApplication::translate("MainWindow", language.text));
    widenUnitCombo();
}

void Settings::widenUnitCombo()
{
    // What the style sheet adds to the text: padding, border and the arrow.
    int widest = 0;
    for (int item = 0; item < m_ui.degreeComboBox->count(); ++item)
        widest = std::max(widest, m_ui.degreeComboBox->fontMetrics().horizontalAdvance(
                                      m_ui.degreeComboBox->itemText(item)));
    m_ui.degreeComboBox->setFixedWidth(std::max(style::px(130), widest + style::px(60)));
}

void Settings::setAlarmEnabled(bool enabled)
{
    m_ui.WarningSpinBox->setEnabled(enabled);
    m_ui.ShutDownSpinBox->setEnabled(enabled);
}

void Settings::setThresholds(int warning, int shutDown)
{
    m_ui.WarningSpinBox->setValue(warning);
    m_ui.ShutDownSpinBox->setValue(shutDown);
}

void Settings::showValues(const settings::Values &values)
{
    m_ui.degreeComboBox->setCurrentIndex(values.unit);
    m_ui.TrayChkBox->setChecked(values.tray);
    m_ui.WarningTemp->setChecked(values.alarm);
    setAlarmEnabled(values.alarm);
    for (QComboBox *unit : {m_ui.degreeComboBox_2, m_ui.degreeComboBox_3})
        unit->setEnabled(values.alarm);
    setThresholds(values.warning, values.shutDown);
    m_ui.LogChkBox->setChecked(values.log);
    OnLogEventStateChanged(values.log ? Qt::Checked : Qt::Unchecked);
    m_ui.PathlineEdit->setText(values.logPath);
    const bool limited = values.logKilobytes > 0;
    m_ui.SizeLimitChkBox->setChecked(limited);
    m_ui.LogLImitSpinBox->setEnabled(limited);
    if (limited)
        m_ui.LogLImitSpinBox->setValue(values.logKilobytes);
}

void Settings::ApplyFirstRunDefaults()
{
    m_ui.degreeComboBox->setCurrentIndex(settings::Fahrenheit);
    if (SettingsStore().flag(key::FirstTimeLaunch))
        return;
    m_ui.StartupChkBox->setChecked(false);
    settings::Values values = settings::firstRun();
    values.unit = settings::Fahrenheit;
    showValues(values);
}

void Settings::LoadFromStore()
{
    m_ui.degreeComboBox->setCurrentIndex(settings::Celsius);
    showValues(settings::load()); // what was left by Escape goes
}

void Settings::SaveToStore()
{
    const bool alarm = m_ui.WarningTemp->isChecked();
    setAlarmEnabled(alarm);
    settings::save({WantsTray(), m_ui.degreeComboBox->currentIndex(), alarm, m_ui.WarningSpinBox->value(),
                    m_ui.ShutDownSpinBox->value(), m_ui.LogChkBox->isChecked(), m_ui.PathlineEdit->text(),
                    m_ui.SizeLimitChkBox->isChecked() ? m_ui.LogLImitSpinBox->value() : 0});
}

void Settings::OnLogEventStateChanged(int state)
{
    m_ui.PathlineEdit->setEnabled(state == Qt::Checked);
    m_ui.BrowsButton_2->setEnabled(state == Qt::Checked);
}

void Settings::OnSelectLogPath()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Save log file"),
                                                      QStringLiteral("Logfile.txt"), QStringLiteral("*.txt"));
    if (!file.isEmpty())
        m_ui.PathlineEdit->setText(file);
}

void Settings::ChangeWarningTemperature()
{
    const int unit = m_ui.degreeComboBox->currentIndex();
    m_ui.WarningSpinBox->setMinimum(0);
    m_ui.ShutDownSpinBox->setMinimum(0);
    if (unit != settings::Celsius && unit != settings::Fahrenheit)
        return;
    const settings::AlarmLimits limits =
        settings::limitsForUnit(unit, m_ui.WarningSpinBox->value(), m_ui.ShutDownSpinBox->value());
    setThresholds(limits.warning, limits.shutDown);
    m_ui.WarningSpinBox->setMinimum(limits.lowestWarning);
    m_ui.ShutDownSpinBox->setMinimum(limits.lowestShutDown);
    for (QSpinBox *threshold : {m_ui.WarningSpinBox, m_ui.ShutDownSpinBox})
        threshold->setSuffix(QStringLiteral(" °") + settings::unitText(unit));
}

void Settings::OnCheckUpdate()
{
    if (QCheckUpdate *check = checkForUpdates(this)) {
        connect(check, &QCheckUpdate::NoUpdates, this, &Settings::OnNoUpdateAvailable);
        check->hide();
    }
}

void Settings::OnNoUpdateAvailable()
{
    ShowUpdateMessage(tr("Your Software has all latest updates installed."), 1);
}
