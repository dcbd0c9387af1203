// The steps of validation, one helper each. Every family calls them in the order in which it promises them;
// that order is, unless a family says otherwise:
//
//   1. main pointers                              anyNull           tenkNullPointerError
//   2. sizes, in general members                  anyZero           tenkSizeError
//   3. entries of tables, in array members        anyNullEntry      tenkNullPointerError
//   4. an empty batch                             count == 0        tenkOk
//   5. entries of lists, object by object         anyNullObject     tenkNullPointerError
//   6. entries of tables of a single object, as the computation reaches them: in the kernel
#pragma once

#include "frame/operand.h"
#include "tenk/types.h"

namespace tenk {

TENK_INLINE bool isNull(const void* p)
{
    return p == nullptr;
}
template <typename T, Layout layout, Code code>
TENK_INLINE bool isNull(const Operand<T, layout, code>& o)
{
    return o.p == 0;
}

// Main pointers: operands, plain results, buffers.
template <typename... P>
TENK_INLINE bool anyNull(const P&... pointers)
{
    return (isNull(pointers) || ...);
}

// A size in a name is never zero, so members of fixed size have no such test.
template <typename... S>
TENK_INLINE bool anyZero(const S&... sizes)
{
    return ((static_cast<std::uint32_t>(sizes) == 0) || ...);
}

// Entries 0 to n - 1 of a table, if the operand has one.
template <typename T, Layout layout, Code code>
TENK_INLINE bool anyNullEntry(const Operand<T, layout, code>& o, std::size_t n)
{
    if constexpr (isTable(layout))
        for (std::size_t e = 0; e < n; ++e)
            if (o.nullEntry(e))
                return true;
    return false;
}

// The same for the tables of several operands, index by index.
template <typename... O>
TENK_INLINE bool anyNullEntryOf(std::size_t n, const O&... operands)
{
    if constexpr ((O::table || ...))
        for (std::size_t e = 0; e < n; ++e)
            if ((operands.nullEntry(e) || ...))
                return true;
    return false;
}

// Entry k of the list of each operand that is one.
template <typename... O>
TENK_INLINE bool anyNullObject(std::size_t k, const O&... operands)
{
    const auto isNullObject = [k](const auto& o) TENK_LAMBDA {
        if constexpr (std::remove_cvref_t<decltype(o)>::list)
            return o.nullEntry(k);
        else
            return false;
    };
    return (isNullObject(operands) || ...);
}

} // namespace tenk
