// LoadIdentity: edge cases by hand.
#include "tenk.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

using Floats = std::vector<float>;

const Floats identity3 = {1, 0, 0, 0, 1, 0, 0, 0, 1};

TEST(LoadIdentity, RaisesAnElementStepThatIsTooSmall)
{
    Floats x(12, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 0, 3, 3, 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 0, 0, 0, 1, 0, 0, 0, 1, 9, 9, 9}));
    for (const std::uint32_t step : {0U, 7U}) {
        std::vector<double> y(5, 9);
        EXPECT_EQ(tenkLoadIdentity_ma_64f_S(y.data(), 0, 16, step, 2, 2, 1), tenkOk);
        EXPECT_EQ(y, (std::vector<double>{1, 0, 0, 1, 9}));
    }
}

TEST(LoadIdentity, RaisesARowStepToTheWidthInElementsWhateverTheElementStep)
{
    Floats x(12, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 0, 4, 3, 3, 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 0, 0, 0, 1, 0, 0, 0, 1, 9, 9, 9}));
    // With elements 8 bytes apart, rows still begin every 12: a row of spread elements runs over into the
    // next. Row 0: 0 at 0, 2, 4, then 1 at 0. Row 1: 0 at 3, 5, 7, then 1 at 5. Row 2: 0 at 6, 8, 10, then 1
    // at 10.
    Floats spread(12, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(spread.data(), 0, 0, 8, 3, 3, 1), tenkOk);
    EXPECT_EQ(spread, (Floats{1, 9, 0, 0, 0, 1, 0, 0, 0, 9, 1, 9}));
}

TEST(LoadIdentity, KeepsAnObjectStepOfZeroButForTables)
{
    // Object 1 falls on object 0; its ones go to columns 3, 4, 5 of rows of three, which are the next rows'
    // first.
    Floats x(16, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 0, 12, 4, 3, 3, 2), tenkOk);
    EXPECT_EQ(x, (Floats{0, 0, 0, 0, 0, 0, 0, 0, 0, 9, 9, 1, 9, 9, 9, 9}));

    Floats runs(8, 9);
    float* const table[] = {&runs[0], &runs[4], &runs[6]};
    EXPECT_EQ(tenkLoadIdentity_ma_32f_P(table, 0, 0, 1, 1, 2), tenkOk);
    // Object 0: 0 then 1 at run 0; object 1: 0 at 4 bytes behind run 0, its one through entry 1, 4 bytes
    // behind.
    EXPECT_EQ(runs, (Floats{1, 0, 9, 9, 9, 1, 9, 9}));
}

TEST(LoadIdentity, TakesAnEmptyBatchForASizeErrorAndEmptyMatricesForNothingToDo)
{
    Floats x(9, 9);
    float* const list[] = {x.data()};
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 3, 3, 0), tenkSizeError);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_L(list, 0, 12, 4, 3, 3, 0), tenkSizeError);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_P(list, 0, 4, 1, 1, 0), tenkSizeError);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 0, 3, 3), tenkOk);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 3, 0, 3), tenkOk);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 0, 3, 0), tenkSizeError);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 3, 0x80000000, 3), tenkOk); // negative
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(nullptr, 36, 12, 4, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(x, Floats(9, 9));
}

TEST(LoadIdentity, GivesATrueDiagonalToTheFirstOfThreeDenseObjectsOnly)
{
    Floats x(40, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 36, 12, 4, 3, 3, 3), tenkOk);
    EXPECT_EQ(Floats(x.begin(), x.begin() + 9), identity3);
    // Object 1: ones at columns 3, 4, 5 are at 12, 16 and 20 of the whole; rows and object behind clear them
    // again.
    EXPECT_EQ(Floats(x.begin() + 9, x.begin() + 18), Floats(9, 0));
    // Object 2: columns 6, 7, 8 of rows 0, 1, 2 are at 24, 28 and 32; row 2 is written last and clears 24
    // to 26.
    Floats last(22, 9);
    std::fill(last.begin(), last.begin() + 9, 0.0F);
    last[10] = 1; // 28
    last[14] = 1; // 32
    EXPECT_EQ(Floats(x.begin() + 18, x.end()), last);
}

TEST(LoadIdentity, PlacesOnesPastTheRowWhereThereAreMoreRowsThanColumns)
{
    // Four rows of two, 16 bytes apart.
    Floats x(20, 9);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 0, 16, 4, 2, 4, 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 0, 9, 9, 0, 1, 9, 9, 0, 0, 1, 9, 0, 0, 9, 1, 9, 9, 9, 9}));
}

TEST(LoadIdentity, FillsListsAndTables)
{
    Floats a(9, 9), spare(9, 9);
    float* const list[] = {a.data() - 2};
    EXPECT_EQ(tenkLoadIdentity_ma_32f_L(list, 8, 12, 4, 3, 3, 1), tenkOk);
    EXPECT_EQ(a, identity3);

    std::vector<double> b(9, 9);
    std::vector<double*> table;
    for (double& x : b)
        table.push_back(&x);
    EXPECT_EQ(tenkLoadIdentity_ma_64f_P(table.data(), 0, 8, 3, 3, 1), tenkOk);
    EXPECT_EQ(b, (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    double* const list64[] = {b.data()};
    EXPECT_EQ(tenkLoadIdentity_ma_64f_L(list64, 0, 16, 8, 2, 2, 1), tenkOk);
    EXPECT_EQ(b, (std::vector<double>{1, 0, 0, 1, 1, 0, 0, 0, 1}));
}

TEST(LoadIdentity, WritesPositiveZeros)
{
    Floats x(4, -1);
    EXPECT_EQ(tenkLoadIdentity_ma_32f_S(x.data(), 16, 8, 4, 2, 2, 1), tenkOk);
    std::uint32_t bits = 1;
    std::memcpy(&bits, &x[1], 4);
    EXPECT_EQ(bits, 0U);
    std::memcpy(&bits, &x[0], 4);
    EXPECT_EQ(bits, 0x3F800000U);
}

} // namespace
