// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The tray companion as the application sees it: a process of its own that is found in the task list,
/// started and killed. Nothing here reports a failure. Main thread only; each call blocks for its tools.
namespace companion
{

/// File name of the companion, by brand.
QString fileName();

/// Name of its logon task, by brand.
QString taskName();

enum class State {
    Unknown, ///< the task list could not be read
    Running,
    NotRunning
};

/// Looks through the task list; the letter case of the name does not matter.
State check();

/// Starts the companion beside the application: by its name alone, any folder could offer one.
void start();

/// check(), and start() where it does not run and the user has not ended it since the logon.
void ensureRunning();

/// kill() and start(), so that it comes up in another language; not where the user has ended it.
void startAgain();

/// Remembers that the user has ended it, until the next logon.
void markEnded();

/// Forgets that.
void takeQuitBack();

/// The kill command of the settings and of a language change.
void kill();

/// Whether the status is to show in the tray: stores it, and makes the logon task and starts the companion,
/// or deletes and kills them. While the metrics are wanted, it stays without the tray.
void setWanted(bool wanted);

/// The kill command that follows a read with the tray option off, unless the metrics are wanted; it names the
/// first brand's companion.
void killAfterRead();

} // namespace companion
