# ./run demo [--tour] [FILE.dxf]
#   Opens a drawing in the viewer. Without a display, or with --tour: plays a scripted tour and saves pictures in out/.
# ./run demo --check FILE.dxf...
#   Edits all graphics of each drawing on every page, undoes the edits and reports differences. Needs no display.
# ./run demo --list FILE.dxf...
#   Prints the contents of drawings as JSON. Needs no display.

sample=tests/data/dxf/kabeja-draft4-roof-details.dxf
program=$PWD/build/bin/demo.exe
targets=(demo keeper)

usage() { echo "usage: ./run demo [--tour] [FILE.dxf] | ./run demo --check FILE.dxf... | ./run demo --list FILE.dxf..." >&2; exit 2; }

# Converts an absolute path for a Windows program: the file system is drive Z.
for_windows() { printf 'Z:%s' "$(realpath -m -- "$1")"; }

list_drawings() {
    [ $# -gt 0 ] || usage
    set -- list --json "$@"
    source run.d/dxfprops.sh
}

# Exits with 0 if every drawing that can be opened is unchanged.
check_drawings() {
    [ $# -gt 0 ] || usage
    local files=() file
    for file in "$@"; do files+=("$(cd "$ORLO_CALLER_DIR" && for_windows "$file")"); done
    set --
    program=$PWD/build/bin/check_drawings.exe
    targets=(check_drawings keeper)
    source run.d/build.sh
    wine_session own
    managed N
    local status=0
    wine "$program" "${files[@]}" || status=$?
    exit $status
}

# Sets whether a window manager handles the windows (Y or N); without one they would wait for it.
managed() {
    wine reg add "HKCU\\Software\\Wine\\AppDefaults\\${program##*/}\\X11 Driver" /v Managed /d "$1" /f >/dev/null
}

# Wine has the dialogs' font in only a few sizes. A separate Wine prefix for the viewer replaces it with a scalable font
# of the same width, so that pages grow with the resolution as on Windows.
scalable_dialog_font() {
    derive_wine_prefix demo
    [ -e "$WINEPREFIX/.scalable" ] && return
    rm -f "$WINEPREFIX"/drive_c/windows/Fonts/{ms_sans_serif.ttf,sse*.fon}
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'MS Sans Serif' /d Tahoma /f >/dev/null
    wineserver -w
    touch "$WINEPREFIX/.scalable"
}

play_tour() {
    scalable_dialog_font
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
    scalable_dialog_font
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
[ -f "$drawing" ] || die "demo: $drawing: no such file"
drawing=$(for_windows "$drawing")
set --
source run.d/build.sh
$show "$drawing"
