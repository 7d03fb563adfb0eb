#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails on an include that goes against the arrows between the folders.

    host <- hostlib <- viewer,  host <- overlayeditor,  host <- examples,
    host <- kit <- conformance;  tests and bench see all.

The viewer knows the module as a file that it loads, never as a header. Each folder of examples/ is a
project of its own, with its own root. Below viewer/, scene, script, render and edit do without
windows: each may include what it builds upon, and none what shows them. A source in a folder that is
not named here is at fault, since nobody has said what it may include.

Usage: arrows.py ROOT
"""

import posixpath
import re
import sys

import sources

# Each folder of ours, and the folders whose headers it may include. A longer name is looked up
# before a shorter one, so that a sub-folder can be held tighter than the folder around it.
ALL = {"host", "hostlib", "overlayeditor", "viewer", "examples", "kit", "conformance", "tests",
       "bench"}
ARROWS = {
    "host": {"host"},
    "hostlib": {"host", "hostlib"},
    "overlayeditor": {"host", "overlayeditor"},
    "viewer": {"host", "hostlib", "viewer"},
    "viewer/scene": {"host", "hostlib", "viewer/scene"},
    "viewer/script": {"host", "hostlib", "viewer/scene", "viewer/script"},
    "viewer/render": {"host", "hostlib", "viewer/scene", "viewer/render"},
    "viewer/edit": {"host", "hostlib", "viewer/scene", "viewer/render", "viewer/edit"},
    "examples": {"host", "examples"},
    "kit": {"host", "kit"},
    "conformance": {"host", "kit", "conformance"},
    "tests": ALL,
    "bench": ALL,
}
ROOMS = {name.split("/")[0] for name in ARROWS}
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
GENERATED = re.compile(r"^(ui_\w+\.h|moc_\w+\.cpp|\w+\.moc)$")


def holder(name):
    """The key of ARROWS for a file in this place."""
    matches = [room for room in ARROWS if name.startswith(room + "/")]
    return max(matches, key=len) if matches else None


def allowed(room, target):
    return any(target.startswith(open_to + "/") for open_to in ARROWS[room])


def fault(name, quote, target):
    """What is wrong with one include of the file, or None."""
    room = holder(name)
    if room == "examples" and "/" not in target:
        return None
    plain = posixpath.normpath(target)
    if plain.split("/")[0] in ROOMS and plain == target:
        return None if allowed(room, target) else f"{room} must not include {target}"
    if quote == "<" and ".." not in target:
        return None
    if GENERATED.match(target):
        return None
    return f"{target} is not written from the root of the project"


def faults(root):
    result = []
    for name, text in sources.texts(root):
        if not name.endswith((".cpp", ".h")):
            continue
        if holder(name) is None:
            result.append(f"{name}:1: the arrows say nothing of this folder")
            continue
        for match in INCLUDE.finditer(text):
            wrong = fault(name, match.group(1), match.group(2))
            if wrong:
                line = text.count("\n", 0, match.start()) + 1
                result.append(f"{name}:{line}: {wrong}")
    return result


def main():
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "all includes follow the arrows")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
