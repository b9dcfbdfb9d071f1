// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/TimeText.h"

#include <QDateTime>

QString timeText(const QDateTime &time)
{
    const int minutes = qAbs(time.offsetFromUtc()) / 60;
    return time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss ")) +
           QLatin1Char(time.offsetFromUtc() < 0 ? '-' : '+') +
           QStringLiteral("%1:%2")
               .arg(minutes / 60, 2, 10, QLatin1Char('0'))
               .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}
