/* tenk: traces of square matrices.
 *
 * The sum of the diagonal elements, by ascending index, of one matrix (m) or of each matrix of an array (ma),
 * each sum rounded to the element type. In every layout `dst` is a plain run of results, one for m, `count`
 * for ma. Strides and shifts are bytes, `order` is the number of rows; without it the order is the one in the
 * name.
 *
 * The fixed sizes in Standard and _L layout add the elements up and write the sum. All others set the result
 * to +0 and then add the elements to it in memory. So a diagonal of nothing but -0 gives -0 in the former and
 * +0 in the latter, and in the latter a result that lies on the diagonal changes what is summed.
 *
 * Statuses: those that tenkStatus lists, in its order. With a table of a single matrix (m, _P) only the
 * diagonal entries are tested, each when it is due; after tenkNullPointerError the result is the sum of the
 * elements before it. With tables of arrays (ma, _P and _PS2) the entries that are tested are the first
 * `order`, the first row of the matrix: a null pointer on the diagonal below it is used.
 */
#ifndef TENK_TRACE_H
#define TENK_TRACE_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkTrace_m_32f(const float* src, uint32_t srcStride1, uint32_t order, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t order, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_3x3(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkTrace_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_4x4(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkTrace_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_5x5(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkTrace_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_6x6(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkTrace_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkTrace_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkTrace_m_64f(const double* src, uint32_t srcStride1, uint32_t order, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t order,
    double* dst);
TENK_API tenkStatus tenkTrace_m_64f_3x3(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkTrace_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_4x4(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkTrace_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_5x5(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkTrace_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_6x6(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkTrace_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkTrace_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst);

/* ma */
TENK_API tenkStatus tenkTrace_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t order, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t order, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t order, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t order,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkTrace_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
