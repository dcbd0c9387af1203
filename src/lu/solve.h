// LUBackSubst: solves A x = b with the factors and the rowIndex of LUDecomp.
//
// Forward substitution builds y in dst, backward substitution turns it into x there. The sum of an unknown
// starts at +0 and runs over ascending columns, each product rounded and then the sum; it is subtracted once,
// and the backward difference is divided by the pivot. The entries of rowIndex are used as they stand.
#pragma once

#include "frame/groups.h"
#include "frame/lists.h"

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
    constexpr bool bitsTell = (order & (order - 1)) == 0; // those of all rows together
    const auto tooLarge = [](Mask<float> rows)
                              TENK_LAMBDA { return rows > Mask<float>{} + static_cast<int>(order - 1); };
    Mask<float> outside{}; // by its sign
    each<four>([&](auto v) TENK_LAMBDA {
        const auto rows = load<Mask<float>>(rowIndex + v * 16);
        outside |= bitsTell ? rows : rows | tooLarge(rows);
    });
    if constexpr (bitsTell)
        outside |= tooLarge(outside);
    bool inRange = !any(outside);
    each<entries % 4>([&](auto e) TENK_LAMBDA { inRange &= rowAt(rowIndex, four * 4 + e) < order; });
    return inRange;
}

// Whether entries of rowIndex are the rows of objects in their order, so that nothing was exchanged.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInOrder(Address rowIndex)
{
    static_assert(entries % 4 == 0);
    const auto row = [](std::size_t e) TENK_LAMBDA { return static_cast<int>(e % order); };
    Mask<float> difference{};
    each<entries / 4>([&](auto v) TENK_LAMBDA {
        constexpr std::size_t e = v * 4;
        difference |= load<Mask<float>>(rowIndex + e * sizeof(std::uint32_t)) ^
                      Mask<float>{row(e), row(e + 1), row(e + 2), row(e + 3)};
    });
    return !any(difference != Mask<float>{});
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

// Groups that take turns: in a solution almost every operation waits for the one before. Four of them want
// one factor for all, and a small one: they have to find registers.
consteval unsigned luSolveTurns(Member m)
{
    const bool oneFactor = !m.operand[0].array;
    return m.type == Type::f32 && m.size <= 4 && oneFactor ? 4 : 2;
}

// Calls meanwhile(i) for each position i on the way: work that does not have to wait.
template <typename T, unsigned n, unsigned factors, unsigned turns, typename F>
TENK_INLINE void luSolve(const Vector<T> (&factor)[factors][n][n], Vector<T> (&x)[turns][n], F meanwhile)
{
    const auto element = [&](auto t, auto i, auto j)
                             TENK_LAMBDA { return factor[factors == 1 ? 0 : t][i][j]; };
    // The difference of unknown i and its sum from column `first` on.
    const auto subtract = [&](auto i, auto first, auto columns) TENK_LAMBDA {
        Vector<T> sum[turns];
        each<turns>([&](auto t) TENK_LAMBDA { sum[t] = broadcast<T>(0); });
        each<columns>([&](auto c) TENK_LAMBDA {
            constexpr std::size_t j = first + c;
            each<turns>([&](auto t) TENK_LAMBDA { sum[t] = sum[t] + element(t, i, j) * x[t][j]; });
        });
        each<turns>([&](auto t) TENK_LAMBDA { x[t][i] = x[t][i] - sum[t]; });
    };
    const auto divide = [&](auto i) TENK_LAMBDA {
        each<turns>([&](auto t) TENK_LAMBDA { x[t][i] = x[t][i] / element(t, i, i); });
    };
    each<n - 1>([&](auto before) TENK_LAMBDA { subtract(index<before + 1>, index<0>, index<before + 1>); });
    meanwhile(index<0>);
    divide(index<n - 1>);
    each<n - 1>([&](auto after) TENK_LAMBDA {
        constexpr std::size_t i = n - 2 - after;
        meanwhile(index<after + 1>);
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
    using Factors = Side<Source<m, 0>, n, n, objects>;
    using RightSides = Side<Source<m, 1>, 1, n, objects>;
    using Results = Side<Destination<m>, 1, n, objects>;

    // What is read of the objects, in the order of the positions; with one factor the right-hand sides alone,
    // in the order of the rows.
    struct Systems
    {
        Vector<T> rightSide[turns][n];
        Vector<T> factor[turns][n][n];
    };

    const Source<m, 0>& src1;
    const Source<m, 1>& src2;
    const Destination<m>& dst;
    Address rowIndex;
    std::size_t count;
    typename Factors::Reach matrices{src1, false};
    typename RightSides::Reach rightSides{src2, false};
    typename Results::Reach results{dst, true};
    bool apart = false;        // throughout the batch
    Vector<T> factor[1][n][n]; // the one factor, in the order of the positions
    std::size_t position[n];   // and those

    TENK_INLINE LUSolveGroups(const Source<m, 0>& src1, Address rowIndex, const Source<m, 1>& src2,
                              const Destination<m>& dst, std::size_t count)
        : src1(src1), src2(src2), dst(dst), rowIndex(rowIndex), count(count)
    {
        apart = count > 0 && apartThroughout(src1, matrices, dst, results, count) &&
                apartThroughout(src2, rightSides, dst, results, count);
    }

    TENK_INLINE bool shortSteps() const { return matrices.fits && rightSides.fits && results.fits; }
    // Whether as many objects are there, and no list has a null entry for them.
    TENK_INLINE bool areThere(std::size_t k) const
    {
        return count - k >= objects && noNullObject<objects>(k, src1, src2, dst);
    }

    TENK_INLINE Address rowsOf(std::size_t k) const
    {
        return oneFactor ? rowIndex : rowIndex + k * n * sizeof(std::uint32_t);
    }
    // Whether the entries of rowIndex are rows, and those in order.
    template <bool inOrder>
    TENK_INLINE bool haveRows(std::size_t k) const
    {
        constexpr unsigned entries = oneFactor ? n : n * objects;
        if constexpr (inOrder)
            return rowsInOrder<n, entries>(rowsOf(k));
        else
            return rowsInRange<n, entries>(rowsOf(k));
    }

    // The one factor, which stays as it is as long as groups are solved.
    TENK_INLINE void loadOneFactor()
    {
        if constexpr (oneFactor) {
            const auto view = luFactor<m>(src1, 0, n);
            each<n>([&](auto i) TENK_LAMBDA {
                position[i] = rowAt(rowIndex, i);
                each<n>([&](auto j) TENK_LAMBDA {
                    factor[0][i][j] = broadcast(tenk::load<T>(view.at(position[i], j)));
                });
            });
        }
    }

    // A part of the loading of the objects from k on: as many parts as positions. `inOrder`: position i is
    // row i of all of them.
    template <bool inOrder, std::size_t part>
    TENK_INLINE void load(std::size_t k, Index<part>, Systems& to) const
    {
        each<turns>([&](auto s) TENK_LAMBDA {
            constexpr std::size_t t = (part * turns + s) / n, i = (part * turns + s) % n;
            const std::size_t first = k + t * group<T>;
            const auto b = startsOf(src2, first);
            if constexpr ((oneFactor || inOrder) && i == 0)
                loadSideBySide<n>(b, to.rightSide[t]);
            if constexpr (!oneFactor) {
                const auto a = startsOf(src1, first);
                Addresses<T> row;
                if constexpr (inOrder) {
                    row = behind<T>(a, times(i, src1.stride1));
                } else {
                    const auto rowOf = [&](std::size_t g)
                                           TENK_LAMBDA { return rowAt(rowsOf(first), g * n + i); };
                    to.rightSide[t][i] = elementOfEach(Addresses<T>::make(
                        [&](std::size_t g) TENK_LAMBDA { return b.of[g] + rowOf(g) * sizeof(T); }));
                    row = Addresses<T>::make(
                        [&](std::size_t g) TENK_LAMBDA { return a.of[g] + times(rowOf(g), src1.stride1); });
                }
                loadSideBySide<n>(row, to.factor[t][i]);
            }
        });
    }
    template <bool inOrder>
    TENK_INLINE void load(std::size_t k, Systems& to) const
    {
        each<n>([&](auto part) TENK_LAMBDA { load<inOrder>(k, part, to); });
    }

    // Solves and stores the objects from k on.
    template <typename F>
    TENK_INLINE void solve(std::size_t k, const Systems& systems, F meanwhile) const
    {
        Vector<T> x[turns][n];
        each<turns>([&](auto t) TENK_LAMBDA {
            each<n>([&](auto i) TENK_LAMBDA { x[t][i] = systems.rightSide[t][oneFactor ? position[i] : i]; });
        });
        if constexpr (oneFactor)
            luSolve<T>(factor, x, meanwhile);
        else
            luSolve<T>(systems.factor, x, meanwhile);
        const Results to(dst, results, k);
        each<turns>([&](auto t) TENK_LAMBDA { storeSideBySide<n>(to.rowOfEach(0, t * group<T>), x[t]); });
    }

    // From object k on, each group before the next one, as long as nothing could tell. The object that is
    // next.
    TENK_INLINE std::size_t inSequence(std::size_t k)
    {
        for (bool loaded = false; shortSteps() && areThere(k); k += objects) {
            const Factors a(src1, matrices, k);
            const RightSides b(src2, rightSides, k);
            const Results to(dst, results, k);
            if (!to.eachApart() || (!apart && (!mayReadFirst(a, to, false) || !mayReadFirst(b, to, false))) ||
                !haveRows<false>(k))
                break;
            if (!loaded)
                loadOneFactor();
            loaded = true;
            Systems systems;
            load<false>(k, systems);
            solve(k, systems, [](auto) TENK_LAMBDA {});
        }
        return k;
    }

    // Whether nothing could tell that the objects from k on are read before the results from object `written`
    // on are written.
    template <bool inOrder>
    TENK_INLINE bool mayReadAhead(std::size_t k, std::size_t written) const
    {
        if (count - k < objects || !shortSteps())
            return false;
        if constexpr (Destination<m>::list) {
            if (!listsAllowReadingAhead(k, written))
                return false;
        } else if (!apart) {
            return false;
        }
        return haveRows<inOrder>(k);
    }

    // In lists the results have to lie in ascending order, with nothing in between that is read. A list is
    // looked at when those before it have no null entry, and at once where its entries lie on one page, which
    // is read in any case.
    TENK_INLINE bool listsAllowReadingAhead(std::size_t k, std::size_t written) const
    {
        using Group = Entries<objects>;
        const auto entries = [&](const auto& o, std::size_t first)
                                 TENK_LAMBDA { return Group::load(o.p + first * sizeof(Address)); };
        const auto anyNull = [&](const auto& o) TENK_LAMBDA {
            return o.list && entries(o, k).any([](auto entry) TENK_LAMBDA { return areNull(entry); });
        };
        const bool onePage = entriesOnOnePage<objects>(src1, k) && entriesOnOnePage<objects>(src2, k) &&
                             entriesOnOnePage<objects>(dst, k);
        if (onePage ? anyNull(src1) || anyNull(src2) || anyNull(dst) : !areThere(k))
            return false;

        const Group those = entries(dst, k);
        const auto isNotBehind = [&](auto entry, auto last) TENK_LAMBDA {
            return areNotBehind(entry, last, results.length, Address{results.nearby});
        };
        if (those.any(isNotBehind, k == written ? those.inFront(results.length) : entries(dst, k - 1)))
            return false;
        const Address first = dst.object(written, n).start;
        const Bytes all{first, dst.object(k + objects - 1, n).start + results.length - first};
        const auto meetsAll = [&](const auto& o, const auto& span) TENK_LAMBDA {
            const Address offset = static_cast<Address>(o.shift) + span.offset;
            if constexpr (std::remove_cvref_t<decltype(o)>::list)
                return entries(o, k).any(
                    [&](auto entry) TENK_LAMBDA { return areNotApart(entry + offset, span.length, all); });
            else
                return !tenk::apart(all, {o.p + span.offset, span.length});
        };
        return !meetsAll(src1, matrices) && !meetsAll(src2, rightSides);
    }

    // The same, but while groups are solved the next ones are loaded.
    template <bool inOrder>
    TENK_INLINE std::size_t readingAhead(std::size_t k)
    {
        if (!mayReadAhead<inOrder>(k, k))
            return k;
        loadOneFactor();
        Systems systems[2];
        load<inOrder>(k, systems[0]);
        const auto step = [&](const Systems& now, Systems& then) TENK_LAMBDA {
            const std::size_t next = k + objects;
            const bool more = mayReadAhead<inOrder>(next, k);
            if (more) {
                solve(k, now, [&](auto part) TENK_LAMBDA { load<inOrder>(next, part, then); });
            } else {
                solve(k, now, [](auto) TENK_LAMBDA {});
            }
            k = next;
            return more;
        };
        while (step(systems[0], systems[1]) && step(systems[1], systems[0])) {
        }
        return k;
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
            if constexpr (m.operand[0].array)
                k = inTurns.template readingAhead<true>(k);
            k = inTurns.template readingAhead<false>(k);
            k = alone.inSequence(k);
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
