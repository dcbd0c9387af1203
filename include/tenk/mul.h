/* tenk: mul
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
/* End of what tools/generate makes. */

#ifdef __cplusplus
}
#endif

#endif
