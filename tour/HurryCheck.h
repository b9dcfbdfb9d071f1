// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

/// Checks that a hurried choice ends in the same screen as the same choice made without hurry.
namespace hurrycheck
{

/// The texts, pictures, tables, graphs and rings of a recorded window that belong to its disk, each under a
/// name of its own. Left out are the navigation's looks, which go by the mouse.
QJsonObject figures(const QJsonObject &contents);

/// The first of `wanted` that `seen` has not, or that it has besides, with both values; empty where they
/// agree.
QString difference(const QJsonObject &wanted, const QJsonObject &seen);

} // namespace hurrycheck
