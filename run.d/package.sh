# ./run package
# Creates out/orlo-VERSION-win64.zip and -win32.zip for hosts to build against, each with its debug data in a
# -debug.zip.

zip_tree() { # NAME EXTRA-TAR-ARGUMENTS...: the folder out/NAME, or the files of it that a list names
    local zip=$1; shift
    rm -f "out/$zip"
    (cd out && cmake -E tar cf "$zip" --format=zip "$@")
    say "out/$zip ($(du -h "out/$zip" | cut -f 1))"
}

package() { # PRESET WIDTH
    local version name
    configure "$1"
    cmake --build "build/$1" --target products
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "build/$1/CMakeCache.txt")
    name=orlo-$version-win$2
    rm -rf "out/$name"
    cmake --install "build/$1" --prefix "out/$name" >/dev/null
    (cd out && find "$name" -name '*.debug' >"$name.debug-files")
    zip_tree "$name-debug.zip" --files-from="$name.debug-files"
    find "out/$name" -name '*.debug' -delete
    rm "out/$name.debug-files"
    zip_tree "$name.zip" "$name"
    (cd "out/$name" && find . -type f -printf '%10s  %P\n' | sort -k 2)
    rm -r "out/$name"
}

source run.d/setup.sh
mkdir -p out
package x86_64 64
package i686 32
