/* tenk: Euclidean norms of vectors.
 *
 * The square root of the sum of the squares of the `length` elements of one vector (v) or of each vector of
 * an array (va). In every layout `dst` is a plain run of results, one for v, `count` for va. Strides and
 * shifts are bytes. Without `length` the size is the one in the name.
 *
 * Squares, sums and the root are rounded one by one to the element type, with no scaling: a square may
 * overflow or underflow. With q0, q1, ... for the squares the order of the sums is
 *
 *   ((+0 + q0) + q1) + ...          but for the members below
 *
 *   fixed sizes, Standard and _L, without the zero:
 *     32f v    3x1                  (q0 + q1) + q2
 *              4x1                  (q0 + q1) + (q2 + q3)
 *              5x1                  ((q0 + q1) + (q2 + q3)) + q4
 *              6x1                  ((q0 + q1) + (q2 + q3)) + (q4 + q5)
 *     32f va   3x1                  (q0 + q1) + q2
 *              4x1                  ((q0 + q1) + q2) + q3
 *              5x1                  ((q0 + q2) + (q1 + q3)) + q4
 *              6x1                  ((q0 + q2) + q4) + ((q1 + q3) + q5)
 *     64f      3x1                  (q2 + q0) + q1
 *              4x1                  (q0 + q2) + (q1 + q3)
 *              5x1                  ((q0 + q2) + q4) + (q1 + q3)
 *              6x1                  ((q0 + q2) + q4) + ((q1 + q3) + q5)
 *
 *   tenkL2Norm_v_32f and _64f       in blocks, as tenkDotProduct_vv with the address of `src` in the place of `src2`
 *
 * The root is the correctly rounded one, but for the fixed sizes of 32f in Standard and _L layout: these take
 * the processor's estimate y of 1 / sqrt(s), of some 12 bits, and give s * (y * (0.5 * (3 - s * (y * y)))),
 * each step rounded. That is faster and some few units in the last place off, and it is a NaN where s is 0 or
 * infinite: the norm of a zero vector is a NaN there. Take another layout, or 64f, where that matters.
 *
 * Statuses: those that tenkStatus lists, in its order; a null entry in the table of a single object is found
 * before anything is written, too. The fixed va members of 32f in Standard and _L layout take four objects at
 * a time: they read four objects, and test four list entries, before they write four results; what is left
 * over goes one by one.
 */
#ifndef TENK_L2_NORM_H
#define TENK_L2_NORM_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* v */
TENK_API tenkStatus tenkL2Norm_v_32f(const float* src, float* dst, uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_32f_S2(const float* src, uint32_t srcStride2, float* dst, uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_32f_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_32f_3x1(const float* src, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_3x1_S2(const float* src, uint32_t srcStride2, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_3x1_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_4x1(const float* src, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_4x1_S2(const float* src, uint32_t srcStride2, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_4x1_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_5x1(const float* src, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_5x1_S2(const float* src, uint32_t srcStride2, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_5x1_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_6x1(const float* src, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_6x1_S2(const float* src, uint32_t srcStride2, float* dst);
TENK_API tenkStatus tenkL2Norm_v_32f_6x1_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkL2Norm_v_64f(const double* src, double* dst, uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_64f_S2(const double* src, uint32_t srcStride2, double* dst, uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_64f_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t length);
TENK_API tenkStatus tenkL2Norm_v_64f_3x1(const double* src, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_3x1_S2(const double* src, uint32_t srcStride2, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_3x1_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_4x1(const double* src, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_4x1_S2(const double* src, uint32_t srcStride2, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_4x1_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_5x1(const double* src, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_5x1_S2(const double* src, uint32_t srcStride2, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_5x1_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_6x1(const double* src, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_6x1_S2(const double* src, uint32_t srcStride2, double* dst);
TENK_API tenkStatus tenkL2Norm_v_64f_6x1_P(const double* const* src, uint32_t srcShift, double* dst);

/* va */
TENK_API tenkStatus tenkL2Norm_va_32f(const float* src, uint32_t srcStride0, float* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_L(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1(const float* src, uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1_L(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_3x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1(const float* src, uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1_L(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_4x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1(const float* src, uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1_L(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_5x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1(const float* src, uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1_L(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_32f_6x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f(const double* src, uint32_t srcStride0, double* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_L(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1(const double* src, uint32_t srcStride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1_L(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_3x1_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1(const double* src, uint32_t srcStride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1_L(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_4x1_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1(const double* src, uint32_t srcStride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1_L(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_5x1_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1(const double* src, uint32_t srcStride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1_L(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkL2Norm_va_64f_6x1_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride2, double* dst, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
