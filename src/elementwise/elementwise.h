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

// No operand has a gap between rows of this width.
template <typename... O>
TENK_INLINE bool rowsFollow(std::size_t width, const O&... operands)
{
    using T = std::common_type_t<typename O::Value...>;
    return ((static_cast<Address>(operands.stride1) == width * sizeof(T)) && ...);
}

template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus rowObjects(F f, Destination<m> dst, std::size_t width, std::size_t height,
                                  std::size_t count, const S&... src)
{
    if (m.destination().kind == 'm' && rowsFollow(width, dst, src...)) {
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

// A sum that is added up once. Without registers to spare the compiler would form it anew at each use.
TENK_INLINE Address inOneRegister(Address sum)
{
    if constexpr (fewRegisters)
        asm("" : "+r"(sum));
    return sum;
}

// Rows from row `first` on of a source in registers, in the order of the formula unless `isTurned`.
template <typename T, unsigned rows, unsigned columns, bool isTurned = false, unsigned first = 0>
struct Held
{
    static constexpr bool list = false;
    static constexpr bool turned = isTurned;
    Block<T, rows, columns> block;
};

// Vector v of row i of a source, and what is behind the vectors.
template <typename R, typename V>
TENK_INLINE auto vectorOf(const Seen<V, false>& from, std::size_t i, std::size_t v)
{
    if constexpr (requires { requires V::aligned; })
        return loadAligned<typename R::Value>(from.view.row(i) + v * 16);
    else
        return loadVector<typename R::Value>(from.view.row(i) + v * 16);
}
template <typename R, typename T, unsigned rows, unsigned columns, unsigned first, std::size_t i,
          std::size_t v>
TENK_INLINE auto vectorOf(const Held<T, rows, columns, false, first>& from, Index<i>, Index<v>)
{
    return from.block.row[i - first].vector[v];
}
template <typename R, typename V>
TENK_INLINE auto restOf(const Seen<V, false>& from, std::size_t i)
{
    return R::Tail::load(from.view.row(i) + R::full * 16);
}
template <typename R, typename T, unsigned rows, unsigned columns, unsigned first, std::size_t i>
TENK_INLINE auto restOf(const Held<T, rows, columns, false, first>& from, Index<i>)
{
    return from.block.row[i - first].rest;
}

// Row i of the result. A vector is stored as soon as it is computed: whole objects would not fit the
// registers.
template <typename R, typename F, typename I, typename... From>
TENK_INLINE void streamRow(F f, Address to, I i, const From&... from)
{
    each<R::full>([&](auto v) TENK_LAMBDA {
        storeVector<typename R::Value>(to + v * 16, f(vectorOf<R>(from, i, v)...));
    });
    if constexpr (R::left != 0)
        R::Tail::store(to + R::full * 16, f(restOf<R>(from, i)...));
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

// Rows 2s and 2s + 1 of a source, the second one if there is one: in 64f a transposed source is turned as it
// is read.
template <unsigned n, std::size_t s, typename V>
TENK_INLINE const Seen<V, false>& twoRows(const Seen<V, false>& from, Index<s>)
{
    return from;
}
template <unsigned n, std::size_t s, bool turned>
TENK_INLINE const Held<double, n, n, turned>& twoRows(const Held<double, n, n, turned>& from, Index<s>)
{
    return from;
}
template <unsigned n, std::size_t s, typename V>
TENK_INLINE auto twoRows(const Seen<V, true>& from, Index<s>)
{
    const auto part = [&](std::size_t i) TENK_LAMBDA { return from.view.row(i) + s * 16; };
    if constexpr (2 * s + 1 < n) {
        Held<double, 2, n, false, 2 * s> two;
        auto& row = two.block.row;
        each<n / 2>([&](auto v) TENK_LAMBDA {
            const auto upper = inRegister(loadVector<double>(part(2 * v)));
            const auto lower = inRegister(loadVector<double>(part(2 * v + 1)));
            row[0].vector[v] = shuffle<0, 2>(upper, lower);
            row[1].vector[v] = shuffle<1, 3>(upper, lower);
        });
        if constexpr (n % 2 == 1) {
            row[0].rest = load<double>(part(n - 1));
            row[1].rest = load<double>(part(n - 1) + 8);
        }
        return two;
    } else {
        Held<double, 1, n, false, 2 * s> one;
        auto& row = one.block.row[0];
        each<n / 2>([&](auto v) TENK_LAMBDA {
            row.vector[v] = Vector<double>{load<double>(part(2 * v)), load<double>(part(2 * v + 1))};
        });
        row.rest = load<double>(part(n - 1));
        return one;
    }
}

// In 32f a transposed source is turned in registers.
template <unsigned n, typename From>
TENK_INLINE auto allRows(const From& from)
{
    if constexpr (From::turned)
        return Held<float, n, n>{transpose(storedBlock<Block<float, n>>(from))};
    else
        return from;
}

// An object of 3 x 3 without gaps, or two of them, as a run: a transposed one is turned in registers.
template <typename R, typename V, bool turned>
TENK_INLINE auto runOf(const Seen<V, turned>& from)
{
    using T = typename R::Value;
    constexpr unsigned n = R::full * lanes<T> + R::left;
    if constexpr (turned)
        return Held<T, 1, n>{{transposed(R::load(from.view.row(0)))}};
    else
        return from;
}
template <typename R, typename T, unsigned columns>
TENK_INLINE const auto& runOf(const Held<T, 1, columns>& from)
{
    return from;
}

// If all sources are transposed, the result is turned instead of them.
template <Member m, unsigned rows, unsigned columns, typename F, typename To, typename... From>
TENK_INLINE void packedObject(F f, const To& to, const From&... from)
{
    using R = Row<Element<m>, columns>;
    using B = Block<Element<m>, rows, columns>;
    const auto stream = [&](auto i, const auto&... source)
                            TENK_LAMBDA { streamRow<R>(f, to.row(i), i, source...); };
    if constexpr (!(From::turned || ...)) {
        each<rows>([&](auto i) TENK_LAMBDA { stream(i, from...); });
    } else if constexpr (rows == 1) {
        const auto run = [&](const auto&... source) TENK_LAMBDA { stream(index<0>, source...); };
        run(runOf<R>(from)...);
    } else if constexpr ((From::turned && ...)) {
        transpose(B::map(f, storedBlock<B>(from)...)).store(to);
    } else if constexpr (m.type == Type::f64) {
        each<(rows + 1) / 2>([&](auto s) TENK_LAMBDA {
            const auto both = [&](const auto&... source) TENK_LAMBDA {
                stream(index<2 * s>, source...);
                if constexpr (2 * s + 1 < rows)
                    stream(index<2 * s + 1>, source...);
            };
            both(twoRows<rows>(from, s)...);
        });
    } else {
        const auto all = [&](const auto&... source)
                             TENK_LAMBDA { each<rows>([&](auto i) TENK_LAMBDA { stream(i, source...); }); };
        all(allRows<rows>(from)...);
    }
}

// A source that a member keeps, in registers: turned already, unless the result is.
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
            return Held<T, rows, columns>{block};
        } else {
            T run[rows * columns];
            const GaplessView<T, m.size> view{reinterpret_cast<Address>(run)};
            block.store(view);
            return Held<T, rows, columns>{Block<T, rows, columns>::load(view)};
        }
    }
}

template <bool noGaps, unsigned columns, typename S>
TENK_INLINE auto packedSource(const S& src, std::size_t k)
{
    const auto object = seen(src, k, columns, columns);
    if constexpr (noGaps) {
        using View = GaplessView<typename S::Value, columns>;
        return Seen<View, S::transposed>{View{inOneRegister(object.view.start)}};
    } else {
        return object;
    }
}
template <bool noGaps, unsigned columns, typename T, unsigned rows, bool turned>
TENK_INLINE const auto& packedSource(const Held<T, rows, columns, turned>& src, std::size_t)
{
    return src;
}

template <Member m, unsigned rows, unsigned columns, bool noGaps, typename F, typename... S>
TENK_INLINE tenkStatus packedLoop(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src..., dst))
            return tenkNullPointerError;
        packedObject<m, rows, columns>(f, packedSource<noGaps, columns>(dst, k).view,
                                       packedSource<noGaps, columns>(src, k)...);
    }
    return tenkOk;
}

// Objects of `rows` rows, of `columns` adjacent elements each.
template <Member m, unsigned rows, unsigned columns, bool noGaps, typename F, typename... S>
TENK_INLINE tenkStatus packedObjects(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    constexpr bool turnsResult = rows > 1 && (S::transposed && ...);
    return packedLoop<m, rows, columns, noGaps>(f, dst, count, held<m, rows, columns, turnsResult>(src)...);
}

// Lists to whose entries nothing is added.
template <typename... O>
TENK_INLINE bool unshifted(const O&... operands)
{
    return inOneRegister((Address{0} | ... | static_cast<Address>(operands.shift))) == 0;
}
template <typename O>
TENK_INLINE O withoutShift(O o)
{
    o.shift = 0;
    return o;
}

// Objects without gaps between their rows are one long row each, unless they have to be turned; arrays of
// them without gaps are one.
template <Member m, typename F, typename... S>
TENK_INLINE tenkStatus gaplessObjects(F f, Destination<m> dst, std::size_t count, const S&... src)
{
    using T = Element<m>;
    constexpr unsigned elements = fixedRows<m> * m.size;
    const auto follows = [](const auto& o)
                             TENK_LAMBDA { return static_cast<Address>(o.stride0) == elements * sizeof(T); };
    if constexpr (m.layout == Layout::Standard && !(S::single || ...)) {
        if constexpr (!(S::transposed || ...)) {
            if (follows(dst) && (follows(src) && ...)) {
                longVector<T>(f, count * elements, dst.p, src.p...);
                return tenkOk;
            }
        } else if constexpr (m.size == 3 && m.type == Type::f64) {
            // By twos, so that every pair of elements is a vector and none has to straddle cache lines.
            if (follows(dst) && (follows(src) && ...)) {
                const auto byTwos = [&]<bool atVectors>(std::bool_constant<atVectors>) TENK_LAMBDA {
                    using Run = GaplessView<T, 2 * elements, atVectors>;
                    for (std::size_t k = 0; k + 2 <= count; k += 2)
                        packedObject<m, 1, 2 * elements>(
                            f, Run{dst.p + k * elements * sizeof(T)},
                            Seen<Run, S::transposed>{{src.p + k * elements * sizeof(T)}}...);
                };
                if (((dst.p | ... | src.p) & 15) == 0)
                    byTwos(std::true_type());
                else
                    byTwos(std::false_type());
                if (count % 2 == 1)
                    packedObject<m, 1, elements>(f, packedSource<true, elements>(dst, count - 1).view,
                                                 packedSource<true, elements>(src, count - 1)...);
                return tenkOk;
            }
        }
    }
    constexpr bool turnsArray = ((S::transposed && !S::single) || ...);
    constexpr unsigned rows = turnsArray && m.size > 3 ? m.size : 1;
    const auto objects = [&](const auto& to, const auto&... from) TENK_LAMBDA {
        return packedObjects<m, rows, elements / rows, true>(f, to, count, from...);
    };
    // A loop would find its shifts in memory.
    if constexpr (isList(m.layout) && fewRegisters)
        if (unshifted(dst, src...))
            return objects(withoutShift(dst), withoutShift(src)...);
    return objects(dst, src...);
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
        } else if constexpr (m.batch()) {
            // A transposed source that is kept is turned beforehand, gaps or not.
            if (rowsFollow(m.size, dst) &&
                (((isKept<m, S> && S::transposed) || rowsFollow(m.size, src)) && ...))
                return gaplessObjects<m>(f, dst, count, src...);
        }
        return packedObjects<m, m.size, m.size, false>(f, dst, count, src...);
    }
}

} // namespace tenk
