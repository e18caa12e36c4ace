# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# One set of names for the chosen Qt: Vellum::QtCore, Vellum::QtDBus (of the application), Vellum::QtWidgets
# (Gui and Widgets) and Vellum::QtTest.

set(CMAKE_AUTOMOC ON)
set(CMAKE_INCLUDE_CURRENT_DIR OFF)

add_library(VellumQtCore INTERFACE)
add_library(VellumQtDBus INTERFACE)
add_library(VellumQtWidgets INTERFACE)
add_library(VellumQtTest INTERFACE)
add_library(Vellum::QtCore ALIAS VellumQtCore)
add_library(Vellum::QtDBus ALIAS VellumQtDBus)
add_library(Vellum::QtWidgets ALIAS VellumQtWidgets)
add_library(Vellum::QtTest ALIAS VellumQtTest)

if(QT_MAJOR EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtTest)
    target_link_libraries(VellumQtCore INTERFACE Qt4::QtCore)
    target_link_libraries(VellumQtWidgets INTERFACE Qt4::QtCore Qt4::QtGui)
    target_link_libraries(VellumQtTest INTERFACE Qt4::QtTest)
elseif(QT_MAJOR EQUAL 5 OR QT_MAJOR EQUAL 6)
    find_package(Qt${QT_MAJOR} REQUIRED COMPONENTS Core DBus Gui Widgets Test LinguistTools)
    target_link_libraries(VellumQtCore INTERFACE Qt${QT_MAJOR}::Core)
    target_link_libraries(VellumQtDBus INTERFACE Qt${QT_MAJOR}::DBus)
    target_link_libraries(VellumQtWidgets INTERFACE Qt${QT_MAJOR}::Core Qt${QT_MAJOR}::Gui Qt${QT_MAJOR}::Widgets)
    target_link_libraries(VellumQtTest INTERFACE Qt${QT_MAJOR}::Test)
    # Each program would be told its own folders, and none could use headers that were compiled for another.
    get_target_property(definitions Qt${QT_MAJOR}::Test INTERFACE_COMPILE_DEFINITIONS)
    list(FILTER definitions EXCLUDE REGEX "^QT_TESTCASE_")
    set_target_properties(Qt${QT_MAJOR}::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions}")
else()
    message(FATAL_ERROR "QT_MAJOR is \"${QT_MAJOR}\"; it must be 4, 5 or 6")
endif()
