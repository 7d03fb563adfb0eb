# SPDX-FileCopyrightText: the Overlay Editor authors
# SPDX-License-Identifier: MIT
"""The faults that are put into a C++ file, one at a time. Each function below that takes the lines of a
file and a line's number yields the texts that may stand there instead."""

import re

CALL = re.compile(r"^\s+[\w:>()\[\].*-]+\(.*\);$")
# Objects whose only work is to be there until the end of the block.
GUARD_OBJECT = re.compile(r"^\s+const (?:QSignalBlocker|QScopedValueRollback|\w*Guard\b)")
ENTRY = re.compile(r"^\s+\{.*\},$")
CONDITION = re.compile(r"^(\s*)(\} else )?if \((.*)\)( \{)?$")
LEAVES = re.compile(r"^\s+(return\b.*|continue|break);$")
STATEMENT = re.compile(r"^\s+(?!return|break|continue|case|const |auto |Q_UNUSED)[\w*].*;$")

SWAPS = [
    (" == ", " != "), (" != ", " == "), (" && ", " || "), (" || ", " && "), (" < ", " <= "),
    (" > ", " >= "), (" <= ", " < "), (" >= ", " > "), (" + 1", ""), (" - 1", ""), ("++", "--"),
    ("true", "false"), ("false", "true"), ("(0, ", "(1, "), (", 0)", ", 1)"), (" = 0;", " = 1;"),
    (".first()", ".last()"), (".last()", ".first()"), ("takeFirst", "takeLast"),
    (".size()", ".size() - 1"), ("rowCount()", "rowCount() - 1"), ("NodeIdRole", "ActiveRole"),
    ("ActiveRole", "NodeIdRole"), ("Qt::EditRole", "Qt::DisplayRole"),
    ("Qt::DisplayRole", "Qt::ToolTipRole"), ("Qt::CheckStateRole", "Qt::StatusTipRole"),
    ("Qt::ForegroundRole", "Qt::BackgroundRole"), ("Qt::DecorationRole", "Qt::ToolTipRole"),
    ("Qt::UserRole + 1", "Qt::UserRole + 3"), ("Qt::UserRole", "Qt::DisplayRole"),
    ("Qt::Checked", "Qt::Unchecked"), ("ClearAndSelect", "Select"),
    ("Qt::ControlModifier", "Qt::AltModifier"), ("Qt::ShiftModifier", "Qt::AltModifier"),
    ("append(", "prepend("), ("setEnabled(", "setDisabled("), ("minimum", "maximum"),
]


def dropped_call(lines, at):
    """A call or a connection is left out, a signal block or another guard not held."""
    line = lines[at]
    if CALL.match(line) and not line.strip().startswith(("return", "Q_UNUSED")):
        yield indent(line) + "(void)0;"
    elif GUARD_OBJECT.match(line) and line.endswith(";"):
        yield indent(line) + "(void)0;"


def dropped_entry(lines, at):
    """A table lacks an entry: a connection, a key."""
    if ENTRY.match(lines[at]):
        yield ""


def dropped_check(lines, at):
    """A check that leaves early is missing."""
    found = CONDITION.match(lines[at])
    if found and at + 1 < len(lines) and LEAVES.match(lines[at + 1]):
        yield f"{found[1]}{found[2] or ''}if (false && ({found[3]})){found[4] or ''}"


def unguarded_work(lines, at):
    """Work is done whether or not its condition holds."""
    found = CONDITION.match(lines[at])
    if found and at + 1 < len(lines) and not LEAVES.match(lines[at + 1]):
        yield f"{found[1]}{found[2] or ''}if (true || ({found[3]})){found[4] or ''}"


def turned_condition(lines, at):
    found = CONDITION.match(lines[at])
    if found:
        yield f"{found[1]}{found[2] or ''}if (!({found[3]})){found[4] or ''}"


def swapped_words(lines, at):
    """Another operator, number, role, key or end of a list."""
    line = lines[at]
    for word, other in SWAPS:
        start = line.find(word)
        while start >= 0:
            if not in_text(line, start) and not part_of_name(line, start, word):
                yield line[:start] + other + line[start + len(word):]
            start = line.find(word, start + len(word))


def swapped_statements(lines, at):
    """Two statements in the other order."""
    if at + 1 < len(lines) and STATEMENT.match(lines[at]) and STATEMENT.match(lines[at + 1]) \
            and indent(lines[at]) == indent(lines[at + 1]) \
            and not lines[at - 1].rstrip().endswith((",", "(", "=", ")", "else", "&&", "||", "?")):
        yield lines[at + 1] + "\n" + lines[at]


OPERATORS = (dropped_call, dropped_entry, dropped_check, unguarded_work, turned_condition, swapped_words,
             swapped_statements)


def indent(line):
    return line[:len(line) - len(line.lstrip())]


def in_text(line, position):
    return line[:position].count('"') % 2 == 1


def part_of_name(line, start, word):
    before, after = line[start - 1:start], line[start + len(word):start + len(word) + 1]
    return (word[0].isalpha() and (before.isalnum() or before == "_")) \
        or (word[-1].isalpha() and (after.isalnum() or after == "_"))


def is_code(line):
    text = line.strip()
    return bool(text) and not text.startswith(("//", "#", "*", "/*"))


def of(text):
    """All mutants of a file's text, as tuples of line number, operator, old and new text."""
    lines = text.split("\n")
    for at, line in enumerate(lines):
        if not is_code(line) or not line.startswith(" "):
            continue
        for operator in OPERATORS:
            for new in operator(lines, at):
                yield at + 1, operator.__name__, line, new


def apply(text, mutant):
    number, operator, _old, new = mutant
    lines = text.split("\n")
    length = 2 if operator == swapped_statements.__name__ else 1
    lines[number - 1:number - 1 + length] = new.split("\n")
    return "\n".join(lines)
