// Multiplication by a constant: every element of a vector or matrix times `value`, one rounding each. A
// matrix may be read transposed; `width` and `height` are the shape of the result.
#pragma once

#include "elementwise/elementwise.h"
#include "frame/groups.h"

namespace tenk {

// Transposing in place is exact here, because an object is read whole before any of it is written. Everywhere
// else elements are overwritten before they are read, as in a plain loop.
consteval bool transposesInPlace(Member m)
{
    return isDense(m.layout) && m.size == 4;
}

template <Member m, typename F>
TENK_INLINE tenkStatus scaleTurned(F f, const Source<m>& src, const Destination<m>& dst, std::size_t count)
{
    constexpr unsigned n = m.size;
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        const auto from = seen(src, k, n, n);
        const auto to = dst.object(k, n);
        if (apart(bytesOf(to, n, n), bytesOf(from.view, n, n)))
            packedObject<m, n, n>(f, to, from);
        else
            plainObject<m>(f, n, n, to, from);
    }
    return tenkOk;
}

template <Member m>
TENK_INLINE auto productWith(Element<m> c)
{
    return [c = Constant(c)](auto x) TENK_LAMBDA { return x * c.like(x); };
}

template <Member m>
TENK_INLINE tenkStatus matrixScale(Source<m> src, Element<m> value, Destination<m> dst, Size<m> width,
                                   Size<m> height, Count<m> count)
{
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    const std::size_t entries = std::size_t{width} * height;
    if (m.batch() && (anyNullEntry(src, entries) || anyNullEntry(dst, entries)))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;
    const auto f = productWith<m>(value);
    if constexpr (isDense(m.layout) && !m.general() && m.operand[0].transposed && !transposesInPlace(m))
        return scaleTurned<m>(f, src, dst, count);
    else
        return elementwise<m>(f, dst, width, height, count, src);
}

template <Member m>
TENK_INLINE tenkStatus vectorScale(Source<m> src, Element<m> value, Destination<m> dst, Size<m> length,
                                   Count<m> count)
{
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    if (m.batch() && (anyNullEntry(src, length) || anyNullEntry(dst, length)))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;
    return elementwise<m>(productWith<m>(value), dst, length, Extent<1>(), count, src);
}

} // namespace tenk
