// Invert of orders 3 to 6. Members whose rows are adjacent in memory compute on packed rows, all others
// element by element; the two classes differ in method and in what counts as singular, not only in rounding:
//
//   order   scalar                    packed 32f                  packed 64f
//   3       adjugate; band on det     adjugate; det == 0          adjugate; 1 / det == 0
//   4       adjugate; band on det     adjugate; det == 0          adjugate; det == 0
//   5, 6    blocks n - 3 and 3, a     1 or 2 elements eliminated, blocks 2 and n - 2; a search
//           search for columns;       the rest as order 4; a      if the first det is in the
//           bands on both dets        search if pivots are in     band, the second as order
//                                     the band                    3 or 4
//
// A NaN is in no band and equals no zero, so it goes through to the result with tenkOk.
#pragma once

#include "detinv/invert_small_packed_32f.h"
#include "detinv/invert_small_packed_64f.h"
#include "detinv/invert_small_scalar.h"
#include "frame/packed.h"

namespace tenk {

consteval bool isPacked(Member m)
{
    return isDense(m.layout);
}

// Members with a loop of their own for rows without gaps, whose distances are numbers of the machine code:
// where it is the faster one. The steps of Standard layout are in registers anyhow if there are sixteen.
consteval bool knowsGaplessMatrices(Member m)
{
    return m.batch() && isPacked(m) && m.size == 4 && (fewRegisters ? m.type == Type::f64 : isList(m.layout));
}

template <Member m, typename View>
TENK_INLINE tenkStatus invertObjects(const Source<m>& src, const Destination<m>& dst, Count<m> count,
                                     View view)
{
    constexpr unsigned n = m.size;
    for (std::size_t k = 0; k < count; ++k) {
        if (anyNullObject(k, dst, src))
            return tenkNullPointerError;
        const auto from = view(src.object(k, n));
        const auto to = view(dst.object(k, n));
        bool regular;
        if constexpr (isPacked(m))
            regular = Packed<Element<m>, n>::invert(from, to);
        else
            regular = Scalar<Element<m>, n>::invert(from, to);
        if (!regular)
            return tenkSingularError;
    }
    return tenkOk;
}

template <Member m>
TENK_INLINE tenkStatus invertSmall(Source<m> src, Destination<m> dst, Count<m> count)
{
    constexpr unsigned n = m.size;
    if (anyNull(src, dst) || anyNullEntry(src, n * n) || anyNullEntry(dst, n * n))
        return tenkNullPointerError;
    if constexpr (knowsGaplessMatrices(m))
        if (gapless<n>(src) && gapless<n>(dst))
            return invertObjects<m>(packed<n>(src), packed<n>(dst), count,
                                    [](const auto& object)
                                        TENK_LAMBDA { return GaplessView<Element<m>, n>{object.start}; });
    return invertObjects<m>(src, dst, count, [](const auto& object) TENK_LAMBDA { return object; });
}

} // namespace tenk
