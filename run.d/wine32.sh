# Wine for 32-bit programs, in build/wine32: Debian's i386 packages unpacked into a folder of their own, so that the user's
# system gets no second architecture. From here on wine and wineserver are those.

wine32_root=$PWD/build/wine32/root

fetch_wine32() {
    [ -x "$wine32_root/usr/lib/wine/wine" ] && return
    packages="mmdebstrap bubblewrap"
    setup
    local release mirror
    release=$(. /etc/os-release && echo "${VERSION_CODENAME-}")
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $release" 'Component: main' | head -n 1)
    [ -n "$mirror" ] || die "32-bit tests need a Debian system: apt names no repository of '$release' to take 32-bit Wine from"
    say "fetching 32-bit Wine into build/wine32 (once, about 700 MB unpacked)"
    rm -rf "$wine32_root"
    mkdir -p "$wine32_root"
    mmdebstrap --quiet --architectures=i386 --variant=extract --include=libc-bin,wine,wine32,fonts-wine,fonts-dejavu-core "$release" \
        "$wine32_root" "deb $mirror $release main" >build/wine32/fetch.log 2>&1 ||
        { cat build/wine32/fetch.log; rm -rf "$wine32_root"; die "32-bit Wine could not be fetched"; }
    # What the package does when it is installed: the DLL gets the mark by which Wine knows its own.
    local zlib=$wine32_root/usr/i686-w64-mingw32/lib/zlib1.dll
    { head -c 64 "$zlib"; printf 'Wine builtin DLL'; head -c 16 /dev/zero; tail -c +97 "$zlib"; } \
        >"$wine32_root/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll"
}

# Programs that run their namesakes of that folder, with everything of this machine but its system in sight.
wrap_wine32() {
    local name target
    mkdir -p build/wine32/bin
    for name in wine wineserver wineboot; do
        case $name in
            wineserver) target=/usr/lib/wine/wineserver32 ;;
            wineboot) target="/usr/lib/wine/wine wineboot" ;;
            *) target=/usr/lib/wine/wine ;;
        esac
        cat >"build/wine32/bin/$name" <<TEXT
#!/bin/sh
exec bwrap --bind "$wine32_root" / --proc /proc --dev-bind /dev /dev --bind /tmp /tmp --bind "$PWD" "$PWD" --chdir "\$PWD" \\
    --setenv WINESERVER /usr/lib/wine/wineserver32 $target "\$@"
TEXT
        chmod +x "build/wine32/bin/$name"
    done
    export PATH=$PWD/build/wine32/bin:$PATH
    export WINEPREFIX=$PWD/build/wine32/prefix WINEARCH=win32
    wine --version >/dev/null || die "32-bit programs cannot be run here: bubblewrap needs user namespaces or root, and the \
kernel 32-bit support"
}

fetch_wine32
wrap_wine32
