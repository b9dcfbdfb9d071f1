#pragma once

#include "smart/SharedText.h"
#include "smart/SmartRecords.h"

#include <QString>

/// What is known of the disk whose report was read last. Main thread only, save for the shared texts, which
/// SMARTThread writes.

inline SmartAttributeRecord *g_pSmartAttributeHead = nullptr;
inline SmartAttributeRecord *g_pSmartAttributeTail = nullptr;
inline NvmeAttributeRecord *g_pNvmeAttributeHead = nullptr;
inline NvmeAttributeRecord *g_pNvmeAttributeTail = nullptr;

/// The report of the disk that is chosen is still to come: the lists are empty, and no figure is of that
/// disk.
inline bool g_bReportPending = false;
inline QString g_strGraphTitle; ///< of the graph drawn last, empty before the first; offered as a file name
inline QString g_strAtaVersion; ///< stays as it was where a later report of the disk names no version

inline SharedText g_strSmartReportPath; ///< where the latest SMARTThread run left its report
inline SharedText g_strSmartDevice;     ///< device of the latest SMARTThread run, USB prefix included

inline QString g_strSelfTestDevice; ///< device of the self-test commands, never with the USB prefix
inline QString g_strSelfTestModel;
inline QString g_strSelfTestSerial;
