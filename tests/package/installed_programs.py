#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Installs the project, moves the tree and runs each installed program from its new place.

  installed_programs.py CMAKE BUILD_DIR CONFIG WORK_DIR VERSION SUFFIX

SUFFIX is what the names of the programs end in; it may be empty. Then removes the installation again, from where it was installed. Exit codes: 0 all programs start,
1 one does not, 2 wrong usage.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import urllib.parse

from steps import expect, in_new_folder, run

PNG = b"\x89PNG\r\n\x1a\n"


def expect_version(program, name, version, environment):
    output, _ = run(program, "--version", env=environment)
    expect(output == f"{name} {version}\n", f"{program} --version printed {output!r}")


def expect_own_libraries(prefix, binary, environment):
    libraries, _ = run("ldd", binary, env=environment)
    for line in libraries.splitlines():
        strange = "libhvtheme" in line and not line.split(" => ")[1].startswith(f"{prefix}/")
        expect(not strange, f"{binary.name} takes a library from elsewhere: {line}")


def use_command(program, prefix, work, environment):
    themes = prefix / "share/hvtheme/themes"
    sheet, _ = run(program, "render", themes, "dark", env=environment)
    path = f"{prefix}/share/hvtheme/themes/dark/checkbox_on.svg"
    expect(path in sheet, f"the style sheet does not name {path}")
    # Not run(): that the place has a space and an umlaut in it is a finding.
    check = [program, "check", themes, "--format", "sarif"]
    log = subprocess.run(check, capture_output=True, text=True, env=environment)
    expect(log.returncode in (0, 1), f"{program} check ended with {log.returncode}: {log.stderr}")
    for rule in json.loads(log.stdout)["runs"][0]["tool"]["driver"]["rules"]:
        page = pathlib.Path(urllib.parse.unquote(urllib.parse.urlparse(rule["helpUri"]).path))
        expect(page.exists(), f"{rule['id']} has no page {page}")
    seen, _ = run(program, "run", "--theme", "dark", "--", "env", env=environment)
    folder = dict(line.split("=", 1) for line in seen.splitlines() if "=" in line)["QT_PLUGIN_PATH"].split(":")[-1]
    plugins = sorted(pathlib.Path(folder).glob("generic/*.so"))
    expect(plugins and str(plugins[0]).startswith(f"{prefix}/"), f"there is no plugin in {folder}")
    for plugin in plugins:
        expect_own_libraries(prefix, plugin, environment)


def use_icons(program, prefix, work, environment):
    icons = sorted((prefix / "share/hvtheme/icons").glob("*.svg"))[:3]
    run(program, prefix / "share/hvtheme/themes", "light", work / "tinted", *icons, env=environment)
    expect(len(list((work / "tinted").glob("*.svg"))) == 3, "hvtheme-icons did not write three icons")


def use_gallery(program, prefix, work, environment):
    command = (program, "--screenshot", work / "pictures", "--page", "labels", "--theme", "dark")
    run(*command, env=environment)
    picture = work / "pictures/labels-dark.png"
    expect(picture.read_bytes().startswith(PNG), f"{picture} is no picture")


# What each program must do besides telling its version.
USES = {"hvtheme": use_command, "hvtheme-icons": use_icons, "hvtheme-gallery": use_gallery}


def check(work, cmake, build, config, version, suffix):
    installed = work / "first place"
    moved = work / "second place/with ü"
    run(cmake, "--install", build, "--config", config, "--prefix", installed)
    files = [path for path in installed.rglob("*") if not path.is_dir()]

    moved.parent.mkdir(parents=True)
    shutil.copytree(installed, moved, symlinks=True)
    installed.rename(work / "away")
    # Neither a run path into the build folder nor the caller's libraries may help.
    environment = {key: value for key, value in os.environ.items() if key != "LD_LIBRARY_PATH"}
    environment.update(QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(work))
    for page in ("README.md", "docs/theme-files.md", "docs/rules/key-exists.md"):
        expect((moved / "share/doc/hvtheme" / page).exists(), f"{page} is not installed")
    pages = [path.name for path in moved.rglob("rules/*.md")]
    expect(len(pages) == len(set(pages)), "pages of rules are installed twice")
    programs = sorted(path for path in (moved / "bin").iterdir())
    expect(programs, "no program is installed")
    for program in programs:
        name = program.name[: len(program.name) - len(suffix)]
        expect(name + suffix == program.name, f"the name {program.name} does not end in {suffix}")
        expect(name in USES, f"{program.name} is installed, and nothing here says how to try it")
        expect_version(program, name, version, environment)
        USES[name](program, moved, work, environment)
        expect(list(moved.glob(f"share/man/man1/{program.name}.1*")), f"{program.name} has no manual page")
        expect_own_libraries(moved, program, environment)

    (work / "away").rename(installed)
    foreign = installed / "share/hvtheme/themes/mine.theme"
    foreign.write_text("[General]\nThemeName=Mine\n")
    run(cmake, "--build", build, "--config", config, "--target", "uninstall")
    left = [path for path in installed.rglob("*") if not path.is_dir()]
    expect(left == [foreign], f"uninstalling {len(files)} files left {left}")
    expect(not (installed / "bin").exists(), "uninstalling left an empty folder")


def main(arguments):
    if len(arguments) != 6:
        print(__doc__, file=sys.stderr)
        return 2
    cmake, build, config, work, version, suffix = arguments
    return in_new_folder(pathlib.Path(work), check, cmake, pathlib.Path(build), config, version, suffix)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
