// What the families share: the statuses, the usual tests of the arguments, the element types, the wide unit
// and the processor's estimates.
#pragma once

#include "call.h"

#include <cstdint>
#include <initializer_list>
#include <xmmintrin.h>

namespace model {

constexpr std::int32_t ok = 0;
constexpr std::int32_t sizeError = -6;
constexpr std::int32_t nullPointerError = -8;
constexpr std::int32_t singularError = -10;

// Whether an argument that is a pointer is null, operand or not.
bool nullArgument(const Call& call);

// Whether a size argument is zero; `count` is none. Never true of a name that fixes the sizes.
bool zeroSize(const Call& call);

// Whether an array function has a null entry in one of the tables; index by index, at each index in the order
// in which the operands are given. False for functions without an array and for other layouts.
bool nullInTables(const Call& call, Memory& memory, std::initializer_list<const Operand*> operands);

// Whether one of the lists has a null entry for object k, in the order in which they are given.
bool nullInLists(Memory& memory, std::uint32_t k, std::initializer_list<const Operand*> operands);

// The 80-bit unit, at the precision that the caller's control word has set.
using Wide = long double;

// The processor's own estimates.
inline float estimateReciprocal(float x)
{
    return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
}

inline float estimateReciprocalRoot(float x)
{
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
}

// |x| by the sign bit alone, which raises nothing.
template <std::floating_point T>
T magnitude(T x)
{
    constexpr BitsOf<T> sign = BitsOf<T>{1} << (8 * sizeof(T) - 1);
    return std::bit_cast<T>(static_cast<BitsOf<T>>(std::bit_cast<BitsOf<T>>(x) & ~sign));
}

// Moves one element as raw bits.
template <std::floating_point T>
void moveElement(Memory& memory, Address to, Address from)
{
    memory.storeBits(to, memory.loadBits<BitsOf<T>>(from));
}

} // namespace model
