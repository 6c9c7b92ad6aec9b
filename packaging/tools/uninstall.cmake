# SPDX-License-Identifier: MIT
# Takes away what the last `cmake --install` put in place: its files, and the folders that it made,
# as far as they are empty.
#
# cmake -DBUILD_DIR=build -P uninstall.cmake

cmake_minimum_required(VERSION 3.25)
set(manifest "${BUILD_DIR}/install_manifest.txt")
set(folderList "${BUILD_DIR}/install_folders.txt")
if(NOT EXISTS "${manifest}")
  message(FATAL_ERROR "Nothing was installed from ${BUILD_DIR}")
endif()

file(STRINGS "${manifest}" files)
foreach(file IN LISTS files)
  if(EXISTS "$ENV{DESTDIR}${file}" OR IS_SYMLINK "$ENV{DESTDIR}${file}")
    message(STATUS "Removing: $ENV{DESTDIR}${file}")
    file(REMOVE "$ENV{DESTDIR}${file}")
  else()
    message(STATUS "Gone already: $ENV{DESTDIR}${file}")
  endif()
endforeach()

if(EXISTS "${folderList}")
  file(STRINGS "${folderList}" folders)
  list(SORT folders ORDER DESCENDING) # a folder comes before the one it lies in
  foreach(folder IN LISTS folders)
    file(GLOB content "$ENV{DESTDIR}${folder}/*" "$ENV{DESTDIR}${folder}/.*")
    list(FILTER content EXCLUDE REGEX "/[.][.]?$")
    if(IS_DIRECTORY "$ENV{DESTDIR}${folder}" AND NOT content)
      message(STATUS "Removing: $ENV{DESTDIR}${folder}")
      file(REMOVE_RECURSE "$ENV{DESTDIR}${folder}")
    endif()
  endforeach()
endif()
file(REMOVE "${manifest}" "${folderList}")
