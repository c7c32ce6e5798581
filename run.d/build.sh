# Builds for 64-bit Windows into build/bin.

source run.d/setup.sh
say "building (64-bit Windows)"
configure x86_64
if [ "$word" = build ]; then targets=("$@"); fi   # other words may set targets before; none: everything
cmake --build build/x86_64 ${targets[0]:+--target "${targets[@]}"}
