# SPDX-License-Identifier: MIT
# Flags that every target of the project shares.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

if(BROLK_QUICK)
  set(CMAKE_CXX_FLAGS_DEBUG "-O0")
endif()

add_library(brolk_flags INTERFACE)
if(MSVC)
  target_compile_options(brolk_flags INTERFACE /W4 $<$<BOOL:${BROLK_WERROR}>:/WX>)
else()
  target_compile_options(brolk_flags INTERFACE -Wall -Wextra -Wpedantic $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
    $<$<BOOL:${BROLK_WERROR}>:-Werror>)
endif()
# g++ 12 sees overlapping copies in every joining of strings that it inlines; there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(brolk_flags INTERFACE -Wno-restrict)
endif()
if(BROLK_SANITIZE)
  set(brolk_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(brolk_flags INTERFACE ${brolk_sanitizers})
  target_link_options(brolk_flags INTERFACE ${brolk_sanitizers})
endif()
