// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

#include <windows.h>

/// What the task bar shows of a window. Main thread only.
namespace windows
{

/// The progress on the window's button, in percent; none takes it away.
void showProgress(HWND window, std::optional<int> percent);

/// A balloon above an icon beside the clock, which stays until a call with an empty title.
void notify(HWND window, const QString &title, const QString &text);

} // namespace windows
