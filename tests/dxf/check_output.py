#!/usr/bin/env python3
"""Checks the files and streams that dxfprops writes to: check_output.py DXFPROPS DRAWING"""
import json
import os
import resource
import shutil
import signal
import stat
import subprocess
import sys
import tempfile

DXFPROPS, DRAWING = map(os.path.abspath, sys.argv[1:])
WORK = tempfile.mkdtemp()
failures = []


def run(*arguments):
    return subprocess.run([DXFPROPS, *arguments], cwd=WORK, capture_output=True, timeout=60, check=False)


def read(name):
    with open(os.path.join(WORK, name), "rb") as file:
        return file.read()


def expect(what, is_true, done):
    if not is_true:
        failures.append(f"{what}: {done.returncode} {done.stderr} {done.stdout[:80]}")


shutil.copy(DRAWING, os.path.join(WORK, "plan.dxf"))
done = run("set", "plan.dxf", "PenColor=red", "-o", "red.dxf")
expect("a file", done.returncode == 0 and read("red.dxf") != read("plan.dxf"), done)

os.mkfifo(os.path.join(WORK, "pipe"))
os.symlink("nothing", os.path.join(WORK, "dangling"))
targets = [("pipe", stat.S_ISFIFO), ("dangling", stat.S_ISLNK), (".", stat.S_ISDIR)]
if os.geteuid() == 0:  # its own device file, so that a fault does not replace one of the system
    os.mknod(os.path.join(WORK, "null"), 0o666 | stat.S_IFCHR, os.makedev(1, 3))
    targets.append(("null", stat.S_ISCHR))
for target, kind in targets:
    done = run("set", "plan.dxf", "PenColor=red", "-o", target)
    still = kind(os.lstat(os.path.join(WORK, target)).st_mode)
    expect(target, done.returncode == 2 and b"not a regular file" in done.stderr and still, done)

done = run("set", "plan.dxf", "PenColor=red", "-o", "-")
expect("standard output", done.returncode == 0 and done.stdout == read("red.dxf") and b"changed" in done.stderr, done)

with open("/dev/full", "wb") as full:
    for arguments in (["--help"], ["list", "plan.dxf"], ["get", "plan.dxf", "--json"], ["layers", "plan.dxf"],
                      ["diff", "plan.dxf", "red.dxf"], ["set", "plan.dxf", "PenColor=red", "--dry-run"]):
        done = subprocess.run([DXFPROPS, *arguments], cwd=WORK, stdout=full, stderr=subprocess.PIPE, check=False)
        is_reported = done.returncode == 2 and done.stderr == b"dxfprops: cannot write the output\n"
        if not is_reported:
            failures.append(f"a full disk: {arguments} {done}")

os.symlink("plan.dxf", os.path.join(WORK, "link.dxf"))
before = os.stat(os.path.join(WORK, "plan.dxf"))
for arguments in (["--where", "kind=NONE", "PenColor=red"], ["--where", "kind=NONE", "PenColor=red", "--in-place"]):
    done = run("set", "plan.dxf", *arguments, *([] if "--in-place" in arguments else ["-o", "./link.dxf"]))
    after = os.stat(os.path.join(WORK, "plan.dxf"))
    same = (before.st_ino, before.st_mtime_ns) == (after.st_ino, after.st_mtime_ns)
    expect("nothing to change", done.returncode == 1 and same, done)

done = run("set", "link.dxf", "PenColor=red", "--in-place")
is_link = os.path.islink(os.path.join(WORK, "link.dxf"))
expect("a link", done.returncode == 0 and is_link and read("plan.dxf") == read("red.dxf"), done)
os.chmod(os.path.join(WORK, "plan.dxf"), 0o640)
done = run("set", "plan.dxf", "PenColor=12", "--in-place", "--backup")
mode = os.stat(os.path.join(WORK, "plan.dxf.bak")).st_mode & 0o777
expect(f"the permissions of a backup: {mode:o}", mode == 0o640 and read("plan.dxf.bak") == read("red.dxf"), done)

before = read("plan.dxf")
limit = (len(before) // 2, resource.RLIM_INFINITY)
done = subprocess.run([DXFPROPS, "set", "plan.dxf", "PenColor=13", "--in-place"], cwd=WORK, capture_output=True,
                      preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, limit), check=False)
expect("a limit of the size of files", done.returncode == -signal.SIGXFSZ, done)
expect("an unchanged file", read("plan.dxf") == before, done)
# Names and texts with control characters, and with bytes that are not UTF-8.
odd = os.path.join(WORK.encode(), b"odd\x1b[1m\n\xe9.dxf")
with open(odd, "wb") as file:
    file.write(read("plan.dxf").replace(b"\nLINE\n  5\n", b"\nLINE\n  5\n\x1b[2m").replace(b"\n  0\n\xb3\xdf", b"\n  0\n\x7f"))
for arguments in (["list"], ["list", "--json"], ["get"], ["get", "--json"], ["get", "--csv"], ["layers"],
                  ["set", "PenColor=red", "--dry-run"], ["get", "--where", "kind=NONE\x1b"]):
    done = run(arguments[0], odd, *arguments[1:])
    shown = (done.stdout + done.stderr).decode()  # fails if it is not UTF-8
    controls = {c for c in shown if (c < " " and c != "\n") or "\x7f" <= c < "\xa0"}
    expect(f"control characters {controls} of {arguments}", not controls, done)
    if "--json" in arguments:
        expect("JSON", json.loads(shown)[0]["file"].endswith("odd\x1b[1m\n\ufffd.dxf"), done)
os.remove(odd)

left = set(os.listdir(WORK)) - {"plan.dxf", "plan.dxf.bak", "red.dxf", "link.dxf", "pipe", "dangling", "null"}
expect(f"other files: {left}", not left, done)
shutil.rmtree(WORK)
if failures:
    sys.exit("\n".join(failures))
