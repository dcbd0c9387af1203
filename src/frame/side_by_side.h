// Objects side by side: a group of as many objects as a vector has lanes, lane g belonging to object g of the
// group. The arithmetic of one object is then the arithmetic of all of them, operation by operation, with the
// same roundings, and every lane holds an element of an object.
#pragma once

#include <type_traits>

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

// A number as an element, or in every lane.
template <typename V>
TENK_INLINE V number(float x)
{
    if constexpr (std::is_same_v<V, Vector<float>>)
        return broadcast(x);
    else if constexpr (std::is_same_v<V, Vector<double>>)
        return broadcast(double{x});
    else
        return V{x};
}

// How many objects stand side by side.
template <typename T>
inline constexpr unsigned group = lanes<T>;

// An address for each object of a group.
template <typename T>
struct Addresses
{
    Address of[group<T>];

    template <typename F>
    TENK_INLINE static Addresses make(F f)
    {
        Addresses a;
        each<group<T>>([&](auto g) TENK_LAMBDA { a.of[g] = f(std::size_t{g}); });
        return a;
    }
};

// Masks of a comparison, and whole numbers of the width of an element.
template <typename T>
using Mask = decltype(Vector<T>{} < Vector<T>{});

template <typename T>
TENK_INLINE Mask<T> bits(Vector<T> v)
{
    return reinterpret_cast<Mask<T>>(v);
}
template <typename T>
TENK_INLINE Vector<T> fromBits(Mask<T> v)
{
    return reinterpret_cast<Vector<T>>(v);
}

TENK_INLINE bool any(Mask<float> v)
{
    return _mm_movemask_ps(reinterpret_cast<__m128>(v)) != 0;
}
TENK_INLINE bool any(Mask<double> v)
{
    return _mm_movemask_pd(reinterpret_cast<__m128d>(v)) != 0;
}

// The larger one, and b if one of them is a NaN: a > b ? a : b.
TENK_INLINE Vector<float> larger(Vector<float> a, Vector<float> b)
{
    return _mm_max_ps(a, b);
}
TENK_INLINE Vector<double> larger(Vector<double> a, Vector<double> b)
{
    return _mm_max_pd(a, b);
}

TENK_INLINE float magnitude(float x)
{
    return __builtin_fabsf(x);
}
TENK_INLINE double magnitude(double x)
{
    return __builtin_fabs(x);
}
TENK_INLINE Vector<float> magnitude(Vector<float> v)
{
    return fromBits<float>(bits<float>(v) & 0x7FFFFFFF);
}
TENK_INLINE Vector<double> magnitude(Vector<double> v)
{
    return fromBits<double>(bits<double>(v) & 0x7FFFFFFFFFFFFFFF);
}

// ---------------------------------------------------------------------------------------------------------------
// Elements that are adjacent in every object: n of them to n vectors and back
// ---------------------------------------------------------------------------------------------------------------

// One element of each object.
TENK_INLINE Vector<float> gather(const Addresses<float>& from)
{
    return Vector<float>{load<float>(from.of[0]), load<float>(from.of[1]), load<float>(from.of[2]),
                         load<float>(from.of[3])};
}
TENK_INLINE Vector<double> gather(const Addresses<double>& from)
{
    return Vector<double>{load<double>(from.of[0]), load<double>(from.of[1])};
}

// Turns a square of four vectors.
TENK_INLINE void turn(Vector<float>& a, Vector<float>& b, Vector<float>& c, Vector<float>& d)
{
    const auto lowAB = shuffle<0, 4, 1, 5>(a, b), lowCD = shuffle<0, 4, 1, 5>(c, d);
    const auto highAB = shuffle<2, 6, 3, 7>(a, b), highCD = shuffle<2, 6, 3, 7>(c, d);
    a = shuffle<0, 1, 4, 5>(lowAB, lowCD);
    b = shuffle<2, 3, 6, 7>(lowAB, lowCD);
    c = shuffle<0, 1, 4, 5>(highAB, highCD);
    d = shuffle<2, 3, 6, 7>(highAB, highCD);
}

template <typename T>
TENK_INLINE Addresses<T> behind(const Addresses<T>& a, std::size_t bytes)
{
    return Addresses<T>::make([&](std::size_t g) TENK_LAMBDA { return a.of[g] + bytes; });
}

template <unsigned n>
TENK_INLINE void loadSideBySide(const Addresses<float>& from, Vector<float>* to)
{
    if constexpr (n >= 4) {
        each<4>([&](auto g) TENK_LAMBDA { to[g] = loadVector<float>(from.of[g]); });
        turn(to[0], to[1], to[2], to[3]);
        loadSideBySide<n - 4>(behind<float>(from, 16), to + 4);
    } else if constexpr (n >= 2) {
        const auto first = loadHalves(from.of[0], from.of[1]), second = loadHalves(from.of[2], from.of[3]);
        to[0] = shuffle<0, 2, 4, 6>(first, second);
        to[1] = shuffle<1, 3, 5, 7>(first, second);
        loadSideBySide<n - 2>(behind<float>(from, 8), to + 2);
    } else if constexpr (n == 1) {
        to[0] = gather(from);
    }
}
template <unsigned n>
TENK_INLINE void loadSideBySide(const Addresses<double>& from, Vector<double>* to)
{
    if constexpr (n >= 2) {
        const auto first = loadVector<double>(from.of[0]), second = loadVector<double>(from.of[1]);
        to[0] = shuffle<0, 2>(first, second);
        to[1] = shuffle<1, 3>(first, second);
        loadSideBySide<n - 2>(behind<double>(from, 16), to + 2);
    } else if constexpr (n == 1) {
        to[0] = gather(from);
    }
}

template <unsigned n>
TENK_INLINE void storeSideBySide(const Addresses<float>& to, const Vector<float>* from)
{
    if constexpr (n >= 4) {
        Vector<float> object[4] = {from[0], from[1], from[2], from[3]};
        turn(object[0], object[1], object[2], object[3]);
        each<4>([&](auto g) TENK_LAMBDA { storeVector<float>(to.of[g], object[g]); });
        storeSideBySide<n - 4>(behind<float>(to, 16), from + 4);
    } else if constexpr (n >= 2) {
        const auto low = shuffle<0, 4, 1, 5>(from[0], from[1]), high = shuffle<2, 6, 3, 7>(from[0], from[1]);
        storeLow(to.of[0], low);
        storeHigh(to.of[1], low);
        storeLow(to.of[2], high);
        storeHigh(to.of[3], high);
        storeSideBySide<n - 2>(behind<float>(to, 8), from + 2);
    } else if constexpr (n == 1) {
        each<4>([&](auto g) TENK_LAMBDA { store<float>(to.of[g], from[0][std::size_t{g}]); });
    }
}
template <unsigned n>
TENK_INLINE void storeSideBySide(const Addresses<double>& to, const Vector<double>* from)
{
    if constexpr (n >= 2) {
        storeVector<double>(to.of[0], shuffle<0, 2>(from[0], from[1]));
        storeVector<double>(to.of[1], shuffle<1, 3>(from[0], from[1]));
        storeSideBySide<n - 2>(behind<double>(to, 16), from + 2);
    } else if constexpr (n == 1) {
        each<2>([&](auto g) TENK_LAMBDA { store<double>(to.of[g], from[0][std::size_t{g}]); });
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Which objects may stand side by side
// ---------------------------------------------------------------------------------------------------------------

// The bytes of an object of n adjacent elements in each of some rows.
struct Bytes
{
    Address first, length;
};
template <typename T>
TENK_INLINE Bytes bytesOf(const DenseView<T>& view, std::size_t rows, std::size_t n)
{
    const Address rest = times(rows - 1, view.rowStep), row = n * sizeof(T);
    if (view.rowStep < 0)
        return {view.start + rest, row - rest};
    return {view.start, row + rest};
}

TENK_INLINE bool apart(const Bytes& a, const Bytes& b)
{
    return b.first - a.first >= a.length && a.first - b.first >= b.length;
}

// No row of an object lies in another one.
template <typename T>
TENK_INLINE bool rowsApart(Displacement rowStep, std::size_t n)
{
    const auto row = static_cast<Displacement>(n * sizeof(T));
    return rowStep >= row || rowStep <= -row;
}

// Whether an object may be read although the call could end before it comes to that object: memory is
// readable by whole pages, and this one's are pages of an object that is read in any case.
inline constexpr Address page = 4096;

TENK_INLINE bool onPagesOf(const Bytes& sure, const Bytes& other)
{
    const Address firstPage = sure.first / page, lastPage = (sure.first + sure.length - 1) / page;
    const auto covered = [&](Address byte)
                             TENK_LAMBDA { return byte / page == firstPage || byte / page == lastPage; };
    return covered(other.first) && covered(other.first + other.length - 1) && sure.length <= page &&
           other.length <= page;
}

// The same for the entries of a group in a list.
template <typename O>
TENK_INLINE bool entriesOnOnePage(const O& o, std::size_t k, std::size_t objects)
{
    const Address first = o.p + k * sizeof(Address), last = first + objects * sizeof(Address) - 1;
    return !O::list || first / page == last / page;
}

// Matrices of fixed order to be read and then written, src and dst of a group that begins with object k. They
// fit if nothing tells reading all of them first from finishing one after the other, src equal to dst
// included.
template <Member m>
struct SourcesAndDestinations
{
    using T = Element<m>;
    DenseView<T> src[group<T>], dst[group<T>];

    TENK_INLINE bool fit(const Source<m>& s, const Destination<m>& d, std::size_t k)
    {
        constexpr unsigned n = m.size;
        Bytes read[group<T>], written[group<T>];
        if (!entriesOnOnePage(s, k, group<T>) || !entriesOnOnePage(d, k, group<T>))
            return false;
        for (std::size_t g = 0; g < group<T>; ++g) {
            if (anyNullObject(k + g, s, d))
                return false;
            src[g] = s.object(k + g, n);
            dst[g] = d.object(k + g, n);
            read[g] = bytesOf(src[g], n, n);
            written[g] = bytesOf(dst[g], n, n);
            if (!onPagesOf(read[0], read[g]))
                return false;
            for (std::size_t earlier = 0; earlier < g; ++earlier)
                if (!apart(written[earlier], read[g]) || !apart(written[earlier], written[g]))
                    return false;
        }
        return true;
    }
};

// Factors, right-hand sides and solutions of fixed order of a group that begins with object k. They fit if
// nothing tells reading all of them first from solving one after the other. `rightSideFirst`: an object's
// right-hand side is read before its solution is written, so the two may be the same memory.
template <Member m, bool rightSideFirst>
struct SystemsAndSolutions
{
    using T = Element<m>;
    DenseView<T> factor[group<T>], b[group<T>], x[group<T>];

    TENK_INLINE bool fit(const Source<m, 0>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                         std::size_t k)
    {
        constexpr unsigned n = m.size;
        Bytes matrix[group<T>], read[group<T>], written[group<T>];
        bool safe = true;
        for (std::size_t g = 0; g < group<T>; ++g) {
            if (anyNullObject(k + g, src1, src2, dst))
                return false;
            factor[g] = src1.object(k + g, n);
            b[g] = src2.object(k + g, n);
            x[g] = dst.object(k + g, n);
            matrix[g] = bytesOf(factor[g], n, n);
            read[g] = bytesOf(b[g], 1, n);
            written[g] = bytesOf(x[g], 1, n);
            for (std::size_t earlier = 0; earlier <= g; ++earlier) {
                if (!rightSideFirst || earlier != g)
                    safe &= apart(written[earlier], read[g]);
                if (earlier != g)
                    safe &= apart(written[earlier], written[g]);
                safe &= apart(written[earlier], matrix[g]);
            }
        }
        return safe;
    }
};

} // namespace tenk
