// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Platform.h"

QByteArray Platform::CommandInterpreter()
{
    return (GetSystemDirectoryW() + QLatin1String("\\cmd.exe")).toUtf8();
}
