#!/usr/bin/env python3
"""Reads the include lines of the tree and fails on each that the layer rules forbid: check_includes.py ROOT

docs/architecture.md says the same rules in words. What is public is named in three places that must agree: what orlo.h reaches,
the headers that the CMakeLists.txt of each room declare, and the list of exported names.
"""
import pathlib
import re
import sys

# The modules of the library from top to bottom. A module may include itself and those below it.
LAYERS = ["c", "entry", "pages", "exchange", "frame", "controls", "samples", "binding", "win", "host"]
MAY = {room: set(LAYERS[place:]) for place, room in enumerate(LAYERS)}
MAY["binding"] = {"binding", "host"}  # win is below it, but uses windows
MAY["c"] |= {"propset", "summary"}
MAY["include"] = set(LAYERS) | {"propset", "summary", "wizard"}
MAY["propset"] = {"propset"}
MAY["summary"] = {"summary", "propset", "win"}
MAY["wizard"] = {"wizard", "win"}
MAY["resources"] = {"resources"}
for room in "entry pages exchange frame controls wizard".split():
    MAY[room].add("resources")  # strings, and identifiers of templates and controls

TOP_HEADERS = {"orlo.h", "orlo_c.h"}  # included with angle brackets, as by a host

# Additional headers allowed per module: declarations of the host contract without windows.
MAY_ALSO = {"propset": {"orlo/host/memory.h"}, "summary": {"orlo/host/dib_palette.h", "orlo/host/picture.h"}}

# Modules that also compile without windows, and headers that would need them.
WITHOUT_WINDOWS = ["orlo/propset", "orlo/binding"]
WINDOW_HEADERS = re.compile(r"windows\.h|win(user|gdi|base)\.h|afx(wnd|win|ext|dlgs|cmn|ctl|gdi|app|msg|dialog)\.h")

# The library headers that folders outside the library may include.
ALSO_PUBLIC = ["orlo/win/com_owner.h", "orlo/win/encoded_text.h", "orlo/win/gdi.h"]  # header only, not part of the interface
PUBLIC, HOST, NOTHING = "public headers", "orlo/host", "nothing of the library"
OUTSIDE = {"demo": PUBLIC, "tools": PUBLIC, "docs/examples": PUBLIC, "packaging": PUBLIC, "drawcore": HOST,
           "skeleton": HOST, "afx": NOTHING, "files": NOTHING}
WITH_FILES = ("orlo/summary", "orlo/c")  # modules of the library; programs and the database may use it too


def includes(path):
    return re.findall(r'^\s*#\s*include\s*([<"])([^>"]+)', path.read_text(encoding="utf-8"), re.MULTILINE)


def sources(folder):
    return [p for p in sorted(folder.rglob("*")) if p.suffix in {".h", ".cpp", ".c"}]


def public_headers(root):
    """What orlo.h reaches, orlo_c.h, and the host contract with its C++ helpers."""
    host = [path.relative_to(root).as_posix() for path in root.glob("orlo/host/*.h")]
    reached, open_ = set(), ["orlo/include/orlo.h", "orlo/include/orlo_c.h", *ALSO_PUBLIC, *host]
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
    if header.startswith("files/") and folder not in WITH_FILES:
        return f"{folder} replaces no files"
    if not header.startswith("orlo/") or header == "orlo/export.h":
        return None
    room, other = name.split("/")[1], header.split("/")[1]
    if room == "export.h" or other in MAY[room] or header in MAY_ALSO.get(room, ()):
        return None
    return f"{room} must not know {other}"


def outside(allowed, header, public):
    if not header.startswith("orlo") or header in TOP_HEADERS and allowed == PUBLIC:
        return None
    if allowed == PUBLIC and header in public or allowed == HOST and header.startswith("orlo/host/"):
        return None
    return f"this folder may include {allowed}"


def spelling(top, mark, header):
    """One spelling: <orlo.h> and <orlo_c.h> as a host writes it, everything else by its path from the root."""
    relative = mark == '"' and not header.startswith(("orlo/", "files/")) and (top == "orlo" or "orlo/" in header)
    if relative or (header in TOP_HEADERS) != (mark == "<") and header.startswith("orlo"):
        return 'written otherwise than <orlo.h>, <orlo_c.h> or "orlo/..."'
    return None


def faults(root, public):
    for top in ["orlo", *OUTSIDE]:
        for path in sources(root / top):
            name = path.relative_to(root).as_posix()
            for mark, header in includes(path):
                why = inside(name, header) if top == "orlo" else outside(OUTSIDE[top], header, public)
                why = why or spelling(top, mark, header)
                if why:
                    yield name, header, why


def unreached(root, public):
    """Names that the library exports and no public header has: functions, and the classes of members."""
    code = " ".join(re.sub(r"//.*", "", (root / name).read_text(encoding="utf-8")) for name in public)
    known = set(re.findall(r"\w+", code))
    for line in (root / "tests/exports/orlo.exports").read_text().splitlines():
        symbol = re.sub(r"^(typeinfo|vtable) for |\[abi:cxx11\]|^orlo::|\(.*", "", line)
        symbol = re.sub(r"^orlo::", "", symbol).split("::")[0]
        if symbol not in known:
            yield symbol


def undeclared(root, public):
    """Public headers that no CMakeLists.txt names as such, and the other way round."""
    declared = set()
    for lists in root.glob("orlo/**/CMakeLists.txt"):
        for files in re.findall(r"FILE_SET .*\s+FILES\s+([^)]*)\)", lists.read_text()):
            declared |= {(lists.parent / file).relative_to(root).as_posix() for file in files.split()}
    return sorted(declared ^ public)


def main():
    root = pathlib.Path(sys.argv[1])
    public = public_headers(root)
    messages = [f"{name} includes {header}: {why}" for name, header, why in faults(root, public)]
    messages += [f"orlo.h does not reach {name}, which is exported" for name in sorted(set(unreached(root, public)))]
    messages += [f"{name}: reached by orlo.h or declared by a FILE_SET, not both" for name in undeclared(root, public)]
    print(*messages, sep="\n")
    return bool(messages)


sys.exit(main())
