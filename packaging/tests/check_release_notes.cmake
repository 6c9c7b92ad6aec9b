# SPDX-License-Identifier: MIT
# The metainfo tells the same releases and notes as CHANGELOG.md, in the same order, and the newest
# release is the version of the program. The two are compared as plain lists of lines, each read in
# its own simple way.
#
# cmake -DCHANGELOG=CHANGELOG.md -DMETAINFO=build/packaging/x.metainfo.xml -DVERSION=0.64
#       -P check_release_notes.cmake

cmake_minimum_required(VERSION 3.25)

# <out> = the lines of <file> that match <pattern>, as "<semicolon>"-safe list.
function(matching_lines file pattern out)
  file(READ "${file}" text)
  string(REPLACE ";" "<semicolon>" text "${text}")
  string(REPLACE "\n" ";" lines "${text}")
  list(FILTER lines INCLUDE REGEX "${pattern}")
  set(${out} "${lines}" PARENT_SCOPE)
endfunction()

matching_lines("${CHANGELOG}" "^(## |- )" told)
list(TRANSFORM told REPLACE "^## (.*) - (.*)$" "release \\1 \\2")
list(TRANSFORM told REPLACE "^- (.*)$" "note \\1")

# The release notes stand behind <releases>; the description above has a list of its own.
file(READ "${METAINFO}" text)
string(REGEX REPLACE "^.*<releases>" "" text "${text}")
file(WRITE "${METAINFO}.releases" "${text}")
matching_lines("${METAINFO}.releases" "<release |<li>" shown)
file(REMOVE "${METAINFO}.releases")
list(TRANSFORM shown REPLACE "^ *<release version=\"([^\"]*)\" date=\"([^\"]*)\">$" "release \\1 \\2")
list(TRANSFORM shown REPLACE "^ *<li>(.*)</li>$" "note \\1")
list(TRANSFORM shown REPLACE "&lt<semicolon>" "<")
list(TRANSFORM shown REPLACE "&amp<semicolon>" "&")

if(NOT told STREQUAL shown)
  list(JOIN told "\n  " told)
  list(JOIN shown "\n  " shown)
  message(FATAL_ERROR "CHANGELOG.md tells\n  ${told}\nthe metainfo tells\n  ${shown}")
endif()
list(LENGTH told count)
if(count LESS 2)
  message(FATAL_ERROR "There is no release with a note")
endif()
list(GET told 0 newest)
if(NOT newest MATCHES "^release ([^ ]*) " OR NOT CMAKE_MATCH_1 STREQUAL VERSION)
  message(FATAL_ERROR "The newest release is \"${newest}\" and the program is ${VERSION}")
endif()
message(STATUS "${count} lines agree")
