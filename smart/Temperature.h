// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/SmartRecords.h"
#include "smart/TilePicture.h"

#include <QString>

/// The disk's temperature and how it is shown.

/// Temperature of the disk whose report was read last, whole °C; 0 if it is not known. Main thread only.
int GetDiskTemperature();

/// The same of a given list: the first temperature row decides.
int ataTemperature(const SmartAttributeList &rows);
int nvmeTemperature(const NvmeAttributeList &rows);

/// The number shown for a temperature in °C. 0 stays 0 in Fahrenheit, as it stands for "not known".
int displayTemperature(int celsius, bool fahrenheit);

/// Text of the tile after a load; a `unit` other than "F" means Celsius.
QString loadTemperatureText(int celsius, const QString &unit);

/// Text of the tile after a poll; empty for a `unit` that is neither "C" nor "F".
QString pollTemperatureText(int celsius, const QString &unit);

/// Text of the tile while a disk loads: "0°" and the letter of the unit, none for a unit that is neither.
QString waitingTemperatureText(const QString &unit);

/// What the tile's picture tells after a load.
TilePicture loadTemperaturePicture(int celsius);

/// The same after a poll.
TilePicture pollTemperaturePicture(int celsius);
