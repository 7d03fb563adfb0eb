# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# A host of somebody else is built against the installed package, and runs.

include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")

build_outside("${CMAKE_CURRENT_LIST_DIR}/outside" outside "-DWANTED_VERSION=${VERSION}")
run("${place}/outside/outside")
if(NOT output MATCHES "registry 1, slider 12.5, keys 1, entry 1, from ${prefix}/")
    message(FATAL_ERROR "the outside host saw: ${output}")
endif()
