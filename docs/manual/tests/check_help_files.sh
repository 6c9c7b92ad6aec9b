#!/bin/sh
# SPDX-License-Identifier: MIT
# Both help files are compiled help with the same content, which holds every page and picture.
#
# check_help_files.sh build/manual
set -eu
manual=$1
first="$manual/BrolkPlus-Help.chm"
second="$manual/Brolk Plus Help file.chm"

cmp "$first" "$second"
[ "$(head -c 4 "$first")" = ITSF ] || { echo "Not a compiled help file"; exit 1; }

unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT
if command -v extract_chmLib >/dev/null; then
  extract_chmLib "$first" "$unpacked" >/dev/null
elif command -v 7z >/dev/null; then
  7z x -y "-o$unpacked" "$first" >/dev/null
else
  echo "SKIPPED: neither extract_chmLib nor 7z is installed, only the first bytes were looked at"
  exit 77
fi

cd "$manual/html"
count=0
for file in *.html manual.css manual.hhc manual.hhk icons/*.png pictures/*.png; do
  cmp "$file" "$unpacked/$file"
  count=$((count + 1))
done
[ "$count" -gt 60 ] || { echo "Only $count files in the help file"; exit 1; }
echo "$count files are in the help files"
