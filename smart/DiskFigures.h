// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "smart/AttributeGraph.h"
#include "smart/AttributeRows.h"
#include "smart/Rating.h"
#include "smart/ToolInvocation.h"

/// Puts what the engines give into the globals: of SmartGlobals.h, and the identity, the texts of the
/// ratings, g_bSmartAvailable and g_App.m_bNVMe. Main thread only.

constexpr int NoDisk = -1;

/// Makes `disk` (its physical number, or NoDisk) the one that the globals are of. Where that was another one
/// everything is forgotten but the three identity texts, g_bReportPending is set, and true comes back.
bool takeUpDisk(int disk);

/// Forgets the three identity texts: serial number, model, firmware.
void forgetIdentity();

/// Where the report lies that SMARTThread read, and its device.
void publish(const LoadedReport &loaded);

/// Reads the report at `path` into the table of its kind and removes the file. A file that does not open
/// changes nothing, and a name that the report does not tell stays.
void takeReportIn(const QString &path);

/// Runs the full report of a disk and takes it in. Blocks.
void RefreshTemperatureReport(int diskIndex);

/// Rates the disk whose report was taken in last. One whose SMART is not available counts as 100.
void rateHealth();
void ratePerformance();

/// Takes all rows of the ATA table into the figures of life.
void updateLifeFigures();

/// The serial number whose history is drawn: the report's or, where it tells none, that of the disk table.
QString serialOfGraph();

/// The rows of the report that was taken in last, of its kind.
std::vector<AttributeRow> currentRows();

/// Enters such rows as the values of today in the history of their disk.
void keepHistory(const std::vector<AttributeRow> &rows);

/// A graph, and what it shows for those who hear it.
struct DiskGraph {
    GraphModel model;
    QString text;
};

/// The graph of an attribute of the disk, by its key; nothing where there is no history.
std::optional<DiskGraph> currentGraph(const QString &key);

/// Has the report tool tell the self-tests of the disk of that device string, and takes the newest. What the
/// log does not tell stays. Blocks.
void ReadPreviousTest(const QString &device);
