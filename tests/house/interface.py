#!/usr/bin/env python3
# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""Fails where the host interface is not documented to the end.

Doxygen warns of every public class, operation, signal and parameter without a meaning. Beyond that:
- a number has a unit or a range, given, taken or kept in a record;
- what can be "none" (a pointer, a text, a colour, an icon, a node) says what stands for it;
- what is asked of a node has an answer for unknown ones, and a class names its thread;
- an operation on nodes, or its class, says what becomes of ids that it does not know, a signal that
  carries nodes that there is always one;
- of each parameter that is more than yes or no its words, those of its operation or those of its class
  say what becomes of what is wrong.

Usage: interface.py ROOT
"""

import itertools
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

NUMBER = re.compile(r"^(?:const )?(?:std::)?(?:(?:signed|unsigned|char|short|int|long|float|double|uint|qreal"
                    r"|qsizetype|size_t|q?u?int\d+(?:_t)?) ?)+&?$"
                    r"|\bQ(?:Point|Size|Rect|Line|Margins)F?\b|\bstd::chrono::")
NODES = re.compile(r"\bNode(?:Id|List)\b")
OPTIONAL = re.compile(r"\*$|\bQ(?:String(?:List|View)?|ByteArray|Variant|Color|Icon|Pixmap|Image|Url|Font"
                      r"|List|Vector|Set|Map|Hash|ModelIndex|Pointer|SharedPointer)\b"
                      r"|\bstd::(?:string|function|optional|vector|map|set|unique_ptr|shared_ptr)\b")
UNIT = re.compile(r"\d|\b(?:points?|pixels?|degrees|metres|index|row|numbers?|unit|fraction|Qt::\w+"
                  r"|bits?|coordinates|reserved)\b")
NONE = re.compile(r"\b(?:none|null|empty|0|invalid|never|valid|any|unique|kept too|opaque"
                  r"|as in the constructor|average)\b")
NONE_OF_NUMBERS = re.compile(r"\bnone: .*|\b0 for none\b")
NOTHING_FOUND = re.compile(r"\b(?:none|unknown)\b")
UNKNOWN = re.compile(r"\b(?:any id|unknown ids?|is skipped|is none of these)\b")
SKIPPED = re.compile(r"\bskips 0, unknown ids\b")
FILLED = re.compile(r"\bnever empty\b")
WRONG = re.compile(r"\b(?:errors?|ignored?|ignores|skips|skipped|reports?|reported|refused|warning"
                   r"|nothing happens|kept|counts? as|any id|any bits|unknown)\b")
NO_ERROR = re.compile(r"\bNo operation (?:has|reports) an error\b")
WORDS = " ".join


def text_of(element):
    return WORDS("".join(element.itertext()).split()) if element is not None else ""


def comment_of(element):
    return WORDS(text_of(element.find(part)) for part in ("briefdescription", "detaileddescription"))


def described(member):
    """What the comment of a member says of it all, of each parameter, and of what it gives."""
    whole = comment_of(member)
    for part in itertools.chain(member.iter("parameterlist"), member.iter("simplesect")):
        whole = whole.replace(text_of(part), "")
    parts = {name.text: text_of(item.find("parameterdescription"))
             for item in member.iter("parameteritem") for name in item.iter("parametername")}
    gives = WORDS(text_of(part) for part in member.iter("simplesect") if part.get("kind") == "return")
    return whole, parts, gives


def lacks(kind, says):
    """What the words about a value of a type leave open."""
    if NUMBER.search(kind) and not UNIT.search(NONE_OF_NUMBERS.sub("", says)):
        yield "no unit or range"
    if (OPTIONAL.search(kind) or NODES.search(kind)) and not NONE.search(says):
        yield "nothing about none"


def lacks_of_nodes(member, says, around):
    """The same of a parameter that is a node or a list of nodes."""
    if member.get("kind") == "signal":
        if not FILLED.search(f"{says} {around}"):
            yield "nothing about an empty list"
    elif not UNKNOWN.search(says) and not SKIPPED.search(around):
        yield "nothing about unknown ids"


def can_be_wrong(kind, says):
    """Whether a parameter has values that are neither right nor none."""
    has_none = OPTIONAL.search(kind) and not re.search(r"\bnever (?:null|empty)\b", says)
    return not has_none and kind not in ("bool", "typename T", "class T")


def gaps(member, around):
    """What the comment of one operation or signal leaves open; `around` is that of its class."""
    whole, parts, gives = described(member)
    kind = text_of(member.find("type"))
    asked = False
    for name in member.findall("templateparamlist/param/type"):
        if name.text.split()[-1] not in parts:
            yield f"nothing about `{name.text}`"
    for param in member.findall("param"):
        name, taken = param.findtext("declname"), text_of(param.find("type"))
        says = parts.get(name, "")
        if not name:
            yield "a parameter without a name"
            continue
        if not says:
            yield f"nothing about `{name}`"
            continue
        found = (lacks_of_nodes(member, f"{says} {gives}", around) if NODES.search(taken)
                 else lacks(taken, says))
        yield from (f"{gap} at `{name}`" for gap in found)
        if (member.get("kind") != "signal" and can_be_wrong(taken, says)
                and not WRONG.search(f"{whole} {says}") and not NO_ERROR.search(around)):
            yield f"nothing about what is wrong at `{name}`"
        asked = asked or taken == "QRPC::NodeId"
    if kind and kind != "void" and "virtual void" not in kind:
        yield from (f"{gap} at what it gives" for gap in lacks(kind, gives))
        if asked and not NOTHING_FOUND.search(gives):
            yield "nothing about what it gives for an unknown node"


def gaps_of_value(member):
    """What the comment of a part of a record, a property or a type leaves open."""
    kind = text_of(member.find("type")) + (member.findtext("name") if member.get("kind") == "typedef" else "")
    return lacks(kind, described(member)[0])


OPERATIONS = ("function", "friend", "signal", "slot")
VALUES = ("variable", "property", "typedef")


def unsaid(folder):
    """The gaps of all classes, records and functions whose pages are in a folder."""
    for page in sorted(pathlib.Path(folder).glob("*.xml")):
        for compound in ET.parse(page).getroot().iter("compounddef"):
            if compound.get("kind") not in ("class", "struct", "namespace", "file"):
                continue
            around = comment_of(compound)
            if compound.get("kind") == "class" and "thread" not in around:
                place = compound.find("location")
                yield f"{place.get('file')}:{place.get('line')}: nothing about threads"
            for member in compound.iter("memberdef"):
                if member.get("prot") != "public" or member.get("kind") not in OPERATIONS + VALUES:
                    continue
                found = gaps(member, around) if member.get("kind") in OPERATIONS else gaps_of_value(member)
                for gap in found:
                    place = member.find("location")
                    yield (f"{place.get('file')}:{place.get('line')}: "
                           f"{member.findtext('qualifiedname') or member.findtext('name')}: {gap}")


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
