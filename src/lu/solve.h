// LUBackSubst: solves A x = b with the factors and the rowIndex of LUDecomp.
//
// Forward substitution builds y in dst, backward substitution turns it into x there. The sum of an unknown
// starts at +0 and runs over ascending columns, each product rounded and then the sum; it is subtracted once,
// and the backward difference is divided by the pivot. The entries of rowIndex are used as they stand.
#pragma once

#include "lu/solve_groups.h"

namespace tenk {

// One object, in place in dst.
template <Member m, typename Factor, typename B, typename X>
TENK_INLINE void luSolve(const Factor& factor, Address rowIndex, const B& b, const X& x, Size<m> order)
{
    using T = Element<m>;
    const std::size_t n = order;
    move<T>(x.at(0, 0), b.at(0, rowAt(rowIndex, 0)));
    for (std::size_t i = 1; i < n; ++i) {
        const std::size_t row = rowAt(rowIndex, i);
        T sum = 0;
        for (std::size_t j = 0; j < i; ++j)
            sum = sum + load<T>(factor.at(row, j)) * load<T>(x.at(0, j));
        store<T>(x.at(0, i), load<T>(b.at(0, row)) - sum);
    }
    const std::size_t last = n - 1;
    store<T>(x.at(0, last), load<T>(x.at(0, last)) / load<T>(factor.at(rowAt(rowIndex, last), last)));
    for (std::size_t i = last; i-- > 0;) {
        const std::size_t row = rowAt(rowIndex, i);
        T sum = 0;
        for (std::size_t j = i + 1; j < n; ++j)
            sum = sum + load<T>(factor.at(row, j)) * load<T>(x.at(0, j));
        store<T>(x.at(0, i), (load<T>(x.at(0, i)) - sum) / load<T>(factor.at(row, i)));
    }
}

template <Member m>
TENK_INLINE tenkStatus luBackSubst(Source<m, 0> src1, const std::uint32_t* rowIndex, Source<m, 1> src2,
                                   Destination<m> dst, Size<m> order, Count<m> count)
{
    if (anyNull(src1, rowIndex, src2, dst))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    if (anyNullEntry(src1, std::size_t{order} * order) || anyNullEntry(src2, order) ||
        anyNullEntry(dst, order))
        return tenkNullPointerError;

    const auto rows = reinterpret_cast<Address>(rowIndex);
    std::size_t k = 0;
    if constexpr (luSolvesSideBySide(m))
        k = luSolveInTurns<m>(src1, rows, src2, dst, count);
    for (; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const Address indexOfObject = m.operand[0].array ? rows + k * order * sizeof(std::uint32_t) : rows;
        luSolve<m>(luFactor<m>(src1, k, order), indexOfObject, src2.object(k, order), dst.object(k, order),
                   order);
    }
    return tenkOk;
}

} // namespace tenk
