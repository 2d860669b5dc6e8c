# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# hvtheme_check(NAME <test> FOLDER <folder> [THEMES <theme>...] [TEMPLATES <folder|file>...] [APP_DIR <folder>]
#               [VOCABULARY <file>] [PREFIX <prefix>] [SUFFIX <suffix>] [MIN_CONTRAST <ratio>]
#               [DISABLE <rule>...] [FAIL_ON error|warning|info])
#
# Adds a test that runs "hvtheme check" on a folder of themes and fails if it finds something.
function(hvtheme_check)
    cmake_parse_arguments(PARSE_ARGV 0 check "" "NAME;FOLDER;APP_DIR;VOCABULARY;PREFIX;SUFFIX;MIN_CONTRAST;FAIL_ON"
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
    foreach(rule IN LISTS check_DISABLE)
        list(APPEND options --disable ${rule})
    endforeach()
    add_test(NAME ${check_NAME} COMMAND HVTheme::hvtheme-command check ${options} ${check_FOLDER} ${check_THEMES})
endfunction()
