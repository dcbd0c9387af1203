// Mul by a constant: edge cases by hand.
#include "elementwise_cases.h"

#include <numeric>

namespace {

using namespace elementwise;

template <typename T>
std::vector<T> counting(std::size_t n)
{
    std::vector<T> x(n);
    std::iota(x.begin(), x.end(), T(1));
    return x;
}

const std::vector<std::string> codes = {"vc", "vac", "mc", "mTc", "mac", "maTc"};

TEST(MulByAConstant, IsTheFormulaInAllLayoutsAndSizes)
{
    expectFormulaEverywhere(
        "Mul", codes, [](float a, float b) { return a * b; }, [](double a, double b) { return a * b; }, {});
}
TEST(MulByAConstant, TestsListsObjectByObjectInAllSizes)
{
    testsListsObjectByObjectEverywhere("Mul", codes, {});
}

// dst = 2 src at every element offset around src, and at odd addresses, against a loop by ascending index.
template <typename T>
void expectAscendingLoop()
{
    for (const std::size_t length : {1U, 4U, 7U, 8U, 9U, 16U, 33U})
        for (std::size_t offset = 0; offset <= 40 * sizeof(T); offset += length % 2 ? sizeof(T) : 1) {
            const bool odd = offset % sizeof(T) != 0;
            std::vector<T> memory(128, T(1)), expected;
            for (std::size_t j = 0; !odd && j < 128; ++j)
                memory[j] = T(1) / T(j + 3);
            expected = memory;
            const auto src = [](std::vector<T>& m) { return reinterpret_cast<char*>(m.data() + 20); };
            const auto dst = [&](std::vector<T>& m) { return reinterpret_cast<char*>(m.data()) + offset; };
            for (std::size_t j = 0; j < length; ++j) {
                T x;
                std::memcpy(&x, src(expected) + j * sizeof(T), sizeof(T));
                x = x * T(2);
                std::memcpy(dst(expected) + j * sizeof(T), &x, sizeof(T));
            }
            EXPECT_EQ(status("tenkMul_vc_" + typeName<T>(), src(memory), T(2), dst(memory), length), tenkOk);
            EXPECT_EQ(std::memcmp(memory.data(), expected.data(), 128 * sizeof(T)), 0)
                << length << " at " << offset;
        }
}

TEST(MulByAConstant, OfOverlappingVectorsIsTheAscendingLoop32f)
{
    expectAscendingLoop<float>();
}
TEST(MulByAConstant, OfOverlappingVectorsIsTheAscendingLoop64f)
{
    expectAscendingLoop<double>();
}

// In place, an element that is multiplied twice shows.
TEST(MulByAConstant, OfNineElementsBehindAnAlignedAddressTakesEachElementOnce)
{
    AlignedRun<float> x(16, 1);
    EXPECT_EQ(tenkMul_vc_32f(x.begin() + 1, 3, x.begin() + 1, 9), tenkOk);
    std::vector<float> expected(16, 1);
    std::fill(expected.begin() + 1, expected.begin() + 10, 3.F);
    EXPECT_EQ(x.all(), expected);
    AlignedRun<float> y(16, 2);
    EXPECT_EQ(tenkMul_vc_32f(x.begin() + 3, 5, y.begin() + 1, 9), tenkOk);
    EXPECT_EQ(y.all(), (std::vector<float>{2, 15, 15, 15, 15, 15, 15, 15, 5, 5, 2, 2, 2, 2, 2, 2}));
}

TEST(MulByAConstant, WorksInPlaceUnlessItTransposes)
{
    worksInPlaceEverywhere(
        "Mul", codes, [](float a, float b) { return a * b; }, [](double a, double b) { return a * b; }, {});
    std::vector<float> x = {1, -2, 3, 4, 5, 6, 7, 8, 9};
    EXPECT_EQ(tenkMul_mac_32f_3x3(x.data(), 36, 12, 3, x.data(), 36, 12, 1), tenkOk);
    EXPECT_EQ(x, (std::vector<float>{3, -6, 9, 12, 15, 18, 21, 24, 27}));
}

// In place, a transposing loop reads what it has written above the diagonal when it comes to what is below.
template <typename T>
void expectTransposedInPlace(unsigned n, const std::string& size, const std::string& layout, bool exact)
{
    const unsigned element = sizeof(T), stride1 = n * element, stride0 = n * stride1;
    const bool list = layout == "_L" || layout == "_LS2", steps = layout == "_S2" || layout == "_LS2";
    for (const bool batch : {false, true}) {
        if (list && !batch)
            continue;
        auto x = counting<T>(2 * n * n), expected = x;
        const unsigned count = batch ? 2 : 1;
        for (unsigned k = 0; k < count; ++k)
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j) {
                    const std::size_t at = k * n * n, to = at + i * n + j, from = at + j * n + i;
                    expected[to] = exact ? static_cast<T>(2 * from + 2) : 2 * expected[from];
                }
        T* objects[] = {x.data(), x.data() + n * n};
        std::vector<Argument> operand;
        operand.push_back(list ? argument(objects) : argument(x.data()));
        if (batch)
            operand.push_back(argument(list ? 0 : stride0));
        operand.push_back(argument(stride1));
        if (steps)
            operand.push_back(argument(element));
        std::vector<Argument> arguments = operand;
        arguments.push_back(argument(T(2)));
        arguments.insert(arguments.end(), operand.begin(), operand.end());
        if (size.empty()) {
            arguments.push_back(argument(n));
            arguments.push_back(argument(n));
        }
        if (batch)
            arguments.push_back(argument(2));
        const std::string name =
            "tenkMul_" + std::string(batch ? "maTc_" : "mTc_") + typeName<T>() + size + layout;
        EXPECT_EQ(invoke(name, arguments).status, tenkOk);
        EXPECT_EQ(x, expected) << name;
    }
}

// The same behind tables, where no size is exact: two objects, one element behind the other or two.
template <typename T>
void expectTransposedInPlaceBehindTables(unsigned n, bool fixed, const std::string& code,
                                         const std::string& layout)
{
    const bool batch = code == "maTc";
    const unsigned step = layout == "_PS2" ? 2 : 1, count = batch ? 2 : 1;
    auto x = counting<T>(4 * n * n), expected = x;
    std::vector<T*> table;
    for (unsigned e = 0; e < n * n; ++e)
        table.push_back(&x[4 * e]);
    for (unsigned k = 0; k < count; ++k)
        for (unsigned i = 0; i < n; ++i)
            for (unsigned j = 0; j < n; ++j)
                expected[4 * (i * n + j) + k * step] = 2 * expected[4 * (j * n + i) + k * step];
    std::vector<Argument> operand = {argument(table.data()), argument(0)};
    if (layout == "_PS2")
        operand.push_back(argument(step * sizeof(T)));
    std::vector<Argument> a = operand;
    a.push_back(argument(T(2)));
    a.insert(a.end(), operand.begin(), operand.end());
    for (int word = 0; word < (fixed ? 0 : 2); ++word)
        a.push_back(argument(n));
    if (batch)
        a.push_back(argument(count));
    const std::string size = fixed ? "_" + std::to_string(n) + "x" + std::to_string(n) : "";
    const std::string name = "tenkMul_" + code + "_" + typeName<T>() + size + layout;
    EXPECT_EQ(invoke(name, a).status, tenkOk);
    EXPECT_EQ(x, expected) << name;
}

TEST(MulByAConstant, TransposedInPlaceBehindTablesIsThePlainLoop)
{
    for (const unsigned n : {3U, 4U, 5U, 6U})
        for (const bool fixed : {false, true})
            for (const std::string layout : {"_P", "_PS2"})
                for (const std::string code : {"mTc", "maTc"})
                    if (code == "maTc" || layout == "_P") {
                        expectTransposedInPlaceBehindTables<float>(n, fixed, code, layout);
                        expectTransposedInPlaceBehindTables<double>(n, fixed, code, layout);
                    }
}

TEST(MulByAConstant, TransposedInPlaceIsExactAt4x4WithAdjacentElementsAlone)
{
    for (const std::string layout : {"", "_L", "_S2", "_LS2"}) {
        for (unsigned n = 3; n <= 6; ++n) {
            const std::string size = "_" + std::to_string(n) + "x" + std::to_string(n);
            const bool exact = n == 4 && (layout == "" || layout == "_L");
            expectTransposedInPlace<float>(n, size, layout, exact);
            expectTransposedInPlace<double>(n, size, layout, exact);
        }
        for (const unsigned n : {2U, 4U, 5U}) {
            expectTransposedInPlace<float>(n, "", layout, false);
            expectTransposedInPlace<double>(n, "", layout, false);
        }
    }
}

// Only operands that share bytes are taken element by element; those beside each other are not mistaken for
// them.
TEST(MulByAConstant, TransposesObjectsSideBySide)
{
    auto x = counting<float>(40);
    const float* rows = x.data();
    // The result takes the place behind each of three rows of three, in rows of six.
    EXPECT_EQ(tenkMul_mTc_32f_3x3(rows, 24, 2, x.data() + 3, 24), tenkOk);
    EXPECT_EQ(x[3], 2);
    EXPECT_EQ(x[4], 14);
    EXPECT_EQ(x[9], 4);
    EXPECT_EQ(x[17], 30);
    // And upwards, from the last row.
    const auto up = static_cast<std::uint32_t>(-12);
    const auto y = counting<float>(9);
    std::vector<float> d(9);
    EXPECT_EQ(tenkMul_mTc_32f_3x3(y.data() + 6, up, 1, d.data() + 6, up), tenkOk);
    EXPECT_EQ(d, (std::vector<float>{9, 6, 3, 8, 5, 2, 7, 4, 1}));
}

TEST(MulByAConstant, TestsPointersThenSizesThenTablesThenCount)
{
    std::vector<float> x = counting<float>(9), d(9, 9);
    EXPECT_EQ(status("tenkMul_vc_32f", nullptr, 2.F, d.data(), 0), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_vc_32f", x.data(), 2.F, nullptr, 0), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_vc_32f", x.data(), 2.F, d.data(), 0), tenkSizeError);
    EXPECT_EQ(status("tenkMul_mc_32f", x.data(), 8, 2.F, d.data(), 8, 0, 2), tenkSizeError);
    EXPECT_EQ(status("tenkMul_mc_32f", x.data(), 8, 2.F, d.data(), 8, 2, 0), tenkSizeError);
    EXPECT_EQ(status("tenkMul_mac_32f", x.data(), 8, 8, 2.F, d.data(), 8, 8, 0, 2, 0), tenkSizeError);
    EXPECT_EQ(status("tenkMul_mac_32f", x.data(), 8, 8, 2.F, d.data(), 8, 8, 2, 2, 0), tenkOk);
    EXPECT_EQ(status("tenkMul_vac_32f_3x1", nullptr, 12, 2.F, d.data(), 12, 0), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_vac_32f_3x1", x.data(), 12, 2.F, d.data(), 12, 0), tenkOk);

    for (const std::size_t bad : {0U, 4U, 8U})
        for (const bool inSource : {true, false}) {
            std::vector<float*> src, dst;
            for (std::size_t e = 0; e < 9; ++e) {
                src.push_back(&x[e]);
                dst.push_back(&d[e]);
            }
            (inSource ? src : dst)[bad] = nullptr;
            for (const int count : {0, 1}) {
                EXPECT_EQ(status("tenkMul_mac_32f_P", src.data(), 0, 2.F, dst.data(), 0, 3, 3, count),
                          tenkNullPointerError);
                EXPECT_EQ(status("tenkMul_maTc_32f_3x3_PS2", src.data(), 0, 4, 2.F, dst.data(), 0, 4, count),
                          tenkNullPointerError);
                EXPECT_EQ(status("tenkMul_vac_32f_P", src.data(), 0, 2.F, dst.data(), 0, 9, count),
                          tenkNullPointerError);
            }
            EXPECT_EQ(d, std::vector<float>(9, 9));
            // One object: what stands before the entry is written.
            EXPECT_EQ(status("tenkMul_mc_32f_3x3_P", src.data(), 0, 2.F, dst.data(), 0),
                      tenkNullPointerError);
            for (std::size_t e = 0; e < 9; ++e)
                EXPECT_EQ(d[e], e < bad ? 2 * x[e] : 9.F);
            std::fill(d.begin(), d.end(), 9.F);
            EXPECT_EQ(status("tenkMul_vc_32f_P", src.data(), 0, 2.F, dst.data(), 0, 9), tenkNullPointerError);
            for (std::size_t e = 0; e < 9; ++e)
                EXPECT_EQ(d[e], e < bad ? 2 * x[e] : 9.F);
            std::fill(d.begin(), d.end(), 9.F);
        }
}

TEST(MulByAConstant, TestsListsObjectByObject)
{
    const auto x = counting<float>(32);
    std::vector<float> d(32, 9);
    for (const std::string code : {"mac", "maTc"})
        for (const bool inSource : {true, false}) {
            const float* src[] = {x.data(), inSource ? nullptr : x.data() + 16};
            float* dst[] = {d.data(), inSource ? d.data() + 16 : nullptr};
            std::fill(d.begin(), d.end(), 9.F);
            for (const std::string size : {"_3x3", "_4x4"}) {
                const std::string name = "tenkMul_" + code + "_32f" + size + "_L";
                EXPECT_EQ(status(name, src, 0, 16, 2.F, dst, 0, 16, 0), tenkOk);
                EXPECT_EQ(status(name, src, 0, 16, 2.F, dst, 0, 16, 2), tenkNullPointerError);
                EXPECT_EQ(d[0], 2);
                EXPECT_EQ(d[16], 9);
            }
        }
}

TEST(MulByAConstant, TestsATransposedTableAtThePlaceOfTheResult)
{
    for (const bool fixed : {false, true}) {
        const unsigned width = fixed ? 3 : 5;
        std::vector<double> x = counting<double>(15), d(15, 9);
        std::vector<double*> src, dst;
        for (std::size_t e = 0; e < 15; ++e) {
            src.push_back(&x[e]);
            dst.push_back(&d[e]);
        }
        const auto scale = [&] {
            return fixed ? status("tenkMul_mTc_64f_3x3_P", src.data(), 0, 2.0, dst.data(), 0)
                         : status("tenkMul_mTc_64f_P", src.data(), 0, 2.0, dst.data(), 0, width, 3);
        };
        EXPECT_EQ(scale(), tenkOk);
        EXPECT_EQ(d[1], 8);
        EXPECT_EQ(d[width], 4);
        std::fill(d.begin(), d.end(), 9.0);
        // Entry 1 is used for (1, 0) and tested at (0, 1).
        src[1] = nullptr;
        EXPECT_EQ(scale(), tenkNullPointerError);
        EXPECT_EQ(d[0], 2);
        EXPECT_EQ(std::vector<double>(d.begin() + 1, d.end()), std::vector<double>(14, 9));
    }
}

TEST(MulByAConstant, TakesZeroAndNaNLikeAnyOtherValue)
{
    const std::vector<float> x = {1, -1, INFINITY};
    std::vector<float> d(3);
    EXPECT_EQ(tenkMul_vc_32f_3x1(x.data(), 0, d.data()), tenkOk);
    EXPECT_TRUE(d[0] == 0 && !std::signbit(d[0]));
    EXPECT_TRUE(d[1] == 0 && std::signbit(d[1]));
    EXPECT_TRUE(std::isnan(d[2]));
    EXPECT_EQ(tenkMul_vc_32f_3x1(x.data(), NAN, d.data()), tenkOk);
    EXPECT_TRUE(std::isnan(d[0]) && std::isnan(d[1]) && std::isnan(d[2]));
}

} // namespace
