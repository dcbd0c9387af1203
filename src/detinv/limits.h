// What is too small to divide by. None of these limits scales with the matrix.
#pragma once

#include "frame/memory.h"

namespace tenk {

TENK_INLINE float magnitude(float v)
{
    return __builtin_fabsf(v);
}
TENK_INLINE double magnitude(double v)
{
    return __builtin_fabs(v);
}

// General order: the floor of pivots. The last pivot, which no row is divided by, has to be greater than the
// floor; all others may be equal to it. A NaN fails both tests.
template <typename T>
inline constexpr T pivotFloor = sizeof(T) == 4 ? static_cast<T>(0x1p-23) : static_cast<T>(0x1p-52);

template <typename T>
TENK_INLINE bool passesAsPivot(T v)
{
    return magnitude(v) >= pivotFloor<T>;
}
template <typename T>
TENK_INLINE bool passesAsLastPivot(T v)
{
    return magnitude(v) > pivotFloor<T>;
}

// Fixed order: the open band around 0, its bounds binary64 in both types. A NaN is outside.
template <typename T>
inline constexpr double bandLimit = sizeof(T) == 4 ? 1e-7 : 1e-15;

template <typename T>
TENK_INLINE bool isInBand(T v)
{
    return -bandLimit<T> < v && v < bandLimit<T>;
}

} // namespace tenk
