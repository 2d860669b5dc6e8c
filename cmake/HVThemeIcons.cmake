# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

#[[
hvtheme_add_icons(<target>
    THEMES_DIR  <folder>      # holds default.theme and <name>.theme for each name
    THEMES      <name>...
    DESTINATION <folder>      # receives <name>/<icon>.svg
    [SOURCES    <file.svg>...])

Adds a target, part of "all", that writes each theme's tinted copy of each source. A copy is made
again when its source, one of its two theme files or the tool changes. Without SOURCES the icons
are those that come with the package. Relative folders and files are taken from the current source
folder, a relative DESTINATION from the current build folder.
]]
function(hvtheme_add_icons target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "THEMES_DIR;DESTINATION" "THEMES;SOURCES")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "hvtheme_add_icons: unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    foreach(required THEMES_DIR DESTINATION THEMES)
        if(NOT arg_${required})
            message(FATAL_ERROR "hvtheme_add_icons: ${required} is missing")
        endif()
    endforeach()
    get_filename_component(themes_dir "${arg_THEMES_DIR}" ABSOLUTE)
    get_filename_component(destination "${arg_DESTINATION}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_BINARY_DIR}")
    if(NOT arg_SOURCES)
        file(GLOB arg_SOURCES CONFIGURE_DEPENDS "${HVTHEME_ICON_SOURCES_DIR}/*.svg")
    endif()
    set(sources "")
    foreach(source IN LISTS arg_SOURCES)
        get_filename_component(source "${source}" ABSOLUTE)
        list(APPEND sources "${source}")
    endforeach()
    if(NOT sources)
        message(FATAL_ERROR "hvtheme_add_icons: no icons in \"${HVTHEME_ICON_SOURCES_DIR}\"")
    endif()

    set(stamps "")
    foreach(theme IN LISTS arg_THEMES)
        set(copies "")
        foreach(source IN LISTS sources)
            get_filename_component(file_name "${source}" NAME)
            list(APPEND copies "${destination}/${theme}/${file_name}")
        endforeach()
        # The tool leaves equal copies alone, so their times cannot tell that it has run; the stamp can.
        set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${target}_${theme}.stamp")
        add_custom_command(OUTPUT "${stamp}"
            BYPRODUCTS ${copies}
            COMMAND HVTheme::icons "${themes_dir}" "${theme}" "${destination}/${theme}" ${sources}
            COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
            DEPENDS HVTheme::icons "${themes_dir}/default.theme" "${themes_dir}/${theme}.theme" ${sources}
            COMMENT "Tinting the icons of the theme ${theme}"
            VERBATIM)
        list(APPEND stamps "${stamp}")
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${stamps})
endfunction()
