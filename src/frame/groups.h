// Groups of objects of a batch: which of them may stand side by side, and where they are.
//
// A group is read as a whole before any of it is written. That is done only where nobody can tell it from
// finishing one object after the other: not by the results, not by the memory that is read or written.
#pragma once

#include "frame/bytes.h"
#include "frame/side_by_side.h"

namespace tenk {

// The bytes of an object of n adjacent elements in each of some rows.
template <typename T>
TENK_INLINE Bytes bytesOf(const DenseView<T>& view, std::size_t rows, std::size_t n)
{
    const Address rest = times(rows - 1, view.rowStep), row = n * sizeof(T);
    if (view.rowStep < 0)
        return {view.start + rest, row - rest};
    return {view.start, row + rest};
}

// No row of an object lies in another one.
template <typename T>
TENK_INLINE bool rowsApart(Displacement rowStep, std::size_t n)
{
    const auto row = static_cast<Displacement>(n * sizeof(T));
    return rowStep >= row || rowStep <= -row;
}

// The memory of the objects of one operand, each of them n adjacent elements in some rows: what is the same
// for the whole call.
template <typename O, unsigned rows, unsigned n, unsigned objects = group<typename O::Value>>
struct Span
{
    static constexpr unsigned size = O::single ? 1 : objects; // in a group

    // A few distances up to this one do not come round to where they began.
    static constexpr Displacement nearby = 1 << 26;

    Address offset, length; // the bytes of an object, from its start on
    Address below, reach;   // without a list, those of a group: from `below` under the first start on
    bool fits;              // no step is a long one; without a list, no object lies in another one

    TENK_INLINE explicit Span(const O& o, bool written)
    {
        const Displacement rowStep = rows == 1 ? 0 : o.stride1;
        const Address rest = times(rows - 1, rowStep), row = n * sizeof(typename O::Value);
        offset = rowStep < 0 ? rest : 0;
        length = rowStep < 0 ? row - rest : row + rest;
        below = offset;
        reach = length;
        fits = isShort(rowStep);
        if constexpr (!O::list && !O::single) {
            const Address step = static_cast<Address>(o.stride0), others = (size - 1) * step;
            below += o.stride0 < 0 ? others : 0;
            reach += o.stride0 < 0 ? 0 - others : others;
            const auto bytes = static_cast<Displacement>(length);
            fits &= isShort(o.stride0) && (!written || o.stride0 >= bytes || o.stride0 <= -bytes);
        }
    }
    TENK_INLINE static bool isShort(Displacement d) { return d >= -nearby && d <= nearby; }
};

// Whether no object of an operand lies in one of another, of a whole batch. Without an answer, as for lists,
// no.
template <typename A, typename SpanA, typename B, typename SpanB>
TENK_INLINE bool apartThroughout(const A& a, const SpanA& spanA, const B& b, const SpanB& spanB,
                                 std::size_t count)
{
    if constexpr (A::list || B::list) {
        return false;
    } else {
        constexpr std::uint64_t limit = 1U << 30; // which no sum below comes round
        const auto bytes = [&](const auto& o, const auto& span, std::uint64_t& length) TENK_LAMBDA {
            const bool back = o.stride0 < 0;
            const std::uint64_t step = static_cast<Address>(back ? -o.stride0 : o.stride0);
            const std::uint64_t others = o.single ? 0 : (count - 1) * step;
            length = others + span.length;
            return Bytes{o.p + span.offset - (back ? static_cast<Address>(others) : 0),
                         static_cast<Address>(length)};
        };
        std::uint64_t lengthA, lengthB;
        const Bytes bytesA = bytes(a, spanA, lengthA), bytesB = bytes(b, spanB, lengthB);
        return lengthA <= limit && lengthB <= limit && apart(bytesA, bytesB);
    }
}

// The objects of a group in one operand.
template <typename O, unsigned rows, unsigned n, unsigned objects = group<typename O::Value>>
struct Side
{
    using T = typename O::Value;
    using Reach = Span<O, rows, n, objects>;
    static constexpr unsigned size = Reach::size;

    const Reach& span;
    DenseView<T> object[size];

    // The list, if there is one, has no null entry for the group.
    TENK_INLINE Side(const O& o, const Reach& span, std::size_t k) : span(span)
    {
        object[0] = o.object(k, n);
        each<size - 1>([&](auto g) TENK_LAMBDA {
            if constexpr (O::list)
                object[g + 1] = o.object(k + g + 1, n);
            else
                object[g + 1] = {object[g].start + static_cast<Address>(o.stride0), o.stride1};
        });
    }

    // Row i of each, or of as many as a vector has lanes, from object `first` on.
    TENK_INLINE Addresses<T> rowOfEach(std::size_t i, std::size_t first = 0) const
    {
        return Addresses<T>::make([&](std::size_t g) TENK_LAMBDA { return object[first + g].row(i); });
    }
    TENK_INLINE Bytes bytesOf(std::size_t g) const { return {object[g].start + span.offset, span.length}; }

    // From the first byte of all to the last; nothing if that is too many.
    TENK_INLINE bool together(Bytes& bytes) const
    {
        if constexpr (O::list) {
            Address low = object[0].start, high = low;
            each<size - 1>([&](auto g) TENK_LAMBDA {
                const Address start = object[g + 1].start;
                low = start < low ? start : low;
                high = start > high ? start : high;
            });
            bytes = {low + span.offset, high - low + span.length};
            return high - low <= Address{span.nearby};
        } else {
            bytes = {object[0].start + span.below, span.reach};
            return true;
        }
    }

    // No object lies in another one.
    TENK_INLINE bool eachApart() const
    {
        bool all = true;
        if constexpr (O::list) { // otherwise a matter of the step
            if (eachBehindTheLast())
                return true;
            each<size>([&](auto g) TENK_LAMBDA {
                each<g>([&](auto earlier) TENK_LAMBDA { all &= apart(bytesOf(earlier), bytesOf(g)); });
            });
        }
        return all;
    }
    // Steps up to `nearby` and their objects are too short, all together, to come round to the first.
    TENK_INLINE bool eachBehindTheLast() const
    {
        bool all = true;
        each<size - 1>([&](auto g) TENK_LAMBDA {
            all &= object[g + 1].start - object[g].start - span.length <= Address{span.nearby};
        });
        return all;
    }

    // Whether all may be read although the call could end before it comes to the second one: they lie in the
    // pages of the first, which is read in any case.
    TENK_INLINE bool onPagesOfFirst() const
    {
        Bytes all;
        const Bytes first = bytesOf(0);
        return together(all) && span.length <= page && onOnePage(all.first, first.first) &&
               onOnePage(all.last(), first.last());
    }
};

// As many matrices of a group as a vector has lanes, from object `first` on: a[i][j] holds element (i, j) of
// each. Without a gap between its rows a matrix is one long row.
template <typename O, unsigned n, unsigned objects>
TENK_INLINE bool isOneRow(const Side<O, n, n, objects>& side)
{
    return side.object[0].rowStep == n * sizeof(typename O::Value);
}
template <typename O, unsigned n, unsigned objects>
TENK_INLINE void loadMatrices(const Side<O, n, n, objects>& side, Vector<typename O::Value> (&a)[n][n],
                              std::size_t first = 0)
{
    if (isOneRow(side))
        loadSideBySide<n * n>(side.rowOfEach(0, first), a[0]);
    else
        each<n>([&](auto i) TENK_LAMBDA { loadSideBySide<n>(side.rowOfEach(i, first), a[i]); });
}
template <typename O, unsigned n, unsigned objects>
TENK_INLINE void storeMatrices(const Side<O, n, n, objects>& side, const Vector<typename O::Value> (&a)[n][n],
                               std::size_t first = 0)
{
    if (isOneRow(side))
        storeSideBySide<n * n>(side.rowOfEach(0, first), a[0]);
    else
        each<n>([&](auto i) TENK_LAMBDA { storeSideBySide<n>(side.rowOfEach(i, first), a[i]); });
}

// Whether nothing tells reading all objects of a group first from finishing one after the other, for sides
// that fit and results that lie apart. `sameObject`: an object is read before its result is written, so the
// two may be the same memory.
template <typename Read, typename Written>
TENK_INLINE bool mayReadFirst(const Read& read, const Written& written, bool sameObject)
{
    Bytes in, out;
    if (read.together(in) && written.together(out) && apart(in, out))
        return true;
    bool safe = true;
    each<Read::size>([&](auto g) TENK_LAMBDA {
        each<Read::size == 1 ? Written::size : g + 1>([&](auto earlier) TENK_LAMBDA {
            if (!sameObject || earlier != g)
                safe &= apart(written.bytesOf(earlier), read.bytesOf(g));
        });
    });
    return safe;
}

// The entries of a group in a list lie on one page.
template <unsigned objects, typename O>
TENK_INLINE bool entriesOnOnePage(const O& o, std::size_t k)
{
    const Address first = o.p + k * sizeof(Address);
    return !O::list || onOnePage(first, first + objects * sizeof(Address) - 1);
}

// No list has a null entry for the group that begins with object k.
template <unsigned objects, typename... O>
TENK_INLINE bool noNullObject(std::size_t k, const O&... operands)
{
    for (std::size_t g = 0; g < objects; ++g)
        if (anyNullObject(k + g, operands...))
            return false;
    return true;
}

// Matrices of fixed order to be read and then written, as groups.
template <Member m, unsigned objects>
struct Matrices
{
    static constexpr unsigned n = m.size;
    Span<Source<m>, n, n, objects> from;
    Span<Destination<m>, n, n, objects> to;
    using Sources = Side<Source<m>, n, n, objects>;
    using Results = Side<Destination<m>, n, n, objects>;
    const Source<m>& src;
    const Destination<m>& dst;

    TENK_INLINE Matrices(const Source<m>& src, const Destination<m>& dst)
        : from(src, false), to(dst, true), src(src), dst(dst)
    {
    }
    TENK_INLINE bool fit() const { return from.fits && to.fits; }

    // use(sources, results) for the group that begins with object k, or false if something could tell.
    template <typename F>
    TENK_INLINE bool group(std::size_t k, F use) const
    {
        if (!entriesOnOnePage<objects>(src, k) || !entriesOnOnePage<objects>(dst, k) ||
            !noNullObject<objects>(k, src, dst))
            return false;
        const Sources sources(src, from, k);
        const Results results(dst, to, k);
        if (!sources.onPagesOfFirst() || !results.eachApart() || !mayReadFirst(sources, results, true))
            return false;
        return use(sources, results);
    }
};

} // namespace tenk
