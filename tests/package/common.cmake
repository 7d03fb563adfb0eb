# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# What the scripts of this folder share. CTest gives them BUILD, COMPILER, FLAGS, LAUNCHER, VERSION,
# BINDIR, LIBDIR and DATADIR.

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

# The platform without a display says so of every window that has a smallest size.
function(without_platform text)
    string(REPLACE "This plugin does not support propagateSizeHints()\n" "" text "${text}")
    set(output "${text}" PARENT_SCOPE)
endfunction()

# A project that knows nothing but the prefix, as somebody else would build it.
function(build_outside source name) # and definitions of its own
    run("${CMAKE_COMMAND}" -G Ninja -S "${source}" -B "${place}/${name}"
        "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
        "-DCMAKE_CXX_FLAGS=${FLAGS}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
        -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF ${ARGN})
    run("${CMAKE_COMMAND}" --build "${place}/${name}")
endfunction()
