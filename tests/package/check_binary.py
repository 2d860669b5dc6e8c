#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Looks at what the linker made of the shared libraries.

  check_binary.py FILE...   FILE is a shared library or a plugin

Each must be bound whole before it runs and be read-only where it can (relro, now), relocate no code,
find all that it needs in the libraries that it names, and export nothing but what is HV's, the registration of
resources, the entry points of a Qt plugin and inline functions of others that were not inlined.

Exit codes: 0 all is well, 1 something is not, 2 wrong usage.
"""

import re
import subprocess
import sys

OWN = re.compile(
    r"_Z(NK?|T[VIS]N|Thn\d+_N|GVN)2HV"  # the namespace
    r"|_Z\d+q(Init|Cleanup)Resources_"
    r"|qt_plugin_(instance|query_metadata)(_v2)?$"
    r"|(__bss_start|_edata|_end|_init|_fini)$"
)
# Inline functions and types of Qt and of the standard library, and types of functions.
OTHERS = re.compile(r"_Z(GV)?(T[VIS]Z?|NK?|ZNK?|eq|ls)?N?K?(\d+(Q|q)\w|St|S[abs]|9__gnu_cxx)|_ZT[IS]P?F")


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, errors="replace").stdout


def problems_of(path):
    dynamic = output_of("readelf", "--wide", "--dynamic", path)
    if "GNU_RELRO" not in output_of("readelf", "--wide", "--program-headers", path):
        yield "has no part that is read-only after relocation (relro)"
    if not re.search(r"BIND_NOW|FLAGS_1.*\bNOW\b", dynamic):
        yield "is bound function by function (now)"
    if "TEXTREL" in dynamic:
        yield "relocates code"
    missing = [line for line in output_of("ldd", "-r", path).splitlines() if "undefined symbol" in line]
    for line in missing:
        yield line.strip()
    for line in output_of("nm", "--dynamic", "--defined-only", "--format=posix", path).splitlines():
        name, kind = line.split()[:2]
        if OWN.match(name) or (kind in "WVu" and OTHERS.match(name)):
            continue
        yield f"exports {name}"


def main(paths):
    if not paths:
        print(__doc__, file=sys.stderr)
        return 2
    problems = [f"{path}: {problem}" for path in paths for problem in problems_of(path)]
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
