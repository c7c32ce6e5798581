# Runs dxfprops on this machine, where the caller stands. Builds it first when something is newer. No display is needed.

program=$PWD/build/native/tools/dxfprops/dxfprops
if [ ! -e "$program" ] || [ -n "$(find drawcore tools/dxfprops cmake native CMakeLists.txt -newer "$program" -type f -print -quit)" ]; then
    ( set --; source run.d/setup.sh; configure native; cmake --build build/native --target dxfprops ) >&2
    touch "$program"
fi
cd "$ORLO_CALLER_DIR"   # file names stay as they were given
exec "$program" "$@"
