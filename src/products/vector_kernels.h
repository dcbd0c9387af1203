// The sums behind a matrix times a vector, for the plain products and for those to which a vector is added.
//
// t(p) is the product of term p, s the sequential sum ((t0 + t1) + t2) + ... The order of a sum is part of a
// member's definition:
//
//   general sizes, and layouts with steps or tables    s, from +0 on
//   3x3 with adjacent elements                         s, from t0 on
//   4x4 to 6x6 with adjacent elements                  the trees of sumOfTerms below
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

// The sum of t(index<0>), t(index<1>), ..., which are elements, vectors or rows.
template <Member m, typename F>
TENK_INLINE auto sumOfTerms(F t)
{
    const auto t0 = t(index<0>), t1 = t(index<1>), t2 = t(index<2>);
    if constexpr (m.size == 3) {
        return (t0 + t1) + t2;
    } else {
        const auto t3 = t(index<3>);
        if constexpr (m.type == Type::f64) {
            if constexpr (m.size == 4)
                return (t0 + t1) + (t2 + t3);
            else if constexpr (m.size == 5)
                return ((t0 + t1) + (t2 + t3)) + t(index<4>);
            else
                return ((t0 + t1) + (t2 + t3)) + (t(index<4>) + t(index<5>));
        } else if constexpr (m.operand[0].transposed) {
            if constexpr (m.size == 4)
                return (t0 + t1) + (t2 + t3);
            else if constexpr (m.size == 5)
                return ((t0 + t1) + t(index<4>)) + (t2 + t3);
            else
                return ((t0 + t1) + (t2 + t3)) + (t(index<4>) + t(index<5>));
        } else {
            if constexpr (m.size == 4)
                return (t0 + t2) + (t1 + t3);
            else if constexpr (m.size == 5)
                return ((t0 + t1) + t(index<4>)) + (t2 + t3);
            else
                return ((t0 + t2) + t(index<4>)) + ((t1 + t3) + t(index<5>));
        }
    }
}

// term(index<p>) is a row of terms p, one for each element of the product.
template <Member m, typename F>
TENK_INLINE Row<Element<m>, m.size> sumOfRowsOfTerms(F term)
{
    Row<Element<m>, m.size> sum = sumOfTerms<m>(term);
    if constexpr (lastRowSumsOtherwise(m)) {
        const auto t = [&](auto p) TENK_LAMBDA { return term(p).rest; };
        sum.rest = ((t(index<0>) + t(index<2>)) + t(index<4>)) + (t(index<1>) + t(index<3>));
    }
    return sum;
}

// The columns of the matrix in rows, by an element of the vector each.
template <Member m>
TENK_INLINE Row<Element<m>, m.size> productOfColumns(const Block<Element<m>, m.size>& columns,
                                                     const Row<Element<m>, m.size>& vector)
{
    return sumOfRowsOfTerms<m>([&](auto p) TENK_LAMBDA { return columns.row[p] * repeatElement(vector, p); });
}

// Columns out of a stored matrix.
template <Member m, typename View>
TENK_INLINE Block<Element<m>, m.size> loadColumns(const View& matrix)
{
    return loadFactor<Element<m>, m.size, !m.operand[0].transposed>(matrix);
}

// Two rows side by side in each of the arguments: the even terms of the four plus their odd terms.
TENK_INLINE Vector<float> evenAndOdd(Vector<float> upper, Vector<float> lower)
{
    return shuffle<0, 2, 4, 6>(upper, lower) + shuffle<1, 3, 5, 7>(upper, lower);
}

// The same sums for 32f, untransposed. Parts of two rows are loaded into one vector, so that few shuffles are
// left to do.
template <Member m, typename View>
TENK_INLINE Row<float, m.size> productOfHalves(const View& matrix, const Row<float, m.size>& vector)
{
    Row<float, m.size> sum;
    if constexpr (m.size == 3) {
        const auto rows01 = [&](Address offset) TENK_LAMBDA {
            return loadHalves(matrix.row(0) + offset, matrix.row(1) + offset);
        };
        const auto rows12 = [&](Address offset) TENK_LAMBDA {
            return loadHalves(matrix.row(1) + offset, matrix.row(2) + offset);
        };
        const auto v01 = lowPair(vector.rest);
        const auto column2 = shuffle<1, 3, 5, 7>(rows01(4), rows12(4));
        sum.rest = evenAndOdd(rows01(0) * v01, rows12(0) * v01) + column2 * repeatLane<3>(vector.rest);
    } else {
        const auto halves = [&](auto i) TENK_LAMBDA {
            const Address upper = matrix.row(i), lower = matrix.row(i + 1);
            const auto terms = loadHalves(upper, lower) * lowPair(vector.vector[0]) +
                               loadHalves(upper + 8, lower + 8) * highPair(vector.vector[0]);
            if constexpr (m.size == 6)
                return terms + loadHalves(upper + 16, lower + 16) * vector.rest;
            else
                return terms;
        };
        sum.vector[0] = evenAndOdd(halves(index<0>), halves(index<2>));
        if constexpr (m.size == 6) {
            const auto last = halves(index<4>);
            sum.rest = evenAndOdd(last, last);
        }
    }
    return sum;
}

// A matrix that is used once.
template <Member m, typename View>
TENK_INLINE Row<Element<m>, m.size> productOfStored(const View& matrix, const Row<Element<m>, m.size>& vector)
{
    using T = Element<m>;
    using B = Block<T, m.size>;
    if constexpr (m.operand[0].transposed) {
        return productOfColumns<m>(B::load(matrix), vector);
    } else if constexpr (m.type == Type::f32 && m.size != 5) {
        return productOfHalves<m>(matrix, vector);
    } else {
        B rows; // multiplied as they stand, and turned as products
        each<m.size>([&](auto i) TENK_LAMBDA { rows.row[i] = Row<T, m.size>::load(matrix.row(i)) * vector; });
        const B terms = transpose(rows);
        return sumOfRowsOfTerms<m>([&](auto p) TENK_LAMBDA { return terms.row[p]; });
    }
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
    if constexpr (!m.operand[0].transposed && m.type == Type::f32 && rows % 4 == 0)
        for (; p + 4 <= terms; p += 4) {
            const auto factors = Row<T, 4>::load(vector.at(0, p));
            each<rows / 4>([&](auto v) TENK_LAMBDA {
                const DenseView<T> tile{matrix.at(i + v * 4, p), matrix.rowStep};
                const auto columns = loadFactor<T, 4, true>(tile);
                each<4>([&](auto q) TENK_LAMBDA {
                    sum.vector[v] = sum.vector[v] + (columns.row[q] * repeatElement(factors, q)).vector[0];
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
