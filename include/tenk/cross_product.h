/* tenk: cross products of vectors of three elements.
 *
 *   dst0 = src1[1] * src2[2] - src1[2] * src2[1]
 *   dst1 = src1[2] * src2[0] - src1[0] * src2[2]
 *   dst2 = src1[0] * src2[1] - src1[1] * src2[0]
 *
 * for one pair of vectors (vv), an array with one vector (vav, vva) or two arrays object by object (vava).
 * Products and differences are rounded one by one to the element type. `dst` is a vector, or an array of
 * vectors, in the layout of the sources. Strides and shifts are bytes.
 *
 * Overlap: `dst` may be the same vector, or the same array, as a source, but not with tables (_P, _PS2),
 * where each component is written before the next is computed. A single vector beside an array is read once,
 * before the first object. tenkCrossProduct_vava_32f_3x1 reads four objects before it writes four.
 *
 * Statuses: those that tenkStatus lists but tenkSizeError, in its order; the tables of single objects are
 * tested before anything is read, too.
 */
#ifndef TENK_CROSS_PRODUCT_H
#define TENK_CROSS_PRODUCT_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* vv */
TENK_API tenkStatus tenkCrossProduct_vv_32f_3x1(const float* src1, const float* src2, float* dst);
TENK_API tenkStatus tenkCrossProduct_vv_32f_3x1_S2(const float* src1, uint32_t src1Stride2, const float* src2,
    uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkCrossProduct_vv_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkCrossProduct_vv_64f_3x1(const double* src1, const double* src2, double* dst);
TENK_API tenkStatus tenkCrossProduct_vv_64f_3x1_S2(const double* src1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkCrossProduct_vv_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* vav */
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1_L(const float* const* src1, uint32_t src1Shift,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1(const double* src1, uint32_t src1Stride0, const double* src2,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1_L(const double* const* src1, uint32_t src1Shift,
    const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vav_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);

/* vva */
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1(const float* src1, const float* src2, uint32_t src2Stride0,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1_S2(const float* src1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1_L(const float* src1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_32f_3x1_LS2(const float* src1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1(const double* src1, const double* src2, uint32_t src2Stride0,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1_S2(const double* src1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1_L(const double* src1, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vva_64f_3x1_LS2(const double* src1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* vava */
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1(const float* src1, uint32_t src1Stride0, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1_S2(const float* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1_L(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_32f_3x1_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1(const double* src1, uint32_t src1Stride0,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1_S2(const double* src1, uint32_t src1Stride0,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1_L(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkCrossProduct_vava_64f_3x1_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
