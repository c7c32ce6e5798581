#!/bin/bash
# Runs a Windows program with its output by way of a file: what Wine may start beside it (services) would hold a pipe
# open, and whoever reads from it would wait for them.
log=$(mktemp)
status=0
wine "$@" >"$log" 2>&1 </dev/null || status=$?
cat "$log"
rm "$log"
exit $status
