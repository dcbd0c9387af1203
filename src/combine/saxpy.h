// Saxpy: src1 value + src2, element by element. The product is rounded to the element type, then the sum.
#pragma once

#include "combine/combination.h"

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus saxpy(Source<m> src1, Element<m> value, Source<m, 1> src2, Destination<m> dst,
                             Size<m> length, Count<m> count)
{
    if (const tenkStatus status = combine::validate<m>(src1, src2, dst, length); status != tenkOk)
        return status;
    const auto f = [c = combine::Constant(value)](auto x, auto y) TENK_LAMBDA { return x * c + y; };
    return combine::combination<m>(f, src1, src2, dst, length, count);
}

} // namespace tenk
