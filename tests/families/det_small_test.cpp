// Det of orders 3 to 6: edge cases by hand, and properties.
#include "exact.h"
#include "square.h"
#include "tenk.h"

namespace {

using namespace square;

std::string sizeName(std::size_t n)
{
    return "_" + std::to_string(n) + "x" + std::to_string(n);
}

// The determinant by one member, code "m" or "ma"; in a batch the matrix stands between two others.
template <typename T>
T determinant(const std::string& code, const std::string& layout, const Matrix& values, std::size_t n)
{
    const bool array = code == "ma";
    Objects<T> src(layout, n, array ? 3 : 1);
    src.fill(T(2));
    src.set(array ? 1 : 0, values);
    T dst[5] = {T(-5), T(-5), T(-5), T(-5), T(-5)};
    Arguments arguments;
    src.addTo(arguments, array);
    arguments.push_back(pointer(dst + 1));
    if (array)
        arguments.push_back(word(3));
    const std::string name = "tenkDet_" + code + "_" + typeName<T>() + sizeName(n) + layout;
    EXPECT_EQ(callByName(name, arguments), tenkOk) << name;
    EXPECT_EQ(dst[0], T(-5)) << name;
    EXPECT_EQ(dst[array ? 4 : 2], T(-5)) << name;
    return dst[array ? 2 : 1];
}

template <typename T, typename F>
void eachMember(F f)
{
    for (const std::string code : {"m", "ma"})
        for (const std::string& layout : layoutsOf(code))
            f(code, layout, [=](const Matrix& values, std::size_t n) {
                return static_cast<double>(determinant<T>(code, layout, values, n));
            });
}

bool isWide(const std::string& layout)
{
    return layout.empty() || layout == "_L";
}

// ---------------------------------------------------------------------------------------------------------------
// Order 3
// ---------------------------------------------------------------------------------------------------------------

// Rows 1 and 2 have the cross product (1, 1, 1), so the sum is that of the elements of row 0. Two of the
// three, 2^66 and -2^66, cancel before or after the third, 1, is added and lost: only if 1 comes last is the
// sum 1.
Matrix sumAlongRow(std::size_t one)
{
    Matrix a = {0x1p66, 0x1p66, 0x1p66, 1, -1, 0, 0, 1, -1};
    a[one] = 1;
    a[one == 0 ? 1 : 0] = -0x1p66;
    return a;
}
Matrix transposed(const Matrix& a)
{
    return {a[0], a[3], a[6], a[1], a[4], a[7], a[2], a[5], a[8]};
}

template <typename T>
void addsLast(const std::string& code, const std::string& layout, std::size_t last)
{
    for (std::size_t one = 0; one < 3; ++one)
        EXPECT_EQ(determinant<T>(code, layout, sumAlongRow(one), 3), one == last ? T(1) : T(0))
            << code << typeName<T>() << layout << " " << one;
}

TEST(DetSmall, OfOrder3InTheElementTypeAddsColumn2Last)
{
    for (const std::string code : {"m", "ma"})
        for (const std::string& layout : layoutsOf(code))
            if (!isWide(layout)) {
                addsLast<float>(code, layout, 2);
                addsLast<double>(code, layout, 2);
            }
}
TEST(DetSmall, OfOneMatrixIn32fAddsColumn0Last)
{
    addsLast<float>("m", "", 0);
}
TEST(DetSmall, OfAnArrayInStandardLayoutAddsColumn1Last)
{
    addsLast<float>("ma", "", 1);
    addsLast<double>("ma", "", 1);
}
TEST(DetSmall, OfAListAddsColumn0Last)
{
    addsLast<float>("ma", "_L", 0);
    addsLast<double>("ma", "_L", 0);
}
TEST(DetSmall, OfOneMatrixIn64fGoesDownColumn0AndAddsRow1Last)
{
    for (std::size_t one = 0; one < 3; ++one)
        EXPECT_EQ(determinant<double>("m", "", transposed(sumAlongRow(one)), 3), one == 1 ? 1 : 0) << one;
}

TEST(DetSmall, HasNoFloor)
{
    eachMember<float>([](auto code, auto layout, auto value) {
        EXPECT_EQ(value({1e-8, 0, 0, 0, 1, 0, 0, 0, 1}, 3), rounded(1e-8)) << code << layout;
    });
    const float m[9] = {1e-8F, 0, 0, 0, 1, 0, 0, 0, 1};
    float dst = 9;
    char buffer[9 * 4 + 3 * 4];
    EXPECT_EQ(tenkDet_m_32f(m, 12, 3, buffer, &dst), tenkOk);
    EXPECT_EQ(dst, 0.0F);
}

// ---------------------------------------------------------------------------------------------------------------
// All orders
// ---------------------------------------------------------------------------------------------------------------

// (x x - y) in the last two rows and columns, 1 on the rest of the diagonal.
Matrix withMinor(std::size_t n, double x, double y)
{
    Matrix a(n * n);
    for (std::size_t i = 0; i < n; ++i)
        a[i * n + i] = 1;
    a[(n - 2) * n + n - 2] = a[n * n - 1] = x;
    a[(n - 2) * n + n - 1] = 1;
    a[(n - 1) * n + n - 2] = y;
    return a;
}

TEST(DetSmall, InStandardAndListLayoutKeepsProductsWide)
{
    for (std::size_t n = 3; n <= 6; ++n) {
        eachMember<float>([&](auto code, auto layout, auto value) {
            EXPECT_EQ(value(withMinor(n, 1 - 0x1p-13, 1 - 0x1p-12), n), isWide(layout) ? 0x1p-26 : 0)
                << code << n << layout;
        });
        eachMember<double>([&](auto code, auto layout, auto value) {
            EXPECT_EQ(value(withMinor(n, 1 - 0x1p-28, 1 - 0x1p-27), n), isWide(layout) ? 0x1p-56 : 0)
                << code << n << layout;
        });
    }
}

// Below row 0 two diagonals of ones: every minor is 1, and the value is a00 - a01 + a02 - ... in that order.
Matrix alternating(const Matrix& row0)
{
    const std::size_t n = row0.size();
    Matrix a(n * n);
    for (std::size_t j = 0; j < n; ++j)
        a[j] = row0[j];
    for (std::size_t i = 1; i < n; ++i)
        a[i * n + i - 1] = a[i * n + i] = 1;
    return a;
}

template <typename T>
void alternates()
{
    const double big = 0x1p66;
    eachMember<T>([&](auto code, auto layout, auto value) {
        const auto check = [&](const Matrix& row0, double expected) {
            EXPECT_EQ(value(alternating(row0), row0.size()), expected) << code << row0.size() << layout;
        };
        check({1, big, big, 0}, 0); // (1 - big) + big
        check({big, big, 1, 0}, 1); // (big - big) + 1
        check({big, big, 1, 3}, -2);
        check({big, 1, -big, 3}, -3); // ((big - 1) - big) - 3
        check({big, big, 1, 0, 2}, 3);
        check({big, big, big, big, 1}, 1);
        check({1, 0, big, big, 0}, 0);
        check({big, big, 1, 0, 2, 4}, -1);
        check({0, 0, 0, big, big, 1}, -1);
        check({0, 0, 0, big, 1, -big}, 0);
    });
}
TEST(DetSmall, Of32fAddsAndSubtractsByTurns)
{
    alternates<float>();
}
TEST(DetSmall, Of64fAddsAndSubtractsByTurns)
{
    alternates<double>();
}

template <typename T>
void letsThrough()
{
    for (std::size_t n = 3; n <= 6; ++n)
        eachMember<T>([&](auto code, auto layout, auto value) {
            for (std::size_t e = 0; e < n * n; ++e) { // each element is a factor of something
                Matrix a = withMinor(n, 2, 1);
                a[e] = aNaN;
                EXPECT_TRUE(std::isnan(value(a, n))) << code << n << layout << " " << e;
            }
            Matrix ones(n * n, 1); // two equal rows: inf - inf
            ones[0] = infinity;
            EXPECT_TRUE(std::isnan(value(ones, n))) << code << n << layout;

            // Row 0 holds zeros and an infinity, and all its minors are 1: the sign goes by turns. Where the
            // sum goes down column 0, an infinity in another column meets a zero in the cofactors.
            const bool byColumn = sizeof(T) == 8 && n == 3 && code == "m" && layout.empty();
            for (const double x : {infinity, -infinity})
                for (std::size_t j = 0; j < n; ++j) {
                    Matrix row0(n);
                    row0[j] = x;
                    const double d = value(alternating(row0), n);
                    if (byColumn && j > 0) {
                        EXPECT_TRUE(std::isnan(d)) << code << n << layout << j;
                    } else {
                        EXPECT_EQ(d, j % 2 == 0 ? x : -x) << code << n << layout << j;
                    }
                }
        });
}
TEST(DetSmall, Of32fLetsNaNAndInfinityThrough)
{
    letsThrough<float>();
}
TEST(DetSmall, Of64fLetsNaNAndInfinityThrough)
{
    letsThrough<double>();
}

TEST(DetSmall, OfTwoEqualRowsOrColumnsOfWholeNumbersIsZero)
{
    for (std::size_t n = 3; n <= 6; ++n)
        for (std::size_t p = 0; p < n; ++p)
            for (std::size_t q = 0; q < p; ++q)
                for (const bool rows : {true, false}) {
                    const Matrix equal = twoEqualRows(n, p, q),
                                 a = rows ? equal : square::transposed(equal, n);
                    const auto isZero = [&](auto code, auto layout, auto value) {
                        EXPECT_EQ(value(a, n), 0) << code << n << layout << " " << p << q << rows;
                    };
                    eachMember<float>(isZero);
                    eachMember<double>(isZero);
                }
}

TEST(DetSmall, OfTwoEqualRowsIsOfRoundingSize)
{
    std::mt19937 random(3);
    for (std::size_t n = 3; n <= 6; ++n) {
        Matrix a = wellConditioned(n, random);
        for (std::size_t j = 0; j < n; ++j)
            a[(n - 1) * n + j] = a[j];
        eachMember<double>(
            [&](auto, auto layout, auto value) { EXPECT_LE(std::fabs(value(a, n)), 1e-11) << n << layout; });
    }
}

TEST(DetSmall, StandardAndListAgreeAboveOrder3)
{
    std::mt19937 random(5);
    for (std::size_t n = 4; n <= 6; ++n)
        for (int turn = 0; turn < 50; ++turn) {
            const Matrix a = permuted(n, random);
            const double standard = determinant<double>("ma", "", a, n);
            EXPECT_EQ(determinant<double>("ma", "_L", a, n), standard);
            EXPECT_EQ(determinant<double>("m", "", a, n), standard);
            EXPECT_EQ(determinant<float>("ma", "_L", a, n), determinant<float>("m", "", a, n));
        }
}

// In the wide unit, almost correctly rounded; in the element type, a few roundings of all products.
template <typename T>
void isClose()
{
    std::mt19937 random(11);
    for (std::size_t n = 3; n <= 6; ++n)
        for (auto kind : {wellConditioned, permuted, graded, leadingZeros, nearlySingular})
            for (int turn = 0; turn < 20; ++turn) {
                const Matrix a = kind(n, random);
                double products = 1; // no less than the sum of the magnitudes of all products
                for (std::size_t i = 0; i < n; ++i) {
                    double sum = 0;
                    for (std::size_t j = 0; j < n; ++j)
                        sum += std::fabs(a[i * n + j]);
                    products *= sum;
                }
                const Exact exact = ExactInverse(a, n).determinant;
                const double unit = std::numeric_limits<T>::epsilon() / 2;
                const double terms = 2 * static_cast<double>(n);
                eachMember<T>([&](auto code, auto layout, auto value) {
                    const double bound = isWide(layout) ? unit * static_cast<double>(absolute(exact)) +
                                                              terms * 0x1p-64 * products
                                                        : terms * unit * products;
                    const Exact error = absolute(static_cast<Exact>(value(a, n)) - exact);
                    EXPECT_LE(static_cast<double>(error), bound * (1 + 1e-9)) << code << n << layout;
                });
            }
}
TEST(DetSmall, Of32fIsCloseToTheExactValue)
{
    isClose<float>();
}
TEST(DetSmall, Of64fIsCloseToTheExactValue)
{
    isClose<double>();
}

// ---------------------------------------------------------------------------------------------------------------
// Arguments
// ---------------------------------------------------------------------------------------------------------------

TEST(DetSmall, MayOverwriteTheMatrixItHasRead)
{
    float m[9] = {2, 0, 0, 0, 3, 0, 0, 0, 4};
    EXPECT_EQ(tenkDet_m_32f_3x3(m, 12, &m[4]), tenkOk);
    EXPECT_EQ(m[4], 24.0F);
}

TEST(DetSmall, TestsPointersAndTablesBeforeCount)
{
    double x = 1, dst = 9;
    EXPECT_EQ(tenkDet_ma_64f_6x6(nullptr, 8, 8, &dst, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_64f_6x6(&x, 8, 8, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDet_ma_64f_6x6(&x, 8, 8, &dst, 0), tenkOk);
    for (std::size_t n = 3; n <= 6; ++n)
        for (std::size_t null : {std::size_t{0}, n * n - 1}) {
            std::vector<const double*> table(n * n, &x);
            table[null] = nullptr;
            const Arguments start = {pointer(table.data()), word(0)};
            Arguments m = start, p = start, ps2 = start;
            m.push_back(pointer(&dst));
            p.insert(p.end(), {pointer(&dst), word(0)});
            ps2.insert(ps2.end(), {word(8), pointer(&dst), word(0)});
            EXPECT_EQ(callByName("tenkDet_m_64f" + sizeName(n) + "_P", m), tenkNullPointerError);
            EXPECT_EQ(callByName("tenkDet_ma_64f" + sizeName(n) + "_P", p), tenkNullPointerError);
            EXPECT_EQ(callByName("tenkDet_ma_64f" + sizeName(n) + "_PS2", ps2), tenkNullPointerError);
        }
    EXPECT_EQ(dst, 9.0);
}

TEST(DetSmall, DoesNotReadAListOfNoObjects)
{
    const double* list[1] = {nullptr};
    double dst = 9;
    EXPECT_EQ(tenkDet_ma_64f_6x6_L(list, 0, 48, &dst, 0), tenkOk);
    EXPECT_EQ(tenkDet_ma_64f_6x6_LS2(list, 0, 96, 16, &dst, 0), tenkOk);
    EXPECT_EQ(dst, 9.0);
}

TEST(DetSmall, OfAListKeepsTheResultsBeforeANullEntry)
{
    float m[16] = {1, 0, 0, 0, 0, 2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4};
    const float* list[4] = {m, m, nullptr, m};
    float dst[4] = {9, 9, 9, 9};
    EXPECT_EQ(tenkDet_ma_32f_4x4_L(list, 0, 16, dst, 4), tenkNullPointerError);
    EXPECT_EQ(std::vector<float>(dst, dst + 4), (std::vector<float>{24, 24, 9, 9}));
}

} // namespace
