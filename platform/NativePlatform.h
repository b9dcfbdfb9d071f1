#pragma once

#include "platform/Platform.h"

#include <memory>

/// The machine itself. Each operating system has its own definition in its folder of platform/.
std::unique_ptr<Platform> makeNativePlatform();

/// Tells the user of this process from the others of the machine.
QString nativeUser();
