// Copy: vectors and matrices from one of the three general layouts to another, as raw bits.
//
// Elements move one by one, objects outermost, then rows, then elements, with no temporary: a destination
// that overlaps later source elements overwrites them before they are read. No table or list entry is tested.
#pragma once

#include "frame/checks.h"

namespace tenk {

// From table to table, vectors are read through the destination's table, with the source's shift and stride;
// the source's own table is tested for null and never read. Matrices are read through the source's.
consteval bool readsThroughDestination(Member m)
{
    return m == "tenkCopy_va_32f_PP" || m == "tenkCopy_va_64f_PP";
}

// Matrices of no rows or no columns are no error.
consteval bool mayBeEmpty(Member m)
{
    return m.operand[0].kind == 'm';
}

template <Member m>
TENK_INLINE tenkStatus copy(Source<m> src, Destination<m> dst, Size<m> width, Size<m> height, Count<m> count)
{
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (!mayBeEmpty(m) && anyZero(width))
        return tenkSizeError;

    if constexpr (readsThroughDestination(m))
        src.p = dst.p;
    for (std::size_t k = 0; k < count; ++k) {
        const auto from = src.object(k, width);
        const auto to = dst.object(k, width);
        for (std::size_t i = 0; i < height; ++i)
            for (std::size_t j = 0; j < width; ++j)
                move<Element<m>>(to.at(i, j), from.at(i, j));
    }
    return tenkOk;
}

// Vectors are matrices of one row.
template <Member m>
TENK_INLINE tenkStatus copy(Source<m> src, Destination<m> dst, Size<m> length, Count<m> count)
{
    return copy<m>(src, dst, length, 1, count);
}

} // namespace tenk
