# SPDX-License-Identifier: MIT
# Writes what is made from all chapters' headings together: the list of chapters on the front page
# (contents.html) and the project, contents and index of the compiled help (html/manual.hh?).
#
# cmake -DSOURCE_DIR=docs/manual -DOUTPUT_DIR=build/manual -P contents.cmake

cmake_minimum_required(VERSION 3.25)
set(windowTitle "Brolk Plus manual")

# The anchor that the page builder gives to a heading of letters, digits and blanks.
function(heading_anchor heading out)
  string(TOLOWER "${heading}" anchor)
  string(REGEX REPLACE "[^a-z0-9 ._-]" "" anchor "${anchor}")
  string(REPLACE " " "-" anchor "${anchor}")
  set(${out} "${anchor}" PARENT_SCOPE)
endfunction()

# One entry of a help contents or index file.
function(sitemap_entry indent title target out)
  set(${out}
      "${indent}<LI><OBJECT type=\"text/sitemap\">
${indent}<param name=\"Name\" value=\"${title}\">
${indent}<param name=\"Local\" value=\"${target}\">
${indent}</OBJECT>
"   PARENT_SCOPE)
endfunction()

file(STRINGS "${SOURCE_DIR}/chapters.txt" chapters REGEX "^[a-z]")
set(frontList)
set(contentsTree)
set(indexEntries)
set(pages)
foreach(chapter IN LISTS chapters)
  string(APPEND pages "${chapter}.html\n")
  file(STRINGS "${SOURCE_DIR}/${chapter}.md" headings REGEX "^##? ")
  set(sections)
  foreach(heading IN LISTS headings)
    string(REGEX REPLACE "^##? " "" title "${heading}")
    if(heading MATCHES "^# ")
      set(target "${chapter}.html")
      sitemap_entry("" "${title}" "${target}" entry)
      string(APPEND contentsTree "${entry}")
      if(NOT chapter STREQUAL "index")
        string(APPEND frontList "<li><a href=\"${target}\">${title}</a></li>\n")
      endif()
    else()
      heading_anchor("${title}" anchor)
      set(target "${chapter}.html#${anchor}")
      sitemap_entry("  " "${title}" "${target}" entry)
      string(APPEND sections "${entry}")
    endif()
    sitemap_entry("" "${title}" "${target}" entry)
    list(APPEND indexEntries "${title}@${entry}")
  endforeach()
  if(sections)
    string(APPEND contentsTree "<UL>\n${sections}</UL>\n")
  endif()
endforeach()

list(SORT indexEntries CASE INSENSITIVE)
list(TRANSFORM indexEntries REPLACE "^[^@]*@" "")
list(JOIN indexEntries "" indexText)

set(sitemapHead "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\n<HTML><BODY>\n<UL>\n")
file(WRITE "${OUTPUT_DIR}/contents.html" "<h2 id=\"all-chapters\">All chapters</h2>\n<ol>\n${frontList}</ol>\n")
file(WRITE "${OUTPUT_DIR}/html/manual.hhc" "${sitemapHead}${contentsTree}</UL>\n</BODY></HTML>\n")
file(WRITE "${OUTPUT_DIR}/html/manual.hhk" "${sitemapHead}${indexText}</UL>\n</BODY></HTML>\n")
file(WRITE "${OUTPUT_DIR}/html/manual.hhp"
     "[OPTIONS]
Compatibility=1.1 or later
Compiled file=manual.chm
Contents file=manual.hhc
Index file=manual.hhk
Default topic=index.html
Title=${windowTitle}
Language=0x409 English (United States)
Full-text search=Yes

[FILES]
${pages}manual.css
")
