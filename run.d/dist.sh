# ./run dist
# Creates out/orlo-VERSION.tar.xz from the committed sources.

version=$(sed -nE 's/^#define ORLO_VERSION_(MAJOR|MINOR|PATCH) ([0-9]+)$/\2/p' orlo/include/orlo_c.h | paste -sd.)
mkdir -p out
git archive --prefix="orlo-$version/" HEAD | xz >"out/orlo-$version.tar.xz"
say "out/orlo-$version.tar.xz ($(du -h "out/orlo-$version.tar.xz" | cut -f 1))"
