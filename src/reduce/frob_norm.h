// FrobNorm: the square root of the sum of the squares of a matrix's elements.
//
// Squares, sums and the root are rounded one by one to the element type, and the result is written once.
// Three kinds of members:
//
//  - single matrices of fixed size of adjacent elements add the squares of each column, then the columns, see
//    columnSums and sumAcross; in 32f the root is refined from the processor's estimate;
//  - arrays of them add full vectors, see sumByLanes, with the same root;
//  - all others form one sum from +0 by ascending index, of single matrices row by row, of arrays column by
//    column; the root is correctly rounded.
//
// So an array and a single matrix may differ in the last bit.
#pragma once

#include "reduce/batch.h"
#include "reduce/root.h"
#include "reduce/sums.h"

namespace tenk::frob {

consteval bool isOfRows(Member m)
{
    return isDense(m.layout) && !m.general();
}

// These take the root by the processor's estimate, which makes the norm of a zero matrix a NaN.
consteval bool refinesEstimate(Member m)
{
    return isOfRows(m) && m.type == Type::f32;
}

// How the objects of a batch are taken: those of 3 x 3 and 4 x 4 are read a step at a time, and their list
// entries tested, before the first result of the step is written; the entries of the objects behind the last
// full step are not tested, and a null one is used as an address. All others go object by object, as far as
// can be told.
consteval BatchSteps stepsOf(Member m)
{
    const bool small = m.size <= 4;
    if (!m.batch() || !isOfRows(m))
        return {.objects = 1, .together = true};
    return {.objects = m.type == Type::f32 ? 4U : 2U, .together = small, .testsRest = !small};
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

// ---------------------------------------------------------------------------------------------------------------
// Arrays: the elements of a matrix, row after row, in full vectors
// ---------------------------------------------------------------------------------------------------------------

// Elements e and e + 1 as lanes 0 1 0 1.
template <unsigned n, unsigned e, typename View>
TENK_INLINE Vector<float> pairOf(const View& view)
{
    if constexpr (e % n + 1 < n) {
        return Rest<float, 2>::load(view.at(e / n, e % n));
    } else {
        const float x = load<float>(view.at(e / n, e % n)), y = load<float>(view.at(e / n + 1, 0));
        return Vector<float>{x, y, x, y};
    }
}

// The vector from element e on.
template <typename T, unsigned n, unsigned e, bool dense, typename View>
TENK_INLINE Vector<T> vectorOf(const View& view)
{
    if constexpr (dense)
        return loadVector<T>(view.start + e * sizeof(T));
    else if constexpr (e % n + lanes<T> <= n)
        return loadVector<T>(view.at(e / n, e % n));
    else if constexpr (sizeof(T) == 8)
        return Vector<T>{load<T>(view.at(e / n, e % n)), load<T>(view.at(e / n + 1, 0))};
    else if constexpr (e % n + 1 < n && (e + 2) % n + 1 < n)
        return loadHalves(view.at(e / n, e % n), view.at((e + 2) / n, (e + 2) % n));
    else
        return lowHalves(pairOf<n, e>(view), pairOf<n, e + 2>(view));
}

// The sum of the squares of `vectors` vectors from vector `first` on, by lanes, halves before wholes. The
// longer half goes first: then four registers do.
template <typename T, unsigned n, unsigned first, unsigned vectors, bool dense, typename View>
TENK_INLINE Vector<T> sumOfVectors(const View& view)
{
    if constexpr (vectors == 1) {
        const auto v = inRegister(vectorOf<T, n, first * lanes<T>, dense>(view));
        return v * v;
    } else {
        constexpr unsigned left = vectors / 2;
        const auto right = sumOfVectors<T, n, first + left, vectors - left, dense>(view);
        const auto sum = sumOfVectors<T, n, first, left, dense>(view) + right;
        workedOut(sum);
        return sum;
    }
}
template <typename T, unsigned n, bool dense, typename View>
TENK_INLINE Vector<T> sumByLanes(const View& view)
{
    return sumOfVectors<T, n, 0, n * n / lanes<T>, dense>(view);
}

// The sum over one matrix: the lanes, of four 0 + 2 and 1 + 3 first, and the last element of an odd order at
// the end.
template <typename T, unsigned n, bool dense, typename View>
TENK_INLINE T sumOfOne(const View& view)
{
    const auto s = sumByLanes<T, n, dense>(view);
    T sum;
    if constexpr (lanes<T> == 4)
        sum = (s[0] + s[2]) + (s[1] + s[3]);
    else
        sum = s[0] + s[1];
    if constexpr (n % 2 == 0)
        return sum;
    const T last = load<T>(view.at(n - 1, n - 1));
    return sum + last * last;
}

// May everything be read?
struct Always
{
    TENK_INLINE bool operator()(std::size_t) const { return true; }
};

// The last element of each of two matrices, as lanes 1 and 3 in 32f: it is loaded with the one in front of
// it.
template <typename T>
TENK_INLINE Vector<T> lastOfTwo(Address a, Address b)
{
    if constexpr (sizeof(T) == 4)
        return loadHalves(a - sizeof(T), b - sizeof(T));
    else
        return Vector<T>{load<T>(a), load<T>(b)};
}

// The same sums of as many matrices as a vector has lanes, one matrix per lane, if all of them may be read.
template <typename T, unsigned n, bool dense, typename View, typename MayRead>
TENK_INLINE bool sumsOfStep(const View& view, const MayRead& mayRead, Vector<T>& sums)
{
    constexpr bool odd = n % 2 != 0;
    const auto one = [&](std::size_t i, Vector<T>& s) TENK_LAMBDA {
        if (!mayRead(i))
            return false;
        s = sumByLanes<T, n, dense>(view(i));
        workedOut(s);
        return true;
    };
    const auto two = [&](std::size_t i, Vector<T>& s, Vector<T>& last) TENK_LAMBDA {
        Vector<T> a, b;
        if (!one(i, a) || !one(i + 1, b))
            return false;
        if constexpr (odd)
            last = lastOfTwo<T>(view(i).at(n - 1, n - 1), view(i + 1).at(n - 1, n - 1));
        if constexpr (lanes<T> == 4)
            s = lowHalves(a, b) + highHalves(a, b);
        else
            s = shuffle<0, 2>(a, b) + shuffle<1, 3>(a, b);
        workedOut(s);
        return true;
    };
    Vector<T> last;
    if (!two(0, sums, last))
        return false;
    if constexpr (lanes<T> == 4) {
        Vector<T> others, lastOfOthers;
        if (!two(2, others, lastOfOthers))
            return false;
        sums = sumNeighbours(sums, others);
        if constexpr (odd)
            last = shuffle<1, 3, 5, 7>(last, lastOfOthers);
    }
    if constexpr (odd)
        sums = sums + last * last;
    return true;
}

// ---------------------------------------------------------------------------------------------------------------
// The fixed sizes of adjacent elements
// ---------------------------------------------------------------------------------------------------------------

template <Member m>
TENK_INLINE auto rootOf(auto s)
{
    if constexpr (refinesEstimate(m))
        return refinedRoot(s);
    else
        return root(s);
}

// A root waits for a long chain of operations: those of a step are taken while the next step is read, as long
// as nobody can tell. Answers which object is the next one.
template <Member m, typename Apart>
TENK_INLINE std::size_t normsInPipeline(const Source<m>& src, Element<m>* dst, std::size_t count,
                                        const Apart& apart)
{
    using T = Element<m>;
    constexpr BatchSteps steps = stepsOf(m);
    constexpr bool list = m.layout == Layout::List;
    if (count < steps.objects)
        return 0;
    const OnOneSide<m.size * m.size, Source<m>> side(src, dst, count);
    if (!(list ? side.possible : apart.possible))
        return 0;
    const auto sums = [=](std::size_t k, Vector<T>& part) TENK_LAMBDA {
        const auto view = [&](std::size_t i) TENK_LAMBDA { return src.object(k + i, m.size); };
        if constexpr (list && fewRegisters && m.type == Type::f32) {
            return none(side.mayNotRead(k)) && sumsOfStep<T, m.size, true>(view, Always{}, part);
        } else {
            bool read = true;
            if constexpr (list && steps.together)
                each<steps.objects>([&](auto i) TENK_LAMBDA { read = read && side.mayRead(view(i).start); });
            const auto mayRead = [&](std::size_t i)
                                     TENK_LAMBDA { return steps.together || side.mayRead(view(i).start); };
            return read && sumsOfStep<T, m.size, true>(view, mayRead, part);
        }
    };
    Vector<float> half = broadcast(0.5f), three = broadcast(3.0f);
    const auto roots = [&](auto s) TENK_LAMBDA {
        if constexpr (refinesEstimate(m) && fewRegisters) {
            asm volatile("" : "+m"(half), "+m"(three)); // there is no register to spare
            return refinedRoot(s, half, three);
        } else {
            return rootOf<m>(s);
        }
    };
    return inPipeline<steps.objects>(dst, count, sums, roots);
}

// dense: rows follow each other without a gap, and nothing is added to list entries.
template <Member m, bool dense>
TENK_INLINE tenkStatus normsOfRows(const Source<m>& src, Element<m>* dst, std::size_t count)
{
    using T = Element<m>;
    constexpr unsigned n = m.size;
    constexpr BatchSteps steps = stepsOf(m);
    const Apart<n, n, steps.objects, Source<m>> apart(src, dst, count);
    std::size_t done = 0;
    if constexpr (m.batch() && dense)
        done = normsInPipeline<m>(src, dst, count, apart);
    const auto view = [&](std::size_t k) TENK_LAMBDA { return src.object(k, n); };
    return inSteps<steps>(
        dst, count, [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src); }, apart,
        [&](auto k) TENK_LAMBDA {
            Vector<T> sums;
            sumsOfStep<T, n, dense>([&](std::size_t i) TENK_LAMBDA { return view(k + i); }, Always{}, sums);
            return rootOf<m>(sums);
        },
        [&](std::size_t k) TENK_LAMBDA {
            if constexpr (m.batch())
                return rootOf<m>(sumOfOne<T, n, dense>(view(k)));
            else
                return rootOf<m>(sumAcross(columnSums<T, n>(view(k))));
        },
        done);
}

} // namespace tenk::frob

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus frobNorm(Source<m> src, Size<m> width, Size<m> height, Element<m>* dst, Count<m> count)
{
    using T = Element<m>;
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

    if constexpr (frob::isOfRows(m)) {
        if (m.batch() && gapless<m.size>(src))
            return frob::normsOfRows<m, true>(packed<m.size>(src), dst, count);
        return frob::normsOfRows<m, false>(src, dst, count);
    }
    return inSteps<1>(
        dst, count, [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src); }, Nothing{},
        [&](std::size_t k) TENK_LAMBDA {
            const auto x = src.object(k, width);
            T s = 0;
            for (std::size_t outer = 0; outer < (m.batch() ? width : height); ++outer)
                for (std::size_t inner = 0; inner < (m.batch() ? height : width); ++inner) {
                    const T element = load<T>(m.batch() ? x.at(inner, outer) : x.at(outer, inner));
                    s = s + element * element;
                }
            return root(s);
        });
}

} // namespace tenk
