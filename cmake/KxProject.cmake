# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# Settings that every target of the project shares. Included once, by the top CMakeLists.txt.

option(KX_BUILD_TESTS "Build the tests" ON)
option(KX_BUILD_BENCH "Build the benchmarks" ON)
# Shared, with everything visible, they can be exchanged below tests that are linked already.
option(KX_SHARED_PARTS "Make the parts that mutants are made of shared libraries" OFF)
option(KX_FUZZ "Build the fuzzers; needs clang" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

find_program(KX_CCACHE ccache)
if(KX_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${KX_CCACHE}")
endif()

# The kind of library that a part is from which mutants are made, in the variable `kind`.
macro(kx_part_kind usual)
    set(kind ${usual})
    if(KX_SHARED_PARTS)
        set(kind SHARED)
        set(CMAKE_CXX_VISIBILITY_PRESET default)
    endif()
endmacro()

# Every target of ours links kx_warnings, that of a product by way of kx_options. Warnings are
# errors; in products Qt's implicit conversions of character arrays are off too, so that every text
# says whether it is to be translated.
add_library(kx_warnings INTERFACE)
target_compile_options(kx_warnings INTERFACE
    -Wall -Wextra -Wshadow -Woverloaded-virtual -Wnon-virtual-dtor -Werror)
target_compile_definitions(kx_warnings INTERFACE
    QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050f00 QT_NO_FOREACH)
target_include_directories(kx_warnings INTERFACE "${CMAKE_SOURCE_DIR}")

add_library(kx_options INTERFACE)
target_link_libraries(kx_options INTERFACE kx_warnings)
target_compile_definitions(kx_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY)
