#!/usr/bin/env bash
# Compares the DLLs that a program needs with a list: check_imports.sh OBJDUMP PROGRAM LIST
set -euo pipefail
objdump=$1 program=$2 list=$3

"$objdump" -p "$program" | sed -n 's/.*DLL Name: //p' | tr '[:upper:]' '[:lower:]' | LC_ALL=C sort -u |
    diff "$list" - || { echo "the DLLs above differ from $(basename "$list")"; exit 1; }
