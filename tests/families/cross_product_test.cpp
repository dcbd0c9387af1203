// CrossProduct: edge cases by hand, and all members against the formula.
#include "tenk.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sys/mman.h>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;

template <typename T>
void checkMember(const std::string& codes, const std::string& layout)
{
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
    const unsigned count = array1 || array2 ? 11 : 1;
    const std::string name = "tenkCrossProduct_" + codes + "_" + typeName<T>() + "_3x1" + layout;
    std::mt19937 random(1);
    std::uniform_real_distribution<T> number(-1, 1);
    auto a = vectors<T>(layout, array1, count, 3);
    auto b = vectors<T>(layout, array2, count, 3);
    auto dst = vectors<T>(layout, array1 || array2, count, 3);
    auto expected = vectors<T>(layout, array1 || array2, count, 3);
    a.fill([&] { return number(random); });
    b.fill([&] { return number(random); });
    Arguments sizes;
    if (count > 1)
        sizes.push_back(word(count));
    ASSERT_EQ(callByName(name, {a.arguments(), b.arguments(), dst.arguments(), sizes}), tenkOk) << name;
    for (unsigned k = 0; k < count; ++k) {
        expected.at(k, 0) = a.at(k, 1) * b.at(k, 2) - a.at(k, 2) * b.at(k, 1);
        expected.at(k, 1) = a.at(k, 2) * b.at(k, 0) - a.at(k, 0) * b.at(k, 2);
        expected.at(k, 2) = a.at(k, 0) * b.at(k, 1) - a.at(k, 1) * b.at(k, 0);
    }
    EXPECT_EQ(dst.memory(), expected.memory()) << name; // what is between the vectors, too
}

TEST(CrossProduct, FollowsTheFormulaInAllMembers)
{
    for (const char* codes : {"vv", "vav", "vva", "vava"})
        for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts) {
            checkMember<float>(codes, layout);
            checkMember<double>(codes, layout);
        }
}

TEST(CrossProduct, OfTheFirstTwoAxesIsTheThird)
{
    const float x[] = {1, 0, 0}, y[] = {0, 1, 0};
    Floats z(4, 9);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(x, y, z.data()), tenkOk);
    EXPECT_EQ(z, (Floats{0, 0, 1, 9}));
    const double dx[] = {1, 0, 0}, dy[] = {0, 1, 0};
    std::vector<double> dz(4, 9);
    EXPECT_EQ(tenkCrossProduct_vv_64f_3x1(dx, dy, dz.data()), tenkOk);
    EXPECT_EQ(dz, (std::vector<double>{0, 0, 1, 9}));
}

// `special` stands in place `at` of both vectors: component `at` is made of the two others.
template <typename T>
void checkWithItself(const std::string& codes, const std::string& layout, T special, unsigned at)
{
    const bool array1 = codes == "vav" || codes == "vava", array2 = codes == "vva" || codes == "vava";
    const unsigned count = array1 || array2 ? 5 : 1;
    const std::string name = "tenkCrossProduct_" + codes + "_" + typeName<T>() + "_3x1" + layout;
    auto a = vectors<T>(layout, array1, count, 3), b = vectors<T>(layout, array2, count, 3),
         dst = vectors<T>(layout, array1 || array2, count, 3);
    for (unsigned k = 0; k < count; ++k)
        for (unsigned j = 0; j < 3; ++j) {
            const T x = j == at ? special : j == 1 ? T(0.7) : T(-3.3);
            a.at(k, j) = b.at(k, j) = x;
        }
    Arguments sizes;
    if (array1 || array2)
        sizes.push_back(word(count));
    ASSERT_EQ(callByName(name, {a.arguments(), b.arguments(), dst.arguments(), sizes}), tenkOk) << name;
    for (unsigned k = 0; k < count; ++k)
        for (unsigned j = 0; j < 3; ++j) {
            if (j == at || std::isfinite(special)) {
                EXPECT_EQ(dst.at(k, j), T(0)) << name << j;
                EXPECT_FALSE(std::signbit(dst.at(k, j))) << name << j;
            } else {
                EXPECT_TRUE(std::isnan(dst.at(k, j))) << name << j << " with " << special << " at " << at;
            }
        }
}

TEST(CrossProduct, OfAVectorWithItselfIsExactlyZeroUnlessAnElementIsInfiniteOrNaN)
{
    for (const char* codes : {"vv", "vav", "vva", "vava"})
        for (const std::string& layout : codes == std::string("vv") ? singleLayouts : arrayLayouts)
            for (unsigned at = 0; at < 3; ++at)
                for (double special :
                     {0.1, std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                      std::numeric_limits<double>::quiet_NaN()}) {
                    checkWithItself<float>(codes, layout, static_cast<float>(special), at);
                    checkWithItself<double>(codes, layout, special, at);
                }
}

TEST(CrossProduct, OfFiveObjectsIsThatOfFiveSingleOnes)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<float> number(-1, 1);
    Floats a(15), b(15), batch(15), single(15);
    for (int i = 0; i < 15; ++i)
        a[std::size_t(i)] = number(random), b[std::size_t(i)] = number(random);
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1(a.data(), 12, b.data(), 12, batch.data(), 12, 5), tenkOk);
    for (std::size_t k = 0; k < 15; k += 3)
        EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(&a[k], &b[k], &single[k]), tenkOk);
    EXPECT_EQ(batch, single);
}

TEST(CrossProduct, MayOverwriteASource)
{
    const Floats product = {-3, 6, -3}; // (1, 2, 3) x (4, 5, 6)
    Floats a = {1, 2, 3}, b = {4, 5, 6};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(a.data(), b.data(), a.data()), tenkOk);
    EXPECT_EQ(a, product);
    a = {1, 2, 3};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(a.data(), b.data(), b.data()), tenkOk);
    EXPECT_EQ(b, product);
    b = {4, 5, 6};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_S2(a.data(), 4, b.data(), 4, a.data(), 4), tenkOk);
    EXPECT_EQ(a, product);
    std::vector<double> d = {1, 2, 3}, e = {4, 5, 6};
    EXPECT_EQ(tenkCrossProduct_vv_64f_3x1(d.data(), e.data(), e.data()), tenkOk);
    EXPECT_EQ(e, (std::vector<double>{-3, 6, -3}));
}

TEST(CrossProduct, BehindTablesWritesEachComponentBeforeTheNextIsComputed)
{
    Floats a = {1, 2, 3}, b = {4, 5, 6};
    float* const out[] = {&a[0], &a[1], &a[2]};
    const float* const left[] = {&a[0], &a[1], &a[2]};
    const float* const right[] = {&b[0], &b[1], &b[2]};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(left, 0, right, 0, out, 0), tenkOk);
    // 2 x 6 - 3 x 5 = -3; 3 x 4 - (-3) x 6 = 30; (-3) x 5 - 30 x 4 = -135
    EXPECT_EQ(a, (Floats{-3, 30, -135}));
}

TEST(CrossProduct, ReadsASingleOperandOnceBeforeTheFirstObject)
{
    for (const char* layout : {"", "_S2"}) {
        Floats a = {1, 2, 3, 1, 0, 0}, b = {4, 5, 6};
        Arguments array = {pointer(a.data()), word(12)}, single = {pointer(b.data())}, dst = array;
        Floats memory = {4, 5, 6, 0, 0, 0}; // the first result overwrites the single operand
        single = {pointer(memory.data())};
        dst = {pointer(memory.data()), word(12)};
        if (*layout)
            for (Arguments* x : {&array, &single, &dst})
                x->push_back(word(4));
        EXPECT_EQ(
            callByName(std::string("tenkCrossProduct_vav_32f_3x1") + layout, {array, single, dst, {word(2)}}),
            tenkOk);
        EXPECT_EQ(memory, (Floats{-3, 6, -3, 0, -6, 5})) << layout; // (1, 0, 0) x (4, 5, 6)
    }
    // Behind tables, too: the runs of the three elements of the result begin on the single operand.
    Floats a[3] = {{1, 1}, {2, 0}, {3, 0}}, memory[3] = {{4, 9}, {5, 9}, {6, 9}};
    const float* const left[] = {a[0].data(), a[1].data(), a[2].data()};
    float* const right[] = {memory[0].data(), memory[1].data(), memory[2].data()};
    EXPECT_EQ(tenkCrossProduct_vav_32f_3x1_P(left, 0, right, 0, right, 0, 2), tenkOk);
    EXPECT_EQ(memory[0], (Floats{-3, 0}));
    EXPECT_EQ(memory[1], (Floats{6, -6}));
    EXPECT_EQ(memory[2], (Floats{-3, 5}));
}

TEST(CrossProduct, ReadsASingleFirstOperandOnceBeforeTheFirstObject)
{
    const Floats b = {4, 5, 6, 1, 0, 0};
    Floats memory = {1, 2, 3, 0, 0, 0}; // the first result overwrites the single operand
    EXPECT_EQ(tenkCrossProduct_vva_32f_3x1(memory.data(), b.data(), 12, memory.data(), 12, 2), tenkOk);
    EXPECT_EQ(memory, (Floats{-3, 6, -3, 0, 3, -2})); // (1, 2, 3) x (1, 0, 0)
    memory = {1, 2, 3, 0, 0, 0};
    const float* const from[] = {&b[0], &b[3]};
    float* const to[] = {&memory[0], &memory[3]};
    EXPECT_EQ(tenkCrossProduct_vva_32f_3x1_L(memory.data(), from, 0, to, 0, 2), tenkOk);
    EXPECT_EQ(memory, (Floats{-3, 6, -3, 0, 3, -2}));
    std::vector<double> doubles = {1, 2, 3, 0, 0, 0};
    const std::vector<double> d = {4, 5, 6, 1, 0, 0};
    EXPECT_EQ(tenkCrossProduct_vva_64f_3x1_S2(doubles.data(), 8, d.data(), 24, 8, doubles.data(), 24, 8, 2),
              tenkOk);
    EXPECT_EQ(doubles, (std::vector<double>{-3, 6, -3, 0, 3, -2}));
}

TEST(CrossProduct, SeesAGapInAnyOperand)
{
    for (unsigned which = 0; which < 3; ++which) {
        const auto step = [&](unsigned operand) { return operand == which ? 4U : 3U; };
        Floats a(7), b(7), z(7, 9), expected(7, 9);
        for (std::size_t k = 0; k < 2; ++k) { // the first axis with the second is the third
            a[k * step(0)] = 1, b[k * step(1) + 1] = 1;
            expected[k * step(2)] = expected[k * step(2) + 1] = 0, expected[k * step(2) + 2] = 1;
        }
        EXPECT_EQ(tenkCrossProduct_vava_32f_3x1(a.data(), 4 * step(0), b.data(), 4 * step(1), z.data(),
                                                4 * step(2), 2),
                  tenkOk);
        EXPECT_EQ(z, expected) << "gap in operand " << which;
    }
}

TEST(CrossProduct, OfAnEmptyArrayReadsNothing)
{
    void* const unreadable = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(unreadable, MAP_FAILED);
    float* const p = static_cast<float*>(unreadable);
    EXPECT_EQ(tenkCrossProduct_vav_32f_3x1(p, 12, p, p, 12, 0), tenkOk);
    EXPECT_EQ(tenkCrossProduct_vva_32f_3x1(p, p, 12, p, 12, 0), tenkOk);
    munmap(unreadable, 4096);
}

// Three tables are tested index by index, src1, src2, dst: behind a null entry of one nothing is read of the
// others.
TEST(CrossProduct, TestsTablesIndexByIndex)
{
    float x[3] = {};
    const float* broken[] = {&x[0], nullptr, &x[2]};
    char* const memory =
        static_cast<char*>(mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(static_cast<void*>(memory), MAP_FAILED);
    mprotect(memory + 4096, 4096, PROT_NONE);
    float** const shorter = reinterpret_cast<float**>(memory + 4096) - 2; // two entries up to the end
    shorter[0] = shorter[1] = x;
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(broken, 0, shorter, 0, shorter, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(shorter, 0, broken, 0, shorter, 0), tenkNullPointerError);
    shorter[1] = nullptr;
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(shorter, 0, shorter, 0, shorter, 0), tenkNullPointerError);
    munmap(memory, 8192);
}

// Objects 12 bytes apart; the result of object k goes over object k + 1 of the first source.
TEST(CrossProduct, OfTwo32fArraysReadsFourObjectsBeforeItWrites)
{
    Floats a = {1, 0, 0, 2, 0, 0, 3, 0, 0, 4, 0, 0, 9, 9, 9};
    const Floats b = {0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0};
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1(a.data(), 12, b.data(), 12, a.data() + 3, 12, 4), tenkOk);
    EXPECT_EQ(a, (Floats{1, 0, 0, 0, 0, 1, 0, 0, 2, 0, 0, 3, 0, 0, 4}));
    // 64f goes one by one: (1, 0, 0) x y = z, z x y = -x, -x x y = -z, -z x y = x.
    std::vector<double> c = {1, 0, 0, 2, 0, 0, 3, 0, 0, 4, 0, 0, 9, 9, 9};
    const std::vector<double> d = {0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0};
    EXPECT_EQ(tenkCrossProduct_vava_64f_3x1(c.data(), 24, d.data(), 24, c.data() + 3, 24, 4), tenkOk);
    EXPECT_EQ(c, (std::vector<double>{1, 0, 0, 0, 0, 1, -1, 0, 0, 0, 0, -1, 1, 0, 0}));
}

TEST(CrossProduct, TestsPointersThenTablesThenCount)
{
    float x[3] = {1, 2, 3}, y[3] = {9, 9, 9};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(nullptr, x, y), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(x, nullptr, y), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1(x, x, nullptr), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1(x, 0, x, 0, nullptr, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1(x, 0, x, 0, y, 0, 0), tenkOk);
    const float* from[] = {x, x, x};
    const float* broken[] = {x, x, nullptr};
    float* to[] = {y, y, y};
    float* brokenTo[] = {y, y, nullptr};
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(broken, 0, from, 0, to, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(from, 0, broken, 0, to, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vv_32f_3x1_P(from, 0, from, 0, brokenTo, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1_P(from, 0, from, 0, brokenTo, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCrossProduct_vava_32f_3x1_PS2(broken, 0, 0, from, 0, 0, to, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(y[0], 9.0F);
}

TEST(CrossProduct, OfListsTestsEntriesObjectByObject)
{
    for (int which = 0; which < 3; ++which)
        for (const char* layout : {"_L", "_LS2"}) {
            auto a = vectors<float>(layout, true, 8, 3), b = vectors<float>(layout, true, 8, 3),
                 dst = vectors<float>(layout, true, 8, 3);
            a.fill([] { return 1.0F; }), b.fill([] { return 1.0F; }), dst.fill([] { return 9.0F; });
            (which == 0 ? a : which == 1 ? b : dst).pointers()[6] = nullptr;
            EXPECT_EQ(callByName(std::string("tenkCrossProduct_vava_32f_3x1") + layout,
                                 {a.arguments(), b.arguments(), dst.arguments(), {word(8)}}),
                      tenkNullPointerError);
            EXPECT_EQ(dst.at(6, 0), 9.0F);
            EXPECT_EQ(dst.at(5, 2), 0.0F);
            EXPECT_EQ(dst.at(7, 0), 9.0F);
        }
}

} // namespace
