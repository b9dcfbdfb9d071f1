// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <memory>

/// What each operating system defines in its folder of platform/.

/// The machine itself.
std::unique_ptr<Platform> makeNativePlatform();

/// Platform::TakeInstance() among the programs of this user on this machine.
bool takeNativeInstance(const QString &key);

/// The first thing that a process does: from here on it loads no library from a folder that others may write,
/// and where it has the rights of an administrator, it keeps nothing in folders that the environment names.
void prepareNativeProcess();
