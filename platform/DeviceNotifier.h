// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Tells of volumes that come and go, on platforms that have no native window message for it. Lives on the
/// main thread. Windows does not emit it: there the message reaches the splash window itself, see
/// Platform::decodeDeviceMessage().
class DeviceNotifier : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// `event` and `deviceType` are the values of the window message WM_DEVICECHANGE (DeviceChange).
    void deviceChange(quint32 event, quint32 deviceType);
};

/// What a device message says.
struct DeviceChange {
    static constexpr quint32 Arrival = 0x8000;
    static constexpr quint32 RemoveComplete = 0x8004;
    static constexpr quint32 Volume = 2;

    quint32 event = 0;
    quint32 deviceType = 0;
};
