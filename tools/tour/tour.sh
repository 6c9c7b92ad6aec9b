#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: tools/tour/tour.sh BUILD_FOLDER PICTURE_FOLDER
# Starts the program on a virtual display, works on it from outside as a person does, and leaves pictures.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
mkdir -p "$2"
pictures=$(cd "$2" && pwd)
rm -f "$pictures"/*.png

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -m 700 "$scratch/runtime"
cp "$build/samples/sampler.gba" "$scratch/sampler.gba"
env HOME="$scratch" XDG_RUNTIME_DIR="$scratch/runtime" XDG_CONFIG_HOME="$scratch" BROLKPLUS_SETTINGS="$scratch/settings" \
  QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 LIBGL_ALWAYS_SOFTWARE=1 \
  xvfb-run -a -s "-screen 0 880x640x24" "$here/drive.sh" "$build/bin/brolkplus" "$scratch/sampler.gba" "$pictures"
echo "The pictures of the tour are in $pictures:"
ls "$pictures"
