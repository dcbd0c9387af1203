// DotProduct: edge cases by hand, and the order of the sums of every member against plain expressions.
#include "tenk.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sys/mman.h>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

// The sum in order from +0.
template <typename T>
T plainSum(const std::vector<T>& p)
{
    T s = 0;
    for (T x : p)
        s = s + x;
    return s;
}

// The sum of the products of a member, spelled out.
template <typename T>
T expectedSum(const std::string& codes, unsigned size, const std::string& layout, const std::vector<T>& p)
{
    if (size == 0 || !(layout.empty() || layout == "_L"))
        return plainSum(p);
    const bool is64f = sizeof(T) == 8;
    switch (size) {
    case 3:
        return (p[0] + p[1]) + p[2];
    case 4:
        return is64f            ? (p[0] + p[2]) + (p[1] + p[3])
               : codes == "vav" ? (p[0] + p[1]) + (p[2] + p[3])
                                : ((p[0] + p[1]) + p[2]) + p[3];
    case 5:
        return is64f ? ((p[0] + p[2]) + (p[1] + p[3])) + p[4] : (((p[0] + p[1]) + p[2]) + p[3]) + p[4];
    default:
        return is64f ? (p[0] + (p[2] + p[4])) + (p[1] + (p[3] + p[5]))
                     : ((((p[0] + p[1]) + p[2]) + p[3]) + p[4]) + p[5];
    }
}

template <typename T>
void checkOrder(const std::string& codes, unsigned size, const std::string& layout)
{
    const unsigned count = codes == "vv" ? 1 : 11;
    const unsigned length = size == 0 ? 7 : size; // too short for blocks
    const std::string name = "tenkDotProduct_" + codes + "_" + typeName<T>() +
                             (size == 0 ? "" : "_" + std::to_string(size) + "x1") + layout;
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    for (int round = 0; round < 20; ++round) {
        auto a = vectors<T>(layout, codes != "vv", count, length);
        auto b = vectors<T>(layout, codes == "vava", count, length);
        a.fill([&] { return number(random); });
        b.fill([&] { return number(random); });
        std::vector<T> dst(count + 1, T(9));
        Arguments sizes;
        if (size == 0)
            sizes.push_back(word(length));
        if (count > 1)
            sizes.push_back(word(count));
        ASSERT_EQ(callByName(name, {a.arguments(), b.arguments(), {pointer(dst.data())}, sizes}), tenkOk)
            << name;
        for (unsigned k = 0; k < count; ++k) {
            std::vector<T> p;
            for (unsigned j = 0; j < length; ++j)
                p.push_back(a.at(k, j) * b.at(k, j));
            ASSERT_EQ(dst[k], expectedSum(codes, size, layout, p)) << name << ", object " << k;
        }
        EXPECT_EQ(dst[count], T(9)) << name;
    }
}

TEST(DotProduct, AddsInTheOrderOfEachMember)
{
    for (const char* codes : {"vv", "vav", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkOrder<float>(codes, size, layout);
                checkOrder<double>(codes, size, layout);
            }
}

// In 32f 2^24 + 1 is 2^24, and 1 + 1 + 2^24 is 2^24 + 2.
TEST(DotProduct, OfFourElementsDiffersBetweenOnePairAndAnArray)
{
    const float big = 16777216, x[] = {big, 1, 1, 0}, ones[] = {1, 1, 1, 1};
    float one = 0, array = 0, list = 0, pairs = 0;
    EXPECT_EQ(tenkDotProduct_vv_32f_4x1(x, ones, &one), tenkOk);
    EXPECT_EQ(one, big); // ((big + 1) + 1) + 0
    EXPECT_EQ(tenkDotProduct_vava_32f_4x1(x, 16, ones, 16, &array, 1), tenkOk);
    EXPECT_EQ(array, big);

    const float y[] = {big, 0, 1, 1};
    EXPECT_EQ(tenkDotProduct_vv_32f_4x1(y, ones, &one), tenkOk);
    EXPECT_EQ(one, big); // ((big + 0) + 1) + 1
    EXPECT_EQ(tenkDotProduct_vav_32f_4x1(y, 16, ones, &pairs, 1), tenkOk);
    EXPECT_EQ(pairs, big + 2); // (big + 0) + (1 + 1)
    const float* entries[] = {y};
    EXPECT_EQ(tenkDotProduct_vav_32f_4x1_L(entries, 0, ones, &list, 1), tenkOk);
    EXPECT_EQ(list, big + 2);
}

TEST(DotProduct, OfFourElementsIn64fAddsEvenAndOddElementsApart)
{
    const double big = 9007199254740992, x[] = {big, 1, 0, 1}, ones[] = {1, 1, 1, 1}; // 2^53
    double s = 0;
    EXPECT_EQ(tenkDotProduct_vv_64f_4x1(x, ones, &s), tenkOk);
    EXPECT_EQ(s, big + 2); // (big + 0) + (1 + 1)
    EXPECT_EQ(tenkDotProduct_vv_64f_4x1_S2(x, 8, ones, 8, &s), tenkOk);
    EXPECT_EQ(s, big); // ((big + 1) + 0) + 1
}

TEST(DotProduct, OfSixElementsIn64fStartsFromTheBack)
{
    const double big = 9007199254740992, x[] = {big, 0, 1, 0, 1, 0}, ones[] = {1, 1, 1, 1, 1, 1};
    double s = 0;
    EXPECT_EQ(tenkDotProduct_vv_64f_6x1(x, ones, &s), tenkOk);
    EXPECT_EQ(s, big + 2); // big + (1 + 1), where (big + 1) + 1 is big
}

TEST(DotProduct, OfMinusZeroIsPlusZeroWhereTheSumStartsFromZero)
{
    const float minus[] = {-0.0F, -0.0F, -0.0F, -0.0F, -0.0F, -0.0F}, ones[] = {1, 1, 1, 1, 1, 1};
    const float* table[] = {minus, minus + 1, minus + 2};
    const float* onesTable[] = {ones, ones + 1, ones + 2};
    float s = 9;
    EXPECT_EQ(tenkDotProduct_vv_32f(minus, ones, &s, 1), tenkOk);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(s), 0U);
    EXPECT_EQ(tenkDotProduct_vv_32f_3x1_P(table, 0, onesTable, 0, &s), tenkOk);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(s), 0U);
    EXPECT_EQ(tenkDotProduct_vv_32f_3x1_S2(minus, 4, ones, 4, &s), tenkOk);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(s), 0U);
    for (const char* name : {"tenkDotProduct_vv_32f_3x1", "tenkDotProduct_vv_32f_4x1",
                             "tenkDotProduct_vv_32f_5x1", "tenkDotProduct_vv_32f_6x1"}) {
        s = 9;
        EXPECT_EQ(callByName(name, {{pointer(minus), pointer(ones), pointer(&s)}}), tenkOk);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(s), 0x80000000U) << name;
    }
}

// ---------------------------------------------------------------------------------------------------------------
// The blocks of the general members of adjacent elements
// ---------------------------------------------------------------------------------------------------------------

// What is promised, lane by lane.
template <typename T>
T expectedBlockSum(const std::vector<T>& p, std::uintptr_t address)
{
    constexpr std::size_t lanes = 16 / sizeof(T);
    const std::size_t above = address % 16;
    if (above % sizeof(T) != 0)
        return plainSum(p);
    const std::size_t peel = above == 0 ? 0 : (16 - above) / sizeof(T);
    if (p.size() < peel + 8)
        return plainSum(p);
    T a[lanes] = {}, b[lanes] = {};
    for (std::size_t i = 0; i < peel; ++i)
        a[0] = a[0] + p[i];
    std::size_t i = peel;
    for (; i + 8 <= p.size(); i += 8)
        for (std::size_t n = 0; n < 8; ++n) {
            T& lane = n / lanes % 2 == 0 ? a[n % lanes] : b[n % lanes];
            lane = lane + p[i + n];
        }
    T v[lanes];
    for (std::size_t l = 0; l < lanes; ++l)
        v[l] = a[l] + b[l];
    T s = 0;
    if constexpr (lanes == 4)
        s = (v[0] + v[2]) + (v[1] + v[3]);
    else
        s = v[0] + v[1];
    for (; i < p.size(); ++i)
        s = s + p[i];
    return s;
}

// All alignments of both operands, odd ones among them.
template <typename T>
void checkBlocks(tenkStatus (*function)(const T*, const T*, T*, std::uint32_t))
{
    std::mt19937 random(1);
    std::uniform_real_distribution<T> number(-1, 1);
    std::vector<unsigned> lengths = {100, 1000};
    for (unsigned n = 1; n <= 40; ++n)
        lengths.push_back(n);
    alignas(16) char xs[1000 * sizeof(T) + 16], ys[1000 * sizeof(T) + 16];
    unsigned differs = 0;
    for (const unsigned n : lengths)
        for (unsigned xAt = 0; xAt < 16; ++xAt)
            for (unsigned yAt = 0; yAt < 16; ++yAt) {
                std::vector<T> x(n), y(n), p(n);
                for (unsigned i = 0; i < n; ++i) {
                    x[i] = number(random), y[i] = number(random);
                    p[i] = x[i] * y[i];
                }
                std::memcpy(xs + xAt, x.data(), n * sizeof(T));
                std::memcpy(ys + yAt, y.data(), n * sizeof(T));
                // Pointers that are not aligned for T are legal here.
                const auto* const src1 =
                    reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(xs) + xAt);
                const auto* const src2 =
                    reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(ys) + yAt);
                T s = 0;
                ASSERT_EQ(function(src1, src2, &s, n), tenkOk);
                ASSERT_EQ(s, expectedBlockSum(p, yAt)) << n << " elements at " << xAt << " and " << yAt;
                differs += s != plainSum(p);
            }
    EXPECT_GT(differs, 300U); // the sum in order would not do
}

TEST(DotProduct, OfGeneralVectorsGoesInBlocksByTheAddressOfTheSecond)
{
    checkBlocks<float>(tenkDotProduct_vv_32f);
    checkBlocks<double>(tenkDotProduct_vv_64f);
}

TEST(DotProduct, OfSevenElementsIsTheSumInOrderAndOfEightABlock)
{
    alignas(16) const float ones[8] = {1, 1, 1, 1, 1, 1, 1, 1};
    const float big = 16777216;
    alignas(16) const float x[8] = {big, 1, 0, 0, 0, 1, 0, 0};
    float s = 0;
    EXPECT_EQ(tenkDotProduct_vv_32f(x, ones, &s, 7), tenkOk);
    EXPECT_EQ(s, big);
    EXPECT_EQ(tenkDotProduct_vv_32f(x, ones, &s, 8), tenkOk);
    EXPECT_EQ(s, big + 2); // ((p0 + p4) + (p2 + p6)) + ((p1 + p5) + (p3 + p7))
}

TEST(DotProduct, OfElevenElementsFourBytesAboveABoundaryHasThreeInFrontOfOneBlock)
{
    alignas(16) const float memory[12] = {0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    const float big = 16777216;
    // In front 1 + 1 + 1 = 3, so lane 0 is 3 + big, rounded to big + 4, and the others 1 each: (big + 4 + 1)
    // + (1 + 1) is big + 6. In order each 1 is lost.
    const float x[11] = {1, 1, 1, big, 1, 1, 1, 0, 0, 0, 0};
    float s = 0;
    EXPECT_EQ(tenkDotProduct_vv_32f(x, memory + 1, &s, 11), tenkOk);
    EXPECT_EQ(s, big + 6);
    EXPECT_EQ(tenkDotProduct_vv_32f(x, memory + 1, &s, 10), tenkOk);
    EXPECT_EQ(s, big + 4);
}

// A large number and ones: in order every 1 is lost, in blocks those of the other lanes meet first.
template <typename T>
void checkOddAddresses(tenkStatus (*function)(const T*, const T*, T*, std::uint32_t), T big)
{
    alignas(16) char memory[16 + 100 * sizeof(T)];
    for (unsigned length : {8U, 16U, 19U, 100U})
        for (unsigned above = 0; above < 16; ++above) {
            std::vector<T> x(length, T(1));
            x[0] = big;
            const std::vector<T> ones(length, T(1));
            std::memcpy(memory + above, ones.data(), length * sizeof(T));
            const auto* const src2 =
                reinterpret_cast<const T*>(reinterpret_cast<std::uintptr_t>(memory) + above);
            T s = 0;
            EXPECT_EQ(function(x.data(), src2, &s, length), tenkOk);
            if (above % sizeof(T) != 0) {
                EXPECT_EQ(s, big) << length << " elements " << above << " above a boundary";
            } else if (above == 0) {
                EXPECT_GT(s, big) << length;
            }
        }
}

TEST(DotProduct, WithASecondVectorAtAnOddAddressIsTheSumInOrder)
{
    checkOddAddresses<float>(tenkDotProduct_vv_32f, 16777216);          // 2^24
    checkOddAddresses<double>(tenkDotProduct_vv_64f, 9007199254740992); // 2^53
}

template <typename T>
void checkOneElement(const std::string& codes, const std::string& layout)
{
    const unsigned count = codes == "vv" ? 1 : 5;
    const std::string name = "tenkDotProduct_" + codes + "_" + typeName<T>() + layout;
    auto a = vectors<T>(layout, codes != "vv", count, 1), b = vectors<T>(layout, codes == "vava", count, 1);
    const auto results = [&](T x, T y) {
        a.fill([&] { return x; }), b.fill([&] { return y; });
        std::vector<T> dst(count, T(9));
        Arguments sizes = {word(1)};
        if (codes != "vv")
            sizes.push_back(word(count));
        EXPECT_EQ(callByName(name, {a.arguments(), b.arguments(), {pointer(dst.data())}, sizes}), tenkOk);
        return dst;
    };
    for (T s : results(T(3), T(-0.7)))
        EXPECT_EQ(s, T(3) * T(-0.7)) << name;
    for (T s : results(T(-0.0), T(1))) { // +0 + -0
        EXPECT_EQ(s, T(0)) << name;
        EXPECT_FALSE(std::signbit(s)) << name;
    }
}

TEST(DotProduct, OfOneElementIsItsProductAndMinusZeroBecomesPlusZero)
{
    for (const char* codes : {"vv", "vav", "vava"})
        for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
            checkOneElement<float>(codes, layout);
            checkOneElement<double>(codes, layout);
        }
}

// Behind the first block there are 2^31 - 8 zeros. With blocks the sum would be that of eight elements above,
// 2^24 + 2; the length counts as a signed number, so there is none, and in order each 1 is lost.
TEST(DotProduct, OfTwoToTheThirtyOneElementsIsTheSumInOrder)
{
    if constexpr (sizeof(void*) == 8) {
        const std::size_t length = std::size_t{1} << 31;
        void* const memory = mmap(nullptr, length * sizeof(float), PROT_READ | PROT_WRITE,
                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        ASSERT_NE(memory, MAP_FAILED);
        float* const x = static_cast<float*>(memory);
        x[0] = 4096, x[1] = 1, x[5] = 1; // with itself: 2^24, 1 and 1
        float s = 0;
        EXPECT_EQ(tenkDotProduct_vv_32f(x, x, &s, 8), tenkOk);
        EXPECT_EQ(s, 16777218.0F);
        EXPECT_EQ(tenkDotProduct_vv_32f(x, x, &s, static_cast<std::uint32_t>(length)), tenkOk);
        EXPECT_EQ(s, 16777216.0F);
        munmap(memory, length * sizeof(float));
    } else {
        GTEST_SKIP() << "more than the address space holds";
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Tests of arguments
// ---------------------------------------------------------------------------------------------------------------

TEST(DotProduct, TestsPointersThenSizesThenTablesThenCount)
{
    float x[8] = {}, s = 9;
    EXPECT_EQ(tenkDotProduct_vv_32f(nullptr, x, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vv_32f(x, nullptr, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vv_32f(x, x, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vv_32f(x, x, &s, 0), tenkSizeError);
    EXPECT_EQ(tenkDotProduct_vav_32f(x, 4, x, &s, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkDotProduct_vav_32f(x, 4, x, &s, 1, 0), tenkOk);
    EXPECT_EQ(tenkDotProduct_vav_32f_3x1(x, 4, nullptr, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vav_32f_3x1(x, 4, x, &s, 0), tenkOk);
    const float* table[] = {x, x, x};
    const float* broken[] = {x, x, nullptr};
    EXPECT_EQ(tenkDotProduct_vav_32f_P(broken, 0, table, 0, &s, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vav_32f_P(broken, 0, table, 0, &s, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkDotProduct_vav_32f_P(table, 0, broken, 0, &s, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vav_32f_P(table, 0, broken, 0, &s, 2, 0), tenkOk);
    EXPECT_EQ(tenkDotProduct_vava_32f_3x1_PS2(table, 0, 0, broken, 0, 0, &s, 0), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vv_32f_3x1_P(table, 0, broken, 0, &s), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vv_32f_P(broken, 0, table, 0, &s, 3), tenkNullPointerError);
    EXPECT_EQ(s, 9.0F);
}

TEST(DotProduct, SeesAGapInEitherOperand)
{
    const Floats x = {1, 2, 3, 4, 5, 6, 7, 8, 9}, ones(9, 1), y = {1, 0, 0, 0, 0, 1, 0, 0, 0};
    Floats s(2);
    EXPECT_EQ(tenkDotProduct_vava_32f_4x1(x.data(), 16, y.data(), 20, s.data(), 2), tenkOk);
    EXPECT_EQ(s, (Floats{1, 5}));
    EXPECT_EQ(tenkDotProduct_vava_32f_4x1(x.data(), 20, ones.data(), 16, s.data(), 2), tenkOk);
    EXPECT_EQ(s, (Floats{10, 30}));
}

// Two tables are tested index by index: behind a null entry of one nothing is read of the other.
TEST(DotProduct, TestsTablesIndexByIndex)
{
    float x = 1, s = 9;
    const float* broken[] = {&x, nullptr};
    char* const memory =
        static_cast<char*>(mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    mprotect(memory + 4096, 4096, PROT_NONE);
    const float** const shorter =
        reinterpret_cast<const float**>(memory + 4096) - 2; // two entries up to the end
    shorter[0] = shorter[1] = &x;
    EXPECT_EQ(tenkDotProduct_vav_32f_P(broken, 0, shorter, 0, &s, 3, 1), tenkNullPointerError);
    EXPECT_EQ(tenkDotProduct_vav_32f_P(shorter, 0, broken, 0, &s, 3, 1), tenkNullPointerError);
    EXPECT_EQ(s, 9.0F);
    munmap(memory, 8192);
}

// Calls a list member on eight objects of ones, of which one has a null entry, and returns how many results
// stand.
template <typename T>
unsigned resultsBeforeNull(const std::string& codes, unsigned size, unsigned nullAt, unsigned count,
                           bool second = false)
{
    const auto one = [] { return T(1); };
    auto a = vectors<T>("_L", true, count, size);
    auto b = vectors<T>("_L", codes == "vava", count, size);
    a.fill(one), b.fill(one);
    (second ? b : a).pointers()[nullAt] = nullptr;
    std::vector<T> dst(count, T(-1));
    EXPECT_EQ(
        callByName("tenkDotProduct_" + codes + "_" + typeName<T>() + "_" + std::to_string(size) + "x1_L",
                   {a.arguments(), b.arguments(), {pointer(dst.data()), word(count)}}),
        tenkNullPointerError);
    unsigned n = 0;
    while (n < count && dst[n] == T(size))
        ++n;
    for (unsigned k = n; k < count; ++k)
        EXPECT_EQ(dst[k], T(-1));
    return n;
}

TEST(DotProduct, OfAListOfThreeOrFour32fElementsTestsFourEntriesAtATime)
{
    for (unsigned size : {3U, 4U}) {
        EXPECT_EQ(resultsBeforeNull<float>("vav", size, 3, 8), 0U);
        EXPECT_EQ(resultsBeforeNull<float>("vav", size, 6, 8), 4U);
        EXPECT_EQ(resultsBeforeNull<float>("vav", size, 6, 7), 6U); // of the rest one by one
    }
}

TEST(DotProduct, OfOtherListsTestsOneEntryAtATime)
{
    EXPECT_EQ(resultsBeforeNull<float>("vav", 5, 3, 8), 3U);
    EXPECT_EQ(resultsBeforeNull<float>("vav", 6, 3, 8), 3U);
    for (unsigned size : {3U, 4U, 5U, 6U}) {
        EXPECT_EQ(resultsBeforeNull<double>("vav", size, 1, 8), 1U);
        EXPECT_EQ(resultsBeforeNull<double>("vava", size, 1, 8), 1U);
        EXPECT_EQ(resultsBeforeNull<float>("vava", size, 3, 8), 3U);
        EXPECT_EQ(resultsBeforeNull<float>("vava", size, 6, 8, true), 6U);
    }
}

// The same of lists without a shift.
TEST(DotProduct, OfListsWithoutAShiftWritesWhatIsInFrontOfANullEntry)
{
    const auto check = [](const std::string& codes, unsigned size, auto one, unsigned together) {
        using T = decltype(one);
        const std::vector<T> ones(size, one);
        for (unsigned nullAt = 0; nullAt < 12; ++nullAt)
            for (bool second : {false, true}) {
                if (second && codes == "vav")
                    continue;
                std::vector<const T*> entries(12, ones.data()), others = entries;
                (second ? others : entries)[nullAt] = nullptr;
                std::vector<T> dst(12, T(-1)), expected(12, T(-1));
                std::fill_n(expected.begin(), nullAt / together * together, T(size));
                const Arguments y = codes == "vava" ? Arguments{pointer(others.data()), word(0)}
                                                    : Arguments{pointer(ones.data())};
                EXPECT_EQ(
                    callByName("tenkDotProduct_" + codes + "_" + typeName<T>() + "_" + std::to_string(size) +
                                   "x1_L",
                               {{pointer(entries.data()), word(0)}, y, {pointer(dst.data()), word(12)}}),
                    tenkNullPointerError);
                EXPECT_EQ(dst, expected) << codes << size << ", null at " << nullAt;
            }
    };
    for (unsigned size : {3U, 4U, 5U, 6U}) {
        check("vav", size, 1.0F, size < 5 ? 4 : 1);
        check("vava", size, 1.0F, 1);
        check("vav", size, 1.0, 1);
        check("vava", size, 1.0, 1);
    }
}

// The list ends with a null entry where memory ends.
TEST(DotProduct, OfAListReadsNoEntryBehindANullOne)
{
    auto* const memory =
        static_cast<char*>(mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(memory, MAP_FAILED);
    ASSERT_EQ(mprotect(memory + 4096, 4096, PROT_NONE), 0);
    const Floats x(7, 1);
    auto** const list = reinterpret_cast<const float**>(memory + 4096) - 2;
    list[0] = x.data();
    for (std::uint32_t shift : {0U, 4U}) {
        Floats s(8, -1);
        EXPECT_EQ(tenkDotProduct_vav_32f_5x1_L(list, shift, x.data(), s.data(), 8), tenkNullPointerError);
        EXPECT_EQ(tenkDotProduct_vava_32f_4x1_L(list, shift, list, shift, s.data() + 1, 7),
                  tenkNullPointerError);
        EXPECT_EQ(s, (Floats{5, 4, -1, -1, -1, -1, -1, -1}));
    }
    munmap(memory, 8192);
}

// No object of a step is read before all entries of the step are tested.
TEST(DotProduct, OfAListOfThreeOrFour32fElementsReadsNoneOfAStepWithANullEntry)
{
    void* const unreadable = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(unreadable, MAP_FAILED);
    const Floats x(4, 1);
    const float* const list[] = {static_cast<float*>(unreadable), x.data(), x.data(), nullptr};
    for (std::uint32_t shift : {0U, 4U}) {
        Floats s(4, -1);
        EXPECT_EQ(tenkDotProduct_vav_32f_3x1_L(list, shift, x.data(), s.data(), 4), tenkNullPointerError);
        EXPECT_EQ(tenkDotProduct_vav_32f_4x1_L(list, shift, x.data(), s.data(), 4), tenkNullPointerError);
        EXPECT_EQ(s, Floats(4, -1));
    }
    munmap(unreadable, 4096);
}

// Objects in front of the results and behind them, in either list, with a shift and without.
TEST(DotProduct, OfListsStopsAtANullEntryWhereverTheObjectsAre)
{
    for (unsigned results : {0U, 30U})
        for (unsigned shift : {0U, 4U})
            for (bool second : {false, true}) {
                Floats memory(40, 1);
                const float* const x = memory.data() + 12;
                alignas(16) const float* entries[] = {x, x, nullptr, x};
                alignas(16) const float* others[] = {x, x, x, x};
                EXPECT_EQ(tenkDotProduct_vava_32f_5x1_L(second ? others : entries, second ? 0 : shift,
                                                        second ? entries : others, second ? shift : 0,
                                                        &memory[results], 4),
                          tenkNullPointerError);
                Floats expected(40, 1);
                expected[results] = expected[results + 1] = 5;
                EXPECT_EQ(memory, expected);
            }
}

// The second object has the first result as its last element, or as its first.
TEST(DotProduct, OfListsReadsResultsThatLieOnTheObjectsBehindOrInFrontOfThem)
{
    const Floats ones(5, 1);
    for (bool behind : {false, true}) {
        Floats memory(20, 1);
        const float* const m = memory.data();
        const float* const first = behind ? m + 12 : m;
        alignas(16) const float* entries[] = {first, behind ? m + 4 : m + 8, first, first};
        EXPECT_EQ(tenkDotProduct_vav_32f_5x1_L(entries, 0, ones.data(), &memory[8], 4), tenkOk);
        EXPECT_EQ(Floats(m + 8, m + 12), (Floats{5, 9, 5, 5}));
    }
    // The third begins with the second result.
    Floats memory(20, 1);
    const float* const m = memory.data();
    alignas(16) const float* entries[] = {m + 12, m + 12, m + 9, m + 12};
    EXPECT_EQ(tenkDotProduct_vav_32f_5x1_L(entries, 0, ones.data(), &memory[8], 4), tenkOk);
    EXPECT_EQ(Floats(m + 8, m + 12), (Floats{5, 5, 9, 5}));
}

TEST(DotProduct, OfAListThatBeginsWithANullEntryReadsNothingOfTheOther)
{
    void* const unreadable = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(unreadable, MAP_FAILED);
    const Floats x(5, 1);
    const float* entries[] = {nullptr, x.data(), x.data(), x.data()};
    Floats s(4, -1);
    EXPECT_EQ(
        tenkDotProduct_vava_32f_5x1_L(entries, 0, static_cast<const float**>(unreadable), 0, s.data(), 4),
        tenkNullPointerError);
    EXPECT_EQ(s, Floats(4, -1));
    munmap(unreadable, 4096);
}

// The results of a step lie on objects of the same step, which have been read by then, and of none before it.
TEST(DotProduct, OfSomeArraysReadsAWholeStepBeforeItWrites)
{
    // Five objects of four elements, a step of four bytes apart: object k is k + 1 ... k + 4.
    const float ones[] = {1, 1, 1, 1};
    Floats x = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(tenkDotProduct_vav_32f_4x1(x.data(), 4, ones, x.data() + 1, 4), tenkOk);
    EXPECT_EQ(x, (Floats{1, 10, 14, 18, 22, 6, 7, 8}));
    Floats y = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(tenkDotProduct_vav_32f_3x1(y.data(), 4, ones, y.data() + 1, 4), tenkOk);
    EXPECT_EQ(y, (Floats{1, 6, 9, 12, 15, 6, 7, 8}));
    std::vector<double> z = {1, 2, 3, 4, 5, 6};
    const double doubles[] = {1, 1, 1};
    EXPECT_EQ(tenkDotProduct_vav_64f_3x1(z.data(), 8, doubles, z.data() + 1, 2), tenkOk);
    EXPECT_EQ(z, (std::vector<double>{1, 6, 9, 4, 5, 6}));
    // One at a time: 1 + 2 + 3 + 4 + 5 = 15 first, which is the first element of the next object.
    Floats w = {1, 2, 3, 4, 5, 6, 7};
    const float five[] = {1, 1, 1, 1, 1};
    EXPECT_EQ(tenkDotProduct_vav_32f_5x1(w.data(), 4, five, w.data() + 1, 2), tenkOk);
    EXPECT_EQ(w, (Floats{1, 15, 33, 4, 5, 6, 7})); // 15 + 3 + 4 + 5 + 6
}

// Other arrays go object by object: the results, which lie on later objects of one operand, are those of
// calls with one object each.
template <typename T>
void checkOneByOne(const std::string& codes, unsigned size, const std::string& layout, bool onSecond,
                   int offset)
{
    const std::string name =
        "tenkDotProduct_" + codes + "_" + typeName<T>() + "_" + std::to_string(size) + "x1" + layout;
    for (unsigned count : {8U, 9U}) {
        std::vector<T> batch(128 + count * size, T(1)), other(128 + count * size, T(0.5));
        for (std::size_t j = 0; j < batch.size(); ++j)
            batch[j] = T(j % 7);
        std::vector<T> single = batch;
        const auto run = [&](std::vector<T>& x, std::size_t k, unsigned n) {
            std::vector<const T*> entries[2];
            const auto operand = [&](unsigned which, bool array) -> Arguments {
                const T* const start = ((which == 1) == onSecond ? x : other).data() + 32;
                if (!array)
                    return {pointer(start)};
                for (std::size_t i = k; i < k + n; ++i)
                    entries[which].push_back(start + i * size);
                if (layout == "_L")
                    return {pointer(entries[which].data()), word(0)};
                return {pointer(start + k * size), word(static_cast<std::uint32_t>(size * sizeof(T)))};
            };
            T* const dst = x.data() + 32 + offset + static_cast<std::ptrdiff_t>(k);
            EXPECT_EQ(
                callByName(name, {operand(0, true), operand(1, codes == "vava"), {pointer(dst), word(n)}}),
                tenkOk);
        };
        run(batch, 0, count);
        for (std::size_t k = 0; k < count; ++k)
            run(single, k, 1);
        EXPECT_EQ(batch, single) << name << ", results at " << offset << " of operand " << onSecond + 1;
    }
}

TEST(DotProduct, OfOtherArraysWritesEachResultBeforeItReadsTheNextObject)
{
    for (int offset = -12; offset < 60; ++offset)
        for (unsigned size : {3U, 4U, 5U, 6U})
            for (const char* layout : {"", "_L"}) {
                for (bool onSecond : {false, true}) {
                    checkOneByOne<float>("vava", size, layout, onSecond, offset);
                    checkOneByOne<double>("vava", size, layout, onSecond, offset);
                }
                for (bool onSecond : {false, true}) {
                    if (size > 4)
                        checkOneByOne<float>("vav", size, layout, onSecond, offset);
                    if (size > 3 || *layout)
                        checkOneByOne<double>("vav", size, layout, onSecond, offset);
                }
            }
}

// The first results fill a list entry: a null pointer by the time its object is due.
TEST(DotProduct, OfListsWritesEachResultBeforeItReadsTheNextEntry)
{
    constexpr std::size_t filled = sizeof(void*) / sizeof(float);
    for (unsigned size : {5U, 6U})
        for (bool behind : {false, true}) { // objects in front of the list, or behind it
            struct
            {
                float front[6];
                const float* entries[4];
                float back[6];
            } m{};
            const float* const zeros = behind ? m.back : m.front;
            std::fill_n(m.entries, 4, zeros);
            const Floats y(6, 1);
            EXPECT_EQ(callByName("tenkDotProduct_vav_32f_" + std::to_string(size) + "x1_L",
                                 {{pointer(m.entries), word(0), pointer(y.data()),
                                   pointer(&m.entries[filled]), word(4)}}),
                      tenkNullPointerError);
            EXPECT_EQ(m.entries[filled], nullptr);
            EXPECT_EQ(m.entries[filled + 1], zeros);
        }
}

TEST(DotProduct, PassesInfinitiesAndNaNsThrough)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float x[] = {infinity, 1, 2}, zeros[] = {0, 0, 0}, ones[] = {1, 1, 1};
    float s = 0;
    EXPECT_EQ(tenkDotProduct_vv_32f_3x1(x, ones, &s), tenkOk);
    EXPECT_EQ(s, infinity);
    EXPECT_EQ(tenkDotProduct_vv_32f_3x1(x, zeros, &s), tenkOk);
    EXPECT_TRUE(std::isnan(s));
}

} // namespace
