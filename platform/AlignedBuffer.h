// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageMemory.h"

#include <QtGlobal>

#include <functional>

/// A buffer on a page boundary. A raw device moves whole sectors only, from and to such memory; all other
/// transfers go through this buffer. `sector` is the device's in bytes, 0 where it takes any transfer as it
/// is. One thread at a time.
class AlignedBuffer
{
public:
    static constexpr qint64 Size = 1024 * 1024; ///< bytes; a multiple of every sector

    /// Moves `bytes` at `offset` of the device. Both are whole sectors.
    using Move = std::function<bool(char *memory, qint64 offset, qint64 bytes)>;

    /// Whether the device takes the transfer as it is.
    static bool takes(const void *buffer, qint64 position, qint64 bytes, qint64 sector);

    /// Reads any range into any memory. False where a `move` fails or memory is short.
    bool read(char *out, qint64 position, qint64 bytes, qint64 sector, const Move &move);
    /// Writes from any memory. False too where the range is not one of whole sectors.
    bool write(const char *in, qint64 position, qint64 bytes, qint64 sector, const Move &move);

private:
    char *memory();

    PageMemory m_memory;
};
