#!/usr/bin/env python3
"""Reads the include lines of the tree and fails on each that the layer rules forbid: check_includes.py ROOT

docs/architecture.md says the same rules in words. What is public is named in three places that must agree: what orlo.h reaches,
the headers that the CMakeLists.txt of each module declare, and the list of exported names.
"""
import pathlib
import re
import sys

PUBLIC = "public"  # headers for hosts: orlo.h and what it includes, orlo_c.h, orlo/host, and these
ALSO_PUBLIC = ["orlo/win/com_owner.h", "orlo/win/encoded_text.h", "orlo/win/gdi.h"]  # header only, not part of the interface
TOP_HEADERS = {"orlo.h", "orlo_c.h"}  # included with angle brackets, as by a host


def downward(area, modules, also=""):
    """Adds modules from top to bottom: each may include itself, those below it, and the common ones."""
    names = [f"{area}/{module}" for module in modules.split()]
    return {name: {*names[place:], *also.split()} for place, name in enumerate(names)}


# The folders that each module may include from.
MAY = {
    **downward("orlo", "c entry pages exchange frame controls samples binding win host", "afx"),
    **downward("drawcore", "calls export import document save paint database graphics styles tables units dxf geometry",
               "drawcore/include orlo/host codepages"),
    **downward("demo", "program tour viewer automation", f"afx drawcore/include {PUBLIC}"),
    "drawcore/include": {"drawcore/include", "orlo/host"},
    "tools/cli": {"tools/cli", "files", PUBLIC},
    "tools/dxfprops": {"tools/dxfprops", "tools/cli", "drawcore/include", "files", PUBLIC},
    "tools/hostcheck": {"tools/hostcheck", PUBLIC},
    "tools/suminfo": {"tools/suminfo", "tools/cli", "files", PUBLIC},
    "docs": {"docs", "afx", "drawcore/include", PUBLIC},
    "packaging": {"packaging", "afx", "drawcore/include", PUBLIC},
    "skeleton": {"skeleton", "orlo/host"},
    "afx": {"afx"},
    "files": {"files"},
    "codepages": {"codepages"},
}
MAY["orlo/binding"] = {"orlo/binding", "orlo/host", "afx"}  # win is below it, but uses windows
MAY["orlo/propset"] = {"orlo/propset", "afx", "codepages"}
MAY["orlo/summary"] = {"orlo/summary", "orlo/propset", "orlo/win", "afx", "files"}
MAY["orlo/wizard"] = {"orlo/wizard", "orlo/win", "afx"}
MAY["orlo/resources"] = {"orlo/resources", "afx"}
MAY["orlo/c"] |= {"orlo/propset", "orlo/summary", "orlo/include", "files"}
MAY["orlo/include"] = {name for name in MAY if name.startswith("orlo/")}
for module in "c entry pages exchange frame controls wizard".split():
    MAY[f"orlo/{module}"].add("orlo/resources")  # strings, and identifiers of templates and controls
MAY["drawcore/save"] = {"drawcore/save", "drawcore/dxf", "drawcore/geometry", "drawcore/include", "orlo/host"}  # without windows
MAY["drawcore/document"] = {"drawcore/document", "drawcore/units", *MAY["drawcore/save"]}
for module in "export dxf".split():
    MAY[f"drawcore/{module}"].add("files")

# Additional headers allowed per module: declarations of the host contract without windows.
MAY_ALSO = {"orlo/propset": {"orlo/host/memory.h"}, "orlo/summary": {"orlo/host/dib_palette.h", "orlo/host/picture.h"}}

# Modules that also compile without windows, and headers that would need them.
WITHOUT_WINDOWS = ["orlo/propset", "orlo/binding", "drawcore/document", "drawcore/save", "drawcore/units", "drawcore/geometry"]
WINDOW_HEADERS = re.compile(r"windows\.h|win(user|gdi|base)\.h|afx(wnd|win|ext|dlgs|cmn|ctl|gdi|app|msg|dialog)\.h")

SEARCHED = ["", "orlo/include", "drawcore/include", "afx/include"]  # folders that an include line may start from


def includes(path):
    return re.findall(r'^\s*#\s*include\s*([<"])([^>"]+)', path.read_text(encoding="utf-8"), re.MULTILINE)


def sources(folder):
    return [p for p in sorted(folder.rglob("*")) if p.suffix in {".h", ".cpp", ".c"}]


def module_of(name):
    """Returns the module of a file, given by its path from the root."""
    parts = name.split("/")
    if parts[:2] == ["drawcore", "src"]:
        del parts[1]
    if parts[0] == "demo" and len(parts) == 2:
        return "demo/program"
    return "/".join(parts[:2]) if parts[0] in ("orlo", "drawcore", "demo", "tools") else parts[0]


def found(root, path, header):
    """Returns the path of an included file from the root; None for a system header."""
    for folder in [root / folder for folder in SEARCHED] + [path.parent]:
        if (folder / header).is_file():
            return (folder / header).resolve().relative_to(root.resolve()).as_posix()
    return None


def public_headers(root):
    """Returns the headers that orlo.h includes, orlo_c.h, and the host contract with its C++ helpers."""
    host = [path.relative_to(root).as_posix() for path in root.glob("orlo/host/*.h")]
    reached, open_ = set(), ["orlo/include/orlo.h", "orlo/include/orlo_c.h", *ALSO_PUBLIC, *host]
    while open_:
        name = open_.pop()
        if name in reached or not (root / name).exists():
            continue
        reached.add(name)
        open_ += [header for _, header in includes(root / name) if header.startswith("orlo/")]
    return reached


def forbidden(root, path, header, public):
    """Returns the reason why a file may not include that header; None if it may."""
    module = module_of(path.relative_to(root).as_posix())
    if module in WITHOUT_WINDOWS and WINDOW_HEADERS.fullmatch(header):
        return f"{module} has no windows"
    name = found(root, path, header)
    if name is None or name == "orlo/export.h" or name in MAY_ALSO.get(module, ()) or module not in MAY:
        return None
    if module_of(name) in MAY[module] or PUBLIC in MAY[module] and name in public:
        return None
    return f"{module} may include {', '.join(sorted(MAY[module] - {module})) or 'only itself'}"


def spelling(top, mark, header):
    """One spelling: <orlo.h> and <orlo_c.h> as a host writes it, everything else by its path from the root."""
    relative = mark == '"' and not header.startswith(("orlo/", "files/", "codepages/")) and (top == "orlo" or "orlo/" in header)
    if relative or (header in TOP_HEADERS) != (mark == "<") and header.startswith("orlo"):
        return 'written otherwise than <orlo.h>, <orlo_c.h> or "orlo/..."'
    return None


def faults(root, public):
    for top in sorted({module.split("/")[0] for module in MAY}):
        for path in sources(root / top):
            for mark, header in includes(path):
                why = forbidden(root, path, header, public) or spelling(top, mark, header)
                if why:
                    yield path.relative_to(root).as_posix(), header, why


def unreached(root, public):
    """Returns exported names that no public header declares: functions, and the classes of members."""
    code = " ".join(re.sub(r"//.*", "", (root / name).read_text(encoding="utf-8")) for name in public)
    known = set(re.findall(r"\w+", code))
    for line in (root / "tests/exports/orlo.exports").read_text().splitlines():
        symbol = re.sub(r"^(typeinfo|vtable) for |\[abi:cxx11\]|^orlo::|[(<].*", "", line)
        symbol = re.sub(r"^orlo::", "", symbol).split("::")[0]
        if symbol not in known:
            yield symbol


def undeclared(root, public):
    """Returns public headers that no CMakeLists.txt lists as public, and listed ones that are not public."""
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
