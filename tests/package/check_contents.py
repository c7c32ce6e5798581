#!/usr/bin/env python3
"""Checks the files of an unpacked zip: check_contents.py FOLDER

Links lead to files and headings of the package; texts name no command or folder that only the sources have; DLLs and
programs have version information, programs a manifest, and none of them a time stamp.
"""
import html.parser
import pathlib
import re
import struct
import sys

ONLY_IN_SOURCES = re.compile(r"\./run\b|\bdemo/|\btests/|\btools/|\bdocs/|CONTRIBUTING|[\w/-]+\.md\b")
# Demo, documents for developers, and the import library of a DLL that exports nothing.
UNWANTED = re.compile(r"demo|architecture|performance|CHANGELOG|CONTRIBUTING|\.md$|^liborlo\.de\.")


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.anchors = [], set()
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in {"href", "src"} and "://" not in value:
                self.links.append(value)
            if name == "id":
                self.anchors.add(value)


def page_faults(path):
    for link in Page(path).links:
        name, _, anchor = link.partition("#")
        target = path.parent / name if name else path
        if not target.exists():
            yield f"dead link {link}"
        elif anchor and anchor not in Page(target).anchors:
            yield f"no heading for {link}"
    yield from text_faults(path)


def text_faults(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        for found in ONLY_IN_SOURCES.findall(line):
            yield f"line {number} names {found}, which the package does not have"


def binary_faults(path):
    data = path.read_bytes()
    header = struct.unpack_from("<I", data, 0x3C)[0]
    if not path.name.startswith("lib"):  # the compiler's runtime is passed on as it is
        if struct.unpack_from("<I", data, header + 8)[0] != 0:
            yield "has a time stamp"
        if "ProductVersion".encode("utf-16-le") not in data:
            yield "has no version information"
    if path.suffix == ".exe" and b"urn:schemas-microsoft-com:asm.v1" not in data:
        yield "has no manifest"


def main():
    root = pathlib.Path(sys.argv[1])
    checks = {".html": page_faults, ".dll": binary_faults, ".exe": binary_faults, ".txt": text_faults,
              ".cpp": text_faults, ".c": text_faults, ".h": text_faults}
    messages = [f"{name}: is missing" for name in ("README.html", "LICENSE.txt") if not (root / name).exists()]
    for path in sorted(root.rglob("*")):
        name = path.relative_to(root)
        if UNWANTED.search(path.name):
            messages.append(f"{name}: does not belong in the package")
        messages += [f"{name}: {fault}" for fault in checks.get(path.suffix, lambda _: [])(path)]
    print(*messages, sep="\n")
    return bool(messages)


sys.exit(main())
