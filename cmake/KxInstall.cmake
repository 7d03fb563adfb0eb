# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
#
# Where things go when the project is installed, and the Debian package that CPack makes of it.
# Included once, before the first target; each folder installs what it builds.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Below it lies host/, so that includes read the same inside and outside of the project.
set(KX_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/overlay-editor")
set(KX_INSTALL_PLUGINDIR "${CMAKE_INSTALL_LIBDIR}/overlay-editor")
set(KX_INSTALL_DATADIR "${CMAKE_INSTALL_DATADIR}/overlay-editor")
set(KX_INSTALL_TRANSLATIONSDIR "${KX_INSTALL_DATADIR}/translations")
set(KX_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/kxhost")

# From the folder of the executables, so that an installed tree can be moved.
file(RELATIVE_PATH KX_PLUGINDIR_FROM_BINDIR
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}/overlay-editor")
file(RELATIVE_PATH KX_DATADIR_FROM_BINDIR
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_DATADIR}/overlay-editor")
file(RELATIVE_PATH KX_LIBDIR_FROM_BINDIR "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")

# kx_install_package(): the files that belong to no target, the CMake package and the settings of CPack.
function(kx_install_package)
    install(DIRECTORY host/ DESTINATION "${KX_INSTALL_INCLUDEDIR}/host" FILES_MATCHING PATTERN "*.h")
    install(EXPORT kxhostTargets NAMESPACE kxhost:: DESTINATION "${KX_INSTALL_CMAKEDIR}")
    configure_package_config_file(packaging/kxhostConfig.cmake.in
        "${CMAKE_BINARY_DIR}/kxhostConfig.cmake"
        INSTALL_DESTINATION "${KX_INSTALL_CMAKEDIR}"
        PATH_VARS KX_INSTALL_PLUGINDIR KX_INSTALL_DATADIR)
    write_basic_package_version_file("${CMAKE_BINARY_DIR}/kxhostConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES
        "${CMAKE_BINARY_DIR}/kxhostConfig.cmake" "${CMAKE_BINARY_DIR}/kxhostConfigVersion.cmake"
        DESTINATION "${KX_INSTALL_CMAKEDIR}")

    install(FILES packaging/overlay-viewer.desktop
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
    install(FILES hostlib/icons/Application.svg RENAME overlay-viewer.svg
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
    install(FILES packaging/overlay-viewer.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES examples/title_sheet.json DESTINATION "${KX_INSTALL_DATADIR}/examples")
    install(DIRECTORY examples/images examples/minimal_host DESTINATION "${KX_INSTALL_DATADIR}/examples")
    install(FILES README.md CHANGES.md LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    install(FILES docs/HOST_GUIDE.md docs/CONFORMANCE.md docs/HEADLESS.md docs/SCENE_FORMAT.md
        DESTINATION "${CMAKE_INSTALL_DOCDIR}")
endfunction()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME overlay-editor)
set(CPACK_PACKAGE_VENDOR "the Overlay Editor authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for text and images that lie over a 3D view")
set(CPACK_PACKAGE_DESCRIPTION
    "A plug-in for 3D visualisation applications that manages their overlays, the host library and
headers that it is built against, and a viewer to try it in.")
set(CPACK_PACKAGE_CONTACT "the Overlay Editor authors <overlay-editor@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where the package's own library is found.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/bin")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qttranslations5-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qtbase5-dev, cmake, fonts-noto-cjk")
