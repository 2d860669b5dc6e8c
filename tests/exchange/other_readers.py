#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Reads what `hvtheme export` writes with readers that are not this project's.

  other_readers.py HVTHEME THEMES

CSS goes through tinycss2, the palette of GIMP through Pillow, the colour scheme through configparser,
and design tokens through the rules that the format's report states. The values must be those of
`hvtheme values`.

Exit codes: 0 all agree, 1 something does not, 2 wrong usage, 77 a reader is not installed.
"""

import configparser
import io
import json
import re
import subprocess
import sys

try:
    import tinycss2
    from PIL import GimpPaletteFile
except ImportError as missing:
    print(f"other_readers: {missing}", file=sys.stderr)
    sys.exit(77)

TOKEN_TYPES = {"color", "dimension", "number", "gradient"}
problems = []


def expect(condition, what):
    if not condition:
        problems.append(what)


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode()


def stored_color(text):
    """#rrggbb or #aarrggbb as red, green, blue, alpha."""
    digits = text.lstrip("#")
    alpha = int(digits[:2], 16) if len(digits) == 8 else 255
    return (*bytes.fromhex(digits[-6:]), alpha)


def check_css(css, values):
    rules = tinycss2.parse_stylesheet(css, skip_whitespace=True)
    expect(len(rules) == 1 and rules[0].type == "qualified-rule", "CSS: not one rule")
    found = {}
    for item in tinycss2.parse_declaration_list(rules[0].content, skip_whitespace=True):
        expect(item.type == "declaration", f"CSS: {item.serialize()} is no declaration")
        found[item.name] = tinycss2.serialize(item.value).strip()
    for key, value in values["palettes"].items():
        text = found.get(f"--palette-{key}", "")
        digits = bytes.fromhex(text.lstrip("#"))
        expect((*digits, 255)[:4] == stored_color(value["value"]), f"CSS: {key} is {text}")
    for key, value in values["colors"].items():
        text = found.get(f"--color-{key}", "")
        if value.get("palette"):
            expect(text == f"var(--palette-{value['palette']})", f"CSS: {key} is {text}")
    expect(found.get("--integer-FontSize_L") == "14px", "CSS: FontSize_L")


def check_gpl(gpl, values):
    palette = GimpPaletteFile.GimpPaletteFile(io.BytesIO(gpl.encode()))
    data, mode = palette.getpalette()
    expect(mode == "RGB", "GIMP: mode")
    lines = [line for line in gpl.splitlines()[4:] if line]
    expect(len(lines) == len(values["palettes"]), "GIMP: number of entries")
    # Older versions of the reader count the lines between the first and the entries as well; what
    # it has not read is grey, each level its own number.
    skipped = 3 if [data[3 * index] for index in range(3)] == [0, 1, 2] else 0
    for index, line in enumerate(lines, skipped):
        name = line.split("\t")[1]
        expect(tuple(data[3 * index : 3 * index + 3]) == stored_color(values["palettes"][name]["value"])[:3],
               f"GIMP: {name}")


def check_scheme(text):
    parser = configparser.ConfigParser()
    parser.read_string(text)
    for group in ("active", "inactive", "disabled"):
        colors = [color.strip() for color in parser["ColorScheme"][f"{group}_colors"].split(",")]
        expect(len(colors) == 21, f"scheme: {group} has {len(colors)} colours")
        expect(all(re.fullmatch("#[0-9a-f]{8}", color) for color in colors), f"scheme: {group}")


def check_tokens(text, values):
    root = json.loads(text)
    tokens = {}

    def visit(node, path, kind):
        kind = node.get("$type", kind)
        if "$value" in node:
            expect(kind in TOKEN_TYPES, f"tokens: {path} has the type {kind}")
            tokens[path] = (kind, node["$value"])
            return
        for name, child in node.items():
            if name.startswith("$"):
                continue
            expect(not re.search(r"[.{}]", name), f"tokens: {name} is no name")
            visit(child, f"{path}.{name}" if path else name, kind)

    visit(root, "", None)
    for path, (kind, value) in tokens.items():
        if isinstance(value, str):
            expect(value[1:-1] in tokens, f"tokens: {path} names {value}, which is none")
        elif kind == "color":
            expect(value["colorSpace"] == "srgb" and len(value["components"]) == 3
                   and all(0 <= part <= 1 for part in value["components"]) and 0 <= value["alpha"] <= 1,
                   f"tokens: {path}")
            expect(re.fullmatch("#[0-9a-f]{6}", value["hex"]), f"tokens: {path} has no hex")
            expect([round(255 * part) for part in value["components"]] == list(bytes.fromhex(value["hex"][1:])),
                   f"tokens: {path}: components and hex differ")
        elif kind == "dimension":
            expect(value["unit"] in ("px", "rem") and isinstance(value["value"], (int, float)), f"tokens: {path}")
    for group, section in (("palette", "palettes"), ("color", "colors"), ("integer", "integers")):
        expect({path.split(".")[1] for path in tokens if path.startswith(group + ".")} == set(values[section]),
               f"tokens: keys of {group}")


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    command, themes = arguments
    for theme in ("dark", "light", "contrast"):
        values = json.loads(run(command, "values", themes, theme, "--format", "json"))
        export = lambda form: run(command, "export", themes, theme, "--format", form)
        check_css(export("css"), values)
        check_gpl(export("gpl"), values)
        check_scheme(export("palette"))
        check_tokens(export("tokens"), values)
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
