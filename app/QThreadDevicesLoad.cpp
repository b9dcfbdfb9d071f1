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
    // From the program's own folder: whatever lies where it was started, such as a pipe, could hold the
    // start.
    const QByteArray content = ownfiles::contents(g_strApplicationFolder + QLatin1Char('/') + tool);
    QFile copy;
    if (!content.isEmpty() && ownfiles::makeFile(&copy, nativePath(g_App.m_strSmartctlPath)))
        copy.write(content);
}
