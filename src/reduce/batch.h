// Batches of scalar results: results lie side by side whatever the layout of the sources.
#pragma once

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

template <typename T>
TENK_INLINE Address resultAddress(T* dst, std::size_t k)
{
    return reinterpret_cast<Address>(dst) + k * sizeof(T);
}

// Results of `step` objects at a time, then of the rest one by one. The list entries of a step are tested
// together before any of its objects is read, those of the rest each before its object, and results are
// written when all elements of the step or object have been read.
//
//   isNull(k)     an entry of object k is null
//   several(k)    the results of objects k to k + step - 1, a vector
//   one(k)        the result of object k
template <unsigned step, typename T, typename Null, typename Several, typename One>
TENK_INLINE tenkStatus inSteps(T* dst, std::size_t count, Null isNull, Several several, One one)
{
    std::size_t k = 0;
    if constexpr (step > 1)
        for (; count - k >= step; k += step) {
            for (unsigned n = 0; n < step; ++n)
                if (isNull(k + n))
                    return tenkNullPointerError;
            store<Vector<T>>(resultAddress(dst, k), several(k));
        }
    for (; k < count; ++k) {
        if (isNull(k))
            return tenkNullPointerError;
        store<T>(resultAddress(dst, k), one(k));
    }
    return tenkOk;
}

} // namespace tenk
