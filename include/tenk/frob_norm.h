/* tenk: Frobenius norms of matrices.
 *
 * The square root of the sum of the squares of all elements, of one matrix (m) of `height` rows and `width`
 * columns or of each matrix of an array (ma). In every layout `dst` is a plain run of results, one for m,
 * `count` for ma. Strides and shifts are bytes. Without `width` and `height` the order is the one in the
 * name.
 *
 * Squares, sums and the root are rounded one by one to the element type, with no scaling: a square may
 * overflow or underflow. The squares are added in order to a sum that starts from +0, of a single matrix row
 * by row, of the matrices of an array column by column, and the root is the correctly rounded one. The fixed
 * sizes in Standard and _L layout stand apart. With c0, c1, ... for the sums of the squares of each column:
 *
 *   tenkFrobNorm_m_32f_3x3          (c0 + c1) + c2, with (x0 + x1) + x2 for the squares of a column
 *   tenkFrobNorm_m_64f_3x3          (c2 + c0) + c1, with the same columns
 *   tenkFrobNorm_m_32f_4x4          (c0 + c2) + (c1 + c3), with (x0 + x1) + (x2 + x3)
 *   tenkFrobNorm_m_32f_5x5          ((c0 + c2) + (c1 + c3)) + c4, with ((x0 + x1) + (x2 + x3)) + x4
 *   all others                      in an order of their own, which may change; up to rounding it is the sum in order
 *
 * and in 32f they take the root from the processor's estimate y of 1 / sqrt(s), of some 12 bits, as s * (y *
 * (0.5 * (3 - s * (y * y)))), each step rounded. That is faster and some few units in the last place off, and
 * it is a NaN where s is 0 or infinite: the norm of a zero matrix is a NaN there. Take another layout, or
 * 64f, where that matters.
 *
 * Statuses: those that tenkStatus lists, in its order; a null entry in the table of a single object is found
 * before anything is written, too. The ma members of 3x3 and 4x4 in Standard and _L layout take four objects
 * of 32f, or two of 64f, at a time: they read them, and test their list entries, before they write their
 * results; what is left over goes one by one. In _L the list entries of what is left over are not tested: a
 * null entry there is used as an address.
 */
#ifndef TENK_FROB_NORM_H
#define TENK_FROB_NORM_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkFrobNorm_m_32f(const float* src, uint32_t srcStride1, uint32_t width, uint32_t height,
    float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t width, uint32_t height, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_3x3(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_4x4(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_5x5(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_6x6(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkFrobNorm_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f(const double* src, uint32_t srcStride1, uint32_t width,
    uint32_t height, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t width, uint32_t height, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_3x3(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_4x4(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_5x5(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_6x6(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkFrobNorm_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst);

/* ma */
TENK_API tenkStatus tenkFrobNorm_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t width, uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t width, uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t width, uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t width, uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t width, uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t width, uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* dst, uint32_t count);
TENK_API tenkStatus tenkFrobNorm_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* dst, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
