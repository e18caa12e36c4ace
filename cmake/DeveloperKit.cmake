# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# What others build plug-ins and hosts with: find_package(VellumConnect) gives VellumConnect::core and VellumConnect::sdk with
# the headers of the contract, and VellumConnect::host for a host of one's own (docs/plugin-contract.md). All of it is
# the component "Development" of an installation.
include(CMakePackageConfigHelpers)

set(VELLUM_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/vellumconnect")
set(VELLUM_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/VellumConnect")

foreach(library IN ITEMS core sdk)
    target_include_directories(${library} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>" "$<INSTALL_INTERFACE:${VELLUM_INCLUDEDIR}>")
endforeach()
add_library(vellumconnect_host INTERFACE)
target_link_libraries(vellumconnect_host INTERFACE core sdk)
target_include_directories(vellumconnect_host INTERFACE "$<INSTALL_INTERFACE:${VELLUM_INCLUDEDIR}/host>")

# The toolkit's libraries go by the names that this build gives them.
set_target_properties(vellumconnect_host PROPERTIES EXPORT_NAME host)
set_target_properties(VellumQtCore PROPERTIES EXPORT_NAME QtCore)
set_target_properties(VellumQtWidgets PROPERTIES EXPORT_NAME QtWidgets)
install(TARGETS core sdk vellumconnect_host VellumQtCore VellumQtWidgets EXPORT VellumConnect
    LIBRARY DESTINATION "${VELLUM_PRIVATE_LIBDIR}" COMPONENT plugin)
install(EXPORT VellumConnect NAMESPACE VellumConnect:: FILE VellumConnectTargets.cmake
    DESTINATION "${VELLUM_CMAKEDIR}" COMPONENT Development)

set(VELLUM_TEXTDIR "${VELLUM_DATADIR}/translations")
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/VellumConnectConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/VellumConnectConfig.cmake"
    INSTALL_DESTINATION "${VELLUM_CMAKEDIR}" PATH_VARS VELLUM_PLUGINDIR VELLUM_TEXTDIR
    NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VellumConnectConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/VellumConnectConfig.cmake" "${PROJECT_BINARY_DIR}/VellumConnectConfigVersion.cmake"
    DESTINATION "${VELLUM_CMAKEDIR}" COMPONENT Development)

install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION "${VELLUM_INCLUDEDIR}" COMPONENT Development)
install(FILES
    host/libcore/HostContract.h host/libcore/PluginContainer.h host/libcore/PluginGate.h host/libcore/PluginWith.h
    host/libcore/StartupContainer.h host/libsdk/UserFolder.h
    DESTINATION "${VELLUM_INCLUDEDIR}/host" COMPONENT Development)
