// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// The columns of the attribute tree.
namespace attributecolumns
{

constexpr int Count = 12;
constexpr int Name = 1;
/// The hidden column of a row's key.
constexpr int key(bool nvme)
{
    return nvme ? 3 : 7;
}

struct Column {
    const char *header = nullptr; ///< context SmartStatus; null: keeps what it has
    int width = 0;                ///< 0: as it comes
    bool hidden = true;
};

/// All columns for the reports of NVMe disks or those of all others.
const std::array<Column, Count> &columns(bool nvme);

/// Width of a column in pixels, 0 where it has none of its own. Those of NVMe disks do not follow the scale.
int width(const Column &column, bool nvme, int scalePercent);

/// Font size of the header in pixels, 0 where the scale has none. Languages with wide header words take a
/// smaller one.
int headerFontPixels(int scalePercent, bool wideLanguage);

} // namespace attributecolumns
