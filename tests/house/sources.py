# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""What the house tests read: the text files of a tree, without what a build left there."""

import pathlib
import subprocess

SKIPPED = {".git", "build", "__pycache__"}


def _tracked(root):
    """The files that version control knows or would take; None where it knows nothing."""
    if not (root / ".git").exists():
        return None
    listed = subprocess.run(
        ["git", "-C", str(root), "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        capture_output=True, check=False)
    if listed.returncode != 0:
        return None
    return [root / name.decode() for name in listed.stdout.split(b"\0") if name]


def _walked(root):
    return [path for path in root.rglob("*") if not SKIPPED & set(path.relative_to(root).parts)]


def files(root):
    """All files below root, sorted, as pairs of relative path (str) and full path."""
    root = pathlib.Path(root)
    found = _tracked(root)
    if found is None:
        found = _walked(root)
    return [(path.relative_to(root).as_posix(), path) for path in sorted(found) if path.is_file()]


def texts(root):
    """Files that are text, as pairs of relative path and contents."""
    result = []
    for name, path in files(root):
        data = path.read_bytes()
        if b"\0" in data:
            continue
        try:
            result.append((name, data.decode("utf-8")))
        except UnicodeDecodeError:
            continue
    return result
