// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The companion in the tray, until it is ended. Returns the exit code at once where one runs already.
int runResident(int argc, char **argv);

/// Whether tools have a folder for what they tell; else says so on standard error.
bool hasTempFolder();
