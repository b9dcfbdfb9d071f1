#include "platform/linux/RawDevice.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

std::unique_ptr<RawDevice> RawDevice::open(const QString &node, bool writable)
{
    const QByteArray path = QFile::encodeName(node);
    const int descriptor =
        ::open(path.constData(), (writable ? O_RDWR : O_RDONLY) | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (descriptor < 0)
        return nullptr;
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !(S_ISBLK(status.st_mode) || S_ISREG(status.st_mode))) {
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<RawDevice>(new RawDevice(descriptor));
}

RawDevice::RawDevice(int descriptor) : m_descriptor(descriptor)
{
    struct stat status = {};
    fstat(m_descriptor, &status);
    if (S_ISREG(status.st_mode)) {
        m_size = status.st_size;
        return;
    }
    quint64 bytes = 0;
    if (ioctl(m_descriptor, BLKGETSIZE64, &bytes) == 0)
        m_size = static_cast<qint64>(bytes);
    int sectorSize = 0;
    if (ioctl(m_descriptor, BLKSSZGET, &sectorSize) == 0 && sectorSize > 0)
        m_bytesPerSector = static_cast<quint32>(sectorSize);
}

RawDevice::~RawDevice()
{
    ::close(m_descriptor);
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
    qint64 done = 0;
    while (done < wanted) {
        const ssize_t got = pread(m_descriptor, static_cast<char *>(buffer) + done,
                                  static_cast<size_t>(wanted - done), m_position + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return -1;
        done += got;
    }
    m_position += done;
    return done;
}

qint64 RawDevice::write(const void *buffer, quint32 bytes)
{
    const qint64 wanted = bytesToEnd(bytes);
    if (wanted <= 0)
        return -1;
    qint64 done = 0;
    while (done < wanted) {
        const ssize_t put = pwrite(m_descriptor, static_cast<const char *>(buffer) + done,
                                   static_cast<size_t>(wanted - done), m_position + done);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return -1;
        done += put;
    }
    m_position += done;
    return done;
}
