// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/OpenProgram.h"

#include "platform/Platform.h"
#include "state/GlobalApp.h"
#include "state/StartArgument.h"

namespace openprogram
{

namespace
{

void start(const QString &argument)
{
    const QString name =
        g_App.m_bKorvaneBrand ? QStringLiteral("KorvaneHalvane.exe") : QStringLiteral("VelmoraHalvane.exe");
    Platform &platform = Platform::current();
    // A second one would only say that the first one runs.
    if (!platform.BringToFront(name))
        platform.ShellExecuteW(g_App.m_strApplicationFolder + QLatin1Char('\\') + name, argument, QString());
}

} // namespace

void open()
{
    start(QString());
}

void onDisk(int number)
{
    start(number < 0 ? QString() : startargument::forDisk(number));
}

void inSettings()
{
    start(startargument::ForSettings);
}

} // namespace openprogram
