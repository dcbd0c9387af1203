#!/usr/bin/env bash
# A member that does not exist does not compile; one that does, does.
# usage: names.sh SOURCE-DIRECTORY COMPILER
set -euo pipefail
compiles() {
    echo "#include \"frame/grammar.h\"
constexpr tenk::Member m{\"$1\"};
int main() { return m.size; }" | "$2" -std=c++20 -fsyntax-only -I"$3/src" -x c++ - 2>/dev/null
}
for name in tenkAdd_mam_32f_3x3_PS2 tenkSub_cva_64f_LS2 tenkCopy_va_32f_PP tenkExtract_mT_32f_S2 tenkMul_vac_64f_6x1 \
    tenkCrossProduct_vva_32f_3x1_L tenkGaxpy_va_64f_5x5; do
    compiles $name "$2" "$1" || { echo "does not compile: $name"; exit 1; }
done
for name in tenkAdd_mma_32f tenkAdd_mm_32f_L tenkSub_vv_16f tenkMul_mm_32f_7x7 tenkMul_mv_32f_3x1 tenkMul_vc_32f_3x3 \
    tenkExtract_mT_64f_S2 tenkExtract_maT_32f_S2 tenkCrossProduct_vv_32f_4x1 tenkCrossProduct_vv_32f tenkCopy_ma_32f_S \
    tenkLoadIdentity_ma_32f_SS tenkAdd_mam_32f_3x3_X tenkPower_mm_32f Add_mm_32f tenkDet_ma_32f_3x4; do
    ! compiles $name "$2" "$1" || { echo "compiles: $name"; exit 1; }
done
echo "names: 7 compile, 16 do not"
