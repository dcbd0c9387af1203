// Runs of bytes, whether two of them have one in common, and pages.
#pragma once

#include "frame/memory.h"

namespace tenk {

struct Bytes
{
    Address first, length;

    TENK_INLINE Address last() const { return first + length - 1; }
};

TENK_INLINE bool apart(const Bytes& a, const Bytes& b)
{
    return b.first - a.first - a.length <= 0 - a.length - b.length;
}

// Memory is readable by whole pages.
inline constexpr Address page = 4096;

TENK_INLINE bool onOnePage(Address a, Address b)
{
    return (a ^ b) < page;
}

} // namespace tenk
