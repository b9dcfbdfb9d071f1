// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The names under which attributes are shown, in the language that is loaded. A name that the catalogue does
/// not know is returned as it came.

/// Where a name is shown. The lists of the two differ in a few rows, and in the tree alone case counts.
enum class NameIn { Tree, Report };

/// `key` is SmartAttributeRecord::key().
QString ataName(const QString &key, quint32 id, NameIn place);
QString nvmeName(const QString &reportName, NameIn place);
