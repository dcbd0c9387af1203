#include "qr_reflect.h"

#include "reference.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

// Compared with the sum of the squares of the column, in both types.
constexpr double columnFloor = 0x1p-23;

// A square root in the wide unit.
Wide wideRoot(Wide x)
{
    asm("fsqrt" : "+t"(x));
    return x;
}

template <typename T>
bool positive(T a)
{
    return std::bit_cast<BitsOf<T>>(a) == std::bit_cast<BitsOf<T>>(magnitude(a)) &&
           strictlyGreater(magnitude(a), T(0));
}

bool sameBits(float x, float y)
{
    return std::bit_cast<std::uint32_t>(x) == std::bit_cast<std::uint32_t>(y);
}

void include(std::vector<float>& set, float x)
{
    if (std::none_of(set.begin(), set.end(), [x](float y) { return sameBits(x, y); }))
        set.push_back(x);
}

// The values that the sum may have after adding the square of x to each of `sums`: the square rounded to
// binary32, or not, and then added in the wide unit or in binary64.
std::vector<float> withSquare(const std::vector<float>& sums, float x)
{
    std::vector<float> next;
    for (const float sum : sums) {
        const float square = x * x;
        include(next, sum + square);
        const Wide wideSquare = static_cast<Wide>(x) * static_cast<Wide>(x);
        const Wide wideSum = static_cast<Wide>(sum) + wideSquare;
        include(next, static_cast<float>(wideSum));
        const double doubleSquare = static_cast<double>(x) * static_cast<double>(x);
        const double doubleSum = static_cast<double>(sum) + doubleSquare;
        include(next, static_cast<float>(doubleSum));
    }
    return next;
}

// Whether the column passes the floor; all its possible sums have to agree.
bool passes(const std::vector<float>& sums)
{
    const auto good = [](float q) { return static_cast<double>(magnitude(q)) >= columnFloor; };
    const bool first = good(sums[0]);
    if (std::any_of(sums.begin(), sums.end(), [&](float q) { return good(q) != first; }))
        throw Undecided{"a column about the floor"};
    return first;
}

// The reflector with vector b and coefficient t applied to the columns from k on, and stored.
Grid<float> applied(Grid<float> d, std::uint32_t k, const std::vector<float>& b, float t)
{
    for (std::uint32_t j = k; j < d.width; ++j) {
        float e = d.at(k, j);
        for (std::uint32_t i = k + 1; i < d.height; ++i) {
            const float product = d.at(i, j) * b[i];
            e = e + product;
        }
        e = e * t;
        for (std::uint32_t i = k; i < d.height; ++i) {
            const float product = b[i] * e;
            d.at(i, j) = d.at(i, j) + product;
        }
    }
    for (std::uint32_t i = k + 1; i < d.height; ++i)
        d.at(i, k) = b[i];
    return d;
}

std::vector<float> scales(const std::vector<float>& sums, float a)
{
    std::vector<float> list;
    for (const float q : sums) {
        const float n = static_cast<float>(wideRoot(q));
        const float g = positive(a) ? n : -n;
        const Wide sum = static_cast<Wide>(a) + static_cast<Wide>(g);
        const Wide quotient = Wide(1) / sum;
        include(list, static_cast<float>(quotient));
    }
    return list;
}

} // namespace

std::vector<Grid<float>> reflected(const Grid<float>& d, std::uint32_t k)
{
    std::vector<float> sums = {0.0f};
    for (std::uint32_t i = k; i < d.height; ++i)
        sums = withSquare(sums, d.at(i, k));
    if (!passes(sums))
        return {};
    std::vector<Grid<float>> results;
    for (const float c : scales(sums, d.at(k, k))) {
        std::vector<float> b(d.height);
        b[k] = 1;
        std::vector<float> lengths = {1.0f};
        for (std::uint32_t i = k + 1; i < d.height; ++i) {
            b[i] = d.at(i, k) * c;
            lengths = withSquare(lengths, b[i]);
        }
        std::vector<float> coefficients;
        for (const float u : lengths) {
            const Wide quotient = Wide(-2) / static_cast<Wide>(u);
            include(coefficients, static_cast<float>(quotient));
        }
        for (const float t : coefficients)
            results.push_back(applied(d, k, b, t));
    }
    return results;
}

std::vector<Grid<double>> reflected(const Grid<double>& from, std::uint32_t k)
{
    Grid<double> d = from;
    Wide q = 0;
    for (std::uint32_t i = k; i < d.height; ++i) {
        const Wide square = static_cast<Wide>(d.at(i, k)) * static_cast<Wide>(d.at(i, k));
        q = q + square;
    }
    if (!(q >= static_cast<Wide>(columnFloor)))
        return {};
    const Wide n = wideRoot(q);
    const double a = d.at(k, k);
    const Wide g = positive(a) ? n : -n;
    const Wide sum = static_cast<Wide>(a) + g;
    const Wide c = Wide(1) / sum;
    std::vector<double> b(d.height);
    b[k] = 1;
    Wide u = 1;
    for (std::uint32_t i = k + 1; i < d.height; ++i) {
        const Wide component = static_cast<Wide>(d.at(i, k)) * c;
        b[i] = static_cast<double>(component);
        const Wide square = component * component;
        u = u + square;
    }
    const Wide t = Wide(-2) / u;
    for (std::uint32_t j = k; j < d.width; ++j) {
        Wide e = d.at(k, j);
        for (std::uint32_t i = k + 1; i < d.height; ++i) {
            const Wide product = static_cast<Wide>(d.at(i, j)) * static_cast<Wide>(b[i]);
            e = e + product;
        }
        e = e * t;
        for (std::uint32_t i = k; i < d.height; ++i) {
            const Wide product = static_cast<Wide>(b[i]) * e;
            const Wide updated = static_cast<Wide>(d.at(i, j)) + product;
            d.at(i, j) = static_cast<double>(updated);
        }
    }
    for (std::uint32_t i = k + 1; i < d.height; ++i)
        d.at(i, k) = b[i];
    return {d};
}

} // namespace model
