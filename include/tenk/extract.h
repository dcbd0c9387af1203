/* tenk: gathers the elements of vectors and matrices into one dense run.
 *
 * `dst` is a plain run of elements, without strides: object after object, each in row order. Elements move as raw bits.
 * The layout in the name is that of `src`. Strides and shifts are bytes; `width`, `height`, `length` and `count` are
 * numbers of elements or objects. `dst` must not overlap `src`.
 *
 * A transposed matrix (mT, maT) is stored with `width` rows and `height` columns and comes out with `height` rows and
 * `width` columns. Two transposed members do otherwise:
 *  - tenkExtract_mT_*_P walks the table in its own order, entry i `width` + j going to `dst`[j `height` + i], and does
 *    not use `srcShift`;
 *  - tenkExtract_maT_*_PS2 does not transpose: it is a second name of tenkExtract_ma_*_PS2.
 * tenkExtract_va_*_S2 is a second name of tenkExtract_m_*_S2. There is no tenkExtract_mT_64f_S2.
 *
 * Statuses: tenkNullPointerError if `src` or `dst` is null, tenkSizeError if a size or `count` is 0, both before
 * anything is written. tenkExtract_v_64f_P, tenkExtract_m_*_P and tenkExtract_mT_*_P test nothing: with a size of 0 they
 * return tenkOk and write nothing. Entries of tables and lists are not tested.
 */
#ifndef TENK_EXTRACT_H
#define TENK_EXTRACT_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* m */
TENK_API tenkStatus tenkExtract_m_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkExtract_m_32f_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t width, uint32_t height);
TENK_API tenkStatus tenkExtract_m_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkExtract_m_64f_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t width, uint32_t height);

/* mT */
TENK_API tenkStatus tenkExtract_mT_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float* dst, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkExtract_mT_32f_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t width, uint32_t height);
TENK_API tenkStatus tenkExtract_mT_64f_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t width, uint32_t height);

/* ma */
TENK_API tenkStatus tenkExtract_ma_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_ma_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_ma_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_ma_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_ma_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_ma_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t width, uint32_t height, uint32_t count);

/* maT */
TENK_API tenkStatus tenkExtract_maT_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_maT_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_maT_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkExtract_maT_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t width, uint32_t height, uint32_t count);

/* v */
TENK_API tenkStatus tenkExtract_v_32f_S2(const float* src, uint32_t srcStride2, float* dst, uint32_t length);
TENK_API tenkStatus tenkExtract_v_32f_P(const float* const* src, uint32_t srcShift, float* dst,
    uint32_t length);
TENK_API tenkStatus tenkExtract_v_64f_S2(const double* src, uint32_t srcStride2, double* dst,
    uint32_t length);
TENK_API tenkStatus tenkExtract_v_64f_P(const double* const* src, uint32_t srcShift, double* dst,
    uint32_t length);

/* va */
TENK_API tenkStatus tenkExtract_va_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkExtract_va_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkExtract_va_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkExtract_va_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkExtract_va_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkExtract_va_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double* dst, uint32_t length, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
