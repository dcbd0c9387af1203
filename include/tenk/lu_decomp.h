/* tenk: factors square matrices into a lower and an upper triangle, with partial pivoting.
 *
 * Gaussian elimination without moving rows (Golub and Van Loan, Matrix Computations, 3.4): `src` is copied to `dst` and
 * eliminated there, and `rowIndex` tells which row of `dst` stands at which position. With r = rowIndex[p],
 *
 *   dst(r, j) for j < p    the multiplier L(p, j); the ones on the diagonal of L are not stored
 *   dst(r, j) for j >= p   U(p, j); U(p, p) is the pivot
 *
 * and the matrix whose row p is row rowIndex[p] of `src` equals L U. `rowIndex` is plain packed memory in every layout:
 * `order` entries for each matrix, those of matrix k from rowIndex + k `order`. It needs no contents and no alignment.
 * tenk/lu_back_subst.h solves with the factors.
 *
 * Strides and shifts are bytes, `order` elements, `count` objects. Without `order` it is the one in the name.
 *
 * The pivot of a position is the largest magnitude, the first one in the order of `rowIndex` among equals. A position
 * without a magnitude of at least 2^-23, in both types, ends the call with tenkSingularError; a NaN is no such magnitude.
 * A multiplier is the element times the rounded reciprocal of the pivot; in the _L and _LS2 members it is the element
 * divided by the pivot, but for tenkLUDecomp_ma_32f_4x4_L. An element x becomes x + u (0 - l), with l the multiplier, u
 * the element of the pivot row, the product rounded and then the sum, all in the element type.
 *
 * Statuses: those that tenkStatus lists, in its order, with tables tested as a whole in the single members too. After
 * tenkSingularError that matrix is left as the elimination had it: copied, eliminated before the failing position, with
 * the exchanges in `rowIndex` up to and including that position. Matrices before it are finished, those after it are
 * untouched. After tenkNullPointerError from a list the same holds, and that matrix is untouched too.
 *
 * The last pivot of a batch is tested for matrix 0 alone. For matrix k the test looks at the element k `order` columns to
 * the right of it, in the same row, through the address formula of the layout and however far outside the matrix: in
 * another row or matrix, or in a table through an entry behind the others. That memory must be readable, and a value
 * below the limit in it ends the call with tenkSingularError. The single members test the last pivot.
 *
 * In place is supported: `dst` equal to `src` with equal strides and shifts, or the same tables. Other overlap is not.
 */
#ifndef TENK_LU_DECOMP_H
#define TENK_LU_DECOMP_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkLUDecomp_m_32f(const float* src, uint32_t srcStride1, uint32_t* rowIndex, float* dst,
    uint32_t dstStride1, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, float* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_32f_3x3(const float* src, uint32_t srcStride1, uint32_t* rowIndex,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_32f_3x3_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_32f_4x4(const float* src, uint32_t srcStride1, uint32_t* rowIndex,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_32f_4x4_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_32f_5x5(const float* src, uint32_t srcStride1, uint32_t* rowIndex,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_32f_5x5_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_32f_6x6(const float* src, uint32_t srcStride1, uint32_t* rowIndex,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_32f_6x6_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_64f(const double* src, uint32_t srcStride1, uint32_t* rowIndex,
    double* dst, uint32_t dstStride1, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, double* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t order);
TENK_API tenkStatus tenkLUDecomp_m_64f_3x3(const double* src, uint32_t srcStride1, uint32_t* rowIndex,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_64f_3x3_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_64f_4x4(const double* src, uint32_t srcStride1, uint32_t* rowIndex,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_64f_4x4_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_64f_5x5(const double* src, uint32_t srcStride1, uint32_t* rowIndex,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_64f_5x5_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkLUDecomp_m_64f_6x6(const double* src, uint32_t srcStride1, uint32_t* rowIndex,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkLUDecomp_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t* rowIndex, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkLUDecomp_m_64f_6x6_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift);

/* ma */
TENK_API tenkStatus tenkLUDecomp_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, uint32_t* rowIndex,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t order,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t order, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t* rowIndex, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, uint32_t* rowIndex,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t* rowIndex, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkLUDecomp_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, uint32_t* rowIndex, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
