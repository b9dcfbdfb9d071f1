// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SparseFile.h"

#include "platform/OwnFiles.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#include <winioctl.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace
{

constexpr qint64 granule = 65536;

#ifdef Q_OS_WIN

HANDLE handleOf(const QFile &file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
}

/// QFile::size() asks the system for everything about the file and its volume: too slow for every transfer.
qint64 sizeOf(const QFile &file)
{
    LARGE_INTEGER size{};
    return GetFileSizeEx(handleOf(file), &size) ? size.QuadPart : 0;
}

void allowHoles(const QFile &file)
{
    DWORD returned = 0;
    DeviceIoControl(handleOf(file), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &returned, nullptr);
}

bool punch(const QFile &file, qint64 offset, qint64 bytes)
{
    FILE_ZERO_DATA_INFORMATION zero{};
    zero.FileOffset.QuadPart = offset;
    zero.BeyondFinalZero.QuadPart = offset + bytes;
    DWORD returned = 0;
    return DeviceIoControl(handleOf(file), FSCTL_SET_ZERO_DATA, &zero, sizeof(zero), nullptr, 0, &returned,
                           nullptr) != 0;
}

/// The next stretch that may hold data; false behind the last one.
bool nextData(const QFile &, qint64 from, qint64 size, qint64 *begin, qint64 *end)
{
    *begin = from;
    *end = size;
    return from < size;
}

#else

qint64 sizeOf(const QFile &file)
{
    return file.size();
}

void allowHoles(const QFile &) {}

bool punch(const QFile &file, qint64 offset, qint64 bytes)
{
    return ::fallocate(file.handle(), FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, offset, bytes) == 0;
}

/// The next stretch that may hold data; false behind the last one.
bool nextData(const QFile &file, qint64 from, qint64 size, qint64 *begin, qint64 *end)
{
    *begin = from;
    *end = size;
    const off_t data = ::lseek(file.handle(), from, SEEK_DATA);
    if (data >= 0) {
        *begin = data;
        const off_t hole = ::lseek(file.handle(), data, SEEK_HOLE);
        *end = hole < 0 ? size : std::min<qint64>(hole, size);
    } else if (errno == ENXIO) {
        return false;
    }
    return *begin < size;
}

#endif

bool isZero(const char *data, qint64 bytes)
{
    // The first byte is zero and each byte equals the next one: memcmp checks that at the speed of memory.
    return bytes > 0 && data[0] == 0 && std::memcmp(data, data + 1, static_cast<std::size_t>(bytes - 1)) == 0;
}

bool writeAt(QFile &file, qint64 offset, const char *data, qint64 bytes)
{
    return file.seek(offset) && file.write(data, bytes) == bytes;
}

/// Copies one stretch to the same place. Blocks of zeros are skipped, as the target is a hole already.
bool copyStretch(QFile &from, QFile &to, qint64 begin, qint64 end)
{
    QByteArray buffer(static_cast<int>(granule * 16), Qt::Uninitialized);
    for (qint64 offset = begin; offset < end;) {
        const qint64 wanted = std::min<qint64>(buffer.size(), end - offset);
        if (!from.seek(offset))
            return false;
        const qint64 got = from.read(buffer.data(), wanted);
        if (got <= 0)
            return got == 0;
        if (!isZero(buffer.constData(), got) && !writeAt(to, offset, buffer.constData(), got))
            return false;
        offset += got;
    }
    return true;
}

bool copyData(QFile &from, QFile &to, qint64 size)
{
    const qint64 end = std::min(size, from.size());
    qint64 begin = 0;
    qint64 stop = 0;
    for (qint64 offset = 0; nextData(from, offset, end, &begin, &stop); offset = stop) {
        if (!copyStretch(from, to, begin, stop))
            return false;
    }
    return true;
}

} // namespace

namespace sparse
{

bool resize(const QString &path, qint64 size)
{
    QFile file;
    if (!ownfiles::openRegular(&file, path, QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    allowHoles(file);
    return file.size() == size || file.resize(size);
}

bool copy(const QString &source, const QString &target, qint64 size)
{
    const QString partial = target + QLatin1String(".part");
    QFile::remove(partial);
    QFile from;
    QFile to(partial);
    bool done = ownfiles::openRegular(&from, source, QIODevice::ReadOnly | QIODevice::Unbuffered) &&
                resize(partial, size) && to.open(QIODevice::ReadWrite | QIODevice::Unbuffered) &&
                copyData(from, to, size);
    to.close();
    done = done && QFile::rename(partial, target);
    if (!done)
        QFile::remove(partial);
    return done;
}

bool read(QFile &file, qint64 offset, char *data, qint64 bytes)
{
    const qint64 size = sizeOf(file);
    const qint64 inFile = std::clamp<qint64>(size - offset, 0, bytes);
    std::memset(data + inFile, 0, static_cast<std::size_t>(bytes - inFile));
    qint64 begin = 0;
    qint64 end = 0;
    if (inFile == 0 || !nextData(file, offset, size, &begin, &end) || begin >= offset + inFile) {
        std::memset(data, 0, static_cast<std::size_t>(inFile));
        return true;
    }
    return file.seek(offset) && file.read(data, inFile) == inFile;
}

bool write(QFile &file, qint64 offset, const char *data, qint64 bytes)
{
    const qint64 end = offset + bytes;
    const auto zeroGranule = [&](qint64 at) {
        return at % granule == 0 && at + granule <= end && isZero(data + (at - offset), granule);
    };
    for (qint64 at = offset; at < end;) {
        const bool zero = zeroGranule(at);
        qint64 stop = at;
        do {
            stop = std::min(end, (stop / granule + 1) * granule);
        } while (stop < end && zeroGranule(stop) == zero);
        if (!(zero && punch(file, at, stop - at)) && !writeAt(file, at, data + (at - offset), stop - at))
            return false;
        at = stop;
    }
    return true;
}

} // namespace sparse
