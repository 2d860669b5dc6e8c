# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Usage: cmake -DSOURCE_DIR=<folder> -DOUTPUT_DIR=<folder> -DNAME=<name>-<version> -DGIT=<git> -P Dist.cmake
#
# Writes <name>-<version>.tar.gz and its checksum, for `sha256sum -c`: what the last commit of SOURCE_DIR
# has, with the time of that commit. So a commit gives the same bytes wherever and whenever this runs.

cmake_minimum_required(VERSION 3.16)

execute_process(COMMAND ${GIT} status --porcelain WORKING_DIRECTORY ${SOURCE_DIR} OUTPUT_VARIABLE changes)
if(changes)
    message(WARNING "Not in the archive, for it is not committed:\n${changes}")
endif()

# What a user may have configured otherwise, and what would change the bytes.
set(settings -c tar.umask=0022 -c core.autocrlf=false -c core.attributesFile=/dev/null)
file(MAKE_DIRECTORY ${OUTPUT_DIR})
set(archive ${OUTPUT_DIR}/${NAME}.tar)
file(REMOVE ${archive} ${archive}.gz ${archive}.gz.sha256)
execute_process(COMMAND ${GIT} ${settings} archive --format=tar --prefix=${NAME}/ --output=${archive} HEAD
    WORKING_DIRECTORY ${SOURCE_DIR} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${GIT} archive: ${status}")
endif()
# Neither the name nor the time of the inner file, and no options from the environment.
execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=GZIP gzip -n -9 ${archive} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "gzip: ${status}")
endif()
file(SHA256 ${archive}.gz checksum)
file(WRITE ${archive}.gz.sha256 "${checksum}  ${NAME}.tar.gz\n")
message(STATUS "${archive}.gz")
