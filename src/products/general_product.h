// The product of two matrices of any size, each sum starting at +0, its terms in order.
#pragma once

#include "products/factors.h"

namespace tenk {

// Element by element, with the running sum in the destination. The entries of the tables of single objects
// are tested on the way.
template <Member m, typename Left, typename Right, typename Out>
TENK_INLINE tenkStatus productInPlace(const Left& left, const Right& right, const Out& out, Size<m> height,
                                      Size<m> width, Size<m> terms)
{
    using T = Element<m>;
    constexpr bool transposed1 = m.operand[0].transposed, transposed2 = m.operand[1].transposed;
    constexpr bool tests = isTable(m.layout) && !m.batch();
    for (std::size_t i = 0; i < height; ++i)
        for (std::size_t j = 0; j < width; ++j) {
            if constexpr (tests)
                if (out.isNull(i, j))
                    return tenkNullPointerError;
            const Address to = out.at(i, j);
            T sum = 0;
            store(to, sum);
            for (std::size_t p = 0; p < terms; ++p) {
                if constexpr (tests)
                    if (isNullElement<transposed1>(left, i, p) || isNullElement<transposed2>(right, p, j))
                        return tenkNullPointerError;
                sum = sum + load<T>(elementOf<transposed1>(left, i, p)) *
                                load<T>(elementOf<transposed2>(right, p, j));
                store(to, sum);
            }
        }
    return tenkOk;
}

// `rows` rows by `columns` columns of the product, from (i, j) on, all sums at once.
template <Member m, unsigned rows, unsigned columns, typename Left, typename Right, typename Out>
TENK_INLINE void productTile(const Left& left, const Right& right, const Out& out, std::size_t i,
                             std::size_t j, std::size_t terms)
{
    using T = Element<m>;
    using R = Row<T, columns>;
    constexpr bool transposed1 = m.operand[0].transposed, transposed2 = m.operand[1].transposed;
    R sum[rows];
    each<rows>([&](auto r) TENK_LAMBDA { sum[r] = R::repeat(0); });
    for (std::size_t p = 0; p < terms; ++p) {
        R factor;
        if constexpr (transposed2)
            factor = gatherRow<T, columns>([&](std::size_t c) TENK_LAMBDA { return right.at(j + c, p); });
        else
            factor = R::load(right.at(p, j));
        each<rows>([&](auto r) TENK_LAMBDA {
            sum[r] = sum[r] + R::repeat(load<T>(elementOf<transposed1>(left, i + r, p))) * factor;
        });
    }
    each<rows>([&](auto r) TENK_LAMBDA { sum[r].store(out.at(i + r, j)); });
}

// `rows` rows of the product, from row i on.
template <Member m, unsigned rows, typename Left, typename Right, typename Out>
TENK_INLINE void productRows(const Left& left, const Right& right, const Out& out, std::size_t i,
                             std::size_t width, std::size_t terms)
{
    constexpr unsigned n = lanes<Element<m>>;
    std::size_t j = 0;
    if constexpr (rows > 1)
        for (; j + 2 * n <= width; j += 2 * n)
            productTile<m, rows, 2 * n>(left, right, out, i, j, terms);
    for (; j + n <= width; j += n)
        productTile<m, rows, n>(left, right, out, i, j, terms);
    for (; j < width; ++j)
        productTile<m, rows, 1>(left, right, out, i, j, terms);
}

// Tile by tile, where the destination overlaps nothing, itself included, so that nobody sees a running sum.
template <Member m, typename Left, typename Right, typename Out>
TENK_INLINE void productInTiles(const Left& left, const Right& right, const Out& out, std::size_t height,
                                std::size_t width, std::size_t terms)
{
    constexpr unsigned rows = fewRegisters ? 2 : 4; // as many sums as there are registers for
    std::size_t i = 0;
    for (; i + rows <= height; i += rows)
        productRows<m, rows>(left, right, out, i, width, terms);
    for (; i < height; ++i)
        productRows<m, 1>(left, right, out, i, width, terms);
}

template <Member m, typename Left, typename Right, typename Out>
TENK_INLINE tenkStatus generalProduct(const Left& left, const Right& right, const Out& out, Size<m> height,
                                      Size<m> width, Size<m> terms)
{
    if constexpr (isDense(m.layout)) {
        constexpr bool transposed1 = m.operand[0].transposed, transposed2 = m.operand[1].transposed;
        const ByteRange range = rangeOf(out, height, width);
        const std::int64_t rowBytes = std::int64_t{width} * std::int64_t{sizeof(Element<m>)};
        const bool rowsApart = height == 1 || out.rowStep >= rowBytes || -out.rowStep >= rowBytes;
        if (rowsApart &&
            areApart(range, transposed1 ? rangeOf(left, terms, height) : rangeOf(left, height, terms)) &&
            areApart(range, transposed2 ? rangeOf(right, width, terms) : rangeOf(right, terms, width))) {
            productInTiles<m>(left, right, out, height, width, terms);
            return tenkOk;
        }
    }
    return productInPlace<m>(left, right, out, height, width, terms);
}

} // namespace tenk
