#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Compares the headings of docs/messages.md with the texts that the core library logs.

  messages.py SOURCE_DIR

Takes the texts from the tables and the calls of the sources. A table, or a call, that this cannot read is an error too.
"""

import pathlib
import re
import sys

QUOTED = '"…"'
LITERAL = r'"((?:[^"\\]|\\.)*)"'


def unescaped(text):
    return text.replace('\\"', '"').replace("\\t", "\t")


def printed(*parts):
    """What QDebug makes of parts: it puts a space between any two."""
    return " ".join(parts)


def theme_texts(source):
    lookups = re.findall(rf"^constexpr Lookup (\w+)\s*\{{{LITERAL},\s*{LITERAL},\s*{LITERAL},", source, re.MULTILINE)
    sections = re.findall(rf"^constexpr Section (\w+)\s*\{{{LITERAL},\s*{LITERAL},\s*{LITERAL},\s*{LITERAL},", source, re.MULTILINE)
    for name, _, opening, closing in lookups:
        yield printed(opening, "…" if name.endswith("ByNumber") else QUOTED, closing)
    # What stands behind the key is written where it is logged.
    closings = dict(re.findall(rf"section\.(duplicate|missing) << key << {LITERAL}", source))
    for _, _, _, duplicate, missing in sections:
        yield printed(duplicate, QUOTED, closings["duplicate"])
        yield printed(missing, QUOTED, closings["missing"])
    gradient = next(section for section in sections if section[0] == "gradientSection")
    yield printed(gradient[3], QUOTED, re.search(rf"gradientSection\.duplicate << key << {LITERAL}", source)[1])
    yield unescaped(re.search(rf"\.warning\({LITERAL}", source)[1]).replace("%s", "…")


def theming_texts(source):
    for call in re.findall(r"warning\(\w+(?:\([^)]*\))?\)((?:\s*<<\s*(?:\"(?:[^\"\\]|\\.)*\"|[\w>.-]+))+);", source):
        parts = [part.strip() for part in call.split("<<")[1:]]
        yield printed(*(unescaped(part[1:-1]) if part.startswith('"') else QUOTED for part in parts))


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 1
    root = pathlib.Path(arguments[0])
    theme, theming = ((root / "hvtheme" / name).read_text() for name in ("theme.cpp", "theming.cpp"))
    logged = {*theme_texts(theme), *theming_texts(theming)}
    # The two calls that the tables' texts pass through, the two of a missing key, and what is read above.
    calls = len(re.findall(r"(?:critical|warning)\(", theme)), len(re.findall(r"(?<!QDebug )\bwarning\((?!\))", theming))
    problems = [] if calls == (7, 3) else [f"theme.cpp and theming.cpp log at {calls} places, this knows (7, 3)"]
    headings = re.findall(r"^### `(.*)`$", (root / "docs/messages.md").read_text(), re.MULTILINE)
    problems += [f"logged, but not on the page: {text}" for text in sorted(logged - set(headings))]
    problems += [f"on the page, but never logged: {text}" for text in sorted(set(headings) - logged)]
    problems += [f"on the page twice: {text}" for text in sorted({text for text in headings if headings.count(text) > 1})]
    for problem in problems:
        print(f"messages.py: {problem}", file=sys.stderr)
    print(f"messages.py: {len(logged)} texts")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
