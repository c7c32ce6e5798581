#!/usr/bin/env python3
"""Reports spellings and phrases that the project does not use, with file and line: check_language.py ROOT

CONTRIBUTING.md has the rules. The list is short on purpose: it keeps out what has been removed before.
"""
import pathlib
import re
import subprocess
import sys

# The phrases that are reported, and their replacements.
REPLACED = {
    r"\w*colour\w*": "color",
    r"\w*behaviour\w*": "behavior",
    r"\bgrey\w*": "gray",
    r"\bcentre\w*|\bcentring": "center",
    r"\brecognis\w*|\binitialis\w*|\borganis\w*": "the ending -ize",
    r"\blicences?\b": "license",
    r"\bneighbour\w*": "neighbor",
    r"\bcatalogue\w*": "catalog",
    r"\bcancell(?:ed|ing)\b": "canceled, canceling",
    r"\b(?:takes?|taken|taking|took) back\b|\b(?:takes?|taken) \w+ back\b": "undo",
    r"\bmakes? (?:it )?again\b": "redo",
    r"\bbottom line\b": "status bar",
    r"\bthe (?:door|road) to\b": "entry point, data flow",
    r"\b(?:be)?longs? to nobody\b|\bnobody's\b": "has no owner",
    r"\bpasse[sd] over\b": "skip",
    r"\bkept picture\b": "cached view",
    r"\bis none of\b": "is not one of",
    r"\b(?:stay|left|leaves?) behind\b": "remain",
    r"^\s*(?://|#) (?-i:What|Whether|How) ": "a verb in the third person: Returns, Draws",
    r"^\s*(?://|#) (?-i:True|False|0):": "Returns true if, Returns 0 if",
}
SUFFIXES = {".c", ".cmake", ".cpp", ".h", ".in", ".md", ".py", ".rc", ".sh", ".txt"}


def files(root):
    listed = subprocess.run(["git", "-C", root, "ls-files"], check=True, capture_output=True, text=True).stdout
    for name in listed.splitlines():
        path = pathlib.Path(root, name)
        if path.suffix in SUFFIXES and not name.startswith("tests/data/") and path.name != pathlib.Path(__file__).name:
            yield name, path


def lines(path):
    """The numbered lines; those of code without string literals, which may be names of other systems or test data."""
    code = path.suffix in {".c", ".cpp", ".h"}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        yield number, re.sub(r'"(?:[^"\\]|\\.)*"', '""', line) if code else line


def faults(root):
    for name, path in files(root):
        for number, line in lines(path):
            for pattern, better in REPLACED.items():
                for found in re.findall(pattern, line, re.IGNORECASE):
                    yield f"{name}:{number}: '{found}': write {better}"


def main():
    messages = list(faults(sys.argv[1]))
    print(*messages, sep="\n")
    return bool(messages)


sys.exit(main())
