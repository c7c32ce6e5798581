#!/bin/bash
# Runs a Windows program with its output redirected to a file. Services that Wine may start would keep a pipe open, and
# its reader would wait for them.
log=$(mktemp)
status=0
wine "$@" >"$log" 2>&1 </dev/null || status=$?
cat "$log"
rm "$log"
exit $status
