# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Removes what was installed from a build, and the folders of its own that are empty then.
# Usage: [DESTDIR=FOLDER] cmake -DBUILD=FOLDER -P Uninstall.cmake

file(GLOB lists "${BUILD}/install_manifest*.txt")
if(NOT lists)
    message(FATAL_ERROR "Nothing was installed from ${BUILD}")
endif()

foreach(list IN LISTS lists)
    file(STRINGS "${list}" files ENCODING UTF-8)
    foreach(file IN LISTS files)
        set(file "$ENV{DESTDIR}${file}")
        if(EXISTS "${file}" OR IS_SYMLINK "${file}")
            file(REMOVE "${file}")
            if(EXISTS "${file}" OR IS_SYMLINK "${file}")
                message(FATAL_ERROR "${file} cannot be removed")
            endif()
            message(STATUS "Removed ${file}")
        endif()
        get_filename_component(folder "${file}" DIRECTORY)
        # Only those that nobody else puts things into.
        while(folder MATCHES "/(vellumconnect|VellumConnect)(/|$)")
            list(APPEND folders "${folder}")
            get_filename_component(folder "${folder}" DIRECTORY)
        endwhile()
    endforeach()
endforeach()

# Inner ones first.
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
    file(GLOB content "${folder}/*" "${folder}/.*")
    list(FILTER content EXCLUDE REGEX "/\\.\\.?$")
    if(NOT content AND IS_DIRECTORY "${folder}")
        file(REMOVE_RECURSE "${folder}")
    endif()
endforeach()
