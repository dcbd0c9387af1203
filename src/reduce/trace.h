// Trace: the sum of the diagonal elements of a square matrix, by ascending index, each sum rounded to the
// element type.
#pragma once

#include "reduce/batch.h"

namespace tenk {

// These add the elements up and write the sum: a diagonal of -0 gives -0. All others set the result to +0 and
// add the elements to it in memory, where a result that lies on the diagonal changes what is summed, and
// where the sum so far stays if a table turns out to hold a null pointer.
consteval bool writesTraceOnce(Member m)
{
    return isDense(m.layout) && !m.general();
}

// Arrays behind tables test the first row of the table, entries 0 to order - 1, and not the diagonal which
// they read. A single matrix tests the diagonal.
consteval bool testsFirstRow(Member m)
{
    return isTable(m.layout) && m.batch();
}

// The sum of the diagonal of each object, without a start value.
template <Member m>
TENK_INLINE tenkStatus tracesAtOnce(Source<m> src, Element<m>* dst, std::size_t count)
{
    using T = Element<m>;
    const Displacement next = src.stride1 + Displacement{sizeof(T)};
    const auto traceOf = [&](std::size_t k) TENK_LAMBDA {
        Address at = src.object(k, m.size).start;
        T sum = load<T>(at);
        each<m.size - 1>([&](auto) TENK_LAMBDA {
            at += static_cast<Address>(next);
            sum = sum + load<T>(at);
        });
        return sum;
    };
    const auto isNull = [&](std::size_t k) TENK_LAMBDA { return anyNullObject(k, src); };
    if constexpr (Source<m>::list && m.size == 3) { // counting is not what takes time in larger ones
        src = behindLast(src, count);
        return singlesUpToZero(behindLast(dst, count), count, isNull, traceOf);
    } else {
        return inSteps<1>(dst, count, isNull, Nothing{}, traceOf);
    }
}

template <Member m>
TENK_INLINE tenkStatus trace(Source<m> src, Size<m> order, Element<m>* dst, Count<m> count)
{
    using T = Element<m>;
    if (anyNull(src, dst))
        return tenkNullPointerError;
    if (anyZero(order))
        return tenkSizeError;
    if (testsFirstRow(m) && anyNullEntry(src, order))
        return tenkNullPointerError;

    if constexpr (writesTraceOnce(m)) {
        return gapless<m.size>(src) ? tracesAtOnce<m>(packed<m.size>(src), dst, count)
                                    : tracesAtOnce<m>(src, dst, count);
    } else {
        for (std::size_t k = 0; k < count; ++k) {
            if (anyNullObject(k, src))
                return tenkNullPointerError;
            const auto from = src.object(k, order);
            const Address result = resultAddress(dst, k);
            T sum = 0;
            store<T>(result, sum);
            for (std::size_t i = 0; i < order; ++i) {
                if constexpr (isTable(m.layout) && !m.batch())
                    if (from.isNull(i, i))
                        return tenkNullPointerError;
                sum = sum + load<T>(from.at(i, i));
                store<T>(result, sum);
            }
        }
        return tenkOk;
    }
}

} // namespace tenk
