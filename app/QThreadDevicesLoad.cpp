// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QThreadDevicesLoad.h"

#include "inventory/CommandRunner.h"
#include "platform/OwnFiles.h"
#include "state/GlobalApp.h"
#include "state/Globals.h"

#include <QFile>

void QThreadDevicesLoad::prepare()
{
    const QString tool = QStringLiteral("smartctl64Bit.exe");
    g_App.m_strSmartctlPath = tempFile(tool);
    // Read from the program's own folder. In the working folder the name may be that of a pipe, and the
    // start would wait for it.
    const QByteArray content = ownfiles::contents(g_strApplicationFolder + QLatin1Char('/') + tool);
    QFile copy;
    if (!content.isEmpty() && ownfiles::makeFile(&copy, nativePath(g_App.m_strSmartctlPath)))
        copy.write(content);
}
