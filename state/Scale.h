// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The one place that knows how the display scale turns into sizes and into one of the three image sets.
namespace scale
{

/// The factor for a display of so many dots per inch: values between the sets go up to the next one.
float factorForDpi(int dotsPerInch);

/// A design size in pixels at that factor, truncated.
int scaled(int size, float factor);

enum class ImageSet { None, Dpi96, Dpi120, Dpi144 };

/// The set for a factor. None for a factor between the sets or below one: the widget then keeps what it had.
ImageSet imageSet(float factor);

enum class Family {
    Plain,  ///< 96 DPI images straight below `:/images/`
    Folder, ///< 96 DPI images in their own folder, as the early ones are
    Others  ///< the second family, of the More Tools menu
};

/// Resource path of an image file, empty where the set is None.
QString imagePath(const QString &file, float factor, Family family = Family::Plain);

} // namespace scale
