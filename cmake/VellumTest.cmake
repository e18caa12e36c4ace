# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Tests are many and run for a moment: the time that counts is the compiler's. What checks copies needs an optimising
# one; the toolkit's headers, compiled once, serve programs and libraries only if both are compiled alike.
set(VELLUM_TEST_OPTIONS -O0 -g0 -U_FORTIFY_SOURCE -fPIC)

# vellum_compile_as_test(<target>)
#   Compiles a program or library of the tests that knows QtTest with their options and the toolkit's headers.
function(vellum_compile_as_test target)
    target_compile_options(${target} PRIVATE ${VELLUM_TEST_OPTIONS})
    target_precompile_headers(${target} REUSE_FROM testmain${CMAKE_CXX_STANDARD})
endfunction()

# vellum_test_program(<name> SOURCES ... [LIBS ...])
#   A program of test classes, which runs without a display.
function(vellum_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    vellum_compile_as_test(${name})
    target_link_libraries(${name} PRIVATE testmain${CMAKE_CXX_STANDARD} ${ARG_LIBS} Vellum::QtWidgets Vellum::QtTest)
endfunction()

# vellum_test_entries(<program> <class>...)
#   An entry "<folder>.<class>" for each of the program's test classes. Properties: TIMEOUT 120, LABELS unit.
function(vellum_test_entries program)
    get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    foreach(class IN LISTS ARGN)
        set(display)
        if(VELLUM_XVFB_RUN)
            # Each looks for a free display from a number of its own, so that two never take the same one.
            get_property(number GLOBAL PROPERTY VELLUM_DISPLAY_NUMBER)
            math(EXPR number "${number} + 3")
            set_property(GLOBAL PROPERTY VELLUM_DISPLAY_NUMBER ${number})
            set(display "${VELLUM_XVFB_RUN}" -a -n ${number})
        endif()
        add_test(NAME ${folder}.${class} COMMAND ${display} $<TARGET_FILE:${program}> ${class})
        set_tests_properties(${folder}.${class} PROPERTIES
            TIMEOUT 120 LABELS unit ENVIRONMENT "${VELLUM_TEST_ENVIRONMENT}")
    endforeach()
endfunction()

# vellum_add_tests([LIBS ...] [SOURCES ...] [EXCEPT class...])
#   Every <class>Test.cpp of this folder and other sources as the program "<folder>_tests", an entry each.
function(vellum_add_tests)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;EXCEPT" ${ARGN})
    get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    file(GLOB files CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" *Test.cpp)
    list(TRANSFORM ARG_EXCEPT APPEND .cpp)
    list(REMOVE_ITEM files ${ARG_EXCEPT})
    vellum_test_program(${folder}_tests SOURCES ${files} ${ARG_SOURCES} LIBS ${ARG_LIBS})
    list(TRANSFORM files REPLACE "\\.cpp$" "" OUTPUT_VARIABLE classes)
    vellum_test_entries(${folder}_tests ${classes})
endfunction()
