#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds a release, starts the program. On a machine without a display it takes a tour of the program on a
# virtual one and leaves pictures in build/tour/.
set -euo pipefail
cd "$(dirname "$0")"

echo "== Packages"
scripts/install-packages.sh run
echo "== Build (build/release)"
cmake --preset release -DBROLK_BUILD_TESTS=OFF >/dev/null
cmake --build --preset release --target brolkplus brolk_samples
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "== Start. A file to begin with: $PWD/build/release/samples"
  exec build/release/bin/brolkplus
fi
echo "== No display here: a tour on a virtual one"
tools/tour/tour.sh build/release build/tour
