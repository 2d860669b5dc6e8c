#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Holds the sources to the table of rooms in CONTRIBUTING.md.

  check_rooms.py FOLDER   FOLDER is the root of the project

A room is a folder, or one unit of a folder where the table names it without a slash at its end. A
source belongs to the longest room that its path begins with. It may include headers of its own room,
of those in the last column of its row, and of what these may include. A row names only rooms of
earlier rows, so arrows point down. A source in no room fails.

Exit codes: 0 every include is allowed, 1 one is not, 2 wrong usage.
"""

import pathlib
import re
import sys

SOURCES = {".cpp", ".h"}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^">]+)[">]', re.MULTILINE)
NAME = re.compile(r"`([^`]+)`")


def read_table(text, problems):
    """Rooms by name, with the rooms that each may include."""
    rooms = {}
    lines = text.splitlines()
    start = next((index for index, line in enumerate(lines) if line.startswith("| Room |")), None)
    if start is None:
        problems.append("CONTRIBUTING.md has no table that begins with \"| Room |\"")
        return rooms
    for line in lines[start + 2 :]:
        if not line.startswith("|"):
            break
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        above = set(rooms)
        named = above if cells[2] == "any" else set(NAME.findall(cells[2]))
        allowed = named.union(*(rooms[room] for room in named & above))
        for room in NAME.findall(cells[0]):
            if room in rooms:
                problems.append(f"the table of rooms names {room} twice")
            for other in sorted(named - above):
                problems.append(f"the table lets {room} include {other}, which is no room above this row")
            rooms[room] = allowed | {room}
    return rooms


def room_of(path, rooms):
    """The room of a path that is relative to the root, or nothing."""
    fits = [room for room in rooms if path.startswith(room) if room.endswith("/") or path[len(room)] == "."]
    return max(fits, key=len, default=None)


def check_file(root, path, rooms, top_folders, problems):
    name = path.relative_to(root).as_posix()
    room = room_of(name, rooms)
    if room is None:
        problems.append(f"{name}: no room of the table in CONTRIBUTING.md has this file")
        return
    text = path.read_text(encoding="utf-8")
    for match in INCLUDE.finditer(text):
        bracket, header = match.groups()
        line = text.count("\n", 0, match.start()) + 1
        beside = path.parent / header
        if bracket == '"' and beside.exists():
            header = beside.resolve().relative_to(root.resolve()).as_posix()
        if header.split("/")[0] not in top_folders or not (root / header).exists():
            continue # Qt's, the system's, or written by the build
        other = room_of(header, rooms)
        if other is None:
            problems.append(f"{name}:{line}: {header} is in no room of the table")
        elif other not in rooms[room]:
            problems.append(f"{name}:{line}: {room} must not include {header}, which is in {other}")


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(arguments[0])
    problems = []
    rooms = read_table((root / "CONTRIBUTING.md").read_text(encoding="utf-8"), problems)
    folders = [path for path in root.iterdir() if path.is_dir() and not path.name.startswith((".", "build"))]
    top_folders = {folder.name for folder in folders}
    files = sorted(path for folder in folders for path in folder.rglob("*") if path.suffix in SOURCES)
    if not files:
        problems.append(f"no sources in {root}")
    for path in files:
        check_file(root, path, rooms, top_folders, problems)
    print("\n".join(problems), file=sys.stderr, end="\n" if problems else "")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
