/* tenk: solves A x = b with the factors that tenk/lu_decomp.h makes.
 *
 * Forward substitution through the unit lower triangle, then backward substitution through the upper one (Golub and Van
 * Loan, Matrix Computations, 3.1). `src1` and `rowIndex` are what LUDecomp left in its `dst` and `rowIndex`, in any
 * layout; `src2` is b, and `dst` receives x with its unknowns in their natural order. In `mva` one factor serves all
 * right-hand sides; in `mava` each has its own, with the entries of rowIndex from k `order` on. Entries of `rowIndex` are
 * not tested.
 *
 * Strides and shifts are bytes, `order` elements, `count` objects. Without `order` it is the one in the name. The single
 * factor of the `mva` members takes a `src1Stride0` that is never used, but for _P and _PS2.
 *
 * All arithmetic is that of the element type. The sum of an unknown starts at +0 and runs over ascending columns, each
 * product rounded before it is added; it is subtracted once, and in backward substitution the difference is divided by
 * the pivot. Pivots are not tested: a pivot of zero gives infinities or NaNs, with tenkOk.
 *
 * Statuses: those that tenkStatus lists, in its order, with tables tested as a whole in the single members too. After
 * tenkNullPointerError from a list, the objects before it are solved.
 *
 * `dst` is the working vector as well and must not overlap `src2`, unless it is equal to it and `rowIndex` is the
 * identity. It must not overlap `src1` or `rowIndex`.
 *
 * tenkLUBackSubst_mva_64f_L and its four members of fixed size step by 4 bytes along a row of the factor: element (i, j)
 * is the double at `src1` + i `src1Stride1` + 4 j. They solve a system only if its factor is stored that way.
 */
#ifndef TENK_LU_BACK_SUBST_H
#define TENK_LU_BACK_SUBST_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* mv */
TENK_API tenkStatus tenkLUBackSubst_mv_32f(const float* src1, uint32_t src1Stride1, const uint32_t* rowIndex,
    const float* src2, float* dst, uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2,
    uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_3x3(const float* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, float* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_3x3_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_4x4(const float* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, float* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_4x4_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_5x5(const float* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, float* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_5x5_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_6x6(const float* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, float* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_6x6_S2(const float* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride2, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_64f(const double* src1, uint32_t src1Stride1, const uint32_t* rowIndex,
    const double* src2, double* dst, uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const uint32_t* rowIndex, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2,
    uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t order);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_3x3(const double* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, double* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_3x3_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_4x4(const double* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, double* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_4x4_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_5x5(const double* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, double* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_5x5_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_6x6(const double* src1, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, double* dst);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_6x6_S2(const double* src1, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride2, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkLUBackSubst_mv_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift);

/* mva */
TENK_API tenkStatus tenkLUBackSubst_mva_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_PS2(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_L(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_LS2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_3x3_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_4x4_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_5x5_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6_L(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_32f_6x6_LS2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_PS2(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_L(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_3x3_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_4x4_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_5x5_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6_L(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mva_64f_6x6_LS2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);

/* mava */
TENK_API tenkStatus tenkLUBackSubst_mava_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* src2, uint32_t src2Stride0, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const float* const* src2, uint32_t src2Shift,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* src2, uint32_t src2Stride0, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const uint32_t* rowIndex, const double* const* src2, uint32_t src2Shift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUBackSubst_mava_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const uint32_t* rowIndex, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
