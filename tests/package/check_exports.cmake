# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Usage: cmake -DNM=<nm> -DLIBRARY=<shared library> -DLIST=<file> -DQT=5|6 -P check_exports.cmake
#
# Compares the symbols that LIBRARY exports with those of LIST, and looks for the mark that ties the
# compressed templates to a Qt that can read them.

cmake_minimum_required(VERSION 3.16)

# Symbols as their type, a space and their name.
function(read_symbols kind result)
    execute_process(COMMAND ${NM} --dynamic --${kind} --format=posix ${LIBRARY}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${NM} cannot read ${LIBRARY}: ${error}")
    endif()
    string(STRIP "${output}" output)
    string(REPLACE "\n" ";" symbols "${output}")
    list(TRANSFORM symbols REPLACE "^([^ @]+)[^ ]* ([A-Za-z]).*$" "\\2 \\1")
    set(${result} ${symbols} PARENT_SCOPE)
endfunction()

read_symbols(defined-only exported)
# The linker and the sanitizers have symbols of their own. Weak symbols of Qt and of the standard
# library are inline functions that an unoptimised build keeps out of line.
list(FILTER exported EXCLUDE REGEX "^[A-Za-z] (__bss_start|_edata|_end|__odr_asan.*)$")
list(FILTER exported EXCLUDE REGEX "^[VWu] _Z(TI|TS|NK?)?([0-9]+Q[A-Z]|St)")
list(TRANSFORM exported REPLACE "^. " "")
list(SORT exported)
# A list of texts has another name in each Qt.
file(STRINGS ${LIST} expected REGEX "^(qt${QT} )?_Z")
list(TRANSFORM expected REPLACE "^qt[0-9] " "")
list(SORT expected)

if(NOT exported STREQUAL expected)
    set(missing ${expected})
    list(REMOVE_ITEM missing ${exported})
    set(surplus ${exported})
    list(REMOVE_ITEM surplus ${expected})
    list(JOIN missing "\n  " missing)
    list(JOIN surplus "\n  " surplus)
    message(FATAL_ERROR "Not exported, but listed:\n  ${missing}\nExported, but not listed:\n  ${surplus}")
endif()

read_symbols(undefined-only needed)
if(NOT "U qt_resourceFeatureZlib" IN_LIST needed)
    message(FATAL_ERROR "The library does not refer to qt_resourceFeatureZlib.")
endif()
