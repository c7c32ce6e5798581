#!/usr/bin/env bash
# Installs the build, moves it elsewhere, and builds and runs hosts from there only: with find_package, with a plain
# compiler command, and as a subproject.
#   check_package.sh BUILD SOURCE TOOLCHAIN_FILE COMPILER EXAMPLE_HOST_TEST WORK_FOLDER
set -euo pipefail
build=$1 source=$2 toolchain=$3 compiler=$4 example_host_test=$5 work=$6

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/orlo"
prefix=$work/orlo

step() { echo "-- $*"; }
for_windows() { printf 'Z:%s' "$1"; }
run() { "$source/run.d/wine_program.sh" "$@"; }
# Drives the host's sheet by messages and keys, and presses OK.
drive() { EXAMPLE_HOST=$(for_windows "$1") run "$example_host_test"; }

step "what is handed on is small, and its debug data is beside it"
for binary in "$prefix"/bin/*.{dll,exe}; do
    [ "$(stat -c %s "$binary")" -lt 4000000 ] || { echo "$binary is not stripped"; exit 1; }
done
for name in afx.dll drawcore32.dll orlo.dll demo.exe suminfo.exe; do
    [ "$(stat -c %s "$prefix/bin/$name.debug")" -gt 100000 ] || { echo "$name.debug contains nothing"; exit 1; }
done
python3 - "$prefix/bin/orlo.dll" <<'TEXT' || { echo "orlo.dll does not tell its version"; exit 1; }
import sys
sys.exit("ProductVersion".encode("utf-16-le") not in open(sys.argv[1], "rb").read())
TEXT

step "the examples by find_package"
cmake -S "$prefix/share/orlo/examples" -B "$work/examples" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/examples" >"$work/examples.log" || { cat "$work/examples.log"; exit 1; }
run "$work/examples/page_host.exe"
drive "$work/examples/example_host.exe"
drive "$work/examples/c_host.exe"
mkdir "$work/alone" # without DLLs
cp "$work/examples/author.exe" "$source/tests/data/ole/25695--d41532.xls" "$work/alone"
[ "$(cd "$work/alone" && run author.exe 25695--d41532.xls | tr -d '\r')" = Sompop ]

step "a database of its own, from the skeleton"
cmake -S "$prefix/share/orlo/skeleton" -B "$work/skeleton" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/skeleton" >"$work/skeleton.log" || { cat "$work/skeleton.log"; exit 1; }
run "$prefix/bin/hostcheck.exe" "$(for_windows "$work/skeleton/drawcore32.dll")" >"$work/hostcheck.log" ||
    { cat "$work/hostcheck.log"; exit 1; }

step "the example by one compiler line"
export PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig
# shellcheck disable=SC2046 # flags are words
"$compiler" -std=c++17 -municode -o "$prefix/bin/bare_host.exe" "$prefix/share/orlo/examples/example_host.cpp" \
    $(pkg-config --define-prefix --cflags --libs orlo)
drive "$prefix/bin/bare_host.exe"

step "as a part of another project"
mkdir "$work/part"
cat >"$work/part/CMakeLists.txt" <<TEXT
cmake_minimum_required(VERSION 3.25)
project(part LANGUAGES C CXX RC)
include(FetchContent)
FetchContent_Declare(orlo SOURCE_DIR $source)
FetchContent_MakeAvailable(orlo)
add_executable(part part.cpp)
target_link_libraries(part PRIVATE orlo::afx orlo::host)
TEXT
cat >"$work/part/part.cpp" <<'TEXT'
#include <afx.h>
#include "orlo/host/words.h"
int main() { return CString(kPropPenScale) == "PenScale" ? 0 : 1; }
TEXT
cmake -S "$work/part" -B "$work/part/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" >/dev/null
cmake --build "$work/part/build" --target part >"$work/part.log" || { cat "$work/part.log"; exit 1; }
cp "$work/part/build/part.exe" "$work/part/build/_deps/orlo-build/bin"
run "$work/part/build/_deps/orlo-build/bin/part.exe"
