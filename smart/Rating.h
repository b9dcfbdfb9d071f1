// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/DriveVerdict.h"
#include "smart/SmartRecords.h"
#include "smart/TilePicture.h"

#include <QString>

#include <optional>

/// Health, performance and life of a disk, from what its report tells.

constexpr int FullPercent = 100;

/// Health in percent by the rows of the table, at most 100. The row of reallocated sectors is the base of the
/// rating, and rows ahead of it do not count; without one HealthCatalogue.h tells what the rating begins
/// with. Nothing where there is neither, 0 without any row.
std::optional<int> healthOfAta(const SmartAttributeList &rows);

/// Health in percent by the wear that the drive reports, at most 100; negative where the wear is above 100 %.
/// Nothing where the drive reports none, 0 without any row.
std::optional<int> healthOfNvme(const NvmeAttributeList &rows);

/// The wear in percent, 0 to 100, by the first row that tells the rest of the drive's life; nothing without
/// one.
std::optional<int> wearOfAta(const SmartAttributeList &rows);

/// How many blocks or sectors were taken out of use; nothing where no row counts them.
std::optional<qint64> replacedOfAta(const SmartAttributeList &rows);

/// Performance in percent by the text of the ATA version line.
int performanceOf(const QString &ataVersion);

/// What a picture tells by its colour. Translated; empty where it tells nothing.
QString pictureText(TilePicture picture);

/// What the tile's picture tells at a display scale, in percent.
TilePicture healthPicture(std::optional<int> percent, int scalePercent);
TilePicture performancePicture(int percent, int scalePercent);

enum class OverallResult { Passed, NotSupported, Failed };
/// `temperature` in °C, 0 if it is not known. A drive that gives itself up has failed, whatever else is
/// known.
OverallResult overallResult(bool available, int temperature, DriveVerdict verdict);

/// The figures of a disk's life.
struct LifeFigures {
    quint32 nDiskLifeDays = 0;
    int nPowerOnDays = 0;
    int nPowerOnRestHours = 0;
    int nStartStopCount = 0;
    bool bLifeKnown = true; ///< the estimate takes a health
};

/// Takes one row into the figures; a row of another attribute leaves them.
void takeLifeRow(LifeFigures &figures, const SmartAttributeRecord &row, int healthPercent);

/// The estimate from the power-on days: five years less these, weighted twice with the health. Past five
/// years the difference wraps to a huge number of days; an estimate that does not fit is the largest number.
quint32 diskLifeDays(int powerOnDays, int healthPercent);

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
