#!/usr/bin/env python3
"""Reads the functions of the host from orlo/host/*.h: contract.py --table OUTPUT | --reference OUTPUT [--check]

A comment describes the declarations that follow it. Lines that begin with "Called:", "Stub:" and "Failure:" state when
the library calls a function, what the function may return if it is not implemented and what the sheet then loses, and
what the library does if it fails. A declaration without such lines has those of the declaration before it in its
paragraph.

--table writes the names for hostcheck, each with what the sheet loses, or a null pointer if the function is required.
--reference writes the reference for authors of databases; --check compares it with the file instead.
"""
import pathlib
import re
import sys
import textwrap

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
    """All functions, sorted by name, and the comment at the top of each header."""
    functions, notes = [], {}
    for path in sorted((ROOT / "orlo/host").glob("*.h")):
        top, _, body = path.read_text(encoding="utf-8").partition("#pragma once")
        for paragraph in re.split(r"\n\s*\n", body):
            functions += functions_of(path.name, paragraph)
        notes[path.name] = [line[2:].strip() for line in top.splitlines()]
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


def wrapped(text, indent=""):
    return textwrap.fill(text, 120, initial_indent=indent, subsequent_indent=" " * len(indent), break_long_words=False,
                         break_on_hyphens=False) + "\n"


def paragraphs(lines):
    """The text of a comment; an empty line separates paragraphs."""
    return "\n".join(wrapped(" ".join(part.split("\n"))) for part in re.split(r"\n\s*\n", "\n".join(lines).strip()))


def code(text):
    """Puts names, numbers and texts of the language between backticks."""
    words = r"k[A-Z]\w+|[A-Z]\w*_\w+|\*[a-z]\w+|[A-Z][a-z]+(?:[A-Z][A-Za-z0-9]*)+(?:::\w+)?|NUL"
    return re.sub(rf"(?<![`\w*])({words})(?![`\w])", r"`\1`", text)


def shown(prototype):
    return textwrap.fill(prototype, 100, subsequent_indent="    ", break_long_words=False)


HEAD = """# Reference of the host's functions

Generated from the headers in `orlo/host`; change these instead of this file. The [database guide](database-guide.md)
explains how the functions work together.

Each entry states when the library calls the function, whether it can be a stub, and what happens if it fails. Unless
stated otherwise, lengths are in drawing units and angles in radians, a result of type `int` is non-zero on success, all
functions are called on the user-interface thread, and pointers to objects are not null.

## Functions that can be stubs

A stub only returns the value in the second column. All other functions are required; the library cannot be loaded if a
function is missing.

| function | stub | lost |
| --- | --- | --- |
"""


def reference(functions, notes):
    yield HEAD
    for function in functions:
        if function.lost:
            stub = function.tags["Stub"].partition(". Lost: ")[0]
            yield f"| [`{function.name}`](#{function.name.lower()}) | {code(stub)} | {code(function.lost.rstrip('.'))} |\n"
    yield "\n## Rules of a header\n"
    for header, lines in notes.items():
        if any(function.header == header for function in functions) and len(lines) > 1:
            yield f"\n### {header}\n\n{paragraphs(map(code, lines))}"
    yield "\n## Functions from A to Z\n"
    for function in functions:
        yield f"\n### {function.name}\n\n```c\n{shown(function.prototype)}\n```\n\n"
        rules = len(notes[function.header]) > 1
        more = f"See also the [rules of the header](#{function.header.replace('.', '')})." if rules else ""
        yield paragraphs([*map(code, function.comment), more])
        yield "\n"
        yield wrapped("Called " + code(function.tags["Called"]), "* ")
        stub = function.tags.get("Stub", "The function is required.")
        yield wrapped("Stub: " + code(stub) if "Stub" in function.tags else stub, "* ")
        if "Failure" in function.tags:
            failure = re.sub("^Failure: (null|0): ", r"Failure (\1): ", "Failure: " + function.tags["Failure"])
            yield wrapped(code(failure), "* ")


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
