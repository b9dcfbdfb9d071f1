// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QLabel;
class QMovie;
class QObject;

/// The one way in which widgets get their pictures.
namespace images
{

/// Where the picture of a set lies.
enum class Family {
    Plain,    ///< 96 DPI pictures straight below `:/images/`
    Folder,   ///< 96 DPI pictures in a folder of their own, as the early ones are
    MoreTools ///< the second family
};

/// Resource path of a picture in the display's set; empty where the display's scale has no set.
QString path(const QString &file, Family family = Family::Plain);
/// The same, with the set of 96 DPI where the scale has none.
QString nearestPath(const QString &file, Family family = Family::Plain);

/// Shows a picture on a label and keeps its path as the label's property "imagePath". Where the scale has no
/// set, the label keeps what it had. Above 150 percent the picture is stretched to the label.
void setLabelImage(QLabel *label, const QString &file, Family family = Family::Plain);

/// A new animation, the child of `parent`.
QMovie *newMovie(const QString &file, QObject *parent);

} // namespace images
