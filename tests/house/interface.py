#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where the host interface is not documented to the end.

Doxygen warns of every public class, operation, signal and parameter without a meaning. Beyond that, in
the words of an operation:
- a number has a unit or a range;
- what can be "none" (a pointer, a text, a colour, an icon, a node, a list) says what stands for it;
- an operation that takes more than yes or no, or its class, says what becomes of what is wrong.

Usage: interface.py ROOT
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

NUMBER = re.compile(r"^(?:const )?(?:unsigned )?(?:int|long|float|double|qreal|quint32)$"
                    r"|\bQ(?:Point|Size|Rect)F?\b")
NODES = re.compile(r"\bNode(?:Id|List)\b")
OPTIONAL = re.compile(r"\*$|\bQString\b|\bstd::string\b|\bQ(?:Color|Icon|Pixmap)\b|\bQVector\b")
UNIT = re.compile(r"\d|\b(?:points?|pixels?|degrees|metres|index|row|numbers?|unit|fraction|Qt::\w+"
                  r"|bits?|coordinates|reserved)\b")
NONE = re.compile(r"\b(?:none|null|empty|0|invalid|never|valid|any|unique|kept too|opaque"
                  r"|as in the constructor|average)\b")
WRONG = re.compile(r"\b(?:error|errors|ignored|ignores|ignore|skips|skipped|reports|reported|refused"
                   r"|warning|nothing happens|kept|null|none|unknown|empty|count|counts|never|any)\b")
WORDS = " ".join


def text_of(element):
    return WORDS("".join(element.itertext()).split()) if element is not None else ""


def described(member):
    """What the comment of a member says in all, of each parameter, and of what it gives."""
    whole = WORDS(text_of(member.find(part)) for part in ("briefdescription", "detaileddescription"))
    parts = {name.text: text_of(item.find("parameterdescription"))
             for item in member.iter("parameteritem") for name in item.iter("parametername")}
    gives = WORDS(text_of(part) for part in member.iter("simplesect") if part.get("kind") == "return")
    return whole, parts, gives


def lacks(kind, says):
    """What the words about a value of a type leave open."""
    if NUMBER.search(kind) and not UNIT.search(says):
        yield "no unit or range"
    if (OPTIONAL.search(kind) or NODES.search(kind)) and not NONE.search(says):
        yield "nothing about none"


def gaps(member, around):
    """What the comment of one operation or signal leaves open; `around` is that of its class."""
    whole, parts, gives = described(member)
    kind = text_of(member.find("type"))
    for param in member.iter("param"):
        name = param.findtext("declname")
        # Lists and ids of nodes are read as their class says: unknown ones are skipped.
        if name and not NODES.search(text_of(param.find("type"))):
            for gap in lacks(text_of(param.find("type")), parts.get(name, "")):
                yield f"{gap} at `{name}`"
    if kind and kind != "void" and "virtual void" not in kind:
        yield from (f"{gap} at what it gives" for gap in lacks(kind, gives))
    taken = [text_of(param.find("type")) for param in member.iter("param")]
    can_be_wrong = member.get("kind") == "function" and set(taken) - {"bool", "typename T", "class T"}
    if can_be_wrong and not WRONG.search(f"{whole} {around}"):
        yield "nothing about what is wrong"


def is_public(member):
    return member.get("prot") == "public" and member.get("kind") in ("function", "signal", "slot")


def unsaid(folder):
    """The gaps of all classes whose pages are in a folder."""
    for page in sorted(pathlib.Path(folder).glob("*.xml")):
        for compound in ET.parse(page).getroot().iter("compounddef"):
            if compound.get("kind") not in ("class", "struct"):
                continue
            around = text_of(compound.find("detaileddescription"))
            for member in filter(is_public, compound.iter("memberdef")):
                for gap in gaps(member, around):
                    place = member.find("location")
                    yield (f"{place.get('file')}:{place.get('line')}: "
                           f"{member.findtext('qualifiedname')}: {gap}")


def faults(root):
    """Doxygen's warnings, and what it does not see."""
    config = (pathlib.Path(root) / "docs/api/Doxyfile").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run(["doxygen", "-"], cwd=root, capture_output=True, text=True, check=False,
                             input=f"{config}\nOUTPUT_DIRECTORY = {folder}\n")
        warnings = [line for line in run.stderr.splitlines() if line.strip()]
        return (warnings + list(unsaid(pathlib.Path(folder) / "xml"))
                + ([f"doxygen ended with {run.returncode}"] if run.returncode else []))


def main():
    found = faults(sys.argv[1])
    print("\n".join(found) if found else "the interface is documented to the end")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
