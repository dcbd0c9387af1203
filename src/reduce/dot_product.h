// DotProduct: the sum of the products of the elements of two vectors.
//
// Products and sums are rounded one by one to the element type. The result is written once, when all elements
// of both vectors have been read. Sums start from +0 and go by ascending index, but for three kinds of
// members:
//
//  - general vv of adjacent elements go in blocks of 8, chosen by the address of src2: see blockSum;
//  - fixed sizes of adjacent elements in 32f go in the same order without the zero;
//  - fixed sizes of adjacent elements in 64f add elements of even and of odd index apart, see sumInOrder.
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

// How the objects of a batch are taken. Those of some members are read a step at a time, and their list
// entries tested, before the first result of the step is written; in 64f that is so in Standard layout alone.
// All others go object by object, as far as can be told; in lists, that is found out where nothing is added
// to their entries. With few registers it does not pay where an object takes many loads.
consteval BatchSteps stepsOf(Member m, bool dense)
{
    if (m == "tenkDotProduct_vav_32f_3x1" || m == "tenkDotProduct_vav_32f_3x1_L" ||
        m == "tenkDotProduct_vav_32f_4x1" || m == "tenkDotProduct_vav_32f_4x1_L")
        return {4, true};
    if (m == "tenkDotProduct_vav_64f_3x1")
        return {2, true};
    const bool list = m.layout == Layout::List;
    if (!m.batch() || m.general() || !(m.layout == Layout::Standard || (list && dense)))
        return {1, true};
    const bool manyLoads = m.type == Type::f64 || (m.source(1).array && m.size > 4);
    if (list && fewRegisters && manyLoads)
        return {1, true};
    return {m.type == Type::f32 ? 4U : 2U, false};
}

// Lane i. The compiler would copy the vector to shuffle the copy.
template <std::size_t i>
TENK_INLINE float lane(Vector<float> v)
{
    return _mm_cvtss_f32(_mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(v), i)));
}

// Two elements and zeros, whose products are zeros.
TENK_INLINE Vector<float> loadLow(Address a)
{
    return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i_u*>(a)));
}

// The sum of products of a fixed size in 32f.
template <Member m>
TENK_INLINE float sumInOrder(Address x, Address y)
{
    const auto p = [&](std::size_t i) TENK_LAMBDA { return load<float>(x + i * 4) * load<float>(y + i * 4); };
    if constexpr (m.size == 3) {
        return (p(0) + p(1)) + p(2);
    } else {
        const Vector<float> four = loadVector<float>(x) * loadVector<float>(y);
        if constexpr (addsPairs(m))
            return (four[0] + lane<1>(four)) + (lane<2>(four) + lane<3>(four));
        float s = four[0];
        each<3>([&](auto i) TENK_LAMBDA { s = s + lane<i + 1>(four); });
        if constexpr (m.size == 5)
            s = s + p(4);
        if constexpr (m.size == 6) {
            const Vector<float> last = loadLow(x + 16) * loadLow(y + 16);
            s = (s + last[0]) + lane<1>(last);
        }
        return s;
    }
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

// The products of the elements of an object.
template <Member m>
using Products = Row<Element<m>, m.size>;

template <Member m>
TENK_INLINE Products<m> productsOf(Address x, Address y)
{
    return Products<m>::load(x) * Products<m>::load(y);
}

// The sums of the elements of four objects.
template <unsigned n>
TENK_INLINE Vector<float> sumInOrder(const FourSideBySide<n>& four)
{
    Vector<float> s = four.element[0];
    each<n - 1>([&](auto j) TENK_LAMBDA { s = s + four.element[j + 1]; });
    return s;
}

// The sums of a whole step, one object per lane.
template <Member m>
TENK_INLINE auto sumsOfStep(const Products<m> (&p)[lanes<Element<m>>])
{
    if constexpr (m.type == Type::f64) {
        if constexpr (m.size == 6) {
            const auto a = p[0].vector[0] + (p[0].vector[1] + p[0].vector[2]);
            const auto b = p[1].vector[0] + (p[1].vector[1] + p[1].vector[2]);
            return shuffle<0, 2>(a, b) + shuffle<1, 3>(a, b);
        } else {
            const auto s = evenAndOdd(p[0], p[1]);
            if constexpr (m.size == 4)
                return s.even + s.odd;
            else
                return (s.even + s.odd) + Vector<double>{p[0].rest, p[1].rest};
        }
    } else {
        if constexpr (addsPairs(m))
            return sumNeighbours(sumNeighbours(p[0].vector[0], p[1].vector[0]),
                                 sumNeighbours(p[2].vector[0], p[3].vector[0]));
        return sumInOrder(FourSideBySide<m.size>(p));
    }
}

// The same from the addresses x(i) and y(i) of the objects. In 32f the last two of six elements are read at
// the end, two objects at a time.
template <Member m, typename X, typename Y>
TENK_INLINE auto sumsOfStep(X x, Y y)
{
    if constexpr (m.type == Type::f32 && m.size == 6) {
        Row<float, 4> p[4];
        each<4>([&](auto i) TENK_LAMBDA { p[i] = Row<float, 4>::load(x(i)) * Row<float, 4>::load(y(i)); });
        const auto s = sumInOrder(FourSideBySide<4>(p));
        const auto lastOf = [&](std::size_t i) TENK_LAMBDA {
            return loadHalves(x(i) + 16, x(i + 1) + 16) * loadHalves(y(i) + 16, y(i + 1) + 16);
        };
        const auto low = lastOf(0), high = lastOf(2);
        return (s + shuffle<0, 2, 4, 6>(low, high)) + shuffle<1, 3, 5, 7>(low, high);
    } else {
        Products<m> p[lanes<Element<m>>];
        each<lanes<Element<m>>>([&](auto i) TENK_LAMBDA { p[i] = productsOf<m>(x(i), y(i)); });
        return sumsOfStep<m>(p);
    }
}

// Takes the products as worked out here. The compiler would put the loads off until the list entries of the
// whole step are tested, and has no registers for so many addresses.
template <typename P>
TENK_INLINE void workedOut(P& products)
{
    each<P::full>([&](auto v) TENK_LAMBDA { asm volatile("" : "+x"(products.vector[v])); });
    if constexpr (P::left != 0)
        asm volatile("" : "+x"(products.rest));
}

// dense: nothing is added to list entries, and arrays have no gaps.
template <Member m, bool dense>
TENK_INLINE tenkStatus products(Source<m> src1, Source<m, 1> src2, Element<m>* dst, Size<m> length,
                                Count<m> count)
{
    using T = Element<m>;
    constexpr bool adjacent = isDense(m.layout) && !m.general();
    constexpr BatchSteps steps = stepsOf(m, dense);
    constexpr unsigned n = m.general() ? 1 : m.size;
    const auto isNull = [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src1, src2); };
    const auto one = [&](std::size_t k) TENK_LAMBDA -> T {
        const auto x = src1.object(k, length);
        const auto y = src2.object(k, length);
        if constexpr (adjacent) {
            return sumInOrder<m>(x.start, y.start);
        } else if constexpr (isDense(m.layout) && !m.batch()) {
            return blockSum<T>(x.start, y.start, length);
        } else {
            T s = 0;
            for (std::size_t j = 0; j < length; ++j)
                s = s + load<T>(x.at(0, j)) * load<T>(y.at(0, j));
            return s;
        }
    };
    const auto several = [&](auto k) TENK_LAMBDA {
        return sumsOfStep<m>([&](std::size_t i) TENK_LAMBDA { return src1.object(k + i, n).start; },
                             [&](std::size_t i) TENK_LAMBDA { return src2.object(k + i, n).start; });
    };
    if constexpr (m.layout == Layout::List && dense && steps.objects == 1) {
        src1 = behindLast(src1, count);
        src2 = behindLast(src2, count);
        return singlesUpToZero(behindLast(dst, count), count, isNull, one);
    } else if constexpr (m.layout == Layout::List && steps.objects > 1 && steps.together) {
        const auto step = [&](std::size_t k, Vector<T>& sums) TENK_LAMBDA {
            if (isNull(k) || isNull(k + 1) || isNull(k + 2) || isNull(k + 3))
                return false;
            sums = several(k);
            return true;
        };
        return stepsOrSingles<steps>(dst, count, true, isNull, step, one);
    } else if constexpr (m.layout == Layout::List && steps.objects > 1) {
        const OnOneSide<n, Source<m>> side1(src1, dst, count);
        // Possible only if the first is. The second list is not looked at before an entry of the first is
        // tested.
        const OnOneSide<n, Source<m, 1>> side2(src2, dst,
                                               side1.possible && !src1.nullEntry(0) ? std::size_t{count} : 0);
        const auto step = [&](std::size_t k, Vector<T>& sums) TENK_LAMBDA {
            if constexpr (fewRegisters) {
                if (!none(_mm_or_si128(side1.mayNotRead(k), side2.mayNotRead(k))))
                    return false;
                sums = several(k);
                return true;
            }
            // The first object is read before any result of its step is written, so it may lie anywhere.
            Products<m> p[steps.objects];
            bool read = true;
            each<steps.objects>([&](auto i) TENK_LAMBDA {
                const auto multiply = [&] TENK_LAMBDA {
                    const Address x = src1.object(k + i, n).start;
                    if (i == 0 ? src1.nullEntry(k) : !side1.mayRead(x))
                        return false;
                    const Address y = src2.object(k + i, n).start;
                    if (i == 0 ? anyNullObject(k, src2) : !side2.mayRead(y))
                        return false;
                    p[i] = productsOf<m>(x, y);
                    workedOut(p[i]);
                    return true;
                };
                read = read && multiply();
            });
            if (read)
                sums = sumsOfStep<m>(p);
            return read;
        };
        return stepsOrSingles<steps>(dst, count, side2.possible, isNull, step, one);
    } else {
        const Apart<1, n, steps.objects, Source<m>> apart1(src1, dst, count);
        const Apart<1, n, steps.objects, Source<m, 1>> apart2(src2, dst, count);
        return inSteps<steps>(dst, count, isNull, BothApart{apart1, apart2}, several, one);
    }
}

} // namespace tenk::dot

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus dotProduct(Source<m> src1, Source<m, 1> src2, Element<m>* dst, Size<m> length,
                                  Count<m> count)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyZero(length))
        return tenkSizeError;
    // For a single pair this is as good as testing each entry when its element is due: nothing has been
    // written then.
    if (anyNullEntryOf(length, src1, src2))
        return tenkNullPointerError;

    if constexpr (isDense(m.layout) && !m.general() && m.batch())
        if (gapless<m.size, 1>(src1) && gapless<m.size, 1>(src2))
            return dot::products<m, true>(packed<m.size, 1>(src1), packed<m.size, 1>(src2), dst, length,
                                          count);
    return dot::products<m, false>(src1, src2, dst, length, count);
}

} // namespace tenk
