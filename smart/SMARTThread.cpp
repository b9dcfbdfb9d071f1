// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"

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

std::optional<LoadedReport> SMARTThread::takeReport()
{
    return m_read.take() ? std::optional<LoadedReport>(m_report) : std::nullopt;
}

void SMARTThread::run()
{
    std::optional<int> disk;
    while ((disk = m_read.next(disk)))
        m_report = LoadSmartReport(*disk);
    emit OnLodingSmarInfo();
}
