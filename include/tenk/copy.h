/* tenk: copies vectors and matrices between layouts.
 *
 * The elements of each object of `src` go to the same places of the same object of `dst`, as raw bits: a signalling NaN
 * stays one. The two letters at the end of a name are the layouts of source and destination: S is Strided (_S2), L is
 * Strided list (_LS2), P is Strided pointer (_PS2). Strides and shifts are bytes; `width`, `height` and `length` are
 * elements, `count` is objects.
 *
 * Elements are moved one by one, object by object, row by row. Operands may overlap only if that order does no harm:
 * there is no temporary.
 *
 * Statuses: tenkNullPointerError if `src` or `dst` is null, tenkSizeError if `length` is 0 (_va_ only: a matrix of no
 * rows or columns is no error), else tenkOk. Entries of tables and lists are not tested and must be good addresses.
 *
 * tenkCopy_va_32f_PP and tenkCopy_va_64f_PP read element j of object k at `dst`[j] + `srcShift` + k `srcStride0`: the
 * table of `src` is not looked at. The matrix members read through `src`.
 */
#ifndef TENK_COPY_H
#define TENK_COPY_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* ma */
TENK_API tenkStatus tenkCopy_ma_32f_SS(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_SP(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_SL(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_PS(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_PP(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_PL(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_LS(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_LP(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_32f_LL(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_SS(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_SP(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_SL(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_PS(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_PP(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_PL(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_LS(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_LP(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width,
    uint32_t height, uint32_t count);
TENK_API tenkStatus tenkCopy_ma_64f_LL(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t width, uint32_t height, uint32_t count);

/* va */
TENK_API tenkStatus tenkCopy_va_32f_SS(const float* src, uint32_t srcStride0, uint32_t srcStride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_SP(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_SL(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_PS(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_PP(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_PL(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_LS(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_LP(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_32f_LL(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_SS(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_SP(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_SL(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_PS(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_PP(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_PL(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_LS(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_LP(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkCopy_va_64f_LL(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
