# The reference documentation of the public headers: `cmake --build --preset release --target reference`.
find_package(Doxygen)
if(DOXYGEN_FOUND)
    configure_file(docs/Doxyfile.in Doxyfile @ONLY)
    add_custom_target(reference COMMAND Doxygen::doxygen ${CMAKE_BINARY_DIR}/Doxyfile)
endif()
