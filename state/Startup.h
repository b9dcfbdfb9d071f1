// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the program and the companion do alike at their start, in this order. Main thread only.
namespace startup
{

/// Brand, packaging and the registry paths; takes the run mode and the language flag from the settings, and
/// goes to the application folder. Needs the application object.
void readSettings();

/// Names and folders of the machine.
void readMachine();

} // namespace startup
