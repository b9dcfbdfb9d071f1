#include "inventory/Capacity.h"

QString capacityText(quint64 bytes, const QString &smallUnit)
{
    const auto in = [bytes](int power, const QString &unit) {
        const double amount = static_cast<double>(bytes) / static_cast<double>(quint64(1) << power);
        return QString::number(amount, 'f', 2) + QLatin1Char(' ') + unit;
    };
    if (bytes >> 30)
        return in(30, QStringLiteral("GB"));
    if (bytes >> 20)
        return in(20, QStringLiteral("MB"));
    return in(10, smallUnit);
}
