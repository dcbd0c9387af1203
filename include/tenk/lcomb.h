/* tenk: linear combinations of two vectors.
 *
 * dst = src1 * value1 + src2 * value2, element by element: of one pair of vectors (vv), an array with one vector (vav) or
 * two arrays object by object (vava). Both products are rounded to the element type, then the sum; they are formed for
 * every value, so 0 times a NaN or an infinity is a NaN. Strides and shifts are bytes. Without `length` the size is the
 * one in the name.
 *
 * Overlap: the result is that of a plain loop over objects and elements in ascending order. So `dst` may be the same as
 * a source, with the same strides. Some fixed vav members read `src2` once, before the first object (4x1, 5x1 and 6x1 in
 * Standard layout, 4x1 in _L); with these it has to be readable even if `count` is 0.
 *
 * Statuses: those that tenkStatus lists, in its order. After tenkNullPointerError from a list or from the table of a
 * single object, the objects or elements before it have been written.
 */
#ifndef TENK_LCOMB_H
#define TENK_LCOMB_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* vv */
TENK_API tenkStatus tenkLComb_vv_32f(const float* src1, float value1, const float* src2, float value2,
    float* dst, uint32_t length);
TENK_API tenkStatus tenkLComb_vv_32f_S2(const float* src1, uint32_t src1Stride2, float value1,
    const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkLComb_vv_32f_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t length);
TENK_API tenkStatus tenkLComb_vv_32f_3x1(const float* src1, float value1, const float* src2, float value2,
    float* dst);
TENK_API tenkStatus tenkLComb_vv_32f_3x1_S2(const float* src1, uint32_t src1Stride2, float value1,
    const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_32f_3x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_32f_4x1(const float* src1, float value1, const float* src2, float value2,
    float* dst);
TENK_API tenkStatus tenkLComb_vv_32f_4x1_S2(const float* src1, uint32_t src1Stride2, float value1,
    const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_32f_4x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_32f_5x1(const float* src1, float value1, const float* src2, float value2,
    float* dst);
TENK_API tenkStatus tenkLComb_vv_32f_5x1_S2(const float* src1, uint32_t src1Stride2, float value1,
    const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_32f_5x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_32f_6x1(const float* src1, float value1, const float* src2, float value2,
    float* dst);
TENK_API tenkStatus tenkLComb_vv_32f_6x1_S2(const float* src1, uint32_t src1Stride2, float value1,
    const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_32f_6x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_64f(const double* src1, double value1, const double* src2, double value2,
    double* dst, uint32_t length);
TENK_API tenkStatus tenkLComb_vv_64f_S2(const double* src1, uint32_t src1Stride2, double value1,
    const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride2,
    uint32_t length);
TENK_API tenkStatus tenkLComb_vv_64f_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t length);
TENK_API tenkStatus tenkLComb_vv_64f_3x1(const double* src1, double value1, const double* src2, double value2,
    double* dst);
TENK_API tenkStatus tenkLComb_vv_64f_3x1_S2(const double* src1, uint32_t src1Stride2, double value1,
    const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_64f_3x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_64f_4x1(const double* src1, double value1, const double* src2, double value2,
    double* dst);
TENK_API tenkStatus tenkLComb_vv_64f_4x1_S2(const double* src1, uint32_t src1Stride2, double value1,
    const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_64f_4x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_64f_5x1(const double* src1, double value1, const double* src2, double value2,
    double* dst);
TENK_API tenkStatus tenkLComb_vv_64f_5x1_S2(const double* src1, uint32_t src1Stride2, double value1,
    const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_64f_5x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLComb_vv_64f_6x1(const double* src1, double value1, const double* src2, double value2,
    double* dst);
TENK_API tenkStatus tenkLComb_vv_64f_6x1_S2(const double* src1, uint32_t src1Stride2, double value1,
    const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkLComb_vv_64f_6x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift);

/* vav */
TENK_API tenkStatus tenkLComb_vav_32f(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, float value2, float* dst, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    float value1, const float* const* src2, uint32_t src2Shift, float value2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* src2, float value2, float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* src2, float value2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* src2, uint32_t src2Stride2, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* src2, float value2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* src2, uint32_t src2Stride2, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* src2, float value2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* src2, uint32_t src2Stride2, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride2, float value2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* src2, float value2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* src2, uint32_t src2Stride2, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, double value2, double* dst, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    double value1, const double* const* src2, uint32_t src2Shift, double value2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* src2, double value2, double* const* dst, uint32_t dstShift, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, double value2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* src2, double value2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* src2, uint32_t src2Stride2, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, double value2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* src2, double value2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* src2, uint32_t src2Stride2, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, double value2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* src2, double value2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* src2, uint32_t src2Stride2, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, double value2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride2, double value2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* src2, double value2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLComb_vav_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* src2, uint32_t src2Stride2, double value2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* vava */
TENK_API tenkStatus tenkLComb_vava_32f(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, uint32_t src2Stride0, float value2, float* dst, uint32_t dstStride0, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float value2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride2,
    float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float value2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, uint32_t src2Stride0, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float value2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, uint32_t src2Stride0, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float value2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_4x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, uint32_t src2Stride0, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float value2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_5x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1(const float* src1, uint32_t src1Stride0, float value1,
    const float* src2, uint32_t src2Stride0, float value2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    float value1, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float value2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1_P(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1_L(const float* const* src1, uint32_t src1Shift, float value1,
    const float* const* src2, uint32_t src2Shift, float value2, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_32f_6x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, float value1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float value2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, uint32_t src2Stride0, double value2, double* dst, uint32_t dstStride0,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double value2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t length, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, uint32_t src2Stride0, double value2, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double value2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, uint32_t src2Stride0, double value2, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double value2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_4x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, uint32_t src2Stride0, double value2, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double value2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_5x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1(const double* src1, uint32_t src1Stride0, double value1,
    const double* src2, uint32_t src2Stride0, double value2, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride2,
    double value1, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double value2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1_P(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1_L(const double* const* src1, uint32_t src1Shift, double value1,
    const double* const* src2, uint32_t src2Shift, double value2, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkLComb_vava_64f_6x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, double value1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double value2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
