// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/CommandLine.h"
#include "platform/NativePlatform.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    prepareNativeProcess();
    const int code = commandline::run(argc, argv);
    Platform::current().Leave();
    std::fflush(nullptr);
    std::_Exit(code);
}
