// The slow path of the packed inverses of orders 5 and 6: a matrix whose first columns cannot be divided by
// is copied with its columns in another order, inverted there, and the rows of the inverse are put where the
// columns came from.
#pragma once

#include <utility>

#include "frame/operand.h"
#include "frame/row.h"

namespace tenk {

template <typename T, unsigned n>
struct ColumnExchange
{
    std::size_t columnOrder[n];
    T source[n][n];
    T inverse[n][n];

    TENK_INLINE void keepOrder()
    {
        each<n>([&](auto j) TENK_LAMBDA { columnOrder[j] = j; });
    }
    TENK_INLINE void exchange(std::size_t p, std::size_t q)
    {
        const std::size_t column = columnOrder[p];
        columnOrder[p] = columnOrder[q];
        columnOrder[q] = column;
    }

    TENK_INLINE void loadSource(const DenseView<T>& from)
    {
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = 0; j < n; ++j)
                move<T>(reinterpret_cast<Address>(&source[i][j]), from.at(i, columnOrder[j]));
    }

    TENK_INLINE void storeInverse(const DenseView<T>& to) const
    {
        for (std::size_t i = 0; i < n; ++i)
            for (std::size_t j = 0; j < n; ++j)
                move<T>(to.at(columnOrder[i], j), reinterpret_cast<Address>(&inverse[i][j]));
    }

    TENK_INLINE static DenseView<T> view(T (&matrix)[n][n])
    {
        return {reinterpret_cast<Address>(&matrix), n * sizeof(T)};
    }
};

// The packed inverse of a type and an order.
template <typename T, unsigned n>
struct Packed;

// Packed<T, n> tells whether the columns of a matrix may stay, chooses an order if they may not, and inverts
// a matrix in the order in which it finds it. The last two return false for a singular matrix.
template <typename T, unsigned n>
TENK_INLINE bool invertWithExchange(const DenseView<T>& from, const DenseView<T>& to)
{
    using Method = Packed<T, n>;
    ColumnExchange<T, n> exchanged;
    DenseView<T> source = from, target = to;
    const bool stay = Method::columnsMayStay(from);
    if (!stay) [[unlikely]] {
        exchanged.keepOrder();
        if (!Method::chooseColumns(from, exchanged))
            return false;
        exchanged.loadSource(from);
        source = exchanged.view(exchanged.source);
        target = exchanged.view(exchanged.inverse);
    }
    if (!Method::invertAsItStands(source, target))
        return false;
    if (!stay) [[unlikely]]
        exchanged.storeInverse(to);
    return true;
}

} // namespace tenk
