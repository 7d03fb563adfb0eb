#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Keeps the translations in step with the sources.

Usage: catalogues.py update [--lupdate PROGRAM]   takes new texts into the catalogues and drops old ones
       catalogues.py check [--lupdate PROGRAM]    fails, and lists each text, where a translation is
                                                  missing, too much or does not fit its source
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What is in a catalogue: the library, the plug-in and the application are shipped one by one.
SOURCES = {"kxhost": ("host", "hostlib"), "overlayeditor": ("overlayeditor",),
           "overlay-viewer": ("viewer",)}
LANGUAGES = ("de", "zh_CN")
# The source texts are English; only the forms for one and for many are to be told apart.
PLURALS = {"overlay-viewer": ("en",)}
FORMS = {"de": 2, "en": 2, "zh_CN": 1}
PLACE = re.compile(r"%L?\d+|%n")


def names(folder=ROOT / "translations"):
    """Every catalogue as path, sources and whether it holds plural forms alone."""
    for name, sources in SOURCES.items():
        for language in LANGUAGES:
            yield folder / f"{name}_{language}.ts", sources, False
        for language in PLURALS.get(name, ()):
            yield folder / f"{name}_{language}.ts", sources, True


def language_of(path):
    return path.stem.split("_", 1)[1]


def take_texts(lupdate, path, sources, plurals, root=ROOT):
    """Brings one catalogue up to date; returns the complaints about the sources."""
    options = ["-locations", "none", "-no-obsolete", "-source-language", "en",
               "-target-language", language_of(path), "-I", str(root)]
    if plurals:
        options.append("-pluralonly")
    done = subprocess.run([lupdate, *options, *(str(root / source) for source in sources), "-ts",
                           str(path)], capture_output=True, text=True, check=True)
    return [line for line in done.stderr.splitlines() if re.match(r".*\.(cpp|h|ui):\d+: ", line)]


def texts(path):
    """The texts of a catalogue: (context, source, comment) and what stands for it."""
    found = {}
    for context in xml.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            key = (context.findtext("name"), message.findtext("source"),
                   message.findtext("comment") or "")
            found[key] = message
    return found


def forms(message):
    translation = message.find("translation")
    if message.get("numerus") == "yes":
        return [form.text or "" for form in translation.findall("numerusform")]
    return [translation.text or ""]


def misfit(source, translated):
    """Why a translation does not fit its source; empty where it does."""
    if not translated.strip():
        return "is not translated"
    places = sorted(set(PLACE.findall(source)))
    if sorted(set(PLACE.findall(translated))) != places and places != ["%n"]:
        return f"has other places than {' '.join(places) or 'none'}: {translated!r}"
    for sign, what in (("\t", "tab"), ("…", "ellipsis")):
        if source.endswith(sign) != translated.endswith(sign):
            return f"has an end without or with a {what}: {translated!r}"
    # A doubled one is a character of the text.
    if len(re.findall(r"&(?!&)\w", source)) != len(re.findall(r"&(?!&)\w", translated)):
        return f"has another number of keys behind '&': {translated!r}"
    return ""


def faults_of(path, wanted):
    """What is wrong with a catalogue, beside the texts that the sources have."""
    present = texts(path) if path.exists() else {}
    label = path.name

    def told(key, fault):
        return f"{label}: {key[0]}: {key[1]!r} {fault}"

    for key in wanted:
        if key not in present:
            yield told(key, "is missing")
            continue
        message = present[key]
        translated = forms(message)
        if message.find("translation").get("type") == "unfinished":
            yield told(key, "is not translated")
        elif message.get("numerus") == "yes" and len(translated) != FORMS[language_of(path)]:
            yield told(key, f"needs {FORMS[language_of(path)]} plural forms")
        else:
            for fault in filter(None, (misfit(key[1], form) for form in translated)):
                yield told(key, fault)
    for key in present:
        if key not in wanted:
            yield told(key, "is in no source any more")


def check(lupdate, root=ROOT, folder=None):
    """All faults of all catalogues."""
    faults = []
    with tempfile.TemporaryDirectory() as scratch:
        for path, sources, plurals in names(folder or root / "translations"):
            fresh = pathlib.Path(scratch) / path.name
            faults += [f"the texts of the sources cannot be told: {line}"
                       for line in take_texts(lupdate, fresh, sources, plurals, root)]
            faults += faults_of(path, texts(fresh))
    return list(dict.fromkeys(faults))


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split("Usage: ")[1])
    parser.add_argument("what", choices=("update", "check"))
    parser.add_argument("--lupdate", default="/usr/lib/qt5/bin/lupdate")
    asked = parser.parse_args()
    if not shutil.which(asked.lupdate):
        sys.exit(f"catalogues.py: there is no program {asked.lupdate}")
    if asked.what == "update":
        for path, sources, plurals in names():
            take_texts(asked.lupdate, path, sources, plurals)
    faults = check(asked.lupdate)
    print("\n".join(faults) if faults else "the translations are complete")
    return 1 if faults and asked.what == "check" else 0


if __name__ == "__main__":
    sys.exit(main())
