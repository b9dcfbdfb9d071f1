// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/GaugeGeometry.h"

namespace gauge
{

namespace
{

constexpr int BaseStart = 5072; ///< 317 degrees
constexpr int BaseSpan = 4256;  ///< 266 degrees
constexpr double FullSweep = 270;

/// Where each placeholder stands for its bit.
struct Sign {
    Placeholder bit;
    const char *mark;
    double (*value)(const Reading &);
};

const Sign signs[] = {
    {ValuePlaceholder, "%v", [](const Reading &r) { return r.value; }},
    {PercentPlaceholder, "%p", [](const Reading &r) { return percent(r.minimum, r.maximum, r.value); }},
    {StepsPlaceholder, "%m", [](const Reading &r) { return r.maximum - r.minimum + 1; }},
};

} // namespace

QRectF baseRect(double side)
{
    return QRectF(1, 1, side - 2, side - 2);
}

Arc baseArc(const QRectF &base)
{
    const QRect rect(static_cast<int>(base.x() + 8), static_cast<int>(base.y() + 8),
                     static_cast<int>(base.width() - 16), static_cast<int>(base.height() - 15));
    return {rect, BaseStart, BaseSpan};
}

QRectF innerRect(double side, double innerSide)
{
    const double offset = (side - innerSide) / 2;
    return QRectF(offset, offset, innerSide, innerSide);
}

double sweep(double minimum, double maximum, double value)
{
    return maximum > minimum ? FullSweep / (maximum - minimum) * value : 0;
}

double percent(double minimum, double maximum, double value)
{
    return maximum > minimum ? (value - minimum) / (maximum - minimum) * 100 : 0;
}

int placeholders(const QString &format)
{
    int flags = 0;
    for (const Sign &sign : signs) {
        if (format.contains(QLatin1String(sign.mark)))
            flags |= sign.bit;
    }
    return flags;
}

QString text(QString format, int flags, const Reading &reading)
{
    for (const Sign &sign : signs) {
        if ((flags & sign.bit) != 0)
            format.replace(QLatin1String(sign.mark),
                           QString::number(sign.value(reading), 'f', reading.decimals));
    }
    return format;
}

} // namespace gauge
