# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# The minimal host is built from the package alone, its own sources included. It shows its window with
# the editor, and keeps every rule that the installed checks know.

include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")

build_outside("${prefix}/${DATADIR}/examples/minimal_host" minimal_host)

run("${place}/minimal_host/minimal_host" "${place}/minimal_host.png")
without_platform("${output}")
if(NOT output STREQUAL "" OR NOT EXISTS "${place}/minimal_host.png")
    message(FATAL_ERROR "the minimal host did not show its window in silence: ${output}")
endif()

run("${prefix}/${BINDIR}/conformance" --host "${place}/minimal_host/libminimal_services.so")
if(NOT output MATCHES " [1-9][0-9][0-9]+ checks, 0 failed")
    message(FATAL_ERROR "the minimal host was not checked: ${output}")
endif()
