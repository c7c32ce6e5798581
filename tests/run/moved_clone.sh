#!/usr/bin/env bash
# A clone that was moved or copied after it was built: ./run says so and what to do, in place of CMake's riddles.
set -euo pipefail
source=$1
clone=$(mktemp -d)
trap 'rm -r "$clone"' EXIT
cp -r "$source/run" "$source/run.d" "$clone"
mkdir -p "$clone/build/x86_64"
echo "CMAKE_HOME_DIRECTORY:INTERNAL=$clone-before" >"$clone/build/x86_64/CMakeCache.txt"

if said=$("$clone/run" build 2>&1); then echo "it went on: $said"; exit 1; fi
for words in "made for $clone-before" "moved or copied" "rm -r build"; do
    [[ $said == *"$words"* ]] || { echo "'$words' is missing in: $said"; exit 1; }
done
