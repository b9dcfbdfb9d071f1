// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/Watch.h"

#include "platform/Platform.h"

#include <QTimer>

namespace
{

constexpr int SettleMs = 2000; ///< until a new disk can be read

} // namespace

Watch::Watch() : m_monitor(*this)
{
    qRegisterMetaType<WatchView>();
    qRegisterMetaType<WatchEvent>();
    m_pRounds = new QTimer(&m_worker);
    m_pRounds->setInterval(Platform::current().TimerInterval(static_cast<int>(Schedule::Round)));
    m_pSoon = new QTimer(&m_worker);
    m_pSoon->setSingleShot(true);
    m_pSoon->setInterval(SettleMs);
    for (QTimer *timer : {m_pRounds, m_pSoon})
        connect(timer, &QTimer::timeout, &m_worker, [this] { round(); });
    m_worker.moveToThread(&m_thread);
    // Timers end on their own thread.
    connect(&m_thread, &QThread::finished, &m_worker, [this] {
        m_pRounds->stop();
        m_pSoon->stop();
    });
}

Watch::~Watch()
{
    m_monitor.stop();
    later([this] { m_thread.quit(); }); // behind the marks that wait
    m_thread.wait();
}

template<typename Call>
void Watch::later(Call call)
{
    QMetaObject::invokeMethod(&m_worker, call, Qt::QueuedConnection);
}

void Watch::start()
{
    m_thread.start(QThread::LowPriority);
    later([this] {
        m_pRounds->start();
        round();
    });
}

void Watch::refresh()
{
    later([this] {
        m_monitor.refresh();
        round();
    });
}

void Watch::pauseAlarms(const QDateTime &until)
{
    later([this, until] {
        m_monitor.pauseAlarms(until.isValid() ? until : QDateTime::fromMSecsSinceEpoch(0));
    });
}

void Watch::markTold(quint64 event)
{
    later([this, event] { m_monitor.markTold(event); });
}

void Watch::markSeen(quint64 event)
{
    later([this, event] { m_monitor.markSeen(event); });
}

void Watch::deviceChanged(quint32 event, quint32 deviceType)
{
    const bool removed = event == DeviceChange::RemoveComplete;
    if (deviceType != DeviceChange::Volume || (!removed && event != DeviceChange::Arrival))
        return;
    later([this, removed] {
        m_monitor.devicesChanged(removed);
        m_pSoon->start();
    });
}

void Watch::tell(const WatchEvent &event)
{
    emit happened(event, m_monitor.settings().fahrenheit);
}

void Watch::round()
{
    const QDateTime now = Platform::current().Now();
    m_monitor.round(now);
    emit looked({m_monitor.disks(), m_monitor.settings().fahrenheit, now});
}
