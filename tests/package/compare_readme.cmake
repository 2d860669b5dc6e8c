# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT

# The C++ of the README is a program that the tests compile. This compares the two.
file(READ ${SOURCE_DIR}/README.md readme)
file(READ ${SOURCE_DIR}/docs/example.cpp example)
string(REGEX REPLACE "^(//[^\n]*\n)+\n" "" example "${example}")
string(FIND "${readme}" "```cpp\n${example}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not quote docs/example.cpp as it is. Copy it between ```cpp and ```:\n${example}")
endif()

# The index leads to every page.
file(READ ${SOURCE_DIR}/docs/README.md index)
file(GLOB pages RELATIVE ${SOURCE_DIR}/docs ${SOURCE_DIR}/docs/*.md)
list(REMOVE_ITEM pages README.md)
foreach(page IN LISTS pages)
    if(NOT index MATCHES "\\(${page}\\)")
        message(FATAL_ERROR "docs/README.md does not name ${page}")
    endif()
endforeach()
