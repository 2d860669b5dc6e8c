# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Makes the resource :/hvthemeapp/themes out of the sample themes, without their section ImageFiles: it
# names files beside an executable, and the library draws all images itself. Sets theme_sources.

set(embedded_dir ${CMAKE_CURRENT_BINARY_DIR}/embedded)
set(collection "<RCC>\n<qresource prefix=\"/hvthemeapp/themes\">\n")
set(builtin_themes contrast dark light)
# For the command, which names them without the library.
set_property(GLOBAL PROPERTY HVTHEME_BUILTIN_THEMES ${builtin_themes})
foreach(theme default ${builtin_themes})
    set(source ${PROJECT_SOURCE_DIR}/themes/${theme}.theme)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(READ ${source} text)
    string(FIND "${text}" "\n[ImageFiles]\n" start)
    if(start GREATER_EQUAL 0)
        string(SUBSTRING "${text}" 0 ${start} head)
        math(EXPR start "${start} + 1")
        string(SUBSTRING "${text}" ${start} -1 tail)
        string(FIND "${tail}" "\n[" end)
        string(SUBSTRING "${tail}" ${end} -1 tail)
        set(text "${head}${tail}")
    endif()
    # Written only if it changed, so that configuring anew compiles nothing.
    file(GENERATE OUTPUT ${embedded_dir}/${theme}.theme CONTENT "${text}")
    string(APPEND collection "    <file alias=\"${theme}.theme\">embedded/${theme}.theme</file>\n")
endforeach()
string(APPEND collection "</qresource>\n</RCC>\n")
file(CONFIGURE OUTPUT hvthemeapp_themes.qrc CONTENT "${collection}" @ONLY)
hvtheme_add_resources(theme_sources ${CMAKE_CURRENT_BINARY_DIR}/hvthemeapp_themes.qrc)
