// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The names under which attributes are shown, in the language that is loaded. A name that the catalogue does
/// not know is returned as it came.

/// Name in the attribute tree. `key` is the one of keyOf(); case counts.
QString ataDisplayName(const QString &key, quint32 id);
QString nvmeDisplayName(const QString &reportName);

/// Name in the printed report. Case does not count.
QString ataReportName(const QString &key, quint32 id);
QString nvmeReportName(const QString &reportName);
