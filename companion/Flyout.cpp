// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Flyout.h"

#include "companion/FlyoutRow.h"
#include "companion/LimitsDialog.h"
#include "companion/OpenProgram.h"
#include "companion/TrayState.h"
#include "platform/Platform.h"
#include "ui/widgets/Style.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

namespace
{

constexpr int Width = 380; ///< design pixels
constexpr int BarHeight = 44;
constexpr int RowHeight = 58;
constexpr int MostRows = 7; ///< more are scrolled to

const QColor Border(0xc9, 0xd2, 0xdb);

/// On Wayland a pop-up belongs to another window, and the icon is none of ours.
Qt::WindowFlags windowKind()
{
    return QApplication::platformName().startsWith(QLatin1String("wayland")) ? Qt::Tool : Qt::Popup;
}

/// A bar whose style is the rest of a style sheet.
QHBoxLayout *addBar(QVBoxLayout *column, const char *name, const QString &look)
{
    auto *bar = new QFrame;
    bar->setObjectName(QLatin1String(name));
    bar->setFixedHeight(style::px(BarHeight));
    bar->setStyleSheet(style::sheet(QStringLiteral("QFrame#%1{%2}").arg(QLatin1String(name), look)));
    column->addWidget(bar);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(style::px(16), 0, style::px(16), 0);
    layout->setSpacing(style::px(20));
    return layout;
}

/// A button that looks like a link.
QPushButton *addLink(QHBoxLayout *bar)
{
    auto *link = new QPushButton;
    link->setFlat(true);
    link->setCursor(Qt::PointingHandCursor);
    link->setFont(style::font(9));
    link->setStyleSheet(
        style::sheet(QStringLiteral("QPushButton{color: @accent; border: none; padding: 3px 0px;}"
                                    "QPushButton:hover{text-decoration: underline;}")));
    bar->addWidget(link);
    return link;
}

} // namespace

Flyout::Flyout() : QWidget(nullptr, windowKind() | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("Flyout"));
    style::setWhiteBackground(this);
    setStyleSheet(styleSheet() + style::fieldSheet());
    setFixedWidth(style::px(Width));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    addHeader(column);
    m_pNone = new QLabel;
    m_pNone->setFont(style::font(10));
    m_pNone->setStyleSheet(style::BlackLabel);
    m_pNone->setContentsMargins(style::px(16), style::px(16), style::px(16), style::px(16));
    m_pNone->setWordWrap(true);
    column->addWidget(m_pNone);
    m_pScroll = new QScrollArea;
    m_pScroll->setFrameShape(QFrame::NoFrame);
    m_pScroll->setWidgetResizable(true);
    m_pScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pScroll->setFocusPolicy(Qt::NoFocus);
    auto *rows = new QWidget;
    style::setWhiteBackground(rows);
    m_pRows = new QVBoxLayout(rows);
    m_pRows->setContentsMargins(0, 0, 0, 0);
    m_pRows->setSpacing(0);
    m_pScroll->setWidget(rows);
    column->addWidget(m_pScroll);
    addFooter(column);
    style::showTextsAsData(this);
    retranslate();
}

void Flyout::addHeader(QVBoxLayout *column)
{
    QHBoxLayout *bar =
        addBar(column, "FlyoutHeader",
               QStringLiteral("background: @white; border: none; border-bottom: 1px solid #e6eaee;"));
    m_pTitle = new QLabel;
    m_pTitle->setFont(style::semiBold(11));
    m_pTitle->setStyleSheet(style::BlackLabel);
    m_pAge = new QLabel;
    m_pAge->setFont(style::font(9));
    m_pAge->setStyleSheet(style::GreyLabel);
    bar->addWidget(m_pTitle);
    bar->addStretch();
    bar->addWidget(m_pAge);
}

void Flyout::addFooter(QVBoxLayout *column)
{
    QHBoxLayout *bar =
        addBar(column, "FlyoutFooter",
               QStringLiteral("background: @pale; border: none; border-top: 1px solid #e6eaee;"));
    m_pPause = addLink(bar);
    m_pSettings = addLink(bar);
    bar->addStretch();
    m_pOpen = new QPushButton;
    m_pOpen->setFixedHeight(style::px(28));
    m_pOpen->setMinimumWidth(style::px(92));
    style::styleButton(m_pOpen, style::ButtonRole::Main);
    bar->addWidget(m_pOpen);
    connect(m_pPause, &QPushButton::clicked, this, &Flyout::pauseWanted);
    connect(m_pSettings, &QPushButton::clicked, this, [this] {
        hide();
        openprogram::inSettings();
    });
    connect(m_pOpen, &QPushButton::clicked, this, [this] {
        hide();
        openprogram::open();
    });
}

FlyoutRow *Flyout::addRow()
{
    auto *row = new FlyoutRow;
    m_pRows->addWidget(row);
    m_apRows.push_back(row);
    connect(row, &FlyoutRow::openWanted, this, [this](const DiskSummary &disk) {
        hide();
        // A missing disk has no page.
        openprogram::onDisk(disk.missing ? -1 : disk.number);
    });
    connect(row, &FlyoutRow::limitsWanted, this, [this](const DiskSummary &disk) {
        hide();
        auto *dialog = new LimitsDialog(disk, m_view.fahrenheit);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QDialog::accepted, this, &Flyout::refreshWanted);
        style::centreOn(dialog, style::availableArea(QCursor::pos()));
        dialog->show();
    });
    connect(row, &FlyoutRow::seen, this, &Flyout::seen);
    return row;
}

void Flyout::take(const WatchView &view)
{
    m_view = view;
    while (m_apRows.size() > view.disks.size()) {
        // Its menu may be open.
        m_apRows.back()->hide();
        m_apRows.back()->deleteLater();
        m_apRows.pop_back();
    }
    while (m_apRows.size() < view.disks.size())
        addRow();
    for (std::size_t i = 0; i < view.disks.size(); ++i)
        m_apRows[i]->setDisk(view.disks[i], view.fahrenheit, view.when);
    m_pNone->setVisible(view.disks.empty());
    m_pScroll->setVisible(!view.disks.empty());
    showAge();
    fit();
}

void Flyout::fit()
{
    const int rows = std::min(static_cast<int>(m_apRows.size()), MostRows);
    m_pScroll->setFixedHeight(rows * style::px(RowHeight));
    layout()->activate();
    const int high = layout()->totalHeightForWidth(width());
    setFixedHeight(high > 0 ? high : layout()->totalSizeHint().height());
    if (isVisible())
        place();
}

void Flyout::setPaused(bool paused)
{
    m_bPaused = paused;
    retranslate();
}

void Flyout::showAt(const QRect &icon)
{
    take(m_view);
    m_icon = icon;
    m_pointer = QCursor::pos();
    place();
    show();
    raise();
    activateWindow();
}

void Flyout::place()
{
    const QPoint at = m_icon.isEmpty() ? m_pointer : m_icon.center();
    const QRect area = style::availableArea(at);
    const int gap = style::px(8);
    const bool below = at.y() < area.center().y();
    QPoint corner(at.x() - width() / 2, below ? m_icon.bottom() + gap : m_icon.top() - gap - height());
    if (m_icon.isEmpty())
        corner = {area.right() - width() - gap, below ? area.top() + gap : area.bottom() - gap - height()};
    style::placeWindow(this, corner);
}

void Flyout::retranslate()
{
    m_pTitle->setText(QCoreApplication::translate("MainWindow", "Velmora Halvane"));
    setWindowTitle(m_pTitle->text());
    m_pNone->setText(tr("No disk is watched."));
    m_pPause->setText(m_bPaused ? tr("Alarms on again") : tr("Pause alarms"));
    m_pSettings->setText(tr("Settings"));
    m_pOpen->setText(tr("Open"));
    showAge();
}

void Flyout::showAge()
{
    m_pAge->setText(traystate::ageOf(m_view.when, Platform::current().Now()));
}

void Flyout::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    // A pop-up closes by itself.
    if (event->type() == QEvent::ActivationChange && windowType() == Qt::Tool && !isActiveWindow() &&
        !QApplication::activePopupWidget())
        hide();
    QWidget::changeEvent(event);
}

void Flyout::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        hide();
    else
        QWidget::keyPressEvent(event);
}

void Flyout::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Flyout::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_pOpen->setFocus();
}
