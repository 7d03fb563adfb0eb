#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Proves that the house tests of sources find what they are there to find: each is run on a small tree
with one fault, and on the same tree without it."""

import unittest

import arrows
import duplicates
import rules
from smallTree import LICENSE, PY_LICENSE, Tree


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
        self.include("kit/a.h", '#include "host/a.h"')
        self.include("conformance/a.cpp", '#include "kit/a.h"')
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
                             ("viewer/script/a.cpp", "viewer/render/x.h"),
                             ("viewer/a.cpp", "tests/support/x.h"),
                             ("viewer/a.cpp", "kit/x.h"), ("hostlib/a.cpp", "kit/x.h"),
                             ("kit/a.cpp", "hostlib/x.h"), ("kit/a.cpp", "overlayeditor/x.h"),
                             ("kit/a.cpp", "tests/support/x.h"), ("kit/a.cpp", "conformance/x.h"),
                             ("conformance/a.cpp", "viewer/scene/x.h"),
                             ("conformance/module/a.cpp", "overlayeditor/x.h"),
                             ("conformance/a.cpp", "tests/support/x.h"),
                             ("examples/host/a.cpp", "hostlib/x.h"), ("examples/host/a.cpp", "kit/x.h"),
                             ("examples/host/a.cpp", "viewer/x.h")):
            with self.subTest(name=name, target=target):
                self.assertEqual(len(self.include(name, f'#include "{target}"')), 1)
                (self.root / name).unlink()

    def test_should_miss_a_folder_without_arrows(self):
        self.assertEqual(self.include("other/a.cpp", "#include <QObject>"),
                         ["other/a.cpp:1: the arrows say nothing of this folder"])

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

        for name in ("a.h", "a.py", "a.cmake", "dev"):
            with self.subTest(name=name):
                self.assertIn("split the file",
                              " ".join(self.check(name, PY_LICENSE + "\n" * 499)))
                (self.root / name).unlink()
        (self.root / "a.cpp").unlink()
        self.assertEqual(self.check("a.md", "\n" * 900), [])

    def long(self, name, head, lines, inner="    a();"):
        text = f"{LICENSE}\n{head}\n{{\n" + f"{inner}\n" * lines + "}\n"
        return self.check(name, text)

    def test_should_find_a_long_function(self):
        for head in ("void f()", "extern \"C\" int f()", "A::A(int b)\n    : m_b(b)\n    , m_c(\n          b)",
                     "int\n    g(int a,\n      int b)", "template<class T>\nvoid A<T>::f() const"):
            with self.subTest(head=head):
                self.assertEqual(self.long("a.cpp", head, 60), [])
                self.assertEqual(self.long("a.cpp", head, 61), ["a function of 61 lines"])

    def test_should_find_a_long_function_in_a_class(self):
        body = "    void f()\n    {\n" + "        a();\n" * 61 + "    }\n"
        text = f"{LICENSE}\n/// A.\nclass A\n{{\n{body}}};\n"
        self.assertEqual(self.check("a.h", text), ["a function of 61 lines"])

    def test_should_take_no_type_for_a_function(self):
        for head in ("/// A.\nclass A : public B", "/// A.\nstruct A", "namespace a",
                     "/// A.\nclass A\n    : public B"):
            with self.subTest(head=head):
                self.assertEqual(self.long("a.h", head, 100, "    int a;"), [])

    def test_should_let_a_declared_table_be_long(self):
        head = "Rows rows() " + rules.TABLE
        table = "    return {{\n{}    }};"
        entry = '        {"a", [] {\n' + "             b();\n" * 20 + "         }},\n"
        self.assertEqual(self.long("a.cpp", head, 1, table.format(entry * 10)), [])
        wrong = ["what is declared to be a table holds more than that"]
        self.assertEqual(self.long("a.cpp", head, 61), wrong)
        self.assertEqual(self.long("a.cpp", head, 1, "    a();\n" * 61 + table.format(entry)), wrong)
        long = '        {"a", [] {\n' + "             b();\n" * 61 + "         }},\n"
        self.assertEqual(self.long("a.cpp", head, 1, table.format(long)), wrong)

    def test_should_find_a_table_that_is_declared_without_need(self):
        self.assertEqual(self.long("a.cpp", "Rows rows() " + rules.TABLE, 60),
                         ["what is declared to be a table is short enough for a function"])

    def test_should_find_a_long_function_of_python(self):
        head = PY_LICENSE + "\n\ndef f():\n"
        self.assertEqual(self.check("a.py", head + "    a()\n" * 60), [])
        self.assertEqual(self.check("a.py", head + "    a()\n" * 61), ["a function of 61 lines"])

    def test_should_find_a_long_function_of_a_script(self):
        for name, head, end in (("a.js", "function f(a) {", "}"), ("a.js", "const f = function (a) {", "}"),
                                ("dev", "f() {", "}"), ("a.cmake", "function(f name)", "endfunction()"),
                                ("a.cmake", "macro(f)", "endmacro()")):
            with self.subTest(name=name, head=head):
                text = f"{PY_LICENSE}{head}\n" + "    a()\n" * 60 + f"{end}\n"
                self.assertEqual(self.check(name, text), [])
                self.assertEqual(self.check(name, text.replace("    a()\n", "    a()\n    b()\n", 1)),
                                 ["a function of 61 lines"])
                (self.root / name).unlink()

    def test_should_look_into_the_brackets_around_a_script(self):
        text = LICENSE + "(function () {\n" + "    a()\n" * 61 + "    function f() {\nINNER    }\n})\n"
        self.assertEqual(self.check("a.js", text.replace("INNER", "")), [])
        self.assertEqual(self.check("a.js", text.replace("INNER", "        a()\n" * 61)),
                         ["a function of 61 lines"])

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
        self.add("tests/CMakeLists.txt", PY_LICENSE + "kx_add_test(tst_ab)\n")
        self.assertEqual(self.check("tests/tst_ab.cpp", LICENSE), [])
        self.assertEqual(len(self.check("tests/tst_a.cpp", LICENSE)), 1)

    def test_should_find_a_dangling_link(self):
        self.add("docs/b.md", "text\n")
        self.assertEqual(self.check("a.md", "[b](docs/b.md#part) [c](https://example.org)\n"), [])
        self.assertEqual(len(self.check("a.md", "[b](docs/c.md)\n")), 1)

    def test_should_take_no_code_for_a_link(self):
        code = "```cpp\n[this](Id id) {}\n```\n"
        self.assertEqual(self.check("a.md", code), [])
        self.add("a.md", code + "[b](docs/c.md)\n")
        self.assertEqual(rules.faults(self.root), ["a.md:4: the link leads nowhere: docs/c.md"])


class Duplicates(Tree):
    LINES = ["a(1);", "b(2);", "c(3);", "d(4);", "e(5);", "f(6);"]

    def check(self, first, second, name="b.cpp"):
        self.add("a.cpp", "int one;\n" + "\n".join(first) + "\nint two;\n")
        self.add(name, "int three;\n" + "\n".join(second) + "\nint four;\n")
        return duplicates.faults(self.root)

    def test_should_accept_five_lines(self):
        self.assertEqual(self.check(self.LINES[1:], self.LINES[1:]), [])
        self.assertEqual(self.check(self.LINES, self.LINES[:3] + ["x();"] + self.LINES[3:]), [])

    def test_should_find_six_lines(self):
        self.assertEqual(self.check(self.LINES, self.LINES),
                         ["a.cpp:2: stands in b.cpp:2 too: a(1);"])
        (self.root / "b.cpp").unlink()
        for name in ("sub/b.py", "sub/CMakeLists.txt", ".ci/run", "b.sh"):
            with self.subTest(name=name):
                self.assertEqual(len(self.check(self.LINES, self.LINES, name)), 1)
                (self.root / name).unlink()

    def test_should_tell_each_pair_of_three(self):
        self.add("c.cpp", "\n".join(self.LINES))
        self.assertEqual(len(self.check(self.LINES, self.LINES)), 3)

    def test_should_tell_a_longer_stretch_once(self):
        lines = [f"a({i});" for i in range(30)]
        self.assertEqual(len(self.check(lines, lines)), 1)

    def test_should_find_what_is_laid_out_in_another_way(self):
        other = [f"\t  {line}\n\n// why" for line in self.LINES]
        self.assertEqual(len(self.check(self.LINES, other)), 1)

    def test_should_find_a_duplicate_in_one_file(self):
        self.assertEqual(len(self.check(self.LINES + ["x();"] + self.LINES, [])), 1)

    def test_should_bear_rows_that_are_alike(self):
        self.assertEqual(self.check(["a(0);"] * 8, []), [])

    def test_should_count_no_frames_alone(self):
        frame = ["{", "}", "};", "namespace a {", "Q_OBJECT", "private:", "int a;", "}", "{"]
        self.assertEqual(self.check(frame, frame), [])
        includes = [f"#include <Q{i}>" for i in range(9)]
        self.assertEqual(self.check(includes, includes), [])

    def test_should_count_no_overrides(self):
        overrides = ["class A", "{", "public:"]
        overrides += [f"    QString f{i}(int a,\n        int b) const override;" for i in range(9)]
        self.assertEqual(self.check(overrides, overrides), [])


if __name__ == "__main__":
    unittest.main()
