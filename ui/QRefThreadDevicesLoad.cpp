#include "ui/QRefThreadDevicesLoad.h"

#include "platform/Platform.h"
#include "smart/DeviceLoad.h"

QRefThreadDevicesLoad::~QRefThreadDevicesLoad()
{
    m_condition.wakeOne();
    wait();
}

void QRefThreadDevicesLoad::run()
{
    QMutexLocker lock(&m_mutex);
    // A newly attached volume needs a moment to appear.
    Platform::current().Sleep(deviceload::PauseMilliseconds);
    deviceload::loadLists();
    emit OnLoadingDevices();
}
