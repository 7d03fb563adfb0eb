# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""The small tree of files in which each house test is proved."""

import pathlib
import tempfile
import unittest

import rules

LICENSE = "".join(f"// {line}\n" for line in rules.LICENSE_LINES)
PY_LICENSE = LICENSE.replace("//", "#")


class Tree(unittest.TestCase):
    """A folder of its own for each test, filled by add()."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def add(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
