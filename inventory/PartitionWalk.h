// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/RecordList.h"

#include <QtGlobal>

/// Finds the Linux partitions of a physical disk by its MBR, EBR and GPT tables: the operating system does
/// not list them. One walk at a time, on a device-load thread: state and list are process-wide and unguarded.

/// One Linux partition. Sectors of 512 bytes.
struct LinuxPartitionEntry {
    LinuxPartitionEntry *pNext = nullptr;
    quint64 nStartSector = 0;
    quint64 nSectorCount = 0;
    quint64 nEndSector = 0; ///< behind the last sector for an MBR or EBR entry, the last one for a GPT entry
    quint8 nType = 0;       ///< always 131
    quint8 nDrive = 0;      ///< drive code of the disk
};

/// Where the walk is. Zeroed by ResetPartitionWalk().
struct PartitionWalkState {
    quint32 currentBase = 0;    ///< sector of the table being read
    quint32 extendedBase = 0;   ///< sector of the outermost extended partition, 0 until one is met
    quint16 walkDepth = 0;      ///< nesting of the tables
    quint32 partitionCount = 0; ///< entries found
};

constexpr quint8 LinuxPartitionType = 131;

/// The most tables of one walk. No real chain comes near it, and the ids of list nodes have 16 bits.
constexpr int MaxPartitionTables = 65536;

inline PartitionWalkState g_partitionWalk;
/// What the last walk found, until the next one or the next list. Never freed.
inline RecordList<LinuxPartitionEntry> &g_linuxPartitions = *new RecordList<LinuxPartitionEntry>;

/// Frees the entries and zeroes the state, as every walk of a disk has to begin.
void ResetPartitionWalk();

/// Appends an entry to the list for each Linux partition in the table at `sector`, and in the tables that it
/// leads to. The first table of a disk is at sector 0. A table that cannot be read counts as empty. The walk
/// always ends: each table is read once, so a cycle ends, and at most MaxPartitionTables are read. Memory and
/// time grow with the tables, the stack does not.
void ScanPartitionTable(int driveCode, quint64 sector);
