// L2Norm: the square root of the sum of the squares of a vector's elements.
//
// Squares, sums and the root are rounded one by one to the element type, and the result is written once. Sums
// start from +0 and go by ascending index, but for two kinds of members:
//
//  - general v of adjacent elements goes in blocks of 8, chosen by the address of src: see blockSum;
//  - fixed sizes of adjacent elements go without the zero, grouped by size, see sumInOrder.
#pragma once

#include "reduce/batch.h"
#include "reduce/root.h"
#include "reduce/sums.h"

namespace tenk::l2 {

// These take the root by the processor's estimate, which makes the norm of a zero vector a NaN.
consteval bool refinesEstimate(Member m)
{
    return m.type == Type::f32 && !m.general() && isDense(m.layout);
}

// How the objects of a batch are taken: where the estimate is used, four are read, and their list entries
// tested, before the first of their results is written. All others go object by object, as far as can be
// told; in lists it does not pay to find that out for each step.
consteval BatchSteps stepsOf(Member m)
{
    if (m.batch() && refinesEstimate(m))
        return {4, true};
    if (m.batch() && !m.general() && m.layout == Layout::Standard)
        return {2, false};
    return {1, true};
}

// The sum of the squares q(0) ... of a fixed size. Arrays and single vectors of 32f are grouped differently,
// and 64f stands apart from the arrays in sizes 3, 4 and 5.
template <Member m, typename Q>
TENK_INLINE auto sumInOrder(Q q)
{
    constexpr bool apart = m.type == Type::f64;
    if constexpr (m.size == 3) {
        if constexpr (apart)
            return (q(index<2>) + q(index<0>)) + q(index<1>);
        else
            return (q(index<0>) + q(index<1>)) + q(index<2>);
    } else if constexpr (!apart && !m.batch()) {
        const auto four = (q(index<0>) + q(index<1>)) + (q(index<2>) + q(index<3>));
        if constexpr (m.size == 4)
            return four;
        else if constexpr (m.size == 5)
            return four + q(index<4>);
        else
            return four + (q(index<4>) + q(index<5>));
    } else if constexpr (m.size == 4 && !apart) {
        return ((q(index<0>) + q(index<1>)) + q(index<2>)) + q(index<3>);
    } else {
        const auto even = q(index<0>) + q(index<2>);
        const auto odd = q(index<1>) + q(index<3>);
        if constexpr (m.size == 4)
            return even + odd;
        else if constexpr (m.size == 6)
            return (even + q(index<4>)) + (odd + q(index<5>));
        else if constexpr (apart)
            return (even + q(index<4>)) + odd;
        else
            return (even + odd) + q(index<4>);
    }
}

template <Member m>
TENK_INLINE Element<m> sumOfSquares(Address x)
{
    using T = Element<m>;
    const auto row = Row<T, m.size>::load(x);
    const auto squares = row * row;
    return sumInOrder<m>([&](auto i) TENK_LAMBDA { return squares.get(i); });
}

// The sums of a whole step, one object per lane; x(i) is the address of object i of the step.
template <Member m, typename X>
requires(m.type == Type::f32) TENK_INLINE Vector<float> sumsOfStep(X x)
{
    if constexpr (m.size <= 4) {
        Row<float, m.size> squares[4];
        each<4>([&](auto i) TENK_LAMBDA {
            const auto row = Row<float, m.size>::load(x(i));
            squares[i] = row * row;
        });
        const FourSideBySide<m.size> four(squares);
        return sumInOrder<m>([&](auto j) TENK_LAMBDA { return four.element[j]; });
    } else {
        // Elements 2 i and 2 i + 1 of two objects make one vector, so even and odd elements add up side by
        // side. The last of five is loaded with the fourth.
        const auto evenAndOdd = [&](auto first, Vector<float>& last) TENK_LAMBDA {
            const auto load = [&](std::size_t bytes)
                                  TENK_LAMBDA { return loadHalves(x(first) + bytes, x(first + 1) + bytes); };
            const auto squares = [&](std::size_t i) TENK_LAMBDA {
                const auto v = load(i * 8);
                return v * v;
            };
            const auto s = squares(0) + squares(1);
            if constexpr (m.size == 6)
                return s + squares(2);
            last = load(12);
            workedOut(s);
            workedOut(last);
            return s;
        };
        Vector<float> last[2];
        const auto low = evenAndOdd(index<0>, last[0]);
        const auto high = evenAndOdd(index<2>, last[1]);
        const auto s = sumNeighbours(low, high);
        if constexpr (m.size == 6)
            return s;
        const auto q4 = shuffle<1, 3, 5, 7>(last[0], last[1]);
        return s + q4 * q4;
    }
}

template <Member m, typename X>
requires(m.type == Type::f64) TENK_INLINE Vector<double> sumsOfStep(X x)
{
    using R = Row<double, m.size>;
    const auto squares = [&](auto i) TENK_LAMBDA {
        const R row = R::load(x(i));
        return row * row;
    };
    const R q[2] = {squares(index<0>), squares(index<1>)};
    if constexpr (m.size == 6) {
        const auto a = (q[0].vector[0] + q[0].vector[1]) + q[0].vector[2];
        const auto b = (q[1].vector[0] + q[1].vector[1]) + q[1].vector[2];
        return shuffle<0, 2>(a, b) + shuffle<1, 3>(a, b);
    } else {
        const auto s = evenAndOdd(q[0], q[1]);
        if constexpr (m.size == 4)
            return s.even + s.odd;
        else
            return (s.even + Vector<double>{q[0].rest, q[1].rest}) + s.odd;
    }
}

template <Member m>
TENK_INLINE tenkStatus norms(const Source<m>& src, Element<m>* dst, Size<m> length, Count<m> count)
{
    using T = Element<m>;
    constexpr BatchSteps steps = stepsOf(m);
    constexpr unsigned n = m.general() ? 1 : m.size;
    return inSteps<steps>(
        dst, count, [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src); },
        Apart<1, n, steps.objects, Source<m>>(src, dst, count),
        [&](auto k) TENK_LAMBDA {
            const auto sums =
                sumsOfStep<m>([&](std::size_t i) TENK_LAMBDA { return src.object(k + i, n).start; });
            if constexpr (refinesEstimate(m))
                return refinedRoot(sums);
            else
                return root(sums);
        },
        [&](std::size_t k) TENK_LAMBDA -> T {
            const auto x = src.object(k, length);
            if constexpr (refinesEstimate(m)) {
                return refinedRoot(sumOfSquares<m>(x.start));
            } else if constexpr (isDense(m.layout) && !m.general()) {
                return root(sumOfSquares<m>(x.start));
            } else if constexpr (isDense(m.layout) && !m.batch()) {
                return root(blockSum<T>(x.start, x.start, length));
            } else {
                T s = 0;
                for (std::size_t j = 0; j < length; ++j) {
                    const T element = load<T>(x.at(0, j));
                    s = s + element * element;
                }
                return root(s);
            }
        });
}

} // namespace tenk::l2

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus l2Norm(Source<m> src, Element<m>* dst, Size<m> length, Count<m> count)
{
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    // For a single vector this is as good as testing each entry when its element is due: nothing has been
    // written then.
    if (anyNullEntry(src, length))
        return tenkNullPointerError;

    if constexpr (isDense(m.layout) && !m.general() && m.batch())
        if (gapless<m.size, 1>(src))
            return l2::norms<m>(packed<m.size, 1>(src), dst, length, count);
    return l2::norms<m>(src, dst, length, count);
}

} // namespace tenk
