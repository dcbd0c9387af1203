// The inverse of orders 3 to 6 with contiguous rows. Orders 5 and 6 of binary32 have a file of their own.
#include "inverse.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace model {

namespace {

// A cofactor is the sum of six products of three elements each, one from each row; in which order they are
// added is open, as is which two elements of a product come first and whether a third one multiplies two of
// these at once. On every way there a product passes through at most 7 roundings: two multiplications and
// five additions. So the result lies within ((1 + u)^7 - 1) <= 7u / (1 - 7u) times the sum of the magnitudes
// of the exact products, plus what is lost below the smallest normal number in each of fewer than 12
// multiplications, times an element. The exact sum itself is formed in the wide unit, with at most 8 of its
// roundings. Where all sums of products are small multiples of one power of two nothing is rounded at all.
template <typename T>
struct SixProducts
{
    std::array<Wide, 9> elements;
    T roundoff;
};

template <typename T>
struct Enclosure
{
    T low = 0;
    T high = 0;
    bool mayOverflow = false;
};

Wide lowestBit(Wide x)
{
    int exponent = 0;
    Wide significand = std::frexp(x, &exponent);
    int bits = 0;
    while (significand != std::floor(significand)) {
        significand *= 2;
        ++bits;
    }
    return std::ldexp(Wide(1), exponent - bits);
}

template <typename T>
Enclosure<T> enclose(const SixProducts<T>* six)
{
    const auto& a = six->elements;
    Wide largest = 0;
    Wide finest = 0; // a power of two of which all elements are multiples
    for (const Wide x : a) {
        if (x == 0)
            continue;
        largest = std::max(largest, std::fabs(x));
        finest = finest == 0 ? lowestBit(x) : std::min(finest, lowestBit(x));
    }
    Wide sum = 0;
    Wide magnitudes = 0;
    for (std::size_t j = 0; j < 3; ++j) {
        const std::size_t j1 = (j + 1) % 3, j2 = (j + 2) % 3;
        const Wide positive = a[j] * a[3 + j1] * a[6 + j2];
        const Wide negative = a[j] * a[3 + j2] * a[6 + j1];
        sum += positive;
        sum -= negative;
        magnitudes += std::fabs(positive) + std::fabs(negative);
    }
    const Wide pairs = 2 * largest * largest;
    const Wide limit = std::numeric_limits<T>::max() / 4;
    const bool mayOverflow = magnitudes > limit || pairs > limit;
    const Wide bits = std::ldexp(Wide(1), std::numeric_limits<T>::digits);
    const Wide finestProduct = finest * finest * finest;
    if (pairs <= bits * finest * finest && magnitudes <= bits * finestProduct &&
        (finest == 0 || finestProduct >= std::numeric_limits<T>::min()))
        return {static_cast<T>(sum), static_cast<T>(sum), mayOverflow};
    const Wide u = six->roundoff;
    const Wide radius = (7 * u / (1 - 7 * u) + 16 * std::numeric_limits<Wide>::epsilon()) * magnitudes +
                        12 * Wide(std::numeric_limits<T>::min()) * (1 + largest);
    // The ends, moved outwards by the rounding to T.
    const T infinity = std::numeric_limits<T>::infinity();
    return {std::nextafter(static_cast<T>(sum - radius), -infinity),
            std::nextafter(static_cast<T>(sum + radius), infinity), mayOverflow};
}

template <typename T>
Span<T> packedCofactor(const Matrix<T>& rest)
{
    SixProducts<T> six{{}, roundoff<T>()};
    for (std::uint32_t i = 0; i < 3; ++i) {
        for (std::uint32_t j = 0; j < 3; ++j) {
            const Span<T>& element = rest.at(i, j);
            if (!element.exact() || !std::isfinite(element.low()))
                throw Undecided{"a cofactor of numbers that are not finite"};
            if (isDenormal(element.low()) && ignoresDenormals())
                throw Undecided{"a cofactor of denormals that may count or not"};
            six.elements[i * 3 + j] = element.low();
        }
    }
    const Enclosure<T> result = inUsualState(&enclose<T>, static_cast<const SixProducts<T>*>(&six));
    if (result.mayOverflow)
        throw Undecided{"a cofactor whose products may overflow"};
    return Span<T>(result.low, result.high);
}

Span<double> reciprocal(const Span<double>& d, ZeroSigns& zeros)
{
    if (d.isZero()) {
        const bool negative = (zeros.negative >> zeros.divisions & 1) != 0;
        ++zeros.divisions;
        const double zero = negative ? -0.0 : 0.0;
        return Span<double>(1.0 / zero);
    }
    if (!d.exact() && d.mayBeZero())
        throw Undecided{"a determinant about zero"};
    return d.mapped([](double x) {
        const double quotient = 1.0 / x;
        return quotient;
    });
}

// The adjugate of order 4 times r, from the cofactors.
template <typename T>
Matrix<T> scaled(const Matrix<T>& cofactors, const Span<T>& r)
{
    Matrix<T> result(4, 4);
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j)
            result.at(i, j) = cofactors.at(j, i) * r;
    }
    return result;
}

// Singular if the reciprocal of the determinant is exactly zero, so not if the determinant is.
std::optional<Matrix<double>> inverse3(const Matrix<double>& a, ZeroSigns& zeros)
{
    const Span<double> det = (term3(a, 0, 0) + term3(a, 2, 0)) + term3(a, 1, 0);
    const Span<double> r = reciprocal(det, zeros);
    if (exactlyZero(r))
        return std::nullopt;
    return adjugate3(a, r);
}

// A NaN makes the determinant one, which is not zero, and so every element of the inverse.
template <typename T>
std::optional<Matrix<T>> floodedByNaN(const Matrix<T>& a)
{
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j) {
            if (a.at(i, j).nan()) {
                const Span<T> one(T(1));
                return scaled(Matrix<T>(4, 4), one * a.at(i, j));
            }
        }
    }
    return std::nullopt;
}

// Singular if the determinant is exactly zero.
std::optional<Matrix<double>> inverse4(const Matrix<double>& a, ZeroSigns& zeros)
{
    if (const auto flooded = floodedByNaN(a))
        return flooded;
    const Matrix<double> cofactors = packedCofactors(a);
    const auto term = [&](std::uint32_t i) { return a.at(i, 0) * cofactors.at(i, 0); };
    const Span<double> det = (term(0) + term(2)) + (term(1) + term(3));
    if (exactlyZero(det))
        return std::nullopt;
    return scaled(cofactors, reciprocal(det, zeros));
}

// The determinant of rows 0 and 1 in two columns.
Span<double> minor2(const Matrix<double>& a, std::uint32_t left, std::uint32_t right)
{
    return crossDifference(a.at(0, left), a.at(1, right), a.at(0, right), a.at(1, left));
}

// The columns in the order in which they are used, nothing if no two will do. The four stores lose column e
// if the other one is column 0.
std::optional<std::vector<std::uint32_t>> columnOrder(const Matrix<double>& a)
{
    std::vector<std::uint32_t> columns = numbers(0, a.width());
    if (!inBand(minor2(a, 0, 1)))
        return columns;
    for (std::uint32_t e = a.width() - 1; e >= 1; --e) {
        for (std::uint32_t d = e; d-- > 0;) {
            if (inBand(minor2(a, e, d)))
                continue;
            columns[0] = e;
            columns[e] = 0;
            columns[1] = d;
            columns[d] = 1;
            return columns;
        }
    }
    return std::nullopt;
}

Outcome<double> byBlocks(const Matrix<double>& a, ZeroSigns& zeros)
{
    const std::uint32_t n = a.width();
    const std::optional<std::vector<std::uint32_t>> columns = columnOrder(a);
    if (!columns)
        return singular<double>(n);
    const Span<double> d1 = minor2(a, (*columns)[0], (*columns)[1]);
    const std::optional<Matrix<double>> inverse =
        inverseByBlocks<double>(a, 2, *columns, reciprocal(d1, zeros), [&](const Matrix<double>& s) {
            return n == 5 ? inverse3(s, zeros) : inverse4(s, zeros);
        });
    return inverse ? finished(*inverse, *columns) : singular<double>(n);
}

// The reciprocals of a few neighbouring numbers, or a bound. The estimate is good to 1.5 x 2^-12, which one
// Newton step squares to 2.25 x 2^-24; its three roundings, of up to 2^-23 each against the result, bring
// that to less than 2^-20.
template <typename Step>
Span<float> refinedBy(const Span<float>& d, const Step& step)
{
    if (d.exact())
        return Span<float>(step(d.low()));
    if (d.mayBeZero())
        throw Undecided{"a determinant about zero"};
    const float least = std::min(magnitude(d.low()), magnitude(d.high()));
    const float most = std::max(magnitude(d.low()), magnitude(d.high()));
    if (least < 0x1p-120f || most > 0x1p120f)
        throw Undecided{"a determinant beyond the range of the estimate"};
    const auto first = std::bit_cast<std::uint32_t>(least);
    const auto last = std::bit_cast<std::uint32_t>(most);
    const float sign = d.low() < 0 ? -1.0f : 1.0f;
    if (last - first <= 4096) {
        Span<float> result(step(sign * least));
        for (std::uint32_t bits = first + 1; bits <= last; ++bits)
            result.include(step(sign * std::bit_cast<float>(bits)));
        return result;
    }
    const double low = (1 - 0x1p-20) / static_cast<double>(most);
    const double high = (1 + 0x1p-20) / static_cast<double>(least);
    Span<float> result(sign * std::nextafter(static_cast<float>(low), 0.0f));
    result.include(sign * std::nextafter(static_cast<float>(high), 1e38f));
    return result;
}

Outcome<float> packedOrder3(const Matrix<float>& a)
{
    const Span<float> det = (term3(a, 1, 0) + term3(a, 2, 0)) + term3(a, 0, 0);
    if (exactlyZero(det))
        return singular<float>(3);
    return finished(adjugate3(a, refined3(det)), numbers(0, 3));
}

} // namespace

template <typename T>
Matrix<T> packedCofactors(const Matrix<T>& a)
{
    Matrix<T> result(4, 4);
    for (std::uint32_t i = 0; i < 4; ++i) {
        for (std::uint32_t j = 0; j < 4; ++j) {
            const Span<T> minor = packedCofactor(a.part(numbers(0, 4, i), numbers(0, 4, j)));
            result.at(i, j) = (i + j) % 2 == 0 ? minor : -minor;
        }
    }
    return result;
}

template Matrix<float> packedCofactors(const Matrix<float>& a);
template Matrix<double> packedCofactors(const Matrix<double>& a);

Span<float> refined3(const Span<float>& d)
{
    return refinedBy(d, [](float v) {
        const float x = estimateReciprocal(v);
        const float once = v * x;
        const float twice = once * x;
        const float result = (x + x) - twice;
        return result;
    });
}

Span<float> refined(const Span<float>& d)
{
    return refinedBy(d, [](float v) {
        const float x = estimateReciprocal(v);
        const float square = x * x;
        const float product = v * square;
        const float result = (x + x) - product;
        return result;
    });
}

std::optional<Matrix<float>> packedInverse4(const Matrix<float>& a)
{
    if (const auto flooded = floodedByNaN(a))
        return flooded;
    const Matrix<float> cofactors = packedCofactors(a);
    const auto term = [&](std::uint32_t i) { return a.at(i, 0) * cofactors.at(i, 0); };
    const Span<float> det = (term(3) + term(1)) + (term(2) + term(0));
    if (exactlyZero(det))
        return std::nullopt;
    return scaled(cofactors, refined(det));
}

Outcome<float> packedInverse(const Matrix<float>& a)
{
    if (a.width() == 3)
        return packedOrder3(a);
    if (a.width() > 4)
        return eliminatedInverse(a);
    const std::optional<Matrix<float>> inverse = packedInverse4(a);
    return inverse ? finished(*inverse, numbers(0, 4)) : singular<float>(4);
}

Outcome<double> packedInverse(const Matrix<double>& a, ZeroSigns& zeros)
{
    if (a.width() > 4)
        return byBlocks(a, zeros);
    const std::optional<Matrix<double>> inverse = a.width() == 3 ? inverse3(a, zeros) : inverse4(a, zeros);
    return inverse ? finished(*inverse, numbers(0, a.width())) : singular<double>(a.width());
}

} // namespace model
