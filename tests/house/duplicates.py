#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where six lines of code stand in two places.

Indentation, blank lines, comments and includes count for nothing. Lines that only frame code, such as
a lone brace, count among the six, but three have to say something. What a class overrides is left out,
since its interface dictates it.

Usage: duplicates.py ROOT
"""

import collections
import itertools
import re
import sys

import sources

LENGTH = 6
SAYING = 3
CODE = re.compile(r"\.(?:cpp|h|py|js|sh|cmake|frag|vert)$"
                  r"|(?:^|/)(?:CMakeLists\.txt|dev|with-display|\.ci/run)$")
COMMENT = re.compile(r"//|/\*|\*(?:\s|/|$)|#")
MACRO = re.compile(r"#\s*(?:define|if|ifdef|ifndef|else|endif)\b")
FRAME = re.compile(r"\W*$|(?:public|protected|private)(?: Q_SLOTS)?:$|Q_SIGNALS:$|Q_OBJECT$"
                   r"|(?:inline )?namespace\b|using namespace\b|(?:import|from) [\w.]+")
# A declaration that overrides, from the end of the statement before it.
OVERRIDE = re.compile(r"(?<=[;{}:])[^;{}]*?\)[^;{}()]*\boverride;")

Line = collections.namedtuple("Line", "number text says")


def without_overrides(text):
    """The text, with blank lines in the place of what only overrides."""
    return OVERRIDE.sub(lambda found: "\n" * found.group().count("\n"), text)


def lines_of(text):
    """The lines of a source that are compared."""
    result = []
    for number, line in enumerate(without_overrides(text).splitlines(), 1):
        line = " ".join(line.split())
        if not line or (COMMENT.match(line) and not MACRO.match(line)):
            continue
        result.append(Line(number, line, not FRAME.match(line)))
    return result


def stretches(files):
    """Where each stretch of LENGTH lines that says enough stands, as pairs of file and index."""
    places = collections.defaultdict(list)
    for name, lines in files.items():
        for start in range(len(lines) - LENGTH + 1):
            stretch = lines[start:start + LENGTH]
            if sum(line.says for line in stretch) >= SAYING:
                places[tuple(line.text for line in stretch)].append((name, start))
    return [found for found in places.values() if len(found) > 1]


def faults(root):
    files = {name: lines_of(text) for name, text in sources.texts(root) if CODE.search(name)}
    result, told = [], set()
    for places in stretches(files):
        for (name, start), (other, begin) in itertools.combinations(places, 2):
            if other == name and begin - start < LENGTH:
                continue
            # The rest of a longer stretch was told with its first lines.
            continued = (name, start - 1, other, begin - 1) in told
            told.add((name, start, other, begin))
            if not continued:
                first, second = files[name][start], files[other][begin]
                result.append(f"{name}:{first.number}: stands in {other}:{second.number} too: "
                              f"{first.text}")
    return sorted(result)


def main():
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "nothing stands in two places")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
