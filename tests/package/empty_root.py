#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Tries Debian packages in a root with nothing but Debian's smallest system.

  empty_root.py FOLDER SOURCE_DIR [SUITE]

FOLDER holds the packages. Each test of debian/tests whose packages are there runs in turn, after what it depends on
is installed, without recommended packages. Before the next one all of that is removed again, and nothing of these packages
may be left. Needs mmdebstrap and Debian's archive, and root or user
namespaces; the root is removed in any case. SUITE is bookworm if it is not named.

Exit codes: 0 all tests pass, 1 one does not, 2 wrong usage.
"""

import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

INSTALL = "DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends"
OWN = re.compile(r"(lib)?hvtheme")
LIST_PACKAGES = "dpkg-query -W -f='${Package}\\n' | sort"
# All that a test brought.
REMOVE = f"{LIST_PACKAGES} | comm -13 /root/before - | DEBIAN_FRONTEND=noninteractive xargs apt-get purge -y -qq"
LEFT = "find / -xdev -iname '*hvtheme*' ! -path '/packages/*' ! -path '/etc/apt/*' ! -path '/root/*' ! -path '/var/*/apt/*'"


def tests_of(control):
    """Yields name, command and packages of each test."""
    for stanza in control.read_text().strip().split("\n\n"):
        fields = dict(line.split(": ", 1) for line in stanza.splitlines())
        yield fields["Features"].split("test-name=")[1], fields["Test-Command"], fields["Depends"].split(", ")


def script_for(control, packages):
    """The commands that run in the new root; what they say of each test stands alone in a line."""
    lines = ["set -e", "cd /root/source", "exec 2>&1", f"{LIST_PACKAGES} >/root/before"]
    count = 0
    for name, command, needed in tests_of(control):
        if not all(package in packages for package in needed if OWN.match(package)):
            continue
        count += 1
        lines += [
            f"echo '-- {name}: {' '.join(needed)}'",
            f"{INSTALL} {' '.join(needed)} >/tmp/apt.log 2>&1 || {{ cat /tmp/apt.log; exit 1; }}",
            f"{command} || {{ echo '{name} fails'; exit 1; }}",
            f"{REMOVE} >/tmp/apt.log 2>&1 || {{ cat /tmp/apt.log; exit 1; }}",
            f'left=$({LEFT}); [ -z "$left" ] || {{ echo "after {name} there is still $left"; exit 1; }}',
            f"echo '{name} passes'",
        ]
    return count, "\n".join(lines)


def main(arguments):
    if len(arguments) not in (2, 3):
        print(__doc__, file=sys.stderr)
        return 2
    folder, source = (pathlib.Path(argument).resolve() for argument in arguments[:2])
    suite = arguments[2] if len(arguments) == 3 else "bookworm"
    packages = {path.name.split("_")[0] for path in folder.glob("*.deb")}
    count, script = script_for(source / "debian/tests/control", packages)
    if not count:
        print(f"There are no packages in {folder}", file=sys.stderr)
        return 1
    with tempfile.TemporaryDirectory() as work:
        inner = pathlib.Path(work) / "run-tests"
        inner.write_text(script + "\n")
        root = '"$1"'
        hooks = (
            f"mkdir -p {root}/root/source {root}/packages",
            f"cp {shlex.quote(str(folder))}/*.deb {root}/packages/",
            f"tar -C {shlex.quote(str(source))} -c README.md colormath debian tests/package tests/realprograms tests/support"
            f" | tar -C {root}/root/source -x --no-same-owner",
            f"cp {shlex.quote(str(inner))} {root}/root/run-tests",
            # A folder with an index is a place to install from, which gets dependencies right by itself.
            f"cd {root}/packages && dpkg-scanpackages --multiversion . /dev/null >Packages 2>/dev/null",
            f"echo 'deb [trusted=yes] file:/packages ./' >{root}/etc/apt/sources.list.d/hvtheme.list",
            f"chroot {root} apt-get update -qq",
            f"chroot {root} sh /root/run-tests",
        )
        command = ["mmdebstrap", "--quiet", "--variant=minbase", "--format=null", *(f"--customize-hook={hook}" for hook in hooks)]
        status = subprocess.run([*command, suite, "/dev/null"]).returncode
    return 1 if status else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
