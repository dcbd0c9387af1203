/* tenk: differences of matrices, of vectors, and of a vector and a constant.
 *
 *     dst(i, j) = src1(i, j) - src2(i, j)     mm, mam, mma, mama, with T on either operand
 *     dst(j) = src1(j) - src2(j)              vv, vav, vva, vava
 *     dst(j) = src(j) - value                 vc, vac
 *     dst(j) = value - src(j)                 cv, cva: `value` stands behind the vector among the arguments all the same
 *
 * Strides and shifts are bytes, sizes elements, `count` objects. Without size arguments the size is the one in the
 * name. `width` and `height` are the shape of the result: a matrix with T is stored with `width` rows of `height`
 * elements, and its stored element (j, i) is used at (i, j).
 *
 * The arithmetic is in the type of the elements, with one rounding per element; NaNs and infinities pass through.
 *
 * Statuses: those that tenkStatus lists, in its order. After tenkNullPointerError from a list or from the table of a
 * single object, the objects or elements before it have been written.
 *
 * Overlap: the general members of vectors without an array in Standard layout give the result of a loop over the
 * elements in ascending order, whatever overlaps. For all others `dst` may be the same as a source that is not
 * transposed, with the same strides, and must not overlap one otherwise. Members of fixed size read a single operand
 * beside an array once, before the first object; general ones read it again for each object.
 *
 * Members that stand apart:
 *
 *     tenkSub_mam_32f_3x3, tenkSub_mamT_32f_3x3, and _L
 *         read object k + 1 of `src1` before they store object k, and count 0 objects as one. In _L entry 0 of `src1`
 *         and entry `count` - 1 of `dst` are tested first, then entries k of `src1` and k - 1 of `dst`, before object
 *         k - 1 is stored; with `count` = 0 the entry of `dst` is the one before the list.
 *     tenkSub_mamT_32f_3x3, and _L
 *         step the rows of `src2` by src1Stride1; src2Stride1 is not used.
 *     tenkSub_mam_64f_5x5, tenkSub_mama_64f_5x5, and _L
 *         step the last column of `src1` by src2Stride1: a(i, 4) is 32 bytes behind the start of the object and i such
 *         steps.
 *     tenkSub_mTm_64f_6x6_S2
 *         steps the elements of `src2` by src1Stride2; src2Stride2 is not used.
 *     tenkSub_mTmT_32f_6x6
 *         repeats row 2 of the result as row 3.
 *     tenkSub_maTmaT_32f_6x6, and _L
 *         give dst(i, j) = src1 - src2 at these places of the stored objects, as row and column:
 *             00 04 20 24 40 44
 *             01 05 21 25 41 45
 *             02 14 22 34 42 54
 *             02 14 22 34 42 54
 *             10 12 30 32 50 52
 *             11 13 31 33 51 53
 *     tenkSub_mTma_64f_3x3, and _L
 *         give dst(2, 2) = src2(2, 2) - src1(2, 2) if all addresses and strides are multiples of 16, in _L those of
 *         `src2` and `dst` for each object.
 *     tenkSub_mam_64f_3x3_L, tenkSub_mma_64f_3x3_L, tenkSub_mamT_64f_3x3_L, tenkSub_mTma_64f_3x3_L
 *         use the elements of the single operand s at other places when its test and that of an object disagree. The
 *         first is that its address and Stride1 are multiples of 16, the second that source and destination of the
 *         object and the Stride1 of both are. In place of the nine elements of s, row by row, stand
 *             object passes, s does not:  s00  +0 s01 s02  +0 s10 s11  +0 s12, of a transposed s
 *                                         s00  +0 s01 s10  +0 s11 s20  +0 s21
 *             s passes, object does not:  s00 s02 s10 s12 s20 s22   *   * s10 (mma: s22), of a transposed s
 *                                         s00 s01 s02 s20 s21 s22   *   * s22
 *         and * is any value. The last element of tenkSub_mTma_64f_3x3_L is still exchanged by the test of the object.
 *
 * Tables (_P) of single matrices with T: at step (i, j) the entry that is tested is i `height` + j, the entry that is
 * used j `height` + i. An entry can be used before its test, and words behind the table of a matrix that is not square
 * are tested too, up to index (`height` - 1) `height` + `width` - 1.
 */
#ifndef TENK_SUB_H
#define TENK_SUB_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* mm */
TENK_API tenkStatus tenkSub_mm_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_64f_P(const double* const* src1, uint32_t src1Shift, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mm_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mm_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mm_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mTm */
TENK_API tenkStatus tenkSub_mTm_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTm_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTm_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTm_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTm_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTm_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkSub_mTm_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTm_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTm_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mmT */
TENK_API tenkStatus tenkSub_mmT_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mmT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mmT_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mmT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mmT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mmT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkSub_mmT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mmT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mmT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mTmT */
TENK_API tenkStatus tenkSub_mTmT_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkSub_mTmT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_mTmT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkSub_mTmT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_mTmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mam */
TENK_API tenkStatus tenkSub_mam_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mam_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* maTm */
TENK_API tenkStatus tenkSub_maTm_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTm_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* mamT */
TENK_API tenkStatus tenkSub_mamT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* maTmT */
TENK_API tenkStatus tenkSub_maTmT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* mama */
TENK_API tenkStatus tenkSub_mama_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mama_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* maTma */
TENK_API tenkStatus tenkSub_maTma_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTma_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* mamaT */
TENK_API tenkStatus tenkSub_mamaT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mamaT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* maTmaT */
TENK_API tenkStatus tenkSub_maTmaT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_maTmaT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* mma */
TENK_API tenkStatus tenkSub_mma_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mma_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mTma */
TENK_API tenkStatus tenkSub_mTma_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTma_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mmaT */
TENK_API tenkStatus tenkSub_mmaT_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mmaT_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mTmaT */
TENK_API tenkStatus tenkSub_mTmaT_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkSub_mTmaT_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* vv */
TENK_API tenkStatus tenkSub_vv_32f(const float* src1, const float* src2, float* dst, uint32_t length);
TENK_API tenkStatus tenkSub_vv_32f_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_vv_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_vv_32f_3x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkSub_vv_32f_3x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_32f_4x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkSub_vv_32f_4x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_32f_5x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkSub_vv_32f_5x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_32f_6x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkSub_vv_32f_6x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_64f(const double* src1, const double* src2, double* dst, uint32_t length);
TENK_API tenkStatus tenkSub_vv_64f_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_vv_64f_P(const double* const* src1, uint32_t src1Shift, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_vv_64f_3x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkSub_vv_64f_3x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_64f_4x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkSub_vv_64f_4x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_64f_5x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkSub_vv_64f_5x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vv_64f_6x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkSub_vv_64f_6x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vv_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* vav */
TENK_API tenkStatus tenkSub_vav_32f(const float* src1, uint32_t src1Stride0, const float* src2, float* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1_L(const float* const* src1, uint32_t src1Shift, const float* src2,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f(const double* src1, uint32_t src1Stride0, const double* src2, double* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_L(const double* const* src1, uint32_t src1Shift, const double* src2,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1_L(const double* const* src1, uint32_t src1Shift, const double* src2,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1_L(const double* const* src1, uint32_t src1Shift, const double* src2,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1_L(const double* const* src1, uint32_t src1Shift, const double* src2,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1_L(const double* const* src1, uint32_t src1Shift, const double* src2,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vav_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);

/* vva */
TENK_API tenkStatus tenkSub_vva_32f(const float* src1, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_L(const float* src1, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_LS2(const float* src1, uint32_t src1Stride2, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1(const float* src1, const float* src2, uint32_t src2Stride0,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1_L(const float* src1, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_3x1_LS2(const float* src1, uint32_t src1Stride2, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1(const float* src1, const float* src2, uint32_t src2Stride0,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1_L(const float* src1, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_4x1_LS2(const float* src1, uint32_t src1Stride2, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1(const float* src1, const float* src2, uint32_t src2Stride0,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1_L(const float* src1, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_5x1_LS2(const float* src1, uint32_t src1Stride2, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1(const float* src1, const float* src2, uint32_t src2Stride0,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1_L(const float* src1, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_32f_6x1_LS2(const float* src1, uint32_t src1Stride2, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f(const double* src1, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_L(const double* src1, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_LS2(const double* src1, uint32_t src1Stride2, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1(const double* src1, const double* src2, uint32_t src2Stride0,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1_L(const double* src1, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_3x1_LS2(const double* src1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1(const double* src1, const double* src2, uint32_t src2Stride0,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1_L(const double* src1, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_4x1_LS2(const double* src1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1(const double* src1, const double* src2, uint32_t src2Stride0,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1_L(const double* src1, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_5x1_LS2(const double* src1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1(const double* src1, const double* src2, uint32_t src2Stride0,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1_S2(const double* src1, uint32_t src1Stride2, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1_L(const double* src1, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vva_64f_6x1_LS2(const double* src1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* vava */
TENK_API tenkStatus tenkSub_vava_32f(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_L(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1(const double* src1, uint32_t src1Stride0, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vava_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* vc */
TENK_API tenkStatus tenkSub_vc_32f(const float* src, float value, float* dst, uint32_t length);
TENK_API tenkStatus tenkSub_vc_32f_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_vc_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_vc_32f_3x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_vc_32f_3x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_32f_4x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_vc_32f_4x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_32f_5x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_vc_32f_5x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_32f_6x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_vc_32f_6x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_64f(const double* src, double value, double* dst, uint32_t length);
TENK_API tenkStatus tenkSub_vc_64f_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_vc_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_vc_64f_3x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_vc_64f_3x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_64f_4x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_vc_64f_4x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_64f_5x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_vc_64f_5x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_vc_64f_6x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_vc_64f_6x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_vc_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);

/* cv */
TENK_API tenkStatus tenkSub_cv_32f(const float* src, float value, float* dst, uint32_t length);
TENK_API tenkStatus tenkSub_cv_32f_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_cv_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_cv_32f_3x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_cv_32f_3x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_32f_4x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_cv_32f_4x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_32f_5x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_cv_32f_5x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_32f_6x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkSub_cv_32f_6x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_64f(const double* src, double value, double* dst, uint32_t length);
TENK_API tenkStatus tenkSub_cv_64f_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkSub_cv_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkSub_cv_64f_3x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_cv_64f_3x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_64f_4x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_cv_64f_4x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_64f_5x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_cv_64f_5x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkSub_cv_64f_6x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkSub_cv_64f_6x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkSub_cv_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);

/* vac */
TENK_API tenkStatus tenkSub_vac_32f(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_3x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_4x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_5x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_32f_6x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_3x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_4x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_5x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_vac_64f_6x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* cva */
TENK_API tenkStatus tenkSub_cva_32f(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_3x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_4x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_5x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_32f_6x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_3x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_4x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_5x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkSub_cva_64f_6x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
