// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/VersionCompare.h"

#include "state/Product.h"

#include <QVersionNumber>

#include <algorithm>

namespace version
{

namespace
{

constexpr int BehindFirstField = 6; ///< three dots and three digits

int firstFieldLength(const QString &text)
{
    const int length = text.split(QLatin1Char('.')).first().size();
    return length == 1 || length == 2 ? length : 0;
}

} // namespace

QString taken(const QString &text)
{
    const int length = firstFieldLength(text);
    return length == 0 ? QString() : text.left(length + BehindFirstField);
}

Newer compare(const QString &installed, const QString &offered)
{
    const int installedLength = firstFieldLength(installed);
    const int offeredLength = firstFieldLength(offered);
    if (installedLength == 0 || offeredLength == 0)
        return Newer::No;
    if (offered.leftRef(offeredLength).toInt() > installed.leftRef(installedLength).toInt())
        return Newer::Major;
    for (const int place : {1, 3, 5}) {
        if (offered.midRef(offeredLength + place, 1).toInt() >
            installed.midRef(installedLength + place, 1).toInt())
            return Newer::Minor;
    }
    return Newer::No;
}

bool isNewer(const QString &installed, const QStringList &lines)
{
    const auto number = [](const QString &text) {
        return QVersionNumber::fromString(taken(text)).normalized();
    };
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QString &line) { return number(line) > number(installed); });
}

bool isUpgrade(const QString &installed, const QStringList &lines)
{
    return isNewer(installed, lines) && isNewer(QLatin1String(product::Version), lines);
}

Offer offerOf(const QString &installed, const QStringList &lines)
{
    Offer offer;
    QString *const latest[] = {&offer.latestMajor, &offer.latestMinor};
    for (int i = 0; i < std::min(2, lines.size()); ++i) {
        const Newer newer = compare(installed, lines.at(i));
        offer.major = offer.major || newer == Newer::Major;
        offer.minor = offer.minor || newer == Newer::Minor;
        if (newer != Newer::No)
            *latest[i] = taken(lines.at(i));
    }
    return offer;
}

} // namespace version
