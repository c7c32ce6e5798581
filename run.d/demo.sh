# Shows the demo, or lists what drawings hold (--list: JSON on stdout, all else on stderr; no display needed).

if [ "${1-}" != --list ]; then
    die "the viewer is not there yet; ./run demo --list FILE... lists drawings"
fi
shift
[ $# -gt 0 ] || { echo "usage: ./run demo --list FILE.dxf..." >&2; exit 2; }
targets=(demo)
source run.d/build.sh >&2
wine_prefix >&2
program=$PWD/build/bin/demo.exe
cd "$ORLO_CALLER_DIR"   # file names stay as they were given
status=0
LC_ALL=C.UTF-8 wine "$program" --list "$@" || status=$?
exit $status
