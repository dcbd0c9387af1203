// What Saxpy and LComb share: dst = f(src1, src2), element by element, on vectors in every layout.
//
// Objects go in ascending order and the elements of an object too, and the result is that of this plain loop
// whichever way the operands overlap. It goes in vectors where nobody can tell.
#pragma once

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/long_vector.h"
#include "frame/packed.h"

namespace tenk::combine {

// A constant, in all lanes of a vector and as the first of them: it is spread once and not object by object.
template <typename T>
struct Constant
{
    Vector<T> lanes;

    TENK_INLINE explicit Constant(T x) : lanes(broadcast(x)) {}
    TENK_INLINE friend T operator*(T x, const Constant& c) { return x * c.lanes[0]; }
    TENK_INLINE friend Vector<T> operator*(Vector<T> x, const Constant& c) { return x * c.lanes; }
};

// The destination starts inside the source, but not at its start: the loop writes elements before it reads
// them.
TENK_INLINE bool startsInside(Address dst, Address src, std::size_t bytes)
{
    return dst - src - 1 < bytes - 1;
}

// How a destination may lie to the sources of a fixed size.
enum class Overlap
{
    ascending, // anyhow: one element after the other
    none       // in no object does it start inside a source
};

// n adjacent elements.
template <unsigned n, typename T, Overlap overlap, typename F>
TENK_INLINE void elements(F f, Address dst, Address x, Address y)
{
    using R = Row<T, n>;
    // Three elements go one after the other as quickly as it takes to find out whether they may go in
    // vectors.
    constexpr bool three = n == 3 && (sizeof(T) == 8 || !fewRegisters);
    if (overlap == Overlap::ascending &&
        (three || startsInside(dst, x, n * sizeof(T)) || startsInside(dst, y, n * sizeof(T)))) [[unlikely]]
        each<n>([&](auto j) TENK_LAMBDA {
            store<T>(dst + j * sizeof(T), f(load<T>(x + j * sizeof(T)), load<T>(y + j * sizeof(T))));
        });
    else
        R::combine(R::load(x), R::load(y), f).store(dst);
}

// The same with a second operand that has been read before.
template <unsigned n, typename T, Overlap overlap, typename F>
TENK_INLINE void elements(F f, Address dst, Address x, const Row<T, n>& y)
{
    using R = Row<T, n>;
    if (overlap == Overlap::ascending && startsInside(dst, x, n * sizeof(T))) [[unlikely]]
        each<n>([&](auto j)
                    TENK_LAMBDA { store<T>(dst + j * sizeof(T), f(load<T>(x + j * sizeof(T)), y.get(j))); });
    else
        R::combine(R::load(x), y, f).store(dst);
}

// Arrays of adjacent elements without a gap between the objects are one long vector.
template <Member m>
TENK_INLINE bool isOneRun(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                          Size<m> length)
{
    if constexpr (m.layout == Layout::Standard && m.source(0).array && m.source(1).array) {
        const std::size_t object = std::size_t{length} * sizeof(Element<m>);
        return static_cast<Address>(src1.stride0) == object && static_cast<Address>(src2.stride0) == object &&
               static_cast<Address>(dst.stride0) == object;
    }
    return false;
}

// Whether the destinations of an array of a fixed size start inside no source. The answer is no, too, where
// it would take a look at each object.
template <Member m, typename S>
TENK_INLINE bool startsInsideNone(const Destination<m>& dst, const S& src, std::size_t count)
{
    constexpr std::size_t bytes = m.size * sizeof(Element<m>);
    if constexpr (S::single) {
        constexpr std::uint64_t most = std::uint64_t{1} << 30;
        const std::uint64_t all = static_cast<std::uint64_t>(dst.stride0) * (count - 1) + bytes;
        return dst.stride0 >= 0 && count != 0 && all < most &&
               apart(Bytes{dst.p, static_cast<std::size_t>(all)}, Bytes{src.p, bytes});
    } else {
        return dst.stride0 == src.stride0 && !startsInside(dst.p, src.p, bytes);
    }
}

// The arguments in the order in which all members test them, but for what is tested object by object.
template <Member m>
TENK_INLINE tenkStatus validate(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                                Size<m> length)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    if (m.batch() && (anyNullEntry(src1, length) || anyNullEntry(src2, length) || anyNullEntry(dst, length)))
        return tenkNullPointerError;
    return tenkOk;
}

// Object by object.
template <Member m, Overlap overlap, typename F>
TENK_INLINE tenkStatus objects(F f, const Source<m>& src1, const Source<m, 1>& src2,
                               const Destination<m>& dst, Size<m> length, Count<m> count)
{
    using T = Element<m>;
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const auto x = src1.object(k, length);
        const auto y = src2.object(k, length);
        const auto to = dst.object(k, length);
        if constexpr (isDense(m.layout) && m.general()) {
            longVector<T>(f, length, to.start, x.start, y.start);
        } else if constexpr (isDense(m.layout)) {
            elements<m.size, T, overlap>(f, to.start, x.start, y.start);
        } else {
            for (std::size_t j = 0; j < length; ++j) {
                // A single pair behind tables: each entry is tested when its element is due.
                if constexpr (isTable(m.layout) && !m.batch())
                    if (x.isNull(0, j) || y.isNull(0, j) || to.isNull(0, j))
                        return tenkNullPointerError;
                store<T>(to.at(0, j), f(load<T>(x.at(0, j)), load<T>(y.at(0, j))));
            }
        }
    }
    return tenkOk;
}

// The same with a single second vector of a fixed size that has been read before.
template <Member m, Overlap overlap, typename F>
TENK_INLINE tenkStatus objects(F f, const Source<m>& src1, const Row<Element<m>, m.size>& y,
                               const Destination<m>& dst, Count<m> count)
{
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, src1, dst))
            return tenkNullPointerError;
        elements<m.size, Element<m>, overlap>(f, dst.object(k, m.size).start, src1.object(k, m.size).start,
                                              y);
    }
    return tenkOk;
}

template <Member m, typename F>
TENK_INLINE tenkStatus combination(F f, const Source<m>& src1, const Source<m, 1>& src2,
                                   const Destination<m>& dst, Size<m> length, Count<m> count)
{
    using T = Element<m>;
    if (isOneRun<m>(src1, src2, dst, length)) {
        longVector<T>(f, std::size_t{length} * count, dst.p, src1.p, src2.p);
        return tenkOk;
    }
    if constexpr (isDense(m.layout) && m.batch() && !m.general()) {
        constexpr unsigned n = m.size;
        const bool dense = gapless<n, 1>(src1) && gapless<n, 1>(src2) && gapless<n, 1>(dst);
        const auto inOrder = [&]<Overlap overlap>() TENK_LAMBDA {
            if (dense)
                return objects<m, overlap>(f, packed<n, 1>(src1), packed<n, 1>(src2), packed<n, 1>(dst),
                                           length, count);
            return objects<m, overlap>(f, src1, src2, dst, length, count);
        };
        if constexpr (m.layout == Layout::Standard)
            if (startsInsideNone<m>(dst, src1, count) && startsInsideNone<m>(dst, src2, count))
                return inOrder.template operator()<Overlap::none>();
        return inOrder.template operator()<Overlap::ascending>();
    }
    return objects<m, Overlap::ascending>(f, src1, src2, dst, length, count);
}

} // namespace tenk::combine
