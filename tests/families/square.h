// Square matrices in every layout, for the tests of determinants and inverses.
#pragma once

#include "support/call.h"
#include "support/library.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace square {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double aNaN = std::numeric_limits<double>::quiet_NaN();

using support::Argument;
using Arguments = std::vector<Argument>;

inline Argument word(std::uint32_t w)
{
    return {Argument::Kind::word, w};
}
inline Argument pointer(const void* p)
{
    return {Argument::Kind::pointer, reinterpret_cast<std::uintptr_t>(p)};
}

inline std::int32_t callByName(const std::string& name, const Arguments& arguments,
                               const support::Entry& entry = {})
{
    void* function = support::exportedAddress(name);
    EXPECT_NE(function, nullptr) << name;
    if (!function)
        return 1;
    const support::Outcome outcome = support::call(function, arguments, entry);
    EXPECT_TRUE(outcome.x87Empty && outcome.controlKept && outcome.registersKept) << name;
    return outcome.status;
}

template <typename T>
std::string typeName()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}

// The layouts of a code, as they end a name.
inline const std::vector<std::string>& layoutsOf(const std::string& code)
{
    static const std::vector<std::string> single = {"", "_S2", "_P"};
    static const std::vector<std::string> all = {"", "_S2", "_P", "_PS2", "_L", "_LS2"};
    return code == "m" ? single : all;
}

// Equal as numbers or both NaN, and for zeros the same sign.
template <typename T>
bool same(T a, T b)
{
    return (a != a && b != b) || std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Matrices of order n in one layout, with room between all their elements where the layout allows that, and
// with something in that room that shows if it is written.
template <typename T>
class Objects
{
public:
    static constexpr T gap = T(-77);

    Objects(std::string layout, std::size_t n, std::size_t count)
        : layout_(std::move(layout)), n_(n), count_(count), memory_(count * 3 * n * n + 4 * n + 8, gap)
    {
        const bool strided = layout_ == "_S2" || layout_ == "_LS2";
        step2_ = strided ? 2 : 1;
        step1_ = n * step2_ + 1;
        step0_ = layout_ == "_P" ? 1 : layout_ == "_PS2" ? 2 : n * step1_ + 1;
        const char* before = reinterpret_cast<const char*>(memory_.data()) - shift;
        if (layout_ == "_P" || layout_ == "_PS2")
            for (std::size_t e = 0; e < n * n; ++e)
                entries.push_back(before + e * step0_ * count * sizeof(T));
        else if (layout_ == "_L" || layout_ == "_LS2")
            for (std::size_t k = 0; k < count; ++k)
                entries.push_back(before + k * step0_ * sizeof(T));
    }

    T& at(std::size_t k, std::size_t i, std::size_t j) { return memory_[indexOf(k, i, j)]; }
    void set(std::size_t k, const std::vector<double>& values)
    {
        for (std::size_t e = 0; e < n_ * n_; ++e)
            at(k, e / n_, e % n_) = static_cast<T>(values[e]);
    }
    void fill(T x)
    {
        for (std::size_t e = 0; e < count_ * n_ * n_; ++e)
            at(e / (n_ * n_), e / n_ % n_, e % n_) = x;
    }
    std::vector<T> object(std::size_t k)
    {
        std::vector<T> values;
        for (std::size_t e = 0; e < n_ * n_; ++e)
            values.push_back(at(k, e / n_, e % n_));
        return values;
    }
    // Whether every element of object k is x.
    bool is(std::size_t k, T x)
    {
        for (T y : object(k))
            if (!same(x, y))
                return false;
        return true;
    }
    bool gapsAreUntouched()
    {
        std::vector<bool> used(memory_.size());
        for (std::size_t e = 0; e < count_ * n_ * n_; ++e)
            used[indexOf(e / (n_ * n_), e / n_ % n_, e % n_)] = true;
        for (std::size_t e = 0; e < memory_.size(); ++e)
            if (!used[e] && memory_[e] != gap)
                return false;
        return true;
    }

    // The arguments of the operand, as an array or as a single object.
    void addTo(Arguments& to, bool array) const
    {
        const auto step = [&](std::size_t s) {
            to.push_back(word(static_cast<std::uint32_t>(s * sizeof(T))));
        };
        const bool table = layout_ == "_P" || layout_ == "_PS2";
        to.push_back(entries.empty() ? pointer(memory_.data()) : pointer(entries.data()));
        if (!entries.empty())
            to.push_back(word(shift));
        if (array && (layout_ == "" || layout_ == "_S2" || layout_ == "_PS2"))
            step(step0_);
        if (!table)
            step(step1_);
        if (layout_ == "_S2" || layout_ == "_LS2")
            step(step2_);
    }

    std::vector<const char*> entries; // of the table or list

private:
    static constexpr std::uint32_t shift = 20;

    std::size_t indexOf(std::size_t k, std::size_t i, std::size_t j) const
    {
        if (layout_ == "_P" || layout_ == "_PS2")
            return (i * n_ + j) * step0_ * count_ + k * step0_;
        return k * step0_ + i * step1_ + j * step2_;
    }

    std::string layout_;
    std::size_t n_, count_;
    std::vector<T> memory_;
    std::size_t step0_, step1_, step2_;
};

// ---------------------------------------------------------------------------------------------------------------
// Kinds of matrices
// ---------------------------------------------------------------------------------------------------------------

using Matrix = std::vector<double>; // row after row; every element is a binary32 number

inline double rounded(double x)
{
    return static_cast<double>(static_cast<float>(x));
}

// Far from singular: a heavy diagonal.
inline Matrix wellConditioned(std::size_t n, std::mt19937& random)
{
    std::uniform_real_distribution<double> number(-1, 1);
    Matrix a(n * n);
    for (double& x : a)
        x = rounded(number(random));
    for (std::size_t i = 0; i < n; ++i)
        a[i * n + i] += a[i * n + i] < 0 ? -4.0 : 4.0;
    for (double& x : a)
        x = rounded(x);
    return a;
}

// The same with its rows exchanged: small or no elements on the diagonal.
inline Matrix permuted(std::size_t n, std::mt19937& random)
{
    Matrix a = wellConditioned(n, random);
    for (std::size_t i = n; i-- > 1;) {
        const std::size_t other = std::uniform_int_distribution<std::size_t>(0, i)(random);
        for (std::size_t j = 0; j < n; ++j)
            std::swap(a[i * n + j], a[other * n + j]);
    }
    return a;
}

// Rows and columns of scales that differ by powers of two.
inline Matrix graded(std::size_t n, std::mt19937& random)
{
    Matrix a = wellConditioned(n, random);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            a[i * n + j] = std::ldexp(a[i * n + j], static_cast<int>(i) - static_cast<int>(j));
    return a;
}

// Zeros in front of the rows: the first pivots have to be looked for.
inline Matrix leadingZeros(std::size_t n, std::mt19937& random)
{
    Matrix a = wellConditioned(n, random);
    Matrix b(n * n);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            b[i * n + j] = a[((i + n - 1) % n) * n + j];
    b[0] = 0;
    return b;
}

// The last row is the one above it, but for 2^-8 at most.
inline Matrix nearlySingular(std::size_t n, std::mt19937& random)
{
    std::uniform_real_distribution<double> number(-0x1p-8, 0x1p-8);
    Matrix a = wellConditioned(n, random);
    for (std::size_t j = 0; j < n; ++j)
        a[(n - 1) * n + j] = rounded(a[(n - 2) * n + j] + number(random));
    return a;
}

// Whole numbers of which every elimination and every cofactor is exact, and two rows the same.
inline Matrix twoEqualRows(std::size_t n, std::size_t p, std::size_t q)
{
    Matrix a(n * n);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            a[i * n + j] = i == j ? 4 : static_cast<double>((3 * i + 5 * j + i * j) % 7) - 3;
    for (std::size_t j = 0; j < n; ++j)
        a[q * n + j] = a[p * n + j];
    return a;
}

inline Matrix transposed(const Matrix& a, std::size_t n)
{
    Matrix t(n * n);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            t[j * n + i] = a[i * n + j];
    return t;
}

} // namespace square
