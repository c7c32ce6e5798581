# ./run package
# Creates out/orlo-VERSION-win64.zip and -win32.zip for building hosts, each with its debug data in a
# -debug.zip, and their checksums in out/SHA256SUMS.

package() { # PRESET WIDTH
    configure "$1"
    cmake --build "build/$1" --target products
    local version
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "build/$1/CMakeCache.txt")
    say "writing to out/"
    python3 packaging/make_zip.py "build/$1" . "orlo-$version-win$2" out
}

source run.d/setup.sh
mkdir -p out
package x86_64 64
package i686 32
(cd out && sha256sum orlo-*-win??{,-debug}.zip >SHA256SUMS)
