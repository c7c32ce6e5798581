#!/usr/bin/env bash
# In a clone that was moved or copied after it was built, ./run prints the reason and the remedy instead of CMake's
# message.
set -euo pipefail
source=$1
clone=$(mktemp -d)
trap 'rm -r "$clone"' EXIT
cp -r "$source/run" "$source/run.d" "$clone"
mkdir -p "$clone/build/x86_64"
echo "CMAKE_HOME_DIRECTORY:INTERNAL=$clone-before" >"$clone/build/x86_64/CMakeCache.txt"

if said=$("$clone/run" build 2>&1); then echo "it went on: $said"; exit 1; fi
for words in "configured for $clone-before" "moved or copied" "rm -r build"; do
    [[ $said == *"$words"* ]] || { echo "'$words' is missing in: $said"; exit 1; }
done
