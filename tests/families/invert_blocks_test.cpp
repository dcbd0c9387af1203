// Invert of orders 5 and 6: the order of every sum that the blocks are put together from. Three terms are a
// large number, its negative and a small one: what is left tells which two were added first.
#include "inverses.h"

#include <xmmintrin.h>

namespace {

using namespace inverses;

template <typename T>
constexpr double big = sizeof(T) == 4 ? 0x1p30 : 0x1p60;
template <typename T>
constexpr double small = 1 / big<T>;

// The first p rows and columns, and the others:  P B
//                                                C D
struct Blocks
{
    std::size_t n, p, q = n - p;
    Matrix a = diagonal(Matrix(n, 1));

    double& P(std::size_t i, std::size_t j) { return a[i * n + j]; }
    double& B(std::size_t i, std::size_t j) { return a[i * n + p + j]; }
    double& C(std::size_t i, std::size_t j) { return a[(p + i) * n + j]; }
    double& D(std::size_t i, std::size_t j) { return a[(p + i) * n + p + j]; }

    // D with an inverse that is 1 on and above the diagonal.
    void letInverseOfDHaveOnes()
    {
        for (std::size_t i = 0; i + 1 < q; ++i)
            D(i, i + 1) = -1;
    }
};

// Which members divide a matrix of order n into blocks, and how.
struct Division
{
    Class members;
    std::size_t n, p;
    std::size_t q() const { return n - p; }
};
const std::vector<Division> scalarDivisions = {{Class::scalar, 5, 2}, {Class::scalar, 6, 3}};
const std::vector<Division> packedDivisions = {{Class::packed, 5, 2}, {Class::packed, 6, 2}};

// Packed 32f has a method of its own, at the end of this file.
template <typename F>
void eachDivision(F f)
{
    for (const Division& d : scalarDivisions) {
        f(d, float());
        f(d, double());
    }
    for (const Division& d : packedDivisions)
        f(d, double());
}

template <typename T>
void expectElement(const Division& d, const Matrix& a, std::size_t i, std::size_t j, double expected)
{
    eachMember(d.members, [&](const Member& m) {
        const Result<T> r = invert<T>(m, a, d.n);
        EXPECT_EQ(r.status, tenkOk) << m.name<T>(d.n);
        EXPECT_EQ(r.at(d.n, i, j), T(expected)) << m.name<T>(d.n);
    });
}

// Terms of which none is larger than 1, so that no member looks for another pivot, with their sum in order.
struct Sum
{
    double terms[3], value;
};
template <typename T>
std::vector<Sum> sumsUpTo1()
{
    const double e = small<T>;
    return {{{1, -1, e}, e}, {{1, e, -1}, 0}, {{e, 1, -1}, 0}};
}
template <typename T>
std::vector<Sum> largeSums()
{
    const double b = big<T>;
    return {{{b, -b, 1}, 1}, {{b, 1, -b}, 0}, {{1, b, -b}, 0}};
}

TEST(InvertBlocks, TakesBTimesTheInverseOfPInOrder)
{
    // Row 0 of the inverse of P is (1, 1, 1), D the identity and C 0: element 0 of -inverse(P) B comes out.
    const Division d = scalarDivisions[1];
    const auto check = [&](auto t) {
        using T = decltype(t);
        for (const Sum& sum : sumsUpTo1<T>()) {
            Blocks m{d.n, d.p};
            m.P(0, 1) = m.P(0, 2) = -1;
            for (std::size_t k = 0; k < 3; ++k)
                m.B(k, 0) = -sum.terms[k];
            expectElement<T>(d, m.a, 0, d.p, sum.value);
        }
    };
    check(float());
    check(double());
}

TEST(InvertBlocks, AddsDBehindTheFirstProductOfTheSecondBlock)
{
    // The second block is the identity but for its first element, x + d + y (+ z), which is its determinant.
    eachDivision([](const Division& d, auto t) {
        using T = decltype(t);
        const double b = big<T>;
        struct Case
        {
            double x, d, y, z;
            bool regular;
        };
        std::vector<Case> cases = {{b, -b, 1, 0, true}, {b, 1, -b, 0, false}, {1, b, -b, 0, false}};
        if (d.p == 3) {
            cases.push_back({b, 0, -b, 1, true});
            cases.push_back({b, 0, 1, -b, false});
            cases.push_back({0, b, 1, -b, false});
        }
        for (const Case& c : cases) {
            Blocks m{d.n, d.p};
            for (std::size_t k = 0; k < d.p; ++k)
                m.B(k, 0) = -1;
            m.C(0, 0) = c.x, m.D(0, 0) = c.d, m.C(0, 1) = c.y;
            if (d.p == 3)
                m.C(0, 2) = c.z;
            eachMember(d.members, [&](const Member& member) {
                const Result<T> r = invert<T>(member, m.a, d.n);
                const std::string name = member.name<T>(d.n);
                if (c.regular) {
                    EXPECT_EQ(r.status, tenkOk) << name;
                    EXPECT_EQ(r.at(d.n, d.p, d.p), T(1)) << name;
                } else if (member.packed() && d.n == 5) { // tests the reciprocal, which is infinite
                    EXPECT_FALSE(std::isfinite(r.at(d.n, d.p, d.p))) << name;
                } else {
                    EXPECT_EQ(r.status, tenkSingularError) << name;
                }
            });
        }
    });
}

TEST(InvertBlocks, TakesTheInverseOfTheSecondBlockTimesCInOrder)
{
    eachDivision([](const Division& d, auto t) {
        using T = decltype(t);
        for (const Sum& sum : largeSums<T>())
            for (std::size_t first = 0; first + 3 <= d.q(); ++first) {
                Blocks m{d.n, d.p};
                m.letInverseOfDHaveOnes();
                for (std::size_t k = 0; k < 3; ++k)
                    m.C(first + k, 0) = sum.terms[k];
                expectElement<T>(d, m.a, d.p, 0, -sum.value);
            }
    });
}

TEST(InvertBlocks, TakesThatTimesTheInverseOfPInOrder)
{
    // Column 0 of the inverse of P is (1, 1, 1).
    const Division d = scalarDivisions[1];
    const auto check = [&](auto t) {
        using T = decltype(t);
        for (const Sum& sum : largeSums<T>()) {
            Blocks m{d.n, d.p};
            m.P(1, 0) = m.P(2, 0) = -1;
            for (std::size_t k = 0; k < 3; ++k)
                m.C(0, k) = sum.terms[k];
            expectElement<T>(d, m.a, d.p, 0, -sum.value);
        }
    };
    check(float());
    check(double());
}

TEST(InvertBlocks, TakesBTimesTheInverseOfTheSecondBlockInOrder)
{
    eachDivision([](const Division& d, auto t) {
        using T = decltype(t);
        for (const Sum& sum : sumsUpTo1<T>())
            for (std::size_t first = 0; first + 3 <= d.q(); ++first) {
                Blocks m{d.n, d.p};
                m.letInverseOfDHaveOnes();
                for (std::size_t k = 0; k < 3; ++k)
                    m.B(0, first + k) = -sum.terms[k];
                expectElement<T>(d, m.a, 0, d.n - 1, sum.value);
            }
    });
}

TEST(InvertBlocks, StartsTheUpperLeftWithTheInverseOfP)
{
    // P is the identity, row 0 of -B is 1, and D is such that the second block is `big` times the identity:
    // what is added to 1 is column 0 of -C over `big`.
    eachDivision([](const Division& d, auto t) {
        using T = decltype(t);
        const double e = small<T>;
        const std::vector<Sum> sums = {{{-1, e, 0}, e}, {{-1, 0, e}, e}, {{e, -1, 0}, 0}, {{e, 0, -1}, 0}};
        for (const Sum& sum : sums)
            for (std::size_t first = 0; first + 3 <= d.q(); ++first) {
                Blocks m{d.n, d.p};
                for (std::size_t i = 0; i < m.q; ++i) {
                    const bool within = i >= first && i < first + 3;
                    m.B(0, i) = -1;
                    m.C(i, 0) = within ? -big<T> * sum.terms[i - first] : 0;
                    for (std::size_t j = 0; j < m.q; ++j)
                        m.D(i, j) = (i == j ? big<T> : 0) - m.C(i, 0);
                }
                expectElement<T>(d, m.a, 0, 0, sum.value);
            }
    });
}

// ---------------------------------------------------------------------------------------------------------------
// Packed 32f, which eliminates one or two elements and borders the inverse of the rest
// ---------------------------------------------------------------------------------------------------------------

// A reciprocal of 1 is not exact there, so that a sum that is not 0 is only close to a whole number.
void expectAround(std::size_t n, const Matrix& a, std::size_t i, std::size_t j, double expected)
{
    eachMember(Class::packed, [&](const Member& m) {
        const Result<float> r = invert<float>(m, a, n);
        EXPECT_EQ(r.status, tenkOk) << m.name<float>(n);
        if (expected == 0) {
            EXPECT_EQ(r.at(n, i, j), 0.0F) << m.name<float>(n);
        } else {
            EXPECT_NEAR(r.at(n, i, j), expected, 1e-5) << m.name<float>(n);
        }
    });
}

Blocks bordered(std::size_t n)
{
    Blocks m{n, n - 4};
    m.letInverseOfDHaveOnes();
    return m;
}

TEST(InvertBlocks, OfPacked32fAddsTheBorderInOrder)
{
    for (const std::size_t n : {5U, 6U})
        for (const Sum& sum : largeSums<float>())
            for (const std::size_t first : {0U, 1U}) {
                const std::size_t p = n - 4;
                Blocks left = bordered(n), above = bordered(n);
                for (std::size_t k = 0; k < 3; ++k)
                    left.C(first + k, 0) = above.B(0, first + k) = sum.terms[k];
                expectAround(n, left.a, p, 0, -sum.value);
                expectAround(n, above.a, 0, n - 1, -sum.value);
            }
}

TEST(InvertBlocks, OfPacked32fStartsTheCornerWithTheReciprocal)
{
    // The reciprocal is around 1. Column 0 has a 1 in the last row, which is made such that it is (0, 0, 0,
    // 1) when row 0 has been taken from it.
    const float x = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(1))), reciprocal = (x + x) - 1.0F * (x * x);
    const auto corner = [&](const Sum& sum, double expected) {
        Blocks m = bordered(5);
        m.C(3, 0) = 1;
        for (std::size_t k = 0; k < 3; ++k) {
            m.B(0, k) = sum.terms[k];
            m.D(3, k) = static_cast<double>(reciprocal) * sum.terms[k];
        }
        expectAround(5, m.a, 0, 0, expected);
    };
    const double b = big<float>;
    corner({{b, -b, 1}, 0}, 1); // ((1 + b) - b) + 1
    corner({{b, 1, -b}, 0}, 0);
    corner({{1, b, -b}, 0}, 0);
    corner({{b, -b, 0}, 0}, 0);
}

TEST(InvertBlocks, OfPacked32fOrder6StartsWithTheInnerBorder)
{
    // Each sum is 1 + b - b, the 1 coming from the inner border, whose elements are all -1.
    const double b = big<float>;
    const auto fill = [&](auto element) { element(0) = b, element(1) = -b; };
    Blocks left = bordered(6);
    left.C(3, 1) = 1, left.P(1, 0) = -1;
    fill([&](std::size_t k) -> double& { return left.C(k, 0); });
    expectAround(6, left.a, 2, 0, 0);

    Blocks above = bordered(6);
    above.B(1, 0) = 1, above.P(0, 1) = -1;
    fill([&](std::size_t k) -> double& { return above.B(0, k); });
    expectAround(6, above.a, 0, 5, 0);

    Blocks leftFirst = bordered(6);
    leftFirst.B(1, 0) = 1, leftFirst.P(1, 0) = 1;
    fill([&](std::size_t k) -> double& { return leftFirst.C(k, 0); });
    expectAround(6, leftFirst.a, 1, 0, 0);

    Blocks aboveFirst = bordered(6);
    aboveFirst.C(3, 1) = 1, aboveFirst.P(0, 1) = 1;
    fill([&](std::size_t k) -> double& { return aboveFirst.B(0, k); });
    expectAround(6, aboveFirst.a, 0, 1, 0);
}

} // namespace
