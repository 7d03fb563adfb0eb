#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Makes catalogues of a language that nobody speaks: every text of the sources and of the toolkit
stands in brackets, with accents and a third longer, so that one which is not translated, or has no
room to grow, is seen at once.

Usage: pseudo.py FOLDER LUPDATE LRELEASE LCONVERT TOOLKIT_CATALOGUE
"""

import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "translations"))
import catalogues  # noqa: E402

LANGUAGE = "en_XA"
ACCENTED = str.maketrans("ACEINOUYaceinosuy", "ÅÇÉÎÑÖÛÝåçéîñöšûý")


def pseudo(text):
    """A text that shows that it was translated: "[Ñåmé~]". What is replaced in it stays, and so does
    a text without words or with a meaning for the toolkit."""
    if not re.search(r"[^\W\d_]", catalogues.PLACE.sub("", text)) or text == "QT_LAYOUT_DIRECTION":
        return text if text != "QT_LAYOUT_DIRECTION" else "LTR"
    parts = re.split(r"(%L?\d+|%n|<[^>]*>|&\w|\*\.\w+)", text)
    changed = "".join(part if i % 2 else part.translate(ACCENTED) for i, part in enumerate(parts))
    end = re.search(r"[\s…:]*$", changed).start()
    start = len(changed) - len(changed.lstrip())
    longer = "~" * max(1, round(len(text.strip()) * 0.3) - 2)
    if ";;" in text:
        return ";;".join(pseudo(part) for part in text.split(";;"))
    # The brackets go inside what a file dialog reads: "Name (*.a *.b)".
    name = re.fullmatch(r"(.*?)(\s*\((?:\*.*|%1)\))", changed)
    if name:
        return f"[{name[1]}{longer}]{name[2]}"
    return f"{changed[:start]}[{changed[start:end]}{longer}]{changed[end:]}"


def make_pseudo(path):
    """Translates every text of a catalogue into the language that nobody speaks."""
    tree = xml.parse(path)
    tree.getroot().set("language", LANGUAGE)
    for message in tree.getroot().iter("message"):
        translation = message.find("translation")
        source = message.findtext("source") or ""
        translation.attrib.clear()
        for form in list(translation):
            translation.remove(form)
        translation.text = None
        if message.get("numerus") == "yes":
            for _ in range(catalogues.FORMS["en"]):
                xml.SubElement(translation, "numerusform").text = pseudo(source)
        else:
            translation.text = pseudo(source)
    tree.write(path, encoding="utf-8", xml_declaration=True)


def make_all(folder, lupdate, lrelease, lconvert, toolkit):
    folder.mkdir(parents=True, exist_ok=True)
    made = []
    for name, sources in catalogues.SOURCES.items():
        path = folder / f"{name}_{LANGUAGE}.ts"
        path.unlink(missing_ok=True)
        catalogues.take_texts(lupdate, path, sources, False)
        made.append(path)
    # The toolkit's own texts: any of its catalogues knows them all.
    path = folder / f"qtbase_{LANGUAGE}.ts"
    subprocess.run([lconvert, "-o", str(path), toolkit], check=True)
    made.append(path)
    for path in made:
        make_pseudo(path)
        subprocess.run([lrelease, "-silent", str(path), "-qm", str(path.with_suffix(".qm"))],
                       check=True)


if __name__ == "__main__":
    make_all(pathlib.Path(sys.argv[1]), *sys.argv[2:])
