// Copy: edge cases by hand.
#include "tenk.h"

#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

#include "support/objects.h"

namespace {

using Floats = std::vector<float>;

// Elements back to back in rows of three, objects of two rows.
constexpr std::uint32_t element = 4, row = 12, object = 24;

TEST(Copy, OfNoColumnsOrRowsIsNoErrorForMatrices)
{
    Floats src(18, 1), dst(18, 7);
    EXPECT_EQ(tenkCopy_ma_32f_SS(src.data(), object, row, element, dst.data(), object, row, element, 0, 2, 3),
              tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_SS(src.data(), object, row, element, dst.data(), object, row, element, 3, 0, 3),
              tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_SS(src.data(), object, row, element, dst.data(), object, row, element, 3, 2, 0),
              tenkOk);
    EXPECT_EQ(dst, Floats(18, 7));
}

TEST(Copy, OfNoElementsIsASizeErrorForVectors)
{
    Floats src(9, 1), dst(9, 7);
    EXPECT_EQ(tenkCopy_va_32f_SS(src.data(), row, element, dst.data(), row, element, 0, 3), tenkSizeError);
    EXPECT_EQ(tenkCopy_va_32f_SS(src.data(), row, element, dst.data(), row, element, 0, 0), tenkSizeError);
    EXPECT_EQ(tenkCopy_va_32f_SS(src.data(), row, element, dst.data(), row, element, 3, 0), tenkOk);
    EXPECT_EQ(dst, Floats(9, 7));
}

TEST(Copy, TestsPointersBeforeSizes)
{
    float x = 0;
    EXPECT_EQ(tenkCopy_va_32f_SS(nullptr, 0, 4, &x, 0, 4, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCopy_va_32f_SS(&x, 0, 4, nullptr, 0, 4, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCopy_ma_32f_SS(nullptr, 0, 0, 4, &x, 0, 0, 4, 0, 0, 0), tenkNullPointerError);
    EXPECT_EQ(tenkCopy_ma_64f_PL(nullptr, 0, 0, nullptr, 0, 0, 0, 0, 0, 0), tenkNullPointerError);
}

TEST(Copy, MovesElementsInOrderSoThatAnOverlappingDestinationOverwritesLaterSources)
{
    Floats x = {1, 2, 3, 4};
    EXPECT_EQ(tenkCopy_va_32f_SS(x.data(), 0, 4, x.data() + 1, 0, 4, 3, 1), tenkOk);
    EXPECT_EQ(x, (Floats{1, 1, 1, 1}));
    x = {1, 2, 3, 4};
    EXPECT_EQ(tenkCopy_va_32f_SS(x.data() + 1, 0, 4, x.data(), 0, 4, 3, 1), tenkOk);
    EXPECT_EQ(x, (Floats{2, 3, 4, 4}));
}

// Eight elements change places in place: element (i, j) of object k goes from 4 k + 2 i + j to 2 k + i + 4 j.
// Objects, then rows, then elements: 1 goes to 4, 2 to 1, 3 to 5, what is 1 by now from 4 to 2, 3 from 5 to 6
// and on from 6 to 3. Any other order of the loops gives another result.
template <typename T>
void expectObjectsThenRowsThenElements()
{
    using namespace support;
    const auto bytes = [](std::size_t elements) {
        return word(static_cast<std::uint32_t>(elements * sizeof(T)));
    };
    for (const char* const suffix : {"SS", "SL", "SP", "LS", "LL", "LP", "PS", "PL", "PP"}) {
        std::vector<T> x = {0, 1, 2, 3, 4, 5, 6, 7};
        T *const srcList[] = {&x[0], &x[4]}, *const srcTable[] = {&x[0], &x[1], &x[2], &x[3]};
        T *const dstList[] = {&x[0], &x[2]}, *const dstTable[] = {&x[0], &x[4], &x[1], &x[5]};
        const auto operand = [&](char layout, const auto& list, const auto& table, std::size_t k,
                                 std::size_t i, std::size_t j) -> Arguments {
            return layout == 'S'   ? Arguments{pointer(x.data()), bytes(k), bytes(i), bytes(j)}
                   : layout == 'L' ? Arguments{pointer(list), word(0), bytes(i), bytes(j)}
                                   : Arguments{pointer(table), word(0), bytes(k)};
        };
        EXPECT_EQ(callByName("tenkCopy_ma_" + typeName<T>() + "_" + suffix,
                             {operand(suffix[0], srcList, srcTable, 4, 2, 1),
                              operand(suffix[1], dstList, dstTable, 2, 1, 4),
                              {word(2), word(2), word(2)}}),
                  tenkOk);
        EXPECT_EQ(x, (std::vector<T>{0, 2, 1, 3, 1, 3, 3, 7})) << suffix;
    }
}

TEST(Copy, InPlaceGoesByObjectsThenRowsThenElements)
{
    expectObjectsThenRowsThenElements<float>();
    expectObjectsThenRowsThenElements<double>();
}

TEST(Copy, OfVectorsFromTableToTableReadsThroughTheDestinationsTable)
{
    // Element j of object k goes from 4 bytes behind the destination's entry to the entry itself.
    Floats run0 = {0, 1, 2, 3}, run1 = {0, 11, 12, 13};
    const float* const src[] = {nullptr, nullptr};
    float* const dst[] = {run0.data(), run1.data()};
    EXPECT_EQ(tenkCopy_va_32f_PP(src, 4, 4, dst, 0, 4, 2, 3), tenkOk);
    EXPECT_EQ(run0, (Floats{1, 2, 3, 3}));
    EXPECT_EQ(run1, (Floats{11, 12, 13, 13}));
}

TEST(Copy, Of64fVectorsFromTableToTableReadsThroughTheDestinationsTable)
{
    double run[] = {0, 1, 2};
    const double* const src[] = {nullptr};
    double* const dst[] = {run};
    EXPECT_EQ(tenkCopy_va_64f_PP(src, 16, 8, dst, 0, 8, 1, 1), tenkOk);
    EXPECT_EQ(run[0], 2);
    EXPECT_EQ(run[1], 1);
}

TEST(Copy, OfMatricesFromTableToTableReadsThroughTheSourcesTable)
{
    float from[] = {5, 6}, to[] = {0, 0};
    const float* const src[] = {from + 1, from};
    float* const dst[] = {to, to + 1};
    EXPECT_EQ(tenkCopy_ma_32f_PP(src, 0, 4, dst, 0, 4, 2, 1, 1), tenkOk);
    EXPECT_EQ(to[0], 6);
    EXPECT_EQ(to[1], 5);
    double from64[] = {5, 6}, to64[] = {0, 0};
    const double* const src64[] = {from64 + 1, from64};
    double* const dst64[] = {to64, to64 + 1};
    EXPECT_EQ(tenkCopy_ma_64f_PP(src64, 0, 8, dst64, 0, 8, 2, 1, 1), tenkOk);
    EXPECT_EQ(to64[0], 6);
    EXPECT_EQ(to64[1], 5);
}

TEST(Copy, KeepsTheBitsOfSignallingNaNs)
{
    const std::uint64_t quietless = 0x7FF4000000000001, other = 0xFFF0000000000123;
    double src[2], dst[2] = {};
    std::memcpy(&src[0], &quietless, 8);
    std::memcpy(&src[1], &other, 8);
    EXPECT_EQ(tenkCopy_va_64f_SS(src, 16, 8, dst, 16, 8, 2, 1), tenkOk);
    EXPECT_EQ(std::memcmp(src, dst, 16), 0);
    const std::uint32_t narrow = 0x7FA00001;
    float from, to = 0;
    std::memcpy(&from, &narrow, 4);
    EXPECT_EQ(tenkCopy_va_32f_SS(&from, 0, 4, &to, 0, 4, 1, 1), tenkOk);
    EXPECT_EQ(std::memcmp(&from, &to, 4), 0);
}

// Signalling NaNs, each with a payload of its own, through every pair of layouts. They are moved as bits
// here, too: a function that returns one may change it.
template <typename T>
void keepsSignallingNaNs(const std::string& code, const std::string& pair)
{
    using namespace support;
    constexpr unsigned count = 2, height = 2, width = 3;
    const auto layoutOf = [](char letter) { return letter == 'S' ? "_S2" : letter == 'L' ? "_LS2" : "_PS2"; };
    const bool vector = code == "va";
    const auto objects = [&](char letter) {
        return vector ? vectors<T>(layoutOf(letter), true, count, height * width)
                      : matrices<T>(layoutOf(letter), true, count, height, width);
    };
    const auto place = [&](Objects<T>& o, unsigned k, unsigned e) {
        return vector ? &o.at(k, e) : &o.at(k, e / width, e % width);
    };
    Objects<T> src = objects(pair[0]), dst = objects(pair[1]);
    // Vectors from table to table are read where they are written.
    Objects<T>& read = vector && pair == "PP" ? dst : src;
    const auto nan = [](unsigned k, unsigned e) {
        const std::uint64_t payload = 1 + k * 10 + e;
        return sizeof(T) == 8 ? 0x7FF4000000000000 + payload : 0x7FA00000 + payload;
    };
    for (unsigned k = 0; k < count; ++k)
        for (unsigned e = 0; e < height * width; ++e) {
            const std::uint64_t bits = nan(k, e);
            std::memcpy(place(read, k, e), &bits, sizeof(T));
        }
    Arguments sizes = {word(width), word(height), word(count)};
    if (vector)
        sizes = {word(height * width), word(count)};
    const std::string name = "tenkCopy_" + code + "_" + typeName<T>() + "_" + pair;
    EXPECT_EQ(callByName(name, {src.arguments(), dst.arguments(), sizes}), tenkOk);
    for (unsigned k = 0; k < count; ++k)
        for (unsigned e = 0; e < height * width; ++e) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, place(dst, k, e), sizeof(T));
            EXPECT_EQ(bits, nan(k, e)) << name;
        }
}

TEST(Copy, KeepsTheBitsOfSignallingNaNsInAllMembers)
{
    for (const char* const code : {"va", "ma"})
        for (const char* const pair : {"SS", "SL", "SP", "LS", "LL", "LP", "PS", "PL", "PP"}) {
            keepsSignallingNaNs<float>(code, pair);
            keepsSignallingNaNs<double>(code, pair);
        }
}

// Two objects of two rows of three, element (i, j) of object k being 100 k + 10 i + j, in all pairs of
// layouts.
struct Pair
{
    Floats strided = {0, 1, 2, 10, 11, 12, 100, 101, 102, 110, 111, 112};
    Floats runs = {0, 100, 1, 101, 2, 102, 10, 110, 11, 111, 12, 112};
    const float* list[2] = {strided.data(), strided.data() + 6};
    const float* table[6] = {};
    Pair()
    {
        for (int e = 0; e < 6; ++e)
            table[e] = runs.data() + 2 * e;
    }
};

struct Target
{
    Floats strided = Floats(12, -1), runs = Floats(12, -1);
    float* list[2] = {strided.data(), strided.data() + 6};
    float* table[6] = {};
    Target()
    {
        for (int e = 0; e < 6; ++e)
            table[e] = runs.data() + 2 * e;
    }
};

TEST(Copy, BridgesAllPairsOfLayouts)
{
    const Pair p;
    const Target ss, sl, sp, ls, ll, lp, ps, pl, pp;
    EXPECT_EQ(tenkCopy_ma_32f_SS(p.strided.data(), 24, 12, 4, ss.list[0], 24, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_SL(p.strided.data(), 24, 12, 4, sl.list, 0, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_SP(p.strided.data(), 24, 12, 4, sp.table, 0, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_LS(p.list, 0, 12, 4, ls.list[0], 24, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_LL(p.list, 0, 12, 4, ll.list, 0, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_LP(p.list, 0, 12, 4, lp.table, 0, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_PS(p.table, 0, 4, ps.list[0], 24, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_PL(p.table, 0, 4, pl.list, 0, 12, 4, 3, 2, 2), tenkOk);
    EXPECT_EQ(tenkCopy_ma_32f_PP(p.table, 0, 4, pp.table, 0, 4, 3, 2, 2), tenkOk);
    for (const Target* t : {&ss, &sl, &ls, &ll, &ps, &pl})
        EXPECT_EQ(t->strided, p.strided);
    for (const Target* t : {&sp, &lp, &pp})
        EXPECT_EQ(t->runs, p.runs);
}

TEST(Copy, StepsBackwardByLargeStrides)
{
    Floats src = {1, 2, 3}, dst(3);
    EXPECT_EQ(tenkCopy_va_32f_SS(src.data() + 2, 0, 0xFFFFFFFC, dst.data(), 0, 4, 3, 1), tenkOk);
    EXPECT_EQ(dst, (Floats{3, 2, 1}));
    float* const list[] = {dst.data() + 1};
    EXPECT_EQ(tenkCopy_va_32f_SL(src.data(), 0, 4, list, 0xFFFFFFFC, 4, 2, 1), tenkOk);
    EXPECT_EQ(dst, (Floats{1, 2, 1}));
}

TEST(Copy, WorksAtAnyAddress)
{
    std::vector<char> bytes(40);
    const float values[] = {1.5F, -2.5F};
    std::memcpy(bytes.data() + 1, values, 8);
    EXPECT_EQ(tenkCopy_va_32f_SS(reinterpret_cast<const float*>(bytes.data() + 1), 0, 4,
                                 reinterpret_cast<float*>(bytes.data() + 19), 0, 7, 2, 1),
              tenkOk);
    EXPECT_EQ(std::memcmp(bytes.data() + 19, &values[0], 4), 0);
    EXPECT_EQ(std::memcmp(bytes.data() + 26, &values[1], 4), 0);
}

} // namespace
