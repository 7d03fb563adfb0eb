#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Proves that the house tests find what they are there to find: each is run on a small tree with
one fault, and on the same tree without it."""

import pathlib
import shutil
import tempfile
import unittest

import arrows
import chart
import duplicates
import interface
import pictures
import rules
import snippets

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
        for head in ("void f()", "A::A(int b)\n    : m_b(b)\n    , m_c(\n          b)",
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
        self.assertEqual(len(self.check(self.LINES, self.LINES, "sub/b.py")), 1)

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


class Interface(Tree):
    START = "/// A service of the host, free of any thread. No operation has an error.\nclass A\n{\npublic:\n"

    def check(self, declarations, start=START):
        """What is found in a class, without the place."""
        shutil.copytree(pathlib.Path(__file__).parents[2] / "docs/api", self.root / "docs/api",
                        dirs_exist_ok=True)
        self.add("host/A.h", f"{start}{declarations}}};\n")
        return [fault.split(": ", 1)[1] for fault in interface.faults(self.root)]

    def test_should_accept_what_is_said_to_the_end(self):
        self.assertEqual(self.check("""
    /// Moves a node.
    /// @param name empty for none
    /// @param way  pixels to the right
    /// @param deep with what lies in it
    /// @return null when there is no such node
    A *move(const QString &name, int way, bool deep);

    /// As its parts want it; never small.
    QSize sizeHint(const QStyleOption *option,
                   int much) const override;
    using B::B;

protected:
    void event(int much) override;

Q_SIGNALS:
    /// A node was moved.
    /// @param name never empty
    void moved(const QString &name);
"""), [])

    def test_should_miss_a_meaning(self):
        for declaration in ("void a();", "Q_SIGNALS:\n    void a();",
                            "/// Does it.\n    void a(bool way);",
                            "/// Does it.\n    bool a();"):
            with self.subTest(declaration=declaration):
                self.assertTrue(self.check(f"    {declaration}\n"))
        self.assertTrue(self.check("", "class A\n{\npublic:\n    int a = 0; ///< a row\n"))

    def test_should_miss_what_is_said_of_no_node(self):
        self.assertEqual(self.check("""
    /// Renames nodes.
    /// @param nodes those
    void rename(const QRPC::NodeList &nodes);

    /// Finds one.
    /// @param node any id
    /// @return its parent
    QRPC::NodeId find(QRPC::NodeId node);

Q_SIGNALS:
    /// Nodes were renamed.
    /// @param nodes those
    void renamed(const QRPC::NodeList &nodes);
""", "/// A service on one thread. No operation has an error.\nclass A\n{\npublic:\n"), [
            "A::rename: nothing about unknown ids at `nodes`",
            "A::find: nothing about none at what it gives",
            "A::find: nothing about what it gives for an unknown node",
            "A::renamed: nothing about an empty list at `nodes`"])

    def test_should_miss_a_parameter_of_a_signal(self):
        self.assertEqual(self.check("""
Q_SIGNALS:
    /// A node was moved.
    void moved(int way);
"""), ["A::moved: nothing about `way`"])

    def test_should_miss_the_thread_of_a_class(self):
        self.assertEqual(self.check("", "/// A service.\nclass A\n{\npublic:\n"),
                         ["nothing about threads"])

    def test_should_take_no_none_for_a_unit(self):
        self.assertEqual(self.check("""
    /// The way. Has no error.
    /// @return none: 0
    int way();
"""), ["A::way: no unit or range at what it gives"])

    def test_should_miss_what_a_record_leaves_open(self):
        self.assertEqual(self.check("    int a = 0; ///< how far\n    QString b; ///< the text\n",
                                    "/// A record.\nstruct A\n{\n"),
                         ["A::a: no unit or range", "A::b: nothing about none"])

    def test_should_miss_the_error_of_an_operation_that_is_no_member(self):
        self.add("host/b.h", "/// \\file\n/// One function.\n\n/// Goes on.\n/// @param way pixels\n"
                             "void go(int way);\n")
        self.assertEqual(self.check(""), ["go: nothing about what is wrong at `way`"])

    def test_should_miss_a_unit_a_none_and_what_is_wrong(self):
        self.assertEqual(self.check("""
    /// Moves it.
    /// @param way to the right
    /// @param by  who asks for it
    /// @return what was there before
    QString move(double way, QWidget *by);
""", "/// A service on one thread.\nclass A\n{\npublic:\n"), [
            "A::move: no unit or range at `way`", "A::move: nothing about what is wrong at `way`",
            "A::move: nothing about none at `by`", "A::move: nothing about none at what it gives"])

    def test_should_miss_what_is_wrong_at_one_of_two(self):
        start = "/// A service on one thread.\nclass A\n{\npublic:\n"
        one = """
    /// Moves it.
    /// @param way pixels; ignored below 0
    /// @param up  pixels
    void move(int way, int up);
"""
        self.assertEqual(self.check(one, start), ["A::move: nothing about what is wrong at `up`"])
        self.assertEqual(self.check(one.replace("Moves it", "Moves it; an error ends that"), start), [])

    def test_should_know_numbers_and_what_can_be_none_in_any_spelling(self):
        for kind in ("qint64", "unsigned", "unsigned long long", "std::uint8_t", "const double &", "QSizeF"):
            with self.subTest(kind=kind):
                self.assertEqual(self.check(f"    /// Goes.\n    /// @param a how far\n    void go({kind} a);\n"),
                                 ["A::go: no unit or range at `a`"])
        for kind in ("const QStringList &", "const QVariant &", "std::function< void()>", "QByteArray"):
            with self.subTest(kind=kind):
                self.assertEqual(self.check(f"    /// Goes.\n    /// @param a what\n    void go({kind} a);\n"),
                                 ["A::go: nothing about none at `a`"])

    def test_should_ask_a_friend_and_a_parameter_without_a_name(self):
        self.assertEqual(self.check("    /// Compares.\n    /// @param a how far\n"
                                    "    friend int far(int a, int);\n"),
                         ["A::far: no unit or range at `a`", "A::far: a parameter without a name",
                          "A::far: no unit or range at what it gives"])


class Snippets(Tree):
    SOURCE = ("// c\n\n#include <c>\nclass C;\nnamespace c {\n//! [a]\n    int a;\n        int b;\n"
              "//! [a]\n\n} // namespace c\n")
    QUOTED = "text\n<!-- examples/x.cpp [a] -->\n```cpp\nint a;\n    int b;\n```\nmore\n"

    def check(self, source, document):
        self.add("examples/x.cpp", source)
        self.add("docs/a.md", document)
        return snippets.faults(self.root)

    def test_should_accept_what_is_quoted_word_by_word(self):
        self.assertEqual(self.check(self.SOURCE, self.QUOTED), [])

    def test_should_find_code_that_has_changed(self):
        self.assertEqual(self.check(self.SOURCE.replace("int b", "int d"), self.QUOTED),
                         ["docs/a.md:2: [a] reads differently in examples/x.cpp"])

    def test_should_find_a_quote_of_nothing(self):
        self.assertIn("docs/a.md:2: there is no [a] in examples/x.cpp", self.check("", self.QUOTED))
        self.assertEqual(len(self.check(self.SOURCE, self.QUOTED.replace("```cpp\n", ""))), 2)

    def test_should_find_a_mark_that_is_quoted_nowhere(self):
        self.assertEqual(self.check(self.SOURCE, "text\n"), ["examples/x.cpp: [a] is quoted nowhere"])

    def test_should_find_lines_that_no_document_quotes(self):
        self.assertEqual(self.check(self.SOURCE + "int c;\nint d;\n", self.QUOTED),
                         ["examples/x.cpp:12: 2 lines from here on stand in no quote"])
        self.add("examples/y.h", "int c;\n")
        self.assertEqual(self.check(self.SOURCE, self.QUOTED),
                         ["examples/y.h:1: 1 lines from here on stand in no quote"])

    def test_should_let_other_projects_be_quoted_nowhere(self):
        self.add("examples/other/y.h", "int c;\n")
        self.assertEqual(self.check(self.SOURCE, self.QUOTED), [])

    def test_should_find_marks_that_do_not_pair(self):
        for source, fault in (("//! [b]\n", "[b] does not end"),
                              ("//! [b]\n//! [c]\n", "[c] begins inside of [b]"),
                              ("//! [a]\n//! [a]\n", "[a] is marked more than once")):
            with self.subTest(source=source):
                self.assertIn(f"examples/x.cpp: {fault}",
                              self.check(self.SOURCE + source, self.QUOTED))

    def test_should_bring_documents_up_to_date(self):
        self.check(self.SOURCE.replace("int b", "int d"), self.QUOTED)
        snippets.update(self.root)
        self.assertEqual(snippets.faults(self.root), [])
        text = (self.root / "docs/a.md").read_text(encoding="utf-8")
        self.assertEqual(text, self.QUOTED.replace("int b", "int d"))


class Chart(Tree):
    MAP = """`host/` has `kxA`, `kxA.h`, `kxA::go()` and `_b`, `_b.cpp` of `libkxA.so`; `dev` is a preset.
`./dev check all` tells, `g2(a3 b4-)` and `build/<preset>` are examples.

    SIGNAL(outline())
"""

    def check(self, text):
        self.add("host/kxA.h", "class kxA { void go(); };\n")
        self.add("host/kxA_b.cpp", "")
        self.add("dev", "check all\n")
        self.add(chart.PRESETS, '{"configurePresets": [{"name": "base", "hidden": true}, {"name": "dev"}]}')
        self.add(chart.MAP, text)
        return chart.faults(self.root)

    def test_should_accept_what_is_there(self):
        self.assertEqual(self.check(self.MAP), [])

    def test_should_find_what_is_not_there(self):
        for old, new in (("`host/`", "`guest/`"), ("`kxA`", "`kxB`"), ("`kxA.h`", "`kxB.h`"),
                         ("`kxA.h`", "`kxA.go`"), ("`kxA::go()`", "`kxA::stop()`"), ("`_b`", "`_c`"),
                         ("`_b.cpp`", "`_c.cpp`"), ("`libkxA.so`", "`libkxB.so`"),
                         ("`./dev check all`", "`./dev check none`")):
            with self.subTest(new=new):
                self.assertIn(f"there is no {new.strip('`')}",
                              " ".join(self.check(self.MAP.replace(old, new) + "host")))

    def test_should_miss_a_folder_of_sources_and_a_preset(self):
        self.add("guest/a.cpp", "")
        self.assertEqual(self.check(self.MAP.replace("`dev`", "it")),
                         [f"{chart.MAP}: nothing about guest/", f"{chart.MAP}: nothing about the preset dev"])

    def test_should_find_more_than_two_pages(self):
        rest = chart.LONGEST - self.MAP.count("\n")
        self.assertEqual(self.check(self.MAP + "\n" * rest), [])
        self.assertEqual(len(self.check(self.MAP + "\n" * (rest + 1))), 1)
        self.assertEqual(len(self.check(self.MAP + "\n" * (rest - 1) + "a" * (chart.WIDTH + 1))), 1)


class Pictures(Tree):
    TABLE = '        {"a.png", &GuidePictures::takeA},\n'
    SHOWN = "text\n![a](images/a.png)\n"

    def check(self, table, document, *stored):
        self.add(pictures.PROGRAM, table)
        self.add("docs/a.md", document)
        for name in stored:
            self.add(f"docs/images/{name}", "picture")
        return pictures.faults(self.root)

    def test_should_accept_what_is_taken_stored_and_shown(self):
        self.assertEqual(self.check(self.TABLE, self.SHOWN, "a.png"), [])
        self.add("README.md", "![a](docs/images/a.png)\n")
        self.assertEqual(pictures.faults(self.root), [])

    def test_should_find_a_picture_that_would_grow_old(self):
        self.assertIn("docs/a.md:2: ./dev docs does not take docs/images/a.png",
                      self.check("", self.SHOWN, "a.png"))

    def test_should_find_a_missing_picture(self):
        self.assertEqual(self.check(self.TABLE, self.SHOWN),
                         ["docs/a.md:2: docs/images/a.png is missing"])

    def test_should_find_a_picture_that_nobody_sees(self):
        self.assertEqual(self.check(self.TABLE, "text\n", "a.png"),
                         [f"{pictures.PROGRAM}: docs/images/a.png is shown nowhere"])
        self.assertIn("docs/images/b.png is taken by nobody",
                      self.check(self.TABLE, self.SHOWN, "a.png", "b.png"))

    def test_should_find_a_picture_that_is_too_large(self):
        self.check(self.TABLE, self.SHOWN, "a.png")
        self.add("docs/images/a.png", "a" * (pictures.LARGEST + 1))
        self.assertEqual(len(pictures.faults(self.root)), 1)


if __name__ == "__main__":
    unittest.main()
