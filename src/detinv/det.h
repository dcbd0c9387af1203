// Det of general order: the product of the pivots of an elimination. A matrix without a full set of pivots
// has the determinant 0 and is no error; a batch goes on after it.
//
// The product is kept in the result itself, one multiplication in the element type for each pivot, and the
// result is 1 before the source is read. The sign of the permutation goes into the last pivot.
#pragma once

#include "detinv/elimination.h"

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus det(Source<m> src, Size<m> order, void* buffer, Element<m>* dst, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, dst, buffer))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    const std::size_t n = order;
    if constexpr (m.batch())
        if (anyNullEntry(src, n * n))
            return tenkNullPointerError;

    const Working<T> working(buffer, n);
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src))
            return tenkNullPointerError;
        const Address result = reinterpret_cast<Address>(dst) + k * sizeof(T);
        store(result, T{1});
        const auto from = src.object(k, n);
        for (std::size_t i = 0; i < n; ++i) {
            if constexpr (isTable(m.layout) && !m.batch()) {
                // The table of a single matrix is tested no earlier than here, with 1 in the result.
                for (std::size_t j = 0; j < n; ++j) {
                    if (from.isNull(i, j))
                        return tenkNullPointerError;
                    working.copy(i, j, from, i, j, j + 1);
                }
            } else {
                working.copy(i, 0, from, i, 0, n);
            }
        }

        int sign = 1;
        const bool regular =
            eliminate(working, n, sign, [&](T pivot) TENK_LAMBDA { store(result, load<T>(result) * pivot); });
        const T last = working.element(n - 1, n - 1);
        if (regular && passesAsLastPivot(last))
            store(result, load<T>(result) * (static_cast<T>(sign) * last));
        else
            store(result, T{0});
    }
    return tenkOk;
}

} // namespace tenk
