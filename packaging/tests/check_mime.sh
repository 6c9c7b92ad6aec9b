#!/bin/sh
# SPDX-License-Identifier: MIT
# The file types, put together with those of the system: each name of the open dialog has a type,
# names that belong to others stay theirs, and *.bin is claimed by nobody.
#
# check_mime.sh brolkplus-mime.xml
set -eu
types=$1

if ! command -v update-mime-database >/dev/null; then
  echo "SKIPPED: update-mime-database is not installed"
  exit 77
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
database=$work/mime
mkdir -p "$database/packages"
cp "$types" "$database/packages/brolkplus.xml"
export XDG_DATA_HOME="$work" # else the tool tells that nobody will look here

# Alone first: every warning is about these types.
update-mime-database "$database" 2>"$work/warnings"
if [ -s "$work/warnings" ]; then
  cat "$work/warnings"
  exit 1
fi
system=${BROLK_SYSTEM_MIME:-/usr/share/mime/packages/freedesktop.org.xml}
[ ! -f "$system" ] || cp "$system" "$database/packages/"
update-mime-database "$database" 2>/dev/null

# The type with the greatest weight for a name's ending, or "none".
type_of() {
  awk -F: -v glob="*.$1" '$3 == glob && $1 > best { best = $1; type = $2 }
                          END { print type == "" ? "none" : type }' "$database/globs2"
}

failures=0
expect() {
  found=$(type_of "$1")
  if [ "$found" != "$2" ]; then
    echo "*.$1 is $found and not $2"
    failures=$((failures + 1))
  fi
}

expect palette application/x-brolkplus-palette
expect bxp application/x-brolkplus-old-palette
expect favorites application/x-brolkplus-favorites
expect bmk application/x-brolkplus-bookmarks
expect eap application/x-brolkplus-patterns
expect smc application/vnd.nintendo.snes.rom
expect swc application/vnd.nintendo.snes.rom
expect nes application/x-nes-rom
expect fds application/x-fds-disk
expect gb application/x-gameboy-rom
expect gbc application/x-gameboy-color-rom
expect gba application/x-gba-rom
expect agb application/x-gba-rom
expect vb application/x-virtual-boy-rom
expect sms application/x-sms-rom
expect gg application/x-gamegear-rom
expect ngp application/x-neo-geo-pocket-rom
expect npc application/x-neo-geo-pocket-rom
expect pce application/x-pc-engine-rom
expect ws application/x-wonderswan-rom
expect wsc application/x-wonderswan-color-rom
expect bin none
if [ -f "$system" ]; then
  expect fig image/x-xfig
  expect hdf application/x-hdf
fi

[ "$failures" = 0 ] || exit 1
echo "Every name has its type"
