#!/usr/bin/env bash
# What the examples do on real input, and on input that is none.
set -euo pipefail
windows=$1
data=$(cd "$(dirname "$0")" && pwd)/data/jacksboro-dem.pgm
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

"$windows" "$data" | tee "$work/out"
grep -q '403 x 344 cells, 137142 windows' "$work/out" || fail "the number of windows" # 401 x 342
grep -q 'the three agree: yes' "$work/out" || fail "the three ways"

# Each of these ends with a message that names the file, and no result.
refuses() {
    local file=$1 status=0
    "$windows" "$file" >"$work/out" 2>"$work/err" || status=$?
    [ "$status" -eq 1 ] || fail "status $status for $file"
    grep -q "^windows: $file: " "$work/err" || fail "no message for $file: $(cat "$work/err")"
    [ ! -s "$work/out" ] || fail "a result for $file"
    echo "   $(cat "$work/err")"
}
: >"$work/empty.pgm"
head -c 100000 "$data" >"$work/truncated.pgm"
head -c 7 "$data" >"$work/header.pgm"
echo 'these are words' >"$work/words.pgm"
printf 'P5\n2 2\n255\nabcd' >"$work/small.pgm"
refuses "$work/missing.pgm"
refuses "$work/empty.pgm"
refuses "$work/truncated.pgm"
refuses "$work/header.pgm"
refuses "$work/words.pgm"
refuses "$work/small.pgm"
refuses "$work"

printf 'P5\n3 3\n255\nabcdefghi' >"$work/one.pgm"
"$windows" "$work/one.pgm" | grep -q ' 1 windows' || fail "a single window"
! "$windows" >/dev/null 2>&1 || fail "no arguments"
echo "examples: as expected"
