// CMake wants a source file of the library itself; all code is in the object library.
