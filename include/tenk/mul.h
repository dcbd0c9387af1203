/* tenk: products.
 *
 * Strides and shifts are bytes, sizes elements, `count` objects. Without size arguments the order is the one in the
 * name. All arithmetic is in the type of the elements, every product and sum rounded on its own; NaNs and infinities
 * pass through. Statuses: those that tenkStatus lists, in its order; a size that does not fit is tenkSizeError. After
 * tenkNullPointerError from a list the objects before it have been written; after one from the table of a single
 * object, the elements before it, and the running sum of the element in hand if one of its terms was at fault.
 *
 *
 * Multiplication by a constant: mc, mTc, mac, maTc, vc, vac
 *
 *     dst(i, j) = src(i, j) x value, with T src(j, i) x value     dst(j) = src(j) x value
 *
 * `width` and `height` are the shape of the result: a matrix with T is stored with `width` rows of `height` elements.
 *
 * Overlap: the general vc in Standard layout gives the result of a loop over the elements in ascending order, whatever
 * overlaps. Without T `dst` may be `src`, with the same strides. With T that is so at 4x4 in Standard and _L alone, where
 * an object is read before it is written; everywhere else elements are overwritten before they are read.
 *
 * Tables: members with an array test all entries of `src`, then all of `dst`. Single ones test both before each
 * element; mTc tests entry i `height` + j of `src` there, and reads j `height` + i.
 *
 *
 * Matrix by vector: mv, mTv, mav, maTv, mva, mTva, mava, maTva
 *
 *     dst(i) = sum over p of left(i, p) x src2(p)      0 <= i < src1Height, 0 <= p < src1Width
 *
 * left(i, p) is the stored element (i, p) of `src1`, or (p, i) in a member with T. Sizes must satisfy
 * src1Width = src2Length, and with T src1Height = src2Length. src2Length is in no loop. So for a matrix with T that is
 * not square, `src1` has src1Width rows of src1Height elements, and the last elements of `src2` may go unused, or
 * elements behind its end be used.
 *
 * Order of a sum, t(p) being its terms:
 *
 *     general sizes, _S2, _P, _PS2, _LS2      ((+0 + t0) + t1) + ..., in order of p
 *     Standard, _L  3x3                       (t0 + t1) + t2
 *     Standard, _L  4x4 to 6x6                32f         (t0 + t2) + (t1 + t3)
 *                                                         ((t0 + t1) + t4) + (t2 + t3), but in row 4
 *                                                         ((t0 + t2) + t4) + (t1 + t3)
 *                                                         ((t0 + t2) + t4) + ((t1 + t3) + t5)
 *                                             32f with T  (t0 + t1) + (t2 + t3)
 *                                                         ((t0 + t1) + t4) + (t2 + t3), in all rows
 *                                                         ((t0 + t1) + (t2 + t3)) + (t4 + t5)
 *                                             64f         (t0 + t1) + (t2 + t3)
 *                                                         ((t0 + t1) + (t2 + t3)) + t4
 *                                                         ((t0 + t1) + (t2 + t3)) + (t4 + t5)
 *
 * Terms of -0 alone sum to +0 in the first line and to -0 in all others.
 *
 * Overlap: at fixed sizes in Standard and _L layout `dst` may be `src2`. All other members keep the running sum in
 * `dst`, which must not overlap a source.
 *
 * Tables: members with an array test src1Width x src1Height entries of `src1`, src2Length of `src2`, and of `dst`
 * src1Height, or with T src1Width, which is not the length of `dst`. The single members test the entry of `dst` before
 * each element, and those of `src1` and `src2` before each term; mTv tests entry i src1Height + p of `src1` there, and
 * reads p src1Height + i.
 *
 *
 * Matrix by matrix: mm, mam, mma, mama, with T on either operand
 *
 *     dst(i, j) = sum over p of left(i, p) x right(p, j)
 *                                         0 <= i < src1Height, 0 <= j < src2Width, 0 <= p < src2Height
 *
 * left(i, p) is the stored element (i, p) of `src1`, or (p, i) if it has T, right(p, j) the stored element (p, j) of
 * `src2`, or (j, p) if it has T. In a table, a row of an operand with T has as many entries as its height argument
 * says, of others as the width. Sizes must satisfy
 *
 *     mm, mam                         src1Width = src2Height
 *     mma, mama                       src1Height = src2Width
 *     T on src1                       src1Height = src2Height
 *     T on src2                       src1Width = src2Width
 *     T on both                       src1Height = src2Width
 *
 * and nothing more: the sums above are formed whatever the other sizes are, so for operands with T, and for mma and
 * mama, that are not square, it is for the caller to see that all elements exist. src2Width = 0 is tenkSizeError,
 * except in mam, where it is tenkOk.
 *
 * Terms are added one by one in order of p in all members but tenkMul_mm_32f_6x6_S2, tenkMul_mmT_32f_6x6_S2 and
 * tenkMul_mTmT_32f_6x6_S2, which sum ((t0 + t1) + (t2 + t3)) + (t4 + t5). A sum starts at +0 at general sizes and in
 * _S2, _P, _PS2 and _LS2. It starts with its first term, so that terms of -0 alone sum to -0, at fixed sizes in Standard
 * and _L, in the three members above, and in these of 32f:
 *
 *     3x3       _S2 mam, maTm, mamT, maTmT, mama;  _P and _PS2 mam, maTm, mamT;  _LS2 mam, maTm, mamT, maTmT
 *     4x4, 5x5  _S2 mam, mama
 *
 * Of these, the ones in _P, _PS2 and _LS2 test no entry of a table or list. All others with an array test as many
 * entries of tables as the sizes of `src1` and `src2` say, and of `dst` as many as the product of the two that were
 * compared: (src1Width, with T src1Height) x (src2Height, with T src2Width), which is not the size of `dst`. Single
 * members test the entry of `dst` before each element, and those of `src1` and `src2` before each term.
 *
 * Arrays by arrays, fixed sizes, 64f, Standard layout: if `src2`, src2Stride1, `dst`, dstStride0 and dstStride1 are all
 * multiples of 16, every object of `dst` is the product with object 0 of `src1`, and src1Stride0 is not used. If one of
 * them is not, object k is the product with object k.
 *
 * The mam and maTm among the members that start with the first term read `src2` before they look at `count`: it has to
 * be readable even if that is 0.
 *
 * Overlap: members that start with the first term read `src2` before they write, so `dst` may be `src2`, and read a row
 * of a `src1` without T before they write that row, so `dst` may be such a `src1`, of the same strides; but for 32f 6x6
 * in Standard and _L, and for arrays by arrays in 64f as above, that is not promised. All other members keep the
 * running sum in `dst`, which must not overlap a source.
 */
#ifndef TENK_MUL_H
#define TENK_MUL_H

#include "tenk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Made by tools/generate; edit above this line or below the next. */
/* clang-format off */

/* mc */
TENK_API tenkStatus tenkMul_mc_32f(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2, float value,
    float* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_32f_3x3(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_32f_3x3_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_32f_4x4(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_32f_4x4_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_32f_5x5(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_32f_5x5_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_32f_6x6(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_32f_6x6_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_64f(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mc_64f_3x3(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_64f_3x3_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_64f_4x4(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_64f_4x4_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_64f_5x5(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_64f_5x5_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mc_64f_6x6(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mc_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mc_64f_6x6_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);

/* mTc */
TENK_API tenkStatus tenkMul_mTc_32f(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_32f_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_32f_3x3(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_32f_3x3_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_32f_3x3_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_32f_4x4(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_32f_4x4_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_32f_4x4_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_32f_5x5(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_32f_5x5_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_32f_5x5_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_32f_6x6(const float* src, uint32_t srcStride1, float value, float* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_32f_6x6_S2(const float* src, uint32_t srcStride1, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_32f_6x6_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_64f(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_64f_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height);
TENK_API tenkStatus tenkMul_mTc_64f_3x3(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_64f_3x3_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_64f_3x3_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_64f_4x4(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_64f_4x4_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_64f_4x4_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_64f_5x5(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_64f_5x5_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_64f_5x5_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTc_64f_6x6(const double* src, uint32_t srcStride1, double value, double* dst,
    uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTc_64f_6x6_S2(const double* src, uint32_t srcStride1, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTc_64f_6x6_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);

/* mac */
TENK_API tenkStatus tenkMul_mac_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1, float value,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_3x3_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_4x4_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_5x5_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_32f_6x6_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1, double value,
    double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_3x3_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_4x4_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_5x5_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mac_64f_6x6_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* maTc */
TENK_API tenkStatus tenkMul_maTc_32f(const float* src, uint32_t srcStride0, uint32_t srcStride1, float value,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_3x3_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_4x4_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_5x5_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6_S2(const float* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6_L(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_32f_6x6_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, float value, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t width, uint32_t height,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t width, uint32_t height, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_3x3_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_4x4_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_5x5_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6_S2(const double* src, uint32_t srcStride0, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6_L(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTc_64f_6x6_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride1,
    uint32_t srcStride2, double value, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* vc */
TENK_API tenkStatus tenkMul_vc_32f(const float* src, float value, float* dst, uint32_t length);
TENK_API tenkStatus tenkMul_vc_32f_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkMul_vc_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkMul_vc_32f_3x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkMul_vc_32f_3x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_32f_4x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkMul_vc_32f_4x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_32f_5x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkMul_vc_32f_5x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_32f_6x1(const float* src, float value, float* dst);
TENK_API tenkStatus tenkMul_vc_32f_6x1_S2(const float* src, uint32_t srcStride2, float value, float* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_64f(const double* src, double value, double* dst, uint32_t length);
TENK_API tenkStatus tenkMul_vc_64f_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2, uint32_t length);
TENK_API tenkStatus tenkMul_vc_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length);
TENK_API tenkStatus tenkMul_vc_64f_3x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkMul_vc_64f_3x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_64f_4x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkMul_vc_64f_4x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_64f_5x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkMul_vc_64f_5x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_vc_64f_6x1(const double* src, double value, double* dst);
TENK_API tenkStatus tenkMul_vc_64f_6x1_S2(const double* src, uint32_t srcStride2, double value, double* dst,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_vc_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift);

/* vac */
TENK_API tenkStatus tenkMul_vac_32f(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_3x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_4x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_5x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1(const float* src, uint32_t srcStride0, float value, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1_S2(const float* src, uint32_t srcStride0, uint32_t srcStride2,
    float value, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1_P(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1_PS2(const float* const* src, uint32_t srcShift, uint32_t srcStride0,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1_L(const float* const* src, uint32_t srcShift, float value,
    float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_32f_6x1_LS2(const float* const* src, uint32_t srcShift, uint32_t srcStride2,
    float value, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t length, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t length,
    uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_3x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_4x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_5x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1(const double* src, uint32_t srcStride0, double value, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1_S2(const double* src, uint32_t srcStride0, uint32_t srcStride2,
    double value, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1_P(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1_PS2(const double* const* src, uint32_t srcShift, uint32_t srcStride0,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1_L(const double* const* src, uint32_t srcShift, double value,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_vac_64f_6x1_LS2(const double* const* src, uint32_t srcShift, uint32_t srcStride2,
    double value, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mv */
TENK_API tenkStatus tenkMul_mv_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Length, float* dst);
TENK_API tenkStatus tenkMul_mv_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2, uint32_t src2Length,
    float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mv_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mv_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mv_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mv_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Length, double* dst);
TENK_API tenkStatus tenkMul_mv_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2, uint32_t src2Length,
    double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mv_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mv_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mv_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mv_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mv_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mv_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mTv */
TENK_API tenkStatus tenkMul_mTv_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Length, float* dst);
TENK_API tenkStatus tenkMul_mTv_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2, uint32_t src2Length,
    float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mTv_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mTv_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mTv_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    float* dst);
TENK_API tenkStatus tenkMul_mTv_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Length, double* dst);
TENK_API tenkStatus tenkMul_mTv_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2, uint32_t src2Length,
    double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mTv_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mTv_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mTv_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTv_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    double* dst);
TENK_API tenkStatus tenkMul_mTv_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTv_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mav */
TENK_API tenkStatus tenkMul_mav_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Length, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2,
    uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Length, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2,
    uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Length, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mav_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* maTv */
TENK_API tenkStatus tenkMul_maTv_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Length, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2,
    uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride2,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride2, float* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Length, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2,
    uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Length, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride2,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTv_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mva */
TENK_API tenkStatus tenkMul_mva_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Length, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Length, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mva_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mTva */
TENK_API tenkStatus tenkMul_mTva_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Length, float* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride2, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Length, double* dst,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2,
    uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst, uint32_t dstStride0,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTva_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride2, double* const* dst,
    uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mava */
TENK_API tenkStatus tenkMul_mava_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Length,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, uint32_t src2Length, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Length,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, uint32_t src2Length, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mava_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* maTva */
TENK_API tenkStatus tenkMul_maTva_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Length,
    float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, uint32_t src2Length, float* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Length, float* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Length, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, uint32_t src2Length, float* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, float* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Length,
    double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride2, uint32_t src2Length, double* dst, uint32_t dstStride0, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Length,
    double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Length, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride2, uint32_t src2Length, double* const* dst, uint32_t dstShift,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, double* dst, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTva_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride2, uint32_t count);

/* mm */
TENK_API tenkStatus tenkMul_mm_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mm_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mm_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mTm */
TENK_API tenkStatus tenkMul_mTm_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTm_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTm_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mmT */
TENK_API tenkStatus tenkMul_mmT_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mmT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mmT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mTmT */
TENK_API tenkStatus tenkMul_mTmT_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride1, float* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height,
    double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride1, uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);
TENK_API tenkStatus tenkMul_mTmT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride1, double* dst, uint32_t dstStride1);
TENK_API tenkStatus tenkMul_mTmT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst, uint32_t dstStride1,
    uint32_t dstStride2);
TENK_API tenkStatus tenkMul_mTmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift);

/* mam */
TENK_API tenkStatus tenkMul_mam_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mam_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* maTm */
TENK_API tenkStatus tenkMul_maTm_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTm_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* mamT */
TENK_API tenkStatus tenkMul_mamT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* maTmT */
TENK_API tenkStatus tenkMul_maTmT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* src2, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* src2, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* src2, uint32_t src2Stride1, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* src2, uint32_t src2Stride1,
    uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);

/* mma */
TENK_API tenkStatus tenkMul_mma_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6_L(const double* src1, uint32_t src1Stride1, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mma_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mTma */
TENK_API tenkStatus tenkMul_mTma_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTma_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mmaT */
TENK_API tenkStatus tenkMul_mmaT_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mmaT_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mTmaT */
TENK_API tenkStatus tenkMul_mTmaT_32f(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_L(const float* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_3x3_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_4x4_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_5x5_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6(const float* src1, uint32_t src1Stride1, const float* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6_L(const float* src1, uint32_t src1Stride1, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_32f_6x6_LS2(const float* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Width,
    uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride0,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_L(const double* src1, uint32_t src1Stride1, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_3x3_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_4x4_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_5x5_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6(const double* src1, uint32_t src1Stride1, const double* src2,
    uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6_L(const double* src1, uint32_t src1Stride1,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, double* const* dst,
    uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mTmaT_64f_6x6_LS2(const double* src1, uint32_t src1Stride1, uint32_t src1Stride2,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);

/* mama */
TENK_API tenkStatus tenkMul_mama_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mama_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* maTma */
TENK_API tenkStatus tenkMul_maTma_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTma_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* mamaT */
TENK_API tenkStatus tenkMul_mamaT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_PS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_LS2(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_mamaT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);

/* maTmaT */
TENK_API tenkStatus tenkMul_maTmaT_32f(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, float* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, float* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_P(const float* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const float* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_PS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride0,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_L(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, float* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_LS2(const float* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const float* const* src2,
    uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_3x3_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_4x4_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_5x5_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, float* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6_S2(const float* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const float* src2, uint32_t src2Stride0, uint32_t src2Stride1, uint32_t src2Stride2,
    float* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6_P(const float* const* src1, uint32_t src1Shift,
    const float* const* src2, uint32_t src2Shift, float* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6_PS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    float* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6_L(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const float* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    float* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_32f_6x6_LS2(const float* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const float* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, float* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Width, uint32_t src2Height, double* dst, uint32_t dstStride0, uint32_t dstStride1,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height, const double* src2, uint32_t src2Stride0,
    uint32_t src2Stride1, uint32_t src2Stride2, uint32_t src2Width, uint32_t src2Height, double* dst,
    uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_P(const double* const* src1, uint32_t src1Shift, uint32_t src1Width,
    uint32_t src1Height, const double* const* src2, uint32_t src2Shift, uint32_t src2Width,
    uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, uint32_t src1Width, uint32_t src1Height, const double* const* src2,
    uint32_t src2Shift, uint32_t src2Stride0, uint32_t src2Width, uint32_t src2Height, double* const* dst,
    uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_L(const double* const* src1, uint32_t src1Shift, uint32_t src1Stride1,
    uint32_t src1Width, uint32_t src1Height, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, uint32_t src1Width, uint32_t src1Height,
    const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1, uint32_t src2Stride2,
    uint32_t src2Width, uint32_t src2Height, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_3x3_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_4x4_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_5x5_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    const double* src2, uint32_t src2Stride0, uint32_t src2Stride1, double* dst, uint32_t dstStride0,
    uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6_S2(const double* src1, uint32_t src1Stride0, uint32_t src1Stride1,
    uint32_t src1Stride2, const double* src2, uint32_t src2Stride0, uint32_t src2Stride1,
    uint32_t src2Stride2, double* dst, uint32_t dstStride0, uint32_t dstStride1, uint32_t dstStride2,
    uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6_P(const double* const* src1, uint32_t src1Shift,
    const double* const* src2, uint32_t src2Shift, double* const* dst, uint32_t dstShift, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6_PS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride0, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride0,
    double* const* dst, uint32_t dstShift, uint32_t dstStride0, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6_L(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, const double* const* src2, uint32_t src2Shift, uint32_t src2Stride1,
    double* const* dst, uint32_t dstShift, uint32_t dstStride1, uint32_t count);
TENK_API tenkStatus tenkMul_maTmaT_64f_6x6_LS2(const double* const* src1, uint32_t src1Shift,
    uint32_t src1Stride1, uint32_t src1Stride2, const double* const* src2, uint32_t src2Shift,
    uint32_t src2Stride1, uint32_t src2Stride2, double* const* dst, uint32_t dstShift, uint32_t dstStride1,
    uint32_t dstStride2, uint32_t count);
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
