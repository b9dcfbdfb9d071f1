// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QJsonObject;
class QWidget;

/// The contents of the self-drawn views of a window as data. A view is found by its class name and has its
/// values in properties; a new kind of view is a new row of the table. GUI thread only.
namespace paintedrecorder
{

/// Adds to `record` one key for each view that shows below `window`.
void addTo(QJsonObject *record, const QWidget *window);

} // namespace paintedrecorder
