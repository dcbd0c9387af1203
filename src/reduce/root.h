// Square roots: correctly rounded, and in binary32 refined from the processor's estimate.
#pragma once

#include <emmintrin.h>

#include "frame/row.h"

namespace tenk {

TENK_INLINE float root(float s)
{
    return __builtin_sqrtf(s);
}
TENK_INLINE double root(double s)
{
    return __builtin_sqrt(s);
}
TENK_INLINE Vector<double> root(Vector<double> s)
{
    return _mm_sqrt_pd(s);
}

// The processor's estimate of 1 / sqrt(s), of some 12 bits; the same for a lane as for a single value.
TENK_INLINE float rootEstimate(float s)
{
    return _mm_cvtss_f32(_mm_rsqrt_ss(broadcast(s)));
}
TENK_INLINE Vector<float> rootEstimate(Vector<float> s)
{
    return _mm_rsqrt_ps(s);
}

TENK_INLINE float like(float, float x)
{
    return x;
}
TENK_INLINE Vector<float> like(Vector<float>, float x)
{
    return broadcast(x);
}

// sqrt(s) as s times 1 / sqrt(s), which is the estimate after one Newton step: no division and no square
// root, some few units in the last place off. Nothing guards the ends: the estimate is infinite at 0 and 0 at
// infinity, and the result of both is a NaN.
template <typename V>
TENK_INLINE V refinedRoot(V s, V half, V three)
{
    const V y = rootEstimate(s);
    return s * (y * (half * (three - s * (y * y))));
}
template <typename V>
TENK_INLINE V refinedRoot(V s)
{
    return refinedRoot(s, like(s, 0.5f), like(s, 3.0f));
}

} // namespace tenk
