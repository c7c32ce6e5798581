#!/usr/bin/env bash
# Tests of the Linux program: names of arbitrary bytes, pipes and devices in a folder, permissions, several documents,
# standard streams, machine-readable output. here.sh SUMINFO DOCUMENTS STREAMS FOLDER
set -euo pipefail
here=$(dirname "$(realpath "$0")")
program=$1 document=$2/test11--695187.doc picture=$2/v5-Connection-Types--c289c5.vsd folder=$4
stream=$3/fn-et--SummaryInformation--b68908.bin

fail() { printf '%s\n' "$*"; exit 1; }
expect() { [ "$2" = "$3" ] || fail "$(printf '%s: got\n%s\nexpected\n%s' "$1" "$2" "$3")"; }
suminfo() { timeout -k 5 30 "$program" "$@"; }
ended() { local status=0; "$@" >out 2>err || status=$?; echo $status; }

rm -rf "$folder"
mkdir -p "$folder/some/inner"
cd "$folder"
for name in plan.doc 'a?mark.doc' $'latin\xE9.doc' $'two\nlines.doc'; do
    cp "$document" "some/inner/$name"
    chmod u+w "some/inner/$name"
done
mkfifo some/pipe.doc
ln -s /dev/zero some/zero.doc
ln -s nothing some/dangling.doc
ln -s . some/itself
ln -s plan.doc some/inner/again.doc

expect "the exit code for a folder" "$(ended suminfo check -r some)" 1 # irregular
expect "the documents of a folder" "$(cut -d: -f1 out | uniq)" \
    "$(printf '%s\n' 'some/inner/a?mark.doc' some/inner/again.doc 'some/inner/latin\xe9.doc' 'some/inner/two\nlines.doc')"
expect "a dangling link" "$(cat err)" "suminfo: some/dangling.doc: the system cannot open a file with this name"
expect "a pipe" "$(ended suminfo show some/pipe.doc; cat err)" $'1\nsuminfo: some/pipe.doc: not a compound file'

# Half a surrogate pair in the name of a stream.
LC_ALL=C sed 's/\x05\x00S\x00u/\x05\x00\x00\xd8u/' some/inner/plan.doc >half.doc
expect "half a character" "$(ended suminfo check half.doc; grep -c '^half.doc: \\005�ummaryInformation: ' out)" $'1\n1'
rm half.doc

# Times according to another calendar implementation.
PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 "$here/moments.py" moments moments.txt
suminfo show --stream moments | sed -n 's/^    property [0-9]*  *//p' >out
diff out moments.txt | head -n 5
cmp -s out moments.txt || fail "moments differ"
rm moments moments.txt

# A reader that ends early, and a full disk.
for ((i = 0; i < 2000; i++)); do echo -ne 'some/inner/plan.doc\0'; done >names
echo -ne 'missing.doc\0' >>names
{ suminfo show @- <names 2>err || echo $? >status; } | head -n 1 >out
expect "the first line" "$(cat out status err)" $'some/inner/plan.doc\n1'
expect "a full disk" "$(suminfo show "$document" 2>&1 >/dev/full || echo $?)" $'suminfo: cannot write the output\n1'

# The script replaces a file and keeps its permissions; other targets are rejected.
echo old >script.rc
chmod 640 script.rc
suminfo rc --stream "$stream" script.rc
expect "permissions" "$(stat -c %a script.rc)" 640
grep -q RCDATA script.rc || fail "the file does not contain a script"
mkdir taken
targets=(taken)
if mknod device c 1 7 2>/dev/null; then targets+=(device); fi # its own device file, so that a fault does not replace
                                                              # one of the system
for target in "${targets[@]}"; do
    expect "$target" "$(ended suminfo rc --stream "$stream" $target; cat err)" \
        "$(printf "1\nsuminfo: $target: not a regular file; it cannot be replaced")"
done
if [ ${#targets[@]} = 2 ]; then
    [ -c device ] || fail "the device is gone"
    rm device
fi
expect "the files in the folder" "$(ls)" $'err\nnames\nout\nscript.rc\nsome\nstatus\ntaken'

# Exit code 3 means that the Windows program is required.
expect "a metafile" "$(ended suminfo thumbnail "$picture" picture.png; cat out err)" 3
[ ! -e picture.png ] || fail "a picture was written"

# Several documents, by name, from a list and in folders; one that fails does not stop the others.
cp some/inner/plan.doc one.doc
cp some/inner/plan.doc two.doc
expect "several documents" "$(ended suminfo set title=Several one.doc missing.doc two.doc; cat err)" \
    $'1\nsuminfo: missing.doc: the file cannot be opened: no such file'
expect "the titles of several documents" "$(suminfo get one.doc title; suminfo get two.doc TITLE)" $'Several\nSeveral'
printf 'one.doc\r\n\ntwo.doc\n' >list
suminfo set @list --custom "Client=text:A, B"
expect "a custom property" "$(suminfo get two.doc --custom client)" "A, B"
suminfo copy one.doc some/inner/plan.doc two.doc
suminfo remove -r some/inner/plan.doc two.doc title --custom Client
expect "a missing title" "$(ended suminfo get two.doc title; cat out err)" $'1\nsuminfo: two.doc: the document has no title'
expect "a missing list" "$(ended suminfo show @nowhere; cat err)" \
    $'2\nsuminfo: cannot read the list of arguments: @nowhere: the file cannot be opened: no such file'
expect "a folder as a list" "$(ended suminfo show @some; cat err)" \
    $'2\nsuminfo: cannot read the list of arguments: @some: is a folder'
printf '\xEF\xBB\xBFone.doc\r\ntwo.doc' >list # as editors on Windows save it
expect "a list with a byte order mark" "$(ended suminfo show @list; grep -c '\.doc$' out; cat err)" $'0\n2'
printf '\xFF\xFEo\0n\0e\0' >list
expect "a list in UTF-16" "$(ended suminfo show @list; cat err)" \
    $'2\nsuminfo: cannot read the list of arguments: @list: is UTF-16; save it as UTF-8'
expect "a name like a value" "$(ended suminfo set ./a=b.doc title=x; cat err)" \
    $'1\nsuminfo: ./a=b.doc: the file cannot be opened: no such file'

# Standard input and output.
expect "a document from a pipe" "$(cat one.doc | suminfo get - title)" Several
cp one.doc before.doc
expect "a document changed in a pipe" "$(suminfo set - title=Piped <one.doc | suminfo remove - author | suminfo copy - one.doc -o - |
    suminfo get - title)" Piped
suminfo set one.doc title=Named --custom Client=text:B -o named.doc
cp one.doc same.doc
suminfo set same.doc title=Named --custom Client=text:B
cmp named.doc same.doc
suminfo set - title=Named --custom Client=text:B <one.doc | cmp - same.doc
chmod a-w same.doc
expect "a read-only original" "$(ended suminfo set same.doc title=New -o named.doc; suminfo get named.doc title)" $'0\nNew'
expect "a damaged document" "$(head -c 5000 one.doc | ended suminfo set - title=x; cat out err)" \
    $'1\nsuminfo: -: was not changed: the compound file is damaged'
expect "two documents" "$(ended suminfo set one.doc two.doc title=x -o both.doc; cat err)" \
    $'2\nsuminfo: -o: only one document can be edited to another file'
expect "one pipe for two documents" "$(ended suminfo copy - - <one.doc; cat err)" \
    $'2\nsuminfo: TO: standard input can be read only once'
expect "a full disk" "$(suminfo set - title=x <one.doc 2>&1 >/dev/full || echo $?)" \
    $'suminfo: -: the output cannot be written: the disk is full\n1'
expect "a missing folder" "$(ended suminfo set one.doc title=x -o nowhere/new.doc; cat err)" \
    $'1\nsuminfo: nowhere/new.doc: cannot create a file in its folder: no such folder'
cmp one.doc before.doc
expect "an output without a name" "$(ended suminfo set one.doc title=x -o ''; cat err)" \
    $'2\nsuminfo: --output: the value is empty\nRun with --help for more information.'
cmp one.doc before.doc
expect "a size without a value" "$(ended suminfo thumbnail "$picture" none.png --size '')" 2
expect "a script" "$(suminfo rc --stream "$stream" - | grep -c RCDATA)" 1
expect "a full disk" "$(suminfo thumbnail --original "$picture" - 2>&1 >/dev/full || echo $?)" \
    $'suminfo: -: the output cannot be written: the disk is full\n1'

# The stored picture, and file name extensions.
suminfo thumbnail --original "$picture" picture.wmf
expect "a metafile's first bytes" "$(od -An -tx1 -N 4 picture.wmf)" " 01 00 09 00"
expect "an unusual extension" "$(suminfo thumbnail --original "$picture" picture.png 2>&1)" \
    "suminfo: warning: picture.png: the file contains a metafile; the usual extension is .wmf"

# Machine-readable output, also for files that fail.
expect "CSV" "$(ended suminfo show --csv one.doc missing.doc; grep -c '^one.doc,' out; grep -e ^file -e Client -e missing out)" \
    "1
$(suminfo show --json one.doc | grep -o '"vt"' | wc -l)
file,stream,section,property,value,error
one.doc,\\005DocumentSummaryInformation,UserDefinedProperties,Client,\"A, B\",
missing.doc,,,,,the file cannot be opened: no such file"
expect "JSON" "$(ended suminfo show --json missing.doc; cat out)" \
    $'1\n{"file":"missing.doc","error":"the file cannot be opened: no such file"}'

# A manual page without warnings of the formatter, and a completion that bash accepts.
suminfo --man >suminfo.1
if command -v groff >/dev/null; then expect "warnings of groff" "$(groff -man -Tutf8 -ww suminfo.1 2>&1 >page)" ""; fi
suminfo --completion >suminfo.bash
complete_line() { # WORDS...: prints the completions of the last
    bash -c 'source ./suminfo.bash; COMP_WORDS=(suminfo "$@"); COMP_CWORD=$#; _suminfo 2>/dev/null; printf "%s " "${COMPREPLY[@]}"' bash "$@"
}
expect "commands" "$(complete_line sh)" "show "
expect "options" "$(complete_line thumbnail --o)" "--original "
expect "fields" "$(complete_line set one.doc tit)" "title= "
