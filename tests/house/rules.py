#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where a file breaks a rule of the house. Each function below that takes the name and the
text of a file is one rule; what it yields are pairs of line number and fault.

Usage: rules.py ROOT
"""

import pathlib
import re
import sys

import sources

LICENSE_LINES = ("SPDX-FileCopyrightText: the Overlay Editor authors",
                 "SPDX-License-Identifier: MIT")
LICENSED = (".cpp", ".h", ".py", ".sh", ".cmake", "CMakeLists.txt", "/with-display", "dev",
            ".ci/run")
LONGEST_SOURCE = 500
# Written in pieces, so that this file does not break its own rule.
UNFINISHED = re.compile(r"\b(?:" + "|".join(("TO" "DO", "FIX" "ME", "X" "XX", "HA" "CK")) + r")\b")
CLASS = re.compile(r"^(?:class|struct) (?:\w+ )*\w+(?: final)?(?: *:[^:].*)?(?: *\{.*)?$")
LINK = re.compile(r"\]\(([^)#\s]+)[^)]*\)")
CODE = re.compile(r"^```.*?^```$", re.MULTILINE | re.DOTALL)


def licensed(name, text):
    if not name.endswith(LICENSED):
        return
    head = text.splitlines()[:4]
    for wanted in LICENSE_LINES:
        if not any(wanted in line for line in head):
            yield 1, f"the line '{wanted}' is missing"


def short(name, text):
    lines = text.count("\n")
    if name.endswith(".cpp") and lines > LONGEST_SOURCE:
        yield lines, f"{lines} lines are more than {LONGEST_SOURCE}: split the file by subject"


def finished(_name, text):
    for number, line in enumerate(text.splitlines(), 1):
        if UNFINISHED.search(line):
            yield number, "unfinished work is marked here"


def tidy(name, text):
    if text and not text.endswith("\n"):
        yield text.count("\n") + 1, "the last line does not end"
    for number, line in enumerate(text.split("\n"), 1):
        if line != line.rstrip() and not name.endswith(".md"):
            yield number, "blanks at the end of the line"
        if "\t" in line and name.endswith((".cpp", ".h", ".py", ".cmake", "CMakeLists.txt")):
            yield number, "a tab"


def introduced(name, text):
    """Every class of a header has a comment before it that says what it is for."""
    if not name.endswith(".h"):
        return
    before = ""
    for number, line in enumerate(text.splitlines(), 1):
        if CLASS.match(line) and not before.startswith("//"):
            yield number, "a class without a comment on its role"
        if not line.startswith("template<"):
            before = line


RULES = (licensed, short, finished, tidy, introduced)


def unregistered(root, texts):
    """Test programs that no build file names would never run."""
    builds = {pathlib.PurePosixPath(name).parent: text
              for name, text in texts if name.endswith("CMakeLists.txt")}
    for name, _ in texts:
        path = pathlib.PurePosixPath(name)
        if not re.fullmatch(r"tst_\w+\.cpp", path.name):
            continue
        if not re.search(rf"\b{path.stem}\b", builds.get(path.parent, "")):
            yield f"{name}:1: no test is registered for this file"


def dangling(root, texts):
    """Links in documents that lead to no file."""
    for name, text in texts:
        if not name.endswith(".md"):
            continue
        text = CODE.sub(lambda code: "\n" * code.group().count("\n"), text)
        for match in LINK.finditer(text):
            target = match.group(1)
            if "://" in target or (pathlib.Path(root) / name).parent.joinpath(target).exists():
                continue
            line = text.count("\n", 0, match.start()) + 1
            yield f"{name}:{line}: the link leads nowhere: {target}"


def faults(root):
    texts = sources.texts(root)
    result = [f"{name}:{line}: {wrong}"
              for name, text in texts for rule in RULES for line, wrong in rule(name, text)]
    return result + list(unregistered(root, texts)) + list(dangling(root, texts))


def main():
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "the house is in order")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
