/* tenk: writes identity matrices.
 *
 * The last letter of a name is the layout of `dst`: S is Strided (_S2), L is Strided list (_LS2), P is Strided pointer
 * (_PS2). Zeros go to all elements of a row, then a one to the row's place on the diagonal. Strides and shifts are bytes.
 *
 * Strides that are too small are raised: `dstStride2` to the size of an element, `dstStride1` to `width` elements, and
 * in the table members `dstStride0` to the size of an element.
 *
 * The column of the one goes on from object to object: in object k it is k `height` + i in row i. So the first object
 * is an identity, and the ones of later objects, like those of rows below the last column, fall where that column would
 * be, past the row; behind a table that is the entry past the row's entries. The memory, and the entries, must be there.
 *
 * Statuses: tenkNullPointerError if `dst` is null, tenkSizeError if `count` is 0, else tenkOk. `width` and `height` are
 * read as signed numbers; below 1 nothing is written. Entries of tables and lists are not tested.
 */
#ifndef TENK_LOAD_IDENTITY_H
#define TENK_LOAD_IDENTITY_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* ma */
TENK_API tenkStatus tenkLoadIdentity_ma_32f_S(float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkLoadIdentity_ma_32f_P(float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkLoadIdentity_ma_32f_L(float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkLoadIdentity_ma_64f_S(double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkLoadIdentity_ma_64f_P(double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkLoadIdentity_ma_64f_L(double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
