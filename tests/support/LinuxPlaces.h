// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LinuxPlatform.h"

#include <QDir>

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
