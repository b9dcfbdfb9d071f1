// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// How much two colours stand out from each other: 1 to 21, by the measure of the web's guidelines.
inline double contrast(const QColor &one, const QColor &other)
{
    const auto light = [](const QColor &colour) {
        double sum = 0.05;
        for (const auto &[part, weight] :
             {std::pair(colour.redF(), 0.2126), {colour.greenF(), 0.7152}, {colour.blueF(), 0.0722}})
            sum += weight * (part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
        return sum;
    };
    const auto [darker, lighter] = std::minmax({light(one), light(other)});
    return lighter / darker;
}
