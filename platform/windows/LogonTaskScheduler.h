#pragma once

#include "platform/Platform.h"

/// The logon task in the system's Task Scheduler. Main thread only. Every failed step is told on standard
/// output, and from then on COM is no longer initialised on the thread.
namespace windows
{

/// Starts COM and its security for the process.
void initializeCom();

void createLogonTask(const LogonTask &task);

/// A task that does not exist is no error.
void deleteLogonTask(const QString &name);

} // namespace windows
