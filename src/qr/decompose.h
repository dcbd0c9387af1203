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

#include "frame/groups.h"

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

// An element as such a scalar, and a sum of them. Of the wide unit's eight registers, which take long to be
// moved to memory and back, the compiler runs out if it keeps elements for later or puts sums off: these are
// read, and computed, here.
template <typename V>
TENK_INLINE V widened(const V& x)
{
    return x;
}
TENK_INLINE long double widened(const double& x)
{
    long double wide;
    asm volatile("fldl %1" : "=t"(wide) : "m"(x));
    return wide;
}
template <typename W>
TENK_INLINE W computed(W x)
{
    return x;
}
TENK_INLINE long double computed(long double x)
{
    asm volatile("" : "+t"(x));
    return x;
}

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

// V is an element, or a vector with an element of each object. Up to the coefficient of a reflector every
// operation waits for the one before, so two of them take turns if there are as many objects.
template <typename V, unsigned n, unsigned turns = 1>
struct Reflectors
{
    using W = Wide<V>;
    V a[turns][n][n];
    V v[turns][n]; // the buffer

    // False as soon as a column is none.
    TENK_INLINE bool reflect()
    {
        return [&]<std::size_t... k>(std::index_sequence<k...>) TENK_LAMBDA
        {
            return (reflect(index<k>) && ...);
        }
        (std::make_index_sequence<n - 1>());
    }

    template <std::size_t k>
    TENK_INLINE bool reflect(Index<k>)
    {
        W coefficient[turns];
        if (!makeReflector(index<k>, coefficient))
            return false;
        each<turns>([&](auto t) TENK_LAMBDA { apply(index<k>, a[t], v[t], coefficient[t]); });
        return true;
    }

    template <std::size_t k>
    TENK_INLINE bool makeReflector(Index<k>, W (&coefficient)[turns])
    {
        W sumOfSquares[turns];
        each<turns>([&](auto t) TENK_LAMBDA { sumOfSquares[t] = number<W>(0); });
        each<n - k>([&](auto i) TENK_LAMBDA {
            each<turns>([&](auto t) TENK_LAMBDA {
                const W x = widened(a[t][k + i][k]);
                sumOfSquares[t] = computed(sumOfSquares[t] + x * x);
            });
        });
        bool all = true;
        each<turns>([&](auto t) TENK_LAMBDA { all = all && isColumn(sumOfSquares[t]); });
        if (!all)
            return false;
        W scale[turns];
        each<turns>([&](auto t) TENK_LAMBDA {
            const V diagonal = a[t][k][k];
            scale[t] = reciprocalOfSum(diagonal, withSignOf(diagonal, squareRoot(sumOfSquares[t])));
            v[t][k] = number<V>(1);
        });
        W lengthSquared[turns];
        each<turns>([&](auto t) TENK_LAMBDA { lengthSquared[t] = number<W>(1); });
        each<n - 1 - k>([&](auto below) TENK_LAMBDA {
            constexpr std::size_t i = k + 1 + below;
            each<turns>([&](auto t) TENK_LAMBDA {
                const W x = widened(a[t][i][k]) * scale[t];
                v[t][i] = static_cast<V>(x);
                lengthSquared[t] = computed(lengthSquared[t] + x * x);
            });
        });
        each<turns>([&](auto t) TENK_LAMBDA { coefficient[t] = number<W>(-2) / lengthSquared[t]; });
        return true;
    }

    template <std::size_t k>
    TENK_INLINE static void apply(Index<k>, V (&a)[n][n], const V (&v)[n], const W& coefficient)
    {
        each<n - k>([&](auto right) TENK_LAMBDA {
            constexpr std::size_t j = k + right;
            W e = widened(a[k][j]);
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                e = computed(e + widened(a[i][j]) * widened(v[i]));
            });
            e = e * coefficient;
            a[k][j] = static_cast<V>(widened(a[k][j]) + e);
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                if constexpr (j == k)
                    a[i][j] = v[i]; // in the place of the near-zeros that the reflector leaves
                else
                    a[i][j] = static_cast<V>(widened(a[i][j]) + widened(v[i]) * e);
            });
        });
    }
};

consteval bool reflectsLocally(Member m)
{
    return !m.general() && isDense(m.layout);
}

template <typename T, unsigned n>
TENK_INLINE void loadMatrix(const DenseView<T>& from, T (&a)[n][n])
{
    each<n>([&](auto i)
                TENK_LAMBDA { each<n>([&](auto j) TENK_LAMBDA { a[i][j] = load<T>(from.at(i, j)); }); });
}
template <typename T, unsigned n>
TENK_INLINE void storeMatrix(const DenseView<T>& to, const T (&a)[n][n])
{
    each<n>([&](auto i)
                TENK_LAMBDA { each<n>([&](auto j) TENK_LAMBDA { store<T>(to.at(i, j), a[i][j]); }); });
}

// One object. What it left is stored after a failure as well.
template <Member m>
TENK_INLINE tenkStatus decomposeLocally(const DenseView<Element<m>>& src, const DenseView<Element<m>>& dst,
                                        Address buffer)
{
    using T = Element<m>;
    constexpr unsigned n = m.size;
    Reflectors<T, n> object;
    loadMatrix(src, object.a[0]);
    const bool done = [&]<std::size_t... k>(std::index_sequence<k...>) TENK_LAMBDA
    {
        const auto reflect = [&](auto step) TENK_LAMBDA {
            if (!object.reflect(step))
                return false;
            each<n - step>([&](auto i) TENK_LAMBDA {
                store<T>(buffer + (step + i) * sizeof(T), object.v[0][step + i]);
            });
            return true;
        };
        return (reflect(index<k>) && ...);
    }
    (std::make_index_sequence<n - 1>());
    storeMatrix(dst, object.a[0]);
    return done ? tenkOk : tenkSingularError;
}

// The batch a group of so many objects at a time: side by side in vectors, which only binary32 has the
// arithmetic for, and in turns.
template <Member m, unsigned objects>
struct QRGroups
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;
    static constexpr bool inVectors = m.type == Type::f32;
    static constexpr unsigned width = inVectors ? group<T> : 1, turns = objects / width;
    using V = std::conditional_t<inVectors, Vector<T>, T>;

    const Matrices<m, objects> matrices;
    Address buffer;

    // The group that begins with object k. False, with nothing written, if something could tell, or if an
    // object has no factors.
    TENK_INLINE bool decompose(std::size_t k) const
    {
        return matrices.group(k, [&](const auto& sources, const auto& results) TENK_LAMBDA {
            Reflectors<V, n, turns> group;
            each<turns>([&](auto t) TENK_LAMBDA {
                if constexpr (inVectors)
                    loadMatrices(sources, group.a[t], t * width);
                else
                    loadMatrix(sources.object[t], group.a[t]);
            });
            if (!group.reflect())
                return false;
            each<turns>([&](auto t) TENK_LAMBDA {
                if constexpr (inVectors)
                    storeMatrices(results, group.a[t], t * width);
                else
                    storeMatrix(results.object[t], group.a[t]);
            });
            each<n>([&](auto i) TENK_LAMBDA {
                T last;
                if constexpr (inVectors)
                    last = group.v[turns - 1][i][width - 1];
                else
                    last = group.v[turns - 1][i];
                store<T>(buffer + i * sizeof(T), last);
            });
            return true;
        });
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
        if constexpr (reflectsLocally(m) && m.batch()) {
            const auto all = [&](const auto& groups, std::size_t objects) TENK_LAMBDA {
                while (local && groups.matrices.fit() && count - k >= objects && groups.decompose(k))
                    k += objects;
            };
            if constexpr (m.type == Type::f32)
                all(QRGroups<m, 2 * group<T>>{{src, dst}, scratch}, 2 * group<T>);
            all(QRGroups<m, group<T>>{{src, dst}, scratch}, group<T>);
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
