// Extract: edge cases by hand.
#include "tenk.h"

#include <csignal>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

#include "support/library.h"

namespace {

using Floats = std::vector<float>;

Floats ramp(std::size_t n)
{
    Floats x(n);
    std::iota(x.begin(), x.end(), 0.0F);
    return x;
}

TEST(Extract, TakesAnEmptyBatchForASizeError)
{
    Floats src = ramp(6), dst(6, 9);
    const float* const table[] = {src.data(), src.data() + 1, src.data() + 2};
    EXPECT_EQ(tenkExtract_va_32f_S2(src.data(), 12, 4, dst.data(), 3, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_va_32f_PS2(table, 0, 4, dst.data(), 3, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_va_32f_LS2(table, 0, 4, dst.data(), 3, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_ma_32f_S2(src.data(), 0, 4, 4, dst.data(), 1, 1, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_ma_32f_PS2(table, 0, 4, dst.data(), 1, 1, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_ma_32f_LS2(table, 0, 4, 4, dst.data(), 1, 1, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_maT_32f_LS2(table, 0, 4, 4, dst.data(), 1, 1, 0), tenkSizeError);
    EXPECT_EQ(dst, Floats(6, 9));
}

TEST(Extract, TestsSizesWhereItTestsAnything)
{
    float x = 0, y = 9;
    const float* const table[] = {&x};
    EXPECT_EQ(tenkExtract_v_32f_S2(&x, 4, &y, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_v_32f_P(table, 0, &y, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_m_32f_S2(&x, 4, 4, &y, 0, 1), tenkSizeError);
    EXPECT_EQ(tenkExtract_m_32f_S2(&x, 4, 4, &y, 1, 0), tenkSizeError);
    EXPECT_EQ(tenkExtract_mT_32f_S2(&x, 4, 4, &y, 0, 1), tenkSizeError);
    EXPECT_EQ(tenkExtract_v_32f_S2(nullptr, 4, &y, 0), tenkNullPointerError);
    EXPECT_EQ(tenkExtract_v_32f_P(nullptr, 0, &y, 0), tenkNullPointerError);
    EXPECT_EQ(tenkExtract_v_32f_P(table, 0, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(tenkExtract_ma_32f_LS2(table, 0, 4, 4, nullptr, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(y, 9);
}

TEST(Extract, Of64fVectorsBehindATableAndOfMatricesBehindATableTestsNothing)
{
    double y = 9;
    EXPECT_EQ(tenkExtract_v_64f_P(nullptr, 0, nullptr, 0), tenkOk);
    EXPECT_EQ(tenkExtract_m_32f_P(nullptr, 0, nullptr, 0, 3), tenkOk);
    EXPECT_EQ(tenkExtract_m_64f_P(nullptr, 0, &y, 3, 0), tenkOk);
    EXPECT_EQ(tenkExtract_mT_32f_P(nullptr, 0, nullptr, 3, 0), tenkOk);
    EXPECT_EQ(tenkExtract_mT_64f_P(nullptr, 0, &y, 0, 3), tenkOk);
    EXPECT_EQ(y, 9);
}

#if !defined(__SANITIZE_ADDRESS__)
TEST(ExtractDeathTest, OfAMatrixBehindATableGoesOnToWriteThroughANullDestination)
{
    const float x = 1;
    const float* const table[] = {&x};
    EXPECT_EXIT(static_cast<void>(tenkExtract_m_32f_P(table, 0, nullptr, 1, 1)),
                testing::KilledBySignal(SIGSEGV), "");
}
#endif

TEST(Extract, OfATransposedMatrixBehindATableDoesNotUseItsShift)
{
    const Floats src = ramp(20);
    std::vector<const float*> table;
    for (std::size_t e = 0; e < 6; ++e)
        table.push_back(&src[e]);
    Floats plain(6, -1), shifted(6, -1);
    EXPECT_EQ(tenkExtract_mT_32f_P(table.data(), 0, plain.data(), 3, 2), tenkOk);
    EXPECT_EQ(tenkExtract_mT_32f_P(table.data(), 8, shifted.data(), 3, 2), tenkOk);
    EXPECT_EQ(plain, (Floats{0, 3, 1, 4, 2, 5})); // entry i 3 + j went to place j 2 + i
    EXPECT_EQ(shifted, plain);

    const double values[] = {1, 2, 3, 4};
    const double* const table64[] = {values, values + 1};
    double out[2] = {};
    EXPECT_EQ(tenkExtract_mT_64f_P(table64, 16, out, 2, 1), tenkOk);
    EXPECT_EQ(out[0], 1);
    EXPECT_EQ(out[1], 2);
}

TEST(Extract, OfOtherTablesAddsTheirShift)
{
    const Floats src = ramp(8);
    const float* const table[] = {&src[4], &src[0]};
    Floats out(2);
    EXPECT_EQ(tenkExtract_v_32f_P(table, 8, out.data(), 2), tenkOk);
    EXPECT_EQ(out, (Floats{6, 2}));
    EXPECT_EQ(tenkExtract_m_32f_P(table, 4, out.data(), 2, 1), tenkOk);
    EXPECT_EQ(out, (Floats{5, 1}));
}

TEST(Extract, OfATransposedMatrixExchangesTheStrides)
{
    // Three rows of two as stored come out as two rows of three.
    const Floats src = ramp(6);
    Floats out(6);
    EXPECT_EQ(tenkExtract_mT_32f_S2(src.data(), 8, 4, out.data(), 3, 2), tenkOk);
    EXPECT_EQ(out, (Floats{0, 2, 4, 1, 3, 5}));
    const float* const list[] = {src.data(), src.data()};
    Floats two(12);
    EXPECT_EQ(tenkExtract_maT_32f_LS2(list, 0, 8, 4, two.data(), 3, 2, 2), tenkOk);
    EXPECT_EQ(two, (Floats{0, 2, 4, 1, 3, 5, 0, 2, 4, 1, 3, 5}));
}

TEST(Extract, OfAnArrayWithATInItsNameAndATableDoesNotTranspose)
{
    const Floats src = ramp(12);
    std::vector<const float*> table;
    for (std::size_t e = 0; e < 6; ++e)
        table.push_back(&src[2 * e]);
    Floats plain(12), named(12);
    EXPECT_EQ(tenkExtract_ma_32f_PS2(table.data(), 0, 4, plain.data(), 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkExtract_maT_32f_PS2(table.data(), 0, 4, named.data(), 3, 2, 2), tenkOk);
    EXPECT_EQ(plain, (Floats{0, 2, 4, 6, 8, 10, 1, 3, 5, 7, 9, 11}));
    EXPECT_EQ(named, plain);
}

TEST(Extract, HasFourNamesThatAreSecondNames)
{
    using support::exportedAddress;
    for (const auto& [name, same] : {std::pair{"tenkExtract_va_32f_S2", "tenkExtract_m_32f_S2"},
                                     std::pair{"tenkExtract_va_64f_S2", "tenkExtract_m_64f_S2"},
                                     std::pair{"tenkExtract_maT_32f_PS2", "tenkExtract_ma_32f_PS2"},
                                     std::pair{"tenkExtract_maT_64f_PS2", "tenkExtract_ma_64f_PS2"}}) {
        ASSERT_NE(exportedAddress(name), nullptr);
        EXPECT_EQ(exportedAddress(name), exportedAddress(same)) << name;
    }
}

TEST(Extract, HasNoStridedTransposedMatrixIn64f)
{
    EXPECT_EQ(support::exportedAddress("tenkExtract_mT_64f_S2"), nullptr);
    EXPECT_NE(support::exportedAddress("tenkExtract_mT_32f_S2"), nullptr);
}

TEST(Extract, GathersStridedVectorsAndMatrices)
{
    const Floats src = ramp(24);
    Floats out(4);
    EXPECT_EQ(tenkExtract_v_32f_S2(src.data() + 9, 0xFFFFFFF4, out.data(), 4),
              tenkOk); // 12 bytes back each time
    EXPECT_EQ(out, (Floats{9, 6, 3, 0}));
    EXPECT_EQ(tenkExtract_va_32f_S2(src.data(), 32, 8, out.data(), 2, 2), tenkOk);
    EXPECT_EQ(out, (Floats{0, 2, 8, 10}));
    Floats eight(8);
    EXPECT_EQ(tenkExtract_ma_32f_S2(src.data(), 48, 16, 8, eight.data(), 2, 2, 2), tenkOk);
    EXPECT_EQ(eight, (Floats{0, 2, 4, 6, 12, 14, 16, 18}));
}

TEST(Extract, GathersRunsBehindATableOneAfterTheOther)
{
    // The destination overlaps the runs: element 0 of both objects is moved before element 1 of the first.
    Floats x = {1, 2, 3, 4};
    const float* const table[] = {&x[0], &x[2]};
    EXPECT_EQ(tenkExtract_va_32f_PS2(table, 0, 4, x.data(), 2, 2), tenkOk);
    // x0 = x[0] = 1; x2 = x[1] = 2; then x1 = x[2] = 2; x3 = x[3] = 4.
    EXPECT_EQ(x, (Floats{1, 2, 2, 4}));
}

} // namespace
