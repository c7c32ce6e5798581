#!/usr/bin/env bash
# Reads the compound file written by the interoperation test with other programs: gsf and olefile, which ./run setup
# installs.
#   independent_readers.sh FILE
set -euo pipefail
file=$1

expect() { # READER TEXT OUTPUT
    grep -qF -- "$2" <<<"$3" || { echo "$1 does not say '$2':"; echo "$3"; exit 1; }
}

names=$(gsf listprops "$file")
# shellcheck disable=SC2086 # the names are words
said=$(gsf props "$file" $names)
expect gsf $'dc:title: \t= "caf\\303\\251"' "$said"
expect gsf $'gsf:last-saved-by: \t= "a\\303\\251"' "$said"
expect gsf $'meta:creation-date: \t= 1970-01-01T00:00:00Z' "$said"
expect gsf $'storey: \t= -2' "$said"

said=$(/usr/bin/python3 - "$file" <<'PYTHON'
import sys, olefile
ole = olefile.OleFileIO(sys.argv[1])
for number, value in sorted(ole.getproperties("\x05SummaryInformation").items()):
    print(number, repr(value))
print("issues", ole.parsing_issues)
PYTHON
)
expect olefile "2 b'caf\\xe9'" "$said"
expect olefile "3 -2" "$said"
expect olefile "4 2147483647" "$said"
expect olefile "6 4294967294" "$said"
expect olefile "12 11644473600" "$said"
expect olefile "20 'F29F85E0-4FF9-1068-AB91-08002B27B3D9'" "$said"
expect olefile "21 b'\\x01\\x02\\x03\\x04\\x05'" "$said"

echo "both readers agree"
