# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Makes the resource :/hvthemeapp/icons out of both sets of drawings: the 85 of icons/ and those of
# icons/ beside this file. Each is there as <name>.hvicon, and once more as <name>@2x.hvicon, which is
# the name under which Qt looks for pictures of dense screens. imagefiles.ini has a group for each, so
# that a theme can read one without the others. Sets drawing_sources.

file(GLOB drawings CONFIGURE_DEPENDS ${HVTHEME_ICON_SOURCES_DIR}/*.svg ${CMAKE_CURRENT_SOURCE_DIR}/icons/*.svg)
set(collection "<RCC>\n<qresource prefix=\"/hvthemeapp/icons\">\n")
set(image_files "")
foreach(drawing IN LISTS drawings)
    get_filename_component(name ${drawing} NAME_WE)
    string(APPEND collection "    <file alias=\"${name}.hvicon\">${drawing}</file>\n"
        "    <file alias=\"${name}@2x.hvicon\">${drawing}</file>\n")
    string(APPEND image_files "[${name}]\nImageFiles\\${name}=:/hvthemeapp/icons/${name}.hvicon\n")
endforeach()
string(APPEND collection "    <file>imagefiles.ini</file>\n</qresource>\n</RCC>\n")

file(CONFIGURE OUTPUT hvthemeapp_icons.qrc CONTENT "${collection}" @ONLY)
file(CONFIGURE OUTPUT imagefiles.ini CONTENT "${image_files}" @ONLY)
hvtheme_add_resources(drawing_sources ${CMAKE_CURRENT_BINARY_DIR}/hvthemeapp_icons.qrc)
