// Extract: elements of a strided, list or pointer layout gathered into one dense run, as raw bits.
//
// The run has no strides: element n of it is at dst + n E. No table or list entry is tested, and an empty
// batch is a size error like any other.
#pragma once

#include "frame/checks.h"

namespace tenk {

// These test nothing at all; with a size of zero they have nothing to do.
consteval bool testsNothing(Member m)
{
    return m.layout == Layout::Pointer && !(m == "tenkExtract_v_32f_P");
}

// A transposed matrix behind a table is walked in the order of the table and scattered into columns, whereas
// all other members write the run in order and exchange the strides instead. Its shift is not used.
consteval bool scatters(Member m)
{
    return m == "tenkExtract_mT_32f_P" || m == "tenkExtract_mT_64f_P";
}

// Runs of elements behind a table are read one after the other, element by element of all objects.
consteval bool goesRunByRun(Member m)
{
    return m.layout == Layout::StridedPointer;
}

template <Member m>
TENK_INLINE tenkStatus extract(Source<m> src, Element<m>* dst, Size<m> width, Size<m> height, Count<m> count)
{
    using T = Element<m>;
    if constexpr (!testsNothing(m)) {
        if (anyNull(src, dst))
            return tenkNullPointerError;
        if (anyZero(width, height, count))
            return tenkSizeError;
    }

    const auto run = reinterpret_cast<Address>(dst);
    const std::size_t elements = std::size_t{width} * height;
    if constexpr (scatters(m)) {
        src.shift = 0;
        const auto from = src.object(0, width);
        for (std::size_t i = 0; i < height; ++i)
            for (std::size_t j = 0; j < width; ++j)
                move<T>(run + (j * height + i) * sizeof(T), from.at(i, j));
    } else if constexpr (goesRunByRun(m)) {
        for (std::size_t e = 0; e < elements; ++e)
            for (std::size_t k = 0; k < count; ++k)
                move<T>(run + (k * elements + e) * sizeof(T), src.object(k, width).through(e));
    } else {
        Address to = run;
        for (std::size_t k = 0; k < count; ++k) {
            const auto from = src.object(k, width);
            for (std::size_t i = 0; i < height; ++i)
                for (std::size_t j = 0; j < width; ++j) {
                    move<T>(to, m.operand[0].transposed ? from.at(j, i) : from.at(i, j));
                    to += sizeof(T);
                }
        }
    }
    return tenkOk;
}

// Vectors are matrices of one row.
template <Member m>
TENK_INLINE tenkStatus extract(Source<m> src, Element<m>* dst, Size<m> length, Count<m> count)
{
    return extract<m>(src, dst, length, 1, count);
}

} // namespace tenk
