#include "tenk/lu_back_subst.h"

#include <algorithm>
#include <numeric>
#include <sys/mman.h>

#include "families/factors.h"
#include "tenk/lu_decomp.h"

using namespace factors;

namespace {

using Rows = std::vector<std::uint32_t>;

enum class Code
{
    mv,
    mva,
    mava
};
const char* text(Code c)
{
    return c == Code::mv ? "mv" : c == Code::mva ? "mva" : "mava";
}

// The two substitutions by hand.
template <typename T, typename Factor>
std::vector<T> solutionOf(Factor factor, const std::uint32_t* rows, const std::vector<T>& b)
{
    const std::size_t n = b.size();
    std::vector<T> x(n);
    for (std::size_t i = 0; i < n; ++i) {
        volatile T sum = 0;
        for (std::size_t j = 0; j < i; ++j) {
            const volatile T product = factor(rows[i], j) * x[j];
            sum = sum + product;
        }
        x[i] = i == 0 ? b[rows[0]] : b[rows[i]] - sum;
    }
    for (std::size_t i = n; i-- > 0;) {
        volatile T sum = 0;
        for (std::size_t j = i + 1; j < n; ++j) {
            const volatile T product = factor(rows[i], j) * x[j];
            sum = sum + product;
        }
        const volatile T difference = i + 1 < n ? x[i] - sum : x[i];
        x[i] = difference / factor(rows[i], i);
    }
    return x;
}

template <typename T>
bool stepsByFourBytes(Code code, Form form)
{
    return sizeof(T) == 8 && code == Code::mva && form == Form::list;
}

template <typename T>
struct Call
{
    Call(Code code, unsigned fixed, Form form, std::size_t n, std::size_t count)
        : name(nameOf<T>("LUBackSubst", text(code), fixed, form)),
          code(code),
          fixed(fixed),
          form(form),
          n(n),
          count(count),
          src1(form, code == Code::mava, false, n, n, count),
          src2(form, code != Code::mv, true, 1, n, count),
          dst(form, code != Code::mv, true, 1, n, count),
          rowIndex(src1.count * n)
    {
    }
    tenkStatus run() { return callByName(name, arguments()); }
    Arguments arguments()
    {
        Arguments all;
        src1.pass(all, code == Code::mva && !isTable(form));
        rowIndexAt = all.size();
        addPointer(all, rowIndex.data());
        src2At = all.size();
        src2.pass(all);
        dstAt = all.size();
        (inPlace ? src2 : dst).pass(all);
        orderAt = all.size();
        if (!fixed)
            addWord(all, static_cast<std::uint32_t>(n));
        if (code != Code::mv)
            addWord(all, static_cast<std::uint32_t>(count));
        return all;
    }
    const std::uint32_t* rowsOf(std::size_t k) const
    {
        return rowIndex.data() + (code == Code::mava ? k * n : 0);
    }
    auto factorOf(std::size_t k) const
    {
        return [this, k](std::size_t i, std::size_t j) {
            T x;
            const unsigned char* at = src1.address(code == Code::mava ? k : 0, i, j);
            if (stepsByFourBytes<T>(code, form))
                at -= j * 4;
            std::memcpy(&x, at, sizeof x);
            return x;
        };
    }
    // Random factors with pivots away from zero, arbitrary permutations, right-hand sides.
    void fill(std::mt19937& random)
    {
        fill(random, [&](Rows& rows, std::size_t) { std::shuffle(rows.begin(), rows.end(), random); });
    }
    // The same, but exchange(rows, k) changes the order of the rows of object k.
    template <typename F>
    void fill(std::mt19937& random, F exchange)
    {
        for (std::size_t k = 0; k < src1.count; ++k) {
            Rows rows(n);
            std::iota(rows.begin(), rows.end(), 0U);
            exchange(rows, k);
            std::copy(rows.begin(), rows.end(), rowIndex.begin() + static_cast<long>(k * n));
            src1.setObject(k, randomElements<T>(random, n * n));
            for (std::size_t p = 0; p < n; ++p)
                src1.set(k, rows[p], p, src1.get(k, rows[p], p) + (src1.get(k, rows[p], p) < 0 ? -1 : 1));
        }
        for (std::size_t k = 0; k < src2.count; ++k)
            src2.setObject(k, randomElements<T>(random, n));
    }

    std::string name;
    Code code;
    unsigned fixed;
    Form form;
    std::size_t n, count;
    Operand<T> src1, src2, dst;
    Rows rowIndex;
    bool inPlace = false;
    std::size_t rowIndexAt = 0, src2At = 0, dstAt = 0, orderAt = 0;
};

constexpr Shape shapes[] = {{0, 1, 1}, {0, 2, 2}, {0, 3, 3}, {0, 7, 7},
                            {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}};

template <typename T, typename F>
void eachCall(F f)
{
    for (const Shape& s : shapes)
        for (Form form : forms) {
            if (existsForOne(form)) {
                Call<T> call(Code::mv, s.fixed, form, s.width, 1);
                f(call);
            }
            for (Code code : {Code::mva, Code::mava})
                for (std::size_t count : {1, 4, 11, 37}) {
                    Call<T> call(code, s.fixed, form, s.width, count);
                    f(call);
                }
        }
}

template <typename T>
class LUBackSubst : public ::testing::Test
{
};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(LUBackSubst, Types);

TYPED_TEST(LUBackSubst, EveryMemberSubstitutesForwardAndBackwardThroughAnyPermutation)
{
    std::mt19937 random(1);
    eachCall<TypeParam>([&](auto& call) {
        call.fill(random);
        const auto factor = call.src1.memory;
        auto untouched = call.dst.memory;
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k) {
            const auto expected =
                solutionOf<TypeParam>(call.factorOf(k), call.rowsOf(k), call.src2.object(k));
            ASSERT_TRUE(same(call.dst.object(k), expected)) << call.name << " object " << k;
            for (std::size_t j = 0; j < call.n; ++j)
                std::memcpy(untouched.data() + (call.dst.address(k, 0, j) - call.dst.memory.data()),
                            call.dst.address(k, 0, j), sizeof(TypeParam));
        }
        EXPECT_EQ(call.dst.memory, untouched) << call.name;
        EXPECT_EQ(call.src1.memory, factor) << call.name;
    });
}

// Five members, among all that there are.
TYPED_TEST(LUBackSubst, OnlyTheMvaListMembersOf64fStepByFourBytes)
{
    std::mt19937 random(2);
    unsigned members = 0;
    eachCall<TypeParam>([&](auto& call) {
        if (call.n < 2 || call.count == 11 || (!call.fixed && call.n != 7))
            return;
        call.fill(random);
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        const auto proper = [&](std::size_t i, std::size_t j) { return call.src1.get(0, i, j); };
        const bool solves = bool(
            same(call.dst.object(0), solutionOf<TypeParam>(proper, call.rowsOf(0), call.src2.object(0))));
        EXPECT_EQ(solves, !stepsByFourBytes<TypeParam>(call.code, call.form)) << call.name;
        members += !solves && call.count == 4;
    });
    EXPECT_EQ(members, sizeof(TypeParam) == 8 ? 5U : 0U);
}

TEST(LUBackSubstStep, AFactorStoredWithAStepOfFourBytesIsSolvedByTheFive)
{
    // One column apart by 4 bytes, a diagonal matrix would overlap itself; of order 1 the step does not show.
    const double factor = 4, b[2] = {6, 10};
    const double* const src2[2] = {b, b + 1};
    double x[2];
    double* const dst[2] = {x, x + 1};
    const std::uint32_t r = 0;
    EXPECT_EQ(tenkLUBackSubst_mva_64f_L(&factor, 0, 8, &r, src2, 0, dst, 0, 1, 2), tenkOk);
    EXPECT_EQ(x[0], 1.5);
    EXPECT_EQ(x[1], 2.5);
}

// Decomposes in one layout and solves from each other one.
TYPED_TEST(LUBackSubst, AFactorMayBeReadInAnyLayoutAndSolvesTheSystem)
{
    using T = TypeParam;
    std::mt19937 random(3);
    for (Form written : forms)
        for (Form read : forms)
            for (Code code : {Code::mv, Code::mva, Code::mava})
                for (unsigned fixed : {0, 3, 4, 5, 6}) {
                    if (stepsByFourBytes<T>(code, read) || (code == Code::mv && !existsForOne(read)))
                        continue;
                    const std::size_t n = fixed ? fixed : 5, count = code == Code::mava ? 5 : 1;
                    Operand<T> a(written, true, false, n, n, count, n * count);
                    Call<T> call(code, fixed, read, n, 5);
                    call.fill(random);
                    for (std::size_t k = 0; k < count; ++k)
                        a.setObject(k, randomElements<T>(random, n * n));
                    Operand<T> out(written, true, false, n, n, count, n * count);
                    Arguments arguments;
                    a.pass(arguments);
                    addPointer(arguments, call.rowIndex.data());
                    out.pass(arguments);
                    if (!fixed)
                        addWord(arguments, static_cast<std::uint32_t>(n));
                    addWord(arguments, static_cast<std::uint32_t>(count));
                    ASSERT_EQ(callByName(nameOf<T>("LUDecomp", "ma", fixed, written), arguments), tenkOk);
                    for (std::size_t k = 0; k < count; ++k)
                        call.src1.setObject(k, out.object(k));
                    ASSERT_EQ(call.run(), tenkOk) << call.name;
                    for (std::size_t k = 0; k < call.dst.count; ++k) {
                        const std::size_t matrix = code == Code::mava ? k : 0;
                        // The same x to the bit as from the layout in which the factor was written.
                        const auto factor = [&](std::size_t i, std::size_t j) {
                            return out.get(matrix, i, j);
                        };
                        ASSERT_TRUE(same(call.dst.object(k),
                                         solutionOf<T>(factor, call.rowsOf(k), call.src2.object(k))))
                            << call.name << " written in " << suffix(written);
                        double scale = 1;
                        for (std::size_t j = 0; j < n; ++j)
                            scale = std::max(scale, double(std::abs(call.dst.get(k, 0, j))));
                        for (std::size_t i = 0; i < n; ++i) {
                            __float128 residual = -__float128(call.src2.get(k, 0, i));
                            for (std::size_t j = 0; j < n; ++j)
                                residual +=
                                    __float128(a.get(matrix, i, j)) * __float128(call.dst.get(k, 0, j));
                            ASSERT_LE(std::abs(double(residual)),
                                      128 * scale * std::numeric_limits<T>::epsilon())
                                << call.name;
                        }
                    }
                }
}

TYPED_TEST(LUBackSubst, TheDivisionIsATrueOneByThePivot)
{
    // x / 3 and x (1 / 3) differ for some x; the solve has the quotient everywhere.
    using T = TypeParam;
    T x = 1;
    const volatile T third = T{1} / 3;
    for (;; x += 1) {
        const volatile T product = x * third, quotient = x / 3;
        if (product != quotient)
            break;
    }
    const volatile T quotient = x / 3;
    eachCall<T>([&](auto& call) {
        if (stepsByFourBytes<T>(call.code, call.form))
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k)
            for (std::size_t i = 0; i < call.n; ++i) {
                call.rowIndex[k * call.n + i] = static_cast<std::uint32_t>(i);
                for (std::size_t j = 0; j < call.n; ++j)
                    call.src1.set(k, i, j, i == j ? 3 : 0);
            }
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.setObject(k, std::vector<T>(call.n, x));
        ASSERT_EQ(call.run(), tenkOk);
        for (std::size_t k = 0; k < call.dst.count; ++k)
            ASSERT_TRUE(same(call.dst.object(k), std::vector<T>(call.n, T{quotient}))) << call.name;
    });
}

TEST(LUBackSubstArithmetic, SumsStartAtPlusZero)
{
    // x[0] = 1, F(1, 0) = -0: the sum is +0 + -0 = +0, and -0 - +0 = -0; a sum of -0 alone would give +0.
    const float factor[9] = {1, 0, 0, -0.0F, 1, 0, 0, 0, 1};
    const std::uint32_t r[3] = {0, 1, 2};
    const float b[3] = {1, -0.0F, 0};
    float x[3];
    ASSERT_EQ(tenkLUBackSubst_mv_32f_3x3(factor, 12, r, b, x), tenkOk);
    EXPECT_TRUE(same(x[1], -0.0F));
    x[1] = 1;
    ASSERT_EQ(tenkLUBackSubst_mv_32f_3x3_S2(factor, 12, 4, r, b, 4, x, 4), tenkOk);
    EXPECT_TRUE(same(x[1], -0.0F));
    const float bs[4][3] = {{1, -0.0F, 0}, {1, -0.0F, 0}, {1, -0.0F, 0}, {1, -0.0F, 0}};
    float xs[4][3];
    ASSERT_EQ(tenkLUBackSubst_mva_32f_3x3(factor, 99, 12, r, bs[0], 12, xs[0], 12, 4), tenkOk);
    for (const auto& object : xs)
        EXPECT_TRUE(same(object[1], -0.0F));
}

// ---------------------------------------------------------------------------------------------------------------
// The documented edge cases
// ---------------------------------------------------------------------------------------------------------------

TYPED_TEST(LUBackSubst, ASystemOfOrder1IsOneDivision)
{
    using T = TypeParam;
    eachCall<T>([&](auto& call) {
        if (call.n != 1)
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k) {
            call.src1.set(k, 0, 0, T(3));
            call.rowIndex[k] = 0;
        }
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.set(k, 0, 0, T(k) + 2);
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k)
            EXPECT_EQ(call.dst.get(k, 0, 0), (T(k) + 2) / T(3)) << call.name << " object " << k;
    });
}

TYPED_TEST(LUBackSubst, InPlaceIsRightWithTheIdentityAndReadsWhatItWroteOtherwise)
{
    using T = TypeParam;
    // L = 1, U = 1 and rows 1 0 2 3: x[0] = b[1] is written before x[1] = b[0] is read, so both are b[1].
    const T identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const T exchanged[16] = {0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const std::uint32_t straight[16] = {0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3};
    const std::uint32_t crossed[16] = {1, 0, 2, 3, 1, 0, 2, 3, 1, 0, 2, 3, 1, 0, 2, 3};
    const auto solve = [](const T* factor, const std::uint32_t* rows, T* b) {
        if constexpr (sizeof(T) == 4)
            return tenkLUBackSubst_mava_32f_4x4(factor, 0, 16, rows, b, 16, b, 16, 4);
        else
            return tenkLUBackSubst_mava_64f_4x4(factor, 0, 32, rows, b, 32, b, 32, 4);
    };
    T b[16] = {1, 2, 3, 4, 5, 6, 7, 8, 1, 2, 3, 4, 5, 6, 7, 8};
    ASSERT_EQ(solve(identity, straight, b), tenkOk);
    const T same_[16] = {1, 2, 3, 4, 5, 6, 7, 8, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_TRUE(std::equal(b, b + 16, same_));
    ASSERT_EQ(solve(exchanged, crossed, b), tenkOk);
    const T spread[16] = {2, 2, 3, 4, 6, 6, 7, 8, 2, 2, 3, 4, 6, 6, 7, 8};
    EXPECT_TRUE(std::equal(b, b + 16, spread));
}

TYPED_TEST(LUBackSubst, EveryMemberWritesThroughTheRightHandSideInPlace)
{
    // The factor is the identity with its first two rows exchanged, or not: with rows 1 0 2 x[0] = b[1] is
    // written before x[1] = b[0] is read, so both are b[1].
    using T = TypeParam;
    eachCall<T>([&](auto& call) {
        if (call.n != 3 || stepsByFourBytes<T>(call.code, call.form))
            return;
        call.inPlace = true;
        for (bool exchanged : {false, true}) {
            for (std::size_t k = 0; k < call.src1.count; ++k)
                for (std::size_t i = 0; i < 3; ++i) {
                    const std::size_t row = exchanged && i < 2 ? 1 - i : i;
                    call.rowIndex[k * 3 + i] = static_cast<std::uint32_t>(row);
                    for (std::size_t j = 0; j < 3; ++j)
                        call.src1.set(k, row, j, i == j ? 1 : 0);
                }
            for (std::size_t k = 0; k < call.src2.count; ++k)
                call.src2.setObject(k, {T(10 * k + 1), T(10 * k + 2), T(10 * k + 3)});
            ASSERT_EQ(call.run(), tenkOk) << call.name;
            for (std::size_t k = 0; k < call.src2.count; ++k) {
                const std::vector<T> expected = {T(10 * k + (exchanged ? 2 : 1)), T(10 * k + 2),
                                                 T(10 * k + 3)};
                EXPECT_TRUE(same(call.src2.object(k), expected)) << call.name << " object " << k;
            }
        }
    });
}

TYPED_TEST(LUBackSubst, ADestinationOverLaterRightHandSidesIsReadAsWritten)
{
    using T = TypeParam;
    const T identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::uint32_t rows[3] = {0, 1, 2};
    T memory[24];
    for (int e = 0; e < 24; ++e)
        memory[e] = static_cast<T>(e);
    if constexpr (sizeof(T) == 4)
        ASSERT_EQ(tenkLUBackSubst_mva_32f_3x3(identity, 1, 12, rows, memory, 12, memory + 3, 12, 7), tenkOk);
    else
        ASSERT_EQ(tenkLUBackSubst_mva_64f_3x3(identity, 1, 24, rows, memory, 24, memory + 3, 24, 7), tenkOk);
    for (int e = 0; e < 24; ++e)
        EXPECT_EQ(memory[e], e % 3);
}

TYPED_TEST(LUBackSubst, AZeroPivotGivesInfinitiesAndNaNsWithOk)
{
    using T = TypeParam;
    eachCall<T>([&](auto& call) {
        if (call.n != 3 || stepsByFourBytes<T>(call.code, call.form))
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k) {
            call.src1.setObject(k, {1, 1, 0, 0, 1, 1, 0, 0, 0});
            for (std::uint32_t i = 0; i < 3; ++i)
                call.rowIndex[k * 3 + i] = i;
        }
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.setObject(k, {1, 1, 1});
        ASSERT_EQ(call.run(), tenkOk);
        for (std::size_t k = 0; k < call.dst.count; ++k) {
            const T infinity = std::numeric_limits<T>::infinity();
            EXPECT_EQ(call.dst.get(k, 0, 2), infinity) << call.name;
            EXPECT_EQ(call.dst.get(k, 0, 1), -infinity) << call.name;
            EXPECT_TRUE(std::isnan(call.dst.get(k, 0, 0))) << call.name; // infinity x 0 in the sum
        }
    });
}

TYPED_TEST(LUBackSubst, ANaNAboveTheDiagonalReachesTheUnknownsAtAndBeforeItsRow)
{
    using T = TypeParam;
    std::mt19937 random(4);
    eachCall<T>([&](auto& call) {
        if (call.n < 3 || stepsByFourBytes<T>(call.code, call.form))
            return;
        call.fill(random);
        for (std::size_t k = 0; k < call.src1.count; ++k)
            call.src1.set(k, call.rowsOf(k)[1], 2, std::numeric_limits<T>::quiet_NaN());
        ASSERT_EQ(call.run(), tenkOk);
        for (std::size_t k = 0; k < call.dst.count; ++k)
            for (std::size_t j = 0; j < call.n; ++j)
                EXPECT_EQ(std::isnan(call.dst.get(k, 0, j)), j <= 1) << call.name << j;
    });
}

TYPED_TEST(LUBackSubst, NullComesBeforeSizeAndSizeBeforeCount)
{
    std::mt19937 random(5);
    eachCall<TypeParam>([&](auto& call) {
        call.fill(random);
        const auto memory = call.dst.memory;
        Arguments all = call.arguments();
        if (call.code != Code::mv) {
            all.back().bits = 0;
            EXPECT_EQ(callByName(call.name, all), tenkOk) << call.name;
        }
        if (!call.fixed) {
            all[call.orderAt].bits = 0;
            EXPECT_EQ(callByName(call.name, all), tenkSizeError) << call.name;
        }
        for (std::size_t at : {std::size_t{0}, call.rowIndexAt, call.src2At, call.dstAt}) {
            Arguments null = all;
            null[at].bits = 0;
            EXPECT_EQ(callByName(call.name, null), tenkNullPointerError) << call.name;
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
    });
}

TYPED_TEST(LUBackSubst, ANullEntryOfATableFailsBeforeAnythingIsWritten)
{
    std::mt19937 random(6);
    eachCall<TypeParam>([&](auto& call) {
        if (!isTable(call.form))
            return;
        call.fill(random);
        const auto memory = call.dst.memory;
        for (auto* operand : {&call.src1, &call.src2, &call.dst}) {
            unsigned char*& last = operand->pointers[operand->rows * operand->columns - 1];
            unsigned char* const kept = last;
            last = nullptr;
            Arguments all = call.arguments();
            EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            if (call.code != Code::mv) {
                all.back().bits = 0;
                EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            }
            last = kept;
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
    });
}

TYPED_TEST(LUBackSubst, ANullEntryOfAListFailsWhenItsObjectIsReached)
{
    std::mt19937 random(7);
    eachCall<TypeParam>([&](auto& call) {
        if (!isList(call.form) || call.count < 4)
            return;
        for (auto* operand : {&call.src1, &call.src2, &call.dst})
            for (std::size_t bad : {std::size_t{0}, std::size_t{2}, call.count - 1}) {
                if (!operand->array)
                    continue;
                call.fill(random);
                std::fill(call.dst.memory.begin(), call.dst.memory.end(), std::uint8_t{1});
                unsigned char* const kept = operand->pointers[bad];
                operand->pointers[bad] = nullptr;
                EXPECT_EQ(call.run(), tenkNullPointerError) << call.name;
                operand->pointers[bad] = kept;
                for (std::size_t k = 0; k < call.count; ++k) {
                    const auto solved =
                        solutionOf<TypeParam>(call.factorOf(k), call.rowsOf(k), call.src2.object(k));
                    EXPECT_EQ(bool(same(call.dst.object(k), solved)), k < bad) << call.name << k;
                }
            }
    });
}

TYPED_TEST(LUBackSubst, ListsAreReadUpToTheFirstNullEntryWhereverThePagesEnd)
{
    // With the identity x = b. One of the lists has a null entry, and lies somewhere on two pages: it begins
    // with the first, or ends with the second by its null entry, or runs over from one to the other. The
    // pages around them cannot be read.
    using T = TypeParam;
    constexpr std::size_t page = 4096, count = 37;
    constexpr std::uint32_t row = 4 * sizeof(T);
    auto* const memory = static_cast<char*>(
        mmap(nullptr, 4 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    ASSERT_EQ(mprotect(memory, page, PROT_NONE), 0);
    ASSERT_EQ(mprotect(memory + 3 * page, page, PROT_NONE), 0);

    // Everything that is read lies behind all results.
    std::vector<T> elements(2 * 4 * count + 16);
    T *const x = elements.data(), *const b = x + 4 * count, *const identity = b + 4 * count;
    for (std::size_t i = 0; i < 4; ++i)
        identity[5 * i] = 1;
    std::iota(b, b + 4 * count, T{1});
    std::uint32_t rows[4 * count];
    for (std::size_t e = 0; e < 4 * count; ++e)
        rows[e] = static_cast<std::uint32_t>(e % 4);

    for (int which : {0, 1, 2})
        for (std::size_t bad = 0; bad < count; ++bad)
            for (std::size_t before = 0; before <= bad + 2; ++before) {
                std::vector<T*> lists[3];
                for (std::size_t k = 0; k < count; ++k) {
                    lists[0].push_back(identity);
                    lists[1].push_back(&b[4 * k]);
                    lists[2].push_back(&x[4 * k]);
                }
                const bool atTheEnd = before == bad + 1, atTheBeginning = before == bad + 2;
                auto** const boundary = reinterpret_cast<T**>(memory + (atTheEnd         ? 3
                                                                        : atTheBeginning ? 1
                                                                                         : 2) *
                                                                           page);
                auto** const list = atTheBeginning ? boundary : boundary - before;
                std::copy(lists[which].begin(), lists[which].begin() + (atTheEnd ? bad + 1 : count), list);
                list[bad] = nullptr;
                T** const at[3] = {which == 0 ? list : lists[0].data(), which == 1 ? list : lists[1].data(),
                                   which == 2 ? list : lists[2].data()};
                std::fill(x, x + 4 * count, T{});
                tenkStatus status;
                if constexpr (sizeof(T) == 4)
                    status = tenkLUBackSubst_mava_32f_4x4_L(at[0], 0, row, rows, at[1], 0, at[2], 0, count);
                else
                    status = tenkLUBackSubst_mava_64f_4x4_L(at[0], 0, row, rows, at[1], 0, at[2], 0, count);
                ASSERT_EQ(status, tenkNullPointerError) << which << " " << bad << " " << before;
                for (std::size_t e = 0; e < 4 * count; ++e)
                    ASSERT_EQ(x[e], e < 4 * bad ? b[e] : 0) << which << " " << bad << " " << before;
            }
    munmap(memory, 4 * page);
}

TYPED_TEST(LUBackSubst, EntriesOfRowIndexAreUsedAsTheyStand)
{
    // Row 4 of a matrix of order 3 is two rows behind it, b[4] two elements behind the right-hand side.
    using T = TypeParam;
    const T factor[15] = {2, 0, 0, 0, 4, 0, 9, 9, 9, 9, 9, 9, 0, 0, 8}, b[5] = {2, 8, 9, 9, 32};
    std::uint32_t rows[15];
    for (std::size_t e = 0; e < 15; ++e)
        rows[e] = e % 3 == 2 ? 4U : static_cast<std::uint32_t>(e % 3);
    T x[15];
    constexpr std::uint32_t row = 3 * sizeof(T);
    for (bool oneFactor : {false, true}) {
        if constexpr (sizeof(T) == 4)
            (oneFactor ? tenkLUBackSubst_mva_32f_3x3 : tenkLUBackSubst_mava_32f_3x3)(factor, 0, row, rows, b,
                                                                                     0, x, row, 5);
        else
            (oneFactor ? tenkLUBackSubst_mva_64f_3x3 : tenkLUBackSubst_mava_64f_3x3)(factor, 0, row, rows, b,
                                                                                     0, x, row, 5);
        for (std::size_t k = 0; k < 5; ++k)
            EXPECT_TRUE(same({x[3 * k], x[3 * k + 1], x[3 * k + 2]}, std::vector<T>{1, 2, 4})) << oneFactor;
    }
}

TYPED_TEST(LUBackSubst, RowsInOrderButThoseOfOneObject)
{
    using T = TypeParam;
    std::mt19937 random(17);
    for (unsigned n = 3; n <= 6; ++n)
        for (Form form : {Form::standard, Form::list})
            for (std::size_t count : {1U, 4U, 8U, 9U, 16U, 21U, 37U})
                for (std::size_t other : {0U, 2U, 7U, 8U, 15U, 20U, 31U, 37U}) {
                    if (other > count)
                        continue;
                    Call<T> call(Code::mava, n, form, n, count);
                    call.fill(random, [&](Rows& rows, std::size_t k) {
                        if (k == other)
                            std::swap(rows[n - 1], rows[random() % (n - 1)]);
                    });
                    ASSERT_EQ(call.run(), tenkOk);
                    for (std::size_t k = 0; k < count; ++k)
                        EXPECT_TRUE(same(call.dst.object(k),
                                         solutionOf(call.factorOf(k), call.rowsOf(k), call.src2.object(k))))
                            << call.name << " of " << count << ", object " << k << ", exchanged " << other;
                }
}

TYPED_TEST(LUBackSubst, ABatchWithoutGapsInOrderAndExchanged)
{
    // L = (1; 3 1; 1 2 1), U = (2 4 6; 5 10; 4), b = (2, 16, 20): y = (2, 10, -2), x = (-7/2, 3, -1/2).
    // Object 5 has its rows exchanged.
    using T = TypeParam;
    const std::vector<T> inOrder = {2, 4, 6, 3, 5, 10, 1, 2, 4}, exchanged = {1, 2, 4, 2, 4, 6, 3, 5, 10};
    std::vector<T> factors, b, x(27);
    std::vector<std::uint32_t> rows;
    for (std::size_t k = 0; k < 9; ++k) {
        const bool other = k == 5;
        factors.insert(factors.end(), (other ? exchanged : inOrder).begin(),
                       (other ? exchanged : inOrder).end());
        for (T value : other ? std::vector<T>{20, 2, 16} : std::vector<T>{2, 16, 20})
            b.push_back(value);
        for (std::uint32_t entry :
             other ? std::vector<std::uint32_t>{1, 2, 0} : std::vector<std::uint32_t>{0, 1, 2})
            rows.push_back(entry);
    }
    constexpr std::uint32_t row = 3 * sizeof(T);
    if constexpr (sizeof(T) == 4)
        tenkLUBackSubst_mava_32f_3x3(factors.data(), 3 * row, row, rows.data(), b.data(), row, x.data(), row,
                                     9);
    else
        tenkLUBackSubst_mava_64f_3x3(factors.data(), 3 * row, row, rows.data(), b.data(), row, x.data(), row,
                                     9);
    for (std::size_t k = 0; k < 9; ++k)
        EXPECT_TRUE(same({x[3 * k], x[3 * k + 1], x[3 * k + 2]}, std::vector<T>{T(-3.5), 3, T(-0.5)})) << k;
}

TYPED_TEST(LUBackSubst, ARowOutOfRangeIsReadWhenItsObjectIsReached)
{
    // The results stand behind the factor, the identity of order 3: row 3 of it is the solution of object 0.
    using T = TypeParam;
    constexpr std::uint32_t row = 3 * sizeof(T);
    std::vector<T> memory = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    memory.resize(9 + 4 * 3, 7);
    const std::vector<T> before = memory;
    const auto results = [&] { return std::vector<T>(memory.begin() + 9, memory.end()); };

    // Rows 0 1 3 for object 1: 1, 2 and 4 of object 0 are L(2, 0), L(2, 1) and U(2, 2); b[3] is 21, the first
    // element of object 2. So y = (3, 5, 21 - (3 + 10)) and x[2] = 8 / 4.
    const std::uint32_t rows[12] = {0, 1, 2, 0, 1, 3, 0, 1, 2, 0, 1, 2};
    const T b[12] = {1, 2, 4, 3, 5, 9, 21, 6, 7, 8, 9, 10};
    if constexpr (sizeof(T) == 4)
        tenkLUBackSubst_mava_32f_3x3(&memory[0], 0, row, rows, b, row, &memory[9], row, 4);
    else
        tenkLUBackSubst_mava_64f_3x3(&memory[0], 0, row, rows, b, row, &memory[9], row, 4);
    EXPECT_TRUE(same(results(), std::vector<T>{1, 2, 4, 3, 5, 2, 21, 6, 7, 8, 9, 10}));

    // Rows 0 1 3 for all objects. Object 0 reads in row 3 what it writes: y = (1, 2, 3 - (1 + 4)), divided by
    // itself. The others read (1, 2, 1): y[2] is 4 - (3 + 10), 2 - (4 + 2), 30 - (2 + 12).
    memory = before;
    const std::uint32_t oneOrder[3] = {0, 1, 3};
    const T c[13] = {1, 2, 9, 3, 5, 9, 4, 1, 9, 2, 6, 9, 30};
    if constexpr (sizeof(T) == 4)
        tenkLUBackSubst_mva_32f_3x3(&memory[0], 0, row, oneOrder, c, row, &memory[9], row, 4);
    else
        tenkLUBackSubst_mva_64f_3x3(&memory[0], 0, row, oneOrder, c, row, &memory[9], row, 4);
    EXPECT_TRUE(same(results(), std::vector<T>{1, 2, 1, 3, 5, -9, 4, 1, -4, 2, 6, 16}));
}

TYPED_TEST(LUBackSubst, ARowOutOfRangeOfOrder4IsReadWhenItsObjectIsReached)
{
    // As above: row 4 of the identity is the solution (1, 2, 1, 4) of object 0, for object 1 the last row of
    // the factor. b[4] is 39, the first element of object 2: y[3] = 39 - (3 + 10 + 2) and x[3] = 24 / 4.
    using T = TypeParam;
    constexpr std::uint32_t row = 4 * sizeof(T);
    std::vector<T> memory = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    memory.resize(16 + 8 * 4, 7);
    std::uint32_t rows[32];
    for (std::size_t e = 0; e < 32; ++e)
        rows[e] = e == 7 ? 4U : static_cast<std::uint32_t>(e % 4);
    std::vector<T> b = {1, 2, 1, 4, 3, 5, 2, 9, 39};
    while (b.size() < 32)
        b.push_back(static_cast<T>(b.size()));
    if constexpr (sizeof(T) == 4)
        tenkLUBackSubst_mava_32f_4x4(&memory[0], 0, row, rows, &b[0], row, &memory[16], row, 8);
    else
        tenkLUBackSubst_mava_64f_4x4(&memory[0], 0, row, rows, &b[0], row, &memory[16], row, 8);
    b[7] = 6;
    EXPECT_TRUE(same(std::vector<T>(memory.begin() + 16, memory.end()), b));
}

TYPED_TEST(LUBackSubst, ResultsThatShareMemoryAreWrittenOneAfterTheOther)
{
    // With the identity x = b. Each result begins at the second element of the one before, by a step and by
    // lists: the first elements of all stay, and the whole of the last.
    using T = TypeParam;
    const T identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::uint32_t rows[24] = {0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2};
    T b[24], x[10];
    const T* factors[8];
    const T* src2[8];
    T* dst[8];
    for (std::size_t k = 0; k < 8; ++k) {
        for (std::size_t i = 0; i < 3; ++i)
            b[3 * k + i] = static_cast<T>(10 * (k + 1) + i);
        factors[k] = identity;
        src2[k] = &b[3 * k];
        dst[k] = &x[k];
    }
    const std::vector<T> expected = {10, 20, 30, 40, 50, 60, 70, 80, 81, 82};
    constexpr std::uint32_t row = 3 * sizeof(T), element = sizeof(T);
    for (int member = 0; member < 3; ++member) {
        std::fill(x, x + 10, T{0});
        if constexpr (sizeof(T) == 4)
            member == 0   ? tenkLUBackSubst_mva_32f_3x3(identity, 0, row, rows, b, row, x, element, 8)
            : member == 1 ? tenkLUBackSubst_mava_32f_3x3(identity, 0, row, rows, b, row, x, element, 8)
                          : tenkLUBackSubst_mava_32f_3x3_L(factors, 0, row, rows, src2, 0, dst, 0, 8);
        else
            member == 0   ? tenkLUBackSubst_mva_64f_3x3(identity, 0, row, rows, b, row, x, element, 8)
            : member == 1 ? tenkLUBackSubst_mava_64f_3x3(identity, 0, row, rows, b, row, x, element, 8)
                          : tenkLUBackSubst_mava_64f_3x3_L(factors, 0, row, rows, src2, 0, dst, 0, 8);
        EXPECT_TRUE(same(std::vector<T>(x, x + 10), expected)) << member;
    }
}

TYPED_TEST(LUBackSubst, AResultIsReadByALaterObject)
{
    // With the identity x = b. The result of an object is the right-hand side of the one that comes some
    // objects later, so that the first right-hand sides come again and again.
    using T = TypeParam;
    constexpr std::size_t count = 48;
    constexpr std::uint32_t row = 3 * sizeof(T);
    const T identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::uint32_t rows[3 * count];
    for (std::size_t e = 0; e < 3 * count; ++e)
        rows[e] = static_cast<std::uint32_t>(e % 3);
    for (std::size_t later : {1, 2, 3, 5, 8, 9, 15, 16, 17, 31, 32})
        for (int member = 0; member < 4; ++member) {
            std::vector<T> memory(3 * (count + later), 7);
            for (std::size_t e = 0; e < 3 * later; ++e)
                memory[e] = static_cast<T>(e + 1);
            T* const x = &memory[3 * later];
            const std::vector<const T*> factors(count, identity);
            std::vector<const T*> src2;
            std::vector<T*> dst;
            for (std::size_t k = 0; k < count; ++k) {
                src2.push_back(&memory[3 * k]);
                dst.push_back(x + 3 * k);
            }
            if constexpr (sizeof(T) == 4)
                member == 0
                    ? tenkLUBackSubst_mva_32f_3x3(identity, 0, row, rows, &memory[0], row, x, row, count)
                : member == 1
                    ? tenkLUBackSubst_mava_32f_3x3(identity, 0, row, rows, &memory[0], row, x, row, count)
                : member == 2
                    ? tenkLUBackSubst_mva_32f_3x3_L(identity, 0, row, rows, &src2[0], 0, &dst[0], 0, count)
                    : tenkLUBackSubst_mava_32f_3x3_L(&factors[0], 0, row, rows, &src2[0], 0, &dst[0], 0,
                                                     count);
            else
                member == 0
                    ? tenkLUBackSubst_mva_64f_3x3(identity, 0, row, rows, &memory[0], row, x, row, count)
                : member == 1
                    ? tenkLUBackSubst_mava_64f_3x3(identity, 0, row, rows, &memory[0], row, x, row, count)
                    : tenkLUBackSubst_mava_64f_3x3_L(&factors[0], 0, row, rows, &src2[0], 0, &dst[0], 0,
                                                     count);
            for (std::size_t e = 0; e < memory.size(); ++e)
                EXPECT_EQ(memory[e], static_cast<T>(e % (3 * later) + 1))
                    << later << " " << member << " " << e;
        }
}

// With the identity of order 3 x = b, element after element: copies within one memory, by lists of the
// elements where right-hand sides and results begin.
template <typename T>
void expectCopies(const std::vector<std::size_t>& from, const std::vector<std::size_t>& to, const char* what)
{
    const std::size_t count = to.size();
    std::vector<T> memory(
        std::max(*std::max_element(from.begin(), from.end()), *std::max_element(to.begin(), to.end())) + 3);
    std::iota(memory.begin(), memory.end(), T{1});
    std::vector<T> expected = memory;
    for (std::size_t k = 0; k < count; ++k)
        for (std::size_t i = 0; i < 3; ++i)
            expected[to[k] + i] = expected[from[k] + i];

    const T identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const std::vector<T> start = memory;
    const std::vector<const T*> factors(count, identity);
    std::vector<const T*> src2;
    std::vector<T*> dst;
    std::vector<std::uint32_t> rows;
    for (std::size_t k = 0; k < count; ++k) {
        src2.push_back(&memory[from[k]]);
        dst.push_back(&memory[to[k]]);
        for (std::uint32_t row : {0U, 1U, 2U})
            rows.push_back(row);
    }
    const auto words = static_cast<std::uint32_t>(count);
    if constexpr (sizeof(T) == 4) {
        ASSERT_EQ(tenkLUBackSubst_mva_32f_3x3_L(identity, 0, 12, &rows[0], &src2[0], 0, &dst[0], 0, words),
                  tenkOk);
        EXPECT_TRUE(same(memory, expected)) << what << ", one factor";
        memory = start;
        ASSERT_EQ(
            tenkLUBackSubst_mava_32f_3x3_L(&factors[0], 0, 12, &rows[0], &src2[0], 0, &dst[0], 0, words),
            tenkOk);
    } else {
        ASSERT_EQ(
            tenkLUBackSubst_mava_64f_3x3_L(&factors[0], 0, 24, &rows[0], &src2[0], 0, &dst[0], 0, words),
            tenkOk);
    }
    EXPECT_TRUE(same(memory, expected)) << what;
}

// Elements 3 apart from `first` on.
std::vector<std::size_t> inARow(std::size_t count, std::size_t first)
{
    std::vector<std::size_t> elements;
    for (std::size_t k = 0; k < count; ++k)
        elements.push_back(first + 3 * k);
    return elements;
}

TYPED_TEST(LUBackSubst, ResultsOfListsAreReadByLaterObjectsWhereverTheyLie)
{
    using T = TypeParam;
    for (std::size_t count : {17U, 33U, 40U}) {
        const auto results = inARow(count, 300);
        const auto below = inARow(count, 30), above = inARow(count, 600);
        for (const auto& elsewhere : {below, above}) {
            expectCopies<T>(elsewhere, results, "nothing");
            for (std::size_t reader = 1; reader < count; ++reader)
                for (std::size_t back : {1U, 2U, 7U, 9U}) {
                    if (back > reader)
                        continue;
                    auto from = elsewhere;
                    from[reader] = results[reader - back];
                    expectCopies<T>(from, results, "a result");
                    // Its last element is the first of the result, or its first the last.
                    from[reader] = results[reader - back] - 2;
                    expectCopies<T>(from, results, "the beginning of a result");
                    from[reader] = results[reader - back] + 2;
                    expectCopies<T>(from, results, "the end of a result");
                }
        }
        // All of them read the first element of the first result, which object 0 writes.
        expectCopies<T>(std::vector<std::size_t>(count, 298), results, "the beginning of all");
    }
}

TYPED_TEST(LUBackSubst, ResultsOfListsThatDoNotAscendAreReadByLaterObjects)
{
    // The last result lies before the first one, or before others.
    using T = TypeParam;
    for (std::size_t count : {9U, 17U, 18U, 33U})
        for (std::size_t last : {290U, 299U, 303U, 309U})
            for (std::size_t source : {30U, 600U})
                for (std::size_t reader = 5; reader < count; ++reader) {
                    auto from = inARow(count, source), to = inARow(count, 300);
                    to.back() = last;
                    from[reader] = to[reader - 3];
                    expectCopies<T>(from, to, "a result before others");
                }
}

TYPED_TEST(LUBackSubst, LongBatchesOfLists)
{
    // Lists of 700 objects, longer than what is looked at together: right-hand sides apart from all results,
    // then those of some objects among the results of the objects before.
    using T = TypeParam;
    constexpr std::size_t count = 700;
    const auto results = inARow(count, 3000), sources = inARow(count, 600);
    expectCopies<T>(sources, results, "nothing");
    expectCopies<T>(inARow(count, 6000), results, "nothing");
    for (std::size_t first = 240; first < 528; ++first) {
        auto from = sources;
        for (std::size_t k = first; k < first + 8; ++k)
            from[k] = results[k - 8];
        expectCopies<T>(from, results, "the results of the objects before");
    }
    // The results of some objects lie in front of all others; they are read by the next ones.
    for (std::size_t first = 248; first < 272; ++first) {
        auto from = sources, to = results;
        to[first] = 2900;
        from[first + 1] = from[first + 5] = 2900;
        expectCopies<T>(from, to, "a result in front of all");
    }
}

TYPED_TEST(LUBackSubst, LongBatchesExchangedFromAnObjectOn)
{
    using T = TypeParam;
    std::mt19937 random(29);
    constexpr std::size_t count = 600;
    for (unsigned n = 3; n <= 6; ++n)
        for (Form form : {Form::standard, Form::list})
            for (std::size_t exchanged : {0U, 255U, 256U, 300U, 600U}) {
                Call<T> call(Code::mava, n, form, n, count);
                call.fill(random, [&](Rows& rows, std::size_t k) {
                    if (k >= exchanged)
                        std::swap(rows[n - 1], rows[random() % n]);
                });
                ASSERT_EQ(call.run(), tenkOk);
                std::vector<std::vector<T>> solutions;
                for (std::size_t k = 0; k < count; ++k) {
                    solutions.push_back(solutionOf(call.factorOf(k), call.rowsOf(k), call.src2.object(k)));
                    ASSERT_TRUE(same(call.dst.object(k), solutions[k]))
                        << call.name << ", object " << k << ", exchanged from " << exchanged;
                }

                // The same without gaps between rows or objects.
                std::vector<T> factors, b, x(n * count);
                std::vector<const T*> factorList, bList;
                std::vector<T*> xList;
                for (std::size_t k = 0; k < count; ++k) {
                    const auto factor = call.src1.object(k), right = call.src2.object(k);
                    factors.insert(factors.end(), factor.begin(), factor.end());
                    b.insert(b.end(), right.begin(), right.end());
                }
                for (std::size_t k = 0; k < count; ++k) {
                    factorList.push_back(&factors[k * n * n]);
                    bList.push_back(&b[k * n]);
                    xList.push_back(&x[k * n]);
                }
                const auto row = static_cast<std::uint32_t>(n * sizeof(T));
                const bool list = form == Form::list;
                Arguments all;
                addPointer(all, list ? static_cast<void*>(&factorList[0]) : &factors[0]);
                addWord(all, list ? 0 : n * row);
                addWord(all, row);
                addPointer(all, call.rowIndex.data());
                addPointer(all, list ? static_cast<void*>(&bList[0]) : &b[0]);
                addWord(all, list ? 0 : row);
                addPointer(all, list ? static_cast<void*>(&xList[0]) : &x[0]);
                addWord(all, list ? 0 : row);
                addWord(all, static_cast<std::uint32_t>(count));
                ASSERT_EQ(callByName(call.name, all), tenkOk);
                for (std::size_t k = 0; k < count; ++k)
                    ASSERT_TRUE(same(std::vector<T>(xList[k], xList[k] + n), solutions[k]))
                        << call.name << " without gaps, object " << k << ", exchanged from " << exchanged;
            }
}

TYPED_TEST(LUBackSubst, ListsMayHoldDistancesFromAShift)
{
    // The shift is an address, and the entries of one list are distances from there; the one of 0 is null.
    using T = TypeParam;
    constexpr std::size_t page = 4096, count = 24;
    constexpr std::uint32_t row = 3 * sizeof(T);
    int flags = MAP_PRIVATE | MAP_ANONYMOUS;
#ifdef MAP_32BIT
    flags |= MAP_32BIT;
#endif
    auto* const memory = static_cast<T*>(mmap(nullptr, 4 * page, PROT_READ | PROT_WRITE, flags, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    T *const x = memory, *const b = x + 3 * count + 3, *const identity = b + 3 * count + 3;
    identity[0] = identity[4] = identity[8] = 1;
    std::iota(b, b + 3 * count, T{1});
    std::uint32_t rows[3 * count];
    for (std::size_t e = 0; e < 3 * count; ++e)
        rows[e] = static_cast<std::uint32_t>(e % 3);

    for (int which : {0, 1, 2})
        for (bool backwards : {false, true})
            for (std::size_t null :
                 {std::size_t{0}, std::size_t{5}, std::size_t{8}, std::size_t{13}, std::size_t{15}, count}) {
                T* at[3] = {identity, b, x};
                std::vector<const T*> lists[3];
                std::uint32_t shifts[3] = {0, 0, 0};
                for (std::size_t k = 0; k < count; ++k) {
                    const std::size_t e = 3 * (which < 2 && backwards ? count - 1 - k : k);
                    lists[0].push_back(at[0]);
                    lists[1].push_back(at[1] + e);
                    lists[2].push_back(at[2] + 3 * k);
                }
                // Object `null` is where the shift points to, or none is.
                const T* const base = null < count ? lists[which][null] : at[which] - 1;
                shifts[which] = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(base));
                for (const T*& entry : lists[which])
                    entry = reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(entry) -
                                                       reinterpret_cast<std::uintptr_t>(base));
                std::fill(x, x + 3 * count, T{});
                auto** const results = const_cast<T**>(&lists[2][0]);
                const auto call = [&](auto f) {
                    return f(&lists[0][0], shifts[0], row, rows, &lists[1][0], shifts[1], results, shifts[2],
                             count);
                };
                tenkStatus status;
                if constexpr (sizeof(T) == 4)
                    status = call(tenkLUBackSubst_mava_32f_3x3_L);
                else
                    status = call(tenkLUBackSubst_mava_64f_3x3_L);
                const std::size_t solved = which == 0 && null < count ? 0 : null;
                EXPECT_EQ(status, null < count ? tenkNullPointerError : tenkOk) << which << " " << null;
                for (std::size_t k = 0; k < count; ++k)
                    for (std::size_t i = 0; i < 3; ++i) {
                        const std::size_t e = 3 * (which < 2 && backwards ? count - 1 - k : k) + i;
                        EXPECT_EQ(x[3 * k + i], k < solved ? static_cast<T>(e + 1) : T{0})
                            << which << " " << backwards << " " << null << " " << k;
                    }
            }
    munmap(memory, 4 * page);
}

TYPED_TEST(LUBackSubst, TheOneFactorIsReadAgainAfterAResultHasChangedIt)
{
    // The result of object 0 is row 0 of the identity: y = (2, 3, 0) and x = ((2 - (3 x 3 + 0)) / 2, 3, 0)
    // there. The others are solved with that row: x[0] = (3 k + 7 - 3 k) / (-7/2).
    using T = TypeParam;
    constexpr std::size_t count = 40;
    constexpr std::uint32_t row = 3 * sizeof(T);
    const std::uint32_t rows[3] = {0, 1, 2};
    std::vector<T> b = {2, 3, 0};
    for (std::size_t k = 1; k < count; ++k)
        for (T element : {static_cast<T>(3 * k + 7), static_cast<T>(k), T{1}})
            b.push_back(element);
    for (bool list : {false, true}) {
        std::vector<T> memory(9 * count);
        memory[0] = memory[4] = memory[8] = 1;
        std::vector<const T*> src2;
        std::vector<T*> dst;
        for (std::size_t k = 0; k < count; ++k) {
            src2.push_back(&b[3 * k]);
            dst.push_back(&memory[9 * k]);
        }
        if constexpr (sizeof(T) == 4)
            list ? tenkLUBackSubst_mva_32f_3x3_L(&memory[0], 0, row, rows, &src2[0], 0, &dst[0], 0, count)
                 : tenkLUBackSubst_mva_32f_3x3(&memory[0], 0, row, rows, &b[0], row, &memory[0], 3 * row,
                                               count);
        else if (!list)
            tenkLUBackSubst_mva_64f_3x3(&memory[0], 0, row, rows, &b[0], row, &memory[0], 3 * row, count);
        else
            continue; // which reads its factor with another step
        EXPECT_TRUE(same({memory[0], memory[1], memory[2]}, std::vector<T>{T(-3.5), 3, 0})) << list;
        for (std::size_t k = 1; k < count; ++k)
            EXPECT_TRUE(same({dst[k][0], dst[k][1], dst[k][2]}, std::vector<T>{-2, static_cast<T>(k), 1}))
                << list << k;
    }
}

} // namespace
