// The model's members of Add, Sub, Saxpy, LComb and Mul by a constant that stand apart, against numbers
// worked out by hand.
#include "frame.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <limits>

namespace model {

namespace {

using Floats = std::vector<float>;
using Doubles = std::vector<double>;
using Pointers = std::vector<Address>;

constexpr std::uint64_t bits(float value)
{
    return std::bit_cast<std::uint32_t>(value);
}

class ModelElementwise : public testing::Test
{
protected:
    ModelElementwise() : a(scene.at(256)), b(scene.at(4096)), d(scene.at(8192)), tables(scene.at(12288)) {}

    Scene scene;
    const Address a;
    const Address b;
    const Address d;
    const Address tables;
};

TEST_F(ModelElementwise, vectorsOnTopOfTheirSourceGoUpward)
{
    scene.put<float>(a, {1, 2, 3, 4, 5});
    scene.put<float>(b, {10, 10, 10, 10});
    EXPECT_EQ(scene.run("tenkAdd_vv_32f", {{"src1", a}, {"src2", b}, {"dst", a + 4}, {"length", 4}}), ok);
    EXPECT_EQ(scene.get<float>(a, 5), (Floats{1, 11, 21, 31, 41}));
}

TEST_F(ModelElementwise, stridedVectorsPromiseNothingBesideTheirSource)
{
    EXPECT_THROW(scene.run("tenkAdd_vv_32f_S2", {{"src1", a},
                                                 {"src1Stride2", 4},
                                                 {"src2", b},
                                                 {"src2Stride2", 4},
                                                 {"dst", a + 4},
                                                 {"dstStride2", 4},
                                                 {"length", 4}}),
                 Undecided);
    EXPECT_EQ(scene.run("tenkAdd_vv_32f_S2", {{"src1", a},
                                              {"src1Stride2", 4},
                                              {"src2", b},
                                              {"src2Stride2", 4},
                                              {"dst", a},
                                              {"dstStride2", 4},
                                              {"length", 4}}),
              ok);
}

TEST_F(ModelElementwise, constantComesFirstInTheDifference)
{
    scene.put<float>(a, {1, 0, 3});
    EXPECT_EQ(scene.run("tenkSub_cv_32f_3x1", {{"src", a}, {"value", bits(2.0f)}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<float>(d, 3), (Floats{1, 2, -1}));
}

TEST_F(ModelElementwise, noObjectsAreOneInTheFourMembers)
{
    scene.putRising<float>(a, 9, 1);
    scene.putRising<float>(b, 9, 10);
    std::map<std::string, std::uint64_t> arguments = {{"src1", a}, {"src1Stride1", 12}, {"src2", b},
                                                      {"dst", d},  {"dstStride1", 12},  {"src2Stride1", 12}};
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_3x3", arguments), ok);
    EXPECT_EQ(scene.get<float>(d, 9), (Floats{11, 13, 15, 17, 19, 21, 23, 25, 27}));
    // The second operand's rows stand where the first one's would.
    arguments["src2Stride1"] = 400;
    EXPECT_EQ(scene.run("tenkSub_mamT_32f_3x3", arguments), ok);
    EXPECT_EQ(scene.get<float>(d, 9), (Floats{-9, -11, -13, -7, -9, -11, -5, -7, -9}));
}

TEST_F(ModelElementwise, listsOfTheFourMembersAreTestedAhead)
{
    scene.putRising<float>(a, 9, 1);
    scene.putRising<float>(b, 9, 10);
    scene.put<Address>(tables, {a, 0, a});
    scene.put<Address>(tables + 64, {d + 256, d, d + 64, d + 128});
    std::map<std::string, std::uint64_t> arguments = {{"src1", tables},
                                                      {"src1Stride1", 12},
                                                      {"src2", b},
                                                      {"src2Stride1", 12},
                                                      {"dst", tables + 64 + sizeof(Address)},
                                                      {"dstStride1", 12},
                                                      {"count", 3}};
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_3x3_L", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    arguments["count"] = 0;
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_3x3_L", arguments), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    EXPECT_EQ(scene.get<float>(d + 256, 9), (Floats{11, 13, 15, 17, 19, 21, 23, 25, 27}));
    scene.put<Address>(tables, {a, a, a});
    scene.put<Address>(tables + 64 + 3 * sizeof(Address), {0});
    arguments["count"] = 3;
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_3x3_L", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    // Other members test a list as they come to the object.
    arguments["dstStride1"] = 16;
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_4x4_L", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d), 11.0f);
}

TEST_F(ModelElementwise, objectsOfOrderThreeAreLoadedAhead)
{
    scene.putRising<float>(a, 27, 1);
    scene.put<float>(b, {100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100, 100});
    std::map<std::string, std::uint64_t> arguments = {
        {"src1", a},     {"src1Stride0", 36}, {"src1Stride1", 12}, {"src2", b}, {"src2Stride1", 12},
        {"dst", a + 36}, {"dstStride0", 36},  {"dstStride1", 12},  {"count", 2}};
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_3x3", arguments), ok);
    EXPECT_EQ(scene.get<float>(a + 36), 101.0f);
    EXPECT_EQ(scene.get<float>(a + 72), 110.0f);
    scene.putRising<float>(a, 48, 1);
    arguments["src1Stride0"] = arguments["dstStride0"] = 64;
    arguments["src1Stride1"] = arguments["dstStride1"] = arguments["src2Stride1"] = 16;
    arguments["dst"] = a + 64;
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<float>(a + 64), 101.0f);
    EXPECT_EQ(scene.get<float>(a + 128), 201.0f);
}

TEST_F(ModelElementwise, singleOperandOfFixedSizeIsReadOnce)
{
    scene.put<float>(a, Floats(32, 1.0f));
    scene.put<float>(b, Floats(16, 10.0f));
    const std::map<std::string, std::uint64_t> arguments = {
        {"src1", a}, {"src1Stride0", 64}, {"src1Stride1", 16}, {"src2", b}, {"src2Stride1", 16},
        {"dst", b},  {"dstStride0", 64},  {"dstStride1", 16},  {"count", 2}};
    EXPECT_EQ(scene.run("tenkAdd_mam_32f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<float>(b), 11.0f);
    EXPECT_EQ(scene.get<float>(b + 64), 11.0f);
    scene.put<float>(b, Floats(32, 10.0f));
    auto general = arguments;
    general["width"] = general["height"] = 4;
    EXPECT_EQ(scene.run("tenkAdd_mam_32f", general), ok);
    EXPECT_EQ(scene.get<float>(b), 11.0f);
    EXPECT_EQ(scene.get<float>(b + 64), 12.0f);
}

TEST_F(ModelElementwise, placesThatAreNotTheOperandsOwn)
{
    scene.putRising<double>(a, 64, 1);
    scene.put<double>(b, Doubles(64, 0.0));
    EXPECT_EQ(scene.run("tenkAdd_mam_64f_5x5", {{"src1", a},
                                                {"src1Stride1", 40},
                                                {"src2", b},
                                                {"src2Stride1", 48},
                                                {"dst", d},
                                                {"dstStride1", 40},
                                                {"count", 1}}),
              ok);
    EXPECT_EQ(scene.get<double>(d + 40, 5), (Doubles{6, 7, 8, 9, 11}));
    scene.put<double>(b, Doubles(36, 0.0));
    scene.putRising<double>(b, 36, 1);
    scene.put<double>(a, Doubles(64, 0.0));
    EXPECT_EQ(scene.run("tenkSub_mTm_64f_6x6_S2", {{"src1", a},
                                                   {"src1Stride1", 8},
                                                   {"src1Stride2", 16},
                                                   {"src2", b},
                                                   {"src2Stride1", 8},
                                                   {"src2Stride2", 8},
                                                   {"dst", d},
                                                   {"dstStride1", 48},
                                                   {"dstStride2", 8}}),
              ok);
    EXPECT_EQ(scene.get<double>(d + 48, 6), (Doubles{-2, -4, -6, -8, -10, -12}));
}

TEST_F(ModelElementwise, transposedDifferencesOfOrderSix)
{
    scene.put<float>(b, Floats(36, 0.0f));
    Floats places;
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 6; ++column)
            places.push_back(static_cast<float>(10 * row + column));
    }
    scene.put<float>(a, places);
    std::map<std::string, std::uint64_t> arguments = {
        {"src1", a}, {"src1Stride1", 24}, {"src2", b}, {"src2Stride1", 24}, {"dst", d}, {"dstStride1", 24}};
    EXPECT_EQ(scene.run("tenkSub_mTmT_32f_6x6", arguments), ok);
    EXPECT_EQ(scene.get<float>(d + 72, 6), (Floats{2, 12, 22, 32, 42, 52}));
    EXPECT_EQ(scene.get<float>(d + 96, 6), (Floats{4, 14, 24, 34, 44, 54}));
    arguments["count"] = 1;
    EXPECT_EQ(scene.run("tenkSub_maTmaT_32f_6x6", arguments), ok);
    EXPECT_EQ(scene.get<float>(d + 24, 6), (Floats{1, 5, 21, 25, 41, 45}));
    EXPECT_EQ(scene.get<float>(d + 72, 6), (Floats{2, 14, 22, 34, 42, 54}));
    EXPECT_EQ(scene.run("tenkAdd_maTmaT_32f_6x6", arguments), ok);
    EXPECT_EQ(scene.get<float>(d + 24, 6), (Floats{1, 11, 21, 31, 41, 51}));
}

// Lists of order 3: the array is all zeros and the single operand holds its places as digits, from 1 on.
class ModelMixedAlignment : public ModelElementwise
{
protected:
    // The nine results; -1 where the element is open.
    Doubles run(const std::string& name, bool singlePasses, bool objectPasses)
    {
        const bool singleFirst =
            name.find("_m") != std::string::npos && name.find("_ma") == std::string::npos;
        const Address single = a + (singlePasses ? 0 : 8);
        const Address object = b + (objectPasses ? 0 : 8);
        for (unsigned row = 0; row < 3; ++row)
            scene.put<double>(single + 32 * row, {10.0 * row + 11, 10.0 * row + 12, 10.0 * row + 13});
        scene.put<double>(object, Doubles(12, 0.0));
        scene.put<Address>(tables, {object});
        scene.put<Address>(tables + 64, {d});
        const std::string one = singleFirst ? "src1" : "src2";
        const std::string many = singleFirst ? "src2" : "src1";
        EXPECT_EQ(scene.run(name, {{one, single},
                                   {one + "Stride1", 32},
                                   {many, tables},
                                   {many + "Stride1", 32},
                                   {"dst", tables + 64},
                                   {"dstStride1", 32},
                                   {"count", 1}}),
                  ok);
        Doubles result;
        for (unsigned e = 0; e < 9; ++e) {
            const Address place = d + 32 * (e / 3) + 8 * (e % 3);
            result.push_back(scene.leftOpen(place) ? -1 : scene.get<double>(place));
        }
        return result;
    }
};

TEST_F(ModelMixedAlignment, agrees)
{
    EXPECT_EQ(run("tenkAdd_mam_64f_3x3_L", false, false), (Doubles{11, 12, 13, 21, 22, 23, 31, 32, 33}));
    EXPECT_EQ(run("tenkAdd_mamT_64f_3x3_L", true, true), (Doubles{11, 21, 31, 12, 22, 32, 13, 23, 33}));
}

TEST_F(ModelMixedAlignment, putsTheSingleOperandElsewhere)
{
    EXPECT_EQ(run("tenkAdd_mam_64f_3x3_L", false, true), (Doubles{11, 0, 12, 13, 0, 21, 22, 0, 23}));
    EXPECT_EQ(run("tenkSub_mma_64f_3x3_L", false, true), (Doubles{11, 0, 12, 13, 0, 21, 22, 0, 23}));
    EXPECT_EQ(run("tenkSub_mma_64f_3x3_L", true, false), (Doubles{11, 13, 21, 23, 31, 33, -1, -1, 33}));
    EXPECT_EQ(run("tenkAdd_mam_64f_3x3_L", true, false), (Doubles{11, 13, 21, 23, 31, 33, -1, -1, 21}));
    EXPECT_EQ(run("tenkAdd_mamT_64f_3x3_L", false, true), (Doubles{11, 0, 12, 21, 0, 22, 31, 0, 32}));
    EXPECT_EQ(run("tenkAdd_mamT_64f_3x3_L", true, false), (Doubles{11, 12, 13, 31, 32, 33, -1, -1, 33}));
}

TEST_F(ModelMixedAlignment, exchangesTheLastElementByTheObject)
{
    EXPECT_EQ(run("tenkSub_mTma_64f_3x3_L", true, true).back(), -33);
    EXPECT_EQ(run("tenkSub_mTma_64f_3x3_L", false, false).back(), 33);
    EXPECT_EQ(run("tenkSub_mTma_64f_3x3_L", false, true).back(), -32);
    EXPECT_EQ(run("tenkSub_mTma_64f_3x3_L", true, false).back(), 33);
}

TEST_F(ModelElementwise, transposedTablesAreTestedAtAnotherEntry)
{
    Pointers first, second, result;
    for (unsigned e = 0; e < 12; ++e) {
        first.push_back(a + 4 * e);
        second.push_back(b + 4 * e);
        result.push_back(d + 4 * e);
    }
    first[7] = 0; // one past a table of 6; the test reaches entry (3 - 1) * 3 + 2 - 1
    scene.put<Address>(tables, first);
    scene.put<Address>(tables + 128, second);
    scene.put<Address>(tables + 256, result);
    scene.putRising<float>(a, 12, 1);
    scene.put<float>(b, Floats(12, 0.0f));
    const std::map<std::string, std::uint64_t> arguments = {
        {"src1", tables}, {"src2", tables + 128}, {"dst", tables + 256}, {"width", 2}, {"height", 3}};
    EXPECT_EQ(scene.run("tenkAdd_mTm_32f_P", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d, 6), (Floats{1, 4, 2, 5, 3, 0}));
}

TEST_F(ModelElementwise, scalingATransposedOrderFourInPlace)
{
    scene.putRising<float>(a, 16, 1);
    const std::map<std::string, std::uint64_t> arguments = {
        {"src", a}, {"srcStride1", 16}, {"value", bits(2.0f)}, {"dst", a}, {"dstStride1", 16}};
    EXPECT_EQ(scene.run("tenkMul_mTc_32f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<float>(a, 4), (Floats{2, 10, 18, 26}));
    EXPECT_THROW(scene.run("tenkMul_mTc_32f_3x3", arguments), Undecided);
}

TEST_F(ModelElementwise, productsAreAlwaysFormed)
{
    scene.put<float>(a, Floats(3, std::numeric_limits<float>::infinity()));
    scene.put<float>(b, Floats(3, 1.0f));
    EXPECT_EQ(scene.run("tenkSaxpy_vv_32f_3x1", {{"src1", a}, {"src2", b}, {"dst", d}}), ok);
    EXPECT_NE(scene.get<float>(d), scene.get<float>(d));
    EXPECT_EQ(
        scene.run("tenkLComb_vv_32f_3x1",
                  {{"src1", b}, {"value1", bits(3.0f)}, {"src2", b}, {"value2", bits(4.0f)}, {"dst", d}}),
        ok);
    EXPECT_EQ(scene.get<float>(d), 7.0f);
}

} // namespace

} // namespace model
