# ./run dist
# Creates out/orlo-VERSION.tar.xz from the committed sources.

version=$(sed -n 's/^project(orlo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
mkdir -p out
git archive --prefix="orlo-$version/" HEAD | xz >"out/orlo-$version.tar.xz"
say "out/orlo-$version.tar.xz ($(du -h "out/orlo-$version.tar.xz" | cut -f 1))"
