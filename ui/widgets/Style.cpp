// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Style.h"

#include "state/Scale.h"
#include "ui/widgets/Images.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace style
{

const QString BlackLabel = label(colour::Text);
const QString GreyLabel = label(colour::Grey);
const QString PassedLabel = label(colour::Passed);
const QString FailedLabel = label(colour::Failed);
const QString UnseenLabel = label(colour::White);

namespace
{

QSize scaledLimit(const QSize &limit)
{
    const auto scaled = [](int length) { return length == QWIDGETSIZE_MAX ? length : px(length); };
    return QSize(scaled(limit.width()), scaled(limit.height()));
}

void scaleLayout(QLayout *layout)
{
    const QMargins margins = layout->contentsMargins();
    layout->setContentsMargins(px(margins.left()), px(margins.top()), px(margins.right()),
                               px(margins.bottom()));
    if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
        grid->setHorizontalSpacing(px(grid->horizontalSpacing()));
        grid->setVerticalSpacing(px(grid->verticalSpacing()));
        for (int row = 0; row < grid->rowCount(); ++row)
            grid->setRowMinimumHeight(row, px(grid->rowMinimumHeight(row)));
        for (int column = 0; column < grid->columnCount(); ++column)
            grid->setColumnMinimumWidth(column, px(grid->columnMinimumWidth(column)));
    } else {
        layout->setSpacing(px(layout->spacing()));
    }
    for (int i = 0; i < layout->count(); ++i) {
        if (QSpacerItem *spacer = layout->itemAt(i)->spacerItem())
            spacer->changeSize(px(spacer->sizeHint().width()), px(spacer->sizeHint().height()),
                               spacer->sizePolicy().horizontalPolicy(),
                               spacer->sizePolicy().verticalPolicy());
    }
}

} // namespace

void substituteFonts(bool chinese)
{
    // The families behind the first one supply the letters that it lacks. That for Hindi is as tall as the
    // first one, so that texts of both scripts stand on one line.
    QStringList families{QStringLiteral("Open Sans"), QStringLiteral("Noto Sans Devanagari UI")};
    // Without one for Chinese the system takes any, often with Japanese shapes.
    if (chinese)
        families << QStringLiteral("Microsoft YaHei") << QStringLiteral("Noto Sans CJK SC");
    QFont::insertSubstitutions(QStringLiteral("Segoe UI"), families);
}

QFont font(int points, bool italic)
{
    return QFont(QStringLiteral("Segoe UI"), points, QFont::Normal, italic);
}

QFont semiBold(int points, bool italic)
{
    // By weight: a family of that name has few scripts, and the fonts of the others would be thin.
    return QFont(QStringLiteral("Segoe UI"), points, QFont::DemiBold, italic);
}

QString label(const char *colour)
{
    return QStringLiteral("QLabel {color : %1;}").arg(QLatin1String(colour));
}

QPalette lightPalette()
{
    const QColor grey(0x6b, 0x6b, 0x6b);
    QPalette palette{QColor(colour::Pale)};
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, grey);
    palette.setColor(QPalette::PlaceholderText, grey);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(colour::Pale));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor(colour::Grey));
    palette.setColor(QPalette::Highlight, QColor(colour::Main));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(colour::Accent));
    return palette;
}

int px(int size)
{
    return scale::scaled(size, scale::percent());
}

void setWhiteBackground(QWidget *widget)
{
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::Window, Qt::white);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

void setVisible(std::initializer_list<QWidget *> widgets, bool visible)
{
    for (QWidget *widget : widgets)
        widget->setVisible(visible);
}

void scaleForm(QWidget *window)
{
    const auto layouts = window->findChildren<QLayout *>();
    for (QLayout *layout : layouts)
        scaleLayout(layout);
    const auto children = window->findChildren<QWidget *>();
    for (QWidget *child : children) {
        child->setMinimumSize(scaledLimit(child->minimumSize()));
        child->setMaximumSize(scaledLimit(child->maximumSize()));
    }
}

void scaleWidget(QWidget *widget)
{
    const QRect design = widget->geometry();
    widget->setFixedSize(px(design.width()), px(design.height()));
    widget->move(px(design.x()), px(design.y()));
}

QRect availableArea(const QPoint &place)
{
    const auto distance = [&place](const QScreen *screen) {
        const QRect area = screen->geometry();
        const QPoint nearest(qBound(area.left(), place.x(), area.right()),
                             qBound(area.top(), place.y(), area.bottom()));
        return (nearest - place).manhattanLength();
    };
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto nearest =
        std::min_element(screens.cbegin(), screens.cend(), [&](const QScreen *left, const QScreen *right) {
            return distance(left) < distance(right);
        });
    return nearest == screens.cend() ? QRect() : (*nearest)->availableGeometry();
}

QPoint placeWithin(const QRect &window, const QRect &area)
{
    const int x = std::min(window.x(), area.x() + area.width() - window.width());
    const int y = std::min(window.y(), area.y() + area.height() - window.height());
    return QPoint(std::max(x, area.x()), std::max(y, area.y()));
}

void placeWindow(QWidget *window, const QPoint &place)
{
    const QRect wanted(place, window->size());
    window->move(placeWithin(wanted, availableArea(wanted.center())));
}

void centreOn(QWidget *window, const QRect &rect)
{
    placeWindow(window, QPoint(rect.x() + (rect.width() - window->width()) / 2,
                               rect.y() + (rect.height() - window->height()) / 2));
}

void showTextsAsData(QWidget *window)
{
    const auto labels = window->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
    }
}

QString wholeTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

void setWholeTip(QWidget *widget, const QString &text)
{
    const QString tip = wholeTip(text);
    if (widget->toolTip() != tip)
        widget->setToolTip(tip);
}

void paintAgain(QWidget *widget)
{
    // As fast as the event loop allows, it would take half a core.
    constexpr int FrameMilliseconds = 16;
    auto *timer = widget->findChild<QTimer *>();
    if (!timer) {
        timer = new QTimer(widget);
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, widget, QOverload<>::of(&QWidget::update));
    }
    // update() does nothing for a hidden widget, but may for one in a minimised window.
    if (!widget->window()->isMinimized() && !timer->isActive())
        timer->start(FrameMilliseconds);
}

QString sheet(QString text)
{
    static constexpr std::pair<const char *, const char *> names[] = {
        {"@text", colour::Text},           {"@grey", colour::Grey},
        {"@accent", colour::Accent},       {"@failed", colour::Failed},
        {"@onMain", colour::OnMain},       {"@disabled", colour::Disabled},
        {"@white", colour::White},         {"@pale", colour::Pale},
        {"@head", colour::Head},           {"@chosen", colour::Chosen},
        {"@mainHover", colour::MainHover}, {"@mainPressed", colour::MainPressed},
        {"@main", colour::Main},           {"@sign", colour::Sign}};
    for (const auto &[name, value] : names)
        text.replace(QLatin1String(name), QLatin1String(value));
    return text;
}

QString fieldSheet()
{
    // %1 is the border radius, %2 the side padding, %3 the width of the arrows, %11 that of a scroll bar.
    static const char *const text =
        "QComboBox{background: @white; border: 1px solid #c9d2db; border-radius: %1px; padding: 0px %2px; "
        "color: @text; combobox-popup: 0;}"
        "QComboBox:hover{border-color: @accent;}"
        "QComboBox:disabled{color: @disabled; background: #f8f9fa;}"
        "QComboBox::drop-down{border: none; width: %3px;}"
        "QComboBox::down-arrow{image: url(%4);}"
        "QComboBox QAbstractItemView{background: @white; border: 1px solid #c9d2db; outline: none;}"
        "QComboBox QAbstractItemView::item{min-height: %3px; padding: 0px %2px; border: none; color: @text;}"
        "QComboBox QAbstractItemView::item:hover{background: @pale;}"
        "QComboBox QAbstractItemView::item:selected{background: @chosen; color: @accent;}"
        "QSpinBox, QLineEdit{background: @white; border: 1px solid #c9d2db; border-radius: %1px; "
        "padding: 0px %2px; color: @text; selection-background-color: @main; selection-color: @onMain;}"
        "QSpinBox:disabled, QLineEdit:disabled{background: #f8f9fa; color: @disabled;}"
        "QSpinBox::up-button, QSpinBox::down-button{border: none; width: %3px; background: transparent;}"
        "QSpinBox::up-arrow{image: url(%5);}QSpinBox::down-arrow{image: url(%6);}"
        "QCheckBox{color: @grey; spacing: %2px;}QRadioButton{color: @text; spacing: %2px;}"
        "QCheckBox::indicator:checked{image: url(%7);}QCheckBox::indicator:unchecked{image: url(%8);}"
        "QRadioButton::indicator:checked{image: url(%9);}QRadioButton::indicator:unchecked{image: url(%10);}"
        "QMenu{background: @white; border: 1px solid #d7dde3; padding: %1px 0px;}"
        "QMenu::item{padding: %1px %3px %1px %2px; color: @text; background: transparent;}"
        "QMenu::icon{padding-left: %2px;}"
        "QMenu::item:selected{background: @chosen; color: @accent;}"
        "QMenu::item:disabled{color: @disabled;}"
        "QMenu::separator{height: 1px; background: #e6eaee; margin: %1px 0px;}"
        "QToolTip{background: @white; color: @grey; border: 1px solid #c9d2db;}"
        "QScrollBar:vertical{background: @pale; width: %11px; margin: 0px; border: none;}"
        "QScrollBar::handle:vertical{background: #c9d2db; border-radius: %1px; min-height: %3px; margin: "
        "1px;}"
        "QScrollBar::handle:vertical:hover{background: @sign;}"
        "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical{height: 0px;}"
        "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical{background: none;}";
    return sheet(QString::fromLatin1(text))
        .arg(px(4))
        .arg(px(10))
        .arg(px(28))
        .arg(images::nearestPath(QStringLiteral("img_ComboArrow.png")))
        .arg(images::nearestPath(QStringLiteral("img_SpinUp.png")))
        .arg(images::nearestPath(QStringLiteral("img_SpinDown.png")))
        .arg(images::nearestPath(QStringLiteral("img_CheckOn.png")))
        .arg(images::nearestPath(QStringLiteral("img_CheckOff.png")))
        .arg(images::nearestPath(QStringLiteral("img_RadioOn.png")))
        .arg(images::nearestPath(QStringLiteral("img_RadioOff.png")))
        .arg(px(10));
}

void styleButton(QPushButton *button, ButtonRole role)
{
    const bool main = role == ButtonRole::Main;
    const QString colours =
        main ? QStringLiteral("QPushButton{background: @main; color: @onMain; border: 1px solid @main;}"
                              "QPushButton:hover{background: @mainHover;}"
                              "QPushButton:pressed{background: @mainPressed;}"
                              "QPushButton:disabled{background: #a9cbf3; border-color: #a9cbf3;}")
             : QStringLiteral("QPushButton{background: @white; color: @text; border: 1px solid #c9d2db;}"
                              "QPushButton:hover{border-color: @accent; color: @accent;}"
                              "QPushButton:pressed{background: @chosen;}"
                              "QPushButton:disabled{color: @disabled;}");
    button->setStyleSheet(
        sheet(colours + QStringLiteral("QPushButton{border-radius: %1px; padding: 0px %1px;}").arg(px(4))));
    button->setFont(font(10));
    button->setAutoDefault(true); // Enter presses it, as the space bar does
    button->setCursor(Qt::PointingHandCursor);
}

} // namespace style
