// LoadIdentity: zeros and a run of ones, written into an array of matrices.
//
// The ones advance by one column from row to row and are not taken back at the head of an object: the one of
// row i of object k stands in column k height + i. So object 0 alone is an identity. In all others, and in
// rows below the last column, the one goes where that column would be: past the row, and behind a table
// through the entry past the row's.
//
// An empty batch is a size error. `width` and `height` are signed here, and below 1 there is nothing to do.
// No table or list entry is tested.
#pragma once

#include "frame/checks.h"

namespace tenk {

// A stride, as an unsigned number of bytes, is at least so many.
TENK_INLINE Displacement atLeast(Displacement stride, std::uint32_t bytes)
{
    return static_cast<std::uint32_t>(stride) < bytes ? displacement(bytes) : stride;
}

template <Member m>
TENK_INLINE tenkStatus loadIdentity(Destination<m> dst, Size<m> width, Size<m> height, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(dst))
        return tenkNullPointerError;
    if (anyZero(count))
        return tenkSizeError;
    const auto columns = static_cast<std::int32_t>(std::uint32_t{width});
    const auto rows = static_cast<std::int32_t>(std::uint32_t{height});
    if (columns <= 0 || rows <= 0)
        return tenkOk;

    // A row is at least as long as its elements side by side: spread elements can run over into the next row.
    dst.stride1 = atLeast(dst.stride1, width * std::uint32_t{sizeof(T)});
    dst.stride2 = atLeast(dst.stride2, sizeof(T));
    if constexpr (isTable(m.dstLayout))
        dst.stride0 = atLeast(dst.stride0, sizeof(T));

    std::size_t one = 0;
    for (std::size_t k = 0; k < count; ++k) {
        const auto to = dst.object(k, width);
        for (std::size_t i = 0; i < height; ++i) {
            for (std::size_t j = 0; j < width; ++j)
                store<T>(to.at(i, j), 0);
            store<T>(to.at(i, one), 1);
            ++one;
        }
    }
    return tenkOk;
}

} // namespace tenk
