// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/Rating.h"

#include <QString>

/// What is known of the disk whose report was read last. DiskFigures.h writes it. Main thread only.

inline SmartTable g_smartTable;
inline SmartAttributeRecord *&g_pSmartAttributeHead = g_smartTable.rows.head;
inline SmartAttributeRecord *&g_pSmartAttributeTail = g_smartTable.rows.tail;
inline NvmeTable g_nvmeTable;
inline NvmeAttributeRecord *&g_pNvmeAttributeHead = g_nvmeTable.rows.head;
inline NvmeAttributeRecord *&g_pNvmeAttributeTail = g_nvmeTable.rows.tail;

/// The report of the disk that is chosen is still to come: the lists are empty, and no figure is of that
/// disk.
inline bool g_bReportPending = false;
inline QString g_strGraphTitle; ///< of the graph drawn last, empty before the first; offered as a file name
inline QString g_strAtaVersion; ///< stays as it was where a later report of the disk names no version
inline DriveVerdict g_driveVerdict = DriveVerdict::NotTold;

inline int g_nHealthPercent = 0;
inline int g_nPerformancePercent = 0;
/// The four figures of life stay where a later report of the same disk has no such row.
inline LifeFigures g_lifeFigures;
inline bool &g_bHealthKnown = g_lifeFigures.bLifeKnown; ///< false: nothing to rate, and the percentage is 100
inline quint32 &g_nDiskLifeDays = g_lifeFigures.nDiskLifeDays;
inline int &g_nPowerOnDays = g_lifeFigures.nPowerOnDays;
inline int &g_nPowerOnRestHours = g_lifeFigures.nPowerOnRestHours;
inline int &g_nStartStopCount = g_lifeFigures.nStartStopCount;

/// The newest self-test, for the report. Translated. A log that names no test leaves them.
inline QString g_strLastTestType;
inline QString g_strLastTestResult;

inline QString g_strSmartReportPath; ///< where the report lies that SMARTThread read last
inline QString g_strSmartDevice;     ///< its device, USB prefix included

inline QString g_strSelfTestDevice; ///< device of the self-test commands, never with the USB prefix
inline QString g_strSelfTestModel;
inline QString g_strSelfTestSerial;
