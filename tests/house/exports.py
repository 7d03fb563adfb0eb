#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails unless a shared library exports exactly the named functions and nothing else.

Usage: exports.py LIBRARY NAME...
"""

import subprocess
import sys


def exported(library):
    listed = subprocess.run(["nm", "-D", "--defined-only", library],
                            capture_output=True, text=True, check=True)
    return sorted(line.split()[-1] for line in listed.stdout.splitlines() if line.strip())


def main():
    library, *wanted = sys.argv[1:]
    found = exported(library)
    if found == sorted(wanted):
        return 0
    print(f"{library} exports:", *found, sep="\n  ")
    print("wanted:", *sorted(wanted), sep="\n  ")
    return 1


if __name__ == "__main__":
    sys.exit(main())
