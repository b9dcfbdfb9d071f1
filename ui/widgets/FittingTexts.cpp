// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FittingTexts.h"

#include "ui/widgets/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace
{

/// Draws as the style draws a label, so that the style sheet's colour holds. With the focus it looks
/// selected.
void drawLine(QLabel *label, const QRect &room, int alignment, const QString &text, const QFont &font)
{
    QStylePainter painter(label);
    painter.setFont(font);
    QStyleOption option;
    option.initFrom(label);
    QPalette::ColorRole colour = label->foregroundRole();
    if (label->hasFocus()) {
        painter.fillRect(painter.style()->itemTextRect(painter.fontMetrics(), room, alignment, true, text),
                         option.palette.highlight());
        colour = QPalette::HighlightedText;
    }
    painter.drawItemText(room, alignment, option.palette, label->isEnabled(), text, colour);
}

void drawLine(QLabel *label, const QString &text, const QFont &font)
{
    drawLine(label, label->contentsRect(),
             QStyle::visualAlignment(label->layoutDirection(), label->alignment()), text, font);
}

QFont captionFont(const QFont &font)
{
    return style::semiBold(font.pointSize());
}

} // namespace

QSize ElidingLabel::minimumSizeHint() const
{
    constexpr int FewestCharacters = 4;
    const QSize whole = QLabel::minimumSizeHint();
    return QSize(qMin(whole.width(), FewestCharacters * fontMetrics().averageCharWidth()), whole.height());
}

void ElidingLabel::paintEvent(QPaintEvent *)
{
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style::setWholeTip(this, shown == text() ? QString() : text());
    drawLine(this, shown, font());
}

void FittingLabel::paintEvent(QPaintEvent *)
{
    constexpr int SmallestPoints = 8;
    constexpr int Room = 134; // up to the picture
    QFont fitting = font();
    while (fitting.pointSize() > SmallestPoints &&
           QFontMetrics(fitting, this).horizontalAdvance(text()) > style::px(Room))
        fitting.setPointSize(fitting.pointSize() - 1);
    drawLine(this, text(), fitting);
}

DetailLabel::Parts DetailLabel::parts(const QString &text)
{
    // The wide colon is that of the East Asian translations.
    const auto colon = std::find_if(text.cbegin(), text.cend(), [](QChar letter) {
        return letter == QLatin1Char(':') || letter == QChar(0xFF1A);
    });
    const int length = static_cast<int>(colon - text.cbegin());
    return {text.left(length).trimmed(), text.mid(length).trimmed()};
}

void DetailLabel::align(std::initializer_list<DetailLabel *> labels)
{
    int widest = 0;
    for (const DetailLabel *label : labels) {
        const QFontMetrics metrics(captionFont(label->font()));
        widest = std::max(widest, metrics.horizontalAdvance(parts(label->text()).caption));
    }
    for (DetailLabel *label : labels) {
        label->m_nValueX = widest + style::px(8);
        label->updateGeometry();
        label->update();
    }
}

QSize DetailLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {m_nValueX + metrics.horizontalAdvance(parts(text()).value), metrics.height()};
}

QSize DetailLabel::minimumSizeHint() const
{
    return {m_nValueX, QFontMetrics(font()).height()};
}

void DetailLabel::paintEvent(QPaintEvent *)
{
    constexpr int Flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine;
    const Parts shown = parts(text());
    const int room = std::max(0, width() - m_nValueX);
    {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.setFont(captionFont(font()));
        painter.drawText(rect(), Flags, shown.caption);
    }
    const QString value = QFontMetrics(font()).elidedText(shown.value, Qt::ElideRight, room);
    style::setWholeTip(this, value == shown.value ? QString() : shown.caption + shown.value);
    drawLine(this, QRect(m_nValueX, 0, room, height()), Flags, value, font());
}

void ElidingComboBox::showPopup()
{
    // The delegate of a combo does not know the rules of a style sheet for entries. Another one makes the
    // window of the list at once, and the window's form, which fixes the size of all that it finds, must not
    // find that.
    if (!qobject_cast<QStyledItemDelegate *>(itemDelegate()))
        setItemDelegate(new QStyledItemDelegate(this));
    for (int i = 0; i < count(); ++i)
        setItemData(i, style::wholeTip(itemText(i)), Qt::ToolTipRole);
    setMaxVisibleItems(count()); // as far as the screen has room: no disk hides behind a scroll bar
    QComboBox::showPopup();
}

/// A combo takes each key that has a letter, even Ctrl+C, for the begin of an entry. The window copies by it.
void ElidingComboBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void ElidingComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // The style keeps a pixel free at either side of the text.
    option.currentText = fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - 2);
    style::setWholeTip(this, option.currentText == currentText() ? QString() : currentText());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
