// The inverse of orders 3 to 6 where elements are strided or found through tables: one element at a time, the
// same formulas in both types.
#include "inverse.h"

#include <algorithm>
#include <array>

namespace model {

namespace {

// binary32 divides in the wide unit.
template <typename T>
Span<T> reciprocal(const Span<T>& d)
{
    if (!d.exact() && d.mayBeZero())
        throw Undecided{"a determinant about zero"};
    return d.mapped([](T x) {
        if constexpr (sizeof(T) == 4) {
            const Wide quotient = Wide(1) / static_cast<Wide>(x);
            return static_cast<T>(quotient);
        } else {
            const T quotient = T(1) / x;
            return quotient;
        }
    });
}

template <typename T>
Span<T> rowSum3(const Matrix<T>& a)
{
    const Span<T> two = term3(a, 0, 0) + term3(a, 0, 1);
    return two + term3(a, 0, 2);
}

template <typename T>
Outcome<T> order3(const Matrix<T>& a)
{
    const Span<T> det = rowSum3(a);
    if (inBand(det))
        return singular<T>(3);
    return finished(adjugate3(a, reciprocal(det)), numbers(0, 3));
}

// The three terms of the expansion of a matrix of order 3 by a row or a column; line 0 to 2 are the rows.
template <typename T>
std::array<Span<T>, 3> expansion3(const Matrix<T>& a, std::uint32_t line)
{
    std::array<Span<T>, 3> terms;
    for (std::uint32_t t = 0; t < 3; ++t)
        terms[t] = line < 3 ? term3(a, line, t) : term3(a, t, line - 3);
    return terms;
}

// A cofactor of order 4 is a sum of three products of an element and a minor of order 2, in ascending order.
// By which of its rows or columns it is expanded is open.
template <typename T>
Span<T> cofactor4(const Matrix<T>& a, std::uint32_t i, std::uint32_t j)
{
    const Matrix<T> rest = a.part(numbers(0, 4, i), numbers(0, 4, j));
    std::optional<Span<T>> sum;
    for (std::uint32_t line = 0; line < 6; ++line) {
        const std::array<Span<T>, 3> terms = expansion3(rest, line);
        const Span<T> other = (terms[0] + terms[1]) + terms[2];
        if (sum)
            sum->include(other);
        else
            sum = other;
    }
    return (i + j) % 2 == 0 ? *sum : -*sum;
}

template <typename T>
Outcome<T> order4(const Matrix<T>& a)
{
    Matrix<T> adjugate(4, 4);
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j)
            adjugate.at(i, j) = cofactor4(a, j, i);
    }
    const auto term = [&](std::uint32_t i) { return a.at(i, 0) * adjugate.at(0, i); };
    const Span<T> det = ((term(1) + term(2)) + term(3)) + term(0);
    if (inBand(det)) { // the cofactors stay where they have been kept
        Outcome<T> outcome = finished(adjugate, numbers(0, 4));
        outcome.status = singularError;
        return outcome;
    }
    const Span<T> r = reciprocal(det);
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j)
            adjugate.at(i, j) = adjugate.at(i, j) * r;
    }
    return finished(adjugate, numbers(0, 4));
}

// The magnitude by which a column competes: its element in row 0; the determinant of rows 0 and 1 with the
// column chosen first; that of rows 0 to 2 with the two chosen, where expansion and order are open.
template <typename T>
Span<T> candidate(const Matrix<T>& a, const std::vector<std::uint32_t>& columns, std::uint32_t position,
                  std::uint32_t column)
{
    Span<T> value;
    const std::uint32_t c0 = columns[0];
    if (position == 0) {
        value = a.at(0, column);
    } else if (position == 1) {
        value = crossDifference(a.at(0, c0), a.at(1, column), a.at(0, column), a.at(1, c0));
    } else {
        const Matrix<T> three = a.part(numbers(0, 3), {c0, columns[1], column});
        value = rowSum3(three);
        for (std::uint32_t line = 0; line < 6; ++line) {
            const std::array<Span<T>, 3> terms = expansion3(three, line);
            for (std::uint32_t last = 0; last < 3; ++last)
                value.include((terms[(last + 1) % 3] + terms[(last + 2) % 3]) + terms[last]);
        }
    }
    if (value.exact())
        return Span<T>(magnitude(value.low()));
    if (value.mayBeZero())
        return Span<T>(T(0), std::max(magnitude(value.low()), magnitude(value.high())));
    Span<T> size(magnitude(value.low()));
    size.include(magnitude(value.high()));
    return size;
}

template <typename T>
bool larger(const Span<T>& x, const Span<T>& y)
{
    if (x.exact() && y.exact())
        return strictlyGreater(x.low(), y.low());
    if (x.nan() || y.nan() || x.high() <= y.low())
        return false;
    if (x.low() > y.high())
        return true;
    throw Undecided{"columns of about the same magnitude"};
}

// The columns in the order in which they are used. The last candidate is column 4 also at order 6.
template <typename T>
std::vector<std::uint32_t> columnOrder(const Matrix<T>& a, std::uint32_t p)
{
    std::vector<std::uint32_t> columns = numbers(0, a.width());
    for (std::uint32_t position = 0; position < p; ++position) {
        std::uint32_t best = position;
        Span<T> most = candidate(a, columns, position, columns[position]);
        for (std::uint32_t other = position + 1; other <= 4; ++other) {
            const Span<T> size = candidate(a, columns, position, columns[other]);
            if (larger(size, most)) {
                best = other;
                most = size;
            }
        }
        std::swap(columns[position], columns[best]);
    }
    return columns;
}

template <typename T>
Outcome<T> byBlocks(const Matrix<T>& a)
{
    const std::uint32_t n = a.width();
    const std::uint32_t p = n - 3;
    const std::vector<std::uint32_t> columns = columnOrder(a, p);
    const std::vector<std::uint32_t> chosen(columns.begin(), columns.begin() + p);
    const Matrix<T> block = a.part(numbers(0, p), chosen);
    const Span<T> d1 = p == 3
                           ? rowSum3(block)
                           : crossDifference(block.at(0, 0), block.at(1, 1), block.at(0, 1), block.at(1, 0));
    if (inBand(d1))
        return singular<T>(n);
    const std::optional<Matrix<T>> inverse =
        inverseByBlocks<T>(a, p, columns, reciprocal(d1), [](const Matrix<T>& s) -> std::optional<Matrix<T>> {
            const Span<T> d2 = (term3(s, 0, 2) + term3(s, 0, 0)) + term3(s, 0, 1);
            if (inBand(d2))
                return std::nullopt;
            return adjugate3(s, reciprocal(d2));
        });
    return inverse ? finished(*inverse, columns) : singular<T>(n);
}

} // namespace

template <typename T>
Outcome<T> scalarInverse(const Matrix<T>& a)
{
    if (a.width() == 3)
        return order3(a);
    if (a.width() == 4)
        return order4(a);
    return byBlocks(a);
}

template Outcome<float> scalarInverse(const Matrix<float>& a);
template Outcome<double> scalarInverse(const Matrix<double>& a);

} // namespace model
