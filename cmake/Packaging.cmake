# SPDX-License-Identifier: MIT
# What `cmake --install`, the target `uninstall` and `cpack` do; on Windows without what is only for
# Linux desktops. docs/decisions/0001-install-layout.md
# tells why things lie where they lie. Comes after cmake/Manual.cmake and the target brolkplus.

include(GNUInstallDirs)

set(BROLK_APP_ID org.example.brolkplus)
set(BROLK_MAINTAINER "Brolk Plus developers <maintainers@example.org>")
set(BROLK_PACKAGING_DIR "${CMAKE_SOURCE_DIR}/packaging")
set(BROLK_PACKAGING_OUT "${CMAKE_BINARY_DIR}/packaging")
# The program's own folder; the help file of the toolbar lies beside the program.
if(WIN32)
  set(BROLK_PROGRAM_DIR bin)
else()
  set(BROLK_PROGRAM_DIR lib/brolkplus)
endif()
set(BROLK_DOC_DIR "${CMAKE_INSTALL_DATADIR}/doc/brolkplus")
set(BROLK_ICON_SIZES 16 22 24 32 48 64 128 256)

find_program(GZIP_EXECUTABLE gzip)
find_program(RSVG_CONVERT_EXECUTABLE rsvg-convert)
mark_as_advanced(GZIP_EXECUTABLE RSVG_CONVERT_EXECUTABLE)

# <file> packed without name and date, so that the same source gives the same package. <out> = path.
function(brolk_gzip file out)
  get_filename_component(name "${file}" NAME)
  set(packed "${BROLK_PACKAGING_OUT}/${name}.gz")
  add_custom_command(
    OUTPUT "${packed}"
    COMMAND "${GZIP_EXECUTABLE}" -9nc "${file}" > "${packed}"
    DEPENDS "${file}"
    VERBATIM)
  set(${out} "${packed}" PARENT_SCOPE)
endfunction()

# The icon in fixed sizes for desktops that do not draw SVG. <out> = files.
function(brolk_icon_pictures out)
  set(pictures)
  foreach(size IN LISTS BROLK_ICON_SIZES)
    set(picture "${BROLK_PACKAGING_OUT}/icons/${size}/${BROLK_APP_ID}.png")
    file(MAKE_DIRECTORY "${BROLK_PACKAGING_OUT}/icons/${size}")
    add_custom_command(
      OUTPUT "${picture}"
      COMMAND "${RSVG_CONVERT_EXECUTABLE}" --width=${size} --height=${size} "--output=${picture}"
              "${CMAKE_SOURCE_DIR}/assets/icons/brolkplus.svg"
      DEPENDS "${CMAKE_SOURCE_DIR}/assets/icons/brolkplus.svg"
      VERBATIM)
    list(APPEND pictures "${picture}")
    install(FILES "${picture}"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
  endforeach()
  set(${out} ${pictures} PARENT_SCOPE)
endfunction()

# Metainfo, changelog and copyright file. <out> = files.
function(brolk_generated_files out)
  set(files)
  foreach(name ${BROLK_APP_ID}.metainfo.xml changelog copyright)
    list(APPEND files "${BROLK_PACKAGING_OUT}/${name}")
  endforeach()
  add_custom_command(
    OUTPUT ${files}
    COMMAND "${CMAKE_COMMAND}" "-DSOURCE_DIR=${CMAKE_SOURCE_DIR}"
            "-DOUTPUT_DIR=${BROLK_PACKAGING_OUT}" "-DMAINTAINER=${BROLK_MAINTAINER}" -P
            "${BROLK_PACKAGING_DIR}/tools/generate.cmake"
    DEPENDS "${CMAKE_SOURCE_DIR}/CHANGELOG.md" "${CMAKE_SOURCE_DIR}/LICENSE"
            "${BROLK_PACKAGING_DIR}/copyright"
            "${BROLK_PACKAGING_DIR}/${BROLK_APP_ID}.metainfo.xml.in"
            "${BROLK_PACKAGING_DIR}/tools/generate.cmake"
            "${BROLK_PACKAGING_DIR}/tools/release_notes.cmake"
    VERBATIM)
  set(${out} ${files} PARENT_SCOPE)
endfunction()

# The program in its folder, a link to it on the path, and the starter of the desktop's menu.
function(brolk_install_program)
  install(TARGETS brolkplus RUNTIME DESTINATION "${BROLK_PROGRAM_DIR}")
  if(WIN32)
    return()
  endif()
  file(CREATE_LINK "../${BROLK_PROGRAM_DIR}/brolkplus" "${BROLK_PACKAGING_OUT}/brolkplus" SYMBOLIC)
  install(FILES "${BROLK_PACKAGING_OUT}/brolkplus" DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install(PROGRAMS "${BROLK_PACKAGING_DIR}/brolkplus-desktop"
          DESTINATION "${CMAKE_INSTALL_BINDIR}")
endfunction()

# Desktop entry, metainfo, file types, icons. <out> = files to build.
function(brolk_install_desktop_files generated out)
  install(FILES "${BROLK_PACKAGING_DIR}/${BROLK_APP_ID}.desktop"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${BROLK_PACKAGING_OUT}/${BROLK_APP_ID}.metainfo.xml"
          DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(FILES "${BROLK_PACKAGING_DIR}/brolkplus-mime.xml" RENAME brolkplus.xml
          DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
  install(FILES "${CMAKE_SOURCE_DIR}/assets/icons/brolkplus.svg" RENAME ${BROLK_APP_ID}.svg
          DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
  set(pictures)
  if(RSVG_CONVERT_EXECUTABLE)
    brolk_icon_pictures(pictures)
  else()
    message(STATUS "Packaging: rsvg-convert not found, the icon is installed as SVG only")
  endif()
  set(${out} ${generated} ${pictures} PARENT_SCOPE)
endfunction()

# Licence, changelog, web pages, help files and man page. <out> = files to build.
function(brolk_install_documents out)
  set(built)
  install(FILES "${BROLK_PACKAGING_OUT}/copyright" DESTINATION "${BROLK_DOC_DIR}")
  if(GZIP_EXECUTABLE)
    brolk_gzip("${BROLK_PACKAGING_OUT}/changelog" changelog)
    list(APPEND built "${changelog}")
    install(FILES "${changelog}" DESTINATION "${BROLK_DOC_DIR}")
  endif()
  if("html" IN_LIST BROLK_MANUAL_FORMS)
    install(DIRECTORY "${CMAKE_BINARY_DIR}/manual/html/" DESTINATION "${BROLK_DOC_DIR}/manual"
            PATTERN "*.hh?" EXCLUDE)
  endif()
  if("chm" IN_LIST BROLK_MANUAL_FORMS)
    install(FILES "${CMAKE_BINARY_DIR}/manual/BrolkPlus-Help.chm"
                  "${CMAKE_BINARY_DIR}/manual/Brolk Plus Help file.chm"
            DESTINATION "${BROLK_PROGRAM_DIR}")
  endif()
  if("man" IN_LIST BROLK_MANUAL_FORMS AND GZIP_EXECUTABLE)
    foreach(page brolkplus.1 brolkplus-desktop.1)
      brolk_gzip("${CMAKE_BINARY_DIR}/manual/man/${page}" packed)
      list(APPEND built "${packed}")
      install(FILES "${packed}" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    endforeach()
  endif()
  set(${out} ${built} PARENT_SCOPE)
endfunction()

# The sample ROMs, where Debian keeps examples; nothing if this build makes none.
function(brolk_install_samples)
  get_directory_property(samples DIRECTORY "${CMAKE_SOURCE_DIR}/samples" DEFINITION sample_files)
  if(samples)
    install(FILES ${samples} DESTINATION "${BROLK_DOC_DIR}/examples")
  else()
    message(STATUS "Packaging: this build makes no sample ROMs, they are left out")
  endif()
endfunction()

# Every folder that an installation can have to make, for the uninstall.
function(brolk_record_install_folders)
  set(BROLK_INSTALL_FOLDERS
      "${CMAKE_INSTALL_BINDIR}" "${BROLK_PROGRAM_DIR}" "${CMAKE_INSTALL_DATADIR}/applications"
      "${CMAKE_INSTALL_DATADIR}/metainfo" "${CMAKE_INSTALL_DATADIR}/mime/packages"
      "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" "${BROLK_DOC_DIR}/manual/icons"
      "${BROLK_DOC_DIR}/manual/pictures" "${BROLK_DOC_DIR}/examples"
      "${CMAKE_INSTALL_MANDIR}/man1")
  foreach(size IN LISTS BROLK_ICON_SIZES)
    list(APPEND BROLK_INSTALL_FOLDERS
         "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
  endforeach()
  configure_file("${BROLK_PACKAGING_DIR}/tools/record_folders.cmake.in"
                 "${BROLK_PACKAGING_OUT}/record_folders.cmake" @ONLY)
  install(SCRIPT "${BROLK_PACKAGING_OUT}/record_folders.cmake")
endfunction()

function(brolk_add_install)
  file(MAKE_DIRECTORY "${BROLK_PACKAGING_OUT}")
  brolk_record_install_folders()
  brolk_generated_files(generated)
  brolk_install_program()
  set(desktopFiles ${generated})
  if(NOT WIN32)
    brolk_install_desktop_files("${generated}" desktopFiles)
  endif()
  brolk_install_documents(documents)
  brolk_install_samples()
  add_custom_target(packaging ALL DEPENDS ${desktopFiles} ${documents})
  if(TARGET manual)
    add_dependencies(packaging manual)
  endif()
  add_custom_target(
    uninstall
    COMMAND "${CMAKE_COMMAND}" "-DBUILD_DIR=${CMAKE_BINARY_DIR}" -P
            "${BROLK_PACKAGING_DIR}/tools/uninstall.cmake"
    VERBATIM)
endfunction()

brolk_add_install()

# ---- The Debian package: cpack --config build/CPackConfig.cmake ----
if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
set(CPACK_PACKAGE_NAME brolkplus)
set(CPACK_PACKAGE_VENDOR "Brolk Plus developers")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${BROLK_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://example.org/brolkplus")
set(CPACK_STRIP_FILES ON)
# Whatever the umask of the one who builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The toolkit loads its display plugins by name, which no library dependency shows.
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)
# A viewer for compiled help, and what finds the folder of documents.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "kchmviewer | xchm, xdg-user-dirs")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer and editor for the graphics in ROM images")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Brolk Plus shows the bytes of a file as a page of tiles in one of 15 graphics
modes. Tiles are taken into an editor, painted, flipped and rotated, and
written back to the place in the file that they came from.

Palettes come from the program's own files, from pictures, from save states
of emulators and from the ROM itself. Tiles can be exchanged with paint
programs and written as C source.")
include(CPack)

if(BROLK_BUILD_TESTS)
  add_test(NAME Packaging.MetainfoTellsTheChangelog
           COMMAND "${CMAKE_COMMAND}" "-DCHANGELOG=${CMAKE_SOURCE_DIR}/CHANGELOG.md"
                   "-DMETAINFO=${BROLK_PACKAGING_OUT}/${BROLK_APP_ID}.metainfo.xml"
                   "-DVERSION=${PROJECT_VERSION}" -P
                   "${BROLK_PACKAGING_DIR}/tests/check_release_notes.cmake")
  add_test(NAME Packaging.EveryRomNameHasItsType
           COMMAND sh "${BROLK_PACKAGING_DIR}/tests/check_mime.sh"
                   "${BROLK_PACKAGING_DIR}/brolkplus-mime.xml")
  set_tests_properties(Packaging.EveryRomNameHasItsType PROPERTIES SKIP_RETURN_CODE 77)
endif()
