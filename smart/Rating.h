// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/DriveVerdict.h"
#include "smart/SmartRecords.h"
#include "smart/TilePicture.h"

#include <QString>

#include <cstdint>
#include <optional>

/// Health, performance and life of a disk. What was rated last is kept in the globals below, main thread
/// only.

inline int g_nHealthPercent = 0;
inline bool g_bHealthKnown = true; ///< false: the report holds nothing to rate, and the percentage is 100
inline int g_nPerformancePercent = 0;
/// The four life figures stay where a later report of the same disk has no such row.
inline std::uint32_t g_nDiskLifeDays = 0;
inline int g_nPowerOnDays = 0;
inline int g_nPowerOnRestHours = 0;
inline int g_nStartStopCount = 0;

/// Health in percent by the rows of the table, at most 100. The row of reallocated sectors is the base of the
/// rating, and rows ahead of it do not count; without one HealthCatalogue.h tells what the rating begins
/// with. Nothing where there is neither, 0 without any row.
std::optional<int> healthOfAta(const SmartAttributeList &rows);

/// Health in percent by the wear that the drive reports, at most 100; negative where the wear is above 100 %.
/// Nothing where the drive reports none, 0 without any row.
std::optional<int> healthOfNvme(const NvmeAttributeList &rows);

/// Performance in percent by the text of the ATA version line.
int performanceOf(const QString &ataVersion);

/// Rates the disk whose report was read last and writes g_nHealthPercent and g_strHealthText. A disk whose
/// SMART is not available counts as 100.
void RateHealth();

/// The same for g_nPerformancePercent and g_strPerformanceText.
void RatePerformance();

/// What the tile's picture tells at a display scale, in percent.
TilePicture healthPicture(std::optional<int> percent, int scalePercent);
TilePicture performancePicture(int percent, int scalePercent);

enum class OverallResult { Passed, NotSupported, Failed };
/// `temperature` in °C, 0 if it is not known. A drive that gives itself up has failed, whatever else is
/// known.
OverallResult overallResult(bool available, int temperature, DriveVerdict verdict);

/// The figures of a disk's life.
struct LifeFigures {
    std::uint32_t nDiskLifeDays = 0;
    int nPowerOnDays = 0;
    int nPowerOnRestHours = 0;
    int nStartStopCount = 0;
    bool bLifeKnown = true; ///< the estimate takes a health
};

/// Takes one row into the figures; a row of another attribute leaves them.
void takeLifeRow(LifeFigures &figures, const SmartAttributeRecord &row, int healthPercent);

/// The estimate from the power-on days: five years less these, weighted twice with the health. Past five
/// years the difference wraps to a huge number of days; an estimate that does not fit is the largest number.
std::uint32_t diskLifeDays(int powerOnDays, int healthPercent);

/// The figures in the globals, and taking all rows of the ATA list into them.
LifeFigures storedLifeFigures();
void UpdateLifeFigures();

enum class LifeKind { Nvme, Removable, NoRows, Known };
LifeKind lifeKind(bool nvme, bool removable, bool hasRows);

struct LifeTexts {
    QString life;
    QString powerOn;
    QString startStop;
};

/// Between days and hours: after a load, and after a change of language.
inline const QString LoadSeparator = QStringLiteral(", ");
inline const QString RetranslateSeparator = QStringLiteral(" , ");

/// Texts of the three life labels. Translated.
LifeTexts lifeTexts(LifeKind kind, const LifeFigures &figures, const QString &separator = LoadSeparator);
