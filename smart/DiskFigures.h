// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What is known of the disk that is chosen, in the globals of this folder and of state/Globals.h:
/// attribute lists, ratings, life, last self-test, title of the graph. Main thread only.

constexpr int NoDisk = -1;

/// Makes `disk` (its physical number, or NoDisk) the one that all this is of. Where that was another one
/// everything is forgotten but the three identity texts, g_bReportPending is set, and true comes back.
bool takeUpDisk(int disk);
