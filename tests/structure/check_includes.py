#!/usr/bin/env python3
"""Reads the include lines of the tree and fails on each that the layer rules forbid: check_includes.py ROOT"""
import pathlib
import re
import sys

# The rooms of the library from top to bottom: a room includes itself and those below it.
LAYERS = ["entry", "pages", "exchange", "frame", "controls", "samples", "binding", "win", "host"]
MAY = {room: set(LAYERS[place:]) for place, room in enumerate(LAYERS)}
MAY["include"] = set(LAYERS) | {"propset", "summary", "wizard"}
MAY["propset"] = {"propset"}
MAY["summary"] = {"summary", "propset", "win"}
MAY["wizard"] = {"wizard", "win"}
MAY["resources"] = {"resources"}
for room in "entry pages exchange frame controls wizard".split():
    MAY[room].add("resources")  # texts, and the numbers of templates and controls

# Single headers that a room may have besides: they hold declarations of the host contract and no window.
MAY_ALSO = {"propset": {"orlo/host/memory.h"}, "summary": {"orlo/host/picture.h"}}

# Rooms that also compile where there are no windows, and the headers that bring them.
WITHOUT_WINDOWS = ["orlo/propset", "orlo/binding"]
WINDOW_HEADERS = re.compile(r"windows\.h|win(user|gdi|base)\.h|afx(wnd|win|ext|dlgs|cmn|ctl|gdi|app|msg|dialog)\.h")

# Outside the library: which of its headers a folder may include.
ALSO_PUBLIC = ["orlo/win/com_owner.h"]  # header only, and no part of the interface
PUBLIC, HOST, NOTHING = "public headers", "orlo/host", "nothing of the library"
OUTSIDE = {"demo": PUBLIC, "tools": PUBLIC, "docs/examples": PUBLIC, "drawcore": HOST, "afx": NOTHING}

# Arrows of old that still stand. One that is gone must leave this list.
EXCEPTIONS = {
    "tools/suminfo/check.cpp": {"orlo/propset/set_image.h"},
    "tools/suminfo/commands.h": {"orlo/propset/value.h"},
    "tools/suminfo/document.cpp": {"orlo/summary/compound_file.h"},
    "tools/suminfo/document.h": {"orlo/propset/value.h"},
    "tools/suminfo/edited_set.cpp": {"orlo/propset/code_page.h"},
    "tools/suminfo/edited_set.h": {"orlo/propset/set_image.h"},
    "tools/suminfo/json_output.cpp": {"orlo/propset/set_image.h"},
    "tools/suminfo/resource_script.cpp": {"orlo/propset/code_page.h"},
    "tools/suminfo/show.cpp": {"orlo/propset/set_image.h"},
    "tools/suminfo/thumbnail_png.cpp": {"orlo/propset/set_image.h"},
    "tools/suminfo/value_display.h": {"orlo/propset/set_image.h"},
    "tools/suminfo/value_input.cpp": {"orlo/propset/value_text.h"},
    "tools/suminfo/value_input.h": {"orlo/propset/value.h"},
}


def includes(path):
    return re.findall(r'^\s*#\s*include\s*([<"])([^>"]+)', path.read_text(encoding="utf-8"), re.MULTILINE)


def sources(folder):
    return [p for p in sorted(folder.rglob("*")) if p.suffix in {".h", ".cpp", ".c"}]


def public_headers(root):
    """What orlo.h reaches, and the host contract with its C++ helpers."""
    reached, open_ = set(), ["orlo/include/orlo.h", *ALSO_PUBLIC] + [p.relative_to(root).as_posix() for p in root.glob("orlo/host/*.h")]
    while open_:
        name = open_.pop()
        if name in reached or not (root / name).exists():
            continue
        reached.add(name)
        open_ += [header for _, header in includes(root / name) if header.startswith("orlo/")]
    return reached


def inside(name, header):
    """Why a file of the library may not include that header; None if it may."""
    folder = "/".join(name.split("/")[:2])
    if folder in WITHOUT_WINDOWS and WINDOW_HEADERS.fullmatch(header):
        return f"{folder} has no windows"
    if not header.startswith("orlo/") or header == "orlo/export.h":
        return None
    room, other = name.split("/")[1], header.split("/")[1]
    if room == "export.h" or other in MAY[room] or header in MAY_ALSO.get(room, ()):
        return None
    return f"{room} must not know {other}"


def outside(allowed, header, public):
    if not header.startswith("orlo") or header == "orlo.h" and allowed == PUBLIC:
        return None
    if allowed == PUBLIC and header in public or allowed == HOST and header.startswith("orlo/host/"):
        return None
    return f"only {allowed} here"


def spelling(mark, header):
    """One spelling: <orlo.h> as a host writes it, everything else by its path from the root."""
    if (header == "orlo.h") != (mark == "<") and header.startswith("orlo"):
        return 'written otherwise than <orlo.h> or "orlo/..."'
    return None


def faults(root):
    public = public_headers(root)
    for top in ["orlo", *OUTSIDE]:
        for path in sources(root / top):
            name = path.relative_to(root).as_posix()
            for mark, header in includes(path):
                why = inside(name, header) if top == "orlo" else outside(OUTSIDE[top], header, public)
                if why or spelling(mark, header):
                    yield name, header, why or spelling(mark, header)


def main():
    unused = {(name, header) for name, headers in EXCEPTIONS.items() for header in headers}
    failed = False
    for name, header, why in faults(pathlib.Path(sys.argv[1])):
        if (name, header) in unused:
            unused.discard((name, header))
            continue
        print(f"{name} includes {header}: {why}")
        failed = True
    for name, header in sorted(unused):
        print(f"{name} no longer includes {header}: take it off the list of exceptions")
        failed = True
    return failed


sys.exit(main())
