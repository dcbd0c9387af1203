// Transpose: the element at (i, j) of a source goes to (j, i) of the destination, as raw bits.
//
// `width` and `height` are the shape of the source. Larger fixed sizes whose rows are adjacent are read into
// vectors as a whole, turned there and written; all others move element by element, in row order of the
// source. There is no temporary for these: in place, elements are overwritten before they are read.
#pragma once

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

// Behind a table, the move for (i, j) goes from entry i x height + j of the source to entry j x width + i of
// the destination. That is row order for a square matrix and for no other; whoever transposes another shape
// lays out the tables accordingly, beyond the width x height entries that are tested for null.
template <Member m>
TENK_INLINE std::size_t sourceRowLength(Size<m> width, Size<m> height)
{
    return isTable(m.layout) ? height : width;
}
template <Member m>
TENK_INLINE std::size_t destinationRowLength(Size<m> width, Size<m> height)
{
    return isTable(m.layout) ? width : height;
}

// The fixed sizes whose rows are adjacent.
consteval bool turnsRows(Member m)
{
    return isDense(m.layout) && !m.general();
}

template <typename T, unsigned n, typename From, typename To>
TENK_INLINE void transposeRows(const From& from, const To& to)
{
    constexpr unsigned pairs = n / 2;
    if constexpr (sizeof(T) == 4 || n == 3) {
        transpose(Block<T, n>::load(from)).store(to);
    } else {
        // A whole object would not fit the registers of i386: two rows of the result at a time.
        const auto element = [&](std::size_t i, std::size_t j)
                                 TENK_LAMBDA { return from.row(i) + j * sizeof(T); };
        each<pairs>([&](auto s) TENK_LAMBDA {
            each<pairs>([&](auto v) TENK_LAMBDA {
                const auto upper = inRegister(loadVector<T>(element(2 * v, 2 * s)));
                const auto lower = inRegister(loadVector<T>(element(2 * v + 1, 2 * s)));
                storeVector<T>(to.row(2 * s) + v * 16, shuffle<0, 2>(upper, lower));
                storeVector<T>(to.row(2 * s + 1) + v * 16, shuffle<1, 3>(upper, lower));
            });
            if constexpr (n % 2 == 1) {
                move<T>(to.row(2 * s) + pairs * 16, element(n - 1, 2 * s));
                move<T>(to.row(2 * s + 1) + pairs * 16, element(n - 1, 2 * s + 1));
            }
        });
        if constexpr (n % 2 == 1)
            each<n>([&](auto j) TENK_LAMBDA { move<T>(to.row(n - 1) + j * sizeof(T), element(j, n - 1)); });
    }
}

template <Member m>
TENK_INLINE tenkStatus transpose(Source<m> src, Size<m> width, Size<m> height, Destination<m> dst,
                                 Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    const std::size_t entries = std::size_t{width} * height;
    if constexpr (m.batch())
        for (std::size_t e = 0; isTable(m.layout) && e < entries; ++e)
            if (src.nullEntry(e) || dst.nullEntry(e))
                return tenkNullPointerError;

    const Displacement row = m.size * sizeof(T);
    const bool noGaps = turnsRows(m) && src.stride1 == row && dst.stride1 == row;
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        const auto from = src.object(k, sourceRowLength<m>(width, height));
        const auto to = dst.object(k, destinationRowLength<m>(width, height));
        if constexpr (turnsRows(m)) {
            using Rows = GaplessView<T, m.size>;
            if (!noGaps)
                transposeRows<T, m.size>(from, to);
            else if constexpr (m.size == 3)
                transposed(Row<T, 9>::load(from.start)).store(to.start);
            else
                transposeRows<T, m.size>(Rows{from.start}, Rows{to.start});
        } else {
            for (std::size_t i = 0; i < height; ++i)
                for (std::size_t j = 0; j < width; ++j) {
                    if constexpr (isTable(m.layout) && !m.batch())
                        if (from.isNull(i, j) || to.isNull(j, i))
                            return tenkNullPointerError;
                    move<T>(to.at(j, i), from.at(i, j));
                }
        }
    }
    return tenkOk;
}

} // namespace tenk
