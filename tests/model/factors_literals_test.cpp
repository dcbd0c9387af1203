// The model's factorisations and solvers, against numbers worked out by hand.
#include "frame.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace model {

namespace {

class ModelFactors : public testing::Test
{
protected:
    ModelFactors()
        : a(scene.at(256)),
          b(scene.at(4096)),
          d(scene.at(8192)),
          rows(scene.at(12288)),
          tables(scene.at(14336))
    {
    }

    std::int32_t lu(const char* name, std::uint32_t order, std::uint32_t rowStep)
    {
        return scene.run(name, {{"src", a},
                                {"srcStride1", rowStep},
                                {"rowIndex", rows},
                                {"dst", d},
                                {"dstStride1", rowStep},
                                {"order", order}});
    }

    std::int32_t qr(const char* name, std::uint32_t width, std::uint32_t height, std::uint32_t rowStep)
    {
        return scene.run(name, {{"src", a},
                                {"srcStride1", rowStep},
                                {"buffer", rows},
                                {"dst", d},
                                {"dstStride1", rowStep},
                                {"width", width},
                                {"height", height}});
    }

    Scene scene;
    const Address a;
    const Address b;
    const Address d;
    const Address rows;
    const Address tables;
};

TEST_F(ModelFactors, luKeepsTheRowsWhereTheyAre)
{
    scene.put<float>(a, {1, 2, 4, 4});
    EXPECT_EQ(lu("tenkLUDecomp_m_32f", 2, 8), ok);
    EXPECT_EQ(scene.get<float>(d, 4), (std::vector<float>{0.25f, 1, 4, 4}));
    EXPECT_EQ(scene.get<std::uint32_t>(rows, 2), (std::vector<std::uint32_t>{1, 0}));
}

TEST_F(ModelFactors, luFloorIsTheSameInBothTypes)
{
    scene.put<double>(a, {1, 0, 0, -0x1p-23});
    EXPECT_EQ(lu("tenkLUDecomp_m_64f", 2, 16), ok);
    scene.put<double>(a, {1, 0, 0, 1e-8});
    EXPECT_EQ(lu("tenkLUDecomp_m_64f", 2, 16), singularError);
    EXPECT_EQ(scene.get<double>(d, 4), (std::vector<double>{1, 0, 0, 1e-8}));
    scene.put<float>(a, {std::nextafter(0x1p-23f, 0.0f)});
    EXPECT_EQ(lu("tenkLUDecomp_m_32f", 1, 4), singularError);
}

TEST_F(ModelFactors, luMultipliesByTheReciprocalOrDivides)
{
    // 5/49 = 0x1.a1f58ep-4 as a quotient; as 5 times the rounded 1/49 it comes out one unit lower.
    scene.put<float>(a, {49, 0, 0, 5, 1, 0, 0, 0, 1});
    EXPECT_EQ(scene.run("tenkLUDecomp_m_32f_3x3",
                        {{"src", a}, {"srcStride1", 12}, {"rowIndex", rows}, {"dst", d}, {"dstStride1", 12}}),
              ok);
    const float reciprocal = 1.0f / 49.0f;
    EXPECT_EQ(scene.get<float>(d + 12), 5 * reciprocal);
    scene.put<Address>(tables, {a, d});
    EXPECT_EQ(scene.run("tenkLUDecomp_ma_32f_3x3_L", {{"src", tables},
                                                      {"srcStride1", 12},
                                                      {"rowIndex", rows},
                                                      {"dst", tables + sizeof(Address)},
                                                      {"dstStride1", 12},
                                                      {"count", 1}}),
              ok);
    EXPECT_EQ(scene.get<float>(d + 12), 5.0f / 49.0f);
    EXPECT_NE(5.0f / 49.0f, 5 * reciprocal);
}

TEST_F(ModelFactors, luOfAnArrayTestsABesideElement)
{
    scene.put<float>(a, {1, 0, 0, 1, 1, 0, 0, 1});
    const std::map<std::string, std::uint64_t> arguments = {
        {"src", a},         {"srcStride0", 16}, {"srcStride1", 8}, {"rowIndex", rows}, {"dst", d},
        {"dstStride0", 16}, {"dstStride1", 8},  {"order", 2},      {"count", 2}};
    // Object 1 looks at its row 1, column 1 + 2, which is element 9 of the whole.
    scene.put<float>(d + 36, {0x1p-24f});
    EXPECT_EQ(scene.run("tenkLUDecomp_ma_32f", arguments), singularError);
    scene.put<float>(d + 36, {0x1p-23f});
    EXPECT_EQ(scene.run("tenkLUDecomp_ma_32f", arguments), ok);
    EXPECT_EQ(scene.get<std::uint32_t>(rows, 4), (std::vector<std::uint32_t>{0, 1, 0, 1}));
}

TEST_F(ModelFactors, luSolves)
{
    scene.put<float>(a, {0.25f, 1, 4, 4}); // the factors of rows (1, 2), (4, 4)
    scene.put<std::uint32_t>(rows, {1, 0});
    scene.put<float>(b, {5, 12});
    EXPECT_EQ(
        scene.run(
            "tenkLUBackSubst_mv_32f",
            {{"src1", a}, {"src1Stride1", 8}, {"rowIndex", rows}, {"src2", b}, {"dst", d}, {"order", 2}}),
        ok);
    EXPECT_EQ(scene.get<float>(d, 2), (std::vector<float>{1, 2}));
}

TEST_F(ModelFactors, luListMemberStepsByFour)
{
    scene.put<double>(a, {4});       // element (0, 0)
    scene.put<double>(a + 104, {2}); // element (1, 1): row step 100, column step 4
    scene.put<std::uint32_t>(rows, {0, 1});
    scene.put<double>(b, {8, 6});
    scene.put<Address>(tables, {b, d});
    EXPECT_EQ(scene.run("tenkLUBackSubst_mva_64f_L", {{"src1", a},
                                                      {"src1Stride0", 77},
                                                      {"src1Stride1", 100},
                                                      {"rowIndex", rows},
                                                      {"src2", tables},
                                                      {"dst", tables + sizeof(Address)},
                                                      {"order", 2},
                                                      {"count", 1}}),
              ok);
    // Element (0, 1) lies at a + 4: the upper half of 4.0 below zeros, a denormal. Element (1, 0) is the
    // lower half of 2.0, which is zero.
    EXPECT_EQ(scene.get<double>(d, 2), (std::vector<double>{2, 3}));
}

TEST_F(ModelFactors, qrOfTheIdentity)
{
    scene.put<double>(a, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(qr("tenkQRDecomp_m_64f", 3, 3, 24), ok);
    EXPECT_EQ(scene.get<double>(d, 9), (std::vector<double>{-1, 0, 0, 0, -1, 0, 0, 0, 1}));
}

TEST_F(ModelFactors, qrSigns)
{
    scene.put<float>(a, {0, 3, 3, 0});
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 2, 2, 8), ok);
    EXPECT_EQ(scene.get<float>(d), 3.0f);
    EXPECT_EQ(scene.get<float>(d + 8), -1.0f);
    scene.put<float>(a, {-2, 1, 0, 1});
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 2, 2, 8), ok);
    EXPECT_EQ(scene.get<float>(d), 2.0f);
}

TEST_F(ModelFactors, qrFloorIsOnTheSumOfSquares)
{
    scene.put<float>(a, {0x1p-12f, 0x1p-12f});
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 1, 2, 4), ok);
    scene.put<float>(a, {0x1p-12f, 0x1.ffp-13f});
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 1, 2, 4), singularError);
    EXPECT_FALSE(scene.leftOpen(rows));
    scene.put<double>(a, {0x1p-12, std::nextafter(0x1p-12, 0.0)});
    EXPECT_EQ(qr("tenkQRDecomp_m_64f", 1, 2, 8), singularError);
}

TEST_F(ModelFactors, qrOfMoreColumnsThanRowsIsSingular)
{
    scene.put<float>(a, {3, 1, 2, 4, 5, 6});
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 3, 2, 12), singularError);
    EXPECT_NEAR(scene.get<float>(d), -5, 1e-5);
    EXPECT_TRUE(scene.leftOpen(rows));
}

TEST_F(ModelFactors, qrOfOneElementIsACopy)
{
    EXPECT_EQ(qr("tenkQRDecomp_m_32f", 1, 1, 4), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    EXPECT_FALSE(scene.leftOpen(rows));
}

TEST_F(ModelFactors, qrSolvesWhatItFactored)
{
    // Four rows, three columns, and b = A (1, 2, 3) exactly.
    scene.put<double>(a, {2, 1, 0, 1, 3, 1, 0, 1, 4, 1, 1, 1});
    EXPECT_EQ(qr("tenkQRDecomp_m_64f", 3, 4, 24), ok);
    scene.put<double>(b, {4, 10, 14, 6});
    EXPECT_EQ(scene.run("tenkQRBackSubst_mv_64f", {{"src1", d},
                                                   {"src1Stride1", 24},
                                                   {"buffer", rows},
                                                   {"src2", b},
                                                   {"dst", b + 64},
                                                   {"width", 3},
                                                   {"height", 4}}),
              ok);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(scene.get<double>(b + 64 + 8 * i), static_cast<double>(i + 1), 1e-14);
}

TEST_F(ModelFactors, qrListMemberStepsByOneFromARowAbove)
{
    scene.put<double>(b, {6});
    scene.put<Address>(tables, {a, b, d});
    scene.put<double>(a - 16 + 1, {3});
    EXPECT_EQ(scene.run("tenkQRBackSubst_mava_64f_L", {{"src1", tables},
                                                       {"src1Stride1", 16},
                                                       {"buffer", rows},
                                                       {"src2", tables + sizeof(Address)},
                                                       {"dst", tables + 2 * sizeof(Address)},
                                                       {"width", 1},
                                                       {"height", 1},
                                                       {"count", 1}}),
              ok);
    EXPECT_EQ(scene.get<double>(d), 2.0);
}

} // namespace

} // namespace model
