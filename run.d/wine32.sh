# Wine for 32-bit programs: Debian's i386 packages, unpacked into build/wine32 so that the user's system needs no second
# architecture.

wine32_root=$PWD/build/wine32/root

# Exits with a message if the kernel cannot run 32-bit programs, before anything is built or downloaded.
require_32_bit_kernel() {
    local probe=build/probe32
    mkdir -p build
    # A program of seven bytes that exits with 0, after the headers of a 32-bit ELF file.
    { printf '\x7fELF\1\1\1\0\0\0\0\0\0\0\0\0\2\0\3\0\1\0\0\0\x54\x80\4\x8\x34\0\0\0\0\0\0\0\0\0\0\0\x34\0\x20\0\1\0\0\0\0\0\0\0'
      printf '\1\0\0\0\0\0\0\0\0\x80\4\x8\0\x80\4\x8\x5b\0\0\0\x5b\0\0\0\5\0\0\0\0\x10\0\0'
      printf '\x31\xdb\x31\xc0\x40\xcd\x80'; } >"$probe"
    chmod +x "$probe"
    "./$probe" 2>/dev/null || die "32-bit programs cannot be run here: the kernel has no support for them"
    rm "$probe"
}

fetch_wine32() {
    [ -x "$wine32_root/usr/lib/wine/wine" ] && return
    packages="mmdebstrap bubblewrap"
    setup
    local release mirror
    release=$(. /etc/os-release && echo "${VERSION_CODENAME-}")
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $release" 'Component: main' | head -n 1)
    [ -n "$mirror" ] || die "32-bit tests need a Debian system: apt has no repository of '$release' with 32-bit Wine"
    say "fetching 32-bit Wine into build/wine32 (once, about 700 MB unpacked)"
    rm -rf "$wine32_root"
    mkdir -p "$wine32_root"
    mmdebstrap --quiet --architectures=i386 --variant=extract --include=libc-bin,wine,wine32,fonts-wine,fonts-dejavu-core "$release" \
        "$wine32_root" "deb $mirror $release main" >build/wine32/fetch.log 2>&1 ||
        { cat build/wine32/fetch.log; rm -rf "$wine32_root"; die "cannot download 32-bit Wine"; }
    # As the package's installation does, adds the marker by which Wine recognizes its own DLLs.
    local zlib=$wine32_root/usr/i686-w64-mingw32/lib/zlib1.dll
    { head -c 64 "$zlib"; printf 'Wine builtin DLL'; head -c 16 /dev/zero; tail -c +97 "$zlib"; } \
        >"$wine32_root/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll"
}

# Creates wrappers that run that folder's programs with access to the host's /dev and /tmp and to the current folder.
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
    wine --version >/dev/null || die "32-bit programs cannot be run here: bubblewrap needs user namespaces or root"
}

# From here on wine and wineserver are the 32-bit ones.
use_wine32() {
    fetch_wine32
    wrap_wine32
}
