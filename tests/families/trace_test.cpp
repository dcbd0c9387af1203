// Trace: edge cases by hand, and all members against the plain sum.
#include "tenk.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sys/mman.h>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

std::uint32_t bits(float x)
{
    return std::bit_cast<std::uint32_t>(x);
}

template <typename T>
std::string nameOf(bool array, unsigned size, const std::string& layout)
{
    const std::string n = std::to_string(size);
    return std::string("tenkTrace_") + (array ? "ma_" : "m_") + typeName<T>() +
           (size == 0 ? "" : "_" + n + "x" + n) + layout;
}

Arguments sizes(unsigned size, unsigned order)
{
    return size == 0 ? Arguments{word(order)} : Arguments{};
}

template <typename T>
void checkMember(bool array, unsigned size, const std::string& layout)
{
    const unsigned count = array ? 7 : 1, order = size == 0 ? 8 : size;
    const std::string name = nameOf<T>(array, size, layout);
    std::mt19937 random(size);
    std::uniform_real_distribution<T> number(-1, 1);
    auto a = matrices<T>(layout, array, count, order, order);
    a.fill([&] { return number(random); });
    std::vector<T> dst(count + 1, T(9));
    Arguments counts;
    if (array)
        counts.push_back(word(count));
    ASSERT_EQ(callByName(name, {a.arguments(), sizes(size, order), {pointer(dst.data())}, counts}), tenkOk)
        << name;
    for (unsigned k = 0; k < count; ++k) {
        T s = a.at(k, 0, 0);
        for (unsigned i = 1; i < order; ++i)
            s = s + a.at(k, i, i);
        EXPECT_EQ(dst[k], s) << name << ", object " << k;
    }
    EXPECT_EQ(dst[count], T(9)) << name;

    // A diagonal of -0.
    a.fill([] { return T(-0.0); });
    ASSERT_EQ(callByName(name, {a.arguments(), sizes(size, order), {pointer(dst.data())}, counts}), tenkOk)
        << name;
    const bool straight = size != 0 && (layout.empty() || layout == "_L");
    for (unsigned k = 0; k < count; ++k) {
        EXPECT_EQ(dst[k], T(0));
        EXPECT_EQ(std::signbit(dst[k]), straight) << name << ", object " << k;
    }
}

TEST(Trace, AddsTheDiagonalInOrderAndStartsFromZeroButForFixedSizesOfAdjacentElements)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                checkMember<float>(array, size, layout);
                checkMember<double>(array, size, layout);
            }
}

template <typename T>
void checkOrderOne(bool array, const std::string& layout)
{
    const unsigned count = array ? 3 : 1;
    const std::string name = nameOf<T>(array, 0, layout);
    auto a = matrices<T>(layout, array, count, 1, 1);
    const auto results = [&](T x) {
        a.fill([=] { return x; });
        std::vector<T> dst(count, T(9));
        Arguments counts;
        if (array)
            counts.push_back(word(count));
        EXPECT_EQ(callByName(name, {a.arguments(), {word(1), pointer(dst.data())}, counts}), tenkOk) << name;
        return dst;
    };
    for (T t : results(T(-0.7)))
        EXPECT_EQ(t, T(-0.7)) << name;
    for (T t : results(T(-0.0))) { // 0 + -0
        EXPECT_EQ(t, T(0)) << name;
        EXPECT_FALSE(std::signbit(t)) << name;
    }
}

TEST(Trace, OfOrderOneIsTheElementAndMinusZeroBecomesPlusZero)
{
    for (bool array : {false, true})
        for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
            checkOrderOne<float>(array, layout);
            checkOrderOne<double>(array, layout);
        }
}

// All that is beside the diagonal of 1, 2, 3, ... is a NaN; then elements of the diagonal are.
template <typename T>
void checkSpecialValues(bool array, unsigned size, const std::string& layout)
{
    const T infinity = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const unsigned count = array ? 3 : 1, order = size == 0 ? 7 : size;
    const std::string name = nameOf<T>(array, size, layout);
    auto a = matrices<T>(layout, array, count, order, order);
    a.fill([=] { return nan; });
    // With x in place p of the diagonal and y in the last.
    const auto trace = [&](unsigned p, T x, T y) {
        for (unsigned k = 0; k < count; ++k)
            for (unsigned i = 0; i < order; ++i)
                a.at(k, i, i) = i == p ? x : i + 1 == order ? y : T(i + 1);
        std::vector<T> dst(count, T(9));
        Arguments counts;
        if (array)
            counts.push_back(word(count));
        EXPECT_EQ(callByName(name, {a.arguments(), sizes(size, order), {pointer(dst.data())}, counts}),
                  tenkOk);
        return dst[count / 2];
    };
    const T last = T(order), sum = T(order * (order + 1) / 2);
    for (unsigned p = 0; p + 1 < order; ++p) {
        EXPECT_EQ(trace(p, T(p + 1), last), sum) << name;
        EXPECT_TRUE(std::isnan(trace(p, nan, last))) << name << p;
        EXPECT_EQ(trace(p, infinity, last), infinity) << name << p;
        EXPECT_EQ(trace(p, -infinity, last), -infinity) << name << p;
        EXPECT_TRUE(std::isnan(trace(p, infinity, -infinity))) << name << p;
    }
}

TEST(Trace, PassesNaNsAndInfinitiesOfTheDiagonalThroughAndNoOthers)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                checkSpecialValues<float>(array, size, layout);
                checkSpecialValues<double>(array, size, layout);
            }
}

// Every second page can be read. Rows are two pages less an element apart, so that the diagonal goes along
// the first elements of those pages, or the last: what stands on its left, or on its right, is in the others.
template <typename T>
void checkUnreadableNeighbours()
{
    constexpr std::size_t page = 4096, pages = 13;
    char* const memory =
        static_cast<char*>(mmap(nullptr, pages * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    for (std::size_t p = 1; p < pages; p += 2)
        ASSERT_EQ(mprotect(memory + p * page, page, PROT_READ | PROT_WRITE), 0);
    for (const std::size_t first : {page, 2 * page - sizeof(T)}) {
        for (std::size_t i = 0; i < 6; ++i)
            *reinterpret_cast<T*>(memory + first + 2 * i * page) = T(i + 1);
        const T* const src = reinterpret_cast<const T*>(memory + first);
        const T* const list[] = {src, src};
        const Argument row = word(2 * page - sizeof(T)), element = word(sizeof(T));
        for (unsigned size : {0U, 3U, 4U, 5U, 6U}) {
            const unsigned order = size == 0 ? 6 : size;
            const T sum = T(order * (order + 1) / 2);
            T t[2] = {T(9), T(9)};
            const Argument dst = pointer(t);
            const auto call = [&](bool array, const char* layout, const Arguments& a) {
                t[0] = t[1] = T(9);
                Arguments count;
                if (array)
                    count.push_back(word(2));
                EXPECT_EQ(callByName(nameOf<T>(array, size, layout), {a, sizes(size, order), {dst}, count}),
                          tenkOk);
                EXPECT_EQ(t[0], sum) << nameOf<T>(array, size, layout);
                EXPECT_EQ(t[1], array ? sum : T(9)) << nameOf<T>(array, size, layout);
            };
            call(false, "", {pointer(src), row});
            call(false, "_S2", {pointer(src), row, element});
            call(true, "", {pointer(src), word(0), row});
            call(true, "_S2", {pointer(src), word(0), row, element});
            call(true, "_L", {pointer(list), word(0), row});
            call(true, "_LS2", {pointer(list), word(0), row, element});
        }
    }
    munmap(memory, pages * page);
}

TEST(Trace, ReadsNothingBesideTheDiagonal)
{
    checkUnreadableNeighbours<float>();
    checkUnreadableNeighbours<double>();
}

TEST(Trace, TestsPointersThenOrderThenCount)
{
    float x[9] = {}, t = 9;
    EXPECT_EQ(tenkTrace_m_32f(nullptr, 0, 0, &t), tenkNullPointerError);
    EXPECT_EQ(tenkTrace_m_32f(x, 0, 0, nullptr), tenkNullPointerError);
    EXPECT_EQ(tenkTrace_m_32f(x, 0, 0, &t), tenkSizeError);
    EXPECT_EQ(tenkTrace_ma_32f(x, 0, 0, 0, &t, 0), tenkSizeError);
    EXPECT_EQ(tenkTrace_ma_32f(x, 0, 0, 3, &t, 0), tenkOk);
    EXPECT_EQ(tenkTrace_ma_32f_3x3(x, 0, 0, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkTrace_ma_32f_3x3(x, 0, 0, &t, 0), tenkOk);
    EXPECT_EQ(t, 9.0F);
}

// dst lies on element (2, 2), which is 4: it holds 0, 1, 1 + 2, when its turn comes.
TEST(Trace, OnTheDiagonalChangesWhatTheRunningSumAdds)
{
    Floats x = {1, 0, 0, 0, 2, 0, 0, 0, 4};
    EXPECT_EQ(tenkTrace_m_32f(x.data(), 12, 3, &x[8]), tenkOk);
    EXPECT_EQ(x[8], 6.0F); // 3 + 3
    x[8] = 4;
    EXPECT_EQ(tenkTrace_m_32f_3x3_S2(x.data(), 12, 4, &x[8]), tenkOk);
    EXPECT_EQ(x[8], 6.0F);
    x[8] = 4;
    EXPECT_EQ(tenkTrace_m_32f_3x3(x.data(), 12, &x[8]), tenkOk);
    EXPECT_EQ(x[8], 7.0F);
    // On the first element: it is set to 0 before it is read.
    EXPECT_EQ(tenkTrace_m_32f(x.data(), 12, 2, &x[0]), tenkOk);
    EXPECT_EQ(x[0], 2.0F);
}

// The same in every member: dst lies on the last element of the diagonal of ones but for that element, 5.
template <typename T>
void checkOverlap(bool array, unsigned size, const std::string& layout)
{
    const unsigned order = size == 0 ? 4 : size;
    const std::string name = nameOf<T>(array, size, layout);
    auto a = matrices<T>(layout, array, 1, order, order);
    a.fill([] { return T(1); });
    T& last = a.at(0, order - 1, order - 1);
    last = T(5);
    Arguments count;
    if (array)
        count.push_back(word(1));
    EXPECT_EQ(callByName(name, {a.arguments(), sizes(size, order), {pointer(&last)}, count}), tenkOk) << name;
    const bool straight = size != 0 && (layout.empty() || layout == "_L");
    EXPECT_EQ(last, straight ? T(order - 1 + 5) : T(2 * (order - 1))) << name;
}

TEST(Trace, OnTheDiagonalChangesTheRunningSumsAndNoOthers)
{
    for (bool array : {false, true})
        for (unsigned size : {0U, 3U, 4U, 5U, 6U})
            for (const std::string& layout : array ? arrayLayouts : singleLayouts) {
                checkOverlap<float>(array, size, layout);
                checkOverlap<double>(array, size, layout);
            }
}

TEST(Trace, OfOneMatrixBehindATableTestsTheDiagonalAndLeavesThePartialSum)
{
    const float x[] = {1, 2, 3};
    const float* table[9] = {};
    table[0] = &x[0], table[4] = &x[1], table[8] = &x[2];
    float t = 9;
    EXPECT_EQ(tenkTrace_m_32f_3x3_P(table, 0, &t), tenkOk); // null pointers beside the diagonal
    EXPECT_EQ(t, 6.0F);
    EXPECT_EQ(tenkTrace_m_32f_P(table, 0, 3, &t), tenkOk);
    EXPECT_EQ(t, 6.0F);
    table[8] = nullptr;
    EXPECT_EQ(tenkTrace_m_32f_3x3_P(table, 0, &t), tenkNullPointerError);
    EXPECT_EQ(t, 3.0F);
    table[0] = nullptr;
    EXPECT_EQ(tenkTrace_m_32f_P(table, 0, 3, &t), tenkNullPointerError);
    EXPECT_EQ(bits(t), 0U);
}

TEST(Trace, OfAnArrayBehindTablesTestsTheFirstRowAndNotTheDiagonal)
{
    const float x[] = {1, 2, 3};
    const float* table[9] = {};
    table[0] = &x[0], table[4] = &x[1], table[8] = &x[2];
    float t = 9;
    table[1] = x;
    EXPECT_EQ(tenkTrace_ma_32f_3x3_P(table, 0, &t, 1), tenkNullPointerError);
    EXPECT_EQ(tenkTrace_ma_32f_3x3_P(table, 0, &t, 0), tenkNullPointerError);
    EXPECT_EQ(tenkTrace_ma_32f_PS2(table, 0, 4, 3, &t, 0), tenkNullPointerError);
    EXPECT_EQ(t, 9.0F);
    table[2] = x;
    EXPECT_EQ(tenkTrace_ma_32f_3x3_P(table, 0, &t, 1), tenkOk);
    EXPECT_EQ(t, 6.0F);
    table[4] = nullptr; // on the diagonal, below the first row: not tested
    EXPECT_EQ(tenkTrace_ma_32f_3x3_P(table, 0, &t, 0), tenkOk);
    EXPECT_EQ(tenkTrace_ma_32f_P(table, 0, 3, &t, 0), tenkOk);
    EXPECT_EQ(tenkTrace_ma_64f_3x3_PS2(reinterpret_cast<const double**>(table), 0, 8, nullptr, 0),
              tenkNullPointerError);
}

// Objects or rows as far apart as without gaps, but not both.
TEST(Trace, SeesAGapBetweenRowsOrObjects)
{
    Floats x(40);
    for (std::size_t j = 0; j < x.size(); ++j)
        x[j] = static_cast<float>(j);
    Floats t(2);
    EXPECT_EQ(tenkTrace_ma_32f_3x3(x.data(), 36, 16, t.data(), 2), tenkOk);
    EXPECT_EQ(t, (Floats{15, 42})); // 0 + 5 + 10, 9 + 14 + 19
    EXPECT_EQ(tenkTrace_ma_32f_3x3(x.data(), 40, 12, t.data(), 2), tenkOk);
    EXPECT_EQ(t, (Floats{12, 42})); // 0 + 4 + 8, 10 + 14 + 18
    const float* const list[] = {&x[0], &x[9]};
    EXPECT_EQ(tenkTrace_ma_32f_3x3_L(list, 0, 16, t.data(), 2), tenkOk);
    EXPECT_EQ(t, (Floats{15, 42}));
    EXPECT_EQ(tenkTrace_ma_32f_3x3_L(list, 4, 12, t.data(), 2), tenkOk);
    EXPECT_EQ(t, (Floats{15, 42})); // 1 + 5 + 9, 10 + 14 + 18
}

TEST(Trace, OfAListTestsEntriesObjectByObject)
{
    for (const std::string layout : {"_L", "_LS2"})
        for (unsigned size : {0U, 3U, 6U}) {
            const unsigned order = size == 0 ? 4 : size;
            auto a = matrices<double>(layout, true, 4, order, order);
            a.fill([] { return 1.0; });
            a.pointers()[2] = nullptr;
            std::vector<double> t(4, 9);
            EXPECT_EQ(callByName(nameOf<double>(true, size, layout),
                                 {a.arguments(), sizes(size, order), {pointer(t.data()), word(4)}}),
                      tenkNullPointerError);
            EXPECT_EQ(t, (std::vector<double>{double(order), double(order), 9, 9}));
        }
}

// The same of lists without a shift, of matrices without gaps.
TEST(Trace, OfAListWithoutGapsTestsEntriesObjectByObject)
{
    const Floats x = {1, 0, 0, 0, 2, 0, 0, 0, 3};
    for (unsigned count : {1U, 4U, 7U, 8U, 9U})
        for (unsigned nullAt = 0; nullAt <= count; ++nullAt) { // behind the list: there is none
            std::vector<const float*> list(count, x.data());
            if (nullAt < count)
                list[nullAt] = nullptr;
            Floats t(count + 1, 9), expected(count + 1, 9);
            std::fill_n(expected.begin(), nullAt, 6.0F);
            EXPECT_EQ(tenkTrace_ma_32f_3x3_L(list.data(), 0, 12, t.data(), count),
                      nullAt < count ? tenkNullPointerError : tenkOk);
            EXPECT_EQ(t, expected);
        }
}

} // namespace
