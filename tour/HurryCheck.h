// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

/// Checks that a hurried choice ends in the same screen as the same choice made without hurry.
namespace hurrycheck
{

/// The texts, pictures, tables, graphs and rings of a recorded window that belong to its disk, each under a
/// name of its own. The navigation buttons are left out, as their look depends on the mouse.
QJsonObject figures(const QJsonObject &contents);

/// The first difference between `wanted` and `seen`, with both values; empty if there is none.
QString difference(const QJsonObject &wanted, const QJsonObject &seen);

} // namespace hurrycheck
