// Gaxpy.
#include "product_operands.h"
#include "tenk/gaxpy.h"
#include "tenk/mul.h"

using namespace objects;

namespace {

std::vector<std::string> layoutsOf(bool batch)
{
    if (batch)
        return {std::begin(arrayLayouts), std::end(arrayLayouts)};
    return {std::begin(singleLayouts), std::end(singleLayouts)};
}
bool isDense(const std::string& layout)
{
    return layout.empty() || layout == "_L";
}

// The operands of one call on square matrices; size 0 is the general member.
template <typename T>
struct Update
{
    bool batch;
    unsigned n, order, count;
    std::string name;
    Objects<T> a, x, y, d;

    Update(bool va, const std::string& layout, unsigned size, unsigned objects = 3, unsigned general = 3)
        : batch(va),
          n(size),
          order(size == 0 ? general : size),
          count(va ? objects : 1),
          name(std::string("tenkGaxpy_") + (va ? "va_" : "v_") + typeName<T>() + sizeName(size) + layout),
          a(layout, false, false, objects, order, order),
          x(layout, va, true, objects, 1, order),
          y(layout, va, true, objects, 1, order),
          d(layout, va, true, objects, 1, order)
    {
        a.fill(1);
        x.fill(2);
        y.fill(3);
        d.fill(4);
    }

    Arguments arguments(std::uint32_t number, const Arguments& destination) const
    {
        Arguments all = a.arguments() + x.arguments() + y.arguments() + destination;
        if (n == 0)
            all = all + words({order, order});
        return batch ? all + words({number}) : all;
    }
    Arguments arguments(std::uint32_t number) const { return arguments(number, d.arguments()); }
    std::int32_t run() const { return call(name, arguments(count)); }

    T term(unsigned k, unsigned i, unsigned p) { return a.at(0, i, p) * x.at(k, p); }

    T expected(const std::string& layout, unsigned k, unsigned i)
    {
        std::vector<T> t;
        for (unsigned p = 0; p < order; ++p)
            t.push_back(term(k, i, p));
        T s = 0;
        if (n == 0 || !isDense(layout)) {
            for (const T z : t)
                s = s + z;
        } else if (n == 3) {
            s = (t[0] + t[1]) + t[2];
        } else if (sizeof(T) == 8) {
            s = (t[0] + t[1]) + (t[2] + t[3]);
            if (n == 5)
                s = s + t[4];
            if (n == 6)
                s = s + (t[4] + t[5]);
        } else if (n == 4) {
            s = (t[0] + t[2]) + (t[1] + t[3]);
        } else if (n == 5 && i < 4) {
            s = ((t[0] + t[1]) + t[4]) + (t[2] + t[3]);
        } else if (n == 5) {
            s = ((t[0] + t[2]) + t[4]) + (t[1] + t[3]);
        } else {
            s = ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
        }
        return s + y.at(k, i);
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
    for (const bool batch : {false, true})
        for (const std::string& layout : layoutsOf(batch))
            for (const unsigned n : {0U, 3U, 4U, 5U, 6U})
                eachType([&]<typename T>() { f.template operator()<T>(batch, layout, n); });
}

} // namespace

TEST(Gaxpy, TwoRowsOfThree)
{
    const float a[] = {1, 2, 3, 4, 5, 6}, x[] = {1, 10, 100}, y[] = {1000, 2000};
    float d[] = {-1, -1, -1};
    EXPECT_EQ(tenkGaxpy_v_32f(a, 12, x, y, d, 3, 2), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2]}), (std::array{1321.F, 2654.F, -1.F}));
    const double b[] = {1, 2, 3, 4, 5, 6}, v[] = {1, 10, 100}, w[] = {1000, 2000};
    double e[] = {-1, -1, -1};
    EXPECT_EQ(tenkGaxpy_v_64f(b, 24, v, w, e, 3, 2), tenkOk);
    EXPECT_EQ((std::array{e[0], e[1], e[2]}), (std::array{1321., 2654., -1.}));
}

// Width 3, height 2 in all general members: every row is 1 2 3 or 4 5 6, and what is behind the two elements
// of src3 and dst stays.
TEST(Gaxpy, TwoRowsOfThreeInAllLayouts)
{
    for (const bool batch : {false, true})
        for (const std::string& layout : layoutsOf(batch))
            eachType([&]<typename T>() {
                constexpr unsigned width = 3, height = 2, count = 2;
                Objects<T> a(layout, false, false, count, height, width),
                    x(layout, batch, true, count, 1, width), y(layout, batch, true, count, 1, height),
                    d(layout, batch, true, count, 1, height), expected(layout, batch, true, count, 1, height);
                d.fillWith(-1), expected.fillWith(-1);
                for (unsigned i = 0; i < height; ++i)
                    for (unsigned p = 0; p < width; ++p)
                        a.at(0, i, p) = T(3 * i + p + 1);
                for (unsigned k = 0; k < (batch ? count : 1); ++k) {
                    x.at(k, 0) = 1, x.at(k, 1) = 10, x.at(k, 2) = k == 0 ? 100 : 200;
                    y.at(k, 0) = 1000, y.at(k, 1) = 2000;
                    expected.at(k, 0) = k == 0 ? 1321 : 1621;
                    expected.at(k, 1) = k == 0 ? 2654 : 3254;
                }
                const std::string name =
                    std::string("tenkGaxpy_") + (batch ? "va_" : "v_") + typeName<T>() + layout;
                const Arguments sizes = batch ? words({width, height, count}) : words({width, height});
                EXPECT_EQ(call(name, a.arguments() + x.arguments() + y.arguments() + d.arguments() + sizes),
                          tenkOk);
                EXPECT_EQ(d.values(), expected.values()) << name;
            });
}

TEST(Gaxpy, TheVectorIsAddedToTheFinishedSum)
{
    // In 32f big + 1 is big: 1 + 1 + big = big + 2, starting with big gives big.
    const float big = 16777216, ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1}, x[] = {1, 1, 0}, y[] = {big, big, big};
    float d[3] = {};
    EXPECT_EQ(tenkGaxpy_v_32f(ones, 12, x, y, d, 3, 3), tenkOk);
    EXPECT_EQ(d[0], big + 2);
    EXPECT_EQ(tenkGaxpy_v_32f_3x3(ones, 12, x, y, d), tenkOk);
    EXPECT_EQ(d[2], big + 2);
}

TEST(Gaxpy, EveryMemberSumsLikeTheProduct)
{
    eachMember([]<typename T>(bool batch, const std::string& layout, unsigned n) {
        Update<T> u(batch, layout, n, 40, 5);
        ASSERT_EQ(u.run(), tenkOk) << u.name;
        for (unsigned k = 0; k < u.count; ++k)
            for (unsigned i = 0; i < u.order; ++i)
                EXPECT_EQ(u.d.at(k, i), u.expected(layout, k, i)) << u.name << " " << k << " " << i;
    });
}

// Terms big, 1, -big, 1.
TEST(Gaxpy, TreesByHand)
{
    const float big = 16777216;
    float ones[36];
    std::fill(ones, ones + 36, 1.F);
    const float x[] = {big, 1, -big, 1, 0, 0}, y[] = {10, 20, 30, 40, 50, 60};
    float d[6];
    EXPECT_EQ(tenkGaxpy_v_32f(ones, 16, x, y, d, 4, 4), tenkOk);
    EXPECT_EQ(d[0], 11);
    EXPECT_EQ(tenkGaxpy_v_32f_4x4(ones, 16, x, y, d), tenkOk);
    EXPECT_EQ(d[0], 12);
    EXPECT_EQ(tenkGaxpy_v_32f_5x5(ones, 20, x, y, d), tenkOk);
    EXPECT_EQ(d[3], 41); // ((big + 1) + 0) + (-big + 1)
    EXPECT_EQ(d[4], 52); // ((big - big) + 0) + (1 + 1)
    EXPECT_EQ(tenkGaxpy_v_32f_6x6(ones, 24, x, y, d), tenkOk);
    EXPECT_EQ(d[5], 62);
}

// Terms big, 1, -big: (big + 1 = big) - big = 0, fixed and general; any other order leaves 1.
TEST(Gaxpy, ThreeByThreeSumsLikeTheGeneralMembers)
{
    const float big = 16777216, ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1}, x[] = {big, 1, -big}, y[] = {5, 6, 7};
    float fixed[3], general[3];
    EXPECT_EQ(tenkGaxpy_v_32f_3x3(ones, 12, x, y, fixed), tenkOk);
    EXPECT_EQ(tenkGaxpy_v_32f(ones, 12, x, y, general, 3, 3), tenkOk);
    for (unsigned i = 0; i < 3; ++i) {
        EXPECT_EQ(fixed[i], y[i]);
        EXPECT_EQ(general[i], y[i]);
    }
}

TEST(Gaxpy, NegativeZeros)
{
    eachMember([]<typename T>(bool batch, const std::string& layout, unsigned n) {
        Update<T> u(batch, layout, n);
        u.a.fillWith(T(-0.0));
        u.x.fillWith(T(2));
        u.y.fillWith(T(-0.0));
        ASSERT_EQ(u.run(), tenkOk);
        const T zero = n != 0 && isDense(layout) ? T(-0.0) : T(0);
        for (unsigned k = 0; k < u.count; ++k)
            for (unsigned i = 0; i < u.order; ++i)
                EXPECT_EQ(bitsOf(u.d.at(k, i)), bitsOf(zero)) << u.name;
    });
}

TEST(Gaxpy, LargeGeneralSizesAreExact)
{
    for (const bool batch : {false, true})
        for (const std::string& layout : layoutsOf(batch))
            eachType([&]<typename T>() {
                for (const unsigned order : {1U, 2U, 7U, 9U, 18U}) {
                    Update<T> u(batch, layout, 0, 2, order);
                    ASSERT_EQ(u.run(), tenkOk);
                    for (unsigned k = 0; k < u.count; ++k)
                        for (unsigned i = 0; i < order; ++i)
                            EXPECT_EQ(u.d.at(k, i), u.expected(layout, k, i)) << u.name << " " << order;
                }
            });
}

TEST(Gaxpy, NullOperandsComeBeforeSizesAndSizesBeforeCount)
{
    eachMember([]<typename T>(bool batch, const std::string& layout, unsigned n) {
        Update<T> u(batch, layout, n);
        Arguments all = u.arguments(0);
        const std::size_t second = u.a.arguments().size(), third = second + u.x.arguments().size(),
                          fourth = third + u.y.arguments().size(), sizes = fourth + u.d.arguments().size();
        if (n == 0) {
            for (const std::size_t size : {sizes, sizes + 1}) {
                Arguments broken = all;
                broken[size] = word(0);
                EXPECT_EQ(call(u.name, broken), tenkSizeError) << u.name;
            }
            all[sizes] = word(0);
        }
        for (const std::size_t place : {std::size_t{0}, second, third, fourth}) {
            Arguments broken = all;
            broken[place] = pointer(nullptr);
            EXPECT_EQ(call(u.name, broken), tenkNullPointerError) << u.name << " " << place;
        }
    });
}

TEST(Gaxpy, AnEmptyBatchWritesNothing)
{
    for (const std::string& layout : arrayLayouts)
        for (const unsigned n : {0U, 3U, 4U, 5U, 6U})
            eachType([&]<typename T>() {
                Update<T> u(true, layout, n);
                const auto before = u.d.values();
                EXPECT_EQ(call(u.name, u.arguments(0)), tenkOk) << u.name;
                EXPECT_EQ(u.d.values(), before) << u.name;
                if (!hasList(layout))
                    return;
                for (Objects<T>* o : {&u.x, &u.y, &u.d}) // no entry of a list is looked at
                    std::fill(o->pointers.begin(), o->pointers.end(), nullptr);
                EXPECT_EQ(call(u.name, u.arguments(0)), tenkOk) << u.name;
                EXPECT_EQ(u.d.values(), before) << u.name;
            });
}

TEST(Gaxpy, ANullEntryOfATableIsFoundBeforeAnythingIsWritten)
{
    for (const char* layout : {"_P", "_PS2"})
        for (const unsigned n : {0U, 3U, 4U, 5U, 6U})
            eachType([&]<typename T>() {
                for (const unsigned count : {0U, 3U})
                    for (const unsigned which : {0U, 1U, 2U, 3U}) {
                        Update<T> u(true, layout, n);
                        const auto before = u.d.values();
                        Objects<T>* const all[] = {&u.a, &u.x, &u.y, &u.d};
                        all[which]->pointers.back() = nullptr;
                        EXPECT_EQ(call(u.name, u.arguments(count)), tenkNullPointerError) << u.name << which;
                        EXPECT_EQ(u.d.values(), before) << u.name;
                    }
            });
}

TEST(Gaxpy, TablesOfAWideMatrixAreTestedByItsWidthAndHeight)
{
    // Width 3, height 2: entry 2 of the tables of src3 and dst is nobody's.
    float a[6] = {1, 2, 3, 4, 5, 6}, x[3] = {1, 10, 100}, y[2] = {1000, 2000}, d[2] = {};
    float *pa[] = {&a[0], &a[1], &a[2], &a[3], &a[4], &a[5], nullptr}, *px[] = {&x[0], &x[1], &x[2]};
    float *py[] = {&y[0], &y[1], nullptr}, *pd[] = {&d[0], &d[1], nullptr};
    EXPECT_EQ(tenkGaxpy_va_32f_P(pa, 0, px, 0, py, 0, pd, 0, 3, 2, 1), tenkOk);
    EXPECT_EQ(d[0], 1321);
    EXPECT_EQ(d[1], 2654);
    pa[5] = nullptr;
    EXPECT_EQ(tenkGaxpy_va_32f_P(pa, 0, px, 0, py, 0, pd, 0, 3, 2, 1), tenkNullPointerError);
    pa[5] = &a[5];
    px[2] = nullptr;
    EXPECT_EQ(tenkGaxpy_va_32f_P(pa, 0, px, 0, py, 0, pd, 0, 3, 2, 1), tenkNullPointerError);
}

TEST(Gaxpy, ANullEntryOfAListIsFoundAtItsObject)
{
    for (const char* layout : {"_L", "_LS2"})
        for (const unsigned n : {0U, 3U, 4U, 5U, 6U})
            eachType([&]<typename T>() {
                for (const unsigned which : {0U, 1U, 2U}) {
                    Update<T> u(true, layout, n), whole(true, layout, n);
                    ASSERT_EQ(whole.run(), tenkOk);
                    Objects<T>* const all[] = {&u.x, &u.y, &u.d};
                    all[which]->pointers[1] = nullptr;
                    const T untouched = u.d.at(1, 0);
                    EXPECT_EQ(call(u.name, u.arguments(0)), tenkOk) << u.name;
                    EXPECT_EQ(call(u.name, u.arguments(3)), tenkNullPointerError) << u.name;
                    for (unsigned i = 0; i < u.order; ++i)
                        EXPECT_EQ(u.d.at(0, i), whole.d.at(0, i)) << u.name;
                    EXPECT_EQ(u.d.at(1, 0), untouched) << u.name;
                }
            });
}

TEST(Gaxpy, ASingleObjectBehindTablesIsTestedOnTheWay)
{
    for (const unsigned n : {0U, 3U, 6U})
        eachType([&]<typename T>() {
            for (const bool addend : {false, true}) { // before element 1: nothing of it is written
                Update<T> u(false, "_P", n);
                (addend ? u.y : u.d).pointers[1] = nullptr;
                const T first = u.expected("_P", 0, 0), untouched = u.d.at(0, 1);
                EXPECT_EQ(u.run(), tenkNullPointerError) << u.name;
                EXPECT_EQ(u.d.at(0, 0), first) << u.name;
                EXPECT_EQ(u.d.at(0, 1), untouched) << u.name;
            }
            { // before term 0: the element is +0
                Update<T> u(false, "_P", n);
                u.x.pointers[0] = nullptr;
                EXPECT_EQ(u.run(), tenkNullPointerError) << u.name;
                EXPECT_EQ(bitsOf(u.d.at(0, 0)), 0U) << u.name;
            }
            for (const bool matrix : {false, true}) { // before term 2: the sum of two, without src3
                Update<T> u(false, "_P", n);
                (matrix ? u.a : u.x).pointers[2] = nullptr;
                const T untouched = u.d.at(0, 1);
                EXPECT_EQ(u.run(), tenkNullPointerError) << u.name;
                EXPECT_EQ(u.d.at(0, 0), u.term(0, 0, 0) + u.term(0, 0, 1)) << u.name;
                EXPECT_EQ(u.d.at(0, 1), untouched) << u.name;
            }
        });
}

TEST(Gaxpy, DenseFixedSizesWorkInPlace)
{
    for (const bool batch : {false, true})
        for (const std::string& layout : layoutsOf(batch)) {
            if (!isDense(layout))
                continue;
            for (const unsigned n : {3U, 4U, 5U, 6U})
                eachType([&]<typename T>() {
                    for (const bool addend : {false, true}) {
                        Update<T> u(batch, layout, n), apart(batch, layout, n);
                        ASSERT_EQ(apart.run(), tenkOk);
                        Objects<T>& o = addend ? u.y : u.x;
                        ASSERT_EQ(call(u.name, u.arguments(u.count, o.arguments())), tenkOk);
                        for (unsigned k = 0; k < u.count; ++k)
                            for (unsigned i = 0; i < n; ++i)
                                EXPECT_EQ(o.at(k, i), apart.d.at(k, i)) << u.name;
                    }
                });
        }
}

// All other members set an element of the destination to 0 and add to it while they still read the vectors.
TEST(Gaxpy, AllOtherMembersInPlaceReadWhatTheyHaveWritten)
{
    eachMember([]<typename T>(bool batch, const std::string& layout, unsigned n) {
        if (n != 0 && isDense(layout))
            return;
        for (const bool addend : {false, true}) {
            Update<T> u(batch, layout, n), expected(batch, layout, n);
            Objects<T>& over = addend ? expected.y : expected.x;
            for (unsigned k = 0; k < u.count; ++k)
                for (unsigned i = 0; i < u.order; ++i) {
                    T& sum = over.at(k, i);
                    sum = 0;
                    for (unsigned p = 0; p < u.order; ++p) {
                        const T term = expected.term(k, i, p);
                        sum = sum + term;
                    }
                    sum = sum + expected.y.at(k, i);
                }
            Objects<T>& destination = addend ? u.y : u.x;
            ASSERT_EQ(call(u.name, u.arguments(u.count, destination.arguments())), tenkOk) << u.name;
            EXPECT_EQ(destination.values(), over.values()) << u.name << (addend ? " src3" : " src2");
        }
    });
}

TEST(Gaxpy, OthersKeepTheRunningSumInTheDestination)
{
    // Over src2: i = 0: 0, + 2 x 0, + 3 x 10, + 100 = 130.  i = 1: 0, + 5 x 130 = 650, + 7 x 650 = 5200, +
    // 200.
    const double a[] = {2, 3, 5, 7}, y[] = {100, 200};
    double x[] = {1, 10};
    EXPECT_EQ(tenkGaxpy_v_64f(a, 16, x, y, x, 2, 2), tenkOk);
    EXPECT_EQ(x[0], 130);
    EXPECT_EQ(x[1], 5400);
    // Over src3: the sum is added to itself.
    const double v[] = {1, 10};
    double w[] = {100, 200};
    EXPECT_EQ(tenkGaxpy_v_64f(a, 16, v, w, w, 2, 2), tenkOk);
    EXPECT_EQ(w[0], 64);
    EXPECT_EQ(w[1], 150);
    // Over the matrix, one element in: 0, 2 x 1, + 2 x 10, + 100 = 122 where the 2 is the sum itself, then 0,
    // 0 x 1,
    // + 7 x 10, + 200.
    double b[] = {2, 3, 5, 7};
    const double z[] = {100, 200};
    EXPECT_EQ(tenkGaxpy_v_64f(b, 16, v, z, b + 1, 2, 2), tenkOk);
    EXPECT_EQ((std::array{b[0], b[1], b[2], b[3]}), (std::array{2., 122., 270., 7.}));
    const float ones[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1}, p[] = {1, 2, 3};
    float q[] = {10, 20, 30};
    EXPECT_EQ(tenkGaxpy_v_32f_3x3_S2(ones, 12, 4, p, 4, q, 4, q, 4), tenkOk);
    EXPECT_EQ((std::array{q[0], q[1], q[2]}), (std::array{12.F, 12.F, 12.F}));
}

TEST(Gaxpy, TheMatrixOfAListIsNoList)
{
    const float a[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    float x[3] = {1, 10, 100}, y[3] = {1000, 2000, 3000}, d[3] = {};
    const float *px[] = {x}, *py[] = {y};
    float* pd[] = {d};
    EXPECT_EQ(tenkGaxpy_va_32f_3x3_L(a, 12, px, 0, py, 0, pd, 0, 1), tenkOk);
    EXPECT_EQ((std::array{d[0], d[1], d[2]}), (std::array{1321.F, 2654.F, 3987.F}));
}
