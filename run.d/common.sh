# Shared by the commands of ./run: messages, and the Wine session in which every Windows program runs.

say() { printf '== %s\n' "$*" >&2; }
die() { printf 'run: %s\n' "$*" >&2; exit 1; }

preset=x86_64 bin=build/bin   # the preset for Windows, and the folder of its programs

# Wine takes its code page from the locale: without one its conversions crash, and file names reach programs mangled.
export LC_ALL=C.UTF-8
export WINEPREFIX=${ORLO_WINEPREFIX:-$PWD/build/wine}
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree,mshtml="

# Configures build/PRESET. CMake stores absolute paths there, so a folder that has been moved or copied cannot be
# reused.
configure() {
    local preset=$1 made_in
    if [ -e "build/$preset/CMakeCache.txt" ]; then
        made_in=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "build/$preset/CMakeCache.txt")
        [ "$made_in" -ef . ] || die "build/$preset was configured for $made_in, but this folder was moved or copied; \
remove build/ (rm -r build) and call ./run again"
    fi
    mkdir -p build
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 || { cat "build/configure-$preset.log"; exit 1; }
}

# Creates the Wine prefix once: without a window manager, without a dialog for crashes, with fonts.
wine_prefix() {
    [ -e "$WINEPREFIX/.ready" ] && return
    say "preparing Wine in ${WINEPREFIX#"$PWD"/} (once, about 10 s)"
    mkdir -p "$(dirname "$WINEPREFIX")"
    rm -rf "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1 || die "Wine could not be prepared; see WINEDEBUG= WINEPREFIX=$WINEPREFIX wineboot -i"
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
    wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null
    wineserver -w
    cp /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    touch "$WINEPREFIX/.ready"
}

# Creates another Wine prefix that shares 700 MB of system files with the usual one, and switches to it.
derive_wine_prefix() { # SUFFIX
    wine_prefix
    local original=$WINEPREFIX
    WINEPREFIX+=-$1
    [ -e "$WINEPREFIX" ] && return
    rm -rf "$WINEPREFIX.new"
    cp -a --link "$original" "$WINEPREFIX.new"
    cp -a --remove-destination "$original"/*.reg "$WINEPREFIX.new"
    mv "$WINEPREFIX.new" "$WINEPREFIX"
}

# Prints the processors that this shell may use.
processors() {
    local list part
    list=$(taskset -cp $BASHPID) || return
    list=${list##*: }
    for part in ${list//,/ }; do seq "${part%-*}" "${part#*-}"; done
}

# X server, Wine server and programs exchange thousands of messages a second. On one processor this is several times as
# fast: waking another processor takes longer than the reply, most of all on an idle virtual machine.
on_one_processor() {
    taskset -cp "$(processors | tail -n 1)" $BASHPID >/dev/null || true
}

# Keeps one server and one window during the whole session; otherwise every program waits seconds for its own.
# display: "own" always starts an Xvfb; "users" uses the caller's display if there is one.
wine_session() {
    local display=$1
    wine_prefix
    on_one_processor
    trap wine_session_end EXIT
    if [ "$display" = own ] || [ -z "${DISPLAY-}" ]; then
        exec {xvfb_fd}<> <(:)
        Xvfb -displayfd "$xvfb_fd" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
        xvfb_pid=$!
        local number
        read -r -t 20 -u "$xvfb_fd" number || die "Xvfb did not start"
        export DISPLAY=:$number
    fi
    # The server of a program that has just ended lingers for seconds and would not become persistent. A server that
    # another session of this folder keeps is shared.
    timeout 10 wineserver -w || true
    wineserver -p || true
    # Waits for the keeper's window: services and desktop, which the first program starts, would otherwise be started
    # by a test and keep open the pipe that the test's reader waits on.
    exec {keeper_fd}< <(exec wine "$bin/keeper.exe" </dev/null 2>/dev/null)
    keeper_pid=$!
    read -r -t 60 -u "$keeper_fd" || die "Wine's desktop did not start"
}

wine_session_end() {
    [ -n "${keeper_pid-}" ] && kill "$keeper_pid" 2>/dev/null
    wineserver -k 2>/dev/null || true
    [ -n "${xvfb_pid-}" ] && kill "$xvfb_pid" 2>/dev/null
    wait 2>/dev/null || true
}
