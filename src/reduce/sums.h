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

// Element i of four objects that hold three elements as 0 1 1 2, one object per lane.
struct ThreeOfFour
{
    Vector<float> element[3];
};
TENK_INLINE ThreeOfFour sideBySide(const Row<float, 3> (&object)[4])
{
    const auto low01 = shuffle<0, 4, 1, 5>(object[0].rest, object[1].rest);
    const auto low23 = shuffle<0, 4, 1, 5>(object[2].rest, object[3].rest);
    const auto high01 = shuffle<2, 6, 3, 7>(object[0].rest, object[1].rest);
    const auto high23 = shuffle<2, 6, 3, 7>(object[2].rest, object[3].rest);
    return {{lowHalves(low01, low23), highHalves(low01, low23), highHalves(high01, high23)}};
}

} // namespace tenk
