// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/FlyoutRow.h"

#include "companion/TrayPicture.h"
#include "monitor/EventTexts.h"
#include "ui/widgets/FittingTexts.h"
#include "ui/widgets/Style.h"

#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace
{

constexpr int Height = 58; ///< design pixels, as are all places here
constexpr QRect SignPlace(16, 16, 24, 24);
constexpr QSize DaySize(58, 22);
constexpr int TextsLeft = 52;
constexpr int Margin = 16;
constexpr int Gap = 3; ///< between texts and line; three times that before the temperature

const QColor Hairline(0xe6, 0xea, 0xee);

QRect scaled(const QRect &design)
{
    return {style::px(design.x()), style::px(design.y()), style::px(design.width()),
            style::px(design.height())};
}

QLabel *makeLabel(const char *name, const QFont &font)
{
    auto *label = new ElidingLabel;
    label->setObjectName(QLatin1String(name));
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style::BlackLabel);
    return label;
}

} // namespace

FlyoutRow::FlyoutRow(QWidget *parent)
    : QAbstractButton(parent), m_pName(makeLabel("DiskName", style::semiBold(10))),
      m_pState(makeLabel("DiskState", style::font(9))), m_pDay(new QWidget),
      m_pTemperature(makeLabel("DiskTemperature", style::font(14)))
{
    setFixedHeight(style::px(Height));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    m_pDay->setFixedSize(style::px(DaySize.width()), style::px(DaySize.height()));
    m_pTemperature->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(style::px(TextsLeft), 0, style::px(Margin), 0);
    row->setSpacing(style::px(Gap));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(style::px(2));
    texts->addStretch();
    texts->addWidget(m_pName);
    texts->addWidget(m_pState);
    texts->addStretch();
    row->addLayout(texts, 1);
    row->addWidget(m_pDay);
    row->addSpacing(style::px(Gap));
    row->addWidget(m_pTemperature);
    connect(this, &QAbstractButton::clicked, this, [this] { emit openWanted(m_disk); });
}

void FlyoutRow::setDisk(const DiskSummary &disk, bool fahrenheit, const QDateTime &now)
{
    m_disk = disk;
    m_nNow = now.toMSecsSinceEpoch();
    m_pName->setText(traystate::nameOf(disk));
    m_pState->setText(traystate::stateOf(disk, fahrenheit));
    const bool alarming = traystate::signOf(disk) == traystate::Sign::Hot;
    m_pState->setStyleSheet(alarming ? style::FailedLabel : style::GreyLabel);
    m_pTemperature->setText(traystate::temperatureOf(disk, fahrenheit));
    // As wide in all rows, so that the lines of the day stand below each other.
    m_pTemperature->setMinimumWidth(m_pTemperature->fontMetrics().horizontalAdvance(
        eventtexts::temperature(fahrenheit ? 40 : 88, fahrenheit)));
    setAccessibleName(
        QStringList{m_pName->text(), m_pState->text(), m_pTemperature->text()}.join(QStringLiteral(", ")));
    setToolTip(style::wholeTip(m_pName->text() + QLatin1Char('\n') + m_pState->text()));
    update();
}

void FlyoutRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (underMouse())
        painter.fillRect(rect(), QColor(style::colour::Pale));
    if (y() > 0) {
        painter.setPen(Hairline);
        painter.drawLine(style::px(TextsLeft), 0, width() - style::px(Margin), 0);
    }
    traypicture::drawSign(&painter, scaled(SignPlace), m_disk);
    traypicture::drawDay(&painter, m_pDay->geometry(), m_disk, m_nNow);
}

void FlyoutRow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event); // of the space bar and the arrows, too
}

void FlyoutRow::contextMenuEvent(QContextMenuEvent *event)
{
    // A round may take the row away while the menu is open, or give it to another disk.
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(style::font(10));
    const DiskSummary disk = m_disk;
    connect(menu->addAction(tr("Open")), &QAction::triggered, this, [this, disk] { emit openWanted(disk); });
    QAction *limits = menu->addAction(tr("Limits…"));
    // They are kept by the serial number.
    limits->setEnabled(!disk.serial.isEmpty());
    connect(limits, &QAction::triggered, this, [this, disk] { emit limitsWanted(disk); });
    QAction *seenAction = menu->addAction(tr("Mark as seen"));
    seenAction->setEnabled(!disk.unseen.empty());
    connect(seenAction, &QAction::triggered, this, [this, disk] {
        for (const WatchEvent &each : disk.unseen)
            emit seen(each.id);
    });
    menu->popup(event->globalPos());
}
