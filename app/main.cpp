// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "platform/NativePlatform.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    prepareNativeProcess();
    const int code = runApplication(argc, argv);
    // A worker thread may still be waiting for a tool, and the program does not wait for it. So the process
    // ends without the destructors of the static objects that the thread uses.
    Platform::current().Leave();
    std::fflush(nullptr);
    std::_Exit(code);
}
