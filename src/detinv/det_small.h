// Det of orders 3 to 6: the expansion by cofactors, without a pivot, a branch or a test; what general order
// takes for singular comes out here as the value of the formula.
//
// Standard and List layout compute in the wide unit, long double, from the elements on, and round once at the
// end; nothing on the way is kept in the element type. All other layouts compute in the element type. The
// members of an order and type therefore differ by layout in their last bits.
//
// Orders 4 to 6 expand along row 0, the minors along row 1 and so on down to the 2 x 2 minors of the last two
// rows: the products of elements and unsigned minors are summed as ((s0 - s1) + s2) - s3 ..., and each minor
// is computed once. (tenkDet_ma_64f_6x6_L is known to add in minors of order 3 to 5 as s2 + (s0 - s1): an
// addition commutes, so that is the same value.) Order 3 adds the three products of an element and its signed
// cofactor, in the orders below.
#pragma once

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

// The order in which order 3 adds its products: along row 0 by columns, or down column 0 by rows.
struct Order3
{
    bool alongRow = true;
    unsigned first = 0, second = 1, third = 2;
};

consteval Order3 order3(Member m)
{
    if (m == "tenkDet_m_32f_3x3")
        return {.first = 1, .second = 2, .third = 0};
    if (m == "tenkDet_m_64f_3x3")
        return {.alongRow = false, .first = 2, .second = 0, .third = 1};
    if (m == "tenkDet_ma_32f_3x3" || m == "tenkDet_ma_64f_3x3")
        return {.first = 2, .second = 0, .third = 1};
    if (m == "tenkDet_ma_32f_3x3_L" || m == "tenkDet_ma_64f_3x3_L")
        return {.first = 2, .second = 1, .third = 0};
    return {};
}

consteval bool computesWide(Member m)
{
    return isDense(m.layout);
}

// The value of order 3. Cofactors are products of the two rows and columns that come next, counted around.
template <Order3 sum, typename A>
TENK_INLINE auto determinant3(A a)
{
    const auto product = [&](auto n) TENK_LAMBDA {
        constexpr std::size_t i = sum.alongRow ? 0 : n, j = sum.alongRow ? n : 0;
        constexpr std::size_t i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
        return (a(i1, j1) * a(i2, j2) - a(i1, j2) * a(i2, j1)) * a(i, j);
    };
    return (product(index<sum.first>) + product(index<sum.second>)) + product(index<sum.third>);
}

// The expansion of order n as a list of steps. A minor is known by its columns, as a set of bits: those of m
// columns are minors of the last m rows. A step adds to a minor the product for one of its columns.
struct Step
{
    unsigned set, column;
};

template <unsigned n, bool wide>
struct Expansion
{
    static constexpr unsigned steps =
        n * (1U << (n - 1)) - n; // all pairs of a set and a column in it, but sets of one
    Step step[steps]{};

    // In the wide unit each minor is computed when it is first needed, for it has eight registers and what is
    // kept aside is slow to come back. Elsewhere all minors of an order, then those of the next.
    consteval Expansion()
    {
        for (int order = wide ? static_cast<int>(n) : 2; order <= static_cast<int>(n); ++order)
            for (unsigned set = 0; set < 1U << n; ++set)
                if (__builtin_popcount(set) == order)
                    expand(set);
    }

private:
    bool done[1U << n]{};
    unsigned length = 0;

    consteval void expand(unsigned set)
    {
        if (__builtin_popcount(set) == 1 || done[set])
            return;
        for (unsigned column = 0; column < n; ++column)
            if ((set >> column & 1) != 0) {
                expand(set & ~(1U << column));
                step[length++] = {set, column};
            }
        done[set] = true;
    }
};

template <typename W, unsigned n, typename A>
TENK_INLINE W determinant(A a)
{
    constexpr bool wide = sizeof(W) > 8;
    constexpr Expansion<n, wide> expansion;
    W minors[1U << n];
    each<n>([&](auto j) TENK_LAMBDA { minors[1U << j] = a(n - 1, j); });
    each<expansion.steps>([&](auto i) TENK_LAMBDA {
        constexpr unsigned set = expansion.step[i].set, column = expansion.step[i].column;
        constexpr unsigned before = __builtin_popcount(set & ((1U << column) - 1));
        // Elements are read again for each product: kept in the wide unit, they would drive minors out of it.
        if constexpr (wide)
            asm volatile("" ::: "memory");
        constexpr unsigned order = __builtin_popcount(set), others = set & ~(1U << column);
        if constexpr (wide && order == 2)
            minors[others] = a(n - 1, __builtin_ctz(others));
        const W term = a(n - order, column) * minors[others];
        if constexpr (before == 0)
            minors[set] = term;
        else if constexpr (before % 2 == 1)
            minors[set] = minors[set] - term;
        else
            minors[set] = minors[set] + term;
    });
    return minors[(1U << n) - 1];
}

template <Member m>
TENK_INLINE tenkStatus detSmall(Source<m> src, Element<m>* dst, Count<m> count)
{
    using T = Element<m>;
    using W = std::conditional_t<computesWide(m), long double, T>;
    constexpr unsigned n = m.size;
    if (anyNull(src, dst) || anyNullEntry(src, n * n))
        return tenkNullPointerError;

    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src))
            return tenkNullPointerError;
        const auto from = src.object(k, n);
        const auto a = [&](std::size_t i, std::size_t j) TENK_LAMBDA { return W{load<T>(from.at(i, j))}; };
        W value;
        if constexpr (n == 3)
            value = determinant3<order3(m)>(a);
        else
            value = determinant<W, n>(a);
        store(reinterpret_cast<Address>(dst) + k * sizeof(T), static_cast<T>(value));
    }
    return tenkOk;
}

} // namespace tenk
