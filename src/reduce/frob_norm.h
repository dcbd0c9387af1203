// FrobNorm: the square root of the sum of the squares of a matrix's elements.
//
// Squares, sums and the root are rounded one by one to the element type, and the result is written once. Two
// kinds of members:
//
//   fixed sizes of adjacent elements       the squares of each column are added, then the columns, see
//   columnSums and
//                                          sumAcross; in 32f the root is refined from the processor's
//                                          estimate
//   all others                             one sum from +0 by ascending index, of single matrices row by row,
//   of arrays
//                                          column by column; the root is correctly rounded
//
// So an array and a single matrix may differ in the last bit.
#pragma once

#include "reduce/batch.h"
#include "reduce/root.h"
#include "reduce/sums.h"

namespace tenk::frob {

consteval bool addsColumns(Member m)
{
    return isDense(m.layout) && !m.general();
}

// These take the root by the processor's estimate, which makes the norm of a zero matrix a NaN.
consteval bool refinesEstimate(Member m)
{
    return addsColumns(m) && m.type == Type::f32;
}

// How many objects are read, and their list entries tested, before the first of their results is written.
consteval unsigned objectsPerStep(Member m)
{
    if (!m.batch() || !addsColumns(m) || m.size > 4)
        return 1;
    return m.type == Type::f32 ? 4 : 2;
}

// Lists that are worked through in steps test no entry of the objects behind the last full step: a null entry
// there is used as an address.
consteval bool testsRest(Member m)
{
    return objectsPerStep(m) == 1;
}

// The sums of the squares of each column, one column per lane.
template <typename T, unsigned n, typename View>
TENK_INLINE Row<T, n> columnSums(const View& view)
{
    const auto squares = [&](std::size_t i) TENK_LAMBDA {
        const auto row = Row<T, n>::load(view.row(i));
        return row * row;
    };
    if constexpr (n == 3) {
        return (squares(0) + squares(1)) + squares(2);
    } else {
        const auto four = (squares(0) + squares(1)) + (squares(2) + squares(3));
        if constexpr (n == 4)
            return four;
        else if constexpr (n == 5)
            return four + squares(4);
        else
            return four + (squares(4) + squares(5));
    }
}

// The sum of the columns.
TENK_INLINE float sumAcross(const Row<float, 3>& c)
{
    return (c.get(index<0>) + c.get(index<1>)) + c.get(index<2>);
}
TENK_INLINE double sumAcross(const Row<double, 3>& c)
{
    return (c.get(index<2>) + c.get(index<0>)) + c.get(index<1>);
}
template <typename T, unsigned n>
TENK_INLINE T sumAcross(const Row<T, n>& c)
{
    const T even = c.get(index<0>) + c.get(index<2>);
    const T odd = c.get(index<1>) + c.get(index<3>);
    if constexpr (n == 4)
        return even + odd;
    else if constexpr (n == 5)
        return (even + odd) + c.get(index<4>);
    else
        return (even + c.get(index<4>)) + (odd + c.get(index<5>));
}

// The same for a whole step, one object per lane.
TENK_INLINE Vector<float> sumsAcross(const Row<float, 3> (&c)[4])
{
    const auto t = sideBySide(c);
    return (t.element[0] + t.element[1]) + t.element[2];
}
TENK_INLINE Vector<float> sumsAcross(const Row<float, 4> (&c)[4])
{
    const auto evenAndOdd = [](Vector<float> a, Vector<float> b)
                                TENK_LAMBDA { return lowHalves(a, b) + highHalves(a, b); };
    return sumNeighbours(evenAndOdd(c[0].vector[0], c[1].vector[0]),
                         evenAndOdd(c[2].vector[0], c[3].vector[0]));
}
TENK_INLINE Vector<double> sumsAcross(const Row<double, 3> (&c)[2])
{
    const auto c0 = shuffle<0, 2>(c[0].vector[0], c[1].vector[0]);
    const auto c1 = shuffle<1, 3>(c[0].vector[0], c[1].vector[0]);
    return (Vector<double>{c[0].rest, c[1].rest} + c0) + c1;
}
TENK_INLINE Vector<double> sumsAcross(const Row<double, 4> (&c)[2])
{
    const auto first = c[0].vector[0] + c[0].vector[1];
    const auto second = c[1].vector[0] + c[1].vector[1];
    return shuffle<0, 2>(first, second) + shuffle<1, 3>(first, second);
}

} // namespace tenk::frob

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus frobNorm(Source<m> src, Size<m> width, Size<m> height, Element<m>* dst, Count<m> count)
{
    using T = Element<m>;
    constexpr unsigned step = frob::objectsPerStep(m);
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(width, height))
        return tenkSizeError;
    // For a single matrix this is as good as testing each entry when its element is due: nothing has been
    // written then.
    if constexpr (isTable(m.layout))
        for (std::size_t i = 0; i < height; ++i)
            for (std::size_t j = 0; j < width; ++j)
                if (src.object(0, width).isNull(i, j))
                    return tenkNullPointerError;

    const std::size_t tested = frob::testsRest(m) ? std::size_t{count} : count / step * step;
    return inSteps<step>(
        dst, count, [&](std::size_t k) TENK_LAMBDA { return k < tested && anyNullObject(k, src); },
        [&](auto k) TENK_LAMBDA {
            Row<T, m.size> c[step];
            each<step>([&](auto n)
                           TENK_LAMBDA { c[n] = frob::columnSums<T, m.size>(src.object(k + n, width)); });
            const auto s = frob::sumsAcross(c);
            if constexpr (frob::refinesEstimate(m))
                return refinedRoot(s);
            else
                return root(s);
        },
        [&](std::size_t k) TENK_LAMBDA -> T {
            const auto x = src.object(k, width);
            if constexpr (frob::addsColumns(m)) {
                const T s = frob::sumAcross(frob::columnSums<T, m.size>(x));
                if constexpr (frob::refinesEstimate(m))
                    return refinedRoot(s);
                else
                    return root(s);
            } else {
                T s = 0;
                for (std::size_t outer = 0; outer < (m.batch() ? width : height); ++outer)
                    for (std::size_t inner = 0; inner < (m.batch() ? height : width); ++inner) {
                        const T element = load<T>(m.batch() ? x.at(inner, outer) : x.at(outer, inner));
                        s = s + element * element;
                    }
                return root(s);
            }
        });
}

} // namespace tenk
