// Rows of N adjacent elements in 128-bit vectors, and blocks of them.
//
// A row is loaded and stored without touching a byte outside it, at any address. No lane ever holds a value
// that is not an element of the row: arithmetic on a row raises no exception flag that its elements would not
// raise one by one.
//
//   32f: quads of four; then, for what is left over, one element alone, two as lanes 0 1 0 1, three as 0 1 1
//   2 64f: pairs; then one element alone
#pragma once

#include <emmintrin.h>
#include <utility>

#include "frame/memory.h"

namespace tenk {

// Calls f(index<0>), ..., f(index<n - 1>): a loop that is always written out.
template <std::size_t i>
struct Index
{
    constexpr operator std::size_t() const { return i; }
};
template <std::size_t i>
inline constexpr Index<i> index{};

template <std::size_t n, typename F>
TENK_INLINE void each(F f)
{
    [&]<std::size_t... i>(std::index_sequence<i...>) TENK_LAMBDA
    {
        (f(index<i>), ...);
    }
    (std::make_index_sequence<n>());
}

// ---------------------------------------------------------------------------------------------------------------
// Vectors
// ---------------------------------------------------------------------------------------------------------------

template <typename T>
struct VectorOf;
template <>
struct VectorOf<float>
{
    typedef float type __attribute__((vector_size(16)));
};
template <>
struct VectorOf<double>
{
    typedef double type __attribute__((vector_size(16)));
};
template <typename T>
using Vector = typename VectorOf<T>::type;

template <typename T>
inline constexpr unsigned lanes = 16 / sizeof(T);

template <typename T>
TENK_INLINE Vector<T> loadVector(Address a)
{
    return load<Vector<T>>(a);
}
// From a multiple of 16, which saves an instruction.
template <typename T>
TENK_INLINE Vector<T> loadAligned(Address a)
{
    if constexpr (sizeof(T) == 4)
        return _mm_load_ps(reinterpret_cast<const float*>(a));
    else
        return _mm_load_pd(reinterpret_cast<const double*>(a));
}
template <typename T>
TENK_INLINE void storeVector(Address a, Vector<T> v)
{
    store(a, v);
}

// A vector that stays in its register: the compiler would load half of it once more wherever a shuffle takes
// a half.
template <typename V>
TENK_INLINE V inRegister(V v)
{
    asm("" : "+x"(v));
    return v;
}
TENK_INLINE Address inRegister(Address a)
{
    asm("" : "+r"(a));
    return a;
}
// An object that the compiler is not to keep in registers, parts of which it would move to memory and back.
template <typename O>
TENK_INLINE void keepInMemory(O& o)
{
    asm("" : "+m"(o));
}

template <typename T>
TENK_INLINE Vector<T> broadcast(T x)
{
    if constexpr (sizeof(T) == 4)
        return Vector<T>{x, x, x, x};
    else
        return Vector<T>{x, x};
}

// A constant that meets elements and vectors of them. The vector is made once; left to itself, the compiler
// repeats the constant at each use.
template <typename T>
struct Constant
{
    T element;
    Vector<T> vector;

    TENK_INLINE Constant(T x) : element(x), vector(inRegister(broadcast(x))) {}
    TENK_INLINE T like(T) const { return element; }
    TENK_INLINE Vector<T> like(Vector<T>) const { return vector; }
};

// The halves of a quad: 8 bytes each, at any address.
TENK_INLINE Vector<float> loadHalves(Address low, Address high)
{
    const __m128 l = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i_u*>(low)));
    return _mm_loadh_pi(l, reinterpret_cast<const __m64*>(high));
}
TENK_INLINE void storeLow(Address a, Vector<float> v)
{
    _mm_storel_pi(reinterpret_cast<__m64*>(a), v);
}
TENK_INLINE void storeHigh(Address a, Vector<float> v)
{
    _mm_storeh_pi(reinterpret_cast<__m64*>(a), v);
}

// ---------------------------------------------------------------------------------------------------------------
// What is left of a row behind its full vectors
// ---------------------------------------------------------------------------------------------------------------

struct Nothing
{
};

template <typename T, unsigned n>
struct Rest;

template <typename T>
struct Rest<T, 0>
{
    using Lanes = Nothing;
    TENK_INLINE static Lanes load(Address) { return {}; }
    TENK_INLINE static void store(Address, Lanes) {}
};

template <typename T>
struct Rest<T, 1>
{
    using Lanes = T;
    static constexpr unsigned laneOf[] = {0};
    TENK_INLINE static Lanes load(Address a) { return tenk::load<T>(a); }
    TENK_INLINE static void store(Address a, Lanes x) { tenk::store(a, x); }
};

template <>
struct Rest<float, 2>
{
    using Lanes = Vector<float>;
    static constexpr unsigned laneOf[] = {0, 1};
    TENK_INLINE static Lanes load(Address a) { return loadHalves(a, a); }
    TENK_INLINE static void store(Address a, Lanes v) { storeLow(a, v); }
};

template <>
struct Rest<float, 3>
{
    using Lanes = Vector<float>;
    static constexpr unsigned laneOf[] = {0, 1, 3};
    TENK_INLINE static Lanes load(Address a) { return loadHalves(a, a + 4); }
    TENK_INLINE static void store(Address a, Lanes v)
    {
        storeLow(a, v);
        storeHigh(a + 4, v);
    }
};

// ---------------------------------------------------------------------------------------------------------------
// Rows
// ---------------------------------------------------------------------------------------------------------------

template <typename T, unsigned n>
struct Row
{
    using Value = T;
    static constexpr unsigned full = n / lanes<T>; // full vectors
    static constexpr unsigned left = n % lanes<T>; // elements behind them
    using Tail = Rest<T, left>;

    Vector<T> vector[full == 0 ? 1 : full];
    [[no_unique_address]] typename Tail::Lanes rest;

    TENK_INLINE static Row load(Address a)
    {
        Row r;
        each<full>([&](auto v) TENK_LAMBDA { r.vector[v] = loadVector<T>(a + v * 16); });
        r.rest = Tail::load(a + full * 16);
        return r;
    }

    TENK_INLINE void store(Address a) const
    {
        each<full>([&](auto v) TENK_LAMBDA { storeVector<T>(a + v * 16, vector[v]); });
        Tail::store(a + full * 16, rest);
    }

    TENK_INLINE static Row repeat(T x)
    {
        Row r;
        each<full>([&](auto v) TENK_LAMBDA { r.vector[v] = broadcast(x); });
        if constexpr (left == 1)
            r.rest = x;
        else if constexpr (left != 0)
            r.rest = broadcast(x);
        return r;
    }

    // Element j.
    template <std::size_t j>
    TENK_INLINE T get(Index<j>) const
    {
        if constexpr (j / lanes<T> < full)
            return vector[j / lanes<T>][j % lanes<T>];
        else if constexpr (left == 1)
            return rest;
        else
            return rest[Tail::laneOf[j % lanes<T>]];
    }

    // The row whose vectors are f of the vectors of other rows, whichever way the elements are split among
    // vectors.
    template <typename F, typename... R>
    TENK_INLINE static Row map(F f, const R&... rows)
    {
        Row r;
        each<full>([&](auto v) TENK_LAMBDA { r.vector[v] = f(rows.vector[v]...); });
        if constexpr (left != 0)
            r.rest = f(rows.rest...);
        return r;
    }
    template <typename F>
    TENK_INLINE static Row combine(const Row& a, const Row& b, F f)
    {
        return map(f, a, b);
    }

    TENK_INLINE friend Row operator+(const Row& a, const Row& b)
    {
        return combine(a, b, [](auto x, auto y) TENK_LAMBDA { return x + y; });
    }
    TENK_INLINE friend Row operator-(const Row& a, const Row& b)
    {
        return combine(a, b, [](auto x, auto y) TENK_LAMBDA { return x - y; });
    }
    TENK_INLINE friend Row operator*(const Row& a, const Row& b)
    {
        return combine(a, b, [](auto x, auto y) TENK_LAMBDA { return x * y; });
    }
};

// ---------------------------------------------------------------------------------------------------------------
// Blocks of rows
// ---------------------------------------------------------------------------------------------------------------

template <typename T, unsigned rows, unsigned columns = rows>
struct Block
{
    Row<T, columns> row[rows];

    template <typename View>
    TENK_INLINE static Block load(const View& view)
    {
        Block b;
        each<rows>([&](auto i) TENK_LAMBDA { b.row[i] = Row<T, columns>::load(view.row(i)); });
        return b;
    }

    template <typename View>
    TENK_INLINE void store(const View& view) const
    {
        each<rows>([&](auto i) TENK_LAMBDA { row[i].store(view.row(i)); });
    }

    // Row by row; see Row.
    template <typename F, typename... B>
    TENK_INLINE static Block map(F f, const B&... blocks)
    {
        Block b;
        each<rows>([&](auto i) TENK_LAMBDA { b.row[i] = Row<T, columns>::map(f, blocks.row[i]...); });
        return b;
    }
};

// ---------------------------------------------------------------------------------------------------------------
// Transposition: tiles of full vectors are turned by shuffles, what is left along the edges element by
// element
// ---------------------------------------------------------------------------------------------------------------

template <unsigned... lane, typename V>
TENK_INLINE V shuffle(V a, V b)
{
    return __builtin_shufflevector(a, b, lane...);
}

// A pair as it stands, and in 32f lanes 0 1 and 2 3 as a pair left over.
TENK_INLINE Vector<float> lowPair(Vector<float> v)
{
    return shuffle<0, 1, 0, 1>(v, v);
}
TENK_INLINE Vector<float> highPair(Vector<float> v)
{
    return shuffle<2, 3, 2, 3>(v, v);
}

TENK_INLINE Block<float, 3> transpose(const Block<float, 3>& b)
{
    // Lanes 0 1 1 2 of each row, so column 2 is in lane 3.
    const auto r0 = b.row[0].rest, r1 = b.row[1].rest, r2 = b.row[2].rest;
    const auto low01 = shuffle<0, 4, 1, 5>(r0, r1);
    const auto low12 = shuffle<0, 4, 1, 5>(r1, r2);
    const auto high01 = shuffle<2, 6, 3, 7>(r0, r1);
    const auto high12 = shuffle<2, 6, 3, 7>(r1, r2);
    Block<float, 3> t;
    t.row[0].rest = shuffle<0, 1, 4, 5>(low01, low12);
    t.row[1].rest = shuffle<2, 3, 6, 7>(low01, low12);
    t.row[2].rest = shuffle<2, 3, 6, 7>(high01, high12);
    return t;
}

template <unsigned n>
TENK_INLINE Block<float, n> transpose(const Block<float, n>& b)
{
    Block<float, n> t;
    const auto full = [&](auto i) TENK_LAMBDA { return b.row[i].vector[0]; };
    const auto low01 = shuffle<0, 4, 1, 5>(full(0), full(1));
    const auto low23 = shuffle<0, 4, 1, 5>(full(2), full(3));
    const auto high01 = shuffle<2, 6, 3, 7>(full(0), full(1));
    const auto high23 = shuffle<2, 6, 3, 7>(full(2), full(3));
    t.row[0].vector[0] = shuffle<0, 1, 4, 5>(low01, low23);
    t.row[1].vector[0] = shuffle<2, 3, 6, 7>(low01, low23);
    t.row[2].vector[0] = shuffle<0, 1, 4, 5>(high01, high23);
    t.row[3].vector[0] = shuffle<2, 3, 6, 7>(high01, high23);
    if constexpr (n == 5) {
        each<4>([&](auto j) TENK_LAMBDA { t.row[j].rest = b.row[4].get(j); });
        t.row[4].vector[0] = Vector<float>{b.row[0].rest, b.row[1].rest, b.row[2].rest, b.row[3].rest};
        t.row[4].rest = b.row[4].rest;
    } else if constexpr (n == 6) {
        const auto rest = [&](auto i) TENK_LAMBDA { return b.row[i].rest; };
        const auto right01 = shuffle<0, 4, 1, 5>(rest(0), rest(1));
        const auto right23 = shuffle<0, 4, 1, 5>(rest(2), rest(3));
        t.row[4].vector[0] = shuffle<0, 1, 4, 5>(right01, right23);
        t.row[5].vector[0] = shuffle<2, 3, 6, 7>(right01, right23);
        const auto lowBottom = shuffle<0, 4, 1, 5>(full(4), full(5));
        const auto highBottom = shuffle<2, 6, 3, 7>(full(4), full(5));
        const auto corner = shuffle<0, 4, 1, 5>(rest(4), rest(5));
        t.row[0].rest = lowPair(lowBottom);
        t.row[1].rest = highPair(lowBottom);
        t.row[2].rest = lowPair(highBottom);
        t.row[3].rest = highPair(highBottom);
        t.row[4].rest = lowPair(corner);
        t.row[5].rest = highPair(corner);
    }
    return t;
}

template <unsigned n>
TENK_INLINE Block<double, n> transpose(const Block<double, n>& b)
{
    constexpr unsigned pairs = n / 2;
    Block<double, n> t;
    each<pairs>([&](auto i) TENK_LAMBDA {
        const auto& upper = b.row[2 * i];
        const auto& lower = b.row[2 * i + 1];
        each<pairs>([&](auto j) TENK_LAMBDA {
            t.row[2 * j].vector[i] = shuffle<0, 2>(upper.vector[j], lower.vector[j]);
            t.row[2 * j + 1].vector[i] = shuffle<1, 3>(upper.vector[j], lower.vector[j]);
        });
        if constexpr (n % 2 == 1) {
            t.row[n - 1].vector[i] = Vector<double>{upper.rest, lower.rest};
            t.row[2 * i].rest = b.row[n - 1].vector[i][0];
            t.row[2 * i + 1].rest = b.row[n - 1].vector[i][1];
        }
    });
    if constexpr (n % 2 == 1)
        t.row[n - 1].rest = b.row[n - 1].rest;
    return t;
}

// A 3 x 3 object without gaps between its rows, as one row of nine.
TENK_INLINE Row<float, 9> transposed(const Row<float, 9>& r)
{
    // a00 a01 a02 a10 | a11 a12 a20 a21 | a22
    const auto low = r.vector[0], high = r.vector[1];
    const auto mixed = shuffle<1, 2, 6, 5>(low, high); // a01 a02 a20 a12
    return {{shuffle<0, 3, 6, 4>(low, mixed), shuffle<0, 3, 5, 7>(high, mixed)}, r.rest};
}
TENK_INLINE Row<double, 9> transposed(const Row<double, 9>& r)
{
    // a00 a01 | a02 a10 | a11 a12 | a20 a21 | a22
    const auto& v = r.vector;
    return {{shuffle<0, 3>(v[0], v[1]), shuffle<0, 3>(v[3], v[0]), shuffle<0, 3>(v[2], v[3]),
             shuffle<0, 3>(v[1], v[2])},
            r.rest};
}

// Two objects of 3 x 3, one behind the other.
TENK_INLINE Row<double, 18> transposed(const Row<double, 18>& r)
{
    // a00 a01 | a02 a10 | a11 a12 | a20 a21 | a22 b00 | b01 b02 | b10 b11 | b12 b20 | b21 b22
    Vector<double> v[9];
    each<9>([&](auto e) TENK_LAMBDA { v[e] = inRegister(r.vector[e]); });
    return {{shuffle<0, 3>(v[0], v[1]), shuffle<0, 3>(v[3], v[0]), shuffle<0, 3>(v[2], v[3]),
             shuffle<0, 3>(v[1], v[2]), v[4], shuffle<0, 3>(v[6], v[7]), shuffle<0, 3>(v[5], v[6]),
             shuffle<0, 3>(v[8], v[5]), shuffle<0, 3>(v[7], v[8])},
            {}};
}

} // namespace tenk
