// LComb: edge cases by hand, and all members against the formula.
#include "tenk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>
#include <sys/mman.h>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();

template <typename T>
std::string nameOf(const std::string& codes, unsigned size, const std::string& layout)
{
    return "tenkLComb_" + codes + "_" + typeName<T>() + (size == 0 ? "" : "_" + std::to_string(size) + "x1") +
           layout;
}

Arguments sizes(unsigned size, unsigned length, unsigned count)
{
    Arguments a;
    if (size == 0)
        a.push_back(word(length));
    if (count > 0)
        a.push_back(word(count));
    return a;
}

template <typename T>
void checkMember(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes != "vv", array2 = codes == "vava";
    const bool array = array1 || array2;
    const unsigned count = array ? 5 : 1;
    const std::string name = nameOf<T>(codes, size, layout);
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    for (unsigned length :
         size == 0 ? std::vector<unsigned>{1, 2, 7, 8, 19, 40} : std::vector<unsigned>{size}) {
        auto a = vectors<T>(layout, array1, count, length), b = vectors<T>(layout, array2, count, length);
        auto dst = vectors<T>(layout, array, count, length),
             expected = vectors<T>(layout, array, count, length);
        a.fill([&] { return number(random); });
        b.fill([&] { return number(random); });
        const T c = number(random), d = number(random);
        ASSERT_EQ(callByName(name, {a.arguments(),
                                    {value(c)},
                                    b.arguments(),
                                    {value(d)},
                                    dst.arguments(),
                                    sizes(size, length, array ? count : 0)}),
                  tenkOk)
            << name;
        for (unsigned k = 0; k < count; ++k)
            for (unsigned j = 0; j < length; ++j) {
                const T first = a.at(k, j) * c, second = b.at(k, j) * d;
                expected.at(k, j) = first + second;
            }
        EXPECT_EQ(dst.memory(), expected.memory()) << name; // what is between the elements, too
    }
}

TEST(LComb, FollowsTheFormulaInAllMembers)
{
    for (const char* codes : {"vv", "vav", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkMember<float>(codes, size, layout);
                checkMember<double>(codes, size, layout);
            }
}

// 1 + 2^-12 squared is 1 + 2^-11 + 2^-24, and each product is rounded to 1 + 2^-11 before the sum; with
// either fused, 2^-24 would be left.
TEST(LComb, RoundsBothProductsBeforeTheSum)
{
    const float x = 1.0F + 0x1p-12F;
    float z = 9;
    EXPECT_EQ(tenkLComb_vv_32f(&x, x, &x, -x, &z, 1), tenkOk);
    EXPECT_EQ(z, 0.0F);
}

TEST(LComb, FormsBothProductsForEveryValue)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float x[] = {infinity, 1, 2}, y[] = {1, nan, 3};
    float z[3] = {};
    EXPECT_EQ(tenkLComb_vv_32f_3x1(x, 0, y, 0, z), tenkOk);
    EXPECT_TRUE(std::isnan(z[0]));
    EXPECT_TRUE(std::isnan(z[1]));
    EXPECT_EQ(z[2], 0.0F);
}

// A NaN in either vector times 0 is no number, whatever the other product.
template <typename T>
void checkFormsBothProducts(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes != "vv", array2 = codes == "vava";
    const bool array = array1 || array2;
    const unsigned count = array ? 2 : 1, length = size == 0 ? 19 : size;
    for (const bool second : {false, true}) {
        auto a = vectors<T>(layout, array1, count, length), b = vectors<T>(layout, array2, count, length);
        auto dst = vectors<T>(layout, array, count, length);
        a.fill([] { return T(3); }), b.fill([] { return T(3); });
        (second ? b : a).fill([] { return std::numeric_limits<T>::quiet_NaN(); });
        const std::string name = nameOf<T>(codes, size, layout);
        ASSERT_EQ(callByName(name, {a.arguments(),
                                    {value(T(second ? 1 : 0))},
                                    b.arguments(),
                                    {value(T(second ? 0 : 1))},
                                    dst.arguments(),
                                    sizes(size, length, array ? count : 0)}),
                  tenkOk);
        for (unsigned k = 0; k < count; ++k)
            for (unsigned j = 0; j < length; ++j)
                EXPECT_TRUE(std::isnan(dst.at(k, j))) << name;
    }
}

TEST(LComb, FormsBothProductsForEveryValueInAllMembers)
{
    for (const char* codes : {"vv", "vav", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkFormsBothProducts<float>(codes, size, layout);
                checkFormsBothProducts<double>(codes, size, layout);
            }
}

TEST(LComb, OfEightElementsOnBoundariesIsThereAndNoMore)
{
    alignas(16) float x[8] = {1, 2, 3, 4, 5, 6, 7, 8}, y[8] = {8, 7, 6, 5, 4, 3, 2, 1};
    alignas(16) float z[10] = {0, 0, 0, 0, 0, 0, 0, 0, 9, 9};
    EXPECT_EQ(tenkLComb_vv_32f(x, 2, y, 1, z, 8), tenkOk);
    for (int j = 0; j < 8; ++j)
        EXPECT_EQ(z[j], static_cast<float>(10 + j));
    EXPECT_EQ(z[8], 9.0F);
}

// The products of the single second vector are formed before the first object.
TEST(LComb, OfSomeArraysReadsTheSecondVectorOnce)
{
    for (unsigned size : {4U, 5U, 6U}) {
        // The first result goes over the second vector: 1 + 10, and 1 + 10 again where it is read once.
        Floats x(2 * size, 1), memory(2 * size, 5);
        EXPECT_EQ(callByName(nameOf<float>("vav", size, ""),
                             {{pointer(x.data()), word(4 * size), value(1.0F), pointer(memory.data()),
                               value(2.0F), pointer(memory.data()), word(4 * size), word(2)}}),
                  tenkOk);
        EXPECT_EQ(memory, Floats(2 * size, 11));
        std::vector<double> dx(2 * size, 1), doubles(2 * size, 5);
        EXPECT_EQ(callByName(nameOf<double>("vav", size, ""),
                             {{pointer(dx.data()), word(8 * size), value(1.0), pointer(doubles.data()),
                               value(2.0), pointer(doubles.data()), word(8 * size), word(2)}}),
                  tenkOk);
        EXPECT_EQ(doubles, std::vector<double>(2 * size, 11));
    }
    Floats x(4, 1), memory(8, 5);
    const float* from[] = {x.data(), x.data()};
    float* to[] = {memory.data(), memory.data() + 4};
    EXPECT_EQ(tenkLComb_vav_32f_4x1_L(from, 0, 1, memory.data(), 2, to, 0, 2), tenkOk);
    EXPECT_EQ(memory, Floats(8, 11));
    std::vector<double> dx(4, 1), doubles(8, 5);
    const double* doublesFrom[] = {dx.data(), dx.data()};
    double* doublesTo[] = {doubles.data(), doubles.data() + 4};
    EXPECT_EQ(tenkLComb_vav_64f_4x1_L(doublesFrom, 0, 1, doubles.data(), 2, doublesTo, 0, 2), tenkOk);
    EXPECT_EQ(doubles, std::vector<double>(8, 11));
}

// 1 + 2 x 5 over the second vector first, then 1 + 2 x 11.
template <typename T>
void checkReadsTheSecondVectorForEachObject(unsigned size, const std::string& layout)
{
    std::vector<T> x(size, 1), memory(2 * size, 5), expected(size, 11);
    expected.resize(2 * size, 23);
    std::vector<const T*> from(2, x.data());
    std::vector<T*> to = {memory.data(), memory.data() + size};
    const bool list = layout == "_L";
    const std::uint32_t stride = list ? 0 : static_cast<std::uint32_t>(size * sizeof(T)); // or the shift
    EXPECT_EQ(callByName(nameOf<T>("vav", size, layout),
                         {{list ? pointer(from.data()) : pointer(x.data()), word(0), value(T(1)),
                           pointer(memory.data()), value(T(2)),
                           list ? pointer(to.data()) : pointer(memory.data()), word(stride), word(2)}}),
              tenkOk);
    EXPECT_EQ(memory, expected) << nameOf<T>("vav", size, layout);
}

TEST(LComb, OfOtherArraysReadsTheSecondVectorForEachObject)
{
    checkReadsTheSecondVectorForEachObject<float>(3, "");
    checkReadsTheSecondVectorForEachObject<double>(3, "");
    for (unsigned size : {3U, 5U, 6U}) {
        checkReadsTheSecondVectorForEachObject<float>(size, "_L");
        checkReadsTheSecondVectorForEachObject<double>(size, "_L");
    }
}

TEST(LComb, OfAnEmptyArrayIsFine)
{
    const float y[] = {1, 2, 3, 4};
    float x = 0, z = 9;
    EXPECT_EQ(tenkLComb_vav_32f_4x1(&x, 0, 1, y, 1, &z, 0, 0), tenkOk);
    EXPECT_EQ(z, 9.0F);
}

// Where it is read once, the second vector is read even if there is no object.
TEST(LComb, OfAnEmptyArrayReadsTheSecondVectorAllTheSame)
{
    void* const unreadable = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(unreadable, MAP_FAILED);
    const auto* const y = static_cast<const float*>(unreadable);
    float x = 0, z = 0;
    EXPECT_DEATH(tenkLComb_vav_32f_4x1(&x, 0, 1, y, 1, &z, 0, 0), "");
    EXPECT_EQ(tenkLComb_vav_32f_3x1(&x, 0, 1, y, 1, &z, 0, 0), tenkOk);
    munmap(unreadable, 4096);
}

// All lengths up to 40 and two long ones at all alignments of the destination, odd ones among them.
template <typename T>
void checkAlignments(tenkStatus (*function)(const T*, T, const T*, T, T*, std::uint32_t))
{
    std::vector<unsigned> lengths = {100, 1000};
    for (unsigned n = 1; n <= 40; ++n)
        lengths.push_back(n);
    std::mt19937 random(1);
    std::uniform_real_distribution<T> number(-1, 1);
    alignas(16) char xs[1000 * sizeof(T) + 16], ys[1000 * sizeof(T) + 16], zs[1000 * sizeof(T) + 32];
    for (const unsigned n : lengths)
        for (unsigned at = 0; at < 16 * 16; ++at) {
            const unsigned xAt = at * 5 % 16, yAt = at / 16, zAt = at % 16;
            std::vector<T> x(n), y(n), expected(n), z(n);
            for (unsigned i = 0; i < n; ++i) {
                x[i] = number(random), y[i] = number(random);
                const T first = x[i] * T(0.3), second = y[i] * T(0.7);
                expected[i] = first + second;
            }
            std::memcpy(xs + xAt, x.data(), n * sizeof(T));
            std::memcpy(ys + yAt, y.data(), n * sizeof(T));
            std::memset(zs, 1, sizeof zs);
            const auto address = [](char* p, unsigned offset) {
                return reinterpret_cast<std::uintptr_t>(p) + offset;
            };
            ASSERT_EQ(function(reinterpret_cast<const T*>(address(xs, xAt)), T(0.3),
                               reinterpret_cast<const T*>(address(ys, yAt)), T(0.7),
                               reinterpret_cast<T*>(address(zs, zAt)), n),
                      tenkOk);
            std::memcpy(z.data(), zs + zAt, n * sizeof(T));
            ASSERT_EQ(z, expected) << n << " elements at " << zAt;
            unsigned around = 0;
            for (unsigned b = 0; b < sizeof zs; ++b)
                around += (b < zAt || b >= zAt + n * sizeof(T)) && zs[b] == 1;
            ASSERT_EQ(around, sizeof zs - n * sizeof(T)) << "bytes around the destination";
        }
}

TEST(LComb, IsTheSameAtAllLengthsAndAlignments)
{
    checkAlignments<float>(tenkLComb_vv_32f);
    checkAlignments<double>(tenkLComb_vv_64f);
}

// The plain loop in ascending order, on a copy of the memory, at all distances of the destination from a
// source.
template <typename T>
void checkOverlap(tenkStatus (*function)(const T*, T, const T*, T, T*, std::uint32_t))
{
    for (unsigned n : {1U, 8U, 9U, 11U, 20U, 40U, 100U})
        for (int bytes = -40; bytes <= 40; ++bytes)
            for (bool second : {false, true}) {
                std::vector<T> memory(n + 32), other(n);
                std::iota(memory.begin(), memory.end(), T(1));
                std::iota(other.begin(), other.end(), T(-50));
                std::vector<T> expected = memory;
                const auto at = [&](std::vector<T>& v, unsigned j, int offset) {
                    return reinterpret_cast<char*>(v.data() + 12 + j) + offset;
                };
                for (unsigned j = 0; j < n; ++j) {
                    T x;
                    std::memcpy(&x, at(expected, j, 0), sizeof x);
                    const T sum = (second ? other[j] : x) * T(0.5) + (second ? x : other[j]) * T(0.25);
                    std::memcpy(at(expected, j, bytes), &sum, sizeof sum);
                }
                const T* const src = memory.data() + 12;
                T* const dst = reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(src) +
                                                    static_cast<std::uintptr_t>(std::intptr_t{bytes}));
                ASSERT_EQ(function(second ? other.data() : src, T(0.5), second ? src : other.data(), T(0.25),
                                   dst, n),
                          tenkOk);
                ASSERT_EQ(std::memcmp(memory.data(), expected.data(), memory.size() * sizeof(T)), 0)
                    << n << " elements, " << bytes << " bytes apart";
            }
}

TEST(LComb, OverlappingGivesTheResultOfTheAscendingLoop)
{
    checkOverlap<float>(tenkLComb_vv_32f);
    checkOverlap<double>(tenkLComb_vv_64f);
}

TEST(LComb, OneElementAboveItsSourceRunsThrough)
{
    Floats x(21, 1);
    const Floats zeros(20, 0);
    EXPECT_EQ(tenkLComb_vv_32f(x.data(), 2, zeros.data(), 1, x.data() + 1, 20), tenkOk);
    for (std::size_t j = 0; j < 21; ++j)
        EXPECT_EQ(x[j], std::ldexp(1.0F, static_cast<int>(j)));
}

// Over a source that is an array or the only object of its kind.
template <typename T>
void checkInPlace(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes != "vv", array2 = codes == "vava";
    const bool array = array1 || array2;
    const unsigned count = array ? 5 : 1, length = size == 0 ? 19 : size;
    for (bool second : {false, true}) {
        if ((second ? array2 : array1) != array)
            continue;
        auto a = vectors<T>(layout, array1, count, length), b = vectors<T>(layout, array2, count, length);
        auto expected = vectors<T>(layout, array, count, length);
        T n = 1;
        a.fill([&] { return n = n + 1; }), b.fill([&] { return n = n + 3; });
        for (unsigned k = 0; k < count; ++k)
            for (unsigned j = 0; j < length; ++j)
                expected.at(k, j) = a.at(k, j) * T(3) + b.at(k, j) * T(2);
        auto& dst = second ? b : a;
        const std::string name = nameOf<T>(codes, size, layout);
        ASSERT_EQ(callByName(name, {a.arguments(),
                                    {value(T(3))},
                                    b.arguments(),
                                    {value(T(2))},
                                    dst.arguments(),
                                    sizes(size, length, array ? count : 0)}),
                  tenkOk);
        EXPECT_EQ(dst.memory(), expected.memory()) << name;
    }
}

TEST(LComb, InPlaceIsExact)
{
    for (const char* codes : {"vv", "vav", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkInPlace<float>(codes, size, layout);
                checkInPlace<double>(codes, size, layout);
            }
}

// Fixed sizes, too, go element by element: 2 x 1 lands on the element that is read next.
TEST(LComb, OfFixedSizeOneElementAboveItsSourceRunsThrough)
{
    const Floats zeros(8, 0);
    Floats x(8, 1);
    EXPECT_EQ(tenkLComb_vv_32f_6x1(x.data(), 2, zeros.data(), 1, x.data() + 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 2, 4, 8, 16, 32, 64, 1}));
    Floats y(8, 1);
    const float* list[] = {y.data()};
    const float* zero[] = {zeros.data()};
    float* dst[] = {y.data() + 1};
    EXPECT_EQ(tenkLComb_vava_32f_3x1_L(list, 0, 2, zero, 0, 1, dst, 0, 1), tenkOk);
    EXPECT_EQ(y, (Floats{1, 2, 4, 8, 1, 1, 1, 1}));
    // Batches without gaps, one element apart.
    Floats z(13, 1);
    const Floats more(12, 0);
    EXPECT_EQ(tenkLComb_vava_32f_4x1(z.data(), 16, 2, more.data(), 16, 1, z.data() + 1, 16, 3), tenkOk);
    for (std::size_t j = 0; j < 13; ++j)
        EXPECT_EQ(z[j], std::ldexp(1.0F, static_cast<int>(j)));
}

// Two objects of a fixed size, at all distances in bytes of the destination from a source, which may be a
// single one, and with the destinations as far apart as the sources or farther: the plain loop on a copy of
// the memory.
template <typename T>
void checkOverlapOfFixedSize(const std::string& codes, unsigned size, bool list, unsigned farther)
{
    constexpr unsigned count = 2;
    const bool array[] = {codes != "vva", codes != "vav", true};
    const unsigned gap[] = {size + 1, size + 1, size + 1 + farther};
    for (int bytes = -56; bytes <= 56; ++bytes)
        for (bool second : {false, true}) {
            if (second && codes == "vav" && (list ? size == 4 : size > 3))
                continue; // the single vector is read once
            std::vector<T> memory(64), other(64);
            std::iota(memory.begin(), memory.end(), T(1));
            std::iota(other.begin(), other.end(), T(-50));
            std::vector<T> expected = memory;
            const auto address = [&](unsigned which, std::vector<T>& v, unsigned k, unsigned j) {
                const auto start =
                    reinterpret_cast<char*>(v.data() + 16 + (array[which] ? k * gap[which] : 0) + j);
                return which == 2 ? start + bytes : start;
            };
            for (unsigned k = 0; k < count; ++k)
                for (unsigned j = 0; j < size; ++j) {
                    T x, y;
                    std::memcpy(&x, address(0, second ? other : expected, k, j), sizeof x);
                    std::memcpy(&y, address(1, second ? expected : other, k, j), sizeof y);
                    const T product = x * T(0.5), sum = product + y * T(0.25);
                    std::memcpy(address(2, expected, k, j), &sum, sizeof sum);
                }
            std::vector<char*> entries[3];
            const auto operand = [&](unsigned which, std::vector<T>& v) -> Arguments {
                for (unsigned k = 0; k < count; ++k)
                    entries[which].push_back(address(which, v, k, 0));
                if (!array[which])
                    return {pointer(entries[which][0])};
                if (list)
                    return {pointer(entries[which].data()), word(0)};
                return {pointer(entries[which][0]), word(static_cast<std::uint32_t>(gap[which] * sizeof(T)))};
            };
            const std::string name = nameOf<T>(codes, size, list ? "_L" : "");
            ASSERT_EQ(callByName(name, {operand(0, second ? other : memory),
                                        {value(T(0.5))},
                                        operand(1, second ? memory : other),
                                        {value(T(0.25))},
                                        operand(2, memory),
                                        {word(count)}}),
                      tenkOk);
            ASSERT_EQ(std::memcmp(memory.data(), expected.data(), memory.size() * sizeof(T)), 0)
                << name << ", " << bytes << " bytes apart";
        }
}

TEST(LComb, OfFixedSizeOverlappingGivesTheResultOfTheAscendingLoop)
{
    for (const char* codes : {"vav", "vava"})
        for (unsigned size : {3U, 4U, 5U, 6U})
            for (bool list : {false, true})
                for (unsigned farther : {0U, 1U}) {
                    checkOverlapOfFixedSize<float>(codes, size, list, farther);
                    checkOverlapOfFixedSize<double>(codes, size, list, farther);
                }
}

// Arrays without gaps but for one element between the objects of one operand, and lists of which one has a
// shift.
TEST(LComb, SeesAGapOrAShiftOfAnyOperand)
{
    const Floats x = {1, 2, 3, 4, 5, 6, 7, 8, 9}, y = {10, 20, 30, 40, 50, 60, 70, 80, 90};
    for (unsigned which : {0U, 2U}) {
        Floats z(9, 0), expected(9, 0);
        const auto step = [&](unsigned operand) { return operand == which ? 5U : 4U; };
        for (std::size_t k = 0; k < 2; ++k)
            for (std::size_t j = 0; j < 4; ++j)
                expected[k * step(2) + j] = 2 * x[k * step(0) + j] + 3 * y[j];
        EXPECT_EQ(tenkLComb_vav_32f_4x1(x.data(), 4 * step(0), 2, y.data(), 3, z.data(), 4 * step(2), 2),
                  tenkOk);
        EXPECT_EQ(z, expected) << "gap in operand " << which;

        const float* const from[] = {x.data(), x.data() + 4};
        float* const to[] = {z.data(), z.data() + 4};
        const auto shift = [&](unsigned operand) { return operand == which ? 1U : 0U; };
        z.assign(9, 0), expected.assign(9, 0);
        for (std::size_t j = 0; j < 8; ++j)
            expected[j + shift(2)] = 2 * x[j + shift(0)] + 3 * y[j % 4];
        EXPECT_EQ(tenkLComb_vav_32f_4x1_L(from, 4 * shift(0), 2, y.data(), 3, to, 4 * shift(2), 2), tenkOk);
        EXPECT_EQ(z, expected) << "shift of operand " << which;
    }
}

TEST(LComb, TestsPointersThenLengthThenTablesThenCount)
{
    float x[4] = {}, z[4] = {9, 9, 9, 9};
    EXPECT_EQ(tenkLComb_vv_32f(nullptr, 1, x, 1, z, 0), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vv_32f(x, 1, nullptr, 1, z, 0), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vv_32f(x, 1, x, 1, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vv_32f(x, 1, x, 1, z, 0), tenkSizeError);
    EXPECT_EQ(tenkLComb_vava_32f(x, 0, 1, x, 0, 1, z, 0, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkLComb_vava_32f(x, 0, 1, x, 0, 1, z, 0, 4, 0), tenkOk);
    EXPECT_EQ(tenkLComb_vav_32f_4x1(x, 0, 1, nullptr, 1, z, 0, 0), tenkNullPointerError);
    const float* from[] = {x, x, x};
    const float* broken[] = {x, x, nullptr};
    float* to[] = {z, z, z};
    float* brokenTo[] = {z, z, nullptr};
    EXPECT_EQ(tenkLComb_vav_32f_P(broken, 0, 1, from, 0, 1, to, 0, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vav_32f_P(from, 0, 1, broken, 0, 1, to, 0, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vav_32f_P(from, 0, 1, from, 0, 1, brokenTo, 0, 3, 2), tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vav_32f_P(from, 0, 1, from, 0, 1, brokenTo, 0, 2, 0), tenkOk);
    EXPECT_EQ(tenkLComb_vava_32f_3x1_PS2(from, 0, 4, 1, from, 0, 4, 1, brokenTo, 0, 4, 0),
              tenkNullPointerError);
    EXPECT_EQ(tenkLComb_vav_32f_3x1_L(broken, 0, 1, x, 1, to, 0, 0), tenkOk);
    EXPECT_EQ(z[0], 9.0F);
}

// Without objects, a null entry of a table is found and no entry of a list is looked at.
template <typename T>
void checkEmptyArray(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = true, array2 = codes == "vava";
    const unsigned length = size == 0 ? 5 : size;
    for (unsigned which = 0; which < 3; ++which) {
        auto a = vectors<T>(layout, array1, 3, length), b = vectors<T>(layout, array2, 3, length);
        auto dst = vectors<T>(layout, true, 3, length);
        const auto before = dst.memory();
        std::vector<T*>& pointers = (which == 0 ? a : which == 1 ? b : dst).pointers();
        if (a.isTable())
            pointers.back() = nullptr;
        else
            std::fill(pointers.begin(), pointers.end(), nullptr);
        Arguments last = sizes(size, length, 0);
        last.push_back(word(0));
        const std::string name = nameOf<T>(codes, size, layout);
        EXPECT_EQ(
            callByName(name,
                       {a.arguments(), {value(T(2))}, b.arguments(), {value(T(3))}, dst.arguments(), last}),
            a.isTable() ? tenkNullPointerError : tenkOk)
            << name << which;
        EXPECT_EQ(dst.memory(), before) << name;
    }
}

TEST(LComb, OfAnEmptyArrayTestsTablesAndNoLists)
{
    for (const char* codes : {"vav", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : arrayLayouts) {
                checkEmptyArray<float>(codes, size, layout);
                checkEmptyArray<double>(codes, size, layout);
            }
}

TEST(LComb, OfOnePairBehindTablesTestsEntriesElementByElement)
{
    for (unsigned which = 0; which < 3; ++which)
        for (unsigned size : {0U, 4U}) {
            auto a = vectors<float>("_P", false, 1, 4), b = vectors<float>("_P", false, 1, 4),
                 dst = vectors<float>("_P", false, 1, 4);
            a.fill([] { return 2.0F; }), b.fill([] { return 1.0F; }), dst.fill([] { return 9.0F; });
            (which == 0 ? a : which == 1 ? b : dst).pointers()[2] = nullptr;
            EXPECT_EQ(callByName(nameOf<float>("vv", size, "_P"), {a.arguments(),
                                                                   {value(3.0F)},
                                                                   b.arguments(),
                                                                   {value(1.0F)},
                                                                   dst.arguments(),
                                                                   sizes(size, 4, 0)}),
                      tenkNullPointerError);
            EXPECT_EQ(dst.at(0, 0), 7.0F);
            EXPECT_EQ(dst.at(0, 1), 7.0F);
            EXPECT_EQ(dst.at(0, 2), 9.0F);
            EXPECT_EQ(dst.at(0, 3), 9.0F);
        }
}

TEST(LComb, OfListsTestsEntriesObjectByObject)
{
    for (unsigned which = 0; which < 3; ++which)
        for (const char* codes : {"vav", "vava"})
            for (unsigned size : {0U, 3U, 4U}) {
                if ((which == 0 && codes == std::string("vva")) ||
                    (which == 1 && codes == std::string("vav")))
                    continue;
                const bool array2 = codes == std::string("vava");
                const unsigned length = size == 0 ? 5 : size;
                auto a = vectors<float>("_L", true, 3, length), b = vectors<float>("_L", array2, 3, length),
                     dst = vectors<float>("_L", true, 3, length);
                a.fill([] { return 2.0F; }), b.fill([] { return 1.0F; }), dst.fill([] { return 9.0F; });
                (which == 0 ? a : which == 1 ? b : dst).pointers()[1] = nullptr;
                EXPECT_EQ(callByName(nameOf<float>(codes, size, "_L"), {a.arguments(),
                                                                        {value(3.0F)},
                                                                        b.arguments(),
                                                                        {value(1.0F)},
                                                                        dst.arguments(),
                                                                        sizes(size, length, 3)}),
                          tenkNullPointerError);
                EXPECT_EQ(dst.at(0, length - 1), 7.0F);
                EXPECT_EQ(dst.at(1, 0), 9.0F);
                EXPECT_EQ(dst.at(2, 0), 9.0F);
            }
}

} // namespace
