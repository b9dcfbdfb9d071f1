// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/AttributeColumns.h"

#include "state/Scale.h"

#include <QtGlobal>

namespace attributecolumns
{

const std::array<Column, Count> &columns(bool nvme)
{
    static constexpr std::array<Column, Count> ata = {{
        {QT_TRANSLATE_NOOP("SmartStatus", "     ID"), 55, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Attribute Name"), 150, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Status"), 90, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Value"), 90, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Worst"), 70, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Threshold"), 90, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Raw Value"), 90, false},
        // The last five hold what the program looks up in a row; nobody sees their headers.
        {QT_TRANSLATE_NOOP("SmartStatus", "Updated"), 100, true},
        {QT_TRANSLATE_NOOP("SmartStatus", "Failed"), 100, true},
        {QT_TRANSLATE_NOOP("SmartStatus", "Raw Value"), 100, true},
        {QT_TRANSLATE_NOOP("SmartStatus", "Better"), 100, true},
        {QT_TRANSLATE_NOOP("SmartStatus", "Overall Status")},
    }};
    static constexpr std::array<Column, Count> nvmeColumns = {{
        {QT_TRANSLATE_NOOP("SmartStatus", "     ID"), 55, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Attribute Name"), 300, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "Values"), 90, false},
        {QT_TRANSLATE_NOOP("SmartStatus", "AttName")},
    }};
    return nvme ? nvmeColumns : ata;
}

int width(const Column &column, bool nvme, int scalePercent)
{
    return nvme ? column.width : scale::scaled(column.width, scalePercent);
}

int headerFontPixels(int scalePercent, bool wideLanguage)
{
    switch (scale::imageSet(scalePercent)) {
    case 96:
        return 14;
    case 120:
        return wideLanguage ? 17 : 18;
    case 144:
        return wideLanguage ? 21 : 22;
    default:
        return 0;
    }
}

} // namespace attributecolumns
