# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# vellum_add_test(<name> SOURCES ... [LIBS ...] [LABELS ...] [TIMEOUT seconds])
#   A QtTest program that runs without a display, as "<folder>.<name>".
# vellum_add_quicklink_test(...)
#   The same, with the plug-in's own objects and the recording fake host in it. Private members are open to it.

function(vellum_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;LABELS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    if(NOT ARG_LABELS)
        set(ARG_LABELS unit)
    endif()
    get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    add_executable(${name} ${ARG_SOURCES})
    # Tests are many and run for a moment: the time that counts is the compiler's.
    target_compile_options(${name} PRIVATE -O0 -g0)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/include")
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} Vellum::QtWidgets Vellum::QtTest)
    add_test(NAME ${folder}.${name} COMMAND ${name})
    set_tests_properties(${folder}.${name} PROPERTIES
        TIMEOUT ${ARG_TIMEOUT}
        LABELS "${ARG_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()

function(vellum_add_quicklink_test name)
    vellum_add_test(${name} ${ARGN})
    target_compile_options(${name} PRIVATE -fno-access-control)
    target_link_libraries(${name} PRIVATE quicklink_objects fakehost)
endfunction()
