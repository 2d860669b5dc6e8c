#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Installs what was built with Qt 5 and what was built with Qt 6 into one prefix, and uses both.

  both_versions.py CMAKE CXX PKG_CONFIG BUILD_5 BUILD_6 CONFIG WORK_DIR

The second must leave every file of the first as it is. A program is built against each, by
find_package and by pkg-config, and runs with its own Qt alone. The commands of both must print the
same of the sample themes and of all themes that other tests check.

Exit codes: 0 all is well, 1 something is not, 2 wrong usage, 77 there is nothing built in one of the
two folders.
"""

import difflib
import hashlib
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys

from steps import Failure, expect, run

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
SKIPPED = 77
# Of all that a prefix holds, what both versions install and need not have a 6 in its name, since it is the same.
SHARED = re.compile(r"include/|share/(hvtheme|doc)/")
TALLIES = {}


def is_built(build):
    return (build / "bin/hvtheme").exists() and (build / "CMakeCache.txt").exists()


def contents(prefix):
    return {
        str(path.relative_to(prefix)): os.readlink(path) if path.is_symlink() else hashlib.sha256(path.read_bytes()).hexdigest()
        for path in prefix.rglob("*") if path.is_symlink() or path.is_file()
    }


def install_both(cmake, builds, config, prefix):
    run(cmake, "--install", builds[0], "--config", config, "--prefix", prefix)
    before = contents(prefix)
    run(cmake, "--install", builds[1], "--config", config, "--prefix", prefix)
    after = contents(prefix)
    changed = [name for name, content in before.items() if after[name] != content]
    expect(not changed, f"Qt 6 changes files of Qt 5: {changed}")
    for name in sorted(set(after) - set(before)):
        expect("6" in name, f"{name} is of Qt 6 alone, and its name does not say so")
    for name in before:
        if not SHARED.match(name):
            twin = [other for other in set(after) - set(before) if re.sub("-qt6|6", "", other) == re.sub("6", "", name)]
            expect(twin, f"{name} has no twin of Qt 6")
    TALLIES["files"] = len(after)


def build_consumer(cmake, cxx, pkg_config, prefix, suffix, work):
    """The programs of consumer/, built in both ways; returns their paths."""
    build = work / f"consumer{suffix}"
    run(cmake, "-S", HERE / "consumer", "-B", build, f"-DHVTHEME_PACKAGE=HVTheme{suffix}", f"-DCMAKE_PREFIX_PATH={prefix}",
        f"-DCMAKE_CXX_COMPILER={cxx}")
    run(cmake, "--build", build)
    programs = [build / "consumer", build / "application"]
    if pkg_config:
        folder = next(prefix.rglob("hvtheme.pc")).parent
        flags, _ = run(pkg_config, "--cflags", "--libs", f"hvthemeapp{suffix}", env=dict(os.environ, PKG_CONFIG_PATH=str(folder)))
        program = work / f"application-pkg-config{suffix}"
        source = HERE / "consumer/application.cpp"
        run(cxx, "-std=c++17", "-fPIC", "-o", program, source, *shlex.split(flags), f"-Wl,-rpath,{folder.parent}")
        programs.append(program)
    return programs


def try_consumer(programs, version, work):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(work))
    other = {"5": "6", "6": "5"}[version]
    for program in programs:
        libraries, _ = run("ldd", program)
        expect(f"libQt{version}Widgets" in libraries, f"{program.name} has not got Qt {version}:\n{libraries}")
        expect(f"libQt{other}" not in libraries, f"{program.name} has Qt {other} as well:\n{libraries}")
        arguments = [HERE / "consumer/themes"] if program.name == "consumer" else []
        expected = "Night\n" if arguments else "dark, dark, styled, icons\n"
        output, _ = run(program, *arguments, env=environment)
        expect(output.startswith(expected), f"{program} printed {output!r}")


def theme_folders():
    """The folders of themes in the tree with what to check them with."""
    yield ROOT / "themes", []
    yield ROOT / "tests/data/commands/themes", ["--templates", ROOT / "tests/data/commands/templates"]
    for folder in sorted((ROOT / "tests/data/check").glob("*/*")):
        if folder.is_dir():
            templates = [path for path in sorted(folder.iterdir()) if path.suffix in (".qss", ".css")]
            yield folder, [word for path in templates for word in ("--templates", path)]


def commands():
    """Each command that is compared, as its words; all forms of output for two folders, one for the others."""
    common = ["--app-dir", "/opt/demo/bin"]
    yield ["check", "--rules"]
    for folder, templates in theme_folders():
        themes = sorted(path.stem for path in folder.glob("*.theme"))
        is_whole = folder.name == "themes"
        for form in ("json", "text", "sarif") if is_whole else ("json",):
            yield ["check", folder, "--notes", "--format", form, *templates, *common]
        for theme in themes:
            yield ["render", folder, theme, "--no-builtin", *templates, *common]
            yield ["values", folder, theme, "--format", "csv", *common]
            yield ["explain", folder, theme, "Color_W100", *templates, *common]
            if is_whole:
                yield ["render", folder, theme, *common]
                yield from (["values", folder, theme, "--format", form, *common] for form in ("table", "json"))
                yield from (["export", folder, theme, "--format", form, *common] for form in ("tokens", "css", "palette", "gpl"))
                yield from (["explain", folder, theme, what, *templates, *common] for what in ("QPushButton:hover", "#101820"))
                yield ["diff", folder, themes[0], theme, *common]


def answer(program, words):
    """What a command prints on both channels, and how it ends."""
    result = subprocess.run([program, *map(str, words)], capture_output=True)
    return b"%s\n--- and as an error, %d\n%s" % (result.stdout, result.returncode, result.stderr)


def compare_commands(prefix):
    count = 0
    for words in commands():
        five, six = (answer(prefix / "bin" / name, words) for name in ("hvtheme", "hvtheme6"))
        if five != six:
            lines = (text.decode(errors="backslashreplace").splitlines() for text in (five, six))
            difference = list(difflib.unified_diff(*lines, "Qt 5", "Qt 6", lineterm="", n=0))[:12]
            raise Failure(f"hvtheme {shlex.join(map(str, words))}: another output\n" + "\n".join(difference))
        count += 1
    TALLIES["commands"] = count


def compare_files(prefix, work):
    """Themes and pages made by one are those made by the other."""
    for name in ("hvtheme", "hvtheme6"):
        program, folder = prefix / "bin" / name, work / name
        run(program, "new", folder, "--brand", "#8a2be2", "--name", "Harbour")
        run(program, "sheet", ROOT / "themes", "dark", "light", "--output", folder / "sheet.html")
    files = {name: contents(work / name) for name in ("hvtheme", "hvtheme6")}
    expect(len(files["hvtheme"]) > 3, f"too few files were made: {files}")
    expect(files["hvtheme"] == files["hvtheme6"], f"other files are made: {files}")


def check_plugins(prefix):
    """One folder serves the programs of both."""
    folders = set()
    for name in ("hvtheme", "hvtheme6"):
        seen, _ = run(prefix / "bin" / name, "run", "--theme", "dark", "--", "env")
        folders.add(dict(line.split("=", 1) for line in seen.splitlines() if "=" in line)["QT_PLUGIN_PATH"])
    expect(len(folders) == 1, f"programs of Qt 5 and of Qt 6 are given other plugins: {folders}")
    plugins = sorted(path.name for path in pathlib.Path(folders.pop().split(":")[-1]).glob("generic/*"))
    expect(plugins == ["libhvthemeplugin-qt6.so", "libhvthemeplugin.so"], f"the plugins are {plugins}")


def check(cmake, cxx, pkg_config, builds, config, work):
    shutil.rmtree(work, ignore_errors=True)
    prefix = work / "prefix"
    prefix.mkdir(parents=True)
    work.chmod(0o700)
    install_both(cmake, builds, config, prefix)
    for version, suffix in (("5", ""), ("6", "6")):
        try_consumer(build_consumer(cmake, cxx, pkg_config, prefix, suffix, work), version, work)
    check_plugins(prefix)
    compare_commands(prefix)
    compare_files(prefix, work)


def main(arguments):
    if len(arguments) != 7:
        print(__doc__, file=sys.stderr)
        return 2
    cmake, cxx, pkg_config, five, six, config, work = arguments
    builds = pathlib.Path(five), pathlib.Path(six)
    for build in builds:
        if not is_built(build):
            print(f"{build}: no program is built here")
            return SKIPPED
    try:
        check(cmake, cxx, pkg_config, builds, config, pathlib.Path(work))
    except (Failure, OSError) as failure:
        print(failure, file=sys.stderr)
        return 1
    print(", ".join(f"{count} {what}" for what, count in TALLIES.items()))
    shutil.rmtree(work)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
