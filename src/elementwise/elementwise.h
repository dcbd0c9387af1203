// What the element-wise families share: dst(i, j) = f(a(i, j), b(i, j)) over the objects of a member, for one
// source or two, once its arguments have been tested. A vector is a matrix of one row.
//
//   plainObjects   element by element through the addresses of any layout
//   rowObjects     general sizes with adjacent elements, row by row
//   packedObjects  fixed sizes with adjacent elements, whole objects in vectors
//
// Objects come one after the other. General members read a single operand again for each object and keep the
// order of the plain loop, whatever overlaps; members of fixed size read it once, before the first object.
//
// f is called with one element, or one vector of elements, of each source.
#pragma once

#include "frame/checks.h"
#include "frame/long_vector.h"

namespace tenk {

// An object as the formula sees it: a transposed source is read through exchanged indices.
template <typename V, bool isTurned>
struct Seen
{
    static constexpr bool turned = isTurned;
    V view;

    TENK_INLINE Address at(std::size_t i, std::size_t j) const
    {
        if constexpr (turned)
            return view.at(j, i);
        else
            return view.at(i, j);
    }
};

// Object k of a source. The result is of `height` rows and `width` columns.
template <typename S>
TENK_INLINE auto seen(const S& src, std::size_t k, std::size_t width, std::size_t height)
{
    const auto view = src.object(k, S::transposed ? height : width);
    return Seen<std::remove_const_t<decltype(view)>, S::transposed>{view};
}

// Whether a member reads this source once and keeps it.
template <Member m, typename S>
inline constexpr bool isKept = S::single&& m.batch() && !m.general();

// Rows of a fixed size.
template <Member m>
inline constexpr unsigned fixedRows = m.destination().kind == 'v' ? 1 : m.size;

// ---------------------------------------------------------------------------------------------------------------
// Element by element
// ---------------------------------------------------------------------------------------------------------------

// Without an array, entries of tables are tested as they are reached. Both tables are tested at the place of
// the result: of a transposed source that is not the entry that is used.
template <Member m, typename F, typename To, typename... From>
TENK_INLINE tenkStatus plainObject(F f, std::size_t width, std::size_t height, const To& to,
                                   const From&... from)
{
    using T = Element<m>;
    for (std::size_t i = 0; i < height; ++i)
        for (std::size_t j = 0; j < width; ++j) {
            if constexpr (isTable(m.layout) && !m.batch())
                if ((from.view.isNull(i, j) || ...) || to.isNull(i, j))
                    return tenkNullPointerError;
            store<T>(to.at(i, j), f(load<T>(from.at(i, j))...));
        }
    return tenkOk;
}

// A single source, copied from its memory.
template <typename T, unsigned rows, unsigned columns, bool isTransposed>
struct Copied
{
    static constexpr bool list = false;
    static constexpr bool transposed = isTransposed;
    T element[rows * columns];

    TENK_INLINE DenseView<T> object(std::size_t, std::size_t) const
    {
        return {reinterpret_cast<Address>(element), columns * sizeof(T)};
    }
};

template <Member m, typename S>
TENK_INLINE auto copied(const S& src)
{
    using T = Element<m>;
    if constexpr (isKept<m, S>) {
        Copied<T, fixedRows<m>, m.size, S::transposed> copy;
        const auto from = src.object(0, m.size);
        const auto to = copy.object(0, m.size);
        for (std::size_t i = 0; i < fixedRows<m>; ++i)
            for (std::size_t j = 0; j < m.size; ++j)
                move<T>(to.at(i, j), from.at(i, j));
        return copy;
    } else {
        return src;
    }
}

template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus plainLoop(F f, Destination<m> dst, std::size_t width, std::size_t height,
                                 std::size_t count, const S&... src)
{
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src..., dst))
            return tenkNullPointerError;
        if (const tenkStatus status =
                plainObject<m>(f, width, height, dst.object(k, width), seen(src, k, width, height)...);
            status != tenkOk)
            return status;
    }
    return tenkOk;
}

template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus plainObjects(F f, Destination<m> dst, std::size_t width, std::size_t height,
                                    std::size_t count, const S&... src)
{
    return plainLoop<m>(f, dst, width, height, count, copied<m>(src)...);
}

// ---------------------------------------------------------------------------------------------------------------
// Row by row
// ---------------------------------------------------------------------------------------------------------------

// The rows of all these operands are adjacent.
template <typename... O>
TENK_INLINE bool gapless(std::size_t width, const O&... operands)
{
    using T = std::common_type_t<typename O::Value...>;
    return ((static_cast<Address>(operands.stride1) == width * sizeof(T)) && ...);
}

template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus rowObjects(F f, Destination<m> dst, std::size_t width, std::size_t height,
                                  std::size_t count, const S&... src)
{
    if (m.destination().kind == 'm' && gapless(width, dst, src...)) {
        width *= height;
        height = 1;
    }
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src..., dst))
            return tenkNullPointerError;
        const auto object = [&](const auto& to, const auto&... from) TENK_LAMBDA {
            for (std::size_t i = 0; i < height; ++i)
                longVector<Element<m>>(f, width, to.row(i), from.row(i)...);
        };
        object(dst.object(k, width), src.object(k, width)...);
    }
    return tenkOk;
}

// ---------------------------------------------------------------------------------------------------------------
// In vectors
// ---------------------------------------------------------------------------------------------------------------

// A single source in vectors: turned already, unless the result is.
template <typename T, unsigned rows, unsigned columns, bool isTurned>
struct Held
{
    static constexpr bool list = false;
    static constexpr bool turned = isTurned;
    Block<T, rows, columns> block;
};

template <typename R, typename V>
TENK_INLINE R rowOf(const Seen<V, false>& from, std::size_t i)
{
    return R::load(from.view.row(i));
}
template <typename R, typename T, unsigned rows, unsigned columns, std::size_t i>
TENK_INLINE R rowOf(const Held<T, rows, columns, false>& from, Index<i>)
{
    return from.block.row[i];
}

// A source as it is stored.
template <typename B, typename V, bool turned>
TENK_INLINE B storedBlock(const Seen<V, turned>& from)
{
    return B::load(from.view);
}
template <typename B, typename T, unsigned rows, unsigned columns, bool turned>
TENK_INLINE B storedBlock(const Held<T, rows, columns, turned>& from)
{
    return from.block;
}

template <typename B, typename From>
TENK_INLINE B turnedBlock(const From& from)
{
    if constexpr (From::turned)
        return transpose(storedBlock<B>(from));
    else
        return storedBlock<B>(from);
}

// If all sources are transposed, the result is turned instead of them.
template <Member m, unsigned rows, unsigned columns, typename F, typename To, typename... From>
TENK_INLINE void packedObject(F f, const To& to, const From&... from)
{
    using T = Element<m>;
    using R = Row<T, columns>;
    using B = Block<T, rows, columns>;
    if constexpr (!(From::turned || ...)) {
        each<rows>([&](auto i) TENK_LAMBDA { R::map(f, rowOf<R>(from, i)...).store(to.row(i)); });
    } else if constexpr ((From::turned && ...)) {
        transpose(B::map(f, storedBlock<B>(from)...)).store(to);
    } else {
        B::map(f, turnedBlock<B>(from)...).store(to);
    }
}

template <Member m, unsigned rows, unsigned columns, bool turnsResult, typename S>
TENK_INLINE auto held(const S& src)
{
    using T = Element<m>;
    if constexpr (!isKept<m, S>) {
        return src;
    } else if constexpr (!S::transposed || turnsResult) {
        return Held<T, rows, columns, S::transposed>{Block<T, rows, columns>::load(src.object(0, columns))};
    } else {
        const auto block = transpose(Block<T, m.size>::load(src.object(0, m.size)));
        if constexpr (rows == m.size) {
            return Held<T, rows, columns, false>{block};
        } else {
            T run[rows * columns];
            const DenseView<T> view{reinterpret_cast<Address>(run), m.size * sizeof(T)};
            block.store(view);
            return Held<T, rows, columns, false>{Block<T, rows, columns>::load(view)};
        }
    }
}

template <typename S>
TENK_INLINE auto packedSource(const S& src, std::size_t k, std::size_t width)
{
    return seen(src, k, width, width);
}
template <typename T, unsigned rows, unsigned columns, bool turned>
TENK_INLINE const auto& packedSource(const Held<T, rows, columns, turned>& src, std::size_t, std::size_t)
{
    return src;
}

template <Member m, unsigned rows, unsigned columns, typename F, typename... S>
TENK_INLINE tenkStatus packedLoop(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src..., dst))
            return tenkNullPointerError;
        packedObject<m, rows, columns>(f, dst.object(k, columns), packedSource(src, k, columns)...);
    }
    return tenkOk;
}

// Objects of `rows` rows, of `columns` adjacent elements each.
template <Member m, unsigned rows, unsigned columns, typename F, typename... S>
TENK_INLINE tenkStatus packedObjects(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    return packedLoop<m, rows, columns>(f, dst, count,
                                        held<m, rows, columns, (S::transposed && ...)>(src)...);
}

// Objects without gaps between their rows are one long row each, and arrays of them without gaps are one.
template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus gaplessObjects(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    using T = Element<m>;
    constexpr unsigned elements = fixedRows<m> * m.size;
    if constexpr (m.layout == Layout::Standard && !(S::single || ...)) {
        const auto follows = [](const auto& o) TENK_LAMBDA {
            return static_cast<Address>(o.stride0) == elements * sizeof(T);
        };
        if (follows(dst) && (follows(src) && ...)) {
            longVector<T>(f, count * elements, dst.p, src.p...);
            return tenkOk;
        }
    }
    return packedObjects<m, 1, elements>(f, dst, count, src...);
}

// ---------------------------------------------------------------------------------------------------------------
// The whole of it
// ---------------------------------------------------------------------------------------------------------------

// The formula of the members of Add and Sub.
template <Member m>
TENK_INLINE auto sum()
{
    if constexpr (m.root == Root::Add)
        return [](auto x, auto y) TENK_LAMBDA { return x + y; };
    else
        return [](auto x, auto y) TENK_LAMBDA { return x - y; };
}

template <Member m, typename F, typename H, typename... S>
TENK_INLINE tenkStatus elementwise(F f, Destination<m> dst, Size<m> width, H height, Count<m> count,
                                   const S&... src)
{
    if constexpr (!isDense(m.layout) || (m.general() && (S::transposed || ...))) {
        return plainObjects<m>(f, dst, width, height, count, src...);
    } else if constexpr (m.general()) {
        return rowObjects<m>(f, dst, width, height, count, src...);
    } else {
        if constexpr (m.destination().kind == 'v') {
            return gaplessObjects<m>(f, dst, count, src...);
        } else if constexpr (m.batch() && !((S::transposed && !S::single) || ...)) {
            // A transposed source that is left is single: it is turned into a run first.
            if (gapless(m.size, dst) && ((S::transposed || gapless(m.size, src)) && ...))
                return gaplessObjects<m>(f, dst, count, src...);
        }
        return packedObjects<m, m.size, m.size>(f, dst, count, src...);
    }
}

} // namespace tenk
