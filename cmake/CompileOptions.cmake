# Compile options shared by all targets.

# Source locations in log lines are relative to the project, wherever it was built. They all have a directory part,
# since without one log4cxx computes an address before the text.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=./)

# Unique symbols would keep the plug-in loaded after dlclose.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-gnu-unique)
endif()

# The public interfaces have no destructors by contract, so -Wnon-virtual-dtor stays off.
set(QDV12_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-align
    -Wformat=2 -Woverloaded-virtual -Wnull-dereference -Wundef)
if(QDV12_WARNINGS_AS_ERRORS)
    list(APPEND QDV12_WARNINGS -Werror)
endif()

if(QDV12_SANITIZERS)
    add_compile_options(-fsanitize=${QDV12_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QDV12_SANITIZERS})
endif()

# Third-party headers take half the compile time of a source. Every source still includes what it uses: scripts/check
# compiles without precompiled headers.
function(qdv12_precompile target)
    target_precompile_headers(${target} PRIVATE <algorithm> <chrono> <functional> <map> <memory> <optional> <set>
        <sstream> <string> <vector> ${ARGN})
endfunction()

# For sources with large headers that take no time when they run: command lines, JSON. Sanitized, they compile three
# times as fast without optimisation.
function(qdv12_optimise_little)
    set_source_files_properties(${ARGN} PROPERTIES
        COMPILE_OPTIONS "$<IF:$<CONFIG:Debug>,-O0,-O1>" SKIP_PRECOMPILE_HEADERS ON)
endfunction()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # With precompiled headers, ccache requires this sloppiness, and that Clang writes no timestamps into them.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
    add_compile_options("$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()
