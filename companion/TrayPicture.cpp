// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/TrayPicture.h"

#include "ui/widgets/Style.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace traypicture
{

namespace
{

using traystate::Sign;

constexpr int Sizes[] = {16, 20, 22, 24, 28, 32, 40, 44, 48, 64}; ///< pixels
constexpr qint64 Day = 24 * 60 * 60 * 1000;
constexpr qint64 Gap = 60 * 60 * 1000;
constexpr double LeastRange = 20; ///< °C from the lower to the upper edge of a day

const QColor Dark(0x20, 0x20, 0x20);
const QColor Amber(0xff, 0xbb, 0x33); ///< Dark stands on it

QColor fillOf(Sign sign, bool darkBar)
{
    if (sign == Sign::Warm)
        return Amber;
    if (sign == Sign::Hot)
        return colourOf(sign);
    return darkBar ? Dark : QColor(Qt::white);
}

QColor inkOf(Sign sign, bool darkBar)
{
    if (sign == Sign::Unknown)
        return colourOf(sign);
    return sign == Sign::Hot || (sign == Sign::InOrder && darkBar) ? QColor(Qt::white) : Dark;
}

/// The largest bold type in which the text has room.
QFont fitted(const QString &text, const QSizeF &room)
{
    QFont font(QStringLiteral("Segoe UI"));
    font.setBold(true);
    font.setStyleStrategy(QFont::PreferAntialias);
    // Three digits stay readable only if they are narrow.
    if (text.size() > 2)
        font.setStretch(QFont::Condensed);
    for (int pixels = std::max(5, qRound(room.height() * 1.35)); pixels > 5; --pixels) {
        font.setPixelSize(pixels);
        const QRectF ink = QFontMetricsF(font).tightBoundingRect(text);
        if (ink.width() <= room.width() && ink.height() <= room.height())
            break;
    }
    return font;
}

void drawNumber(QPainter *painter, const QString &text, const QRectF &room)
{
    const QFont font = fitted(text, room.size());
    painter->setFont(font);
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(text);
    // Whole pixels keep the strokes sharp.
    painter->drawText(
        QPointF(qRound(room.center().x() - ink.center().x()), qRound(room.center().y() - ink.center().y())),
        text);
}

/// In place of a number: half as wide, in the middle.
void drawDash(QPainter *painter, const QRect &inside)
{
    const int half = std::max(1, inside.height() / 14);
    const int middle = inside.top() + inside.height() / 2;
    painter->fillRect(QRect(inside.left() + inside.width() / 4, middle - half, inside.width() / 2, 2 * half),
                      painter->pen().color());
}

/// The line below the number: dashed where it is warm, whole where it is hot.
void drawLine(QPainter *painter, Sign sign, const QRect &inside, int width)
{
    const int dashes = sign == Sign::Warm ? 3 : 1;
    const int left = inside.left();
    for (int i = 0; i < dashes; ++i) {
        const int from = left + inside.width() * i / dashes;
        const int to = left + inside.width() * (i + 1) / dashes - (i + 1 < dashes ? width : 0);
        painter->fillRect(QRect(from, inside.bottom() - width + 1, to - from, width), painter->pen().color());
    }
}

} // namespace

QColor colourOf(Sign sign)
{
    namespace colour = style::colour;
    static const char *const colours[] = {colour::EmptySign, colour::GoodSign, colour::WarmSign,
                                          colour::BadSign};
    return QColor(colours[static_cast<std::size_t>(sign)]);
}

QPixmap pixmap(const traystate::Icon &icon, int size, bool darkBar)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const int frame = std::max(1, size / 14);
    const double radius = size / 6.0;
    const QRectF outer(frame / 2.0, frame / 2.0, size - frame, size - frame);
    painter.setPen(QPen(colourOf(icon.sign), frame));
    painter.setBrush(fillOf(icon.sign, darkBar));
    painter.drawRoundedRect(outer, radius, radius);
    painter.setPen(inkOf(icon.sign, darkBar));
    const bool hasLine = icon.sign == Sign::Warm || icon.sign == Sign::Hot;
    const int line = hasLine ? frame : 0;
    const QRect inside = QRect(0, 0, size, size).adjusted(2 * frame, 2 * frame, -2 * frame, -2 * frame);
    if (icon.number.isEmpty())
        drawDash(&painter, inside);
    else
        drawNumber(&painter, icon.number, QRectF(inside).adjusted(-frame / 2.0, 0, frame / 2.0, -2.0 * line));
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (hasLine)
        drawLine(&painter, icon.sign, inside, line);
    return picture;
}

QIcon icon(const traystate::Icon &icon, bool darkBar)
{
    QIcon all;
    for (const int size : Sizes)
        all.addPixmap(pixmap(icon, size, darkBar));
    return all;
}

void drawSign(QPainter *painter, const QRectF &place, const DiskSummary &disk)
{
    const Sign sign = traystate::signOf(disk);
    const double unit = place.width() / 24;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(place.topLeft());
    painter->scale(unit, unit);
    QPen pen(colourOf(sign), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter->setPen(pen);
    if (disk.state == DiskState::Asleep && sign == Sign::Unknown) {
        QPainterPath moon;
        moon.moveTo(14, 3);
        moon.arcTo(QRectF(3, 3, 18, 18), 70, 290);
        moon.arcTo(QRectF(9, -1, 16, 16), 290, -185);
        painter->drawPath(moon);
    } else if (sign == Sign::InOrder) {
        painter->drawEllipse(QRectF(1, 1, 22, 22));
        painter->drawPolyline(QPolygonF({{7, 12.5}, {10.5, 16}, {17, 8.5}}));
    } else if (sign == Sign::Warm) {
        painter->drawPolygon(QPolygonF({{12, 2}, {23, 21}, {1, 21}}));
        painter->drawLine(QPointF(12, 9), QPointF(12, 14));
        painter->drawPoint(QPointF(12, 17.5));
    } else if (sign == Sign::Hot) {
        painter->setBrush(pen.color());
        painter->drawEllipse(QRectF(2, 2, 20, 20));
        painter->setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(8.5, 8.5), QPointF(15.5, 15.5));
        painter->drawLine(QPointF(15.5, 8.5), QPointF(8.5, 15.5));
    } else {
        painter->drawEllipse(QRectF(1, 1, 22, 22));
        painter->drawLine(QPointF(8, 12), QPointF(16, 12));
    }
    painter->restore();
}

void drawDay(QPainter *painter, const QRectF &place, const DiskSummary &disk, qint64 now)
{
    if (disk.day.empty())
        return;
    const auto [lowest, highest] = std::minmax_element(
        disk.day.cbegin(), disk.day.cend(), [](const TemperaturePoint &left, const TemperaturePoint &right) {
            return left.celsius < right.celsius;
        });
    const double range = std::max<double>(LeastRange, highest->celsius - lowest->celsius);
    const double middle = (highest->celsius + lowest->celsius) / 2.0;
    QPainterPath path;
    qint64 before = 0;
    for (const TemperaturePoint &point : disk.day) {
        const QPointF at(place.right() - place.width() * static_cast<double>(now - point.when) / Day,
                         place.center().y() - place.height() * (point.celsius - middle) / range);
        if (at.x() < place.left() || at.x() > place.right())
            continue;
        if (before == 0 || point.when - before > Gap)
            path.moveTo(at);
        path.lineTo(at);
        before = point.when;
    }
    const Sign sign = traystate::signOf(disk);
    const bool alarming = sign == Sign::Warm || sign == Sign::Hot;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(alarming ? colourOf(sign) : QColor(style::colour::Sign), place.height() / 12,
                         Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path);
    painter->restore();
}

} // namespace traypicture
