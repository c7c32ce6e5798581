#!/usr/bin/env python3
"""Reads the functions of the host from orlo/host/*.h: contract.py --table OUTPUT | --reference OUTPUT [--check]

A comment describes the declarations that follow it. Lines that begin with "Called:", "Stub:" and "Failure:" say when the
library calls a function, what the function may return if it is not implemented and what the sheet then loses, and what
the library does if it fails. A declaration without such lines has those of the declaration before it in its paragraph.

--table writes the names for hostcheck, each with what the sheet loses, or a null pointer if the function is required.
--reference writes the reference for authors of databases; --check compares it with the file instead.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
NAME = re.compile(r"(\w+)\s*\(")
TAGS = ("Called", "Stub", "Failure")


class Function:
    def __init__(self, header, prototype, comment, tags):
        self.header, self.prototype, self.comment, self.tags = header, prototype, comment, tags
        self.name = NAME.search(prototype)[1]
        self.lost = self.tags["Stub"].partition("Lost: ")[2] if "Stub" in tags else None


def split_comment(lines):
    """The description and the tags of a comment."""
    text, tags, current = [], {}, None
    for line in lines:
        tag, colon, rest = line.partition(": ")
        if colon and tag in TAGS:
            current, line = tag, rest
            tags[tag] = ""
        if current:
            tags[current] = f"{tags[current]} {line}".strip()
        else:
            text.append(line)
    return text, tags


def functions_of(header, paragraph):
    """The functions that a paragraph of a header declares."""
    comment, tags, fresh = [], {}, []
    declaration = ""
    for line in paragraph.splitlines():
        if line.startswith("//"):
            fresh.append(line[2:].strip())
            continue
        if fresh:
            comment, own = split_comment(fresh)
            tags, fresh = own if "Called" in own else {**tags, **own}, []
        declaration = f"{declaration} {line.strip()}".strip()
        if declaration.endswith(";"):
            if declaration.startswith("DRAWCORE_API "):
                prototype = " ".join(declaration.split())[len("DRAWCORE_API "):]
                yield Function(header, prototype, comment, tags)
            declaration = ""


def contract():
    """All functions, sorted by name, and the comment at the top of each header without its first line."""
    functions, notes = [], {}
    for path in sorted((ROOT / "orlo/host").glob("*.h")):
        top, _, body = path.read_text(encoding="utf-8").partition("#pragma once")
        for paragraph in re.split(r"\n\s*\n", body):
            functions += functions_of(path.name, paragraph)
        notes[path.name] = [line[2:].strip() for line in top.splitlines()[1:]]
    for function in functions:
        if "Called" not in function.tags:
            sys.exit(f"orlo/host/{function.header}: {function.name} has no line 'Called:'")
        if function.lost == "":
            sys.exit(f"orlo/host/{function.header}: the line 'Stub:' of {function.name} has no 'Lost:'")
    return sorted(functions, key=lambda function: function.name), notes


def table(functions):
    for function in functions:
        lost = function.lost or ""
        quoted = '"' + lost.rstrip(".").replace('"', '\\"') + '"' if lost else "nullptr"
        yield f'    {{"{function.name}", {quoted}}},\n'


def main():
    mode, output, check = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3:] == ["--check"]
    functions, notes = contract()
    text = "".join(table(functions) if mode == "--table" else reference(functions, notes))
    if not check:
        output.write_text(text, encoding="utf-8")
    elif output.read_text(encoding="utf-8") != text:
        sys.exit(f"{output} is not up to date; run {pathlib.Path(__file__).name} --reference {output}")


if __name__ == "__main__":
    main()
