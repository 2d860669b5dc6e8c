#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Changes and saves a colour on a real screen, with a real pointer and real keys.

  screen.py THEMES WORK_DIR PROGRAM [ARGUMENT...]

The program is one of tests/inspector/screenprogram.cpp, or the command that runs one with the inspector.
@THEMES@ in an argument is a copy of the folder THEMES.

Exit codes: 0 all is well, 1 something is not, 2 wrong usage, 77 the screen's programs are not installed.
"""

import os
import pathlib
import shutil
import struct
import subprocess
import sys
import time

PATIENCE = 30  # s, for machines with much else to do
BRAND, NEW = 0x3060F0, 0xFF00AA  # of the button: as the theme has it, and as it becomes
BUTTON = (30, 40)  # a place in it without text
AWAY = (900, 600)  # a place in the inspector
INSPECTOR = (200, 0)  # where its window is put


class Failure(Exception):
    """What went wrong, in a sentence."""


class Screen:
    """An X server without a monitor, with what it shows in a file."""

    width, height = 1300, 760

    def __init__(self, work):
        self.file = work / "Xvfb_screen0"
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{self.width}x{self.height}x24", "-fbdir", str(work),
             "-nolisten", "tcp"], pass_fds=[write], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()  # nothing if the server ends instead
        if not number:
            raise Failure("Xvfb does not start")
        self.name = f":{number}"

    def close(self):
        self.server.terminate()
        self.server.wait()

    def do(self, *command):
        """Runs xdotool; returns what it says, or None if it fails."""
        result = subprocess.run(["xdotool", *map(str, command)], env={**os.environ, "DISPLAY": self.name},
                                capture_output=True, text=True, check=False)
        return result.stdout.split() if result.returncode == 0 else None

    def picture(self):
        """Returns the rows of pixels, 0xRRGGBB each; the file is in the format of xwd."""
        data = self.file.read_bytes()
        header, = struct.unpack_from(">I", data)
        bytes_per_line, = struct.unpack_from(">I", data, 12 * 4)
        colors, = struct.unpack_from(">I", data, 19 * 4)
        start = header + colors * 12
        rows = []
        for y in range(self.height):
            row = struct.unpack_from(f"<{self.width}I", data, start + y * bytes_per_line)
            rows.append([pixel & 0xFFFFFF for pixel in row])
        return rows

    def pixel(self, place):
        return self.picture()[place[1]][place[0]]

    def click(self, place, *keys):
        for key in keys:
            self.do("keydown", key)
        self.do("mousemove", *place)
        self.do("click", 1)
        for key in reversed(keys):
            self.do("keyup", key)


def wait(condition, what):
    """Returns what the condition says, as soon as that is something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.05)  # there is nothing to be told by
    raise Failure(f"waited in vain for {what}")


def window(screen, title):
    found = wait(lambda: screen.do("search", "--onlyvisible", "--name", f"^{title}$"), f"the window {title}")
    return found[0]


def swatch(screen, color):
    """Finds the first run of a colour in the inspector that is as wide as a swatch of its list."""
    rows = screen.picture()
    for y in range(INSPECTOR[1], screen.height):
        x = INSPECTOR[0]
        while x < screen.width:
            run = 0
            while x + run < screen.width and rows[y][x + run] == color:
                run += 1
            if 8 <= run <= 16:
                return x + run // 2, y + 4
            x += max(run, 1)
    return None


def check(screen, themes, is_inspected):
    dark = themes / "dark.theme"
    before = dark.read_bytes()
    program = window(screen, "Screen program")
    if not is_inspected:
        screen.do("windowfocus", "--sync", program)
        screen.do("key", "ctrl+shift+F12")
    inspector = window(screen, "Inspector")
    screen.do("windowmove", "--sync", inspector, *INSPECTOR)
    screen.do("windowfocus", "--sync", inspector)
    wait(lambda: screen.pixel(BUTTON) == BRAND, f"the button in #{BRAND:06x}")

    screen.click(BUTTON, "ctrl", "shift")
    screen.do("mousemove", *AWAY)  # else it is the colour of :hover
    place = wait(lambda: swatch(screen, BRAND), "the button's colour in the inspector")
    screen.click(place)
    screen.do("key", "Return")
    wait(lambda: swatch(screen, 0x2049CF), "the palette entries")  # of which the next is one
    screen.do("type", "--delay", "20", f"#{NEW:06x}")
    wait(lambda: screen.pixel(BUTTON) == NEW, f"the button in #{NEW:06x}")
    if dark.read_bytes() != before:
        raise Failure("something is written before it is saved")

    screen.do("key", "ctrl+z")
    wait(lambda: screen.pixel(BUTTON) == BRAND, "what was before, after Ctrl+Z")
    screen.do("key", "ctrl+shift+z")
    wait(lambda: screen.pixel(BUTTON) == NEW, "the change again, after Ctrl+Shift+Z")
    screen.do("key", "ctrl+s")
    wait(lambda: dark.read_bytes() != before, "the saved file")
    old, new = b"AccentBackgroundColor=Brand_6\n", f"AccentBackgroundColor=#{NEW:06x}\n".encode()
    if before.count(old) != 1 or dark.read_bytes() != before.replace(old, new):
        raise Failure("more or less than the one value is written")

    screen.do("key", "ctrl+shift+F12")
    wait(lambda: screen.do("search", "--onlyvisible", "--name", "^Inspector$") is None, "the inspector to close")
    if screen.pixel(BUTTON) != NEW:
        raise Failure("the colour is gone with the inspector")


def main(arguments):
    if len(arguments) < 3:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    missing = [name for name in ("Xvfb", "xdotool") if not shutil.which(name)]
    if missing:
        print(f"skipped: {' and '.join(missing)} not found; install the packages xvfb and xdotool")
        return 1 if shutil.which("Xvfb") else 77
    work = pathlib.Path(arguments[1])
    shutil.rmtree(work, ignore_errors=True)
    (work / "screen").mkdir(parents=True)
    themes = work / "themes"
    shutil.copytree(arguments[0], themes)
    command = [argument.replace("@THEMES@", str(themes)) for argument in arguments[2:]]
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("QT_", "WAYLAND_"))}
    screen = Screen(work / "screen")
    process = None
    try:
        environment.update(DISPLAY=screen.name, QT_QPA_PLATFORM="xcb", XDG_RUNTIME_DIR=str(work),
                           XDG_CONFIG_HOME=str(work), LC_ALL="C.UTF-8")
        os.chmod(work, 0o700)
        with open(work / "errors", "w", encoding="utf-8") as errors:
            process = subprocess.Popen(command, env=environment, stderr=errors)
        check(screen, themes, "inspect" in command)
        print("changed and saved on a real screen")
        return 0
    except Failure as failure:
        print(failure, file=sys.stderr)
        print((work / "errors").read_text(encoding="utf-8"), file=sys.stderr)
        shutil.copy(screen.file, work / "failed.xwd")
        return 1
    finally:
        if process:
            process.kill()
            process.wait()
        screen.close()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
