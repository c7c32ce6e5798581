# ./run setup
# Installs missing packages with apt.

packages="cmake ninja-build g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64 xvfb xauth fonts-wine
          fonts-dejavu-core googletest libboost-dev libcli11-dev nlohmann-json3-dev libstb-dev pkg-config clang-14
          clang-format-14 libclang-rt-14-dev lld-14 llvm-14 nettle-dev python3 python3-markdown libgsf-bin python3-olefile
          python3-ezdxf locales" # libgsf-bin, olefile and ezdxf read the files that the tests write; locales: German Wine

# The viewer opens the user guide in a browser.
case $command in
demo | setup) command -v xdg-open firefox dillo >/dev/null || packages="$packages dillo" ;;
esac

# Tests build a host in Rust if there is a compiler for Windows.
if [ "$command" = setup ]; then packages="$packages rustc libstd-rust-dev-windows"; fi

setup() {
    local package missing=()
    for package in $packages; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then return; fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "these packages are missing, and only root can install them: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

setup
if [ "$command" = setup ]; then say "all packages are installed"; fi
