// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <memory>

/// The logon task in the system's Task Scheduler. Main thread only. A step that fails is told on standard
/// output and ends the work; what was taken for it goes, and COM is as it was before.
namespace windows
{

/// One use of COM by this thread, from here to the end of the object.
class ComUse
{
public:
    ComUse();
    ~ComUse();
    ComUse(const ComUse &) = delete;
    ComUse &operator=(const ComUse &) = delete;

private:
    bool m_taken;
};

/// Starts COM for the thread and its security for the process. Null where the latter fails.
std::unique_ptr<ComUse> initializeCom();

void createLogonTask(const LogonTask &task);

/// A task that does not exist is no error.
void deleteLogonTask(const QString &name);

} // namespace windows
