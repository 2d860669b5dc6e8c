#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Compares what debian/ says of the libraries with the project and with the record of their interfaces.

  debian_files.py SOURCE_DIR VERSION

Exit codes: 0 all agrees, 1 something does not, 2 wrong usage.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

from steps import Failure, expect, run

SYMBOL = re.compile(r' \(c\+\+\)"(.*)@Base" (\S+)$')


def exported_by(record):
    names = [symbol.get("name") for symbol in ElementTree.parse(record).getroot().iter("elf-symbol")]
    return set(run("c++filt", *names)[0].splitlines())


def check_symbols(sources, symbols):
    """What a package promises and what is on record are the same."""
    lines = symbols.read_text().splitlines()
    soname, package = lines[0].split()[:2]
    expect(package == symbols.stem, f"{symbols} is for {package}")
    promised = {match.group(1) for match in map(SYMBOL.match, lines) if match}
    exported = exported_by(sources / "abi" / f"{soname}.abi")
    for name in sorted(exported ^ promised):
        raise Failure(f"{symbols.name} and abi/{soname}.abi differ: {name} is {'missing in the first' if name in exported else 'only there'}")


def check(sources, version):
    debian = sources / "debian"
    first = debian.joinpath("changelog").read_text().splitlines()[0]
    expect(f"({version}-" in first, f"debian/changelog is not about {version}: {first}")
    packages = set(re.findall(r"^Package: (.*)", debian.joinpath("control").read_text(), re.MULTILINE))
    installing = {path.stem for path in debian.glob("*.install")}
    expect(packages == installing, f"packages without files or files without packages: {packages ^ installing}")
    libraries = {package for package in packages if re.fullmatch(r"lib.*\d", package)}
    symbols = {path.stem: path for path in debian.glob("*.symbols")}
    expect(libraries == set(symbols), f"libraries without symbols or symbols without libraries: {libraries ^ set(symbols)}")
    for path in symbols.values():
        check_symbols(sources, path)


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        check(pathlib.Path(arguments[0]), arguments[1])
    except (Failure, OSError) as failure:
        print(failure, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
