# Installed by `cmake --install` and packed by `cpack -G DEB`: the plug-in, the headers and CMake files for hosts, the
# reference host and the simulated camera with their manual pages, the documents and examples.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# qdv12_install_compressed(DESTINATION FILE...): installs files of the build folder as FILE.gz, in the form that Debian
# requires of manual pages and changelogs.
function(qdv12_install_compressed destination)
    foreach(file ${ARGN})
        install(CODE "
            execute_process(COMMAND gzip --best --no-name --keep --force \"${file}\" COMMAND_ERROR_IS_FATAL ANY)
            file(INSTALL \"${file}.gz\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${destination}\")")
    endforeach()
endfunction()

set(products qdv12ctrl)
set(files $<TARGET_FILE:qdv12ctrl>)
if(QDV12_BUILD_TOOLS)
    list(APPEND products qdv12host qdv12sim)
    list(APPEND files $<TARGET_FILE:qdv12host> $<TARGET_FILE:qdv12sim>)
    find_program(HELP2MAN help2man)
endif()

# The manual pages are generated from the help of the programs and of their commands.
function(qdv12_add_manual program about)
    set(page ${CMAKE_BINARY_DIR}/${program}.1)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_SOURCE_DIR}/cmake/manual ${HELP2MAN} $<TARGET_FILE:${program}> ${about}
            ${CMAKE_SOURCE_DIR}/cmake/${program}.h2m ${page}
        DEPENDS ${program} cmake/manual cmake/${program}.h2m VERBATIM)
    add_custom_target(${program}_manual ALL DEPENDS ${page})
endfunction()
if(QDV12_BUILD_TOOLS AND HELP2MAN AND NOT QDV12_SANITIZERS)
    qdv12_add_manual(qdv12host "control GigE Vision cameras through libqdv12ctrl.so")
    qdv12_add_manual(qdv12sim "simulate a GigE Vision camera on the network")
    set(manuals ${CMAKE_BINARY_DIR}/qdv12host.1 ${CMAKE_BINARY_DIR}/qdv12sim.1)
    list(APPEND products qdv12host_manual qdv12sim_manual)
    list(APPEND files ${manuals})
endif()

# `cmake --install` does not build. If something is not built, it fails before it installs anything.
add_custom_target(qdv12_product DEPENDS ${products})
install(CODE "
    foreach(file ${files})
        if(NOT EXISTS \"\${file}\")
            message(FATAL_ERROR \"not built yet: \${file}; build it first:\n\"
                \"  cmake --build ${CMAKE_BINARY_DIR} --target qdv12_product\")
        endif()
    endforeach()")

# A plug-in is loaded, not linked: it has its own folder, which linkers do not search.
set(QDV12_MODULE_DIR lib/qdv12)
install(TARGETS qdv12ctrl LIBRARY DESTINATION ${QDV12_MODULE_DIR})
install(DIRECTORY Include/SDK4 DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(QDV12_BUILD_TOOLS)
    install(TARGETS qdv12host qdv12sim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    qdv12_install_compressed(${CMAKE_INSTALL_MANDIR}/man1 ${manuals})
    foreach(program qdv12host qdv12sim)
        install(FILES cmake/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${program})
    endforeach()
endif()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QDV12Control)
install(TARGETS SDK4 EXPORT QDV12ControlTargets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT QDV12ControlTargets NAMESPACE QDV12Control:: DESTINATION ${package_dir})
configure_package_config_file(cmake/QDV12ControlConfig.cmake.in QDV12ControlConfig.cmake
    INSTALL_DESTINATION ${package_dir} PATH_VARS QDV12_MODULE_DIR)
# Before version 1, minor versions may be incompatible.
write_basic_package_version_file(QDV12ControlConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/QDV12ControlConfig.cmake ${CMAKE_BINARY_DIR}/QDV12ControlConfigVersion.cmake
    DESTINATION ${package_dir})

# pkg-config derives the prefix from the location of its file.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
    OUTPUT_VARIABLE pc_to_prefix)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
    OUTPUT_VARIABLE prefix_to_include)
configure_file(cmake/qdv12control.pc.in qdv12control.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/qdv12control.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The documents, in the same places to each other as here, so that their links work. Debian wants examples in lower
# case; the link to them has the name of the folder here.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/qdv12control)
file(GLOB documents CONFIGURE_DEPENDS *.md)
install(FILES ${documents} DESTINATION ${doc_dir})
install(FILES COPYRIGHT DESTINATION ${doc_dir} RENAME copyright)
install(DIRECTORY docs DESTINATION ${doc_dir} PATTERN *.in EXCLUDE)
install(DIRECTORY Examples/ DESTINATION ${doc_dir}/examples)
install(CODE "file(CREATE_LINK examples \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${doc_dir}/Examples\" SYMBOLIC)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qdv12control)
set(CPACK_PACKAGE_VENDOR "QDV12 Control")
set(CPACK_PACKAGE_CONTACT "QDV12 Control <qdv12control@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "camera-control plug-in for GigE Vision cameras")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "The plug-in libqdv12ctrl.so turns the registers of Orvik and M2VX cameras into
typed, guarded camera functions for the host application that loads it.
.
The plug-in takes log4cxx from its host: a host that loads it must itself be
linked with the shared log4cxx, or loading fails with undefined symbols.
.
The package also holds the headers and the CMake and pkg-config files that a
host is built with, the documents, and examples.")
if(QDV12_BUILD_TOOLS)
    string(APPEND CPACK_DEBIAN_PACKAGE_DESCRIPTION "
.
qdv12host is the reference host, with simulated cameras; qdv12sim simulates a
camera on the network.")
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/PackageModes.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS liblog4cxx-dev) # hosts are built with it
include(CPack)

# Debian's changelog, with the time of the last change.
file(TIMESTAMP CHANGELOG.md CHANGELOG_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/changelog.in changelog @ONLY)
qdv12_install_compressed(${doc_dir} ${CMAKE_BINARY_DIR}/changelog)
