// Invert of orders 3 to 6: edge cases by hand, and properties.
#include "exact.h"
#include "inverses.h"

#include <algorithm>
#include <numeric>
#include <xmmintrin.h>

namespace {

using namespace inverses;

// ---------------------------------------------------------------------------------------------------------------
// What is singular
// ---------------------------------------------------------------------------------------------------------------

// The binary32 number next to 1e-7 is above it.
constexpr double outside32f = 0x1.ad7f2ap-24, inside32f = 0x1.ad7f28p-24;
constexpr double outside64f = 1e-15, inside64f = 0x1.203af9ee75615p-50, above64f = 0x1.203af9ee75617p-50;
static_assert(above64f > 1e-15);
static_assert(outside32f > 1e-7 && inside32f < 1e-7 && inside64f < 1e-15);

template <typename T>
void testsTheBand(std::size_t n, std::size_t row, double outside, double inside)
{
    for (const double sign : {1.0, -1.0}) {
        Matrix d(n, 1);
        d[row] = sign * outside;
        expectRegular<T>(Class::scalar, diagonal(d));
        d[row] = sign * inside;
        expectSingular<T>(Class::scalar, diagonal(d));
    }
}

TEST(InvertSmall, OfScalarMembersTestsAnOpenBand)
{
    for (std::size_t n = 3; n <= 6; ++n)
        // The last element is in the only block or in the second. In the first block of order 6 the columns 0
        // to 4 are there to choose from, and row 1 has but the element on the diagonal.
        for (const std::size_t row : {n - 1, std::size_t{1}}) {
            testsTheBand<float>(n, row, outside32f, inside32f);
            testsTheBand<double>(n, row, outside64f, inside64f);
            testsTheBand<double>(n, row, above64f, inside64f);
        }
}

TEST(InvertSmall, OfScalarMembersTestsTheBlocksAndNotTheWhole)
{
    // Both blocks have determinants of 1e-4, the whole 1e-8.
    expectRegular<float>(Class::scalar, diagonal({1e-2, 1e-2, 1e-2, 1e-2, 1}));
    expectRegular<float>(Class::scalar, diagonal({1e-2, 1e-2, 1, 1e-2, 1e-2, 1}));
    // The whole has 1, the first block 1e-8.
    expectSingular<float>(Class::scalar, diagonal({1e-4, 1e-4, 1e4, 1e4, 1}));
    expectSingular<float>(Class::scalar, diagonal({1e4, 1e4, 1, 1e-4, 1e-4, 1}));
}

TEST(InvertSmall, OfPacked32fInvertsWhatIsNotExactlySingular)
{
    const Matrix small = {1e-3, 0, 0, 0, 1e-3, 0, 0, 0, 1e-3};
    const Member packed{"m", ""};
    const Result<float> r = invert<float>(packed, small, 3);
    EXPECT_EQ(r.status, tenkOk);
    EXPECT_NEAR(r.at(3, 1, 1), 1000, 1e-3);
    expectSingular<float>(Class::scalar, small);
    const std::vector<float> elements(small.begin(), small.end()); // general order goes by the pivots
    float inverse[9];
    char buffer[9 * 4 + 3 * 4];
    EXPECT_EQ(tenkInvert_m_32f(elements.data(), 12, 3, buffer, inverse, 12), tenkOk);
    EXPECT_NEAR(inverse[4], 1000, 1e-3);
    expectSingular<float>(Class::packed, Matrix(9, 0));
    expectSingular<float>(Class::packed, diagonal({1, 2, 0}));
    expectRegular<float>(Class::packed, diagonal({1, 1, 1, 1e-30}));
    expectSingular<float>(Class::packed, Matrix(16, 0));
    expectSingular<float>(Class::packed, diagonal({1, 1, 1, 0}));
}

TEST(InvertSmall, OfPacked32fOrders5And6TestsPivotsInTheBand)
{
    // No element of row 0 is outside.
    Matrix d = diagonal({inside32f, 1, 1, 1, 1});
    d[3] = -inside32f;
    expectSingular<float>(Class::packed, d);
    d[3] = outside32f;
    d[15] = 1; // row 3 needs column 0 then
    expectRegular<float>(Class::packed, d);
    expectRegular<float>(Class::packed, diagonal({outside32f, 1, 1, 1, 1}));
    expectSingular<float>(Class::packed, diagonal({1, 1, 0, 1, 1})); // the determinant of the rest is 0
    expectRegular<float>(Class::packed, diagonal({1, 1, 1, 1, 1e-20}));

    expectSingular<float>(Class::packed, diagonal({inside32f, 1, 1, 1, 1, 1}));
    expectRegular<float>(Class::packed, diagonal({outside32f, 1, 1, 1, 1, 1}));
    // The first two pivots have a product in the band: the search looks at them one by one.
    expectRegular<float>(Class::packed, diagonal({1e-4, 1e-4, 1, 1, 1, 1}));
    expectSingular<float>(Class::packed, diagonal({1, inside32f, 1, 1, 1, 1}));
    expectRegular<float>(Class::packed, diagonal({1, outside32f, 1, 1, 1, 1}));
    expectSingular<float>(Class::packed, diagonal({1, 1, 1, 1, 0, 1}));
    // An element that is not in the band, with a second pivot that is not, but a determinant that is, times
    // 1e-4.
    expectRegular<float>(Class::packed, diagonal({1e-5, 1e-5, 1, 1, 1, 1}));
}

TEST(InvertSmall, OfPacked64fOrder3TestsTheReciprocal)
{
    eachMember(Class::packed, [](const Member& m) {
        const Result<double> r = invert<double>(m, Matrix(9, 0), 3);
        EXPECT_EQ(r.status, tenkOk);
        for (double x : r.inverse)
            EXPECT_TRUE(std::isnan(x));
    });
    expectSingular<double>(Class::scalar, Matrix(9, 0));
    expectSingular<double>(Class::packed, diagonal({1e200, 1e200, 1}));
    expectRegular<double>(Class::packed, diagonal({1e-200, 1, 1}));
    // The second block of order 5.
    expectSingular<double>(Class::packed, diagonal({1, 1, 1e200, 1e200, 1}));
    const Result<double> r = invert<double>({"m", ""}, diagonal({1, 1, 0, 1, 1}), 5);
    EXPECT_EQ(r.status, tenkOk);
    EXPECT_TRUE(std::isinf(r.at(5, 2, 2)));
    EXPECT_TRUE(std::isnan(r.at(5, 3, 3)));
}

TEST(InvertSmall, OfPacked64fOrders4And6TestsTheDeterminant)
{
    expectSingular<double>(Class::packed, Matrix(16, 0));
    expectRegular<double>(Class::packed, diagonal({1, 1, 1, 1e-200}));
    expectRegular<double>(Class::packed, diagonal({1e200, 1e200, 1, 1}));
    expectSingular<double>(Class::packed, diagonal({1, 1, 1, 0, 1, 1}));
    expectRegular<double>(Class::packed, diagonal({1, 1, 1, 1e-200, 1, 1}));
}

TEST(InvertSmall, OfPackedOrders4And6TakesTheSmallestDeterminant)
{
    for (const double sign : {1.0, -1.0}) {
        expectRegular<float>(Class::packed, diagonal({1, 1, 1, sign * 0x1p-149}));
        expectRegular<double>(Class::packed, diagonal({1, 1, 1, sign * 0x1p-1074}));
        expectRegular<double>(Class::packed, diagonal({1, 1, 1, 1, 1, sign * 0x1p-1074}));
        expectSingular<float>(Class::packed, diagonal({1, 1, 1, sign * 0.0}));
        expectSingular<double>(Class::packed, diagonal({1, 1, 1, sign * 0.0}));
        expectSingular<double>(Class::packed, diagonal({1, 1, 1, 1, 1, sign * 0.0}));
    }
}

// The determinant is 0 whichever way it is added up, but for packed 32f of orders 5 and 6, which divide
// first.
TEST(InvertSmall, OfTwoEqualRowsOrColumnsOfWholeNumbersIsSingular)
{
    for (std::size_t n = 3; n <= 4; ++n)
        for (std::size_t p = 0; p < n; ++p)
            for (std::size_t q = 0; q < p; ++q)
                for (const bool rows : {true, false}) {
                    const Matrix equal = twoEqualRows(n, p, q), a = rows ? equal : transposed(equal, n);
                    expectSingular<float>(Class::both, a);
                    expectSingular<double>(Class::scalar, a);
                    if (n == 4)
                        expectSingular<double>(Class::packed, a);
                    else // has an infinite reciprocal
                        expectRegular<double>(Class::packed, a);
                }
}

TEST(InvertSmall, OfScalarOrder4LeavesOppositeCofactorsOfEqualRows)
{
    for (std::size_t p = 0; p < 4; ++p)
        for (std::size_t q = 0; q < p; ++q)
            eachMember(Class::scalar, [&](const Member& m) {
                const Result<double> r = invert<double>(m, twoEqualRows(4, p, q), 4);
                double sum = 0; // of magnitudes
                for (std::size_t j = 0; j < 4; ++j)
                    for (std::size_t i = 0; i < 4; ++i) {
                        EXPECT_EQ(r.at(4, j, i), i == p   ? -r.at(4, j, q)
                                                 : i == q ? -r.at(4, j, p)
                                                          : 0)
                            << m.name<double>(4) << p << q;
                        sum += std::fabs(r.at(4, j, i));
                    }
                EXPECT_GT(sum, 0) << p << q;
            });
}

// Whatever the numbers: cofactors of the other rows are exactly 0, and those of the two are opposite.
TEST(InvertSmall, OfPackedOrder4FindsNeighboursEqual)
{
    std::mt19937 random(41);
    for (int turn = 0; turn < 50; ++turn)
        for (const std::size_t p : {0U, 2U}) {
            Matrix a = wellConditioned(4, random);
            std::copy_n(a.begin() + static_cast<std::ptrdiff_t>(4 * p), 4,
                        a.begin() + static_cast<std::ptrdiff_t>(4 * p + 4));
            expectSingular<float>(Class::packed, a);
            expectSingular<double>(Class::packed, a);
        }
}

TEST(InvertSmall, OfPackedOrder4MultipliesProductsOut)
{
    // The block in rows and columns 2 and 3 has a determinant of one unit u. Cofactor (1, 1) is 2^20 of it,
    // and cofactor (0, 0) three times: 3 u, but 3 (1 + u) - 3 x 1 rounds to 4 u. The determinant is 2^20 of
    // that.
    const auto check = [](auto unit) {
        using T = decltype(unit);
        Matrix a = diagonal({0x1p20, 3, 1 + static_cast<double>(unit), 1});
        a[11] = a[14] = 1;
        eachMember(Class::both, [&](const Member& m) {
            const Result<T> r = invert<T>(m, a, 4);
            EXPECT_EQ(r.status, tenkOk) << m.name<T>(4);
            EXPECT_NEAR(r.at(4, 1, 1), m.packed() ? 0.25 : 1.0 / 3, 1e-6) << m.name<T>(4);
        });
    };
    check(0x1p-23F);
    check(0x1p-52);
}

TEST(InvertSmall, OfAnInfiniteDeterminantMultipliesByZero)
{
    for (const std::size_t n : {3U, 4U}) {
        Matrix d(n, 1);
        d[0] = infinity;
        const auto check = [&](const auto& r, bool nothingButNaN) {
            EXPECT_EQ(r.status, tenkOk);
            EXPECT_TRUE(nothingButNaN ? std::isnan(r.inverse[0]) : r.inverse[0] == 0);
            EXPECT_TRUE(std::isnan(r.inverse[n + 1])); // 0 x inf
        };
        eachMember(Class::both, [&](const Member& m) {
            check(invert<float>(m, diagonal(d), n), m.packed()); // the Newton step has inf x 0
            if (n == 4 || !m.packed())
                check(invert<double>(m, diagonal(d), n), false);
        });
    }
    expectSingular<double>(Class::packed, diagonal({infinity, 1, 1}));
}

TEST(InvertSmall, OfPacked64fOrders5And6TestsPairsOfColumnsForTheBand)
{
    for (const std::size_t n : {5U, 6U}) {
        Matrix d(n, 1);
        d[1] = inside64f;
        expectSingular<double>(Class::packed, diagonal(d));
        d[1] = -outside64f;
        expectRegular<double>(Class::packed, diagonal(d));
        expectSingular<double>(Class::packed, diagonal(Matrix(n, 0)));
    }
}

TEST(InvertSmall, OfScalarOrder4LeavesTheCofactorsOfASingularMatrix)
{
    eachMember(Class::scalar, [](const Member& m) {
        const Result<double> zeros = invert<double>(m, Matrix(16, 0), 4);
        EXPECT_EQ(zeros.status, tenkSingularError);
        for (double x : zeros.inverse)
            EXPECT_EQ(x, 0.0);
        // Of (e0; 2 e1; 3 e2; 5 e0): C02 = 0, C33 = 6, C03 = -(5 x 2 x 3) at (3, 0); all others 0.
        Matrix a(16);
        a[0] = 1, a[5] = 2, a[10] = 3, a[12] = 5;
        const Result<float> r = invert<float>(m, a, 4);
        EXPECT_EQ(r.status, tenkSingularError);
        std::vector<float> expected(16);
        expected[12] = -30, expected[15] = 6;
        EXPECT_EQ(r.inverse, expected);
    });
}

// One NaN, in the last place: the determinant of the whole or of the second block is a NaN and so is all that
// is multiplied by its reciprocal, which is every element.
TEST(InvertSmall, OfScalarMembersANaNInTheDeterminantPassesTheBand)
{
    for (std::size_t n = 3; n <= 6; ++n) {
        Matrix d(n, 1);
        d[n - 1] = aNaN;
        eachMember(Class::scalar, [&](const Member& m) {
            const Result<float> r = invert<float>(m, diagonal(d), n);
            const Result<double> s = invert<double>(m, diagonal(d), n);
            EXPECT_EQ(r.status, tenkOk) << m.name<float>(n);
            EXPECT_EQ(s.status, tenkOk) << m.name<double>(n);
            for (std::size_t e = 0; e < n * n; ++e)
                EXPECT_TRUE(std::isnan(r.inverse[e]) && std::isnan(s.inverse[e])) << m.name<float>(n) << e;
        });
    }
}

TEST(InvertSmall, LetsNaNThroughEveryMember)
{
    for (std::size_t n = 3; n <= 6; ++n)
        eachMember(Class::both, [&](const Member& m) {
            const Result<float> r = invert<float>(m, Matrix(n * n, aNaN), n);
            const Result<double> s = invert<double>(m, Matrix(n * n, aNaN), n);
            EXPECT_EQ(r.status, tenkOk) << m.name<float>(n);
            EXPECT_EQ(s.status, tenkOk) << m.name<double>(n);
            for (std::size_t e = 0; e < n * n; ++e)
                EXPECT_TRUE(std::isnan(r.inverse[e]) && std::isnan(s.inverse[e])) << m.name<float>(n);
        });
}

// ---------------------------------------------------------------------------------------------------------------
// Rounding
// ---------------------------------------------------------------------------------------------------------------

// The first element of the inverse of diag(d, 1, ...) is the reciprocal itself.
TEST(InvertSmall, TakesTheReciprocalThatBelongsToTheMember)
{
    const auto estimate = [](float d) { return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d))); };
    unsigned shapesDiffer = 0, refinedDiffers = 0;
    for (int i = 0; i < 300; ++i) {
        const float d = 1 + static_cast<float>(i) / 300;
        const float x = estimate(d);
        const float refined3 = (x + x) - ((d * x) * x), refined = (x + x) - (d * (x * x));
        shapesDiffer += refined3 != refined;
        refinedDiffers += refined3 != 1 / d && refined != 1 / d;
        for (std::size_t n = 3; n <= 6; ++n) {
            Matrix diag(n, 1);
            diag[0] = d;
            for (const Member& m :
                 {Member{"m", ""}, Member{"ma", "_L"}, Member{"m", "_S2"}, Member{"ma", "_P"}}) {
                const float expected = !m.packed() ? 1 / d : n == 3 ? refined3 : refined;
                EXPECT_EQ(invert<float>(m, diagonal(diag), n).inverse[0], expected) << m.name<float>(n);
                EXPECT_EQ(invert<double>(m, diagonal(diag), n).inverse[0], 1 / static_cast<double>(d));
            }
        }
    }
    EXPECT_GT(shapesDiffer, 0U);
    EXPECT_GT(refinedDiffers, 0U);
}

// Row and column 0 hold 2^30, 1 and -2^30 in some order, and the cofactors are all 1 or 0, so that the
// determinant is 1 if 1 is added last and 0 if it is added before; in 64f with 2^60.
TEST(InvertSmall, OfOrder3SumsTheDeterminantInTheOrderOfTheMember)
{
    for (std::size_t one = 0; one < 3; ++one) {
        const auto matrix = [&](double big, bool row) {
            Matrix a = {big, big, big, 1, -1, 0, 0, 1, -1};
            a[one] = 1;
            a[one == 0 ? 1 : 0] = -big;
            return row ? a : Matrix{a[0], a[3], a[6], a[1], a[4], a[7], a[2], a[5], a[8]};
        };
        const auto status = [&](bool regular) { return regular ? tenkOk : tenkSingularError; };
        eachMember(Class::scalar, [&](const Member& m) {
            EXPECT_EQ(invert<float>(m, matrix(0x1p30, true), 3).status, status(one == 2))
                << m.name<float>(3) << one;
            EXPECT_EQ(invert<double>(m, matrix(0x1p60, true), 3).status, status(one == 2))
                << m.name<double>(3);
        });
        eachMember(Class::packed, [&](const Member& m) {
            EXPECT_EQ(invert<float>(m, matrix(0x1p30, false), 3).status, status(one == 0))
                << m.name<float>(3) << one;
            // A determinant of 0 is no error there, but its reciprocal is infinite.
            const Result<double> r = invert<double>(m, matrix(0x1p60, false), 3);
            EXPECT_EQ(std::isfinite(r.inverse[0]), one == 1) << m.name<double>(3) << one;
        });
    }
}

// Column 0 holds these numbers and all its cofactors are -1.
Matrix withColumn0(double x0, double x1, double x2, double x3)
{
    return {x0, 1, 0, 0, x1, -1, 1, 0, x2, 0, -1, 1, x3, 0, 0, -1};
}

TEST(InvertSmall, OfOrder4SumsTheDeterminantInTheOrderOfTheClass)
{
    const double f = 0x1p30, d = 0x1p60;
    expectRegular<float>(Class::scalar, withColumn0(1, f, -f, 0)); // row 0 comes last
    expectRegular<double>(Class::scalar, withColumn0(1, d, -d, 0));
    expectSingular<float>(Class::scalar, withColumn0(-f, f, 0, 1));
    expectSingular<double>(Class::scalar, withColumn0(-d, d, 0, 1));
    expectRegular<float>(Class::packed, withColumn0(0, -f, 1, f)); // rows 1 and 3, rows 0 and 2
    expectRegular<double>(Class::packed, withColumn0(0, -d, 1, d));
    expectSingular<float>(Class::packed, withColumn0(f, -f, 1, 0));
    expectSingular<double>(Class::packed, withColumn0(d, -d, 1, 0));
}

TEST(InvertSmall, OfScalarOrders5And6AddsColumn1OfTheSecondBlockLast)
{
    for (const std::size_t n : {5U, 6U})
        for (std::size_t one = 0; one < 3; ++one) {
            Matrix a = diagonal(Matrix(n, 1));
            const std::size_t p = n - 3;
            for (std::size_t j = 0; j < 3; ++j)
                a[p * n + p + j] = j == one ? 1 : j == (one == 0 ? 1 : 0) ? -0x1p60 : 0x1p60;
            a[(p + 1) * n + p] = 1, a[(p + 1) * n + p + 1] = -1;
            a[(p + 2) * n + p + 1] = 1, a[(p + 2) * n + p + 2] = -1;
            if (one == 1)
                expectRegular<double>(Class::scalar, a);
            else
                expectSingular<double>(Class::scalar, a);
        }
}

// Objects without gaps between their rows, from one to the next and in place, are a case of their own.
template <typename T, typename F, typename L>
void gapless(std::size_t n, F standard, L list)
{
    std::mt19937 random(37);
    const auto step = static_cast<std::uint32_t>(n * sizeof(T));
    const std::uint32_t object = step * static_cast<std::uint32_t>(n);
    for (int turn = 0; turn < 20; ++turn) {
        std::vector<T> objects, expected;
        for (int k = 0; k < 3; ++k) {
            const Matrix a = permuted(n, random);
            objects.insert(objects.end(), a.begin(), a.end());
            const std::vector<T> inverse = invert<T>({"m", ""}, a, n).inverse;
            expected.insert(expected.end(), inverse.begin(), inverse.end());
        }
        std::vector<T> to(3 * n * n + 1, T(untouched));
        EXPECT_EQ(standard(objects.data(), object, step, to.data(), object, step, 3U), tenkOk);
        EXPECT_EQ(to.back(), T(untouched));
        to.pop_back();
        EXPECT_EQ(to, expected);
        std::fill(to.begin(), to.end(), T(untouched));
        const T* from[3] = {&objects[0], &objects[n * n], &objects[2 * n * n]};
        T* into[3] = {&to[2 * n * n], &to[n * n], &to[0]};
        EXPECT_EQ(list(from, 0U, step, into, 0U, step, 3U), tenkOk);
        for (std::size_t e = 0; e < n * n; ++e)
            EXPECT_EQ(to[e], expected[2 * n * n + e]);
        EXPECT_EQ(standard(objects.data(), object, step, objects.data(), object, step, 3U), tenkOk);
        EXPECT_EQ(objects, expected);
    }
}
TEST(InvertSmall, OfOrders3And4WithoutGapsIsTheSameToTheBit)
{
    gapless<float>(3, tenkInvert_ma_32f_3x3, tenkInvert_ma_32f_3x3_L);
    gapless<double>(3, tenkInvert_ma_64f_3x3, tenkInvert_ma_64f_3x3_L);
    gapless<float>(4, tenkInvert_ma_32f_4x4, tenkInvert_ma_32f_4x4_L);
    gapless<double>(4, tenkInvert_ma_64f_4x4, tenkInvert_ma_64f_4x4_L);
}

// Three objects of order 4, in elements: where the first begins, from row to row, and behind the last row of
// an object, which in a list is added to its entries instead.
struct Gaps
{
    std::size_t offset, row, behind;
    std::size_t at(std::size_t k, std::size_t i, std::size_t j) const
    {
        return 1 + offset + k * (4 * row + behind) + i * row + j;
    }
};

// Ones on the diagonal and in column 0 numbers, which the inverse has with the other sign.
template <typename T, typename F, typename L>
void invertsBetween(const Gaps& from, const Gaps& to, F standard, L list)
{
    const auto bytes = [](std::size_t n) { return static_cast<std::uint32_t>(n * sizeof(T)); };
    alignas(16) T source[66], before[66], after[66];
    std::fill(source, source + 66, T(untouched));
    std::fill(before, before + 66, T(untouched));
    std::copy(before, before + 66, after);
    const T* entries[3];
    T* results[3];
    for (std::size_t k = 0; k < 3; ++k) {
        entries[k] = source + from.at(k, 0, 0) - from.behind;
        results[k] = before + to.at(k, 0, 0) - to.behind;
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j) {
                const T number = i == j ? T(1) : j == 0 ? T(10 * k + i) : T(0);
                source[from.at(k, i, j)] = number;
                after[to.at(k, i, j)] = i == j ? number : -number;
            }
    }
    const auto expectInverses = [&](const char* layout) {
        for (std::size_t e = 0; e < 66; ++e)
            EXPECT_NEAR(before[e], after[e], 1e-5) << layout << e;
        std::fill(before, before + 66, T(untouched));
    };
    EXPECT_EQ(standard(source + from.at(0, 0, 0), bytes(4 * from.row + from.behind), bytes(from.row),
                       before + to.at(0, 0, 0), bytes(4 * to.row + to.behind), bytes(to.row), 3U),
              tenkOk);
    expectInverses("Standard ");
    EXPECT_EQ(
        list(entries, bytes(from.behind), bytes(from.row), results, bytes(to.behind), bytes(to.row), 3U),
        tenkOk);
    expectInverses("List ");
}
TEST(InvertSmall, OfOrder4FindsTheGapsOfEitherOperand)
{
    for (const std::size_t offset : {0U, 1U})
        for (const std::size_t row : {4U, 5U})
            for (const std::size_t behind : {0U, 1U})
                for (const Gaps& other : {Gaps{0, 4, 0}, Gaps{1, 4, 0}, Gaps{1, 4, 1}, Gaps{0, 5, 0}}) {
                    const Gaps gaps{offset, row, behind};
                    invertsBetween<float>(gaps, other, tenkInvert_ma_32f_4x4, tenkInvert_ma_32f_4x4_L);
                    invertsBetween<double>(gaps, other, tenkInvert_ma_64f_4x4, tenkInvert_ma_64f_4x4_L);
                    invertsBetween<float>(other, gaps, tenkInvert_ma_32f_4x4, tenkInvert_ma_32f_4x4_L);
                    invertsBetween<double>(other, gaps, tenkInvert_ma_64f_4x4, tenkInvert_ma_64f_4x4_L);
                }
}
TEST(InvertSmall, OfOrder3WithoutGapsSumsTheDeterminantInTheSameOrder)
{
    // Column 0 holds 2^30, 1 and -2^30, and its cofactors are 1: 1 counts if it is added last, from row 0.
    for (std::size_t one = 0; one < 3; ++one) {
        float column[3] = {0x1p30F, 0x1p30F, 0x1p30F};
        column[one] = 1;
        column[one == 0 ? 1 : 0] = -0x1p30F;
        const float a[9] = {column[0], 1, 0, column[1], -1, 1, column[2], 0, -1};
        float to[9];
        std::fill(to, to + 9, static_cast<float>(untouched));
        EXPECT_EQ(tenkInvert_m_32f_3x3(a, 12, to, 12), one == 0 ? tenkOk : tenkSingularError);
        EXPECT_EQ(to[0] == static_cast<float>(untouched), one != 0);
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The order of columns
// ---------------------------------------------------------------------------------------------------------------

Matrix withColumnsExchanged(Matrix a, std::size_t n, std::size_t p, std::size_t q)
{
    for (std::size_t i = 0; i < n; ++i)
        std::swap(a[i * n + p], a[i * n + q]);
    return a;
}
template <typename T>
std::vector<T> withRowsExchanged(std::vector<T> a, std::size_t n, std::size_t p, std::size_t q)
{
    for (std::size_t j = 0; j < n; ++j)
        std::swap(a[p * n + j], a[q * n + j]);
    return a;
}

TEST(InvertSmall, OfPermutationsKnowsWhichColumnsAreSearched)
{
    for (const std::size_t n : {5U, 6U}) {
        std::vector<std::size_t> column(n);
        std::iota(column.begin(), column.end(), 0U);
        do {
            Matrix a(n * n);
            std::vector<float> expected(n * n);
            for (std::size_t i = 0; i < n; ++i) {
                a[i * n + column[i]] = 1;
                expected[column[i] * n + i] = 1;
            }
            // The first block of the scalar members takes rows 0 to n - 4, and none of columns 5 and up.
            const bool scalarFinds = n == 5 || (column[0] != 5 && column[1] != 5 && column[2] != 5);
            const Result<float> scalar = invert<float>({"m", "_S2"}, a, n);
            EXPECT_EQ(scalar.status, scalarFinds ? tenkOk : tenkSingularError);
            if (scalarFinds) {
                EXPECT_EQ(scalar.inverse, expected);
            }

            const Result<float> packed = invert<float>({"m", ""}, a, n);
            EXPECT_EQ(packed.status, tenkOk);
            for (std::size_t e = 0; e < n * n; ++e)
                EXPECT_NEAR(packed.inverse[e], expected[e], 1e-6);

            // The packed 64f members search for a pair and lose the column of a pair with column 0.
            const std::size_t d = std::min(column[0], column[1]), e = std::max(column[0], column[1]);
            const Result<double> blocks = invert<double>({"m", ""}, a, n);
            EXPECT_EQ(blocks.status, tenkOk);
            if (d > 0 || e == 1) {
                EXPECT_EQ(blocks.inverse, std::vector<double>(expected.begin(), expected.end()));
            } else {
                for (std::size_t j = 0; j < n; ++j)
                    EXPECT_EQ(blocks.at(n, e, j), untouched);
                EXPECT_FALSE(std::isfinite(blocks.at(n, 0, 0)));
            }
        } while (std::next_permutation(column.begin(), column.end()));
    }
}

TEST(InvertSmall, OfScalarOrder6NeverTakesColumn5IntoTheFirstBlock)
{
    Matrix a = diagonal(Matrix(6, 1));
    for (std::size_t j = 0; j < 6; ++j)
        std::swap(a[2 * 6 + j], a[5 * 6 + j]);
    expectSingular<float>(Class::scalar, a);
    expectSingular<double>(Class::scalar, a);
    expectRegular<float>(Class::packed, a);
    expectRegular<double>(Class::packed, a);
}

// With columns exchanged by hand beforehand, the same bits come out, with the rows exchanged.
template <typename T>
void exchanges(Class which, const Matrix& a, std::size_t n, std::size_t p, std::size_t q)
{
    eachMember(which, [&](const Member& m) {
        const Result<T> direct = invert<T>(m, withColumnsExchanged(a, n, p, q), n);
        const Result<T> searched = invert<T>(m, a, n);
        EXPECT_EQ(searched.status, tenkOk) << m.name<T>(n);
        EXPECT_EQ(searched.inverse, withRowsExchanged(direct.inverse, n, p, q)) << m.name<T>(n);
    });
}

Matrix numbersWithRow0(std::size_t n, const Matrix& row0)
{
    std::mt19937 random(23);
    Matrix a = wellConditioned(n, random);
    std::copy(row0.begin(), row0.end(), a.begin());
    return a;
}

template <typename T>
void largestInColumn3()
{
    // y0 = 2 x3 + x4, y1 = 4 x1, y2 = 8 x2, y3 = 16 x0, y4 = x4: powers of two, so all is exact.
    const Matrix a = {0,  0, 0, 2, 1, //
                      0,  4, 0, 0, 0, //
                      0,  0, 8, 0, 0, //
                      16, 0, 0, 0, 0, //
                      0,  0, 0, 0, 1};
    const Matrix inverse = {0,   0,    0,     0.0625, 0,    //
                            0,   0.25, 0,     0,      0,    //
                            0,   0,    0.125, 0,      0,    //
                            0.5, 0,    0,     0,      -0.5, //
                            0,   0,    0,     0,      1};
    const std::vector<T> expected(inverse.begin(), inverse.end());
    eachMember(Class::scalar, [&](const Member& m) {
        const Result<T> r = invert<T>(m, a, 5);
        EXPECT_EQ(r.status, tenkOk) << m.name<T>(5);
        EXPECT_EQ(r.inverse, expected) << m.name<T>(5);
    });
}
TEST(InvertSmall, OfScalarOrder5ExchangesTheRowsOfTheResultForAPivotInColumn3)
{
    largestInColumn3<float>();
    largestInColumn3<double>();
}

TEST(InvertSmall, OfScalarMembersTakesTheLargestOfRow0TheFirstOfEquals)
{
    exchanges<float>(Class::scalar, numbersWithRow0(5, {0, 1, 2, 7, 3}), 5, 0, 3);
    exchanges<double>(Class::scalar, numbersWithRow0(5, {0.5, 2, 7, -7, 7}), 5, 0, 2);
    exchanges<double>(Class::scalar, numbersWithRow0(6, {0, 1, 2, 3, -7, 9}), 6, 0, 4);
}

TEST(InvertSmall, OfScalarMembersNeverChoosesANaN)
{
    // With its column in the first block the determinant would be a NaN and pass.
    expectSingular<float>(Class::scalar, numbersWithRow0(5, {0, 0, aNaN, 0, 0}));
    expectSingular<double>(Class::scalar, numbersWithRow0(6, {0, 0, 0, 0, aNaN, 0}));
    // In front it is not beaten.
    expectRegular<float>(Class::scalar, numbersWithRow0(5, {aNaN, 0, 0, 0, 0}));
}

TEST(InvertSmall, OfPacked32fOrder5TakesTheLastOfEqualsAmongColumns0To3)
{
    // Something below the band in front, so that the search is on.
    exchanges<float>(Class::packed, numbersWithRow0(5, {0, 1, 2, 7, 3}), 5, 0, 3);
    exchanges<float>(Class::packed, numbersWithRow0(5, {0, 7, -7, 3, 7}), 5, 0, 2);
    exchanges<float>(Class::packed, numbersWithRow0(5, {0, 7, 2, 7, 7}), 5, 0, 3);
    exchanges<float>(Class::packed, numbersWithRow0(5, {0, 7, 2, 3, 8}), 5, 0, 4);
    // The pivots are told apart by their rounding.
    const Matrix a = numbersWithRow0(5, {0, 7, -7, 3, 7});
    const Member m{"m", ""};
    EXPECT_NE(invert<float>(m, a, 5).inverse,
              withRowsExchanged(invert<float>(m, withColumnsExchanged(a, 5, 0, 1), 5).inverse, 5, 0, 1));
}

TEST(InvertSmall, OfPacked32fOrder5StaysWithAFirstElementOutsideTheBand)
{
    // 1e-3 is a poor pivot, and taken nevertheless: with row 0 = (1e-3, 1, ...) the factors are large.
    Matrix a = diagonal({1e-3, 1, 1, 1, 1});
    a[1] = 7;
    const Member m{"m", ""};
    const float d = static_cast<float>(1e-3), x = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
    EXPECT_EQ(invert<float>(m, a, 5).inverse[0], (x + x) - (d * (x * x)));
}

TEST(InvertSmall, OfPacked32fOrder6SearchesTwice)
{
    // Row 0 takes column 3. What is left of row 1 is row 1 itself where row 0 has zeros, and takes column 4.
    Matrix a = numbersWithRow0(6, {0, 0, 0, 7, 0, 0});
    const double row1[6] = {1, 2, -3, 0, 5, 4};
    std::copy(row1, row1 + 6, a.begin() + 6);
    a[3 * 6 + 0] = 4, a[4 * 6 + 1] = 4; // where columns 0 and 1 go
    eachMember(Class::packed, [&](const Member& m) {
        const Matrix b = withColumnsExchanged(withColumnsExchanged(a, 6, 0, 3), 6, 1, 4);
        const Result<float> direct = invert<float>(m, b, 6), searched = invert<float>(m, a, 6);
        EXPECT_EQ(searched.status, tenkOk);
        EXPECT_EQ(searched.inverse, withRowsExchanged(withRowsExchanged(direct.inverse, 6, 1, 4), 6, 0, 3));
    });
}

TEST(InvertSmall, OfPacked64fTakesTheFirstPairFromTheRight)
{
    for (const std::size_t n : {5U, 6U}) {
        // Columns 0 and 1 are equal in rows 0 and 1; the last pair of columns will do, and is no larger than
        // others.
        std::mt19937 random(29);
        Matrix a = wellConditioned(n, random);
        a[0] = a[1] = a[n] = a[n + 1] = 8;
        a[n - 1] = 0.25, a[n - 2] = 0, a[2 * n - 1] = 0, a[2 * n - 2] = 0.25;
        const std::size_t e = n - 1, d = n - 2;
        eachMember(Class::packed, [&](const Member& m) {
            const Matrix b = withColumnsExchanged(withColumnsExchanged(a, n, 0, e), n, 1, d);
            const Result<double> direct = invert<double>(m, b, n), searched = invert<double>(m, a, n);
            EXPECT_EQ(searched.status, tenkOk);
            EXPECT_EQ(searched.inverse,
                      withRowsExchanged(withRowsExchanged(direct.inverse, n, 1, d), n, 0, e));
        });
    }
}

TEST(InvertSmall, OfPacked64fLosesAColumnThatIsPairedWithColumn0)
{
    // Rows 0 and 1 have but one pair of columns, (0, e), for which the four assignments leave 1, 0 in front
    // and 0 in the place of e. Rows 1 and e of the block result both go to row 0, and row e is not written.
    for (const std::size_t n : {5U, 6U})
        for (std::size_t e = 2; e < n; ++e)
            eachMember(Class::packed, [&](const Member& m) {
                Matrix a = diagonal(Matrix(n, 1));
                a[n + 1] = 0, a[n + e] = 1, a[e * n + e] = 0, a[e * n + 1] = 1; // rows 1 and e exchanged
                const Result<double> r = invert<double>(m, a, n);
                EXPECT_EQ(r.status, tenkOk);
                for (std::size_t i = 0; i < n; ++i)
                    for (std::size_t j = 0; j < n; ++j)
                        EXPECT_EQ(r.at(n, i, j) == untouched, i == e) << m.name<double>(n) << e << i << j;
                EXPECT_FALSE(std::isfinite(r.at(n, 0, 0)));
            });
}

// ---------------------------------------------------------------------------------------------------------------
// Arguments
// ---------------------------------------------------------------------------------------------------------------

TEST(InvertSmall, TestsPointersThenTablesThenCount)
{
    double x = 1, y = 9;
    EXPECT_EQ(tenkInvert_ma_64f_3x3(nullptr, 0, 0, &y, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_64f_3x3(&x, 0, 0, nullptr, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_64f_3x3(&x, 0, 0, &y, 0, 0, 0), tenkOk);
    for (std::size_t n = 3; n <= 6; ++n)
        for (const std::string layout : {"_P", "_PS2"})
            for (const bool array : {false, true})
                for (const bool source : {false, true})
                    for (const std::size_t null : {std::size_t{0}, n * n - 1}) {
                        if (layout == "_PS2" && !array)
                            continue;
                        Objects<double> src(layout, n, 1), dst(layout, n, 1);
                        dst.fill(untouched);
                        (source ? src : dst).entries[null] = nullptr;
                        Arguments arguments;
                        src.addTo(arguments, array);
                        dst.addTo(arguments, array);
                        if (array)
                            arguments.push_back(word(0));
                        const std::string name = Member{array ? "ma" : "m", layout}.name<double>(n);
                        EXPECT_EQ(callByName(name, arguments), tenkNullPointerError) << name;
                        EXPECT_TRUE(dst.is(0, untouched)) << name;
                    }
    EXPECT_EQ(y, 9.0);
}

TEST(InvertSmall, OfAListTestsBothEntriesObjectByObject)
{
    for (std::size_t n = 3; n <= 6; ++n)
        for (const std::string layout : {"_L", "_LS2"})
            for (const bool source : {false, true}) {
                Objects<float> src(layout, n, 3), dst(layout, n, 3);
                for (std::size_t k = 0; k < 3; ++k)
                    src.set(k, diagonal(Matrix(n, 4)));
                dst.fill(static_cast<float>(untouched));
                (source ? src : dst).entries[1] = nullptr;
                Arguments arguments;
                src.addTo(arguments, true);
                dst.addTo(arguments, true);
                Arguments none = arguments;
                arguments.push_back(word(3));
                none.push_back(word(0));
                const std::string name = Member{"ma", layout}.name<float>(n);
                EXPECT_EQ(callByName(name, arguments), tenkNullPointerError) << name;
                EXPECT_NEAR(dst.at(0, 2, 2), 0.25, 1e-6) << name;
                EXPECT_TRUE(dst.is(1, static_cast<float>(untouched))) << name;
                EXPECT_TRUE(dst.is(2, static_cast<float>(untouched))) << name;
                EXPECT_EQ(callByName(name, none), tenkOk) << name;
            }
}

// ---------------------------------------------------------------------------------------------------------------
// Against more precision
// ---------------------------------------------------------------------------------------------------------------

// The packed members take the first element or block as it stands: the smaller it is, the more they lose.
double growth(const Matrix& a, std::size_t n)
{
    const double first = std::fabs(a[0]), block = std::fabs(a[0] * a[n + 1] - a[1] * a[n]);
    const double smallest =
        n <= 4 ? 1 : std::min({1.0, first < 1e-7 ? 1.0 : first, block < 1e-7 ? 1.0 : block});
    return 1 / (smallest * smallest);
}

template <typename T>
void isClose()
{
    std::mt19937 random(31);
    for (std::size_t n = 3; n <= 6; ++n)
        for (auto kind : {wellConditioned, permuted, graded, leadingZeros, nearlySingular})
            for (int turn = 0; turn < 20; ++turn) {
                const Matrix a = kind(n, random);
                const ExactInverse exact(a, n);
                const auto inverse = [&](std::size_t i, std::size_t j) {
                    return std::fabs(static_cast<double>(exact.inverse[i * n + j]));
                };
                double bound = 0; // the largest element of |inverse| |source| |inverse|
                for (std::size_t e = 0; e < n * n; ++e) {
                    double sum = 0;
                    for (std::size_t i = 0; i < n; ++i)
                        for (std::size_t j = 0; j < n; ++j)
                            sum += inverse(e / n, i) * std::fabs(a[i * n + j]) * inverse(j, e % n);
                    bound = std::max(bound, sum);
                }
                bound *= 16 * static_cast<double>(n) * growth(a, n) * std::numeric_limits<T>::epsilon();
                eachMember(Class::both, [&](const Member& m) {
                    const Result<T> r = invert<T>(m, a, n);
                    ASSERT_EQ(r.status, tenkOk) << m.name<T>(n);
                    for (std::size_t e = 0; e < n * n; ++e) {
                        const Exact error = absolute(static_cast<Exact>(r.inverse[e]) - exact.inverse[e]);
                        EXPECT_LE(static_cast<double>(error), bound) << m.name<T>(n);
                    }
                });
            }
}
TEST(InvertSmall, Of32fIsCloseToTheExactInverse)
{
    isClose<float>();
}
TEST(InvertSmall, Of64fIsCloseToTheExactInverse)
{
    isClose<double>();
}

} // namespace
