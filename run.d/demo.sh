# The drawing viewer. With a display: opens on it. Without one, or with --tour: plays a tour over the drawing and leaves
# pictures in out/. --check changes something on every page over all of each drawing, takes it back and compares (no display
# needed). --list prints what drawings hold (JSON on stdout, all else on stderr; no display needed).

sample=tests/data/dxf/kabeja-draft4-roof-details.dxf
program=$PWD/build/bin/demo.exe
targets=(demo keeper)

usage() { echo "usage: ./run demo [--tour] [FILE.dxf] | ./run demo --check FILE.dxf... | ./run demo --list FILE.dxf..." >&2; exit 2; }

# A path as the caller means it, for a program that sees the file system as drive Z.
for_windows() { printf 'Z:%s' "$(realpath -m -- "$1")"; }

list_drawings() {
    [ $# -gt 0 ] || usage
    set -- list --json "$@"
    source run.d/dxfprops.sh
}

# Exit code 0: every drawing that can be opened is as it was.
check_drawings() {
    [ $# -gt 0 ] || usage
    local files=() file
    for file in "$@"; do files+=("$(cd "$ORLO_CALLER_DIR" && for_windows "$file")"); done
    set --
    source run.d/build.sh
    wine_session own
    managed N
    local status=0
    wine "$program" --check "${files[@]}" || status=$?
    exit $status
}

# Whether windows belong to the window manager of the display; where there is none they would wait for it.
managed() {
    wine reg add 'HKCU\Software\Wine\AppDefaults\demo.exe\X11 Driver' /v Managed /d "$1" /f >/dev/null
}

play_tour() {
    wine_session own
    managed N
    rm -f out/[0-9][0-9]-*.png
    mkdir -p out
    local status=0
    timeout -k 5 300 wine "$program" --tour "$(for_windows out)" "$1" || status=$?
    say "pictures are in out/"
    return $status
}

open_viewer() {
    wine_session users
    managed Y
    wine "$program" "$1"
}

if [ "${1-}" = --list ]; then shift; list_drawings "$@"; fi
if [ "${1-}" = --check ]; then shift; check_drawings "$@"; fi
show=open_viewer
if [ -z "${DISPLAY-}" ]; then show=play_tour; fi
if [ "${1-}" = --tour ]; then shift; show=play_tour; fi
[ $# -le 1 ] || usage
case ${1-} in -*) usage ;; esac
drawing=$sample
if [ $# -eq 1 ]; then drawing=$(cd "$ORLO_CALLER_DIR" && realpath -m -- "$1"); fi
[ -f "$drawing" ] || die "there is no file $drawing"
drawing=$(for_windows "$drawing")
set --
source run.d/build.sh
$show "$drawing"
