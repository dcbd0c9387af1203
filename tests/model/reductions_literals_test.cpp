// The model's reductions, against numbers worked out by hand.
#include "frame.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace model {

namespace {

class ModelReductions : public testing::Test
{
protected:
    ModelReductions() : a(scene.at(256)), b(scene.at(4096)), d(scene.at(8192)), tables(scene.at(12288)) {}

    Scene scene;
    const Address a;
    const Address b;
    const Address d;
    const Address tables;
};

constexpr float big = 0x1p24f; // big + 1 is rounded to big

TEST_F(ModelReductions, dotProductInBlocksFromAnAlignedOperandOn)
{
    const std::vector<float> p = {big, 1, 1, 1, -big, 1, 1, 1};
    scene.put<float>(a, p);
    scene.put<float>(b, std::vector<float>(9, 1.0f));
    EXPECT_EQ(scene.run("tenkDotProduct_vv_32f", {{"src1", a}, {"src2", b}, {"dst", d}, {"length", 8}}), ok);
    EXPECT_EQ(scene.get<float>(d), 6.0f); // ((p0 + p4) + (p2 + p6)) + ((p1 + p5) + (p3 + p7))
    EXPECT_EQ(scene.run("tenkDotProduct_vv_32f", {{"src1", a}, {"src2", b + 4}, {"dst", d}, {"length", 8}}),
              ok);
    EXPECT_EQ(scene.get<float>(d), 3.0f); // three to go to the boundary, five after it
    // An address that is no multiple of the element size never takes blocks.
    scene.put<float>(b + 2, std::vector<float>(9, 1.0f));
    EXPECT_EQ(scene.run("tenkDotProduct_vv_32f", {{"src1", a}, {"src2", b + 2}, {"dst", d}, {"length", 8}}),
              ok);
    EXPECT_EQ(scene.get<float>(d), 3.0f);
}

TEST_F(ModelReductions, dotProductAddsThePeeledElementsFirst)
{
    // 4 bytes above the boundary three elements are peeled; their sum goes with lane 0.
    scene.put<float>(a, {1, 1, big, -big, 1, 1, 1, 0, 0, 0, 0});
    scene.put<float>(b + 4, std::vector<float>(11, 1.0f));
    EXPECT_EQ(scene.run("tenkDotProduct_vv_32f", {{"src1", a}, {"src2", b + 4}, {"dst", d}, {"length", 11}}),
              ok);
    EXPECT_EQ(scene.get<float>(d), 5.0f); // big + 2 - big, and three ones in the other lanes
}

TEST_F(ModelReductions, dotProductOfFourBySize)
{
    scene.put<float>(a, {big, 1, 1, 1});
    scene.put<float>(b, {1, 1, 1, 1});
    EXPECT_EQ(scene.run("tenkDotProduct_vv_32f_4x1", {{"src1", a}, {"src2", b}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<float>(d), big);
    EXPECT_EQ(scene.run("tenkDotProduct_vav_32f_4x1", {{"src1", a}, {"src2", b}, {"dst", d}, {"count", 1}}),
              ok);
    EXPECT_EQ(scene.get<float>(d), big + 2);
}

TEST_F(ModelReductions, dotProductListsOfFourAreTestedAhead)
{
    scene.put<float>(a, {1, 2, 3});
    scene.put<float>(b, {1, 1, 1});
    scene.put<Address>(tables, {a, a, 0, a});
    std::map<std::string, std::uint64_t> arguments = {
        {"src1", tables}, {"src2", b}, {"dst", d}, {"count", 4}};
    EXPECT_EQ(scene.run("tenkDotProduct_vav_32f_3x1_L", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    EXPECT_EQ(scene.run("tenkDotProduct_vav_64f_3x1_L", arguments), nullPointerError);
    arguments["count"] = 3;
    EXPECT_EQ(scene.run("tenkDotProduct_vav_32f_3x1_L", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d, 2), (std::vector<float>{6, 6}));
}

TEST_F(ModelReductions, crossProduct)
{
    scene.put<float>(a, {1, 0, 0});
    scene.put<float>(b, {0, 1, 0});
    EXPECT_EQ(scene.run("tenkCrossProduct_vv_32f_3x1", {{"src1", a}, {"src2", b}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<float>(d, 3), (std::vector<float>{0, 0, 1}));
    EXPECT_EQ(scene.run("tenkCrossProduct_vv_32f_3x1", {{"src1", a}, {"src2", b}, {"dst", a}}), ok);
    EXPECT_EQ(scene.get<float>(a, 3), (std::vector<float>{0, 0, 1}));
}

TEST_F(ModelReductions, normOfZeros)
{
    EXPECT_EQ(scene.run("tenkL2Norm_v_32f_3x1", {{"src", a}, {"dst", d}}), ok);
    EXPECT_TRUE(std::isnan(scene.get<float>(d)));
    EXPECT_EQ(scene.run("tenkL2Norm_v_32f_3x1_S2", {{"src", a}, {"srcStride2", 4}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    EXPECT_EQ(scene.run("tenkL2Norm_v_64f_3x1", {{"src", a}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<double>(d), 0.0);
    EXPECT_EQ(scene.run("tenkL2Norm_v_32f", {{"src", a}, {"dst", d}, {"length", 3}}), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
}

TEST_F(ModelReductions, normByTheEstimateIsClose)
{
    scene.put<float>(a, {3, 4, 0});
    EXPECT_EQ(scene.run("tenkL2Norm_v_32f_3x1", {{"src", a}, {"dst", d}}), ok);
    EXPECT_NEAR(scene.get<float>(d), 5.0f, 5e-6f);
    EXPECT_EQ(scene.run("tenkL2Norm_v_32f_3x1_S2", {{"src", a}, {"srcStride2", 4}, {"dst", d}}), ok);
    EXPECT_EQ(scene.get<float>(d), 5.0f);
}

TEST_F(ModelReductions, traceStartsFromZeroOrNot)
{
    scene.put<float>(a, std::vector<float>(9, -0.0f));
    EXPECT_EQ(scene.run("tenkTrace_m_32f", {{"src", a}, {"srcStride1", 4}, {"order", 1}, {"dst", d}}), ok);
    EXPECT_FALSE(std::signbit(scene.get<float>(d)));
    EXPECT_EQ(scene.run("tenkTrace_m_32f_3x3", {{"src", a}, {"srcStride1", 12}, {"dst", d}}), ok);
    EXPECT_TRUE(std::signbit(scene.get<float>(d)));
}

TEST_F(ModelReductions, traceLeavesThePartialSum)
{
    scene.put<float>(a, {5, 7});
    scene.put<Address>(tables, {a, 0, 0, 0, a + 4, 0, 0, 0, 0});
    const std::map<std::string, std::uint64_t> arguments = {{"src", tables}, {"dst", d}};
    EXPECT_EQ(scene.run("tenkTrace_m_32f_3x3_P", arguments), nullPointerError);
    EXPECT_EQ(scene.get<float>(d), 12.0f);
    // Of an array the first row is tested, all of it.
    EXPECT_EQ(scene.run("tenkTrace_ma_32f_3x3_P", {{"src", tables}, {"dst", d + 64}, {"count", 0}}),
              nullPointerError);
    scene.put<Address>(tables, {a, a, a, 0, a + 4, 0, 0, 0, a});
    EXPECT_EQ(scene.run("tenkTrace_ma_32f_3x3_P", {{"src", tables}, {"dst", d + 64}, {"count", 1}}), ok);
    EXPECT_EQ(scene.get<float>(d + 64), 17.0f);
}

TEST_F(ModelReductions, frobeniusNormOfZeros)
{
    EXPECT_EQ(scene.run("tenkFrobNorm_m_32f_3x3", {{"src", a}, {"srcStride1", 12}, {"dst", d}}), ok);
    EXPECT_TRUE(std::isnan(scene.get<float>(d)));
    EXPECT_EQ(
        scene.run("tenkFrobNorm_ma_32f_6x6", {{"src", a}, {"srcStride1", 24}, {"dst", d}, {"count", 1}}), ok);
    EXPECT_TRUE(std::isnan(scene.get<float>(d)));
    EXPECT_EQ(scene.run("tenkFrobNorm_m_32f_3x3_S2",
                        {{"src", a}, {"srcStride1", 12}, {"srcStride2", 4}, {"dst", d}}),
              ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    EXPECT_EQ(
        scene.run("tenkFrobNorm_ma_64f_4x4", {{"src", a}, {"srcStride1", 32}, {"dst", d}, {"count", 1}}), ok);
    EXPECT_EQ(scene.get<double>(d), 0.0);
}

TEST_F(ModelReductions, frobeniusNormOfOneElementIsExact)
{
    std::vector<double> m(25, 0.0);
    m[13] = -1;
    scene.put<double>(a, m);
    EXPECT_EQ(
        scene.run("tenkFrobNorm_ma_64f_5x5", {{"src", a}, {"srcStride1", 40}, {"dst", d}, {"count", 1}}), ok);
    EXPECT_EQ(scene.get<double>(d), 1.0);
}

TEST_F(ModelReductions, frobeniusNormByRowsOrColumns)
{
    scene.put<float>(a, {1, 4096, 1, 1, 1, 0});
    std::map<std::string, std::uint64_t> arguments = {
        {"src", a}, {"srcStride1", 8}, {"width", 2}, {"height", 3}, {"dst", d}};
    EXPECT_EQ(scene.run("tenkFrobNorm_m_32f", arguments), ok);
    EXPECT_EQ(scene.get<float>(d), 4096.0f); // every one is lost beside 2^24
    arguments["count"] = 1;
    EXPECT_EQ(scene.run("tenkFrobNorm_ma_32f", arguments), ok);
    EXPECT_EQ(scene.get<float>(d), 4096.0f + 0x1p-11f); // the root of 2^24 + 4
}

TEST_F(ModelReductions, frobeniusNormDoesNotTestTheRemainingLists)
{
    scene.put<Address>(tables, {0});
    const std::map<std::string, std::uint64_t> arguments = {{"src", tables}, {"dst", d}, {"count", 1}};
    EXPECT_THROW(scene.run("tenkFrobNorm_ma_32f_4x4_L", arguments), OutOfMemory);
    EXPECT_THROW(scene.run("tenkFrobNorm_ma_64f_3x3_L", arguments), OutOfMemory);
    EXPECT_EQ(scene.run("tenkFrobNorm_ma_32f_5x5_L", arguments), nullPointerError);
    scene.put<Address>(tables, {a, a, a, 0});
    EXPECT_EQ(scene.run("tenkFrobNorm_ma_32f_3x3_L", {{"src", tables}, {"dst", d}, {"count", 4}}),
              nullPointerError);
}

} // namespace

} // namespace model
