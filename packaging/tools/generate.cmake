# SPDX-License-Identifier: MIT
# Writes the packaging files that are made from CHANGELOG.md and LICENSE.
#
# cmake -DSOURCE_DIR=. -DOUTPUT_DIR=build/packaging -DMAINTAINER="Name <mail>" -P generate.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/release_notes.cmake")

brolk_read_changelog("${SOURCE_DIR}/CHANGELOG.md")
brolk_metainfo_releases(BROLK_RELEASES)
configure_file("${SOURCE_DIR}/packaging/org.example.brolkplus.metainfo.xml.in"
               "${OUTPUT_DIR}/org.example.brolkplus.metainfo.xml" @ONLY)
brolk_debian_changelog("${MAINTAINER}" changelog)
file(WRITE "${OUTPUT_DIR}/changelog" "${changelog}")

# The copyright file holds the licence's own words: its "Copyright (c) ..." line as a field, the
# rest indented, empty lines as " .".
file(READ "${SOURCE_DIR}/LICENSE" licence)
if(NOT licence MATCHES "Copyright \\(c\\) ([^\n]*)\n+(.*)$")
  message(FATAL_ERROR "LICENSE has no copyright line")
endif()
set(BROLK_COPYRIGHT "${CMAKE_MATCH_1}")
string(STRIP "${CMAKE_MATCH_2}" body)
string(REPLACE "\n" "\n " BROLK_LICENCE " ${body}")
string(REPLACE "\n \n" "\n .\n" BROLK_LICENCE "${BROLK_LICENCE}")
configure_file("${SOURCE_DIR}/packaging/copyright" "${OUTPUT_DIR}/copyright" @ONLY)
