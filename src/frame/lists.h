// The entries of a list for a group of objects, a vector of them at a time: which of them are null, and how
// the objects lie.
//
// A test answers with the highest bit of each lane. SSE2 does not compare numbers of 64 bits, but where
// addresses have that many, memory lies in the lower half of them, and the sign of a difference tells. An
// address in the upper half only looks as if it did not pass.
#pragma once

#include "frame/bytes.h"
#include "frame/row.h"

namespace tenk {

typedef Address AddressVector __attribute__((vector_size(16)));

TENK_INLINE bool any(AddressVector answers)
{
    if constexpr (sizeof(Address) == 8)
        return _mm_movemask_pd(reinterpret_cast<__m128d>(answers)) != 0;
    else
        return _mm_movemask_ps(reinterpret_cast<__m128>(answers)) != 0;
}

TENK_INLINE AddressVector areNull(AddressVector entries)
{
    if constexpr (sizeof(Address) == 8)
        return entries - 1;
    else
        return reinterpret_cast<AddressVector>(entries == 0);
}

// Addresses that are not at least `length` behind others, or too far.
TENK_INLINE AddressVector areNotBehind(AddressVector a, AddressVector others, Address length, Address nearby)
{
    const AddressVector distance = a - others - length;
    if constexpr (sizeof(Address) == 8)
        return distance;
    else
        return reinterpret_cast<AddressVector>(distance > nearby);
}

// Runs of `length` bytes that are not apart from all of a longer one.
TENK_INLINE AddressVector areNotApart(AddressVector starts, Address length, const Bytes& other)
{
    const AddressVector distance = starts - (other.first + other.length);
    if constexpr (sizeof(Address) == 8)
        return distance & (other.first - length - starts);
    else
        return reinterpret_cast<AddressVector>(distance > 0 - other.length - length);
}

// The entries of some objects that follow each other in a list.
template <unsigned objects>
struct Entries
{
    static constexpr unsigned lanes = 16 / sizeof(Address);
    static constexpr unsigned vectors = objects / lanes;
    static_assert(objects % lanes == 0);
    AddressVector vector[vectors];

    TENK_INLINE static Entries load(Address first)
    {
        Entries e;
        each<vectors>([&](auto v) TENK_LAMBDA { e.vector[v] = tenk::load<AddressVector>(first + v * 16); });
        return e;
    }

    // The entries in front of these, as if in front of the first there were an object `length` before it.
    TENK_INLINE Entries inFront(Address length) const
    {
        Entries e;
        Address last = vector[0][0] - length;
        for (unsigned v = 0; v < vectors; ++v)
            for (unsigned lane = 0; lane < lanes; ++lane) {
                e.vector[v][lane] = last;
                last = vector[v][lane];
            }
        return e;
    }

    // Whether a test of the entries, with those of `others` in the same places, has an answer yes.
    template <typename F, typename... E>
    TENK_INLINE bool any(F test, const E&... others) const
    {
        AddressVector answers = test(vector[0], others.vector[0]...);
        each<vectors - 1>([&](auto v)
                              TENK_LAMBDA { answers |= test(vector[v + 1], others.vector[v + 1]...); });
        return tenk::any(answers);
    }
};

} // namespace tenk
