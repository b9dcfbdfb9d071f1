#include "smart/SMARTThread.h"

#include "smart/ToolInvocation.h"

SMARTThread::SMARTThread(QObject *parent) : QThread(parent) {}

SMARTThread::~SMARTThread()
{
    forget();
    wait();
}

void SMARTThread::RequestSmartRead(int diskIndex)
{
    if (!m_read.ask(diskIndex))
        return;
    // A run that has signalled still takes a moment to end, and a start in that moment would be lost.
    wait();
    start(QThread::LowPriority);
}

void SMARTThread::run()
{
    std::optional<int> disk;
    while ((disk = m_read.next(disk)))
        LoadSmartReport(*disk);
    emit OnLodingSmarInfo();
}
