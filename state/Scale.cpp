// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Scale.h"

namespace scale
{

float factorForDpi(int dotsPerInch)
{
    double factor = dotsPerInch / 96.0;
    if (factor > 1.0 && factor < 1.25)
        factor = 1.25;
    else if (factor > 1.25 && factor < 1.5)
        factor = 1.5;
    return static_cast<float>(factor);
}

int scaled(int size, float factor)
{
    return static_cast<int>(static_cast<float>(size) * factor);
}

ImageSet imageSet(float factor)
{
    // The factor goes through its six-digit text first, so that a factor a hair off 1.25 still counts
    // as 1.25.
    const float rounded = QString::number(static_cast<double>(factor), 'g', 6).toFloat();
    if (rounded == 1.0F)
        return ImageSet::Dpi96;
    if (rounded == 1.25F)
        return ImageSet::Dpi120;
    if (rounded >= 1.5F)
        return ImageSet::Dpi144;
    return ImageSet::None;
}

QString imagePath(const QString &file, float factor, Family family)
{
    const ImageSet set = imageSet(factor);
    if (set == ImageSet::None)
        return QString();
    if (set == ImageSet::Dpi96 && family == Family::Plain)
        return QStringLiteral(":/images/") + file;
    const QString root = family == Family::Others ? QStringLiteral(":/images/Resources/Others/")
                                                  : QStringLiteral(":/images/Resources/");
    const QString folder = set == ImageSet::Dpi96    ? QStringLiteral("96-DPI/")
                           : set == ImageSet::Dpi120 ? QStringLiteral("120-DPI/")
                                                     : QStringLiteral("144-DPI/");
    return root + folder + file;
}

} // namespace scale
