# SPDX-License-Identifier: MIT
# The manual tells of every caption, tool tip, key, message and list entry of the program:
# captions.txt lists them, one in a line under the chapter that has to hold it.
#
# cmake -DSOURCE_DIR=docs/manual -P check_captions.cmake

cmake_minimum_required(VERSION 3.25)

# The text of a chapter as the reader sees it: no marks, one blank for each gap.
function(chapter_text chapter out)
  file(READ "${SOURCE_DIR}/${chapter}.md" text)
  string(REGEX REPLACE "!\\[[^]]*\\]\\([^)]*\\)" "" text "${text}")
  string(REGEX REPLACE "\\]\\([^)]*\\)" "" text "${text}")
  string(REGEX REPLACE "[][*`\\\\]" "" text "${text}")
  string(REPLACE "\n> " " " text "${text}")
  string(REGEX REPLACE "[ \n]+" " " text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

file(READ "${SOURCE_DIR}/tests/captions.txt" content)
string(REPLACE ";" "<semicolon>" content "${content}")
string(REPLACE "\n" ";" lines "${content}")
set(count 0)
set(missing 0)
foreach(line IN LISTS lines)
  string(REPLACE "<semicolon>" ";" line "${line}")
  if(line MATCHES "^@([a-z-]+)$")
    set(chapter "${CMAKE_MATCH_1}")
    chapter_text("${chapter}" text)
  elseif(NOT line STREQUAL "" AND NOT line MATCHES "^#")
    math(EXPR count "${count} + 1")
    # The marks that are taken out of the chapter are taken out of the caption, too.
    string(REGEX REPLACE "[][*`\\\\]" "" plain "${line}")
    string(FIND "${text}" "${plain}" place)
    if(place EQUAL -1)
      message(SEND_ERROR "${chapter}.md does not hold \"${line}\"")
      math(EXPR missing "${missing} + 1")
    endif()
  endif()
endforeach()

if(count LESS 150)
  message(FATAL_ERROR "captions.txt holds ${count} lines only")
endif()
if(missing)
  message(FATAL_ERROR "${missing} captions are missing in the manual")
endif()
message(STATUS "The manual tells of ${count} captions")
