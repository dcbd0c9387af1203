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

// Addresses that are null, not at least `length` behind others, or too far.
TENK_INLINE AddressVector areNotBehind(AddressVector a, AddressVector others, Address length, Address nearby)
{
    const AddressVector distance = a - others - length;
    if constexpr (sizeof(Address) == 8)
        return distance | (a - 1);
    else
        return reinterpret_cast<AddressVector>((distance > nearby) | (a == 0));
}

// The numbers from `first` to `first + span`.
struct Range
{
    Address first, span;
};
TENK_INLINE AddressVector areOutside(AddressVector a, const Range& range)
{
    const AddressVector distance = a - range.first;
    if constexpr (sizeof(Address) == 8)
        return distance | (range.span - distance);
    else
        return reinterpret_cast<AddressVector>(distance > range.span);
}

// The entries, but for null, of objects that lie on the same side of other bytes as that of `entry`, which is
// not null; false if this one lies on no side. An object takes `length` bytes from its entry + `offset` on.
TENK_INLINE bool besides(const Bytes& others, Address offset, Address length, Address entry, Range& range)
{
    constexpr Address top = sizeof(Address) == 8 ? ~Address{} / 2 : ~Address{};
    const Address start = entry + offset, end = others.first + others.length;
    const bool below = start < others.first && others.first - start >= length;
    const bool above = start >= end && start <= top && top - start >= length - 1;
    if (end < others.first || (!below && !above))
        return false;
    const Address from = below ? 0 : end, to = below ? others.first - length : top - (length - 1);
    range = {from - offset, to - from};
    const Address null = 0 - range.first; // where it lies in the range
    if (null <= range.span) {
        if (entry - range.first > null)
            range = {1, range.span - null - 1};
        else
            range.span = null - 1;
    }
    return true;
}

// The end of the entries that lie on the page where entry e ends, and are as readable as that one.
TENK_INLINE std::size_t endOfPage(Address list, std::size_t e)
{
    const Address next = list + (e + 1) * sizeof(Address);
    return e + 1 + (0 - next) % page / sizeof(Address);
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

    // The answers to a test of the entries, with those of `others` in the same places, taken together.
    template <typename F, typename... E>
    TENK_INLINE AddressVector test(F test, const E&... others) const
    {
        AddressVector answers = test(vector[0], others.vector[0]...);
        each<vectors - 1>([&](auto v)
                              TENK_LAMBDA { answers |= test(vector[v + 1], others.vector[v + 1]...); });
        return answers;
    }
};

} // namespace tenk
