# What `cmake --install` lays down and `cpack -G DEB` packs: the plug-in, what a host compiles against, the reference
# host and the simulated camera, with their manual pages.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A plug-in is loaded, not linked: it lies in a folder of its own, which no linker searches.
set(QDV12_MODULE_DIR lib/qdv12)
install(TARGETS qdv12ctrl LIBRARY DESTINATION ${QDV12_MODULE_DIR})
install(TARGETS qdv12host qdv12sim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY Include/SDK4 DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QDV12Control)
install(TARGETS SDK4 EXPORT QDV12ControlTargets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT QDV12ControlTargets NAMESPACE QDV12Control:: DESTINATION ${package_dir})
configure_package_config_file(cmake/QDV12ControlConfig.cmake.in QDV12ControlConfig.cmake
    INSTALL_DESTINATION ${package_dir} PATH_VARS QDV12_MODULE_DIR)
# Before version 1, a minor version may break what the one before promised.
write_basic_package_version_file(QDV12ControlConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/QDV12ControlConfig.cmake ${CMAKE_BINARY_DIR}/QDV12ControlConfigVersion.cmake
    DESTINATION ${package_dir})

configure_file(cmake/qdv12control.pc.in qdv12control.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/qdv12control.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The manual pages are what the programs say of themselves.
find_program(HELP2MAN help2man)
function(qdv12_add_manual program about)
    set(page ${CMAKE_BINARY_DIR}/${program}.1)
    add_custom_command(OUTPUT ${page}
        COMMAND ${HELP2MAN} --no-info --section=1 --name ${about} --output=${page} $<TARGET_FILE:${program}>
        DEPENDS ${program} VERBATIM)
    add_custom_target(${program}_manual ALL DEPENDS ${page})
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()
if(HELP2MAN AND NOT QDV12_SANITIZERS)
    qdv12_add_manual(qdv12host "drive GigE Vision cameras through libqdv12ctrl.so")
    qdv12_add_manual(qdv12sim "put a simulated GigE Vision camera on the network")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qdv12control)
set(CPACK_PACKAGE_VENDOR "QDV12 Control")
set(CPACK_PACKAGE_CONTACT "QDV12 Control <qdv12control@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "camera-control plug-in for GigE Vision cameras")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "The plug-in libqdv12ctrl.so turns the registers of Orvik and M2VX cameras into
typed, guarded camera functions for the host application that loads it.
.
The plug-in takes log4cxx from its host: a host that loads it must itself be
linked with the shared log4cxx, or loading fails with undefined symbols.
.
The package also holds the headers and the CMake and pkg-config files that a
host is built with, the reference host qdv12host with simulated cameras, and
qdv12sim, which puts a simulated camera on the network.")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
