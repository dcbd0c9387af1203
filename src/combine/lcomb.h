// LComb: src1 value1 + src2 value2, element by element. Both products are rounded to the element type, then
// the sum.
#pragma once

#include "combine/combination.h"

namespace tenk {

// The products of the single second vector are formed once, before the first object and even if there is
// none: a destination that overlaps it changes nothing.
consteval bool formsProductsOnce(Member m)
{
    const bool single = m.source(0).array && !m.source(1).array;
    return single && ((m.layout == Layout::Standard && m.size >= 4) || m == "tenkLComb_vav_32f_4x1_L" ||
                      m == "tenkLComb_vav_64f_4x1_L");
}

template <Member m>
TENK_INLINE tenkStatus lcomb(Source<m> src1, Element<m> value1, Source<m, 1> src2, Element<m> value2,
                             Destination<m> dst, Size<m> length, Count<m> count)
{
    using T = Element<m>;
    if (const tenkStatus status = combine::validate<m>(src1, src2, dst, length); status != tenkOk)
        return status;
    if constexpr (formsProductsOnce(m)) {
        using R = Row<T, m.size>;
        const R products = R::load(src2.object(0, length).start) * R::repeat(value2);
        const auto f = [c1 = combine::Constant(value1)](auto x, auto product)
                           TENK_LAMBDA { return x * c1 + product; };
        using combine::Overlap;
        const bool dense = gapless<m.size, 1>(src1) && gapless<m.size, 1>(dst);
        const auto inOrder = [&]<Overlap overlap>() TENK_LAMBDA {
            if (dense)
                return combine::objects<m, overlap>(f, packed<m.size, 1>(src1), products,
                                                    packed<m.size, 1>(dst), count);
            return combine::objects<m, overlap>(f, src1, products, dst, count);
        };
        if constexpr (m.layout == Layout::Standard)
            if (combine::startsInsideNone<m>(dst, src1, count))
                return inOrder.template operator()<Overlap::none>();
        return inOrder.template operator()<Overlap::ascending>();
    } else {
        const auto f = [c1 = combine::Constant(value1), c2 = combine::Constant(value2)](auto x, auto y)
                           TENK_LAMBDA { return x * c1 + y * c2; };
        return combine::combination<m>(f, src1, src2, dst, length, count);
    }
}

} // namespace tenk
