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
    kx_install_manual(overlay-viewer conformance)
    install(FILES examples/title_sheet.json DESTINATION "${KX_INSTALL_DATADIR}/examples")
    install(DIRECTORY examples/images examples/minimal_host examples/minimal_module
        DESTINATION "${KX_INSTALL_DATADIR}/examples")
    kx_install_documents()
endfunction()

# kx_install_manual(program...): a page each, compressed as the system's own.
function(kx_install_manual)
    find_program(KX_GZIP gzip REQUIRED)
    foreach(program IN LISTS ARGN)
        set(page "${CMAKE_BINARY_DIR}/man/${program}.1.gz")
        add_custom_command(OUTPUT "${page}"
            COMMAND "${KX_GZIP}" -9nc "${CMAKE_SOURCE_DIR}/packaging/${program}.1" > "${page}"
            DEPENDS "packaging/${program}.1"
            VERBATIM)
        list(APPEND pages "${page}")
    endforeach()
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/man")
    add_custom_target(manual ALL DEPENDS ${pages})
    install(FILES ${pages} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endfunction()

# The guides lie beside the examples and the headers, as here, so that their links hold.
function(kx_install_documents)
    install(FILES docs/HOST_GUIDE.md docs/CONFORMANCE.md docs/SCENE_FORMAT.md
        DESTINATION "${KX_INSTALL_DATADIR}/docs")
    file(RELATIVE_PATH headers
        "${CMAKE_INSTALL_FULL_DATADIR}/overlay-editor" "${CMAKE_INSTALL_FULL_INCLUDEDIR}/overlay-editor/host")
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/links")
    file(CREATE_LINK "${headers}" "${CMAKE_BINARY_DIR}/links/host" SYMBOLIC)
    install(FILES "${CMAKE_BINARY_DIR}/links/host" DESTINATION "${KX_INSTALL_DATADIR}")

    install(FILES packaging/README.in RENAME README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    install(FILES CHANGES.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    install(FILES LICENSE RENAME copyright DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    kx_add_pages()
endfunction()

# kx_add_pages(): the pages of the host interface, made with everything else and installed.
function(kx_add_pages)
    find_package(Doxygen REQUIRED)
    set(folder "${CMAKE_BINARY_DIR}/api")
    file(WRITE "${folder}/Doxyfile"
        "@INCLUDE = docs/api/Doxyfile\nOUTPUT_DIRECTORY = \"${folder}\"\nGENERATE_XML = NO\n"
        "PROJECT_NUMBER = ${PROJECT_VERSION}\nWARN_AS_ERROR = YES\n")
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/docs/api/*" "${CMAKE_SOURCE_DIR}/host/*.h")
    add_custom_command(OUTPUT "${folder}/html/index.html"
        COMMAND Doxygen::doxygen "${folder}/Doxyfile"
        WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}"
        DEPENDS ${sources}
        COMMENT "Making the pages of the host interface"
        VERBATIM)
    add_custom_target(api ALL DEPENDS "${folder}/html/index.html")
    install(DIRECTORY "${folder}/html/" DESTINATION "${CMAKE_INSTALL_DOCDIR}/api")
endfunction()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME overlay-editor)
set(CPACK_PACKAGE_VENDOR "the Overlay Editor authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for text and images that lie over a 3D view")
set(CPACK_PACKAGE_DESCRIPTION
    "A plug-in for 3D visualisation applications that manages their overlays,
the host library and headers that it is built against, a viewer to try it in
and a program that checks hosts and modules.")
set(CPACK_PACKAGE_CONTACT "the Overlay Editor authors <overlay-editor@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Where the package's own library is found.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/bin")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qttranslations5-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qtbase5-dev, cmake, fonts-noto-cjk")
