#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renders every picture with its name beneath: contact_sheet.sh [out folder] [scale]. Needs rsvg-convert and ImageMagick.
set -euo pipefail
icons=$(cd "$(dirname "$0")/../icons" && pwd)
out=${1:-/tmp/contact-sheet}
scale=${2:-1}
mkdir -p "$out/x$scale"
for picture in "$icons"/*.svg; do
  name=$(basename "$picture" .svg)
  rsvg-convert -z "$scale" "$picture" -o "$out/x$scale/$name.png"
done
cell=$((72 * scale))x$((42 * scale))
(cd "$out/x$scale" && montage -background '#EDE9F4' -fill '#000080' -pointsize $((7 + scale)) -label '%t' -tile 10x \
  -geometry "$cell>+4+3" $(ls *.png | grep -v '^background') "$out/sheet-x$scale.png")
echo "$out/sheet-x$scale.png"
