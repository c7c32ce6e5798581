#!/usr/bin/env python3
"""Saves drawings with dxfprops and checks the files byte by byte, group by group, and with ezdxf.

check_saved.py DXFPROPS FOLDER RESTRUCTURE
"""
import difflib
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

try:
    import ezdxf
    from ezdxf import recover
except ImportError:  # ./run setup installs it
    recover = None

PROGRAM, FOLDER, RESTRUCTURE = sys.argv[1:4]
BLOCKS = os.path.join(FOLDER, "acadsharp-sample-AC1032.dxf")
WORK = tempfile.mkdtemp()
OUT = os.path.join(WORK, "saved.dxf")
OWN = {1000, 1001, 1002, 1040}  # extended data
# The properties that are set, and the groups that may change; all others must not.
ROWS = [
    (["PenColor=red"], {62, 420, 430, 1, 3}),
    (["PenColor=By Layer"], {62, 420, 430, 1, 3}),
    (["PenColor=#123456"], {62, 420, 430, 1, 3} | OWN),
    (["PenStyle=By Block"], {6} | OWN),
    (["PenStyle=No Line", "PenAlignment=off", "Info=ä ^ 乗", "StyleTree="], {70} | OWN),
    (["PenScale=2.5"], {48} | OWN),
    (["ScaleSystem=World Scale", "PenWidth=0.75"], {40, 41, 43} | OWN),
    (["ScaleSystem=Paper Scale", "PenWidth=0.5 mm"], {40, 41, 43, 370} | OWN),
    (["ScaleSystem=Paper Scale", "PenWidth=0.27 mm"], {40, 41, 43, 370} | OWN),
    (["Layer=0"], {8, 370}),
    (["BrushStyle=Cross", "BrushScale=2", "BrushAngle=30", "BrushColor=blue"],
     {2, 70, 52, 41, 77, 78, 53, 43, 44, 45, 46, 79, 49, 62, 420, 450, 451, 452, 453, 460, 461, 462, 463, 63, 421, 470} | OWN),
    (["BrushStyle=Brick bitmap", "HatchCross=on", "BrushDrawMode=winding"], {77, 78, 52, 41, 53, 43, 44, 45, 46, 79, 49} | OWN),
    (["TextSize=7"], {40, 1, 3}),
    (["TextFont=Verdana", "TextStyle=Bold+Underline"], {1, 3, 7, 70} | OWN),
    (["TextFormat=Right"], {1, 3, 10, 20, 30, 11, 21, 31, 71, 72, 73, 74} | OWN),
    (["TextFormat=Center", "TextStyle=All Caps"], {1, 3, 7, 10, 20, 30, 11, 21, 31, 70, 71, 72, 73, 74} | OWN),
]
# The attributes that ezdxf then reads, for entities that have the property.
SEEN = {
    "PenColor=red": [("LINE LWPOLYLINE CIRCLE ARC TEXT INSERT", "color", 1)],
    "PenColor=#123456": [("LINE LWPOLYLINE", "true_color", 0x123456)],
    "PenScale=2.5": [("LINE LWPOLYLINE CIRCLE ARC", "ltscale", 2.5)],
    "PenWidth=0.5 mm": [("LINE CIRCLE ARC", "lineweight", 50)],
    "PenWidth=0.27 mm": [("LINE CIRCLE ARC", "lineweight", 25)],
    "PenWidth=0.75": [("LWPOLYLINE[const_width>0]", "const_width", 0.75)],
    "TextSize=7": [("TEXT", "height", 7)],
    "BrushColor=blue": [("HATCH", "color", 5)],
}
failures = []


def run(*arguments, **options):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, **options)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def pairs(path):
    lines = read(path).replace(b"\r\n", b"\n").replace(b"\r", b"\n").split(b"\n")
    return [(code, value) for code, value in zip(lines[::2], lines[1::2]) if code.strip().isdigit()]


def entities(path):
    """Returns the groups of the sections with entities, each as bytes of code and value."""
    groups = [(int(code), value) for code, value in pairs(path)]
    start = next((i for i, group in enumerate(groups) if group == (2, b"ENTITIES")), 0)
    return groups[start:]


def version(path):
    """Returns the version of the file; ezdxf treats older versions as newer ones."""
    found = [value for code, value in pairs(path)[:40] if value.startswith(b"AC10")]
    return found[0] if found else b""


def audit(path):
    """Returns the number of errors and the drawing, or None if ezdxf cannot read it."""
    try:
        drawing, auditor = recover.readfile(path)
    except Exception:
        return None, None
    # It reports a SEQEND within a block of an older file as a fault, even in its own files.
    faults = [fault for fault in auditor.errors + auditor.fixes if "Deleted SEQEND" not in fault.message]
    return len(faults), drawing


def check_row(path, values, codes):
    done = run("set", path, *values, "-o", OUT)
    if done.returncode:
        return failures.append(f"{path} {values}: {done.stderr.decode()}")
    before, after = entities(path), entities(OUT)
    for kind, i1, i2, j1, j2 in difflib.SequenceMatcher(None, before, after, autojunk=False).get_opcodes():
        others = {code for code, _ in before[i1:i2] + after[j1:j2]} - codes if kind != "equal" else set()
        if others:
            failures.append(f"{path} {values}: groups {others} changed")
    again = run("set", OUT, *values, "-o", OUT + "2")
    if again.returncode or read(OUT) != read(OUT + "2"):
        failures.append(f"{path} {values}: the value read back differs")
    allowed = audit(path)[0] if recover else None
    if allowed is None:
        return
    count, drawing = audit(OUT)
    if count is None or count > allowed:
        return failures.append(f"{path} {values}: ezdxf reports more errors")
    for kinds, attribute, expected in SEEN.get(values[-1], []) if version(path) >= b"AC1018" else []:
        seen = {entity.dxf.get(attribute) for entity in drawing.modelspace().query(kinds)}
        if seen - {expected}:
            failures.append(f"{path} {values}: ezdxf reads {attribute} {seen}")


def has_valid_handles(path):
    """Returns whether all handles are unique and less than the next free one."""
    groups = [(int(code), value.strip()) for code, value in pairs(path)]
    seeds = [groups.pop(i + 1)[1] for i, group in enumerate(groups) if group == (9, b"$HANDSEED")]
    handles = [int(value, 16) for code, value in groups if code in (5, 105) and value]
    return not seeds or (len(handles) == len(set(handles)) and max(handles, default=0) < int(seeds[0], 16))


def check_structure(path):
    """Checks with ezdxf that added entities and blocks exist, and that removed ones do not."""
    done = subprocess.run([RESTRUCTURE, path, OUT], capture_output=True)
    if done.returncode:
        return failures.append(f"{path}: {done.stderr.decode()}")
    expected, in_block = (int(number) for number in done.stdout.split())
    listed = run("get", OUT, "--where", "block=new block", "--show", "Layer")
    if listed.returncode or listed.stdout.count(b"\n") != in_block:
        failures.append(f"{path}: the new block contains {listed}")
    if has_valid_handles(path) and not has_valid_handles(OUT):
        failures.append(f"{path}: handles are not unique")
    allowed = audit(path)[0] if recover else None
    if allowed is None:
        return
    count, drawing = audit(OUT)
    if count is None or count > allowed:
        return failures.append(f"{path}: ezdxf reports more errors, {count}, in the added objects")
    space = drawing.modelspace()
    block = drawing.blocks.get("New block")
    if not block or len(block) != in_block or len(space.query('INSERT[name=="New block"]')) != 1:
        failures.append(f"{path}: ezdxf does not find the block")


def handles_in(path, codes):
    return {value.strip().upper().lstrip(b"0") for code, value in pairs(path) if int(code) in codes} - {b""}


def check_references():
    """Checks that references to removed objects are removed, in every kind of record that ezdxf writes."""
    source, references = os.path.join(WORK, "references.dxf"), {*range(320, 370), 1005}
    for version in ("R2000", "R2010", "R2018"):
        drawing = ezdxf.new(version)
        space = drawing.modelspace()
        drawing.appids.add("OTHER")
        lines = [space.add_line((i, 0), (i, 5)) for i in range(8)]
        for name, members in {"mixed": lines[:3], "gone": [lines[1], lines[3]], "stays": [lines[2]]}.items():
            with drawing.groups.new(name).edit_data() as data:
                data.extend(members)
        outline = space.add_lwpolyline([(0, 0), (4, 0), (4, 4)], close=True)
        other = space.add_lwpolyline([(0, 0), (1, 0), (1, 1)], close=True)
        hatch = space.add_hatch(color=1)
        for border in (outline, other):
            path = hatch.paths.add_polyline_path([(p[0], p[1]) for p in border.get_points()], is_closed=True)
            hatch.associate(path, [border])
        for owner in lines[4:6]:
            record = owner.new_extension_dict().dictionary.add_xrecord("DATA")
            record.reset([(330, lines[2].dxf.handle), (330, lines[3].dxf.handle), (1, "x")])
        lines[6].set_xdata("OTHER", [(1005, lines[7].dxf.handle)])
        space.set_redraw_order({line.dxf.handle: "%X" % (0xF00 - i) for i, line in enumerate(lines)})
        note = space.add_mtext("note")
        space.add_leader([(0, 0), (3, 3)]).dxf.annotation_handle = note.dxf.handle
        space.add_line((0, 0), (9, 9))
        drawing.saveas(source)
        before, _ = audit(source)
        for remove in ([], ["remove"]):
            done = subprocess.run([RESTRUCTURE, source, OUT, *remove], capture_output=True)
            after, _ = audit(OUT)
            if done.returncode or after is None or after > before:
                failures.append(f"references of {version}: {before} errors before, {after} after; {done.stderr.decode()}")
        removed = handles_in(source, {5}) - handles_in(OUT, {5})
        dangling = removed & handles_in(OUT, references)
        if len(removed) < 7 or dangling:
            failures.append(f"references of {version}: to {dangling} of {removed}")
    os.remove(source)


def check_blocks():
    """Checks that entities of a block are selected, changed and compared like those of model space, also in JSON."""
    done = run("set", BLOCKS, "--where", "block=MyBlock,kind=LINE", "PenColor=red", "PenScale=1+1/2", "-o", OUT)
    lines = run("diff", BLOCKS, OUT)
    found = json.loads(run("diff", BLOCKS, OUT, "--json").stdout)[0]["differences"]
    shown = json.loads(run("get", OUT, "--where", "block=MyBlock", "--json").stdout)[0]["entities"]
    red = [entity for entity in shown if entity["properties"].get("PenScale") == "1.5"]
    expected = {"PenColor": {"before": "By Layer", "after": "Red"}, "PenScale": {"before": "1", "after": "1.5"}}
    if (
        done.returncode
        or not found
        or len(found) != lines.stdout.count(b"\n")
        or [entity["handle"] for entity in found] != [entity["handle"] for entity in red]
        or any(entity["kind"] != "LINE" or entity["block"] != "MyBlock" for entity in found)
        or any(entity["properties"] != expected for entity in found)
    ):
        failures.append(f"a block: {done} {lines} {found}")
    if recover and {line.dxf.color for line in audit(OUT)[1].blocks.get("MyBlock").query("LINE")} != {1}:
        failures.append("a block: ezdxf reads different colors")
    broken = json.loads(run("get", BLOCKS, "none.dxf", "--json").stdout)
    if "entities" not in broken[0] or broken[1]["error"] != "the file cannot be opened: no such file":
        failures.append(f"JSON of a missing file: {broken[1]}")


def check_messages():
    """Checks that messages for invalid arguments list the valid ones, and checks the exit codes."""
    drawing = os.path.join(FOLDER, "vuer-linetypes.dxf")
    for arguments, code, words in [
        (["set", drawing, "PenHue=red", "-o", OUT], 2, "'PenHue' is not one of "),
        (["set", drawing, "PenColor=purple", "-o", OUT], 2, "'purple' is not one of By Layer, By Block, Red"),
        (["set", drawing, "Layer=Walls", "-o", OUT], 2, "'Walls' is not one of 0, Titles, ConstantWidth"),
        (["set", drawing, "PenWidth=wide", "-o", OUT], 2, "'wide' is not a non-negative length"),
        (["set", drawing, "PenColor=red"], 2, "specify the output"),
        (["set", drawing, "--where", "color=1", "PenColor=red", "-o", OUT], 2, "'color' is not one of kind, handle, block, "),
        (["set", drawing, "--where", "kind=LIN", "PenColor=redd", "-o", OUT], 2, "'redd' is not one of By Layer"),
        (["set", drawing, "--where", "kind=LIN", "PenColor=red", "-o", OUT], 1, "no entity matches kind=LIN; existing kinds: LINE, LWPOLYLINE"),
        (["get", drawing, "--where", "layer=walls"], 1, "no entity matches layer=walls"),
        (["get", drawing, BLOCKS, "--where", "kind=ellipse", "--show", "Layer"], 0, "ELLIPSE"),
        (["get", drawing, "--where", "block=Door"], 2, "block: the drawing has no blocks"),
        (["get", BLOCKS, "--where", "block=Door"], 2, "block: 'Door' is not one of *Model_Space"),
        (["get", BLOCKS, "--where", "block=myblock", "--show", "Layer"], 0, 'block MyBlock) Layer="0"'),
        (["set", drawing, "--where", "kind=LINE", "PenScale=2*", "-o", OUT], 2, "'2*' is not a non-negative number"),
        (["set", "none.dxf", "PenColor=red", "--in-place"], 2, "none.dxf: the file cannot be opened: no such file"),
        (["get", FOLDER], 2, ": it is a folder"),
        (["get", "/dev/null"], 2, "/dev/null: not a regular file"),
        (["set", drawing, "--where", "kind=LINE,penstyle=dashed", "PenColor=red", "-o", OUT], 0, "1 entity changed"),
        (["diff", drawing, OUT], 1, 'LINE (line 383) PenColor: "By Layer" -> "Red"'),
        (["get", OUT, "--where", "PenColor=red", "--show", "PenStyle"], 0, 'LINE (line 383) PenStyle="DASHED"'),
        (["diff", OUT, OUT], 0, ""),
        (["list", OUT, "none.dxf", "--json"], 2, '"LWPOLYLINE": 5'),
    ]:
        done = run(*arguments)
        if done.returncode != code or words not in (done.stdout + done.stderr).decode():
            failures.append(f"{arguments}: {done}")


def check_safety(path):
    """Checks that a full disk and the end of the process leave the old file unchanged."""
    copy = os.path.join(WORK, "copy.dxf")
    run("set", path, "PenColor=red", "-o", OUT)
    old, new = read(path), read(OUT)

    def limit(size, action):
        signal.signal(signal.SIGXFSZ, action)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))

    for size in (0, 1000, len(new) - 1):
        shutil.copy(path, copy)
        done = run("set", copy, "PenColor=red", "--in-place", preexec_fn=lambda size=size: limit(size, signal.SIG_IGN))
        if done.returncode != 2 or read(copy) != old or len(os.listdir(WORK)) != len({OUT, OUT + "2", copy}):
            failures.append(f"a disk that is full at {size}: {done}")
    for size in range(0, len(new), len(new) // 40):  # the process is killed if it writes more
        shutil.copy(path, copy)
        done = run("set", copy, "PenColor=red", "--in-place", preexec_fn=lambda size=size: limit(size, signal.SIG_DFL))
        if done.returncode != -signal.SIGXFSZ or read(copy) != old:
            failures.append(f"a process that ends at {size} bytes: {done}")
        left = set(os.listdir(WORK)) - {os.path.basename(name) for name in (OUT, OUT + "2", copy)}
        if left:
            failures.append(f"a process that ends at {size} bytes leaves the files {left}")
    shutil.copy(path, copy)
    os.chmod(copy, 0o444)
    done = run("set", copy, "PenColor=red", "--in-place")
    if done.returncode != 2 or b"read-only" not in done.stderr or read(copy) != old:
        failures.append(f"a read-only file: {done}")


for name in sorted(os.listdir(FOLDER)):
    drawing_path = os.path.join(FOLDER, name)
    if not name.endswith(".dxf") or name.startswith("bad-") or os.path.getsize(drawing_path) > 30000 or run("list", drawing_path).returncode:
        continue
    if run("set", drawing_path, "--where", "kind=none", "PenColor=red", "-o", OUT).returncode != 1 or read(OUT) != read(drawing_path):
        failures.append(f"{name}: saving without changes alters the file")
    for row in ROWS:
        check_row(drawing_path, *row)
    check_structure(drawing_path)
check_row(os.path.join(FOLDER, "dxf-dimensions.dxf"), ["Info=x"], OWN)
if not has_valid_handles(OUT):
    failures.append("handles are not unique")
check_messages()
check_blocks()
if recover:
    check_references()
check_safety(os.path.join(FOLDER, "ezdxf-insert-nested-mirrored.dxf"))
shutil.rmtree(WORK)
if failures:
    sys.exit("\n".join(failures))
