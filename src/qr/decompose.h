// QRDecomp: factors matrices by Householder reflections.
//
// The matrix is copied to dst and worked on there. Reflector k is I + t v v', t = -2 / (v' v), with v zero
// before component k and one in it; it turns column k, from row k down, into R(k, k) and zeros. R stands on
// and above the diagonal, the components of v below it. The last column of a square matrix gets no reflector.
//
// 32f rounds every operation to binary32, but for two that are rounded once: the root of the sum of squares,
// and the reciprocal that scales the column, whose sum and quotient are those of the wide unit. 64f keeps
// every scalar of a step in the wide unit; only elements of dst and buffer are binary64.
#pragma once

#include "frame/side_by_side.h"

namespace tenk {

// What a scalar of a step is kept in: for elements, and for elements of objects side by side.
template <typename V>
struct WideOf
{
    using type = V;
};
template <>
struct WideOf<double>
{
    using type = long double;
};
template <typename V>
using Wide = typename WideOf<V>::type;

// The limit of a column's sum of squares, from the diagonal down: the same in both types. A NaN is below it.
inline constexpr float columnFloor = 0x1p-23F;

TENK_INLINE bool isColumn(float sumOfSquares)
{
    return magnitude(sumOfSquares) >= columnFloor;
}
TENK_INLINE bool isColumn(long double sumOfSquares)
{
    return __builtin_fabsl(sumOfSquares) >= columnFloor;
}
TENK_INLINE bool isColumn(Vector<float> sumOfSquares)
{
    return all(magnitude(sumOfSquares) >= broadcast(columnFloor));
}

// A root or a quotient of binary32 numbers, rounded to more than twice their bits and then to theirs, is the
// one that is rounded at once: binary32 has the wide unit's root and -2 / u.
TENK_INLINE float squareRoot(float x)
{
    return __builtin_sqrtf(x);
}
TENK_INLINE long double squareRoot(long double x)
{
    return __builtin_sqrtl(x);
}
TENK_INLINE Vector<float> squareRoot(Vector<float> x)
{
    return _mm_sqrt_ps(x);
}

// The norm with the sign of the diagonal element; zeros of both signs take minus.
template <typename W, typename V>
TENK_INLINE W withSignOf(V diagonal, W norm)
{
    return diagonal > 0 ? norm : -norm;
}
TENK_INLINE Vector<float> withSignOf(Vector<float> diagonal, Vector<float> norm)
{
    const Mask<float> sign = Mask<float>{} + static_cast<int>(0x80000000);
    return fromBits<float>(bits<float>(norm) ^ (sign & ~(diagonal > broadcast(0.0F))));
}

// 1 / (a + g).
TENK_INLINE float reciprocalOfSum(float a, float g)
{
    return static_cast<float>(1 / (static_cast<long double>(a) + static_cast<long double>(g)));
}
TENK_INLINE long double reciprocalOfSum(double a, long double g)
{
    return 1 / (a + g);
}
TENK_INLINE Vector<float> reciprocalOfSum(Vector<float> a, Vector<float> g)
{
    return Vector<float>{reciprocalOfSum(a[0], g[0]), reciprocalOfSum(a[1], g[1]),
                         reciprocalOfSum(a[2], g[2]), reciprocalOfSum(a[3], g[3])};
}

// One object, in place in dst.
template <Member m, typename From, typename To>
TENK_INLINE tenkStatus decompose(const From& src, const To& d, Address buffer, Size<m> width, Size<m> height)
{
    using T = Element<m>;
    using W = Wide<T>;
    const std::size_t w = width, h = height;
    const auto b = [&](std::size_t i) TENK_LAMBDA { return buffer + i * sizeof(T); };
    for (std::size_t i = 0; i < h; ++i)
        for (std::size_t j = 0; j < w; ++j)
            move<T>(d.at(i, j), src.at(i, j));

    const std::size_t reflectors = w == h ? w - 1 : w;
    for (std::size_t k = 0; k < reflectors; ++k) {
        W sumOfSquares = 0;
        for (std::size_t i = k; i < h; ++i) {
            const W x = load<T>(d.at(i, k));
            sumOfSquares = sumOfSquares + x * x;
        }
        if (!isColumn(sumOfSquares)) // so does an empty column below the last row
            return tenkSingularError;
        const T diagonal = load<T>(d.at(k, k));
        const W scale = reciprocalOfSum(diagonal, withSignOf(diagonal, squareRoot(sumOfSquares)));

        store<T>(b(k), 1);
        W lengthSquared = 1;
        for (std::size_t i = k + 1; i < h; ++i) {
            const W v = load<T>(d.at(i, k)) * scale;
            store<T>(b(i), static_cast<T>(v));
            lengthSquared = lengthSquared + v * v;
        }
        const W coefficient = -2 / lengthSquared;
        std::size_t j = k;
        if constexpr (m.general() && isDense(m.layout) && m.type == Type::f32)
            for (; rowsApart<T>(d.rowStep, w) && w - j >= lanes<T>; j += lanes<T>) {
                const auto columns = [&](std::size_t i) TENK_LAMBDA { return d.at(i, j); };
                const auto component = [&](std::size_t i) TENK_LAMBDA { return broadcast(load<T>(b(i))); };
                Vector<T> e = loadVector<T>(columns(k));
                for (std::size_t i = k + 1; i < h; ++i)
                    e = e + loadVector<T>(columns(i)) * component(i);
                e = e * broadcast(coefficient);
                for (std::size_t i = k; i < h; ++i)
                    storeVector<T>(columns(i), loadVector<T>(columns(i)) + component(i) * e);
            }
        for (; j < w; ++j) {
            W e = load<T>(d.at(k, j));
            for (std::size_t i = k + 1; i < h; ++i)
                e = e + W{load<T>(d.at(i, j))} * load<T>(b(i));
            e = e * coefficient;
            for (std::size_t i = k; i < h; ++i)
                store<T>(d.at(i, j), static_cast<T>(load<T>(d.at(i, j)) + W{load<T>(b(i))} * e));
        }
        for (std::size_t i = k + 1; i < h; ++i)
            move<T>(d.at(i, k), b(i));
    }
    return tenkOk;
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed sizes whose rows are adjacent: one object, or a group of them side by side, in local memory
// ---------------------------------------------------------------------------------------------------------------

// V is an element, or a vector with an element of each object.
template <typename V, unsigned n>
struct Reflectors
{
    using W = Wide<V>;
    V a[n][n];
    V v[n]; // the buffer

    // False if a column is none.
    template <std::size_t k>
    TENK_INLINE bool reflect(Index<k>)
    {
        W sumOfSquares = number<W>(0);
        each<n - k>([&](auto i) TENK_LAMBDA {
            const W x = a[k + i][k];
            sumOfSquares = sumOfSquares + x * x;
        });
        if (!isColumn(sumOfSquares))
            return false;
        const W scale = reciprocalOfSum(a[k][k], withSignOf(a[k][k], squareRoot(sumOfSquares)));

        v[k] = number<V>(1);
        W lengthSquared = number<W>(1);
        each<n - 1 - k>([&](auto below) TENK_LAMBDA {
            constexpr std::size_t i = k + 1 + below;
            const W x = a[i][k] * scale;
            v[i] = static_cast<V>(x);
            lengthSquared = lengthSquared + x * x;
        });
        const W coefficient = number<W>(-2) / lengthSquared;
        each<n - k>([&](auto right) TENK_LAMBDA {
            constexpr std::size_t j = k + right;
            W e = a[k][j];
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                e = e + static_cast<W>(a[i][j]) * static_cast<W>(v[i]);
            });
            e = e * coefficient;
            a[k][j] = static_cast<V>(static_cast<W>(a[k][j]) + e);
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                if constexpr (j == k)
                    a[i][j] = v[i]; // in the place of the near-zeros that the reflector leaves
                else
                    a[i][j] = static_cast<V>(static_cast<W>(a[i][j]) + static_cast<W>(v[i]) * e);
            });
        });
        return true;
    }
};

consteval bool reflectsLocally(Member m)
{
    return !m.general() && isDense(m.layout);
}

// Only binary32 has its arithmetic in vectors.
consteval bool reflectsSideBySide(Member m)
{
    return reflectsLocally(m) && m.batch() && m.type == Type::f32;
}

// One object. What it left is stored after a failure as well.
template <Member m>
TENK_INLINE tenkStatus decomposeLocally(const DenseView<Element<m>>& src, const DenseView<Element<m>>& dst,
                                        Address buffer)
{
    using T = Element<m>;
    constexpr unsigned n = m.size;
    Reflectors<T, n> object;
    each<n>([&](auto i) TENK_LAMBDA {
        each<n>([&](auto j) TENK_LAMBDA { object.a[i][j] = load<T>(src.at(i, j)); });
    });
    const bool done = [&]<std::size_t... k>(std::index_sequence<k...>) TENK_LAMBDA
    {
        const auto reflect = [&](auto step) TENK_LAMBDA {
            if (!object.reflect(step))
                return false;
            each<n - step>(
                [&](auto i) TENK_LAMBDA { store<T>(buffer + (step + i) * sizeof(T), object.v[step + i]); });
            return true;
        };
        return (reflect(index<k>) && ...);
    }
    (std::make_index_sequence<n - 1>());
    each<n>([&](auto i) TENK_LAMBDA {
        each<n>([&](auto j) TENK_LAMBDA { store<T>(dst.at(i, j), object.a[i][j]); });
    });
    return done ? tenkOk : tenkSingularError;
}

// The batch a group at a time.
template <Member m>
struct QRGroups
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;

    const Source<m>& src;
    const Destination<m>& dst;
    Address buffer;
    Span<Source<m>, n, n> from{src, false};
    Span<Destination<m>, n, n> to{dst, true};

    TENK_INLINE bool fit() const { return from.fits && to.fits; }

    // The group that begins with object k. False, with nothing written, if something could tell, or if an
    // object has no factors.
    TENK_INLINE bool decompose(std::size_t k) const
    {
        if (!entriesOnOnePage(src, k) || !entriesOnOnePage(dst, k) || !noNullObject(group<T>, k, src, dst))
            return false;
        const Side<Source<m>, n, n> sources(src, from, k);
        const Side<Destination<m>, n, n> results(dst, to, k);
        if (!sources.onPagesOfFirst() || !results.eachApart() || !mayReadFirst(sources, results, true))
            return false;
        Reflectors<Vector<T>, n> objects;
        loadMatrices(sources, objects.a);
        const bool done = [&]<std::size_t... step>(std::index_sequence<step...>) TENK_LAMBDA
        {
            return (objects.reflect(index<step>) && ...);
        }
        (std::make_index_sequence<n - 1>());
        if (!done)
            return false;
        storeMatrices(results, objects.a);
        each<n>([&](auto i) TENK_LAMBDA { store<T>(buffer + i * sizeof(T), objects.v[i][group<T> - 1]); });
        return true;
    }
};

template <Member m>
TENK_INLINE tenkStatus qrDecomp(Source<m> src, Element<m>* buffer, Destination<m> dst, Size<m> width,
                                Size<m> height, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, buffer, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    const std::size_t entries = std::size_t{width} * height;
    if (anyNullEntry(src, entries) || anyNullEntry(dst, entries))
        return tenkNullPointerError;

    const auto scratch = reinterpret_cast<Address>(buffer);
    const bool local = reflectsLocally(m) && rowsApart<T>(dst.stride1, width);
    for (std::size_t k = 0; k < count; ++k) {
        if constexpr (reflectsSideBySide(m)) {
            const QRGroups<m> groups{src, dst, scratch};
            while (local && groups.fit() && count - k >= group<T> && groups.decompose(k))
                k += group<T>;
            if (k == count)
                break;
        }
        if (anyNullObject(k, src, dst))
            return tenkNullPointerError;
        tenkStatus status;
        if constexpr (reflectsLocally(m)) {
            status = local ? decomposeLocally<m>(src.object(k, width), dst.object(k, width), scratch)
                           : decompose<m>(src.object(k, width), dst.object(k, width), scratch, width, height);
        } else {
            status = decompose<m>(src.object(k, width), dst.object(k, width), scratch, width, height);
        }
        if (status != tenkOk)
            return status;
    }
    return tenkOk;
}

} // namespace tenk
