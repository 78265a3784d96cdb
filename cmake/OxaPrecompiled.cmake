# Headers that nearly every file of a kind includes, parsed once per target instead of once per file.
# -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without them, and so shows whether each file includes what it uses.

# Sources of a target that are compiled without its precompiled headers.
function(oxa_compile_alone target)
    set_source_files_properties(${ARGN} TARGET_DIRECTORY ${target} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# The framework's window headers, for the window sources of one target; its portable sources (the rest of the arguments) are
# compiled without.
function(oxa_precompile_windows target)
    if(NOT WIN32)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE <afxwin.h> <afxcmn.h> <afxtempl.h>)
    if(ARGN)
        oxa_compile_alone(${target} ${ARGN})
    endif()
endfunction()

# One set of headers for all test programs, which share their flags.
function(oxa_precompile_tests target)
    if(NOT TARGET oxa_test_headers)
        file(WRITE ${CMAKE_BINARY_DIR}/oxa_test_headers.cpp "// carries the precompiled headers of the tests\n")
        add_library(oxa_test_headers OBJECT ${CMAKE_BINARY_DIR}/oxa_test_headers.cpp)
        target_link_libraries(oxa_test_headers PRIVATE oxa_gtest oxa_warnings afx_base)
        target_compile_options(oxa_test_headers PRIVATE ${OXA_TEST_OPTIONS})
        set(headers <afxtempl.h> <gtest/gtest.h> <string> <vector>)
        if(WIN32)
            list(APPEND headers <afxwin.h> <afxcmn.h>)
        endif()
        target_precompile_headers(oxa_test_headers PRIVATE ${headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM oxa_test_headers)
endfunction()
