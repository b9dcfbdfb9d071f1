// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "monitor/Monitor.h"

#include <QObject>
#include <QThread>

class QTimer;

/// What the last round found, as the tray shows it.
struct WatchView {
    std::vector<DiskSummary> disks;
    bool fahrenheit = false;
    QDateTime when; ///< of the round; null before the first one
};
Q_DECLARE_METATYPE(WatchView)
Q_DECLARE_METATYPE(WatchEvent)

/// The monitor on a thread of its own, in rounds of a minute. Make it and let it go on the main thread; the
/// slots may be called there at any time and return at once.
class Watch : public QObject, private MonitorListener
{
    Q_OBJECT

public:
    Watch();
    /// Ends a round that runs, and waits for the thread.
    ~Watch() override;

    /// The end of the last pause, also of an earlier run. Before start() only.
    QDateTime pausedUntil() const { return m_monitor.pausedUntil(); }
    /// Begins with the first round.
    void start();

public slots:
    /// Asks every disk now.
    void refresh();
    /// A null moment ends the pause.
    void pauseAlarms(const QDateTime &until);
    void markTold(quint64 event);
    void markSeen(quint64 event);
    /// Takes a device message; the disks are listed again in a moment, as one disk brings several.
    void deviceChanged(quint32 event, quint32 deviceType);

signals:
    void happened(const WatchEvent &event, bool fahrenheit);
    void looked(const WatchView &view);

private:
    void tell(const WatchEvent &event) override;
    void round();
    /// Calls on the thread of the watch.
    template<typename Call>
    void later(Call call);

    Monitor m_monitor;
    QObject m_worker; ///< lives on the thread
    QThread m_thread;
    QTimer *m_pRounds = nullptr; ///< a child of the worker, as is the next one
    QTimer *m_pSoon = nullptr;
};
