#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks on the sources: format, layers, size of functions and files, clang-tidy.
set -euo pipefail
cd "$(dirname "$0")/.."

format=$(command -v clang-format-14 || command -v clang-format)
tidy=$(command -v clang-tidy-14 || command -v clang-tidy)
mapfile -t sources < <(git ls-files '*.cpp' '*.h')

echo "== Format"
"$format" --dry-run --Werror "${sources[@]}"

echo "== Layers: what each folder may include"
python3 scripts/check_layers.py

echo "== clang-tidy"
cmake --preset develop -B build/tidy -DBROLK_BUILD_TESTS=OFF >/dev/null
# The registry is another platform's: its file is empty here.
mapfile -t units < <(git ls-files 'src/*.cpp' | grep -v '^src/shell/registry.cpp$')
printf '%s\n' "${units[@]}" | xargs -P "$(nproc)" -n 4 "$tidy" -p build/tidy --quiet --extra-arg=-Wno-unknown-warning-option \
  --warnings-as-errors='*' 2>/dev/null
echo "clang-tidy has nothing to say"
