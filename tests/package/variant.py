#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Builds the library with other options than the usual ones, and the program in consumer/ with what it installs.

  variant.py static|absolute-libdir CMAKE CTEST CXX PKG_CONFIG WORK_DIR SOURCE_DIR [OPTION of cmake...]

The path of the build has a space in it. PKG_CONFIG may be empty. Exit codes: 0 all is well,
1 something is not, 2 wrong usage.
"""

import pathlib
import sys

from steps import expect, in_new_folder, run

HERE = pathlib.Path(__file__).resolve().parent


def check(work, variant, cmake, ctest, cxx, pkg_config, sources, options):
    build, users = work / "a build", {"find_package": ["-DGENERATOR=Unix Makefiles"]}
    if pkg_config:
        users["pkg_config"] = [f"-DPKG_CONFIG={pkg_config}"]
    suffix = "6" if "-DHVTHEME_QT=6" in options else ""
    library_folder = work / "libraries" if variant == "absolute-libdir" else pathlib.Path("lib/deeper/still")
    options = [
        *options,
        f"-DCMAKE_INSTALL_LIBDIR={library_folder}",
        f"-DBUILD_SHARED_LIBS={'OFF' if variant == 'static' else 'ON'}",
        "-DHVTHEME_BUILD_TOOLS=OFF",
        "-DHVTHEME_BUILD_GALLERY=OFF",
        "-DCMAKE_BUILD_TYPE=Debug",
    ]
    run(cmake, "-S", sources, "-B", build, *options)
    run(cmake, "--build", build, "--parallel", 2)
    for way, arguments in users.items():
        # The folders of a .pc file beside an absolute one start from the configured prefix.
        run(cmake, f"-DCMAKE_INSTALL_PREFIX={work / way / 'prefix'}", build)
        common = (f"-DBUILD_DIR={build}", f"-DWORK_DIR={work / way}", "-DCONFIG=Debug", f"-DLIBDIR={library_folder}")
        run(cmake, *common, f"-DSUFFIX={suffix}", f"-DCTEST={ctest}", f"-DCXX={cxx}", *arguments, "-P", HERE / "consumer/run.cmake")
        program = work / way / f"prefix/bin/hvtheme-icons{suffix}"
        output, _ = run(program, "--version")
        expect(output.startswith("hvtheme-icons "), f"{program} printed {output!r}")
        if variant == "static":
            libraries, _ = run("ldd", work / way / "build/consumer")
            expect("libhvtheme" not in libraries, f"the consumer is not static:\n{libraries}")


def main(arguments):
    if len(arguments) < 7:
        print(__doc__, file=sys.stderr)
        return 2
    variant, cmake, ctest, cxx, pkg_config, work, sources = arguments[:7]
    return in_new_folder(pathlib.Path(work), check, variant, cmake, ctest, cxx, pkg_config, pathlib.Path(sources), arguments[7:])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
