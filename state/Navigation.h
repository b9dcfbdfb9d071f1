// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

/// The five screens, their buttons and what of the shell shows on them, as tables.
namespace navigation
{

enum Screen { DiskStatusScreen, SmartStatusScreen, DiskPartitionScreen, ScanDiskScreen, CloneDiskScreen };
constexpr int ScreenCount = 5;

enum class Look { Normal, Hover, Selected };

struct Button {
    const char *text;    ///< with three leading blanks; context MainWindow
    const char *toolTip; ///< context MainWindow
    const char *normalImage;
    const char *hoverImage;
    const char *selectedImage;
};

extern const std::array<Button, ScreenCount> buttons;

/// The style sheet of a navigation button in one look at a scale.
QString styleSheet(Screen screen, Look look, float scaleFactor);

/// The same for the back button of the self-test page; its release look is the normal one.
QString backButtonSheet(Look look, float scaleFactor);

/// Which of the shell's job buttons a screen shows.
struct ShellButtons {
    bool scan;
    bool clone;
    bool report;
    bool screenshot;
};

const ShellButtons &shellButtons(Screen screen);

} // namespace navigation
