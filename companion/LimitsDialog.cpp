// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/LimitsDialog.h"

#include "monitor/WatchSettings.h"
#include "smart/Temperature.h"
#include "ui/widgets/Style.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace
{

constexpr int LowestCelsius = 20;

const DialogShape Shape = {"LimitsDialog",
                           380,
                           {"TitleLabel", QT_TRANSLATE_NOOP("LimitsDialog", "Limits of this disk")},
                           {},
                           {{"DiskLabel"}},
                           {{"OkButton", QT_TRANSLATE_NOOP("LimitsDialog", "OK")},
                            {"CancelButton", QT_TRANSLATE_NOOP("LimitsDialog", "Cancel")}},
                           DialogButton::First,
                           DialogButton::First};

} // namespace

LimitsDialog::LimitsDialog(const DiskSummary &disk, bool fahrenheit)
    : m_strSerial(disk.serial), m_bFahrenheit(fahrenheit), m_Frame(this), m_pWarningCaption(new QLabel),
      m_pShutDownCaption(new QLabel)
{
    QVBoxLayout *column = m_Frame.build(Shape);
    const auto own = ownlimits::load(m_strSerial);
    const WatchSettings settings = WatchSettings::load();
    m_pOwn = new QCheckBox;
    m_pOwn->setFont(style::font(10));
    m_pOwn->setChecked(own.has_value());
    column->addWidget(m_pOwn);
    m_pWarning = addLimit(column, m_pWarningCaption,
                          own ? own->warning : disk.limits.warning.value_or(settings.warning));
    m_pShutDown = addLimit(column, m_pShutDownCaption,
                           own ? own->shutDown : disk.limits.shutDown.value_or(settings.shutDown));
    for (QSpinBox *box : {m_pWarning, m_pShutDown}) {
        box->setEnabled(m_pOwn->isChecked());
        connect(m_pOwn, &QCheckBox::toggled, box, &QSpinBox::setEnabled);
    }
    m_Frame.dress();
    for (QLabel *caption : {m_pWarningCaption, m_pShutDownCaption})
        caption->setStyleSheet(style::GreyLabel);
    m_Frame.keepTranslated([this] { retranslate(); });
    setStyleSheet(style::fieldSheet());
    setWindowFlag(Qt::WindowStaysOnTopHint);
    m_Frame.label("DiskLabel")->setText(disk.model);
    m_Frame.label("DiskLabel")->setFont(style::semiBold(10));
    m_Frame.fit();
    connect(m_Frame.button(DialogButton::First), &QPushButton::clicked, this, &LimitsDialog::accept);
    connect(m_Frame.button(DialogButton::Last), &QPushButton::clicked, this, &QDialog::reject);
}

void LimitsDialog::retranslate()
{
    m_pOwn->setText(tr("Limits of its own"));
    m_pWarningCaption->setText(tr("Warning Temperature"));
    m_pShutDownCaption->setText(tr("Shutdown Temperature"));
}

QSpinBox *LimitsDialog::addLimit(QVBoxLayout *column, QLabel *caption, int celsius)
{
    auto *row = new QHBoxLayout;
    column->addLayout(row);
    auto *box = new QSpinBox;
    box->setFixedHeight(30);
    box->setMinimumWidth(100);
    box->setFont(style::font(10));
    box->setRange(displayTemperature(LowestCelsius, m_bFahrenheit),
                  displayTemperature(HottestCelsius, m_bFahrenheit));
    box->setSuffix(m_bFahrenheit ? QStringLiteral(" °F") : QStringLiteral(" °C"));
    box->setValue(displayTemperature(celsius, m_bFahrenheit));
    caption->setBuddy(box);
    row->addWidget(caption);
    row->addStretch();
    row->addWidget(box);
    return box;
}

int LimitsDialog::celsiusOf(const QSpinBox *box) const
{
    if (!m_bFahrenheit)
        return box->value();
    // The lowest temperature that is shown as this number or a higher one.
    int celsius = LowestCelsius;
    while (celsius < HottestCelsius && displayTemperature(celsius, true) < box->value())
        ++celsius;
    return celsius;
}

void LimitsDialog::accept()
{
    std::optional<ownlimits::Limits> limits;
    if (m_pOwn->isChecked())
        // Below the other limit it would take its place.
        limits =
            ownlimits::Limits{celsiusOf(m_pWarning), std::max(celsiusOf(m_pWarning), celsiusOf(m_pShutDown))};
    ownlimits::save(m_strSerial, limits);
    QDialog::accept();
}
