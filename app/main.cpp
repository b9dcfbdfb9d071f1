#include "app/Application.h"
#include "platform/NativePlatform.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    prepareNativeProcess();
    const int code = runApplication(argc, argv);
    // A worker may still be waiting for a tool, and nobody waits for it: what it uses must outlive it, so the
    // process ends without the destructors of the static objects.
    Platform::current().Leave();
    std::fflush(nullptr);
    std::_Exit(code);
}
