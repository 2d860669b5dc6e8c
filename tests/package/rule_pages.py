#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Checks the example of each rule's page: `hvtheme check` must find that rule broken there.

  rule_pages.py COMMAND WORK_DIR PAGE...

The blocks of a page are put among the sample themes: ini as a theme, or as the themes that its
comments name (`; night.theme`), css and text as templates (\\xHH is a byte), sh is the command itself,
and a block without a language lists files, copies of sample themes. What the check says of the sample
themes alone does not count. Exit codes: 0 all are found, 1 one is not, 2 wrong usage.
"""

import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys

from steps import Failure, expect

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
NAMED_THEME = re.compile(r"^; (\w+\.theme)\n", re.MULTILINE)


def findings(command, folder, rule, *arguments):
    """Places and messages of what breaks the rule."""
    arguments = (command, "check", *arguments, "--format", "json")
    result = subprocess.run(arguments, cwd=folder, capture_output=True, text=True)
    expect(result.returncode in (0, 1), result.stderr)
    found = json.loads(result.stdout)["findings"]
    return {(f["file"], f["line"], f["message"]) for f in found if f["rule"] == rule}


def furnished(folder):
    shutil.copytree(ROOT / "themes", folder / "themes", ignore=shutil.ignore_patterns("CMakeLists.txt"))
    return folder


def write_themes(folder, text):
    parts = NAMED_THEME.split(text)
    if len(parts) == 1:
        (folder / "themes/page.theme").write_text(text, encoding="utf-8")
        return
    shutil.rmtree(folder / "themes")
    (folder / "themes").mkdir()
    (folder / "themes/default.theme").write_text("")
    for name, lines in zip(parts[1::2], parts[2::2]):
        (folder / "themes" / name).write_text(lines, encoding="utf-8")


def try_listed_files(command, folder, rule, text):
    """Files whose names alone break the rule."""
    paths = [folder / line for line in text.splitlines()]
    for path in paths:
        path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(ROOT / "themes/default.theme", path)
    return findings(command, folder, rule, paths[0].parent.relative_to(folder))


def try_command(command, folder, rule, text):
    """A command of the page, its absolute folder below the folder of the test."""
    words = [word if not word.startswith("/") else str(folder) + word for word in shlex.split(text)]
    for word in words:
        if word.startswith(str(folder)):
            pathlib.Path(word).mkdir(parents=True)
    expect(words[:2] == ["hvtheme", "check"], f"{text} is no check")
    return findings(command, folder, rule, *words[2:])


def try_page(command, page, work):
    rule, text = page.stem, page.read_text(encoding="utf-8")
    blocks = BLOCK.findall(text)
    expect(blocks, "there is no example")
    for language, block in blocks:
        if language in ("", "sh"):
            attempt = try_command if language else try_listed_files
            folder = work / rule
            folder.mkdir()
            expect(attempt(command, furnished(folder) if language else folder, rule, block), "the example is not found")
            return
    samples = work / f"{rule}-samples"
    known = findings(command, furnished(samples), rule, "themes")
    # A rule may be one for the default file.
    for kind in ("page.theme", "default.theme"):
        folder = furnished(work / f"{rule}-{kind}")
        options = []
        for number, (language, block) in enumerate(blocks):
            if language == "ini":
                write_themes(folder, block)
            else:
                template = folder / f"page-{number}.qss"
                bytes_meant = re.sub(rb"\\x(..)", lambda match: bytes.fromhex(match[1].decode()), block.encode())
                template.write_bytes(bytes_meant)
                options += ["--templates", template.name]
        if kind == "default.theme" and (folder / "themes/page.theme").exists():
            (folder / "themes/page.theme").rename(folder / "themes" / kind)
        if findings(command, folder, rule, "themes", *options) - known:
            return
    raise Failure("the example is not found")


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    command, work = str(pathlib.Path(arguments[0]).resolve()), pathlib.Path(arguments[1]).resolve()
    os.environ.update(QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    failed = False
    for page in map(pathlib.Path, arguments[2:]):
        try:
            try_page(command, page, work)
        except (Failure, OSError) as failure:
            failed = True
            print(f"{page}: {failure}", file=sys.stderr)
    if not failed:
        shutil.rmtree(work)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
