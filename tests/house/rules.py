#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where a file breaks a rule of the house. Each function below that takes the name and the
text of a file is one rule; what it yields are pairs of line number and fault.

Usage: rules.py ROOT
       rules.py --links FOLDER    only the links of the documents in a folder
"""

import ast
import pathlib
import re
import sys

import sources

LICENSE_LINES = ("SPDX-FileCopyrightText: the Overlay Editor authors",
                 "SPDX-License-Identifier: MIT")
LICENSED = (".cpp", ".h", ".py", ".sh", ".cmake", "CMakeLists.txt", "/with-display", "dev",
            ".ci/run")
SOURCE = re.compile(r"\.(?:cpp|h|py|js|sh|ui|cmake|frag|vert)$"
                    r"|(?:^|/)(?:CMakeLists\.txt|dev|with-display|\.ci/run)$")
LONGEST_SOURCE = 500
LONGEST_FUNCTION = 60
# The mark that clang-tidy understands too, on the line of the name.
TABLE = "// NOLINT(readability-function-size)"
TYPE = re.compile(r"(?:template\b.*)?(?:class|struct|union|enum|namespace)\b|extern \"C\"$")
# A function of JavaScript, of a shell script or of CMake, and its body. One in brackets around a whole
# file of JavaScript is what a namespace is elsewhere.
PLAIN = re.compile(r"^( *)(?:(?!\()[^\n]*\bfunction\b[^\n]*\)|\w+\(\)) \{\n(.*?)^\1\}"
                   r"|^(?:function|macro)\([^)]*\)\n(.*?)^end(?:function|macro)\(",
                   re.MULTILINE | re.DOTALL)
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
    if SOURCE.search(name) and lines > LONGEST_SOURCE:
        yield lines, f"{lines} lines are more than {LONGEST_SOURCE}: split the file by subject"


def bodies(text):
    """The functions of a C++ source as clang-format lays them out: the first line of the head, the
    lines of the body. A brace alone on its line opens one unless a type or a namespace is before it."""
    lines = text.splitlines()
    for start, line in enumerate(lines):
        if line.strip() != "{":
            continue
        indent = line[:-1]
        head = start - 1
        while head > 0 and (not lines[head].startswith(indent)
                            or lines[head][len(indent):len(indent) + 1] in ("", " ", "#")):
            head -= 1
        if head < 0 or TYPE.match(lines[head].strip()) or lines[head].rstrip().endswith((";", "}")):
            continue
        end = next((i for i in range(start + 1, len(lines)) if lines[i].startswith(indent + "}")),
                   len(lines))
        yield head, lines[head:start], lines[start + 1:end]


def brief(name, text):
    """No function is longer than can be seen at once, but for a table that says so."""
    if name.endswith((".cpp", ".h")):
        for head, title, body in bodies(text):
            declared = any(TABLE in line for line in title)
            if len(body) <= LONGEST_FUNCTION:
                if declared:
                    yield head + 1, "what is declared to be a table is short enough for a function"
            elif not declared:
                yield head + 1, f"a function of {len(body)} lines"
            elif not is_table(body):
                yield head + 1, "what is declared to be a table holds more than that"
    elif name.endswith(".py"):
        for node in ast.walk(ast.parse(text)):
            if isinstance(node, ast.FunctionDef):
                lines = node.end_lineno - node.lineno
                if lines > LONGEST_FUNCTION:
                    yield node.lineno, f"a function of {lines} lines"
    elif SOURCE.search(name):
        for found in PLAIN.finditer(text):
            lines = (found.group(2) or found.group(3) or "").count("\n")
            if lines > LONGEST_FUNCTION:
                yield text.count("\n", 0, found.start()) + 1, f"a function of {lines} lines"


def is_table(body):
    """One list, with no entry and nothing around it longer than a function may be."""
    begin = next((i for i, line in enumerate(body) if re.search(r"(?:\breturn|=|\w) ?\{$", line)
                  and not TYPE.search(line)), len(body))
    end = next((i for i in range(begin, len(body)) if re.match(r"    \S*\};", body[i])), begin)
    entries, length = [], 0
    for line in body[begin + 1:end]:
        length = 1 if line.startswith(" " * 8) and line[8:9] not in (" ", "") else length + 1
        entries.append(length)
    around = len(body) - (end - begin)
    return begin < end and max(entries + [around]) <= LONGEST_FUNCTION


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


RULES = (licensed, short, brief, finished, tidy, introduced)


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
    root = sys.argv[-1]
    found = (list(dangling(root, sources.texts(root))) if "--links" in sys.argv else faults(root))
    print("\n".join(found) if found else "the house is in order")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
