#!/usr/bin/env bash
# Compares what a DLL exports with a list, and each name of the list with the public headers.
#   check_exports.sh OBJDUMP DLL LIST HEADER_FOLDER
# After a deliberate change of the interface: check_exports.sh OBJDUMP DLL LIST HEADER_FOLDER --update
set -euo pipefail
objdump=$1 dll=$2 list=$3 headers=$4

exports() { "$objdump" -p "$dll" | sed -n '/Ordinal\/Name/,/^$/p' | awk '/\[ *[0-9]+\]/{print $NF}' | c++filt | LC_ALL=C sort -u; }

if [ "${5-}" = --update ]; then exports >"$list"; exit; fi
exports | diff "$list" - || { echo "the exports above differ from $(basename "$list")"; exit 1; }

# A function, or the class of a member, stands in a header that carries the export macro.
sed -E 's/^(typeinfo|vtable) for //; s/\[abi:cxx11\]//; s/\(.*//; s/^orlo:://; s/::.*//' "$list" | LC_ALL=C sort -u |
while read -r name; do
    grep -rqwE --include='*.h' "$name" "$headers" || { echo "$name is exported and in no header"; exit 1; }
done
