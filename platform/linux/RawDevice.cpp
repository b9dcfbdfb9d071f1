// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/RawDevice.h"

#include "platform/Log.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace
{

/// Other programs open a new disk for a moment to look at it: wait for them.
constexpr int ExclusiveAttempts = 10;
constexpr useconds_t ExclusivePause = 100000; ///< µs

/// The kernel's files with a drive's serial number, by kind of drive, and the bytes ahead of the text.
struct SerialFile {
    const char *name;
    int head;
};
constexpr SerialFile SerialFiles[] = {
    {"device/vpd_pg80", 4}, {"device/serial", 0}, {"serial", 0}, {"device/wwid", 0}, {"wwid", 0},
};

/// Repeats pread or pwrite until all is done.
template<typename Call, typename Byte>
bool transferAll(Call call, int descriptor, Byte *bytes, qint64 count, qint64 offset)
{
    for (qint64 done = 0; done < count;) {
        const ssize_t moved =
            call(descriptor, bytes + done, static_cast<size_t>(count - done), offset + done);
        if (moved < 0 && errno == EINTR)
            continue;
        if (moved <= 0)
            return false;
        done += moved;
    }
    return true;
}

#ifndef BLKGETDISKSEQ
constexpr unsigned long DiskSequence = _IOR(0x12, 128, std::uint64_t);
#else
constexpr unsigned long DiskSequence = BLKGETDISKSEQ;
#endif

std::uint64_t mediumOf(int descriptor)
{
    std::uint64_t number = 0;
    return ioctl(descriptor, DiskSequence, &number) == 0 ? number : 0;
}

/// Whether both descriptors are of one medium: a node can be taken over by another disk while it is open.
bool isSameMedium(int left, int right)
{
    const std::uint64_t numbers[2] = {mediumOf(left), mediumOf(right)};
    if (numbers[0] != 0 && numbers[1] != 0)
        return numbers[0] == numbers[1];
    std::uint64_t sizes[2] = {};
    return ioctl(left, BLKGETSIZE64, &sizes[0]) == 0 && ioctl(right, BLKGETSIZE64, &sizes[1]) == 0 &&
           sizes[0] == sizes[1];
}

bool mayWrite(int descriptor, const QByteArray &path, bool isBlock)
{
    int readOnly = 0;
    if (isBlock && ioctl(descriptor, BLKROGET, &readOnly) == 0 && readOnly != 0)
        return false;
    return faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) == 0;
}

int openNode(const QByteArray &path, int flags)
{
    return ::open(path.constData(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
}

} // namespace

std::unique_ptr<RawDevice> RawDevice::open(const QString &node, bool writable)
{
    const QByteArray path = QFile::encodeName(node);
    struct stat status = {};
    const bool isBlock = stat(path.constData(), &status) == 0 && S_ISBLK(status.st_mode);
    int descriptor = openNode(path, isBlock ? O_RDONLY | O_DIRECT : O_RDONLY);
    const bool direct = isBlock && descriptor >= 0;
    if (isBlock && descriptor < 0 && errno == EINVAL)
        descriptor = openNode(path, O_RDONLY);
    if (descriptor < 0) {
        qCDebug(logs::platform, "%s does not open: %s", path.constData(), std::strerror(errno));
        return nullptr;
    }
    // Another device may have taken the name meanwhile.
    if (fstat(descriptor, &status) != 0 || !(isBlock ? S_ISBLK(status.st_mode) : S_ISREG(status.st_mode)) ||
        (writable && !mayWrite(descriptor, path, isBlock))) {
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<RawDevice>(new RawDevice(descriptor, direct, writable));
}

bool RawDevice::isDenied(const QString &node)
{
    const QByteArray path = QFile::encodeName(node);
    bool opens = faccessat(AT_FDCWD, path.constData(), R_OK | W_OK, AT_EACCESS) == 0;
    if (opens) {
        const int descriptor = openNode(path, O_RDONLY);
        opens = descriptor >= 0;
        if (opens)
            ::close(descriptor);
    }
    // A container keeps even root from the disks of its machine, in one way or the other.
    return !opens && (errno == EACCES || errno == EPERM);
}

RawDevice::RawDevice(int descriptor, bool direct, bool writable)
    : m_descriptor(descriptor), m_direct(direct), m_mayWrite(writable)
{
    struct stat status = {};
    fstat(m_descriptor, &status);
    if (S_ISREG(status.st_mode)) {
        m_size = status.st_size;
        return;
    }
    m_medium = mediumOf(m_descriptor);
    quint64 bytes = 0;
    if (ioctl(m_descriptor, BLKGETSIZE64, &bytes) == 0)
        m_size = static_cast<qint64>(bytes);
    int sectorSize = 0;
    if (ioctl(m_descriptor, BLKSSZGET, &sectorSize) == 0 && sectorSize > 0)
        m_bytesPerSector = static_cast<quint32>(sectorSize);
}

RawDevice::~RawDevice()
{
    flush();
    ::close(m_descriptor);
}

bool RawDevice::flush()
{
    return !m_written || fdatasync(m_descriptor) == 0;
}

bool RawDevice::isGone() const
{
    quint64 bytes = 0;
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0)
        return true;
    if (!S_ISBLK(status.st_mode))
        return status.st_size == 0 && m_size != 0;
    if (ioctl(m_descriptor, BLKGETSIZE64, &bytes) != 0 || (bytes == 0 && m_size != 0) ||
        mediumOf(m_descriptor) != m_medium)
        return true;
    // A disk that was pulled out keeps its size where the kernel is old, but opens no more.
    const int again = openNode("/proc/self/fd/" + QByteArray::number(m_descriptor), O_RDONLY);
    const bool gone = again < 0 && (errno == ENXIO || errno == ENODEV || errno == ENOMEDIUM);
    if (again >= 0)
        ::close(again);
    return gone;
}

quint64 RawDevice::medium() const
{
    return mediumOf(m_descriptor);
}

QByteArray RawDevice::serial() const
{
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0 || !S_ISBLK(status.st_mode))
        return {};
    const QString folder =
        QStringLiteral("/sys/dev/block/%1:%2/").arg(major(status.st_rdev)).arg(minor(status.st_rdev));
    for (const SerialFile &place : SerialFiles) {
        QFile file(folder + QLatin1String(place.name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = file.readAll().mid(place.head).trimmed();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

bool RawDevice::seek(qint64 byteOffset)
{
    if (byteOffset < 0)
        return false;
    m_position = byteOffset;
    return true;
}

qint64 RawDevice::bytesToEnd(quint32 bytes) const
{
    return std::min<qint64>(bytes, m_size - m_position);
}

qint64 RawDevice::read(void *buffer, quint32 bytes)
{
    const qint64 wanted = bytesToEnd(bytes);
    if (wanted <= 0)
        return -1;
    const auto move = [this](char *memory, qint64 offset, qint64 count) {
        return transferAll(pread, m_descriptor, memory, count, offset);
    };
    if (!m_buffer.read(static_cast<char *>(buffer), m_position, wanted, sector(), move)) {
        qCDebug(logs::platform, "a read of %lld bytes at %lld fails: %s", wanted, m_position,
                std::strerror(errno));
        return -1;
    }
    m_position += wanted;
    return wanted;
}

bool RawDevice::openForWriting()
{
    if (m_written || !m_mayWrite)
        return m_written;
    // Through the open descriptor, as the name may belong to another device by now.
    const QByteArray node = "/proc/self/fd/" + QByteArray::number(m_descriptor);
    struct stat status = {};
    const bool exclusive = fstat(m_descriptor, &status) == 0 && S_ISBLK(status.st_mode);
    const int flags = O_RDWR | (m_direct ? O_DIRECT : 0) | (exclusive ? O_EXCL : 0);
    int descriptor = openNode(node, flags);
    for (int attempt = 1; descriptor < 0 && errno == EBUSY && attempt < ExclusiveAttempts; ++attempt) {
        usleep(ExclusivePause);
        descriptor = openNode(node, flags);
    }
    const bool isBlock = descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISBLK(status.st_mode);
    if (descriptor < 0 || (isBlock && !isSameMedium(m_descriptor, descriptor))) {
        if (descriptor >= 0)
            ::close(descriptor);
        m_mayWrite = false; // so that the next write fails at once
        return false;
    }
    ::close(m_descriptor);
    m_descriptor = descriptor;
    m_written = true;
    return true;
}

qint64 RawDevice::write(const void *buffer, quint32 bytes)
{
    const qint64 wanted = bytesToEnd(bytes);
    if (wanted <= 0 || !openForWriting())
        return -1;
    const auto move = [this](const char *memory, qint64 offset, qint64 count) {
        return transferAll(pwrite, m_descriptor, memory, count, offset);
    };
    if (!m_buffer.write(static_cast<const char *>(buffer), m_position, wanted, sector(), move)) {
        qCDebug(logs::platform, "a write of %lld bytes at %lld fails: %s", wanted, m_position,
                std::strerror(errno));
        return -1;
    }
    m_position += wanted;
    return wanted;
}
