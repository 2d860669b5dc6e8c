# SPDX-FileCopyrightText: 2026 The HVTheme authors
# SPDX-License-Identifier: MIT
"""Tests that scripts/lint finds a mistake in sources that the build has joined.

Usage: lint.py REPOSITORY
"""

import importlib.machinery
import importlib.util
import json
import pathlib
import shutil
import sys
import tempfile

CLEAN = "int *nothing()\n{\n    return nullptr;\n}\n"
MISTAKE = CLEAN.replace("nullptr", "0")

repository = pathlib.Path(sys.argv[1])
sys.dont_write_bytecode = True
loader = importlib.machinery.SourceFileLoader("lint", str(repository / "scripts/lint"))
lint = importlib.util.module_from_spec(importlib.util.spec_from_loader("lint", loader))
loader.exec_module(lint)

with tempfile.TemporaryDirectory() as folder:
    lint.ROOT = pathlib.Path(folder).resolve() / "a (b) c++"
    lint.BUILD = lint.ROOT / "build/lint"
    source, header = lint.ROOT / "room/source.cpp", lint.ROOT / "room/header.h"
    generated, piece = lint.BUILD / "room/ui_form.h", lint.BUILD / "room/unity_0_cxx.cxx"
    for path in (source, piece, generated):
        path.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(repository / ".clang-tidy", lint.ROOT)
    piece.write_text(f'#include "{generated}"\n#include "{source}"\n')
    entry = {"directory": str(lint.BUILD), "file": str(piece), "arguments": ["clang++", "-std=c++17", "-c", str(piece)]}
    (lint.BUILD / "compile_commands.json").write_text(json.dumps([entry]))

    def is_clean(in_source=CLEAN, in_header=CLEAN, in_generated=CLEAN):
        source.write_text('#include "header.h"\n' + in_source.replace("nothing", "one"))
        header.write_text("#pragma once\ninline " + in_header.replace("nothing", "two"))
        generated.write_text("inline " + in_generated)
        return lint.check_joined()

    assert is_clean()
    assert is_clean(in_generated=MISTAKE)
    assert not is_clean(in_source=MISTAKE), "the mistake in a source is not found"
    assert not is_clean(in_header=MISTAKE), "the mistake in a header is not found"
