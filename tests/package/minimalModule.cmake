# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# The minimal module is built from the package alone, and the installed viewer shows it.

include("${CMAKE_CURRENT_LIST_DIR}/common.cmake")

build_outside("${prefix}/${DATADIR}/examples/minimal_module" minimal_module)
run("${prefix}/${BINDIR}/overlay-viewer" --no-gl --screenshot "${place}/minimal_module.png"
    --plugin "${place}/minimal_module/libminimal_module.so"
    "${prefix}/${DATADIR}/examples/title_sheet.json")
without_platform("${output}")
if(NOT output STREQUAL "" OR NOT EXISTS "${place}/minimal_module.png")
    message(FATAL_ERROR "the viewer did not show the minimal module in silence: ${output}")
endif()
