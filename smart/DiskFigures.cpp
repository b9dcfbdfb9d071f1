// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/DiskFigures.h"

#include "smart/DriveVerdict.h"
#include "smart/PreviousTest.h"
#include "smart/Rating.h"
#include "smart/SmartGlobals.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

namespace
{

int ownerOfFigures = NoDisk;

} // namespace

bool takeUpDisk(int disk)
{
    if (disk == ownerOfFigures)
        return false;
    ownerOfFigures = disk;
    g_bReportPending = true;
    g_bSmartAvailable = false;
    g_App.m_bNVMe = false;
    g_smartTable = {};
    g_nvmeTable = {};
    for (int *number : {&g_nHealthPercent, &g_nPerformancePercent, &g_nPowerOnDays, &g_nPowerOnRestHours,
                        &g_nStartStopCount})
        *number = 0;
    g_nDiskLifeDays = 0;
    g_bHealthKnown = true;
    g_driveVerdict = DriveVerdict::NotTold;
    for (QString *text : {&g_strHealthText, &g_strPerformanceText, &g_strTemperatureText, &g_strInterface,
                          &g_strAtaVersion, &g_strGraphTitle, &g_strLastTestType, &g_strLastTestResult})
        text->clear();
    return true;
}
