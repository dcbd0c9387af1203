/* tenk: dot products of vectors.
 *
 * The sum of src1[i] * src2[i] over the `length` elements of two vectors: of one pair (vv), of an array with
 * one vector (vav), of two arrays object by object (vava). In every layout `dst` is a plain run of results,
 * one for vv, `count` for the others. Strides and shifts are bytes. Without `length` the size is the one in
 * the name.
 *
 * Each product and each sum is rounded to the element type; there is no wider accumulator. The order of the
 * sums is part of a function. With p0, p1, ... for the products it is
 *
 *   ((+0 + p0) + p1) + ...          but for the members below, so the product -0 alone gives +0
 *
 *   fixed sizes, Standard and _L, without the zero:
 *     32f                           (p0 + p1) + p2 + ... in order, but for tenkDotProduct_vav_32f_4x1 and its _L form,
 *                                   which take (p0 + p1) + (p2 + p3)
 *     64f  3x1                      (p0 + p1) + p2
 *          4x1                      (p0 + p2) + (p1 + p3)
 *          5x1                      ((p0 + p2) + (p1 + p3)) + p4
 *          6x1                      (p0 + (p2 + p4)) + (p1 + (p3 + p5))
 *
 *   tenkDotProduct_vv_32f and _64f, by the address of `src2`: the elements in front of the first one on a 16-byte
 *   boundary are summed in order into s. If no element can stand on a boundary, or fewer than 8 elements are left, the
 *   whole sum is in order. Otherwise blocks of 8 are added into two vectors A and B of partial sums, of which A starts
 *   as (s, 0, ...) and B as zeros:
 *     32f                           A[l] += p[i + l], B[l] += p[i + 4 + l] for lanes l = 0 to 3; with V = A + B the
 *                                   result of the blocks is (V0 + V2) + (V1 + V3)
 *     64f                           A[l] += p[i + l], B[l] += p[i + 2 + l], A[l] += p[i + 4 + l], B[l] += p[i + 6 + l]
 *                                   for l = 0, 1; the result of the blocks is V0 + V1
 *   What is left behind the last block is added in order. The address of `src1` has no effect on the result.
 *
 * Statuses: those that tenkStatus lists, in its order; a null entry in the table of a single object is found
 * before anything is written, too. The fixed vav members of 32f with sizes 3x1 and 4x1 take four objects at a
 * time, in Standard and _L layout: they read four objects, and test four list entries, before they write four
 * results; what is left over goes one by one. tenkDotProduct_vav_64f_3x1 takes two at a time. All others
 * write each result before they come to the next object.
 */
#ifndef TENK_DOT_PRODUCT_H
#define TENK_DOT_PRODUCT_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* vv */
TENK_API tenkStatus tenkDotProduct_vv_32f(const float* src1, const float* src2, float* dst, uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_32f_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_32f_3x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_3x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_4x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_4x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_5x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_5x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_6x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_6x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f(const double* src1, const double* src2, double* dst,
    uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_64f_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t length);
TENK_API tenkStatus tenkDotProduct_vv_64f_3x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_3x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_4x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_4x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_5x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_5x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_6x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_6x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst);
TENK_API tenkStatus tenkDotProduct_vv_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst);

/* vav */
TENK_API tenkStatus tenkDotProduct_vav_32f(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1_L(const float* const* src1, uint32_t src1Shift,
    const float* src2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1_L(const float* const* src1, uint32_t src1Shift,
    const float* src2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1_L(const float* const* src1, uint32_t src1Shift,
    const float* src2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1_L(const float* const* src1, uint32_t src1Shift,
    const float* src2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vav_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t count);

/* vava */
TENK_API tenkStatus tenkDotProduct_vava_32f(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* dst,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* dst, uint32_t count);
TENK_API tenkStatus tenkDotProduct_vava_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* dst,
    uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
