// SPDX-License-Identifier: GPL-3.0-or-later
#include "smart/SMARTThread.h"

#include <QMutexLocker>

#include <utility>

SMARTThread::SMARTThread(QObject *parent) : QThread(parent) {}

SMARTThread::~SMARTThread()
{
    forget();
    wait();
}

void SMARTThread::RequestSmartRead(int diskIndex)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_asked = diskIndex;
        m_report.reset();
        if (std::exchange(m_bRuns, true))
            return;
    }
    // A run that has sent its signal takes a moment to end. A start in that moment would be lost.
    wait();
    start(QThread::LowPriority);
}

std::optional<LoadedReport> SMARTThread::takeReport()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_report, std::nullopt);
}

void SMARTThread::forget()
{
    const QMutexLocker lock(&m_mutex);
    m_asked.reset();
    m_report.reset();
}

bool SMARTThread::isReading() const
{
    const QMutexLocker lock(&m_mutex);
    return m_bRuns || m_report;
}

/// The disk to be read behind what was `read`; none where nothing is left to be read: then the run ends.
std::optional<int> SMARTThread::next(const std::optional<LoadedReport> &read)
{
    const QMutexLocker lock(&m_mutex);
    if (m_asked && (!read || read->disk != *m_asked))
        return m_asked;
    m_bRuns = false;
    if (m_asked)
        m_report = read;
    m_asked.reset();
    return std::nullopt;
}

void SMARTThread::run()
{
    std::optional<LoadedReport> read;
    while (const std::optional<int> disk = next(read))
        read = LoadSmartReport(*disk);
    emit OnLodingSmarInfo();
}
