// Transpose: edge cases by hand.
#include "tenk.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

#include "support/objects.h"

namespace {

using Floats = std::vector<float>;

TEST(Transpose, TurnsAMatrixOfTwoColumnsAndThreeRowsIntoTwoRowsOfThree)
{
    const Floats src = {1, 2, 3, 4, 5, 6};
    Floats dst(6);
    EXPECT_EQ(tenkTranspose_m_32f(src.data(), 8, 2, 3, dst.data(), 12), tenkOk);
    EXPECT_EQ(dst, (Floats{1, 3, 5, 2, 4, 6}));
}

TEST(Transpose, TestsSizesBeforeCount)
{
    Floats src(6), dst(6, 9);
    EXPECT_EQ(tenkTranspose_ma_32f(src.data(), 24, 8, 2, 3, dst.data(), 24, 12, 0), tenkOk);
    EXPECT_EQ(tenkTranspose_ma_32f(src.data(), 24, 8, 0, 3, dst.data(), 24, 12, 0), tenkSizeError);
    EXPECT_EQ(tenkTranspose_ma_32f(src.data(), 24, 8, 0, 3, dst.data(), 24, 12, 2), tenkSizeError);
    EXPECT_EQ(tenkTranspose_ma_32f(src.data(), 24, 8, 2, 0, dst.data(), 24, 12, 2), tenkSizeError);
    EXPECT_EQ(dst, Floats(6, 9));
}

TEST(Transpose, TestsPointersBeforeSizes)
{
    float x = 0;
    EXPECT_EQ(tenkTranspose_m_32f(nullptr, 0, 0, 0, &x, 0), tenkNullPointerError);
    EXPECT_EQ(tenkTranspose_m_32f(&x, 0, 0, 0, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkTranspose_ma_32f_3x3(&x, 0, 0, nullptr, 0, 0, 0), tenkNullPointerError);
}

TEST(Transpose, InPlaceOverwritesElementsBeforeTheyAreRead)
{
    Floats x = {1, 2, 3, 4};
    EXPECT_EQ(tenkTranspose_m_32f(x.data(), 8, 2, 2, x.data(), 8), tenkOk);
    EXPECT_EQ(x, (Floats{1, 2, 2, 4}));
}

// (0, 1), (0, 2) and (1, 2) are written over their counterparts before those are read.
template <typename T>
void expectUpperTriangleTwice(const std::string& code, const std::string& layout)
{
    using namespace support;
    constexpr unsigned count = 2, n = 3;
    const bool array = code == "ma";
    auto x = matrices<T>(layout, array, count, n, n), expected = matrices<T>(layout, array, count, n, n);
    T from = 0;
    x.fill([&] { return from += 1; });
    const T result[] = {1, 2, 3, 2, 5, 6, 3, 6, 9, 10, 11, 12, 11, 14, 15, 12, 15, 18};
    const T* to = result;
    expected.fill([&] { return *to++; });
    const std::string name = "tenkTranspose_" + code + "_" + typeName<T>() + layout;
    EXPECT_EQ(
        callByName(
            name,
            {x.arguments(), {word(n), word(n)}, x.arguments(), array ? Arguments{word(count)} : Arguments{}}),
        tenkOk);
    EXPECT_EQ(x.memory(), expected.memory()) << name;
}

TEST(Transpose, OfGeneralSizeInPlaceGivesTheUpperTriangleTwice)
{
    for (const char* const code : {"m", "ma"})
        for (const std::string& layout :
             code == std::string("m") ? support::singleLayouts : support::arrayLayouts) {
            expectUpperTriangleTwice<float>(code, layout);
            expectUpperTriangleTwice<double>(code, layout);
        }
}

// Behind tables, the move for (i, j) goes from entry i height + j to entry j width + i.
TEST(Transpose, BehindTablesOfAShapeThatIsNotSquareUsesRowLengthsOfItsOwn)
{
    constexpr unsigned width = 5, height = 3;
    // Highest entries read and written: 2 x 3 + 4 = 10 and 4 x 5 + 2 = 22; 15 are tested for null.
    Floats from(15), to(23, -1);
    std::iota(from.begin(), from.end(), 0.0F);
    std::vector<const float*> src;
    std::vector<float*> dst;
    for (float& x : from)
        src.push_back(&x);
    for (float& x : to)
        dst.push_back(&x);
    Floats expected(23, -1);
    expected[0] = 0, expected[5] = 1, expected[10] = 2, expected[15] = 3, expected[20] = 4;
    expected[1] = 3, expected[6] = 4, expected[11] = 5, expected[16] = 6, expected[21] = 7;
    expected[2] = 6, expected[7] = 7, expected[12] = 8, expected[17] = 9, expected[22] = 10;
    EXPECT_EQ(tenkTranspose_ma_32f_P(src.data(), 0, width, height, dst.data(), 0, 1), tenkOk);
    EXPECT_EQ(to, expected);

    std::fill(to.begin(), to.end(), -1.0F);
    EXPECT_EQ(tenkTranspose_m_32f_P(src.data(), 0, width, height, dst.data(), 0), tenkOk);
    EXPECT_EQ(to, expected);

    std::fill(to.begin(), to.end(), -1.0F);
    EXPECT_EQ(tenkTranspose_ma_32f_PS2(src.data(), 0, 4, width, height, dst.data(), 0, 4, 1), tenkOk);
    EXPECT_EQ(to, expected);
}

TEST(Transpose, OfAnArrayBehindTablesTestsAllEntriesFirstAlsoWithoutObjects)
{
    Floats values(18, 1), to(18, 9);
    std::vector<const float*> src(9, values.data());
    std::vector<float*> dst(9, to.data());
    src[8] = nullptr;
    EXPECT_EQ(tenkTranspose_ma_32f_3x3_P(src.data(), 0, dst.data(), 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkTranspose_ma_32f_P(src.data(), 0, 3, 3, dst.data(), 0, 2), tenkNullPointerError);
    src[8] = values.data();
    dst[8] = nullptr;
    EXPECT_EQ(tenkTranspose_ma_32f_3x3_PS2(src.data(), 0, 4, dst.data(), 0, 4, 0), tenkNullPointerError);
    EXPECT_EQ(to, Floats(18, 9));
}

TEST(Transpose, OfOneMatrixBehindTablesTestsEntriesAsItMovesElements)
{
    Floats values = {1, 2, 3, 4}, to(4, 9);
    const float* src[] = {&values[0], &values[1], nullptr, &values[3]};
    float* dst[] = {&to[0], &to[1], &to[2], &to[3]};
    EXPECT_EQ(tenkTranspose_m_32f_P(src, 0, 2, 2, dst, 0), tenkNullPointerError);
    EXPECT_EQ(to, (Floats{1, 9, 2, 9})); // (0, 0) and (0, 1) have been moved, (1, 0) meets the null entry

    // A null entry of the destination: element (0, 2) goes to entry 6.
    Floats three(9), out(9, 9);
    std::iota(three.begin(), three.end(), 1.0F);
    std::vector<const float*> from;
    std::vector<float*> into;
    for (int e = 0; e < 9; ++e) {
        from.push_back(&three[std::size_t(e)]);
        into.push_back(&out[std::size_t(e)]);
    }
    into[6] = nullptr;
    EXPECT_EQ(tenkTranspose_m_32f_3x3_P(from.data(), 0, into.data(), 0), tenkNullPointerError);
    EXPECT_EQ(out, (Floats{1, 9, 9, 2, 9, 9, 9, 9, 9}));
}

TEST(Transpose, OfAListTestsEntriesObjectByObject)
{
    Floats a(9), to(27, 9);
    std::iota(a.begin(), a.end(), 1.0F);
    const Floats turned = {1, 4, 7, 2, 5, 8, 3, 6, 9};
    const float* src[] = {a.data(), nullptr, a.data()};
    float* dst[] = {to.data(), to.data() + 9, to.data() + 18};
    EXPECT_EQ(tenkTranspose_ma_32f_3x3_L(src, 0, 12, dst, 0, 12, 3), tenkNullPointerError);
    EXPECT_EQ(Floats(to.begin(), to.begin() + 9), turned);
    EXPECT_EQ(Floats(to.begin() + 9, to.end()), Floats(18, 9));
    EXPECT_EQ(tenkTranspose_ma_32f_3x3_L(src, 0, 12, dst, 0, 12, 1), tenkOk);
    src[1] = a.data();
    dst[1] = nullptr;
    EXPECT_EQ(tenkTranspose_ma_32f_LS2(src, 0, 12, 4, 3, 3, dst, 0, 12, 4, 3), tenkNullPointerError);
    EXPECT_EQ(tenkTranspose_ma_32f_3x3_L(src, 0, 12, dst, 0, 12, 0), tenkOk);
}

// A fixed size against the definition, with gaps and without, at an odd address, with a guard around the
// destination.
template <typename T, unsigned n, typename F>
void expectTurned(F transpose, std::uint32_t srcStride1, std::uint32_t dstStride1, unsigned offset)
{
    std::vector<unsigned char> from(n * srcStride1 + 64, 0xAA), to(n * dstStride1 + 64, 0x55);
    std::vector<unsigned char> expected = to;
    for (unsigned i = 0; i < n; ++i)
        for (unsigned j = 0; j < n; ++j) {
            const T x = static_cast<T>(10 * i + j + 1);
            std::memcpy(&from[offset + i * srcStride1 + j * sizeof(T)], &x, sizeof(T));
            std::memcpy(&expected[offset + j * dstStride1 + i * sizeof(T)], &x, sizeof(T));
        }
    EXPECT_EQ(transpose(reinterpret_cast<const T*>(&from[offset]), srcStride1,
                        reinterpret_cast<T*>(&to[offset]), dstStride1),
              tenkOk);
    EXPECT_EQ(to, expected) << n << " at " << offset << " strides " << srcStride1 << " " << dstStride1;
}

template <typename T, unsigned n, typename F>
void expectTurnedEverywhere(F transpose)
{
    for (unsigned offset : {0U, 1U, 8U, 16U})
        for (unsigned gap : {0U, 3U, 4U, 16U})
            for (unsigned dstGap : {0U, 5U, 8U})
                expectTurned<T, n>(transpose, n * sizeof(T) + gap, n * sizeof(T) + dstGap, offset);
}

TEST(Transpose, OfFixedSizeWritesTheObjectAndNothingElse)
{
    expectTurnedEverywhere<float, 3>(tenkTranspose_m_32f_3x3);
    expectTurnedEverywhere<float, 4>(tenkTranspose_m_32f_4x4);
    expectTurnedEverywhere<float, 5>(tenkTranspose_m_32f_5x5);
    expectTurnedEverywhere<float, 6>(tenkTranspose_m_32f_6x6);
    expectTurnedEverywhere<double, 3>(tenkTranspose_m_64f_3x3);
    expectTurnedEverywhere<double, 4>(tenkTranspose_m_64f_4x4);
    expectTurnedEverywhere<double, 5>(tenkTranspose_m_64f_5x5);
    expectTurnedEverywhere<double, 6>(tenkTranspose_m_64f_6x6);
}

} // namespace
