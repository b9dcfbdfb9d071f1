// SPDX-License-Identifier: GPL-3.0-or-later
#include "inventory/Capacity.h"

#include <array>
#include <charconv>

namespace
{

/// "%.2f" as C prints it, ties to even, with a point in every locale.
QString twoDecimals(double amount)
{
    constexpr int Decimals = 2;
    std::array<char, 64> text;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, Decimals).ptr;
    return QString::fromLatin1(text.data(), static_cast<int>(end - text.data()));
}

} // namespace

QString capacityText(quint64 bytes, const QString &smallUnit)
{
    const auto in = [bytes](int power, const QString &unit) {
        const double amount = static_cast<double>(bytes) / static_cast<double>(quint64(1) << power);
        return twoDecimals(amount) + QLatin1Char(' ') + unit;
    };
    if (bytes >> 30)
        return in(30, QStringLiteral("GB"));
    if (bytes >> 20)
        return in(20, QStringLiteral("MB"));
    return in(10, smallUnit);
}
