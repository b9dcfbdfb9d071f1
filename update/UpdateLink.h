// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where an update comes from, and where it goes. Links are settings of the language in use.
namespace update
{

/// Address of the web folder, to which a file name is plainly joined; empty where there is none. Main thread
/// only.
QString link();

/// Address of the page about the update; empty where there is none. Main thread only.
QString page();

/// \name Files of the web folder, by brand
/// @{
QString versionsName();
QString installerName();
/// @}

/// Size of the installer in bytes as the settings tell it, 10 MiB where they do not. Main thread only.
int expectedSize();

} // namespace update
