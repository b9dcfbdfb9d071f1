// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DonutSeries.h"

#include <algorithm>

namespace
{

int spanOf(double value, double total, int circle)
{
    // Also true for values that are no numbers.
    if (!(total < 0 || total > 0))
        return 0;
    const double limit = circle;
    return static_cast<int>(std::clamp(value * limit / total, -limit, limit));
}

} // namespace

DonutSeries::~DonutSeries()
{
    Clear();
}

void DonutSeries::AddSlice(double value, const QString &label, const QString &colourText)
{
    listSlices.append(new DonutSlice{label, value, colourText});
    dTotal = 0;
    for (const DonutSlice *slice : qAsConst(listSlices))
        dTotal += slice->dValue;
}

void DonutSeries::Clear()
{
    qDeleteAll(listSlices);
    listSlices.clear();
    dTotal = 0;
}

int DonutSeries::SpanSixteenths(double value) const
{
    constexpr int Circle = 5760;
    return spanOf(value, dTotal, Circle);
}

int DonutSeries::SpanDegrees(double value) const
{
    constexpr int Circle = 360;
    return spanOf(value, dTotal, Circle);
}
