// LUDecomp: factors square matrices by Gaussian elimination with partial pivoting.
//
// The matrix is copied to dst and eliminated there. Rows stay where they are: rowIndex[p] is the row of dst
// that holds position p of the elimination, the multipliers left of the diagonal and the upper triangle from
// it on. The pivot of a position is the first of the largest magnitudes in the order of rowIndex. A
// multiplier l updates an element as x + pivotRow x (0 - l), the product rounded and then the sum.
#pragma once

#include "frame/side_by_side.h"

namespace tenk {

// These divide every element by the pivot; all others multiply it by the pivot's rounded reciprocal.
consteval bool dividesByPivot(Member m)
{
    return isList(m.layout) && !(m == "tenkLUDecomp_ma_32f_4x4_L");
}

// In a batch the test of the last pivot moves on: for object k it looks k x order columns to the right of the
// pivot, wherever that is, through whichever entry of a table that is. The true last pivot is tested for
// object 0 alone.
consteval bool lastTestMovesOn(Member m)
{
    return m.batch();
}

// The limit under which a pivot is zero: the same in both types, whatever the size of the elements.
inline constexpr float pivotFloor = 0x1p-23F;

// A NaN is no pivot.
template <typename T>
TENK_INLINE bool isPivot(T x)
{
    return magnitude(x) >= T{pivotFloor};
}

// The row permutation of object k: order entries for each object, one object after the other.
struct RowIndex
{
    Address start;

    TENK_INLINE RowIndex(const std::uint32_t* rowIndex, std::size_t k, std::size_t order)
        : start(reinterpret_cast<Address>(rowIndex) + k * order * sizeof(std::uint32_t))
    {
    }
    TENK_INLINE std::uint32_t get(std::size_t p) const { return load<std::uint32_t>(start + p * 4); }
    TENK_INLINE void set(std::size_t p, std::uint32_t row) const { store<std::uint32_t>(start + p * 4, row); }
    TENK_INLINE void swap(std::size_t p, std::size_t q) const
    {
        const std::uint32_t row = get(p);
        set(p, get(q));
        set(q, row);
    }
};

template <Member m, typename View>
TENK_INLINE tenkStatus testLastPivot(const View& d, const RowIndex& rowIndex, std::size_t order,
                                     std::size_t k)
{
    const std::size_t moved = lastTestMovesOn(m) ? k * order : 0;
    const auto last = load<Element<m>>(d.at(rowIndex.get(order - 1), order - 1 + moved));
    return isPivot(last) ? tenkOk : tenkSingularError;
}

// One object, in place in dst.
template <Member m, typename From, typename To>
TENK_INLINE tenkStatus decompose(const From& src, const To& d, const RowIndex& rowIndex, Size<m> order,
                                 std::size_t k)
{
    using T = Element<m>;
    const std::size_t n = order;
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            move<T>(d.at(i, j), src.at(i, j));
    for (std::size_t i = 0; i < n; ++i)
        rowIndex.set(i, static_cast<std::uint32_t>(i));

    for (std::size_t p = 0; p + 1 < n; ++p) {
        std::size_t best = p;
        T bestMagnitude = magnitude(load<T>(d.at(rowIndex.get(p), p)));
        for (std::size_t q = p + 1; q < n; ++q) {
            const T candidate = magnitude(load<T>(d.at(rowIndex.get(q), p)));
            if (candidate > bestMagnitude) {
                best = q;
                bestMagnitude = candidate;
            }
        }
        rowIndex.swap(p, best);
        const std::size_t pivotRow = rowIndex.get(p);
        const T pivot = load<T>(d.at(pivotRow, p));
        if (!isPivot(pivot))
            return tenkSingularError;
        const T reciprocal = dividesByPivot(m) ? T{} : 1 / pivot;
        for (std::size_t q = p + 1; q < n; ++q) {
            const std::size_t row = rowIndex.get(q);
            const T x = load<T>(d.at(row, p));
            const T multiplier = dividesByPivot(m) ? x / pivot : x * reciprocal;
            store<T>(d.at(row, p), multiplier);
            const T factor = 0 - multiplier;
            for (std::size_t j = p + 1; j < n; ++j)
                store<T>(d.at(row, j), load<T>(d.at(row, j)) + load<T>(d.at(pivotRow, j)) * factor);
        }
    }
    return testLastPivot<m>(d, rowIndex, n, k);
}

// ---------------------------------------------------------------------------------------------------------------
// A group of objects side by side, for the batches of fixed size whose rows are adjacent
// ---------------------------------------------------------------------------------------------------------------

consteval bool decomposesSideBySide(Member m)
{
    return m.batch() && !m.general() && isDense(m.layout);
}

template <Member m>
struct LUGroup
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;

    // In the order of the positions: rows are exchanged.
    Vector<T> a[n][n];
    Mask<T> index[n];

    // Brings the row of the largest magnitude to position p.
    template <std::size_t p>
    TENK_INLINE void exchange(Index<p>)
    {
        Mask<T> isBetter[n];
        Vector<T> best = magnitude(a[p][p]);
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            const auto candidate = magnitude(a[p + 1 + i][p]);
            isBetter[p + 1 + i] = candidate > best;
            best = larger(candidate, best);
        });
        // The last one that was better than all before it is the one.
        Mask<T> taken{};
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            constexpr std::size_t q = n - 1 - i;
            const Mask<T> isBest = isBetter[q] & ~taken;
            taken |= isBetter[q];
            isBetter[q] = isBest;
        });
        each<n>([&](auto j) TENK_LAMBDA {
            const Mask<T> old = bits<T>(a[p][j]);
            Mask<T> x = old;
            each<n - 1 - p>([&](auto i) TENK_LAMBDA {
                const Mask<T> change = (old ^ bits<T>(a[p + 1 + i][j])) & isBetter[p + 1 + i];
                x ^= change;
                a[p + 1 + i][j] = fromBits<T>(bits<T>(a[p + 1 + i][j]) ^ change);
            });
            a[p][j] = fromBits<T>(x);
        });
        const Mask<T> old = index[p];
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            const Mask<T> change = (old ^ index[p + 1 + i]) & isBetter[p + 1 + i];
            index[p] ^= change;
            index[p + 1 + i] ^= change;
        });
    }

    // False as soon as an object has no pivot: nothing is computed from what is not one.
    template <std::size_t p>
    TENK_INLINE bool eliminate(Index<p>)
    {
        exchange(tenk::index<p>);
        const Vector<T> pivot = a[p][p];
        if (any(~(magnitude(pivot) >= broadcast<T>(pivotFloor))))
            return false;
        Vector<T> reciprocal;
        if constexpr (!dividesByPivot(m))
            reciprocal = broadcast<T>(1) / pivot;
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            auto& row = a[p + 1 + i];
            if constexpr (dividesByPivot(m))
                row[p] = row[p] / pivot;
            else
                row[p] = row[p] * reciprocal;
            const Vector<T> factor = broadcast<T>(0) - row[p];
            each<n - 1 - p>([&](auto j)
                                TENK_LAMBDA { row[p + 1 + j] = row[p + 1 + j] + a[p][p + 1 + j] * factor; });
        });
        return true;
    }

    template <typename View>
    TENK_INLINE bool decompose(const View (&src)[group<T>])
    {
        each<n>([&](auto i) TENK_LAMBDA {
            loadSideBySide<n>(Addresses<T>::make([&](std::size_t g) TENK_LAMBDA { return src[g].row(i); }),
                              a[i]);
            index[i] = Mask<T>{} + static_cast<int>(i);
        });
        return [&]<std::size_t... p>(std::index_sequence<p...>) TENK_LAMBDA
        {
            return (eliminate(tenk::index<p>) && ...);
        }
        (std::make_index_sequence<n - 1>());
    }

    // Object by object: the last test of an object sees what stands before the next one is written.
    template <typename View>
    TENK_INLINE tenkStatus store(const View (&dst)[group<T>], const std::uint32_t* rowIndex,
                                 std::size_t k) const
    {
        T row[n][group<T>][n];
        std::uint32_t position[n][group<T>];
        each<n>([&](auto p) TENK_LAMBDA {
            storeSideBySide<n>(Addresses<T>::make([&](std::size_t g) TENK_LAMBDA {
                                   return reinterpret_cast<Address>(row[p][g]);
                               }),
                               a[p]);
            each<group<T>>([&](auto g) TENK_LAMBDA {
                position[p][g] = static_cast<std::uint32_t>(index[p][std::size_t{g}]);
            });
        });
        for (std::size_t g = 0; g < group<T>; ++g) {
            const RowIndex to(rowIndex, k + g, n);
            each<n>([&](auto p) TENK_LAMBDA {
                to.set(p, position[p][g]);
                Row<T, n>::load(reinterpret_cast<Address>(row[p][g])).store(dst[g].row(position[p][g]));
            });
            if (testLastPivot<m>(dst[g], to, n, k + g) != tenkOk)
                return tenkSingularError;
        }
        return tenkOk;
    }
};

template <Member m>
TENK_INLINE tenkStatus luDecomp(Source<m> src, std::uint32_t* rowIndex, Destination<m> dst, Size<m> order,
                                Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, rowIndex, dst))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    const std::size_t entries = std::size_t{order} * order;
    if (anyNullEntry(src, entries) || anyNullEntry(dst, entries))
        return tenkNullPointerError;

    for (std::size_t k = 0; k < count; ++k) {
        if constexpr (decomposesSideBySide(m)) {
            SourcesAndDestinations<m> operands;
            LUGroup<m> objects;
            while (count - k >= group<T> && rowsApart<T>(dst.stride1, order) && operands.fit(src, dst, k) &&
                   objects.decompose(operands.src)) {
                if (objects.store(operands.dst, rowIndex, k) != tenkOk)
                    return tenkSingularError;
                k += group<T>;
            }
            if (k == count)
                break;
        }
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        const tenkStatus status =
            decompose<m>(src.object(k, order), dst.object(k, order), RowIndex(rowIndex, k, order), order, k);
        if (status != tenkOk)
            return status;
    }
    return tenkOk;
}

} // namespace tenk
