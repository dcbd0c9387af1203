// Invert of general order: edge cases by hand, and properties.
#include "exact.h"
#include "square.h"
#include "tenk.h"

namespace {

using namespace square;

template <typename T>
struct Result
{
    std::int32_t status;
    std::vector<T> inverse;
};

// The inverse by the single member in Standard layout. All other members must agree to the bit, in a batch on
// the middle one of three objects.
template <typename T>
Result<T> inverted(const Matrix& values, std::size_t n)
{
    Result<T> first{1, {}};
    Matrix identity(n * n);
    for (std::size_t i = 0; i < n; ++i)
        identity[i * n + i] = 1;
    for (const std::string code : {"m", "ma"})
        for (const std::string& layout : layoutsOf(code)) {
            const bool array = code == "ma";
            Objects<T> src(layout, n, array ? 3 : 1), dst(layout, n, array ? 3 : 1);
            for (std::size_t k = 0; array && k < 3; ++k)
                src.set(k, identity);
            src.set(array ? 1 : 0, values);
            dst.fill(T(-9));
            std::vector<char> buffer(n * n * sizeof(T) + 4 * n + 1);
            Arguments arguments;
            src.addTo(arguments, array);
            arguments.insert(arguments.end(),
                             {word(static_cast<std::uint32_t>(n)), pointer(buffer.data() + 1)});
            dst.addTo(arguments, array);
            if (array)
                arguments.push_back(word(3));
            const std::string name = "tenkInvert_" + code + "_" + typeName<T>() + layout;
            const std::int32_t status = callByName(name, arguments);
            const std::vector<T> inverse = dst.object(array ? 1 : 0);
            if (code == "m" && layout.empty())
                first = {status, inverse};
            EXPECT_EQ(status, first.status) << name;
            for (std::size_t e = 0; e < n * n; ++e)
                EXPECT_TRUE(same(inverse[e], first.inverse[e])) << name << " " << e;
            EXPECT_TRUE(dst.gapsAreUntouched()) << name;
            if (status == tenkSingularError) {
                EXPECT_TRUE(dst.is(array ? 1 : 0, T(-9))) << name;
            }
            if (array) { // the objects before and behind
                const std::vector<T> one(identity.begin(), identity.end());
                EXPECT_EQ(dst.object(0), one) << name;
                EXPECT_EQ(dst.object(2), status == tenkOk ? one : std::vector<T>(n * n, T(-9))) << name;
            }
        }
    return first;
}

template <typename T>
void expectInverse(const Matrix& values, std::size_t n, const std::vector<T>& expected)
{
    const Result<T> r = inverted<T>(values, n);
    EXPECT_EQ(r.status, tenkOk);
    EXPECT_EQ(r.inverse, expected);
}

template <typename T>
void expectSingular(const Matrix& values, std::size_t n)
{
    EXPECT_EQ(inverted<T>(values, n).status, tenkSingularError);
}

TEST(Invert, OfOrderOneIsTheReciprocalAboveTheFloor)
{
    expectInverse<float>({-4}, 1, {-0.25F});
    expectInverse<double>({3}, 1, {1.0 / 3});
    expectSingular<float>({0x1p-23}, 1);
    expectInverse<float>({0x1.000002p-23}, 1, {1 / 0x1.000002p-23F});
    expectSingular<double>({-0x1p-52}, 1);
    expectInverse<double>({-0x1.0000000000001p-52}, 1, {-1 / 0x1.0000000000001p-52});
    expectSingular<float>({aNaN}, 1);
}

TEST(Invert, OfAFewMatricesByHand)
{
    expectInverse<float>({2, 1, 1, 1}, 2, {1, -1, -1, 2});
    expectInverse<double>({0, 1, 1, 0}, 2, {-0.0, 1, 1, -0.0});
    expectInverse<double>({2, 0, 0, 0, 4, 0, 0, 1, 8}, 3, {0.5, 0, 0, 0, 0.25, 0, 0, -0.03125, 0.125});
}

TEST(Invert, CountsAMinorBelowTheFloorAsZero)
{
    expectInverse<float>({1, 1e-8, 0, 1}, 2, {1, 0, 0, 1});
    expectInverse<double>({1, 1e-8, 0, 1}, 2, {1, -1e-8, 0, 1});
    // The minor without row and column 2 has the last pivot 2^-24; element (2, 2) would be -2^-24.
    expectInverse<float>({1, 0, 0, 0, 0x1p-24, 1, 0, 1, 0}, 3, {1, 0, 0, 0, 0, 1, 0, 1, 0});
}

TEST(Invert, OfAMinorTakesAPivotAtTheFloorAndNotTheLastOne)
{
    // Determinant 2^-23, first pivot at the floor.
    expectInverse<float>({0x1p-23, 0, 0, 1}, 2, {0x1p23F, 0, 0, 0});
    expectInverse<float>({0x1.000002p-23, 0, 0, 1}, 2, {1 / 0x1.000002p-23F, 0, 0, 1});
    expectInverse<double>({0x1p-52, 0, 0, 1}, 2, {0x1p52, 0, 0, 0});
    // The minor without row and column 2 has the pivots 2^-23 and 1; the one without row and column 1 as
    // well.
    const float f = 0x1p-23F;
    expectInverse<float>({0x1p-23, 0, 0, 0, 1, 0, 0, 0, 1}, 3, {1 / f, 0, 0, 0, 1, 0, 0, 0, 1});
    // And without row and column 0 the pivots 1 and 2^-22, whose last one would fail at 2^-23.
    expectInverse<float>({1, 0, 0, 0, 1, 0, 0, 0, 0x1p-22}, 3, {1, 0, 0, 0, 1, 0, 0, 0, 0x1p22F});
}

TEST(Invert, OfASingularMatrixLeavesTheDestination)
{
    expectSingular<float>({0, 0, 0, 1, 2, 3, 4, 5, 6}, 3);
    expectSingular<double>({1, 2, 1, 2}, 2);
    expectSingular<float>({1e-8, 0, 0, 0, 1e8, 0, 0, 0, 1}, 3); // the determinant is 1
    expectSingular<float>({1, 0, 0, 0x1p-23}, 2);
    expectSingular<double>({1, 0, 0, 0x1p-52}, 2);
    expectSingular<float>({0x1.fffffep-24, 0, 0, 1}, 2);
    expectSingular<double>({0x1.fffffffffffffp-53, 0, 0, 1}, 2);
    // A row of zeros in any place.
    for (std::size_t row = 0; row < 3; ++row) {
        Matrix a = {2, 1, 1, 1, 3, 1, 1, 1, 4};
        std::fill_n(a.begin() + static_cast<std::ptrdiff_t>(row * 3), 3, 0.0);
        expectSingular<float>(a, 3);
        expectSingular<double>(a, 3);
    }
}

TEST(Invert, OfAMatrixWithANaNInAPivotIsSingular)
{
    for (std::size_t p = 0; p < 3; ++p) {
        Matrix a = {1, 0, 0, 0, 1, 0, 0, 0, 1};
        a[4 * p] = aNaN;
        expectSingular<float>(a, 3);
        expectSingular<double>(a, 3);
    }
    // It spreads from below the first pivot to the last, 3 - NaN x 2.
    expectSingular<float>({1, 2, aNaN, 3}, 2);
    expectSingular<double>({1, 2, aNaN, 3}, 2);
    // In front it is not beaten.
    expectSingular<float>({aNaN, 1, 1, 1}, 2);
    expectSingular<double>({aNaN, 1, 1, 1}, 2);
}

TEST(Invert, OfTwoEqualRowsOrColumnsIsSingular)
{
    // Exact with pivots that are powers of two: see the determinants.
    const Matrix rows = {4, 8, 2, 6, 1, 3, 5, 7, 4, 8, 2, 6, 2, 6, 1, 5};
    expectSingular<float>(rows, 4);
    expectSingular<double>(rows, 4);
    const Matrix columns = {4, 4, 2, 2, 2, 1, 4, 4, 3};
    expectSingular<float>(columns, 3);
    expectSingular<double>(columns, 3);
}

TEST(Invert, OfAnInfinitePivotMultipliesByZero)
{
    // The determinant is infinite, its reciprocal 0, and 0 x inf a NaN.
    const auto check = [](const auto& r) {
        EXPECT_EQ(r.status, tenkOk);
        for (const std::size_t e : {0U, 1U, 2U})
            EXPECT_EQ(r.inverse[e], 0) << e;
        EXPECT_TRUE(std::isnan(r.inverse[3]));
    };
    check(inverted<float>({infinity, 1, 1, 1}, 2));
    check(inverted<double>({infinity, 1, 1, 1}, 2));
}

TEST(Invert, Of64fComparesWithAMaximumRoundedToBinary32)
{
    const double a = 1 + 0x1p-30, b = 1 + 0x1p-40;
    EXPECT_EQ(inverted<double>({a, 0, b, 0x1p-52}, 2).status, tenkOk); // row 1 is the pivot
    expectSingular<double>({b, 0x1p-52, a, 0}, 2);
}

TEST(Invert, Of64fComparesInMinorsToo)
{
    // The minor without row and column 0 is (a, 0; b, 2^-52). With row 1 of it as the pivot the last one is
    // above the floor, with row 0 it would be 2^-52 and the minor 0.
    const double a = 1 + 0x1p-30, b = 1 + 0x1p-40;
    const Result<double> r = inverted<double>({1, 0, 0, 0, a, 0, 0, b, 0x1p-52}, 3);
    EXPECT_EQ(r.status, tenkOk);
    EXPECT_EQ(r.inverse[0], 1.0);
}

TEST(Invert, TestsTheLastPivotOfAMinorAfterAFailedOne)
{
    // diag(1, 1, inf): the reciprocal of the determinant is 0. Without row 1 and column 0 the first pivot
    // fails, and the infinite last one makes a NaN of the zero; without row 2 and column 0 the last one is 0.
    for (const auto& r : {inverted<double>({1, 0, 0, 0, 1, 0, 0, 0, infinity}, 3).inverse}) {
        EXPECT_TRUE(std::isnan(r[1]));
        EXPECT_TRUE(std::isnan(r[3]));
        EXPECT_EQ(r[2], 0);
        EXPECT_EQ(r[6], 0);
        EXPECT_EQ(r[8], 0);
    }
    EXPECT_TRUE(std::isnan(inverted<float>({1, 0, 0, 0, 1, 0, 0, 0, infinity}, 3).inverse[1]));
}

TEST(Invert, Of64fKeepsDeterminantAndReciprocalWide)
{
    // Element (0, 0) of diag(a, b) is b (1 / (a b)): with 64 bits that is the rounded 1 / a, with 53 it often
    // is not.
    unsigned differ = 0;
    for (int i = 3; i < 60; i += 2)
        for (int j = 3; j < 60; j += 2) {
            const double a = 1.0 / i, b = 1.0 / j;
            const long double determinant = static_cast<long double>(a) * b;
            const auto expected = static_cast<double>(b * (1.0L / determinant));
            differ += expected != b * (1 / (a * b));
            EXPECT_EQ(inverted<double>({a, 0, 0, b}, 2).inverse[0], expected);
        }
    EXPECT_GT(differ, 0U);
}

TEST(Invert, Of32fRoundsDeterminantAndReciprocal)
{
    unsigned differ = 0;
    for (int i = 3; i < 60; i += 2)
        for (int j = 3; j < 60; j += 2) {
            const float a = 1.0F / static_cast<float>(i), b = 1.0F / static_cast<float>(j);
            const float determinant = a * b, reciprocal = 1 / determinant;
            differ += b * reciprocal != static_cast<float>(b * (1.0L / (static_cast<long double>(a) * b)));
            EXPECT_EQ(inverted<float>({a, 0, 0, b}, 2).inverse[0], b * reciprocal);
        }
    EXPECT_GT(differ, 0U);
}

TEST(Invert, TestsPointersThenOrderThenTablesThenCount)
{
    float x = 1, y = 9;
    char buffer[64];
    EXPECT_EQ(tenkInvert_ma_32f(nullptr, 0, 0, 0, buffer, &y, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_32f(&x, 0, 0, 0, nullptr, &y, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_32f(&x, 0, 0, 0, buffer, nullptr, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_32f(&x, 0, 0, 0, buffer, &y, 0, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkInvert_ma_32f(&x, 0, 0, 1, buffer, &y, 0, 0, 0), tenkOk);
    const float* src[4] = {&x, &x, &x, &x};
    float* dst[4] = {&y, &y, &y, nullptr};
    EXPECT_EQ(tenkInvert_ma_32f_P(src, 0, 0, buffer, dst, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkInvert_ma_32f_P(src, 0, 2, buffer, dst, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_ma_32f_PS2(src, 0, 4, 2, buffer, dst, 0, 4, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_m_32f_P(src, 0, 2, buffer, dst, 0), tenkNullPointerError);
    dst[3] = &y;
    src[0] = nullptr;
    EXPECT_EQ(tenkInvert_ma_32f_P(src, 0, 2, buffer, dst, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkInvert_m_32f_P(src, 0, 2, buffer, dst, 0), tenkNullPointerError);
    EXPECT_EQ(y, 9.0F);
}

TEST(Invert, OfOneMatrixBehindTablesTestsBothBeforeItDecidesOnSingularity)
{
    double zero = 0, y = 9;
    char buffer[4 * 8 + 2 * 4];
    const double* src[4] = {&zero, &zero, &zero, &zero};
    double* dst[4] = {&y, &y, &y, nullptr};
    EXPECT_EQ(tenkInvert_m_64f_P(src, 0, 2, buffer, dst, 0), tenkNullPointerError);
    dst[3] = &y;
    EXPECT_EQ(tenkInvert_m_64f_P(src, 0, 2, buffer, dst, 0), tenkSingularError);
    EXPECT_EQ(y, 9.0);
}

TEST(Invert, OfAListTestsBothEntriesObjectByObject)
{
    const float m[4] = {2, 0, 0, 4};
    char buffer[4 * 4 + 2 * 4];
    for (const bool source : {false, true}) {
        float to[3][4] = {{9, 9, 9, 9}, {9, 9, 9, 9}, {9, 9, 9, 9}};
        const float* src[3] = {m, source ? nullptr : m, m};
        float* dst[3] = {to[0], source ? to[1] : nullptr, to[2]};
        EXPECT_EQ(tenkInvert_ma_32f_L(src, 0, 8, 2, buffer, dst, 0, 8, 3), tenkNullPointerError);
        EXPECT_EQ(to[0][0], 0.5F);
        EXPECT_EQ(to[0][3], 0.25F);
        EXPECT_EQ(to[1][0], 9.0F);
        EXPECT_EQ(to[2][0], 9.0F);
    }
}

// An element is a cofactor over the determinant, each of them that of a matrix with a small relative change E
// of its elements. The quotient is off by |inverse| |E| |inverse| and, since the two changes are not the same
// one, by the element itself times the trace of |inverse| |E|, twice.
template <typename T>
void isClose()
{
    std::mt19937 random(19);
    for (std::size_t n = 1; n <= 8; ++n)
        for (auto kind : {wellConditioned, permuted, graded, leadingZeros, nearlySingular})
            for (int turn = 0; turn < 10; ++turn) {
                if (n == 1 && (kind == leadingZeros || kind == nearlySingular))
                    continue;
                const Matrix a = kind(n, random);
                const ExactInverse exact(a, n);
                const Result<T> r = inverted<T>(a, n);
                ASSERT_EQ(r.status, tenkOk);
                const auto inverse = [&](std::size_t i, std::size_t j) {
                    return std::fabs(static_cast<double>(exact.inverse[i * n + j]));
                };
                double trace = 0;
                for (std::size_t i = 0; i < n; ++i)
                    for (std::size_t j = 0; j < n; ++j)
                        trace += inverse(i, j) * std::fabs(a[j * n + i]);
                for (std::size_t e = 0; e < n * n; ++e) {
                    double bound = 2 * inverse(e / n, e % n) * trace;
                    for (std::size_t i = 0; i < n; ++i)
                        for (std::size_t j = 0; j < n; ++j)
                            bound += inverse(e / n, i) * std::fabs(a[i * n + j]) * inverse(j, e % n);
                    const double error =
                        std::fabs(static_cast<double>(static_cast<Exact>(r.inverse[e]) - exact.inverse[e]));
                    EXPECT_LE(error, 8 * static_cast<double>(n) * std::numeric_limits<T>::epsilon() * bound +
                                         std::numeric_limits<T>::epsilon());
                }
            }
}
TEST(Invert, Of32fIsCloseToTheExactInverse)
{
    isClose<float>();
}
TEST(Invert, Of64fIsCloseToTheExactInverse)
{
    isClose<double>();
}

} // namespace
