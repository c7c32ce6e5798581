#!/usr/bin/env python3
"""Creates NAME.zip from a build, for building hosts, and NAME-debug.zip with the debug data of its files:
make_zip.py BUILD_FOLDER SOURCE_FOLDER NAME OUTPUT_FOLDER

The same build results in the same bytes: names are sorted, and all files have the time of the commit, which
SOURCE_DATE_EPOCH replaces.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile


def commit_time(source):
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    if epoch is None:
        command = ["git", "-C", source, "log", "-1", "--format=%ct"]
        epoch = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return time.gmtime(int(epoch))[:6]


def write_zip(path, folder, files, moment):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for file in sorted(files):
            entry = zipfile.ZipInfo(file.relative_to(folder).as_posix(), moment)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o100644 << 16
            archive.writestr(entry, file.read_bytes())
    print(f"{path.stat().st_size:10}  {path.name}")


def converter(build):
    """Returns the Python interpreter that the build used to convert the guides."""
    cache = pathlib.Path(build, "CMakeCache.txt").read_text(encoding="utf-8")
    return re.search(r"^ORLO_MARKDOWN_PYTHON:FILEPATH=(.*)$", cache, re.MULTILINE)[1]


def add_cover(python, source, tree):
    """Adds the start page and the license to the top folder."""
    shutil.copy(source / "LICENSE", tree / "LICENSE.txt")
    page = [source / "cmake/make_page.py", source / "packaging/README.md", tree / "README.html"]
    subprocess.run([python, *page], check=True)


def main():
    build, source, name, output = sys.argv[1:]
    source, output = pathlib.Path(source), pathlib.Path(output)
    moment = commit_time(source)
    with tempfile.TemporaryDirectory() as scratch:
        tree = pathlib.Path(scratch, name)
        subprocess.run(["cmake", "--install", build, "--prefix", tree], check=True, stdout=subprocess.DEVNULL)
        add_cover(converter(build), source, tree)
        files = {path for path in tree.rglob("*") if path.is_file()}
        debug = {path for path in files if path.suffix == ".debug"}
        write_zip(output / f"{name}.zip", scratch, files - debug, moment)
        write_zip(output / f"{name}-debug.zip", scratch, debug, moment)


main()
