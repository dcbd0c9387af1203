/* tenk: inverses of square matrices.
 *
 * Strides and shifts are bytes, `order` is rows and columns, `count` objects. A matrix that counts as singular gives
 * tenkSingularError and ends a batch: the objects before it are inverted, those behind it untouched. What counts as
 * singular depends on order, type and layout, and no limit scales with the matrix.
 *
 * General order forms every element by itself, as a minor times the reciprocal of the determinant; the work grows as
 * the fifth power of the order. Determinant and minors come from eliminations like those of tenkDet, in `buffer`:
 * order x order elements and then order 32-bit words. A matrix with a pivot below 2^-23 in 32f or 2^-52 in 64f, the last
 * one also at this value, is singular, and its destination stays as it was. A minor with such a pivot counts as 0 and is
 * no error. The source is read until the last element is written: `dst` must not overlap it.
 *
 * Orders 3 to 6 in the name have formulas of their own, without a buffer: the adjugate for 3 and 4, blocks or
 * elimination of one or two elements above (block inverses: Golub and Van Loan, Matrix Computations, 3.2). "Band" is -1e-7 < v < 1e-7 in 32f and -1e-15 < v < 1e-15 in 64f:
 *
 *   order   _S2, _P, _PS2, _LS2                   Standard and _L, 32f             Standard and _L, 64f
 *   3       determinant in the band               determinant is 0                 reciprocal of the determinant is 0
 *   4       determinant in the band               determinant is 0                 determinant is 0
 *   5, 6    determinant of one of two blocks      the largest of a row in the      no pair of columns outside the band
 *           in the band                           band, or a determinant is 0      in rows 0 and 1, or as 3 or 4
 *
 * The first column computes and divides in the element type, 32f reciprocals in long double and then rounded. 32f
 * Standard and _L never divide: a reciprocal there is the processor's estimate with one Newton step. A NaN is in no
 * band and is not 0: it goes through to the result with tenkOk.
 *
 * Members that stand apart:
 *   - Order 3, Standard and _L, 64f, tests the reciprocal: a matrix of zeros gives tenkOk and NaNs.
 *   - Order 4 of _S2, _P, _PS2 and _LS2 leaves the cofactors of a singular matrix, transposed and not divided by
 *     anything, in `dst`. All others leave the destination of a singular matrix as it was, but 32f Standard and _L
 *     promise nothing for the destination in orders 5 and 6.
 *   - Order 6 of _S2, _P, _PS2 and _LS2 never takes column 5 into its first block: regular matrices that need it there
 *     give tenkSingularError.
 *   - Orders 5 and 6 of Standard and _L in 64f lose a column if the only pair of columns that will do is column 0 and
 *     another than column 1: the result then holds infinities, NaNs or garbage, one row of it is not written, and the
 *     status is tenkOk.
 *
 * `dst` must not overlap `src`.
 *
 * Statuses: those that tenkStatus lists, in its order, and tenkSingularError. In general order the tables of a single
 * object are tested entry by entry while the source is copied, the destination untouched; in orders 3 to 6 before
 * anything is written.
 */
#ifndef TENK_INVERT_H
#define TENK_INVERT_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkInvert_m_32f(const float* src, uint32_t srcStride1, uint32_t order, void* buffer,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, void* buffer, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t order,
    void* buffer, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_64f(const double* src, uint32_t srcStride1, uint32_t order, void* buffer,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, void* buffer, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t order,
    void* buffer, double* const* dst, uint32_t dstShift);

/* ma */
TENK_API tenkStatus tenkInvert_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t order, void* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t order,
    void* buffer, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, void* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, void* buffer, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t order, void* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t order,
    void* buffer, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, void* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, void* buffer, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* m */
TENK_API tenkStatus tenkInvert_m_32f_3x3(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_32f_4x4(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_32f_5x5(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_32f_6x6(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_64f_3x3(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_64f_4x4(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_64f_5x5(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkInvert_m_64f_6x6(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkInvert_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkInvert_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);

/* ma */
TENK_API tenkStatus tenkInvert_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkInvert_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
