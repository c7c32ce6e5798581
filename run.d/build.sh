# Builds for Windows, for 64 bits into build/bin unless a word has chosen otherwise.

source run.d/setup.sh
say "building ($preset Windows)"
configure "$preset"
if [ "$word" = build ]; then targets=("$@"); fi   # other words may set targets before; none: everything
cmake --build "build/$preset" ${targets[0]:+--target "${targets[@]}"}
