// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>

/// Memory on a page boundary, so that a system can let a drive write into it without a copy on the way.
struct FreePages {
    static constexpr std::align_val_t Boundary{4096};

    void operator()(char *memory) const { ::operator delete[](memory, Boundary); }
};
using PageMemory = std::unique_ptr<char, FreePages>;

/// Zeroed; null where there is no memory for it.
inline PageMemory pageMemory(std::size_t bytes)
{
    PageMemory memory(static_cast<char *>(::operator new[](bytes, FreePages::Boundary, std::nothrow)));
    if (memory)
        std::memset(memory.get(), 0, bytes);
    return memory;
}
