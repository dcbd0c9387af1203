/* tenk: a matrix times a vector plus a vector.
 *
 *     dst(i) = (sum over p of src1(i, p) x src2(p)) + src3(i)      0 <= i < height, 0 <= p < width
 *
 * `src1` is one matrix of `height` rows and `width` columns in all members; in va the three vectors are arrays. `src2`
 * has `width` elements, `src3` and `dst` have `height`. Strides and shifts are bytes, sizes elements, `count` objects.
 * Without `width` and `height` the order is the one in the name.
 *
 * All arithmetic is in the type of the elements, every product and sum rounded on its own. The sum is that of tenkMul_mv
 * or tenkMul_mva of the same type, size and layout, term for term; src3(i) is added to the finished sum.
 *
 * Overlap: at fixed sizes in Standard and _L layout `dst` may be `src2` or `src3`. All other members keep the running
 * sum in `dst`, which must not overlap a source.
 *
 * Statuses: those that tenkStatus lists, in its order. After tenkNullPointerError from a list the objects before it have
 * been written. v behind tables tests the entries of `src3` and `dst` before each element and those of `src2` and `src1`
 * before each term, and leaves the elements before the fault and the running sum of the one in hand.
 */
#ifndef TENK_GAXPY_H
#define TENK_GAXPY_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* v */
TENK_API tenkStatus tenkGaxpy_v_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    const float* src3, float* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, const float* src3, uint32_t src3Stride2, float* dst,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    const float* src3, float* dst);
TENK_API tenkStatus tenkGaxpy_v_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, const float* src3, uint32_t src3Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    const float* src3, float* dst);
TENK_API tenkStatus tenkGaxpy_v_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, const float* src3, uint32_t src3Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    const float* src3, float* dst);
TENK_API tenkStatus tenkGaxpy_v_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, const float* src3, uint32_t src3Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    const float* src3, float* dst);
TENK_API tenkStatus tenkGaxpy_v_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, const float* src3, uint32_t src3Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    const double* src3, double* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, const double* src3, uint32_t src3Stride2, double* dst,
    uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkGaxpy_v_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    const double* src3, double* dst);
TENK_API tenkStatus tenkGaxpy_v_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, const double* src3, uint32_t src3Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    const double* src3, double* dst);
TENK_API tenkStatus tenkGaxpy_v_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, const double* src3, uint32_t src3Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    const double* src3, double* dst);
TENK_API tenkStatus tenkGaxpy_v_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, const double* src3, uint32_t src3Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkGaxpy_v_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    const double* src3, double* dst);
TENK_API tenkStatus tenkGaxpy_v_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, const double* src3, uint32_t src3Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkGaxpy_v_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift);

/* va */
TENK_API tenkStatus tenkGaxpy_va_32f(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, const float* src3, uint32_t src3Stride0, float* dst, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, const float* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_P(const float* const* src1, uint32_t src1Shift, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, const float* src3, uint32_t src3Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, const float* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, const float* src3, uint32_t src3Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, const float* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, const float* src3, uint32_t src3Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, const float* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, const float* src3, uint32_t src3Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, const float* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, const float* const* src3, uint32_t src3Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, const float* const* src3, uint32_t src3Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const float* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, const double* src3, uint32_t src3Stride0, double* dst, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, const double* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, const double* const* src3, uint32_t src3Shift, double* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, const double* src3, uint32_t src3Stride0, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, const double* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, const double* src3, uint32_t src3Stride0, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, const double* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, const double* src3, uint32_t src3Stride0, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, const double* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, const double* src3, uint32_t src3Stride0, double* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, const double* src3, uint32_t src3Stride0,
    uint32_t src3Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, const double* const* src3, uint32_t src3Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkGaxpy_va_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, const double* const* src3,
    uint32_t src3Shift, uint32_t src3Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
