#!/usr/bin/env bash
# Checks that every source file is formatted with clang-format: check_format.sh ROOT
set -euo pipefail
cd "$1"
find adapter afx bench codepages demo docs drawcore files fuzz native orlo packaging skeleton tests tools \( -name '*.c' -o -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format-14 --dry-run --Werror
