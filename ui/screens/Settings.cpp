// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/screens/Settings.h"

#include "state/Languages.h"
#include "state/SettingsRules.h"
#include "state/SettingsStore.h"
#include "ui/dialogs/QCheckUpdate.h"
#include "ui/dialogs/SmallMessageDlg.h"
#include "ui/screens/PageLook.h"
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
    button->setStyleSheet(QStringLiteral("QPushButton{border: none; border-radius: %1px; background: "
                                         "transparent; image: url(%2);}"
                                         "QPushButton:hover, QPushButton:focus{background: #e4f0fd;}"
                                         "QPushButton::menu-indicator{image: none; width: 0px;}")
                              .arg(style::px(4))
                              .arg(images::nearestPath(file)));
    button->setCursor(Qt::PointingHandCursor);
}

} // namespace

Settings::Settings() : Page(nullptr), m_Frame(this), m_pLanguageMenu(new QMenu(this))
{
    setupUi(this);
    addHeaderButtons();
    fillFields();
    m_Frame.dress(HeaderLabel, CloseButton, OkButton);
    styleFields();
    BuildLanguageMenu();
    retranslate();
    connectFields();
    m_Frame.fit();
}

void Settings::addHeaderButtons()
{
    int place = titleLayout->indexOf(CloseButton);
    const auto add = [this, &place](const char *name) {
        auto *button = pagelook::named(new QPushButton(this), name);
        button->setMinimumSize(CloseButton->minimumSize());
        button->setMaximumSize(CloseButton->maximumSize());
        titleLayout->insertWidget(place++, button);
        return button;
    };
    m_pUpdateButton = add("m_pUpdateButton");
    m_pHelpButton = add("m_pHelpButton");
    m_pLanguageButton = add("m_pLanguageButton");
}

void Settings::fillFields()
{
    PathlineEdit->setPlaceholderText(settings::defaultLogPath(g_App.m_strSystemFolder));
    m_strLogPath = QLatin1String(key::LogSavePath.first);
    PathlineEdit->setText(m_strLogPath);
    LogLImitSpinBox->setMinimum(10);
    LogLImitSpinBox->setValue(100);
    WarningSpinBox->setValue(key::WarningValue.first);
    WarningSpinBox->setMinimum(40);
    ShutDownSpinBox->setValue(key::ShutDownValue.first);
    ShutDownSpinBox->setMinimum(50);
}

void Settings::styleFields()
{
    setStyleSheet(style::fieldSheet());
    const auto fields = frame->findChildren<QWidget *>();
    for (QWidget *field : fields)
        field->setFont(style::font(10));
    for (QLabel *caption : {logSizeLbl, logSizeLbl_2, logSizeLbl_3, logSizeLbl_4})
        caption->setStyleSheet(style::GreyLabel);
    for (QLabel *group : {GeneraLabel, GeneraLabel_2, TempLabel})
        group->setFont(style::semiBold(10));
    for (QFrame *hairline : {line, line_2})
        hairline->setStyleSheet(QStringLiteral("QFrame{background: #e6eaee;}"));
    ButtonLabel->setStyleSheet(QStringLiteral("QLabel{background: #f5f5f5;}"));
    PathlineEdit->setStyleSheet(QStringLiteral("color: #64778b;background-color: white;selection-color: "
                                               "gray;selection-background-color: solid gray;"));
    styleTitleButton(m_pUpdateButton, QStringLiteral("img_CheckUpdate.png"));
    styleTitleButton(m_pHelpButton, QStringLiteral("img_Help.png"));
    styleTitleButton(m_pLanguageButton, QStringLiteral("img_Language.png"));
    styleTitleButton(CloseButton, QStringLiteral("img_Close.png"));
    m_pLanguageMenu->setFont(style::font(10));
    m_pLanguageMenu->setStyleSheet(QStringLiteral("QMenu::indicator{left: %1px; width: %2px; height: %2px;}"
                                                  "QMenu::indicator:checked{image: url(%3);}")
                                       .arg(style::px(8))
                                       .arg(style::px(14))
                                       .arg(images::nearestPath(QStringLiteral("img_CheckOn.png"))));
    m_pUpdateButton->setHidden(g_App.m_bHideUpdateButton);
    m_pLanguageButton->setVisible(g_App.m_bShowLanguageMenu);
}

void Settings::connectFields()
{
    connect(CloseButton, &QPushButton::clicked, this, &Settings::CloseWindow);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
            &Settings::OnOpenSettingsHelp);
    for (const QPushButton *button : {OkButton, CloseButton})
        connect(button, &QPushButton::clicked, this, &Settings::left);
    connect(LogChkBox, &QCheckBox::stateChanged, this, &Settings::OnLogEventStateChanged);
    connect(SizeLimitChkBox, &QCheckBox::stateChanged, this, &Settings::SizeLimittStateChanged);
    connect(WarningTemp, &QCheckBox::stateChanged, this, &Settings::WarningTempStateChanged);
    connect(BrowsButton_2, &QPushButton::clicked, this, &Settings::OnSelectLogPath);
    connect(degreeComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &Settings::ChangeWarningTemperature);
    connect(m_pUpdateButton, &QPushButton::clicked, this, &Settings::OnCheckUpdate);
    connect(m_pHelpButton, &QPushButton::clicked, this, &Settings::OnOpenSettingsHelp);
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
        m_pLanguageButton->setMenu(m_pLanguageMenu);
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
    retranslateUi(this);
    m_pUpdateButton->setToolTip(tr("Check for Updates"));
    m_pHelpButton->setToolTip(tr("View Velmora Halvane help document"));
    m_pLanguageButton->setToolTip(tr("Languages"));
    for (QPushButton *button : {m_pUpdateButton, m_pHelpButton, m_pLanguageButton})
        button->setAccessibleName(button->toolTip());
    CloseButton->setAccessibleName(QCoreApplication::translate("MainWindow", "Close"));
    for (const languages::Language &language : languages::table)
        m_apLanguageActions[language.index()]->setText(
            QCoreApplication::translate("MainWindow", language.text));
    widenUnitCombo();
}

void Settings::widenUnitCombo()
{
    // What the style sheet adds to the text: padding, border and the arrow.
    int widest = 0;
    for (int item = 0; item < degreeComboBox->count(); ++item)
        widest =
            std::max(widest, degreeComboBox->fontMetrics().horizontalAdvance(degreeComboBox->itemText(item)));
    degreeComboBox->setFixedWidth(std::max(style::px(130), widest + style::px(60)));
}

void Settings::setAlarmEnabled(bool enabled)
{
    WarningSpinBox->setEnabled(enabled);
    ShutDownSpinBox->setEnabled(enabled);
}

void Settings::setThresholds(int warning, int shutDown)
{
    WarningSpinBox->setValue(warning);
    ShutDownSpinBox->setValue(shutDown);
}

void Settings::showValues(const settings::Values &values)
{
    degreeComboBox->setCurrentIndex(values.unit);
    TrayChkBox->setChecked(values.tray);
    WarningTemp->setChecked(values.alarm);
    setAlarmEnabled(values.alarm);
    for (QComboBox *unit : {degreeComboBox_2, degreeComboBox_3})
        unit->setEnabled(values.alarm);
    setThresholds(values.warning, values.shutDown);
}

void Settings::ApplyFirstRunDefaults()
{
    degreeComboBox->setCurrentIndex(settings::Fahrenheit);
    if (SettingsStore().flag(key::FirstTimeLaunch))
        return;
    StartupChkBox->setChecked(false);
    LogChkBox->setChecked(true);
    OnLogEventStateChanged(Qt::Checked);
    SizeLimitChkBox->setChecked(true);
    LogLImitSpinBox->setEnabled(true);
    LogLImitSpinBox->setValue(key::MaxLogSize.first);
    settings::Values values = settings::firstRun();
    values.unit = settings::Fahrenheit;
    showValues(values);
}

void Settings::LoadFromStore()
{
    degreeComboBox->setCurrentIndex(settings::Celsius);
    PathlineEdit->setText(m_strLogPath); // what was left by Escape goes
    showValues(settings::load());
}

void Settings::SaveToStore()
{
    const bool alarm = WarningTemp->isChecked();
    setAlarmEnabled(alarm);
    m_strLogPath = PathlineEdit->text();
    settings::save({WantsTray(), degreeComboBox->currentIndex(), alarm, WarningSpinBox->value(),
                    ShutDownSpinBox->value()},
                   m_strLogPath);
}

void Settings::OnLogEventStateChanged(int state)
{
    PathlineEdit->setEnabled(state == Qt::Checked);
    BrowsButton_2->setEnabled(state == Qt::Checked);
}

void Settings::OnSelectLogPath()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Save log file"),
                                                      QStringLiteral("Logfile.txt"), QStringLiteral("*.txt"));
    if (!file.isEmpty())
        PathlineEdit->setText(file);
}

void Settings::ChangeWarningTemperature()
{
    const int unit = degreeComboBox->currentIndex();
    WarningSpinBox->setMinimum(0);
    ShutDownSpinBox->setMinimum(0);
    if (unit != settings::Celsius && unit != settings::Fahrenheit)
        return;
    const settings::AlarmLimits limits =
        settings::limitsForUnit(unit, WarningSpinBox->value(), ShutDownSpinBox->value());
    setThresholds(limits.warning, limits.shutDown);
    WarningSpinBox->setMinimum(limits.lowestWarning);
    ShutDownSpinBox->setMinimum(limits.lowestShutDown);
    for (QSpinBox *threshold : {WarningSpinBox, ShutDownSpinBox})
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
