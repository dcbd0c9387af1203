#!/usr/bin/env bash
# What windows does on real input, and on input that is none.
set -euo pipefail
program=$1
. "$(dirname "$0")/../testing.sh"

"$program" "$data" | tee "$work/out"
grep -q '403 x 344 cells, 137142 windows' "$work/out" || fail "the number of windows" # 401 x 342
grep -q 'the three agree: yes' "$work/out" || fail "the three ways"

refuses_broken_files
! "$program" >/dev/null 2>&1 || fail "no arguments"

printf 'P5\n3 3\n255\nabcdefghi' >"$work/one.pgm"
"$program" "$work/one.pgm" | grep -q ' 1 windows' || fail "a single window"
echo "windows: as expected"
