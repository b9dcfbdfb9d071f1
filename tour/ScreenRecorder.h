// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>

class QWidget;

/// Turns the contents of a window into plain data. Changes nothing; GUI thread.
namespace screenrecorder
{

/// The window as one step of screens.json, without the step's own name, disk and picture: its widgets,
/// combos, trees and charts, and what the self-drawn views in it show.
QJsonObject describe(const QWidget *window);

} // namespace screenrecorder
