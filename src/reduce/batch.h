// Batches of scalar results: results lie side by side whatever the layout of the sources.
#pragma once

#include "frame/checks.h"
#include "frame/row.h"

namespace tenk {

template <typename T>
TENK_INLINE Address resultAddress(const T* dst, std::size_t k)
{
    return reinterpret_cast<Address>(dst) + k * sizeof(T);
}

// How the objects of a batch are taken.
struct BatchSteps
{
    unsigned objects; // results in a vector, worked out side by side
    // Tests of list entries and writes: of a whole step together, or as if object by object. In the latter
    // case a step is split up when somebody could tell.
    bool together;
};

// Results of `steps.objects` objects at a time, then of the rest one by one. An object or a step is read as a
// whole before its results are written, and the list entries of an object are tested before it is read.
//
//   isNull(k)     an entry of object k is null
//   isApart(k)    the results of the step at k lie on none of its objects, nor on their list entries
//   several(k)    the results of the step at k, a vector
//   one(k)        the result of object k
template <BatchSteps steps, typename T, typename Null, typename Apart, typename Several, typename One>
TENK_INLINE tenkStatus inSteps(T* dst, std::size_t count, Null isNull, Apart isApart, Several several,
                               One one)
{
    std::size_t k = 0;
    const auto anyNullInStep = [&] TENK_LAMBDA {
        bool null = false;
        each<steps.objects>([&](auto n) TENK_LAMBDA { null |= isNull(k + n); });
        return null;
    };
    while (k < count) {
        std::size_t end = count;
        if constexpr (steps.objects > 1) {
            for (; count - k >= steps.objects; k += steps.objects) {
                const bool null = anyNullInStep();
                if (steps.together && null)
                    return tenkNullPointerError;
                if (!steps.together && (null || !isApart(k))) {
                    end = k + steps.objects;
                    break;
                }
                store<Vector<T>>(resultAddress(dst, k), several(k));
            }
        }
        for (; k < end; ++k) {
            if (isNull(k))
                return tenkNullPointerError;
            store<T>(resultAddress(dst, k), one(k));
        }
    }
    return tenkOk;
}

// The same for steps together, or for no steps.
template <unsigned step, typename T, typename Null, typename Several, typename One>
TENK_INLINE tenkStatus inSteps(T* dst, std::size_t count, Null isNull, Several several, One one)
{
    const auto isApart = [](std::size_t) TENK_LAMBDA { return true; };
    return inSteps<BatchSteps{step, true}>(dst, count, isNull, isApart, several, one);
}

// ---------------------------------------------------------------------------------------------------------------
// Whether anybody can tell that results are written a step at a time
// ---------------------------------------------------------------------------------------------------------------

// The runs of so many bytes at a and at b have no byte in common.
TENK_INLINE bool areApart(Address a, std::size_t aBytes, Address b, std::size_t bBytes)
{
    return b - a + (bBytes - 1) >= aBytes + (bBytes - 1);
}

// Whether the results of a batch lie apart from the objects of a source, which have `rows` dense rows of n
// elements. It is found out once for objects that are a step apart, and for each step of results for objects
// in a list. The answer is no where an object or the batch goes backwards or might wrap around the end of
// memory.
template <unsigned rows, unsigned n, unsigned step, typename O>
struct Apart
{
    using T = typename O::Value;
    static constexpr std::uint64_t most = std::uint64_t{1} << 30;

    const O& source;
    Address results;
    std::size_t bytes; // of an object
    bool known;

    TENK_INLINE Apart(const O& o, const T* dst, std::size_t count) : source(o), results(resultAddress(dst, 0))
    {
        const std::uint64_t object =
            static_cast<std::uint64_t>(o.stride1) * (rows - 1) + std::uint64_t{n * sizeof(T)};
        const std::uint64_t all = object + static_cast<std::uint64_t>(o.stride0) * (count - 1);
        bytes = static_cast<std::size_t>(object);
        known = o.stride1 >= 0 && o.stride0 >= 0 && count != 0 && object < most && count * sizeof(T) < most;
        if constexpr (!O::list)
            known = known && all < most &&
                    areApart(results, count * sizeof(T), o.p, static_cast<std::size_t>(all));
    }

    TENK_INLINE bool operator()(std::size_t k) const
    {
        bool apart = known;
        if constexpr (O::list) {
            const Address written = results + k * sizeof(T);
            apart = apart && areApart(written, step * sizeof(T), source.p + k * sizeof(Address),
                                      step * sizeof(Address));
            each<step>([&](auto i) TENK_LAMBDA {
                apart = apart && areApart(written, step * sizeof(T), source.object(k + i, n).start, bytes);
            });
        }
        return apart;
    }
};

} // namespace tenk
