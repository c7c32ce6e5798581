# Desktops for tests that run at the same time: each has its own Wine prefix, X server and processor.

desktops=()   # process of each
most_desktops=4

# Keeps a desktop until the process ends. Sourcing build/desktops/NUMBER moves a shell to it.
keep_desktop() { # NUMBER PROCESSOR
    taskset -cp "$2" $BASHPID >/dev/null || true
    if [ "$1" -gt 0 ]; then derive_wine_prefix "$1"; fi
    # Files left by an interrupted run could be mistaken for those of a test with the same process number.
    rm -rf "$WINEPREFIX"/drive_c/users/*/Temp/*
    wine_session own
    printf 'export WINEPREFIX=%q DISPLAY=%q\ntaskset -cp %q $$ >/dev/null\n' "$WINEPREFIX" "$DISPLAY" "$2" >"build/desktops/$1.new"
    mv "build/desktops/$1.new" "build/desktops/$1"
    read -r -u "$keeper_fd" || true
}

# Starts a desktop for each processor and lists them in ctest's format. This shell is on the first one.
start_desktops() {
    local number=0 processor list=
    wine_prefix
    rm -rf build/desktops
    mkdir -p build/desktops
    for processor in $(processors | head -n $most_desktops); do
        keep_desktop $number "$processor" &
        desktops+=($!)
        list+="${list:+, }{\"id\": \"$number\"}"
        number=$((number + 1))
    done
    trap stop_desktops EXIT
    printf '{"version": {"major": 1, "minor": 0}, "local": [{"desktops": [%s]}]}\n' "$list" >build/desktops/list.json
    for ((number = 0; number < ${#desktops[@]}; number++)); do
        until [ -e "build/desktops/$number" ]; do
            kill -0 "${desktops[number]}" 2>/dev/null || die "a desktop for the tests did not start"
            sleep 0.1
        done
    done
    source build/desktops/0
}

stop_desktops() {
    trap - EXIT
    kill "${desktops[@]}" 2>/dev/null || true
    wait "${desktops[@]}" 2>/dev/null || true
    desktops=()
}
