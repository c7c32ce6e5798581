#!/usr/bin/env bash
# Native-only features of the program: names of arbitrary bytes, pipes and devices in a folder, permissions, and
# delegation to the Windows program without changes.
#   here.sh SUMINFO DOCUMENTS STREAMS FOLDER
set -euo pipefail
here=$(dirname "$(realpath "$0")")
program=$1 document=$2/test11--695187.doc picture=$2/v5-Connection-Types--c289c5.vsd folder=$4
stream=$3/fn-et--SummaryInformation--b68908.bin

fail() { printf '%s\n' "$*"; exit 1; }
expect() { [ "$2" = "$3" ] || fail "$(printf '%s is\n%s\nand not\n%s' "$1" "$2" "$3")"; }
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

expect "a folder's result" "$(ended suminfo check -r some)" 1 # irregular
expect "its documents" "$(cut -d: -f1 out | uniq)" \
    "$(printf '%s\n' 'some/inner/a?mark.doc' some/inner/again.doc 'some/inner/latin\xe9.doc' 'some/inner/two\nlines.doc')"
expect "what can't be opened" "$(cat err)" "suminfo: some/dangling.doc: the system can't open a file of this name"
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
expect "a full disk" "$(suminfo show "$document" 2>&1 >/dev/full || echo $?)" $'suminfo: the output can\'t be written\n1'

# The script replaces a file and keeps its permissions, and replaces nothing else.
echo old >script.rc
chmod 640 script.rc
suminfo rc --stream "$stream" script.rc
expect "permissions" "$(stat -c %a script.rc)" 640
grep -q RCDATA script.rc || fail "no script"
mkdir taken
targets=(taken)
if mknod device c 1 7 2>/dev/null; then targets+=(device); fi # its own device file, so that a fault does not replace
                                                              # one of the system
for target in "${targets[@]}"; do
    expect "$target" "$(ended suminfo rc --stream "$stream" $target; cat err)" \
        "$(printf "1\nsuminfo: $target: it is not a regular file and cannot be replaced")"
done
if [ ${#targets[@]} = 2 ]; then
    [ -c device ] || fail "the device is gone"
    rm device
fi
expect "beside it" "$(ls)" $'err\nnames\nout\nscript.rc\nsome\nstatus\ntaken'

# Three says that it is work for the other program.
expect "a metafile" "$(ended suminfo thumbnail "$picture" picture.png; cat out err)" 3
[ ! -e picture.png ] || fail "a picture was made"
