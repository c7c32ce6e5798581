# Builds for 64-bit Windows into build/bin.

source run.d/setup.sh
mkdir -p build
say "building (64-bit Windows)"
cmake --preset x86_64 >build/configure.log 2>&1 || { cat build/configure.log; exit 1; }
if [ "$word" = build ]; then targets=("$@"); fi   # other words may set targets before; none: everything
cmake --build build/x86_64 ${targets[0]:+--target "${targets[@]}"}
