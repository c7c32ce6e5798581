# Builds everything and runs the tests: the window-free code on this machine under the sanitizers, then everything as
# Windows programs under one Wine server and one X server. --bits 32: the Windows programs alone, of 32 bits.

native=yes
if [ "${1-}" = --bits ]; then
    case ${2-} in
        64) ;;
        32) preset=i686 bin=build/bin32 native=no ;;
        *) die "test --bits takes 32 or 64" ;;
    esac
    shift 2
fi

failed=0
test_natively() {
    say "building (this machine, with sanitizers)"
    configure sanitize
    cmake --build build/sanitize
    ctest --test-dir build/sanitize --output-on-failure -j 2 ${1:+-R "$1"} || failed=1
}

source run.d/build.sh
if [ $native = yes ]; then test_natively "$@"; else source run.d/wine32.sh; fi
wine_session own
ctest --test-dir "build/$preset" --output-on-failure -j 2 ${1:+-R "$1"} || failed=1
if [ $failed -ne 0 ]; then die "tests failed"; fi
