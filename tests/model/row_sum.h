// The sum of a row's products in the matrix-by-vector kernels of a fixed size: each size, type and reading of
// the matrix has its own tree.
#pragma once

#include "name.h"

#include <concepts>
#include <span>
#include <stdexcept>

namespace model {

// Members that hold a row of adjacent elements in lanes; all others keep the running sum in the destination.
inline bool sumsRowsInLanes(const Name& name)
{
    return !name.general() && (name.layout == Layout::standard || name.layout == Layout::list);
}

template <std::floating_point T>
T sumOf3(std::span<const T> t)
{
    const T two = t[0] + t[1];
    const T three = two + t[2];
    return three;
}

template <std::floating_point T>
T sumOf4(std::span<const T> t, bool byParity)
{
    if (byParity) {
        const T even = t[0] + t[2];
        const T odd = t[1] + t[3];
        const T all = even + odd;
        return all;
    }
    const T low = t[0] + t[1];
    const T high = t[2] + t[3];
    const T all = low + high;
    return all;
}

template <std::floating_point T>
T sumOf5(std::span<const T> t, bool single, bool byParity)
{
    if (byParity) {
        const T even = t[0] + t[2];
        const T evenAndLast = even + t[4];
        const T odd = t[1] + t[3];
        const T all = evenAndLast + odd;
        return all;
    }
    const T low = t[0] + t[1];
    const T high = t[2] + t[3];
    if (single) {
        const T lowAndLast = low + t[4];
        const T all = lowAndLast + high;
        return all;
    }
    const T four = low + high;
    const T all = four + t[4];
    return all;
}

template <std::floating_point T>
T sumOf6(std::span<const T> t, bool byParity)
{
    if (byParity) {
        const T even = t[0] + t[2];
        const T evens = even + t[4];
        const T odd = t[1] + t[3];
        const T odds = odd + t[5];
        const T all = evens + odds;
        return all;
    }
    const T low = t[0] + t[1];
    const T high = t[2] + t[3];
    const T four = low + high;
    const T last = t[4] + t[5];
    const T all = four + last;
    return all;
}

// The sum of the products `t` of row i.
template <std::floating_point T>
T rowSum(std::span<const T> t, std::uint32_t i, bool transposed)
{
    const bool single = sizeof(T) == 4;
    const bool byParity = single && !transposed;
    switch (t.size()) {
    case 3:
        return sumOf3(t);
    case 4:
        return sumOf4(t, byParity);
    case 5: // only the last row goes by parity
        return sumOf5(t, single, byParity && i == 4);
    case 6:
        return sumOf6(t, byParity);
    default:
        throw std::logic_error("no kernel of this size");
    }
}

} // namespace model
