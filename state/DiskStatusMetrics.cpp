// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/DiskStatusMetrics.h"

#include "state/GlobalApp.h"

const DiskStatusMetrics &diskStatusMetrics(int languageType)
{
    constexpr DiskStatusMetrics common = {120, 190, 120, 140, 120, 140, 120, 170, 20};
    static const std::array<DiskStatusMetrics, LanguageCount> table = {{
        common,                                       // English
        {185, 190, 130, 140, 130, 140, 130, 170, 25}, // German
        {180, 190, 180, 145, 180, 140, 180, 145, 20}, // French
        {140, 190, 140, 140, 170, 140, 140, 175, 20}, // Italian
        {140, 190, 140, 140, 200, 140, 140, 150, 20}, // Spanish
        common,                                       // Japanese
        common,                                       // Chinese
        common,                                       // Korean
        {160, 190, 130, 140, 130, 140, 140, 185, 20}, // Dutch
        {160, 190, 150, 140, 175, 140, 150, 165, 20}, // Brazil
        common,                                       // Hindi
    }};
    const bool known = languageType >= 0 && languageType < LanguageCount;
    return table[known ? static_cast<std::size_t>(languageType) : 0];
}
