// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QRectF>
#include <QString>

/// Places, angles and text of the round gauge. Lengths are design pixels; angles are counter-clockwise from
/// three o'clock, of arcs in sixteenths of a degree, else in degrees.
namespace gauge
{

/// The side that the caps below are made for.
constexpr int DesignSide = 210;

struct Arc {
    QRect rect;
    int start = 0;
    int span = 0;
};

/// Rounds off the start of the bar.
constexpr Arc StartCap{QRect(32, 169, 8, 8), -2160, 2960};
/// Rounds off its end, where the value is above so many percent.
constexpr QRect EndCap(171, 167, 8, 8);
constexpr double EndCapAbove = 99;

/// The square around the bar; `side` is the gauge's.
QRectF baseRect(double side);
/// The grey arc behind the bar, open at the bottom.
Arc baseArc(const QRectF &base);
/// The white disc that makes a ring of the bar.
QRectF innerRect(double side, double innerSide);

/// Degrees that the bar takes, clockwise. The minimum is not subtracted from the value.
double sweep(double minimum, double maximum, double value);
double percent(double minimum, double maximum, double value);

/// The placeholders of a format, as bits.
enum Placeholder { ValuePlaceholder = 1, PercentPlaceholder = 2, StepsPlaceholder = 4 };
/// The bits of those that a format holds: "%v", "%p", "%m".
int placeholders(const QString &format);

struct Reading {
    double minimum = 0;
    double maximum = 100;
    double value = 0;
    int decimals = 0;
};
/// `format` with the placeholders of `flags` filled in; without the line under it.
QString text(QString format, int flags, const Reading &reading);

} // namespace gauge
