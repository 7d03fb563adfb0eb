#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where a document shows a picture that `./dev docs` does not take, which would grow old, or one
that is missing; where a picture is taken or stored and shown nowhere; and where one is too large.

Usage: pictures.py ROOT
"""

import posixpath
import re
import sys

import sources

FOLDER = "docs/images/"
PROGRAM = "tests/pictures/GuidePictures.cpp"
LARGEST = 200_000
SHOWN = re.compile(r"!\[[^\]]*\]\(([^)\s]+)\)")
TAKEN = re.compile(r'^\s*\{"([\w.]+)", &GuidePictures::\w+\},$', re.MULTILINE)


def shown(texts):
    """Pictures of the documents, as pairs of the place that shows it and its path."""
    for name, text in texts:
        if not name.endswith(".md"):
            continue
        for match in SHOWN.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            target = posixpath.join(posixpath.dirname(name), match.group(1))
            yield f"{name}:{line}", posixpath.normpath(target)


def faults(root):
    texts = sources.texts(root)
    taken = {FOLDER + name for name in TAKEN.findall(dict(texts).get(PROGRAM, ""))}
    stored = {name: path for name, path in sources.files(root) if name.startswith(FOLDER)}
    places = list(shown(texts))
    result = []
    for place, picture in places:
        if picture not in taken:
            result.append(f"{place}: ./dev docs does not take {picture}")
        if picture not in stored:
            result.append(f"{place}: {picture} is missing")
    used = {picture for _, picture in places}
    result += [f"{PROGRAM}: {picture} is shown nowhere" for picture in sorted(taken - used)]
    result += [f"{picture} is taken by nobody" for picture in sorted(set(stored) - taken)]
    for picture, path in stored.items():
        size = path.stat().st_size
        if size > LARGEST:
            result.append(f"{picture}: {size} bytes are more than {LARGEST}")
    return result


def main():
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "every picture is taken, stored and shown")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
