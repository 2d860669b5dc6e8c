#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Compares the interfaces that shared libraries export with those on record, or records them.

  abi.py compare|compare-names|record FOLDER LIBRARY...

FOLDER holds one file a library, <soname>.abi: the exported symbols and what their signatures are made of, as abidw
writes it, without what is Qt's or the standard library's own affair. Types are compared if the library was
built with debug information about them (-g), names always. compare-names is for other compilers than the one that the
record is from, which describe the same types in another way. Exit codes: 0 all is as recorded, 1 something is not,
2 wrong usage.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# The namespace, its virtual tables and types, and the registration of resources.
OWN = re.compile(r"_Z(NK?|T[VIS]N|Thn\d+_N)2HV|_Z\d+q(Init|Cleanup)Resources_")
SYMBOLS = ("elf-function-symbols", "elf-variable-symbols")
CLASSES = ("class-decl", "union-decl")
MEMBERS = ("data-member", "base-class", "member-function", "member-template")
HOW = """
An interface that is gone or different breaks programs that were built before: bring it back, and add the new one beside
it (docs/abi.md). If an addition is meant, or nothing with this interface was released, record it:
  scripts/update-abi
"""


class Failure(Exception):
    """A tool that could not do its work."""


def output_of(*command):
    result = subprocess.run(list(map(str, command)), capture_output=True, text=True)
    if result.returncode != 0:
        raise Failure(f"{' '.join(map(str, command))}: {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout


def is_own(symbol):
    """An inline function is in everyone's program, and in the library only if its build had a use for it."""
    weak_function = symbol.get("binding") == "weak-binding" and symbol.get("type") == "func-type"
    return bool(OWN.match(symbol.get("name"))) and not weak_function


class Corpus:
    """What abidw knows of a library, reduced to its interface."""

    def __init__(self, text):
        self.root = ElementTree.fromstring(text)
        self.parents = {child: parent for parent in self.root.iter() for child in parent}
        self.symbols = set()
        self.prune_symbols()
        self.prune_classes()
        self.keep_reachable()
        self.drop_places()

    def prune_symbols(self):
        for section in SYMBOLS:
            for group in self.root.findall(section):
                for symbol in list(group):
                    if is_own(symbol):
                        self.symbols.add(symbol.get("name"))
                        aliases = [name for name in symbol.get("alias", "").split(",") if OWN.match(name)]
                        symbol.attrib.pop("alias", None)
                        if aliases:
                            symbol.set("alias", ",".join(aliases))
                    else:
                        group.remove(symbol)

    def ancestors(self, element):
        while element in self.parents:
            element = self.parents[element]
            yield element

    def is_inside(self, element):
        return any(a.tag == "namespace-decl" and a.get("name") == "HV" for a in self.ancestors(element))

    def prune_classes(self):
        """Others' classes and enumerations keep their name and size; ours lose functions that are inline."""
        for element in [e for e in self.root.iter("enum-decl") if not self.is_inside(e)]:
            for value in element.findall("enumerator"):
                element.remove(value)
        for member in [e for e in self.root.iter("member-type") if e[0].get("name") == "Private"]:
            self.parents[member].remove(member) # behind a d pointer
        for element in [e for e in self.root.iter() if e.tag in CLASSES]:
            own = self.is_inside(element)
            for member in list(element):
                if member.tag not in MEMBERS:
                    continue
                inline = member.tag == "member-function" and not self.is_exported(member[0]) and not member.get("vtable-offset")
                if not own or inline:
                    element.remove(member)

    def is_exported(self, element):
        return element.get("elf-symbol-id") in self.symbols

    def keep_reachable(self):
        types = {}
        for element in self.root.iter():
            if element.get("id"):
                types.setdefault(element.get("id"), []).append(element)
        waiting = [e for e in self.root.iter() if e.tag in ("function-decl", "var-decl") and self.is_exported(e)]
        whole, kept = set(), set()
        while waiting:
            element = waiting.pop()
            around = list(self.ancestors(element))
            # A member brings its class.
            waiting += [a for a in around if a.tag in CLASSES and a not in whole and self.is_inside(a)]
            kept.update(around)
            if element in whole:
                continue
            opaque = element.tag in CLASSES and not self.is_inside(element)
            for part in [element] if opaque else element.iter():
                whole.add(part)
                for attribute in ("type-id", "naming-typedef-id", "def-of-decl-id"):
                    waiting += [t for t in types.get(part.get(attribute), ()) if t not in whole]
        self.keep(self.root, whole | kept)

    def keep(self, element, wanted):
        for child in list(element):
            if child.tag in SYMBOLS:
                continue
            if child in wanted:
                self.keep(child, wanted)
            else:
                element.remove(child)

    def drop_places(self):
        for unit in self.root.iter("abi-instr"):
            unit.set("path", pathlib.PurePath(unit.get("path", "")).name)

    def has_types(self):
        return next(self.root.iter("parameter"), None) is not None

    def text(self):
        ElementTree.indent(self.root, " ")
        return ElementTree.tostring(self.root, encoding="unicode") + "\n"


def read_library(library):
    options = ("--exported-interfaces-only", "--no-corpus-path", "--no-show-locs", "--no-comp-dir-path", "--no-parameter-names", "--no-elf-needed",
               "--type-id-style", "hash")
    return Corpus(output_of("abidw", *options, library))


def demangled(names):
    return [f"  {name}" for name in output_of("c++filt", *sorted(names)).splitlines()] if names else []


def compare(record, library, names_alone):
    """Returns what is not as recorded, line by line."""
    if not record.exists():
        return [f"there is no {record}"]
    now, then = read_library(library), Corpus(record.read_text())
    lines = []
    for title, names in (("gone:", then.symbols - now.symbols), ("added:", now.symbols - then.symbols)):
        if names:
            lines += [title, *demangled(names)]
    if names_alone:
        return lines
    if not now.has_types():
        print(f"{record.stem}: no debug information about types (-g), so names alone were compared")
    elif not lines:
        with tempfile.TemporaryDirectory() as folder:
            current = pathlib.Path(folder, record.name)
            current.write_text(now.text())
            result = subprocess.run(["abidiff", record, current], capture_output=True, text=True)
        if result.returncode:
            lines += ["different:", *(result.stdout + result.stderr).splitlines()]
    return lines


def soname_of(library):
    return re.search(r"SONAME.*\[(.*)\]", output_of("readelf", "--wide", "--dynamic", library)).group(1)


def main(arguments):
    if len(arguments) < 3 or arguments[0] not in ("compare", "compare-names", "record"):
        print(__doc__, file=sys.stderr)
        return 2
    failed = False
    try:
        for library in arguments[2:]:
            record = pathlib.Path(arguments[1], soname_of(library) + ".abi")
            if arguments[0] == "record":
                corpus = read_library(library)
                if not corpus.has_types():
                    raise Failure(f"{library} has no debug information about types: build it with -g")
                record.write_text(corpus.text())
                continue
            lines = compare(record, library, arguments[0] == "compare-names")
            if lines:
                failed = True
                print("\n".join([f"{record.stem} is not as recorded in {record.parent.name}/{record.name}", *lines]), file=sys.stderr)
    except (Failure, OSError, ElementTree.ParseError) as failure:
        print(failure, file=sys.stderr)
        return 1
    if failed:
        print(HOW, file=sys.stderr)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
