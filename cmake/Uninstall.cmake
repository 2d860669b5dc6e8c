# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Usage: cmake -DBUILD_DIR=<build folder> -P Uninstall.cmake
#
# Removes the files that the last installation from BUILD_DIR wrote, and the folders that this leaves
# empty. DESTDIR counts as it does when installing.

cmake_minimum_required(VERSION 3.16)
cmake_policy(SET CMP0057 NEW)

file(GLOB manifests "${BUILD_DIR}/install_manifest*.txt")
if(NOT manifests)
    message(FATAL_ERROR "Nothing was installed from ${BUILD_DIR}: it has no install_manifest.txt")
endif()
set(folders "")
set(count 0)
foreach(manifest IN LISTS manifests)
    file(STRINGS "${manifest}" files ENCODING UTF-8)
    foreach(file IN LISTS files)
        set(file "$ENV{DESTDIR}${file}")
        if(EXISTS "${file}" OR IS_SYMLINK "${file}")
            file(REMOVE "${file}")
            if(EXISTS "${file}" OR IS_SYMLINK "${file}")
                message(FATAL_ERROR "${file} cannot be removed")
            endif()
            math(EXPR count "${count} + 1")
        endif()
        get_filename_component(folder "${file}" DIRECTORY)
        list(APPEND folders "${folder}")
    endforeach()
    file(REMOVE "${manifest}")
endforeach()

list(REMOVE_DUPLICATES folders)
foreach(folder IN LISTS folders)
    while(IS_DIRECTORY "${folder}")
        file(GLOB entries LIST_DIRECTORIES true "${folder}/*" "${folder}/.*")
        list(FILTER entries EXCLUDE REGEX "/\\.\\.?$")
        if(entries)
            break()
        endif()
        file(REMOVE_RECURSE "${folder}")
        get_filename_component(folder "${folder}" DIRECTORY)
    endwhile()
endforeach()
message(STATUS "Removed ${count} files")
