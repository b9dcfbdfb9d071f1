// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Platform.h"
#include "platform/simulated/PcDescription.h"
#include "platform/simulated/Presence.h"

#include <QHash>
#include <QMutex>
#include <QString>

#include <memory>

class QFile;

namespace simulated
{

/// The raw disks and volumes of a described PC, on image files. Any thread; a handle is used by one at a
/// time.
class RawDevices
{
public:
    /// Images are made in `imageFolder` when a disk is first opened. The description and what is present have
    /// to outlive this object.
    RawDevices(const PcDescription &pc, const Presence &presence, const QString &imageFolder);
    RawDevices(const RawDevices &) = delete;
    RawDevices &operator=(const RawDevices &) = delete;
    ~RawDevices();

    /// The image file of a disk, whether or not it exists yet.
    QString imageFile(int disk) const;

    /// Whether the physical disk is plugged in and does not open.
    bool isRefused(const QString &name) const;
    Platform::RawHandle open(const QString &name, quint32 access, quint32 disposition);
    bool seek(Platform::RawHandle handle, qint64 byteOffset);
    /// A read that touches a bad sector fails as a whole, and so does one that the description lets fail.
    bool read(Platform::RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred);
    bool write(Platform::RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred);
    bool control(Platform::RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                 quint32 outSize, quint32 *returned);
    /// Whether the device is no longer plugged in.
    bool isGone(Platform::RawHandle handle);
    void close(Platform::RawHandle handle);
    void closeAll();

private:
    /// A stretch of an image that is a stretch of the device.
    struct Piece {
        const Disk *disk = nullptr;
        std::shared_ptr<QFile> file;
        qint64 start = 0;
        qint64 length = 0;
    };
    struct Device {
        quint32 access = 0;
        qint64 position = 0;
        qint64 length = 0;
        QVector<Piece> pieces;
        const inventory::Volume *volume = nullptr;
    };
    enum class Direction { Read, Write };

    std::shared_ptr<Device> find(Platform::RawHandle handle);
    /// The disk of a raw device's name while it is plugged in; null for another.
    const Disk *plugged(const QString &name) const;
    bool prepareImage(const Disk &disk);
    bool makeImage(const Disk &disk, const QString &file, qint64 size);
    /// Whether the device is still plugged in.
    bool isThere(const Device &device) const;
    bool addPiece(Device &device, int number, qint64 start, qint64 length);
    bool transfer(Platform::RawHandle handle, Direction direction, char *buffer, quint32 bytes,
                  quint32 *transferred);
    static bool transferPieces(const Device &device, Direction direction, char *buffer, qint64 bytes);
    static bool transferPiece(const Piece &piece, Direction direction, qint64 offset, char *buffer,
                              qint64 bytes);

    const PcDescription &m_pc;
    const Presence &m_presence;
    QString m_imageFolder;
    QMutex m_mutex; ///< guards the table of handles and the making of images
    QHash<Platform::RawHandle, std::shared_ptr<Device>> m_devices;
    Platform::RawHandle m_next = 1;
};

} // namespace simulated
