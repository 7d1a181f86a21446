// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef HEAPINUSE_H
#define HEAPINUSE_H

#include <QtGlobal>

#ifdef __SANITIZE_ADDRESS__
#include <cstddef>

// AddressSanitizer's own; GCC brings the function without a header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

/// How many bytes this program has allocated and not given back; what is kept for the next time is
/// not counted.
inline qint64 heapInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<qint64>(heap.uordblks) + static_cast<qint64>(heap.hblkhd);
#endif
}

#endif // HEAPINUSE_H
