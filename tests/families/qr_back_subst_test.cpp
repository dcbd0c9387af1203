#include "tenk/qr_back_subst.h"

#include <algorithm>

#include "families/factors.h"
#include "tenk/qr_decomp.h"

using namespace factors;

namespace {

enum class Code
{
    mv,
    mva,
    mava
};
const char* text(Code c)
{
    return c == Code::mv ? "mv" : c == Code::mva ? "mva" : "mava";
}

template <typename T>
bool stepsByFourBytes(Code code, Form form)
{
    return sizeof(T) == 8 && code == Code::mva && form == Form::list;
}
template <typename T>
bool stepsByOneByte(Code code, Form form)
{
    return sizeof(T) == 8 && code == Code::mava && form == Form::list;
}
template <typename T>
bool standsApart(Code code, Form form)
{
    return stepsByFourBytes<T>(code, form) || stepsByOneByte<T>(code, form);
}

// Written out member by member: general mv and mv _S2, general mva and mava _P, _L, _LS2.
bool multiplies(Code code, unsigned fixed, Form form)
{
    if (fixed)
        return false;
    if (code == Code::mv)
        return form == Form::standard || form == Form::strided;
    return form == Form::pointer || form == Form::list || form == Form::stridedList;
}

template <typename T>
struct Solution
{
    std::vector<T> x, y;
};
// The solve by hand: v and r give the elements of the factor for the reflectors and for the triangle.
template <typename T, typename V, typename R>
Solution<T> solutionOf(V v, R r, const std::vector<T>& b, std::size_t w, bool reciprocal)
{
    const std::size_t h = b.size();
    Solution<T> s{std::vector<T>(w), b};
    for (std::size_t k = 0; k < (w == h ? w - 1 : w); ++k) {
        volatile T u = 1, e = s.y[k];
        for (std::size_t i = k + 1; i < h; ++i) {
            const volatile T product = s.y[i] * v(i, k), square = v(i, k) * v(i, k);
            e = e + product;
            u = u + square;
        }
        const volatile T coefficient = -2 / u;
        e = e * coefficient;
        s.y[k] = s.y[k] + e;
        for (std::size_t i = k + 1; i < h; ++i) {
            const volatile T product = v(i, k) * e;
            s.y[i] = s.y[i] + product;
        }
    }
    for (std::size_t i = w; i-- > 0;) {
        volatile T z = 0;
        for (std::size_t j = i + 1; j < w; ++j) {
            const volatile T product = r(i, j) * s.x[j];
            z = z + product;
        }
        const volatile T difference = i + 1 < w ? s.y[i] - z : s.y[i];
        const volatile T inverse = 1 / r(i, i);
        s.x[i] = reciprocal ? difference * inverse : difference / r(i, i);
    }
    return s;
}

template <typename T>
struct Call
{
    Call(Code code, const Shape& s, Form form, std::size_t count)
        : name(nameOf<T>("QRBackSubst", text(code), s.fixed, form)),
          code(code),
          fixed(s.fixed),
          form(form),
          w(s.width),
          h(s.height),
          count(count),
          src1(form, code == Code::mava, false, h, w, count),
          src2(form, code != Code::mv, true, 1, h, count),
          dst(form, code != Code::mv, true, 1, w, count),
          buffer(h + 1, 77)
    {
        // A row of memory above the first matrix, for the members that read there.
        if (!isTable(form)) {
            const std::size_t above = src1.stride1 + 64;
            src1.memory.insert(src1.memory.begin(), above, std::uint8_t{0x3F});
            for (std::size_t k = 0; k < src1.count; ++k)
                src1.pointers[k] = src1.at(above + 4 + k * src1.stride0) - Operand<T>::shift;
        }
    }
    Arguments arguments()
    {
        Arguments all;
        src1.pass(all, code == Code::mva && !isTable(form));
        bufferAt = all.size();
        addPointer(all, buffer.data());
        src2At = all.size();
        src2.pass(all);
        dstAt = all.size();
        (inPlace ? src2 : dst).pass(all);
        sizesAt = all.size();
        if (!fixed) {
            addWord(all, static_cast<std::uint32_t>(w));
            addWord(all, static_cast<std::uint32_t>(h));
        }
        if (code != Code::mv)
            addWord(all, static_cast<std::uint32_t>(count));
        return all;
    }
    tenkStatus run() { return callByName(name, arguments()); }

    // The elements that the member uses.
    Solution<T> expected(std::size_t k) const
    {
        const std::size_t object = code == Code::mava ? k : 0;
        const auto v = [&](std::size_t i, std::size_t j) {
            T x;
            const unsigned char* at = src1.address(object, i, j);
            if (stepsByFourBytes<T>(code, form))
                at -= j * 4;
            std::memcpy(&x, at, sizeof x);
            return x;
        };
        const auto oneByte = [&](std::size_t i, std::size_t j) {
            T x;
            std::memcpy(&x, src1.address(object, 0, 0) - src1.stride1 + (i + 1) + j * 8, sizeof x);
            return x;
        };
        if (stepsByOneByte<T>(code, form))
            return solutionOf<T>(v, oneByte, b(k), w, multiplies(code, fixed, form));
        return solutionOf<T>(v, v, b(k), w, multiplies(code, fixed, form));
    }
    std::vector<T> b(std::size_t k) const { return rightSides.empty() ? src2.object(k) : rightSides[k]; }

    void fill(std::mt19937& random)
    {
        rightSides.clear();
        for (std::size_t k = 0; k < src1.count; ++k) {
            src1.setObject(k, randomElements<T>(random, w * h));
            for (std::size_t i = 0; i < w && i < h; ++i)
                src1.set(k, i, i, src1.get(k, i, i) + (src1.get(k, i, i) < 0 ? -1 : 1));
        }
        for (std::size_t k = 0; k < src2.count; ++k)
            src2.setObject(k, randomElements<T>(random, h));
        for (std::size_t k = 0; k < src2.count; ++k)
            rightSides.push_back(src2.object(k));
    }

    std::string name;
    Code code;
    unsigned fixed;
    Form form;
    std::size_t w, h, count;
    Operand<T> src1, src2, dst;
    std::vector<T> buffer;
    std::vector<std::vector<T>> rightSides;
    bool inPlace = false;
    std::size_t bufferAt = 0, src2At = 0, dstAt = 0, sizesAt = 0;
};

constexpr Shape shapes[] = {{0, 1, 1}, {0, 1, 3}, {0, 2, 2}, {0, 3, 5}, {0, 5, 5},
                            {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}};

template <typename T, typename F>
void eachCall(F f)
{
    for (const Shape& s : shapes)
        for (Form form : forms) {
            if (existsForOne(form)) {
                Call<T> call(Code::mv, s, form, 1);
                f(call);
            }
            for (Code code : {Code::mva, Code::mava})
                for (std::size_t count : {1, 4, 11}) {
                    Call<T> call(code, s, form, count);
                    f(call);
                }
        }
}

template <typename T>
class QRBackSubst : public ::testing::Test
{
};
using Types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(QRBackSubst, Types);

TYPED_TEST(QRBackSubst, EveryMemberReflectsAndSubstitutesAndWritesNothingElse)
{
    std::mt19937 random(1);
    eachCall<TypeParam>([&](auto& call) {
        call.fill(random);
        const auto factor = call.src1.memory, right = call.src2.memory;
        auto written = call.dst.memory;
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k) {
            ASSERT_TRUE(same(call.dst.object(k), call.expected(k).x)) << call.name << " object " << k;
            for (std::size_t j = 0; j < call.w; ++j)
                std::memcpy(written.data() + (call.dst.address(k, 0, j) - call.dst.memory.data()),
                            call.dst.address(k, 0, j), sizeof(TypeParam));
        }
        auto buffer = call.expected(call.dst.count - 1).y;
        buffer.push_back(77); // behind it
        EXPECT_TRUE(same(call.buffer, buffer)) << call.name;
        EXPECT_EQ(call.dst.memory, written) << call.name;
        EXPECT_EQ(call.src1.memory, factor) << call.name;
        EXPECT_EQ(call.src2.memory, right) << call.name;
    });
}

TYPED_TEST(QRBackSubst, TheDestinationMayBeTheRightHandSide)
{
    std::mt19937 random(2);
    eachCall<TypeParam>([&](auto& call) {
        if (call.w != call.h)
            return;
        call.fill(random);
        call.inPlace = true;
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.src2.count; ++k)
            ASSERT_TRUE(same(call.src2.object(k), call.expected(k).x)) << call.name << " object " << k;
    });
}

// The first whole number whose third is not its product with 1/3.
template <typename T>
T numberThatShowsTheDivision()
{
    const volatile T third = T{1} / 3;
    for (T x = 1;; x += 1) {
        const volatile T product = x * third, quotient = x / 3;
        if (product != quotient)
            return x;
    }
}

// b / 3 and b (1 / 3) differ for some b; diagonal factors show which form a member has.
TYPED_TEST(QRBackSubst, EightGeneralMembersOfATypeMultiplyByTheReciprocalAndAllOthersDivide)
{
    using T = TypeParam;
    const T x = numberThatShowsTheDivision<T>();
    const volatile T third = T{1} / 3, product = x * third, quotient = x / 3;
    std::vector<std::string> multiplying;
    eachCall<T>([&](auto& call) {
        if (standsApart<T>(call.code, call.form) || call.w != call.h)
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k)
            for (std::size_t i = 0; i < call.h; ++i)
                for (std::size_t j = 0; j < call.w; ++j)
                    call.src1.set(k, i, j, i == j ? 3 : 0);
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.setObject(k, std::vector<T>(call.h, x));
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        const bool reciprocal = multiplies(call.code, call.fixed, call.form);
        for (std::size_t k = 0; k < call.dst.count; ++k)
            for (std::size_t j = 0; j < call.w; ++j) // a reflector without components is -1
                ASSERT_EQ(std::abs(call.dst.get(k, 0, j)), reciprocal ? product : quotient) << call.name << j;
        if (reciprocal && call.w == 5 && call.count != 4 && call.count != 11)
            multiplying.push_back(call.name);
    });
    // Of the eight, the two 64f _L members are tested elsewhere.
    EXPECT_EQ(multiplying.size(), sizeof(T) == 4 ? 8U : 6U);
}

TYPED_TEST(QRBackSubst, OnlyTheListMembersOf64fLookElsewhereForTheFactor)
{
    std::mt19937 random(3);
    unsigned members = 0;
    eachCall<TypeParam>([&](auto& call) {
        if (call.w < 3 || call.w != call.h || (!call.fixed && call.w != 5) || call.count == 11)
            return;
        call.fill(random);
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        const auto proper = [&](std::size_t i, std::size_t j) { return call.src1.get(0, i, j); };
        const auto x = solutionOf<TypeParam>(proper, proper, call.b(0), call.w,
                                             multiplies(call.code, call.fixed, call.form))
                           .x;
        const bool solves = bool(same(call.dst.object(0), x));
        EXPECT_EQ(solves, !standsApart<TypeParam>(call.code, call.form)) << call.name;
        members += !solves && call.count == 4;
    });
    EXPECT_EQ(members, sizeof(TypeParam) == 8 ? 10U : 0U);
}

TEST(QRBackSubstAddresses, TheTriangleOfTheMavaListMembersOf64fBeginsARowAboveAndAByteOn)
{
    // Order 1: R(0, 0) is the double at src1[0] - Stride1 + 1.
    unsigned char memory[64] = {};
    const double r = 4, stored = 8, b = 6;
    std::memcpy(memory + 32 - 16 + 1, &r, 8);
    std::memcpy(memory + 32, &stored, 8);
    const double* const src1[1] = {reinterpret_cast<double*>(memory + 32)};
    const double* const src2[1] = {&b};
    double x = 0, buffer = 0;
    double* const dst[1] = {&x};
    EXPECT_EQ(tenkQRBackSubst_mava_64f_L(src1, 0, 16, &buffer, src2, 0, dst, 0, 1, 1, 1), tenkOk);
    EXPECT_EQ(x, 1.5);
}

TEST(QRBackSubstAddresses, AResultInATriangleThatIsReadAboveALaterMatrixIsReadAsWritten)
{
    // Rows are 64 bytes apart, so R of a matrix is read in the 26 bytes from 63 before it on. That of object
    // 0 is 0x3F.., some small number, and b = 0: the solution is 0. It is written over the first 24 bytes of
    // R of object 1, whose last two are 0. So R is 0 there, y = (-1, -1, 1) and x[2] = 1 / 0; from what stood
    // there before, x[2] would be finite.
    alignas(8) unsigned char memory[1024];
    std::memset(memory, 0x3F, sizeof memory);
    const auto at = [&](std::size_t byte) { return reinterpret_cast<double*>(memory + byte); };
    constexpr std::size_t first = 64, second = 512;
    for (std::size_t start : {first, second})
        for (std::size_t i = 0; i < 3; ++i)
            std::fill_n(at(start + i * 64), 3, 0.0);
    memory[second - 63 + 24] = memory[second - 63 + 25] = 0;
    const double b[6] = {0, 0, 0, 1, 1, 1};
    const double *const src1[2] = {at(first), at(second)}, *const src2[2] = {b, b + 3};
    double* const dst[2] = {at(second - 64), at(896)};
    double buffer[3];
    ASSERT_EQ(tenkQRBackSubst_mava_64f_3x3_L(src1, 0, 64, buffer, src2, 0, dst, 1, 2), tenkOk);
    double x[3];
    std::memcpy(x, memory + second - 63, sizeof x);
    EXPECT_TRUE(same({x[0], x[1], x[2]}, std::vector<double>{0, 0, 0}));
    std::memcpy(x, memory + 897, sizeof x);
    EXPECT_EQ(x[2], std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(x[1]) && std::isnan(x[0])); // 0 x infinity in the sums
}

TEST(QRBackSubstAddresses, TheMvaListMembersOf64fStepByFourBytesInBothStages)
{
    // Two columns, three rows, 16 bytes between rows: element (i, 1) overlaps the second half of (i, 0). All
    // upper halves are those of 1, 2 or 4, and the lower halves of (i, 1) are therefore not zero.
    unsigned char memory[64] = {};
    const double one = 1, two = 2;
    for (int i = 0; i < 3; ++i) {
        std::memcpy(memory + i * 16 + 4, i == 2 ? &two : &one, 8); // (i, 1)
        std::memcpy(memory + i * 16, &one, 4); // lower half of (i, 0); its upper half is that of zero
    }
    double f[3][2];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 2; ++j)
            std::memcpy(&f[i][j], memory + i * 16 + j * 4, 8);
    const auto element = [&](std::size_t i, std::size_t j) { return f[i][j]; };
    const double b[3] = {1, 2, 3};
    const double* const src2[1] = {b};
    double x[2], buffer[3];
    double* const dst[1] = {x};
    EXPECT_EQ(
        tenkQRBackSubst_mva_64f_L(reinterpret_cast<double*>(memory), 5, 16, buffer, src2, 0, dst, 0, 2, 3, 1),
        tenkOk);
    const auto expected = solutionOf<double>(element, element, {1, 2, 3}, 2, true);
    EXPECT_EQ(expected.x[1], expected.y[1]); // R(1, 1) is one
    EXPECT_TRUE(same(std::vector<double>(x, x + 2), expected.x));
    EXPECT_TRUE(same(std::vector<double>(buffer, buffer + 3), expected.y));
}

// Decomposes in one layout and solves from each other one; least squares against the normal equations.
TYPED_TEST(QRBackSubst, AFactorMayBeReadInAnyLayoutAndGivesTheLeastSquares)
{
    using T = TypeParam;
    std::mt19937 random(4);
    for (Form written : forms)
        for (Form read : forms)
            for (Code code : {Code::mv, Code::mva, Code::mava})
                for (const Shape& s : shapes) {
                    if (standsApart<T>(code, read) || (code == Code::mv && !existsForOne(read)))
                        continue;
                    const std::size_t w = s.width, h = s.height, count = code == Code::mava ? 5 : 1;
                    Operand<T> a(written, true, false, h, w, count),
                        factors(written, true, false, h, w, count);
                    Call<T> call(code, s, read, 5);
                    call.fill(random);
                    for (std::size_t k = 0; k < count; ++k) {
                        a.setObject(k, randomElements<T>(random, w * h));
                        for (std::size_t i = 0; i < w; ++i)
                            a.set(k, i, i, a.get(k, i, i) + 3);
                    }
                    Arguments arguments;
                    a.pass(arguments);
                    addPointer(arguments, call.buffer.data());
                    factors.pass(arguments);
                    if (!s.fixed) {
                        addWord(arguments, static_cast<std::uint32_t>(w));
                        addWord(arguments, static_cast<std::uint32_t>(h));
                    }
                    addWord(arguments, static_cast<std::uint32_t>(count));
                    ASSERT_EQ(callByName(nameOf<T>("QRDecomp", "ma", s.fixed, written), arguments), tenkOk);
                    for (std::size_t k = 0; k < count; ++k)
                        call.src1.setObject(k, factors.object(k));
                    ASSERT_EQ(call.run(), tenkOk) << call.name;
                    for (std::size_t k = 0; k < call.dst.count; ++k) {
                        const std::size_t matrix = code == Code::mava ? k : 0;
                        for (std::size_t j = 0; j < w; ++j) { // A' (A x - b) is zero
                            __float128 normal = 0;
                            for (std::size_t i = 0; i < h; ++i) {
                                __float128 residual = -__float128(call.src2.get(k, 0, i));
                                for (std::size_t c = 0; c < w; ++c)
                                    residual +=
                                        __float128(a.get(matrix, i, c)) * __float128(call.dst.get(k, 0, c));
                                normal += residual * __float128(a.get(matrix, i, j));
                                if (w == h) {
                                    ASSERT_LE(std::abs(double(residual)),
                                              64 * std::numeric_limits<T>::epsilon())
                                        << call.name;
                                }
                            }
                            ASSERT_LE(std::abs(double(normal)), 256 * std::numeric_limits<T>::epsilon())
                                << call.name;
                        }
                    }
                }
}

// ---------------------------------------------------------------------------------------------------------------
// The documented edge cases
// ---------------------------------------------------------------------------------------------------------------

TYPED_TEST(QRBackSubst, OneByOneAppliesNoReflector)
{
    using T = TypeParam;
    const T b = numberThatShowsTheDivision<T>();
    const volatile T third = T{1} / 3, product = b * third, quotient = b / 3;
    eachCall<T>([&](auto& call) {
        if (call.w != 1 || call.h != 1 || stepsByOneByte<T>(call.code, call.form))
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k)
            call.src1.set(k, 0, 0, T(3));
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.set(k, 0, 0, b);
        EXPECT_EQ(call.run(), tenkOk) << call.name;
        const T expected = multiplies(call.code, call.fixed, call.form) ? product : quotient;
        for (std::size_t k = 0; k < call.dst.count; ++k)
            EXPECT_EQ(call.dst.get(k, 0, 0), expected) << call.name << " object " << k;
        EXPECT_TRUE(same(call.buffer, {b, 77})) << call.name; // a reflector would have turned its sign
    });
}

TYPED_TEST(QRBackSubst, TheBufferIsAsLongAsAColumnHoweverManyObjectsThereAre)
{
    // Between memory that must not be touched: behind the buffer it cannot even be read.
    using T = TypeParam;
    const PageEnd memory;
    std::mt19937 random(8);
    eachCall<T>([&](auto& call) {
        call.fill(random);
        T* const buffer = memory.last<T>(call.h);
        buffer[-1] = T(55);
        Arguments all = call.arguments();
        all[call.bufferAt].bits = reinterpret_cast<std::uintptr_t>(buffer);
        ASSERT_EQ(callByName(call.name, all), tenkOk) << call.name;
        EXPECT_EQ(buffer[-1], T(55)) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k)
            ASSERT_TRUE(same(call.dst.object(k), call.expected(k).x)) << call.name << " object " << k;
    });
}

TEST(QRBackSubstEdges, OneColumnOfThreeRowsIsOneReflectorAndOneDivision)
{
    // A = (0, 3, 4)': R = 5, v = (1, -3/5, -4/5), t = -1. b = (5, 10, 5): e = (5 - 6 - 4) (-1) = 5, y = (10,
    // 7, 1).
    const double f[3] = {5, -0.6, -0.8}, b[3] = {5, 10, 5};
    double x = 0, buffer[3];
    ASSERT_EQ(tenkQRBackSubst_mva_64f(f, 0, 8, buffer, b, 0, &x, 0, 1, 3, 1), tenkOk);
    EXPECT_NEAR(x, 2, 1e-15);
    EXPECT_NEAR(buffer[0], 10, 1e-14);
    EXPECT_NEAR(buffer[1], 7, 1e-14);
    EXPECT_NEAR(buffer[2], 1, 1e-14);
}

TYPED_TEST(QRBackSubst, AZeroLastDiagonalElementGivesInfinitiesAndNaNsWithOk)
{
    using T = TypeParam;
    eachCall<T>([&](auto& call) {
        if (call.w != 3 || call.h != 3 || standsApart<T>(call.code, call.form))
            return;
        for (std::size_t k = 0; k < call.src1.count; ++k)
            call.src1.setObject(k, {-1, 1, 1, 0, -1, 0, 0, 0, 0});
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.setObject(k, {1, 1, 1});
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k) {
            EXPECT_EQ(call.dst.get(k, 0, 2), std::numeric_limits<T>::infinity()) << call.name;
            EXPECT_TRUE(std::isnan(call.dst.get(k, 0, 1))) << call.name; // 0 x infinity in the sum
            EXPECT_TRUE(std::isnan(call.dst.get(k, 0, 0))) << call.name;
        }
        // A zero over zero, or times an infinite reciprocal.
        for (std::size_t k = 0; k < call.src2.count; ++k)
            call.src2.setObject(k, {1, 1, 0});
        ASSERT_EQ(call.run(), tenkOk) << call.name;
        for (std::size_t k = 0; k < call.dst.count; ++k)
            for (std::size_t j = 0; j < 3; ++j)
                EXPECT_TRUE(std::isnan(call.dst.get(k, 0, j))) << call.name << j;
    });
}

TEST(QRBackSubstEdges, WithFewerRowsThanColumnsItWorksOnBehindTheEnds)
{
    // Two columns, one row: reflector 1 has no vector and turns the sign of buffer[1], which lies behind the
    // buffer's one element; then R(1, 1) is read a row behind the factor.
    const float f[4] = {2, 3, 99, 4}, b[1] = {10};
    float buffer[3] = {0, 8, 77}, x[2];
    ASSERT_EQ(tenkQRBackSubst_mva_32f(f, 0, 8, buffer, b, 0, x, 0, 2, 1, 1), tenkOk);
    EXPECT_EQ(buffer[0], -10);
    EXPECT_EQ(buffer[1], -8);
    EXPECT_EQ(buffer[2], 77);
    EXPECT_EQ(x[1], -2);
    EXPECT_EQ(x[0], -2);
}

TYPED_TEST(QRBackSubst, ADestinationOverLaterRightHandSidesIsReadAsWritten)
{
    // -1 on the diagonal: the two reflectors and R turn the sign of all but the last unknown twice.
    using T = TypeParam;
    const T identity[9] = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    T memory[24], buffer[3];
    for (int e = 0; e < 24; ++e)
        memory[e] = static_cast<T>(e);
    if constexpr (sizeof(T) == 4)
        ASSERT_EQ(tenkQRBackSubst_mva_32f_3x3(identity, 1, 12, buffer, memory, 12, memory + 3, 12, 7),
                  tenkOk);
    else
        ASSERT_EQ(tenkQRBackSubst_mva_64f_3x3(identity, 1, 24, buffer, memory, 24, memory + 3, 24, 7),
                  tenkOk);
    for (int e = 0; e < 24; ++e)
        EXPECT_EQ(memory[e], e % 3);
}

TYPED_TEST(QRBackSubst, NullComesBeforeSizeAndSizeBeforeCount)
{
    std::mt19937 random(5);
    eachCall<TypeParam>([&](auto& call) {
        call.fill(random);
        const auto memory = call.dst.memory;
        Arguments all = call.arguments();
        if (call.code != Code::mv) {
            all.back().bits = 0;
            EXPECT_EQ(callByName(call.name, all), tenkOk) << call.name;
        }
        for (std::size_t size : {0, 1}) {
            Arguments zero = all;
            if (!call.fixed) {
                zero[call.sizesAt + size].bits = 0;
                EXPECT_EQ(callByName(call.name, zero), tenkSizeError) << call.name;
            }
            for (std::size_t at : {std::size_t{0}, call.bufferAt, call.src2At, call.dstAt}) {
                Arguments null = zero;
                null[at].bits = 0;
                EXPECT_EQ(callByName(call.name, null), tenkNullPointerError) << call.name;
            }
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
        EXPECT_TRUE(same(call.buffer, std::vector<TypeParam>(call.h + 1, 77))) << call.name;
    });
}

TYPED_TEST(QRBackSubst, ANullEntryOfATableFailsBeforeAnythingIsWritten)
{
    std::mt19937 random(6);
    eachCall<TypeParam>([&](auto& call) {
        if (!isTable(call.form))
            return;
        call.fill(random);
        const auto memory = call.dst.memory;
        for (auto* operand : {&call.src1, &call.src2, &call.dst}) {
            unsigned char*& last = operand->pointers[operand->rows * operand->columns - 1];
            unsigned char* const kept = last;
            last = nullptr;
            Arguments all = call.arguments();
            EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            if (call.code != Code::mv) {
                all.back().bits = 0;
                EXPECT_EQ(callByName(call.name, all), tenkNullPointerError) << call.name;
            }
            last = kept;
        }
        EXPECT_EQ(call.dst.memory, memory) << call.name;
        EXPECT_TRUE(same(call.buffer, std::vector<TypeParam>(call.h + 1, 77))) << call.name;
    });
}

TYPED_TEST(QRBackSubst, ANullEntryOfAListFailsWhenItsObjectIsReached)
{
    std::mt19937 random(7);
    eachCall<TypeParam>([&](auto& call) {
        if (!isList(call.form) || call.count < 4)
            return;
        for (auto* operand : {&call.src1, &call.src2, &call.dst})
            for (std::size_t bad : {std::size_t{0}, std::size_t{2}, call.count - 1}) {
                if (!operand->array)
                    continue;
                call.fill(random);
                std::fill(call.dst.memory.begin(), call.dst.memory.end(), std::uint8_t{1});
                unsigned char* const kept = operand->pointers[bad];
                operand->pointers[bad] = nullptr;
                EXPECT_EQ(call.run(), tenkNullPointerError) << call.name;
                operand->pointers[bad] = kept;
                for (std::size_t k = 0; k < call.count; ++k)
                    EXPECT_EQ(bool(same(call.dst.object(k), call.expected(k).x)), k < bad) << call.name << k;
            }
    });
}

TYPED_TEST(QRBackSubst, SumsOfTheTriangleStartAtPlusZero)
{
    // Vectors of zeros: e = (-0 + 0 + 0) (-2) = -0, so y[0] = -0 + -0 = -0; y[1] = 1 - 2; y[2] = 1. The sum
    // of unknown 0 is +0 + -0 + -0 = +0, and -0 - +0 = -0; a sum of -0 alone would give +0.
    using T = TypeParam;
    const T zero = -T{0}, factor[9] = {1, zero, zero, 0, -1, 0, 0, 0, 1};
    T b[12], x[12], buffer[3];
    for (int e = 0; e < 12; ++e)
        b[e] = e % 3 == 0 ? zero : T{1};
    const std::vector<T> expected = {zero, 1, 1};
    constexpr std::uint32_t row = 3 * sizeof(T), element = sizeof(T);
    if constexpr (sizeof(T) == 4)
        tenkQRBackSubst_mv_32f_3x3_S2(factor, row, element, buffer, b, element, x, element);
    else
        tenkQRBackSubst_mv_64f_3x3_S2(factor, row, element, buffer, b, element, x, element);
    EXPECT_TRUE(same({x[0], x[1], x[2]}, expected));
    if constexpr (sizeof(T) == 4)
        tenkQRBackSubst_mva_32f_3x3(factor, 0, row, buffer, b, row, x, row, 4);
    else
        tenkQRBackSubst_mva_64f_3x3(factor, 0, row, buffer, b, row, x, row, 4);
    for (int k = 0; k < 4; ++k)
        EXPECT_TRUE(same({x[3 * k], x[3 * k + 1], x[3 * k + 2]}, expected)) << k;
}

TYPED_TEST(QRBackSubst, ResultsThatShareMemoryAreWrittenOneAfterTheOther)
{
    // The reflectors and R turn the sign of all but the last unknown twice: x = b. Each result begins at the
    // second element of the one before, by a step and by lists: the first elements of all stay, and the whole
    // of the last. (The lists have one factor in 32f; those of many in 64f read R elsewhere.)
    using T = TypeParam;
    const T factor[9] = {-1, 0, 0, 0, -1, 0, 0, 0, 1};
    T b[24], x[10], buffer[3];
    const T* src2[8];
    T* dst[8];
    for (std::size_t k = 0; k < 8; ++k) {
        for (std::size_t i = 0; i < 3; ++i)
            b[3 * k + i] = static_cast<T>(10 * (k + 1) + i);
        src2[k] = &b[3 * k];
        dst[k] = &x[k];
    }
    const std::vector<T> expected = {10, 20, 30, 40, 50, 60, 70, 80, 81, 82};
    constexpr std::uint32_t row = 3 * sizeof(T), element = sizeof(T);
    for (int member = 0; member < (sizeof(T) == 4 ? 3 : 2); ++member) {
        std::fill(x, x + 10, T{0});
        if constexpr (sizeof(T) == 4)
            member == 0   ? tenkQRBackSubst_mva_32f_3x3(factor, 0, row, buffer, b, row, x, element, 8)
            : member == 1 ? tenkQRBackSubst_mava_32f_3x3(factor, 0, row, buffer, b, row, x, element, 8)
                          : tenkQRBackSubst_mva_32f_3x3_L(factor, 0, row, buffer, src2, 0, dst, 0, 8);
        else
            (member == 0 ? tenkQRBackSubst_mva_64f_3x3 : tenkQRBackSubst_mava_64f_3x3)(factor, 0, row, buffer,
                                                                                       b, row, x, element, 8);
        EXPECT_TRUE(same(std::vector<T>(x, x + 10), expected)) << member;
    }
}

} // namespace
