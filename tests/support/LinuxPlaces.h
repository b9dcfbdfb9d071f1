// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/LinuxPlatform.h"

#include <QDir>

/// A Linux PC with its folders below `home`, whoever runs the test.
inline std::unique_ptr<Platform> linuxPcIn(const QString &home)
{
    const folders::Places places{folders::chooseTemp({home + QStringLiteral("/velmora-halvane")}),
                                 home + QStringLiteral("/config/velmora-halvane"),
                                 home + QStringLiteral("/config/autostart"),
                                 home + QStringLiteral("/data/velmora-halvane")};
    return std::make_unique<LinuxPlatform>(places);
}
