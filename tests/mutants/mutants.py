#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Breaks the plug-in in one place at a time and looks whether its tests notice.

Usage: mutants.py ROOT
       [--folder overlayeditor|viewer/scene|viewer/edit|viewer/render|viewer/script|hostlib|kit]
       [--conformance] [--count N] [--seed S] [--file PART] [--copy NAME]

With --conformance it is not the tests that have to notice, but the conformance program: a broken
plug-in is a broken module, a broken kit (or viewer/scene) a broken host.

Works on a copy of the tracked files below ROOT/build, so that the tree is never touched; runs side by
side need copies of their own (--copy NAME). Each mutant is compiled into the shared form of its library,
so that no test is linked anew. A mutant that does not compile does not count: another one is drawn. One
that no test can notice stands in equivalent.txt with the reason and is not drawn, nor with --conformance
one of unchecked.txt. A test that fails has to fail again, so that no mishap of a test counts. Ends with 1
where fewer than 95 of 100 were caught.
"""

import argparse
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import time

import mutations

HERE = pathlib.Path(__file__).resolve().parent
# The folders that can be broken: the library that is made of each, and where its tests are.
PARTS = {
    "overlayeditor": ("overlayeditor_objects", "tests/overlayeditor"),
    "viewer/scene": ("viewerscene", "tests/viewer/scene"),
    "viewer/edit": ("vieweredit", "tests/viewer/edit"),
    "viewer/render": ("viewerrender", "tests/viewer/render"),
    "viewer/script": ("viewerscript", "tests/viewer/script"),
    "hostlib": ("kxhost", "tests/hostlib"),
}
# What the conformance program is run on: the library that it loads, and the test that runs it.
CHECKED = {
    "overlayeditor": ("overlayeditor", "conformance_plugin"),
    "viewer/scene": ("viewerHost", "conformance_viewer"),
    "kit": ("recordingHost", "conformance_recordingHost"),
}
# Of these folders only what makes the host: the rest is not part of what a host is checked for.
HOST_FILES = {
    "viewer/scene": ("OverlayService_nodes", "OverlayService_values", "MoveRule", "NodeLists"),
    "kit": ("RecordingService_tree", "RecordingService_properties"),
}
UNUSABLE = "tst_initPlugin"  # loads the plug-in's file, which is empty beside the shared library
WANTED = 0.95
LEAST_PATIENCE = 20.0  # seconds for a test; a mutant may hang it


def run(command, cwd, **options):
    return subprocess.run(command, cwd=cwd, text=True, capture_output=True, check=False, **options)


def copy_tree(root, copy):
    """Brings the copy up to date with the tracked files, all of which it returns; equal ones keep their
    times."""
    listed = run(["git", "ls-files", "-z"], root).stdout.split("\0")
    names = [name for name in listed if name and (root / name).is_file()]
    for name in names:
        source, target = root / name, copy / name
        if target.is_file() and target.read_bytes() == source.read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(source, target)
        os.utime(target)
    return names


class Workshop:
    """The copy, its build and what has to notice the mutants of one folder: its tests, or the
    conformance program."""

    def __init__(self, copy, folder, checked):
        self.copy = copy
        self.build = copy / "build"
        self.tests = []
        self.checked = checked
        if checked:
            self.library, test = CHECKED[folder]
            self.folder_of_tests = "tests/conformance"
            self.targets = ["conformance", self.library]
            self.selection = ["-R", f"^{test}$"]
            self.shared = "OFF"
        else:
            self.library, self.folder_of_tests = PARTS[folder]
            self.targets = [f"{self.folder_of_tests}/all"]
            self.selection = ["-E", UNUSABLE]
            self.shared = "ON"

    def prepare(self):
        flags = [f"-DKX_SHARED_PARTS={self.shared}", "-DCMAKE_BUILD_TYPE=Debug",
                 "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DKX_BUILD_BENCH=OFF", "-G", "Ninja"]
        self.must(["cmake", "-S", ".", "-B", "build", *flags])
        self.must(["cmake", "--build", "build", "--target", *self.targets])
        self.tests = [Test(entry) for entry in self.listed()]
        for test in self.tests if self.checked else []:
            test.command.append("--first")  # one fault is enough
        for test in self.tests:
            if not test.passes(self.build, 600.0) and not test.passes(self.build, 600.0):
                sys.exit(f"mutants: {test.name} fails without a mutant")

    def listed(self):
        tests = self.build / self.folder_of_tests
        shown = self.must(["ctest", "--test-dir", str(tests), "--show-only=json-v1", *self.selection])
        return json.loads(shown)["tests"]

    def must(self, command):
        done = run(command, self.copy)
        if done.returncode != 0:
            sys.exit(f"mutants: '{command[0]}' fails:\n{done.stdout[-3000:]}{done.stderr}")
        return done.stdout

    def compiles(self):
        return run(["cmake", "--build", "build", "--target", self.library],
                   self.copy).returncode == 0

    def killer(self, name):
        """The first test that notices the mutant; the likeliest are asked first."""
        for test in sorted(self.tests, key=lambda each: each.rank(name)):
            if test.notices(self.build):
                test.kills.append(name)
                return test.name
        return None


class Test:
    """One program of CTest."""

    def __init__(self, entry):
        self.name = entry["name"]
        self.command = entry["command"]
        properties = {each["name"]: each["value"] for each in entry["properties"]}
        self.environment = dict(each.split("=", 1) for each in properties["ENVIRONMENT"])
        self.seconds = 0.0
        self.kills = []

    def rank(self, name):
        """Those first that noticed a mutant of this file, then those named after it, then the quick."""
        named_after = pathlib.Path(name).stem in self.name
        return (-self.kills[-8:].count(name), not named_after, self.seconds / (1 + len(self.kills)))

    def notices(self, build):
        """A hang needs no second look: the time for it is ample."""
        patience = LEAST_PATIENCE + 5 * self.seconds
        answer = self.passes(build, patience)
        if answer is False:
            answer = self.passes(build, patience)
        return not answer

    def passes(self, build, patience):
        """None where it does not end in time."""
        start = time.monotonic()
        process = subprocess.Popen(self.command, cwd=build, env={**os.environ, **self.environment},
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   start_new_session=True)
        try:
            passed = process.wait(patience) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            return None
        if passed:
            self.seconds = time.monotonic() - start
        return passed


def candidates(copy, names):
    return [(name, mutant) for name in names for mutant in mutations.of((copy / name).read_text())]


def equivalents(checked=False):
    """Changes that no test could see, or that the conformance program does not look for, as pairs of file
    and pattern; three dots stand for any text."""
    known = []
    lists = ["equivalent.txt", "unchecked.txt"] if checked else ["equivalent.txt"]
    for line in "\n".join((HERE / name).read_text() for name in lists).splitlines():
        if line and not line.startswith("#"):
            name, change, _reason = line.split(" | ")
            known.append((name, re.compile(".*".join(map(re.escape, change.split("..."))))))
    return known


def describe(mutant):
    _number, operator, old, new = mutant
    if operator == mutations.swapped_statements.__name__:
        return f"{old.strip()} <-> {new.split(chr(10))[0].strip()}"
    return f"{old.strip()} -> {new.strip() or 'nothing'}"


def try_one(workshop, name, mutant):
    """'skipped', the name of the test that noticed, or None."""
    path = workshop.copy / name
    good = path.read_text()
    path.write_text(mutations.apply(good, mutant))
    try:
        return workshop.killer(name) if workshop.compiles() else "skipped"
    finally:
        path.write_text(good)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("--folder", choices={**PARTS, **CHECKED}, default="overlayeditor")
    parser.add_argument("--conformance", action="store_true",
                        help="the conformance program has to notice, not the tests")
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--seed", type=int, default=random.randrange(10**6))
    parser.add_argument("--file", default="", help="break only files with this in their names")
    parser.add_argument("--copy", default="mutants", help="the copy's folder below ROOT/build")
    options = parser.parse_args()
    root = options.root.resolve()
    if options.folder not in (CHECKED if options.conformance else PARTS):
        parser.error(f"nothing is there to notice faults of {options.folder}")
    workshop = Workshop(root / "build" / options.copy, options.folder, options.conformance)
    names = [name for name in copy_tree(root, workshop.copy)
             if name.startswith(options.folder + "/") and name.endswith(".cpp") and options.file in name]
    if options.conformance and options.folder in HOST_FILES:
        names = [name for name in names
                 if any(part in name for part in HOST_FILES[options.folder])]
    workshop.prepare()

    pool = candidates(workshop.copy, names)
    random.Random(options.seed).shuffle(pool)
    print(f"mutants: {options.count} of {len(pool)} in {options.folder}, seed {options.seed}", flush=True)
    known = equivalents(options.conformance)
    caught, survivors = 0, []
    for name, mutant in pool:
        if caught + len(survivors) >= options.count:
            break
        if any(name == each and change.fullmatch(describe(mutant)) for each, change in known):
            continue
        killer = try_one(workshop, name, mutant)
        if killer == "skipped":
            continue
        line = f"{name}:{mutant[0]} | {describe(mutant)}"
        print(f"{'caught by ' + killer if killer else 'SURVIVED'} | {line}", flush=True)
        caught += 1 if killer else 0
        survivors += [] if killer else [line]

    print(f"mutants: {caught} of {caught + len(survivors)} caught, seed {options.seed}")
    for line in survivors:
        print(f"survived: {line}")
    return 0 if caught >= WANTED * (caught + len(survivors)) else 1


if __name__ == "__main__":
    sys.exit(main())
