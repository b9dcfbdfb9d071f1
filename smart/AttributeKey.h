// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The name by which an attribute goes in catalogue, history and graph: the report's name with blanks for
/// underscores. Never translated.
inline QString keyOf(const QString &reportName)
{
    QString key = reportName;
    return key.replace(QLatin1Char('_'), QLatin1Char(' '));
}
