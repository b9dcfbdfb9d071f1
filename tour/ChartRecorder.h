// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>

class QWidget;

/// The graphs of a window as data. GUI thread only.
namespace chartrecorder
{

/// The charts that show below `window`: title, points of each series, axes.
QJsonArray charts(const QWidget *window);

} // namespace chartrecorder
