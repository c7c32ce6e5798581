#!/usr/bin/env bash
# Compares the exports of a DLL with a list; tests/structure compares the list with the public headers.
#   check_exports.sh OBJDUMP DLL LIST
# After an intended change of the interface: check_exports.sh OBJDUMP DLL LIST --update
set -euo pipefail
objdump=$1 dll=$2 list=$3

exports() { "$objdump" -p "$dll" | sed -n '/Ordinal\/Name/,/^$/p' | awk '/\[ *[0-9]+\]/{print $NF}' | c++filt | LC_ALL=C sort -u; }

if [ "${4-}" = --update ]; then exports >"$list"; exit; fi
exports | diff "$list" - || { echo "the exports above differ from $(basename "$list")"; exit 1; }
