// Gaxpy: element i of the result is (the sum of src1(i, p) x src2(p) over p) + src3(i).
//
// src3 is added once, to the finished sum; products/vector_kernels.h has the order of the sums, which is that
// of the product of an untransposed matrix and a vector. The result has `height` elements, sums of `width`
// terms; there are no other sizes that could disagree.
//
// With adjacent elements and a fixed size, vectors are read as a whole before the result is written. All
// other members keep the running sum in the destination, and read src3(i) when it is complete.
#pragma once

#include "products/vector_kernels.h"

namespace tenk {

// Any size and layout, one object.
template <Member m, typename Matrix, typename Vec, typename Addend, typename Out>
TENK_INLINE tenkStatus generalGaxpy(const Matrix& matrix, const Vec& vector, const Addend& addend,
                                    const Out& out, Size<m> width, Size<m> height)
{
    using T = Element<m>;
    if constexpr (isDense(m.layout)) {
        const ByteRange range = rangeOf(out, 1, height);
        if (areApart(range, rangeOf(vector, 1, width)) && areApart(range, rangeOf(addend, 1, height)) &&
            areApart(range, rangeOf(matrix, height, width))) {
            vectorProductInTiles<m>(matrix, vector, height, width,
                                    [&](std::size_t i, const auto& sums) TENK_LAMBDA {
                                        using R = std::remove_cvref_t<decltype(sums)>;
                                        (sums + R::load(addend.at(0, i))).store(out.at(0, i));
                                    });
            return tenkOk;
        }
    }
    // A single object behind tables is tested as it is reached, the entries of src3 and dst first.
    constexpr bool tests = isTable(m.layout) && !m.batch();
    const auto before = [&](std::size_t i) TENK_LAMBDA {
        if constexpr (tests)
            return addend.isNull(0, i) || out.isNull(0, i);
        else
            return false;
    };
    const auto within = [&](std::size_t i, std::size_t p) TENK_LAMBDA {
        if constexpr (tests)
            return vector.isNull(0, p) || matrix.isNull(i, p);
        else
            return false;
    };
    return vectorProductInPlace<m>(matrix, vector, out, height, width, before, within,
                                   [&](std::size_t i, T sum)
                                       TENK_LAMBDA { store(out.at(0, i), sum + load<T>(addend.at(0, i))); });
}

template <Member m>
TENK_INLINE tenkStatus gaxpy(Source<m, 0> src1, Source<m, 1> src2, Source<m, 2> src3, Destination<m> dst,
                             Size<m> width, Size<m> height, Count<m> count)
{
    if (anyNull(src1, src2, src3, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    if constexpr (m.batch())
        if (anyNullEntry(src1, std::size_t{width} * height) || anyNullEntry(src2, width) ||
            anyNullEntry(src3, height) || anyNullEntry(dst, height))
            return tenkNullPointerError;
    if (count == 0)
        return tenkOk;

    if constexpr (!m.general() && isDense(m.layout)) {
        using R = Row<Element<m>, m.size>;
        const auto matrix = TurnedMatrix<m>::load(src1.object(0, width));
        for (std::size_t k = 0; k < count; ++k) {
            if (anyNullObject(k, src2, src3, dst))
                return tenkNullPointerError;
            const R vector = inRegisters(R::load(src2.object(k, width).row(0)));
            const R addend = R::load(src3.object(k, height).row(0));
            (matrix.times(vector) + addend).store(dst.object(k, height).row(0));
        }
    } else {
        for (std::size_t k = 0; k < count; ++k) {
            if (anyNullObject(k, src2, src3, dst))
                return tenkNullPointerError;
            const tenkStatus status =
                generalGaxpy<m>(src1.object(k, width), src2.object(k, width), src3.object(k, height),
                                dst.object(k, height), width, height);
            if (status != tenkOk)
                return status;
        }
    }
    return tenkOk;
}

} // namespace tenk
