# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# Installs an existing build into an empty prefix, moves the result, and there
#   - looks for each file that the package promises,
#   - runs the viewer, which has to find library and plug-in by itself,
#   - builds a project that knows nothing but the prefix, and runs it.
#
# Called by CTest with BUILD, OUTSIDE, COMPILER, FLAGS, LAUNCHER, VERSION, BINDIR, LIBDIR and
# DATADIR.

cmake_policy(VERSION 3.25)

set(place "${BUILD}/package-test")
set(prefix "${place}/moved")

function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nreturned ${result}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

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
    share/man/man1/overlay-viewer.1
    ${DATADIR}/examples/title_sheet.json
    ${DATADIR}/examples/images/*.svg
    ${DATADIR}/docs/USER_GUIDE.md
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

run("${CMAKE_COMMAND}" -G Ninja -S "${OUTSIDE}" -B "${place}/outside"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}"
    "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" "-DWANTED_VERSION=${VERSION}"
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run("${CMAKE_COMMAND}" --build "${place}/outside")
run("${place}/outside/outside")
if(NOT output MATCHES "registry 1, slider 12.5, keys 1, entry 1, from ${prefix}/")
    message(FATAL_ERROR "the outside host saw: ${output}")
endif()
file(REMOVE_RECURSE "${place}")
