# Precompiled headers: parsing <windows.h>, the standard library and GoogleTest again for every
# file took most of a build from scratch. Off where a compiler cache is used (it would pass every
# compile through uncached) and for clang (the fuzz build), which rejects a header made with
# other settings instead of parsing it anew.
if(CMAKE_CXX_COMPILER_LAUNCHER OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(quorin_pch_default OFF)
else()
    set(quorin_pch_default ON)
endif()
option(QUORIN_PCH "Precompile the system headers every file includes" ${quorin_pch_default})
set(QUORIN_PCH_HEADERS <algorithm> <array> <cstdint> <functional> <memory> <optional> <string>
                       <string_view> <utility> <vector>)
if(WIN32)
    list(APPEND QUORIN_PCH_HEADERS <windows.h>)
endif()

# Warnings are errors for our own targets (not for GoogleTest).
function(quorin_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -Wshadow
                                             -Wnon-virtual-dtor -Wold-style-cast)
endfunction()

# One precompiled header per kind of target, made once by a target of its own and taken by every
# target of that kind: quorin_pch for the program's code, quorin_test_pch with GoogleTest too.
function(quorin_pch_carrier name)
    file(WRITE ${CMAKE_BINARY_DIR}/${name}.cpp "")
    add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
    quorin_warnings(${name})
    target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()
if(QUORIN_PCH)
    quorin_pch_carrier(quorin_pch ${QUORIN_PCH_HEADERS})
    quorin_pch_carrier(quorin_test_pch ${QUORIN_PCH_HEADERS} <gtest/gtest.h>)
    target_link_libraries(quorin_test_pch PRIVATE GTest::gtest)
endif()

function(quorin_options target)
    quorin_warnings(${target})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    if(QUORIN_PCH)
        set_property(TARGET ${target} PROPERTY PRECOMPILE_HEADERS_REUSE_FROM quorin_pch)
    endif()
endfunction()

# One CTest entry per test program; under the win build CTest runs it through Wine. DESKTOP marks a
# program that shows windows and gives them the keys: such programs share one Wine desktop and its
# one foreground window, so they run one at a time (beside programs without windows).
function(quorin_test name)
    cmake_parse_arguments(ARG "DESKTOP" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    quorin_options(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest_main)
    if(QUORIN_PCH)
        set_property(TARGET ${name} PROPERTY PRECOMPILE_HEADERS_REUSE_FROM quorin_test_pch)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
    if(ARG_DESKTOP)
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK desktop)
    endif()
endfunction()
