/* tenk: solves A x = b, or finds the x of least squares, with the factors that tenk/qr_decomp.h makes.
 *
 * `src1` is what QRDecomp left in its `dst`, `height` rows and `width` columns, in any layout. The reflectors are applied
 * to b, `src2` of `height` elements; then backward substitution through R gives x, `dst` of `width` elements (Golub and
 * Van Loan, Matrix Computations, 5.3). In `mva` one factor serves all right-hand sides, in `mava` each has its own.
 *
 * `buffer` is scratch memory for `height` elements, in every layout packed, of any contents and alignment; a batch uses
 * the same for all. Strides and shifts are bytes, sizes elements, `count` objects. Without `width` and `height` the
 * order is the one in the name. The single factor of the `mva` members takes a `src1Stride0` that is never used, but for
 * _P and _PS2.
 *
 * All arithmetic is that of the element type: sums in ascending order, each product rounded before it is added, the
 * coefficients -2 / (v' v) computed from the vectors. The difference in backward substitution is divided by the diagonal
 * element. The general members mv, mv _S2, mva and mava _P, _L and _LS2 multiply it by the rounded reciprocal instead.
 * The diagonal is not tested: a zero gives infinities or NaNs, with tenkOk.
 *
 * Statuses: those that tenkStatus lists, in its order, with tables tested as a whole in the single members too. After
 * tenkNullPointerError from a list, the objects before it are solved. That `height` is no less than `width` is not
 * tested; if it is less, memory behind the end of `buffer` and of the factor is used.
 *
 * `dst` may be equal to `src2`, with equal steps. It must not overlap `src1` or `buffer`.
 *
 * Members that look elsewhere for the factor, and solve a system only if it is stored that way:
 *   tenkQRBackSubst_mva_64f_L and its four members of fixed size step by 4 bytes along a row: element (i, j) is the
 *   double at `src1` + i `src1Stride1` + 4 j;
 *   tenkQRBackSubst_mava_64f_L and its four members of fixed size read R(i, j) at
 *   `src1`[k] + `src1Shift` - `src1Stride1` + (i + 1) + 8 j, and the vectors of the reflectors where they are.
 */
#ifndef TENK_QR_BACK_SUBST_H
#define TENK_QR_BACK_SUBST_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* mv */
TENK_API tenkStatus tenkQRBackSubst_mv_32f(const float* src1, uint32_t src1Stride1, float* buffer,
    const float* src2, float* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    float* buffer, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_3x3(const float* src1, uint32_t src1Stride1, float* buffer,
    const float* src2, float* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_3x3_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_3x3_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_4x4(const float* src1, uint32_t src1Stride1, float* buffer,
    const float* src2, float* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_4x4_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_4x4_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_5x5(const float* src1, uint32_t src1Stride1, float* buffer,
    const float* src2, float* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_5x5_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_5x5_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_6x6(const float* src1, uint32_t src1Stride1, float* buffer,
    const float* src2, float* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_6x6_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_32f_6x6_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_64f(const double* src1, uint32_t src1Stride1, double* buffer,
    const double* src2, double* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    double* buffer, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2,
    uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_P(const double* const* src1, uint32_t src1Shift, double* buffer,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_3x3(const double* src1, uint32_t src1Stride1, double* buffer,
    const double* src2, double* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_3x3_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_4x4(const double* src1, uint32_t src1Stride1, double* buffer,
    const double* src2, double* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_4x4_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_5x5(const double* src1, uint32_t src1Stride1, double* buffer,
    const double* src2, double* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_5x5_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_6x6(const double* src1, uint32_t src1Stride1, double* buffer,
    const double* src2, double* dst);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_6x6_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkQRBackSubst_mv_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mva */
TENK_API tenkStatus tenkQRBackSubst_mva_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_PS2(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_L(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_LS2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_3x3_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_4x4_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_5x5_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_32f_6x6_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    double* buffer, const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_P(const double* const* src1, uint32_t src1Shift, double* buffer,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_PS2(const double* const* src1, uint32_t src1Shift, double* buffer,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_L(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_3x3_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_4x4_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_5x5_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mva_64f_6x6_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mava */
TENK_API tenkStatus tenkQRBackSubst_mava_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    float* buffer, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_P(const float* const* src1, uint32_t src1Shift, float* buffer,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, float* buffer, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, float* buffer, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, float* buffer, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, float* buffer, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    double* buffer, const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_P(const double* const* src1, uint32_t src1Shift, double* buffer,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, double* buffer, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, double* buffer, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, double* buffer, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRBackSubst_mava_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, double* buffer, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
