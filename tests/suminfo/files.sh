#!/usr/bin/env bash
# Tests suminfo with links, permissions and a full disk. files.sh "COMMAND" DOCUMENTS FOLDER
# Exits with 77 if it cannot mount a disk.
set -euo pipefail
program=$1 document=$2/input-bw-one-band--340370.fpx folder=$3

# shellcheck disable=SC2086 # splits the command into words
suminfo() { timeout -k 5 60 $program "$@"; }
fail() { printf '%s\n' "$*"; exit 1; }
only_file() { [ "$(ls -A "$(dirname "$1")")" = "$(basename "$1")" ] || fail "$2: the folder contains $(ls -A "$(dirname "$1")")"; }
edit() { suminfo set "$1" "title=$(printf 't%.0s' {1..9000})" --custom New=int:1; }

umount "$folder/disk" 2>/dev/null || true
rm -rf "$folder"
mkdir -p "$folder"/{disk,inner,outer}
cd "$folder"

# Replaces the file that a link refers to, and keeps it unreadable for others (Wine does not support groups).
install -m 600 "$document" inner/plan.fpx
ln -s ../inner/plan.fpx outer/link.fpx
edit outer/link.fpx
[ -L outer/link.fpx ] || fail "the link has become a file"
cmp -s "$document" inner/plan.fpx && fail "the target of the link has not changed"
[ $((0$(stat -c %a inner/plan.fpx) & 07)) = 0 ] || fail "permissions are $(stat -c %a inner/plan.fpx) now"
only_file inner/plan.fpx "a link"

[ "$(id -u)" = 0 ] || exit 77
pages=$((($(stat -c %s "$document") + 4095) / 4096))
mount -t tmpfs -o "size=$((4 * pages))k" tmpfs disk || exit 77
trap 'umount "$folder/disk"' EXIT
install -m 644 "$document" disk/plan.fpx
failed=0
while ! message=$(edit disk/plan.fpx 2>&1); do
    cmp "$document" disk/plan.fpx
    only_file disk/plan.fpx "$pages pages"
    grep -q 'plan.fpx: .*the disk is full' <<<"$message" || fail "$pages pages: $message"
    failed=$((failed + 1)) pages=$((pages + 1))
    [ $failed -lt 40 ] || fail "the disk never has enough space"
    mount -o "remount,size=$((4 * pages))k" disk
done
cmp inner/plan.fpx disk/plan.fpx
only_file disk/plan.fpx "done"
[ $failed -gt 9 ] || fail "only $failed sizes were too small"

# If the disk is full, no partial script remains.
head -c 1000000 /dev/zero >disk/rest 2>/dev/null || true
message=$(suminfo rc "$document" disk/out.rc 2>&1) && fail "a script was written to a full disk"
grep -q 'out.rc: .*the disk is full' <<<"$message" || fail "$message"
rm disk/rest
only_file disk/plan.fpx "a script on a full disk"
echo "failed with $failed disk sizes, then succeeded"
