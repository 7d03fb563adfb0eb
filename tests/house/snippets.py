#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where a document quotes code that reads differently in its source, and where it leaves out a
line of a project that it quotes from.

A source marks what is quoted by a line `//! [name]` (in CMake `#! [name]`) before and after it. A
document quotes it below a line `<!-- path/of/the/source [name] -->`, between lines of three backticks.
Every mark is quoted somewhere, since one that is not has no use. A document that quotes one part of a
project leads through all of it: each line stands in a part, but for comments, includes and namespaces.

Usage: snippets.py ROOT            compare
       snippets.py --update ROOT   write into the documents what the sources say
"""

import pathlib
import posixpath
import re
import sys
import textwrap

import sources

MARK = re.compile(r"^\s*(?://|#)! \[(\w+)\]$")
QUOTE = re.compile(r"^<!-- (\S+) \[(\w+)\] -->\n(```\w*\n)(.*?)(^```$)",
                   re.MULTILINE | re.DOTALL)
WANTED = re.compile(r"^<!-- \S+ \[\w+\] -->$", re.MULTILINE)
# A line that needs no quote: blank, a comment, an include, a namespace, a class that is declared alone.
FRAME = re.compile(r"\s*(?:(?://|#).*|\} // namespace.*|namespace .*\{|class \w+;)?$")


def marked(text):
    """The marked parts of a source, by name, and what is wrong with its marks."""
    parts, faults, name, lines = {}, [], None, []
    for line in text.splitlines():
        mark = MARK.match(line)
        if not mark:
            lines.append(line)
        elif name is None:
            name, lines = mark.group(1), []
            if name in parts:
                faults.append(f"[{name}] is marked more than once")
        else:
            if name != mark.group(1):
                faults.append(f"[{mark.group(1)}] begins inside of [{name}]")
            parts[name] = textwrap.dedent("\n".join(lines)).strip("\n") + "\n"
            name = None
    if name is not None:
        faults.append(f"[{name}] does not end")
    return parts, faults


def left_out(text):
    """The numbers of the lines that need a quote and stand in no marked part."""
    inside = False
    for number, line in enumerate(text.splitlines(), 1):
        if MARK.match(line):
            inside = not inside
        elif not inside and not FRAME.match(line):
            yield number


def is_quotable(name):
    return name.startswith("examples/") and name.endswith((".cpp", ".h", ".txt"))


def marked_sources(texts):
    """Marked parts by source and name, and the faults of all marks."""
    parts, faults = {}, []
    for name, text in texts:
        if not is_quotable(name):
            continue
        found, wrong = marked(text)
        parts.update({(name, part): code for part, code in found.items()})
        faults += [f"{name}: {fault}" for fault in wrong]
    return parts, faults


def gaps(texts, folders):
    """Where a source in one of the folders is quoted in part."""
    for name, text in texts:
        numbers = list(left_out(text))
        if is_quotable(name) and posixpath.dirname(name) in folders and numbers:
            yield f"{name}:{numbers[0]}: {len(numbers)} lines from here on stand in no quote"


def faults(root):
    texts = sources.texts(root)
    parts, result = marked_sources(texts)
    unquoted = set(parts)
    folders = set()
    for name, text in texts:
        if not name.endswith(".md"):
            continue
        quotes = list(QUOTE.finditer(text))
        if len(quotes) != len(WANTED.findall(text)):
            result.append(f"{name}: a line that names a source has no code below it")
        for quote in quotes:
            part = quote.group(1, 2)
            line = text.count("\n", 0, quote.start()) + 1
            if part not in parts:
                result.append(f"{name}:{line}: there is no [{part[1]}] in {part[0]}")
            elif parts[part] != quote.group(4):
                result.append(f"{name}:{line}: [{part[1]}] reads differently in {part[0]}")
            unquoted.discard(part)
            folders.add(posixpath.dirname(part[0]))
    result += gaps(texts, folders)
    return result + [f"{name}: [{part}] is quoted nowhere" for name, part in sorted(unquoted)]


def update(root):
    texts = sources.texts(root)
    parts, _ = marked_sources(texts)

    def renewed(quote):
        code = parts.get(quote.group(1, 2), quote.group(4))
        return f"<!-- {quote.group(1)} [{quote.group(2)}] -->\n{quote.group(3)}{code}```"

    for name, text in texts:
        if name.endswith(".md") and QUOTE.search(text):
            (pathlib.Path(root) / name).write_text(QUOTE.sub(renewed, text), encoding="utf-8")


def main():
    if sys.argv[1] == "--update":
        update(sys.argv[2])
        return 0
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "the documents quote what the sources say")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
