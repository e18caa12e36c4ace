# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Where things lie. A build tree mirrors the installed tree below its "stage" folder, so that one relative path leads
# from the program to its libraries and plug-ins in both.
set(VELLUM_PRIVATE_LIBDIR "${CMAKE_INSTALL_LIBDIR}/vellumconnect")
set(VELLUM_PLUGINDIR "${VELLUM_PRIVATE_LIBDIR}/plugins")
set(VELLUM_DATADIR "${CMAKE_INSTALL_DATADIR}/vellumconnect")
set(VELLUM_STAGE "${PROJECT_BINARY_DIR}/stage")

file(RELATIVE_PATH VELLUM_BIN_TO_LIB "/${CMAKE_INSTALL_BINDIR}" "/${VELLUM_PRIVATE_LIBDIR}")
file(RELATIVE_PATH VELLUM_BIN_TO_PLUGINS "/${CMAKE_INSTALL_BINDIR}" "/${VELLUM_PLUGINDIR}")
file(RELATIVE_PATH VELLUM_BIN_TO_DATA "/${CMAKE_INSTALL_BINDIR}" "/${VELLUM_DATADIR}")

set(CMAKE_SKIP_BUILD_RPATH OFF)
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

# A plug-in of the host: a module that lies as <Name>/lib<Name>.so in the plug-in folder.
function(vellum_add_plugin name)
    cmake_parse_arguments(ARG "" "OUTPUT_ROOT" "SOURCES" ${ARGN})
    add_library(${name} MODULE ${ARG_SOURCES})
    if(NOT ARG_OUTPUT_ROOT)
        set(ARG_OUTPUT_ROOT "${VELLUM_STAGE}/${VELLUM_PLUGINDIR}")
    endif()
    set_target_properties(${name} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${ARG_OUTPUT_ROOT}/${name}"
        INSTALL_RPATH "$ORIGIN/../..")
    target_link_libraries(${name} PRIVATE core sdk Vellum::QtWidgets)
endfunction()
