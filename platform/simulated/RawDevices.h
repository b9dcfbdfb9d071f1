// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/InventoryPlatform.h"
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
class RawDevices : public InventoryPlatform
{
public:
    /// Images are made in `imageFolder` when a disk is first opened.
    RawDevices(PcDescription pc, const QString &imageFolder);
    ~RawDevices() override;

    /// The image file that stands for a disk, whether or not it exists yet.
    QString imageFile(int disk) const;

    RawHandle CreateFileW(const QString &name, quint32 access, quint32 shareMode,
                          quint32 disposition) override;
    bool SetFilePointer(RawHandle handle, qint64 byteOffset) override;
    /// A read that touches a bad sector fails as a whole, and so does one that the description lets fail.
    bool ReadFile(RawHandle handle, void *buffer, quint32 bytes, quint32 *transferred) override;
    bool WriteFile(RawHandle handle, const void *buffer, quint32 bytes, quint32 *transferred) override;
    bool DeviceIoControl(RawHandle handle, quint32 code, const void *in, quint32 inSize, void *out,
                         quint32 outSize, quint32 *returned) override;
    /// Transfers go to the image at once.
    bool FlushFileBuffers(RawHandle handle) override { return !IsGone(handle); }
    bool IsGone(RawHandle handle) override;
    void CloseHandle(RawHandle handle) override;
    bool IsAccessDenied(const QString &name) override;

protected:
    inventory::Machine machine() override;
    std::unique_ptr<tools::ScriptedDisks> scriptedDisks() override;
    void closeAll();

    const PcDescription m_pc;
    Presence m_presence;

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

    std::shared_ptr<Device> find(RawHandle handle);
    /// The disk of a raw device's name while it is plugged in; null for another.
    const Disk *plugged(const QString &name) const;
    bool prepareImage(const Disk &disk);
    /// Whether the device is still plugged in.
    bool isThere(const Device &device) const;
    bool addPiece(Device &device, int number, qint64 start, qint64 length);
    bool transfer(RawHandle handle, Direction direction, char *buffer, quint32 bytes, quint32 *transferred);
    static bool transferPieces(const Device &device, Direction direction, char *buffer, qint64 bytes);
    static bool transferPiece(const Piece &piece, Direction direction, qint64 offset, char *buffer,
                              qint64 bytes);

    const QString m_imageFolder;
    QMutex m_mutex; ///< guards the table of handles and the making of images
    QHash<RawHandle, std::shared_ptr<Device>> m_devices;
    RawHandle m_next = 1;
};

} // namespace simulated
