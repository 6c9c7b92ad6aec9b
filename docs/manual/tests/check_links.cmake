# SPDX-License-Identifier: MIT
# Every link, picture and anchor inside the web pages leads somewhere, and so does every entry of
# the compiled help's contents and index; every page is in the reading order.
#
# cmake -DHTML_DIR=build/manual/html -DSOURCE_DIR=docs/manual -P check_links.cmake

cmake_minimum_required(VERSION 3.25)
set(problems 0)
set(checked 0)

# <out> = all values of <attribute> in <text>.
function(attribute_values text attribute out)
  string(REGEX MATCHALL "${attribute}=\"[^\"]*\"" found "${text}")
  list(TRANSFORM found REPLACE "^[^\"]*\"([^\"]*)\"$" "\\1")
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# The text of a file without the characters that CMake lists treat specially.
function(read_plain file out)
  file(READ "${file}" text)
  string(REGEX REPLACE "[][;]" " " text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

function(complain message)
  message(SEND_ERROR "${message}")
  math(EXPR problems "${problems} + 1")
  set(problems ${problems} PARENT_SCOPE)
endfunction()

# <target> as it stands in <file>: page, page#anchor, #anchor or picture.
macro(check_target file target)
  math(EXPR checked "${checked} + 1")
  set(targetPage "${target}")
  set(anchor "")
  if("${target}" MATCHES "^([^#]*)#(.*)$")
    set(targetPage "${CMAKE_MATCH_1}")
    set(anchor "${CMAKE_MATCH_2}")
  endif()
  if(targetPage STREQUAL "")
    set(targetPage "${file}")
  endif()
  if(NOT EXISTS "${HTML_DIR}/${targetPage}")
    complain("${file}: \"${target}\" leads to no file")
  elseif(NOT anchor STREQUAL "" AND NOT anchor IN_LIST ids_${targetPage})
    complain("${file}: \"${target}\" leads to no anchor")
  endif()
endmacro()

file(GLOB pages RELATIVE "${HTML_DIR}" "${HTML_DIR}/*.html")
foreach(page IN LISTS pages)
  read_plain("${HTML_DIR}/${page}" text)
  attribute_values("${text}" "id" ids_${page})
endforeach()

foreach(page IN LISTS pages)
  read_plain("${HTML_DIR}/${page}" text)
  attribute_values("${text}" "href" links)
  attribute_values("${text}" "src" pictures)
  foreach(target IN LISTS links pictures)
    if(NOT target MATCHES "^(https?|mailto):")
      check_target("${page}" "${target}")
    endif()
  endforeach()
endforeach()

foreach(list manual.hhc manual.hhk)
  read_plain("${HTML_DIR}/${list}" text)
  string(REGEX MATCHALL "name=\"Local\" value=\"[^\"]*\"" locals "${text}")
  list(TRANSFORM locals REPLACE "^.*value=\"([^\"]*)\"$" "\\1")
  foreach(target IN LISTS locals)
    check_target("${list}" "${target}")
  endforeach()
endforeach()

# A chapter that is not in the reading order would never be built, and so never be found.
file(STRINGS "${SOURCE_DIR}/chapters.txt" chapters REGEX "^[a-z]")
file(GLOB sources RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/*.md")
foreach(source IN LISTS sources)
  string(REGEX REPLACE "[.]md$" "" chapter "${source}")
  if(NOT chapter IN_LIST chapters AND NOT chapter STREQUAL "README")
    complain("${source} is not in chapters.txt")
  endif()
endforeach()

if(checked LESS 200)
  complain("Only ${checked} links were found: the pages are not what this test expects")
endif()
if(problems)
  message(FATAL_ERROR "${problems} broken links")
endif()
message(STATUS "${checked} links lead somewhere")
