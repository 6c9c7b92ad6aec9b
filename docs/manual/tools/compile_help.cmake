# SPDX-License-Identifier: MIT
# Compiles the web pages into one help file.
#
# cmake -DCHMCMD=chmcmd -DHTML_DIR=build/manual/html -DOUTPUT=build/manual/x.chm -P compile_help.cmake

cmake_minimum_required(VERSION 3.25)

# The compiler is known to end with success and no file, so the file itself is the proof.
file(REMOVE "${HTML_DIR}/manual.chm")
execute_process(
  COMMAND "${CHMCMD}" manual.hhp
  WORKING_DIRECTORY "${HTML_DIR}"
  OUTPUT_VARIABLE log
  ERROR_VARIABLE log
  RESULT_VARIABLE status)
if(NOT EXISTS "${HTML_DIR}/manual.chm")
  message(FATAL_ERROR "The help file was not made (status ${status}):\n${log}")
endif()
file(READ "${HTML_DIR}/manual.chm" magic LIMIT 4 HEX)
if(NOT magic STREQUAL "49545346") # "ITSF"
  message(FATAL_ERROR "Not a compiled help file: begins with ${magic}")
endif()
file(RENAME "${HTML_DIR}/manual.chm" "${OUTPUT}")
