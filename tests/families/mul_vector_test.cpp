// Matrix by vector.
#include "product_operands.h"
#include "tenk/mul.h"

using namespace objects;

namespace {

struct Code
{
    std::string name;
    bool array1, transposed, array2;
    bool batch() const { return array1 || array2; }
};
const Code codes[] = {
    {"mv", false, false, false}, {"mTv", false, true, false}, {"mva", false, false, true},
    {"mTva", false, true, true}, {"mav", true, false, false}, {"maTv", true, true, false},
    {"mava", true, false, true}, {"maTva", true, true, true},
};

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

// The operands of one call; n = 0 is the general member with a matrix of 3 rows and 3 columns.
template <typename T>
struct Product
{
    Code code;
    unsigned n, order, count;
    std::string name;
    Objects<T> a, v, d;

    Product(const Code& c, const std::string& layout, unsigned size, unsigned objects = 3,
            unsigned general = 3)
        : code(c),
          n(size),
          order(size == 0 ? general : size),
          count(c.batch() ? objects : 1),
          name("tenkMul_" + c.name + "_" + typeName<T>() + sizeName(size) + layout),
          a(layout, c.array1, false, objects, order, order),
          v(layout, c.array2, true, objects, 1, order),
          d(layout, c.batch(), true, objects, 1, order)
    {
        a.fill(1);
        v.fill(2);
        d.fill(3);
    }

    Arguments arguments(std::uint32_t number) const { return arguments(number, d.arguments()); }
    Arguments arguments(std::uint32_t number, const Arguments& destination) const
    {
        Arguments all = a.arguments();
        if (n == 0)
            all = all + words({order, order});
        all = all + v.arguments();
        if (n == 0)
            all = all + words({order});
        all = all + destination;
        if (code.batch())
            all = all + words({number});
        return all;
    }
    std::int32_t run() const { return call(name, arguments(count)); }

    T term(unsigned k, unsigned i, unsigned p)
    {
        const T x = (code.transposed ? a.at(k, p, i) : a.at(k, i, p)) * v.at(k, p);
        return x;
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

// The orders in which a sum of t[0], t[1], ... is formed.
template <typename T>
T fromZero(const std::vector<T>& t)
{
    T s = 0;
    for (T x : t)
        s = s + x;
    return s;
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
T expected(const Code& c, const std::string& layout, unsigned n, unsigned row, const std::vector<T>& t)
{
    if (n == 0 || !isDense(layout))
        return fromZero(t);
    if (n == 3)
        return (t[0] + t[1]) + t[2];
    if (sizeof(T) == 8)
        return n == 4   ? (t[0] + t[1]) + (t[2] + t[3])
               : n == 5 ? ((t[0] + t[1]) + (t[2] + t[3])) + t[4]
                        : ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
    if (c.transposed)
        return n == 4   ? (t[0] + t[1]) + (t[2] + t[3])
               : n == 5 ? ((t[0] + t[1]) + t[4]) + (t[2] + t[3])
                        : ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
    if (n == 4)
        return (t[0] + t[2]) + (t[1] + t[3]);
    if (n == 5)
        return row == 4 ? ((t[0] + t[2]) + t[4]) + (t[1] + t[3]) : ((t[0] + t[1]) + t[4]) + (t[2] + t[3]);
    return ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
}

} // namespace

TEST(MulVector, TwoRowsOfThree)
{
    const float a[] = {1, 2, 3, 4, 5, 6}, v[] = {1, 10, 100};
    float d[3] = {-1, -1, -1};
    EXPECT_EQ(tenkMul_mv_32f(a, 12, 3, 2, v, 3, d), tenkOk);
    EXPECT_EQ(d[0], 321);
    EXPECT_EQ(d[1], 654);
    EXPECT_EQ(d[2], -1);
    const double b[] = {1, 2, 3, 4, 5, 6}, w[] = {1, 10, 100};
    double e[3] = {-1, -1, -1};
    EXPECT_EQ(tenkMul_mv_64f(b, 24, 3, 2, w, 3, e), tenkOk);
    EXPECT_EQ(e[0], 321);
    EXPECT_EQ(e[1], 654);
    EXPECT_EQ(e[2], -1);
}

TEST(MulVector, FixedSizesByHand)
{
    const float a[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, v[] = {1, 10, 100};
    float d[4] = {-1, -1, -1, -1};
    EXPECT_EQ(tenkMul_mv_32f_3x3(a, 12, v, d), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{321.F, 654.F, 987.F, -1.F}));
    EXPECT_EQ(tenkMul_mTv_32f_3x3(a, 12, v, d), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{741.F, 852.F, 963.F, -1.F}));
}

// A transposed matrix of width 2 and height 3 is tested as 3 rows of 2 and used as 2 rows of 3.
TEST(MulVector, TransposedSizesAreThoseOfTheStoredObjectInTheTestAlone)
{
    const float a[] = {1, 2, 3, 4, 5, 6}, v[] = {1, 10, 1000};
    float d[4] = {-1, -1, -1, -1};
    EXPECT_EQ(tenkMul_mTv_32f(a, 12, 2, 3, v, 3, d), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{41.F, 52.F, 63.F, -1.F}));
    EXPECT_EQ(tenkMul_mTv_32f(a, 12, 2, 3, v, 2, d), tenkSizeError);
    // Wider than high: sums of 3 terms, the last of them from behind the vector.
    EXPECT_EQ(tenkMul_mTv_32f(a, 8, 3, 2, v, 2, d), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{5031.F, 6042.F, 63.F, -1.F}));
}

TEST(MulVector, SizesAreTestedInAllGeneralMembers)
{
    for (const Code& c : codes)
        for (const std::string& layout : layoutsOf(c))
            eachType([&]<typename T>() {
                Product<T> x(c, layout, 0);
                const auto before = x.d.values();
                const auto run = [&](std::uint32_t width, std::uint32_t height, std::uint32_t length) {
                    Arguments all = x.a.arguments() + words({width, height}) + x.v.arguments() +
                                    words({length}) + x.d.arguments();
                    return call(x.name, c.batch() ? all + words({0}) : all);
                };
                EXPECT_EQ(run(0, 3, c.transposed ? 3 : 0), tenkSizeError) << x.name;
                EXPECT_EQ(run(3, 0, c.transposed ? 0 : 3), tenkSizeError) << x.name;
                EXPECT_EQ(run(3, 3, 0), tenkSizeError) << x.name;
                EXPECT_EQ(run(2, 3, 2), c.transposed ? tenkSizeError : tenkOk) << x.name;
                EXPECT_EQ(run(2, 3, 3), c.transposed ? tenkOk : tenkSizeError) << x.name;
                if (c.batch()) {
                    EXPECT_EQ(x.d.values(), before) << x.name;
                }
            });
}

TEST(MulVector, NullOperandsComeBeforeSizesAndCount)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n);
        const Arguments all = [&] {
            Arguments a = x.arguments(0);
            if (n == 0)
                a[x.a.arguments().size()] = word(0); // no width either
            return a;
        }();
        const std::size_t second = x.a.arguments().size() + (n == 0 ? 2 : 0);
        const std::size_t third = second + x.v.arguments().size() + (n == 0 ? 1 : 0);
        for (std::size_t place : {std::size_t{0}, second, third}) {
            Arguments broken = all;
            broken[place] = pointer(nullptr);
            EXPECT_EQ(call(x.name, broken), tenkNullPointerError) << x.name << " " << place;
        }
    });
}

TEST(MulVector, EveryMemberSumsInItsOwnOrder)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n, 40, 5);
        ASSERT_EQ(x.run(), tenkOk) << x.name;
        unsigned differ = 0;
        for (unsigned k = 0; k < x.count; ++k)
            for (unsigned i = 0; i < x.order; ++i) {
                std::vector<T> t;
                for (unsigned p = 0; p < x.order; ++p)
                    t.push_back(x.term(k, i, p));
                EXPECT_EQ(x.d.at(k, i), expected(c, layout, n, i, t)) << x.name << " " << k << " " << i;
                differ += expected(c, layout, n, i, t) != inTurn(t);
            }
        // The data tell the trees from the plain order.
        if (n > 3 && isDense(layout) && c.batch()) {
            EXPECT_GT(differ, 0U) << x.name;
        }
    });
}

// With 2^24 among the terms every order has its own sum.
TEST(MulVector, TreesByHand)
{
    const float big = 16777216;
    const float fours[4][4] = {{1, 1, 1, 1}, {1, 1, 1, 1}, {1, 1, 1, 1}, {1, 1, 1, 1}};
    const float v4[] = {big, 1, -big, 1};
    float d[5];
    EXPECT_EQ(tenkMul_mv_32f_4x4(&fours[0][0], 16, v4, d), tenkOk);
    EXPECT_EQ(d[0], 2); // (big - big) + (1 + 1)
    EXPECT_EQ(tenkMul_mTv_32f_4x4(&fours[0][0], 16, v4, d), tenkOk);
    EXPECT_EQ(d[0], 1); // (big + 1 = big) + (-big + 1)
    EXPECT_EQ(tenkMul_mv_32f(&fours[0][0], 16, 4, 4, v4, 4, d), tenkOk);
    EXPECT_EQ(d[0], 1); // ((big + 1 = big) - big) + 1

    float ones[5][5];
    for (auto& row : ones)
        std::fill(row, row + 5, 1.F);
    // Rows 0 to 3: ((big + 1 = big) + 0) + (-big + 1). Row 4: ((big - big) + 0) + (1 + 1).
    const float w5[] = {big, 1, -big, 1, 0};
    EXPECT_EQ(tenkMul_mv_32f_5x5(&ones[0][0], 20, w5, d), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2], d[3]}), (std::array{1.F, 1.F, 1.F, 1.F}));
    EXPECT_EQ(d[4], 2);
    // Transposed, row 4 is like the others.
    EXPECT_EQ(tenkMul_mTv_32f_5x5(&ones[0][0], 20, w5, d), tenkOk);
    EXPECT_EQ(d[3], 1);
    EXPECT_EQ(d[4], 1);
}

// (big + 1 = big) - big, fixed and general.
TEST(MulVector, ThreeByThreeSumsLikeTheGeneralMembers)
{
    const float big = 16777216, ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1}, v[] = {big, 1, -big};
    float fixed[3], general[3];
    EXPECT_EQ(tenkMul_mv_32f_3x3(ones, 12, v, fixed), tenkOk);
    EXPECT_EQ(tenkMul_mv_32f(ones, 12, 3, 3, v, 3, general), tenkOk);
    for (unsigned i = 0; i < 3; ++i) {
        EXPECT_EQ(fixed[i], 0);
        EXPECT_EQ(general[i], 0);
    }
}

TEST(MulVector, TermsOfNegativeZeroKeepTheirSignInKernelsAlone)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        Product<T> x(c, layout, n);
        x.a.fillWith(T(-0.0));
        x.v.fillWith(T(2));
        ASSERT_EQ(x.run(), tenkOk);
        const T zero = n != 0 && isDense(layout) ? T(-0.0) : T(0);
        for (unsigned k = 0; k < x.count; ++k)
            for (unsigned i = 0; i < x.order; ++i)
                EXPECT_EQ(bitsOf(x.d.at(k, i)), bitsOf(zero)) << x.name;
    });
}

TEST(MulVector, DenseFixedSizesWorkInPlace)
{
    for (const Code& c : codes)
        for (const std::string& layout : layoutsOf(c)) {
            if (!isDense(layout))
                continue;
            for (unsigned n : {3U, 4U, 5U, 6U})
                eachType([&]<typename T>() {
                    Product<T> apart(c, layout, n), x(c, layout, n);
                    ASSERT_EQ(apart.run(), tenkOk);
                    if (c.array2 || !c.batch()) {
                        ASSERT_EQ(call(x.name, x.arguments(x.count, x.v.arguments())), tenkOk);
                        for (unsigned k = 0; k < x.count; ++k)
                            for (unsigned i = 0; i < n; ++i)
                                EXPECT_EQ(x.v.at(k, i), apart.d.at(k, i)) << x.name;
                    } else {
                        // One vector for all objects, which is object 0 of the destination.
                        for (unsigned j = 0; j < n; ++j)
                            x.d.at(0, j) = x.v.at(0, j);
                        Arguments all = x.arguments(x.count);
                        all[x.a.arguments().size()] = pointer(&x.d.at(0, 0));
                        ASSERT_EQ(call(x.name, all), tenkOk);
                        EXPECT_EQ(x.d.values(), [&] {
                            // Gaps differ from nothing that was written.
                            return apart.d.values();
                        }()) << x.name;
                    }
                });
        }
}

// All other members set an element of the destination to 0 and add to it while they still read the vector.
// The vector is each object of the destination or, where it is a single one of an array's, object 0.
TEST(MulVector, AllOtherMembersInPlaceReadWhatTheyHaveWritten)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (n != 0 && isDense(layout))
            return;
        Product<T> x(c, layout, n), expected(c, layout, n);
        const bool object0 = c.batch() && !c.array2;
        for (unsigned j = 0; object0 && j < x.order; ++j)
            x.d.at(0, j) = expected.d.at(0, j) = x.v.at(0, j);
        const auto vector = [&](unsigned k, unsigned j) -> T& {
            return object0 ? expected.d.at(0, j) : expected.v.at(k, j);
        };
        for (unsigned k = 0; k < x.count; ++k)
            for (unsigned i = 0; i < x.order; ++i) {
                T& sum = object0 ? expected.d.at(k, i) : expected.v.at(k, i);
                sum = 0;
                for (unsigned p = 0; p < x.order; ++p) {
                    const T left = c.transposed ? x.a.at(k, p, i) : x.a.at(k, i, p);
                    const T term = left * vector(k, p);
                    sum = sum + term;
                }
            }
        if (object0) {
            // Steps between elements are the same in both.
            Arguments all = x.arguments(x.count);
            for (unsigned j = 0; hasTable(layout) && j < x.order; ++j)
                x.v.pointers[j] = &x.d.at(0, j);
            if (!hasTable(layout))
                all[x.a.arguments().size() + (n == 0 ? 2 : 0)] = pointer(&x.d.at(0, 0));
            ASSERT_EQ(call(x.name, all), tenkOk) << x.name;
            EXPECT_EQ(x.d.values(), expected.d.values()) << x.name;
        } else {
            ASSERT_EQ(call(x.name, x.arguments(x.count, x.v.arguments())), tenkOk) << x.name;
            EXPECT_EQ(x.v.values(), expected.v.values()) << x.name;
        }
    });
}

// i = 0: 0, 2 x 0, + 3 x 10 = 30.  i = 1: 0, 5 x 30 = 150, + 7 x 150 = 1200.
TEST(MulVector, GeneralSizesKeepTheRunningSumInTheDestination)
{
    const double a[] = {2, 3, 5, 7};
    double v[] = {1, 10};
    EXPECT_EQ(tenkMul_mv_64f(a, 16, 2, 2, v, 2, v), tenkOk);
    EXPECT_EQ(v[0], 30);
    EXPECT_EQ(v[1], 1200);
    // The destination one element into the matrix: sum 0 goes 0, 2 x 1, + 2 x 10 = 22 over element 1, which
    // is read as term 1 when it holds 2. Sum 1 goes over element (1, 0) before that is read.
    double b[] = {2, 3, 5, 7};
    const double w[] = {1, 10};
    EXPECT_EQ(tenkMul_mv_64f(b, 16, 2, 2, w, 2, b + 1), tenkOk);
    EXPECT_EQ((std::array{b[0], b[1], b[2], b[3]}), (std::array{2., 22., 70., 7.}));
}

// i = 0: 0, then 1 x 0, + 1 x 2, + 1 x 3 = 5.  i = 1: 0, 5, + 1 x 5 = 10, + 3 = 13.  i = 2: 0, 5, 18, + 18
// = 36.
TEST(MulVector, StridedFixedSizesKeepTheRunningSumInTheDestination)
{
    const float ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    float v[] = {1, 2, 3};
    EXPECT_EQ(tenkMul_mv_32f_3x3_S2(ones, 12, 4, v, 4, v, 4), tenkOk);
    EXPECT_EQ((std::array{v[0], v[1], v[2]}), (std::array{5.F, 13.F, 36.F}));
}

TEST(MulVector, LargeGeneralSizesAreExact)
{
    for (const Code& c : codes)
        for (const std::string& layout : layoutsOf(c))
            eachType([&]<typename T>() {
                for (unsigned order : {1U, 2U, 7U, 9U, 18U}) {
                    Product<T> x(c, layout, 0, 2, order);
                    ASSERT_EQ(x.run(), tenkOk);
                    for (unsigned k = 0; k < x.count; ++k)
                        for (unsigned i = 0; i < order; ++i) {
                            std::vector<T> t;
                            for (unsigned p = 0; p < order; ++p)
                                t.push_back(x.term(k, i, p));
                            EXPECT_EQ(x.d.at(k, i), fromZero(t)) << x.name << " " << order;
                        }
                }
            });
}

TEST(MulVector, AnEmptyBatchWritesNothing)
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
        for (Objects<T>* o : {&x.a, &x.v, &x.d}) // no entry of a list is looked at
            std::fill(o->pointers.begin(), o->pointers.end(), nullptr);
        EXPECT_EQ(call(x.name, x.arguments(0)), tenkOk) << x.name;
        EXPECT_EQ(x.d.values(), before) << x.name;
    });
}

TEST(MulVector, ANullEntryOfATableIsFoundBeforeAnythingIsWritten)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (!c.batch() || !hasTable(layout))
            return;
        for (unsigned count : {0U, 3U})
            for (unsigned which : {0U, 1U, 2U}) {
                Product<T> x(c, layout, n);
                Objects<T>& o = which == 0 ? x.a : which == 1 ? x.v : x.d;
                const auto before = x.d.values();
                o.pointers.back() = nullptr;
                EXPECT_EQ(call(x.name, x.arguments(count)), tenkNullPointerError) << x.name << which;
                EXPECT_EQ(x.d.values(), before) << x.name;
            }
    });
}

TEST(MulVector, ANullEntryOfAListIsFoundAtItsObject)
{
    eachMember([]<typename T>(const Code& c, const std::string& layout, unsigned n) {
        if (!hasList(layout))
            return;
        for (unsigned which : {0U, 1U, 2U}) {
            Product<T> x(c, layout, n), whole(c, layout, n);
            Objects<T>& o = which == 0 ? x.a : which == 1 ? x.v : x.d;
            if (o.pointers.empty())
                continue; // a single operand has no list
            o.pointers[1] = nullptr;
            const auto before = x.d.values();
            EXPECT_EQ(call(x.name, x.arguments(0)), tenkOk) << x.name;
            EXPECT_EQ(x.d.values(), before) << x.name;
            ASSERT_EQ(whole.run(), tenkOk);
            EXPECT_EQ(call(x.name, x.arguments(3)), tenkNullPointerError) << x.name;
            for (unsigned i = 0; i < x.order; ++i) {
                EXPECT_EQ(x.d.at(0, i), whole.d.at(0, i)) << x.name;
                EXPECT_EQ(x.d.at(1, i), before[static_cast<std::size_t>(&x.d.at(1, i) - &x.d.at(0, 0))]);
            }
        }
    });
}

// Width 2, height 3: sums of 2 terms for 3 elements, of whose 3 entries 2 are tested.
TEST(MulVector, TransposedArraysTestAsManyDestinationEntriesAsTheWidth)
{
    const LowMemory low;
    eachType([&]<typename T>() {
        for (const char* code : {"maTv", "mTva", "maTva"}) {
            const std::string name = std::string("tenkMul_") + code + "_" + typeName<T>() + "_P";
            T a[6] = {1, 2, 3, 4, 5, 6}, v[3] = {1, 10, 100}, d[3] = {-1, -1, -1};
            T* pa[6];
            for (unsigned e = 0; e < 6; ++e)
                pa[e] = &a[e];
            T *pv[] = {&v[0], &v[1], &v[2]}, *pd[] = {low.before(d[0]), low.before(d[1]), nullptr};
            const Arguments all{pointer(pa), word(0), word(2),     word(3),           pointer(pv),
                                word(0),     word(3), pointer(pd), word(low.shift()), word(1)};
            low.value<T>() = -1;
            EXPECT_EQ(call(name, all), tenkOk) << name;
            EXPECT_EQ(d[0], 41) << name;
            EXPECT_EQ(d[1], 52) << name;
            EXPECT_EQ(low.value<T>(), 63) << name;
            pd[1] = nullptr;
            d[0] = -1;
            EXPECT_EQ(call(name, all), tenkNullPointerError) << name;
            EXPECT_EQ(d[0], -1) << name;
        }
    });
}

// Width 3, height 2: 2 elements, but the entry behind the two is tested.
TEST(MulVector, WideTransposedArraysTestAnEntryBehindTheDestination)
{
    float a[6] = {1, 2, 3, 4, 5, 6}, v[3] = {1, 10, 100}, d[2] = {-1, -1};
    float* pa[] = {&a[0], &a[1], &a[2], &a[3], &a[4], &a[5]};
    float *pv[] = {&v[0], &v[1], &v[2]}, *pd[] = {&d[0], &d[1], nullptr};
    EXPECT_EQ(tenkMul_maTva_32f_P(pa, 0, 3, 2, pv, 0, 2, pd, 0, 1), tenkNullPointerError);
    EXPECT_EQ(d[0], -1);
    pd[2] = &d[0];
    EXPECT_EQ(tenkMul_maTva_32f_P(pa, 0, 3, 2, pv, 0, 2, pd, 0, 1), tenkOk);
    EXPECT_EQ(d[0], 531);
    EXPECT_EQ(d[1], 642);
}

TEST(MulVector, UntransposedArraysTestAsManyDestinationEntriesAsTheHeight)
{
    float a[6] = {1, 2, 3, 4, 5, 6}, v[3] = {1, 10, 100}, d[2] = {-1, -1};
    float* pa[] = {&a[0], &a[1], &a[2], &a[3], &a[4], &a[5]};
    float *pv[] = {&v[0], &v[1], &v[2]}, *pd[] = {&d[0], &d[1], nullptr};
    EXPECT_EQ(tenkMul_mava_32f_P(pa, 0, 3, 2, pv, 0, 3, pd, 0, 1), tenkOk);
    EXPECT_EQ(d[0], 321);
    EXPECT_EQ(d[1], 654);
    pd[1] = nullptr;
    EXPECT_EQ(tenkMul_mava_32f_P(pa, 0, 3, 2, pv, 0, 3, pd, 0, 1), tenkNullPointerError);
}

// Of the sources as many entries as the matrix has elements, and the vector its length.
TEST(MulVector, EntriesOfTheSourcesAreTestedByTheirOwnSizes)
{
    static float element = 1, result;
    const auto status = [](const char* name, std::uint32_t width, std::uint32_t height, std::uint32_t length,
                           int operand, unsigned entry) {
        std::vector<float*> tables[3];
        for (auto& t : tables)
            t.assign(16, &element);
        tables[2].assign(16, &result);
        tables[operand][entry] = nullptr;
        return call(name,
                    {pointer(tables[0].data()), word(0), word(width), word(height), pointer(tables[1].data()),
                     word(0), word(length), pointer(tables[2].data()), word(0), word(1)});
    };
    for (const char* name : {"tenkMul_mva_32f_P", "tenkMul_mav_32f_P", "tenkMul_mava_32f_P"}) {
        EXPECT_EQ(status(name, 3, 2, 3, 0, 5), tenkNullPointerError) << name;
        EXPECT_EQ(status(name, 3, 2, 3, 0, 6), tenkOk) << name;
        EXPECT_EQ(status(name, 2, 3, 2, 0, 5), tenkNullPointerError) << name;
        EXPECT_EQ(status(name, 3, 2, 3, 1, 2), tenkNullPointerError) << name;
        EXPECT_EQ(status(name, 3, 2, 3, 1, 3), tenkOk) << name;
    }
    // Sums of 2 terms, but the third entry of the vector is tested.
    for (const char* name : {"tenkMul_mTva_32f_P", "tenkMul_maTv_32f_P", "tenkMul_maTva_32f_P"}) {
        EXPECT_EQ(status(name, 2, 3, 3, 0, 5), tenkNullPointerError) << name;
        EXPECT_EQ(status(name, 2, 3, 3, 0, 6), tenkOk) << name;
        EXPECT_EQ(status(name, 2, 3, 3, 1, 2), tenkNullPointerError) << name;
        EXPECT_EQ(status(name, 2, 3, 3, 1, 3), tenkOk) << name;
    }
}

TEST(MulVector, SingleMembersBehindTablesTestOnTheWay)
{
    eachType([]<typename T>() {
        for (unsigned n : {0U, 3U})
            for (const unsigned c : {0U, 1U}) {
                { // the entry of the destination before anything of its row
                    Product<T> x(codes[c], "_P", n);
                    x.d.pointers[1] = nullptr;
                    const T untouched = x.d.at(0, 1);
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(x.d.at(0, 0), fromZero<T>({x.term(0, 0, 0), x.term(0, 0, 1), x.term(0, 0, 2)}));
                    EXPECT_EQ(x.d.at(0, 1), untouched);
                }
                { // then +0, then a term at a time
                    Product<T> x(codes[c], "_P", n);
                    x.v.pointers[0] = nullptr;
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(bitsOf(x.d.at(0, 0)), 0U) << x.name;
                }
                {
                    Product<T> x(codes[c], "_P", n);
                    x.v.pointers[2] = nullptr;
                    const T untouched = x.d.at(0, 1);
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(x.d.at(0, 0), x.term(0, 0, 0) + x.term(0, 0, 1)) << x.name;
                    EXPECT_EQ(x.d.at(0, 1), untouched) << x.name;
                }
                { // entry 1 is tested before term 1 of element 0, transposed or not
                    Product<T> x(codes[c], "_P", n);
                    const T first = x.term(0, 0, 0), untouched = x.d.at(0, 1);
                    x.a.pointers[1] = nullptr;
                    EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
                    EXPECT_EQ(x.d.at(0, 0), first) << x.name;
                    EXPECT_EQ(x.d.at(0, 1), untouched) << x.name;
                }
            }
    });
}

// Entry 3 of mTv is read as term 1 of element 0 and tested before term 0 of element 1.
TEST(MulVector, TransposedSingleMembersTestTheEntryOfTheUntransposedPlace)
{
    const LowMemory low;
    for (unsigned n : {0U, 3U}) {
        Product<float> x(codes[1], "_P", n);
        for (unsigned e = 0; e < 9; ++e)
            x.a.pointers[e] = low.before(*x.a.pointers[e]);
        x.a.shift = low.shift();
        x.a.at(0, 1, 0) = 5;
        low.value<float>() = 5;
        x.a.pointers[3] = nullptr;
        EXPECT_EQ(x.run(), tenkNullPointerError) << x.name;
        EXPECT_EQ(x.d.at(0, 0), fromZero<float>({x.term(0, 0, 0), x.term(0, 0, 1), x.term(0, 0, 2)}));
        EXPECT_EQ(bitsOf(x.d.at(0, 1)), 0U);
    }
    // Width 2, height 3: entries 0 1, 3 4, 6 7 are tested, entries 0 to 5 are read.
    float a[] = {1, 2, 3, 4, 5, 6}, v[] = {1, 10, 100}, d[] = {-1, -1, -1};
    float *pa[8], *pv[] = {&v[0], &v[1], &v[2]}, *pd[] = {&d[0], &d[1], &d[2]};
    for (unsigned e = 0; e < 8; ++e)
        pa[e] = low.before(a[e % 6]);
    pa[2] = nullptr;
    low.value<float>() = 7;
    EXPECT_EQ(tenkMul_mTv_32f_P(pa, low.shift(), 2, 3, pv, 0, 3, pd, 0), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2]}), (std::array{41.F, 52.F, 67.F}));
    pa[7] = nullptr;
    EXPECT_EQ(tenkMul_mTv_32f_P(pa, low.shift(), 2, 3, pv, 0, 3, pd, 0), tenkNullPointerError);
    EXPECT_EQ(d[2], 7); // 7 x 1, and the sum stops before term 1
}

TEST(MulVector, StridesNeedNoAlignment)
{
    std::vector<unsigned char> bytes(4 * 41 + 64);
    double expected[4] = {}, v[] = {1, 2, 3, 4}, d[4];
    for (unsigned i = 0; i < 4; ++i)
        for (unsigned j = 0; j < 4; ++j) {
            const double x = i * 10 + j;
            std::memcpy(&bytes[16 + i * 41 + j * 8], &x, 8);
            expected[j] += x * v[i];
        }
    EXPECT_EQ(call("tenkMul_mTv_64f_4x4", {pointer(&bytes[16]), word(41), pointer(v), pointer(d)}), tenkOk);
    for (unsigned j = 0; j < 4; ++j)
        EXPECT_EQ(d[j], expected[j]);
}

// Three products, and how many elements lie behind each row of a matrix and behind each object; in a list the
// latter are added to its entries instead. Matrix k has 1, 2, ... on the diagonal, vector k is 10 (k + 1),
// 10 (k + 1) + 1, ...; the list entry of object 1 of an operand may be null.
struct Gaps
{
    unsigned row, matrix, vector, product;
};
template <typename T>
void multipliesBetween(const std::string& code, unsigned n, const Gaps& gaps, unsigned nullOperand = 3)
{
    constexpr T gap = -9;
    const unsigned rowStep = n + gaps.row, matrixStep = n * rowStep + gaps.matrix;
    const unsigned steps[3] = {matrixStep, n + gaps.vector, n + gaps.product};
    const unsigned shifts[3] = {gaps.matrix, gaps.vector, gaps.product};
    std::vector<T> of[3]; // matrices, vectors, products; the first element is part of no object
    for (unsigned o = 0; o < 3; ++o)
        of[o].assign(1 + 3 * steps[o], gap);
    std::vector<T> expected(of[2]);
    for (unsigned k = 0; k < 3; ++k)
        for (unsigned i = 0; i < n; ++i) {
            for (unsigned j = 0; j < n; ++j)
                of[0][1 + k * matrixStep + i * rowStep + j] = i == j ? T(i + 1) : T(0);
            of[1][1 + k * steps[1] + i] = T(10 * (k + 1) + i);
            if (nullOperand == 3 || k == 0)
                expected[1 + k * steps[2] + i] = T((i + 1) * (10 * (k + 1) + i));
        }
    for (const bool list : {false, true}) {
        if (!list && nullOperand != 3)
            continue;
        std::fill(of[2].begin(), of[2].end(), gap);
        T* entries[3][3];
        Arguments arguments;
        for (unsigned o = 0; o < 3; ++o) {
            for (unsigned k = 0; k < 3; ++k)
                entries[o][k] = o == nullOperand && k == 1 ? nullptr : &of[o][1 + k * steps[o] - shifts[o]];
            arguments.push_back(list ? pointer(entries[o]) : pointer(&of[o][1]));
            arguments.push_back(word((list ? shifts : steps)[o] * static_cast<unsigned>(sizeof(T))));
            if (o == 0)
                arguments.push_back(word(rowStep * static_cast<unsigned>(sizeof(T))));
        }
        arguments.push_back(word(3));
        const std::string name = "tenkMul_" + code + "_" + typeName<T>() + sizeName(n) + (list ? "_L" : "");
        EXPECT_EQ(call(name, arguments), nullOperand == 3 ? tenkOk : tenkNullPointerError) << name;
        EXPECT_EQ(of[2], expected) << name;
    }
}
TEST(MulVector, ArraysWithAndWithoutGaps)
{
    for (const std::string code : {"mava", "maTva"})
        for (const unsigned n : {3U, 4U}) {
            for (const Gaps& gaps :
                 {Gaps{0, 0, 0, 0}, Gaps{1, 0, 0, 0}, Gaps{0, 1, 0, 0}, Gaps{0, 0, 1, 0}, Gaps{0, 0, 0, 1}}) {
                multipliesBetween<float>(code, n, gaps);
                multipliesBetween<double>(code, n, gaps);
            }
            for (const unsigned nullOperand : {0U, 1U, 2U}) {
                multipliesBetween<float>(code, n, {}, nullOperand);
                multipliesBetween<double>(code, n, {}, nullOperand);
            }
        }
}

TEST(MulVector, InfinitiesAndNotANumbersPassThrough)
{
    const float inf = std::numeric_limits<float>::infinity();
    const float a[9] = {inf, 0, 0, 0, 1, 0, inf, -inf, 0}, v[] = {1, 1, 1};
    float d[3];
    EXPECT_EQ(tenkMul_mv_32f_3x3(a, 12, v, d), tenkOk);
    EXPECT_EQ(d[0], inf);
    EXPECT_EQ(d[1], 1);
    EXPECT_NE(d[2], d[2]);
}
