#!/usr/bin/env python3
"""Writes the table of the host's functions and the jumps through it: generate.py ROOT ORDER OUTPUT_FOLDER

The prototypes are those of orlo/host/*.h. Their order in the table is that of the file ORDER, to which new names are added at
the end: a host that was built with an earlier table goes on working. A name that is in one and not the other is an error.
"""
import pathlib
import re
import sys

PROTOTYPE = re.compile(r"DRAWCORE_API\s+([^;()]+?[\s*])(\w+)\s*\(([^;]*)\)\s*;")
NAMED = re.compile(r"(.*[\s*])(\w+)$")
TYPE_WORDS = {"int", "char", "long", "double", "unsigned", "const", "void"}


def parameter(text, place):
    """Type and name of one parameter; a name is made for one that has none."""
    text = " ".join(text.split())
    named = NAMED.fullmatch(text)
    if named and named[2] not in TYPE_WORDS and named[1].strip() not in {"const", "unsigned"}:
        return named[1].strip(), named[2]
    return text, f"unnamed{place}"


def prototypes(root):
    found = {}
    for header in sorted((root / "orlo/host").glob("*.h")):
        code = re.sub(r"//.*", "", header.read_text(encoding="utf-8"))
        for result, name, parameters in PROTOTYPE.findall(code):
            parts = [] if parameters.strip() in {"", "void"} else parameters.split(",")
            found[name] = (" ".join(result.split()), [parameter(part, i) for i, part in enumerate(parts)])
    return found


def declared(parameters):
    return ", ".join(f"{kind} {name}" for kind, name in parameters) or "void"


def in_table(parameters):
    """The same without the names that were made."""
    return re.sub(r" unnamed\d+", "", declared(parameters))


def instead(result, parameters):
    """What a function without a host does: it gives 0, and stores as much where its caller has no other sign."""
    lines = []
    for kind, name in parameters:
        out = kind.endswith("*") and not kind.startswith("const") and kind[:-1].strip()
        if out == "char*" and result == "double":  # the end of a number that was read: nothing was
            lines.append(f"if ({name} != 0) *{name} = (char*)text;")
        elif result == "void" and out and (out.endswith("*") or out in {"double", "int", "char"}):
            lines.append(f"if ({name} != 0) *{name} = 0;")
    return lines + ([] if result == "void" else ["return 0;"])


def table(order, functions):
    yield "// The host's functions as a table, for programs whose database is no DLL. Made by adapter/generate.py."
    yield "//\n//   DrawCoreHost host = {0};"
    yield "//   host.GraphicFirst = MyGraphicFirst;      // and so on; what is null gives 0"
    yield "//   DrawCoreSetHost(&host, sizeof host);     // before the first sheet\n#pragma once\n"
    yield '#include "orlo/host/host.h"\n'
    yield "typedef struct DrawCoreHost {"
    for name in order:
        result, parameters = functions[name]
        yield f"    {result} (*{name})({in_table(parameters)});"
    yield "} DrawCoreHost;\n"
    yield "// each(name) for every function, in the order of the table."
    yield "#define DRAWCORE_HOST_FUNCTIONS(each) \\\n    " + " \\\n    ".join(f"each({name})" for name in order) + "\n"
    yield "// Copies the table; size is that of the caller's DrawCoreHost. A null table: no host any more. 0, with nothing changed,"
    yield "// for a size that is no earlier or present one."
    yield "DRAWCORE_API int DrawCoreSetHost(const DrawCoreHost* host, size_t size);"


def jumps(order, functions):
    yield "// drawcore32.dll as jumps through the host's table. Made by adapter/generate.py."
    yield "#include <string.h>\n\n#include <drawcore_host.h>\n\nstatic DrawCoreHost table;\n"
    yield "int DrawCoreSetHost(const DrawCoreHost* host, size_t size) {"
    yield "    if (host != 0 && (size == 0 || size % sizeof(void*) != 0 || size > sizeof table)) return 0;"
    yield "    memset(&table, 0, sizeof table);"
    yield "    if (host != 0) memcpy(&table, host, size);\n    return 1;\n}"
    for name in order:
        result, parameters = functions[name]
        call = f"table.{name}({', '.join(own for _, own in parameters)})"
        yield f"\n{result} {name}({declared(parameters)}) {{"
        if result == "void":
            yield f"    if (table.{name} != 0) {{\n        {call};\n        return;\n    }}"
        else:
            yield f"    if (table.{name} != 0) return {call};"
        yield from ("    " + line for line in instead(result, parameters))
        yield "}"


def main():
    root, order_file, folder = map(pathlib.Path, sys.argv[1:])
    functions = prototypes(root)
    order = order_file.read_text().split()
    different = sorted(set(order) ^ set(functions))
    if different or len(order) != len(set(order)):
        sys.exit(f"{order_file} and the prototypes of orlo/host differ: {' '.join(different)}")
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "drawcore_host.h").write_text("\n".join(table(order, functions)) + "\n")
    (folder / "jumps.c").write_text("\n".join(jumps(order, functions)) + "\n")


main()
