// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the desktop shows of the program beside its window.
namespace desktopnotes
{

/// The progress of a job on the program's launcher, in percent; none takes it away. Nothing is sent where
/// there is no bus of the session, nor by root, who asks no bus of a user.
void showProgress(std::optional<int> percent);

/// A short message beside the user's work, by the tool that desktops have for it. As root, the session of the
/// user who is logged on shows it. Does not wait. False where the tool or the user is not there.
bool notify(const QString &title, const QString &text);

/// The words behind that tool's name. Both texts are shown letter by letter.
QStringList notifyArguments(const QString &title, const QString &text);

} // namespace desktopnotes
