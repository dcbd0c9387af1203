// Sums of products in the orders that the reductions share.
#pragma once

#include "frame/row.h"

namespace tenk {

// s + x(from) y(from) + ... + x(to - 1) y(to - 1), one after the other, over adjacent elements.
template <typename T>
TENK_INLINE T addProducts(T s, Address x, Address y, std::size_t from, std::size_t to)
{
    for (std::size_t i = from; i < to; ++i)
        s = s + load<T>(x + i * sizeof(T)) * load<T>(y + i * sizeof(T));
    return s;
}

// How many elements at y stand in front of the first one on a 16-byte boundary; y is at a multiple of its
// element size.
template <typename T>
TENK_INLINE std::uint32_t elementsBeforeBoundary(Address y)
{
    return static_cast<std::uint32_t>((16 - y % 16) % 16 / sizeof(T));
}

// The sum over a long run of elements. From the first element of y on a 16-byte boundary on, blocks of 8 are
// added into two vectors of partial sums; what is before joins the first lane, what is behind comes last. It
// is one plain sum if no element of y can stand on a boundary, or if there is no block.
template <typename T>
TENK_INLINE T blockSum(Address x, Address y, std::uint32_t length)
{
    const std::uint32_t peel = elementsBeforeBoundary<T>(y);
    // Signed: a length of 2^31 or more counts as no block.
    const auto behind = static_cast<std::int32_t>(length - peel);
    if (y % sizeof(T) != 0 || behind < 8)
        return addProducts(T{0}, x, y, 0, length);

    Vector<T> sum[2] = {{addProducts(T{0}, x, y, 0, peel)}, {}};
    const std::size_t end = peel + static_cast<std::size_t>(behind) / 8 * 8;
    for (std::size_t i = peel; i < end; i += 8)
        each<8 / lanes<T>>([&](auto v) TENK_LAMBDA {
            const std::size_t at = (i + v * lanes<T>)*sizeof(T);
            sum[v % 2] += loadVector<T>(x + at) * loadVector<T>(y + at);
        });

    const Vector<T> both = sum[0] + sum[1];
    T s;
    if constexpr (lanes<T> == 4)
        s = (both[0] + both[2]) + (both[1] + both[3]);
    else
        s = both[0] + both[1];
    return addProducts(s, x, y, end, length);
}

// Takes v as worked out here. The compiler would put sums off until the last vector is read, or read all
// vectors first, and has no registers for that.
template <typename V>
TENK_INLINE void workedOut(const V& v)
{
    asm volatile("" : : "x"(v));
}

// ---------------------------------------------------------------------------------------------------------------
// Four objects: sums across the lanes of each, one object per lane of the result
// ---------------------------------------------------------------------------------------------------------------

// Lanes 0 and 1 of a and b.
TENK_INLINE Vector<float> lowHalves(Vector<float> a, Vector<float> b)
{
    return shuffle<0, 1, 4, 5>(a, b);
}
// Lanes 2 and 3 of a and b.
TENK_INLINE Vector<float> highHalves(Vector<float> a, Vector<float> b)
{
    return shuffle<2, 3, 6, 7>(a, b);
}

// Lanes 0 + 1 and 2 + 3 of a, then those of b.
TENK_INLINE Vector<float> sumNeighbours(Vector<float> a, Vector<float> b)
{
    return shuffle<0, 2, 4, 6>(a, b) + shuffle<1, 3, 5, 7>(a, b);
}

// Elements 0 to n - 1 of four objects, one object per lane.
template <unsigned n>
struct FourSideBySide
{
    Vector<float> element[n];

    TENK_INLINE explicit FourSideBySide(const Row<float, n> (&row)[4])
    {
        if constexpr (n == 3) { // rows are lanes 0 1 1 2
            const auto low01 = shuffle<0, 4, 1, 5>(row[0].rest, row[1].rest);
            const auto low23 = shuffle<0, 4, 1, 5>(row[2].rest, row[3].rest);
            const auto high01 = shuffle<2, 6, 3, 7>(row[0].rest, row[1].rest);
            const auto high23 = shuffle<2, 6, 3, 7>(row[2].rest, row[3].rest);
            element[0] = lowHalves(low01, low23);
            element[1] = highHalves(low01, low23);
            element[2] = highHalves(high01, high23);
        } else {
            Block<float, 4> quads;
            each<4>([&](auto i) TENK_LAMBDA { quads.row[i].vector[0] = row[i].vector[0]; });
            const auto t = transpose(quads);
            each<4>([&](auto j) TENK_LAMBDA { element[j] = t.row[j].vector[0]; });
            if constexpr (n == 5) {
                element[4] = Vector<float>{row[0].rest, row[1].rest, row[2].rest, row[3].rest};
            } else if constexpr (n == 6) { // the rest of a row is lanes 4 5 4 5
                const auto low = lowHalves(row[0].rest, row[1].rest);
                const auto high = lowHalves(row[2].rest, row[3].rest);
                element[4] = shuffle<0, 2, 4, 6>(low, high);
                element[5] = shuffle<1, 3, 5, 7>(low, high);
            }
        }
    }
};

// The sums of the elements of two rows in 64f, even and odd elements apart, one row per lane.
struct EvenAndOdd
{
    Vector<double> even, odd;
};
template <unsigned n>
TENK_INLINE EvenAndOdd evenAndOdd(const Row<double, n>& first, const Row<double, n>& second)
{
    static_assert(n == 3 || n == 4 || n == 5, "the order of three sums is the caller's");
    auto a = first.vector[0], b = second.vector[0];
    if constexpr (n > 3) {
        a = a + first.vector[1];
        b = b + second.vector[1];
    }
    return {shuffle<0, 2>(a, b), shuffle<1, 3>(a, b)};
}

} // namespace tenk
