// CMake requires a source file of the library itself. All code is in the object library.
