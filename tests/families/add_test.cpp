// Add: edge cases by hand.
#include "sum_exceptions_cases.h"

namespace {

using namespace elementwise;

const Sum add{"Add", 1};

const std::vector<std::string> codes = {"vv",    "vav",  "vava",  "vc",    "vac",   "mm",
                                        "mTm",   "mmT",  "mTmT",  "mam",   "maTm",  "mamT",
                                        "maTmT", "mama", "maTma", "mamaT", "maTmaT"};

// Members that take a step of one source for another's need sources of the same gaps.
const LeftOut leftOut = {.always = {"mam_64f_3x3_L", "mamT_64f_3x3_L"},
                         .withDifferentGaps = {"mamT_32f_3x3", "mamT_32f_3x3_L", "mam_64f_5x5",
                                               "mam_64f_5x5_L", "mama_64f_5x5", "mama_64f_5x5_L"}};

TEST(Add, IsTheFormulaInAllLayoutsAndSizes)
{
    expectFormulaEverywhere(
        "Add", codes, [](float a, float b) { return a + b; }, [](double a, double b) { return a + b; },
        leftOut);
}
TEST(Add, TestsListsObjectByObjectInAllSizes)
{
    testsListsObjectByObjectEverywhere(
        "Add", codes, {.always = {"mam_32f_3x3_L", "mamT_32f_3x3_L"}, .withDifferentGaps = {}});
}

TEST(Add, OfAThousandElementsDoesNotShowItsVectors)
{
    addsAThousandElementsBehindAnAlignedAddress(add);
}
TEST(Add, OfVectorsDoesNotShowAlignment32f)
{
    alignmentDoesNotShow<float>(add);
}
TEST(Add, OfVectorsDoesNotShowAlignment64f)
{
    alignmentDoesNotShow<double>(add);
}
TEST(Add, OfOverlappingVectorsIsTheAscendingLoop32f)
{
    overlapGivesTheAscendingLoop<float>(add);
}
TEST(Add, OfOverlappingVectorsIsTheAscendingLoop64f)
{
    overlapGivesTheAscendingLoop<double>(add);
}

TEST(Add, ReadsWhatItHasWrittenWhenTheDestinationIsOneElementBehind)
{
    float x[] = {1, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50};
    const float ones[] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
    EXPECT_EQ(tenkAdd_vv_32f(x, ones, x + 1, 10), tenkOk);
    for (int j = 0; j <= 10; ++j)
        EXPECT_EQ(x[j], static_cast<float>(j + 1));
    double y[] = {1, 50, 50, 50, 50, 50, 50, 50, 50, 50, 50};
    EXPECT_EQ(tenkAdd_vc_64f(y, 2, y + 1, 10), tenkOk);
    for (int j = 0; j <= 10; ++j)
        EXPECT_EQ(y[j], 2 * j + 1);
}

TEST(Add, TakesADestinationAtAnOddAddress)
{
    const auto a = counting<float>(20, 1), b = counting<float>(20, 100);
    char memory[100] = {};
    EXPECT_EQ(status("tenkAdd_vv_32f", a.data(), b.data(), memory + 1, 20), tenkOk);
    for (std::size_t j = 0; j < 20; ++j) {
        float x;
        std::memcpy(&x, memory + 1 + j * 4, 4);
        EXPECT_EQ(x, static_cast<float>(101 + 2 * j));
    }
    EXPECT_EQ(memory[0], 0);
    EXPECT_EQ(memory[81], 0);
}

TEST(Add, TestsPointersThenSizesThenTablesThenCount)
{
    testsPointersThenSizesThenTablesThenCount(add);
}
TEST(Add, TestsTablesOfArraysFirstAndThoseOfOneObjectAsTheyAreReached)
{
    testsTables(add);
}
TEST(Add, TestsListsObjectByObject)
{
    testsLists(add);
}
TEST(Add, WorksInPlace)
{
    worksInPlace(add, codes, leftOut);
}
TEST(Add, KeepsTheSingleOperandInFixedSizesAlone)
{
    keepsTheSingleOperandInFixedSizesAlone(add);
}
TEST(Add, KeepsTheSingleMatrixInFixedSizesAlone32f)
{
    keepsTheSingleMatrixInFixedSizesAlone<float>(add);
}
TEST(Add, KeepsTheSingleMatrixInFixedSizesAlone64f)
{
    keepsTheSingleMatrixInFixedSizesAlone<double>(add);
}
TEST(Add, RaisesNothingOfItsOwn32f)
{
    raisesNothingOfItsOwn<float>(add);
}
TEST(Add, RaisesNothingOfItsOwn64f)
{
    raisesNothingOfItsOwn<double>(add);
}

TEST(Add, ReadsATransposedSourceOfFiveRowsForAResultOfFiveColumns)
{
    // Stored 5 x 3, read as 3 x 5.
    const auto a = counting<float>(15, 1);
    const std::vector<float> b(15, 100);
    std::vector<float> d(15);
    EXPECT_EQ(tenkAdd_mTm_32f(a.data(), 12, b.data(), 20, d.data(), 20, 5, 3), tenkOk);
    EXPECT_EQ(
        d, (std::vector<float>{101, 104, 107, 110, 113, 102, 105, 108, 111, 114, 103, 106, 109, 112, 115}));
}

TEST(Add, FindsATransposedElementBehindATableOfTheRowLengthOfTheStoredObject)
{
    auto a = counting<float>(15, 1), b = std::vector<float>(15, 100), d = std::vector<float>(15);
    std::vector<float*> src1, src2, dst;
    for (std::size_t e = 0; e < 15; ++e) {
        src1.push_back(&a[e]);
        src2.push_back(&b[e]);
        dst.push_back(&d[e]);
    }
    EXPECT_EQ(tenkAdd_maTm_32f_P(src1.data(), 0, src2.data(), 0, dst.data(), 0, 5, 3, 1), tenkOk);
    EXPECT_EQ(d[1 * 5 + 4], 100 + a[13]);
    EXPECT_EQ(d[2 * 5 + 1], 100 + a[1 * 3 + 2]);
}

TEST(Add, GoesAheadWithoutLookingAtTheCount)
{
    countsNoObjectAsOne(add);
}
TEST(Add, WithoutObjectsTakesTheEntryBeforeTheList)
{
    withoutObjectsTakesTheEntryBeforeTheList(add);
}
TEST(Add, TestsListsAheadOfTheObjects)
{
    testsListsAheadOfTheObjects(add);
}
TEST(Add, ReadsTheNextObjectFirst)
{
    readsTheNextObjectFirst(add);
}
TEST(Add, StepsRowsOfTheTransposedMatrixByTheOther)
{
    stepsRowsOfTheTransposedMatrixByTheOther(add);
}
TEST(Add, StepsTheLastColumnOf5x5BySrc2)
{
    stepsTheLastColumnBySrc2(add);
}

TEST(Add, MixesUpElementsOfObjectsThatAreAlignedOtherwiseThanTheSingleOperand)
{
    for (const MixedCase& c :
         {MixedCase{"mam", false, true, {0, zero, 1, 2, zero, 10, 11, zero, 12}},
          MixedCase{"mam", true, false, {0, 2, 10, 12, 20, 22, any, any, 10}},
          MixedCase{"mam", true, true, straight}, MixedCase{"mam", false, false, straight},
          MixedCase{"mamT", false, true, {0, zero, 1, 10, zero, 11, 20, zero, 21}},
          MixedCase{"mamT", true, false, {0, 1, 2, 20, 21, 22, any, any, 22}},
          MixedCase{"mamT", true, true, turned}, MixedCase{"mamT", false, false, turned}})
        expectPlaces(add, c);
}

TEST(Add, TestsATransposedTableAtThePlaceOfTheResult)
{
    testsATransposedTableAtThePlaceOfTheResult(add);
}

} // namespace
