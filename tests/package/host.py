#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Builds the project in host/, which has HVTheme as a part of itself, and looks what came of it.

  host.py WORK_DIR SOURCE_DIR [OPTION of cmake...]

Exit codes: 0 all is well, 1 something is not, 2 wrong usage.
"""

import os
import pathlib
import shutil
import sys

from steps import Failure, expect, in_new_folder, run

# What the programs print that use the application library and the inspector, which are there with all of Qt.
USES = {"application": "dark, dark, styled, icons\n", "inspected": "closed, open, closed\n"}
HERE = pathlib.Path(__file__).resolve().parent


def check(work, sources, options):
    host, build, prefix = work / "a host", work / "build", work / "prefix"
    shutil.copytree(HERE / "host", host)
    shutil.copytree(sources / "themes", host / "themes")
    run("cmake", "-S", host, "-B", build, f"-DHVTHEME_SOURCES={sources}", *options)
    run("cmake", "--build", build)

    templates = "".join(path.read_text() for path in (sources / "hvtheme/stylesheet").glob("*.qss"))
    output, _ = run(build / "host")
    expect(output == f"{templates.count('{')}\n", f"the host printed {output!r} rules")
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    has_all = not any("DISABLE_FIND_PACKAGE" in option for option in options)
    for program, expected in USES.items() if has_all else ():
        output, _ = run(build / program, env=environment)
        expect(output == expected, f"{program} printed {output!r}")
        libraries, _ = run("ldd", build / program)
        expect("libhvtheme" not in libraries, f"{program} is not static:\n{libraries}")
    expect(len(list((build / "icons/dark").glob("*.svg"))) == 85, "the host has not got its icons")
    expect(not list(build.glob("hvtheme/share/**/*.svg")), "the host built the sample icons")
    expect(not list(build.glob("hvtheme/bin/hvtheme-gallery*")), "the host built the gallery")
    if "-DCHECK=ON" in options:
        output, _ = run("ctest", "-C", "Debug", "--test-dir", build)
        expect("1/1 Test #1: host_themes" in output, f"the host has other tests:\n{output}")
        # A finding must fail the test, or it looks at nothing.
        with open(host / "themes/dark.theme", "a") as theme:
            theme.write("\n[Nonsense]\na=b\n")
        try:
            run("ctest", "-C", "Debug", "--test-dir", build)
        except Failure:
            pass
        else:
            raise Failure("hvtheme_check found nothing in a theme with a mistake")

    run("cmake", "--install", build, "--prefix", prefix)
    installed = [str(path.relative_to(prefix)) for path in prefix.rglob("*") if not path.is_dir()]
    expect(installed == ["bin/host"], f"the host installs {installed}")


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    work, sources = map(pathlib.Path, arguments[:2])
    return in_new_folder(work, check, sources, arguments[2:])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
