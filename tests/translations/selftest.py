#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Proves that the check of the translations finds what it is there to find, on a small tree.

Usage: selftest.py LUPDATE
"""

import html
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "translations"))
import catalogues  # noqa: E402
import pseudo  # noqa: E402

LUPDATE = sys.argv.pop()
SOURCE = """class Window : public QObject {{
    Q_OBJECT
    void f() {{ {0} }}
}};
"""


class Check(unittest.TestCase):
    """One source whose text is translated into every language; then one of the two is changed."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for sources in catalogues.SOURCES.values():
            for source in sources:
                (self.root / source).mkdir()
        self.translations = self.root / "translations"
        self.translations.mkdir()

    def write(self, body):
        (self.root / "viewer" / "Window.cpp").write_text(SOURCE.format(body), encoding="utf-8")

    def translate(self, form, language="de"):
        for path, sources, plurals in catalogues.names(self.translations):
            catalogues.take_texts(LUPDATE, path, sources, plurals, self.root)
            text = path.read_text(encoding="utf-8")
            given = html.escape(form if language in path.name else "anything")
            text = text.replace(' type="unfinished"', "").replace(
                "<translation></translation>", f"<translation>{given}</translation>").replace(
                "<numerusform></numerusform>", f"<numerusform>{given}</numerusform>")
            path.write_text(text, encoding="utf-8")

    def faults(self, language="de"):
        return [fault for fault in catalogues.check(LUPDATE, self.root) if f"_{language}.ts" in fault]

    def test_should_accept_what_is_complete(self):
        self.write('tr("&Open %1…");')
        self.translate("%1 öff&nen…")
        self.assertEqual(self.faults(), [])

    def test_should_accept_the_places_in_another_order(self):
        self.write('tr("%1 of %L2");')
        self.translate("%L2: %1")
        self.assertEqual(self.faults(), [])

    def test_should_name_a_text_that_is_not_translated(self):
        self.write('tr("Name");')
        self.translate("")
        self.assertEqual(self.faults(), ["overlay-viewer_de.ts: Window: 'Name' is not translated"])

    def test_should_name_a_text_that_came_later(self):
        self.write('tr("Name");')
        self.translate("Name")
        self.write('tr("Name"); tr("Size");')
        self.assertEqual(self.faults(), ["overlay-viewer_de.ts: Window: 'Size' is missing"])

    def test_should_name_a_text_that_is_gone(self):
        self.write('tr("Name"); tr("Size");')
        self.translate("Name")
        self.write('tr("Name");')
        self.assertEqual(self.faults(),
                         ["overlay-viewer_de.ts: Window: 'Size' is in no source any more"])

    def test_should_refuse_what_does_not_fit(self):
        for source, translation, fault in (("%1 of %2", "%1 von", "other places"),
                                           ("%1", "%L1", "other places"),
                                           ("%n overlays", "Overlays", ""),
                                           ("Copy\\t", "Kopieren", "tab"),
                                           ("Open…", "Öffnen", "ellipsis"),
                                           ("&Open", "Öffnen", "keys"),
                                           ("Open", "Ö&ffnen", "keys")):
            with self.subTest(source=source):
                self.write(f'tr("{source}");')
                for path, *_ in catalogues.names(self.translations):
                    path.unlink(missing_ok=True)
                self.translate(translation)
                found = self.faults()
                self.assertEqual(len(found), 1 if fault else 0)
                self.assertIn(fault, "".join(found))

    def test_should_want_every_plural_form(self):
        self.write('tr("%n found", nullptr, 2);')
        self.translate("%n gefunden")
        self.assertEqual(self.faults("en") + self.faults(), [])
        path = self.translations / "overlay-viewer_de.ts"
        text = path.read_text(encoding="utf-8")
        path.write_text(text.replace("<numerusform>%n gefunden</numerusform>", "", 1),
                        encoding="utf-8")
        self.assertEqual(len(self.faults()), 1)
        self.assertIn("2 plural forms", self.faults()[0])

    def test_should_refuse_a_source_whose_class_cannot_be_told(self):
        self.write("}\nvoid Nobody::f() { tr(\"Name\"); ")
        self.translate("Name")
        self.assertIn("cannot be told", "".join(catalogues.check(LUPDATE, self.root)))


class Pseudo(unittest.TestCase):
    def test_should_mark_a_text_and_make_it_longer(self):
        for text, wanted in (("Background Color", "[Båçkgröûñd Çölör~~~]"),
                             ("&File", "[&Fîlé~]"),
                             ("Open %1…", "[Öpéñ %1~]…"),
                             ("Group\t", "[Gröûp~]\t"),
                             ("All files (*)", "[Åll fîléš~~] (*)"),
                             ("Scenes (*.json);;All files (*)",
                              "[Sçéñéš~~] (*.json);;[Åll fîléš~~] (*)"),
                             ("%1 %2", "%1 %2"), ("*", "*"), ("QT_LAYOUT_DIRECTION", "LTR")):
            with self.subTest(text=text):
                self.assertEqual(pseudo.pseudo(text), wanted)


if __name__ == "__main__":
    unittest.main()
