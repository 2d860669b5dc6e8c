#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Makes the release archive of the last commit in two clones, and looks whether it is one and the same and of use.

  dist.py CMAKE GIT WORK_DIR SOURCE_DIR [OPTION of cmake...]

The clones stand in different folders, and time zone, language, file mask and git's configuration differ. Exit codes: 0 all is
well, 1 something is not, 2 wrong usage.
"""

import os
import pathlib
import sys
import tarfile

from steps import expect, in_new_folder, run

# What one who makes an archive may have.
HOMES = {
    "here": ({"TZ": "Pacific/Kiritimati", "LC_ALL": "C.UTF-8"}, 0o022, ""),
    "there/ü with a space": (
        {"TZ": "America/Anchorage", "LC_ALL": "C", "GZIP": "--fast", "SOURCE_DATE_EPOCH": "1"},
        0o077,
        "[tar]\n\tumask = user\n[core]\n\tautocrlf = true\n",
    ),
}
SMALL = ("-DHVTHEME_BUILD_APP=OFF", "-DHVTHEME_BUILD_TOOLS=OFF", "-DHVTHEME_BUILD_GALLERY=OFF")


def archive_of(folder, cmake, git, sources, settings, options):
    """Returns the archive, and the checksum that comes with it is right."""
    variables, mask, configuration = settings
    folder.mkdir(parents=True)
    run(git, "-c", "safe.directory=*", "clone", "-q", "--depth", "1", sources.as_uri(), folder / "clone")
    environment = {**os.environ, **variables, "HOME": str(folder)}
    (folder / ".gitconfig").write_text(configuration)
    before = os.umask(mask)
    try:
        run(cmake, "-S", folder / "clone", "-B", folder / "build", *SMALL, *options, env=environment)
        run(cmake, "--build", folder / "build", "--target", "dist", env=environment)
    finally:
        os.umask(before)
    made = sorted((folder / "build/dist").iterdir())
    expect([path.suffix for path in made] == [".gz", ".sha256"], f"dist made {made}")
    run("sha256sum", "--strict", "-c", made[1].name, cwd=folder / "build/dist")
    return made[0]


def check(work, cmake, git, sources, options):
    archives = [archive_of(work / name, cmake, git, sources, settings, options) for name, settings in HOMES.items()]
    first, second = (path.read_bytes() for path in archives)
    expect(archives[0].name == archives[1].name, f"{archives} have different names")
    expect(first == second, f"{archives[0]} and {archives[1]} differ")

    name = archives[0].name[: -len(".tar.gz")]
    with tarfile.open(archives[0]) as archive:
        members = [member.name for member in archive if not member.isdir()]
        archive.extractall(work)
    expect(all(member.startswith(name + "/") for member in members), f"not all is below {name}/")
    listed, _ = run(git, "-c", "safe.directory=*", "-c", "core.quotePath=off", "ls-tree", "-r", "--name-only", "HEAD", cwd=sources)
    expect(sorted(member.split("/", 1)[1] for member in members) == sorted(listed.splitlines()), "the archive lacks files of the commit")
    run(cmake, "-S", work / name, "-B", work / "from archive", *options)
    targets, _ = run(cmake, "--build", work / "from archive", "--target", "help")
    expect("dist" not in targets.split(), "an archive offers to make an archive")


def main(arguments):
    if len(arguments) < 4:
        print(__doc__, file=sys.stderr)
        return 2
    cmake, git, work, sources = arguments[:4]
    return in_new_folder(pathlib.Path(work), check, cmake, git, pathlib.Path(sources), arguments[4:])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
