// Saxpy: edge cases by hand, and all members against the formula.
#include "tenk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

constexpr float infinity = std::numeric_limits<float>::infinity();

template <typename T>
std::string nameOf(const std::string& codes, unsigned size, const std::string& layout)
{
    return "tenkSaxpy_" + codes + "_" + typeName<T>() + (size == 0 ? "" : "_" + std::to_string(size) + "x1") +
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
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
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
        const T c = number(random);
        ASSERT_EQ(callByName(name, {a.arguments(),
                                    {value(c)},
                                    b.arguments(),
                                    dst.arguments(),
                                    sizes(size, length, array ? count : 0)}),
                  tenkOk)
            << name;
        for (unsigned k = 0; k < count; ++k)
            for (unsigned j = 0; j < length; ++j) {
                const T product = a.at(k, j) * c;
                expected.at(k, j) = product + b.at(k, j);
            }
        EXPECT_EQ(dst.memory(), expected.memory()) << name; // what is between the elements, too
    }
}

TEST(Saxpy, FollowsTheFormulaInAllMembers)
{
    for (const char* codes : {"vv", "vav", "vva", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkMember<float>(codes, size, layout);
                checkMember<double>(codes, size, layout);
            }
}

// 1 + 2^-12 squared is 1 + 2^-11 + 2^-24, rounded to 1 + 2^-11 before the sum; fused, 2^-24 would be left.
TEST(Saxpy, RoundsTheProductBeforeTheSum)
{
    const float x = 1.0F + 0x1p-12F, y = -(1.0F + 0x1p-11F);
    float z = 9;
    EXPECT_EQ(tenkSaxpy_vv_32f(&x, x, &y, &z, 1), tenkOk);
    EXPECT_EQ(z, 0.0F);
}

TEST(Saxpy, FormsTheProductForEveryValue)
{
    const float x[] = {infinity, 1, 2}, y[] = {1, 2, 3};
    float z[3] = {};
    EXPECT_EQ(tenkSaxpy_vv_32f_3x1(x, 0, y, z), tenkOk);
    EXPECT_TRUE(std::isnan(z[0]));
    EXPECT_EQ(z[1], 2.0F);
}

// An infinite element of the first vector times 0 is no number.
template <typename T>
void checkFormsTheProduct(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
    const bool array = array1 || array2;
    const unsigned count = array ? 2 : 1, length = size == 0 ? 19 : size;
    auto a = vectors<T>(layout, array1, count, length), b = vectors<T>(layout, array2, count, length);
    auto dst = vectors<T>(layout, array, count, length);
    a.fill([] { return std::numeric_limits<T>::infinity(); }), b.fill([] { return T(1); });
    const std::string name = nameOf<T>(codes, size, layout);
    ASSERT_EQ(callByName(name, {a.arguments(),
                                {value(T(0))},
                                b.arguments(),
                                dst.arguments(),
                                sizes(size, length, array ? count : 0)}),
              tenkOk);
    for (unsigned k = 0; k < count; ++k)
        for (unsigned j = 0; j < length; ++j)
            EXPECT_TRUE(std::isnan(dst.at(k, j))) << name;
}

TEST(Saxpy, FormsTheProductForEveryValueInAllMembers)
{
    for (const char* codes : {"vv", "vav", "vva", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkFormsTheProduct<float>(codes, size, layout);
                checkFormsTheProduct<double>(codes, size, layout);
            }
}

// All lengths up to 40 and two long ones at all alignments of the destination, odd ones among them.
template <typename T>
void checkAlignments(tenkStatus (*function)(const T*, T, const T*, T*, std::uint32_t))
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
                const T product = x[i] * T(0.3);
                expected[i] = product + y[i];
            }
            std::memcpy(xs + xAt, x.data(), n * sizeof(T));
            std::memcpy(ys + yAt, y.data(), n * sizeof(T));
            std::memset(zs, 1, sizeof zs);
            const auto address = [](char* p, unsigned offset) {
                return reinterpret_cast<std::uintptr_t>(p) + offset;
            };
            ASSERT_EQ(function(reinterpret_cast<const T*>(address(xs, xAt)), T(0.3),
                               reinterpret_cast<const T*>(address(ys, yAt)),
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

TEST(Saxpy, IsTheSameAtAllLengthsAndAlignments)
{
    checkAlignments<float>(tenkSaxpy_vv_32f);
    checkAlignments<double>(tenkSaxpy_vv_64f);
}

// Three elements are left behind a block of eight; in front of a boundary stand three, which leaves no block;
// and an element at an odd address never stands on a boundary.
TEST(Saxpy, BesideABlockAndWithoutOneIsTheSame)
{
    const Floats x = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, y = {11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
    const Floats expected = {13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23}; // 2 x + y
    alignas(16) char z[64];
    const auto check = [&](unsigned at, unsigned length) {
        std::memset(z, 0, sizeof z);
        EXPECT_EQ(tenkSaxpy_vv_32f(x.data(), 2, y.data(),
                                   reinterpret_cast<float*>(reinterpret_cast<std::uintptr_t>(z) + at),
                                   length),
                  tenkOk);
        EXPECT_EQ(std::memcmp(z + at, expected.data(), length * sizeof(float)), 0)
            << length << " elements at " << at;
        for (std::size_t b = at + length * sizeof(float); b < sizeof z; ++b)
            EXPECT_EQ(z[b], 0) << "behind " << length << " elements at " << at;
    };
    check(0, 11);
    check(4, 9);
    check(3, 11);
}

// The plain loop in ascending order, on a copy of the memory, at all distances of the destination from a
// source.
template <typename T>
void checkOverlap(tenkStatus (*function)(const T*, T, const T*, T*, std::uint32_t))
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
                    const T product = (second ? other[j] : x) * T(0.5);
                    const T sum = product + (second ? x : other[j]);
                    std::memcpy(at(expected, j, bytes), &sum, sizeof sum);
                }
                const T* const src = memory.data() + 12;
                T* const dst = reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(src) +
                                                    static_cast<std::uintptr_t>(std::intptr_t{bytes}));
                ASSERT_EQ(function(second ? other.data() : src, T(0.5), second ? src : other.data(), dst, n),
                          tenkOk);
                ASSERT_EQ(std::memcmp(memory.data(), expected.data(), memory.size() * sizeof(T)), 0)
                    << n << " elements, " << bytes << " bytes apart";
            }
}

TEST(Saxpy, OverlappingGivesTheResultOfTheAscendingLoop)
{
    checkOverlap<float>(tenkSaxpy_vv_32f);
    checkOverlap<double>(tenkSaxpy_vv_64f);
}

TEST(Saxpy, OneElementAboveItsSourceRunsThrough)
{
    Floats x(21, 1);
    const Floats zeros(20, 0);
    EXPECT_EQ(tenkSaxpy_vv_32f(x.data(), 2, zeros.data(), x.data() + 1, 20), tenkOk);
    for (std::size_t j = 0; j < 21; ++j)
        EXPECT_EQ(x[j], std::ldexp(1.0F, static_cast<int>(j)));
}

// Over a source that is an array or the only object of its kind.
template <typename T>
void checkInPlace(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
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
                expected.at(k, j) = a.at(k, j) * T(3) + b.at(k, j);
        auto& dst = second ? b : a;
        const std::string name = nameOf<T>(codes, size, layout);
        ASSERT_EQ(callByName(name, {a.arguments(),
                                    {value(T(3))},
                                    b.arguments(),
                                    dst.arguments(),
                                    sizes(size, length, array ? count : 0)}),
                  tenkOk);
        EXPECT_EQ(dst.memory(), expected.memory()) << name;
    }
}

TEST(Saxpy, InPlaceIsExact)
{
    for (const char* codes : {"vv", "vav", "vva", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
                checkInPlace<float>(codes, size, layout);
                checkInPlace<double>(codes, size, layout);
            }
}

// Fixed sizes, too, go element by element: 2 x 1 lands on the element that is read next.
TEST(Saxpy, OfFixedSizeOneElementAboveItsSourceRunsThrough)
{
    const Floats zeros(8, 0);
    Floats x(8, 1);
    EXPECT_EQ(tenkSaxpy_vv_32f_6x1(x.data(), 2, zeros.data(), x.data() + 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 2, 4, 8, 16, 32, 64, 1}));
    Floats y(8, 1);
    const float* list[] = {y.data()};
    const float* zero[] = {zeros.data()};
    float* dst[] = {y.data() + 1};
    EXPECT_EQ(tenkSaxpy_vava_32f_3x1_L(list, 0, 2, zero, 0, dst, 0, 1), tenkOk);
    EXPECT_EQ(y, (Floats{1, 2, 4, 8, 1, 1, 1, 1}));
    // Batches without gaps, one element apart.
    Floats z(13, 1);
    const Floats more(12, 0);
    EXPECT_EQ(tenkSaxpy_vava_32f_4x1(z.data(), 16, 2, more.data(), 16, z.data() + 1, 16, 3), tenkOk);
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
                    const T product = x * T(0.5), sum = product + y;
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
                                        operand(2, memory),
                                        {word(count)}}),
                      tenkOk);
            ASSERT_EQ(std::memcmp(memory.data(), expected.data(), memory.size() * sizeof(T)), 0)
                << name << ", " << bytes << " bytes apart";
        }
}

TEST(Saxpy, OfFixedSizeOverlappingGivesTheResultOfTheAscendingLoop)
{
    for (const char* codes : {"vav", "vva", "vava"})
        for (unsigned size : {3U, 4U, 5U, 6U})
            for (bool list : {false, true})
                for (unsigned farther : {0U, 1U}) {
                    checkOverlapOfFixedSize<float>(codes, size, list, farther);
                    checkOverlapOfFixedSize<double>(codes, size, list, farther);
                }
}

// Arrays without gaps but for one element between the objects of one operand.
TEST(Saxpy, SeesAGapInAnyOperand)
{
    for (unsigned gap = 0; gap < 3; ++gap)
        for (unsigned size : {0U, 4U}) {
            const Floats x = {1, 2, 3, 4, 5, 6, 7, 8, 9}, y = {10, 20, 30, 40, 50, 60, 70, 80, 90};
            Floats z(9, 0), expected(9, 0);
            const auto at = [&](unsigned which, std::size_t k, std::size_t j) {
                return k * (which == gap ? 5 : 4) + j;
            };
            for (std::size_t k = 0; k < 2; ++k)
                for (std::size_t j = 0; j < 4; ++j)
                    expected[at(2, k, j)] = 2 * x[at(0, k, j)] + y[at(1, k, j)];
            const auto stride = [&](unsigned which) { return word(which == gap ? 20 : 16); };
            EXPECT_EQ(callByName(nameOf<float>("vava", size, ""),
                                 {{pointer(x.data()), stride(0), value(2.0F), pointer(y.data()), stride(1),
                                   pointer(z.data()), stride(2)},
                                  sizes(size, 4, 2)}),
                      tenkOk);
            EXPECT_EQ(z, expected) << "gap in operand " << gap;
        }
}

TEST(Saxpy, TestsPointersThenLengthThenTablesThenCount)
{
    float x[4] = {}, z[4] = {9, 9, 9, 9};
    EXPECT_EQ(tenkSaxpy_vv_32f(nullptr, 1, x, z, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vv_32f(x, 1, nullptr, z, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vv_32f(x, 1, x, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vv_32f(x, 1, x, z, 0), tenkSizeError);
    EXPECT_EQ(tenkSaxpy_vava_32f(x, 0, 1, x, 0, z, 0, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkSaxpy_vava_32f(x, 0, 1, x, 0, z, 0, 4, 0), tenkOk);
    const float* from[] = {x, x, x};
    const float* broken[] = {x, x, nullptr};
    float* to[] = {z, z, z};
    float* brokenTo[] = {z, z, nullptr};
    EXPECT_EQ(tenkSaxpy_vav_32f_P(broken, 0, 1, from, 0, to, 0, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vav_32f_P(from, 0, 1, broken, 0, to, 0, 3, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vav_32f_P(from, 0, 1, from, 0, brokenTo, 0, 3, 2), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vav_32f_P(from, 0, 1, from, 0, brokenTo, 0, 2, 0), tenkOk);
    EXPECT_EQ(tenkSaxpy_vva_32f_3x1_PS2(from, 0, 1, from, 0, 4, brokenTo, 0, 4, 0), tenkNullPointerError);
    EXPECT_EQ(tenkSaxpy_vav_32f_3x1_L(broken, 0, 1, x, to, 0, 0), tenkOk);
    EXPECT_EQ(z[0], 9.0F);
}

// Without objects, a null entry of a table is found and no entry of a list is looked at.
template <typename T>
void checkEmptyArray(const std::string& codes, unsigned size, const std::string& layout)
{
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
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
        EXPECT_EQ(callByName(name, {a.arguments(), {value(T(2))}, b.arguments(), dst.arguments(), last}),
                  a.isTable() ? tenkNullPointerError : tenkOk)
            << name << which;
        EXPECT_EQ(dst.memory(), before) << name;
    }
}

TEST(Saxpy, OfAnEmptyArrayTestsTablesAndNoLists)
{
    for (const char* codes : {"vav", "vva", "vava"})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : arrayLayouts) {
                checkEmptyArray<float>(codes, size, layout);
                checkEmptyArray<double>(codes, size, layout);
            }
}

TEST(Saxpy, OfOnePairBehindTablesTestsEntriesElementByElement)
{
    for (unsigned which = 0; which < 3; ++which)
        for (unsigned size : {0U, 4U}) {
            auto a = vectors<float>("_P", false, 1, 4), b = vectors<float>("_P", false, 1, 4),
                 dst = vectors<float>("_P", false, 1, 4);
            a.fill([] { return 2.0F; }), b.fill([] { return 1.0F; }), dst.fill([] { return 9.0F; });
            (which == 0 ? a : which == 1 ? b : dst).pointers()[2] = nullptr;
            EXPECT_EQ(
                callByName(nameOf<float>("vv", size, "_P"),
                           {a.arguments(), {value(3.0F)}, b.arguments(), dst.arguments(), sizes(size, 4, 0)}),
                tenkNullPointerError);
            EXPECT_EQ(dst.at(0, 0), 7.0F);
            EXPECT_EQ(dst.at(0, 1), 7.0F);
            EXPECT_EQ(dst.at(0, 2), 9.0F);
            EXPECT_EQ(dst.at(0, 3), 9.0F);
        }
}

TEST(Saxpy, OfListsTestsEntriesObjectByObject)
{
    for (unsigned which = 0; which < 3; ++which)
        for (const char* codes : {"vav", "vva", "vava"})
            for (unsigned size : {0U, 3U, 4U}) {
                if ((which == 0 && codes == std::string("vva")) ||
                    (which == 1 && codes == std::string("vav")))
                    continue;
                const bool array1 = codes != std::string("vva"), array2 = codes != std::string("vav");
                const unsigned length = size == 0 ? 5 : size;
                auto a = vectors<float>("_L", array1, 3, length), b = vectors<float>("_L", array2, 3, length),
                     dst = vectors<float>("_L", true, 3, length);
                a.fill([] { return 2.0F; }), b.fill([] { return 1.0F; }), dst.fill([] { return 9.0F; });
                (which == 0 ? a : which == 1 ? b : dst).pointers()[1] = nullptr;
                EXPECT_EQ(callByName(nameOf<float>(codes, size, "_L"), {a.arguments(),
                                                                        {value(3.0F)},
                                                                        b.arguments(),
                                                                        dst.arguments(),
                                                                        sizes(size, length, 3)}),
                          tenkNullPointerError);
                EXPECT_EQ(dst.at(0, length - 1), 7.0F);
                EXPECT_EQ(dst.at(1, 0), 9.0F);
                EXPECT_EQ(dst.at(2, 0), 9.0F);
            }
}

} // namespace
