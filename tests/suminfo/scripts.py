#!/usr/bin/env python3
"""Compiles the scripts of suminfo and compares each section with its document: scripts.py SUMINFO STREAMS WINDRES"""
import json
import os
import struct
import subprocess
import sys
import tempfile

SUMINFO, STREAMS, WINDRES = sys.argv[1:]
WORK = tempfile.TemporaryDirectory()
SCRIPT, RESOURCES, STREAM = (os.path.join(WORK.name, name) for name in ("out.rc", "out.res", "section"))


def run(*command):
    return subprocess.run(command, capture_output=True, timeout=60, check=False)


def sections(stream):
    """Returns each section as shown by suminfo, without its offset in the stream."""
    shown = json.loads(run(SUMINFO, "show", "--json", "--stream", stream).stdout)
    for section in shown["sections"]:
        for key in ("offset", "size"):
            del section[key]
        for prop in section["properties"]:
            del prop["offset"]
    return shown["sections"]


def resources():
    """Returns the raw data in a compiled script."""
    with open(RESOURCES, "rb") as file:
        data = file.read()
    at = 0
    while at < len(data):
        size, head = struct.unpack_from("<II", data, at)
        if size:
            yield data[at + head : at + head + size]
        at += (head + size + 3) // 4 * 4


failures, compiled, wide, variants = [], 0, 0, 0
for name in sorted(os.listdir(STREAMS)):
    path = os.path.join(STREAMS, name)
    done = run(SUMINFO, "rc", "--stream", path, SCRIPT)
    if done.returncode:
        if not any(word in done.stderr for word in (b"damaged", b"no sections", b"not a property set")):
            failures.append(f"{name}: {done.stderr}")
        continue
    made = run(WINDRES, "-O", "res", SCRIPT, RESOURCES)
    if made.returncode:
        failures.append(f"{name}: {made.stderr}")
        continue
    expected = sections(path)
    found = list(resources())
    if len(found) != len(expected):
        failures.append(f"{name}: {len(found)} resources for {len(expected)} sections")
    for data, section in zip(found, expected):
        if struct.unpack_from("<I", data)[0] != len(data):
            failures.append(f"{name}: the section is {len(data)} bytes long, but declares {data[:4]}")
        with open(STREAM, "wb") as file:
            file.write(struct.pack("<HHI16xI", 0xFFFE, 0, 0, 1) + bytes.fromhex("00" * 16) + struct.pack("<I", 48) + data)
        after = sections(STREAM)[0]
        after["fmtid"], after["known"] = section["fmtid"], section["known"]
        names = {prop["id"]: prop["name"] for prop in section["properties"]}
        for prop in after["properties"]:
            prop["name"] = names.get(prop["id"])  # the format determines the fields
        if after != section:
            failures.append(f"{name}: {after} differs from {section}"[:600])
        compiled += 1
        wide += section["code_page"] == 1200
        variants += any(prop["vt"] == 4108 for prop in section["properties"])
if failures:
    sys.exit("\n".join(failures))
if min(compiled // 20, wide, variants) == 0:
    sys.exit(f"only {compiled} sections, {wide} with wide names, {variants} with variants")
print(f"{compiled} identical sections, {wide} of them with wide names, {variants} with variants")
