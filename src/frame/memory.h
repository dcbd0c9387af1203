// Addresses, and the only loads and stores of the library: legal at any address, and raw bits on both ways.
#pragma once

#include <concepts>
#include <cstdint>

// Kernels, their helpers and their lambdas are part of the entry point that uses them: nothing here is ever
// called.
#define TENK_INLINE [[gnu::always_inline]] inline
#define TENK_LAMBDA __attribute__((always_inline))

namespace tenk {

// A byte address. Plain arithmetic on it wraps as the processor's does, and an address made from a null table
// entry is an address like any other.
using Address = std::uintptr_t;

// With addresses of 32 bits the processor has eight general and eight vector registers, otherwise sixteen.
inline constexpr bool fewRegisters = sizeof(Address) == 4;

// A stride or shift: a 32-bit two's-complement number of bytes, at the width of an address.
using Displacement = std::intptr_t;

TENK_INLINE Displacement displacement(std::uint32_t bytes)
{
    return static_cast<std::int32_t>(bytes);
}

// k steps of so many bytes.
TENK_INLINE Address times(std::size_t k, Displacement step)
{
    return k * static_cast<Address>(step);
}

template <typename T>
TENK_INLINE T load(Address a)
{
    T value;
    __builtin_memcpy(&value, reinterpret_cast<const void*>(a), sizeof(T));
    return value;
}

template <typename T>
TENK_INLINE void store(Address a, T value)
{
    __builtin_memcpy(reinterpret_cast<void*>(a), &value, sizeof(T));
}

// As it stands: the compiler would take what it copies by way of general registers, of which i386 has few.
template <std::floating_point T>
TENK_INLINE void store(Address a, T value)
{
    typedef T Anywhere __attribute__((may_alias, aligned(1)));
    *reinterpret_cast<Anywhere*>(a) = value;
}

// An unsigned word of the size of an element, to move its bits without arithmetic.
template <typename T>
struct BitsOf;
template <>
struct BitsOf<float>
{
    using type = std::uint32_t;
};
template <>
struct BitsOf<double>
{
    using type = std::uint64_t;
};

// Moves one element as it is, signalling NaNs included.
template <typename T>
TENK_INLINE void move(Address to, Address from)
{
    using Bits = typename BitsOf<T>::type;
    store<Bits>(to, load<Bits>(from));
}

} // namespace tenk
