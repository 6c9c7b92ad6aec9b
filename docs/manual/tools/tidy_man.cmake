# SPDX-License-Identifier: MIT
# Takes the paragraph macros behind section titles out of a man page; strict checkers mind them.
#
# cmake -DPAGE=brolkplus.1 -P tidy_man.cmake

cmake_minimum_required(VERSION 3.25)
file(READ "${PAGE}" text)
string(REGEX REPLACE "(\n[.]S[HS][^\n]*\n)[.]PP\n" "\\1" text "${text}")
file(WRITE "${PAGE}" "${text}")
