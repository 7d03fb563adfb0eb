#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where the map of the code, docs/ARCHITECTURE.md, is not true to it: where it names a file, a folder,
a class, a function or a command of ./dev that is not there, leaves out a folder of sources or a preset, or
is longer than two pages.

Usage: chart.py ROOT
"""

import json
import pathlib
import re
import sys

import sources

MAP = "docs/ARCHITECTURE.md"
PRESETS = "CMakePresets.json"
# Two pages, in lines of the width that the documents have.
LONGEST = 132
WIDTH = 120
CODE = re.compile(r"^    .*$", re.MULTILINE)
TERM = re.compile(r"`([^`]+)`")
# What a term may be: a command, or names with dots, strokes and colons. Others are examples.
NAMED = re.compile(r"\./dev( \w+)+|[\w./:]+(?:\(\))?")
LIBRARY = re.compile(r"lib(\w+)\.so")
SOURCE = re.compile(r"\.(?:cpp|h|py|js|ui|cmake|json|qrc|frag|vert)$|(?:^|/)(?:CMakeLists\.txt|dev)$")


def places(names):
    """The files and the folders that hold them, the latter with a stroke at the end."""
    folders = {name[:found.end()] for name in names for found in re.finditer("/", name)}
    return ["/" + place for place in [*names, *sorted(folders)]]


def is_there(term, where, words, commands):
    """Whether there is such a command, library, place, end of a file's name or all the words of a name."""
    if term.startswith("./dev"):
        return set(term.split()[1:]) <= commands
    library = LIBRARY.fullmatch(term)
    if library:
        return library.group(1) in words
    ends = (term, term + ".cpp") if term.startswith(("_", ".")) else ("/" + term,)
    if any(place.endswith(ends) for place in where):
        return True
    return not re.search("[./]", term) and set(re.findall(r"\w+", term)) <= words


def unknown_terms(text, texts):
    """What the map names and the project does not have, with the line."""
    where = places([name for name, _ in texts])
    words = {word for name, source in texts if SOURCE.search(name)
             for word in re.findall(r"\w+", source)}
    commands = set(re.findall(r"\w+", dict(texts).get("dev", "")))
    plain = CODE.sub(lambda line: " " * len(line.group()), text)
    for found in TERM.finditer(plain):
        term = " ".join(found.group(1).split())
        if NAMED.fullmatch(term) and not is_there(term, where, words, commands):
            yield f"{MAP}:{text.count(chr(10), 0, found.start()) + 1}: there is no {term}"


def left_out(text, texts):
    """Folders of sources and presets that the map does not speak of."""
    named = set(re.findall(r"[\w-]+", text))
    rooms = {name.split("/")[0] for name, _ in texts if "/" in name and name.endswith((".cpp", ".h"))}
    yield from (f"{MAP}: nothing about {room}/" for room in sorted(rooms - named))
    presets = json.loads(dict(texts).get(PRESETS, "{}")).get("configurePresets", [])
    yield from (f"{MAP}: nothing about the preset {preset['name']}" for preset in presets
                if not preset.get("hidden") and f"`{preset['name']}`" not in text)


def faults(root):
    texts = sources.texts(root)
    text = dict(texts)[MAP]
    length = sum(max(1, -(-len(line) // WIDTH)) for line in text.splitlines())
    too_long = [f"{MAP}: {length} lines are more than two pages"] if length > LONGEST else []
    return too_long + list(unknown_terms(text, texts)) + list(left_out(text, texts))


def main():
    found = faults(pathlib.Path(sys.argv[1]))
    print("\n".join(found) if found else "the map shows the code as it is")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
