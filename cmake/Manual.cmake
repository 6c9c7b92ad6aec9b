# SPDX-License-Identifier: MIT
# The manual: docs/manual/*.md becomes web pages, two compiled help files and a man page.
#
# Target `manual`, results in ${CMAKE_BINARY_DIR}/manual:
#   html/*.html                  web pages, one for each chapter
#   BrolkPlus-Help.chm           opened by the toolbar, beside the program
#   Brolk Plus Help file.chm     opened by the menu, in the current folder; the same content
#   man/brolkplus.1              man page, and man/brolkplus-desktop.1, which points to it
#
# Sets BROLK_MANUAL_FORMS to those of html, chm and man that this build makes.

set(BROLK_MANUAL_SOURCE_DIR "${CMAKE_SOURCE_DIR}/docs/manual")
set(BROLK_MANUAL_DIR "${CMAKE_BINARY_DIR}/manual")
set(BROLK_MANUAL_FORMS)
# Plain text stays as typed: no curly quotes, no formulas between dollar signs. A picture in a
# paragraph of its own gets no caption; its words are for those who cannot see it.
set(BROLK_PANDOC_READ --from=markdown-smart-citations-tex_math_dollars-implicit_figures
                      --fail-if-warnings)

find_program(PANDOC_EXECUTABLE pandoc)
find_program(CHMCMD_EXECUTABLE chmcmd)
find_program(RSVG_CONVERT_EXECUTABLE rsvg-convert)
mark_as_advanced(PANDOC_EXECUTABLE CHMCMD_EXECUTABLE RSVG_CONVERT_EXECUTABLE)

option(BROLK_BUILD_MANUAL "Build the manual, if pandoc is there" ON)

# Reads chapters.txt: <out> = chapter names in reading order.
function(brolk_manual_chapters out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
               "${BROLK_MANUAL_SOURCE_DIR}/chapters.txt")
  file(STRINGS "${BROLK_MANUAL_SOURCE_DIR}/chapters.txt" chapters REGEX "^[a-z]")
  set(${out} ${chapters} PARENT_SCOPE)
endfunction()

# The title of a chapter is its first line, behind "# ".
function(brolk_manual_title chapter out)
  file(STRINGS "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md" lines REGEX "^# " LIMIT_COUNT 1)
  string(REGEX REPLACE "^# " "" title "${lines}")
  set(${out} "${title}" PARENT_SCOPE)
endfunction()

# The day of the newest release, from the first heading "## version - yyyy-mm-dd" of CHANGELOG.md.
function(brolk_release_date out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/CHANGELOG.md")
  file(STRINGS "${CMAKE_SOURCE_DIR}/CHANGELOG.md" releases REGEX "^## [0-9.]+ - [0-9-]+$"
       LIMIT_COUNT 1)
  string(REGEX REPLACE "^## [0-9.]+ - " "" date "${releases}")
  set(${out} "${date}" PARENT_SCOPE)
endfunction()

# The pictures of windows that a chapter shows: <out> = files of docs/pictures.
function(brolk_chapter_pictures chapter out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
               "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md")
  file(READ "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md" text)
  string(REGEX MATCHALL "[(][.][.]/pictures/[a-z0-9-]+[.]png[)]" found "${text}")
  list(TRANSFORM found REPLACE "^[(][.][.]/(.*)[)]$" "${CMAKE_SOURCE_DIR}/docs/\\1")
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# One web page. <previous> and <next> are chapter names or empty.
function(brolk_manual_page chapter previous next)
  brolk_manual_title(${chapter} title)
  set(arguments "--metadata=pagetitle:${title} - Brolk Plus manual")
  foreach(neighbour previous next)
    if(${neighbour})
      brolk_manual_title(${${neighbour}} neighbourTitle)
      list(APPEND arguments "--variable=${neighbour}:${${neighbour}}"
           "--variable=${neighbour}-title:${neighbourTitle}")
    endif()
  endforeach()
  set(contents)
  if(chapter STREQUAL "index")
    set(contents "${BROLK_MANUAL_DIR}/contents.html")
    list(APPEND arguments "--include-after-body=${contents}")
  endif()
  brolk_chapter_pictures(${chapter} pictures) # their sizes stand in the page
  # --ascii: help viewers differ in the character set that they assume.
  # --columns: no line is so wide that pandoc would give a table fixed column widths.
  add_custom_command(
    OUTPUT "${BROLK_MANUAL_DIR}/html/${chapter}.html"
    COMMAND
      "${PANDOC_EXECUTABLE}" ${BROLK_PANDOC_READ} --to=html5 --ascii --columns=9999
      --wrap=preserve --no-highlight "--template=${BROLK_MANUAL_SOURCE_DIR}/theme/page.html"
      "--lua-filter=${BROLK_MANUAL_SOURCE_DIR}/tools/manual.lua" ${arguments}
      "--output=${BROLK_MANUAL_DIR}/html/${chapter}.html" "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md"
    DEPENDS "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md"
            "${BROLK_MANUAL_SOURCE_DIR}/theme/page.html"
            "${BROLK_MANUAL_SOURCE_DIR}/tools/manual.lua" ${contents} ${pictures}
    VERBATIM)
endfunction()

# The buttons' pictures that the chapters show, as PNG of 48 pixels (shown at 24). <out> = files.
function(brolk_manual_icons chapters out)
  set(icons)
  foreach(chapter IN LISTS chapters)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                 "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md")
    file(READ "${BROLK_MANUAL_SOURCE_DIR}/${chapter}.md" text)
    string(REGEX MATCHALL "assets/icons/[a-z0-9-]+[.]svg" found "${text}")
    list(APPEND icons ${found})
  endforeach()
  list(REMOVE_DUPLICATES icons)
  set(pictures)
  foreach(icon IN LISTS icons)
    get_filename_component(name "${icon}" NAME_WE)
    set(picture "${BROLK_MANUAL_DIR}/html/icons/${name}.png")
    add_custom_command(
      OUTPUT "${picture}"
      COMMAND "${RSVG_CONVERT_EXECUTABLE}" --width=48 --height=48 --keep-aspect-ratio
              "--output=${picture}" "${CMAKE_SOURCE_DIR}/${icon}"
      DEPENDS "${CMAKE_SOURCE_DIR}/${icon}"
      VERBATIM)
    list(APPEND pictures "${picture}")
  endforeach()
  set(${out} ${pictures} PARENT_SCOPE)
endfunction()

# Copies of the pictures of windows that the chapters show. <out> = files.
function(brolk_manual_pictures chapters out)
  set(sources)
  foreach(chapter IN LISTS chapters)
    brolk_chapter_pictures(${chapter} shown)
    list(APPEND sources ${shown})
  endforeach()
  list(REMOVE_DUPLICATES sources)
  set(pictures)
  foreach(source IN LISTS sources)
    get_filename_component(name "${source}" NAME)
    set(picture "${BROLK_MANUAL_DIR}/html/pictures/${name}")
    add_custom_command(
      OUTPUT "${picture}"
      COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${picture}"
      DEPENDS "${source}"
      VERBATIM)
    list(APPEND pictures "${picture}")
  endforeach()
  set(${out} ${pictures} PARENT_SCOPE)
endfunction()

# All web pages with their style. <out> = the files.
function(brolk_manual_html chapters out)
  file(MAKE_DIRECTORY "${BROLK_MANUAL_DIR}/html/icons" "${BROLK_MANUAL_DIR}/html/pictures")
  set(pages)
  set(previous)
  list(LENGTH chapters count)
  foreach(chapter IN LISTS chapters)
    list(LENGTH pages done)
    math(EXPR nextIndex "${done} + 1")
    set(next)
    if(nextIndex LESS count)
      list(GET chapters ${nextIndex} next)
    endif()
    brolk_manual_page(${chapter} "${previous}" "${next}")
    list(APPEND pages "${BROLK_MANUAL_DIR}/html/${chapter}.html")
    set(previous ${chapter})
  endforeach()
  configure_file("${BROLK_MANUAL_SOURCE_DIR}/theme/manual.css" "${BROLK_MANUAL_DIR}/html/manual.css"
                 COPYONLY)
  set(icons)
  if(RSVG_CONVERT_EXECUTABLE)
    brolk_manual_icons("${chapters}" icons)
  else()
    message(STATUS "Manual: rsvg-convert not found, the pages show no button pictures")
  endif()
  brolk_manual_pictures("${chapters}" pictures)
  set(${out} ${pages} ${icons} ${pictures} PARENT_SCOPE)
endfunction()

# Contents of the front page, and the project files of the compiled help. <out> = the files.
function(brolk_manual_contents chapters out)
  set(files "${BROLK_MANUAL_DIR}/contents.html" "${BROLK_MANUAL_DIR}/html/manual.hhp"
            "${BROLK_MANUAL_DIR}/html/manual.hhc" "${BROLK_MANUAL_DIR}/html/manual.hhk")
  list(TRANSFORM chapters PREPEND "${BROLK_MANUAL_SOURCE_DIR}/" OUTPUT_VARIABLE chapterFiles)
  list(TRANSFORM chapterFiles APPEND ".md")
  add_custom_command(
    OUTPUT ${files}
    COMMAND "${CMAKE_COMMAND}" "-DSOURCE_DIR=${BROLK_MANUAL_SOURCE_DIR}"
            "-DOUTPUT_DIR=${BROLK_MANUAL_DIR}" -P
            "${BROLK_MANUAL_SOURCE_DIR}/tools/contents.cmake"
    DEPENDS ${chapterFiles} "${BROLK_MANUAL_SOURCE_DIR}/chapters.txt"
            "${BROLK_MANUAL_SOURCE_DIR}/tools/contents.cmake"
    VERBATIM)
  set(${out} ${files} PARENT_SCOPE)
endfunction()

# The two compiled help files. <inputs> = everything they hold. <out> = the files.
function(brolk_manual_chm inputs out)
  set(first "${BROLK_MANUAL_DIR}/BrolkPlus-Help.chm")
  set(second "${BROLK_MANUAL_DIR}/Brolk Plus Help file.chm")
  add_custom_command(
    OUTPUT "${first}" "${second}"
    COMMAND "${CMAKE_COMMAND}" "-DCHMCMD=${CHMCMD_EXECUTABLE}" "-DHTML_DIR=${BROLK_MANUAL_DIR}/html"
            "-DOUTPUT=${first}" -P "${BROLK_MANUAL_SOURCE_DIR}/tools/compile_help.cmake"
    COMMAND "${CMAKE_COMMAND}" -E copy "${first}" "${second}"
    DEPENDS ${inputs} "${BROLK_MANUAL_SOURCE_DIR}/tools/compile_help.cmake"
    VERBATIM)
  set(${out} "${first}" "${second}" PARENT_SCOPE)
endfunction()

# The man page: its own head and tail with two chapters between them. <out> = the files.
function(brolk_manual_man out)
  set(page "${BROLK_MANUAL_DIR}/man/brolkplus.1")
  set(alias "${BROLK_MANUAL_DIR}/man/brolkplus-desktop.1")
  set(sources)
  foreach(name man/head keys settings-file man/tail)
    list(APPEND sources "${BROLK_MANUAL_SOURCE_DIR}/${name}.md")
  endforeach()
  file(MAKE_DIRECTORY "${BROLK_MANUAL_DIR}/man")
  file(WRITE "${alias}" ".so man1/brolkplus.1\n")
  brolk_release_date(date)
  add_custom_command(
    OUTPUT "${page}"
    COMMAND
      "${PANDOC_EXECUTABLE}" ${BROLK_PANDOC_READ} --to=man --standalone
      "--lua-filter=${BROLK_MANUAL_SOURCE_DIR}/tools/manual.lua" --metadata=title:BROLKPLUS
      --metadata=section:1 "--metadata=footer:Brolk Plus ${PROJECT_VERSION}"
      "--metadata=header:User Commands" "--metadata=date:${date}" "--output=${page}" ${sources}
    COMMAND "${CMAKE_COMMAND}" "-DPAGE=${page}" -P
            "${BROLK_MANUAL_SOURCE_DIR}/tools/tidy_man.cmake"
    DEPENDS ${sources} "${BROLK_MANUAL_SOURCE_DIR}/tools/manual.lua"
    VERBATIM)
  set(${out} "${page}" PARENT_SCOPE)
endfunction()

function(brolk_add_manual)
  brolk_manual_chapters(chapters)
  brolk_manual_contents("${chapters}" contents)
  brolk_manual_html("${chapters}" html)
  brolk_manual_man(man)
  set(results ${contents} ${html} ${man})
  set(forms html man)
  if(CHMCMD_EXECUTABLE)
    brolk_manual_chm("${contents};${html}" chm)
    list(APPEND results ${chm})
    list(APPEND forms chm)
  else()
    message(STATUS "Manual: chmcmd (Debian: fp-utils) not found, the help files are left out")
  endif()
  add_custom_target(manual ALL DEPENDS ${results})
  if(TARGET brolkplus AND chm)
    # So that the toolbar's help works from the build folder, too.
    add_custom_command(
      TARGET manual
      POST_BUILD
      COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${chm} "$<TARGET_FILE_DIR:brolkplus>"
      VERBATIM)
  endif()
  set(BROLK_MANUAL_FORMS ${forms} PARENT_SCOPE)
endfunction()

if(BROLK_BUILD_MANUAL AND PANDOC_EXECUTABLE)
  brolk_add_manual()
elseif(BROLK_BUILD_MANUAL)
  message(STATUS "Manual: pandoc not found, the manual is left out")
else()
  message(STATUS "Manual: left out (BROLK_BUILD_MANUAL is off)")
endif()

if(BROLK_BUILD_TESTS)
  add_test(NAME Manual.TellsEveryKeyAndCaption
           COMMAND "${CMAKE_COMMAND}" "-DSOURCE_DIR=${BROLK_MANUAL_SOURCE_DIR}" -P
                   "${BROLK_MANUAL_SOURCE_DIR}/tests/check_captions.cmake")
  add_test(NAME Manual.TellsEveryTextOfTheProgram
           COMMAND sh "${BROLK_MANUAL_SOURCE_DIR}/tests/check_program_texts.sh" "${CMAKE_SOURCE_DIR}")
endif()

if(TARGET manual AND BROLK_BUILD_TESTS)
  add_test(NAME Manual.LinksLeadSomewhere
           COMMAND "${CMAKE_COMMAND}" "-DHTML_DIR=${BROLK_MANUAL_DIR}/html"
                   "-DSOURCE_DIR=${BROLK_MANUAL_SOURCE_DIR}" -P
                   "${BROLK_MANUAL_SOURCE_DIR}/tests/check_links.cmake")
  add_test(NAME Manual.ManPageIsClean
           COMMAND sh "${BROLK_MANUAL_SOURCE_DIR}/tests/check_man.sh"
                   "${BROLK_MANUAL_DIR}/man/brolkplus.1")
  set_tests_properties(Manual.ManPageIsClean PROPERTIES SKIP_RETURN_CODE 77)
  if("chm" IN_LIST BROLK_MANUAL_FORMS)
    add_test(NAME Manual.HelpFilesHoldEveryPage
             COMMAND sh "${BROLK_MANUAL_SOURCE_DIR}/tests/check_help_files.sh" "${BROLK_MANUAL_DIR}")
    set_tests_properties(Manual.HelpFilesHoldEveryPage PROPERTIES SKIP_RETURN_CODE 77)
  endif()
endif()
