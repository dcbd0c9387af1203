// LUBackSubst for batches of fixed size whose rows are adjacent: groups of objects side by side.
#pragma once

#include "frame/groups.h"
#include "frame/lists.h"
#include "lu/factor.h"

namespace tenk {

consteval bool luSolvesSideBySide(Member m)
{
    return m.batch() && !m.general() && isDense(m.layout);
}

// How the rows of the factors lie. Where they have no gaps, no list has a shift either.
enum class Rows
{
    plain,   // in the order of the positions, without gaps
    gapless, // in any order, without gaps
    any
};
template <Rows rows>
struct RowsTag
{
};

// Groups that take turns: in a solution almost every operation waits for the one before. Four of them want
// small objects that are quickly loaded: others run out of registers.
consteval unsigned luSolveTurns(Member m, Rows rows)
{
    const bool oneFactor = !m.operand[0].array, plain = rows == Rows::plain && !isList(m.layout);
    return m.type == Type::f32 && m.size <= 4 && (oneFactor || plain) ? 4 : 2;
}

// Calls meanwhile(i) for each position i once nothing of its row is needed any more: for work that does not
// have to wait.
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
        meanwhile(i);
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
    // Whether the entries of rowIndex are rows, and those where they should be.
    template <Rows rows>
    TENK_INLINE bool haveRows(std::size_t k) const
    {
        constexpr unsigned entries = oneFactor ? n : n * objects;
        if constexpr (rows == Rows::plain)
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

    // The starts of as many objects as a vector has lanes. Where they are a step apart, one or two of them
    // are enough; the compiler would keep them all, in registers that it has not.
    template <Rows rows, typename O>
    TENK_INLINE static Addresses<T> startsOf(const O& o, std::size_t k)
    {
        const Address first = inRegister(o.list ? 0 : o.object(k, 0).start);
        const Address second = inRegister(first + times(1, o.stride0));
        return Addresses<T>::make([&](std::size_t g) TENK_LAMBDA {
            if constexpr (O::list)
                return rows == Rows::any ? o.object(k + g, 0).start : o.entry(k + g);
            else if constexpr (rows == Rows::plain || oneFactor)
                return first + times(g, o.stride0);
            else
                return (g % 2 == 0 ? first : second) + times(g - g % 2, o.stride0);
        });
    }

    // Row i of the objects from k on, and what of the right-hand sides belongs to it.
    template <Rows rows, std::size_t i>
    TENK_INLINE void load(std::size_t k, Index<i>, Systems& to) const
    {
        each<turns>([&](auto t) TENK_LAMBDA {
            const std::size_t first = k + t * group<T>;
            const auto b = startsOf<rows>(src2, first);
            if constexpr ((oneFactor || rows == Rows::plain) && i == n - 1)
                loadSideBySide<n>(b, to.rightSide[t]);
            if constexpr (!oneFactor) {
                const auto a = startsOf<rows>(src1, first);
                Addresses<T> row;
                if constexpr (rows == Rows::plain) {
                    row = behind<T>(a, i * n * sizeof(T));
                } else {
                    const Displacement step = rows == Rows::gapless ? n * sizeof(T) : src1.stride1;
                    const auto rowOf = [&](std::size_t g)
                                           TENK_LAMBDA { return rowAt(rowsOf(first), g * n + i); };
                    to.rightSide[t][i] = elementOfEach(Addresses<T>::make(
                        [&](std::size_t g) TENK_LAMBDA { return b.of[g] + rowOf(g) * sizeof(T); }));
                    row = Addresses<T>::make([&](std::size_t g)
                                                 TENK_LAMBDA { return a.of[g] + times(rowOf(g), step); });
                }
                loadSideBySide<n>(row, to.factor[t][i]);
            }
        });
    }
    template <Rows rows>
    TENK_INLINE void load(std::size_t k, Systems& to) const
    {
        each<n>([&](auto i) TENK_LAMBDA { load<rows>(k, i, to); });
    }

    // Solves and stores the objects from k on.
    template <Rows rows, typename F>
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
        each<turns>([&](auto t)
                        TENK_LAMBDA { storeSideBySide<n>(startsOf<rows>(dst, k + t * group<T>), x[t]); });
    }

    // Whether nothing tells that the group from object k on is read before any of it is written.
    TENK_INLINE bool mayReadFirst(std::size_t k) const
    {
        if (!shortSteps() || !areThere(k))
            return false;
        const Results to(dst, results, k);
        const auto apartFromResults = [&](const auto& read) TENK_LAMBDA {
            return apart || tenk::mayReadFirst(read, to, false);
        };
        return to.eachApart() && apartFromResults(Factors(src1, matrices, k)) &&
               apartFromResults(RightSides(src2, rightSides, k)) && haveRows<Rows::any>(k);
    }
    // From object k on, each group before the next one, as long as that is so. The object that is next.
    TENK_INLINE std::size_t inSequence(std::size_t k)
    {
        if (!mayReadFirst(k))
            return k;
        loadOneFactor();
        do {
            Systems systems;
            load<Rows::any>(k, systems);
            solve<Rows::any>(k, systems, [](auto) TENK_LAMBDA {});
            k += objects;
        } while (mayReadFirst(k));
        return k;
    }

    // The end of the groups from object k on of which nothing lies where one of their results does, or one
    // from object `written` on: so that nothing tells when they are read.
    template <Rows rows>
    TENK_INLINE std::size_t endOfReadable(std::size_t k, std::size_t written) const
    {
        constexpr std::size_t most = 256; // rowIndex and lists should still be near when they are read again
        const std::size_t end = count - k < most ? count : k + most;
        if constexpr (Destination<m>::list)
            return areThere(k) && haveRows<rows>(k) ? endOfReadableLists<rows>(k, written, end) : k;
        else
            return apart
                       ? passing(k, end, [&](std::size_t first) TENK_LAMBDA { return haveRows<rows>(first); })
                       : k;
    }
    // The end of the groups from object k on that pass a test.
    template <typename F>
    TENK_INLINE static std::size_t passing(std::size_t k, std::size_t end, F test)
    {
        while (end - k >= objects && test(k))
            k += objects;
        return k;
    }

    // In lists the results have to lie in ascending order, and all that is read of a list on one side of
    // them. Behind the entries of the first group, those on the same pages are readable as well.
    template <Rows rows>
    TENK_INLINE std::size_t endOfReadableLists(std::size_t k, std::size_t written, std::size_t end) const
    {
        const auto onPage = [&](const auto& o) TENK_LAMBDA {
            const std::size_t endOnPage = endOfPage(o.p, k + objects - 1);
            end = o.list && endOnPage < end ? endOnPage : end;
        };
        onPage(src1);
        onPage(src2);
        onPage(dst);

        const Address low = dst.object(written, n).start, high = dst.object(end - 1, n).start;
        const Bytes all{low, high - low + results.length};
        const auto besidesAll = [&](const auto& o, const auto& span, Range& range) TENK_LAMBDA {
            if constexpr (std::remove_cvref_t<decltype(o)>::list)
                return besides(all, static_cast<Address>(o.shift) + span.offset, span.length, o.entry(k),
                               range);
            else
                return tenk::apart(all, {o.p + span.offset, span.length});
        };
        Range ofMatrices{}, ofRightSides{};
        if (high < low || !besidesAll(src1, matrices, ofMatrices) ||
            !besidesAll(src2, rightSides, ofRightSides))
            return k;

        using Group = Entries<objects>;
        const auto entries = [&](const auto& o, std::size_t first)
                                 TENK_LAMBDA { return Group::load(o.p + first * sizeof(Address)); };
        constexpr Address nearby = 1 << 22; // that of all does not come round
        const auto isNotBehind = [&](auto entry, auto last) TENK_LAMBDA {
            return areNotBehind(entry, last, results.length, nearby);
        };
        const Group inFrontOfAll = entries(dst, written).inFront(results.length);
        const std::size_t readable = passing(k, end, [&](std::size_t first) TENK_LAMBDA {
            const Address inFront = first == written ? reinterpret_cast<Address>(&inFrontOfAll)
                                                     : dst.p + (first - 1) * sizeof(Address);
            AddressVector answers = entries(dst, first).test(isNotBehind, Group::load(inFront));
            const auto areBeside = [&](const auto& o, const Range& range) TENK_LAMBDA {
                if constexpr (std::remove_cvref_t<decltype(o)>::list)
                    answers |= entries(o, first).test([&](auto entry)
                                                          TENK_LAMBDA { return areOutside(entry, range); });
            };
            areBeside(src1, ofMatrices);
            areBeside(src2, ofRightSides);
            return !any(answers) && haveRows<rows>(first);
        });
        const bool amongAll = readable > k && dst.object(readable - 1, n).start - low <= high - low;
        return amongAll ? readable : k;
    }

    // From object k on, as long as that is so; while groups are solved the next ones are loaded.
    template <Rows rows>
    TENK_INLINE std::size_t readingAhead(std::size_t k)
    {
        const bool tight = src1.stride1 == n * sizeof(T) && (src1.shift | src2.shift | dst.shift) == 0;
        std::size_t end = (rows == Rows::any || tight) && shortSteps() ? endOfReadable<rows>(k, k) : k;
        if (end == k)
            return k;
        loadOneFactor();
        Systems systems;
        load<rows>(k, systems);
        for (;; k += objects) {
            const std::size_t next = k + objects;
            if (next == end)
                end = endOfReadable<rows>(next, k);
            if (next == end)
                break;
            if constexpr (fewRegisters)
                keepInMemory(systems);
            solve<rows>(k, systems, [&](auto i) TENK_LAMBDA { load<rows>(next, i, systems); });
        }
        solve<rows>(k, systems, [](auto) TENK_LAMBDA {});
        return end;
    }
};

// The objects at the beginning of a batch that can be solved side by side. Returns how many.
template <Member m>
TENK_INLINE std::size_t luSolveInTurns(const Source<m, 0>& src1, Address rowIndex, const Source<m, 1>& src2,
                                       const Destination<m>& dst, std::size_t count)
{
    std::size_t k = 0;
    const auto readAhead = [&]<Rows rows>(RowsTag<rows>) TENK_LAMBDA {
        LUSolveGroups<m, luSolveTurns(m, rows)> groups(src1, rowIndex, src2, dst, count);
        k = groups.template readingAhead<rows>(k);
    };
    if constexpr (m.operand[0].array) {
        readAhead(RowsTag<Rows::plain>{});
        readAhead(RowsTag<Rows::gapless>{});
    }
    readAhead(RowsTag<Rows::any>{});
    if (k == count)
        return k;
    LUSolveGroups<m, 1> alone(src1, rowIndex, src2, dst, count);
    return alone.inSequence(k);
}

} // namespace tenk
