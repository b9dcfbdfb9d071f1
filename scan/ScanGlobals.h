// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scan/BadSectorList.h"

#include <atomic>

/// The state of a surface scan, which the scan thread, the Scan Disk page and the block map share. It
/// outlives the thread. g_bAbortJob and g_bJobRunning are in state/Globals.h. Sectors are of 512 bytes.

constexpr qint64 ScanBlockCount = 400; ///< progress and map divide the disk into so many blocks

/// The bad sectors of the last scan. Emptied at the start of a scan and when the user leaves the page.
inline BadSectorList g_BadSectors;

inline std::atomic<bool> g_bScanFailed{false};   ///< the disk of the last scan did not open, or has gone
inline std::atomic<bool> g_bScanDiskGone{false}; ///< it has gone in mid-scan

inline std::atomic<qint64> g_nScanStartSector{0}; ///< set through QScanDriveThread::SetRange
inline std::atomic<qint64> g_nScanEndSector{0};
inline std::atomic<qint64> g_nBlockStep{0}; ///< sectors per block, rounded up; 0 before the first scan

inline qint64 g_nMapTotalSectors = 0; ///< what the map divides; main thread
inline qint64 g_nMapStep = 0;         ///< sectors per progress value, rounded down; main thread, set for a
                                      ///< total above 400 only
