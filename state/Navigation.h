// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// Tables of the five screens: their buttons, and which job buttons of the window they show.
namespace navigation
{

enum Screen { DiskStatusScreen, SmartStatusScreen, DiskPartitionScreen, ScanDiskScreen, CloneDiskScreen };
constexpr int ScreenCount = 5;

struct Button {
    const char *text;    ///< with three leading blanks; context MainWindow
    const char *toolTip; ///< context MainWindow
    /// \name Which of the shell's job buttons the screen shows
    /// @{
    bool scan;
    bool clone;
    bool report;
    bool screenshot;
    /// @}
};

extern const std::array<Button, ScreenCount> buttons;

} // namespace navigation
