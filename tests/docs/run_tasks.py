#!/usr/bin/env python3
"""Runs the everyday tasks of a guide and compares their output: run_tasks.py GUIDE DATA FOLDER PROGRAM...

In the section "Everyday tasks" an indented line that begins with "$ " is a command; the indented lines below it are its
output. Commands run one after the other in a folder with the files that the section names. GUIDE: docs/NAME.md; DATA:
tests/data. With `--update` as the last argument, the current output replaces the output in the guide."""
import os
import pathlib
import shutil
import subprocess
import sys

import ezdxf

# The files that the guide names, and their sources.
DOCUMENTS = {"report.doc": "ole/test11--695187.doc", "letter.doc": "ole/Bug48075--a2ceba.doc",
             "prices.xls": "ole/testEXCEL-custom-props--fff0cb.xls", "archive/budget.xls": "ole/25695--d41532.xls",
             "archive/photo.fpx": "ole/input-bw-one-band--340370.fpx", "archive/slides.ppt": "ole/bug55030--18fccf.ppt",
             "plan.vsd": "ole/v5-Connection-Types--c289c5.vsd"}


def make_drawings(folder):
    """Creates plan.dxf with walls, doors and texts, and sheet1.dxf to sheet3.dxf with title blocks."""
    drawing = ezdxf.new("R2010")
    for name, color in {"WALLS": 7, "WALLS-NEW": 7, "DOORS": 3, "NOTES": 2}.items():
        drawing.layers.add(name, color=color)
    space = drawing.modelspace()
    for i in range(4):
        space.add_line((i, 0), (i, 5), dxfattribs={"layer": "WALLS" if i < 2 else "WALLS-NEW"})
    space.add_text("Ground floor", dxfattribs={"layer": "NOTES", "height": 2.5, "insert": (0, 8)})
    space.add_text("small print", dxfattribs={"layer": "NOTES", "height": 0.5, "insert": (0, 7)})
    drawing.blocks.new("DOOR").add_line((0, 0), (1, 0))
    space.add_blockref("DOOR", (1, 1), dxfattribs={"layer": "DOORS"})
    space.add_blockref("DOOR", (3, 1), dxfattribs={"layer": "DOORS", "rotation": 90})
    drawing.saveas(folder / "plan.dxf")
    for number in (1, 2, 3):
        drawing = ezdxf.new("R2010")
        frame = drawing.blocks.new("FRAME")
        for tag, y in {"TITLE": 10, "DATE": 5}.items():
            frame.add_attdef(tag, (10, y), "", dxfattribs={"height": 2})
        drawing.modelspace().add_blockref("FRAME", (0, 0)).add_auto_attribs({"TITLE": f"Sheet {number}", "DATE": "1999"})
        drawing.saveas(folder / f"sheet{number}.dxf")


def prepare(guide, data, folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    if guide.stem == "dxfprops":
        return make_drawings(folder)
    for name, source in DOCUMENTS.items():
        (folder / name).parent.mkdir(exist_ok=True)
        shutil.copyfile(data / source, folder / name)


def blocks(lines):
    """Returns the section's commands, each with its line numbers: first, end of the command, end of the output."""
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
            failures.append(f"$ {command}\nprints\n{printed}instead of\n{expected}")
        changed += lines[kept:end] + ["    " + line for line in printed.splitlines(keepends=True)]
        kept = last
    if update:
        guide.write_text("".join(changed + lines[kept:]), encoding="utf-8")
    elif failures or count == 0:
        sys.exit("\n".join(failures) or "the guide has no tasks")
    print(f"{count} commands")


main()
