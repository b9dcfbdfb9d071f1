// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DetailLabel.h"

#include "ui/widgets/Style.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace
{

QFont captionFont(const QFont &font)
{
    return style::semiBold(font.pointSize());
}

int gap()
{
    return style::px(8);
}

} // namespace

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
    for (const DetailLabel *label : labels)
        widest = std::max(widest, label->captionWidth());
    for (DetailLabel *label : labels) {
        label->m_nValueX = widest + gap();
        label->updateGeometry();
        label->update();
    }
}

int DetailLabel::captionWidth() const
{
    return QFontMetrics(captionFont(font())).horizontalAdvance(parts(text()).caption);
}

int DetailLabel::valueRoom() const
{
    return std::max(0, width() - m_nValueX);
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
    const Parts shown = parts(text());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.setFont(captionFont(font()));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown.caption);
    painter.setFont(font());
    const QString value = QFontMetrics(font()).elidedText(shown.value, Qt::ElideRight, valueRoom());
    style::setWholeTip(this, value == shown.value ? QString() : shown.caption + shown.value);
    painter.drawText(QRect(m_nValueX, 0, valueRoom(), height()),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, value);
}
