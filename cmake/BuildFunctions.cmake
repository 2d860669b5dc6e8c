# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# What the folders of this project have in common; none of it is installed.

include(GenerateExportHeader)

# Language level, warnings, visibility and sanitizers of every target.
function(hvtheme_set_defaults target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
        QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_USE_QSTRINGBUILDER
        QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wsuggest-override $<$<BOOL:${HVTHEME_WERROR}>:-Werror>)
    # In a unity build a source sees the names of others, and the compiler takes it for a header.
    if(CMAKE_UNITY_BUILD)
        target_compile_options(${target} PRIVATE -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
    if(UNIX AND NOT APPLE) # everything is bound before a program runs, and read-only from then on
        target_link_options(${target} PRIVATE LINKER:-z,relro LINKER:-z,now)
    endif()
    if(HVTHEME_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${HVTHEME_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${HVTHEME_SANITIZE})
    endif()
endfunction()

# hvtheme_add_resources(<variable> <collection>)
#
# Sets the variable to the source that holds the collection of resources, in a form that any Qt of the
# same major version reads. Such sources all define the same names, so each is compiled by itself.
macro(hvtheme_add_resources variable collection)
    qt_add_resources(${variable} ${collection} OPTIONS --format-version 3)
    set_source_files_properties(${${variable}} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endmacro()

# Lets what is installed in the folder find the installed libraries, also after the tree was moved. A
# folder is relative to the prefix or absolute; between one of each there is no fixed way, so the run
# path is then the library folder itself.
function(hvtheme_set_run_path target folder)
    set(library_folder "${CMAKE_INSTALL_LIBDIR}")
    if(IS_ABSOLUTE "${library_folder}" AND NOT IS_ABSOLUTE "${folder}")
        set(run_path "${library_folder}")
    else()
        if(IS_ABSOLUTE "${folder}" AND NOT IS_ABSOLUTE "${library_folder}")
            set(library_folder "${CMAKE_INSTALL_FULL_LIBDIR}")
        endif()
        get_filename_component(from "${folder}" ABSOLUTE BASE_DIR /)
        get_filename_component(to "${library_folder}" ABSOLUTE BASE_DIR /)
        file(RELATIVE_PATH way "${from}" "${to}")
        set(run_path "$ORIGIN/${way}")
        string(REGEX REPLACE "/$" "" run_path "${run_path}")
    endif()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${run_path}")
endfunction()

# hvtheme_install_program(<target> NAME <program> COMPONENT <component> [EXPORT <export>] [COMPLETION <file>])
#
# Installs a program so that it starts from any prefix, its manual page docs/<program>.1 and the completion
# of its words. The names of all three end in HVTHEME_PROGRAM_SUFFIX; in the build tree there is a link
# without that, for tests and documents.
function(hvtheme_install_program target)
    hvtheme_set_run_path(${target} ${CMAKE_INSTALL_BINDIR})
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;COMPONENT;EXPORT;COMPLETION" "")
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${arg_NAME}${HVTHEME_PROGRAM_SUFFIX})
    if(HVTHEME_PROGRAM_SUFFIX)
        add_custom_command(TARGET ${target} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -E create_symlink $<TARGET_FILE_NAME:${target}> $<TARGET_FILE_DIR:${target}>/${arg_NAME}
            VERBATIM)
    endif()
    set(export "")
    if(arg_EXPORT)
        set(export EXPORT ${arg_EXPORT})
    endif()
    install(TARGETS ${target} ${export} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${arg_COMPONENT})
    install(FILES ${PROJECT_SOURCE_DIR}/docs/${arg_NAME}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
        RENAME ${arg_NAME}${HVTHEME_PROGRAM_SUFFIX}.1 COMPONENT ${arg_COMPONENT})
    if(arg_COMPLETION)
        install(FILES ${arg_COMPLETION} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
            RENAME ${arg_NAME}${HVTHEME_PROGRAM_SUFFIX} COMPONENT ${arg_COMPONENT})
    endif()
endfunction()

# hvtheme_set_up_public_library(<target> EXPORT <export> HEADERS <file>... [STATIC_LIBS <flag>...])
#
# What all libraries for others share: the export header, include folders, version and name, what a
# static build needs, and the installation. Headers go to a folder named after the current one, beside
# <target>.pc. STATIC_LIBS are flags that pkg-config adds for a static library.
function(hvtheme_set_up_public_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "EXPORT" "HEADERS;STATIC_LIBS")
    hvtheme_set_defaults(${target})
    generate_export_header(${target} EXPORT_FILE_NAME ${target}_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${target}${HVTHEME_SUFFIX}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})

    set(static_flags "")
    set(static_libs "")
    get_target_property(library_type ${target} TYPE)
    if(library_type STREQUAL "STATIC_LIBRARY")
        string(TOUPPER ${target} macro)
        target_compile_definitions(${target} PUBLIC ${macro}_STATIC_DEFINE)
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        set(static_flags "-D${macro}_STATIC_DEFINE")
        list(JOIN arg_STATIC_LIBS " " static_libs)
    endif()

    install(TARGETS ${target} EXPORT ${arg_EXPORT}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
    # The same for every Qt.
    get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    install(FILES ${arg_HEADERS} ${CMAKE_CURRENT_BINARY_DIR}/${target}_export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder} COMPONENT Development)
    hvtheme_install_pkg_config(${target})
endfunction()

# hvtheme_install_pkg_config(<name>)
#
# Installs cmake/<name>.pc.in, its variables replaced. Absolute folders stay what they are; the prefix
# of others is found from where the file stands.
function(hvtheme_install_pkg_config name)
    file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    set(pc_prefix "\${pcfiledir}/${pc_prefix}")
    if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
        set(pc_prefix "${CMAKE_INSTALL_PREFIX}")
    endif()
    foreach(folder LIBDIR INCLUDEDIR)
        set(pc_${folder} "\${prefix}/${CMAKE_INSTALL_${folder}}")
        if(IS_ABSOLUTE "${CMAKE_INSTALL_${folder}}")
            set(pc_${folder} "${CMAKE_INSTALL_${folder}}")
        endif()
    endforeach()
    set(file ${name}${HVTHEME_SUFFIX}.pc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${file} @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${file}
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()
