# Runs suminfo under Wine, where the caller stands. Builds it first when something is newer. No display is needed.

program=$PWD/build/bin/suminfo.exe
newer_sources() { find orlo afx drawcore tools cmake CMakeLists.txt -newer "$program" -type f -print -quit; }
if [ ! -e "$program" ] || [ -n "$(newer_sources)" ]; then
    ( set --; word=build; set -- suminfo; source run.d/build.sh ) >&2
    touch "$program"
fi
wine_prefix

# Names of files come and go in UTF-8. The server stays for a moment: the next call then starts in a tenth of the time.
case ${LC_ALL:-${LC_CTYPE:-${LANG-}}} in *[Uu][Tt][Ff]*8*) ;; *) export LC_ALL=C.UTF-8 ;; esac
wineserver -p30 2>/dev/null || true
cd "$ORLO_CALLER_DIR"
# A command line of the system holds 32,767 characters, an escaped name twice its own. "@-": the rest is on standard input.
arguments="$*"
if [ $((2 * ${#arguments} + 3 * $#)) -gt 32000 ]; then exec wine "$program" @- < <(printf '%s\0' "$@"); fi
exec wine "$program" "$@"
