#include "smart/SMARTThread.h"

#include "app/state/Globals.h"
#include "smart/ToolInvocation.h"

#include <QMutexLocker>

SMARTThread::SMARTThread(QObject *parent) : QThread(parent) {}

SMARTThread::~SMARTThread()
{
    m_condition.wakeOne();
    wait();
}

void SMARTThread::RequestSmartRead(int diskIndex)
{
    const QMutexLocker lock(&m_mutex);
    m_nIndex = diskIndex;
    if (isRunning()) {
        g_bAbortJob = true;
        m_condition.wakeOne();
    } else {
        start(QThread::LowPriority);
    }
}

void SMARTThread::run()
{
    const QMutexLocker lock(&m_mutex);
    LoadSmartReport(m_nIndex);
    emit OnLodingSmarInfo();
}
