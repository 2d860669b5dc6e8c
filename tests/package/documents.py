#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Does what a page of the documentation says: runs its commands, builds its programs, reads its themes.

  documents.py CMAKE BUILD_DIR CONFIG CXX PKG_CONFIG WORK_DIR PAGE...
  documents.py --build WORK_DIR PAGE    runs only what the page says about building the whole project

The project is installed below WORK_DIR first. Pages name programs and packages as they are with Qt 5; with
Qt 6 those of Qt 6 stand in for them. Each page has a folder of its own there, with themes,
templates and a form; its blocks are taken in their order:

  sh       runs; must succeed
  console  runs what follows each "$ "; must print what stands below, if something does
  cmake    configures, builds and tests a project of these lines
  cpp      is compiled; a whole program is also started
  ini      is read as a theme beside the sample default file, without an error
  css      is checked as a template with the sample themes
  json     is read, and taken as a vocabulary
  yaml     its "run:" lines are run as sh

A comment <!-- test: ... --> right before a block says otherwise:

  skip REASON    the block is passed over
  file NAME      it becomes that file
  after COMMAND  the command runs first, in a folder for this block alone
  default        the theme is also read as a default file, which must not hide the sample themes
  folder PATH    this block and those below run in a copy of that folder, as seen from the page
  samples        as well, in a folder like the first
  project        it builds a copy of the project, which takes minutes, and so runs with --build alone

Exit codes: 0 all is as the pages say, 1 something is not, 2 wrong usage.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from steps import Failure, expect, run

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FENCE = re.compile(r"^(?:<!-- test: (?P<directive>[^\n]*?) -->\n)?```(?P<language>\w*)\n(?P<text>.*?)^```$", re.MULTILINE | re.DOTALL)
COMMAND = re.compile(r"^(?:    )?(?:\$ )?(?:hvtheme(?:-\w+)? |cmake |ctest |scripts/|pkg-config )", re.MULTILINE)
PREAMBLE = """
#include <hvtheme/theming.h>
#include <hvtheme/workabletheming.h>
#if __has_include(<hvthemeapp/applicationtheme.h>)
#include <hvthemeapp/applicationtheme.h>
#endif
#if __has_include(<hvthemeapp/themedicon.h>)
#include <hvthemeapp/themedicon.h>
#endif
#include <QtWidgets>
"""
STARTED_SECONDS = 1.5
# Where "theme" is the application's look.
APPLICATION_PAGES = {"application", "desktop", "moving"}


class Block:
    def __init__(self, match, page_text):
        self.line = page_text.count("\n", 0, match.start("language")) + 1
        self.language = match["language"]
        self.text = match["text"]
        self.directive, _, self.argument = (match["directive"] or "").partition(" ")


class Workshop:
    """What the pages are tried with: an installation, and what a project of a reader may hold."""

    def __init__(self, cmake, build, config, cxx, pkg_config, work):
        self.cmake, self.cxx, self.pkg_config, self.work = cmake, cxx, pkg_config, work
        self.prefix = work / "home/hvtheme"
        shutil.rmtree(work, ignore_errors=True)
        run(cmake, "--install", build, "--config", config, "--prefix", self.prefix)
        library = next(path for path in self.prefix.rglob("libhvtheme*.so") if re.fullmatch(r"libhvtheme\d*\.so", path.name))
        library_folder = library.parent
        self.suffix = library.stem[len("libhvtheme") :]
        programs = work / "programs"
        programs.mkdir()
        for name in ("hvtheme", "hvtheme-icons"):
            if not (self.prefix / "bin" / name).exists():
                (programs / name).symlink_to(self.prefix / "bin" / (name + self.suffix))
        # A window would wait for its user, so the gallery draws instead where the page opens one.
        gallery = programs / "hvtheme-gallery"
        gallery.write_text(
            '#!/bin/sh\ncase "$*" in *--screenshot*) ;; *) set -- "$@" --screenshot window --page labels ;; esac\n'
            f'exec "{self.prefix}/bin/hvtheme-gallery{self.suffix}" "$@"\n'
        )
        gallery.chmod(0o755)
        self.environment = dict(
            os.environ,
            PATH=f"{programs}:{self.prefix}/bin:{os.environ['PATH']}",
            HOME=str(work / "home"),
            XDG_RUNTIME_DIR=str(work),
            CMAKE_PREFIX_PATH=str(self.prefix),
            PKG_CONFIG_PATH=str(library_folder / "pkgconfig"),
            LD_LIBRARY_PATH=str(library_folder),
            CXX=cxx,
            QT_QPA_PLATFORM="offscreen",
            LC_ALL="C.UTF-8",
        )

    def run(self, folder, *command, **options):
        return run(*command, cwd=folder, env=self.environment, **options)

    def for_this_qt(self, text):
        """The text with the names of packages as they are with this version of Qt."""
        text = re.sub(r"\b(find_package\(HVTheme)\b", rf"\g<1>{self.suffix}", text)
        return re.sub(r"(pkg-config (?:--\S+ )*hvtheme\w*)", rf"\g<1>{self.suffix}", text)

    def furnish(self, folder):
        """Themes with their pictures, templates, a form and the folder of a program."""
        samples = self.prefix / "share/hvtheme/themes"
        for themes in (folder / "themes", folder / "my/themes"):
            shutil.copytree(ROOT / "themes", themes, ignore=shutil.ignore_patterns("CMakeLists.txt"))
            for source, copy in (("dark", "Night"), ("light", "Day")):
                text = re.sub("ThemeName=.*", f"ThemeName={copy}", (ROOT / f"themes/{source}.theme").read_text())
                (themes / f"{copy.lower()}.theme").write_text(text)
        for templates in (folder / "templates", folder / "my/styles"):
            templates.mkdir(parents=True)
            (templates / "panel.qss").write_text("QLabel#panel { color: global.theme.color.Color_W100; }\n")
        (folder / "settings.ui").write_text(
            '<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form"/></ui>\n'
        )
        (folder / "vocabulary.json").write_text('{"Palette": ["W100"]}\n')
        (folder / "build/bin").mkdir(parents=True)
        (folder / "build/share").symlink_to(samples.parent.parent)


class Page:
    def __init__(self, path, workshop, number):
        self.path, self.workshop = path, workshop
        self.text = path.read_text(encoding="utf-8")
        self.folder = workshop.work / f"{number}-{path.stem}"
        self.folder.mkdir()
        workshop.furnish(self.folder)
        self.count = 0

    def try_blocks(self):
        for match in FENCE.finditer(self.text):
            block = Block(match, self.text)
            block.text = self.workshop.for_this_qt(block.text)
            self.count += 1
            try:
                self.try_block(block)
            except Failure as failure:
                raise Failure(f"{self.path.relative_to(ROOT)}:{block.line}: {failure}") from failure
        prose = FENCE.sub("", self.text)
        indented = re.search(r"^    \S.*$", prose, re.MULTILINE)
        if indented and COMMAND.match(indented[0]):
            raise Failure(f"{self.path.relative_to(ROOT)}: nothing runs {indented[0].strip()!r}, which stands in no fence")

    def try_block(self, block):
        folder = self.folder
        if block.directive == "skip":
            expect(block.argument, "a block is skipped, and no reason is given")
            return
        if block.directive == "file":
            path = self.folder / block.argument
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(block.text)
            return
        if block.directive == "folder":
            self.folder = folder = self.folder / f"copy-{self.count}"
            shutil.copytree(self.path.parent / block.argument, folder)
        elif block.directive == "samples":
            self.folder = folder = self.folder / f"samples-{self.count}"
            folder.mkdir()
            self.workshop.furnish(folder)
        elif block.directive == "after":
            folder = self.folder / f"after-{self.count}"
            folder.mkdir()
            self.workshop.furnish(folder)
            self.workshop.run(folder, "sh", "-ec", block.argument)
        elif block.directive == "project":
            return
        elif block.directive == "default":
            self.try_default_file(block.text)
        elif block.directive:
            raise Failure(f"the test knows no {block.directive!r}")
        attempt = getattr(self, f"try_{block.language or 'plain'}", None)
        expect(attempt is not None, f"nothing says how to try {block.language}")
        attempt(block.text, folder)

    def try_plain(self, text, folder):
        found = COMMAND.search(text)
        expect(not found, f"{found and found[0]!r} in a block without a language is run by nothing")

    try_text = try_plain

    def try_sh(self, text, folder):
        self.workshop.run(folder, "sh", "-ec", text)

    def try_console(self, text, folder):
        for part in re.split(r"^\$ ", text, flags=re.MULTILINE)[1:]:
            command, _, expected = part.partition("\n")
            result = subprocess.run(
                ["sh", "-c", command], cwd=folder, env=self.workshop.environment, text=True,
                capture_output=True,
            )
            expect(result.returncode in (0, 1), f"{command}: {result.returncode}\n{result.stderr}")
            printed = (result.stdout.strip(), (result.stdout + result.stderr).strip())
            expect(not expected.strip() or expected.strip() in printed, f"{command} prints\n{printed[1]}")

    def try_cmake(self, text, folder):
        project = self.folder / f"project-{self.count}"
        project.mkdir()
        self.workshop.furnish(project)
        (project / "icons").mkdir()
        shutil.copy(ROOT / "icons/add.svg", project / "icons/a.svg")
        lines = ["cmake_minimum_required(VERSION 3.16)", "project(page LANGUAGES CXX)", "enable_testing()"]
        if "find_package(HVTheme" not in text:
            lines.append(f"find_package(HVTheme{self.workshop.suffix} REQUIRED)")
        targets = set(re.findall(r"target_link_libraries\((\w+)|TARGET_FILE_DIR:(\w+)", text))
        for name in sorted({first or second for first, second in targets}):
            if f"add_executable({name}" not in text:
                lines.append(f"set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${{PROJECT_BINARY_DIR}}/bin)\nadd_executable({name} main.cpp)")
                if f"target_link_libraries({name}" not in text:
                    text += f"\ntarget_link_libraries({name} PRIVATE HVTheme::hvthemeapp)\n"
        program = "docs/example.cpp" if "HVTheme::hvthemeapp" in text else "tests/package/consumer/main.cpp"
        shutil.copy(ROOT / program, project / "main.cpp")
        (project / "CMakeLists.txt").write_text("\n".join(lines) + "\n" + text)
        self.workshop.run(project, self.workshop.cmake, "-S", ".", "-B", "build", "-DCMAKE_BUILD_TYPE=Debug")
        self.workshop.run(project, self.workshop.cmake, "--build", "build")
        self.workshop.run(project / "build", "ctest", "--output-on-failure")

    def flags(self):
        packages = [path.stem for path in pathlib.Path(self.workshop.environment["PKG_CONFIG_PATH"]).glob("hvtheme*.pc")]
        output, _ = self.workshop.run(self.folder, self.workshop.pkg_config, "--cflags", "--libs", *packages)
        return ["-std=c++17", "-fPIC", "-Wall", "-Wextra", "-Werror", "-Wno-unused"], output.split()

    def try_cpp(self, text, folder):
        source = self.folder / f"block-{self.count}.cpp"
        options, libraries = self.flags()
        if "int main(" in text:
            source.write_text(text)
            # Beside the installed programs, whose images the sample themes name.
            program = self.workshop.prefix / "bin" / f"{self.path.stem.lower()}-{self.count}"
            self.workshop.run(folder, self.workshop.cxx, *options, "-o", program, source, *libraries)
            self.start(program)
            program.unlink()
            return
        if not re.search(r"^(class|struct|#include|\w[\w:<> ]* \**\w*::\w+\(|void \w+\()", text, re.MULTILINE):
            # The reader's own actions and buttons are known by their names.
            kinds = {"Action": "QAction", "Button": "QPushButton"}
            own = sorted(set(re.findall(r"\b(\w+)(Action|Button)->", text)))
            text = "".join(f"{kinds[kind]} *{name}{kind} = nullptr;\n" for name, kind in own) + text
            app = "" if "QApplication app" in text else "app"
            kind = "ApplicationTheme" if self.path.stem in APPLICATION_PAGES else "WorkableTheme"
            theme = "" if re.search(r"HV::\w+ theme\b", text) else "theme"
            parameters = f"int argc, char **argv, HV::{kind} &{theme}, QApplication &{app}, QWidget &window, QMenu *menu"
            text = f"void block({parameters})\n{{\n{text}}}\n"
        source.write_text(PREAMBLE + text)
        self.workshop.run(folder, self.workshop.cxx, *options, "-fsyntax-only", source, *libraries)

    def start(self, program):
        """A window stays; a program that is still there after a while, and has said nothing, has started."""
        process = subprocess.Popen(
            [program], cwd=self.folder, env=self.workshop.environment, text=True, stderr=subprocess.PIPE
        )
        try:
            _, error = process.communicate(timeout=STARTED_SECONDS)
            expect(process.returncode == 0, f"the program ended with {process.returncode}\n{error}")
        except subprocess.TimeoutExpired:
            process.kill()
            _, error = process.communicate()
        said = [line for line in error.splitlines() if "XDG_RUNTIME_DIR" not in line and "runtime directory" not in line
                and "propagateSizeHints" not in line]
        expect(not said, "the program said\n" + "\n".join(said))

    def findings(self, folder, *options):
        command = ("hvtheme", "check", "themes", *options, "--app-dir", self.workshop.prefix / "bin", "--format", "json")
        result = subprocess.run(
            list(map(str, command)), cwd=folder, env=self.workshop.environment, capture_output=True, text=True
        )
        expect(result.returncode in (0, 1), f"hvtheme check: {result.stderr}")
        return json.loads(result.stdout)["findings"]

    def try_ini(self, text, folder):
        themes = self.folder / f"ini-{self.count}" / "themes"
        shutil.copytree(ROOT / "themes", themes)
        (themes / "page.theme").write_text(text)
        # What it names below the program's folder is there.
        for image in re.findall(r"^\w+=(\.\./share/.*)$", text, re.MULTILINE):
            path = self.workshop.prefix / "bin" / image
            path.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / "icons/add.svg", path)
        errors = [f for f in self.findings(themes.parent, "page") if f["severity"] == "error" and f["file"].endswith("page.theme")]
        expect(not errors, "beside the sample default file: " + "; ".join(f["message"] for f in errors))

    def try_default_file(self, text):
        themes = self.folder / f"default-{self.count}" / "themes"
        shutil.copytree(ROOT / "themes", themes)
        (themes / "default.theme").write_text(text)
        hidden = [f for f in self.findings(themes.parent) if f["rule"] == "theme-never-read"]
        expect(not hidden, "as a default file: " + "; ".join(f["message"] for f in hidden))

    def try_css(self, text, folder):
        template = self.folder / f"block-{self.count}.qss"
        template.write_text(text)
        found = [f for f in self.findings(self.folder, "dark", "--templates", template) if f["file"].endswith(template.name)]
        wrong = [f for f in found if f["severity"] != "info"]
        expect(not wrong, "; ".join(f["message"] for f in wrong))

    def try_json(self, text, folder):
        expect(isinstance(json.loads(text), dict), "no object")
        vocabulary = self.folder / f"block-{self.count}.json"
        vocabulary.write_text(text)
        self.findings(self.folder, "dark", "--vocabulary", vocabulary)

    def try_yaml(self, text, folder):
        commands = re.findall(r"^ *- run: (.*)$", text, re.MULTILINE)
        expect(commands, "no command to run")
        for command in commands:
            self.try_sh(command, folder)


def build_project(work, page):
    """Runs the page's blocks that build the project, in a copy of it, and looks at what they installed."""
    shutil.rmtree(work, ignore_errors=True)
    project, home = work / "project", work / "home"
    shutil.copytree(ROOT, project, ignore=shutil.ignore_patterns("build*", ".git", "__pycache__"))
    blocks = [Block(match, "") for match in FENCE.finditer(page.read_text(encoding="utf-8"))]
    blocks = [block for block in blocks if block.directive == "project"]
    expect(blocks, f"{page} does not say how to build the project")
    for block in blocks:
        run("sh", "-ec", block.text, cwd=project, env=dict(os.environ, HOME=str(home), CMAKE_BUILD_PARALLEL_LEVEL="2"))
    for program in ("hvtheme", "hvtheme-gallery", "hvtheme-icons"):
        run(home / "hvtheme/bin" / program, "--version", env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    surplus = [path.name for path in (project / "build").rglob("*") if re.fullmatch(r"(tst|bench|fuzz)_\w+", path.name)]
    expect(not surplus, f"the build made {surplus}")
    shutil.rmtree(work)


def main(arguments):
    if len(arguments) == 3 and arguments[0] == "--build":
        try:
            build_project(pathlib.Path(arguments[1]), pathlib.Path(arguments[2]))
        except (Failure, OSError) as failure:
            print(failure, file=sys.stderr)
            return 1
        return 0
    if len(arguments) < 7:
        print(__doc__, file=sys.stderr)
        return 2
    cmake, build, config, cxx, pkg_config, work, *pages = arguments
    if " " in work: # which no shell keeps together in what pkg-config prints
        work = tempfile.mkdtemp(prefix="hvtheme-pages-")
    failures = []
    try:
        workshop = Workshop(cmake, pathlib.Path(build), config, cxx, pkg_config, pathlib.Path(work))
        for number, page in enumerate(pages):
            try:
                Page(pathlib.Path(page), workshop, number).try_blocks()
            except Failure as failure:
                failures.append(str(failure))
    except (Failure, OSError) as failure:
        failures.append(str(failure))
    print("\n".join(failures), file=sys.stderr)
    if not failures:
        shutil.rmtree(work)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
