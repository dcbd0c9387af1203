// FrobNorm: edge cases by hand; the members with a promised order against plain expressions, the others
// against a bound.
#include "tenk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sys/mman.h>
#include <vector>
#include <xmmintrin.h>

#include "results.h"
#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();

template <typename T>
std::string nameOf(bool array, unsigned size, const std::string& layout)
{
    const std::string n = std::to_string(size);
    return std::string("tenkFrobNorm_") + (array ? "ma_" : "m_") + typeName<T>() +
           (size == 0 ? "" : "_" + n + "x" + n) + layout;
}

// The five steps behind the processor's estimate.
float fiveSteps(float s)
{
    const float y = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(s)));
    const float a = s * (y * y);
    const float b = 3.0F - a;
    const float c = 0.5F * b;
    const float d = y * c;
    return s * d;
}

// A member called on `count` objects of height x width elements.
template <typename T>
std::vector<T> norms(bool array, unsigned size, const std::string& layout, const Objects<T>& a,
                     unsigned width, unsigned height, unsigned count)
{
    std::vector<T> dst(count + 1, T(9));
    Arguments sizes, counts;
    if (size == 0)
        sizes = {word(width), word(height)};
    if (array)
        counts.push_back(word(count));
    const std::string name = nameOf<T>(array, size, layout);
    EXPECT_EQ(callByName(name, {a.arguments(), sizes, {pointer(dst.data())}, counts}), tenkOk) << name;
    EXPECT_EQ(dst[count], T(9)) << name;
    dst.pop_back();
    return dst;
}

// ---------------------------------------------------------------------------------------------------------------
// One sum in order
// ---------------------------------------------------------------------------------------------------------------

template <typename T>
void checkOrder(bool array, unsigned size, const std::string& layout)
{
    const unsigned count = array ? 5 : 1, width = size == 0 ? 4 : size, height = size == 0 ? 7 : size;
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    unsigned differs = 0;
    for (int round = 0; round < 40; ++round) {
        auto a = matrices<T>(layout, array, count, height, width);
        a.fill([&] { return number(random); });
        const auto dst = norms<T>(array, size, layout, a, width, height, count);
        for (unsigned k = 0; k < count; ++k) {
            T byRows = 0, byColumns = 0;
            for (unsigned i = 0; i < height; ++i)
                for (unsigned j = 0; j < width; ++j)
                    byRows = byRows + a.at(k, i, j) * a.at(k, i, j);
            for (unsigned j = 0; j < width; ++j)
                for (unsigned i = 0; i < height; ++i)
                    byColumns = byColumns + a.at(k, i, j) * a.at(k, i, j);
            ASSERT_EQ(dst[k], std::sqrt(array ? byColumns : byRows)) << nameOf<T>(array, size, layout);
            differs += std::sqrt(byRows) != std::sqrt(byColumns);
        }
    }
    EXPECT_GT(differs, 0U);
}

TEST(FrobNorm, AddsOneMatrixByRowsAndArraysByColumns)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                if (size != 0 && (layout.empty() || layout == "_L"))
                    continue;
                checkOrder<float>(array, size, layout);
                checkOrder<double>(array, size, layout);
            }
}

TEST(FrobNorm, OfThreeRowsOfTwoDiffersBetweenOneMatrixAndAnArray)
{
    // Row by row the square of `tiny`, at most half a unit in the last place of 1.5^2 = 2.25, is lost twice.
    // Column by column both meet first and raise 2.25 by a unit u, and the root by u / 3: more than half a
    // unit of 1.5, which is u / 2.
    const auto check = [](auto unit, auto tiny) {
        using T = decltype(unit);
        const T x[] = {tiny, T(1.5), tiny, 0, 0, 0};
        for (const std::string& layout : arrayLayouts) {
            const bool single = layout == "" || layout == "_S2" || layout == "_P";
            auto a = matrices<T>(layout, true, 1, 3, 2), b = matrices<T>(layout, false, 1, 3, 2);
            for (unsigned e = 0; e < 6; ++e)
                a.at(0, e / 2, e % 2) = b.at(0, e / 2, e % 2) = x[e];
            EXPECT_EQ(norms<T>(true, 0, layout, a, 2, 3, 1)[0], T(1.5) + unit) << layout;
            if (single) {
                EXPECT_EQ(norms<T>(false, 0, layout, b, 2, 3, 1)[0], T(1.5)) << layout;
            }
        }
    };
    check(0x1p-23F, 1.25F * 0x1p-12F); // u = 2^-22, the squares are 25 / 32 of 2^-23
    check(0x1p-52, 0x1p-26);           // u = 2^-51, the squares are 2^-52: a tie, to the even 2.25
}

// ---------------------------------------------------------------------------------------------------------------
// Sums by columns
// ---------------------------------------------------------------------------------------------------------------

template <typename T>
T square(T x)
{
    return x * x;
}

// The promised totals of single matrices.
template <typename T>
T promisedSum(Objects<T>& a, unsigned size)
{
    T c[5] = {};
    for (unsigned j = 0; j < size; ++j) {
        const auto q = [&](unsigned i) { return square(a.at(0, i, j)); };
        c[j] = size == 3 ? (q(0) + q(1)) + q(2) : (q(0) + q(1)) + (q(2) + q(3));
        if (size == 5)
            c[j] = c[j] + q(4);
    }
    if (size == 3)
        return sizeof(T) == 8 ? (c[2] + c[0]) + c[1] : (c[0] + c[1]) + (0 + c[2]);
    const T four = (c[0] + c[2]) + (c[1] + c[3]);
    return size == 4 ? four : four + c[4];
}

TEST(FrobNorm, OfOneMatrixOfFixedSizeAddsColumnsInThePromisedOrder)
{
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        for (unsigned size : {3U, 4U, 5U}) {
            std::uniform_real_distribution<float> number(-1, 1);
            auto a = matrices<float>("", false, 1, size, size);
            a.fill([&] { return number(random); });
            ASSERT_EQ(norms<float>(false, size, "", a, size, size, 1)[0], fiveSteps(promisedSum(a, size)));
        }
        std::uniform_real_distribution<double> number(-1, 1);
        auto a = matrices<double>("", false, 1, 3, 3);
        a.fill([&] { return number(random); });
        ASSERT_EQ(norms<double>(false, 3, "", a, 3, 3, 1)[0], std::sqrt(promisedSum(a, 3)));
    }
}

// With u half a unit in the last place of 1: in a sum of n squares each term passes through one product and
// at most n - 1 sums in any order, so the sum is off by at most n u and its root by n u / 2, to first order.
// A correctly rounded root adds u. A refined one adds 3.4 u, which a Newton step leaves of an estimate that
// is off by 1.5 x 2^-12, and u for each of its five roundings. Terms of second order are far below the 1 % on
// top.
template <typename T>
long double bound(unsigned elements)
{
    const long double u = std::numeric_limits<T>::epsilon() / 2;
    return (elements / 2.0L + (sizeof(T) == 4 ? 8.4L : 1.0L)) * u * 1.01L;
}

template <typename T>
void checkBound(bool array, unsigned size, const std::string& layout)
{
    const unsigned count = array ? 11 : 1;
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    for (int round = 0; round < 100; ++round) {
        auto a = matrices<T>(layout, array, count, size, size);
        a.fill([&] { return number(random); });
        const auto dst = norms<T>(array, size, layout, a, size, size, count);
        for (unsigned k = 0; k < count; ++k) {
            long double s = 0;
            for (unsigned i = 0; i < size; ++i)
                for (unsigned j = 0; j < size; ++j)
                    s += square<long double>(a.at(k, i, j));
            const long double norm = std::sqrt(s);
            ASSERT_NEAR(static_cast<double>(dst[k] / norm - 1), 0.0,
                        static_cast<double>(bound<T>(size * size)))
                << nameOf<T>(array, size, layout);
        }
    }
}

TEST(FrobNorm, OfFixedSizesOfAdjacentElementsStaysWithinItsBound)
{
    for (unsigned size : {3U, 4U, 5U, 6U}) {
        checkBound<float>(false, size, "");
        checkBound<double>(false, size, "");
        for (const char* layout : {"", "_L"}) {
            checkBound<float>(true, size, layout);
            checkBound<double>(true, size, layout);
        }
    }
}

// The same matrices at another place in the batch, in a batch of one, and in a list: the same bits.
template <typename T>
void checkPlaces(unsigned size, unsigned gap)
{
    constexpr unsigned count = 11;
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    const unsigned row = size + gap;
    std::vector<T> x(std::size_t{count} * size * row), batch(count), list(count), single(count);
    std::vector<const T*> entries;
    for (T& e : x)
        e = number(random);
    const auto bytes = [](std::size_t n) { return word(static_cast<std::uint32_t>(n * sizeof(T))); };
    const Argument stride0 = bytes(size * row), stride1 = bytes(row);
    for (unsigned k = 0; k < count; ++k) {
        entries.push_back(&x[std::size_t{k} * size * row]);
        EXPECT_EQ(callByName(nameOf<T>(true, size, ""),
                             {{pointer(entries[k]), stride0, stride1, pointer(&single[k]), word(1)}}),
                  tenkOk);
    }
    EXPECT_EQ(callByName(nameOf<T>(true, size, ""),
                         {{pointer(x.data()), stride0, stride1, pointer(batch.data()), word(count)}}),
              tenkOk);
    EXPECT_EQ(callByName(nameOf<T>(true, size, "_L"),
                         {{pointer(entries.data()), word(0), stride1, pointer(list.data()), word(count)}}),
              tenkOk);
    EXPECT_EQ(batch, single);
    EXPECT_EQ(list, single);
}

TEST(FrobNorm, OfAnArrayDoesNotDependOnThePlaceOfAnObject)
{
    for (unsigned size : {3U, 4U, 5U, 6U})
        for (unsigned gap : {0U, 1U, 3U}) {
            checkPlaces<float>(size, gap);
            checkPlaces<double>(size, gap);
        }
}

TEST(FrobNorm, TakesTheFifthOfFiveObjectsByTheSameFormula)
{
    // x is looked for: the five steps and the root must differ for nine x^2, exact in any order.
    float x = 1;
    while (x < 1024 && fiveSteps(9 * x * x) == 3 * x)
        x += 1;
    ASSERT_LT(x, 1024);
    const float norm = fiveSteps(9 * x * x);
    const Floats objects(45, x);
    Floats batch(6, 9);
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3(objects.data(), 36, 12, batch.data(), 5), tenkOk);
    EXPECT_EQ(batch, (Floats{norm, norm, norm, norm, norm, 9}));
}

// ---------------------------------------------------------------------------------------------------------------
// Special values
// ---------------------------------------------------------------------------------------------------------------

// Calls check(zero of the type, array, size, layout) for every member.
template <typename F>
void eachMember(F check)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                check(0.0F, array, size, layout);
                check(0.0, array, size, layout);
            }
}

TEST(FrobNorm, OfAZeroMatrixIsNaNByTheEstimateAndZeroOtherwise)
{
    eachMember([]<typename T>(T zero, bool array, unsigned size, const std::string& layout) {
        const unsigned order = size == 0 ? 4 : size, count = array ? 5 : 1;
        auto a = matrices<T>(layout, array, count, order, order);
        a.fill([=] { return zero; });
        const bool estimate = sizeof(T) == 4 && size != 0 && (layout.empty() || layout == "_L");
        for (T x : norms<T>(array, size, layout, a, order, order, count)) {
            EXPECT_EQ(std::isnan(x), estimate) << nameOf<T>(array, size, layout);
            if (!estimate) {
                EXPECT_EQ(x, zero) << nameOf<T>(array, size, layout);
                EXPECT_FALSE(std::signbit(x));
            }
        }
    });
}

TEST(FrobNorm, OfASingleOneIsExactlyOneButForTheEstimate)
{
    eachMember([]<typename T>(T, bool array, unsigned size, const std::string& layout) {
        const unsigned order = size == 0 ? 4 : size, count = array ? 5 : 1;
        const bool estimate = sizeof(T) == 4 && size != 0 && (layout.empty() || layout == "_L");
        for (unsigned place = 0; place < order * order; ++place) {
            auto a = matrices<T>(layout, array, count, order, order);
            a.fill([] { return T(0); });
            for (unsigned k = 0; k < count; ++k)
                a.at(k, place / order, place % order) = 1;
            for (T x : norms<T>(array, size, layout, a, order, order, count))
                EXPECT_EQ(x, estimate ? static_cast<T>(fiveSteps(1)) : T(1))
                    << nameOf<T>(array, size, layout);
        }
    });
}

TEST(FrobNorm, OfOneElementIsItsMagnitudeUnlessTheSquareIsOutOfRange)
{
    eachMember([]<typename T>(T, bool array, unsigned size, const std::string& layout) {
        if (size != 0)
            return;
        const auto norm = [&](T x) {
            auto a = matrices<T>(layout, array, 3, 1, 1);
            a.fill([=] { return x; });
            return norms<T>(array, 0, layout, a, 1, 1, array ? 3 : 1).back();
        };
        for (int n = 1; n < 50; ++n) {
            EXPECT_EQ(norm(T(n) / T(7)), T(n) / T(7)) << nameOf<T>(array, 0, layout);
            EXPECT_EQ(norm(T(-n) / T(11)), T(n) / T(11)) << nameOf<T>(array, 0, layout);
        }
        EXPECT_EQ(norm(std::numeric_limits<T>::max()), std::numeric_limits<T>::infinity());
        EXPECT_EQ(norm(std::numeric_limits<T>::min()), T(0));
    });
}

TEST(FrobNorm, OfAnOverflowIsInfiniteAndByTheEstimateNaN)
{
    Floats x(36);
    x[1] = 2e19F;
    float s = 0;
    EXPECT_EQ(tenkFrobNorm_m_32f_3x3_S2(x.data(), 12, 4, &s), tenkOk);
    EXPECT_EQ(s, infinity);
    EXPECT_EQ(tenkFrobNorm_m_32f_3x3(x.data(), 12, &s), tenkOk);
    EXPECT_TRUE(std::isnan(s));
    EXPECT_EQ(tenkFrobNorm_ma_32f_4x4(x.data(), 0, 16, &s, 1), tenkOk);
    EXPECT_TRUE(std::isnan(s));
    x[1] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(tenkFrobNorm_m_32f(x.data(), 12, 3, 3, &s), tenkOk);
    EXPECT_TRUE(std::isnan(s));
}

// ---------------------------------------------------------------------------------------------------------------
// Tests of arguments
// ---------------------------------------------------------------------------------------------------------------

TEST(FrobNorm, TestsPointersThenSizesThenTablesThenCount)
{
    float x[16] = {}, s = 9;
    EXPECT_EQ(tenkFrobNorm_m_32f(nullptr, 0, 0, 0, &s), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_m_32f(x, 0, 0, 0, nullptr), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_m_32f(x, 0, 0, 1, &s), tenkSizeError);
    EXPECT_EQ(tenkFrobNorm_m_32f(x, 0, 1, 0, &s), tenkSizeError);
    EXPECT_EQ(tenkFrobNorm_ma_32f(x, 0, 0, 0, 3, &s, 0), tenkSizeError);
    EXPECT_EQ(tenkFrobNorm_ma_32f(x, 0, 0, 3, 3, &s, 0), tenkOk);
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3(x, 0, 0, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3(x, 0, 0, &s, 0), tenkOk);
    std::vector<const float*> table(9, x);
    table[8] = nullptr;
    EXPECT_EQ(tenkFrobNorm_ma_32f_P(table.data(), 0, 3, 3, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_ma_32f_P(table.data(), 0, 4, 2, &s, 0), tenkOk);
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3_PS2(table.data(), 0, 4, &s, 2), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_m_32f_3x3_P(table.data(), 0, &s), tenkNullPointerError);
    EXPECT_EQ(tenkFrobNorm_m_32f_P(table.data(), 0, 3, 3, &s), tenkNullPointerError);
    table[0] = nullptr;
    EXPECT_EQ(tenkFrobNorm_m_32f_P(table.data(), 0, 65536, 65536, &s), tenkNullPointerError);
    EXPECT_EQ(s, 9.0F);
}

// How many results stand when entry `nullAt` of a list of `count` matrices is null.
template <typename T>
unsigned resultsBeforeNull(unsigned size, const std::string& layout, unsigned nullAt, unsigned count)
{
    const unsigned order = size == 0 ? 4 : size;
    auto a = matrices<T>(layout, true, count, order, order);
    a.fill([] { return T(1); });
    a.pointers()[nullAt] = nullptr;
    std::vector<T> dst(count, T(-1));
    Arguments sizes;
    if (size == 0)
        sizes = {word(order), word(order)};
    EXPECT_EQ(
        callByName(nameOf<T>(true, size, layout), {a.arguments(), sizes, {pointer(dst.data()), word(count)}}),
        tenkNullPointerError);
    return resultsInFront(dst);
}

// The same of a list without a shift, of matrices without gaps: in front of the results or behind them, the
// list at any multiple of an entry.
template <typename T>
unsigned resultsBeforeNullWithoutGaps(unsigned size, unsigned nullAt, unsigned count)
{
    const std::uint32_t row = size * sizeof(T);
    std::vector<unsigned> answers;
    for (bool behind : {false, true})
        for (unsigned offset : {0U, 1U, 2U, 3U}) {
            const unsigned apart = size * size + 1;
            std::vector<T> memory(apart + count + apart, T(1));
            T* const dst = &memory[apart];
            std::fill_n(dst, count, T(-1));
            std::vector<const T*> entries(offset + count, behind ? dst + count + 1 : memory.data());
            entries[offset + nullAt] = nullptr;
            EXPECT_EQ(
                callByName(nameOf<T>(true, size, "_L"),
                           {{pointer(&entries[offset]), word(0), word(row)}, {pointer(dst), word(count)}}),
                tenkNullPointerError);
            answers.push_back(resultsInFront(std::vector<T>(dst, dst + count)));
        }
    EXPECT_EQ(answers, std::vector<unsigned>(answers.size(), answers[0]));
    return answers[0];
}

TEST(FrobNorm, OfAListWithoutGapsWritesWhatIsInFrontOfANullEntry)
{
    for (unsigned size : {3U, 4U}) { // a step at a time
        EXPECT_EQ(resultsBeforeNullWithoutGaps<float>(size, 1, 12), 0U);
        EXPECT_EQ(resultsBeforeNullWithoutGaps<float>(size, 4, 12), 4U);
        EXPECT_EQ(resultsBeforeNullWithoutGaps<float>(size, 11, 12), 8U);
        EXPECT_EQ(resultsBeforeNullWithoutGaps<double>(size, 1, 6), 0U);
        EXPECT_EQ(resultsBeforeNullWithoutGaps<double>(size, 5, 6), 4U);
    }
    for (unsigned size : {5U, 6U})
        for (unsigned nullAt = 0; nullAt < 12; ++nullAt) {
            EXPECT_EQ(resultsBeforeNullWithoutGaps<float>(size, nullAt, 12), nullAt);
            EXPECT_EQ(resultsBeforeNullWithoutGaps<double>(size, nullAt, 12), nullAt);
        }
}

// The list ends with a null entry where memory ends.
TEST(FrobNorm, OfAListOfLargerMatricesReadsNoEntryBehindANullOne)
{
    auto* const memory =
        static_cast<char*>(mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(memory, MAP_FAILED);
    ASSERT_EQ(mprotect(memory + 4096, 4096, PROT_NONE), 0);
    const std::vector<float> x(26, 1);
    auto** const list = reinterpret_cast<const float**>(memory + 4096) - 2;
    list[0] = x.data();
    for (std::uint32_t shift : {0U, 4U}) {
        std::vector<float> dst(8, -1);
        EXPECT_EQ(tenkFrobNorm_ma_32f_5x5_L(list, shift, 20, dst.data(), 8), tenkNullPointerError);
        EXPECT_EQ(resultsInFront(dst), 1U);
    }
    munmap(memory, 8192);
}

// No object of a step is read before all entries of the step are tested.
TEST(FrobNorm, OfAListOfSmallMatricesReadsNoneOfAStepWithANullEntry)
{
    // Results, then objects, then what cannot be read.
    char* const memory =
        static_cast<char*>(mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    mprotect(memory + 4096, 4096, PROT_NONE);
    const auto check = [&](auto one, std::size_t step) {
        using T = decltype(one);
        T* const s = reinterpret_cast<T*>(memory);
        T* const x = s + 100;
        std::fill_n(x, 16, one);
        std::vector<const T*> list(2 * step, x);
        list[step] = reinterpret_cast<const T*>(memory + 4096);
        list.back() = nullptr;
        for (unsigned size : {3U, 4U}) {
            std::fill_n(s, 2 * step, -one);
            const std::uint32_t row = size * sizeof(T), count = static_cast<std::uint32_t>(2 * step);
            EXPECT_EQ(callByName(nameOf<T>(true, size, "_L"),
                                 {{pointer(list.data()), word(0), word(row), pointer(s), word(count)}}),
                      tenkNullPointerError);
            EXPECT_GT(s[step - 1], 0);
            EXPECT_EQ(s[step], -one);
        }
    };
    check(1.0F, 4);
    check(1.0, 2);
    munmap(memory, 8192);
}

TEST(FrobNorm, OfAListOfSmallMatricesTestsAStepAtATime)
{
    for (unsigned size : {3U, 4U}) {
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 6, 8), 4U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 3, 5), 0U);
        EXPECT_EQ(resultsBeforeNull<double>(size, "_L", 5, 7), 4U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_LS2", 6, 8), 6U);
        EXPECT_EQ(resultsBeforeNull<double>(size, "_LS2", 5, 7), 5U);
    }
}

TEST(FrobNorm, OfAnyOtherListTestsEveryEntry)
{
    for (unsigned size : {5U, 6U, 0U}) {
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 6, 8), 6U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 4, 5), 4U);
        EXPECT_EQ(resultsBeforeNull<double>(size, "_L", 5, 7), 5U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_LS2", 4, 5), 4U);
    }
}

// Behind the last full step a null entry is an address: with the address of a matrix as the shift it reaches
// it.
template <typename T>
void checkNullInTheRest(unsigned size, unsigned count, unsigned nullAt, T* low)
{
    auto a = matrices<T>("_L", true, count, size, size);
    a.fill([] { return T(2); });
    for (unsigned e = 0; e < 64; ++e)
        low[e] = T(3);
    const auto shift = reinterpret_cast<std::uintptr_t>(low);
    ASSERT_LT(shift, std::uintptr_t{1} << 31);
    std::vector<const T*> entries;
    for (unsigned k = 0; k < count; ++k)
        entries.push_back(
            reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(&a.at(k, 0, 0)) - shift));
    entries[nullAt] = nullptr;
    std::vector<T> dst(count, T(-1));
    Arguments arguments = a.arguments(); // list, shift, row step
    arguments[0] = pointer(entries.data());
    arguments[1] = word(static_cast<std::uint32_t>(shift));
    EXPECT_EQ(callByName(nameOf<T>(true, size, "_L"), {arguments, {pointer(dst.data()), word(count)}}),
              tenkOk);
    // All elements are alike: the square root of size^2 squares.
    for (unsigned k = 0; k < count; ++k)
        EXPECT_NEAR(static_cast<double>(dst[k]), (k == nullAt ? 3 : 2) * size, 1e-4);
}

TEST(FrobNorm, OfAListOfSmallMatricesTakesANullEntryBehindTheLastStepAsAnAddress)
{
    void* const wanted = reinterpret_cast<void*>(std::uintptr_t{0x20000000});
    void* const low =
        mmap(wanted, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
    ASSERT_EQ(low, wanted);
    for (unsigned size : {3U, 4U}) {
        for (unsigned count : {1U, 2U, 3U, 5U, 6U, 7U})
            for (unsigned nullAt = count / 4 * 4; nullAt < count; ++nullAt)
                checkNullInTheRest(size, count, nullAt, static_cast<float*>(low));
        for (unsigned count : {1U, 3U, 5U})
            checkNullInTheRest(size, count, count - 1, static_cast<double*>(low));
    }
    munmap(low, 4096);
}

// The results of a step lie on objects of the same step, which have been read by then.
TEST(FrobNorm, OfSmallMatricesReadsAWholeStepBeforeItWrites)
{
    Floats x = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3(x.data(), 4, 12, x.data() + 1, 4), tenkOk);
    const float nine = fiveSteps(9);
    EXPECT_EQ(Floats(x.begin(), x.begin() + 6), (Floats{1, nine, nine, nine, nine, 1}));
    std::vector<double> y(20, 1);
    EXPECT_EQ(tenkFrobNorm_ma_64f_4x4(y.data(), 8, 32, y.data() + 1, 2), tenkOk);
    EXPECT_EQ(std::vector<double>(y.begin(), y.begin() + 4), (std::vector<double>{1, 4, 4, 1}));
    std::vector<double> z(30, 1); // one at a time: 24 ones and the 5 that the first object has left
    EXPECT_EQ(tenkFrobNorm_ma_64f_5x5(z.data(), 8, 40, z.data() + 1, 2), tenkOk);
    EXPECT_EQ(std::vector<double>(z.begin(), z.begin() + 4), (std::vector<double>{1, 5, 7, 1}));
}

// Larger matrices go object by object, small ones step by step: the results, which lie on later objects, are
// those of calls with one object or one step each.
template <typename T>
void checkStepByStep(unsigned size, const std::string& layout, int rowStep, int offset)
{
    const int together = size > 4 ? 1 : static_cast<int>(16 / sizeof(T));
    const auto bytes = [](int elements) { return word(static_cast<std::uint32_t>(elements) * sizeof(T)); };
    for (int count : {8, 9}) {
        const int step = static_cast<int>(size * size);
        std::vector<T> batch(512 + 9 * size * size);
        for (std::size_t j = 0; j < batch.size(); ++j)
            batch[j] = T(j % 7 + 1);
        std::vector<T> single = batch;
        const auto run = [&](std::vector<T>& x, int k, int n) {
            T* const start = x.data() + 64;
            std::vector<const T*> entries;
            for (int i = k; i < k + n; ++i)
                entries.push_back(start + i * step);
            const Arguments src = layout.empty()
                                      ? Arguments{pointer(start + k * step), bytes(step), bytes(rowStep)}
                                      : Arguments{pointer(entries.data()), word(0), bytes(rowStep)};
            EXPECT_EQ(callByName(nameOf<T>(true, size, layout),
                                 {src, {pointer(start + offset + k), word(static_cast<std::uint32_t>(n))}}),
                      tenkOk);
        };
        run(batch, 0, count);
        for (int k = 0; k < count; k += together)
            run(single, k, std::min(together, count - k));
        EXPECT_EQ(batch, single) << nameOf<T>(true, size, layout) << ", results at " << offset;
    }
}

TEST(FrobNorm, OfLargerMatricesWritesEachResultBeforeItReadsTheNextObject)
{
    for (int size : {5, 6})
        for (const char* layout : {"", "_L"})
            for (int offset = -32; offset < 330; ++offset)
                for (int rowStep :
                     {size, size + 2, -1}) { // without and with gaps, and backwards through each other
                    checkStepByStep<float>(static_cast<unsigned>(size), layout, rowStep, offset);
                    checkStepByStep<double>(static_cast<unsigned>(size), layout, rowStep, offset);
                }
}

TEST(FrobNorm, OfSmallMatricesWritesTheResultsOfAStepBeforeItReadsTheNextOne)
{
    for (int size : {3, 4})
        for (const char* layout : {"", "_L"})
            for (int offset = -16; offset < 160; ++offset)
                for (int rowStep : {size, size + 2}) {
                    checkStepByStep<float>(static_cast<unsigned>(size), layout, rowStep, offset);
                    checkStepByStep<double>(static_cast<unsigned>(size), layout, rowStep, offset);
                }
}

// The first result is the list entry of the second object: a null pointer by then.
TEST(FrobNorm, OfLargerMatricesWritesEachResultBeforeItReadsTheNextEntry)
{
    for (unsigned size : {5U, 6U})
        for (bool behind : {false, true}) { // objects in front of the list, or behind it
            struct
            {
                double front[36];
                const double* entries[4];
                double back[36];
            } m{};
            const double* const zeros = behind ? m.back : m.front;
            std::fill_n(m.entries, 4, zeros);
            EXPECT_EQ(
                callByName(nameOf<double>(true, size, "_L"),
                           {{pointer(m.entries), word(0), word(8 * size), pointer(&m.entries[1]), word(4)}}),
                tenkNullPointerError);
            EXPECT_EQ(m.entries[0], zeros);
            EXPECT_EQ(m.entries[1], nullptr);
            EXPECT_EQ(m.entries[1 + sizeof(double) / sizeof(void*)], zeros); // of the second result
        }
}

// One object, twice: five rows of five ones, each an element in front of the one before. The first result is
// the first element of the last row.
TEST(FrobNorm, OfRowsThatGoBackwardsReadsTheResultsOfEarlierObjects)
{
    std::vector<double> x(13, 1);
    EXPECT_EQ(tenkFrobNorm_ma_64f_5x5(&x[4], 0, static_cast<std::uint32_t>(-8), x.data(), 2), tenkOk);
    EXPECT_EQ(x[0], 5.0);
    EXPECT_EQ(x[1], 7.0); // 24 ones and 5^2
    EXPECT_EQ(x[2], 1.0);
}

TEST(FrobNorm, AddsTheShiftToAListOfMatricesWithoutGaps)
{
    std::vector<double> x(10, 2);
    x[0] = 9;
    const double* const list[] = {x.data(), x.data()};
    double d[2] = {};
    EXPECT_EQ(tenkFrobNorm_ma_64f_3x3_L(list, 8, 24, d, 2), tenkOk);
    EXPECT_EQ(d[0], 6.0); // nine squares of 2
    EXPECT_EQ(d[1], 6.0);
}

// Objects as far apart as without gaps, but rows that are not: 36 and 8 bytes.
TEST(FrobNorm, SeesRowsThatOverlap)
{
    const std::vector<double> x = {1, 1, 1, 0, 1, 0, 0, 0, 0,
                                   1, 1, 1, 0, 1, 0, 0, 0, 0}; // rows 111 110 101, both times
    const Floats y(x.begin(), x.end());
    double d[2] = {};
    EXPECT_EQ(tenkFrobNorm_ma_64f_3x3(x.data(), 72, 8, d, 2), tenkOk);
    EXPECT_EQ(d[0], std::sqrt(7.0));
    EXPECT_EQ(d[1], std::sqrt(7.0));
    float s[2] = {};
    EXPECT_EQ(tenkFrobNorm_ma_32f_3x3(y.data(), 36, 4, s, 2), tenkOk);
    EXPECT_EQ(s[0], fiveSteps(7));
    EXPECT_EQ(s[1], fiveSteps(7));
}

} // namespace
