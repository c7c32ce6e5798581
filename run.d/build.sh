# ./run build [TARGET...]
# Builds everything, or the named targets, for 64-bit Windows into build/bin.

# Other commands source this file after setting targets and preset; without targets everything is built.

source run.d/setup.sh
say "building ($preset Windows)"
configure "$preset"
if [ "$command" = build ]; then targets=("$@"); fi
cmake --build "build/$preset" ${targets[0]:+--target "${targets[@]}"}
