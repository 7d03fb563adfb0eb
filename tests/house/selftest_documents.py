#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Proves that the house tests of documents find what they are there to find: each is run on a small tree
with one fault, and on the same tree without it."""

import pathlib
import shutil
import unittest

import chart
import interface
import pictures
import snippets
from smallTree import Tree


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
