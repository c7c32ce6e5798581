#!/usr/bin/env python3
"""Runs the everyday tasks of a guide as a reader would, and compares what they print: run_tasks.py GUIDE DATA FOLDER PROGRAM...

In the section "Everyday tasks" an indented line that begins with "$ " is a command; the indented lines below it are what
it prints. Commands run one after the other in a folder with the files that the section names. GUIDE: docs/NAME.md; DATA:
tests/data. `--update` as the last argument writes into the guide what the commands print now."""
import os
import pathlib
import shutil
import subprocess
import sys

# The files that the guide names, and their sources.
DOCUMENTS = {"report.doc": "ole/test11--695187.doc", "letter.doc": "ole/Bug48075--a2ceba.doc",
             "prices.xls": "ole/testEXCEL-custom-props--fff0cb.xls", "archive/budget.xls": "ole/25695--d41532.xls",
             "archive/photo.fpx": "ole/input-bw-one-band--340370.fpx", "archive/slides.ppt": "ole/bug55030--18fccf.ppt",
             "plan.vsd": "ole/v5-Connection-Types--c289c5.vsd"}


def prepare(guide, data, folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    drawings = data / "tasks"
    files = DOCUMENTS if guide.stem == "suminfo" else {p.name: f"tasks/{p.name}" for p in drawings.iterdir()}
    for name, source in files.items():
        (folder / name).parent.mkdir(exist_ok=True)
        shutil.copyfile(data / source, folder / name)


def blocks(lines):
    """Commands of the section, each with the numbers of its lines: first, end of the command, end of the output."""
    inside, at = False, 0
    while at < len(lines):
        line = lines[at]
        if line.startswith("## "):
            inside = line.strip() == "## Everyday tasks"
        if not (inside and line.startswith("    $ ")):
            at += 1
            continue
        first, at = at, at + 1
        while lines[at - 1].rstrip("\n").endswith("\\"):
            at += 1
        end = at
        while at < len(lines) and lines[at].startswith("    ") and not lines[at].startswith("    $ "):
            at += 1
        yield first, end, at


def main():
    update = sys.argv[-1] == "--update"
    guide, data, folder, *programs = (pathlib.Path(word).absolute() for word in sys.argv[1 : len(sys.argv) - update])
    prepare(guide, data, folder)
    path = os.pathsep.join([str(program.parent) for program in programs] + [os.environ["PATH"]])
    lines = guide.read_text(encoding="utf-8").splitlines(keepends=True)
    failures, count, changed, kept = [], 0, [], 0
    for first, end, last in blocks(lines):
        command = "".join(line[4:] for line in lines[first:end])[2:].rstrip("\n")
        expected = "".join(line[4:] for line in lines[end:last])
        done = subprocess.run(["bash", "-c", command], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60,
                              env={**os.environ, "PATH": path, "LC_ALL": "C.UTF-8"}, check=False)
        printed = done.stdout.decode("utf-8", "replace")
        count += 1
        if printed != expected:
            failures.append(f"$ {command}\nprints\n{printed}and not\n{expected}")
        changed += lines[kept:end] + ["    " + line for line in printed.splitlines(keepends=True)]
        kept = last
    if update:
        guide.write_text("".join(changed + lines[kept:]), encoding="utf-8")
    elif failures or count == 0:
        sys.exit("\n".join(failures) or "no tasks")
    print(f"{count} commands")


main()
