// Sums and differences of two matrices: dst(i, j) = a(i, j) + b(i, j) or a(i, j) - b(i, j), one rounding per
// element, in the type of the elements. Either may be read transposed; `width` and `height` are the shape of
// the result.
#pragma once

#include "elementwise/matrix_sum_exceptions.h"

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus matrixSum(Source<m> src1, Source<m, 1> src2, Destination<m> dst, Size<m> width,
                                 Size<m> height, Count<m> count)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    if (m.batch() && anyNullEntryOf(std::size_t{width} * height, dst, src1, src2))
        return tenkNullPointerError;
    if (count == 0 && !runsAhead(m))
        return tenkOk;

    if constexpr (stepsRowsOfSrc2BySrc1(m))
        src2.stride1 = src1.stride1;
    if constexpr (stepsElementsOfSrc2BySrc1(m))
        src2.stride2 = src1.stride2;

    if constexpr (runsAhead(m))
        return sumAhead<m>(src1, src2, dst, count);
    else if constexpr (permutes(m))
        return sumPermuted<m>(src1, src2, dst, count);
    else if constexpr (stepsLastColumnBySrc2(m))
        return sumWithLastColumn<m>(src1, src2, dst, count);
    else if constexpr (changesWithAlignment(m))
        return sumByAlignment<m>(src1, src2, dst, count);
    else
        return elementwise<m>(sum<m>(), dst, width, height, count, src1, src2);
}

} // namespace tenk
