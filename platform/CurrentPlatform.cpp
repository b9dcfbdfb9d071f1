// SPDX-License-Identifier: GPL-3.0-or-later
// Which platform the program runs on: the one file that knows them all.

#include "platform/Platform.h"

#include "platform/NativePlatform.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace
{

constexpr int WrongDescription = 4; ///< exit code; the companion's lower ones tell of disks

std::mutex chooseMutex;
std::unique_ptr<Platform> owner;
std::atomic<Platform *> chosen{nullptr};

std::unique_ptr<Platform> choose()
{
    const QString folder = qEnvironmentVariable("HALVANE_PC");
    if (folder.isEmpty())
        return makeNativePlatform();
    QString error;
    auto platform = SimulatedPlatform::open(folder, qEnvironmentVariable("HALVANE_PC_STATE"), &error);
    if (!platform) {
        std::fprintf(stderr, "VelmoraHalvane: %s\n", error.toLocal8Bit().constData());
        std::fflush(nullptr);
        // Not exit(): half of the program may be up, and its clean-up would add lines of its own.
        std::_Exit(WrongDescription);
    }
    return platform;
}

} // namespace

Platform &Platform::current()
{
    if (Platform *platform = chosen.load(std::memory_order_acquire))
        return *platform;
    const std::lock_guard<std::mutex> lock(chooseMutex);
    if (!owner) {
        owner = choose();
        chosen.store(owner.get(), std::memory_order_release);
    }
    return *owner;
}

void Platform::install(std::unique_ptr<Platform> platform)
{
    const std::lock_guard<std::mutex> lock(chooseMutex);
    chosen.store(platform.get(), std::memory_order_release);
    owner = std::move(platform);
}
