#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""What a header declares of its own: without what it overrides and the constructors that it inherits,
which are documented where they come from. Lines keep their numbers.

Usage: ownDeclarations.py HEADER
"""

import pathlib
import re
import sys

# With the comment before it.
BORROWED = re.compile(r"^(?:[ \t]*//[^\n]*\n)*[ \t]*"
                      r"(?:[^\n/;{}]*\([^;{}]*?\)[^;{}()]*\boverride|using \w+::\w+);",
                      re.MULTILINE)


def main():
    text = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    sys.stdout.write(BORROWED.sub(lambda found: "\n" * found.group().count("\n"), text))


if __name__ == "__main__":
    main()
