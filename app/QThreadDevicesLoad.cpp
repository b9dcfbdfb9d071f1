#include "app/QThreadDevicesLoad.h"

#include "app/state/GlobalApp.h"
#include "inventory/CommandRunner.h"
#include "platform/Platform.h"
#include "smart/DeviceLoad.h"

#include <QFile>

QThreadDevicesLoad::~QThreadDevicesLoad()
{
    m_condition.wakeOne();
    wait();
}

void QThreadDevicesLoad::run()
{
    QMutexLocker lock(&m_mutex);
    Platform::current().Sleep(deviceload::PauseMilliseconds);
    const QString tool = QStringLiteral("smartctl64Bit.exe");
    g_App.m_strSmartctlPath = tempFile(tool);
    QFile::copy(tool, nativePath(g_App.m_strSmartctlPath));
    deviceload::loadLists();
    emit OnLoadingDevices();
}
