#!/bin/bash
# Runs a Windows program, on the desktop that ctest chose for the test, with its output redirected to a file: services
# that Wine may start would keep a pipe open, and its reader would wait for them.
desktop=${CTEST_RESOURCE_GROUP_0_DESKTOPS-} # "id:NUMBER,slots:1"
desktop=${desktop#id:}
if [ -n "$desktop" ]; then source "${BASH_SOURCE[0]%/*}/../build/desktops/${desktop%%,*}"; fi

log=$(mktemp)
status=0
wine "$@" >"$log" 2>&1 </dev/null || status=$?
cat "$log"
rm "$log"
exit $status
