#!/usr/bin/env bash
# Installs the library into an empty directory and builds against it there: a C program with pkg-config, a C++ program
# with find_package. Runs both.
# usage: install.sh BUILD-DIRECTORY CMAKE [COMPILER-FLAG ...]
set -euo pipefail
build=$1
cmake=$2
shift 2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

DESTDIR= "$cmake" --install "$build" --prefix "$work/prefix" >"$work/log" || { cat "$work/log"; exit 1; }
library=$(dirname "$(find "$work/prefix" -name libtenk.so)")

export PKG_CONFIG_PATH=$library/pkgconfig
[ "$(pkg-config --modversion tenk)" = 3.0.0 ]
gcc -std=c99 -Wall -Wextra -pedantic -Werror "$@" "$here/user.c" $(pkg-config --cflags --libs tenk) \
    -Wl,-rpath,"$library" -o "$work/c-user"
"$work/c-user"

flags="$*"
"$cmake" -G Ninja -S "$here/user" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_CXX_FLAGS="$flags" \
    >"$work/log" || { cat "$work/log"; exit 1; }
"$cmake" --build "$work/build" >"$work/log" || { cat "$work/log"; exit 1; }
"$work/build/cpp-user"
echo "install: built and ran a C and a C++ program"
