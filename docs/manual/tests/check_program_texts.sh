#!/bin/sh
# SPDX-License-Identifier: MIT
# Every text of two words or more in the sources of the program is told somewhere in the manual:
# captions, tool tips, list entries, questions, messages. A text that no user needs to be told of
# stands in not-told.txt, and one that is gone from the program must go from there, too.
#
# check_program_texts.sh SOURCE_DIR
set -eu
cd "$1"
manual=docs/manual
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# String literals, halves on two lines joined, split at the fields of filters and at places for
# numbers, line breaks as blanks.
# Names for screen readers are left out: they describe what the others see.
find src -name '*.h' -o -name '*.cpp' | LC_ALL=C sort | xargs sed 's|^ *//.*||; /^ *#/d' |
  tr '\n' ' ' | sed 's/" *"//g; s/setAccessibleName([^"]*"[^"]*"//g' | grep -oE '"([^"\\]|\\.)*"' |
  sed 's/^"//; s/"$//; s/\\[rn]/ /g; s/\\"/"/g; s/\\\\/\\/g; s/  */ /g' |
  sed 's/%[1-9]/|/g' | tr '|' '\n' | sed 's/ (\*.*)$//; s/^ *//; s/ *$//' |
  grep -E "[A-Za-z]{2,}[,.:!?']* +[A-Za-z0-9('<]" | LC_ALL=C sort -u >"$work/program"

# The manual as its reader sees it: without marks, in one line.
cat $manual/*.md | tr '\n' ' ' |
  sed 's/!\[[^]]*\]([^)]*)//g; s/\](\([^)]*\))//g; s/[][*`\\>]//g; s/  */ /g' >"$work/manual"

awk -v manualFile="$work/manual" -v exceptionsFile="$manual/tests/not-told.txt" '
  BEGIN {
    getline manual < manualFile
    while ((getline line < exceptionsFile) > 0)
      if (line != "" && line !~ /^#/) exception[line] = 1
  }
  {
    plain = $0
    gsub(/[][*`\\>]/, "", plain)
    told = index(manual, plain) > 0
    if ($0 in exception) { used[$0] = 1; next }
    if (!told) { print "not told in the manual: " $0; bad = 1 }
    else count++
  }
  END {
    for (line in exception)
      if (!(line in used)) { print "not-told.txt, but not in the program: " line; bad = 1 }
    if (count < 150) { print "only " count " texts were found"; bad = 1 }
    if (!bad) print count " texts of the program are told in the manual"
    exit bad
  }' "$work/program"
