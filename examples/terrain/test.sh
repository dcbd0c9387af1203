#!/usr/bin/env bash
# What terrain does on real input, on surfaces whose slopes and curvatures are known, and on input that is none.
set -euo pipefail
program=$1 probe=$2
. "$(dirname "$0")/../testing.sh"
export LC_ALL=C

# run ARGUMENT...           leaves the summary in $work/out and the pictures in $work/pictures
run() {
    rm -rf "$work/pictures"
    "$program" --output "$work/pictures" "$@" >"$work/out" || fail "status of $*"
}

# says PATTERN              the last summary has this line
says() {
    grep -qE "$1" "$work/out" || fail "no '$1' in $(cat "$work/out")"
}

# near LINE FIELD VALUE TOLERANCE    field number FIELD of the first line that begins so is this
near() {
    awk -v line="$1" -v field="$2" -v value="$3" -v tolerance="$4" '
        index($0, "  " line) == 1 && !seen++ {
            off = $field - value
            if ((off < 0 ? -off : off) <= tolerance) found = 1
        }
        END { exit !found }' "$work/out" ||
        fail "$1, field $2: $(grep -m 1 "^  $1" "$work/out"), expected $3"
}

# colour PICTURE X Y        red, green and blue there; the share of the map's width and height in percent
colour() {
    local size
    size=$("$probe" "$work/pictures/$1.png" 0 0 | cut -d ' ' -f 1)
    local width=${size%x*} height=${size#*x}
    # Frame and words: 24 left and right, 88 above, 100 below.
    "$probe" "$work/pictures/$1.png" $((24 + (width - 48) * $2 / 100)) $((88 + (height - 188) * $3 / 100)) |
        cut -d ' ' -f 2-
}

# surface COLUMNS ROWS MAXVAL HEIGHT    an elevation model; HEIGHT is an expression of column c and row r
surface() {
    printf 'P5\n%d %d\n%d\n' "$1" "$2" "$3"
    awk "BEGIN {
        for (r = 0; r < $2; ++r)
            for (c = 0; c < $1; ++c) {
                z = $4
                if ($3 > 255) printf \"%c\", int(z / 256)
                printf \"%c\", z % 256
            }
    }"
}

# by_hand                   of the real model: steepest slope, its row and column, mean slope, least and most curvature.
# The windows of 3 x 3 have least-squares derivatives that can be written down: the slope to the east is the difference
# of the outer columns over 6 cells, the second derivative the sum of the outer columns less twice the middle over 3.
by_hand() {
    tail -c $((403 * 344 * 2)) "$data" | od -An -v -tu2 --endian=big -w806 | awk '
        { for (c = 1; c <= NF; ++c) z[NR - 1, c - 1] = $c }
        END {
            w = 74.5; h = 92.6; least = 1e9; most = -1e9; steepest = -1
            for (r = 1; r < 343; ++r)
                for (c = 1; c < 402; ++c) {
                    west = z[r - 1, c - 1] + z[r, c - 1] + z[r + 1, c - 1]
                    east = z[r - 1, c + 1] + z[r, c + 1] + z[r + 1, c + 1]
                    north = z[r - 1, c - 1] + z[r - 1, c] + z[r - 1, c + 1]
                    south = z[r + 1, c - 1] + z[r + 1, c] + z[r + 1, c + 1]
                    all = west + east + z[r - 1, c] + z[r, c] + z[r + 1, c]
                    p = (east - west) / 6 / w; q = (north - south) / 6 / h
                    slope = atan2(sqrt(p * p + q * q), 1) * 45 / atan2(1, 1)
                    sum += slope
                    if (slope > steepest) { steepest = slope; row = r; column = c }
                    bend = (3 * (west + east) - 2 * all) / 3 / w / w + (3 * (north + south) - 2 * all) / 3 / h / h
                    bend = bend / 2 * 1000
                    if (bend < least) least = bend
                    if (bend > most) most = bend
                }
            print steepest, row, column, sum / (401 * 342), least, most
        }'
}

echo "== the real elevation model"
run "$data"
cat "$work/out"
says '403 x 344 cells of 74.5 m x 92.6 m, heights from 236 to 1076 m'
says 'surfaces +137142, fitted to windows of 3 x 3 cells' # 401 x 342
read -r steepest row column mean least most < <(by_hand)
near 'steepest slope' 3 "$steepest" 0.006
says "steepest slope .* in row $row, column $column, "
near 'mean slope' 3 "$mean" 0.006
near curvature 2 "$least" 0.002
near curvature 4 "$most" 0.002
# Two pixels to 74.5 m: 401 cells across, 342 x 92.6 / 37.25 = 850.2 down.
for picture in hillshade curvature; do
    "$probe" "$work/pictures/$picture.png" 0 0 | grep -q '^850x1038 ' || fail "the size of $picture.png"
    says "$work/pictures/$picture.png \(850 x 1038\)"
done
run --window 5 "$data"
says 'surfaces +135660, fitted to windows of 5 x 5 cells' # 399 x 340

echo "== a plane that rises 3 to the east and 4 to the south, in cells of 10"
# Its slope is 0.5, it looks to where the compass shows 360 - atan(3 / 4) degrees, and its unit normal is
# (-0.3, 0.4, 1) / sqrt(1.25).
surface 60 50 65535 '1000 + 3 * c + 4 * r' >"$work/plane.pgm"
[ "$(wc -c <"$work/plane.pgm")" -eq $((15 + 60 * 50 * 2)) ] || fail "a plane cannot be made with this awk"
for window in 3 5; do
    run --window $window --cell 10 "$work/plane.pgm"
    near 'steepest slope' 3 26.565 0.006
    says 'facing north-west \(323.1 degrees\)'
    near 'mean slope' 3 26.565 0.006
    says 'NW 100.0%'
    says 'straight one way or flat 100.0%'
    near curvature 2 0 0.2 # a millimetre in 10 m x 10 m is 0.01 / km; heights are rounded to 0.0001 m
    near shading 2 0.9455 0.0002 # (0.3 + 0.4) sin(45) / sqrt(2) / sqrt(1.25) + sin(45) / sqrt(1.25)
    near shading 4 0.9455 0.0002
    [ "$(colour hillshade 50 50)" = '241 241 241' ] || fail "the grey of the plane: $(colour hillshade 50 50)"
done
run --cell 10 --altitude 90 "$work/plane.pgm"
near shading 2 0.8944 0.0002 # 1 / sqrt(1.25)
run --cell 10 --azimuth 143.13 --altitude 10 "$work/plane.pgm"
near shading 4 0 0 # the sun is below: -cos(10) 0.4472 + sin(10) 0.8944 = -0.285
[ "$(colour hillshade 50 50)" = '0 0 0' ] || fail "a plane turned away"
run --cell 30x20 "$work/plane.pgm"
near 'steepest slope' 3 12.604 0.006 # atan(sqrt(0.1^2 + 0.2^2))

echo "== the same of 8 bits, rising 2 to the west in cells of 20"
surface 60 50 255 '250 - 2 * c' >"$work/west.pgm"
run --cell 20 "$work/west.pgm"
near 'steepest slope' 3 5.711 0.006 # atan(0.1)
says 'facing east \(90.0 degrees\)'

echo "== paraboloids with second derivatives 4 / 10^2 and 6 / 20^2"
# In cells of 10 x 20 that is 40 and 15 per km, whose mean is 27.5, or 12.5 if they differ in sign.
paraboloid() {
    surface 64 64 65535 "30000 + ($1) * 2 * (c - 32) ^ 2 + ($2) * 3 * (r - 32) ^ 2" >"$work/paraboloid.pgm"
}
curved() {
    local window
    for window in 3 5; do
        run --cell 10x20 --window $window "$work/paraboloid.pgm"
        near curvature 2 "$1" 0.2
        near curvature 4 "$1" 0.2
        says "$2 100.0%"
    done
}
paraboloid -1 -1
curved -27.5 domes
read -r red green blue < <(colour curvature 50 50)
[ "$red" -gt $((blue + 50)) ] || fail "the colour of a dome: $red $green $blue"
# lit AZIMUTH X Y           with light from there this place is brighter than the one across the top
lit() {
    run --cell 10x20 --azimuth "$1" "$work/paraboloid.pgm"
    local bright dark
    bright=$(colour hillshade "$2" "$3") dark=$(colour hillshade $((100 - $2)) $((100 - $3)))
    [ "${bright%% *}" -gt $((${dark%% *} + 50)) ] || fail "light from $1: $bright and $dark"
}
lit 0 50 40
lit 90 60 50
lit 180 50 60
lit 270 40 50
paraboloid 1 1
curved 27.5 bowls
read -r red green blue < <(colour curvature 50 50)
[ "$blue" -gt $((red + 50)) ] || fail "the colour of a bowl: $red $green $blue"
paraboloid -1 1
curved -12.5 saddles
surface 64 64 65535 '30000 + 4 * (c - 32) * (r - 32)' >"$work/paraboloid.pgm" # bent between the axes only
curved 0 saddles

echo "== level ground, and a bar for those who watch"
{ printf 'P5\n1000 1000\n255\n'; head -c 1000000 /dev/zero; } >"$work/level.pgm"
run "$work/level.pgm" 2>"$work/err"
says 'steepest slope +0.00 degrees, in row 1, column 1$'
says 'level 100.0%'
[ ! -s "$work/err" ] || fail "words on stderr"
script -qec "'$program' -o '$work/pictures' '$work/level.pgm'" /dev/null </dev/null >"$work/out"
grep -q 'terrain \[####*\.*\] *50 %' "$work/out" || fail "no progress bar"
"$probe" "$work/pictures/hillshade.png" 500 500 | grep -q ' 180 180 180$' || fail "level ground" # 255 sin(45)
script -qec "'$program' -o '$work/pictures' '$data'" /dev/null </dev/null >"$work/out"
! grep -q '\[' "$work/out" || fail "a progress bar for a small job"

echo "== the smallest"
surface 3 3 255 'c + r' >"$work/one.pgm"
run "$work/one.pgm"
says 'surfaces +1,'
refuses 1 "$work/one.pgm: has no window of 5 x 5" -w 5 -o "$work/none" "$work/one.pgm"
[ ! -e "$work/none" ] || fail "a directory for nothing"

echo "== what it refuses"
refuses_broken_files --output "$work/none"
: >"$work/file"
refuses 1 "$work/file: " --output "$work/file" "$data"
refuses 1 "$work/file/below: " --output "$work/file/below" "$data"
mkdir -p "$work/taken/hillshade.png"
refuses 1 "$work/taken/hillshade.png: " --output "$work/taken" "$data"
refuses 2 'no elevation model'
refuses 2 'more than one' "$data" "$data"
refuses 2 'unknown option --frobnicate' --frobnicate "$data"
refuses 2 '--window takes' --window 4 "$data"
refuses 2 '--window takes a value' "$data" --window
refuses 2 '--azimuth takes' --azimuth north "$data"
refuses 2 '--azimuth takes' --azimuth nan "$data"
refuses 2 '--altitude takes' --altitude 91 "$data"
refuses 2 '--altitude takes' --altitude 45deg "$data"
refuses 2 '--cell takes' --cell 0 "$data"
refuses 2 '--cell takes' --cell 10x "$data"
refuses 2 '--cell takes' --cell 1x11 "$data"
refuses 2 '--output takes' --output '' "$data"
"$program" --help | grep -q '^usage: terrain' || fail "no help"
echo "terrain: as expected"
