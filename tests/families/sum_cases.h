// What Add and Sub have in common, told once: each function here is the body of a test of both.
#pragma once

#include "elementwise_cases.h"

#include <numeric>

namespace elementwise {

struct Sum
{
    std::string root;
    int sign; // of the second operand

    template <typename T>
    T operator()(T a, T b) const
    {
        return sign > 0 ? a + b : a - b;
    }
    std::string name(const std::string& rest) const { return "tenk" + root + "_" + rest; }
};

// 1, 2, 3, ... and 100, 101, 102, ...: no two differences or sums of one place are alike by chance.
template <typename T>
std::vector<T> counting(std::size_t n, T first)
{
    std::vector<T> x(n);
    std::iota(x.begin(), x.end(), first);
    return x;
}

// dst[j] = f(src1[j], src2[j]) of the general function of one vector each, from byte offsets into one memory,
// against the same in a loop by ascending index.
template <typename T>
void expectAscendingLoop(const Sum& f, std::size_t length, std::size_t dst, std::size_t src1,
                         std::size_t src2)
{
    std::vector<unsigned char> memory(2048), expected;
    AlignedRun<T> fill(128);
    for (std::size_t j = 0; j < 128; ++j)
        fill[j] = T(1) / T(j + 3);
    std::memcpy(memory.data(), fill.begin(), 128 * sizeof(T));
    const std::size_t base = 16 - reinterpret_cast<std::uintptr_t>(memory.data()) % 16;
    std::memmove(memory.data() + base, memory.data(), 1024);
    expected = memory;
    const auto at = [&](std::size_t offset, std::size_t j) { return base + offset + j * sizeof(T); };
    for (std::size_t j = 0; j < length; ++j) {
        T a, b;
        std::memcpy(&a, expected.data() + at(src1, j), sizeof(T));
        std::memcpy(&b, expected.data() + at(src2, j), sizeof(T));
        const T r = f(a, b);
        std::memcpy(expected.data() + at(dst, j), &r, sizeof(T));
    }
    EXPECT_EQ(status(f.name("vv_" + typeName<T>()), memory.data() + at(src1, 0), memory.data() + at(src2, 0),
                     memory.data() + at(dst, 0), length),
              tenkOk);
    // Garbage made of halves of elements may hold NaNs, whose payload is the compiler's choice.
    for (std::size_t b = 0; b < memory.size(); ++b)
        if (memory[b] != expected[b]) {
            EXPECT_TRUE(false) << "byte " << b << " of length " << length << ", dst " << dst << ", src1 "
                               << src1 << ", src2 " << src2;
            return;
        }
}

template <typename T>
void overlapGivesTheAscendingLoop(const Sum& f)
{
    const std::size_t size = sizeof(T);
    for (std::size_t length : {1, 3, 7, 8, 9, 12, 16, 23, 33})
        for (std::size_t dst = 0; dst <= 24; ++dst) {
            expectAscendingLoop<T>(f, length, dst * size, 12 * size, 40 * size); // around the first source
            expectAscendingLoop<T>(f, length, dst * size, 40 * size, 12 * size); // around the second
            expectAscendingLoop<T>(f, length, dst * size, 12 * size, 9 * size);  // around both
        }
    for (std::size_t length : {2, 9, 33}) // elements behind one another by parts of one
        for (std::size_t dst = 12 * size - 16; dst <= 12 * size + 16; ++dst) {
            expectAscendingLoop<T>(f, length, dst, 12 * size, 40 * size);
            expectAscendingLoop<T>(f, length, dst, 40 * size, 12 * size);
        }
}

// The destination at every element offset from a multiple of 16, and at odd addresses.
template <typename T>
void alignmentDoesNotShow(const Sum& f)
{
    for (std::size_t length : {1, 2, 7, 8, 9, 10, 11, 12, 15, 16, 17, 40})
        for (std::size_t offset = 0; offset < 16; ++offset) {
            expectAscendingLoop<T>(f, length, 1024 + offset, 0, 512);
            expectAscendingLoop<T>(f, length, 1024, offset, 512);
            expectAscendingLoop<T>(f, length, 1024, 0, 512 + offset);
        }
}

inline void addsAThousandElementsBehindAnAlignedAddress(const Sum& f)
{
    AlignedRun<float> a(1000), b(1000), d(1002, 9);
    for (std::size_t j = 0; j < 1000; ++j) {
        a[j] = 1.0F / static_cast<float>(j + 1);
        b[j] = 1.0F / static_cast<float>(j + 7);
    }
    EXPECT_EQ(status(f.name("vv_32f"), a.begin(), b.begin(), d.begin() + 1, 1000), tenkOk);
    for (std::size_t j = 0; j < 1000; ++j)
        EXPECT_EQ(d[j + 1], f(a[j], b[j]));
    EXPECT_EQ(d[0], 9.F);
    EXPECT_EQ(d[1001], 9.F);
}

// No lane holds anything but elements: sums of small integers raise no flag at all, next to NaNs that are not
// elements.
template <typename T>
void raisesNothingOfItsOwn(const Sum& f)
{
    for (unsigned n : {3U, 4U, 5U, 6U})
        for (unsigned gap : {0U, 1U})
            for (const std::string code : {"mm", "mTm", "mTmT", "mam", "mama", "maTma", "mamaT", "mamT"})
                for (const std::string layout : {"", "_L"}) {
                    const bool batch = code.find('a') != code.npos;
                    if (layout == "_L" && !batch)
                        continue;
                    // Signalling NaNs everywhere, then elements that are whole numbers.
                    Objects<T> a({'m', batch, n, n, 2}, layout, gap), d({'m', batch, n, n, 2}, layout, gap);
                    Objects<T> b({'m', code[code.find('m', 1) + 1] == 'a', n, n, 2}, layout, gap);
                    for (Objects<T>* o : {&a, &b}) {
                        o->fillWithSignallingNaNs();
                        for (unsigned k = 0; k < 2; ++k)
                            for (unsigned i = 0; i < n; ++i)
                                for (unsigned j = 0; j < n; ++j)
                                    o->at(k, i, j) = T(i * 6 + j + 1);
                    }
                    std::vector<Argument> arguments;
                    a.pass(arguments);
                    b.pass(arguments);
                    d.pass(arguments);
                    if (batch)
                        arguments.push_back(argument(2U));
                    const std::string size = std::to_string(n) + "x" + std::to_string(n);
                    const std::string name = f.name(code + "_" + typeName<T>() + "_" + size + layout);
                    const auto outcome = invoke(name, arguments);
                    EXPECT_EQ(outcome.status, tenkOk) << name;
                    EXPECT_EQ(outcome.raised, 0U) << name;
                    EXPECT_TRUE(outcome.x87Empty && outcome.controlKept && outcome.registersKept) << name;
                }
}

// ---------------------------------------------------------------------------------------------------------------
// Order of tests
// ---------------------------------------------------------------------------------------------------------------

inline void testsPointersThenSizesThenTablesThenCount(const Sum& f)
{
    const auto a = counting<float>(4, 1), b = counting<float>(4, 100);
    std::vector<float> d(4, 9);
    EXPECT_EQ(status(f.name("vv_32f"), nullptr, b.data(), d.data(), 0), tenkNullPointerError);
    EXPECT_EQ(status(f.name("vv_32f"), a.data(), nullptr, d.data(), 4), tenkNullPointerError);
    EXPECT_EQ(status(f.name("vv_32f"), a.data(), b.data(), nullptr, 4), tenkNullPointerError);
    EXPECT_EQ(status(f.name("vv_32f"), a.data(), b.data(), d.data(), 0), tenkSizeError);
    EXPECT_EQ(status(f.name("vc_64f"), nullptr, 1.0, d.data(), 0), tenkNullPointerError);
    EXPECT_EQ(status(f.name("vc_64f"), a.data(), 1.0, d.data(), 0), tenkSizeError);
    EXPECT_EQ(status(f.name("vav_32f"), a.data(), 8, nullptr, d.data(), 8, 2, 0), tenkNullPointerError);
    EXPECT_EQ(status(f.name("vav_32f"), a.data(), 8, b.data(), d.data(), 8, 2, 0), tenkOk);
    EXPECT_EQ(status(f.name("vav_32f"), a.data(), 8, b.data(), d.data(), 8, 0, 0), tenkSizeError);
    EXPECT_EQ(status(f.name("mam_32f"), a.data(), 8, 4, b.data(), 4, d.data(), 8, 4, 0, 2, 0), tenkSizeError);
    EXPECT_EQ(status(f.name("mam_32f"), a.data(), 8, 4, b.data(), 4, d.data(), 8, 4, 2, 0, 0), tenkSizeError);
    EXPECT_EQ(status(f.name("mam_32f"), a.data(), 8, 4, b.data(), 4, d.data(), 8, 4, 2, 2, 0), tenkOk);
    EXPECT_EQ(status(f.name("mm_32f"), a.data(), 4, b.data(), 4, d.data(), 4, 0, 2), tenkSizeError);
    EXPECT_EQ(status(f.name("mm_32f"), a.data(), 4, b.data(), 4, nullptr, 4, 0, 2), tenkNullPointerError);
    EXPECT_EQ(d, std::vector<float>(4, 9));
}

// Tables of an array are tested whole and first, also without objects; those of single operands as they are
// reached.
inline void testsTables(const Sum& f)
{
    std::vector<float> a = counting<float>(9, 1), b = counting<float>(9, 100), d(9, 9);
    for (const std::size_t bad : {std::size_t{0}, std::size_t{3}, std::size_t{8}})
        for (const int operand : {0, 1, 2}) {
            std::vector<float*> table[3];
            for (std::size_t e = 0; e < 9; ++e) {
                table[0].push_back(&a[e]);
                table[1].push_back(&b[e]);
                table[2].push_back(&d[e]);
            }
            table[operand][bad] = nullptr;
            float** t[] = {table[0].data(), table[1].data(), table[2].data()};
            for (const int count : {0, 1}) {
                EXPECT_EQ(status(f.name("mam_32f_P"), t[0], 0, t[1], 0, t[2], 0, 3, 3, count),
                          tenkNullPointerError);
                EXPECT_EQ(status(f.name("mama_32f_3x3_PS2"), t[0], 0, 4, t[1], 0, 4, t[2], 0, 4, count),
                          tenkNullPointerError);
                EXPECT_EQ(status(f.name("vav_32f_P"), t[0], 0, t[1], 0, t[2], 0, 9, count),
                          tenkNullPointerError);
            }
            EXPECT_EQ(d, std::vector<float>(9, 9));

            for (const int count : {0, 1}) {
                const tenkStatus s = status(f.name("vac_32f_P"), t[0], 0, 100.F, t[2], 0, 9, count);
                EXPECT_EQ(s, operand == 1 ? tenkOk : tenkNullPointerError);
            }
            if (operand == 1)
                std::fill(d.begin(), d.end(), 9.0F);
            EXPECT_EQ(d, std::vector<float>(9, 9));

            for (const bool constant : {false, true}) {
                if (constant && operand == 1)
                    continue;
                EXPECT_EQ(constant ? status(f.name("vc_32f_P"), t[0], 0, 100.F, t[2], 0, 9)
                                   : status(f.name("vv_32f_P"), t[0], 0, t[1], 0, t[2], 0, 9),
                          tenkNullPointerError);
                for (std::size_t e = 0; e < 9; ++e)
                    EXPECT_EQ(d[e], e < bad ? f(a[e], constant ? 100.F : b[e]) : 9.F);
                std::fill(d.begin(), d.end(), 9.0F);
            }

            for (const bool fixed : {false, true}) {
                std::fill(d.begin(), d.end(), 9.0F);
                const tenkStatus s = fixed ? status(f.name("mm_32f_3x3_P"), t[0], 0, t[1], 0, t[2], 0)
                                           : status(f.name("mm_32f_P"), t[0], 0, t[1], 0, t[2], 0, 3, 3);
                EXPECT_EQ(s, tenkNullPointerError);
                for (std::size_t e = 0; e < 9; ++e)
                    EXPECT_EQ(d[e], e < bad ? f(a[e], b[e]) : 9.F);
            }
            std::fill(d.begin(), d.end(), 9.0F);
        }
}

// Lists are tested object by object.
inline void testsLists(const Sum& f)
{
    std::vector<float> a = counting<float>(48, 1), b = counting<float>(16, 100);
    const std::vector<const float*> src = {a.data(), nullptr, a.data() + 32};
    for (const bool fixed : {false, true}) {
        std::vector<float> d(48, 9);
        const std::vector<float*> dst = {d.data(), d.data() + 16, d.data() + 32};
        const auto sum = [&](int count) {
            return fixed ? status(f.name("mam_32f_4x4_L"), src.data(), 0, 16, b.data(), 16, dst.data(), 0, 16,
                                  count)
                         : status(f.name("mam_32f_L"), src.data(), 0, 16, b.data(), 16, dst.data(), 0, 16, 4,
                                  4, count);
        };
        EXPECT_EQ(sum(0), tenkOk);
        EXPECT_EQ(d, std::vector<float>(48, 9));
        EXPECT_EQ(sum(1), tenkOk);
        std::fill(d.begin(), d.end(), 9.0F);
        EXPECT_EQ(sum(3), tenkNullPointerError);
        for (std::size_t e = 0; e < 48; ++e)
            EXPECT_EQ(d[e], e < 16 ? f(a[e], b[e]) : 9.F);
    }
}

// ---------------------------------------------------------------------------------------------------------------
// Overlap of objects
// ---------------------------------------------------------------------------------------------------------------

inline void worksInPlace(const Sum& f, const std::vector<std::string>& codes, const LeftOut& leftOut)
{
    worksInPlaceEverywhere(f.root, codes, f, f, leftOut);
}

// Members of fixed size keep the single operand of an array; general ones read it again, with what was stored
// there.
inline void keepsTheSingleOperandInFixedSizesAlone(const Sum& f)
{
    for (const std::string layout : {"", "_S2"}) {
        for (const bool fixed : {false, true}) {
            // Object 0 of the destination is the single operand: elements 1 and 2 of each source object are
            // 10 and 20.
            std::vector<float> x = {10, 10, 10, 20, 20, 20}, y = {1, 2, 3, 0, 0, 0};
            std::vector<Argument> a = {argument(x.data()), argument(12)};
            const auto step = [&] {
                if (layout == "_S2")
                    a.push_back(argument(4));
            };
            step();
            a.push_back(argument(y.data()));
            step();
            a.push_back(argument(y.data()));
            a.push_back(argument(12));
            step();
            if (!fixed)
                a.push_back(argument(3));
            a.push_back(argument(2));
            EXPECT_EQ(invoke(f.name("vav_32f" + std::string(fixed ? "_3x1" : "") + layout), a).status,
                      tenkOk);
            std::vector<float> expected = {f(10.F, 1.F), f(10.F, 2.F), f(10.F, 3.F)};
            for (int j = 0; j < 3; ++j)
                expected.push_back(
                    f(20.F, fixed ? static_cast<float>(j + 1) : expected[static_cast<std::size_t>(j)]));
            EXPECT_EQ(y, expected);
        }
    }
}

// The same with matrices. The single operand is object 0 of the destination, which is what a member of fixed
// size has kept when it comes to object 1.
template <typename T>
void keepsTheSingleMatrixInFixedSizesAlone(const Sum& f)
{
    for (const std::string code : {"mam", "maTm", "mamT", "maTmT"})
        for (const std::string layout : {"", "_L"})
            for (const unsigned n : {3U, 4U, 5U, 6U})
                for (const unsigned columns : {n, n + n % 2, n + 2}) {
                    const unsigned size = sizeof(T), stride1 = columns * size, stride0 = n * stride1;
                    AlignedRun<T> x(2 * n * columns), y(2 * n * columns), before(2 * n * columns);
                    for (std::size_t e = 0; e < 2 * n * columns; ++e) {
                        x[e] = T(e * e);
                        before[e] = y[e] = T(1000 + e);
                    }
                    const T* src[] = {x.begin(), x.begin() + n * columns};
                    T* dst[] = {y.begin(), y.begin() + n * columns};
                    const std::string order = std::to_string(n);
                    const std::string name =
                        f.name(code + "_" + typeName<T>() + "_" + order + "x" + order + layout);
                    EXPECT_EQ(layout.empty()
                                  ? status(name, x.begin(), stride0, stride1, y.begin(), stride1, y.begin(),
                                           stride0, stride1, 2)
                                  : status(name, src, 0, stride1, y.begin(), stride1, dst, 0, stride1, 2),
                              tenkOk);
                    for (unsigned k = 0; k < 2; ++k)
                        for (unsigned i = 0; i < n; ++i)
                            for (unsigned j = 0; j < n; ++j) {
                                const auto at = [&](bool turned) {
                                    return turned ? j * columns + i : i * columns + j;
                                };
                                const T a = x[k * n * columns + at(code[2] == 'T')],
                                        b = before[at(code.back() == 'T')];
                                EXPECT_EQ(y[k * n * columns + at(false)], f(a, b))
                                    << name << " rows of " << columns << " object " << k;
                            }
                }
    // A general member reads what it has stored.
    std::vector<T> x = {1, 2, 3, 4}, y = {10, 20, 0, 0};
    const unsigned size = sizeof(T);
    EXPECT_EQ(status(f.name("mam_" + typeName<T>()), x.data(), 2 * size, size, y.data(), size, y.data(),
                     2 * size, size, 1, 2, 2),
              tenkOk);
    EXPECT_EQ(y, (std::vector<T>{f(T(1), T(10)), f(T(2), T(20)), f(T(3), f(T(1), T(10))),
                                 f(T(4), f(T(2), T(20)))}));
}

} // namespace elementwise
