// LUBackSubst: solves A x = b with the factors and the rowIndex of LUDecomp.
//
// Forward substitution builds y in dst, backward substitution turns it into x there. The sum of an unknown
// starts at +0 and runs over ascending columns, each product rounded and then the sum; it is subtracted once,
// and the backward difference is divided by the pivot. The entries of rowIndex are used as they stand.
#pragma once

#include "frame/groups.h"

namespace tenk {

// These step along a row of the factor by 4 bytes, so that 8-byte elements overlap.
consteval bool stepsByFourBytes(Member m)
{
    return m == "tenkLUBackSubst_mva_64f_L" || m == "tenkLUBackSubst_mva_64f_3x3_L" ||
           m == "tenkLUBackSubst_mva_64f_4x4_L" || m == "tenkLUBackSubst_mva_64f_5x5_L" ||
           m == "tenkLUBackSubst_mva_64f_6x6_L";
}

template <Member m>
TENK_INLINE auto luFactor(const Source<m, 0>& src1, std::size_t k, std::size_t order)
{
    const auto factor = src1.object(k, order);
    if constexpr (stepsByFourBytes(m))
        return StridedView<Element<m>>{factor.start, factor.rowStep, 4};
    else
        return factor;
}

TENK_INLINE std::uint32_t rowAt(Address rowIndex, std::size_t p)
{
    return load<std::uint32_t>(rowIndex + p * sizeof(std::uint32_t));
}

// Whether entries of rowIndex are rows of a matrix of fixed size.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInRange(Address rowIndex)
{
    constexpr unsigned four = entries / 4;
    Mask<float> outside{}; // by its sign
    each<four>([&](auto v) TENK_LAMBDA {
        const auto rows = load<Mask<float>>(rowIndex + v * 16);
        outside |= rows | (rows > Mask<float>{} + static_cast<int>(order - 1));
    });
    bool inRange = !any(outside);
    each<entries % 4>([&](auto e) TENK_LAMBDA { inRange &= rowAt(rowIndex, four * 4 + e) < order; });
    return inRange;
}

// Whether no row was exchanged.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInOrder(Address rowIndex)
{
    constexpr unsigned four = entries / 4;
    Mask<float> exchanged{};
    each<four>([&](auto v) TENK_LAMBDA {
        constexpr int e = static_cast<int>(v) * 4, n = order;
        exchanged |=
            load<Mask<float>>(rowIndex + v * 16) ^ Mask<float>{e % n, (e + 1) % n, (e + 2) % n, (e + 3) % n};
    });
    bool inOrder = all(exchanged == Mask<float>{});
    each<entries % 4>([&](auto e) TENK_LAMBDA {
        constexpr std::size_t entry = four * 4 + e;
        inOrder &= rowAt(rowIndex, entry) == entry % order;
    });
    return inOrder;
}

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

// ---------------------------------------------------------------------------------------------------------------
// A group of objects side by side, for the batches of fixed size whose rows are adjacent
// ---------------------------------------------------------------------------------------------------------------

consteval bool luSolvesSideBySide(Member m)
{
    return m.batch() && !m.general() && isDense(m.layout);
}

// Groups that take turns: with one factor almost every operation waits for the one before. With a factor for
// each object, bringing the elements side by side is work enough meanwhile, and so are the tests of a list.
consteval unsigned luSolveTurns(Member m)
{
    return m.type == Type::f32 && m.layout == Layout::Standard && !m.operand[0].array ? 2 : 1;
}

template <typename T, unsigned n, unsigned turns>
TENK_INLINE void luSolve(const Vector<T> (&factor)[n][n], Vector<T> (&x)[turns][n])
{
    // The difference of unknown i and its sum from column `first` on.
    const auto subtract = [&](auto i, auto first, auto columns) TENK_LAMBDA {
        Vector<T> sum[turns];
        each<turns>([&](auto t) TENK_LAMBDA { sum[t] = broadcast<T>(0); });
        each<columns>([&](auto c) TENK_LAMBDA {
            constexpr std::size_t j = first + c;
            each<turns>([&](auto t) TENK_LAMBDA { sum[t] = sum[t] + factor[i][j] * x[t][j]; });
        });
        each<turns>([&](auto t) TENK_LAMBDA { x[t][i] = x[t][i] - sum[t]; });
    };
    const auto divide = [&](auto i) TENK_LAMBDA {
        each<turns>([&](auto t) TENK_LAMBDA { x[t][i] = x[t][i] / factor[i][i]; });
    };
    each<n - 1>([&](auto before) TENK_LAMBDA { subtract(index<before + 1>, index<0>, index<before + 1>); });
    divide(index<n - 1>);
    each<n - 1>([&](auto after) TENK_LAMBDA {
        constexpr std::size_t i = n - 2 - after;
        subtract(index<i>, index<i + 1>, index<n - 1 - i>);
        divide(index<i>);
    });
}

// The batch so many groups at a time.
template <Member m, unsigned turns>
struct LUSolveGroups
{
    using T = Element<m>;
    static constexpr unsigned n = m.size, objects = turns * group<T>;
    static constexpr bool oneFactor = !m.operand[0].array;
    static_assert(oneFactor || turns == 1);

    const Source<m, 0>& src1;
    const Source<m, 1>& src2;
    const Destination<m>& dst;
    Address rowIndex;
    Span<Source<m, 0>, n, n, objects> matrices{src1, false};
    Span<Source<m, 1>, 1, n, objects> rightSides{src2, false};
    Span<Destination<m>, 1, n, objects> results{dst, true};
    Vector<T> factor[n][n];  // in the order of the positions
    std::size_t position[n]; // those of one factor
    bool apart = false;      // throughout the batch
    bool loaded = false;     // which is done once

    TENK_INLINE LUSolveGroups(const Source<m, 0>& src1, Address rowIndex, const Source<m, 1>& src2,
                              const Destination<m>& dst, std::size_t count)
        : src1(src1), src2(src2), dst(dst), rowIndex(rowIndex)
    {
        apart = count > 0 && apartThroughout(src1, matrices, dst, results, count) &&
                apartThroughout(src2, rightSides, dst, results, count);
    }

    TENK_INLINE bool fit() const { return matrices.fits && rightSides.fits && results.fits; }

    // False if it has rows of its own.
    TENK_INLINE bool loadOneFactor()
    {
        if (!rowsInRange<n, n>(rowIndex))
            return false;
        const auto view = luFactor<m>(src1, 0, n);
        each<n>([&](auto i) TENK_LAMBDA {
            position[i] = rowAt(rowIndex, i);
            each<n>([&](auto j) TENK_LAMBDA { factor[i][j] = broadcast(load<T>(view.at(position[i], j))); });
        });
        return true;
    }

    // The group that begins with object k. False, with nothing written, if something could tell.
    TENK_INLINE bool solve(std::size_t k)
    {
        if (!noNullObject<objects>(k, src1, src2, dst))
            return false;
        const Side<Source<m, 0>, n, n, objects> a(src1, matrices, k);
        const Side<Source<m, 1>, 1, n, objects> b(src2, rightSides, k);
        const Side<Destination<m>, 1, n, objects> to(dst, results, k);
        if (!to.eachApart() || (!apart && (!mayReadFirst(a, to, false) || !mayReadFirst(b, to, false))))
            return false;
        Vector<T> x[turns][n];
        if constexpr (oneFactor) {
            if (!loaded && !loadOneFactor())
                return false;
            loaded = true;
            each<turns>([&](auto t) TENK_LAMBDA {
                Vector<T> rightSide[n];
                loadSideBySide<n>(b.rowOfEach(0, t * group<T>), rightSide);
                each<n>([&](auto i) TENK_LAMBDA { x[t][i] = rightSide[position[i]]; });
            });
        } else {
            const Address first = rowIndex + k * n * sizeof(std::uint32_t);
            if (rowsInOrder<n, n * objects>(first)) {
                loadMatrices(a, factor);
                loadSideBySide<n>(b.rowOfEach(0), x[0]);
            } else if (rowsInRange<n, n * objects>(first)) {
                each<n>([&](auto i) TENK_LAMBDA {
                    const auto row = [&](std::size_t g) TENK_LAMBDA { return rowAt(first, g * n + i); };
                    const auto ofFactor = [&](std::size_t g) TENK_LAMBDA { return a.object[g].row(row(g)); };
                    const auto ofRightSide = [&](std::size_t g)
                                                 TENK_LAMBDA { return b.object[g].at(0, row(g)); };
                    loadSideBySide<n>(Addresses<T>::make(ofFactor), factor[i]);
                    x[0][i] = gather(Addresses<T>::make(ofRightSide));
                });
            } else {
                return false;
            }
        }
        luSolve<T>(factor, x);
        each<turns>([&](auto t) TENK_LAMBDA { storeSideBySide<n>(to.rowOfEach(0, t * group<T>), x[t]); });
        return true;
    }
};

template <Member m, unsigned turns>
TENK_INLINE auto luSolveGroups(const Source<m, 0>& src1, Address rowIndex, const Source<m, 1>& src2,
                               const Destination<m>& dst, std::size_t count)
{
    if constexpr (luSolvesSideBySide(m))
        return LUSolveGroups<m, turns>(src1, rowIndex, src2, dst, count);
    else
        return Nothing{};
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
    [[maybe_unused]] auto inTurns = luSolveGroups<m, luSolveTurns(m)>(src1, rows, src2, dst, count);
    [[maybe_unused]] auto alone = luSolveGroups<m, 1>(src1, rows, src2, dst, count);
    for (std::size_t k = 0; k < count; ++k) {
        if constexpr (luSolvesSideBySide(m)) {
            const auto all = [&](auto& groups) TENK_LAMBDA {
                while (groups.fit() && count - k >= groups.objects && groups.solve(k))
                    k += groups.objects;
            };
            if constexpr (luSolveTurns(m) > 1)
                all(inTurns);
            all(alone);
            if (k == count)
                break;
        }
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const Address indexOfObject = m.operand[0].array ? rows + k * order * sizeof(std::uint32_t) : rows;
        luSolve<m>(luFactor<m>(src1, k, order), indexOfObject, src2.object(k, order), dst.object(k, order),
                   order);
    }
    return tenkOk;
}

} // namespace tenk
