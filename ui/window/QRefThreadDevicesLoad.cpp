// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/QRefThreadDevicesLoad.h"

#include "platform/Platform.h"
#include "smart/DeviceLoad.h"

void QRefThreadDevicesLoad::startBehind(QThread &reader)
{
    // A run that has signalled still takes a moment to end, and a start in that moment would be lost.
    wait();
    m_bComplete = false;
    m_pReader = &reader;
    start(QThread::InheritPriority);
}

void QRefThreadDevicesLoad::run()
{
    if (m_pReader)
        m_pReader->wait();
    // A newly attached volume needs a moment to appear.
    Platform::current().Sleep(deviceload::PauseMilliseconds);
    prepare();
    deviceload::loadLists();
    m_bComplete = true;
    emit OnLoadingDevices();
}
