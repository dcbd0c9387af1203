// Invert of general order: each element of the inverse stands alone, as a minor times the reciprocal of the
// determinant. The minor is the determinant of the source without a row and a column, from an elimination of
// its own.
//
// A pivot of the matrix that fails makes it singular: the call ends there, a batch too. A pivot of a minor
// that fails makes that minor 0 and is no error. The floor of pivots is absolute, so small minors count as 0.
//
// How the steps behind the elimination are rounded:
//
//                                             32f                             64f
//   products of pivots, the determinant       rounded to binary32 each time   wide
//   the reciprocal of the determinant         wide, rounded to binary32       wide
//   (minor x reciprocal) x sign               wide, rounded once              wide, rounded once
//
// In order 1 the minor is that of no rows at all, 1.
#pragma once

#include "detinv/elimination.h"

namespace tenk {

// A product of pivots.
template <typename T>
struct Running;
template <>
struct Running<float>
{
    using type = float;
};
template <>
struct Running<double>
{
    using type = long double;
};
template <typename T>
using Product = typename Running<T>::type;

template <typename T>
TENK_INLINE Product<T> multiplied(Product<T> product, long double factor)
{
    return static_cast<Product<T>>(product * factor);
}

// The determinant of `from` without row r and column c.
template <typename T, typename View>
TENK_INLINE Product<T> minorOf(const View& from, const Working<T>& working, std::size_t n, std::size_t r,
                               std::size_t c)
{
    for (std::size_t i = 0; i + 1 < n; ++i) {
        const std::size_t row = i < r ? i : i + 1;
        working.copy(i, 0, from, row, 0, c);
        working.copy(i, c, from, row, c + 1, n);
    }
    if (n == 1)
        return 1;
    int sign = 1;
    Product<T> product = 1;
    const auto take = [&](T pivot) TENK_LAMBDA { product = multiplied<T>(product, pivot); };
    if (!eliminate(working, n - 1, sign, take))
        product = 0;
    // Tested and multiplied even then: the product stays a zero, of either sign, or becomes a NaN.
    const T last = working.element(n - 2, n - 2);
    return passesAsLastPivot(last) ? multiplied<T>(product, static_cast<long double>(sign) * last)
                                   : Product<T>{0};
}

template <Member m>
TENK_INLINE tenkStatus invert(Source<m> src, Size<m> order, void* buffer, Destination<m> dst, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, dst, buffer))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    const std::size_t n = order;
    if constexpr (m.batch())
        if (anyNullEntry(src, n * n) || anyNullEntry(dst, n * n))
            return tenkNullPointerError;

    const Working<T> working(buffer, n);
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, dst, src))
            return tenkNullPointerError;
        const auto from = src.object(k, n);
        const auto to = dst.object(k, n);
        for (std::size_t i = 0; i < n; ++i) {
            if constexpr (isTable(m.layout) && !m.batch()) {
                // The tables of a single matrix are tested no earlier than here.
                for (std::size_t j = 0; j < n; ++j) {
                    if (from.isNull(i, j) || to.isNull(i, j))
                        return tenkNullPointerError;
                    working.copy(i, j, from, i, j, j + 1);
                }
            } else {
                working.copy(i, 0, from, i, 0, n);
            }
        }

        int sign = 1;
        Product<T> product = 1;
        if (!eliminate(working, n, sign,
                       [&](T pivot) TENK_LAMBDA { product = multiplied<T>(product, pivot); }))
            return tenkSingularError;
        const T last = working.element(n - 1, n - 1);
        if (!passesAsLastPivot(last))
            return tenkSingularError;
        const Product<T> determinant = multiplied<T>(product, static_cast<long double>(sign) * last);
        const auto reciprocal = static_cast<Product<T>>(1.0L / determinant);

        for (std::size_t r = 0; r < n; ++r)
            for (std::size_t c = 0; c < n; ++c) {
                const long double element =
                    static_cast<long double>(minorOf<T>(from, working, n, r, c)) * reciprocal;
                const int parity = (r + c) % 2 == 0 ? 1 : -1;
                store(to.at(c, r), static_cast<T>(element * parity));
            }
    }
    return tenkOk;
}

} // namespace tenk
