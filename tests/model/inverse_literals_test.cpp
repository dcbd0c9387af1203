// The model's determinants and inverses, against numbers worked out by hand, and inverses against what they
// invert.
#include "frame.h"
#include "scene.h"

#include <gtest/gtest.h>

#include <cmath>

namespace model {

namespace {

class ModelInverse : public testing::Test
{
protected:
    ModelInverse() : a(scene.at(256)), d(scene.at(8192)), buffer(scene.at(12288)) {}

    template <typename T>
    std::int32_t det(const std::string& name, std::uint32_t order)
    {
        std::map<std::string, std::uint64_t> arguments = {
            {"src", a}, {"srcStride1", order * sizeof(T)}, {"dst", d}};
        if (find(name)->general()) {
            arguments["order"] = order;
            arguments["buffer"] = buffer;
        }
        return scene.run(name, arguments);
    }

    template <typename T>
    std::int32_t invert(const std::string& name, std::uint32_t order)
    {
        const std::uint64_t row = order * sizeof(T);
        std::map<std::string, std::uint64_t> arguments = {
            {"src", a}, {"srcStride1", row}, {"dst", d}, {"dstStride1", row}};
        if (find(name)->general()) {
            arguments["order"] = order;
            arguments["buffer"] = buffer;
        } else if (name.ends_with("_S2")) {
            arguments["srcStride2"] = sizeof(T);
            arguments["dstStride2"] = sizeof(T);
        }
        return scene.run(name, arguments);
    }

    // Inverts a matrix of small whole numbers and multiplies back.
    template <typename T>
    void expectInverse(const std::string& name, std::uint32_t order, const std::vector<T>& matrix)
    {
        scene.put<T>(a, matrix);
        ASSERT_EQ(invert<T>(name, order), ok) << name;
        const std::vector<T> inverse = scene.get<T>(d, order * order);
        for (std::uint32_t i = 0; i < order; ++i) {
            for (std::uint32_t j = 0; j < order; ++j) {
                double sum = 0;
                for (std::uint32_t l = 0; l < order; ++l)
                    sum += static_cast<double>(matrix[i * order + l]) *
                           static_cast<double>(inverse[l * order + j]);
                EXPECT_NEAR(sum, i == j ? 1 : 0, sizeof(T) == 4 ? 1e-4 : 1e-12)
                    << name << ' ' << i << ' ' << j;
            }
        }
    }

    Scene scene;
    const Address a;
    const Address d;
    const Address buffer;
};

TEST_F(ModelInverse, determinantOfGeneralOrder)
{
    scene.put<float>(a, {1e-8f});
    EXPECT_EQ(det<float>("tenkDet_m_32f", 1), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
    scene.put<float>(a, {0, 1, 1, 0});
    EXPECT_EQ(det<float>("tenkDet_m_32f", 2), ok);
    EXPECT_EQ(scene.get<float>(d), -1.0f);
    scene.put<float>(a, {0x1p-23f, 0, 0, 1});
    EXPECT_EQ(det<float>("tenkDet_m_32f", 2), ok);
    EXPECT_EQ(scene.get<float>(d), 0x1p-23f);
    scene.put<float>(a, {1, 0, 0, 0x1p-23f});
    EXPECT_EQ(det<float>("tenkDet_m_32f", 2), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
}

// The largest magnitude so far is kept in binary32, so that row 1 takes over although its number is the
// smaller.
TEST_F(ModelInverse, pivotSearchInBinary64)
{
    scene.put<double>(a, {1 + 0x1p-30, 2, 1 + 0x1p-40, 3});
    EXPECT_EQ(det<double>("tenkDet_m_64f", 2), ok);
    const long double f = static_cast<long double>(1 + 0x1p-30) * (1 / static_cast<long double>(1 + 0x1p-40));
    const double last = static_cast<double>(2 + -f * 3);
    EXPECT_EQ(scene.get<double>(d), (1 + 0x1p-40) * -last);
}

TEST_F(ModelInverse, determinantOfFixedOrderHasNoFloor)
{
    scene.put<float>(a, {1e-8f, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(det<float>("tenkDet_m_32f_3x3", 3), ok);
    EXPECT_EQ(scene.get<float>(d), 1e-8f);
    EXPECT_EQ(det<float>("tenkDet_m_32f", 3), ok);
    EXPECT_EQ(scene.get<float>(d), 0.0f);
}

TEST_F(ModelInverse, determinantsOfWholeNumbersAreExact)
{
    scene.put<double>(a, {2, 0, 0, 0, 1, 0, 3, 1, 0, 0, 0, 0, 1, 4, 0, 0, 2, 0, 5, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(det<double>("tenkDet_m_64f_5x5", 5), ok);
    EXPECT_EQ(scene.get<double>(d), 23.0); // (2 - 1) (3 x 5 + 8)
}

TEST_F(ModelInverse, minorsBelowTheFloorAreZero)
{
    scene.put<float>(a, {1, 1e-8f, 0, 1});
    EXPECT_EQ(invert<float>("tenkInvert_m_32f", 2), ok);
    EXPECT_EQ(scene.get<float>(d, 4), (std::vector<float>{1, 0, 0, 1}));
    scene.put<float>(a, {1e-8f, 0, 0, 0, 1e8f, 0, 0, 0, 1});
    EXPECT_EQ(invert<float>("tenkInvert_m_32f", 3), singularError);
    scene.put<double>(a, {4});
    EXPECT_EQ(invert<double>("tenkInvert_m_64f", 1), ok);
    EXPECT_EQ(scene.get<double>(d), 0.25);
}

TEST_F(ModelInverse, zeroMatrices)
{
    scene.put<double>(a, std::vector<double>(16, 0.0));
    scene.put<double>(d, std::vector<double>(16, 7.0));
    EXPECT_EQ(invert<double>("tenkInvert_m_64f_3x3", 3), ok);
    EXPECT_TRUE(std::isnan(scene.get<double>(d)));
    EXPECT_EQ(invert<double>("tenkInvert_m_64f_3x3_S2", 3), singularError);
    scene.put<double>(d, std::vector<double>(16, 7.0));
    EXPECT_EQ(invert<double>("tenkInvert_m_64f_4x4", 4), singularError);
    EXPECT_EQ(scene.get<double>(d, 16), std::vector<double>(16, 7.0));
    EXPECT_EQ(invert<double>("tenkInvert_m_64f_4x4_S2", 4), singularError);
    EXPECT_EQ(scene.get<double>(d, 16), std::vector<double>(16, 0.0));
}

TEST_F(ModelInverse, smallDeterminants)
{
    scene.put<float>(a, {1e-9f, 0, 0, 0, 1, 0, 0, 0, 1});
    EXPECT_EQ(invert<float>("tenkInvert_m_32f_3x3", 3), ok);
    EXPECT_NEAR(scene.get<float>(d) * 1e-9f, 1, 1e-5);
    EXPECT_EQ(invert<float>("tenkInvert_m_32f_3x3_S2", 3), singularError);
}

TEST_F(ModelInverse, columnFiveIsNoCandidate)
{
    std::vector<float> m(36, 0.0f);
    for (const std::size_t place : {0, 7, 17, 21, 28, 32}) // rows 2 and 5 exchanged
        m[place] = 1;
    scene.put<float>(a, m);
    EXPECT_EQ(invert<float>("tenkInvert_m_32f_6x6_S2", 6), singularError);
}

TEST_F(ModelInverse, lostColumn)
{
    scene.put<double>(d, std::vector<double>(25, 7.0));
    scene.put<double>(a, {1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0});
    EXPECT_EQ(invert<double>("tenkInvert_m_64f_5x5", 5), ok);
    EXPECT_TRUE(std::isnan(scene.get<double>(d + 40)));
    EXPECT_EQ(scene.get<double>(d + 160, 5), std::vector<double>(5, 7.0)); // the row of the lost column
}

TEST_F(ModelInverse, membersInvert)
{
    // A leading zero, and a leading block that is singular.
    const std::vector<std::vector<double>> matrices = {
        {1, 2, 3, 0, 1, 4, 5, 6, 0},
        {2, 1, 0, 1, 1, 3, 1, 0, 0, 1, 4, 1, 1, 0, 1, 5},
        {0, 1, 0, 3, 1, 0, 1, 2, 1, 0, 2, 0, 1, 1, 1, 1, 4, 0, 1, 0, 3, 0, 1, 0, 5},
        {0, 1, 0, 3, 1, 2, 0, 1, 2, 1, 0, 1, 2, 0, 1, 1, 1, 0,
         1, 4, 0, 1, 0, 2, 3, 0, 1, 0, 5, 1, 1, 2, 0, 1, 3, 7},
    };
    for (std::uint32_t order = 3; order <= 6; ++order) {
        const std::vector<double>& doubles = matrices[order - 3];
        const std::vector<float> floats(doubles.begin(), doubles.end());
        const std::string size = "_" + std::to_string(order) + "x" + std::to_string(order);
        for (const std::string& member : {std::string(), size, size + "_S2"}) {
            expectInverse<float>("tenkInvert_m_32f" + member, order, floats);
            expectInverse<double>("tenkInvert_m_64f" + member, order, doubles);
        }
    }
}

} // namespace

} // namespace model
