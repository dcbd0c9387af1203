#include "tenk/qr_decomp.h"

#include <algorithm>

#include "families/factors.h"

using namespace factors;

namespace {

template <typename T>
struct Factors
{
    std::vector<T> d, buffer;
    tenkStatus status = tenkOk;
};

// The reflections by hand. W is what the scalars of a step are kept in.
template <typename T, typename W = std::conditional_t<sizeof(T) == 4, float, long double>>
Factors<T> factorsOf(const std::vector<T>& a, std::size_t w, std::size_t h, std::vector<T> buffer)
{
    Factors<T> f{a, std::move(buffer)};
    const auto d = [&](std::size_t i, std::size_t j) -> T& { return f.d[i * w + j]; };
    std::vector<T>& b = f.buffer;
    for (std::size_t k = 0; k < (w == h ? w - 1 : w); ++k) {
        volatile W q = 0;
        for (std::size_t i = k; i < h; ++i) {
            const volatile W square = W{d(i, k)} * W{d(i, k)};
            q = q + square;
        }
        if (!(q >= W(1.1920928955078125e-07))) {
            f.status = tenkSingularError;
            return f;
        }
        // Binary32 rounds the wide root, the wide reciprocal and the wide coefficient once.
        const volatile W n = static_cast<W>(std::sqrt(static_cast<long double>(q)));
        const volatile W g = d(k, k) > 0 ? W{n} : -W{n};
        const volatile W c =
            static_cast<W>(1 / (static_cast<long double>(d(k, k)) + static_cast<long double>(g)));
        b[k] = 1;
        volatile W u = 1;
        for (std::size_t i = k + 1; i < h; ++i) {
            const volatile W component = W{d(i, k)} * c;
            const volatile W square = component * component;
            b[i] = static_cast<T>(component);
            u = u + square;
        }
        const volatile W t = static_cast<W>(-2 / static_cast<long double>(u));
        for (std::size_t j = k; j < w; ++j) {
            volatile W e = d(k, j);
            for (std::size_t i = k + 1; i < h; ++i) {
                const volatile W product = W{d(i, j)} * W{b[i]};
                e = e + product;
            }
            e = e * t;
            for (std::size_t i = k; i < h; ++i) {
                const volatile W product = W{b[i]} * e;
                d(i, j) = static_cast<T>(W{d(i, j)} + product);
            }
        }
        for (std::size_t i = k + 1; i < h; ++i)
            d(i, k) = b[i];
    }
    return f;
}

template <typename T>
struct Call
{
    Call(bool batch, const Shape& s, Form form, std::size_t count)
        : name(nameOf<T>("QRDecomp", batch ? "ma" : "m", s.fixed, form)),
          batch(batch),
          fixed(s.fixed),
          w(s.width),
          h(s.height),
          count(count),
          src(form, batch, false, h, w, count),
          dst(form, batch, false, h, w, count),
          buffer(h + 1, 77)
    {
    }
    Arguments arguments()
    {
        Arguments all;
        src.pass(all);
        bufferAt = all.size();
        addPointer(all, buffer.data());
        dstAt = all.size();
        (inPlace ? src : dst).pass(all);
        sizesAt = all.size();
        if (!fixed) {
            addWord(all, static_cast<std::uint32_t>(w));
            addWord(all, static_cast<std::uint32_t>(h));
        }
        if (batch)
            addWord(all, static_cast<std::uint32_t>(count));
        return all;
    }
    tenkStatus run() { return callByName(name, arguments()); }
    const Operand<T>& result() const { return inPlace ? src : dst; }

    std::string name;
    bool batch;
    unsigned fixed;
    std::size_t w, h, count;
    Operand<T> src, dst;
    std::vector<T> buffer;
    bool inPlace = false;
    std::size_t bufferAt = 0, dstAt = 0, sizesAt = 0;
};

constexpr Shape shapes[] = {{0, 1, 1}, {0, 1, 2}, {0, 1, 3}, {0, 2, 2}, {0, 3, 5}, {0, 5, 5},
                            {0, 6, 7}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}};

template <typename T, typename F>
void eachCall(F f)
{
    for (const Shape& s : shapes)
        for (Form form : forms) {
            if (existsForOne(form)) {
                Call<T> call(false, s, form, 1);
                f(call);
            }
            for (std::size_t count : {1, 4, 11}) {
                Call<T> call(true, s, form, count);
                f(call);
            }
        }
}

template <typename T>
class QRDecomp : public ::testing::Test
{
};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(QRDecomp, Types);

TYPED_TEST(QRDecomp, EveryMemberLeavesTheFactorsOfTheReflectionsAndNothingElse)
{
    std::mt19937 random(1);
    eachCall<TypeParam>([&](auto& call) {
        for (bool inPlace : {false, true}) {
            call.inPlace = inPlace;
            std::vector<std::vector<TypeParam>> a;
            for (std::size_t k = 0; k < call.count; ++k) {
                a.push_back(randomElements<TypeParam>(random, call.w * call.h));
                call.src.setObject(k, a[k]);
            }
            auto expectedMemory = call.result().memory;
            std::vector<TypeParam> buffer = call.buffer;
            ASSERT_EQ(call.run(), tenkOk) << call.name;
            for (std::size_t k = 0; k < call.count; ++k) {
                const auto expected = factorsOf(a[k], call.w, call.h, buffer);
                buffer = expected.buffer;
                ASSERT_TRUE(same(call.result().object(k), expected.d)) << call.name << " object " << k;
                for (std::size_t i = 0; i < call.h; ++i)
                    for (std::size_t j = 0; j < call.w; ++j)
                        std::memcpy(expectedMemory.data() +
                                        (call.result().address(k, i, j) - call.result().memory.data()),
                                    call.result().address(k, i, j), sizeof(TypeParam));
            }
            EXPECT_EQ(call.result().memory, expectedMemory) << call.name;
            EXPECT_TRUE(same(call.buffer, buffer)) << call.name; // its last entry lies behind it
        }
    });
}

TYPED_TEST(QRDecomp, ALongPackedBatchEqualsItsSingleMatrices)
{
    using T = TypeParam;
    std::mt19937 random(2);
    for (unsigned n = 3; n <= 6; ++n)
        for (Form form : {Form::standard, Form::list}) {
            const std::size_t count = 203, size = n * n;
            std::vector<T> src = randomElements<T>(random, count * size), dst(count * size), buffer(n);
            std::vector<const T*> srcs;
            std::vector<T*> dsts;
            for (std::size_t k = 0; k < count; ++k) {
                srcs.push_back(src.data() + k * size);
                dsts.push_back(dst.data() + k * size);
            }
            Arguments arguments;
            for (bool source : {true, false}) {
                if (form == Form::list)
                    addPointer(arguments, source ? static_cast<const void*>(srcs.data()) : dsts.data());
                else
                    addPointer(arguments, source ? src.data() : dst.data());
                addWord(arguments, form == Form::list ? 0 : static_cast<std::uint32_t>(size * sizeof(T)));
                addWord(arguments, static_cast<std::uint32_t>(n * sizeof(T)));
                if (source)
                    addPointer(arguments, buffer.data());
            }
            addWord(arguments, count);
            const std::string name = nameOf<T>("QRDecomp", "ma", n, form);
            ASSERT_EQ(callByName(name, arguments), tenkOk) << name;
            for (std::size_t k = 0; k < count; ++k) {
                const auto expected = factorsOf(std::vector<T>(srcs[k], srcs[k] + size), n, n, buffer);
                ASSERT_TRUE(same(std::vector<T>(dsts[k], dsts[k] + size), expected.d))
                    << name << " object " << k;
            }
        }
}

TYPED_TEST(QRDecomp, QTimesRIsTheSource)
{
    std::mt19937 random(3);
    eachCall<TypeParam>([&](auto& call) {
        const std::size_t w = call.w, h = call.h, s = w == h ? w - 1 : w;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, randomElements<TypeParam>(random, w * h));
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t j = 0; j < w; ++j) { // column j of R through the reflectors, the last one first
                std::vector<__float128> x(h, 0);
                for (std::size_t i = 0; i <= j; ++i)
                    x[i] = call.dst.get(k, i, j);
                for (std::size_t r = s; r-- > 0;) {
                    __float128 u = 1, e = x[r];
                    for (std::size_t i = r + 1; i < h; ++i) {
                        const __float128 v = call.dst.get(k, i, r);
                        u += v * v;
                        e += v * x[i];
                    }
                    e *= -2 / u;
                    x[r] += e;
                    for (std::size_t i = r + 1; i < h; ++i)
                        x[i] += e * __float128(call.dst.get(k, i, r));
                }
                for (std::size_t i = 0; i < h; ++i)
                    ASSERT_LE(std::abs(double(x[i] - __float128(call.src.get(k, i, j)))),
                              32 * std::numeric_limits<TypeParam>::epsilon())
                        << call.name;
            }
    });
}

// ---------------------------------------------------------------------------------------------------------------
// Precision
// ---------------------------------------------------------------------------------------------------------------

TEST(QRDecompPrecision, TheScaleOf32fIsRoundedOnce)
{
    // Numbers for which 1 / (a + g) with the sum rounded to binary32 first is another one are searched for;
    // the stored component shows which of the two was used.
    std::mt19937 random(4);
    unsigned differing = 0;
    for (int trial = 0; trial < 2000; ++trial) {
        const auto a = randomElements<float>(random, 2);
        const float squares[2] = {a[0] * a[0], a[1] * a[1]};
        const volatile float q = squares[0] + squares[1];
        const volatile float n = std::sqrt(q);
        const volatile float g = a[0] > 0 ? float{n} : -float{n};
        const volatile float sum = a[0] + g;
        const volatile float narrow = a[1] * (1 / sum);
        const volatile float c =
            static_cast<float>(1 / (static_cast<long double>(a[0]) + static_cast<long double>(g)));
        const volatile float wide = a[1] * c;
        float d[2], buffer[2];
        ASSERT_EQ(tenkQRDecomp_m_32f(a.data(), 4, buffer, d, 4, 1, 2), tenkOk);
        EXPECT_EQ(d[1], wide);
        differing += narrow != wide;
    }
    EXPECT_GT(differing, 100U);
}

TEST(QRDecompPrecision, SumsOf32fAreRoundedAfterEveryAddition)
{
    // q of (2^12, 1, 1): 2^24 + 1 rounds to 2^24, twice; its root is 2^12, so R = -2^12. The wide sum 2^24 +
    // 2 has the root 4096.00024, which rounds to 2^12 too, but q of (2^12, 2^6 ones) would be 2^24 + 2^12.
    std::vector<float> a(257, 1.0F), d(257), buffer(257);
    a[0] = 0x1p12F;
    ASSERT_EQ(tenkQRDecomp_m_32f(a.data(), 4, buffer.data(), d.data(), 4, 1, 257), tenkOk);
    // c = 1 / (2^12 + 2^12) = 2^-13 exactly; with the wide sum the norm would be 4096.03 and c smaller.
    EXPECT_EQ(d[1], 0x1p-13F);
}

TEST(QRDecompPrecision, ScalarsOf64fStayWide)
{
    // q of (2^27, 1): 2^54 + 1 is no binary64 number, and neither is its root. With binary64 scalars the
    // component would come from 1 / (2^27 + 2^27) = 2^-28 exactly; the wide norm is 2^27 + 2^-28, and 2^-28
    // less 2^-84 of it rounds to 2^-28 as well. Many ones make it show: q = 2^54 + 2^9 x 1.
    std::vector<double> a(1025, 1.0), d(1025), buffer(1025);
    a[0] = 0x1p30;
    ASSERT_EQ(tenkQRDecomp_m_64f(a.data(), 8, buffer.data(), d.data(), 8, 1, 1025), tenkOk);
    // In binary64 2^60 + 1 is 2^60 each time; the wide sum is 2^60 + 2^10, its root 2^30 + 2^-21.
    const long double norm = std::sqrt(0x1p60L + 0x1p10L);
    EXPECT_NE(norm, 0x1p30L);
    EXPECT_EQ(d[1], static_cast<double>(1 / (0x1p30L + norm)));
    EXPECT_NE(d[1], 0x1p-31);
}

TEST(QRDecompPrecision, TheWideUnitWorksAtThePrecisionOfTheThread)
{
    // The same matrix with the unit at 53 bits: sums of squares are then binary64 numbers.
    std::vector<double> a(1025, 1.0), d(1025), buffer(1025);
    a[0] = 0x1p30;
    Arguments arguments;
    addPointer(arguments, a.data());
    addWord(arguments, 8);
    addPointer(arguments, buffer.data());
    addPointer(arguments, d.data());
    addWord(arguments, 8);
    addWord(arguments, 1);
    addWord(arguments, 1025);
    support::Entry entry;
    entry.x87Control = 0x027F;
    const auto outcome = support::call(support::exportedAddress("tenkQRDecomp_m_64f"), arguments, entry);
    EXPECT_EQ(outcome.status, tenkOk);
    EXPECT_TRUE(outcome.controlKept);
    EXPECT_EQ(d[1], 0x1p-31);
}

// ---------------------------------------------------------------------------------------------------------------
// The documented edge cases
// ---------------------------------------------------------------------------------------------------------------

TYPED_TEST(QRDecomp, OneByOneHasNoReflectorAndIsAlwaysOk)
{
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != 1 || call.h != 1)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, {0});
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            EXPECT_EQ(call.dst.get(k, 0, 0), 0);
        EXPECT_TRUE(same(call.buffer, std::vector<TypeParam>(2, 77))) << call.name;
    });
}

TYPED_TEST(QRDecomp, TheFloorIsOnTheSumOfSquaresInBothTypes)
{
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != 1 || call.h != 2)
            return;
        const TypeParam x = 0x1p-12F; // twice its square is 2^-23
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, {x, x});
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, {x, x * TypeParam(1 - 0x1p-20)});
        EXPECT_EQ(call.run(), tenkSingularError) << call.name;
    });
}

TYPED_TEST(QRDecomp, TheFloorIsThatOfAnyObject)
{
    // The identity, but for two elements in the first column of one object.
    const TypeParam x = 0x1p-12F; // twice its square is 2^-23
    eachCall<TypeParam>([&](auto& call) {
        for (std::size_t k = 0; call.w == call.h && call.w > 1 && k < call.count; ++k)
            for (TypeParam second : {x, x * TypeParam(1 - 0x1p-20)}) {
                for (std::size_t other = 0; other < call.count; ++other)
                    for (std::size_t i = 0; i < call.h; ++i)
                        for (std::size_t j = 0; j < call.w; ++j)
                            call.src.set(other, i, j, i == j);
                call.src.set(k, 0, 0, x);
                call.src.set(k, 1, 0, second);
                ASSERT_EQ(call.run(), second == x ? tenkOk : tenkSingularError) << call.name << k;
            }
    });
}

TYPED_TEST(QRDecomp, TheIdentityGivesMinusOnesButForTheLast)
{
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != call.h)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.h; ++i)
                for (std::size_t j = 0; j < call.w; ++j)
                    call.src.set(k, i, j, i == j);
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.h; ++i)
                for (std::size_t j = 0; j < call.w; ++j)
                    ASSERT_EQ(call.dst.get(k, i, j), i != j ? 0 : i + 1 == call.h ? 1 : -1) << call.name;
    });
}

TYPED_TEST(QRDecomp, ALeadingZeroOfEitherSignTakesTheNegativeNorm)
{
    using T = TypeParam;
    eachCall<T>([&](auto& call) {
        if (call.w != 2 || call.h != 2)
            return;
        for (T zero : {T{0}, -T{0}}) {
            for (std::size_t k = 0; k < call.count; ++k)
                call.src.setObject(k, {zero, 3, 3, 0});
            ASSERT_EQ(call.run(), tenkOk) << call.name;
            for (std::size_t k = 0; k < call.count; ++k) {
                EXPECT_EQ(call.dst.get(k, 0, 0), 3) << call.name;
                EXPECT_EQ(call.dst.get(k, 1, 0), -1) << call.name;
            }
        }
    });
    // And in groups of fixed size, where the first column is (0, 3, 4).
    T a[4][9], d[4][9], buffer[3];
    for (auto& matrix : a)
        for (int e = 0; e < 9; ++e)
            matrix[e] = std::vector<T>{0, 1, 2, 3, 5, 1, 4, 1, 7}[static_cast<std::size_t>(e)];
    a[1][0] = -T{0};
    if constexpr (sizeof(T) == 4)
        ASSERT_EQ(tenkQRDecomp_ma_32f_3x3(a[0], 36, 12, buffer, d[0], 36, 12, 4), tenkOk);
    else
        ASSERT_EQ(tenkQRDecomp_ma_64f_3x3(a[0], 72, 24, buffer, d[0], 72, 24, 4), tenkOk);
    for (const auto& matrix : d)
        EXPECT_NEAR(double(matrix[0]), 5, 1e-6);
}

TYPED_TEST(QRDecomp, ALeadingMinusTwoWithNothingBelowGivesPlusTwo)
{
    eachCall<TypeParam>([&](auto& call) {
        if (call.h < 2)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.h; ++i)
                for (std::size_t j = 0; j < call.w; ++j)
                    call.src.set(k, i, j, i == 0 && j == 0 ? -2 : i == j);
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            EXPECT_EQ(call.dst.get(k, 0, 0), 2) << call.name;
    });
}

TYPED_TEST(QRDecomp, AFailureLeavesTheReflectorsBeforeItAndTouchesNoLaterObject)
{
    std::mt19937 random(5);
    eachCall<TypeParam>([&](auto& call) {
        const std::size_t steps = call.w == call.h ? call.w - 1 : call.w;
        for (std::size_t failing = 0; failing < steps; ++failing)
            for (bool nan : {false, true})
                for (std::size_t bad : {std::size_t{0}, call.count / 2}) {
                    std::fill(call.dst.memory.begin(), call.dst.memory.end(), Operand<TypeParam>::filling);
                    const auto filling = call.dst.object(0);
                    std::vector<TypeParam> buffer(call.h + 1, 55);
                    call.buffer = buffer;
                    std::vector<std::vector<TypeParam>> a;
                    for (std::size_t k = 0; k < call.count; ++k) {
                        a.push_back(randomElements<TypeParam>(random, call.w * call.h));
                        for (std::size_t i = 0; k == bad && i < call.h; ++i)
                            a[k][i * call.w + failing] =
                                !nan              ? (failing == 0 ? 0 : 2 * a[k][i * call.w + failing - 1])
                                : i + 1 == call.h ? std::numeric_limits<TypeParam>::quiet_NaN()
                                                  : 1;
                        call.src.setObject(k, a[k]);
                    }
                    ASSERT_EQ(call.run(), tenkSingularError) << call.name << failing;
                    for (std::size_t k = 0; k <= bad; ++k) {
                        const auto expected = factorsOf(a[k], call.w, call.h, buffer);
                        EXPECT_EQ(expected.status, k == bad ? tenkSingularError : tenkOk);
                        buffer = expected.buffer;
                        ASSERT_TRUE(same(call.dst.object(k), expected.d)) << call.name << k << " of " << bad;
                    }
                    EXPECT_TRUE(same(call.buffer, buffer)) << call.name;
                    for (std::size_t k = bad + 1; k < call.count; ++k)
                        ASSERT_TRUE(same(call.dst.object(k), filling)) << call.name;
                }
    });
}

TYPED_TEST(QRDecomp, TheLastColumnOfASquareMatrixIsNotTested)
{
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != call.h || call.w == 1)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.h; ++i)
                for (std::size_t j = 0; j < call.w; ++j)
                    call.src.set(k, i, j, i == j && i + 1 < call.h);
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            EXPECT_EQ(call.dst.get(k, call.h - 1, call.w - 1), 0) << call.name;
    });
}

TYPED_TEST(QRDecomp, MoreColumnsThanRowsEndsAsSingularAtTheFirstColumnWithoutRows)
{
    std::mt19937 random(6);
    for (Form form : forms)
        for (bool batch : {false, true}) {
            if (!batch && !existsForOne(form))
                continue;
            Call<TypeParam> call(batch, {0, 4, 2}, form, batch ? 3 : 1);
            const auto a = randomElements<TypeParam>(random, 8);
            for (std::size_t k = 0; k < call.count; ++k)
                call.src.setObject(k, a);
            const auto expected = factorsOf(a, 4, 2, call.buffer);
            ASSERT_EQ(expected.status, tenkSingularError);
            EXPECT_EQ(call.run(), tenkSingularError) << call.name;
            EXPECT_TRUE(same(call.dst.object(0), expected.d)) << call.name;
            EXPECT_FALSE(same(call.dst.object(0), a)) << call.name;
            EXPECT_TRUE(same(call.buffer, expected.buffer)) << call.name;
        }
}

TYPED_TEST(QRDecomp, RowsBehindTheLastColumnHoldComponentsOfVectorsAlone)
{
    // Column 0 is (0, 2, 2, 2, 2, 0) of norm 4: g = -4, c = -1/4, v = (1, -1/2, -1/2, -1/2, -1/2, 0), t = -1.
    // Column 1 has e = (3 - (1 + 3 + 3 + 3) / 2) (-1) = 2 and becomes (5, 0, 2, 2, 2, 2), which from row 1 on
    // is like column 0. So R = (4, 5; 0, 4), and the rows from 2 on hold -1/2 or 0.
    using T = TypeParam;
    const std::vector<T> source = {0, 3, 2, 1, 2, 3, 2, 3, 2, 3, 0, 2};
    const T half = T(-0.5);
    const std::vector<T> expected = {4, 5, half, 4, half, half, half, half, half, half, 0, half};
    for (Form form : forms)
        for (bool batch : {false, true}) {
            if (!batch && !existsForOne(form))
                continue;
            Call<T> call(batch, {0, 2, 6}, form, batch ? 3 : 1);
            for (std::size_t k = 0; k < call.count; ++k)
                call.src.setObject(k, source);
            ASSERT_EQ(call.run(), tenkOk) << call.name;
            for (std::size_t k = 0; k < call.count; ++k)
                for (std::size_t e = 0; e < 12; ++e)
                    EXPECT_EQ(call.dst.get(k, e / 2, e % 2), expected[e]) << call.name << " element " << e;
            EXPECT_TRUE(same(call.buffer, {1, 1, half, half, half, half, 77})) << call.name;
        }
}

TYPED_TEST(QRDecomp, NullComesBeforeSizeAndSizeBeforeCount)
{
    eachCall<TypeParam>([&](auto& call) {
        const auto memory = call.dst.memory;
        Arguments all = call.arguments();
        if (call.batch) {
            all.back().bits = 0;
            EXPECT_EQ(callByName(call.name, all), tenkOk) << call.name;
        }
        for (std::size_t size : {0, 1}) {
            Arguments zero = all;
            if (!call.fixed) {
                zero[call.sizesAt + size].bits = 0;
                EXPECT_EQ(callByName(call.name, zero), tenkSizeError) << call.name;
            }
            for (std::size_t at : {std::size_t{0}, call.bufferAt, call.dstAt}) {
                Arguments null = zero;
                null[at].bits = 0;
                EXPECT_EQ(callByName(call.name, null), tenkNullPointerError) << call.name;
            }
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
        EXPECT_TRUE(same(call.buffer, std::vector<TypeParam>(call.h + 1, 77))) << call.name;
    });
}

TYPED_TEST(QRDecomp, ANullEntryOfATableFailsBeforeAnythingIsWritten)
{
    eachCall<TypeParam>([&](auto& call) {
        if (!isTable(call.src.form))
            return;
        const auto memory = call.dst.memory;
        for (auto* operand : {&call.src, &call.dst}) {
            unsigned char*& last = operand->pointers[call.w * call.h - 1];
            unsigned char* const kept = last;
            last = nullptr;
            Arguments all = call.arguments();
            EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            if (call.batch) {
                all.back().bits = 0;
                EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            }
            last = kept;
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
    });
}

TYPED_TEST(QRDecomp, ANullEntryOfAListFailsWhenItsObjectIsReached)
{
    std::mt19937 random(8);
    eachCall<TypeParam>([&](auto& call) {
        if (!isList(call.src.form) || call.count < 4)
            return;
        for (auto* operand : {&call.src, &call.dst})
            for (std::size_t bad : {std::size_t{0}, std::size_t{2}, call.count - 1}) {
                std::fill(call.dst.memory.begin(), call.dst.memory.end(), std::uint8_t{1});
                std::vector<std::vector<TypeParam>> a;
                for (std::size_t k = 0; k < call.count; ++k) {
                    a.push_back(randomElements<TypeParam>(random, call.w * call.h));
                    call.src.setObject(k, a[k]);
                }
                unsigned char* const kept = operand->pointers[bad];
                operand->pointers[bad] = nullptr;
                EXPECT_EQ(call.run(), tenkNullPointerError) << call.name;
                operand->pointers[bad] = kept;
                for (std::size_t k = 0; k < call.count; ++k) {
                    const auto expected = factorsOf(a[k], call.w, call.h, call.buffer);
                    EXPECT_EQ(bool(same(call.dst.object(k), expected.d)), k < bad) << call.name;
                }
            }
    });
}

TYPED_TEST(QRDecomp, DenseRowsThatOverlapEachOtherAreWorkedOnInPlace)
{
    // All rows of dst are one: column 0 is then three times 7, and every update changes what the next one
    // reads.
    using T = TypeParam;
    using W = std::conditional_t<sizeof(T) == 4, float, long double>;
    const T a[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    T d[3], buffer[3], row[3] = {7, 8, 9}, b[3];
    for (int k = 0; k < 2; ++k) {
        volatile W q = 0;
        for (int i = k; i < 3; ++i)
            q = q + W{row[k]} * W{row[k]};
        const volatile W n = static_cast<W>(std::sqrt(static_cast<long double>(q)));
        const volatile W g = row[k] > 0 ? W{n} : -W{n};
        const volatile W c =
            static_cast<W>(1 / (static_cast<long double>(row[k]) + static_cast<long double>(g)));
        b[k] = 1;
        volatile W u = 1;
        for (int i = k + 1; i < 3; ++i) {
            const volatile W v = W{row[k]} * c, square = v * v;
            b[i] = static_cast<T>(v);
            u = u + square;
        }
        const volatile W t = -2 / u;
        for (int j = k; j < 3; ++j) {
            volatile W e = row[j];
            for (int i = k + 1; i < 3; ++i) {
                const volatile W product = W{row[j]} * W{b[i]};
                e = e + product;
            }
            e = e * t;
            for (int i = k; i < 3; ++i) {
                const volatile W product = W{b[i]} * e;
                row[j] = static_cast<T>(W{row[j]} + product);
            }
        }
        for (int i = k + 1; i < 3; ++i)
            row[k] = b[i];
    }
    if constexpr (sizeof(T) == 4)
        ASSERT_EQ(tenkQRDecomp_ma_32f_3x3(a, 36, 12, buffer, d, 0, 0, 1), tenkOk);
    else
        ASSERT_EQ(tenkQRDecomp_ma_64f_3x3(a, 72, 24, buffer, d, 0, 0, 1), tenkOk);
    EXPECT_TRUE(same(std::vector<T>(d, d + 3), std::vector<T>(row, row + 3)));
}

TYPED_TEST(QRDecomp, ANaNInTheActivePartOfAColumnIsSingularAtThatStep)
{
    // Column 0 is (-2, 0, 0): R(0, 0) = 2, the reflector turns the sign of row 0 and leaves the others. The
    // NaN stands in column 1.
    const TypeParam nan = std::numeric_limits<TypeParam>::quiet_NaN();
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != 3 || call.h != 3)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, {-2, 1, 5, 0, 3, 6, 0, nan, 7});
        EXPECT_EQ(call.run(), tenkSingularError) << call.name;
        EXPECT_EQ(call.dst.get(0, 0, 0), TypeParam(2)) << call.name;
        EXPECT_EQ(call.dst.get(0, 0, 2), TypeParam(-5)) << call.name;
        EXPECT_EQ(call.dst.get(0, 1, 2), TypeParam(6)) << call.name;
        EXPECT_TRUE(std::isnan(call.dst.get(0, 2, 1))) << call.name;
    });
    Call<TypeParam> call(false, {3, 3, 3}, Form::standard, 1);
    call.src.setObject(0, {1, 2, 3, nan, 4, 5, 6, 7, 8});
    EXPECT_EQ(call.run(), tenkSingularError);
    EXPECT_TRUE(same(call.dst.object(0), {1, 2, 3, nan, 4, 5, 6, 7, 8}));
}

TYPED_TEST(QRDecomp, NothingIsReadAheadOfAFailure)
{
    // The first matrix is zero, and behind it nothing may be read; neither behind the first entry of the
    // lists.
    using T = TypeParam;
    const PageEnd memory, sources, results;
    T* const src = memory.last<T>(16);
    std::fill(src, src + 16, T{0});
    T dst[16 * 16], buffer[4];
    constexpr std::uint32_t row = 4 * sizeof(T), matrix = 16 * sizeof(T);
    const T** const list = sources.last<const T*>(1);
    T** const resultList = results.last<T*>(1);
    *list = src;
    *resultList = dst;
    if constexpr (sizeof(T) == 4) {
        EXPECT_EQ(tenkQRDecomp_ma_32f_4x4(src, matrix, row, buffer, dst, matrix, row, 16), tenkSingularError);
        EXPECT_EQ(tenkQRDecomp_ma_32f_4x4_L(list, 0, row, buffer, resultList, 0, row, 16), tenkSingularError);
    } else {
        EXPECT_EQ(tenkQRDecomp_ma_64f_4x4(src, matrix, row, buffer, dst, matrix, row, 16), tenkSingularError);
        EXPECT_EQ(tenkQRDecomp_ma_64f_4x4_L(list, 0, row, buffer, resultList, 0, row, 16), tenkSingularError);
    }
}

TYPED_TEST(QRDecomp, ABatchMayBeWrittenOverTheSourcesOfLaterObjects)
{
    // dst of object k is src of object k + 1, by a step and by lists.
    using T = TypeParam;
    std::mt19937 random(8);
    const std::vector<T> before = randomElements<T>(random, 17 * 16);
    std::vector<T> expected = before, buffer(4);
    for (std::size_t k = 0; k < 16; ++k) {
        const auto f = factorsOf(std::vector<T>(expected.begin() + static_cast<long>(16 * k),
                                                expected.begin() + static_cast<long>(16 * (k + 1))),
                                 4, 4, buffer);
        std::copy(f.d.begin(), f.d.end(), expected.begin() + static_cast<long>(16 * (k + 1)));
    }
    constexpr std::uint32_t row = 4 * sizeof(T), matrix = 16 * sizeof(T);
    for (bool list : {false, true}) {
        std::vector<T> memory = before;
        const T* src[16];
        T* dst[16];
        for (std::size_t k = 0; k < 16; ++k) {
            src[k] = &memory[16 * k];
            dst[k] = &memory[16 * (k + 1)];
        }
        if constexpr (sizeof(T) == 4)
            list ? tenkQRDecomp_ma_32f_4x4_L(src, 0, row, buffer.data(), dst, 0, row, 16)
                 : tenkQRDecomp_ma_32f_4x4(src[0], matrix, row, buffer.data(), dst[0], matrix, row, 16);
        else
            list ? tenkQRDecomp_ma_64f_4x4_L(src, 0, row, buffer.data(), dst, 0, row, 16)
                 : tenkQRDecomp_ma_64f_4x4(src[0], matrix, row, buffer.data(), dst[0], matrix, row, 16);
        EXPECT_TRUE(same(memory, expected)) << list;
    }
}

TYPED_TEST(QRDecomp, ResultsThatShareMemoryAreWrittenOneAfterTheOther)
{
    // A diagonal matrix changes the sign of all but the last element. Each result begins at the second row of
    // the one before, by a step and by lists: the first rows of all stay, and the whole of the last.
    using T = TypeParam;
    constexpr std::size_t count = 16;
    std::vector<T> matrices(count * 9, 0), memory, expected((count + 2) * 3, 0);
    std::vector<const T*> src(count);
    std::vector<T*> dst(count);
    memory.resize(expected.size());
    for (std::size_t k = 0; k < count; ++k) {
        for (std::size_t i = 0; i < 3; ++i)
            matrices[9 * k + 4 * i] = static_cast<T>(k + 1);
        expected[3 * k] = -static_cast<T>(k + 1);
        src[k] = &matrices[9 * k];
        dst[k] = &memory[3 * k];
    }
    expected[3 * count + 1] = -static_cast<T>(count);
    expected[3 * (count + 1) + 2] = static_cast<T>(count);
    constexpr std::uint32_t row = 3 * sizeof(T), matrix = 9 * sizeof(T);
    for (bool list : {false, true}) {
        std::fill(memory.begin(), memory.end(), T{7});
        T buffer[3];
        if constexpr (sizeof(T) == 4)
            list ? tenkQRDecomp_ma_32f_3x3_L(src.data(), 0, row, buffer, dst.data(), 0, row, count)
                 : tenkQRDecomp_ma_32f_3x3(src[0], matrix, row, buffer, dst[0], row, row, count);
        else
            list ? tenkQRDecomp_ma_64f_3x3_L(src.data(), 0, row, buffer, dst.data(), 0, row, count)
                 : tenkQRDecomp_ma_64f_3x3(src[0], matrix, row, buffer, dst[0], row, row, count);
        EXPECT_EQ(memory, expected) << list;
    }
}

} // namespace
