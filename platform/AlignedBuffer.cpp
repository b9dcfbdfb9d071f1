// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AlignedBuffer.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

bool AlignedBuffer::takes(const void *buffer, qint64 position, qint64 bytes, qint64 sector)
{
    return sector == 0 ||
           (reinterpret_cast<std::uintptr_t>(buffer) % static_cast<std::uintptr_t>(FreePages::Boundary) ==
                0 &&
            position % sector == 0 && bytes % sector == 0);
}

char *AlignedBuffer::memory()
{
    if (!m_memory)
        m_memory = pageMemory(Size);
    return m_memory.get();
}

bool AlignedBuffer::read(char *out, qint64 position, qint64 bytes, qint64 sector, const Move &move)
{
    if (takes(out, position, bytes, sector))
        return move(out, position, bytes);
    char *buffer = memory();
    const qint64 end = position + bytes;
    for (qint64 at = position; buffer && at < end;) {
        const qint64 first = at / sector * sector;
        const qint64 last = std::min((end + sector - 1) / sector * sector, first + Size);
        if (!move(buffer, first, last - first))
            return false;
        const qint64 useful = std::min(last, end) - at;
        std::memcpy(out, buffer + (at - first), static_cast<std::size_t>(useful));
        out += useful;
        at += useful;
    }
    return buffer != nullptr;
}

bool AlignedBuffer::write(const char *in, qint64 position, qint64 bytes, qint64 sector, const Move &move)
{
    if (takes(in, position, bytes, sector))
        return move(const_cast<char *>(in), position, bytes); // which only reads from it
    char *buffer = memory();
    if (!buffer || position % sector != 0 || bytes % sector != 0)
        return false;
    for (qint64 done = 0; done < bytes;) {
        const qint64 count = std::min(bytes - done, Size);
        std::memcpy(buffer, in + done, static_cast<std::size_t>(count));
        if (!move(buffer, position + done, count))
            return false;
        done += count;
    }
    return true;
}
