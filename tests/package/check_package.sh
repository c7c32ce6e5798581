#!/usr/bin/env bash
# Creates the zip of a build and, from there only, builds and runs hosts: with find_package, with a plain compiler
# command, with a database of their own, with another compiler, and as a subproject.
#   check_package.sh BUILD SOURCE TOOLCHAIN_FILE COMPILER EXAMPLE_HOST_TEST WORK_FOLDER
set -euo pipefail
build=$1 source=$2 toolchain=$3 compiler=$4 example_host_test=$5 work=$6
here=$(dirname "$0")

rm -rf "$work"
mkdir -p "$work/again"

step() { echo "-- $*"; }
for_windows() { printf 'Z:%s' "$1"; }
run() { "$source/run.d/wine_program.sh" "$@"; }
# Drives the host's sheet by messages and keys, and presses OK.
drive() { EXAMPLE_HOST=$(for_windows "$1") run "$example_host_test"; }
# Configures and builds a project that finds the package.
build_project() { # NAME SOURCE_FOLDER [TOOLCHAIN_FILE]
    cmake -S "$2" -B "$work/$1" -G Ninja -DCMAKE_TOOLCHAIN_FILE="${3:-$toolchain}" -DCMAKE_PREFIX_PATH="$prefix" \
        >"$work/$1.log" 2>&1 && cmake --build "$work/$1" >>"$work/$1.log" 2>&1 || { cat "$work/$1.log"; exit 1; }
}

step "two runs create the same files"
for folder in "$work" "$work/again"; do
    python3 "$source/packaging/make_zip.py" "$build" "$source" orlo "$folder" >/dev/null
    sleep 2 # the unit of times in a zip file
done
for name in orlo.zip orlo-debug.zip; do
    cmp "$work/$name" "$work/again/$name"
    (cd "$work" && cmake -E tar xf $name)
done
prefix=$work/orlo

step "contents"
for name in bin/{afx,drawcore32,orlo}.dll bin/suminfo.exe share/orlo/adapter/drawcore32.dll; do
    [ "$(stat -c %s "$prefix/$name")" -lt 4000000 ] || { echo "$name is not stripped"; exit 1; }
    [ "$(stat -c %s "$prefix/$name.debug")" -gt 10000 ] || { echo "$name.debug contains nothing"; exit 1; }
done
python3 "$here/check_contents.py" "$prefix"
if grep -rlF --include=*.{a,debug,dll,exe} "$source/" "$prefix"; then
    echo "these contain the folder that they were built in"
    exit 1
fi
diff <(sed 1,2d "$prefix/lib/orlo.def" | sort) <(grep ^Orlo "$source/tests/exports/orlo.exports" | sort)

step "the examples by find_package"
build_project examples "$prefix/share/orlo/examples"
run "$work/examples/page_host.exe"
drive "$work/examples/example_host.exe"
drive "$work/examples/c_host.exe"
drive "$work/examples/c_page.exe"
mkdir "$work/alone" # without DLLs
cp "$work/examples/author.exe" "$source/tests/data/ole/25695--d41532.xls" "$work/alone"
[ "$(cd "$work/alone" && run author.exe 25695--d41532.xls | tr -d '\r')" = Sompop ]

step "a database of its own, from the skeleton, and a host that ships it"
build_project skeleton "$prefix/share/orlo/skeleton"
run "$prefix/bin/hostcheck.exe" "$(for_windows "$work/skeleton/drawcore32.dll")" --allow stubs >"$work/hostcheck.log" ||
    { cat "$work/hostcheck.log"; exit 1; }
mkdir "$work/own-database"
cp "$work/skeleton/drawcore32.dll" "$work/own-database"
build_project own-database "$here/own_database"
cmp "$work/skeleton/drawcore32.dll" "$work/own-database/drawcore32.dll" # not replaced by the reference database
run "$work/own-database/own_database.exe"

step "the command lines of the first page, in C++, C and Rust"
cat >"$prefix/host.cpp" <<'TEXT'
#include <orlo.h>
#include "orlo/host/application.h"
int main() { return PropPageInit() && AppGetCurrentApp() == nullptr; }
TEXT
rustc=$(sed -n 's/^ORLO_RUSTC:FILEPATH=\(\/.*\)/\1/p' "$build/CMakeCache.txt")
while read -r program arguments; do
    case $program in
        g++) program=$compiler ;;
        gcc) program=${compiler/g++/gcc} ;;
        rustc) [ -n "$rustc" ] || continue; program="$rustc -C linker=${compiler/g++/gcc}" ;;
    esac
    # shellcheck disable=SC2086 # words
    (cd "$prefix" && $program $arguments)
    [[ $arguments == *host.cpp* && $arguments != *example_host.cpp* ]] || drive "$prefix/bin/host.exe"
done < <(sed -n 's/^    \(\(g++\|gcc\|rustc\) .*\)/\1/p' "$source/packaging/README.md")

step "the flags of pkg-config"
export PKG_CONFIG_LIBDIR=$prefix/lib/pkgconfig
# shellcheck disable=SC2046
"$compiler" -std=c++17 -municode -o "$prefix/bin/bare_host.exe" "$prefix/share/orlo/examples/example_host.cpp" \
    $(pkg-config --define-prefix --cflags --libs orlo-drawcore32)
drive "$prefix/bin/bare_host.exe"
# shellcheck disable=SC2046
"$compiler" -std=c++17 -o "$work/own-database/bare_host.exe" "$here/own_database/own_database.cpp" \
    -I "$prefix/share/orlo/skeleton" $(pkg-config --define-prefix --cflags --libs orlo)
run "$work/own-database/bare_host.exe"

if command -v clang-14 lld-link-14 llvm-dlltool-14 >/dev/null; then
    step "a host of another compiler"
    build_project other "$here/other_compiler" "$here/other_compiler/clang_msvc.cmake"
    run "$work/other/adapter_host.exe"
    ! cmake -S "$here/other_compiler" -B "$work/refused" -G Ninja -DCOMPONENTS="orlo" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_TOOLCHAIN_FILE="$here/other_compiler/clang_msvc.cmake" >"$work/refused.log" 2>&1
    grep -q "orlo::orlo requires MinGW-w64" "$work/refused.log" || { cat "$work/refused.log"; exit 1; }
fi

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
