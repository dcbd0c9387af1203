// Multiplication by a constant: every element of a vector or matrix times `value`, one rounding each. A
// matrix may be read transposed; `width` and `height` are the shape of the result.
#pragma once

#include "elementwise/elementwise.h"

namespace tenk {

// Transposing in place is exact here, because an object is read whole before any of it is written. Everywhere
// else elements are overwritten before they are read, as in a plain loop.
consteval bool transposesInPlace(Member m)
{
    return isDense(m.layout) && m.size == 4;
}

// Where objects that are alike overlap: the bytes from the lowest to the highest of an object's elements,
// from its start.
template <unsigned n, typename T>
struct ObjectSpan
{
    Displacement low, high;

    TENK_INLINE ObjectSpan(Displacement rowStep)
        : low(rowStep < 0 ? (n - 1) * rowStep : 0),
          high((rowStep < 0 ? 0 : (n - 1) * rowStep) + n * sizeof(T))
    {
    }
};

template <Member m, typename F>
TENK_INLINE tenkStatus scaleTurned(F f, const Source<m>& src, const Destination<m>& dst, std::size_t count)
{
    constexpr unsigned n = m.size;
    using T = Element<m>;
    const ObjectSpan<n, T> read(src.stride1), written(dst.stride1);
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        const auto from = seen(src, k, n, n);
        const auto to = dst.object(k, n);
        const bool overlap =
            static_cast<Displacement>(
                to.start -
                from.view
                    .start)<read.high - written.low&& static_cast<Displacement>(to.start - from.view.start)>
                read.low -
            written.high;
        if (overlap)
            plainObject<m>(f, n, n, to, from);
        else
            packedObject<m, n, n>(f, to, from);
    }
    return tenkOk;
}

template <Member m>
TENK_INLINE auto productWith(Element<m> c)
{
    return [c](auto x) TENK_LAMBDA { return x * c; };
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
