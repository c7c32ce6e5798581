#!/usr/bin/env bash
# Edits real documents with suminfo and reads them with other programs: gsf and olefile, which ./run setup installs.
#   independent_readers.sh SUMINFO DOCUMENTS FOLDER
set -euo pipefail
program=$1 documents=$2 folder=$3

suminfo() { timeout -k 5 60 wine "$program" "$@"; }
expect() { # READER OUTPUT TEXT...
    local text
    for text in "${@:3}"; do
        grep -qF -- "$text" <<<"$2" || { printf '%s does not say "%s":\n%s\n' "$1" "$text" "$2"; exit 1; }
    done
}

rm -rf "$folder"
mkdir -p "$folder"
cp "$documents/test11--695187.doc" "$folder/plan.doc"          # texts in UTF-16
cp "$documents/sent--da96eb.msg" "$folder/mail.msg"            # no property sets
cp "$documents/Bug48075--a2ceba.doc" "$folder/russian.doc"     # texts in code page 1251
cp "$documents/testEXCEL-custom-props--fff0cb.xls" "$folder/custom.xls"
cd "$folder"
chmod u+w ./*
for file in plan.doc mail.msg; do
    suminfo set $file title="Plan B" pages=12 saved=2001-02-03T04:05:06Z company="Café & Co" \
        --custom Client=text:ACME --custom Sheets=int:-12 --custom Done=bool:yes --custom Due=date:2001-02-03
done
suminfo remove plan.doc author
suminfo set russian.doc company=Завод title=План
suminfo set custom.xls title=工場 --custom 名前=text:値

said() { # shellcheck disable=SC2046 # the names are words
    printf '%b' "$(gsf props "$1" $(gsf listprops "$1"))"
}
for file in plan.doc mail.msg; do
    expect gsf "$(said $file)" $'dc:title: \t= "Plan B"' $'gsf:page-count: \t= 12' \
        $'dc:date: \t= 2001-02-03T04:05:06Z' $'dc:publisher: \t= "Café & Co"' $'Client: \t= "ACME"' \
        $'Sheets: \t= -12' $'Done: \t= TRUE' $'Due: \t= 2001-02-03T00:00:00Z'
done
if grep -q dc:creator <<<"$(said plan.doc)"; then echo "the author was removed"; exit 1; fi
expect gsf "$(said russian.doc)" $'dc:publisher: \t= "Завод"' $'dc:title: \t= "План"' $'dc:creator: \t= "Lebedev"'
expect gsf "$(said custom.xls)" $'dc:title: \t= "工場"' $'名前: \t= "値"' $'MyCustomString: \t= "MyStringValue"'

said=$(/usr/bin/python3 - plan.doc mail.msg russian.doc custom.xls <<'PYTHON'
import sys, olefile
for file in sys.argv[1:]:
    ole = olefile.OleFileIO(file)
    for stream in ["SummaryInformation", "DocumentSummaryInformation"]:
        for number, value in sorted(ole.getproperties("\x05" + stream).items()):
            print(file, stream, number, repr(value))
PYTHON
)
expect olefile "$said" "plan.doc SummaryInformation 2 'Plan B\\x00'" "mail.msg SummaryInformation 2 b'Plan B'" \
    "mail.msg SummaryInformation 13 12625646706" "mail.msg SummaryInformation 14 12" \
    "plan.doc DocumentSummaryInformation 15 'Café & Co\\x00'" "russian.doc SummaryInformation 2 b'\\xcf\\xeb\\xe0\\xed'" \
    "custom.xls SummaryInformation 2 b'\\xe5\\xb7\\xa5\\xe5\\xa0\\xb4'" \
    "custom.xls SummaryInformation 18 b'Microsoft Excel'"

echo "both readers agree"
