// What the products of matrices and vectors share: how a factor is read, and whether operands lie apart.
#pragma once

#include <cstdint>

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

// Whether a member has the operand codes of another one.
consteval bool hasCodesOf(Member m, Member like)
{
    for (unsigned i = 0; i < 3; ++i)
        if (m.operand[i] != like.operand[i])
            return false;
    return m.root == like.root;
}

// ---------------------------------------------------------------------------------------------------------------
// Elements of a factor
// ---------------------------------------------------------------------------------------------------------------

// Element (i, j) of a factor, which is the element (j, i) of the stored object if the factor is transposed.
template <bool transposed, typename View>
TENK_INLINE Address elementOf(const View& view, std::size_t i, std::size_t j)
{
    return transposed ? view.at(j, i) : view.at(i, j);
}

// Whether the table has no address for that element.
template <bool transposed, typename View>
TENK_INLINE bool isNullElement(const View& view, std::size_t i, std::size_t j)
{
    return transposed ? view.isNull(j, i) : view.isNull(i, j);
}

// Rows of n adjacent elements without gaps between them, so that no row needs an address of its own.
template <typename T, unsigned n>
struct PackedView
{
    Address start;
    static constexpr Displacement rowStep = n * sizeof(T);

    TENK_INLINE Address row(std::size_t i) const { return start + i * (n * sizeof(T)); }
    TENK_INLINE Address at(std::size_t i, std::size_t j) const { return row(i) + j * sizeof(T); }
};

// Members that look for gaps. Larger objects have arithmetic enough to hide the addresses of their rows.
consteval bool knowsPacked(Member m)
{
    return m.batch() && isDense(m.layout) && (m.size == 3 || m.size == 4);
}

// Whether the rows of operands of order n have no gaps between them. A vector has one row.
template <unsigned n, typename... O>
TENK_INLINE bool arePacked(const O&... operands)
{
    return ((operands.stride1 == n * sizeof(typename O::Value)) && ...);
}

// A row that is complete here. The compiler would like to put off sums until they are stored, and has no
// registers left for their terms then; and it takes elements out of a loaded row by way of a copy in memory.
template <typename T, unsigned n>
TENK_INLINE Row<T, n> inRegisters(Row<T, n> r)
{
    each<Row<T, n>::full>([&](auto v) TENK_LAMBDA { r.vector[v] = inRegister(r.vector[v]); });
    if constexpr (Row<T, n>::left != 0)
        r.rest = inRegister(r.rest);
    return r;
}

// Object k of an operand that may be known to be packed.
template <bool packed, unsigned n, typename O>
TENK_INLINE auto squareObject(const O& operand, std::size_t k)
{
    if constexpr (packed)
        return PackedView<typename O::Value, n>{operand.object(k, n).start};
    else
        return operand.object(k, n);
}

// The rows of a factor of order n, from rows of adjacent elements.
template <typename T, unsigned n, bool transposed, typename View>
TENK_INLINE Block<T, n> loadFactor(const View& view)
{
    if constexpr (transposed)
        return transpose(Block<T, n>::load(view));
    else
        return Block<T, n>::load(view);
}

// The row of the elements at f(0), ..., f(n - 1).
template <typename T, unsigned n, typename F>
TENK_INLINE Row<T, n> gatherRow(F f)
{
    using R = Row<T, n>;
    const auto at = [&](std::size_t j) TENK_LAMBDA { return load<T>(f(j)); };
    R r;
    each<R::full>([&](auto v) TENK_LAMBDA {
        if constexpr (lanes<T> == 4)
            r.vector[v] = Vector<T>{at(v * 4), at(v * 4 + 1), at(v * 4 + 2), at(v * 4 + 3)};
        else
            r.vector[v] = reinterpret_cast<Vector<T>>(loadHalves(f(v * 2), f(v * 2 + 1)));
    });
    constexpr unsigned whole = R::full * lanes<T>;
    if constexpr (R::left == 1) {
        r.rest = at(whole);
    } else if constexpr (R::left == 2) {
        const T x = at(whole), y = at(whole + 1);
        r.rest = Vector<T>{x, y, x, y};
    } else if constexpr (R::left == 3) {
        const T x = at(whole), y = at(whole + 1), z = at(whole + 2);
        r.rest = Vector<T>{x, y, y, z};
    }
    return r;
}

// The same lane in all lanes.
template <unsigned lane>
TENK_INLINE Vector<float> repeatLane(Vector<float> v)
{
    return shuffle<lane, lane, lane, lane>(v, v);
}
template <unsigned lane>
TENK_INLINE Vector<double> repeatLane(Vector<double> v)
{
    return shuffle<lane, lane>(v, v);
}

// Element p of a row in all lanes.
template <typename T, unsigned n, std::size_t p>
TENK_INLINE Vector<T> repeated(const Row<T, n>& row, Index<p>)
{
    using R = Row<T, n>;
    if constexpr (p / lanes<T> < R::full)
        return repeatLane<p % lanes<T>>(row.vector[p / lanes<T>]);
    else if constexpr (R::left == 1)
        return broadcast(row.rest);
    else
        return repeatLane<R::Tail::laneOf[p % lanes<T>]>(row.rest);
}

// And in all places of a row.
template <typename T, unsigned n, std::size_t p>
TENK_INLINE Row<T, n> repeatElement(const Row<T, n>& row, Index<p> index)
{
    using R = Row<T, n>;
    const auto v = repeated(row, index);
    R r;
    each<R::full>([&](auto i) TENK_LAMBDA { r.vector[i] = v; });
    if constexpr (R::left == 1)
        r.rest = v[0];
    else if constexpr (R::left != 0)
        r.rest = v;
    return r;
}

// ---------------------------------------------------------------------------------------------------------------
// Overlap
// ---------------------------------------------------------------------------------------------------------------

// The bytes from the first to the last of an object with rows of adjacent elements.
struct ByteRange
{
    std::int64_t first, end;
};

template <typename T>
TENK_INLINE ByteRange rangeOf(const DenseView<T>& view, std::uint32_t rows, std::uint32_t width)
{
    const std::int64_t start = static_cast<std::int64_t>(view.start);
    const std::int64_t reach = static_cast<std::int64_t>(rows - 1) * view.rowStep;
    return {start + (reach < 0 ? reach : 0),
            start + (reach > 0 ? reach : 0) + std::int64_t{width} * std::int64_t{sizeof(T)}};
}

// Whether no store to the one can be seen through the other. An object that runs over the end of the address
// space is not known to be apart from anything.
TENK_INLINE bool areApart(const ByteRange& a, const ByteRange& b)
{
    constexpr std::int64_t end = sizeof(Address) == 4 ? std::int64_t{1} << 32 : INT64_MAX;
    const bool whole = a.first >= 0 && b.first >= 0 && a.end <= end && b.end <= end;
    return whole && (a.end <= b.first || b.end <= a.first);
}

} // namespace tenk
