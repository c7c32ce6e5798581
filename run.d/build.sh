# Builds for 64-bit Windows into build/bin.

source run.d/setup.sh
mkdir -p build
say "building (64-bit Windows)"
cmake --preset x86_64 >build/configure.log 2>&1 || { cat build/configure.log; exit 1; }
if [ "$word" = build ] && [ $# -gt 0 ]; then
    cmake --build build/x86_64 --target "$@"
else
    cmake --build build/x86_64
fi
