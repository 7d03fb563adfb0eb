#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Proves that the house tests find what they are there to find: each is run on a small tree with
one fault, and on the same tree without it."""

import pathlib
import tempfile
import unittest

import arrows
import rules

LICENSE = "".join(f"// {line}\n" for line in rules.LICENSE_LINES)


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


class Arrows(Tree):
    def include(self, name, line):
        self.add(name, f"\n{line}\n")
        return arrows.faults(self.root)

    def test_should_accept_the_arrows_of_the_house(self):
        self.include("host/a.h", "#include <QObject>")
        self.include("hostlib/a.cpp", '#include "host/a.h"')
        self.include("viewer/a.cpp", '#include "hostlib/a.h"')
        self.include("overlayeditor/model/a.cpp", '#include "host/a.h"')
        self.include("tests/viewer/tst_a.cpp", '#include "viewer/scene/a.h"')
        self.assertEqual(self.include("viewer/b.cpp", '#include "b.moc"'), [])

    def test_should_refuse_the_module_in_the_viewer(self):
        self.assertEqual(self.include("viewer/a.cpp", '#include "overlayeditor/x.h"'),
                         ["viewer/a.cpp:2: viewer must not include overlayeditor/x.h"])

    def test_should_refuse_each_other_arrow(self):
        for name, target in (("host/a.h", "hostlib/x.h"), ("hostlib/a.cpp", "viewer/x.h"),
                             ("hostlib/a.cpp", "overlayeditor/x.h"),
                             ("overlayeditor/a.cpp", "hostlib/x.h"),
                             ("overlayeditor/model/a.cpp", "viewer/x.h"),
                             ("viewer/scene/a.cpp", "viewer/MainWindow.h"),
                             ("viewer/scene/a.cpp", "viewer/render/x.h"),
                             ("viewer/render/a.cpp", "viewer/edit/x.h"),
                             ("viewer/edit/a.cpp", "viewer/app/x.h"),
                             ("viewer/a.cpp", "tests/support/x.h"),
                             ("examples/host/a.cpp", "viewer/x.h")):
            with self.subTest(name=name, target=target):
                self.assertEqual(len(self.include(name, f'#include "{target}"')), 1)
                (self.root / name).unlink()

    def test_should_let_an_example_be_a_project_of_its_own(self):
        self.assertEqual(self.include("examples/host/a.cpp", '#include "x.h"'), [])
        self.assertEqual(len(self.include("examples/host/a.cpp", '#include "../x.h"')), 1)

    def test_should_see_an_include_in_any_spelling(self):
        for line in ("#include <overlayeditor/x.h>", "#  include \"overlayeditor/x.h\"",
                     '#include "host/../overlayeditor/x.h"', '#include "../overlayeditor/x.h"',
                     '#include "x.h"'):
            with self.subTest(line=line):
                self.assertEqual(len(self.include("viewer/a.cpp", line)), 1)


class Rules(Tree):
    def check(self, name, text):
        self.add(name, text)
        return [fault.split(": ", 1)[1] for fault in rules.faults(self.root)]

    def test_should_accept_a_file_in_order(self):
        self.assertEqual(self.check("host/a.h", LICENSE + "\n/// A thing.\nclass A\n{\n};\n"), [])

    def test_should_miss_the_licence(self):
        self.assertEqual(len(self.check("host/a.cpp", "int a;\n")), 2)

    def test_should_find_a_long_source(self):
        self.assertEqual(self.check("a.cpp", LICENSE + "\n" * 498), [])
        self.assertIn("split the file", self.check("a.cpp", LICENSE + "\n" * 499)[0])

    def test_should_find_marks_of_unfinished_work(self):
        for word in ("TO" "DO", "FIX" "ME", "X" "XX"):
            with self.subTest(word=word):
                self.assertEqual(len(self.check("a.md", f"see {word}: later\n")), 1)

    def test_should_find_untidy_lines(self):
        for text in ("a \n", "a", "\ta\n"):
            with self.subTest(text=text):
                self.assertEqual(len(self.check("a.cpp", LICENSE + text)), 1)

    def test_should_find_a_class_without_a_comment(self):
        for start in ("class A\n{\n};\n", "class KX_EXPORT A : public B\n{\n};\n",
                      "template<typename T>\nstruct A {\n};\n", "class A final : public B\n{\n};\n"):
            with self.subTest(start=start):
                self.assertEqual(len(self.check("a.h", LICENSE + "\n" + start)), 1)
        self.assertEqual(self.check("a.h", LICENSE + "\nclass A;\n"), [])

    def test_should_find_a_test_that_never_runs(self):
        self.add("tests/CMakeLists.txt", "".join(f"# {line}\n" for line in rules.LICENSE_LINES)
                 + "kx_add_test(tst_ab)\n")
        self.assertEqual(self.check("tests/tst_ab.cpp", LICENSE), [])
        self.assertEqual(len(self.check("tests/tst_a.cpp", LICENSE)), 1)

    def test_should_find_a_dangling_link(self):
        self.add("docs/b.md", "text\n")
        self.assertEqual(self.check("a.md", "[b](docs/b.md#part) [c](https://example.org)\n"), [])
        self.assertEqual(len(self.check("a.md", "[b](docs/c.md)\n")), 1)


if __name__ == "__main__":
    unittest.main()
