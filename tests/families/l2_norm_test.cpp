// L2Norm: edge cases by hand, and the order of the sums and the root of every member against plain
// expressions.
#include "tenk.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <xmmintrin.h>

#include "results.h"
#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();

template <typename T>
T plainSum(const std::vector<T>& q)
{
    T s = 0;
    for (T x : q)
        s = s + x;
    return s;
}

template <typename T>
T expectedSum(bool array, unsigned size, const std::string& layout, const std::vector<T>& q)
{
    if (size == 0 || !(layout.empty() || layout == "_L"))
        return plainSum(q);
    const bool is64f = sizeof(T) == 8;
    switch (size) {
    case 3:
        return is64f ? (q[2] + q[0]) + q[1] : (q[0] + q[1]) + q[2];
    case 4:
        return is64f   ? (q[0] + q[2]) + (q[1] + q[3])
               : array ? ((q[0] + q[1]) + q[2]) + q[3]
                       : (q[0] + q[1]) + (q[2] + q[3]);
    case 5:
        return is64f   ? ((q[0] + q[2]) + q[4]) + (q[1] + q[3])
               : array ? ((q[0] + q[2]) + (q[1] + q[3])) + q[4]
                       : ((q[0] + q[1]) + (q[2] + q[3])) + q[4];
    default:
        return is64f || array ? ((q[0] + q[2]) + q[4]) + ((q[1] + q[3]) + q[5])
                              : ((q[0] + q[1]) + (q[2] + q[3])) + (q[4] + q[5]);
    }
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

template <typename T>
T expectedRoot(unsigned size, const std::string& layout, T s)
{
    if constexpr (sizeof(T) == 4)
        if (size != 0 && (layout.empty() || layout == "_L"))
            return fiveSteps(s);
    return std::sqrt(s);
}

template <typename T>
std::string nameOf(bool array, unsigned size, const std::string& layout)
{
    return std::string("tenkL2Norm_") + (array ? "va_" : "v_") + typeName<T>() +
           (size == 0 ? "" : "_" + std::to_string(size) + "x1") + layout;
}

template <typename T>
void checkMember(bool array, unsigned size, const std::string& layout)
{
    const unsigned count = array ? 11 : 1;
    const unsigned length = size == 0 ? 7 : size; // too short for blocks
    const std::string name = nameOf<T>(array, size, layout);
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    for (int round = 0; round < 40; ++round) {
        auto a = vectors<T>(layout, array, count, length);
        a.fill([&] { return number(random); });
        std::vector<T> dst(count + 1, T(9));
        Arguments sizes;
        if (size == 0)
            sizes.push_back(word(length));
        if (array)
            sizes.push_back(word(count));
        ASSERT_EQ(callByName(name, {a.arguments(), {pointer(dst.data())}, sizes}), tenkOk) << name;
        for (unsigned k = 0; k < count; ++k) {
            std::vector<T> q;
            for (unsigned j = 0; j < length; ++j)
                q.push_back(a.at(k, j) * a.at(k, j));
            const T s = expectedSum(array, size, layout, q);
            ASSERT_EQ(dst[k], expectedRoot(size, layout, s)) << name << ", object " << k;
        }
        EXPECT_EQ(dst[count], T(9)) << name;
    }
}

TEST(L2Norm, AddsAndTakesTheRootInTheWayOfEachMember)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                checkMember<float>(array, size, layout);
                checkMember<double>(array, size, layout);
            }
}

template <typename T>
void checkZero(bool array, unsigned size, const std::string& layout)
{
    const unsigned count = array ? 5 : 1, length = size == 0 ? 3 : size;
    const std::string name = nameOf<T>(array, size, layout);
    auto a = vectors<T>(layout, array, count, length);
    a.fill([] { return T(0); });
    std::vector<T> dst(count, T(9));
    Arguments sizes;
    if (size == 0)
        sizes.push_back(word(length));
    if (array)
        sizes.push_back(word(count));
    EXPECT_EQ(callByName(name, {a.arguments(), {pointer(dst.data())}, sizes}), tenkOk) << name;
    const bool estimate = sizeof(T) == 4 && size != 0 && (layout.empty() || layout == "_L");
    for (T x : dst) {
        EXPECT_EQ(std::isnan(x), estimate) << name;
        if (!estimate) {
            EXPECT_EQ(x, T(0)) << name;
            EXPECT_FALSE(std::signbit(x)) << name;
        }
    }
}

TEST(L2Norm, OfAZeroVectorIsNaNByTheEstimateAndZeroOtherwise)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                checkZero<float>(array, size, layout);
                checkZero<double>(array, size, layout);
            }
}

TEST(L2Norm, OfAnInfiniteSumIsNaNByTheEstimateAndInfiniteOtherwise)
{
    const float x[] = {infinity, 1, 2};
    float s = 9;
    EXPECT_EQ(tenkL2Norm_v_32f_3x1(x, &s), tenkOk);
    EXPECT_TRUE(std::isnan(s));
    EXPECT_EQ(tenkL2Norm_v_32f_3x1_S2(x, 4, &s), tenkOk);
    EXPECT_EQ(s, infinity);
    EXPECT_EQ(tenkL2Norm_v_32f(x, &s, 3), tenkOk);
    EXPECT_EQ(s, infinity);
    const float large[] = {2e19F, 0, 0}; // whose square overflows
    EXPECT_EQ(tenkL2Norm_v_32f_3x1_S2(large, 4, &s), tenkOk);
    EXPECT_EQ(s, infinity);
}

TEST(L2Norm, OfThreeAndFourIsFiveOnlyNearlyByTheEstimate)
{
    const float x[] = {3, 4, 0};
    float s = 0;
    EXPECT_EQ(tenkL2Norm_v_32f_3x1_S2(x, 4, &s), tenkOk);
    EXPECT_EQ(s, 5.0F);
    // The estimate is off by e <= 1.5 x 2^-12. A Newton step leaves 1.5 e^2 + e^3 / 2 < 3.4 x 2^-24; the five
    // roundings of the step and of the product add at most 5 x 2^-24.
    EXPECT_EQ(tenkL2Norm_v_32f_3x1(x, &s), tenkOk);
    EXPECT_NEAR(s, 5.0F, 5.0F * 8.4F * 0x1p-24F);
}

TEST(L2Norm, TakesTheFifthOfFiveObjectsByTheSameFormula)
{
    float x = 1; // is looked for: the five steps and the root must differ
    while (x < 4 && fiveSteps(x * x + 1) == std::sqrt(x * x + 1))
        x = std::nextafter(x, 4.0F);
    ASSERT_LT(x, 4.0F);
    Floats vectors;
    for (int k = 0; k < 5; ++k)
        vectors.insert(vectors.end(), {x, 1, 0});
    Floats batch(6, 9);
    EXPECT_EQ(tenkL2Norm_va_32f_3x1(vectors.data(), 12, batch.data(), 5), tenkOk);
    const float norm = fiveSteps(x * x + 1);
    EXPECT_EQ(batch, (Floats{norm, norm, norm, norm, norm, 9}));
}

// 1 and 2^-24 each as a square: 2^-12 squared is lost against 1 unless two of them meet first.
TEST(L2Norm, OfFour32fElementsDiffersBetweenOneVectorAndAnArray)
{
    const float tiny = 0x1p-12F;
    const float x[] = {1, 0, tiny, tiny};
    float one = 0, array = 0;
    EXPECT_EQ(tenkL2Norm_v_32f_4x1(x, &one), tenkOk);
    EXPECT_EQ(tenkL2Norm_va_32f_4x1(x, 16, &array, 1), tenkOk);
    EXPECT_EQ(one, fiveSteps(1.0F + 0x1p-23F));
    EXPECT_EQ(array, fiveSteps(1.0F));
    EXPECT_NE(one, array);
}

// What is promised of the blocks, lane by lane.
template <typename T>
T expectedBlockSum(const std::vector<T>& q, std::uintptr_t address)
{
    constexpr std::size_t lanes = 16 / sizeof(T);
    const std::size_t above = address % 16;
    if (above % sizeof(T) != 0)
        return plainSum(q);
    const std::size_t peel = above == 0 ? 0 : (16 - above) / sizeof(T);
    if (q.size() < peel + 8)
        return plainSum(q);
    T a[lanes] = {}, b[lanes] = {};
    for (std::size_t i = 0; i < peel; ++i)
        a[0] = a[0] + q[i];
    std::size_t i = peel;
    for (; i + 8 <= q.size(); i += 8)
        for (std::size_t n = 0; n < 8; ++n) {
            T& lane = n / lanes % 2 == 0 ? a[n % lanes] : b[n % lanes];
            lane = lane + q[i + n];
        }
    T v[lanes];
    for (std::size_t l = 0; l < lanes; ++l)
        v[l] = a[l] + b[l];
    T s = 0;
    if constexpr (lanes == 4)
        s = (v[0] + v[2]) + (v[1] + v[3]);
    else
        s = v[0] + v[1];
    for (; i < q.size(); ++i)
        s = s + q[i];
    return s;
}

template <typename T>
void checkBlocks(tenkStatus (*function)(const T*, T*, std::uint32_t))
{
    std::mt19937 random(1);
    std::uniform_real_distribution<T> number(-1, 1);
    std::vector<unsigned> lengths = {100, 1000};
    for (unsigned n = 1; n <= 40; ++n)
        lengths.push_back(n);
    alignas(16) char memory[1000 * sizeof(T) + 16];
    unsigned differs = 0;
    for (const unsigned n : lengths)
        for (unsigned at = 0; at < 16; ++at)
            for (int round = 0; round < 8; ++round) {
                std::vector<T> x(n), q(n);
                for (unsigned i = 0; i < n; ++i) {
                    x[i] = number(random);
                    q[i] = x[i] * x[i];
                }
                std::memcpy(memory + at, x.data(), n * sizeof(T));
                // Pointers that are not aligned for T are legal here.
                const auto* const src =
                    reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(memory) + at);
                T s = 0;
                ASSERT_EQ(function(src, &s, n), tenkOk);
                ASSERT_EQ(s, std::sqrt(expectedBlockSum(q, at))) << n << " elements at " << at;
                differs += s != std::sqrt(plainSum(q));
            }
    EXPECT_GT(differs, 80U); // the sum in order would not do
}

TEST(L2Norm, OfOneGeneralVectorGoesInBlocksByItsAddress)
{
    checkBlocks<float>(tenkL2Norm_v_32f);
    checkBlocks<double>(tenkL2Norm_v_64f);
}

TEST(L2Norm, OfEightElementsOnABoundaryIsABlock)
{
    // In order 1 + 2^-24 four times over is 1; in lanes the four meet first: 1 + 2^-22.
    const float tiny = 0x1p-12F;
    alignas(16) const float x[9] = {1, tiny, 0, tiny, 0, tiny, 0, tiny, 0};
    float s = 0;
    EXPECT_EQ(tenkL2Norm_v_32f(x, &s, 8), tenkOk);
    EXPECT_EQ(s, std::sqrt(1.0F + 0x1p-22F));
    EXPECT_EQ(tenkL2Norm_v_32f(x, &s, 7), tenkOk);
    EXPECT_EQ(s, 1.0F);
    EXPECT_EQ(tenkL2Norm_va_32f(x, 0, &s, 8, 1), tenkOk);
    EXPECT_EQ(s, 1.0F);
}

TEST(L2Norm, TestsPointersThenSizesThenTablesThenCount)
{
    float x[8] = {}, s = 9;
    EXPECT_EQ(tenkL2Norm_v_32f(nullptr, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkL2Norm_v_32f(x, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkL2Norm_v_32f(x, &s, 0), tenkSizeError);
    EXPECT_EQ(tenkL2Norm_va_32f(x, 0, &s, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkL2Norm_va_32f(x, 0, &s, 1, 0), tenkOk);
    EXPECT_EQ(tenkL2Norm_va_32f_3x1(x, 0, &s, 0), tenkOk);
    EXPECT_EQ(tenkL2Norm_va_32f_3x1(x, 0, nullptr, 0), tenkNullPointerError);
    const float* broken[] = {x, x, nullptr};
    EXPECT_EQ(tenkL2Norm_va_32f_P(broken, 0, &s, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkL2Norm_va_32f_P(broken, 0, &s, 2, 0), tenkOk);
    EXPECT_EQ(tenkL2Norm_va_32f_3x1_PS2(broken, 0, 4, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkL2Norm_v_32f_P(broken, 0, &s, 3), tenkNullPointerError);
    EXPECT_EQ(tenkL2Norm_v_32f_3x1_P(broken, 0, &s), tenkNullPointerError);
    EXPECT_EQ(s, 9.0F);
}

// How many results stand when entry `nullAt` of a list of vectors is null.
template <typename T>
unsigned resultsBeforeNull(unsigned size, const std::string& layout, unsigned nullAt, unsigned count)
{
    auto a = vectors<T>(layout, true, count, size == 0 ? 4 : size);
    a.fill([] { return T(1); });
    a.pointers()[nullAt] = nullptr;
    std::vector<T> dst(count, T(-1));
    Arguments sizes;
    if (size == 0)
        sizes.push_back(word(4));
    sizes.push_back(word(count));
    EXPECT_EQ(callByName(nameOf<T>(true, size, layout), {a.arguments(), {pointer(dst.data())}, sizes}),
              tenkNullPointerError);
    return resultsInFront(dst);
}

TEST(L2Norm, OfAListOf32fOfFixedSizeTestsFourEntriesAtATime)
{
    for (unsigned size : {3U, 4U, 5U, 6U}) {
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 3, 8), 0U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 6, 8), 4U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_L", 6, 7), 6U);
        EXPECT_EQ(resultsBeforeNull<float>(size, "_LS2", 6, 8), 6U);
        EXPECT_EQ(resultsBeforeNull<double>(size, "_L", 1, 8), 1U);
    }
    EXPECT_EQ(resultsBeforeNull<float>(0, "_L", 6, 8), 6U);
}

// The results of a step lie on objects of the same step, which have been read by then.
TEST(L2Norm, OfA32fArrayOfFixedSizeReadsAWholeStepBeforeItWrites)
{
    for (unsigned size : {3U, 4U, 5U, 6U}) {
        Floats x(12, 1), expected(12, 1);
        for (std::size_t k = 1; k <= 4; ++k)
            expected[k] = fiveSteps(static_cast<float>(size)); // as many ones
        EXPECT_EQ(callByName(nameOf<float>(true, size, ""),
                             {{pointer(x.data()), word(4), pointer(&x[1]), word(4)}}),
                  tenkOk);
        EXPECT_EQ(x, expected) << size;
        Floats y(12, 1);
        const float* const list[] = {&y[0], &y[1], &y[2], &y[3]};
        EXPECT_EQ(
            callByName(nameOf<float>(true, size, "_L"), {{pointer(list), word(0), pointer(&y[1]), word(4)}}),
            tenkOk);
        EXPECT_EQ(y, expected) << size;
    }
}

// Arrays of 64f go object by object: the results, which lie on later objects, are those of calls with one
// object each.
TEST(L2Norm, Of64fArraysWritesEachResultBeforeItReadsTheNextObject)
{
    for (unsigned size : {3U, 4U, 5U, 6U})
        for (int offset = -12; offset < 60; ++offset) {
            constexpr unsigned count = 9;
            const std::uint32_t stride = size * 8;
            std::vector<double> batch(128 + count * size);
            for (std::size_t j = 0; j < batch.size(); ++j)
                batch[j] = static_cast<double>(j % 7);
            std::vector<double> single = batch;
            const auto run = [&](std::vector<double>& x, std::size_t k, unsigned n) {
                double* const start = x.data() + 32;
                EXPECT_EQ(callByName(nameOf<double>(true, size, ""),
                                     {{pointer(start + k * size), word(stride),
                                       pointer(start + offset + static_cast<std::ptrdiff_t>(k)), word(n)}}),
                          tenkOk);
            };
            run(batch, 0, count);
            for (std::size_t k = 0; k < count; ++k)
                run(single, k, 1);
            EXPECT_EQ(batch, single) << size << ", results at " << offset;
        }
}

} // namespace
