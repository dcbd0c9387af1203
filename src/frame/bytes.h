// Runs of bytes, and whether two of them have one in common.
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

} // namespace tenk
