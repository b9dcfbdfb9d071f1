// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// The five screens, their buttons and what of the shell shows on them, as tables.
namespace navigation
{

enum Screen { DiskStatusScreen, SmartStatusScreen, DiskPartitionScreen, ScanDiskScreen, CloneDiskScreen };
constexpr int ScreenCount = 5;

struct Button {
    const char *text;    ///< with three leading blanks; context MainWindow
    const char *toolTip; ///< context MainWindow
};

extern const std::array<Button, ScreenCount> buttons;

/// Which of the shell's job buttons a screen shows.
struct ShellButtons {
    bool scan;
    bool clone;
    bool report;
    bool screenshot;
};

const ShellButtons &shellButtons(Screen screen);

} // namespace navigation
