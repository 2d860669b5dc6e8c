# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# hvtheme_check(NAME <test> FOLDER <folder> [THEMES <theme>...] [TEMPLATES <folder|file>...] [NO_BUILTIN]
#               [APP_DIR <folder>] [VOCABULARY <file>] [PREFIX <prefix>] [SUFFIX <suffix>] [MIN_CONTRAST <ratio>]
#               [DISABLE <rule>...] [FAIL_ON error|warning|info])
#
# Adds a test that runs "hvtheme check" on a folder of themes and fails if it finds something. Relative
# paths are taken from the current source folder.
function(hvtheme_check)
    cmake_parse_arguments(PARSE_ARGV 0 check "NO_BUILTIN" "NAME;FOLDER;APP_DIR;VOCABULARY;PREFIX;SUFFIX;MIN_CONTRAST;FAIL_ON"
        "THEMES;TEMPLATES;DISABLE")
    if(NOT check_NAME OR NOT check_FOLDER)
        message(FATAL_ERROR "hvtheme_check: NAME and FOLDER are required")
    endif()
    if(check_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "hvtheme_check: unknown arguments ${check_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT TARGET HVTheme::hvtheme-command)
        message(FATAL_ERROR "hvtheme_check: HVTheme was built without its command")
    endif()
    # The test runs in the build folder. Generator expressions and paths of resources are left alone.
    foreach(paths FOLDER TEMPLATES APP_DIR VOCABULARY)
        set(absolute "")
        foreach(path IN LISTS check_${paths})
            if(NOT path MATCHES "^(:/|\\$<)")
                get_filename_component(path "${path}" ABSOLUTE)
            endif()
            list(APPEND absolute "${path}")
        endforeach()
        if(DEFINED check_${paths})
            set(check_${paths} "${absolute}")
        endif()
    endforeach()
    # As a part of another project the command is built only if something needs it.
    get_target_property(command HVTheme::hvtheme-command ALIASED_TARGET)
    if(command)
        add_custom_target(${check_NAME}_command ALL)
        add_dependencies(${check_NAME}_command ${command})
    endif()
    set(options)
    foreach(option APP_DIR VOCABULARY PREFIX SUFFIX MIN_CONTRAST FAIL_ON)
        if(DEFINED check_${option})
            string(TOLOWER ${option} name)
            string(REPLACE _ - name ${name})
            list(APPEND options --${name} ${check_${option}})
        endif()
    endforeach()
    foreach(source IN LISTS check_TEMPLATES)
        list(APPEND options --templates ${source})
    endforeach()
    if(check_NO_BUILTIN)
        list(APPEND options --no-builtin)
    endif()
    foreach(rule IN LISTS check_DISABLE)
        list(APPEND options --disable ${rule})
    endforeach()
    add_test(NAME ${check_NAME} COMMAND HVTheme::hvtheme-command check ${options} ${check_FOLDER} ${check_THEMES})
endfunction()
