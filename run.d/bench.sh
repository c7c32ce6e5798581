# ./run bench [NAME...]
# Builds the benchmarks and prints one line "name value unit" for each, or for those named. Each value is a ratio
# against a baseline that is measured in the same run.

targets=(bench_sheet bench_drawing bench_propset_system keeper)
source run.d/build.sh
packages="libgsf-1-dev pkg-config" # the baseline of the native property sets
setup
say "building (Linux)"
configure native
cmake --build build/native --target bench_propset

build/native/bench/bench_propset "$@"
wine_session own
for program in bench_propset_system bench_drawing bench_sheet; do
    wine "build/bin/$program.exe" "$@" | tr -d '\r'
done
