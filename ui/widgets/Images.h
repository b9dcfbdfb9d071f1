// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/Scale.h"

#include <QString>

class QLabel;
class QMovie;
class QObject;

/// The one way in which widgets get their pictures.
namespace images
{

/// Shows an image of the display's set on a label and keeps its resource path as the label's property
/// "imagePath". Where the scale has no set, the label keeps what it had. Above a scale of 1.5 the picture is
/// stretched.
void setLabelImage(QLabel *label, const QString &file, scale::Family family = scale::Family::Plain);

/// The resource path that a label shows; empty if none was set.
QString labelImage(const QLabel *label);

/// A new animation of the display's set, the child of `parent`; the nearest set where the scale has none.
QMovie *newMovie(const QString &file, QObject *parent);

} // namespace images
