# Warnings are errors for our own targets (not for GoogleTest).
function(quorin_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -Wshadow
                                             -Wnon-virtual-dtor -Wold-style-cast)
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
endfunction()

# One CTest entry per test program; under the win build CTest runs it through Wine.
function(quorin_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    quorin_options(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest_main)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
