# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Usage: cmake -DBUILD_DIR=<project's build folder> -DWORK_DIR=<folder> -DCONFIG=<build type>
#              -DCTEST=<ctest> -DCXX=<compiler> -DCXX_FLAGS=<flags> -DLIBDIR=<library folder, absolute or below the prefix>
#              [-DGENERATOR=<name> | -DPKG_CONFIG=<program>] [-DCORE_ALONE=ON -DQT=<major version>] -P run.cmake
#
# Installs the project below WORK_DIR, builds the programs beside this script against the installed
# files, by find_package or by pkg-config, and checks what they print. CORE_ALONE builds the one
# without the application library, as if Qt had no more than its package with the widgets.

cmake_minimum_required(VERSION 3.16)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}: ${status}\n${output}${error}")
    endif()
    set(output "${output}" PARENT_SCOPE)
    set(error "${error}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
get_filename_component(library_folder ${LIBDIR} ABSOLUTE BASE_DIR ${prefix})
set(program ${WORK_DIR}/build/consumer)
set(application ${WORK_DIR}/build/application)
set(inspected ${WORK_DIR}/build/inspected)
set(alone "")
if(CORE_ALONE)
    set(alone -DCORE_ALONE=ON -DCMAKE_DISABLE_FIND_PACKAGE_Qt${QT}Svg=ON)
    if(QT EQUAL 5) # later ones need it for themselves
        list(APPEND alone -DCMAKE_DISABLE_FIND_PACKAGE_Qt${QT}DBus=ON)
    endif()
endif()
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR}/build)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} --config ${CONFIG})

if(PKG_CONFIG)
    set(ENV{PKG_CONFIG_PATH} ${library_folder}/pkgconfig)
    separate_arguments(flags UNIX_COMMAND "-std=c++17 -fPIC ${CXX_FLAGS}")
    function(build program source package)
        run(${PKG_CONFIG} --cflags --libs "${package} >= 1.0")
        separate_arguments(libraries UNIX_COMMAND "${output}")
        run(${CXX} -o ${program} ${flags} ${CMAKE_CURRENT_LIST_DIR}/${source} ${libraries})
    endfunction()
    build(${program} main.cpp hvtheme${SUFFIX})
    if(NOT CORE_ALONE)
        build(${application} application.cpp hvthemeapp${SUFFIX})
        build(${inspected} inspected.cpp hvthemeinspector${SUFFIX})
    endif()
    set(ENV{LD_LIBRARY_PATH} ${library_folder}:$ENV{LD_LIBRARY_PATH})
else()
    run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
        -DHVTHEME_PACKAGE=HVTheme${SUFFIX} -DHVTheme${SUFFIX}_DIR=${library_folder}/cmake/HVTheme${SUFFIX} -DCMAKE_BUILD_TYPE=${CONFIG} -DCMAKE_CONFIGURATION_TYPES=${CONFIG} -DCMAKE_CXX_COMPILER=${CXX}
        -DCMAKE_CXX_FLAGS=${CXX_FLAGS} ${alone})
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
    run(${CTEST} -C ${CONFIG} --test-dir ${WORK_DIR}/build)
endif()

function(expect_output expected)
    run(${ARGN})
    if(NOT output STREQUAL expected OR NOT error STREQUAL "")
        message(FATAL_ERROR "${ARGN} printed\n${output}${error}\ninstead of\n${expected}")
    endif()
endfunction()
expect_output("Night
QToolTip {
    border:0px;
    background-color:#102030;
}
" ${program} ${CMAKE_CURRENT_LIST_DIR}/themes)
if(NOT CORE_ALONE)
    set(ENV{QT_QPA_PLATFORM} offscreen)
    set(ENV{XDG_RUNTIME_DIR} ${WORK_DIR}/runtime) # Qt has something to say about those of others
    file(MAKE_DIRECTORY ${WORK_DIR}/runtime)
    run(chmod 700 ${WORK_DIR}/runtime)
    expect_output("dark, dark, styled, icons\n" ${application})
    run(${inspected}) # windows that open make Qt's offscreen platform say something
    if(NOT output STREQUAL "closed, open, closed\n")
        message(FATAL_ERROR "${inspected} printed\n${output}")
    endif()
endif()
