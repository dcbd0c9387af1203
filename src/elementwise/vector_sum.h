// Sums and differences of two vectors, and of a vector and a constant c: dst(j) = a(j) + b(j), a(j) - b(j),
// a(j) + c, a(j) - c or c - a(j), one rounding per element, in the type of the elements.
#pragma once

#include "elementwise/elementwise.h"

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus vectorSum(Source<m> src1, Source<m, 1> src2, Destination<m> dst, Size<m> length,
                                 Count<m> count)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    if (m.batch() && anyNullEntryOf(length, dst, src1, src2))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;
    return elementwise<m>(sum<m>(), dst, length, Extent<1>(), count, src1, src2);
}

// The formula with a constant, which may stand first; its argument is behind the vector's all the same.
template <Member m>
TENK_INLINE auto sumWith(Element<m> c)
{
    if constexpr (m.operand[0].kind == 'c')
        return [c = Constant(c)](auto x) TENK_LAMBDA { return c.like(x) - x; };
    else if constexpr (m.root == Root::Add)
        return [c = Constant(c)](auto x) TENK_LAMBDA { return x + c.like(x); };
    else
        return [c = Constant(c)](auto x) TENK_LAMBDA { return x - c.like(x); };
}

template <Member m>
TENK_INLINE tenkStatus constantSum(Source<m> src, Element<m> value, Destination<m> dst, Size<m> length,
                                   Count<m> count)
{
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    if (m.batch() && anyNullEntryOf(length, dst, src))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;
    return elementwise<m>(sumWith<m>(value), dst, length, Extent<1>(), count, src);
}

} // namespace tenk
