// The members of Add and Sub that stand apart in both.
#pragma once

#include "sum_cases.h"

#include <algorithm>
#include <array>

namespace elementwise {

// ---------------------------------------------------------------------------------------------------------------
// Sums of an array and one matrix of 3 x 3 elements in 32f
// ---------------------------------------------------------------------------------------------------------------

inline void countsNoObjectAsOne(const Sum& f)
{
    const auto a = counting<float>(24, 1), b = counting<float>(12, 100);
    for (const std::string code : {"mam", "mamT"})
        for (const unsigned columns : {3U, 4U}) { // without and with gaps
            std::vector<float> d(24, 9), expected(24, 9);
            const unsigned stride = columns * 4;
            EXPECT_EQ(status(f.name(code + "_32f_3x3"), a.data(), 48, stride, b.data(), stride, d.data(), 48,
                             stride, 0),
                      tenkOk);
            for (unsigned i = 0; i < 3; ++i)
                for (unsigned j = 0; j < 3; ++j)
                    expected[i * columns + j] =
                        f(a[i * columns + j], code == "mam" ? b[i * columns + j] : b[j * columns + i]);
            EXPECT_EQ(d, expected);
        }
    // All neighbours write nothing.
    std::vector<float> d(24, 9);
    EXPECT_EQ(status(f.name("mam_32f_4x4"), a.data(), 0, 16, b.data(), 12, d.data(), 0, 16, 0), tenkOk);
    EXPECT_EQ(status(f.name("mama_32f_3x3"), a.data(), 0, 12, b.data(), 0, 12, d.data(), 0, 12, 0), tenkOk);
    EXPECT_EQ(status(f.name("maTm_32f_3x3"), a.data(), 0, 12, b.data(), 12, d.data(), 0, 12, 0), tenkOk);
    EXPECT_EQ(status(f.name("mam_64f_3x3"), a.data(), 0, 12, b.data(), 12, d.data(), 0, 12, 0), tenkOk);
    EXPECT_EQ(status(f.name("mam_32f_3x3_S2"), a.data(), 0, 12, 4, b.data(), 12, 4, d.data(), 0, 12, 4, 0),
              tenkOk);
    EXPECT_EQ(d, std::vector<float>(24, 9));
}

inline void withoutObjectsTakesTheEntryBeforeTheList(const Sum& f)
{
    const auto a = counting<float>(9, 1), b = counting<float>(9, 100);
    for (const std::string code : {"mam", "mamT"}) {
        std::vector<float> before(9, 9), first(9, 9), expected(9);
        std::vector<float*> dst = {before.data(), first.data()};
        std::vector<const float*> src = {a.data()};
        const auto sum = [&] {
            return status(f.name(code + "_32f_3x3_L"), src.data(), 0, 12, b.data(), 12, dst.data() + 1, 0, 12,
                          0);
        };
        EXPECT_EQ(sum(), tenkOk);
        for (unsigned i = 0; i < 3; ++i)
            for (unsigned j = 0; j < 3; ++j)
                expected[i * 3 + j] = f(a[i * 3 + j], code == "mam" ? b[i * 3 + j] : b[j * 3 + i]);
        EXPECT_EQ(before, expected);
        EXPECT_EQ(first, std::vector<float>(9, 9));

        std::fill(before.begin(), before.end(), 9.F);
        dst[0] = nullptr;
        EXPECT_EQ(sum(), tenkNullPointerError);
        dst[0] = before.data();
        src[0] = nullptr;
        EXPECT_EQ(sum(), tenkNullPointerError);
        EXPECT_EQ(before, std::vector<float>(9, 9));
    }
}

// How many of three objects are written when one entry is null.
inline void testsListsAheadOfTheObjects(const Sum& f)
{
    const auto a = counting<float>(27, 1), b = counting<float>(9, 100);
    struct Case
    {
        bool inSource;
        unsigned entry, written;
    };
    for (const std::string code : {"mam", "mamT"})
        for (const Case c : {Case{true, 0, 0}, Case{true, 1, 0}, Case{true, 2, 1}, Case{false, 0, 0},
                             Case{false, 1, 1}, Case{false, 2, 0}}) {
            std::vector<float> d(27, 9);
            std::vector<const float*> src = {a.data(), a.data() + 9, a.data() + 18};
            std::vector<float*> dst = {d.data(), d.data() + 9, d.data() + 18};
            if (c.inSource)
                src[c.entry] = nullptr;
            else
                dst[c.entry] = nullptr;
            EXPECT_EQ(
                status(f.name(code + "_32f_3x3_L"), src.data(), 0, 12, b.data(), 12, dst.data(), 0, 12, 3),
                tenkNullPointerError);
            for (unsigned k = 0; k < 3; ++k)
                EXPECT_EQ(d[k * 9] != 9, k < c.written)
                    << code << (c.inSource ? " src " : " dst ") << c.entry;
        }
    // The others write what stands before the entry.
    std::vector<float> d(27, 9);
    const std::vector<const float*> src = {a.data(), nullptr, a.data() + 18};
    const std::vector<float*> dst = {d.data(), d.data() + 9, d.data() + 18};
    EXPECT_EQ(status(f.name("maTm_32f_3x3_L"), src.data(), 0, 12, b.data(), 12, dst.data(), 0, 12, 3),
              tenkNullPointerError);
    EXPECT_EQ(d[0], f(a[0], b[0]));
    EXPECT_EQ(d[9], 9);
}

// The destination of each object is the next object of the source, which has been read by then.
inline void readsTheNextObjectFirst(const Sum& f)
{
    for (const unsigned columns : {3U, 4U}) {
        std::vector<float> x(48, 0), b(12, 1), expected(48, 0);
        for (unsigned k = 0; k < 3; ++k)
            for (unsigned i = 0; i < 3; ++i)
                for (unsigned j = 0; j < 3; ++j) {
                    x[(k * 3 + i) * columns + j] = static_cast<float>(10 * k + 10);
                    expected[((k + 1) * 3 + i) * columns + j] = f(static_cast<float>(10 * k + 10), 1.F);
                    expected[i * columns + j] = 10;
                }
        const unsigned stride = columns * 4;
        EXPECT_EQ(status(f.name("mam_32f_3x3"), x.data(), 3 * stride, stride, b.data(), stride,
                         x.data() + 3 * columns, 3 * stride, stride, 3),
                  tenkOk);
        EXPECT_EQ(x, expected);
    }
}

inline void stepsRowsOfTheTransposedMatrixByTheOther(const Sum& f)
{
    const auto a = counting<float>(12, 1), b = counting<float>(12, 100);
    const float* src[] = {a.data()};
    for (const std::string layout : {"", "_L"}) {
        std::vector<float> d(9);
        float* dst[] = {d.data()};
        // Rows of four floats in the array; the other matrix says that its rows are two floats apart, in
        // vain.
        const tenkStatus s =
            layout.empty() ? status(f.name("mamT_32f_3x3"), a.data(), 0, 16, b.data(), 8, d.data(), 0, 12, 1)
                           : status(f.name("mamT_32f_3x3_L"), src, 0, 16, b.data(), 8, dst, 0, 12, 1);
        EXPECT_EQ(s, tenkOk);
        EXPECT_EQ(d, (std::vector<float>{f(1.F, 100.F), f(2.F, 104.F), f(3.F, 108.F), //
                                         f(5.F, 101.F), f(6.F, 105.F), f(7.F, 109.F), //
                                         f(9.F, 102.F), f(10.F, 106.F), f(11.F, 110.F)}));
    }
    std::vector<float> d(9);
    EXPECT_EQ(status(f.name("mam_32f_3x3"), a.data(), 0, 16, b.data(), 8, d.data(), 0, 12, 1), tenkOk);
    EXPECT_EQ(d[3], f(5.F, 102.F));
}

// One matrix behind a table, read transposed: entry i height + j is tested where entry j height + i is used.
inline void testsATransposedTableAtThePlaceOfTheResult(const Sum& f)
{
    for (const std::string code : {"mTm", "mmT", "mTmT"})
        for (const bool fixed : {false, true}) {
            const unsigned width = fixed ? 3 : 5, height = 3;
            std::vector<float> a = counting<float>(15, 1), b = counting<float>(15, 100), d(15, 9);
            std::vector<float*> src1, src2, dst;
            for (std::size_t e = 0; e < 15; ++e) {
                src1.push_back(&a[e]);
                src2.push_back(&b[e]);
                dst.push_back(&d[e]);
            }
            // Entry 1 is used for the first time at (1, 0) and tested at (0, 1), when one element is written.
            (code == "mmT" ? src2 : src1)[1] = nullptr;
            const std::string name = f.name(code + "_32f" + (fixed ? "_3x3_P" : "_P"));
            EXPECT_EQ(fixed ? status(name, src1.data(), 0, src2.data(), 0, dst.data(), 0)
                            : status(name, src1.data(), 0, src2.data(), 0, dst.data(), 0, width, height),
                      tenkNullPointerError);
            EXPECT_EQ(d[0], f(a[0], b[0]));
            EXPECT_EQ(std::vector<float>(d.begin() + 1, d.end()), std::vector<float>(14, 9));
        }

    // Behind the ten entries of a stored 2 x 5 matrix, words up to 4 x 5 + 1 are looked at.
    std::vector<float> a = counting<float>(10, 1), b = counting<float>(10, 100), d(10, 9);
    std::vector<float*> src1(22, a.data()), src2, dst;
    for (std::size_t e = 0; e < 10; ++e) {
        src1[e] = &a[e];
        src2.push_back(&b[e]);
        dst.push_back(&d[e]);
    }
    const std::string name = f.name("mTm_32f_P");
    EXPECT_EQ(status(name, src1.data(), 0, src2.data(), 0, dst.data(), 0, 2, 5), tenkOk);
    EXPECT_EQ(d[9], f(a[9], b[9]));
    std::fill(d.begin(), d.end(), 9.F);
    src1[21] = nullptr;
    EXPECT_EQ(status(name, src1.data(), 0, src2.data(), 0, dst.data(), 0, 2, 5), tenkNullPointerError);
    EXPECT_EQ(d[8], f(a[4], b[8]));
    EXPECT_EQ(d[9], 9);
}

// ---------------------------------------------------------------------------------------------------------------
// 64f
// ---------------------------------------------------------------------------------------------------------------

// The last column of the first array of 5 x 5 has the row step of the second operand.
inline void stepsTheLastColumnBySrc2(const Sum& f)
{
    auto a = counting<double>(100, 1), b = counting<double>(100, 1000);
    const double* src1[] = {a.data(), a.data() + 45};
    const double* src2[] = {b.data(), b.data() + 45};
    for (const std::string code : {"mam", "mama"})
        for (const std::string layout : {"", "_L"})
            for (const unsigned columns2 : {5U, 6U, 8U}) {
                const unsigned columns1 = 6, gap = 45 * 8;
                std::vector<double> d(50), expected(50);
                double* dst[] = {d.data(), d.data() + 25};
                std::vector<Argument> arguments;
                const auto pass = [&](const double* p, const double* const* list, bool array,
                                      unsigned stride0, unsigned columns) {
                    const bool asList = array && layout == "_L";
                    arguments.push_back(asList ? argument(list) : argument(p));
                    if (array)
                        arguments.push_back(argument(asList ? 0 : stride0));
                    arguments.push_back(argument(columns * 8));
                };
                pass(a.data(), src1, true, gap, columns1);
                pass(b.data(), src2, code == "mama", gap, columns2);
                pass(d.data(), dst, true, 200, 5);
                arguments.push_back(argument(2));
                EXPECT_EQ(invoke(f.name(code + "_64f_5x5" + layout), arguments).status, tenkOk);
                for (unsigned k = 0; k < 2; ++k)
                    for (unsigned i = 0; i < 5; ++i)
                        for (unsigned j = 0; j < 5; ++j)
                            expected[k * 25 + i * 5 + j] =
                                f(a[k * 45 + i * (j == 4 ? columns2 : columns1) + j],
                                  b[(code == "mama" ? k * 45 : 0) + i * columns2 + j]);
                EXPECT_EQ(d, expected) << code << layout << " " << columns2;
                if (layout == "_L") {
                    dst[1] = nullptr;
                    std::fill(d.begin(), d.end(), 0.0);
                    std::fill(expected.begin() + 25, expected.end(), 0.0);
                    EXPECT_EQ(invoke(f.name(code + "_64f_5x5_L"), arguments).status, tenkNullPointerError);
                    EXPECT_EQ(d, expected) << code << " without a second result, " << columns2;
                }
            }
}

// Which element of the single operand an element of the result is made with: the digits of its row and
// column, or 0 or anything.
constexpr int zero = -1, any = -2;
using Places = std::array<int, 9>;

struct MixedCase
{
    std::string code;
    bool singleAligned, objectAligned;
    Places places;
    bool exchangesLast = false;
};

// What keeps an operand from being aligned: its address, the shift that is added to it, or the step of its
// rows. `both` are an address and a shift that make up an aligned one.
enum class Odd
{
    nothing,
    address,
    shift,
    step,
    both
};

// Rows of three elements in a row step of 32 bytes, or 40.
struct OddOperand
{
    OddOperand(Odd o, double first, double step) : odd(o), values(32)
    {
        for (std::size_t e = 0; e < 32; ++e)
            values[e] = first + step * static_cast<double>(e * e);
        list[0] = p();
    }
    double* p() { return values.begin() + (odd == Odd::address || odd == Odd::both ? 1 : 0); }
    std::uint32_t shift() const { return odd == Odd::shift || odd == Odd::both ? 8 : 0; }
    std::uint32_t stride1() const { return odd == Odd::step ? 40 : 32; }
    double& at(unsigned i, unsigned j) { return p()[shift() / 8 + i * stride1() / 8 + j]; }

    Odd odd;
    AlignedRun<double> values;
    double* list[1];
};

// One object of a list.
inline void expectPlaces(const Sum& f, const MixedCase& c, Odd singleOdd, Odd srcOdd, Odd dstOdd)
{
    const bool arrayFirst = c.code[1] == 'a';
    OddOperand s(singleOdd, 3, 1), x(srcOdd, 1000, 7), d(dstOdd, 9, 0);
    const std::string name = f.name(c.code + "_64f_3x3_L");
    EXPECT_EQ(arrayFirst ? status(name, x.list, x.shift(), x.stride1(), s.p(), s.stride1(), d.list, d.shift(),
                                  d.stride1(), 1)
                         : status(name, s.p(), s.stride1(), x.list, x.shift(), x.stride1(), d.list, d.shift(),
                                  d.stride1(), 1),
              tenkOk);
    for (unsigned e = 0; e < 9; ++e) {
        const int place = c.places[e];
        if (place == any)
            continue;
        const double one =
            place == zero ? 0.0 : s.at(static_cast<unsigned>(place / 10), static_cast<unsigned>(place % 10));
        const double other = x.at(e / 3, e % 3);
        const bool exchanged = c.exchangesLast && e == 8;
        const double expected = arrayFirst != exchanged ? f(other, one) : f(one, other);
        EXPECT_EQ(d.at(e / 3, e % 3), expected) << c.code << " single " << int(singleOdd) << " src "
                                                << int(srcOdd) << " dst " << int(dstOdd) << " place " << e;
    }
}

// Everything that an operand can be odd in, in turn.
inline void expectPlaces(const Sum& f, const MixedCase& c)
{
    const std::vector<Odd> odd = {Odd::address, Odd::shift, Odd::step}, even = {Odd::nothing, Odd::both};
    for (const Odd single :
         c.singleAligned ? std::vector{Odd::nothing} : std::vector{Odd::address, Odd::step})
        for (const Odd one : c.objectAligned ? even : odd)
            for (const Odd other : even) {
                expectPlaces(f, c, single, one, other);
                expectPlaces(f, c, single, other, one);
            }
}

inline constexpr Places straight = {0, 1, 2, 10, 11, 12, 20, 21, 22},
                        turned = {0, 10, 20, 1, 11, 21, 2, 12, 22};

} // namespace elementwise
