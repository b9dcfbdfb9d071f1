// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// The rows with which the health of an ATA drive begins that has no row of reallocated sectors. A name has
/// to match as a whole: "Initial_Bad_Block_Count" and its like count what was bad in the new drive. Where a
/// table has several of these rows, the one that stands first here counts.
namespace healthcatalogue
{

/// The raw value counts the blocks taken out of use since the drive was new. The last three may hold others
/// too.
constexpr std::array<const char *, 17> BlockRows = {
    "Reallocate_NAND_Blk_Cnt", "Reallocated_NAND_Blocks", "Reallocated_Block_Count", "Retired_Block_Count",
    "Retried_Blk_Ct", // a report tool's spelling of the one before
    "Grown_Bad_Blocks",        "Grown_Bad_Block_Count",   "Grown_Bad_Block_Ct",      "Grown_Failing_Block_Ct",
    "New_Bad_Blk_Cnt",         "Later_Bad_Block",         "Later_Bad_Block_Count",   "Total_Later_Bad_Blk_Ct",
    "Added_Bad_Flash_Blk_Ct",  "Bad_Block_Count",         "Bad_Block_Cnt",           "Runtime_Bad_Block",
};

/// The normalised value counts the rest of the drive's life down from 100.
constexpr std::array<const char *, 17> LifeRows = {
    "Percent_Lifetime_Remain", "Percent_Life_Remaining",  "Perc_Rated_Life_Remain", "PCT_Life_Remaining",
    "Remaining_Lifetime_Perc", "Remaining_Life",          "Lifetime_Remaining%",    "Lifetime_Left",
    "SSD_Life_Left",           "SSD_Life_Left_Perc",      "SSD_LifeLeft(0.01%)",    "Drive_Life_Remaining%",
    "DriveLife_Remaining%",
    "Percent_Lifetime_Used", // the raw value counts up, the normalised one down
    "Perc_Rated_Life_Used",    "Media_Wearout_Indicator", "Wear_Leveling_Count",
};

} // namespace healthcatalogue
