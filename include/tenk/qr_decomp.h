/* tenk: factors matrices by Householder reflections, without column pivoting.
 *
 * The classic method (Householder 1958; Golub and Van Loan, Matrix Computations, 5.2). `src` has `height` rows and
 * `width` columns, no fewer rows than columns; it is copied to `dst` and worked on there. `dst` then holds
 *
 *   (i, j), i <= j     R(i, j)
 *   (i, k), i > k      component i of the vector v of reflector k; component k is one and stored nowhere
 *
 * Reflector k is H = I + t v v', t = -2 / (v' v), and A = Q R with Q the product of the reflectors in ascending order.
 * The coefficient t is not stored: tenk/qr_back_subst.h, which solves with the factors, computes it again. There is a
 * reflector for each column, but for the last one of a square matrix. R(k, k) has the sign opposite to that of the
 * element it replaces, and + for a zero; the last one of a square matrix is not touched.
 *
 * `buffer` is scratch memory for `height` elements, in every layout packed, of any contents and alignment; a batch uses
 * the same for all. Strides and shifts are bytes, sizes elements, `count` objects. Without `width` and `height` the
 * order is the one in the name.
 *
 * A column whose sum of squares from the diagonal down is below 2^-23, in both types, or a NaN, ends the call with
 * tenkSingularError. So does every matrix with more columns than rows, at the first column without rows. The last column
 * of a square matrix is not tested.
 *
 * 32f rounds every operation to binary32, but for the norm of a column, the reciprocal that scales it (sum and quotient)
 * and the coefficient t, which are computed in the 80-bit format and rounded once. 64f computes in the 80-bit format and
 * rounds as elements go into `dst` and `buffer`. The 80-bit unit works at the precision that the thread has set. Sums run
 * in ascending order of the rows.
 *
 * Statuses: those that tenkStatus lists, in its order, with tables tested as a whole in the single members too. After
 * tenkSingularError that matrix is left copied with the reflectors of the columns before applied and stored; matrices
 * before it are finished, those after it untouched. After tenkNullPointerError from a list, that matrix is untouched too.
 *
 * In place is supported: `dst` equal to `src` with equal strides and shifts, or the same tables. Other overlap is not.
 */
#ifndef TENK_QR_DECOMP_H
#define TENK_QR_DECOMP_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkQRDecomp_m_32f(const float* src, uint32_t srcStride1, float* buffer, float* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_32f_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_32f_3x3(const float* src, uint32_t srcStride1, float* buffer, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_32f_4x4(const float* src, uint32_t srcStride1, float* buffer, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_32f_5x5(const float* src, uint32_t srcStride1, float* buffer, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_32f_6x6(const float* src, uint32_t srcStride1, float* buffer, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_64f(const double* src, uint32_t srcStride1, double* buffer, double* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_64f_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkQRDecomp_m_64f_3x3(const double* src, uint32_t srcStride1, double* buffer,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_64f_4x4(const double* src, uint32_t srcStride1, double* buffer,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_64f_5x5(const double* src, uint32_t srcStride1, double* buffer,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkQRDecomp_m_64f_6x6(const double* src, uint32_t srcStride1, double* buffer,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkQRDecomp_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkQRDecomp_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift);

/* ma */
TENK_API tenkStatus tenkQRDecomp_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* buffer, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* buffer, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* buffer, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* buffer,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* buffer, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* buffer, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* buffer, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* buffer, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, double* buffer,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkQRDecomp_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* buffer, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
