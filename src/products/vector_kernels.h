// The sums behind a matrix times a vector, for the plain products and for those to which a vector is added.
//
// t(p) is the product of term p, s the sequential sum ((t0 + t1) + t2) + ... The order of a sum is part of a
// member's definition:
//
//   general sizes, and layouts with steps or tables    s, from +0 on
//   3x3 with adjacent elements                         s, from t0 on
//   4x4 to 6x6 with adjacent elements                  the trees of sumOfTerms and productOfStored
#pragma once

#include "products/factors.h"

namespace tenk {

// ---------------------------------------------------------------------------------------------------------------
// Members that stand apart
// ---------------------------------------------------------------------------------------------------------------

// Row 4 is summed by another tree than the rows above it: ((t0 + t2) + t4) + (t1 + t3).
consteval bool lastRowSumsOtherwise(Member m)
{
    return m.type == Type::f32 && m.size == 5 && isDense(m.layout) && !m.operand[0].transposed;
}

// ---------------------------------------------------------------------------------------------------------------
// Fixed sizes with adjacent elements
// ---------------------------------------------------------------------------------------------------------------

// The sum of t(index<0>), t(index<1>), ..., which are rows. Each sum is complete before the next is begun.
template <Member m, typename F>
TENK_INLINE auto sumOfTerms(F t)
{
    const auto plus = [](const auto& a, const auto& b) TENK_LAMBDA { return inRegisters(a + b); };
    const auto pair = [&](auto p, auto q) TENK_LAMBDA { return plus(t(p), t(q)); };
    constexpr Index<0> a;
    constexpr Index<1> b;
    constexpr Index<2> c;
    if constexpr (m.size == 3) {
        return plus(pair(a, b), t(c));
    } else {
        constexpr Index<3> d;
        constexpr Index<4> e;
        constexpr Index<5> f;
        if constexpr (m.type == Type::f32 && m.size == 5) {
            const auto first = plus(pair(a, b), t(e));
            return plus(first, pair(c, d));
        } else if constexpr (m.type == Type::f64 || m.operand[0].transposed) {
            const auto first = pair(a, b);
            const auto four = plus(first, pair(c, d));
            if constexpr (m.size == 4)
                return four;
            else if constexpr (m.size == 5)
                return plus(four, t(e));
            else
                return plus(four, pair(e, f));
        } else {
            const auto even = pair(a, c);
            if constexpr (m.size == 4) {
                return plus(even, pair(b, d));
            } else {
                const auto allEven = plus(even, t(e));
                const auto odd = pair(b, d);
                return plus(allEven, plus(odd, t(f)));
            }
        }
    }
}

// Two rows side by side in each of the arguments: the even terms of the four plus their odd terms.
TENK_INLINE Vector<float> evenAndOdd(Vector<float> upper, Vector<float> lower)
{
    return shuffle<0, 2, 4, 6>(upper, lower) + shuffle<1, 3, 5, 7>(upper, lower);
}
// A row in each of the arguments.
TENK_INLINE Vector<double> evenAndOdd(Vector<double> upper, Vector<double> lower)
{
    return shuffle<0, 2>(upper, lower) + shuffle<1, 3>(upper, lower);
}

// The sum of the terms of the last row, where n vectors would leave one element of it over.
template <Member m>
TENK_INLINE Element<m> sumOfLastRow(const Row<Element<m>, m.size>& terms)
{
    const auto first = terms.vector[0];
    if constexpr (m.type == Type::f64) {
        const auto sums = m.size == 5 ? evenAndOdd(first, terms.vector[m.size / 2 - 1]) : first;
        return (sums[0] + sums[1]) + terms.rest;
    } else {
        const auto sums =
            lastRowSumsOtherwise(m) ? lowPair(first) + highPair(first) : evenAndOdd(first, first);
        return (sums[0] + terms.rest) + sums[1];
    }
}

// A matrix that is used many times: its columns, and by itself the last row where it would be a column of
// elements that vectors leave over.
template <Member m>
struct TurnedMatrix
{
    using T = Element<m>;
    using R = Row<T, m.size>;
    static constexpr bool transposed = m.operand[0].transposed, lastAlone = R::left == 1;
    static constexpr unsigned height = m.size - lastAlone;

    Row<T, height> column[m.size];
    R last;

    template <typename View>
    TENK_INLINE static TurnedMatrix load(const View& matrix)
    {
        TurnedMatrix t;
        const auto columns = loadFactor<T, m.size, !transposed>(matrix);
        each<m.size>([&](auto p) TENK_LAMBDA {
            t.column[p] = Row<T, height>::map([](auto c) TENK_LAMBDA { return c; }, columns.row[p]);
        });
        if constexpr (lastAlone)
            t.last = gatherRow<T, m.size>(
                [&](std::size_t p) TENK_LAMBDA { return elementOf<transposed>(matrix, m.size - 1, p); });
        return t;
    }

    TENK_INLINE R times(const R& vector) const
    {
        const auto sum = sumOfTerms<m>([&](auto p) TENK_LAMBDA {
            const auto factor = repeated(vector, p);
            return Row<T, height>::map([&](auto c) TENK_LAMBDA { return c * factor; }, column[p]);
        });
        if constexpr (lastAlone) {
            R product;
            each<R::full>([&](auto v) TENK_LAMBDA { product.vector[v] = sum.vector[v]; });
            product.rest = sumOfLastRow<m>(last * vector);
            return product;
        } else {
            return sum;
        }
    }
};

// The same sums for 32f, untransposed. Parts of two rows are loaded into one vector where that leaves fewer
// shuffles to do.
template <Member m, typename View>
TENK_INLINE Row<float, m.size> productOfStoredUntransposed(const View& matrix,
                                                           const Row<float, m.size>& vector)
{
    Row<float, m.size> sum;
    // Elements j and j + 1 of rows i and i + 1.
    const auto square = [&](std::size_t i, std::size_t j)
                            TENK_LAMBDA { return loadHalves(matrix.at(i, j), matrix.at(i + 1, j)); };
    if constexpr (m.size == 3) {
        const auto v01 = lowPair(vector.rest);
        const auto column2 = shuffle<1, 3, 5, 7>(square(0, 1), square(1, 1));
        sum.rest = evenAndOdd(square(0, 0) * v01, square(1, 0) * v01) + column2 * repeatLane<3>(vector.rest);
    } else if constexpr (m.size == 6) {
        const auto v01 = lowPair(vector.vector[0]), v23 = highPair(vector.vector[0]);
        const auto halves = [&](auto i) TENK_LAMBDA {
            const auto terms = inRegister(square(i, 0) * v01 + square(i, 2) * v23);
            return inRegister(terms + square(i, 4) * vector.rest);
        };
        sum.vector[0] = inRegister(evenAndOdd(halves(index<0>), halves(index<2>)));
        const auto last = halves(index<4>);
        sum.rest = evenAndOdd(last, last);
    } else {
        const auto terms = [&](auto i)
                               TENK_LAMBDA { return loadVector<float>(matrix.row(i)) * vector.vector[0]; };
        if constexpr (m.size == 4) {
            const auto halves = [&](auto i) TENK_LAMBDA {
                const auto upper = terms(i), lower = terms(index<i + 1>);
                return inRegister(shuffle<0, 1, 4, 5>(upper, lower) + shuffle<2, 3, 6, 7>(upper, lower));
            };
            sum.vector[0] = evenAndOdd(halves(index<0>), halves(index<2>));
        } else {
            sum.rest = inRegister(sumOfLastRow<m>(Row<float, 5>::load(matrix.row(4)) * vector));
            const auto upper = inRegister(evenAndOdd(terms(index<0>), terms(index<1>)));
            const auto lower = inRegister(evenAndOdd(terms(index<2>), terms(index<3>)));
            const auto column4 = shuffle<1, 3, 5, 7>(square(0, 3), square(2, 3));
            const auto first =
                inRegister(shuffle<0, 2, 4, 6>(upper, lower) + column4 * broadcast(vector.rest));
            sum.vector[0] = first + shuffle<1, 3, 5, 7>(upper, lower);
        }
    }
    return sum;
}

// And for 64f, two rows at a time.
template <Member m, typename View>
TENK_INLINE Row<double, m.size> productOfStoredUntransposed(const View& matrix,
                                                            const Row<double, m.size>& vector)
{
    constexpr unsigned n = m.size;
    using R = Row<double, n>;
    R sum;
    // Each sum is finished before the next terms are begun: all of them would take more registers than there
    // are.
    const auto sumsOfPairs = [&](std::size_t i, auto v) TENK_LAMBDA {
        const auto upper = loadVector<double>(matrix.at(i, 2 * v)) * vector.vector[v];
        const auto lower = loadVector<double>(matrix.at(i + 1, 2 * v)) * vector.vector[v];
        return inRegister(evenAndOdd(upper, lower));
    };
    each<n / 2>([&](auto r) TENK_LAMBDA {
        auto s = sumsOfPairs(2 * r, index<0>);
        each<n / 2 - 1>([&](auto v) TENK_LAMBDA { s = inRegister(s + sumsOfPairs(2 * r, index<v + 1>)); });
        if constexpr (n % 2 == 1) {
            const auto ends = loadHalves(matrix.at(2 * r, n - 1), matrix.at(2 * r + 1, n - 1));
            s = s + reinterpret_cast<Vector<double>>(ends) * broadcast(vector.rest);
        }
        sum.vector[r] = inRegister(s);
    });
    if constexpr (n % 2 == 1)
        sum.rest = sumOfLastRow<m>(R::load(matrix.row(n - 1)) * vector);
    return sum;
}

// A matrix that is used once.
template <Member m, typename View>
TENK_INLINE Row<Element<m>, m.size> productOfStored(const View& matrix, const Row<Element<m>, m.size>& vector)
{
    using R = Row<Element<m>, m.size>;
    if constexpr (m.operand[0].transposed)
        return sumOfTerms<m>([&](auto p)
                                 TENK_LAMBDA { return R::load(matrix.row(p)) * repeatElement(vector, p); });
    else
        return productOfStoredUntransposed<m>(matrix, vector);
}

// ---------------------------------------------------------------------------------------------------------------
// All others
// ---------------------------------------------------------------------------------------------------------------

// Row by row, element i with the running sum in the destination. before(i) and within(i, p) test what has to
// be tested on the way to element i and to its term p, after(i, sum) finishes the element.
template <Member m, typename Matrix, typename Vector, typename Out, typename Before, typename Within,
          typename After>
TENK_INLINE tenkStatus vectorProductInPlace(const Matrix& matrix, const Vector& vector, const Out& out,
                                            Size<m> height, Size<m> terms, Before before, Within within,
                                            After after)
{
    using T = Element<m>;
    for (std::size_t i = 0; i < height; ++i) {
        if (before(i))
            return tenkNullPointerError;
        const Address to = out.at(0, i);
        T sum = 0;
        store(to, sum);
        for (std::size_t p = 0; p < terms; ++p) {
            if (within(i, p))
                return tenkNullPointerError;
            sum = sum + load<T>(elementOf<m.operand[0].transposed>(matrix, i, p)) * load<T>(vector.at(0, p));
            store(to, sum);
        }
        after(i, sum);
    }
    return tenkOk;
}

// `rows` elements of a product of general size at once, from i on, where the destination overlaps nothing.
template <Member m, unsigned rows, typename Matrix, typename Vec>
TENK_INLINE Row<Element<m>, rows> vectorTile(const Matrix& matrix, const Vec& vector, std::size_t i,
                                             std::size_t terms)
{
    using T = Element<m>;
    using R = Row<T, rows>;
    R sum = R::repeat(0);
    std::size_t p = 0;
    constexpr unsigned side = lanes<T>; // of a square that is turned in registers
    if constexpr (!m.operand[0].transposed && rows % side == 0)
        for (; p + side <= terms; p += side) {
            const auto factors = Row<T, side>::load(vector.at(0, p));
            each<rows / side>([&](auto v) TENK_LAMBDA {
                const DenseView<T> square{matrix.at(i + v * side, p), matrix.rowStep};
                const auto columns = loadFactor<T, side, true>(square);
                each<side>([&](auto q) TENK_LAMBDA {
                    sum.vector[v] = sum.vector[v] + columns.row[q].vector[0] * repeated(factors, q);
                });
            });
        }
    for (; p < terms; ++p) {
        R column;
        if constexpr (m.operand[0].transposed)
            column = R::load(matrix.at(p, i));
        else
            column = gatherRow<T, rows>([&](std::size_t r) TENK_LAMBDA { return matrix.at(i + r, p); });
        sum = sum + column * R::repeat(load<T>(vector.at(0, p)));
    }
    return sum;
}

// finish(i, row) is given the sums of the rows from i on, a Row of them.
template <Member m, typename Matrix, typename Vec, typename Finish>
TENK_INLINE void vectorProductInTiles(const Matrix& matrix, const Vec& vector, std::size_t height,
                                      std::size_t terms, Finish finish)
{
    constexpr unsigned n = lanes<Element<m>>;
    std::size_t i = 0;
    for (; i + 8 <= height; i += 8) // enough sums at once to hide the time that an addition takes
        finish(i, vectorTile<m, 8>(matrix, vector, i, terms));
    for (; i + n <= height; i += n)
        finish(i, vectorTile<m, n>(matrix, vector, i, terms));
    for (; i < height; ++i)
        finish(i, vectorTile<m, 1>(matrix, vector, i, terms));
}

} // namespace tenk
