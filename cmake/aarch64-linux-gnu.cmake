# Cross-compiles for arm64 with Debian's compiler, and runs tests under QEMU. scripts/test-arm64 fills the sysroot with
# log4cxx and GoogleTest; the C and C++ libraries are those of the compiler.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

cmake_path(SET sysroot NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../build/arm64/sysroot)
set(library_dirs ${sysroot}/usr/lib/aarch64-linux-gnu:${sysroot}/lib/aarch64-linux-gnu)
set(CMAKE_EXE_LINKER_FLAGS_INIT -Wl,-rpath-link,${library_dirs})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L /usr/aarch64-linux-gnu -E LD_LIBRARY_PATH=${library_dirs})

set(CMAKE_FIND_ROOT_PATH ${sysroot} /usr/aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${sysroot}/usr/lib/aarch64-linux-gnu/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${sysroot})
