# Builds everything and runs the tests under one Wine server and one X server.

source run.d/build.sh
wine_session own
ctest --test-dir build/x86_64 --output-on-failure -j 2 ${1:+-R "$1"}
