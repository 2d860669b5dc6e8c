# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Compares the documents' pictures with what the programs draw now.

  pictures.py SOURCE_DIR BUILD_DIR WORK_DIR

Edges of letters differ a little with the version of what draws them, colours, places and sizes do not:
a picture is right if it has the size on record and few of its pixels are of visibly other colours. What differs
stays in WORK_DIR.

Exit codes: 0 all pictures are right, 1 one is not or the two folders have not the same, 2 wrong usage,
77 Pillow is not installed.
"""

import pathlib
import shutil
import subprocess
import sys

try:
    from PIL import Image, ImageChops
except ImportError as missing:
    print(f"pictures: {missing}", file=sys.stderr)
    sys.exit(77)

VISIBLE = 40  # of 255, in one channel
SHARE = 0.005


def problem_of(recorded, drawn):
    """Returns what is wrong with a picture, or nothing."""
    expected, actual = (Image.open(path).convert("RGB") for path in (recorded, drawn))
    if expected.size != actual.size:
        return f"is {actual.size[0]} x {actual.size[1]}, on record {expected.size[0]} x {expected.size[1]}"
    channels = ImageChops.difference(expected, actual).split()
    greatest = ImageChops.lighter(ImageChops.lighter(channels[0], channels[1]), channels[2])
    differing = sum(greatest.histogram()[VISIBLE:])
    share = differing / (expected.size[0] * expected.size[1])
    return f"differs in {share:.1%} of its pixels" if share > SHARE else ""


def main(arguments):
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    source, build, work = (pathlib.Path(argument) for argument in arguments)
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    subprocess.run([source / "scripts/screenshots", work, build], check=True, stdout=subprocess.DEVNULL)
    recorded = {path.name: path for path in (source / "docs/pictures").glob("*.png")}
    drawn = {path.name: path for path in work.glob("*.png")}
    problems = [f"{name} is not drawn any more" for name in recorded.keys() - drawn.keys()]
    problems += [f"{name} is not on record" for name in drawn.keys() - recorded.keys()]
    for name in recorded.keys() & drawn.keys():
        problem = problem_of(recorded[name], drawn[name])
        if problem:
            problems.append(f"{name} {problem}")
        else:
            drawn[name].unlink()
    for problem in sorted(problems):
        print(f"{problem}; look at it in {work}, and remake all with scripts/screenshots if it is right")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
