#!/usr/bin/env python3
"""Edits every document of a folder with suminfo and reads it with olefile and gsf: write_back.py SUMINFO FOLDER
Also uses the documents of the folder that ORLO_CORPUS names. Everything else must be unchanged: streams byte for byte,
classes, times and state bits of storages. Documents that suminfo reports as damaged must not change."""
import os
import shutil
import subprocess
import sys
import tempfile

import olefile

SUMMARY = "\x05SummaryInformation"
EDITS = [["set", "FILE", "title=" + "t" * size] for size in (1, 3000, 9000)] + [["remove", "FILE", "title"]]


def contents(path):
    """Returns all streams and storages except the summary."""
    found = {}
    with olefile.OleFileIO(path) as ole:
        found["/"] = ole.root.clsid, ole.root.dwUserFlags, ole.root.createTime, ole.root.modifyTime
        for name in ole.listdir(streams=True, storages=True):
            if name[0].lower() == SUMMARY.lower():
                continue
            entry = ole.direntries[ole._find(name)]  # the public calls leave out state bits
            data = ole.openstream(name).read() if entry.entry_type == olefile.STGTY_STREAM else None
            found["/".join(name)] = entry.name, entry.clsid, entry.dwUserFlags, entry.createTime, entry.modifyTime, data
    return found


def listed(path):
    """Returns the number of streams that gsf reads, or None if it cannot open the file."""
    done = subprocess.run(["gsf", "list", path], capture_output=True, timeout=60, check=False)
    return None if done.returncode else done.stdout.count(b"\n")


def title(path):
    """Returns the text without NULs, whatever the code page."""
    with olefile.OleFileIO(path) as ole:
        value = ole.getproperties(SUMMARY).get(2) or "" if ole.exists(SUMMARY) else ""
    return (value if isinstance(value, str) else value.decode("latin-1")).replace("\0", "")


def check(suminfo, original, work):
    """Returns a description of the failure, if any, and whether the document could be edited."""
    path = os.path.join(work, "document")
    shutil.copyfile(original, path)
    for edit in EDITS:
        done = subprocess.run([suminfo] + [path if word == "FILE" else word for word in edit], capture_output=True, timeout=60,
                              check=False)
        if done.returncode:
            with open(path, "rb") as left, open(original, "rb") as before:
                same = left.read() == before.read()
            rejected = any(why in done.stderr for why in (b"damaged", b"not a compound file", b"stored as", b"code page"))
            return ("" if rejected and same else f"{done.stderr}, and the file has {'not ' if same else ''}changed"), False
        if contents(path) != contents(original):
            return f"{edit[0]} changed other data", False
        if title(path) != edit[2].partition("=")[2]:
            return f"olefile reads the title {title(path)[:40]}", False
        if listed(original) is not None and listed(path) is None:
            return "gsf cannot read the document", False
    return "", True


def main():
    suminfo, folders = sys.argv[1], [sys.argv[2]] + [folder for folder in [os.environ.get("ORLO_CORPUS")] if folder]
    failures, edited, rejected = [], 0, 0
    with tempfile.TemporaryDirectory() as work:
        for folder in folders:
            for name in sorted(os.listdir(folder)):
                if name.endswith((".json", ".md")):
                    continue
                why, done = check(suminfo, os.path.join(folder, name), work)
                edited += done
                rejected += not done and not why
                if why:
                    failures.append(f"{name}: {why}")
    print(f"{edited} documents edited, {rejected} rejected")
    if failures or edited < 5:
        sys.exit("\n".join(failures) or "too few edited documents")


main()
