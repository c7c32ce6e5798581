# ./run test [--bits 32|64] [REGEX]
# Builds everything and runs the tests, or those whose name matches: code without windows natively under the sanitizers,
# then everything as Windows programs under one Wine server and one X server. --bits 32: only the Windows programs, for
# 32 bits.

native=yes
targets=(all all_verify_interface_header_sets)   # the second target compiles each public header separately
if [ "${1-}" = --bits ]; then
    case ${2-} in
        64) ;;
        32) preset=i686 bin=build/bin32 native=no targets=(all) ;;
        *) die "test: --bits must be 32 or 64" ;;
    esac
    shift 2
fi

selection=()
if [ $# -gt 0 ]; then selection=(-R "$1"); fi
failed=0
durations=()

# Runs a part of the test run and records how long it took.
timed() { # NAME COMMAND...
    local name=$1 begin=$SECONDS; shift
    "$@"
    durations+=("$((SECONDS - begin)) s  $name")
}

run_tests() { # FOLDER OPTIONS...
    ctest --test-dir "$@" --output-on-failure "${selection[@]}" || failed=1
}

# Windows of two programs on one desktop take the focus from each other, so each program has a desktop to itself while
# it runs. ctest hands out the desktops.
run_tests_on_desktops() { # FOLDER
    start_desktops
    run_tests "$1" -j "${#desktops[@]}" --resource-spec-file "$PWD/build/desktops/list.json"
    stop_desktops
}

build_natively() {
    say "building (Linux, with sanitizers)"
    configure sanitize
    cmake --build build/sanitize
}

build_for_windows() { source run.d/build.sh; }

# Lists the slowest tests, as recorded by ctest.
slowest() { # FOLDER
    local costs=$1/Testing/Temporary/CTestCostData.txt
    [ -e "$costs" ] || return 0
    sed '/^---/,$d' "$costs" | sort -k 3 -rn | head -n 5 | awk '{ printf "       %5.1f s  %s\n", $3, $1 }'
}

report() {
    say "where the time went:"
    printf '%8s\n' "${durations[@]}" >&2
    say "slowest tests, on average:"
    slowest "build/$preset" >&2
}

source run.d/desktops.sh
if [ "$preset" = i686 ]; then
    source run.d/wine32.sh
    require_32_bit_kernel
fi
timed "build for Windows" build_for_windows
if [ $native = yes ]; then
    timed "build for Linux" build_natively
    timed "tests on Linux" run_tests build/sanitize -j 2
else
    use_wine32
fi
timed "tests on Windows" run_tests_on_desktops "build/$preset"
report
if [ $failed -ne 0 ]; then die "tests failed"; fi
