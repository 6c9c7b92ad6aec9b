#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the program with every test, runs all of them without a display, ends with the counts.
# BROLK_PRESET=develop does the same on the sanitizer build.
set -euo pipefail
cd "$(dirname "$0")"
preset=${BROLK_PRESET:-release}

echo "== Packages"
scripts/install-packages.sh test
echo "== Build (build/$preset)"
cmake --preset "$preset" -DBROLK_BUILD_TESTS=ON >/dev/null
cmake --build --preset "$preset"
echo "== Tests"
QT_QPA_PLATFORM=offscreen ctest --preset "$preset" -j "$(nproc)" --schedule-random --quiet --output-log "build/$preset/tests.log" || {
  grep -E '^The following tests FAILED|\(Failed\)|\(Timeout\)|\(SEGFAULT\)|\(Subprocess aborted\)|tests passed' "build/$preset/tests.log"
  echo "The whole log: build/$preset/tests.log"
  exit 1
}
grep 'Skipped' "build/$preset/tests.log" | grep -v 'Test *#' || true
grep 'tests passed' "build/$preset/tests.log"
