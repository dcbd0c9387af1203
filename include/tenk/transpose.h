/* tenk: transposes matrices.
 *
 * The element in row i and column j of `src`, of `height` rows and `width` columns, goes to row j and column i of `dst`,
 * as raw bits. Both sizes describe the source. Strides and shifts are bytes, sizes elements, `count` objects. Without
 * `width` and `height` the order is the one in the name.
 *
 * In place is not supported: `dst` must not overlap `src`.
 *
 * Statuses: those that tenkStatus lists, in its order. After tenkNullPointerError from a list or from the table of a
 * single object, the objects or elements before it have been written.
 *
 * Tables (_P, _PS2) of matrices that are not square are not in row order: element (i, j) of the source is read through
 * entry i `height` + j, and written through entry j `width` + i of the destination. Only the first `width` x `height`
 * entries of each table are tested for null in the array members; the single ones test what they use.
 */
#ifndef TENK_TRANSPOSE_H
#define TENK_TRANSPOSE_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkTranspose_m_32f(const float* src, uint32_t srcStride1, uint32_t width,
    uint32_t height, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t width, uint32_t height, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_32f_3x3(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_32f_4x4(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_32f_5x5(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_32f_6x6(const float* src, uint32_t srcStride1, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_64f(const double* src, uint32_t srcStride1, uint32_t width,
    uint32_t height, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t width, uint32_t height, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_64f_3x3(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_64f_4x4(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_64f_5x5(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkTranspose_m_64f_6x6(const double* src, uint32_t srcStride1, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkTranspose_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkTranspose_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* const* dst,
    uint32_t dstShift);

/* ma */
TENK_API tenkStatus tenkTranspose_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t width, uint32_t height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t width, uint32_t height, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t width, uint32_t height, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3_L(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4_L(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5_L(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride0, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6_L(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t width, uint32_t height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t width,
    uint32_t height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t width, uint32_t height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t width, uint32_t height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t width, uint32_t height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3_P(const double* const* src, uint32_t srcShift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4_P(const double* const* src, uint32_t srcShift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5_P(const double* const* src, uint32_t srcShift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6_P(const double* const* src, uint32_t srcShift,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride0, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6_L(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkTranspose_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift,
    uint32_t srcStride1, uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
