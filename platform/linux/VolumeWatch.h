// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DeviceNotifier.h"

#include <QSet>
#include <QStringList>
#include <QTimer>

#include <memory>

class QSocketNotifier;
struct udev;
struct udev_monitor;

/// Watches for disks, partitions and mounted volumes that come and go. The kernel and udev only say that
/// something may have changed, and say it too when this program reads a disk. So the watch looks again and
/// tells the difference from its last look. Lives on the main thread.
class VolumeWatch : public DeviceNotifier
{
    Q_OBJECT

public:
    static constexpr int Settling = 300; ///< milliseconds in which several events make one

    /// `onlyNodes` limits the watch to those disks; empty stands for those of the machine.
    explicit VolumeWatch(const QStringList &onlyNodes);
    ~VolumeWatch() override;

    /// Begins to watch, from what is there now. Does nothing where it has begun already, or where the
    /// thread has no event loop; what the system does not offer is left out.
    void start();

private:
    /// What the watch looks at, by kernel name: the devices with a medium, and which one, and those that are
    /// mounted.
    struct State {
        QSet<QString> devices;
        QSet<QString> mounted;
    };

    void watchUdev();
    void watchMounts();
    void stop();
    void drainUdev();
    void look();
    State readState() const;
    /// Whether a block device is one of the PC's disks or lies on one.
    bool belongs(const QString &kernelName) const;

    struct UdevDeleter {
        void operator()(udev *library) const;
        void operator()(udev_monitor *monitor) const;
    };

    QStringList m_onlyNodes;
    bool m_started = false;
    State m_state;
    QTimer m_settling;
    std::unique_ptr<udev, UdevDeleter> m_udev;
    std::unique_ptr<udev_monitor, UdevDeleter> m_monitor;
    std::unique_ptr<QSocketNotifier> m_udevNotifier;
    int m_mountInfo = -1;
    std::unique_ptr<QSocketNotifier> m_mountNotifier;
};
