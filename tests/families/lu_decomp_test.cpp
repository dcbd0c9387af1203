#include "tenk/lu_decomp.h"

#include <numeric>

#include "families/factors.h"

using namespace factors;

namespace {

using Rows = std::vector<std::uint32_t>;

// The elimination by hand, rows exchanged by index.
template <typename T>
struct Factors
{
    std::vector<T> d;
    Rows rowIndex;
    tenkStatus status = tenkOk;
};
template <typename T>
Factors<T> factorsOf(const std::vector<T>& a, std::size_t n, bool divides, bool testsLast)
{
    Factors<T> f{a, Rows(n)};
    std::iota(f.rowIndex.begin(), f.rowIndex.end(), 0U);
    const auto d = [&](std::size_t position, std::size_t j) -> T& {
        return f.d[f.rowIndex[position] * n + j];
    };
    for (std::size_t p = 0; p + 1 < n; ++p) {
        std::size_t best = p;
        for (std::size_t q = p + 1; q < n; ++q)
            if (std::abs(d(q, p)) > std::abs(d(best, p)))
                best = q;
        std::swap(f.rowIndex[p], f.rowIndex[best]);
        const T pivot = d(p, p);
        if (!(std::abs(pivot) >= T(1.1920928955078125e-07))) {
            f.status = tenkSingularError;
            return f;
        }
        const volatile T c = 1 / pivot;
        for (std::size_t q = p + 1; q < n; ++q) {
            const volatile T l = divides ? d(q, p) / pivot : d(q, p) * c;
            d(q, p) = l;
            const volatile T negated = T(0) - l;
            for (std::size_t j = p + 1; j < n; ++j) {
                const volatile T product = d(p, j) * negated;
                d(q, j) = d(q, j) + product;
            }
        }
    }
    if (testsLast && !(std::abs(d(n - 1, n - 1)) >= T(1.1920928955078125e-07)))
        f.status = tenkSingularError;
    return f;
}

template <typename T>
bool divides(bool batch, unsigned fixed, Form form)
{
    return batch && isList(form) && !(sizeof(T) == 4 && fixed == 4 && form == Form::list);
}

template <typename T>
struct Call
{
    Call(bool batch, unsigned fixed, Form form, std::size_t n, std::size_t count)
        : name(nameOf<T>("LUDecomp", batch ? "ma" : "m", fixed, form)),
          batch(batch),
          fixed(fixed),
          n(n),
          count(count),
          src(form, batch, false, n, n, count, count * n),
          dst(form, batch, false, n, n, count, count * n),
          rowIndex(n * count + 1, 77)
    {
    }
    tenkStatus run()
    {
        Arguments arguments;
        src.pass(arguments);
        addPointer(arguments, rowIndex.data());
        (inPlace ? src : dst).pass(arguments);
        if (!fixed)
            addWord(arguments, static_cast<std::uint32_t>(n));
        if (batch)
            addWord(arguments, static_cast<std::uint32_t>(count));
        return callByName(name, arguments);
    }
    Rows rowsOf(std::size_t k) const
    {
        return Rows(rowIndex.begin() + static_cast<long>(k * n),
                    rowIndex.begin() + static_cast<long>((k + 1) * n));
    }

    std::string name;
    bool batch;
    unsigned fixed;
    std::size_t n, count;
    Operand<T> src, dst;
    Rows rowIndex;
    bool inPlace = false;
};

constexpr Shape shapes[] = {{0, 1, 1}, {0, 2, 2}, {0, 3, 3}, {0, 7, 7},
                            {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}};

// Calls f(call, divides) for every member, single objects and batches of some lengths.
template <typename T, typename F>
void eachCall(F f)
{
    for (const Shape& s : shapes)
        for (Form form : forms) {
            if (existsForOne(form)) {
                Call<T> call(false, s.fixed, form, s.width, 1);
                f(call, false);
            }
            for (std::size_t count : {1, 4, 11}) {
                Call<T> call(true, s.fixed, form, s.width, count);
                f(call, divides<T>(true, s.fixed, form));
            }
        }
}

template <typename T>
class LUDecomp : public ::testing::Test
{
};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(LUDecomp, Types);

TYPED_TEST(LUDecomp, EveryMemberLeavesTheFactorsOfTheElimination)
{
    std::mt19937 random(1);
    eachCall<TypeParam>([&](auto& call, bool byDivision) {
        for (bool inPlace : {false, true}) {
            call.inPlace = inPlace;
            std::vector<std::vector<TypeParam>> a;
            for (std::size_t k = 0; k < call.count; ++k) {
                a.push_back(randomElements<TypeParam>(random, call.n * call.n));
                call.src.setObject(k, a[k]);
            }
            const auto before = call.src.memory;
            ASSERT_EQ(call.run(), tenkOk) << call.name;
            for (std::size_t k = 0; k < call.count; ++k) {
                const auto expected = factorsOf(a[k], call.n, byDivision, false);
                ASSERT_TRUE(same((inPlace ? call.src : call.dst).object(k), expected.d))
                    << call.name << " object " << k;
                ASSERT_EQ(call.rowsOf(k), expected.rowIndex) << call.name << " object " << k;
            }
            if (!inPlace) {
                EXPECT_EQ(call.src.memory, before) << call.name;
            }
            EXPECT_EQ(call.rowIndex.back(), 77U) << call.name;
        }
    });
}

TYPED_TEST(LUDecomp, NothingIsWrittenBesideTheElements)
{
    std::mt19937 random(2);
    eachCall<TypeParam>([&](auto& call, bool) {
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, randomElements<TypeParam>(random, call.n * call.n));
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        auto expected = call.dst; // its pointers still lead to call.dst: only its memory is used
        std::fill(expected.memory.begin(), expected.memory.end(), Operand<TypeParam>::filling);
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.n; ++i)
                for (std::size_t j = 0; j < call.n; ++j) {
                    const auto offset = call.dst.address(k, i, j) - call.dst.memory.data();
                    std::memcpy(expected.memory.data() + offset, call.dst.address(k, i, j),
                                sizeof(TypeParam));
                }
        ASSERT_EQ(call.dst.memory, expected.memory) << call.name;
    });
}

TYPED_TEST(LUDecomp, LTimesUIsThePermutedSource)
{
    std::mt19937 random(3);
    eachCall<TypeParam>([&](auto& call, bool) {
        const std::size_t n = call.n;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, randomElements<TypeParam>(random, n * n));
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k) {
            const Rows r = call.rowsOf(k);
            for (std::size_t i = 0; i < n; ++i)
                for (std::size_t j = 0; j < n; ++j) {
                    __float128 sum = i <= j ? __float128(call.dst.get(k, r[i], j)) : 0;
                    for (std::size_t p = 0; p < i && p <= j; ++p)
                        sum += __float128(call.dst.get(k, r[i], p)) * __float128(call.dst.get(k, r[p], j));
                    const double error =
                        std::abs(static_cast<double>(sum - __float128(call.src.get(k, r[i], j))));
                    ASSERT_LE(error, 64 * std::numeric_limits<TypeParam>::epsilon()) << call.name;
                }
        }
    });
}

// Multipliers of 1/3: 3 x (1/3 rounded) is not always 3 / 3. The numbers are searched for, then both forms
// are computed.
TYPED_TEST(LUDecomp, ListMembersDivideAndAllOthersMultiplyByTheReciprocal)
{
    using T = TypeParam;
    T pivot = 3, x = 1;
    const auto forms_differ = [&] {
        const volatile T c = 1 / pivot;
        const volatile T product = x * c, quotient = x / pivot;
        return product != quotient;
    };
    while (!forms_differ()) {
        x += 1;
        if (x == pivot) {
            pivot += 2;
            x = 1;
        }
    }
    const volatile T c = 1 / pivot;
    const volatile T product = x * c, quotient = x / pivot;
    unsigned dividing = 0;
    eachCall<T>([&](auto& call, bool byDivision) {
        if (call.n < 2)
            return;
        for (std::size_t k = 0; k < call.count; ++k) {
            for (std::size_t i = 0; i < call.n; ++i)
                for (std::size_t j = 0; j < call.n; ++j)
                    call.src.set(k, i, j, i == j ? 1 : 0);
            call.src.set(k, 0, 0, pivot);
            call.src.set(k, 1, 0, x);
        }
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            ASSERT_EQ(call.dst.get(k, 1, 0), byDivision ? quotient : product) << call.name;
        dividing += byDivision && call.count == 4 && (call.fixed || call.n == 7);
    });
    EXPECT_EQ(dividing, sizeof(T) == 4 ? 9U : 10U);
}

TEST(LUDecompArithmetic, TheProductWithZeroMinusTheMultiplierIsAdded)
{
    // The multiplier is +0: -0 + 2 x (0 - 0) is +0, whereas -0 - 2 x 0 would stay -0.
    const float a[9] = {1, 2, 3, 0, 1, -0.0F, 0, 0, 1};
    const float b[4][9] = {{1, 2, 3, 0, 1, -0.0F, 0, 0, 1},
                           {1, 2, 3, 0, 1, -0.0F, 0, 0, 1},
                           {1, 2, 3, 0, 1, -0.0F, 0, 0, 1},
                           {1, 2, 3, 0, 1, -0.0F, 0, 0, 1}};
    float d[9], room[4][64];
    std::uint32_t r[12];
    ASSERT_EQ(tenkLUDecomp_m_32f(a, 12, r, d, 12, 3), tenkOk);
    EXPECT_TRUE(same(d[5], 0.0F));
    const float* const src[4] = {b[0], b[1], b[2], b[3]};
    float* const dst[4] = {room[0], room[1], room[2], room[3]};
    for (auto& object : room)
        std::fill(std::begin(object), std::end(object), 5.0F);
    ASSERT_EQ(tenkLUDecomp_ma_32f_3x3_L(src, 0, 12, r, dst, 0, 12, 4), tenkOk);
    for (const auto& object : room)
        EXPECT_TRUE(same(object[5], 0.0F));
}

TEST(LUDecompArithmetic, TheProductIsRoundedBeforeItIsAdded)
{
    // With e = 2^-12: pivot row (1, 1 + e), row 1 (1 - e, 1). The product (1 + e) (1 - e) = 1 - 2^-24 is a
    // binary32 number, (1 + e) (1 + e) = 1 + 2^-11 + 2^-24 is not: it rounds to 1 + 2^-11.
    const float e = 0x1p-12F;
    const float a[9] = {-2, 2 * (1 + e), 0, 2 * (1 + e) * 0.5F, 0, 0, 0, 0, 1};
    float d[9];
    std::uint32_t r[3];
    // l = -(1 + e) / 2, 0 - l = (1 + e) / 2, and the element becomes 0 + 2 (1 + e) (1 + e) / 2 = (1 + e)^2,
    // rounded.
    ASSERT_EQ(tenkLUDecomp_m_32f_3x3(a, 12, r, d, 12), tenkOk);
    EXPECT_EQ(d[4], 1 + 0x1p-11F);
    // Added to -(1 + 2^-11) it leaves nothing, where a fused operation would leave 2^-24: then the pivot is
    // none.
    const float b[9] = {-2, 2 * (1 + e), 0, 1 + e, -(1 + 0x1p-11F), 0, 0, 0, 1};
    EXPECT_EQ(tenkLUDecomp_m_32f_3x3(b, 12, r, d, 12), tenkSingularError);
    EXPECT_EQ(d[4], 0);
}

TYPED_TEST(LUDecomp, ALongPackedBatchEqualsItsSingleMatrices)
{
    using T = TypeParam;
    std::mt19937 random(9);
    for (unsigned n = 3; n <= 6; ++n)
        for (auto [form, heavyDiagonal] : {std::pair(Form::standard, false), std::pair(Form::standard, true),
                                           std::pair(Form::list, false), std::pair(Form::list, true)}) {
            const std::size_t count = 203, size = n * n;
            std::vector<T> src = randomElements<T>(random, count * size),
                           dst((count + count / n + 2) * size, T{1});
            for (std::size_t d = 0; heavyDiagonal && d < count * size; d += d % size == size - 1 ? 1 : n + 1)
                src[d] += 3; // no row is exchanged
            std::vector<const T*> srcs;
            std::vector<T*> dsts;
            for (std::size_t k = 0; k < count; ++k) {
                srcs.push_back(src.data() + k * size);
                dsts.push_back(dst.data() + k * size);
            }
            Rows r(count * n);
            Arguments arguments;
            for (const void* p :
                 {static_cast<const void*>(src.data()), static_cast<const void*>(dst.data())}) {
                const bool source = p == src.data();
                if (form == Form::list) {
                    addPointer(arguments, source ? static_cast<const void*>(srcs.data()) : dsts.data());
                    addWord(arguments, 0);
                } else {
                    addPointer(arguments, p);
                    addWord(arguments, static_cast<std::uint32_t>(size * sizeof(T)));
                }
                addWord(arguments, static_cast<std::uint32_t>(n * sizeof(T)));
                if (source)
                    addPointer(arguments, r.data());
            }
            addWord(arguments, count);
            const std::string name = nameOf<T>("LUDecomp", "ma", n, form);
            ASSERT_EQ(callByName(name, arguments), tenkOk) << name;
            for (std::size_t k = 0; k < count; ++k) {
                const auto expected =
                    factorsOf(std::vector<T>(srcs[k], srcs[k] + size), n, divides<T>(true, n, form), false);
                ASSERT_TRUE(same(std::vector<T>(dsts[k], dsts[k] + size), expected.d))
                    << name << " object " << k;
                ASSERT_TRUE(std::equal(expected.rowIndex.begin(), expected.rowIndex.end(), r.data() + k * n))
                    << name;
            }
        }
}

// ---------------------------------------------------------------------------------------------------------------
// The documented edge cases
// ---------------------------------------------------------------------------------------------------------------

TYPED_TEST(LUDecomp, AOneByOneMatrixIsItsPivotAndIsCopiedEitherWay)
{
    using T = TypeParam;
    const T floor = 0x1p-23F, below = std::nextafter(floor, T{0});
    const struct
    {
        T element;
        tenkStatus status;
    } cases[] = {{floor, tenkOk},
                 {-floor, tenkOk},
                 {5, tenkOk},
                 {std::numeric_limits<T>::infinity(), tenkOk},
                 {below, tenkSingularError},
                 {-below, tenkSingularError},
                 {T(1e-8), tenkSingularError},
                 {0, tenkSingularError},
                 {std::numeric_limits<T>::quiet_NaN(), tenkSingularError}};
    eachCall<T>([&](auto& call, bool) {
        if (call.n != 1)
            return;
        for (const auto& c : cases) {
            std::fill(call.rowIndex.begin(), call.rowIndex.end(), 77U);
            for (std::size_t k = 0; k < call.count; ++k)
                call.src.setObject(k, {k == 0 ? c.element : T{1}});
            EXPECT_EQ(call.run(), c.status) << call.name << " of " << c.element;
            EXPECT_EQ(call.rowIndex[0], 0U) << call.name << " of " << c.element;
            EXPECT_TRUE(same(call.dst.get(0, 0, 0), c.element)) << call.name << " of " << c.element;
        }
    });
}

TYPED_TEST(LUDecomp, TheLastPivotMayBeTheFloorAndNotSmaller)
{
    const TypeParam floor = 0x1p-23F;
    eachCall<TypeParam>([&](auto& call, bool) {
        for (TypeParam last :
             {floor, -floor, std::nextafter(floor, TypeParam{0}), -std::nextafter(floor, TypeParam{0})}) {
            for (std::size_t k = 0; k < call.count; ++k)
                for (std::size_t i = 0; i < call.n; ++i)
                    for (std::size_t j = 0; j < call.n; ++j)
                        call.src.set(k, i, j, i != j ? 0 : k == 0 && i == call.n - 1 ? last : 1);
            ASSERT_EQ(call.run(), std::abs(last) >= floor ? tenkOk : tenkSingularError) << call.name << last;
        }
    });
}

TYPED_TEST(LUDecomp, AnEarlierPivotOfAnyObjectMayBeTheFloorAndNotSmaller)
{
    const TypeParam floor = 0x1p-23F;
    eachCall<TypeParam>([&](auto& call, bool) {
        for (std::size_t k = 0; call.n > 1 && k < call.count; ++k)
            for (TypeParam pivot : {floor, std::nextafter(floor, TypeParam{0})}) {
                for (std::size_t other = 0; other < call.count; ++other)
                    for (std::size_t i = 0; i < call.n; ++i)
                        for (std::size_t j = 0; j < call.n; ++j)
                            call.src.set(other, i, j, i != j ? 0 : other == k && i + 2 == call.n ? pivot : 1);
                ASSERT_EQ(call.run(), pivot >= floor ? tenkOk : tenkSingularError) << call.name << k << pivot;
            }
    });
}

TEST(LUDecompEdges, TheDiagonalOf1And1e8thIsSingularInBothTypes)
{
    const double a[4] = {1, 0, 0, 1e-8};
    const float b[4] = {1, 0, 0, 1e-8F};
    double d[4];
    float e[4];
    std::uint32_t r[2];
    EXPECT_EQ(tenkLUDecomp_m_64f(a, 16, r, d, 16, 2), tenkSingularError);
    EXPECT_EQ(tenkLUDecomp_m_32f(b, 8, r, e, 8, 2), tenkSingularError);
}

TYPED_TEST(LUDecomp, OfEqualMagnitudesTheFirstInRowIndexIsTaken)
{
    // Position 0 takes row 2, so rows stand as 2 1 0; at position 1 rows 1 and 0 tie, and row 1 stands first.
    const TypeParam a[9] = {1, 4, 1, -1, -4, 3, 2, 0, 8};
    eachCall<TypeParam>([&](auto& call, bool) {
        if (call.n != 3)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, std::vector<TypeParam>(a, a + 9));
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k)
            ASSERT_EQ(call.rowsOf(k), (Rows{2, 1, 0})) << call.name;
    });
}

// Side by side on one page: the same matrix in objects of even number, and in odd ones a matrix whose row 0
// wins over row 1 at position 1, so that rows are exchanged there.
TEST(LUDecompEdges, OfEqualMagnitudesTheFirstIsTakenBesideObjectsThatExchange)
{
    alignas(4096) static float a[1024], d[1024];
    const float matrix[2][9] = {{1, 4, 1, -1, -4, 3, 2, 0, 8}, {1, 4, 1, -1, -1, 3, 2, 0, 8}};
    const std::uint32_t rows[2][3] = {{2, 1, 0}, {2, 0, 1}};
    for (std::size_t e = 0; e < 1024; ++e) {
        a[e] = matrix[e / 9 % 2][e % 9];
        d[e] = 1;
    }
    std::uint32_t rowIndex[24];
    ASSERT_EQ(tenkLUDecomp_ma_32f_3x3(a, 36, 12, rowIndex, d, 36, 12, 8), tenkOk);
    for (std::size_t e = 0; e < 24; ++e)
        EXPECT_EQ(rowIndex[e], rows[e / 3 % 2][e % 3]) << e;
}

TYPED_TEST(LUDecomp, AZeroFirstColumnFailsAtOnceWithThePlainCopy)
{
    std::mt19937 random(4);
    eachCall<TypeParam>([&](auto& call, bool) {
        if (call.n < 2)
            return;
        std::vector<std::vector<TypeParam>> a;
        const std::size_t bad = call.count / 2;
        for (std::size_t k = 0; k < call.count; ++k) {
            a.push_back(randomElements<TypeParam>(random, call.n * call.n));
            for (std::size_t i = 0; k == bad && i < call.n; ++i)
                a[k][i * call.n] = i % 2 ? TypeParam{0} : -TypeParam{0};
            call.src.setObject(k, a[k]);
        }
        ASSERT_EQ(call.run(), tenkSingularError) << call.name;
        Rows identity(call.n);
        std::iota(identity.begin(), identity.end(), 0U);
        EXPECT_EQ(call.rowsOf(bad), identity) << call.name;
        EXPECT_TRUE(same(call.dst.object(bad), a[bad])) << call.name;
        for (std::size_t k = bad + 1; k < call.count; ++k) { // untouched
            EXPECT_EQ(call.rowsOf(k), Rows(call.n, 77)) << call.name;
            for (TypeParam x : call.dst.object(k)) {
                unsigned char bytes[sizeof x];
                std::memcpy(bytes, &x, sizeof x);
                ASSERT_EQ(bytes[0], Operand<TypeParam>::filling) << call.name;
            }
        }
    });
}

TYPED_TEST(LUDecomp, AFailureLeavesTheEliminationBeforeItAndItsExchange)
{
    std::mt19937 random(5);
    eachCall<TypeParam>([&](auto& call, bool byDivision) {
        const std::size_t n = call.n;
        for (std::size_t failing = 1; failing + 1 < n; ++failing)
            for (std::size_t bad : {std::size_t{0}, call.count - 1}) {
                std::vector<std::vector<TypeParam>> a;
                for (std::size_t k = 0; k < call.count; ++k) {
                    a.push_back(randomElements<TypeParam>(random, n * n));
                    if (k ==
                        bad) { // small multiples of powers of two, with column `failing` twice that before it
                        for (TypeParam& x : a[k])
                            x = std::floor(x * 4);
                        for (std::size_t i = 0; i < n; ++i) {
                            a[k][i * n] =
                                i == n - 1 ? TypeParam{4} : TypeParam{1} * static_cast<TypeParam>(i % 3);
                            a[k][i * n + failing] = 2 * a[k][i * n + failing - 1];
                        }
                    }
                    call.src.setObject(k, a[k]);
                }
                const tenkStatus status = call.run();
                const auto expected = factorsOf(a[bad], n, byDivision, bad == 0);
                if (bad == 0) {
                    ASSERT_EQ(status, expected.status) << call.name;
                }
                if (expected.status == tenkSingularError || bad == call.count - 1) {
                    ASSERT_TRUE(same(call.dst.object(bad), expected.d)) << call.name << " " << failing;
                    ASSERT_EQ(call.rowsOf(bad), expected.rowIndex) << call.name << " " << failing;
                }
            }
    });
}

TYPED_TEST(LUDecomp, ANaNInTheFirstPlaceFailsAndElsewhereIsPassedOver)
{
    const TypeParam nan = std::numeric_limits<TypeParam>::quiet_NaN();
    eachCall<TypeParam>([&](auto& call, bool) {
        if (call.n != 3)
            return;
        std::vector<TypeParam> a = {nan, 1, 2, 3, 4, 5, 6, 7, 9};
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, a);
        EXPECT_EQ(call.run(), tenkSingularError) << call.name;
        EXPECT_EQ(call.rowsOf(0), (Rows{0, 1, 2})) << call.name;
        EXPECT_TRUE(same(call.dst.object(0), a)) << call.name;

        a = {1, 2, 3, nan, 4, 5, 2, 7, 1};
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, a);
        // Position 0 takes row 2; row 1 is then all NaN and stands first at position 1, where it fails.
        EXPECT_EQ(call.run(), tenkSingularError) << call.name;
        EXPECT_EQ(call.rowsOf(0), (Rows{2, 1, 0})) << call.name;
        const auto d = call.dst.object(0);
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_TRUE(std::isnan(d[3 + j])) << call.name;
        EXPECT_EQ(d[0], TypeParam(0.5)) << call.name;
        EXPECT_EQ(d[1], TypeParam(-1.5)) << call.name;
        EXPECT_EQ(d[2], TypeParam(2.5)) << call.name;
    });
}

TYPED_TEST(LUDecomp, AnInfinitePivotPassesAndMakesZeroMultipliers)
{
    const TypeParam infinity = std::numeric_limits<TypeParam>::infinity();
    eachCall<TypeParam>([&](auto& call, bool) {
        if (call.n != 3)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, {1, 2, 3, -infinity, 1, 1, 4, 5, 6});
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.count; ++k) {
            EXPECT_EQ(call.rowsOf(k), (Rows{1, 2, 0})) << call.name;
            EXPECT_TRUE(same(call.dst.get(k, 2, 0), -TypeParam{0})) << call.name;
            EXPECT_EQ(call.dst.get(k, 2, 1), 5) << call.name;
        }
    });
}

TYPED_TEST(LUDecomp, NullComesBeforeSizeAndSizeBeforeCount)
{
    eachCall<TypeParam>([&](auto& call, bool) {
        Arguments all;
        call.src.pass(all);
        const std::size_t rowIndexAt = all.size();
        addPointer(all, call.rowIndex.data());
        const std::size_t dstAt = all.size();
        call.dst.pass(all);
        const std::size_t orderAt = all.size();
        if (!call.fixed)
            addWord(all, static_cast<std::uint32_t>(call.n));
        if (call.batch)
            addWord(all, 0);
        const auto memory = call.dst.memory;
        if (call.batch) {
            EXPECT_EQ(callByName(call.name, all), tenkOk);
        }
        if (!call.fixed) {
            Arguments zero = all;
            zero[orderAt].bits = 0;
            EXPECT_EQ(callByName(call.name, zero), tenkSizeError) << call.name;
        }
        for (std::size_t at : {std::size_t{0}, rowIndexAt, dstAt}) {
            Arguments null = all;
            null[at].bits = 0;
            if (!call.fixed)
                null[orderAt].bits = 0;
            EXPECT_EQ(callByName(call.name, null), tenkNullPointerError) << call.name;
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
        EXPECT_EQ(call.rowIndex, Rows(call.rowIndex.size(), 77)) << call.name;
    });
}

TYPED_TEST(LUDecomp, ANullEntryOfATableFailsBeforeAnythingIsWritten)
{
    eachCall<TypeParam>([&](auto& call, bool) {
        if (!isTable(call.src.form))
            return;
        const std::size_t counted = call.count;
        for (auto* operand : {&call.src, &call.dst}) {
            unsigned char*& last = operand->pointers[call.n * call.n - 1];
            unsigned char* const kept = last;
            last = nullptr;
            for (std::size_t count : {counted, std::size_t{0}}) {
                call.count = count;
                EXPECT_EQ(call.run(), tenkNullPointerError) << call.name;
            }
            last = kept;
            call.count = counted;
        }
        EXPECT_EQ(call.rowIndex, Rows(call.rowIndex.size(), 77)) << call.name;
    });
}

TYPED_TEST(LUDecomp, ANullEntryOfAListFailsWhenItsObjectIsReached)
{
    std::mt19937 random(6);
    eachCall<TypeParam>([&](auto& call, bool byDivision) {
        if (!isList(call.src.form) || call.count < 4)
            return;
        for (auto* operand : {&call.src, &call.dst})
            for (std::size_t bad : {std::size_t{0}, std::size_t{2}, call.count - 1}) {
                std::fill(call.rowIndex.begin(), call.rowIndex.end(), 77U);
                std::vector<std::vector<TypeParam>> a;
                for (std::size_t k = 0; k < call.count; ++k) {
                    a.push_back(randomElements<TypeParam>(random, call.n * call.n));
                    call.src.setObject(k, a[k]);
                }
                unsigned char* const kept = operand->pointers[bad];
                operand->pointers[bad] = nullptr;
                EXPECT_EQ(call.run(), tenkNullPointerError) << call.name;
                operand->pointers[bad] = kept;
                for (std::size_t k = 0; k < bad; ++k) {
                    const auto expected = factorsOf(a[k], call.n, byDivision, false);
                    EXPECT_TRUE(same(call.dst.object(k), expected.d)) << call.name;
                    EXPECT_EQ(call.rowsOf(k), expected.rowIndex) << call.name;
                }
                for (std::size_t k = bad; k < call.count; ++k)
                    EXPECT_EQ(call.rowsOf(k), Rows(call.n, 77)) << call.name;
            }
    });
}

// ---------------------------------------------------------------------------------------------------------------
// The last test of a batch
// ---------------------------------------------------------------------------------------------------------------

TYPED_TEST(LUDecomp, TheTrueLastPivotOfLaterObjectsIsNotTested)
{
    eachCall<TypeParam>([&](auto& call, bool) {
        if (call.count < 4)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            for (std::size_t i = 0; i < call.n; ++i)
                for (std::size_t j = 0; j < call.n; ++j)
                    call.src.set(k, i, j, i == j && (k == 0 || i + 1 < call.n) ? 1 : 0);
        EXPECT_EQ(call.run(), tenkOk) << call.name;
    });
}

TYPED_TEST(LUDecomp, TheLastTestOfObjectKLooksKTimesOrderColumnsFurther)
{
    std::mt19937 random(7);
    eachCall<TypeParam>([&](auto& call, bool byDivision) {
        if (call.count < 4)
            return;
        const std::size_t n = call.n;
        for (std::size_t bad = 1; bad < call.count; ++bad) {
            std::vector<std::vector<TypeParam>> a;
            for (std::size_t k = 0; k < call.count; ++k) {
                a.push_back(randomElements<TypeParam>(random, n * n));
                call.src.setObject(k, a[k]);
            }
            Operand<TypeParam> dst(call.dst.form, true, false, n, n, call.count);
            std::fill(call.rowIndex.begin(), call.rowIndex.end(), 77U);
            const auto last = factorsOf(a[bad], n, byDivision, false);
            const std::size_t row = last.rowIndex[n - 1], column = n - 1 + bad * n;
            std::vector<TypeParam> room(128, 5);
            TypeParam* place;
            if (isTable(dst.form)) { // an entry behind the table, or one of it
                if (row * n + column < n * n)
                    continue;
                dst.pointers[row * n + column] = reinterpret_cast<unsigned char*>(&room[64]) -
                                                 bad * dst.stride0 - Operand<TypeParam>::shift;
                place = &room[64];
            } else {
                // Objects far apart, so that nothing else is there.
                dst.stride0 = 16384;
                dst.memory.assign(call.count * dst.stride0 + 8192, Operand<TypeParam>::filling);
                for (std::size_t k = 0; k < call.count; ++k)
                    dst.pointers[k] = dst.at(4 + k * dst.stride0) - Operand<TypeParam>::shift;
                dst.stride1 = 2048;
                place = reinterpret_cast<TypeParam*>(dst.address(bad, row, column));
            }
            const auto run = [&](TypeParam value) {
                std::memcpy(place, &value, sizeof value);
                Arguments arguments;
                call.src.pass(arguments);
                addPointer(arguments, call.rowIndex.data());
                dst.pass(arguments);
                if (!call.fixed)
                    addWord(arguments, static_cast<std::uint32_t>(n));
                addWord(arguments, static_cast<std::uint32_t>(call.count));
                return callByName(call.name, arguments);
            };
            ASSERT_EQ(run(0x1p-23F), tenkOk) << call.name << " " << bad;
            std::fill(call.rowIndex.begin(), call.rowIndex.end(), 77U);
            ASSERT_EQ(run(0x1p-24F), tenkSingularError) << call.name << " " << bad;
            for (std::size_t k = 0; k <= bad; ++k) {
                const auto expected = factorsOf(a[k], n, byDivision, false);
                ASSERT_TRUE(same(dst.object(k), expected.d)) << call.name << " object " << k << " of " << bad;
                ASSERT_EQ(call.rowsOf(k), expected.rowIndex) << call.name;
            }
            for (std::size_t k = bad + 1; k < call.count; ++k)
                ASSERT_EQ(call.rowsOf(k), Rows(n, 77)) << call.name;
        }
    });
}

TEST(LUDecompLastTest, ATableEntryOfZeroBehindTheOthersIsAnAddressLikeAnyOther)
{
    // order 1, two objects: object 1 is tested through entry 1, which is 0; with the shift it leads to
    // `tested`. On 64 bits only a shift of 32 bits could do so: the memory of the test is not that low.
    if (sizeof(void*) != 4)
        GTEST_SKIP() << "a shift does not reach the memory of a 64-bit process from address 0";
    static float element[2] = {2, 3}, tested[2] = {0, 0};
    float result[2];
    std::uint32_t r[2];
    const auto shift = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(tested));
    const float* src[1] = {element};
    float* dst[2] = {reinterpret_cast<float*>(reinterpret_cast<std::uintptr_t>(result) - shift), nullptr};
    EXPECT_EQ(tenkLUDecomp_ma_32f_P(src, 0, r, dst, shift, 1, 2), tenkSingularError);
    tested[1] = 1;
    EXPECT_EQ(tenkLUDecomp_ma_32f_P(src, 0, r, dst, shift, 1, 2), tenkOk);
}

TYPED_TEST(LUDecomp, DenseRowsThatOverlapEachOtherAreWorkedOnInPlace)
{
    // All rows of dst are one row: what is left is what the plain elimination leaves in it, step by step.
    using T = TypeParam;
    T a[4][16], d[4] = {};
    for (auto& matrix : a)
        for (int e = 0; e < 16; ++e)
            matrix[e] = static_cast<T>(e + 1);
    std::uint32_t r[4];
    // Row 3 is copied last: 13 14 15 16. Position 0: no other row is larger; l = x / x; then 14 -> 14 - 14 l,
    // three times with l computed from the element that the step before stored.
    T row[4] = {13, 14, 15, 16};
    tenkStatus expected = tenkOk;
    for (int p = 0; p < 3 && expected == tenkOk; ++p) {
        if (!(std::abs(row[p]) >= T(0x1p-23F))) {
            expected = tenkSingularError;
            break;
        }
        const volatile T c = 1 / row[p];
        for (int q = p + 1; q < 4; ++q) {
            const volatile T l = row[p] * c;
            row[p] = l;
            for (int j = p + 1; j < 4; ++j) {
                const volatile T product = row[j] * (0 - l);
                row[j] = row[j] + product;
            }
        }
    }
    if (expected == tenkOk && !(std::abs(row[3]) >= T(0x1p-23F)))
        expected = tenkSingularError;
    tenkStatus status;
    if constexpr (sizeof(T) == 4)
        status = tenkLUDecomp_ma_32f_4x4(a[0], 64, 16, r, d, 0, 0, 1);
    else
        status = tenkLUDecomp_ma_64f_4x4(a[0], 128, 32, r, d, 0, 0, 1);
    EXPECT_EQ(status, expected);
    EXPECT_TRUE(same(std::vector<T>(d, d + 4), std::vector<T>(row, row + 4)));
}

TYPED_TEST(LUDecomp, ABatchMayBeWrittenOverTheSourcesOfLaterObjects)
{
    // dst of object k is src of object k + 1: each object is read when its turn comes, after the one before
    // was written.
    using T = TypeParam;
    std::mt19937 random(8);
    std::vector<T> memory = randomElements<T>(random, 16 * 9 + 64), expected = memory;
    std::fill(memory.end() - 64, memory.end(), T{1});
    expected = memory;
    std::uint32_t r[8 * 4];
    for (std::size_t k = 0; k < 8; ++k) {
        const auto f = factorsOf(std::vector<T>(expected.begin() + static_cast<long>(16 * k),
                                                expected.begin() + static_cast<long>(16 * (k + 1))),
                                 4, false, false);
        std::copy(f.d.begin(), f.d.end(), expected.begin() + static_cast<long>(16 * (k + 1)));
    }
    if constexpr (sizeof(T) == 4)
        tenkLUDecomp_ma_32f_4x4(memory.data(), 64, 16, r, memory.data() + 16, 64, 16, 8);
    else
        tenkLUDecomp_ma_64f_4x4(memory.data(), 128, 32, r, memory.data() + 16, 128, 32, 8);
    EXPECT_TRUE(same(memory, expected));
}

TYPED_TEST(LUDecomp, TheLastTestOfAnObjectComesBeforeTheNextOneIsWritten)
{
    // Identities of order 4, without gaps. The last test of object k looks at element 20 k + 15 of dst, which
    // is a zero of object k + 1 as soon as that one is written.
    using T = TypeParam;
    for (bool ok : {true, false}) {
        std::vector<T> src(8 * 16), dst(12 * 16, ok ? T{5} : T{0});
        for (std::size_t k = 0; k < 8; ++k)
            for (std::size_t i = 0; i < 4; ++i)
                src[16 * k + 5 * i] = 1;
        std::uint32_t r[32];
        tenkStatus status;
        if constexpr (sizeof(T) == 4)
            status = tenkLUDecomp_ma_32f_4x4(src.data(), 64, 16, r, dst.data(), 64, 16, 8);
        else
            status = tenkLUDecomp_ma_64f_4x4(src.data(), 128, 32, r, dst.data(), 128, 32, 8);
        EXPECT_EQ(status, ok ? tenkOk : tenkSingularError);
        // Object 1 finds the zero in the place of object 2.
        const std::size_t written = ok ? 128 : 32;
        std::vector<T> expected(12 * 16, ok ? T{5} : T{0});
        std::copy(src.begin(), src.begin() + static_cast<long>(written), expected.begin());
        EXPECT_TRUE(same(dst, expected));
    }
}

TYPED_TEST(LUDecomp, NothingIsReadAheadOfAFailure)
{
    // The first matrix is zero, and behind it nothing may be read; neither behind the first entry of the
    // lists.
    using T = TypeParam;
    const PageEnd memory, sources, results;
    T* const src = memory.last<T>(16);
    std::fill(src, src + 16, T{0});
    T dst[8 * 16];
    std::uint32_t r[32];
    constexpr std::uint32_t row = 4 * sizeof(T), matrix = 16 * sizeof(T);
    const T** const list = sources.last<const T*>(1);
    T** const resultList = results.last<T*>(1);
    *list = src;
    *resultList = dst;
    if constexpr (sizeof(T) == 4) {
        EXPECT_EQ(tenkLUDecomp_ma_32f_4x4(src, matrix, row, r, dst, matrix, row, 8), tenkSingularError);
        EXPECT_EQ(tenkLUDecomp_ma_32f_4x4_L(list, 0, row, r, resultList, 0, row, 8), tenkSingularError);
    } else {
        EXPECT_EQ(tenkLUDecomp_ma_64f_4x4(src, matrix, row, r, dst, matrix, row, 8), tenkSingularError);
        EXPECT_EQ(tenkLUDecomp_ma_64f_4x4_L(list, 0, row, r, resultList, 0, row, 8), tenkSingularError);
    }
    for (std::uint32_t i = 0; i < 4; ++i)
        EXPECT_EQ(r[i], i);
}

TYPED_TEST(LUDecomp, ListsMayNameTheResultsInAnyOrder)
{
    // Each result is the source of the object before, so reading ahead changes nothing; and once more with
    // results that are sources of later objects, where it would.
    using T = TypeParam;
    std::mt19937 random(12);
    for (bool later : {false, true}) {
        std::vector<T> memory = randomElements<T>(random, 9 * 16 + 200);
        std::fill(memory.end() - 200, memory.end(), T{1});
        std::vector<T> expected = memory;
        const T* src[8];
        T* dst[8];
        for (std::size_t k = 0; k < 8; ++k) {
            const std::size_t from = later ? k : k + 1, to = later ? k + 1 : k;
            src[k] = &memory[16 * from];
            dst[k] = &memory[16 * to];
            const auto f = factorsOf(std::vector<T>(expected.begin() + static_cast<long>(16 * from),
                                                    expected.begin() + static_cast<long>(16 * (from + 1))),
                                     4, sizeof(T) == 8, false);
            std::copy(f.d.begin(), f.d.end(), expected.begin() + static_cast<long>(16 * to));
        }
        std::uint32_t r[32];
        if constexpr (sizeof(T) == 4)
            tenkLUDecomp_ma_32f_4x4_L(src, 0, 16, r, dst, 0, 16, 8);
        else
            tenkLUDecomp_ma_64f_4x4_L(src, 0, 32, r, dst, 0, 32, 8);
        EXPECT_TRUE(same(memory, expected));
    }
}

TYPED_TEST(LUDecomp, ResultsThatShareMemoryAreWrittenOneAfterTheOther)
{
    // A step of 0: what stays is the last object.
    using T = TypeParam;
    std::mt19937 random(13);
    const std::vector<T> src = randomElements<T>(random, 8 * 16);
    std::vector<T> dst(200, T{1});
    std::uint32_t r[32];
    if constexpr (sizeof(T) == 4)
        tenkLUDecomp_ma_32f_4x4(src.data(), 64, 16, r, dst.data(), 0, 16, 8);
    else
        tenkLUDecomp_ma_64f_4x4(src.data(), 128, 32, r, dst.data(), 0, 32, 8);
    const auto f = factorsOf(std::vector<T>(src.end() - 16, src.end()), 4, false, false);
    EXPECT_TRUE(same(std::vector<T>(dst.begin(), dst.begin() + 16), f.d));
}

TYPED_TEST(LUDecomp, ForObject0ABatchAndASingleMatrixAgree)
{
    // Rows (1, 2, 4), (4, 4, 8), (2, 6, 1): position 0 takes row 1, with multipliers 1/4 and 1/2 exact in
    // both forms and rows (1/4, 1, 2) and (1/2, 4, -3); position 1 takes row 2, with 1/4 and 2 + 3/4.
    using T = TypeParam;
    const std::vector<T> a = {1, 2, 4, 4, 4, 8, 2, 6, 1},
                         expected = {T(0.25), T(0.25), T(2.75), 4, 4, 8, T(0.5), 4, -3};
    eachCall<T>([&](auto& call, bool) {
        if (call.n != 3)
            return;
        for (std::size_t k = 0; k < call.count; ++k)
            call.src.setObject(k, a);
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        EXPECT_TRUE(same(call.dst.object(0), expected)) << call.name;
        EXPECT_EQ(call.rowsOf(0), (Rows{1, 2, 0})) << call.name;
    });
}

} // namespace
