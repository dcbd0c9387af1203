// QRBackSubst: solves A x = b with the factors of QRDecomp, for more rows than columns in the sense of least
// squares.
//
// The right-hand side is copied to buffer, the reflectors are applied to it there, their coefficients
// computed again from their vectors, and backward substitution through R writes dst. All arithmetic is that
// of the element type, every sum in ascending order, each product rounded before it is added.
#pragma once

#include "frame/groups.h"

namespace tenk {

// These multiply by the rounded reciprocal of the diagonal element; all others divide by it.
consteval bool multipliesByReciprocal(Member m)
{
    return m.general() &&
           (m.batch() ? m.layout == Layout::Pointer || isList(m.layout) : m.layout != Layout::Pointer);
}

// These step along a row of the factor by 4 bytes, so that 8-byte elements overlap.
consteval bool stepsByFourBytes(Member m)
{
    return m == "tenkQRBackSubst_mva_64f_L" || m == "tenkQRBackSubst_mva_64f_3x3_L" ||
           m == "tenkQRBackSubst_mva_64f_4x4_L" || m == "tenkQRBackSubst_mva_64f_5x5_L" ||
           m == "tenkQRBackSubst_mva_64f_6x6_L";
}

// These read R from one row above the matrix on, with a step of one byte from row to row and the first row a
// byte on; the reflectors they read where they are.
consteval bool stepsByOneByte(Member m)
{
    return m == "tenkQRBackSubst_mava_64f_L" || m == "tenkQRBackSubst_mava_64f_3x3_L" ||
           m == "tenkQRBackSubst_mava_64f_4x4_L" || m == "tenkQRBackSubst_mava_64f_5x5_L" ||
           m == "tenkQRBackSubst_mava_64f_6x6_L";
}

template <Member m>
TENK_INLINE auto reflectorsOf(const Source<m, 0>& src1, std::size_t k, std::size_t width)
{
    const auto factor = src1.object(k, width);
    if constexpr (stepsByFourBytes(m))
        return StridedView<Element<m>>{factor.start, factor.rowStep, 4};
    else
        return factor;
}

// Where R is.
template <Member m>
TENK_INLINE Source<m, 0> trianglesOf(Source<m, 0> src1)
{
    if constexpr (stepsByOneByte(m)) {
        const Address shift = static_cast<Address>(src1.shift) - static_cast<Address>(src1.stride1) + 1;
        src1.shift = static_cast<Displacement>(shift);
        src1.stride1 = 1;
    }
    return src1;
}

// One object. With fewer rows than columns it works on behind the ends of buffer and factor.
template <Member m, typename V, typename R, typename B, typename X>
TENK_INLINE void qrSolve(const V& v, const R& r, Address buffer, const B& b, const X& x, Size<m> width,
                         Size<m> height)
{
    using T = Element<m>;
    const std::size_t w = width, h = height;
    const auto y = [&](std::size_t i) TENK_LAMBDA { return buffer + i * sizeof(T); };
    for (std::size_t i = 0; i < h; ++i)
        move<T>(y(i), b.at(0, i));

    const std::size_t reflectors = w == h ? w - 1 : w;
    for (std::size_t k = 0; k < reflectors; ++k) {
        T lengthSquared = 1;
        T e = load<T>(y(k));
        for (std::size_t i = k + 1; i < h; ++i) {
            const T component = load<T>(v.at(i, k));
            e = e + load<T>(y(i)) * component;
            lengthSquared = lengthSquared + component * component;
        }
        e = e * (-2 / lengthSquared);
        store<T>(y(k), load<T>(y(k)) + e);
        for (std::size_t i = k + 1; i < h; ++i)
            store<T>(y(i), load<T>(y(i)) + load<T>(v.at(i, k)) * e);
    }

    for (std::size_t i = w; i-- > 0;) {
        T value = load<T>(y(i));
        if (i + 1 < w) {
            T sum = 0;
            for (std::size_t j = i + 1; j < w; ++j)
                sum = sum + load<T>(r.at(i, j)) * load<T>(x.at(0, j));
            value = value - sum;
        }
        const T diagonal = load<T>(r.at(i, i));
        store<T>(x.at(0, i), multipliesByReciprocal(m) ? value * (1 / diagonal) : value / diagonal);
    }
}

// ---------------------------------------------------------------------------------------------------------------
// A group of objects side by side, for the batches of fixed size whose rows are adjacent
// ---------------------------------------------------------------------------------------------------------------

consteval bool qrSolvesSideBySide(Member m)
{
    return m.batch() && !m.general() && isDense(m.layout);
}

// The batch a group at a time.
template <Member m>
struct QRSolveGroups
{
    using T = Element<m>;
    static constexpr unsigned n = m.size;
    static constexpr bool oneFactor = !m.operand[0].array;

    const Source<m, 0>& src1;
    const Source<m, 1>& src2;
    const Destination<m>& dst;
    Address buffer;
    const Source<m, 0> triangles = trianglesOf<m>(src1);
    Span<Source<m, 0>, n, n> matrices{src1, false}, ofTriangles{triangles, false};
    Span<Source<m, 1>, 1, n> rightSides{src2, false};
    Span<Destination<m>, 1, n> results{dst, true};
    Vector<T> factor[n][n];
    Vector<T> coefficient[n - 1];
    bool apart = false;  // throughout the batch
    bool loaded = false; // one factor, which is loaded once

    TENK_INLINE QRSolveGroups(const Source<m, 0>& src1, Address buffer, const Source<m, 1>& src2,
                              const Destination<m>& dst, std::size_t count)
        : src1(src1), src2(src2), dst(dst), buffer(buffer)
    {
        apart = count > 0 && apartThroughout(src1, matrices, dst, results, count) &&
                apartThroughout(src2, rightSides, dst, results, count);
    }

    TENK_INLINE bool fit() const { return matrices.fits && rightSides.fits && results.fits; }

    TENK_INLINE void loadFactor(const Side<Source<m, 0>, n, n>& a)
    {
        if constexpr (oneFactor) {
            const auto view = reflectorsOf<m>(src1, 0, n);
            each<n>([&](auto i) TENK_LAMBDA {
                each<n>([&](auto j) TENK_LAMBDA { factor[i][j] = broadcast(load<T>(view.at(i, j))); });
            });
        } else {
            loadMatrices(a, factor);
        }
        each<n - 1>([&](auto k) TENK_LAMBDA {
            Vector<T> lengthSquared = broadcast<T>(1);
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                const Vector<T> component = factor[k + 1 + below][k];
                lengthSquared = lengthSquared + component * component;
            });
            coefficient[k] = broadcast<T>(-2) / lengthSquared;
        });
    }

    TENK_INLINE void loadTriangle(const Side<Source<m, 0>, n, n>& r)
    {
        each<n>([&](auto i) TENK_LAMBDA {
            Vector<T> row[n];
            loadSideBySide<n>(r.rowOfEach(i), row);
            each<n - i>([&](auto j) TENK_LAMBDA { factor[i][i + j] = row[i + j]; });
        });
    }

    // y is the right-hand side, and then the solution.
    TENK_INLINE void solve(Vector<T> (&y)[n]) const
    {
        each<n - 1>([&](auto k) TENK_LAMBDA {
            Vector<T> e = y[k];
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                e = e + y[i] * factor[i][k];
            });
            e = e * coefficient[k];
            y[k] = y[k] + e;
            each<n - 1 - k>([&](auto below) TENK_LAMBDA {
                constexpr std::size_t i = k + 1 + below;
                y[i] = y[i] + factor[i][k] * e;
            });
        });
        each<n>([&](auto i) TENK_LAMBDA { store<T>(buffer + i * sizeof(T), y[i][group<T> - 1]); });

        y[n - 1] = y[n - 1] / factor[n - 1][n - 1];
        each<n - 1>([&](auto after) TENK_LAMBDA {
            constexpr std::size_t i = n - 2 - after;
            Vector<T> sum = broadcast<T>(0);
            each<n - 1 - i>([&](auto j) TENK_LAMBDA { sum = sum + factor[i][i + 1 + j] * y[i + 1 + j]; });
            y[i] = (y[i] - sum) / factor[i][i];
        });
    }

    // The group that begins with object k. False, with nothing written, if something could tell.
    TENK_INLINE bool solve(std::size_t k)
    {
        if (!noNullObject<group<T>>(k, src1, src2, dst))
            return false;
        const Side<Source<m, 0>, n, n> a(src1, matrices, k);
        const Side<Source<m, 1>, 1, n> b(src2, rightSides, k);
        const Side<Destination<m>, 1, n> x(dst, results, k);
        if (!x.eachApart() || (!apart && (!mayReadFirst(a, x, false) || !mayReadFirst(b, x, true))))
            return false;
        if constexpr (stepsByOneByte(m)) {
            const Side<Source<m, 0>, n, n> r(triangles, ofTriangles, k);
            if (!mayReadFirst(r, x, false))
                return false;
            loadFactor(a);
            loadTriangle(r);
        } else if (!loaded) {
            loadFactor(a);
        }
        loaded = oneFactor;
        Vector<T> y[n];
        loadSideBySide<n>(b.rowOfEach(0), y);
        solve(y);
        storeSideBySide<n>(x.rowOfEach(0), y);
        return true;
    }
};

template <Member m>
TENK_INLINE auto qrSolveGroups(const Source<m, 0>& src1, Address buffer, const Source<m, 1>& src2,
                               const Destination<m>& dst, std::size_t count)
{
    if constexpr (qrSolvesSideBySide(m))
        return QRSolveGroups<m>(src1, buffer, src2, dst, count);
    else
        return Nothing{};
}

template <Member m>
TENK_INLINE tenkStatus qrBackSubst(Source<m, 0> src1, Element<m>* buffer, Source<m, 1> src2,
                                   Destination<m> dst, Size<m> width, Size<m> height, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src1, buffer, src2, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    if (anyNullEntry(src1, std::size_t{width} * height) || anyNullEntry(src2, height) ||
        anyNullEntry(dst, width))
        return tenkNullPointerError;

    const auto scratch = reinterpret_cast<Address>(buffer);
    const Source<m, 0> triangles = trianglesOf<m>(src1);
    [[maybe_unused]] auto groups = qrSolveGroups<m>(src1, scratch, src2, dst, count);
    for (std::size_t k = 0; k < count; ++k) {
        if constexpr (qrSolvesSideBySide(m)) {
            while (groups.fit() && count - k >= group<T> && groups.solve(k))
                k += group<T>;
            if (k == count)
                break;
        }
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        qrSolve<m>(reflectorsOf<m>(src1, k, width), reflectorsOf<m>(triangles, k, width), scratch,
                   src2.object(k, height), dst.object(k, width), width, height);
    }
    return tenkOk;
}

} // namespace tenk
