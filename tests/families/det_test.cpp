// Det of general order: edge cases by hand, and properties.
#include "exact.h"
#include "square.h"
#include "tenk.h"

#include <cfenv>

namespace {

using namespace square;

// The determinant of the single matrix in Standard layout, of one batch object in every other layout; all
// must agree.
template <typename T>
T determinant(const Matrix& values, std::size_t n)
{
    T first{};
    for (const std::string code : {"m", "ma"})
        for (const std::string& layout : layoutsOf(code)) {
            Objects<T> src(layout, n, 1);
            src.set(0, values);
            std::vector<char> buffer(n * n * sizeof(T) + 4 * n + 1);
            T dst[2] = {T(-5), T(-6)};
            Arguments arguments;
            src.addTo(arguments, code == "ma");
            arguments.insert(arguments.end(),
                             {word(static_cast<std::uint32_t>(n)), pointer(buffer.data() + 1), pointer(dst)});
            if (code == "ma")
                arguments.push_back(word(1));
            const std::string name = "tenkDet_" + code + "_" + typeName<T>() + layout;
            EXPECT_EQ(callByName(name, arguments), tenkOk) << name;
            EXPECT_EQ(dst[1], T(-6)) << name;
            if (code == "m" && layout.empty())
                first = dst[0];
            EXPECT_TRUE(same(first, dst[0])) << name << ": " << dst[0] << ", not " << first;
        }
    return first;
}

TEST(Det, OfOrderOneIsTheElementAboveTheFloor)
{
    EXPECT_EQ(determinant<float>({-3}, 1), -3.0F);
    EXPECT_EQ(determinant<float>({1e-8}, 1), 0.0F);
    EXPECT_EQ(determinant<float>({0x1p-23}, 1), 0.0F);
    EXPECT_EQ(determinant<float>({-0x1p-23}, 1), 0.0F);
    EXPECT_EQ(determinant<float>({0x1.000002p-23}, 1), 0x1.000002p-23F);
    EXPECT_EQ(determinant<double>({0x1p-52}, 1), 0.0);
    EXPECT_EQ(determinant<double>({0x1.0000000000001p-52}, 1), 0x1.0000000000001p-52);
    EXPECT_EQ(determinant<double>({1e-8}, 1), 1e-8);
}

TEST(Det, OfTheIdentityWithItsRowsExchangedIsMinusOne)
{
    EXPECT_EQ(determinant<float>({0, 1, 1, 0}, 2), -1.0F);
    EXPECT_EQ(determinant<double>({0, 1, 1, 0}, 2), -1.0);
    EXPECT_EQ(determinant<double>({0, 1, 0, 0, 0, 1, 1, 0, 0}, 3), 1.0);
}

TEST(Det, TakesAnEarlierPivotAtTheFloorAndNotTheLastOne)
{
    EXPECT_EQ(determinant<float>({0x1p-23, 0, 0, 1}, 2), 0x1p-23F);
    EXPECT_EQ(determinant<float>({0x1.fffffep-24, 0, 0, 1}, 2), 0.0F);
    EXPECT_EQ(determinant<float>({1, 0, 0, 0x1p-23}, 2), 0.0F);
    EXPECT_EQ(determinant<float>({1, 0, 0, 0x1.fffffep-24}, 2), 0.0F);
    EXPECT_EQ(determinant<float>({0x1.000002p-23, 0, 0, 1}, 2), 0x1.000002p-23F);
    EXPECT_EQ(determinant<float>({1, 0, 0, 0x1.000002p-23}, 2), 0x1.000002p-23F);
    EXPECT_EQ(determinant<double>({0x1p-52, 0, 0, 1}, 2), 0x1p-52);
    EXPECT_EQ(determinant<double>({0x1.fffffffffffffp-53, 0, 0, 1}, 2), 0.0);
    EXPECT_EQ(determinant<double>({1, 0, 0, 0x1p-52}, 2), 0.0);
    EXPECT_EQ(determinant<double>({1, 0, 0, 0x1.fffffffffffffp-53}, 2), 0.0);
    EXPECT_EQ(determinant<double>({1, 0, 0, 0x1.0000000000001p-52}, 2), 0x1.0000000000001p-52);
}

TEST(Det, OfEqualRowsIsZero)
{
    EXPECT_EQ(determinant<float>({1, 2, 3, 1, 2, 3, 1, 2, 3}, 3), 0.0F);
    EXPECT_EQ(determinant<double>({1, 2, 3, 1, 2, 3, 1, 2, 3}, 3), 0.0);
}

TEST(Det, OfTwoEqualRowsOrColumnsIsZero)
{
    // Pivots are 4 and 2 in row 3; rows 1 and 3 become (1, 4.5, 5.5) and (2, 0, 2), and row 1 (4.5, 4.5). All
    // of row 2 is 0 by then.
    const Matrix rows = {4, 8, 2, 6, 1, 3, 5, 7, 4, 8, 2, 6, 2, 6, 1, 5};
    EXPECT_EQ(determinant<float>(rows, 4), 0.0F);
    EXPECT_EQ(determinant<double>(rows, 4), 0.0);
    // The second column is that of the pivot, 4: below it are 0 and, in column 2, 1 - 0.5 x 2 and 3 - 2.
    const Matrix columns = {4, 4, 2, 2, 2, 1, 4, 4, 3};
    EXPECT_EQ(determinant<float>(columns, 3), 0.0F);
    EXPECT_EQ(determinant<double>(columns, 3), 0.0);
}

TEST(Det, LetsAnInfinitePivotThrough)
{
    // The factor is 0, what is below the pivot stays.
    EXPECT_EQ(determinant<float>({infinity, 1, 1, 1}, 2), static_cast<float>(infinity));
    EXPECT_EQ(determinant<double>({infinity, 1, 1, 1}, 2), infinity);
    EXPECT_EQ(determinant<float>({1, 1, infinity, 1}, 2), static_cast<float>(-infinity));
    EXPECT_EQ(determinant<double>({1, 1, -infinity, 1}, 2), infinity);
    // 0 x inf is a NaN, which is no last pivot.
    EXPECT_EQ(determinant<float>({infinity, infinity, 1, 1}, 2), 0.0F);
    EXPECT_EQ(determinant<double>({infinity, infinity, 1, 1}, 2), 0.0);
}

TEST(Det, IsZeroWithANaNInAPivotOrBelowIt)
{
    EXPECT_EQ(determinant<float>({aNaN, 1, 2, 3}, 2), 0.0F); // never beaten by the 2 below it
    EXPECT_EQ(determinant<double>({aNaN, 1, 2, 3}, 2), 0.0);
    EXPECT_EQ(determinant<float>({1, 2, 3, aNaN}, 2), 0.0F);
    EXPECT_EQ(determinant<float>({1, 2, aNaN, 3}, 2), 0.0F); // spreads to the last pivot
    EXPECT_EQ(determinant<double>({1, 2, aNaN, 3}, 2), 0.0);
}

// Column 0 is 1, NaN, 2. Whatever is done the result is 0, for the row with the NaN ends as a pivot; but with
// the pivot 2 the second element of row 0 becomes x - y / 2, and only then does that one overflow which
// should: with the pivot 1 it is y - 2 x, twice as large, and with the NaN there is no update at all.
template <typename T>
bool overflowsBesideANaN(double x, double y)
{
    constexpr T max = std::numeric_limits<T>::max();
    const T m[9] = {1, static_cast<T>(x * max), 0, static_cast<T>(aNaN), 1, 0, 2, static_cast<T>(y * max), 1};
    char buffer[3 * 3 * sizeof(T) + 3 * 4];
    T dst = 9;
    const Arguments arguments = {pointer(m), word(3 * sizeof(T)), word(3), pointer(buffer), pointer(&dst)};
    const support::Outcome outcome =
        support::call(support::exportedAddress("tenkDet_m_" + typeName<T>()), arguments);
    EXPECT_EQ(outcome.status, tenkOk);
    EXPECT_EQ(dst, T(0));
    constexpr std::uint32_t overflow = 8; // in either register of flags
    return ((outcome.raised | outcome.x87Raised) & overflow) != 0;
}
TEST(Det, PassesOverANaNInTheSearch)
{
    EXPECT_TRUE(overflowsBesideANaN<float>(-0.75, 0.75)); // -1.125
    EXPECT_FALSE(overflowsBesideANaN<float>(-0.5, 0.5));  // -0.75; 1.5 with the pivot 1
    EXPECT_TRUE(overflowsBesideANaN<double>(-0.75, 0.75));
    EXPECT_FALSE(overflowsBesideANaN<double>(-0.5, 0.5));
}

TEST(Det, Of64fComparesWithAMaximumRoundedToBinary32)
{
    // 1 + 2^-30 rounds to 1, which 1 + 2^-40 beats. With row 1 as the pivot the last pivot is -f 2^-52 for an
    // f above 1; with row 0 it would be 2^-52, which is no pivot.
    const double a = 1 + 0x1p-30, b = 1 + 0x1p-40;
    const long double f = static_cast<long double>(a) * (1.0L / b);
    const auto last = static_cast<double>(-f * 0x1p-52L);
    const double value = determinant<double>({a, 0, b, 0x1p-52}, 2);
    EXPECT_EQ(value, b * -last);
    EXPECT_GT(value, 0x1p-52);
    // The same in the other order: the maximum is 1 again, and the larger of the two wins.
    EXPECT_EQ(determinant<double>({b, 0x1p-52, a, 0}, 2), 0.0);
}

TEST(Det, Of64fRoundsEachWinnerOfTheSearch)
{
    // Below a 0, a wins as 1, which b beats: the last pivot is -f 2^-52 for an f above 1. With row 1 as the
    // pivot it would be 2^-52, which is no pivot.
    const double a = 1 + 0x1p-30, b = 1 + 0x1p-40;
    const long double f = static_cast<long double>(a) * (1.0L / b);
    const auto last = static_cast<double>(-f * 0x1p-52L);
    EXPECT_EQ(determinant<double>({0, 1, 0, a, 0, 0, b, 0, 0x1p-52}, 3), b * last);
    EXPECT_NE(last, -0x1p-52);
}

TEST(Det, KeepsTheEarliestOfEqualPivots)
{
    // 1 - 2^25 rounds to -2^25 in binary32, so that rows 1 and 2 become equal below row 0. Below row 2 they
    // would not.
    EXPECT_EQ(determinant<float>({1, 0x1p25, 0x1p10, 1, 1, 0, 1, 0, 0}, 3), 0.0F);
    EXPECT_EQ(determinant<double>({1, 0x1p54, 0x1p10, 1, 1, 0, 1, 0, 0}, 3), 0.0);
    EXPECT_NE(determinant<float>({1, 0, 0, 1, 1, 0, 1, 0x1p25, 0x1p10}, 3), 0.0F);
    EXPECT_NE(determinant<double>({1, 0, 0, 1, 1, 0, 1, 0x1p54, 0x1p10}, 3), 0.0);
}

TEST(Det, Of64fKeepsAPivotWhoseMagnitudeRoundsToInfinity)
{
    // The last pivot is -10 x 2^-52 with row 0 as the pivot, 2^-52 with row 1.
    EXPECT_LT(determinant<double>({1e300, 0x1p-52, 1e301, 0}, 2), 0.0);
    EXPECT_EQ(determinant<double>({1e30, 0x1p-52, 1e31, 0}, 2), 0.0);
}

TEST(Det, Of64fRoundsTheMaximumInTheModeOfTheCaller)
{
    // 1 + 2^-40 rounds up to 1 + 2^-23, which 1 + 2^-30 does not beat.
    const double m[4] = {1 + 0x1p-40, 0x1p-52, 1 + 0x1p-30, 0};
    char buffer[2 * 2 * 8 + 2 * 4];
    double nearest = 9, upward = 9;
    EXPECT_EQ(tenkDet_m_64f(m, 16, 2, buffer, &nearest), tenkOk);
    std::fesetround(FE_UPWARD);
    EXPECT_EQ(tenkDet_m_64f(m, 16, 2, buffer, &upward), tenkOk);
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(nearest, 0.0);
    EXPECT_LT(upward, 0.0);
}

TEST(Det, Of32fRoundsProductAndSumOfAnUpdate)
{
    // (1 - 2^-13)^2 = 1 - 2^-12 + 2^-26 rounds to 1 - 2^-12 in binary32; in wider arithmetic -2^-16 would be
    // left.
    const double x = 1 - 0x1p-13;
    EXPECT_EQ(determinant<float>({1, 0x1p10 * x, x, 0x1p10 * (1 - 0x1p-12)}, 2), 0.0F);
}

TEST(Det, Of64fRoundsAnUpdateOnce)
{
    // (1 - 2^-28)^2 = 1 - 2^-27 + 2^-56; in binary64 the last term would be lost.
    const double x = 1 - 0x1p-28;
    EXPECT_EQ(determinant<double>({1, 0x1p20 * x, x, 0x1p20 * (1 - 0x1p-27)}, 2), -0x1p-36);
}

TEST(Det, Of32fRoundsTheReciprocalAndTheFactor)
{
    // 1 / 3 rounds to (1 + 2^-25) / 3, and three times that to 1. The wide unit would leave 2^60 x 2^-64.
    EXPECT_EQ(determinant<float>({3, 3 * 0x1p60, 1, 0x1p60}, 2), 0.0F);
}

TEST(Det, Of64fKeepsTheReciprocalAndTheFactorWide)
{
    // 1 / 3 of 64 bits is (1 + 2^-65) / 3, and three times that rounds to 1. One of 53 bits is (1 - 2^-54) /
    // 3 and would leave 2^-34 in the place of the last pivot.
    EXPECT_EQ(determinant<double>({3, 3 * 0x1p20, 1, 0x1p20}, 2), 0.0);
    // Here a reciprocal or a factor of 53 bits would leave -2^-33.
    EXPECT_EQ(determinant<double>({5, 5 * 0x1p20, 2, 0x1p21}, 2), 0.0);
}

TEST(Det, MultipliesTheSignIntoTheLastPivotAndThePivotsInOrder)
{
    // ((1 x 3 x 2^100) x 2^27) overflows before the last pivot, 2^-20, could make it smaller.
    EXPECT_EQ(determinant<float>({0x1p100, 0, 0, 0, 0x1p28, 0, 0, 0, 0x1p-20}, 3),
              static_cast<float>(infinity));
    EXPECT_EQ(determinant<float>({0, 0x1p100, 0, 0x1p28, 0, 0, 0, 0, 0x1p-20}, 3),
              static_cast<float>(-infinity));
}

template <typename T>
void goesOnAfterASingularMatrix()
{
    for (const std::string& layout : layoutsOf("ma")) {
        Objects<T> src(layout, 2, 3);
        src.set(0, {2, 0, 0, 3});
        src.set(1, {1, 1, 1, 1});
        src.set(2, {1, 2, 4, 4}); // below the pivot 4 there is 2 - 4 / 4
        char buffer[4 * sizeof(T) + 2 * 4];
        T dst[4] = {9, 9, 9, 9};
        Arguments arguments;
        src.addTo(arguments, true);
        arguments.insert(arguments.end(), {word(2), pointer(buffer), pointer(dst), word(3)});
        const std::string name = "tenkDet_ma_" + typeName<T>() + layout;
        EXPECT_EQ(callByName(name, arguments), tenkOk) << name;
        EXPECT_EQ(std::vector<T>(dst, dst + 4), (std::vector<T>{6, 0, -4, 9})) << name;
    }
}
TEST(Det, GoesOnAfterASingularMatrix)
{
    goesOnAfterASingularMatrix<float>();
    goesOnAfterASingularMatrix<double>();
}

TEST(Det, WritesOneBeforeItReads)
{
    double m[4] = {5, 0, 0, 3};
    char buffer[4 * 8 + 2 * 4];
    EXPECT_EQ(tenkDet_m_64f(m, 16, 2, buffer, &m[0]), tenkOk);
    EXPECT_EQ(m[0], 3.0);
}

TEST(Det, TestsPointersThenOrderThenTablesThenCount)
{
    float x = 1, dst = 9;
    char buffer[64];
    EXPECT_EQ(tenkDet_ma_32f(&x, 4, 4, 0, buffer, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_32f(&x, 4, 4, 0, nullptr, &dst, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_32f(nullptr, 4, 4, 0, buffer, &dst, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_32f(&x, 4, 4, 0, buffer, &dst, 0), tenkSizeError);
    EXPECT_EQ(tenkDet_ma_32f(&x, 4, 4, 3, buffer, &dst, 0), tenkOk);
    EXPECT_EQ(tenkDet_m_32f(&x, 4, 0, buffer, &dst), tenkSizeError);
    const float* table[4] = {&x, &x, &x, nullptr};
    EXPECT_EQ(tenkDet_ma_32f_P(table, 0, 0, buffer, &dst, 0), tenkSizeError);
    EXPECT_EQ(tenkDet_ma_32f_P(table, 0, 2, buffer, &dst, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_32f_PS2(table, 0, 4, 2, buffer, &dst, 1), tenkNullPointerError);
    EXPECT_EQ(dst, 9.0F);
}

TEST(Det, OfOneMatrixBehindATableMeetsANullEntryWithOneInTheResult)
{
    double x = 1, dst = 9;
    char buffer[4 * 8 + 2 * 4];
    const double* table[4] = {&x, &x, &x, nullptr};
    EXPECT_EQ(tenkDet_m_64f_P(table, 0, 2, buffer, &dst), tenkNullPointerError);
    EXPECT_EQ(dst, 1.0);
}

TEST(Det, OfAListMeetsANullEntryBeforeItTouchesItsResult)
{
    const float m[4] = {2, 0, 0, 3};
    float dst[3] = {9, 9, 9};
    char buffer[4 * 4 + 2 * 4];
    const float* list[3] = {m, nullptr, m};
    EXPECT_EQ(tenkDet_ma_32f_L(list, 0, 8, 2, buffer, dst, 3), tenkNullPointerError);
    EXPECT_EQ(dst[0], 6.0F);
    EXPECT_EQ(dst[1], 9.0F);
    EXPECT_EQ(dst[2], 9.0F);
    dst[0] = 9;
    EXPECT_EQ(tenkDet_ma_32f_LS2(list, 0, 8, 4, 2, buffer, dst, 1), tenkOk);
    EXPECT_EQ(dst[0], 6.0F);
}

// A backward stable elimination is off by at most a small multiple of the rounding unit times the product of
// the lengths of the rows.
template <typename T>
void determinantsAreClose()
{
    std::mt19937 random(7);
    for (std::size_t n = 1; n <= 9; ++n)
        for (auto kind : {wellConditioned, permuted, graded, leadingZeros, nearlySingular})
            for (int turn = 0; turn < 20; ++turn) {
                if (n == 1 && (kind == leadingZeros || kind == nearlySingular))
                    continue;
                const Matrix a = kind(n, random);
                double lengths = 1;
                for (std::size_t i = 0; i < n; ++i) {
                    double sum = 0;
                    for (std::size_t j = 0; j < n; ++j)
                        sum += a[i * n + j] * a[i * n + j];
                    lengths *= std::sqrt(sum);
                }
                const auto value = static_cast<double>(determinant<T>(a, n));
                const double error = std::fabs(value - static_cast<double>(ExactInverse(a, n).determinant));
                EXPECT_LE(error, static_cast<double>(n * n) * std::numeric_limits<T>::epsilon() * lengths)
                    << n;
            }
}
TEST(Det, Of32fIsCloseToTheExactValue)
{
    determinantsAreClose<float>();
}
TEST(Det, Of64fIsCloseToTheExactValue)
{
    determinantsAreClose<double>();
}

} // namespace
