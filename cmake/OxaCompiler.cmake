# Language level, warnings, sanitizers and where built files go.
option(OXA_TESTS "Build the tests" OFF)
option(OXA_FUZZ "Build the fuzz targets (clang)" OFF)
option(OXA_BENCH "Build the benchmarks" OFF)
option(OXA_COVERAGE "Count executed lines" OFF)
set(OXA_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(OXA_CCACHE ccache)
if(OXA_CCACHE)
    # The cache takes part in precompiled headers only when it is told not to mind their time stamps.
    set(CMAKE_C_COMPILER_LAUNCHER ${OXA_CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${OXA_CCACHE})
    if(NOT OXA_FUZZ AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
    endif()
endif()

if(WIN32)
    # Programs and the DLLs that they load stand in one folder.
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    # DWARF 4: the crash reporter's debug library reads no newer one.
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1 -gdwarf-4")
    set(CMAKE_C_FLAGS_RELWITHDEBINFO "-O1 -g1 -gdwarf-4")
    add_compile_definitions(UNICODE _UNICODE NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0900)
endif()

# Warnings of our own sources; third-party sources do not link to this.
add_library(oxa_warnings INTERFACE)
target_compile_options(oxa_warnings INTERFACE -Wall -Wextra -Wshadow -Wconversion -Werror)

if(OXA_SANITIZE)
    add_compile_options(-fsanitize=${OXA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${OXA_SANITIZE})
    if(OXA_FUZZ)
        add_compile_options(-fsanitize=fuzzer-no-link)
    else()
        add_compile_options(-O1)
    endif()
endif()
if(OXA_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()
