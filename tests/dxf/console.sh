#!/usr/bin/env bash
# Tests that dxfprops.exe prints the characters of a drawing on a console, where UTF-8 would appear in its code page.
#   console.sh PROGRAM FOLDER
set -euo pipefail
program=$1 folder=$2
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
printf '0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n1F\n8\n%s\n10\n0\n20\n0\n11\n1\n21\n1\n0\nENDSEC\n0\nEOF\n' \
    "Wände日" >drawing.dxf
TERM=xterm script -qec "wine $program get drawing.dxf --show Layer" screen >/dev/null </dev/null
grep -q 'Layer="Wände日"' screen || { cat -v screen; exit 1; }
