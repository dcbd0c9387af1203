// The model's members of the products that stand apart, against numbers worked out by hand.
#include "frame.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace model {

namespace {

using Floats = std::vector<float>;
using Doubles = std::vector<double>;
using Arguments = std::map<std::string, std::uint64_t>;

class ModelProducts : public testing::Test
{
protected:
    ModelProducts() : a(scene.at(256)), b(scene.at(4096)), d(scene.at(8192)), tables(scene.at(12288)) {}

    // A table of `count` neighbours.
    void putTable(Address table, std::size_t count, Address first)
    {
        std::vector<Address> entries;
        for (std::size_t e = 0; e < count; ++e)
            entries.push_back(first + 4 * e);
        scene.put<Address>(table, entries);
    }

    // The sum of a row of `terms`, by a fixed member that takes row 0 or another from a matrix of equal rows;
    // the vector is all ones.
    float row(const std::string& name, const Floats& terms, unsigned i)
    {
        const auto n = static_cast<unsigned>(terms.size());
        const bool transposed = name.find("mT") != std::string::npos;
        Floats matrix(36);
        for (unsigned r = 0; r < n; ++r) {
            for (unsigned p = 0; p < n; ++p)
                matrix[transposed ? p * n + r : r * n + p] = terms[p];
        }
        scene.put<float>(a, matrix);
        scene.put<float>(b, Floats(n, 1.0f));
        const std::string text = name + "_" + std::to_string(n) + "x" + std::to_string(n);
        EXPECT_EQ(scene.run(text, {{"src1", a}, {"src1Stride1", 4 * n}, {"src2", b}, {"dst", d}}), ok);
        return scene.get<float>(d + 4 * i);
    }

    Scene scene;
    const Address a;
    const Address b;
    const Address d;
    const Address tables;
};

// Large numbers that cancel in pairs keep or lose the small ones, so each tree has a sum of its own.
TEST_F(ModelProducts, rowsAreSummedByTheirTrees)
{
    constexpr float big = 0x1p30f;
    EXPECT_EQ(row("tenkMul_mv_32f", {1, big, -big}, 0), 0.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, 1, -big, 2}, 0), 3.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, -big, 1, 2}, 0), 0.0f);
    EXPECT_EQ(row("tenkMul_mTv_32f", {big, -big, 1, 2}, 0), 3.0f);
    EXPECT_EQ(row("tenkMul_mTv_32f", {big, 1, -big, 2}, 0), 0.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, -big, 1, 2, 4}, 3), 7.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, -big, 1, 2, 4}, 4), 0.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, 1, -big, 2, 4}, 4), 7.0f);
    EXPECT_EQ(row("tenkMul_mTv_32f", {big, -big, 1, 2, 4}, 4), 7.0f);
    EXPECT_EQ(row("tenkMul_mv_32f", {big, 1, -big, 2, 4, 8}, 5), 15.0f);
    EXPECT_EQ(row("tenkMul_mTv_32f", {big, -big, 1, 2, 4, 8}, 5), 15.0f);
    EXPECT_EQ(row("tenkMul_mTv_32f", {big, 1, -big, 2, 4, 8}, 5), 12.0f);
}

TEST_F(ModelProducts, transposedByVectorTestsOneShapeAndLoopsOverAnother)
{
    scene.put<float>(a, {1, 2, 3, 4, 5, 6}); // as used 3 rows of 2, stored 2 rows of 3
    scene.put<float>(b, {1, 10, 100});
    const Arguments arguments = {{"src1", a}, {"src1Stride1", 12}, {"src1Width", 2}, {"src1Height", 3},
                                 {"src2", b}, {"src2Length", 3},   {"dst", d}};
    EXPECT_EQ(scene.run("tenkMul_mTv_32f", arguments), ok);
    EXPECT_EQ(scene.get<float>(d, 4), (Floats{41, 52, 63, 0}));
    EXPECT_EQ(scene.run("tenkMul_mv_32f", arguments), sizeError);
}

TEST_F(ModelProducts, plainLoopsSumInTheDestination)
{
    scene.put<float>(a, {1, 2, 3, 4});
    scene.put<float>(b, {1, 10});
    const Arguments arguments = {{"src1", a}, {"src1Stride1", 8}, {"src1Width", 2}, {"src1Height", 2},
                                 {"src2", b}, {"src2Length", 2},  {"dst", b}};
    EXPECT_EQ(scene.run("tenkMul_mv_32f", arguments), ok);
    // 0 + 1 * 0 = 0, 0 + 2 * 10 = 20; then 0 + 3 * 20 = 60, 60 + 4 * 60 = 300
    EXPECT_EQ(scene.get<float>(b, 2), (Floats{20, 300}));
}

TEST_F(ModelProducts, kernelsReadTheVectorFirst)
{
    scene.put<float>(a, {1, 0, 0, 0, 2, 0, 0, 0, 3});
    scene.put<float>(b, {1, 10, 100});
    EXPECT_EQ(
        scene.run("tenkMul_mv_32f_3x3", {{"src1", a}, {"src1Stride1", 12}, {"src2", b}, {"dst", b + 4}}), ok);
    EXPECT_EQ(scene.get<float>(b, 4), (Floats{1, 1, 20, 300}));
}

TEST_F(ModelProducts, tablesAreTestedOnTheWayOfSingleObjects)
{
    scene.put<float>(a, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    scene.put<float>(b, {1, 10, 100});
    putTable(tables, 9, a);
    putTable(tables + 128, 3, b);
    putTable(tables + 256, 3, d);
    scene.put<Address>(tables + 5 * sizeof(Address), {0}); // at (1, 2) as tested, at (2, 1) as used
    const Arguments arguments = {{"src1", tables}, {"src2", tables + 128}, {"dst", tables + 256}};
    EXPECT_EQ(scene.run("tenkMul_mTv_32f_3x3_P", arguments), nullPointerError);
    // Column 0 is whole; of column 1 two terms were added.
    EXPECT_EQ(scene.get<float>(d, 3), (Floats{1 + 40 + 700, 2 + 50, 0}));
}

TEST_F(ModelProducts, startsOfTheSum)
{
    scene.put<float>(a, Floats(9, -0.0f));
    scene.put<float>(b, Floats(9, 1.0f));
    const Arguments fixed = {{"src1", a},         {"src1Stride1", 12}, {"src2", b},
                             {"src2Stride1", 12}, {"dst", d},          {"dstStride1", 12}};
    EXPECT_EQ(scene.run("tenkMul_mm_32f_3x3", fixed), ok);
    EXPECT_TRUE(std::signbit(scene.get<float>(d)));
    Arguments strided = fixed;
    for (const char* operand : {"src1Stride2", "src2Stride2", "dstStride2"})
        strided[operand] = 4;
    EXPECT_EQ(scene.run("tenkMul_mm_32f_3x3_S2", strided), ok);
    EXPECT_FALSE(std::signbit(scene.get<float>(d)));
    strided["count"] = 1;
    EXPECT_EQ(scene.run("tenkMul_mam_32f_3x3_S2", strided), ok);
    EXPECT_TRUE(std::signbit(scene.get<float>(d)));
}

TEST_F(ModelProducts, pairsAreSummedInThreeMembers)
{
    constexpr float big = 0x1p30f;
    scene.put<float>(a, {1, big, -big, 2, 4, 8});
    scene.put<float>(b, Floats(36, 1.0f));
    const Arguments arguments = {{"src1", a},         {"src1Stride2", 4}, {"src2", b},
                                 {"src2Stride1", 24}, {"src2Stride2", 4}, {"dst", d},
                                 {"dstStride1", 24},  {"dstStride2", 4}};
    EXPECT_EQ(scene.run("tenkMul_mm_32f_6x6_S2", arguments), ok);
    EXPECT_EQ(scene.get<float>(d), 12.0f);
    Arguments transposed = arguments; // the first row in the first column, and so on
    transposed["src1Stride1"] = 4;
    transposed["src1Stride2"] = 0;
    EXPECT_EQ(scene.run("tenkMul_mTm_32f_6x6_S2", transposed), ok);
    EXPECT_EQ(scene.get<float>(d), 14.0f);
}

TEST_F(ModelProducts, outerSizesAreComparedInTwoCodes)
{
    scene.putRising<float>(a, 12, 1);
    scene.put<float>(b, Floats(12, 1.0f));
    Arguments arguments = {{"src1", a}, {"src1Stride1", 8},  {"src1Width", 2},   {"src1Height", 3},
                           {"src2", b}, {"src2Stride1", 12}, {"src2Width", 3},   {"src2Height", 4},
                           {"dst", d},  {"dstStride1", 12},  {"dstStride0", 36}, {"count", 1}};
    EXPECT_EQ(scene.run("tenkMul_mma_32f", arguments), ok);
    // Four terms from rows of two: 1 + 2 + 3 + 4, 3 + 4 + 5 + 6, 5 + 6 + 7 + 8
    EXPECT_EQ(scene.get<float>(d, 9), (Floats{10, 10, 10, 18, 18, 18, 26, 26, 26}));
    EXPECT_EQ(scene.run("tenkMul_mam_32f", arguments), sizeError);
    arguments["src1Width"] = 4;
    EXPECT_EQ(scene.run("tenkMul_mam_32f", arguments), ok);
    arguments["src2Width"] = 0;
    EXPECT_EQ(scene.run("tenkMul_mam_32f", arguments), ok);
    EXPECT_EQ(scene.run("tenkMul_maTm_32f", arguments), sizeError);
}

TEST_F(ModelProducts, destinationTableIsTestedByTheInnerSizes)
{
    putTable(tables, 12, a);
    putTable(tables + 128, 12, b);
    putTable(tables + 256, 12, d);
    Arguments arguments = {{"src1", tables}, {"src1Width", 3},  {"src1Height", 2},     {"src2", tables + 128},
                           {"src2Width", 4}, {"src2Height", 3}, {"dst", tables + 256}, {"count", 1}};
    scene.put<Address>(tables + 256 + 8 * sizeof(Address), {0});
    EXPECT_EQ(scene.run("tenkMul_mam_32f_P", arguments), nullPointerError);
    scene.put<Address>(tables + 256 + 8 * sizeof(Address), {d});
    scene.put<Address>(tables + 256 + 9 * sizeof(Address), {0});
    EXPECT_EQ(scene.run("tenkMul_mam_32f_P", arguments), ok);
    // Nine of twelve: the null entry behind them is written through.
    arguments["src1Width"] = 2;
    arguments["src1Height"] = 3;
    EXPECT_THROW(scene.run("tenkMul_maTm_32f_P", arguments), OutOfMemory);
}

TEST_F(ModelProducts, alignedBatchesStayAtTheFirstObject)
{
    scene.put<double>(a, Doubles(16, 1.0));
    scene.put<double>(a + 128, Doubles(16, 2.0));
    scene.put<double>(b, Doubles(36, 1.0));
    Arguments arguments = {{"src1", a},        {"src1Stride0", 128}, {"src1Stride1", 32}, {"src2", b},
                           {"src2Stride0", 0}, {"src2Stride1", 32},  {"dst", d},          {"dstStride0", 128},
                           {"dstStride1", 32}, {"count", 2}};
    EXPECT_EQ(scene.run("tenkMul_mama_64f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<double>(d + 128), 4.0);
    arguments["dst"] = d + 8;
    EXPECT_EQ(scene.run("tenkMul_mama_64f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<double>(d + 8 + 128), 8.0);
    // The step over the second array takes no part in the choice.
    arguments["dst"] = d;
    arguments["src2Stride0"] = 8;
    EXPECT_EQ(scene.run("tenkMul_mama_64f_4x4", arguments), ok);
    EXPECT_EQ(scene.get<double>(d + 128), 4.0);
}

TEST_F(ModelProducts, inPlaceWhereItIsPromised)
{
    const Arguments overFirst = {{"src1", a},         {"src1Stride1", 12}, {"src2", b},
                                 {"src2Stride1", 12}, {"dst", a},          {"dstStride1", 12}};
    scene.putRising<float>(a, 9, 1);
    scene.put<float>(b, {0, 1, 0, 0, 0, 1, 1, 0, 0});
    EXPECT_EQ(scene.run("tenkMul_mm_32f_3x3", overFirst), ok);
    EXPECT_EQ(scene.get<float>(a, 9), (Floats{3, 1, 2, 6, 4, 5, 9, 7, 8}));
    EXPECT_THROW(scene.run("tenkMul_mTm_32f_3x3", overFirst), Undecided);
    EXPECT_THROW(scene.run("tenkMul_mm_32f_6x6", overFirst), Undecided);
    Arguments overSecond = overFirst;
    overSecond["src1Stride1"] = overSecond["src2Stride1"] = overSecond["dstStride1"] = 24;
    overSecond["dst"] = b;
    EXPECT_EQ(scene.run("tenkMul_mm_32f_6x6", overSecond), ok);
    EXPECT_THROW(scene.run("tenkMul_mmT_32f_6x6", overSecond), Undecided);
}

TEST_F(ModelProducts, updateAddsItsVectorLast)
{
    scene.put<float>(a, Floats(9, -0.0f));
    scene.put<float>(b, Floats(3, 1.0f));
    scene.put<float>(b + 64, Floats(3, -0.0f));
    Arguments arguments = {{"src1", a}, {"src1Stride1", 12}, {"src2", b}, {"src3", b + 64}, {"dst", d}};
    EXPECT_EQ(scene.run("tenkGaxpy_v_32f_3x3", arguments), ok);
    EXPECT_TRUE(std::signbit(scene.get<float>(d)));
    arguments["width"] = arguments["height"] = 3;
    EXPECT_EQ(scene.run("tenkGaxpy_v_32f", arguments), ok);
    EXPECT_FALSE(std::signbit(scene.get<float>(d)));
    // Were the vector the start of the sum, 1 would be lost.
    scene.put<float>(a, {0x1p30f, -0x1p30f, 0});
    scene.put<float>(b + 64, Floats(3, 1.0f));
    EXPECT_EQ(scene.run("tenkGaxpy_v_32f", arguments), ok);
    EXPECT_EQ(scene.get<float>(d), 1.0f);
}

} // namespace

} // namespace model
