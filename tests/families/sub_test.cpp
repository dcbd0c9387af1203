// Sub: edge cases by hand.
#include "sum_exceptions_cases.h"

namespace {

using namespace elementwise;

const Sum sub{"Sub", -1};

const std::vector<std::string> codes = {"vv",   "vav",   "vva",   "vava",   "vc",  "cv",   "vac",  "cva",
                                        "mm",   "mTm",   "mmT",   "mTmT",   "mam", "maTm", "mamT", "maTmT",
                                        "mama", "maTma", "mamaT", "maTmaT", "mma", "mTma", "mmaT", "mTmaT"};

// Members that take a step of one source for another's need sources of the same gaps.
const LeftOut leftOut = {.always = {"mTmT_32f_6x6", "maTmaT_32f_6x6", "maTmaT_32f_6x6_L", "mTma_64f_3x3",
                                    "mTma_64f_3x3_L", "mam_64f_3x3_L", "mma_64f_3x3_L", "mamT_64f_3x3_L"},
                         .withDifferentGaps = {"mamT_32f_3x3", "mamT_32f_3x3_L", "mam_64f_5x5",
                                               "mam_64f_5x5_L", "mama_64f_5x5", "mama_64f_5x5_L"}};

TEST(Sub, IsTheFormulaInAllLayoutsAndSizes)
{
    expectFormulaEverywhere(
        "Sub", codes, [](float a, float b) { return a - b; }, [](double a, double b) { return a - b; },
        leftOut);
}
TEST(Sub, TestsListsObjectByObjectInAllSizes)
{
    testsListsObjectByObjectEverywhere(
        "Sub", codes, {.always = {"mam_32f_3x3_L", "mamT_32f_3x3_L"}, .withDifferentGaps = {}});
}

TEST(Sub, OfAThousandElementsDoesNotShowItsVectors)
{
    addsAThousandElementsBehindAnAlignedAddress(sub);
}
TEST(Sub, OfVectorsDoesNotShowAlignment32f)
{
    alignmentDoesNotShow<float>(sub);
}
TEST(Sub, OfVectorsDoesNotShowAlignment64f)
{
    alignmentDoesNotShow<double>(sub);
}
TEST(Sub, OfOverlappingVectorsIsTheAscendingLoop32f)
{
    overlapGivesTheAscendingLoop<float>(sub);
}
TEST(Sub, OfOverlappingVectorsIsTheAscendingLoop64f)
{
    overlapGivesTheAscendingLoop<double>(sub);
}

TEST(Sub, OfConstantsReadsWhatItHasWrittenWhenTheDestinationIsOneElementBehind)
{
    float x[] = {1, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50};
    EXPECT_EQ(tenkSub_cv_32f(x, 3, x + 1, 10), tenkOk);
    for (int j = 0; j <= 10; ++j)
        EXPECT_EQ(x[j], j % 2 == 0 ? 1.F : 2.F);
    double y[] = {100, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50};
    EXPECT_EQ(tenkSub_vc_64f(y, 3, y + 1, 10), tenkOk);
    for (int j = 0; j <= 10; ++j)
        EXPECT_EQ(y[j], 100 - 3 * j);
}

TEST(Sub, OfAVectorFromZeroNegatesAndGivesPlusZero)
{
    const std::vector<float> x = {1, -2, 0, -0.F, 5, 6, 7, 8, 0, -10, 11, 12};
    std::vector<float> d(12);
    EXPECT_EQ(tenkSub_cv_32f(x.data(), 0, d.data(), 12), tenkOk);
    EXPECT_EQ(d, (std::vector<float>{-1, 2, 0, 0, -5, -6, -7, -8, 0, 10, -11, -12}));
    for (const std::size_t j : {2U, 3U, 8U})
        EXPECT_FALSE(std::signbit(d[j]));
    EXPECT_EQ(tenkSub_cv_32f_3x1(x.data() + 1, 0, d.data()), tenkOk);
    EXPECT_EQ(d[0], 2);
    EXPECT_FALSE(std::signbit(d[1]) || std::signbit(d[2]));
}

TEST(Sub, TakesAValueOfEightBytesBehindTheVector)
{
    const std::vector<double> x = {1, 2, 3};
    std::vector<double> d(3);
    EXPECT_EQ(tenkSub_vc_64f_3x1(x.data(), 1e-17, d.data()), tenkOk);
    EXPECT_EQ(d, x);
    EXPECT_EQ(tenkSub_vc_64f_3x1(x.data(), 0x1.0000000000001p0, d.data()), tenkOk);
    EXPECT_EQ(d[0], -0x1p-52);
    double* list[] = {d.data()};
    const double* from[] = {x.data()};
    EXPECT_EQ(tenkSub_cva_64f_LS2(from, 0, 8, 0x1.0000000000001p0, list, 0, 8, 3, 1), tenkOk);
    EXPECT_EQ(d[0], 0x1p-52);
    EXPECT_EQ(d[1], 0x1.0000000000001p0 - 2);
}

TEST(Sub, OfOneVectorAndAnArrayTakesTheArrayFromTheVector)
{
    const std::vector<float> one = {1, 2, 3}, many = {10, 20, 30, 40, 50, 60};
    std::vector<float> d(6);
    EXPECT_EQ(tenkSub_vva_32f(one.data(), many.data(), 12, d.data(), 12, 3, 2), tenkOk);
    EXPECT_EQ(d, (std::vector<float>{-9, -18, -27, -39, -48, -57}));
}

TEST(Sub, TestsPointersThenSizesThenTablesThenCount)
{
    testsPointersThenSizesThenTablesThenCount(sub);
}
TEST(Sub, TestsTablesOfArraysFirstAndThoseOfOneObjectAsTheyAreReached)
{
    testsTables(sub);
}
TEST(Sub, TestsListsObjectByObject)
{
    testsLists(sub);
}
TEST(Sub, WorksInPlace)
{
    worksInPlace(sub, codes, leftOut);
}
TEST(Sub, KeepsTheSingleOperandInFixedSizesAlone)
{
    keepsTheSingleOperandInFixedSizesAlone(sub);
}
TEST(Sub, KeepsTheSingleMatrixInFixedSizesAlone32f)
{
    keepsTheSingleMatrixInFixedSizesAlone<float>(sub);
}
TEST(Sub, KeepsTheSingleMatrixInFixedSizesAlone64f)
{
    keepsTheSingleMatrixInFixedSizesAlone<double>(sub);
}
TEST(Sub, RaisesNothingOfItsOwn32f)
{
    raisesNothingOfItsOwn<float>(sub);
}
TEST(Sub, RaisesNothingOfItsOwn64f)
{
    raisesNothingOfItsOwn<double>(sub);
}

TEST(Sub, GoesAheadWithoutLookingAtTheCount)
{
    countsNoObjectAsOne(sub);
}
TEST(Sub, WithoutObjectsTakesTheEntryBeforeTheList)
{
    withoutObjectsTakesTheEntryBeforeTheList(sub);
}
TEST(Sub, TestsListsAheadOfTheObjects)
{
    testsListsAheadOfTheObjects(sub);
}
TEST(Sub, ReadsTheNextObjectFirst)
{
    readsTheNextObjectFirst(sub);
}
TEST(Sub, StepsRowsOfTheTransposedMatrixByTheOther)
{
    stepsRowsOfTheTransposedMatrixByTheOther(sub);
}
TEST(Sub, StepsTheLastColumnOf5x5BySrc2)
{
    stepsTheLastColumnBySrc2(sub);
}
TEST(Sub, TestsATransposedTableAtThePlaceOfTheResult)
{
    testsATransposedTableAtThePlaceOfTheResult(sub);
}

TEST(Sub, StepsElementsOfTheSecond6x6ByTheFirst)
{
    const auto a = counting<double>(100, 1), b = counting<double>(100, 1000);
    std::vector<double> d(36);
    // The second operand says that its elements are adjacent, in vain.
    EXPECT_EQ(tenkSub_mTm_64f_6x6_S2(a.data(), 96, 16, b.data(), 96, 8, d.data(), 48, 8), tenkOk);
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 0; j < 6; ++j)
            EXPECT_EQ(d[i * 6 + j], a[j * 12 + i * 2] - b[i * 12 + j * 2]);
    EXPECT_EQ(tenkSub_mTm_64f_5x5_S2(a.data(), 96, 16, b.data(), 96, 8, d.data(), 48, 8), tenkOk);
    EXPECT_EQ(d[1], a[12] - b[1]);
    EXPECT_EQ(status("tenkSub_mTm_32f_6x6_S2", a.data(), 96, 16, b.data(), 96, 8, d.data(), 48, 8), tenkOk);
}

TEST(Sub, OfTwoTransposed6x6RepeatsRow2AsRow3)
{
    const auto a = counting<float>(36, 1);
    std::vector<float> b(36), d(36);
    for (std::size_t e = 0; e < 36; ++e)
        b[e] = static_cast<float>(e * e);
    EXPECT_EQ(tenkSub_mTmT_32f_6x6(a.data(), 24, b.data(), 24, d.data(), 24), tenkOk);
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 0; j < 6; ++j) {
            const std::size_t e = j * 6 + (i == 3 ? 2 : i);
            EXPECT_EQ(d[i * 6 + j], a[e] - b[e]) << i << j;
        }
}

TEST(Sub, OfTwoArraysOfTransposed6x6ScattersElements)
{
    constexpr int places[6][6] = {{0, 4, 20, 24, 40, 44},   {1, 5, 21, 25, 41, 45},
                                  {2, 14, 22, 34, 42, 54},  {2, 14, 22, 34, 42, 54},
                                  {10, 12, 30, 32, 50, 52}, {11, 13, 31, 33, 51, 53}};
    const auto a = counting<float>(80, 1);
    std::vector<float> b(80);
    for (std::size_t e = 0; e < 80; ++e)
        b[e] = static_cast<float>(e * e);
    const float* src1[] = {a.data(), a.data() + 36};
    const float* src2[] = {b.data(), b.data() + 36};
    for (const bool list : {false, true}) {
        std::vector<float> d(72);
        float* dst[] = {d.data(), d.data() + 36};
        EXPECT_EQ(list ? tenkSub_maTmaT_32f_6x6_L(src1, 0, 24, src2, 0, 24, dst, 0, 24, 2)
                       : tenkSub_maTmaT_32f_6x6(a.data(), 144, 24, b.data(), 144, 24, d.data(), 144, 24, 2),
                  tenkOk);
        for (std::size_t k = 0; k < 2; ++k)
            for (std::size_t i = 0; i < 6; ++i)
                for (std::size_t j = 0; j < 6; ++j) {
                    const auto rc = static_cast<std::size_t>(places[i][j]);
                    const std::size_t e = k * 36 + rc / 10 * 6 + rc % 10;
                    EXPECT_EQ(d[k * 36 + i * 6 + j], a[e] - b[e]) << i << j;
                }
    }
}

// Every pointer and step can be the one that is not aligned.
TEST(Sub, ExchangesTheLastElementOfTransposed3x3WhenEverythingIsAligned)
{
    AlignedRun<double> a(60), b(60);
    for (std::size_t e = 0; e < 60; ++e) {
        a[e] = static_cast<double>(e + 1);
        b[e] = static_cast<double>(e * e + 100);
    }
    for (int odd = -1; odd < 8; ++odd) {
        AlignedRun<double> d(60, 9);
        const auto at = [odd](int argument) { return odd == argument ? 1U : 0U; };
        const std::uint32_t a1 = 32 + 8 * at(1), b0 = 128 + 8 * at(3), b1 = 32 + 8 * at(4),
                            d0 = 128 + 8 * at(6), d1 = 32 + 8 * at(7);
        const double *x = a.begin() + at(0), *y = b.begin() + at(2);
        double* z = d.begin() + at(5);
        EXPECT_EQ(tenkSub_mTma_64f_3x3(x, a1, y, b0, b1, z, d0, d1, 2), tenkOk);
        for (std::size_t k = 0; k < 2; ++k)
            for (std::size_t i = 0; i < 3; ++i)
                for (std::size_t j = 0; j < 3; ++j) {
                    const double u = x[j * a1 / 8 + i], v = y[(k * b0 + i * b1) / 8 + j];
                    EXPECT_EQ(z[(k * d0 + i * d1) / 8 + j], odd == -1 && i == 2 && j == 2 ? v - u : u - v)
                        << odd;
                }
    }
}

TEST(Sub, MixesUpElementsOfObjectsThatAreAlignedOtherwiseThanTheSingleOperand)
{
    const Places dropped = {0, zero, 1, 2, zero, 10, 11, zero, 12},
                 turnedDropped = {0, zero, 1, 10, zero, 11, 20, zero, 21};
    for (const MixedCase& c :
         {MixedCase{"mam", false, true, dropped},
          MixedCase{"mam", true, false, {0, 2, 10, 12, 20, 22, any, any, 10}},
          MixedCase{"mam", true, true, straight}, MixedCase{"mam", false, false, straight},
          MixedCase{"mma", false, true, dropped},
          MixedCase{"mma", true, false, {0, 2, 10, 12, 20, 22, any, any, 22}},
          MixedCase{"mma", true, true, straight}, MixedCase{"mma", false, false, straight},
          MixedCase{"mamT", false, true, turnedDropped},
          MixedCase{"mamT", true, false, {0, 1, 2, 20, 21, 22, any, any, 22}},
          MixedCase{"mamT", true, true, turned}, MixedCase{"mamT", false, false, turned},
          MixedCase{"mTma", false, true, turnedDropped, true},
          MixedCase{"mTma", true, false, {0, 1, 2, 20, 21, 22, any, any, 22}},
          MixedCase{"mTma", true, true, turned, true}, MixedCase{"mTma", false, false, turned}})
        expectPlaces(sub, c);
}

// The sorts change from object to object: the first is aligned, the second is not.
TEST(Sub, DecidesForEachObjectOfAListAnew)
{
    AlignedRun<double> single(16), x(40), d(40, 9);
    for (std::size_t e = 0; e < 16; ++e)
        single[e] = static_cast<double>(e + 1);
    const double* src[] = {x.begin(), x.begin() + 17};
    double* dst[] = {d.begin(), d.begin() + 16};
    EXPECT_EQ(tenkSub_mma_64f_3x3_L(single.begin(), 32, src, 0, 32, dst, 0, 32, 2), tenkOk);
    EXPECT_EQ(d[5], 6);        // (1, 1) of the first: s11
    EXPECT_EQ(d[16 + 5], 9);   // (1, 1) of the second: s20
    EXPECT_EQ(d[16 + 10], 11); // (2, 2) of the second: s22
}

} // namespace
