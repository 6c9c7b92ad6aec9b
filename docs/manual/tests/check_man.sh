#!/bin/sh
# SPDX-License-Identifier: MIT
# The man page pleases the strict checkers that are installed, and reads as it should.
#
# check_man.sh build/manual/man/brolkplus.1
set -eu
page=$1
checked=0

if command -v man >/dev/null; then
  warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
  if [ -n "$warnings" ]; then
    echo "man --warnings: $warnings"
    exit 1
  fi
  text=$(LC_ALL=C.UTF-8 MANWIDTH=200 man -l "$page" | col -b 2>/dev/null || true)
  for word in NAME SYNOPSIS DESCRIPTION KEYS ENVIRONMENT BROLKPLUS_SETTINGS 'Ctrl+O'; do
    case $text in
      *"$word"*) ;;
      *) echo "The man page does not show \"$word\""; exit 1 ;;
    esac
  done
  checked=1
fi

if command -v mandoc >/dev/null; then
  mandoc -T lint -W warning "$page"
  checked=1
fi

if [ "$checked" = 0 ]; then
  echo "SKIPPED: neither man nor mandoc is installed"
  exit 77
fi
