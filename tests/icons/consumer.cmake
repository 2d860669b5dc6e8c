# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# Installs the project, builds the project in "consumer" against it and runs it; then changes the theme and a
# picture and looks whether the copies follow. Needs BUILD_DIR, CONFIG, SOURCE_DIR, WORK_DIR and
# GENERATOR.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGN})
        message(FATAL_ERROR "${command}: ${result}\n${output}")
    endif()
endfunction()

function(expect_in_file file text)
    file(READ ${file} content)
    if(NOT content MATCHES "${text}")
        message(FATAL_ERROR "${file} does not hold \"${text}\":\n${content}")
    endif()
endfunction()

# Changes a file and its time, which may be the second in which it was copied here.
function(replace_in_file file from to)
    file(READ ${file} content)
    string(REPLACE "${from}" "${to}" content "${content}")
    execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 1.1)
    file(WRITE ${file} "${content}")
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(COPY ${SOURCE_DIR}/consumer DESTINATION ${WORK_DIR})
set(source ${WORK_DIR}/consumer)
set(build ${WORK_DIR}/build)
set(copies ${build}/share/consumer/forest)

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG} --prefix ${WORK_DIR}/installed)
run(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${WORK_DIR}/installed -DHVTHEME_PACKAGE=HVTheme${SUFFIX}
    -DCMAKE_BUILD_TYPE=${CONFIG} -DCMAKE_CONFIGURATION_TYPES=${CONFIG})
run(${CMAKE_COMMAND} --build ${build})
run(${build}/bin/icons_consumer)
file(GLOB icons ${copies}/*.svg)
list(LENGTH icons count)
if(NOT count EQUAL 86)
    message(FATAL_ERROR "${count} copies in ${copies} instead of 85 and one")
endif()

replace_in_file(${source}/themes/forest.theme "#4CAF50" "#123456")
run(${CMAKE_COMMAND} --build ${build})
expect_in_file(${copies}/lock_on.svg "#123456")

replace_in_file(${source}/extra/leaf.svg "1.5-4" "1.25-4")
run(${CMAKE_COMMAND} --build ${build})
expect_in_file(${copies}/leaf.svg "1.25-4")

# The installed icons name theme colours; a theme that lacks one must stop the build.
replace_in_file(${source}/themes/forest.theme "Color_Green_6=#66BB6A" "")
execute_process(COMMAND ${CMAKE_COMMAND} --build ${build} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(result EQUAL 0 OR NOT output MATCHES "global.theme.color.Color_Green_6: the theme has no such colour")
    message(FATAL_ERROR "a missing colour did not stop the build:\n${output}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
