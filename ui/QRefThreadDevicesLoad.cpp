#include "ui/QRefThreadDevicesLoad.h"

#include "platform/Platform.h"
#include "smart/DeviceLoad.h"

QRefThreadDevicesLoad::~QRefThreadDevicesLoad()
{
    m_condition.wakeOne();
    wait();
}

void QRefThreadDevicesLoad::startBehind(QThread &reader)
{
    if (isRunning())
        return;
    m_pReader = &reader;
    start(QThread::InheritPriority);
}

void QRefThreadDevicesLoad::run()
{
    QMutexLocker lock(&m_mutex);
    if (m_pReader)
        m_pReader->wait();
    // A newly attached volume needs a moment to appear.
    Platform::current().Sleep(deviceload::PauseMilliseconds);
    deviceload::loadLists();
    emit OnLoadingDevices();
}
