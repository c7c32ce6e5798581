#!/usr/bin/env bash
# Compares the native program with the Windows program: output, exit codes and files must be identical.
#   both_programs.sh WINDOWS NATIVE DOCUMENTS STREAMS FOLDER
# Uses real documents and streams, damaged ones, and texts in every code page; also the folder named by ORLO_CORPUS.
# Exits with 77 if the native program, which ./run test builds first, does not exist.
set -euo pipefail
windows=$1 native=$2 documents=$3 streams=$4 folder=$5
here=$(dirname "$(realpath "$0")")
[ -x "$native" ] || exit 77
needs_windows=3

fail() { printf '%.300s\n' "$*"; exit 1; }
run_into() { # NAME PROGRAM...: including the output file, if any
    local name=$1 status=0
    shift
    timeout -k 5 120 "$@" >"$name.stdout" 2>"$name.stderr" <"$input" || status=$?
    echo $status >"$name.status"
    if [ -e out ]; then mv out "$name.file"; else rm -f "$name.file"; fi
}
differ() { ! cmp -s "$1" "$2"; }
compare() { # ARGUMENTS...
    rm -f out
    run_into native "$native" "$@"
    if [ "$(cat native.status)" = $needs_windows ]; then
        [ "$1" = thumbnail ] || fail "$*: requires the Windows program"
        [ ! -s native.stdout ] && [ ! -s native.stderr ] && [ ! -e native.file ] || fail "$*: requires the Windows program, but has output"
        left=$((left + 1))
        return
    fi
    run_into windows wine "$windows" "$@"
    for part in status stdout stderr file; do
        if [ -e native.$part ] || [ -e windows.$part ]; then
            if differ windows.$part native.$part; then
                diff -a windows.$part native.$part | cut -c -300 | head -n 6 || true
                head -c 300 windows.stderr native.stderr # a status does not say why
                fail "$*: $part differs"
            fi
        fi
    done
    same=$((same + 1))
    if [ -e native.file ]; then files=$((files + 1)); fi
}
compare_many() { # ARGUMENTS... -- FILES...: more files than fit on a Windows command line
    local arguments=()
    while [ "$1" != -- ]; do arguments+=("$1"); shift; done
    shift
    printf '%s\0' "$@" >names
    input=names
    compare "${arguments[@]}" @-
    input=/dev/null
}

rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
same=0 left=0 files=0 input=/dev/null
cp -r "$documents" documents
cp -r "$streams" streams
chmod -R u+w documents streams
/usr/bin/python3 "$here/damage.py" documents damaged-documents
/usr/bin/python3 "$here/damage.py" streams damaged-streams
/usr/bin/python3 "$here/code_pages.py" texts

for what in show check "show --json"; do # shellcheck disable=SC2086 # words
    compare $what -r documents
    compare $what -r damaged-documents
    for kind in streams damaged-streams texts; do compare_many $what --stream -- $kind/*; done
    if [ -n "${ORLO_CORPUS-}" ]; then compare $what -r "$ORLO_CORPUS"; fi
done
for file in documents/*-* missing.doc; do
    for what in rc thumbnail "thumbnail --size 60x50"; do compare $what "$file" out; done
done
every() { # NUMBER FILES...: selects every NUMBERth file, since each start of the Windows program takes time
    local step=$1 i
    shift
    for ((i = 1; i <= $#; i += step)); do printf '%s\n' "${!i}"; done
}
for file in $(every 2 streams/*.bin texts/name*); do compare rc --stream "$file" out; done
for file in streams/CameraRollAnim*.bin streams/mut-5*.bin; do compare thumbnail --stream "$file" out; done

input=documents/test11--695187.doc
compare set - "title=Grüße" -o out
compare remove - title
input=/dev/null

# Documents that both programs edit are identical.
edit() { # ARGUMENTS... with "out" for the document
    local name
    for name in native windows; do
        cp "$original" out
        if [ $name = native ]; then run_into native "$native" "$@"; else run_into windows wine "$windows" "$@"; fi
    done
    for part in status stdout stderr file; do
        if differ windows.$part native.$part; then fail "$* of $original: $part differs: $(cat native.stderr windows.stderr)"; fi
    done
    edited=$((edited + 1))
}
edited=0
for original in documents/*-* documents/expected.json; do
    edit set out "title=Plan Ж" --custom "名前=int:1"
    edit remove out title author
    edit copy documents/testEXCEL-custom-props--fff0cb.xls out
done

document=documents/test11--695187.doc
echo "not a compound file" >text.doc
mkdir empty
compare show text.doc missing.doc nowhere/missing.doc . empty $document
compare check -r empty nowhere
compare show --stream missing.bin .
compare rc $document nowhere/out
compare rc $document empty
compare thumbnail $document out --size 9000x1
for line in "" "--help" "--version" "set --help" "shov x" "show" "set x color=red" "set x ſubject=red" "set x --custom A=int:12x" "thumbnail x" \
            "thumbnail x y --size 0x9"; do # shellcheck disable=SC2086 # words
    compare $line
done
[ $left -ge 3 ] && [ $files -ge 20 ] || fail "only $left pictures required the Windows program, and $files files were written"
echo "$same identical results, $files files, $edited edits, $left pictures that require the Windows program"
