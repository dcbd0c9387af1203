// LUDecomp: factors square matrices by Gaussian elimination with partial pivoting.
//
// The matrix is copied to dst and eliminated there. Rows stay where they are: rowIndex[p] is the row of dst
// that holds position p of the elimination, the multipliers left of the diagonal and the upper triangle from
// it on. The pivot of a position is the first of the largest magnitudes in the order of rowIndex. A
// multiplier l updates an element as x + pivotRow x (0 - l), the product rounded and then the sum.
#pragma once

#include "frame/groups.h"

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
template <typename T>
TENK_INLINE bool arePivots(Vector<T> x)
{
    return all(magnitude(x) >= broadcast<T>(pivotFloor));
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
            std::size_t j = p + 1;
            if constexpr (m.general() && isDense(m.layout))
                for (; rowsApart<T>(d.rowStep, n) && n - j >= lanes<T>; j += lanes<T>)
                    storeVector<T>(d.at(row, j), loadVector<T>(d.at(row, j)) +
                                                     loadVector<T>(d.at(pivotRow, j)) * broadcast(factor));
            for (; j < n; ++j)
                store<T>(d.at(row, j), load<T>(d.at(row, j)) + load<T>(d.at(pivotRow, j)) * factor);
        }
    }
    return testLastPivot<m>(d, rowIndex, n, k);
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed sizes whose rows are adjacent: one object, or a group of them side by side, in local memory
// ---------------------------------------------------------------------------------------------------------------

// V is an element, or a vector with an element of each object. Rows are exchanged here: a[p] and index[p]
// belong to position p.
template <Member m, typename V>
struct Elimination
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;
    static constexpr bool sideBySide = !std::is_same_v<V, T>;
    using Number = std::conditional_t<sideBySide, Mask<T>, std::size_t>;

    V a[n][n];
    Number index[n];
    bool exchanged = false; // of any object side by side

    // Brings the row of the largest magnitude to position p.
    template <std::size_t p>
    TENK_INLINE void exchange(Index<p>)
    {
        if constexpr (sideBySide) {
            V best = magnitude(a[p][p]);
            each<n - 1 - p>([&](auto i) TENK_LAMBDA { best = larger(magnitude(a[p + 1 + i][p]), best); });
            if (any(best > magnitude(a[p][p]))) {
                exchanged = true;
                exchangeByMasks(tenk::index<p>);
            }
        } else {
            std::size_t best = p;
            T bestMagnitude = magnitude(a[p][p]);
            each<n - 1 - p>([&](auto i) TENK_LAMBDA {
                const T candidate = magnitude(a[p + 1 + i][p]);
                if (candidate > bestMagnitude) {
                    best = p + 1 + i;
                    bestMagnitude = candidate;
                }
            });
            if (best != p) {
                each<n>([&](auto j) TENK_LAMBDA { std::swap(a[p][j], a[best][j]); });
                std::swap(index[p], index[best]);
            }
        }
    }

    template <std::size_t p>
    TENK_INLINE void exchangeByMasks(Index<p>)
    {
        Number isBetter[n];
        V best = magnitude(a[p][p]);
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            const auto candidate = magnitude(a[p + 1 + i][p]);
            isBetter[p + 1 + i] = candidate > best;
            best = larger(candidate, best);
        });
        // The last one that was better than all before it is the one.
        Number taken{};
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            constexpr std::size_t q = n - 1 - i;
            const Number isBest = isBetter[q] & ~taken;
            taken |= isBetter[q];
            exchangeRows(isBest, tenk::index<p>, tenk::index<q>);
        });
    }

    // Exchanges positions p and q of the objects that a mask tells.
    template <std::size_t p, std::size_t q>
    TENK_INLINE void exchangeRows(Number mask, Index<p>, Index<q>)
    {
        each<n>([&](auto j) TENK_LAMBDA { exchangeWhere(mask, a[p][j], a[q][j]); });
        auto first = fromBits<T>(index[p]), second = fromBits<T>(index[q]);
        exchangeWhere(mask, first, second);
        index[p] = bits<T>(first);
        index[q] = bits<T>(second);
    }

    // False as soon as an object has no pivot: nothing is computed from what is not one.
    template <std::size_t p>
    TENK_INLINE bool eliminate(Index<p>)
    {
        exchange(tenk::index<p>);
        const V pivot = a[p][p];
        bool found;
        if constexpr (sideBySide)
            found = arePivots<T>(pivot);
        else
            found = isPivot(pivot);
        if (!found)
            return false;
        V reciprocal;
        if constexpr (!dividesByPivot(m))
            reciprocal = number<V>(1) / pivot;
        each<n - 1 - p>([&](auto i) TENK_LAMBDA {
            auto& row = a[p + 1 + i];
            if constexpr (dividesByPivot(m))
                row[p] = row[p] / pivot;
            else
                row[p] = row[p] * reciprocal;
            const V factor = number<V>(0) - row[p];
            each<n - 1 - p>([&](auto j)
                                TENK_LAMBDA { row[p + 1 + j] = row[p + 1 + j] + a[p][p + 1 + j] * factor; });
        });
        return true;
    }

    // False, with everything as it was left, at the first position without a pivot.
    TENK_INLINE bool eliminate()
    {
        each<n>([&](auto i) TENK_LAMBDA { index[i] = Number{} + static_cast<std::uint32_t>(i); });
        return [&]<std::size_t... p>(std::index_sequence<p...>) TENK_LAMBDA
        {
            return (eliminate(tenk::index<p>) && ...);
        }
        (std::make_index_sequence<n - 1>());
    }
};

consteval bool decomposesLocally(Member m)
{
    return !m.general() && isDense(m.layout);
}

template <Member m>
TENK_INLINE tenkStatus decomposeLocally(const DenseView<Element<m>>& src, const DenseView<Element<m>>& dst,
                                        const RowIndex& rowIndex, std::size_t k)
{
    using T = Element<m>;
    constexpr unsigned n = m.size;
    Elimination<m, T> object;
    each<n>([&](auto i) TENK_LAMBDA {
        each<n>([&](auto j) TENK_LAMBDA { object.a[i][j] = load<T>(src.at(i, j)); });
    });
    const bool done = object.eliminate();
    each<n>([&](auto p) TENK_LAMBDA {
        rowIndex.set(p, static_cast<std::uint32_t>(object.index[p]));
        const Address row = dst.row(object.index[p]);
        each<n>([&](auto j) TENK_LAMBDA { store<T>(row + j * sizeof(T), object.a[p][j]); });
    });
    return done ? testLastPivot<m>(dst, rowIndex, n, k) : tenkSingularError;
}

// The batch a group at a time.
template <Member m>
struct LUGroups
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;
    using Objects = Elimination<m, Vector<T>>;

    const Matrices<m, group<T>> matrices;
    const std::uint32_t* rowIndex;

    // The group that begins with object k. False, with nothing written, if something could tell, or if an
    // object has a position without a pivot.
    TENK_INLINE bool decompose(std::size_t k, tenkStatus& status) const
    {
        return matrices.group(k, [&](const auto& sources, const auto& results) TENK_LAMBDA {
            Objects objects;
            loadMatrices(sources, objects.a);
            if (!objects.eliminate())
                return false;
            status = !objects.exchanged && isOneRow(results) ? storeInOrder(objects, results, k)
                                                             : storeByIndex(objects, results, k);
            return true;
        });
    }

    // Object by object: the last test of an object sees what stands before the next one is written.
    template <typename F>
    TENK_INLINE static tenkStatus eachObject(F storeAndTest)
    {
        return [&]<std::size_t... g>(std::index_sequence<g...>) TENK_LAMBDA
        {
            return (storeAndTest(index<g>) && ...) ? tenkOk : tenkSingularError;
        }
        (std::make_index_sequence<group<T>>());
    }

    template <typename S>
    TENK_INLINE tenkStatus storeByIndex(const Objects& objects, const S& results, std::size_t k) const
    {
        const RowsOfObjects<T, n, n> rows(objects.a[0]);
        typename BitsOf<T>::type position[n][group<T>];
        each<n>([&](auto p) TENK_LAMBDA { store(reinterpret_cast<Address>(position[p]), objects.index[p]); });
        return eachObject([&](auto g) TENK_LAMBDA {
            const RowIndex indexOfObject(rowIndex, k + g, n);
            each<n>([&](auto p) TENK_LAMBDA {
                const auto row = static_cast<std::uint32_t>(position[p][g]);
                indexOfObject.set(p, row);
                rows.get(p, g).store(results.object[g].row(row));
            });
            return testLastPivot<m>(results.object[g], indexOfObject, n, k + g) == tenkOk;
        });
    }

    template <typename S>
    TENK_INLINE tenkStatus storeInOrder(const Objects& objects, const S& results, std::size_t k) const
    {
        const RowsOfObjects<T, 1, n * n> matrices(objects.a[0]);
        return eachObject([&](auto g) TENK_LAMBDA {
            const RowIndex indexOfObject(rowIndex, k + g, n);
            each<n>([&](auto p) TENK_LAMBDA { indexOfObject.set(p, static_cast<std::uint32_t>(p)); });
            matrices.get(index<0>, g).store(results.object[g].start);
            return testLastPivot<m>(results.object[g], indexOfObject, n, k + g) == tenkOk;
        });
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

    const bool local = decomposesLocally(m) && rowsApart<T>(dst.stride1, order);
    for (std::size_t k = 0; k < count; ++k) {
        if constexpr (decomposesLocally(m) && m.batch()) {
            const LUGroups<m> groups{{src, dst}, rowIndex};
            tenkStatus status = tenkOk;
            while (local && groups.matrices.fit() && count - k >= group<T> && groups.decompose(k, status)) {
                if (status != tenkOk)
                    return status;
                k += group<T>;
            }
            if (k == count)
                break;
        }
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        const auto from = src.object(k, order);
        const auto to = dst.object(k, order);
        const RowIndex rows(rowIndex, k, order);
        tenkStatus status;
        if constexpr (decomposesLocally(m))
            status = local ? decomposeLocally<m>(from, to, rows, k) : decompose<m>(from, to, rows, order, k);
        else
            status = decompose<m>(from, to, rows, order, k);
        if (status != tenkOk)
            return status;
    }
    return tenkOk;
}

} // namespace tenk
