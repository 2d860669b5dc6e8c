# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""What the tests of this folder have in common."""

import shutil
import subprocess
import sys


class Failure(Exception):
    """A step that did not do what it should; the text says which and what it printed."""


def run(*command, **options):
    """Runs a command that must succeed; returns its standard output and its standard error."""
    result = subprocess.run(list(map(str, command)), capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise Failure(f"{' '.join(map(str, command))}: {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout, result.stderr


def expect(condition, what):
    if not condition:
        raise Failure(what)


def in_new_folder(work, check, *arguments):
    """Calls check() with a folder that is empty, and returns the exit code. What a failure left there stays."""
    shutil.rmtree(work, ignore_errors=True)
    try:
        check(work, *arguments)
    except (Failure, OSError) as failure:
        print(failure, file=sys.stderr)
        return 1
    shutil.rmtree(work)
    return 0
