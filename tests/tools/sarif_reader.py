#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Reads the SARIF logs of `hvtheme check` into classes that others generated from the published schema of 2.1.0.

  sarif_reader.py HVTHEME DATA_DIR

DATA_DIR has a folder for each rule, with the themes folders bad and good. Each property must be one that the schema
knows of its object, and each that it requires must be there; the classes say both, of all objects. What values may be,
ranges and words, they do not say: tst_sarif has that.

Exit codes: 0 all logs are sound, 1 one is not, 2 wrong usage, 77 the classes are not installed.
"""

import json
import pathlib
import subprocess
import sys

try:
    import attr
    import sarif_om
except ImportError as missing:
    print(f"sarif_reader: {missing}", file=sys.stderr)
    sys.exit(77)

# The class of what a property holds, be it one object or a list of them.
CLASSES = {
    "runs": sarif_om.Run,
    "tool": sarif_om.Tool,
    "driver": sarif_om.ToolComponent,
    "rules": sarif_om.ReportingDescriptor,
    "shortDescription": sarif_om.MultiformatMessageString,
    "defaultConfiguration": sarif_om.ReportingConfiguration,
    "results": sarif_om.Result,
    "message": sarif_om.Message,
    "locations": sarif_om.Location,
    "relatedLocations": sarif_om.Location,
    "physicalLocation": sarif_om.PhysicalLocation,
    "artifactLocation": sarif_om.ArtifactLocation,
    "region": sarif_om.Region,
}


def read(value, kind, place):
    """Makes an object of the class; returns what keeps it from being one."""
    if not isinstance(value, dict):
        return [f"{place}: no object"]
    names = {field.metadata["schema_property_name"]: field.name for field in attr.fields(kind)}
    mistakes = [f"{place}.{name}: unknown" for name in value if name not in names]
    known = {names[name]: content for name, content in value.items() if name in names}
    try:
        kind(**known)
    except TypeError as missing:
        mistakes.append(f"{place}: {missing}")
    for name, content in value.items():
        objects = content if isinstance(content, list) else [content]
        for one in objects:
            if name in CLASSES:
                mistakes += read(one, CLASSES[name], f"{place}.{name}")
            elif isinstance(one, (dict, list)):
                mistakes.append(f"{place}.{name}: an object, and nothing here says of which class")
    return mistakes


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    program, data = arguments[0], pathlib.Path(arguments[1])
    # That mistakes are found, first.
    bad = {"version": "2.1.0", "runs": [{"results": [{"colour": 1}]}]}
    mistakes = " ".join(read(bad, sarif_om.SarifLog, "log"))
    for expected in ("log.runs.results.colour: unknown", "'message'", "'tool'"):
        if expected not in mistakes:
            print(f"{expected} is not found in {bad}: {mistakes}", file=sys.stderr)
            return 1
    folders = sorted(data.glob("*/bad")) + sorted(data.glob("*/good"))
    failed, results = False, 0
    for folder in folders:
        output = subprocess.run([program, "check", folder, "--format", "sarif"], stdout=subprocess.PIPE).stdout
        log = json.loads(output)
        results += len(log["runs"][0]["results"])
        for mistake in read(log, sarif_om.SarifLog, "log"):
            print(f"{folder}: {mistake}", file=sys.stderr)
            failed = True
    if results < len(folders):
        print(f"{len(folders)} folders have only {results} findings", file=sys.stderr)
        failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
