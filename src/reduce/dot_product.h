// DotProduct: the sum of the products of the elements of two vectors.
//
// Products and sums are rounded one by one to the element type. The result is written once, when all elements
// of both vectors have been read. Sums start from +0 and go by ascending index, but for three kinds of
// members:
//
//   general vv of adjacent elements        in blocks of 8, chosen by the address of src2: see blockSum in
//   sums.h fixed 32f of adjacent elements         the same order without the zero fixed 64f of adjacent
//   elements         in pairs: elements of even and of odd index apart, see sumInOrder
//
// So a sum of nothing but -0 is -0 in the last two, and +0 in all others.
#pragma once

#include "reduce/batch.h"
#include "reduce/sums.h"

namespace tenk::dot {

// Four elements are added as two pairs of neighbours, p0 + p1 and p2 + p3.
consteval bool addsPairs(Member m)
{
    return m == "tenkDotProduct_vav_32f_4x1" || m == "tenkDotProduct_vav_32f_4x1_L";
}

// How many objects are read, and their list entries tested, before the first of their results is written. In
// 64f that is a step of two in Standard layout alone.
consteval unsigned objectsPerStep(Member m)
{
    if (m == "tenkDotProduct_vav_32f_3x1" || m == "tenkDotProduct_vav_32f_3x1_L" ||
        m == "tenkDotProduct_vav_32f_4x1" || m == "tenkDotProduct_vav_32f_4x1_L")
        return 4;
    return m == "tenkDotProduct_vav_64f_3x1" ? 2 : 1;
}

// The sum of products of a fixed size in 32f.
template <Member m>
TENK_INLINE float sumInOrder(Address x, Address y)
{
    const auto p = [&](std::size_t i) TENK_LAMBDA { return load<float>(x + i * 4) * load<float>(y + i * 4); };
    if constexpr (addsPairs(m))
        return (p(0) + p(1)) + (p(2) + p(3));
    float s = p(0);
    each<m.size - 1>([&](auto i) TENK_LAMBDA { s = s + p(i + 1); });
    return s;
}

// The sum of products of a fixed size in 64f.
template <Member m>
requires(m.type == Type::f64) TENK_INLINE double sumInOrder(Address x, Address y)
{
    const auto p = Row<double, m.size>::load(x) * Row<double, m.size>::load(y);
    if constexpr (m.size == 3)
        return (p.vector[0][0] + p.vector[0][1]) + p.rest;
    Vector<double> s = p.vector[0] + p.vector[1];
    if constexpr (m.size == 6)
        s = p.vector[0] + (p.vector[1] + p.vector[2]);
    const double both = s[0] + s[1];
    if constexpr (m.size == 5)
        return both + p.rest;
    return both;
}

// The same for a whole step, one object per lane; x(n) is the address of object n of the step.
template <Member m, typename X>
TENK_INLINE auto sumsOfStep(X x, Address y)
{
    if constexpr (m.type == Type::f64) {
        const auto factors = Row<double, 3>::load(y);
        const auto first = Row<double, 3>::load(x(0)) * factors;
        const auto second = Row<double, 3>::load(x(1)) * factors;
        return (shuffle<0, 2>(first.vector[0], second.vector[0]) +
                shuffle<1, 3>(first.vector[0], second.vector[0])) +
               Vector<double>{first.rest, second.rest};
    } else {
        const auto factors = Row<float, m.size>::load(y);
        Row<float, m.size> p[4];
        each<4>([&](auto n) TENK_LAMBDA { p[n] = Row<float, m.size>::load(x(n)) * factors; });
        if constexpr (m.size == 4) {
            const auto pairs01 = sumNeighbours(p[0].vector[0], p[1].vector[0]);
            const auto pairs23 = sumNeighbours(p[2].vector[0], p[3].vector[0]);
            return sumNeighbours(pairs01, pairs23);
        } else {
            const auto t = sideBySide(p);
            return (t.element[0] + t.element[1]) + t.element[2];
        }
    }
}

} // namespace tenk::dot

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus dotProduct(Source<m> src1, Source<m, 1> src2, Element<m>* dst, Size<m> length,
                                  Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    // For a single pair this is as good as testing each entry when its element is due: nothing has been
    // written then.
    if (anyNullEntryOf(length, src1, src2))
        return tenkNullPointerError;

    constexpr bool adjacent = isDense(m.layout) && !m.general();
    return inSteps<dot::objectsPerStep(m)>(
        dst, count, [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src1, src2); },
        [&](auto k) TENK_LAMBDA {
            const auto x = [&](std::size_t n) TENK_LAMBDA { return src1.object(k + n, length).start; };
            return dot::sumsOfStep<m>(x, src2.object(k, length).start);
        },
        [&](std::size_t k) TENK_LAMBDA -> T {
            const auto x = src1.object(k, length);
            const auto y = src2.object(k, length);
            if constexpr (adjacent) {
                return dot::sumInOrder<m>(x.start, y.start);
            } else if constexpr (isDense(m.layout) && !m.batch()) {
                return blockSum<T>(x.start, y.start, length);
            } else {
                T s = 0;
                for (std::size_t j = 0; j < length; ++j)
                    s = s + load<T>(x.at(0, j)) * load<T>(y.at(0, j));
                return s;
            }
        });
}

} // namespace tenk
