#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: scripts/install-packages.sh run|test|ci
# Installs the Debian packages that a purpose needs and that are missing. Without apt, or without the right to use it, it names them and
# goes on: what is really absent then shows in the build.
set -euo pipefail
cd "$(dirname "$0")/.."

wanted() { # purposes...
  for purpose in "$@"; do awk -v purpose="$purpose" '$1 == purpose { print $2 }' scripts/packages.txt; done
  if [ "${*: -1}" = ci ] && [ -f packaging/packages.txt ]; then sed 's/#.*//' packaging/packages.txt | awk 'NF { print $1 }'; fi
}

case "${1:-}" in
  run) packages=$(wanted run) ;;
  test) packages=$(wanted run test) ;;
  ci) packages=$(wanted run test ci) ;;
  *) echo "usage: $0 run|test|ci" >&2; exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null; then
  echo "No Debian package tools here. These packages, or what they are called on this system, must be installed:"
  echo "  "$packages
  exit 0
fi

missing=""
for package in $packages; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
done
if [ -z "$missing" ]; then
  echo "All packages needed are installed."
  exit 0
fi

if ! command -v apt-get >/dev/null; then
  echo "Please install these packages:$missing"
  exit 0
fi
as_root=""
if [ "$(id -u)" != 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Neither root nor sudo: please install these packages:$missing"
    exit 0
  fi
  as_root="sudo"
fi
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -qq
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
