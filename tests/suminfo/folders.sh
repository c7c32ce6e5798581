#!/usr/bin/env bash
# Contents of a folder that a Windows folder cannot have: links to itself, and names that Windows cannot open. Also a
# pipe whose reader ends.
#   folders.sh SUMINFO DOCUMENT FOLDER
set -euo pipefail
program=$1 document=$2 folder=$3

rm -rf "$folder"
mkdir -p "$folder/inner"
cd "$folder"
cp "$document" inner/plan.doc
chmod u+w inner/plan.doc
cp inner/plan.doc 'a:colon.doc'
cp inner/plan.doc 'a?mark.doc'
ln -s .. inner/up
ln -s "$folder" itself
ln -s inner/plan.doc again.doc

status=0
shown=$(timeout -k 5 60 wine "$program" show -r . 2>errors) || status=$?
[ $status -eq 1 ] || { echo "ended with $status"; exit 1; }
[ "$(grep '\.doc$' <<<"$shown")" = $'./a:colon.doc\n./again.doc' ] || { printf 'not each once:\n%s\n' "$shown"; exit 1; }
[ "$(cat errors)" = "suminfo: ./a?mark.doc: the system cannot open a file with this name" ] || { cat errors; exit 1; }

# The reader ends after the first line, so that the missing file at the end is never opened.
for ((i = 0; i < 2000; i++)); do echo -ne 'inner/plan.doc\0'; done >names
echo -ne 'missing.doc\0' >>names
timeout -k 5 60 wine "$program" show @- <names 2>errors | head -n 1 >first || true
[ "$(cat first)" = inner/plan.doc ] || { cat first; exit 1; }
[ ! -s errors ] || { cat errors; exit 1; }
