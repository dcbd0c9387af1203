// Matrix by matrix.
#include "product_operands.h"
#include "tenk/mul.h"

using namespace objects;

namespace {

struct Code
{
    std::string name;
    bool array1, transposed1, array2, transposed2;
    bool batch() const { return array1 || array2; }
};

std::vector<Code> allCodes()
{
    std::vector<Code> all;
    for (const bool array1 : {false, true})
        for (const bool array2 : {false, true})
            for (const bool transposed2 : {false, true})
                for (const bool transposed1 : {false, true})
                    all.push_back({std::string(array1 ? "ma" : "m") + (transposed1 ? "T" : "") +
                                       (array2 ? "ma" : "m") + (transposed2 ? "T" : ""),
                                   array1, transposed1, array2, transposed2});
    return all;
}
const std::vector<Code> codes = allCodes();

std::vector<std::string> layoutsOf(const Code& c)
{
    if (c.batch())
        return {std::begin(arrayLayouts), std::end(arrayLayouts)};
    return {std::begin(singleLayouts), std::end(singleLayouts)};
}
bool isDense(const std::string& layout)
{
    return layout.empty() || layout == "_L";
}

// The members of layouts with steps or tables whose sums start with their first term.
bool startsWithFirstTerm(const std::string& name)
{
    static const std::vector<std::string> names = {
        "tenkMul_mam_32f_3x3_S2",   "tenkMul_maTm_32f_3x3_S2",  "tenkMul_mamT_32f_3x3_S2",
        "tenkMul_maTmT_32f_3x3_S2", "tenkMul_mama_32f_3x3_S2",  "tenkMul_mam_32f_3x3_P",
        "tenkMul_maTm_32f_3x3_P",   "tenkMul_mamT_32f_3x3_P",   "tenkMul_mam_32f_3x3_PS2",
        "tenkMul_maTm_32f_3x3_PS2", "tenkMul_mamT_32f_3x3_PS2", "tenkMul_mam_32f_3x3_LS2",
        "tenkMul_maTm_32f_3x3_LS2", "tenkMul_mamT_32f_3x3_LS2", "tenkMul_maTmT_32f_3x3_LS2",
        "tenkMul_mam_32f_4x4_S2",   "tenkMul_mama_32f_4x4_S2",  "tenkMul_mam_32f_5x5_S2",
        "tenkMul_mama_32f_5x5_S2",  "tenkMul_mm_32f_6x6_S2",    "tenkMul_mmT_32f_6x6_S2",
        "tenkMul_mTmT_32f_6x6_S2",
    };
    return std::find(names.begin(), names.end(), name) != names.end();
}
bool testsNoEntry(const std::string& name)
{
    return startsWithFirstTerm(name) && name.find("_S2") == name.npos;
}
bool sumsInPairs(const std::string& name)
{
    return startsWithFirstTerm(name) && name.find("6x6") != name.npos;
}

// The operands of one call on square matrices; size 0 is the general member.
template <typename T>
struct Product
{
    Code code;
    unsigned n, order, count;
    std::string name;
    Objects<T> a, b, d;

    Product(const Code& c, const std::string& layout, unsigned size, unsigned objects = 3,
            unsigned general = 3)
        : code(c),
          n(size),
          order(size == 0 ? general : size),
          count(c.batch() ? objects : 1),
          name("tenkMul_" + c.name + "_" + typeName<T>() + sizeName(size) + layout),
          a(layout, c.array1, false, objects, order, order),
          b(layout, c.array2, false, objects, order, order),
          d(layout, c.batch(), false, objects, order, order)
    {
        a.fill(1);
        b.fill(2);
        d.fill(3);
    }

    // `d` stands for the destination's arguments: those of a or b make the call work in place.
    Arguments arguments(std::uint32_t number, const Arguments& destination) const
    {
        const Arguments sizes = n == 0 ? words({order, order}) : Arguments{};
        const Arguments all = a.arguments() + sizes + b.arguments() + sizes + destination;
        return code.batch() ? all + words({number}) : all;
    }
    Arguments arguments(std::uint32_t number) const { return arguments(number, d.arguments()); }
    std::int32_t run() const { return call(name, arguments(count)); }

    std::vector<T> terms(unsigned k, unsigned i, unsigned j)
    {
        std::vector<T> t;
        for (unsigned p = 0; p < order; ++p)
            t.push_back((code.transposed1 ? a.at(k, p, i) : a.at(k, i, p)) *
                        (code.transposed2 ? b.at(k, j, p) : b.at(k, p, j)));
        return t;
    }
};

template <typename F>
void eachType(F f)
{
    f.template operator()<float>();
    f.template operator()<double>();
}
template <typename F>
void eachMember(F f)
{
    for (const Code& c : codes)
        for (const std::string& layout : layoutsOf(c))
            for (unsigned n : {0U, 3U, 4U, 5U, 6U})
                eachType([&]<typename T>() { f.template operator()<T>(c, layout, n); });
}
template <typename F>
void eachGeneralMember(F f)
{
    for (const Code& c : codes)
        for (const std::string& layout : layoutsOf(c))
            eachType([&]<typename T>() { f.template operator()<T>(c, layout); });
}

template <typename T>
T inTurn(const std::vector<T>& t)
{
    T s = t[0];
    for (std::size_t p = 1; p < t.size(); ++p)
        s = s + t[p];
    return s;
}
template <typename T>
T inPairs(const std::vector<T>& t)
{
    return ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
}

struct Shape
{
    std::uint32_t width1, height1, width2, height2;
};

// A general call over zeros, with room for any product of small sizes.
template <typename T>
std::int32_t statusOf(const Code& c, const std::string& layout, Shape s, std::uint32_t count)
{
    Objects<T> a(layout, c.array1, false, 1, 8, 8), b(layout, c.array2, false, 1, 8, 8),
        d(layout, c.batch(), false, 1, 8, 8);
    const Arguments all = a.arguments() + words({s.width1, s.height1}) + b.arguments() +
                          words({s.width2, s.height2}) + d.arguments();
    return call("tenkMul_" + c.name + "_" + typeName<T>() + layout, c.batch() ? all + words({count}) : all);
}

} // namespace

TEST(MulMatrix, TwoByThreeTimesThreeByTwo)
{
    const float a[] = {1, 2, 3, 4, 5, 6}, b[] = {1, 10, 2, 20, 3, 30};
    float d[] = {-1, -1, -1, -1, -1};
    EXPECT_EQ(tenkMul_mm_32f(a, 12, 3, 2, b, 8, 2, 3, d, 8), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3], d[4]}), (std::array{14.F, 140.F, 32.F, 320.F, -1.F}));
    const double e[] = {1, 2, 3, 4, 5, 6}, f[] = {1, 10, 2, 20, 3, 30};
    double g[] = {-1, -1, -1, -1, -1};
    EXPECT_EQ(tenkMul_mm_64f(e, 24, 3, 2, f, 16, 2, 3, g, 16), tenkOk);
    EXPECT_EQ((std::array{g[0], g[1], g[2], g[3], g[4]}), (std::array{14., 140., 32., 320., -1.}));
}

TEST(MulMatrix, ThreeByThreeByHand)
{
    const float a[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, b[] = {1, 0, 0, 0, 10, 0, 0, 1, 100};
    float d[10] = {0, 0, 0, 0, 0, 0, 0, 0, 0, -1};
    const auto expect = [&](std::array<float, 9> x) {
        EXPECT_TRUE(std::equal(x.begin(), x.end(), d));
        EXPECT_EQ(d[9], -1);
    };
    EXPECT_EQ(tenkMul_mm_32f_3x3(a, 12, b, 12, d, 12), tenkOk);
    expect({1, 23, 300, 4, 56, 600, 7, 89, 900});
    EXPECT_EQ(tenkMul_mTm_32f_3x3(a, 12, b, 12, d, 12), tenkOk);
    expect({1, 47, 700, 2, 58, 800, 3, 69, 900});
    EXPECT_EQ(tenkMul_mmT_32f_3x3(a, 12, b, 12, d, 12), tenkOk);
    expect({1, 20, 302, 4, 50, 605, 7, 80, 908});
    EXPECT_EQ(tenkMul_mTmT_32f_3x3(a, 12, b, 12, d, 12), tenkOk);
    expect({1, 40, 704, 2, 50, 805, 3, 60, 906});
}

TEST(MulMatrix, SizesThatAreCompared)
{
    // Four different sizes, of which two are made equal: every other pair must not do.
    using Size = std::uint32_t Shape::*;
    const Size sizes[] = {&Shape::width1, &Shape::height1, &Shape::width2, &Shape::height2};
    eachGeneralMember([&]<typename T>(const Code& c, const std::string& layout) {
        Size x = c.transposed1 ? &Shape::height1 : &Shape::width1;
        Size y = c.transposed2 ? &Shape::width2 : &Shape::height2;
        if (c.name == "mma" || c.name == "mama") {
            x = &Shape::height1;
            y = &Shape::width2;
        }
        for (const Size one : {sizes[0], sizes[1]})
            for (const Size other : {sizes[2], sizes[3]}) {
                Shape s{2, 3, 4, 5};
                s.*other = s.*one;
                for (const std::uint32_t count : {0U, 1U})
                    EXPECT_EQ(statusOf<T>(c, layout, s, count),
                              one == x && other == y ? tenkOk : tenkSizeError)
                        << c.name << layout << " of " << count;
            }
    });
}

TEST(MulMatrix, TransposedSizesAreThoseOfTheStoredObjectInTheTestAlone)
{
    // mTm of widths 2, 4 and heights 3, 3: left(i, p) is a(p, i), three rows of four.
    float a[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    float b[3][4] = {{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}};
    float d[3][4] = {};
    EXPECT_EQ(tenkMul_mTm_32f(&a[0][0], 12, 2, 3, &b[0][0], 16, 4, 3, &d[0][0], 16), tenkOk);
    const float mTm[3][4] = {{1, 4, 7, 12}, {2, 5, 8, 15}, {3, 6, 9, 18}};
    EXPECT_EQ(std::memcmp(d, mTm, sizeof d), 0);

    // mmT of widths 3, 3 and heights 2, 4: two rows of three, sums of four, the fourth from column 3 of a.
    const double e[2][4] = {{1, 2, 3, 1000}, {4, 5, 6, 2000}};
    const double f[3][4] = {{1, 0, 0, 1}, {0, 1, 0, 2}, {0, 0, 1, 3}};
    double g[2][3] = {};
    EXPECT_EQ(tenkMul_mmT_64f(&e[0][0], 32, 3, 2, &f[0][0], 32, 3, 4, &g[0][0], 24), tenkOk);
    const double mmT[2][3] = {{1001, 2002, 3003}, {2004, 4005, 6006}};
    EXPECT_EQ(std::memcmp(g, mmT, sizeof g), 0);

    // mma of widths 2, 3 and heights 3, 4: three rows of three, sums of four.
    const float h[3][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}};
    const float q[4][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {100, 200, 300}};
    float r[3][3] = {};
    EXPECT_EQ(tenkMul_mma_32f(&h[0][0], 16, 2, 3, &q[0][0], 0, 12, 3, 4, &r[0][0], 0, 12, 1), tenkOk);
    const float mma[3][3] = {{401, 802, 1203}, {805, 1606, 2407}, {1209, 2410, 3611}};
    EXPECT_EQ(std::memcmp(r, mma, sizeof r), 0);
}

TEST(MulMatrix, AZeroSizeIsAnErrorButForTheColumnsOfMam)
{
    eachGeneralMember([]<typename T>(const Code& c, const std::string& layout) {
        for (const std::uint32_t count : {0U, 1U}) {
            EXPECT_EQ(statusOf<T>(c, layout, {0, 0, 0, 0}, count), tenkSizeError);
            EXPECT_EQ(statusOf<T>(c, layout, {0, 3, 3, 3}, count), tenkSizeError) << c.name << layout;
            EXPECT_EQ(statusOf<T>(c, layout, {3, 0, 3, 3}, count), tenkSizeError) << c.name << layout;
            EXPECT_EQ(statusOf<T>(c, layout, {3, 3, 3, 0}, count), tenkSizeError) << c.name << layout;
            EXPECT_EQ(statusOf<T>(c, layout, {3, 3, 0, 3}, count), c.name == "mam" ? tenkOk : tenkSizeError)
                << c.name << layout;
        }
    });
}

TEST(MulMatrix, MamWithoutColumnsStillTestsItsEntries)
{
    for (const std::string& layout : arrayLayouts)
        eachType([&]<typename T>() {
            if (!hasTable(layout) && !hasList(layout))
                return;
            for (const bool destination : {false, true}) {
                Objects<T> a(layout, true, false, 2, 3, 3), b(layout, false, false, 2, 3, 3),
                    d(layout, true, false, 2, 3, 3);
                (destination ? d : a).pointers[1] = nullptr;
                const Arguments all =
                    a.arguments() + words({3, 3}) + b.arguments() + words({0, 3}) + d.arguments();
                EXPECT_EQ(call(std::string("tenkMul_mam_") + typeName<T>() + layout, all + words({2})),
                          tenkNullPointerError)
                    << layout;
            }
        });
}

TEST(MulMatrix, NullOperandsComeBeforeSizesAndCount)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n);
        Arguments all = x.arguments(0);
        const std::size_t first = x.a.arguments().size();
        if (n == 0)
            all[first] = word(0);
        const std::size_t second = first + (n == 0 ? 2 : 0);
        const std::size_t third = second + x.b.arguments().size() + (n == 0 ? 2 : 0);
        for (const std::size_t place : {std::size_t{0}, second, third}) {
            Arguments broken = all;
            broken[place] = pointer(nullptr);
            EXPECT_EQ(call(x.name, broken), tenkNullPointerError) << x.name << " " << place;
        }
    });
}

TEST(MulMatrix, TermsAreAddedInTurnButInThreeMembers)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n, 4, 7);
        ASSERT_EQ(x.run(), tenkOk) << x.name;
        unsigned differ = 0;
        for (unsigned k = 0; k < x.count; ++k)
            for (unsigned i = 0; i < x.order; ++i)
                for (unsigned j = 0; j < x.order; ++j) {
                    const std::vector<T> t = x.terms(k, i, j);
                    if (sumsInPairs(x.name)) {
                        EXPECT_EQ(x.d.at(k, i, j), inPairs(t)) << x.name << " " << k << i << j;
                        differ += inPairs(t) != inTurn(t);
                    } else {
                        EXPECT_EQ(x.d.at(k, i, j), inTurn(t)) << x.name << " " << k << i << j;
                    }
                }
        if (sumsInPairs(x.name)) {
            EXPECT_GT(differ, 0U) << x.name;
        }
    });
}

// Terms big, 1, -big, 1, 0, 0: in turn ((big + 1 = big) - big) + 1 = 1, in pairs big + (1 - big) = 1; terms
// 1, big, -big, 1, 0, 0: in turn (big - big) + 1 = 1, in pairs big + (1 - big) = 1; terms big, 1, 1, -big: in
// turn 0, in pairs big + (1 - big) = 1.
TEST(MulMatrix, OrderByHand)
{
    const float big = 16777216;
    float a[6][6] = {{big, 1, 1, -big, 0, 0}}, ones[6][6], d[6][6] = {};
    for (auto& row : ones)
        std::fill(row, row + 6, 1.F);
    EXPECT_EQ(tenkMul_mm_32f_6x6_S2(&a[0][0], 24, 4, &ones[0][0], 24, 4, &d[0][0], 24, 4), tenkOk);
    EXPECT_EQ(d[0][0], 1);
    EXPECT_EQ(tenkMul_mmT_32f_6x6_S2(&a[0][0], 24, 4, &ones[0][0], 24, 4, &d[0][0], 24, 4), tenkOk);
    EXPECT_EQ(d[0][0], 1);
    EXPECT_EQ(tenkMul_mTmT_32f_6x6_S2(&ones[0][0], 24, 4, &a[0][0], 24, 4, &d[0][0], 24, 4), tenkOk);
    EXPECT_EQ(d[0][0], 1);
    EXPECT_EQ(tenkMul_mm_32f_6x6(&a[0][0], 24, &ones[0][0], 24, &d[0][0], 24), tenkOk);
    EXPECT_EQ(d[0][0], 0);
    EXPECT_EQ(tenkMul_mm_32f(&a[0][0], 24, 6, 6, &ones[0][0], 24, 6, 6, &d[0][0], 24), tenkOk);
    EXPECT_EQ(d[0][0], 0);
    float columns[6][6] = {};
    for (unsigned p = 0; p < 6; ++p)
        columns[p][0] = a[0][p];
    EXPECT_EQ(tenkMul_mTm_32f_6x6_S2(&columns[0][0], 24, 4, &ones[0][0], 24, 4, &d[0][0], 24, 4), tenkOk);
    EXPECT_EQ(d[0][0], 0);
}

// Terms big, 1, 1, -big: 2, but 0 where 1 is lost beside big. That is 2^24 in 32f, in every member, and 2^53
// in 64f.
TEST(MulMatrix, SumsAreNeverWiderThanTheirElements)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (n != 0 && n != 4)
            return;
        for (const T big : {T(0x1p24), T(0x1p53)}) {
            Product<T> x(c, layout, n, 2, 4);
            const T terms[] = {big, 1, 1, -big};
            for (unsigned k = 0; k < (c.array1 ? 2U : 1U); ++k)
                for (unsigned i = 0; i < 4; ++i)
                    for (unsigned p = 0; p < 4; ++p)
                        (c.transposed1 ? x.a.at(k, p, i) : x.a.at(k, i, p)) = terms[p];
            x.b.fillWith(1);
            ASSERT_EQ(x.run(), tenkOk) << x.name;
            const T expected = sizeof(T) == 8 && big == T(0x1p24) ? 2 : 0;
            for (unsigned k = 0; k < x.count; ++k)
                for (unsigned i = 0; i < 4; ++i)
                    for (unsigned j = 0; j < 4; ++j)
                        EXPECT_EQ(x.d.at(k, i, j), expected) << x.name;
        }
    });
}

TEST(MulMatrix, TermsOfNegativeZeroKeepTheirSignWhereTheSumStartsWithOne)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n);
        x.a.fillWith(T(-0.0));
        x.b.fillWith(T(2));
        ASSERT_EQ(x.run(), tenkOk);
        const T zero = n != 0 && (isDense(layout) || startsWithFirstTerm(x.name)) ? T(-0.0) : T(0);
        for (unsigned k = 0; k < x.count; ++k)
            for (unsigned i = 0; i < x.order; ++i)
                for (unsigned j = 0; j < x.order; ++j)
                    EXPECT_EQ(bitsOf(x.d.at(k, i, j)), bitsOf(zero)) << x.name;
    });
}

TEST(MulMatrix, LargeGeneralSizesAreExact)
{
    eachGeneralMember([]<typename T>(const Code& c, const std::string& layout) {
        for (const unsigned order : {1U, 2U, 9U, 15U}) {
            Product<T> x(c, layout, 0, 2, order);
            ASSERT_EQ(x.run(), tenkOk);
            for (unsigned k = 0; k < x.count; ++k)
                for (unsigned i = 0; i < order; ++i)
                    for (unsigned j = 0; j < order; ++j)
                        EXPECT_EQ(x.d.at(k, i, j), inTurn(x.terms(k, i, j))) << x.name << " " << order;
        }
    });
}

TEST(MulMatrix, AnEmptyBatchWritesNothing)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (!c.batch())
            return;
        Product<T> x(c, layout, n);
        const auto before = x.d.values();
        EXPECT_EQ(call(x.name, x.arguments(0)), tenkOk) << x.name;
        EXPECT_EQ(x.d.values(), before) << x.name;
        if (!hasList(layout))
            return;
        for (Objects<T>* o : {&x.a, &x.b, &x.d}) // no entry of a list is tested
            std::fill(o->pointers.begin(), o->pointers.end(), nullptr);
        EXPECT_EQ(call(x.name, x.arguments(0)), tenkOk) << x.name;
        EXPECT_EQ(x.d.values(), before) << x.name;
    });
}

// Kernels of two codes read the single factor before they look at the count. Nobody else does.
TEST(MulMatrix, KernelsOfMamAndMaTmReadTheSingleFactorEvenWithoutObjects)
{
    void* const unreadable = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(unreadable, MAP_FAILED);
    eachMember([&]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (!c.batch())
            return;
        const bool named = c.name == "mam" || c.name == "maTm";
        Product<T> x(c, layout, n);
        Arguments all = x.arguments(0);
        if (hasTable(layout))
            std::fill(x.b.pointers.begin(), x.b.pointers.end(), static_cast<T*>(unreadable));
        else
            all[x.a.arguments().size() + (n == 0 ? 2 : 0)] = pointer(unreadable);
        if (named && n != 0 && (isDense(layout) || startsWithFirstTerm(x.name)))
            EXPECT_DEATH(call(x.name, all), "") << x.name;
        else
            EXPECT_EQ(call(x.name, all), tenkOk) << x.name;
    });
    munmap(unreadable, 4096);
}

TEST(MulMatrix, ANullEntryOfATableIsFoundBeforeAnythingIsWritten)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> any(c, layout, n);
        if (!c.batch() || !hasTable(layout) || testsNoEntry(any.name))
            return;
        for (const unsigned count : {0U, 3U})
            for (const unsigned which : {0U, 1U, 2U}) {
                Product<T> x(c, layout, n);
                Objects<T>& o = which == 0 ? x.a : which == 1 ? x.b : x.d;
                const auto before = x.d.values();
                o.pointers.back() = nullptr;
                EXPECT_EQ(call(x.name, x.arguments(count)), tenkNullPointerError) << x.name << which;
                EXPECT_EQ(x.d.values(), before) << x.name;
            }
    });
}

TEST(MulMatrix, ANullEntryOfAListIsFoundAtItsObject)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> whole(c, layout, n);
        if (!hasList(layout) || testsNoEntry(whole.name))
            return;
        ASSERT_EQ(whole.run(), tenkOk);
        for (const unsigned which : {0U, 1U, 2U}) {
            Product<T> x(c, layout, n);
            Objects<T>& o = which == 0 ? x.a : which == 1 ? x.b : x.d;
            if (o.pointers.empty())
                continue;
            o.pointers[1] = nullptr;
            const T untouched = x.d.at(1, 0, 0);
            EXPECT_EQ(call(x.name, x.arguments(0)), tenkOk) << x.name;
            EXPECT_EQ(call(x.name, x.arguments(3)), tenkNullPointerError) << x.name;
            for (unsigned i = 0; i < x.order; ++i)
                for (unsigned j = 0; j < x.order; ++j)
                    EXPECT_EQ(x.d.at(0, i, j), whole.d.at(0, i, j)) << x.name;
            EXPECT_EQ(x.d.at(1, 0, 0), untouched) << x.name;
        }
    });
}

// The word behind the last entry, null or an address of nothing, has no effect.
TEST(MulMatrix, TheWordBehindAListIsNotUsed)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (!hasList(layout))
            return;
        for (const std::uintptr_t word : {std::uintptr_t{0}, std::uintptr_t{1}}) {
            Product<T> x(c, layout, n), whole(c, layout, n);
            ASSERT_EQ(whole.run(), tenkOk);
            const T untouched = x.d.at(2, 0, 0);
            for (Objects<T>* o : {&x.a, &x.b, &x.d})
                if (!o->pointers.empty())
                    o->pointers[2] = reinterpret_cast<T*>(word);
            EXPECT_EQ(call(x.name, x.arguments(2)), tenkOk) << x.name;
            for (unsigned k = 0; k < 2; ++k)
                for (unsigned i = 0; i < x.order; ++i)
                    for (unsigned j = 0; j < x.order; ++j)
                        EXPECT_EQ(x.d.at(k, i, j), whole.d.at(k, i, j)) << x.name;
            EXPECT_EQ(x.d.at(2, 0, 0), untouched) << x.name;
        }
    });
}

// Ten members read and write through a null entry plus the shift.
TEST(MulMatrix, MembersThatTestNoEntry)
{
    const LowMemory low;
    unsigned members = 0;
    eachMember([&]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n, 2), whole(c, layout, n, 2);
        if (!testsNoEntry(x.name))
            return;
        ++members;
        ASSERT_EQ(whole.run(), tenkOk);
        if (hasTable(layout)) {
            // Entry 4 of the destination is null: the results of both objects go to the low memory.
            for (T*& p : x.d.pointers)
                p = low.before(*p);
            x.d.pointers[4] = nullptr;
            x.d.shift = low.shift();
            EXPECT_EQ(x.run(), tenkOk) << x.name;
            EXPECT_EQ(low.value<T>(), whole.d.at(0, 1, 1)) << x.name;
            for (unsigned i = 0; i < 3; ++i)
                EXPECT_EQ(x.d.at(0, i, 0), whole.d.at(0, i, 0)) << x.name;
        } else {
            for (T*& p : x.d.pointers)
                p = low.before(*p);
            x.d.pointers[0] = nullptr;
            x.d.shift = low.shift();
            EXPECT_EQ(x.run(), tenkOk) << x.name;
            EXPECT_EQ(low.value<T>(), whole.d.at(0, 0, 0)) << x.name;
            EXPECT_EQ(x.d.at(1, 2, 2), whole.d.at(1, 2, 2)) << x.name;
        }
        // And a null entry of the left factor is read.
        Product<T> y(c, layout, n, 2);
        for (T*& p : y.a.pointers)
            p = low.before(*p);
        y.a.pointers[1] = nullptr;
        y.a.shift = low.shift();
        EXPECT_EQ(y.run(), tenkOk) << y.name;
    });
    EXPECT_EQ(members, 10U);
}

namespace {

// A general call behind tables whose entries all lead to one element, with a null at one entry of dst.
std::int32_t withNullDestinationEntry(const std::string& name, Shape s, unsigned entry,
                                      std::uint32_t shift = 0)
{
    static float element[64];
    std::vector<float*> a(64), d(64);
    for (unsigned e = 0; e < 64; ++e) {
        a[e] = &element[0];
        d[e] = &element[1];
    }
    for (float*& p : d)
        p = reinterpret_cast<float*>(reinterpret_cast<std::uintptr_t>(p) - shift);
    d[entry] = nullptr;
    return call(name, {pointer(a.data()), word(0), word(s.width1), word(s.height1), pointer(a.data()),
                       word(0), word(s.width2), word(s.height2), pointer(d.data()), word(shift), word(1)});
}

} // namespace

TEST(MulMatrix, TheProductOfTheSizesComparedTellsHowManyDestinationEntriesAreTested)
{
    const LowMemory low;
    // mam, 2 x 3 by 3 x 4: nine entries, though the product has eight.
    EXPECT_EQ(withNullDestinationEntry("tenkMul_mam_32f_P", {3, 2, 4, 3}, 8), tenkNullPointerError);
    EXPECT_EQ(withNullDestinationEntry("tenkMul_mam_32f_P", {3, 2, 4, 3}, 9), tenkOk);
    // maTm, 3 x 4 results: nine entries, the last three are written through.
    EXPECT_EQ(withNullDestinationEntry("tenkMul_maTm_32f_P", {2, 3, 4, 3}, 8), tenkNullPointerError);
    for (const unsigned entry : {9U, 10U, 11U}) {
        low.value<float>() = -1;
        EXPECT_EQ(withNullDestinationEntry("tenkMul_maTm_32f_P", {2, 3, 4, 3}, entry, low.shift()), tenkOk);
        EXPECT_EQ(low.value<float>(), 0) << entry;
    }
    // mma and mama: src1Width x src2Height, 2 x 5, though 3 = 3 was compared.
    for (const char* name : {"tenkMul_mma_32f_P", "tenkMul_mama_32f_P"}) {
        EXPECT_EQ(withNullDestinationEntry(name, {2, 3, 3, 5}, 9), tenkNullPointerError) << name;
        EXPECT_EQ(withNullDestinationEntry(name, {2, 3, 3, 5}, 10), tenkOk) << name;
    }
    // mamT: src1Width x src2Width; maTmT: src1Height x src2Width.
    EXPECT_EQ(withNullDestinationEntry("tenkMul_mamT_32f_P", {3, 2, 3, 1}, 8), tenkNullPointerError);
    EXPECT_EQ(withNullDestinationEntry("tenkMul_mamT_32f_P", {3, 2, 3, 1}, 9), tenkOk);
    EXPECT_EQ(withNullDestinationEntry("tenkMul_maTmT_32f_P", {2, 3, 3, 1}, 8), tenkNullPointerError);
    EXPECT_EQ(withNullDestinationEntry("tenkMul_maTmT_32f_P", {2, 3, 3, 1}, 9), tenkOk);
}

// Of the sources as many entries are tested as the product of their own two sizes, whatever the loops read.
TEST(MulMatrix, EntriesOfTheSourcesAreTestedByTheirOwnSizes)
{
    static float element = 1;
    const auto status = [](const char* name, Shape s, int operand, unsigned entry) {
        std::vector<float*> tables[3];
        for (auto& t : tables)
            t.assign(64, &element);
        static float result;
        tables[2].assign(64, &result);
        tables[operand][entry] = nullptr;
        return call(name, {pointer(tables[0].data()), word(0), word(s.width1), word(s.height1),
                           pointer(tables[1].data()), word(0), word(s.width2), word(s.height2),
                           pointer(tables[2].data()), word(0), word(1)});
    };
    // 2 rows of 3 by 3 rows of 4: 6 and 12 entries.
    EXPECT_EQ(status("tenkMul_mam_32f_P", {3, 2, 4, 3}, 0, 5), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_mam_32f_P", {3, 2, 4, 3}, 0, 6), tenkOk);
    EXPECT_EQ(status("tenkMul_mam_32f_P", {3, 2, 4, 3}, 1, 11), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_mam_32f_P", {3, 2, 4, 3}, 1, 12), tenkOk);
    // The second transposed, of width 3 and height 2: 6 and 6.
    EXPECT_EQ(status("tenkMul_mamT_32f_P", {3, 2, 3, 2}, 0, 5), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_mamT_32f_P", {3, 2, 3, 2}, 0, 6), tenkOk);
    EXPECT_EQ(status("tenkMul_mamT_32f_P", {3, 2, 3, 2}, 1, 5), tenkNullPointerError);
    EXPECT_EQ(status("tenkMul_mamT_32f_P", {3, 2, 3, 2}, 1, 6), tenkOk);
}

// A row of the table of a transposed operand has as many entries as its height argument says.
TEST(MulMatrix, TablesOfTransposedOperandsHaveRowsOfTheirHeight)
{
    float a[6] = {1, 2, 3, 4, 5, 6}, b[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1}, d[9] = {};
    float *pa[9], *pb[9], *pd[9];
    for (unsigned e = 0; e < 9; ++e) {
        pa[e] = &a[e % 6];
        pb[e] = &b[e];
        pd[e] = &d[e];
    }
    // left(i, p) is behind entry 3 p + i.
    EXPECT_EQ(tenkMul_mTm_32f_P(pa, 0, 2, 3, pb, 0, 3, 3, pd, 0), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3], d[4], d[5]}), (std::array{1.F, 4.F, 1.F, 2.F, 5.F, 2.F}));
    EXPECT_EQ((std::array{d[6], d[7], d[8]}), (std::array{3.F, 6.F, 3.F}));
    // right(p, j) is behind entry 2 j + p, left(i, p) behind 3 i + p.
    EXPECT_EQ(tenkMul_mmT_32f_P(pb, 0, 3, 2, pa, 0, 3, 2, pd, 0), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3], d[4], d[5]}), (std::array{1.F, 3.F, 5.F, 2.F, 4.F, 6.F}));
}

TEST(MulMatrix, SingleMembersBehindTablesTestOnTheWay)
{
    for (const Code& c : codes) {
        if (c.batch())
            continue;
        for (const unsigned n : {0U, 3U, 6U})
            eachType([&]<typename T>() {
                { // the entry of the destination before its element
                    Product<T> x(c, "_P", n);
                    const T first = inTurn(x.terms(0, 0, 0)), untouched = x.d.at(0, 0, 1);
                    x.d.pointers[1] = nullptr;
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(x.d.at(0, 0, 0), first) << x.name;
                    EXPECT_EQ(x.d.at(0, 0, 1), untouched) << x.name;
                }
                { // then +0, then a term at a time
                    Product<T> x(c, "_P", n);
                    x.b.pointers[0] = nullptr;
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(bitsOf(x.d.at(0, 0, 0)), 0U) << x.name;
                }
                { // element (0, 0) stops before its term 2, with the sum of two
                    for (const bool left : {false, true}) {
                        Product<T> x(c, "_P", n);
                        const auto t = x.terms(0, 0, 0);
                        const T untouched = x.d.at(0, 0, 1);
                        if (left)
                            x.a.pointers[c.transposed1 ? 2 * x.order : 2] = nullptr;
                        else
                            x.b.pointers[c.transposed2 ? 2 : 2 * x.order] = nullptr;
                        EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                        EXPECT_EQ(x.d.at(0, 0, 0), t[0] + t[1]) << x.name;
                        EXPECT_EQ(x.d.at(0, 0, 1), untouched) << x.name;
                    }
                }
            });
    }
}

namespace {

// Two or three square objects in Standard layout, at any place modulo 16.
template <typename T>
struct Placed
{
    unsigned n;
    std::vector<unsigned char> bytes;
    unsigned char* start;
    std::uint32_t stride0, stride1;

    Placed(unsigned order, unsigned offset, std::uint32_t gap0, std::uint32_t gap1, unsigned seed)
        : n(order), bytes(8192), start(nullptr)
    {
        const std::uint32_t e = sizeof(T);
        stride1 = ((n * e + 15) & ~15U) + gap1;
        stride0 = ((n * stride1 + 15) & ~15U) + gap0;
        const auto p = reinterpret_cast<std::uintptr_t>(bytes.data());
        start = bytes.data() + ((16 - p % 16) % 16) + offset;
        std::mt19937 random(seed);
        for (unsigned k = 0; k < 3; ++k)
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j)
                    set(k, i, j, T(random() % 100));
    }
    unsigned char* place(unsigned k, unsigned i, unsigned j)
    {
        return start + std::size_t{k} * stride0 + std::size_t{i} * stride1 + j * sizeof(T);
    }
    void set(unsigned k, unsigned i, unsigned j, T x) { std::memcpy(place(k, i, j), &x, sizeof x); }
    T get(unsigned k, unsigned i, unsigned j)
    {
        T x;
        std::memcpy(&x, place(k, i, j), sizeof x);
        return x;
    }
    Arguments arguments() const { return {pointer(start), word(stride0), word(stride1)}; }
    Arguments asSingle() const { return {pointer(start), word(stride1)}; }
};

// Which object of the left factor object 1 of the product was made with; -1 if neither.
template <typename T>
int leftOfObject1(const Code& c, Placed<T>& a, Placed<T>& b, Placed<T>& d)
{
    for (const int k : {0, 1}) {
        bool same = true;
        for (unsigned i = 0; i < a.n; ++i)
            for (unsigned j = 0; j < a.n; ++j) {
                T sum = 0;
                for (unsigned p = 0; p < a.n; ++p)
                    sum += (c.transposed1 ? a.get(unsigned(k), p, i) : a.get(unsigned(k), i, p)) *
                           (c.transposed2 ? b.get(c.array2, j, p) : b.get(c.array2, p, j));
                same = same && d.get(1, i, j) == sum;
            }
        if (same)
            return k;
    }
    return -1;
}

} // namespace

TEST(MulMatrix, AlignedArraysOf64fStayAtObject0OfTheLeftFactor)
{
    unsigned members = 0;
    for (const Code& c : codes) {
        if (!c.array1 || !c.array2)
            continue;
        for (const unsigned n : {3U, 4U, 5U, 6U}) {
            const std::string name = "tenkMul_" + c.name + "_64f" + sizeName(n);
            ++members;
            // Nothing about the left factor or src2Stride0 is looked at.
            for (const auto& [offset1, gap1, gap2] : {std::array{0U, 0U, 0U}, {8U, 8U, 0U}, {4U, 1U, 8U}}) {
                Placed<double> a(n, offset1, gap1, gap1, 1), b(n, 0, gap2, 0, 2), d(n, 0, 0, 0, 3);
                ASSERT_EQ(call(name, a.arguments() + b.arguments() + d.arguments() + words({2})), tenkOk);
                EXPECT_EQ(leftOfObject1(c, a, b, d), 0) << name;
            }
            // Any of five values that is no multiple of 16 brings the left factor along.
            for (unsigned value = 0; value < 5; ++value) {
                const auto off = [&](unsigned which) { return which == value ? 8U : 0U; };
                Placed<double> a(n, 0, 0, 0, 1), b(n, off(0), 0, off(1), 2), d(n, off(2), off(3), off(4), 3);
                ASSERT_EQ(call(name, a.arguments() + b.arguments() + d.arguments() + words({2})), tenkOk);
                EXPECT_EQ(leftOfObject1(c, a, b, d), 1) << name << " " << value;
            }
        }
    }
    EXPECT_EQ(members, 16U);
}

TEST(MulMatrix, AlignedArraysOf32fAndOfGeneralSizeGoObjectByObject)
{
    for (const Code& c : codes) {
        if (!c.array1 || !c.array2)
            continue;
        Placed<float> a(4, 0, 0, 0, 1), b(4, 0, 0, 0, 2), d(4, 0, 0, 0, 3);
        const std::string name = "tenkMul_" + c.name + "_32f_4x4";
        ASSERT_EQ(call(name, a.arguments() + b.arguments() + d.arguments() + words({2})), tenkOk);
        EXPECT_EQ(leftOfObject1(c, a, b, d), 1) << name;

        Placed<double> e(4, 0, 0, 0, 1), f(4, 0, 0, 0, 2), g(4, 0, 0, 0, 3);
        const std::string general = "tenkMul_" + c.name + "_64f";
        ASSERT_EQ(call(general, e.arguments() + words({4, 4}) + f.arguments() + words({4, 4}) +
                                    g.arguments() + words({2})),
                  tenkOk);
        EXPECT_EQ(leftOfObject1(c, e, f, g), 1) << general;
        // A list of the same objects.
        const void* lists[3][2] = {{e.place(0, 0, 0), e.place(1, 0, 0)},
                                   {f.place(0, 0, 0), f.place(1, 0, 0)},
                                   {g.place(0, 0, 0), g.place(1, 0, 0)}};
        g.set(1, 0, 0, -1);
        ASSERT_EQ(
            call(general + "_4x4_L", {pointer(lists[0]), word(0), word(e.stride1), pointer(lists[1]), word(0),
                                      word(f.stride1), pointer(lists[2]), word(0), word(g.stride1), word(2)}),
            tenkOk);
        EXPECT_EQ(leftOfObject1(c, e, f, g), 1) << general << "_4x4_L";
    }
}

TEST(MulMatrix, AlignedArraysOf64fByASingleMatrixOrInStepsGoObjectByObject)
{
    for (const Code& c : codes)
        for (const unsigned n : {3U, 4U, 5U, 6U}) {
            if (!c.array1)
                continue;
            const std::string name = "tenkMul_" + c.name + "_64f" + sizeName(n);
            Placed<double> a(n, 0, 0, 0, 1), b(n, 0, 0, 0, 2), d(n, 0, 0, 0, 3);
            if (!c.array2) {
                ASSERT_EQ(call(name, a.arguments() + b.asSingle() + d.arguments() + words({2})), tenkOk);
                EXPECT_EQ(leftOfObject1(c, a, b, d), 1) << name;
                continue;
            }
            const Arguments step = words({8});
            ASSERT_EQ(call(name + "_S2",
                           a.arguments() + step + b.arguments() + step + d.arguments() + step + words({2})),
                      tenkOk);
            EXPECT_EQ(leftOfObject1(c, a, b, d), 1) << name << "_S2";
        }
}

// In place on a source that is an array exactly if the destination is one.
TEST(MulMatrix, KernelsWorkInPlace)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> apart(c, layout, n);
        const bool gathers = startsWithFirstTerm(apart.name);
        if (n == 0 || (!isDense(layout) && !gathers))
            return;
        ASSERT_EQ(apart.run(), tenkOk);
        const auto expectSame = [&](Product<T>& x, Objects<T>& result) {
            for (unsigned k = 0; k < x.count; ++k)
                for (unsigned i = 0; i < n; ++i)
                    for (unsigned j = 0; j < n; ++j)
                        EXPECT_EQ(result.at(k, i, j), apart.d.at(k, i, j)) << x.name;
        };
        if (c.array2 == c.batch()) {
            Product<T> x(c, layout, n);
            ASSERT_EQ(call(x.name, x.arguments(x.count, x.b.arguments())), tenkOk);
            expectSame(x, x.b);
        } else if (layout.empty()) {
            // A single right factor which is object 0 of the destination.
            Product<T> x(c, layout, n);
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j)
                    x.d.at(0, i, j) = x.b.at(0, i, j);
            Arguments all = x.arguments(x.count);
            all[x.a.arguments().size()] = pointer(&x.d.at(0, 0, 0));
            ASSERT_EQ(call(x.name, all), tenkOk);
            expectSame(x, x.d);
        }
        const bool wide = sizeof(T) == 4 && n == 6 && isDense(layout);
        if (c.array1 == c.batch() && !c.transposed1 && !wide) {
            Product<T> x(c, layout, n);
            ASSERT_EQ(call(x.name, x.arguments(x.count, x.a.arguments())), tenkOk);
            expectSame(x, x.a);
        }
    });
}

// Row 0 of the product of {1, 2; 3, 4} and {5, 6; 7, 8} over the right factor: (0, 0) goes 0, + 1 x 0, + 2 x
// 7 =
// 14. (0, 1): 0, + 1 x 0, + 2 x 8 = 16. (1, 0): 0, + 3 x 14 = 42, + 4 x 42 = 210. (1, 1): 48, + 4 x 48 = 240.
TEST(MulMatrix, PlainLoopsKeepTheRunningSumInTheDestination)
{
    const float a[] = {1, 2, 3, 4};
    float b[] = {5, 6, 7, 8};
    EXPECT_EQ(tenkMul_mm_32f(a, 8, 2, 2, b, 8, 2, 2, b, 8), tenkOk);
    EXPECT_EQ((std::array{b[0], b[1], b[2], b[3]}), (std::array{14.F, 16.F, 210.F, 240.F}));
    // Over the left factor: (0, 0) goes 0, + 0 x 5, + 2 x 7 = 14. (0, 1): 0, + 14 x 6 = 84, + 84 x 8 = 756.
    // (1, 0): 0, 0, + 4 x 7 = 28. (1, 1): 0, + 28 x 6 = 168, + 168 x 8 = 1512.
    double e[] = {1, 2, 3, 4};
    const double f[] = {5, 6, 7, 8};
    EXPECT_EQ(tenkMul_mm_64f(e, 16, 2, 2, f, 16, 2, 2, e, 16), tenkOk);
    EXPECT_EQ((std::array{e[0], e[1], e[2], e[3]}), (std::array{14., 756., 28., 1512.}));
}

// The same in all members that are no kernels, over either factor.
TEST(MulMatrix, PlainLoopsInPlaceReadWhatTheyHaveWritten)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        for (const bool left : {false, true}) {
            Product<T> x(c, layout, n), expected(c, layout, n);
            const bool kernel = n != 0 && (isDense(layout) || startsWithFirstTerm(x.name));
            if (kernel || (left ? c.array1 : c.array2) != c.batch())
                continue;
            Objects<T>& over = left ? expected.a : expected.b;
            for (unsigned k = 0; k < x.count; ++k)
                for (unsigned i = 0; i < x.order; ++i)
                    for (unsigned j = 0; j < x.order; ++j) {
                        over.at(k, i, j) = 0;
                        for (unsigned p = 0; p < x.order; ++p) {
                            const T term = expected.terms(k, i, j)[p];
                            over.at(k, i, j) = over.at(k, i, j) + term;
                        }
                    }
            Objects<T>& destination = left ? x.a : x.b;
            ASSERT_EQ(call(x.name, x.arguments(x.count, destination.arguments())), tenkOk) << x.name;
            EXPECT_EQ(destination.values(), over.values()) << x.name << (left ? " left" : " right");
        }
    });
}

// Rows of the destination on top of each other: the last one stays.
TEST(MulMatrix, RowsOfTheDestinationMayCoincide)
{
    const float a[] = {1, 2, 3, 4, 5, 6, 7, 8}, b[] = {1, 10, 100, 1000};
    float d[] = {-1, -1, -1};
    EXPECT_EQ(tenkMul_mm_32f(a, 8, 2, 4, b, 8, 2, 2, d, 0), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2]}), (std::array{807.F, 8070.F, -1.F}));
    // Half on top of each other: row i ends with the first element of row i + 1.
    float e[] = {0, 0, 0, 0, 0, -1};
    EXPECT_EQ(tenkMul_mm_32f(a, 8, 2, 4, b, 8, 2, 2, e, 4), tenkOk);
    EXPECT_EQ((std::array{e[0], e[1], e[2], e[3], e[4], e[5]}),
              (std::array{201.F, 403.F, 605.F, 807.F, 8070.F, -1.F}));
}

// Two products of diagonal matrices, 1, 2, ... by 10 (k + 1), 10 (k + 1) + 1, ... In one operand there is an
// element behind each row, or one is added to the entries of its list.
template <typename T>
void multipliesInLists(const std::string& code, unsigned n, unsigned operand, bool behindRows)
{
    constexpr T gap = -9;
    constexpr auto e = static_cast<std::uint32_t>(sizeof(T));
    std::vector<T> of[3]; // left, right, product; the first element is part of no matrix
    T* entries[3][2];
    Arguments arguments;
    std::vector<T> expected;
    for (unsigned o = 0; o < 3; ++o) {
        const unsigned rowStep = n + (o == operand && behindRows), shift = o == operand && !behindRows;
        of[o].assign(1 + 2 * n * rowStep, gap);
        std::vector<T> values(of[o]);
        for (unsigned k = 0; k < 2; ++k) {
            entries[o][k] = &of[o][1 + k * n * rowStep - shift];
            for (unsigned i = 0; i < n; ++i)
                for (unsigned j = 0; j < n; ++j) {
                    const T left = T(i + 1), right = T(10 * (k + 1) + i);
                    const T onDiagonal = o == 0 ? left : o == 1 ? right : left * right;
                    values[1 + (k * n + i) * rowStep + j] = i == j ? onDiagonal : T(0);
                }
        }
        if (o < 2)
            of[o].assign(values.begin(), values.end());
        else
            expected = values;
        arguments = arguments + Arguments{pointer(entries[o]), word(shift * e), word(rowStep * e)};
    }
    const std::string name = "tenkMul_" + code + "_" + typeName<T>() + sizeName(n) + "_L";
    EXPECT_EQ(call(name, arguments + words({2})), tenkOk) << name;
    EXPECT_EQ(of[2], expected) << name << " with a gap in " << operand;
}
TEST(MulMatrix, ListsWithAndWithoutGaps)
{
    for (const std::string code : {"mama", "mamaT"})
        for (const unsigned n : {3U, 4U})
            for (const unsigned operand : {0U, 1U, 2U, 3U})
                for (const bool behindRows : {false, true}) {
                    multipliesInLists<float>(code, n, operand, behindRows);
                    multipliesInLists<double>(code, n, operand, behindRows);
                }
}

TEST(MulMatrix, StridesMayStepBack)
{
    const float a[] = {3, 4, 1, 2}, b[] = {5, 6, 7, 8};
    float d[] = {-1, -1, -1, -1};
    const auto back = static_cast<std::uint32_t>(-8);
    EXPECT_EQ(tenkMul_mm_32f(a + 2, back, 2, 2, b, 8, 2, 2, d + 2, back), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{43.F, 50.F, 19.F, 22.F}));
}
