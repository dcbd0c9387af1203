#!/usr/bin/env bash
# The public headers, each alone and all together, as C99 to C17 and C++11 to C++20, without a warning.
# usage: headers.sh INCLUDE-DIRECTORY [COMPILER-FLAG ...]
set -euo pipefail
include=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
checked=0
for header in tenk.h $(cd "$include" && ls tenk/*.h); do
    echo "#include <$header>" >"$work/one.c"
    echo "int main(void) { return tenkGetLibVersion == 0; }" >>"$work/one.c"
    cp "$work/one.c" "$work/one.cpp"
    standards="c99 c++11"
    [ "$header" != tenk.h ] || standards="c99 c11 c17 c++11 c++14 c++17 c++20"
    for standard in $standards; do
        case $standard in
        c++*) compile="g++ $work/one.cpp" ;;
        *) compile="gcc $work/one.c" ;;
        esac
        # Two mentions, so that include guards are tested too.
        $compile -std="$standard" -Wall -Wextra -pedantic -Werror -Wno-address "$@" -I"$include" \
            -include "$include/$header" -c -o "$work/one.o"
        checked=$((checked + 1))
    done
done
echo "headers: $checked compilations without a warning"
