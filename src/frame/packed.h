// Arrays without gaps, which are the usual ones: with the steps between their rows and objects as numbers of
// the machine code, a loop needs no register for them.
#pragma once

#include "frame/operand.h"

namespace tenk {

// Whether `rows` dense rows of n elements follow each other without a gap, and the objects do, too, unless
// there is only one, or each is in a list: then nothing is added to the list's entries.
template <unsigned n, unsigned rows = n, typename O>
TENK_INLINE bool gapless(const O& o)
{
    constexpr Displacement row = n * sizeof(typename O::Value);
    Displacement shift = o.shift;
    asm("" : "+r"(shift)); // on i386 a loop would count in the memory of a shift that is known to be zero
    return (rows == 1 || o.stride1 == row) && (O::single || (O::list ? shift == 0 : o.stride0 == rows * row));
}

// The same operand with its steps as constants.
template <unsigned n, unsigned rows = n, typename O>
TENK_INLINE O packed(O o)
{
    constexpr Displacement row = n * sizeof(typename O::Value);
    o.stride1 = row;
    if constexpr (O::list)
        o.shift = 0;
    else if constexpr (!O::single)
        o.stride0 = rows * row;
    return o;
}

} // namespace tenk
