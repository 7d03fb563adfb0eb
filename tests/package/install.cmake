# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# Installs an existing build into an empty prefix, moves the result, looks for each file that the
# package promises, and runs the viewer, which has to find library and plug-in by itself.

include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")

function(want_files)
    foreach(pattern IN LISTS ARGN)
        file(GLOB found "${prefix}/${pattern}")
        if(NOT found)
            message(FATAL_ERROR "the package lacks ${pattern}")
        endif()
    endforeach()
endfunction()

file(REMOVE_RECURSE "${place}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${place}/installed")
file(RENAME "${place}/installed" "${prefix}")

want_files(
    ${BINDIR}/overlay-viewer
    ${BINDIR}/conformance
    include/overlay-editor/host/kxOverlayService.h
    include/overlay-editor/host/initPlugin.h
    ${LIBDIR}/libkxhost.so
    ${LIBDIR}/overlay-editor/overlayeditor.so
    ${LIBDIR}/cmake/kxhost/kxhostConfig.cmake
    ${LIBDIR}/cmake/kxhost/kxhostConfigVersion.cmake
    share/applications/overlay-viewer.desktop
    share/icons/hicolor/scalable/apps/overlay-viewer.svg
    share/man/man1/overlay-viewer.1.gz
    share/man/man1/conformance.1.gz
    share/doc/overlay-editor/README.md
    share/doc/overlay-editor/copyright
    share/doc/overlay-editor/api/index.html
    share/doc/overlay-editor/api/classkxOverlayService.html
    ${DATADIR}/examples/title_sheet.json
    ${DATADIR}/examples/images/*.svg
    ${DATADIR}/docs/USER_GUIDE.md
    ${DATADIR}/docs/SCRIPTING.md
    ${DATADIR}/docs/HEADLESS.md
    ${DATADIR}/docs/HOST_GUIDE.md
    ${DATADIR}/docs/CONFORMANCE.md
    ${DATADIR}/host/kxOverlayService.h
    ${DATADIR}/examples/minimal_host/CMakeLists.txt
    ${DATADIR}/translations/*_de.qm
    ${DATADIR}/translations/*_zh_CN.qm)

run("${prefix}/${BINDIR}/overlay-viewer" --headless
    --scene "${prefix}/${DATADIR}/examples/title_sheet.json" --export "${place}/sheet.png"
    --size 320x180)
if(NOT output STREQUAL "" OR NOT EXISTS "${place}/sheet.png")
    message(FATAL_ERROR "the installed viewer did not export its scene in silence: ${output}")
endif()

run("${prefix}/${BINDIR}/overlay-viewer" --locale de --help)
if(NOT output MATCHES "Diese Hilfe anzeigen")
    message(FATAL_ERROR "the installed viewer does not find its translations: ${output}")
endif()
