// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/Scale.h"

#include "state/GlobalApp.h"

namespace scale
{

int percentForDpi(int dotsPerInch)
{
    const int percent = qRound(dotsPerInch / 0.96);
    if (percent > 100 && percent < 125)
        return 125;
    return percent > 125 && percent < 150 ? 150 : percent;
}

int percent()
{
    return qRound(g_App.m_fScale * 100.0F);
}

int scaled(int size, int percent)
{
    return size * percent / 100;
}

int imageSet(int percent)
{
    if (percent >= 150)
        return percent >= 200 ? 192 : percent >= 175 ? 168 : 144;
    return percent == 125 ? 120 : percent == 100 ? 96 : 0;
}

} // namespace scale
