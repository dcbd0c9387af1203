// Runs of any length, element by element: dst[j] = f(src[j]...), and as much of it in vectors as nobody can
// tell.
#pragma once

#include "frame/row.h"

namespace tenk {

// Computes n elements of a run from runs of sources; all of them are adjacent elements of T at any address.
//
// The result is that of the loop by ascending index, whichever way the operands overlap. Going a vector at a
// time gives it too unless the destination starts inside the first 16 bytes of a source but not at its start:
// only then would a vector read elements that the loop has written before it reads them. A destination at or
// below a source is written behind the reads, and one that starts a vector or more above it is written a
// whole vector ahead of them.
//
// f takes one value of each source, in order, and returns the result; it is called with elements and with
// vectors of them, so write it with `auto`: [c](auto x, auto y) TENK_LAMBDA { return c * x + y; }. An element
// next to a vector stands for a vector of it.
template <typename T, typename F, typename... A>
TENK_INLINE void longVector(F f, std::size_t n, Address dst, A... src)
{
    constexpr std::size_t step = lanes<T>, unrolled = 4;
    std::size_t j = 0;
    if (n >= step && ((dst - src - 1 >= sizeof(Vector<T>) - 1) && ...)) {
        const auto one = [&](std::size_t at) TENK_LAMBDA {
            storeVector<T>(dst + at * sizeof(T), f(loadVector<T>(src + at * sizeof(T))...));
        };
        for (; n - j >= unrolled * step; j += unrolled * step)
            each<unrolled>([&](auto u) TENK_LAMBDA { one(j + u * step); });
        for (; n - j >= step; j += step)
            one(j);
    }
    for (; j < n; ++j)
        store<T>(dst + j * sizeof(T), f(load<T>(src + j * sizeof(T))...));
}

} // namespace tenk
