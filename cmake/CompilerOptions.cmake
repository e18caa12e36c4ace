# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# The plug-in and the host libraries are C++11, which Qt 6 raises to 17; the application is C++17.
if(QT_MAJOR EQUAL 6)
    set(CMAKE_CXX_STANDARD 17)
else()
    set(CMAKE_CXX_STANDARD 11)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow)
if(WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

# A library must not carry the path of the folder that it was built in; trace lines name files from the project's root.
add_compile_options(-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)

# A key handed to tr() as a C string would come back untranslated without a word: make it an error.
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

if(SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_link_options(-Wl,--no-undefined)
