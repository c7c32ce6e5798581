#!/usr/bin/env python3
"""Writes the function table of the adapter and its forwarding functions: generate.py ROOT ORDER OUTPUT_FOLDER

The prototypes are read from orlo/host/*.h. The file ORDER lists the functions in the order of the table. New names are
added at its end, so that hosts that were built with an earlier table keep working. A name that is missing on either
side is an error.
"""
import pathlib
import re
import sys

PROTOTYPE = re.compile(r"DRAWCORE_API\s+([^;()]+?[\s*])(\w+)\s*\(([^;]*)\)\s*;")
NAMED = re.compile(r"(.*[\s*])(\w+)$")
TYPE_WORDS = {"int", "char", "long", "double", "unsigned", "const", "void"}


def parameter(text, index):
    """Returns the type and the name of a parameter; one without a name gets one."""
    text = " ".join(text.split())
    named = NAMED.fullmatch(text)
    if named and named[2] not in TYPE_WORDS and named[1].strip() not in {"const", "unsigned"}:
        return named[1].strip(), named[2]
    return text, f"unnamed{index}"


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
    """Returns the same text without the names that parameter() added."""
    return re.sub(r" unnamed\d+", "", declared(parameters))


def fallback(result, parameters):
    """Returns the statements for a function that the host does not have: return 0 or, without a result, store 0."""
    lines = []
    for kind, name in parameters:
        out = kind.endswith("*") and not kind.startswith("const") and kind[:-1].strip()
        if out == "char*" and result == "double":  # the end of the number: no number was read
            lines.append(f"if ({name} != 0) *{name} = (char*)text;")
        elif result == "void" and out and (out.endswith("*") or out in {"double", "int", "char"}):
            lines.append(f"if ({name} != 0) *{name} = 0;")
    return lines + ([] if result == "void" else ["return 0;"])


def table(order, functions):
    yield "// A table of the host's functions, for programs whose database is not in drawcore32.dll. Generated file."
    yield "//\n//   DrawCoreHost host = {0};"
    yield "//   host.GraphicFirst = MyGraphicFirst;      // and so on; a null function returns 0"
    yield "//   DrawCoreSetHost(&host, sizeof host);     // before the first sheet\n#pragma once\n"
    yield '#include "orlo/host/host.h"\n'
    yield "typedef struct DrawCoreHost {"
    for name in order:
        result, parameters = functions[name]
        yield f"    {result} (*{name})({in_table(parameters)});"
    yield "} DrawCoreHost;\n"
    yield "// Expands to each(name) for every function, in the order of the table."
    yield "#define DRAWCORE_HOST_FUNCTIONS(each) \\\n    " + " \\\n    ".join(f"each({name})" for name in order) + "\n"
    yield "// Copies the table; size is sizeof(DrawCoreHost) of the caller. A null table removes the host's functions."
    yield "// Returns 0, and changes nothing, if the size is not that of this version or an earlier one."
    yield "DRAWCORE_API int DrawCoreSetHost(const DrawCoreHost* host, size_t size);"


def forwarders(order, functions):
    yield "// drawcore32.dll as functions that forward to the table of the host. Generated file."
    yield "#include <string.h>\n\n#include <drawcore_host.h>\n\nstatic DrawCoreHost hostFunctions;\n"
    yield "int DrawCoreSetHost(const DrawCoreHost* host, size_t size) {"
    yield "    if (host != 0 && (size == 0 || size % sizeof(void*) != 0 || size > sizeof hostFunctions)) return 0;"
    yield "    memset(&hostFunctions, 0, sizeof hostFunctions);"
    yield "    if (host != 0) memcpy(&hostFunctions, host, size);\n    return 1;\n}"
    for name in order:
        result, parameters = functions[name]
        call = f"hostFunctions.{name}({', '.join(own for _, own in parameters)})"
        yield f"\n{result} {name}({declared(parameters)}) {{"
        if result == "void":
            yield f"    if (hostFunctions.{name} != 0) {{\n        {call};\n        return;\n    }}"
        else:
            yield f"    if (hostFunctions.{name} != 0) return {call};"
        yield from ("    " + line for line in fallback(result, parameters))
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
    (folder / "forwarders.c").write_text("\n".join(forwarders(order, functions)) + "\n")


main()
