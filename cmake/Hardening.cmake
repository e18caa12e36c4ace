# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# What Debian hardens its packages with, for optimised builds: checked copies, guarded stacks, read-only relocations, and
# programs that lie at another address at each start. A packager who brings a flag along has the word about it, so it is
# not given twice. Sanitizers and fuzzing watch the same things in their own way, and clash with the first.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(VELLUM_HARDENED OFF)
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$" AND NOT SANITIZE AND NOT BUILD_FUZZERS)
    set(VELLUM_HARDENED ON)
endif()

if(VELLUM_HARDENED)
    set(given "${CMAKE_CXX_FLAGS}")
    if(NOT given MATCHES "_FORTIFY_SOURCE")
        add_compile_definitions(_FORTIFY_SOURCE=2)
    endif()
    if(NOT given MATCHES "stack-protector")
        add_compile_options(-fstack-protector-strong)
    endif()
    if(NOT given MATCHES "format-security")
        add_compile_options(-Wformat -Werror=format-security)
    endif()
    # Each kind of file has its own.
    foreach(kind IN ITEMS EXECUTABLE=EXE SHARED_LIBRARY=SHARED MODULE_LIBRARY=MODULE)
        string(REGEX REPLACE "(.*)=(.*)" "\\1;\\2" kind ${kind})
        list(GET kind 0 type)
        list(GET kind 1 name)
        foreach(flag IN ITEMS relro now)
            if(NOT CMAKE_${name}_LINKER_FLAGS MATCHES "-z,? ?${flag}")
                add_link_options("$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,${type}>:LINKER:-z,${flag}>")
            endif()
        endforeach()
    endforeach()
endif()
