// The layouts, whatever the family: where elements are found and how pointers are read.
#include "tenk.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

#include "support/objects.h"

namespace {

using namespace support;
using Floats = std::vector<float>;
using Doubles = std::vector<double>;

// A table whose entries stand three elements before runs of adjacent elements, the last run first, with two
// elements of something else behind each run.
template <typename T>
class Runs
{
public:
    Runs(std::size_t elements, std::size_t objects) : step_(objects + 2), memory_(elements * step_, T(77))
    {
        for (std::size_t e = 0; e < elements; ++e)
            table_.push_back(&memory_[(elements - 1 - e) * step_] - 3);
    }
    T& at(std::size_t e, std::size_t k) { return *(table_[e] + 3 + k); }
    void fill(T first, T element, T object)
    {
        for (std::size_t e = 0; e < table_.size(); ++e)
            for (std::size_t k = 0; k + 2 < step_; ++k)
                at(e, k) = first + T(e) * element + T(k) * object;
    }
    Arguments arguments() const { return {pointer(table_.data()), word(3 * sizeof(T))}; }
    const std::vector<T>& memory() const { return memory_; }

private:
    std::size_t step_;
    std::vector<T> memory_;
    std::vector<T*> table_;
};

template <typename T>
class Layouts : public ::testing::Test
{
};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Layouts, Types);

TYPED_TEST(Layouts, ATableOfOneObjectIsThatOfASingleObjectAndOthersFollowAnElementApart)
{
    using T = TypeParam;
    const std::string type = typeName<T>();
    for (const std::string size : {"", "_3x3"})
        for (const unsigned count : {0U, 1U, 4U}) { // 0 stands for the function of single objects
            // Elements 10 e + k and 1000 + 100 e + 2 k.
            Runs<T> a(9, 4), b(9, 4), sum(9, 4), expected(9, 4);
            a.fill(0, 10, 1), b.fill(1000, 100, 2);
            for (std::size_t e = 0; e < 9; ++e)
                for (std::size_t k = 0; k < (count == 0 ? 1 : count); ++k)
                    expected.at(e, k) = T(1000 + 110 * e + 3 * k);
            Arguments sizes, counts;
            if (size.empty())
                sizes = {word(3), word(3)};
            if (count != 0)
                counts = {word(count)};
            const std::string codes = count == 0 ? "mm" : "mama";
            EXPECT_EQ(callByName("tenkAdd_" + codes + "_" + type + size + "_P",
                                 {a.arguments(), b.arguments(), sum.arguments(), sizes, counts}),
                      tenkOk);
            EXPECT_EQ(sum.memory(), expected.memory()) << codes << size << " " << count;

            // The sums of the diagonal: 0 + 40 + 80 and three times k.
            std::vector<T> traces(5, 9), wanted(5, 9);
            for (std::size_t k = 0; k < (count == 0 ? 1 : count); ++k)
                wanted[k] = T(120 + 3 * k);
            Arguments order;
            if (size.empty())
                order = {word(3)};
            EXPECT_EQ(callByName((count == 0 ? "tenkTrace_m_" : "tenkTrace_ma_") + type + size + "_P",
                                 {a.arguments(), order, {pointer(traces.data())}, counts}),
                      tenkOk);
            EXPECT_EQ(traces, wanted) << size << " " << count;
        }
}

TYPED_TEST(Layouts, ArraysBehindTablesAreDenseRunsOfEachElementBesideAConstant)
{
    using T = TypeParam;
    struct Case
    {
        std::string name;
        T (*result)(T);
    };
    const Case cases[] = {{"tenkAdd_vac_", [](T x) { return x + T(0.5); }},
                          {"tenkSub_vac_", [](T x) { return x - T(0.5); }},
                          {"tenkSub_cva_", [](T x) { return T(0.5) - x; }},
                          {"tenkMul_vac_", [](T x) { return x * T(0.5); }}};
    for (const Case& c : cases)
        for (const unsigned length : {0U, 3U, 6U}) { // 0 stands for a general function
            const std::size_t elements = length == 0 ? 7 : length;
            Runs<T> src(elements, 4), dst(elements, 4), expected(elements, 4);
            src.fill(0, 10, 1);
            for (std::size_t e = 0; e < elements; ++e)
                for (std::size_t k = 0; k < 4; ++k)
                    expected.at(e, k) = c.result(T(10 * e + k));
            Arguments lengths;
            if (length == 0)
                lengths = {word(7)};
            const std::string size = length == 0 ? "" : "_" + std::to_string(length) + "x1";
            const std::string name = c.name + typeName<T>() + size + "_P";
            EXPECT_EQ(
                callByName(name, {src.arguments(), {value(T(0.5))}, dst.arguments(), lengths, {word(4)}}),
                tenkOk);
            EXPECT_EQ(dst.memory(), expected.memory()) << name;
        }
    // The shift counts bytes, and the objects follow an element apart behind it.
    T run[5] = {1, 2, 3, 4, 5}, out[5] = {};
    const T* const from[1] = {run};
    T* const to[1] = {out};
    EXPECT_EQ(
        callByName("tenkAdd_vac_" + typeName<T>() + "_P",
                   {{pointer(from), word(sizeof(T)), value(T(10)), pointer(to), word(0), word(1), word(4)}}),
        tenkOk);
    EXPECT_EQ(std::vector<T>(out, out + 5), (std::vector<T>{12, 13, 14, 15, 0}));
}

// A result is stored over the first entry of the source's table: the next object is read through what stands
// there then. The type is as wide as a pointer; the pointer's bits go through a sum with 0 or a product
// with 1.
TEST(Pointers, OfATableAreReadAgainForEachObject)
{
    using T = std::conditional_t<sizeof(void*) == 8, double, float>;
    using Word = std::conditional_t<sizeof(void*) == 8, std::uint64_t, std::uint32_t>;
    static T first[2] = {1, 2}, other[2] = {30, 40}, second[2], out[2];
    second[0] = std::bit_cast<T>(static_cast<Word>(reinterpret_cast<std::uintptr_t>(other)));
    second[1] = 4;
    const struct
    {
        const char* root;
        T neutral;
    } cases[] = {{"tenkAdd_vac_", 0}, {"tenkSub_vac_", 0}, {"tenkMul_vac_", 1}};
    for (const auto& c : cases)
        for (const std::string layout : {"_P", "_PS2"}) {
            // Element 1 of object 0 goes to entry 0 of the table.
            static const T* from[4];
            from[0] = first, from[1] = second, from[2] = from[3] = nullptr;
            T* const to[2] = {out, reinterpret_cast<T*>(from)};
            Arguments src = {pointer(from), word(0)}, dst = {pointer(to), word(0)};
            if (layout == "_PS2") {
                src.push_back(word(sizeof(T)));
                dst.push_back(word(sizeof(T)));
            }
            EXPECT_EQ(callByName(c.root + typeName<T>() + layout,
                                 {src, {value(c.neutral)}, dst, {word(2), word(2)}}),
                      tenkOk);
            EXPECT_EQ(out[0], T(1)) << c.root << layout;
            EXPECT_EQ(out[1], T(40)) << c.root << layout; // element 1 of `other`
        }
}

TEST(SingleOperands, BesideListsAreNoLists)
{
    // What would be read as pointers are small numbers.
    const Floats a = {1, 2, 3, 4}, b = {10, 20, 30, 40}, spread = {10, 0, 20, 0, 30, 0, 40, 0};
    Floats d(8);
    const float* const from[2] = {&a[0], &a[1]};
    float* const to[2] = {&d[0], &d[4]};
    const auto results = [&] {
        const Floats r = d;
        std::fill(d.begin(), d.end(), 9.0F);
        return r;
    };
    results();
    EXPECT_EQ(tenkAdd_mam_32f_L(from, 0, 4, b.data(), 8, to, 0, 8, 2, 2, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{11, 22, 32, 43, 12, 23, 33, 44})); // rows (1, 2), (2, 3) and (2, 3), (3, 4)
    EXPECT_EQ(tenkAdd_mam_32f_LS2(from, 0, 4, 4, spread.data(), 16, 8, to, 0, 8, 4, 2, 2, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{11, 22, 32, 43, 12, 23, 33, 44}));
    EXPECT_EQ(tenkSub_vva_32f_L(b.data(), from, 0, to, 0, 3, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{9, 18, 27, 9, 8, 17, 26, 9}));
    EXPECT_EQ(tenkSub_vva_32f_3x1_LS2(spread.data(), 8, from, 0, 4, to, 0, 4, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{9, 18, 27, 9, 8, 17, 26, 9}));
    EXPECT_EQ(tenkMul_mva_32f_L(b.data(), 8, 2, 2, from, 0, 2, to, 0, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{50, 110, 9, 9, 80, 180, 9, 9})); // (10, 20; 30, 40) by (1, 2) and (2, 3)
    EXPECT_EQ(tenkSaxpy_vva_32f_LS2(spread.data(), 8, 2, from, 0, 4, to, 0, 4, 3, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{21, 42, 63, 9, 22, 43, 64, 9}));
    EXPECT_EQ(tenkDotProduct_vav_32f_L(from, 0, b.data(), d.data(), 3, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{140, 200, 9, 9, 9, 9, 9, 9}));
    EXPECT_EQ(tenkDotProduct_vav_32f_3x1_LS2(from, 0, 4, spread.data(), 8, d.data(), 2), tenkOk);
    EXPECT_EQ(results(), (Floats{140, 200, 9, 9, 9, 9, 9, 9}));
    EXPECT_EQ(tenkCrossProduct_vav_32f_3x1_L(from, 0, b.data(), to, 0, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{0, 0, 0, 9, 10, -20, 10, 9})); // (2, 3, 4) x (10, 20, 30)
    EXPECT_EQ(tenkCrossProduct_vav_32f_3x1_LS2(from, 0, 4, spread.data(), 8, to, 0, 4, 2), tenkOk);
    EXPECT_EQ(results(), (Floats{0, 0, 0, 9, 10, -20, 10, 9}));

    const Doubles big = {10, 20, 30}, x = {1, 2, 3};
    const double* const from64[1] = {x.data()};
    Doubles y(3);
    double* const to64[1] = {y.data()};
    EXPECT_EQ(tenkAdd_vav_64f_LS2(from64, 0, 8, big.data(), 8, to64, 0, 8, 3, 1), tenkOk);
    EXPECT_EQ(y, (Doubles{11, 22, 33}));
    EXPECT_EQ(tenkMul_mav_64f_L(from64, 0, 8, 2, 1, big.data(), 2, to64, 0, 1), tenkOk);
    EXPECT_EQ(y, (Doubles{50, 22, 33})); // (1, 2) by (10, 20)
}

} // namespace
