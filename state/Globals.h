// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/DiskRecords.h"

#include <QRect>
#include <QString>

#include <atomic>

class MainWindow;
class QWaitClass;

/// The plain globals that several screens share. Empty or zero at start; written on the main thread unless
/// said otherwise. Flags that two threads touch are atomic. The lists have no lock: a device-load thread
/// writes them, and until it has ended the main thread leaves them alone (g_bListsLoading).

inline QString g_strStartArgument; ///< first command-line argument
inline QString g_strRunMode;       ///< "Schedular" or empty
inline QString g_strApplicationFolder;
inline QString g_strTranslationFolder; ///< folder of the translation loaded last

/// \name Five that are called m_... like members
/// State of the one main window and its splash. They are global, as the splash sets them before there is a
/// window, and dialogs have no pointer to it.
/// @{
inline MainWindow *m_pMainWindow = nullptr;
inline QWaitClass *m_pWaitDialog = nullptr;
inline QRect m_rcSplash; ///< the splash's place at the moment it was hidden
inline bool m_bMainWindowCreated = false;
inline bool m_bBackRequested = false; ///< the back button was pressed while results were open
/// @}

/// The system's disk table and its volume table, written by the device-load threads. Never freed, like
/// the disk list.
inline RecordList<WmicDiskRecord> &g_wmicDisks = *new RecordList<WmicDiskRecord>;
inline WmicDiskRecord *&g_pWmicDiskListHead = g_wmicDisks.head;
inline WmicDiskRecord *&g_pWmicDiskListTail = g_wmicDisks.tail;
inline RecordList<LogicalDiskRecord> &g_logicalDisks = *new RecordList<LogicalDiskRecord>;
inline LogicalDiskRecord *&g_pLogicalDiskListHead = g_logicalDisks.head;
inline LogicalDiskRecord *&g_pLogicalDiskListTail = g_logicalDisks.tail;

inline int g_nCurrentDiskIndex = 0; ///< physical number of the selected disk
inline QString g_strSerialNumber;   ///< of the latest report read
inline QString g_strModelName;
inline QString g_strFirmware;
inline QString g_strInterface;
inline QString g_strSelectedSize; ///< size text of the disk node last looked up
inline QString g_strTemperatureText;
inline QString g_strHealthText;
inline QString g_strPerformanceText;
inline QString g_strSelectDestination;
inline bool g_bSmartAvailable = false;

inline std::atomic<bool> g_bListsLoading{false}; ///< a refresh rebuilds the lists: nobody else walks them now
inline bool g_bListsStale = false; ///< a disk or volume went during a job: the lists are read anew after it
inline std::atomic<bool> g_bAbortJob{false};   ///< stop request, polled by the workers
inline std::atomic<bool> g_bJobRunning{false}; ///< set and cleared by the workers too
inline std::atomic<bool> g_bSelfTestRunning{false};
inline bool g_bScanResultOpen = false;
inline bool g_bSelfTestResultOpen = false;
inline bool g_bScanStarted = false;   ///< a surface scan was asked for and has not been started yet
inline bool g_bStopRequested = false; ///< the stop button of a self-test was used at least once
inline bool g_bDragging = false;      ///< a frameless window is being dragged

/// The record whose nDiskId is `diskId`, the first one; null if there is none, and while the lists are
/// rebuilt.
const WmicDiskRecord *findWmicDisk(quint32 diskId);

/// The physical node with that id; null if there is none, and while the lists are rebuilt.
DiskNode *findPhysicalDisk(int diskId);
