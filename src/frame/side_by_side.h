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

TENK_INLINE bool all(Mask<float> v)
{
    return _mm_movemask_ps(reinterpret_cast<__m128>(v)) == 0xF;
}
TENK_INLINE bool all(Mask<double> v)
{
    return _mm_movemask_pd(reinterpret_cast<__m128d>(v)) == 0x3;
}

// Exchanges the lanes of two vectors where the mask is set. In intrinsics: the compiler takes the same in
// operators for a choice, for which SSE2 has no instruction, and makes it lane by lane.
TENK_INLINE void exchangeWhere(Mask<float> mask, Vector<float>& a, Vector<float>& b)
{
    const __m128 change = _mm_and_ps(_mm_xor_ps(a, b), reinterpret_cast<__m128>(mask));
    a = _mm_xor_ps(a, change);
    b = _mm_xor_ps(b, change);
}
TENK_INLINE void exchangeWhere(Mask<double> mask, Vector<double>& a, Vector<double>& b)
{
    const __m128d change = _mm_and_pd(_mm_xor_pd(a, b), reinterpret_cast<__m128d>(mask));
    a = _mm_xor_pd(a, change);
    b = _mm_xor_pd(b, change);
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

// One element of each object, loaded to where it stays: the compiler would take a copy by way of a general
// register or the stack.
TENK_INLINE Vector<float> elementOfEach(const Addresses<float>& from)
{
    typedef float Anywhere __attribute__((may_alias, aligned(1)));
    const auto load = [&](std::size_t g)
                          TENK_LAMBDA { return _mm_set_ss(*reinterpret_cast<const Anywhere*>(from.of[g])); };
    return _mm_movelh_ps(_mm_unpacklo_ps(load(0), load(1)), _mm_unpacklo_ps(load(2), load(3)));
}
TENK_INLINE Vector<double> elementOfEach(const Addresses<double>& from)
{
    typedef double Anywhere __attribute__((may_alias, aligned(1)));
    const auto first = _mm_set_sd(*reinterpret_cast<const Anywhere*>(from.of[0]));
    return _mm_loadh_pd(first, reinterpret_cast<const double*>(from.of[1]));
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
    if constexpr (n >= 2) {
        const auto first = loadHalves(from.of[0], from.of[1]), second = loadHalves(from.of[2], from.of[3]);
        to[0] = shuffle<0, 2, 4, 6>(first, second);
        to[1] = shuffle<1, 3, 5, 7>(first, second);
        loadSideBySide<n - 2>(behind<float>(from, 8), to + 2);
    } else if constexpr (n == 1) {
        to[0] = elementOfEach(from);
    }
}
template <unsigned n>
TENK_INLINE void loadSideBySide(const Addresses<double>& from, Vector<double>* to)
{
    if constexpr (n >= 2) {
        const auto first = inRegister(loadVector<double>(from.of[0]));
        const auto second = inRegister(loadVector<double>(from.of[1]));
        to[0] = shuffle<0, 2>(first, second);
        to[1] = shuffle<1, 3>(first, second);
        loadSideBySide<n - 2>(behind<double>(from, 16), to + 2);
    } else if constexpr (n == 1) {
        to[0] = elementOfEach(from);
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

// Rows of n elements that are worked on side by side, to be stored one object after the other. `from` holds
// an element of each object, row after row.
template <typename T, unsigned rows, unsigned n>
struct RowsOfObjects;

template <unsigned rows, unsigned n>
struct RowsOfObjects<float, rows, n>
{
    Row<float, n> row[rows][4];

    TENK_INLINE explicit RowsOfObjects(const Vector<float>* from)
    {
        constexpr unsigned full = n / 4;
        each<rows>([&](auto p) TENK_LAMBDA {
            each<full>([&](auto v) TENK_LAMBDA {
                const Vector<float>* const column = from + p * n + v * 4;
                Vector<float> object[4] = {column[0], column[1], column[2], column[3]};
                turn(object[0], object[1], object[2], object[3]);
                each<4>([&](auto g) TENK_LAMBDA { row[p][g].vector[v] = object[g]; });
            });
            const Vector<float>* const left = from + p * n + full * 4;
            if constexpr (n % 4 == 1) {
                each<4>([&](auto g) TENK_LAMBDA { row[p][g].rest = left[0][std::size_t{g}]; });
            } else if constexpr (n % 4 == 2) {
                const auto low = shuffle<0, 4, 1, 5>(left[0], left[1]);
                const auto high = shuffle<2, 6, 3, 7>(left[0], left[1]);
                row[p][0].rest = low;
                row[p][1].rest = shuffle<2, 3, 6, 7>(low, low);
                row[p][2].rest = high;
                row[p][3].rest = shuffle<2, 3, 6, 7>(high, high);
            } else if constexpr (n % 4 == 3) {
                Vector<float> object[4] = {left[0], left[1], left[1], left[2]};
                turn(object[0], object[1], object[2], object[3]);
                each<4>([&](auto g) TENK_LAMBDA { row[p][g].rest = object[g]; });
            }
        });
    }
    template <std::size_t p, std::size_t g>
    TENK_INLINE const Row<float, n>& get(Index<p>, Index<g>) const
    {
        return row[p][g];
    }
};

template <unsigned rows, unsigned n>
struct RowsOfObjects<double, rows, n>
{
    const Vector<double>* from;

    TENK_INLINE explicit RowsOfObjects(const Vector<double>* from) : from(from) {}
    template <std::size_t p, std::size_t g>
    TENK_INLINE Row<double, n> get(Index<p>, Index<g>) const
    {
        const Vector<double>* const column = from + p * n;
        Row<double, n> row;
        each<n / 2>([&](auto v)
                        TENK_LAMBDA { row.vector[v] = shuffle<g, 2 + g>(column[2 * v], column[2 * v + 1]); });
        if constexpr (n % 2 == 1)
            row.rest = column[n - 1][g];
        return row;
    }
};

} // namespace tenk
