// The factors of LUDecomp and their rowIndex, as LUBackSubst reads them.
#pragma once

#include "frame/side_by_side.h"

namespace tenk {

// These step along a row of the factor by 4 bytes, so that 8-byte elements overlap.
consteval bool stepsByFourBytes(Member m)
{
    return m == "tenkLUBackSubst_mva_64f_L" || m == "tenkLUBackSubst_mva_64f_3x3_L" ||
           m == "tenkLUBackSubst_mva_64f_4x4_L" || m == "tenkLUBackSubst_mva_64f_5x5_L" ||
           m == "tenkLUBackSubst_mva_64f_6x6_L";
}

template <Member m>
TENK_INLINE auto luFactor(const Source<m, 0>& src1, std::size_t k, std::size_t order)
{
    const auto factor = src1.object(k, order);
    if constexpr (stepsByFourBytes(m))
        return StridedView<Element<m>>{factor.start, factor.rowStep, 4};
    else
        return factor;
}

TENK_INLINE std::uint32_t rowAt(Address rowIndex, std::size_t p)
{
    return load<std::uint32_t>(rowIndex + p * sizeof(std::uint32_t));
}

// Whether entries of rowIndex are rows of a matrix of fixed size.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInRange(Address rowIndex)
{
    constexpr unsigned four = entries / 4;
    constexpr bool bitsTell = (order & (order - 1)) == 0; // those of all rows together
    const auto tooLarge = [](Mask<float> rows)
                              TENK_LAMBDA { return rows > Mask<float>{} + static_cast<int>(order - 1); };
    Mask<float> outside{}; // by its sign
    each<four>([&](auto v) TENK_LAMBDA {
        const auto rows = load<Mask<float>>(rowIndex + v * 16);
        outside |= bitsTell ? rows : rows | tooLarge(rows);
    });
    if constexpr (bitsTell)
        outside |= tooLarge(outside);
    bool inRange = !any(outside);
    each<entries % 4>([&](auto e) TENK_LAMBDA { inRange &= rowAt(rowIndex, four * 4 + e) < order; });
    return inRange;
}

// Whether entries of rowIndex are the rows of objects in their order, so that nothing was exchanged.
template <unsigned order, unsigned entries>
TENK_INLINE bool rowsInOrder(Address rowIndex)
{
    static_assert(entries % 4 == 0);
    const auto row = [](std::size_t e) TENK_LAMBDA { return static_cast<int>(e % order); };
    Mask<float> difference{};
    each<entries / 4>([&](auto v) TENK_LAMBDA {
        constexpr std::size_t e = v * 4;
        difference |= load<Mask<float>>(rowIndex + e * sizeof(std::uint32_t)) ^
                      Mask<float>{row(e), row(e + 1), row(e + 2), row(e + 3)};
    });
    return all(difference == Mask<float>{});
}

} // namespace tenk
