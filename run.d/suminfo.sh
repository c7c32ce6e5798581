# Runs suminfo in the caller's folder: the Linux program, and under Wine the Windows program for thumbnails that are
# metafiles, which the system plays. Each is rebuilt if a source is newer. Needs no display.

native=$PWD/build/native/tools/suminfo/suminfo windows=$PWD/build/bin/suminfo.exe
# Checked here, because a separate program would take longer than suminfo itself.
shopt -s globstar
is_current() {
    local part
    for part in CMakeLists.txt {orlo/{propset,summary,win,host},afx/{include,src/base},files,codepages,tools/cli,tools/suminfo,native,cmake}/**; do
        if [ "$part" -nt "$1" ]; then return 1; fi # also when there is no program
    done
}

if ! is_current "$native"; then
    ( set --; source run.d/setup.sh; configure native; cmake --build build/native --target suminfo ) >&2
    touch "$native"
fi
cd "$ORLO_CALLER_DIR"
case ${1-} in thumbnail|@*) ;; *) exec "$native" "$@" ;; esac

# Both programs may need the arguments on standard input.
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

needs_windows=3 # same as in tools/suminfo/exit_codes.h
status=0
start "$native" "$@" || status=$?
[ $status -eq $needs_windows ] || exit $status

cd "$OLDPWD"
if ! is_current "$windows"; then
    ( set --; command=build; set -- suminfo; source run.d/build.sh ) >&2
    touch "$windows"
fi
wine_prefix
# File names are passed in UTF-8. The Wine server stays for a moment, which makes the next start ten times faster.
case ${LC_ALL:-${LC_CTYPE:-${LANG-}}} in *[Uu][Tt][Ff]*8*) ;; *) export LC_ALL=C.UTF-8 ;; esac
wineserver -p30 2>/dev/null || true
cd "$ORLO_CALLER_DIR"
# A Windows command line is limited to 32,767 characters, and escaping can double the length of a name. "@-" reads the
# rest from standard input.
arguments="$*"
if [ $((2 * ${#arguments} + 3 * $#)) -gt 32000 ]; then exec wine "$windows" @- < <(printf '%s\0' "$@"); fi
status=0
start wine "$windows" "$@" || status=$?
exit $status
