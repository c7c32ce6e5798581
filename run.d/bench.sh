# Builds what measures, and prints one line "name value unit" each; names choose the benches, whichever program has them.

targets=(bench_sheet bench_drawing bench_propset_system keeper)
source run.d/build.sh
packages="libgsf-1-dev pkg-config" # what the native property sets are measured against
setup
say "building (this machine)"
configure native
cmake --build build/native --target bench_propset

build/native/bench/bench_propset "$@"
wine_session own
for program in bench_propset_system bench_drawing bench_sheet; do
    wine "build/bin/$program.exe" "$@" | tr -d '\r'
done
