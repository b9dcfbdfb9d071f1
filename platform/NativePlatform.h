// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"

#include <memory>

/// What each operating system defines in its folder of platform/.

/// The machine itself.
std::unique_ptr<Platform> makeNativePlatform();

/// Platform::TakeInstance() among the programs of this user on this machine.
bool takeNativeInstance(const QString &key);

/// Where a socket of that name belongs that only this user can reach; empty where there is no such place.
QString nativeSocket(const QString &name);

/// Ends a process of this user at once. Nothing happens where there is none of that number.
void endNativeProcess(qint64 id);

/// The first thing that a process does: from here on it loads no library from a folder that others may write,
/// and where it has the rights of an administrator, it keeps nothing in folders that the environment names.
void prepareNativeProcess();

/// Makes standard output that of the console from which the process was started, where the system gives a
/// program with windows none. What is written to it then goes out unchanged. Call it before the first output.
void useConsole();
