# Runs the Linux build of dxfprops in the caller's folder, after rebuilding it if a source is newer. Needs no display.

program=$PWD/build/native/tools/dxfprops/dxfprops
if [ ! -e "$program" ] || [ -n "$(find drawcore files codepages tools/cli tools/dxfprops cmake native CMakeLists.txt -newer "$program" -type f -print -quit)" ]; then
    ( set --; source run.d/setup.sh; configure native; cmake --build build/native --target dxfprops ) >&2
    touch "$program"
fi
cd "$ORLO_CALLER_DIR"   # file names are relative to it
exec "$program" "$@"
