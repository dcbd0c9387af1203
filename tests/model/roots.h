// The square roots of the norms.
#pragma once

#include "frame.h"

#include <emmintrin.h>
#include <stdexcept>

namespace model {

// Rounded as the processor's control word says.
inline float squareRoot(float x)
{
    return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x)));
}

inline double squareRoot(double x)
{
    return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(x)));
}

// The root by way of the estimate of its reciprocal and one Newton step: NaN for a sum that is zero, as zero
// times infinity is formed, and for an infinite one.
inline float refinedRoot(float s)
{
    const float y = estimateReciprocalRoot(s);
    const float square = y * y;
    const float a = s * square;
    const float b = 3.0f - a;
    const float c = 0.5f * b;
    const float d = y * c;
    const float root = s * d;
    return root;
}

// Only binary32 has the estimate.
inline double refinedRoot(double)
{
    throw std::logic_error("no estimate for binary64");
}

} // namespace model
