# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# kx_add_test(<name> [DISPLAY] [SOURCES <file>...] [LIBS <target>...])
#
# Builds <name> from <name>.cpp (and SOURCES) and registers it with CTest. Without DISPLAY it runs on
# the offscreen platform. With DISPLAY it runs in an X server of its own with a window manager, so
# that real windows, mouse and keys can be tested.

find_package(Qt5 5.15 REQUIRED COMPONENTS Test)

set(KX_TEST_RUNTIME_DIR "${CMAKE_BINARY_DIR}/test-runtime")
file(MAKE_DIRECTORY "${KX_TEST_RUNTIME_DIR}")
file(CHMOD "${KX_TEST_RUNTIME_DIR}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# What a sanitized run needs besides the project: leaks of system libraries are not ours.
set(KX_TEST_ENVIRONMENT
    "XDG_RUNTIME_DIR=${KX_TEST_RUNTIME_DIR}"
    "XDG_CONFIG_HOME=${KX_TEST_RUNTIME_DIR}"
    "QT_LOGGING_RULES=qt.qpa.*=false"
    "LC_ALL=C.UTF-8"
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "ASAN_OPTIONS=detect_leaks=1"
    "UBSAN_OPTIONS=print_stacktrace=1")

function(kx_add_test name)
    cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Test testsupport ${ARG_LIBS} kx_warnings)
    if(ARG_DISPLAY)
        add_test(NAME ${name}
            COMMAND "${CMAKE_SOURCE_DIR}/tests/support/with-display" $<TARGET_FILE:${name}>)
        set_tests_properties(${name} PROPERTIES LABELS display)
        set(platform xcb)
    else()
        add_test(NAME ${name} COMMAND ${name})
        set(platform offscreen)
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    if(KX_TEST_PATIENCE) # the tests run under something that slows them down so many times
        math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * ${KX_TEST_PATIENCE}")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};${KX_TEST_ENVIRONMENT}")
endfunction()
