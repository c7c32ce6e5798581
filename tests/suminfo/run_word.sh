#!/usr/bin/env bash
# ./run suminfo: paths relative to the caller's folder, arguments from standard input, and delegation to the Windows
# program.
#   run_word.sh SOURCE WINDOWS NATIVE DOCUMENTS FOLDER
# Exits with 77 if the native program, which ./run test builds first, does not exist.
set -euo pipefail
source=$1 windows=$2 native=$3 documents=$4 folder=$5
[ -x "$native" ] || exit 77

fail() { printf '%.500s\n' "$*"; exit 1; }
rm -rf "$folder"
mkdir -p "$folder"/clone/build/{bin,native/tools/suminfo} "$folder/work"
cp -r "$source/run" "$source/run.d" "$folder/clone"
cp "$native" "$folder/clone/build/native/tools/suminfo"
cp "$windows" "$folder/clone/build/bin"
export ORLO_WINEPREFIX=$WINEPREFIX
cd "$folder/work"
cp "$documents"/{test11--695187.doc,v5-Connection-Types--c289c5.vsd} .
chmod u+w ./*
suminfo() { timeout -k 5 60 ../clone/run suminfo "$@" 2>err; }
expect_title() {
    [ ! -s err ] || fail "$(cat err)"
    suminfo show test11--695187.doc >shown || fail "it cannot be shown"
    grep -q "^    title  *$1\$" shown || fail "the title is not $1: $(grep title shown)"
}

suminfo set test11--695187.doc title=One
expect_title One
printf 'set\0test11--695187.doc\0title=Two\0' | suminfo @-
expect_title Two
printf 'title=Three\0' | suminfo set test11--695187.doc @-
expect_title Three
long=$(printf 'long%.0s' {1..10000}) # longer than a Windows command line
suminfo set test11--695187.doc "title=$long"
expect_title "$long"
status=0
printf 'check\0%s\0' "$documents/test11--695187.doc" | suminfo @- >checked || status=$?
[ $status -eq 1 ] && grep -q irregular checked || fail "$(cat checked)"

suminfo thumbnail v5-Connection-Types--c289c5.vsd picture.png || fail "$(cat err)"
[ "$(head -c 4 picture.png | tail -c 3)" = PNG ] || fail "no picture"
status=0
suminfo set test11--695187.doc color=red || status=$?
[ $status -eq 2 ] || fail "a wrong line ends with $status"
