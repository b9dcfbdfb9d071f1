// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LinuxPlatform.h"

#include <functional>

/// A Linux PC whose calls a test can watch, and whose pauses take no time. Set the hooks before the code
/// under test runs. They are called on its threads, before the call is made.
class WatchedPlatform : public LinuxPlatform
{
public:
    using LinuxPlatform::LinuxPlatform;

    std::function<void(quint32 milliseconds)> onSleep;
    std::function<void()> onCommand;
    std::function<void()> onRead;

    void Sleep(quint32 milliseconds) override
    {
        if (onSleep)
            onSleep(milliseconds);
    }
    bool CreateProcessAndWait(const std::wstring &line, bool hidden) override
    {
        if (onCommand)
            onCommand();
        return LinuxPlatform::CreateProcessAndWait(line, hidden);
    }
    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *moved) override
    {
        if (onRead)
            onRead();
        return LinuxPlatform::ReadFile(handle, buffer, bytes, moved);
    }
};

/// Folders of a Linux PC below `home`, whoever runs the test.
inline folders::Places placesIn(const QString &home)
{
    return {folders::chooseTemp({home + QStringLiteral("/velmora-halvane")}),
            home + QStringLiteral("/config/velmora-halvane"), home + QStringLiteral("/config/autostart"),
            home + QStringLiteral("/data/velmora-halvane")};
}

/// A Linux PC with such folders.
inline std::unique_ptr<Platform> linuxPcIn(const QString &home)
{
    return std::make_unique<LinuxPlatform>(placesIn(home));
}
