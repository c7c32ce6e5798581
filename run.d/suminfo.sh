# Runs suminfo in the caller's folder: the Linux program, and under Wine the Windows program for what that one does not
# support, which is writing documents and playing metafiles. Each is rebuilt if a source is newer. Needs no display.

native=$PWD/build/native/tools/suminfo/suminfo windows=$PWD/build/bin/suminfo.exe
# Looked at here: a program that does so would take longer than suminfo itself.
shopt -s globstar
is_current() {
    local part
    for part in CMakeLists.txt {orlo/{propset,summary,win,host},afx/{include,src/base},files,tools/suminfo,native,cmake}/**; do
        if [ "$part" -nt "$1" ]; then return 1; fi # also when there is no program
    done
}

if ! is_current "$native"; then
    ( set --; source run.d/setup.sh; configure native; cmake --build build/native --target suminfo ) >&2
    touch "$native"
fi
cd "$ORLO_CALLER_DIR"
case ${1-} in show|check|rc) exec "$native" "$@" ;; esac

# Both programs may have to read arguments on standard input.
input=
for argument; do
    if [ "$argument" = @- ]; then
        input=$(mktemp)
        trap 'rm -f "$input"' EXIT
        cat >"$input"
        break
    fi
done
start() { if [ -n "$input" ]; then "$@" <"$input"; else "$@"; fi; }

left_to_windows=3 # as tools/suminfo/exit_codes.h has it
status=0
start "$native" "$@" || status=$?
[ $status -eq $left_to_windows ] || exit $status

cd "$OLDPWD"
if ! is_current "$windows"; then
    ( set --; command=build; set -- suminfo; source run.d/build.sh ) >&2
    touch "$windows"
fi
wine_prefix
# Names of files come and go in UTF-8. The server stays for a moment: the next call then starts in a tenth of the time.
case ${LC_ALL:-${LC_CTYPE:-${LANG-}}} in *[Uu][Tt][Ff]*8*) ;; *) export LC_ALL=C.UTF-8 ;; esac
wineserver -p30 2>/dev/null || true
cd "$ORLO_CALLER_DIR"
# A command line of the system holds 32,767 characters, an escaped name twice its own. "@-": the rest is on standard
# input.
arguments="$*"
if [ $((2 * ${#arguments} + 3 * $#)) -gt 32000 ]; then exec wine "$windows" @- < <(printf '%s\0' "$@"); fi
status=0
start wine "$windows" "$@" || status=$?
exit $status
