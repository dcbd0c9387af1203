// Batches of scalar results: results lie side by side whatever the layout of the sources.
#pragma once

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/packed.h"
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
    // Whether the list entries of objects behind the last full step are tested.
    bool testsRest = true;
};

// Results of `steps.objects` objects at a time, then of the rest one by one. An object or a step is read as a
// whole before its results are written, and the list entries of an object are tested before it is read.
//
//   possible          steps may be tried
//   isNull(k)         an entry of object k is null
//   step(k, results)  works out the results of the step at k, a vector, or answers false: where steps are
//                     together, for a null entry; else the step is split up
//   one(k)            the result of object k
template <BatchSteps steps, typename T, typename Null, typename Step, typename One>
TENK_INLINE tenkStatus stepsOrSingles(T* dst, std::size_t count, bool possible, Null isNull, Step step,
                                      One one, std::size_t k = 0)
{
    const std::size_t full = count - count % steps.objects; // k is a multiple up to there
    while (k < count) {
        std::size_t end = count;
        if constexpr (steps.objects > 1)
            if (possible && k != full) {
                do {
                    Vector<T> results;
                    if (!step(k, results))
                        break;
                    store<Vector<T>>(resultAddress(dst, k), results);
                    k += steps.objects;
                } while (k != full);
                if (k != full) {
                    if (steps.together)
                        return tenkNullPointerError;
                    end = k + steps.objects;
                }
            }
        for (; k < end; ++k) {
            if (steps.testsRest && isNull(k))
                return tenkNullPointerError;
            store<T>(resultAddress(dst, k), one(k));
        }
    }
    return tenkOk;
}

// The same one by one, counted up to zero: operands and results are those behind the last object. It takes no
// register for the number of objects, and no time for counting but once in four objects.
template <typename T, typename Null, typename One>
TENK_INLINE tenkStatus singlesUpToZero(T* end, std::size_t count, Null isNull, One one)
{
    const auto single = [&](std::size_t k) TENK_LAMBDA {
        if (isNull(k))
            return false;
        store<T>(resultAddress(end, k), one(k));
        return true;
    };
    std::size_t k = 0 - count;
    for (; k % 4 != 0; ++k)
        if (!single(k))
            return tenkNullPointerError;
    for (; k != 0; k += 4)
        if (!(single(k) && single(k + 1) && single(k + 2) && single(k + 3)))
            return tenkNullPointerError;
    return tenkOk;
}

// Of an operand, or of results, what is behind the last one, in a register: left to itself, the compiler
// would read an argument from memory wherever it is needed.
template <typename O>
TENK_INLINE O behindLast(O o, std::size_t count)
{
    if constexpr (O::list)
        o.p += count * sizeof(Address);
    asm("" : "+r"(o.p));
    return o;
}
template <typename T>
TENK_INLINE T* behindLast(T* results, std::size_t count)
{
    results += count;
    asm("" : "+r"(results));
    return results;
}

// Works out the results of steps in two parts, so that the second part of one step and the first part of the
// next, which wait for nothing of each other, go at the same time. Answers which object is the next one: that
// of the first step which may not be read before the results of the step in front of it are written, or the
// one behind the last full step.
//
//   start(k, part)  the first part of the step at k, or false if that may not be read
//   finish(part)    its results
template <unsigned step, typename T, typename Start, typename Finish>
TENK_INLINE std::size_t inPipeline(T* dst, std::size_t count, Start start, Finish finish)
{
    const std::size_t full = count - count % step;
    Vector<T> part;
    if (full == 0 || !start(std::size_t{0}, part))
        return 0;
    asm("" : "+r"(dst)); // the compiler would read it from memory in each step
    std::size_t k = step;
    for (; k != full; k += step) {
        Vector<T> next;
        if (!start(k, next))
            break;
        asm volatile("" : "+x"(part)); // finished behind the start, where the compiler would put it in front
        store<Vector<T>>(resultAddress(dst, k - step), finish(part));
        part = next;
    }
    store<Vector<T>>(resultAddress(dst, k - step), finish(part));
    return k;
}

// The same, where all tests of a step come before all its work.
//
//   isApart(k)    the results of the step at k lie on none of its objects, nor on their list entries
//   several(k)    the results of the step at k
template <BatchSteps steps, typename T, typename Null, typename Apart, typename Several, typename One>
TENK_INLINE tenkStatus inSteps(T* dst, std::size_t count, Null isNull, Apart isApart, Several several,
                               One one, std::size_t from = 0)
{
    const auto step = [&](auto k, Vector<T>& results) TENK_LAMBDA {
        bool null = false;
        each<steps.objects>([&](auto n) TENK_LAMBDA { null = null || isNull(k + n); });
        if (null || !(steps.together || isApart(k)))
            return false;
        results = several(k);
        return true;
    };
    return stepsOrSingles<steps>(dst, count, steps.together || isApart.possible, isNull, step, one, from);
}

// For steps together, or for no steps.
struct NoMatter
{
    static constexpr bool possible = true;
    TENK_INLINE bool operator()(std::size_t) const { return true; }
};

template <unsigned step, typename T, typename Null, typename Several, typename One>
TENK_INLINE tenkStatus inSteps(T* dst, std::size_t count, Null isNull, Several several, One one)
{
    return inSteps<BatchSteps{step, true}>(dst, count, isNull, NoMatter{}, several, one);
}

// ---------------------------------------------------------------------------------------------------------------
// Whether anybody can tell that results are written a step at a time
// ---------------------------------------------------------------------------------------------------------------

// Whether the results of a batch lie apart from the objects of a source, which have `rows` dense rows of n
// elements. It is found out once for objects that are a step apart, and for objects in a list once for the
// list and then for each step of results. The answer is no where an object or the batch goes backwards or
// might wrap around the end of memory.
template <unsigned rows, unsigned n, unsigned step, typename O>
struct Apart
{
    using T = typename O::Value;
    static constexpr std::uint64_t most = std::uint64_t{1} << 30;

    const O& source;
    Address results;
    std::size_t bytes; // of an object
    bool possible;

    TENK_INLINE Apart(const O& o, const T* dst, std::size_t count) : source(o), results(resultAddress(dst, 0))
    {
        std::uint64_t object = n * sizeof(T);
        if constexpr (rows > 1)
            object += static_cast<std::uint64_t>(o.stride1) * (rows - 1);
        bytes = static_cast<std::size_t>(object);
        possible =
            o.stride1 >= 0 && o.stride0 >= 0 && count != 0 && object < most && count * sizeof(T) < most;
        if constexpr (O::list) {
            possible =
                possible && apart(Bytes{results, count * sizeof(T)}, Bytes{o.p, count * sizeof(Address)});
        } else {
            const std::uint64_t all = object + static_cast<std::uint64_t>(o.stride0) * (count - 1);
            possible = possible && all < most &&
                       apart(Bytes{results, count * sizeof(T)}, Bytes{o.p, static_cast<std::size_t>(all)});
        }
    }

    TENK_INLINE bool operator()(std::size_t k) const
    {
        bool all = true;
        if constexpr (O::list)
            each<step - 1>([&](auto i) TENK_LAMBDA { // the first object is read before any result is written
                all = all && apart(Bytes{results + k * sizeof(T), step * sizeof(T)},
                                   Bytes{source.object(k + i + 1, n).start, bytes});
            });
        return all;
    }
};

// The same of two sources whose objects are a step apart.
template <typename A, typename B>
struct BothApart
{
    bool possible;

    TENK_INLINE BothApart(const A& first, const B& second) : possible(first.possible && second.possible) {}
    TENK_INLINE bool operator()(std::size_t) const { return true; }
};

// Whether an object of n adjacent elements may be read before the results of earlier ones are written, with
// one comparison for each entry of a list: one that is not null, and whose object lies on the same side of
// all results as the first one. Without a list it is found out once. Nothing is added to the entries.
template <unsigned n, typename O>
struct OnOneSide
{
    using T = typename O::Value;

    Address list;
    bool possible;
    Address toFirst, length; // of the addresses that objects may have

    TENK_INLINE OnOneSide(const O& o, const T* dst, std::size_t count) : list(o.p)
    {
        constexpr std::size_t bytes = n * sizeof(T);
        const Address results = resultAddress(dst, 0), end = resultAddress(dst, count);
        possible = count != 0 && end > results;
        Address room = results; // on that side
        if constexpr (O::list) {
            possible = possible && (sizeof(Address) == 8 || o.p % 16 == 0) &&
                       apart(Bytes{results, end - results}, Bytes{o.p, count * sizeof(Address)});
            const bool behind = possible && o.entry(0) >= end;
            toFirst = 0 - (behind ? end : 1);
            room = behind ? 0 - end : results;
        } else {
            possible = possible && apart(Bytes{results, end - results}, Bytes{o.p, bytes});
        }
        possible = possible && room > bytes;
        length = room - bytes;
    }
    TENK_INLINE bool mayRead(Address object) const { return !O::list || object + toFirst < length; }

    // Which of the four objects from k on may not, as masks, where an address has 32 bits: compared as signed
    // numbers. The entries of a step are read at once, so the list has to be aligned, for them to lie on one
    // page.
    TENK_INLINE __m128i mayNotRead(std::size_t k) const
    {
        const auto inAll = [](Address a) TENK_LAMBDA { return _mm_set1_epi32(static_cast<std::int32_t>(a)); };
        if constexpr (!O::list)
            return inAll(0);
        const auto entries = _mm_load_si128(reinterpret_cast<const __m128i*>(list + k * sizeof(Address)));
        constexpr Address sign = 0x80000000;
        return _mm_cmpgt_epi32(_mm_add_epi32(entries, inAll(toFirst + sign)), inAll(length - 1 - sign));
    }
};
TENK_INLINE bool none(__m128i masks)
{
    return _mm_movemask_epi8(masks) == 0;
}

} // namespace tenk
