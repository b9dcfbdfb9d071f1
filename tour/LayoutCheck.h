// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QString>

class QWidget;

/// Finds faults of the layout that do not depend on the contents. GUI thread only.
namespace layoutcheck
{

/// The visible labels, buttons, combos, spin boxes and sections of headers of `window` whose text does not
/// fit into them, and all widgets with a text that reach out of what their parents show: {step, name, text,
/// need, have}, the last two as [width, height] in pixels.
QJsonArray clipped(const QWidget *window, const QString &step);

/// The pairs of visible siblings with text that cover each other by more than a pixel:
/// {step, names, texts, rectangle}, the last as [x, y, width, height] in their parent.
QJsonArray overlaps(const QWidget *window, const QString &step);

} // namespace layoutcheck
