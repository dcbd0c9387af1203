#pragma once
#include "elementwise/elementwise.h"
namespace tenk {
template <Member m>
TENK_INLINE tenkStatus matrixSum(Source<m> src1, Source<m, 1> src2, Destination<m> dst, Size<m> width, Size<m> height,
                                 Count<m> count)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    if (m.batch() && anyNullEntryOf(std::size_t{width} * height, dst, src1, src2))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;
    return elementwise<m>(sum<m>(), dst, width, height, count, src1, src2);
}
} // namespace tenk
