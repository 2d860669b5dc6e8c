#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Runs scripts/demo from another folder, with a gallery that is built already.

  demo.py SOURCE_DIR GALLERY WORK_DIR

Exit codes: 0 all is well, 1 something is not, 2 wrong usage.
"""

import os
import pathlib
import shutil
import sys

from steps import Failure, expect, run


def executable(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    path.chmod(0o755)


def check(sources, gallery, work):
    shutil.rmtree(work, ignore_errors=True)
    project, elsewhere = work / "the project", work / "elsewhere"
    executable(project / "scripts/demo", (sources / "scripts/demo").read_text())
    executable(project / "scripts/install-packages", "#!/bin/sh\n")
    executable(work / "programs/cmake", "#!/bin/sh\n")
    (project / "build/demo/bin").mkdir(parents=True)
    (project / "build/demo/bin/hvtheme-gallery").symlink_to(gallery)
    # The folder in which it is called has themes of its own, of which the project knows nothing.
    shutil.copytree(sources / "themes", elsewhere / "themes")
    (elsewhere / "themes/dark.theme").rename(elsewhere / "themes/mine.theme")

    environment = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
    environment.update(QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(work), PATH=f"{work}/programs:{environment['PATH']}")
    demo = os.path.relpath(project / "scripts/demo", elsewhere)
    options = ("--themes", "themes", "--theme", "mine", "--page", "labels", "--screenshot", "pictures")
    run(demo, *options, cwd=elsewhere, env=environment)
    expect((elsewhere / "pictures/labels-mine.png").exists(), "the picture is not where the option says")

    output, _ = run(demo, cwd=elsewhere, env=environment)
    pictures = output.partition("Look at:\n")[2].splitlines()
    expect(len(pictures) == 2, f"no two pictures are named:\n{output}")
    for picture in pictures:
        expect((elsewhere / picture).exists(), f"{picture} is not to be found from where the demo was called")


def main(arguments):
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        check(*map(pathlib.Path, arguments))
    except (Failure, OSError) as failure:
        print(failure, file=sys.stderr)
        return 1
    shutil.rmtree(arguments[2])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
