// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The entry of the program: everything from process start to its end. The executable's main() is this call
/// alone, so that the tour drives the very same way. Returns the exit code.
int runApplication(int argc, char **argv);
