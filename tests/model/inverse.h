// What the inverses of orders 3 to 6 are made of.
#pragma once

#include "frame.h"
#include "span.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace model {

// A matrix row by row.
template <typename T>
class Matrix
{
public:
    Matrix() = default;
    Matrix(std::uint32_t height, std::uint32_t width)
        : height_(height), width_(width), elements_(std::size_t{height} * width)
    {
    }

    std::uint32_t height() const { return height_; }
    std::uint32_t width() const { return width_; }
    Span<T>& at(std::uint32_t i, std::uint32_t j) { return elements_[std::size_t{i} * width_ + j]; }
    const Span<T>& at(std::uint32_t i, std::uint32_t j) const
    {
        return elements_[std::size_t{i} * width_ + j];
    }

    // These rows and columns.
    Matrix part(const std::vector<std::uint32_t>& rows, const std::vector<std::uint32_t>& columns) const
    {
        Matrix result(static_cast<std::uint32_t>(rows.size()), static_cast<std::uint32_t>(columns.size()));
        for (std::uint32_t i = 0; i < result.height_; ++i) {
            for (std::uint32_t j = 0; j < result.width_; ++j)
                result.at(i, j) = at(rows[i], columns[j]);
        }
        return result;
    }

private:
    std::uint32_t height_ = 0;
    std::uint32_t width_ = 0;
    std::vector<Span<T>> elements_;
};

// The numbers from `first` to `last` - 1, without `left`.
inline std::vector<std::uint32_t> numbers(std::uint32_t first, std::uint32_t last, std::uint32_t left = 99)
{
    std::vector<std::uint32_t> list;
    for (std::uint32_t i = first; i < last; ++i) {
        if (i != left)
            list.push_back(i);
    }
    return list;
}

// x y - z w.
template <typename T>
Span<T> crossDifference(const Span<T>& x, const Span<T>& y, const Span<T>& z, const Span<T>& w)
{
    const Span<T> first = x * y;
    const Span<T> second = z * w;
    return first - second;
}

// The signed cofactor of an element of a matrix of order 3.
template <typename T>
Span<T> cofactor3(const Matrix<T>& a, std::uint32_t i, std::uint32_t j)
{
    const std::uint32_t i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
    return crossDifference(a.at(i1, j1), a.at(i2, j2), a.at(i1, j2), a.at(i2, j1));
}

// The product of an element of a matrix of order 3 and its cofactor.
template <typename T>
Span<T> term3(const Matrix<T>& a, std::uint32_t i, std::uint32_t j)
{
    return a.at(i, j) * cofactor3(a, i, j);
}

// The cofactors of order 3 at their transposed places, times r.
template <typename T>
Matrix<T> adjugate3(const Matrix<T>& a, const Span<T>& r)
{
    Matrix<T> result(3, 3);
    for (std::uint32_t i = 0; i < 3; ++i) {
        for (std::uint32_t j = 0; j < 3; ++j)
            result.at(i, j) = cofactor3(a, j, i) * r;
    }
    return result;
}

// Whether a number lies in the band about zero in which it counts as zero. A NaN lies outside.
template <typename T>
bool inBand(const Span<T>& v)
{
    const double limit = sizeof(T) == 4 ? std::bit_cast<double>(0x3E7AD7F29ABCAF48u) : 1e-15;
    const auto inside = [limit](T x) {
        return -limit < static_cast<double>(x) && static_cast<double>(x) < limit;
    };
    const bool low = inside(v.low());
    const bool high = inside(v.high());
    const bool across = !v.exact() && !low && !high && (v.low() < 0) != (v.high() < 0);
    if (low != high || across)
        throw Undecided{"a determinant about the limit"};
    return low;
}

// Whether a number is exactly zero.
template <typename T>
bool exactlyZero(const Span<T>& v)
{
    if (v.nan())
        return false;
    if ((isDenormal(v.low()) && ignoresDenormals()) || (!v.isZero() && v.mayBeZero()))
        throw Undecided{"a determinant about zero"};
    return v.isZero();
}

// What becomes of one matrix.
template <typename T>
struct Outcome
{
    std::int32_t status = ok;
    // The values that the elements of the destination may get, row by row: none where nothing is written.
    std::vector<std::vector<Span<T>>> values;
    // The first rows that may hold scratch.
    std::uint32_t scratchRows = 0;
};

template <typename T>
Outcome<T> singular(std::uint32_t order)
{
    return {singularError, std::vector<std::vector<Span<T>>>(order * order), 0};
}

// The matrix, whose row k goes to row place[k] of the destination.
template <typename T>
Outcome<T> finished(const Matrix<T>& inverse, const std::vector<std::uint32_t>& place)
{
    const std::uint32_t order = inverse.width();
    Outcome<T> outcome{ok, std::vector<std::vector<Span<T>>>(order * order), 0};
    for (std::uint32_t i = 0; i < order; ++i) {
        for (std::uint32_t j = 0; j < order; ++j)
            outcome.values[place[i] * order + j].push_back(inverse.at(i, j));
    }
    return outcome;
}

// Inverse by blocks: P is the first p rows of the p columns that `columns` names first. `reciprocal` is that
// of the determinant of P; `invertRest` inverts what remains, or finds it singular.
template <typename T>
std::optional<Matrix<T>>
inverseByBlocks(const Matrix<T>& a, std::uint32_t p, const std::vector<std::uint32_t>& columns,
                const Span<T>& reciprocal,
                const std::function<std::optional<Matrix<T>>(const Matrix<T>&)>& invertRest);
extern template std::optional<Matrix<float>>
inverseByBlocks(const Matrix<float>&, std::uint32_t, const std::vector<std::uint32_t>&, const Span<float>&,
                const std::function<std::optional<Matrix<float>>(const Matrix<float>&)>&);
extern template std::optional<Matrix<double>>
inverseByBlocks(const Matrix<double>&, std::uint32_t, const std::vector<std::uint32_t>&, const Span<double>&,
                const std::function<std::optional<Matrix<double>>(const Matrix<double>&)>&);

// The members with strided elements or tables.
template <typename T>
Outcome<T> scalarInverse(const Matrix<T>& a);
extern template Outcome<float> scalarInverse(const Matrix<float>& a);
extern template Outcome<double> scalarInverse(const Matrix<double>& a);

// The packed kernels, with contiguous rows. The sign of a zero is open, and where one of binary64 divides,
// that of the infinity is: `negative` tells for the first and the second division by zero which to take, and
// `divisions` counts them.
struct ZeroSigns
{
    unsigned negative = 0;
    unsigned divisions = 0;
};
Outcome<double> packedInverse(const Matrix<double>& a, ZeroSigns& zeros);
Outcome<float> packedInverse(const Matrix<float>& a);

// The sixteen signed cofactors of order 4 in the packed kernels, at the places of their elements.
template <typename T>
Matrix<T> packedCofactors(const Matrix<T>& a);
extern template Matrix<float> packedCofactors(const Matrix<float>& a);
extern template Matrix<double> packedCofactors(const Matrix<double>& a);

// The reciprocal by the processor's estimate and one Newton step, in the form of order 3 and that of the
// others.
Span<float> refined3(const Span<float>& d);
Span<float> refined(const Span<float>& d);

// The order-4 packed kernel of binary32; nothing if it finds the matrix singular.
std::optional<Matrix<float>> packedInverse4(const Matrix<float>& a);

// Orders 5 and 6 of the packed kernels of binary32.
Outcome<float> eliminatedInverse(const Matrix<float>& a);

} // namespace model
