# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Vellum::NetworkManager, the NetworkManager library of KDE for the chosen Qt, where it is installed.
# Its package for Qt 5 uses Qt's network library without looking for it.
find_package(Qt${QT_MAJOR} QUIET COMPONENTS Network)
find_package(KF${QT_MAJOR}NetworkManagerQt QUIET)
if(TARGET KF${QT_MAJOR}::NetworkManagerQt)
    add_library(VellumNetworkManager INTERFACE)
    add_library(Vellum::NetworkManager ALIAS VellumNetworkManager)
    target_link_libraries(VellumNetworkManager INTERFACE KF${QT_MAJOR}::NetworkManagerQt)
else()
    message(STATUS "No NetworkManager library for Qt ${QT_MAJOR}: connections are told by the user only")
endif()
