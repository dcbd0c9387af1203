/* tenk: determinants of square matrices.
 *
 * `dst` is, in every layout, a plain run of results: that of object k is dst[k]. It has no stride, shift or table.
 * Strides and shifts are bytes, `order` is rows and columns, `count` objects.
 *
 * General order eliminates with partial pivoting (see any text on Gaussian elimination, such as Golub and Van Loan,
 * Matrix Computations, 3.4) on a copy of the matrix in `buffer`: order x order elements and then order 32-bit words,
 * of any alignment, with nothing in it before or after; a batch uses one buffer for all objects. A pivot below 2^-23 in
 * 32f or 2^-52 in 64f, the last pivot also at this value, ends the elimination: the determinant is 0, the status
 * tenkOk, and a batch goes on. The limit does not scale with the matrix. The product of the pivots is kept in `dst`,
 * which is 1 before the source is read. Rows are updated in the element type in 32f; in 64f reciprocals, factors and
 * the product and sum of an update are long double, and each element is rounded once. The search for a pivot compares
 * in 64f with a maximum that is rounded to binary32, so of magnitudes closer than that a smaller one may win.
 *
 * Orders 3 to 6 in the name expand by cofactors, with no pivot, no limit and no buffer: they may differ from general
 * order, most of all for matrices close to singular ones. Standard and List layout compute in long double and round
 * once; all other layouts round each operation to the element type. Order 3 adds its three products in an order that
 * depends on the layout.
 *
 * `dst` may overlap the matrix that it is computed from in the orders 3 to 6, but not a later one of the batch, and no
 * source in general order.
 *
 * Statuses: those that tenkStatus lists, in its order. In general order a table of a single object is tested entry by
 * entry while it is copied, with dst[0] = 1 already; in orders 3 to 6 before anything is written.
 */
#ifndef TENK_DET_H
#define TENK_DET_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkDet_m_32f(const float* src, uint32_t srcStride1, uint32_t order, void* buffer,
    float* dst);
TENK_API tenkStatus tenkDet_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, void* buffer, float* dst);
TENK_API tenkStatus tenkDet_m_32f_P(const float* const* src, uint32_t srcShift, uint32_t order, void* buffer,
    float* dst);
TENK_API tenkStatus tenkDet_m_64f(const double* src, uint32_t srcStride1, uint32_t order, void* buffer,
    double* dst);
TENK_API tenkStatus tenkDet_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    uint32_t order, void* buffer, double* dst);
TENK_API tenkStatus tenkDet_m_64f_P(const double* const* src, uint32_t srcShift, uint32_t order, void* buffer,
    double* dst);

/* ma */
TENK_API tenkStatus tenkDet_ma_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1, uint32_t order,
    void* buffer, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_P(const float* const* src, uint32_t srcShift, uint32_t order, void* buffer,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, void* buffer, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, void* buffer, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t order, void* buffer, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_P(const double* const* src, uint32_t srcShift, uint32_t order,
    void* buffer, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    uint32_t order, void* buffer, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t order, void* buffer, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, uint32_t order, void* buffer, double* dst, uint32_t count);

/* m */
TENK_API tenkStatus tenkDet_m_32f_3x3(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkDet_m_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkDet_m_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkDet_m_32f_4x4(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkDet_m_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkDet_m_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkDet_m_32f_5x5(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkDet_m_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkDet_m_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkDet_m_32f_6x6(const float* src, uint32_t srcStride1, float* dst);
TENK_API tenkStatus tenkDet_m_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst);
TENK_API tenkStatus tenkDet_m_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst);
TENK_API tenkStatus tenkDet_m_64f_3x3(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkDet_m_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkDet_m_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkDet_m_64f_4x4(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkDet_m_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkDet_m_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkDet_m_64f_5x5(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkDet_m_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkDet_m_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst);
TENK_API tenkStatus tenkDet_m_64f_6x6(const double* src, uint32_t srcStride1, double* dst);
TENK_API tenkStatus tenkDet_m_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst);
TENK_API tenkStatus tenkDet_m_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst);

/* ma */
TENK_API tenkStatus tenkDet_ma_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_3x3_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_3x3_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_3x3_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_4x4_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_5x5_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_32f_6x6_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_3x3_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_4x4_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_5x5_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double* dst, uint32_t count);
TENK_API tenkStatus tenkDet_ma_64f_6x6_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
