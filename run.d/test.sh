# Builds everything and runs the tests: the window-free code on this machine under the sanitizers, then everything as
# Windows programs under one Wine server and one X server.

source run.d/build.sh
say "building (this machine, with sanitizers)"
configure sanitize
cmake --build build/sanitize
failed=0
ctest --test-dir build/sanitize --output-on-failure -j 2 ${1:+-R "$1"} || failed=1
wine_session own
ctest --test-dir build/x86_64 --output-on-failure -j 2 ${1:+-R "$1"} || failed=1
if [ $failed -ne 0 ]; then die "tests failed"; fi
