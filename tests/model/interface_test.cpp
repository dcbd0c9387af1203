// The argument lists, literally, for members of every family and layout.
#include "interface.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>

namespace {

// A line for each function, the prefix left out; a line that begins with a blank goes on with the one before.
constexpr std::string_view lists = R"(
Add_mm_32f: src1 src1Stride1 src2 src2Stride1 dst dstStride1 width height
Add_mm_32f_3x3: src1 src1Stride1 src2 src2Stride1 dst dstStride1
Add_mam_32f: src1 src1Stride0 src1Stride1 src2 src2Stride1 dst dstStride0 dstStride1 width height count
Add_mam_32f_S2: src1 src1Stride0 src1Stride1 src1Stride2 src2 src2Stride1 src2Stride2 dst dstStride0
    dstStride1 dstStride2 width height count
Add_mam_32f_P: src1 src1Shift src2 src2Shift dst dstShift width height count
Add_mam_32f_PS2: src1 src1Shift src1Stride0 src2 src2Shift dst dstShift dstStride0 width height count
Add_mam_32f_L: src1 src1Shift src1Stride1 src2 src2Stride1 dst dstShift dstStride1 width height count
Add_mam_32f_LS2: src1 src1Shift src1Stride1 src1Stride2 src2 src2Stride1 src2Stride2 dst dstShift dstStride1
    dstStride2 width height count
Add_mama_32f: src1 src1Stride0 src1Stride1 src2 src2Stride0 src2Stride1 dst dstStride0 dstStride1 width
    height count
Add_vv_32f: src1 src2 dst length
Add_vav_32f: src1 src1Stride0 src2 dst dstStride0 length count
Add_vav_32f_S2: src1 src1Stride0 src1Stride2 src2 src2Stride2 dst dstStride0 dstStride2 length count
Add_vav_32f_P: src1 src1Shift src2 src2Shift dst dstShift length count
Add_vav_32f_PS2: src1 src1Shift src1Stride0 src2 src2Shift dst dstShift dstStride0 length count
Add_vav_32f_L: src1 src1Shift src2 dst dstShift length count
Add_vav_32f_LS2: src1 src1Shift src1Stride2 src2 src2Stride2 dst dstShift dstStride2 length count
Add_vc_32f: src value dst length
Add_vc_32f_S2: src srcStride2 value dst dstStride2 length
Add_vc_32f_P: src srcShift value dst dstShift length
Add_vac_32f: src srcStride0 value dst dstStride0 length count
Add_vac_32f_S2: src srcStride0 srcStride2 value dst dstStride0 dstStride2 length count
Add_vac_32f_P: src srcShift value dst dstShift length count
Add_vac_32f_PS2: src srcShift srcStride0 value dst dstShift dstStride0 length count
Add_vac_32f_L: src srcShift value dst dstShift length count
Add_vac_32f_LS2: src srcShift srcStride2 value dst dstShift dstStride2 length count

Sub_cv_32f: src value dst length
Sub_cv_32f_S2: src srcStride2 value dst dstStride2 length
Sub_cva_32f_PS2: src srcShift srcStride0 value dst dstShift dstStride0 length count
Sub_mma_32f_L: src1 src1Stride1 src2 src2Shift src2Stride1 dst dstShift dstStride1 width height count
Sub_vva_32f: src1 src2 src2Stride0 dst dstStride0 length count
Sub_cva_64f_LS2: src srcShift srcStride2 value dst dstShift dstStride2 length count
Sub_cv_32f_3x1: src value dst
Sub_mma_32f: src1 src1Stride1 src2 src2Stride0 src2Stride1 dst dstStride0 dstStride1 width height count
Sub_mTmaT_64f_4x4_L: src1 src1Stride1 src2 src2Shift src2Stride1 dst dstShift dstStride1 count
Sub_vc_64f_3x1: src value dst

Mul_vc_32f: src value dst length
Mul_vc_32f_S2: src srcStride2 value dst dstStride2 length
Mul_vc_32f_P: src srcShift value dst dstShift length
Mul_vac_32f: src srcStride0 value dst dstStride0 length count
Mul_vac_32f_LS2: src srcShift srcStride2 value dst dstShift dstStride2 length count
Mul_mc_32f: src srcStride1 value dst dstStride1 width height
Mul_mc_32f_3x3: src srcStride1 value dst dstStride1
Mul_mac_32f: src srcStride0 srcStride1 value dst dstStride0 dstStride1 width height count
Mul_mac_32f_P: src srcShift value dst dstShift width height count
Mul_mac_32f_L: src srcShift srcStride1 value dst dstShift dstStride1 width height count
Mul_mv_32f: src1 src1Stride1 src1Width src1Height src2 src2Length dst
Mul_mv_32f_3x3: src1 src1Stride1 src2 dst
Mul_mv_32f_S2: src1 src1Stride1 src1Stride2 src1Width src1Height src2 src2Stride2 src2Length dst dstStride2
Mul_mv_32f_P: src1 src1Shift src1Width src1Height src2 src2Shift src2Length dst dstShift
Mul_mva_32f: src1 src1Stride1 src1Width src1Height src2 src2Stride0 src2Length dst dstStride0 count
Mul_mav_32f: src1 src1Stride0 src1Stride1 src1Width src1Height src2 src2Length dst dstStride0 count
Mul_mava_32f: src1 src1Stride0 src1Stride1 src1Width src1Height src2 src2Stride0 src2Length dst dstStride0
    count
Mul_mava_32f_PS2: src1 src1Shift src1Stride0 src1Width src1Height src2 src2Shift src2Stride0 src2Length dst
    dstShift dstStride0 count
Mul_mava_32f_L: src1 src1Shift src1Stride1 src1Width src1Height src2 src2Shift src2Length dst dstShift count
Mul_mva_32f_LS2: src1 src1Stride1 src1Stride2 src1Width src1Height src2 src2Shift src2Stride2 src2Length dst
    dstShift dstStride2 count
Mul_mm_32f: src1 src1Stride1 src1Width src1Height src2 src2Stride1 src2Width src2Height dst dstStride1
Mul_mm_32f_3x3: src1 src1Stride1 src2 src2Stride1 dst dstStride1
Mul_mm_32f_S2: src1 src1Stride1 src1Stride2 src1Width src1Height src2 src2Stride1 src2Stride2 src2Width
    src2Height dst dstStride1 dstStride2
Mul_mm_32f_P: src1 src1Shift src1Width src1Height src2 src2Shift src2Width src2Height dst dstShift
Mul_mam_32f: src1 src1Stride0 src1Stride1 src1Width src1Height src2 src2Stride1 src2Width src2Height dst
    dstStride0 dstStride1 count
Mul_mam_32f_3x3: src1 src1Stride0 src1Stride1 src2 src2Stride1 dst dstStride0 dstStride1 count
Mul_mam_32f_P: src1 src1Shift src1Width src1Height src2 src2Shift src2Width src2Height dst dstShift count
Mul_mam_32f_PS2: src1 src1Shift src1Stride0 src1Width src1Height src2 src2Shift src2Width src2Height dst
    dstShift dstStride0 count
Mul_mam_32f_L: src1 src1Shift src1Stride1 src1Width src1Height src2 src2Stride1 src2Width src2Height dst
    dstShift dstStride1 count
Mul_mam_32f_LS2: src1 src1Shift src1Stride1 src1Stride2 src1Width src1Height src2 src2Stride1 src2Stride2
    src2Width src2Height dst dstShift dstStride1 dstStride2 count
Mul_mma_32f_L: src1 src1Stride1 src1Width src1Height src2 src2Shift src2Stride1 src2Width src2Height dst
    dstShift dstStride1 count
Mul_mama_32f: src1 src1Stride0 src1Stride1 src1Width src1Height src2 src2Stride0 src2Stride1 src2Width
    src2Height dst dstStride0 dstStride1 count
Mul_mama_64f_6x6_PS2: src1 src1Shift src1Stride0 src2 src2Shift src2Stride0 dst dstShift dstStride0 count

Saxpy_vv_32f: src1 value src2 dst length
Saxpy_vv_32f_S2: src1 src1Stride2 value src2 src2Stride2 dst dstStride2 length
Saxpy_vv_32f_P: src1 src1Shift value src2 src2Shift dst dstShift length
Saxpy_vav_32f: src1 src1Stride0 value src2 dst dstStride0 length count
Saxpy_vva_32f: src1 value src2 src2Stride0 dst dstStride0 length count
Saxpy_vava_32f: src1 src1Stride0 value src2 src2Stride0 dst dstStride0 length count
Saxpy_vav_32f_L: src1 src1Shift value src2 dst dstShift length count
Saxpy_vav_32f_LS2: src1 src1Shift src1Stride2 value src2 src2Stride2 dst dstShift dstStride2 length count
Saxpy_vav_32f_PS2: src1 src1Shift src1Stride0 value src2 src2Shift dst dstShift dstStride0 length count

LComb_vv_32f: src1 value1 src2 value2 dst length
LComb_vv_32f_S2: src1 src1Stride2 value1 src2 src2Stride2 value2 dst dstStride2 length
LComb_vv_32f_P: src1 src1Shift value1 src2 src2Shift value2 dst dstShift length
LComb_vav_32f: src1 src1Stride0 value1 src2 value2 dst dstStride0 length count
LComb_vava_32f: src1 src1Stride0 value1 src2 src2Stride0 value2 dst dstStride0 length count
LComb_vav_32f_L: src1 src1Shift value1 src2 value2 dst dstShift length count
LComb_vava_32f_LS2: src1 src1Shift src1Stride2 value1 src2 src2Shift src2Stride2 value2 dst dstShift
    dstStride2 length count

Gaxpy_v_32f: src1 src1Stride1 src2 src3 dst width height
Gaxpy_v_32f_3x3: src1 src1Stride1 src2 src3 dst
Gaxpy_v_32f_S2: src1 src1Stride1 src1Stride2 src2 src2Stride2 src3 src3Stride2 dst dstStride2 width height
Gaxpy_v_32f_P: src1 src1Shift src2 src2Shift src3 src3Shift dst dstShift width height
Gaxpy_va_32f: src1 src1Stride1 src2 src2Stride0 src3 src3Stride0 dst dstStride0 width height count
Gaxpy_va_32f_S2: src1 src1Stride1 src1Stride2 src2 src2Stride0 src2Stride2 src3 src3Stride0 src3Stride2 dst
    dstStride0 dstStride2 width height count
Gaxpy_va_32f_P: src1 src1Shift src2 src2Shift src3 src3Shift dst dstShift width height count
Gaxpy_va_32f_PS2: src1 src1Shift src2 src2Shift src2Stride0 src3 src3Shift src3Stride0 dst dstShift
    dstStride0 width height count
Gaxpy_va_32f_L: src1 src1Stride1 src2 src2Shift src3 src3Shift dst dstShift width height count
Gaxpy_va_32f_LS2: src1 src1Stride1 src1Stride2 src2 src2Shift src2Stride2 src3 src3Shift src3Stride2 dst
    dstShift dstStride2 width height count

DotProduct_vv_32f: src1 src2 dst length
DotProduct_vv_32f_S2: src1 src1Stride2 src2 src2Stride2 dst length
DotProduct_vv_32f_P: src1 src1Shift src2 src2Shift dst length
DotProduct_vav_32f: src1 src1Stride0 src2 dst length count
DotProduct_vav_32f_S2: src1 src1Stride0 src1Stride2 src2 src2Stride2 dst length count
DotProduct_vav_32f_P: src1 src1Shift src2 src2Shift dst length count
DotProduct_vav_32f_PS2: src1 src1Shift src1Stride0 src2 src2Shift dst length count
DotProduct_vav_32f_L: src1 src1Shift src2 dst length count
DotProduct_vav_32f_LS2: src1 src1Shift src1Stride2 src2 src2Stride2 dst length count
DotProduct_vava_32f: src1 src1Stride0 src2 src2Stride0 dst length count
DotProduct_vava_32f_S2: src1 src1Stride0 src1Stride2 src2 src2Stride0 src2Stride2 dst length count
DotProduct_vava_32f_P: src1 src1Shift src2 src2Shift dst length count
DotProduct_vava_32f_PS2: src1 src1Shift src1Stride0 src2 src2Shift src2Stride0 dst length count
DotProduct_vava_32f_L: src1 src1Shift src2 src2Shift dst length count
DotProduct_vava_32f_LS2: src1 src1Shift src1Stride2 src2 src2Shift src2Stride2 dst length count

CrossProduct_vv_32f_3x1: src1 src2 dst
CrossProduct_vv_32f_3x1_S2: src1 src1Stride2 src2 src2Stride2 dst dstStride2
CrossProduct_vv_32f_3x1_P: src1 src1Shift src2 src2Shift dst dstShift
CrossProduct_vav_32f_3x1: src1 src1Stride0 src2 dst dstStride0 count
CrossProduct_vav_32f_3x1_S2: src1 src1Stride0 src1Stride2 src2 src2Stride2 dst dstStride0 dstStride2 count
CrossProduct_vav_32f_3x1_P: src1 src1Shift src2 src2Shift dst dstShift count
CrossProduct_vav_32f_3x1_PS2: src1 src1Shift src1Stride0 src2 src2Shift dst dstShift dstStride0 count
CrossProduct_vav_32f_3x1_L: src1 src1Shift src2 dst dstShift count
CrossProduct_vav_32f_3x1_LS2: src1 src1Shift src1Stride2 src2 src2Stride2 dst dstShift dstStride2 count
CrossProduct_vava_32f_3x1: src1 src1Stride0 src2 src2Stride0 dst dstStride0 count

L2Norm_v_32f: src dst length
L2Norm_v_32f_S2: src srcStride2 dst length
L2Norm_v_32f_P: src srcShift dst length
L2Norm_va_32f: src srcStride0 dst length count
L2Norm_va_32f_S2: src srcStride0 srcStride2 dst length count
L2Norm_va_32f_P: src srcShift dst length count
L2Norm_va_32f_PS2: src srcShift srcStride0 dst length count
L2Norm_va_32f_L: src srcShift dst length count
L2Norm_va_32f_LS2: src srcShift srcStride2 dst length count

Trace_m_32f: src srcStride1 order dst
Trace_m_32f_S2: src srcStride1 srcStride2 order dst
Trace_m_32f_P: src srcShift order dst
Trace_ma_32f: src srcStride0 srcStride1 order dst count
Trace_ma_32f_S2: src srcStride0 srcStride1 srcStride2 order dst count
Trace_ma_32f_P: src srcShift order dst count
Trace_ma_32f_PS2: src srcShift srcStride0 order dst count
Trace_ma_32f_L: src srcShift srcStride1 order dst count
Trace_ma_32f_LS2: src srcShift srcStride1 srcStride2 order dst count

FrobNorm_m_32f: src srcStride1 width height dst
FrobNorm_m_32f_S2: src srcStride1 srcStride2 width height dst
FrobNorm_m_32f_P: src srcShift width height dst
FrobNorm_ma_32f: src srcStride0 srcStride1 width height dst count
FrobNorm_ma_32f_S2: src srcStride0 srcStride1 srcStride2 width height dst count
FrobNorm_ma_32f_P: src srcShift width height dst count
FrobNorm_ma_32f_PS2: src srcShift srcStride0 width height dst count
FrobNorm_ma_32f_L: src srcShift srcStride1 width height dst count
FrobNorm_ma_32f_LS2: src srcShift srcStride1 srcStride2 width height dst count

Det_m_32f: src srcStride1 order buffer dst
Det_m_32f_S2: src srcStride1 srcStride2 order buffer dst
Det_m_32f_P: src srcShift order buffer dst
Det_ma_32f: src srcStride0 srcStride1 order buffer dst count
Det_ma_32f_S2: src srcStride0 srcStride1 srcStride2 order buffer dst count
Det_ma_32f_P: src srcShift order buffer dst count
Det_ma_32f_PS2: src srcShift srcStride0 order buffer dst count
Det_ma_32f_L: src srcShift srcStride1 order buffer dst count
Det_ma_32f_LS2: src srcShift srcStride1 srcStride2 order buffer dst count
Det_m_32f_3x3: src srcStride1 dst
Det_m_32f_3x3_S2: src srcStride1 srcStride2 dst
Det_m_32f_3x3_P: src srcShift dst
Det_ma_32f_3x3: src srcStride0 srcStride1 dst count
Det_ma_32f_3x3_S2: src srcStride0 srcStride1 srcStride2 dst count
Det_ma_32f_3x3_P: src srcShift dst count
Det_ma_32f_3x3_PS2: src srcShift srcStride0 dst count
Det_ma_32f_3x3_L: src srcShift srcStride1 dst count
Det_ma_32f_3x3_LS2: src srcShift srcStride1 srcStride2 dst count

Invert_m_32f: src srcStride1 order buffer dst dstStride1
Invert_m_32f_S2: src srcStride1 srcStride2 order buffer dst dstStride1 dstStride2
Invert_m_32f_P: src srcShift order buffer dst dstShift
Invert_ma_32f: src srcStride0 srcStride1 order buffer dst dstStride0 dstStride1 count
Invert_ma_32f_S2: src srcStride0 srcStride1 srcStride2 order buffer dst dstStride0 dstStride1 dstStride2
    count
Invert_ma_32f_P: src srcShift order buffer dst dstShift count
Invert_ma_32f_PS2: src srcShift srcStride0 order buffer dst dstShift dstStride0 count
Invert_ma_32f_L: src srcShift srcStride1 order buffer dst dstShift dstStride1 count
Invert_ma_32f_LS2: src srcShift srcStride1 srcStride2 order buffer dst dstShift dstStride1 dstStride2 count
Invert_m_32f_3x3: src srcStride1 dst dstStride1
Invert_m_32f_3x3_S2: src srcStride1 srcStride2 dst dstStride1 dstStride2
Invert_m_32f_3x3_P: src srcShift dst dstShift
Invert_ma_32f_3x3: src srcStride0 srcStride1 dst dstStride0 dstStride1 count
Invert_ma_32f_3x3_S2: src srcStride0 srcStride1 srcStride2 dst dstStride0 dstStride1 dstStride2 count
Invert_ma_32f_3x3_P: src srcShift dst dstShift count
Invert_ma_32f_3x3_PS2: src srcShift srcStride0 dst dstShift dstStride0 count
Invert_ma_32f_3x3_L: src srcShift srcStride1 dst dstShift dstStride1 count
Invert_ma_32f_3x3_LS2: src srcShift srcStride1 srcStride2 dst dstShift dstStride1 dstStride2 count

LUDecomp_m_32f: src srcStride1 rowIndex dst dstStride1 order
LUDecomp_m_32f_S2: src srcStride1 srcStride2 rowIndex dst dstStride1 dstStride2 order
LUDecomp_m_32f_P: src srcShift rowIndex dst dstShift order
LUDecomp_ma_32f: src srcStride0 srcStride1 rowIndex dst dstStride0 dstStride1 order count
LUDecomp_ma_32f_S2: src srcStride0 srcStride1 srcStride2 rowIndex dst dstStride0 dstStride1 dstStride2 order
    count
LUDecomp_ma_32f_P: src srcShift rowIndex dst dstShift order count
LUDecomp_ma_32f_PS2: src srcShift srcStride0 rowIndex dst dstShift dstStride0 order count
LUDecomp_ma_32f_L: src srcShift srcStride1 rowIndex dst dstShift dstStride1 order count
LUDecomp_ma_32f_LS2: src srcShift srcStride1 srcStride2 rowIndex dst dstShift dstStride1 dstStride2 order
    count

LUBackSubst_mv_32f: src1 src1Stride1 rowIndex src2 dst order
LUBackSubst_mv_32f_S2: src1 src1Stride1 src1Stride2 rowIndex src2 src2Stride2 dst dstStride2 order
LUBackSubst_mv_32f_P: src1 src1Shift rowIndex src2 src2Shift dst dstShift order
LUBackSubst_mva_32f: src1 src1Stride0 src1Stride1 rowIndex src2 src2Stride0 dst dstStride0 order count
LUBackSubst_mva_32f_S2: src1 src1Stride0 src1Stride1 src1Stride2 rowIndex src2 src2Stride0 src2Stride2 dst
    dstStride0 dstStride2 order count
LUBackSubst_mva_32f_P: src1 src1Shift rowIndex src2 src2Shift dst dstShift order count
LUBackSubst_mva_32f_PS2: src1 src1Shift rowIndex src2 src2Shift src2Stride0 dst dstShift dstStride0 order
    count
LUBackSubst_mva_32f_L: src1 src1Stride0 src1Stride1 rowIndex src2 src2Shift dst dstShift order count
LUBackSubst_mva_32f_LS2: src1 src1Stride0 src1Stride1 src1Stride2 rowIndex src2 src2Shift src2Stride2 dst
    dstShift dstStride2 order count
LUBackSubst_mava_32f: src1 src1Stride0 src1Stride1 rowIndex src2 src2Stride0 dst dstStride0 order count
LUBackSubst_mava_32f_S2: src1 src1Stride0 src1Stride1 src1Stride2 rowIndex src2 src2Stride0 src2Stride2 dst
    dstStride0 dstStride2 order count
LUBackSubst_mava_32f_P: src1 src1Shift rowIndex src2 src2Shift dst dstShift order count
LUBackSubst_mava_32f_PS2: src1 src1Shift src1Stride0 rowIndex src2 src2Shift src2Stride0 dst dstShift
    dstStride0 order count
LUBackSubst_mava_32f_L: src1 src1Shift src1Stride1 rowIndex src2 src2Shift dst dstShift order count
LUBackSubst_mava_32f_LS2: src1 src1Shift src1Stride1 src1Stride2 rowIndex src2 src2Shift src2Stride2 dst
    dstShift dstStride2 order count

QRDecomp_m_32f: src srcStride1 buffer dst dstStride1 width height
QRDecomp_m_32f_S2: src srcStride1 srcStride2 buffer dst dstStride1 dstStride2 width height
QRDecomp_m_32f_P: src srcShift buffer dst dstShift width height
QRDecomp_ma_32f: src srcStride0 srcStride1 buffer dst dstStride0 dstStride1 width height count
QRDecomp_ma_32f_S2: src srcStride0 srcStride1 srcStride2 buffer dst dstStride0 dstStride1 dstStride2 width
    height count
QRDecomp_ma_32f_P: src srcShift buffer dst dstShift width height count
QRDecomp_ma_32f_PS2: src srcShift srcStride0 buffer dst dstShift dstStride0 width height count
QRDecomp_ma_32f_L: src srcShift srcStride1 buffer dst dstShift dstStride1 width height count
QRDecomp_ma_32f_LS2: src srcShift srcStride1 srcStride2 buffer dst dstShift dstStride1 dstStride2 width
    height count

QRBackSubst_mv_32f: src1 src1Stride1 buffer src2 dst width height
QRBackSubst_mv_32f_S2: src1 src1Stride1 src1Stride2 buffer src2 src2Stride2 dst dstStride2 width height
QRBackSubst_mv_32f_P: src1 src1Shift buffer src2 src2Shift dst dstShift width height
QRBackSubst_mva_32f: src1 src1Stride0 src1Stride1 buffer src2 src2Stride0 dst dstStride0 width height count
QRBackSubst_mva_32f_S2: src1 src1Stride0 src1Stride1 src1Stride2 buffer src2 src2Stride0 src2Stride2 dst
    dstStride0 dstStride2 width height count
QRBackSubst_mva_32f_P: src1 src1Shift buffer src2 src2Shift dst dstShift width height count
QRBackSubst_mva_32f_PS2: src1 src1Shift buffer src2 src2Shift src2Stride0 dst dstShift dstStride0 width
    height count
QRBackSubst_mva_32f_L: src1 src1Stride0 src1Stride1 buffer src2 src2Shift dst dstShift width height count
QRBackSubst_mva_32f_LS2: src1 src1Stride0 src1Stride1 src1Stride2 buffer src2 src2Shift src2Stride2 dst
    dstShift dstStride2 width height count
QRBackSubst_mava_32f: src1 src1Stride0 src1Stride1 buffer src2 src2Stride0 dst dstStride0 width height count
QRBackSubst_mava_32f_S2: src1 src1Stride0 src1Stride1 src1Stride2 buffer src2 src2Stride0 src2Stride2 dst
    dstStride0 dstStride2 width height count
QRBackSubst_mava_32f_P: src1 src1Shift buffer src2 src2Shift dst dstShift width height count
QRBackSubst_mava_32f_PS2: src1 src1Shift src1Stride0 buffer src2 src2Shift src2Stride0 dst dstShift
    dstStride0 width height count
QRBackSubst_mava_32f_L: src1 src1Shift src1Stride1 buffer src2 src2Shift dst dstShift width height count
QRBackSubst_mava_32f_LS2: src1 src1Shift src1Stride1 src1Stride2 buffer src2 src2Shift src2Stride2 dst
    dstShift dstStride2 width height count

Copy_ma_32f_LP: src srcShift srcStride1 srcStride2 dst dstShift dstStride0 width height count
Copy_ma_64f_SS: src srcStride0 srcStride1 srcStride2 dst dstStride0 dstStride1 dstStride2 width height count
Copy_ma_64f_SP: src srcStride0 srcStride1 srcStride2 dst dstShift dstStride0 width height count
Copy_ma_64f_SL: src srcStride0 srcStride1 srcStride2 dst dstShift dstStride1 dstStride2 width height count
Copy_ma_64f_LS: src srcShift srcStride1 srcStride2 dst dstStride0 dstStride1 dstStride2 width height count
Copy_ma_64f_LP: src srcShift srcStride1 srcStride2 dst dstShift dstStride0 width height count
Copy_ma_64f_LL: src srcShift srcStride1 srcStride2 dst dstShift dstStride1 dstStride2 width height count
Copy_ma_64f_PS: src srcShift srcStride0 dst dstStride0 dstStride1 dstStride2 width height count
Copy_ma_64f_PP: src srcShift srcStride0 dst dstShift dstStride0 width height count
Copy_ma_64f_PL: src srcShift srcStride0 dst dstShift dstStride1 dstStride2 width height count
Copy_va_64f_PL: src srcShift srcStride0 dst dstShift dstStride2 length count

Transpose_m_32f: src srcStride1 width height dst dstStride1
Transpose_m_32f_S2: src srcStride1 srcStride2 width height dst dstStride1 dstStride2
Transpose_m_32f_P: src srcShift width height dst dstShift
Transpose_ma_32f: src srcStride0 srcStride1 width height dst dstStride0 dstStride1 count
Transpose_ma_32f_S2: src srcStride0 srcStride1 srcStride2 width height dst dstStride0 dstStride1 dstStride2
    count
Transpose_ma_32f_P: src srcShift width height dst dstShift count
Transpose_ma_32f_PS2: src srcShift srcStride0 width height dst dstShift dstStride0 count
Transpose_ma_32f_L: src srcShift srcStride1 width height dst dstShift dstStride1 count
Transpose_ma_32f_LS2: src srcShift srcStride1 srcStride2 width height dst dstShift dstStride1 dstStride2
    count

Extract_mT_32f_S2: src srcStride1 srcStride2 dst width height
Extract_v_64f_S2: src srcStride2 dst length
Extract_v_64f_P: src srcShift dst length
Extract_va_64f_S2: src srcStride0 srcStride2 dst length count
Extract_va_64f_PS2: src srcShift srcStride0 dst length count
Extract_va_64f_LS2: src srcShift srcStride2 dst length count
Extract_m_64f_S2: src srcStride1 srcStride2 dst width height
Extract_m_64f_P: src srcShift dst width height
Extract_mT_64f_P: src srcShift dst width height
Extract_ma_64f_S2: src srcStride0 srcStride1 srcStride2 dst width height count
Extract_ma_64f_PS2: src srcShift srcStride0 dst width height count
Extract_ma_64f_LS2: src srcShift srcStride1 srcStride2 dst width height count
Extract_maT_64f_LS2: src srcShift srcStride1 srcStride2 dst width height count
Extract_maT_64f_PS2: src srcShift srcStride0 dst width height count

LoadIdentity_ma_32f_P: dst dstShift dstStride0 width height count
LoadIdentity_ma_64f_S: dst dstStride0 dstStride1 dstStride2 width height count
LoadIdentity_ma_64f_L: dst dstShift dstStride1 dstStride2 width height count
LoadIdentity_ma_64f_P: dst dstShift dstStride0 width height count
)";

std::string argumentsOf(const model::Name& name)
{
    std::string text;
    for (const model::Parameter& parameter : model::parameters(name))
        text += (text.empty() ? "" : " ") + parameter.name;
    return text;
}

TEST(Interface, argumentLists)
{
    std::istringstream in{std::string(lists)};
    std::vector<std::string> entries;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with(' '))
            entries.back() += line.substr(3);
        else if (!line.empty())
            entries.push_back(line);
    }
    ASSERT_EQ(entries.size(), 268u);
    for (const std::string& entry : entries) {
        const std::size_t colon = entry.find(':');
        const model::Name* name = model::find("tenk" + entry.substr(0, colon));
        ASSERT_TRUE(name) << entry;
        EXPECT_EQ(argumentsOf(*name), entry.substr(colon + 2)) << entry;
    }
}

TEST(Interface, kindsOfArguments)
{
    using model::Kind;
    const std::vector<model::Parameter> expected = {
        {"src1", Kind::pointer},  {"src1Shift", Kind::word},  {"value1", Kind::value64f},
        {"src2", Kind::pointer},  {"value2", Kind::value64f}, {"dst", Kind::pointer},
        {"dstShift", Kind::word}, {"length", Kind::word},     {"count", Kind::word}};
    EXPECT_EQ(model::parameters(*model::find("tenkLComb_vav_64f_L")), expected);
    EXPECT_EQ(model::parameters(*model::find("tenkSub_cv_32f_3x1"))[1],
              (model::Parameter{"value", Kind::value32f}));
    EXPECT_EQ(model::parameters(*model::find("tenkLUDecomp_m_32f"))[2],
              (model::Parameter{"rowIndex", Kind::pointer}));
    EXPECT_EQ(model::parameters(*model::find("tenkDet_m_32f"))[3],
              (model::Parameter{"buffer", Kind::pointer}));
}

// Whatever the name says, a fixed size drops the sizes and nothing else, and `count` comes last.
TEST(Interface, fixedSizesDropTheSizesAlone)
{
    for (const model::Name& name : model::allNames()) {
        if (name.general() || name.root == model::Root::CrossProduct)
            continue;
        std::string general = name.text;
        const std::size_t size = general.find("_" + std::to_string(name.size) + "x");
        general.erase(size, 4);
        const model::Name* twin = model::find(general);
        ASSERT_TRUE(twin) << general;
        std::vector<model::Parameter> expected;
        const std::vector<std::string> sizes = model::sizeNames(*twin);
        for (const model::Parameter& parameter : model::parameters(*twin)) {
            const bool isSize = std::find(sizes.begin(), sizes.end(), parameter.name) != sizes.end();
            // Scratch memory goes with the elimination, which the fixed sizes of these two do without.
            const bool gone = parameter.name == "buffer" &&
                              (name.root == model::Root::Det || name.root == model::Root::Invert);
            if (!isSize && !gone)
                expected.push_back(parameter);
        }
        ASSERT_EQ(model::parameters(name), expected) << name.text;
        if (model::takesCount(name)) {
            ASSERT_EQ(expected.back().name, "count") << name.text;
        }
    }
}

} // namespace
