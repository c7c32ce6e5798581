"""Damages each file of a folder in many ways, reproducibly: damage.py FROM TO"""
import pathlib
import random
import sys

VARIANTS = 6
HEAD = 4096  # usually contains header, tables and directory: damaged more often


def damaged(data, rng):
    data = bytearray(data)
    if rng.random() < 0.25:
        return data[: rng.randrange(len(data) + 1)]
    for _ in range(rng.choice([1, 1, 2, 8])):
        end = len(data) if rng.random() < 0.4 else min(HEAD, len(data))
        at = rng.randrange(end)
        width = rng.choice([1, 2, 4])
        value = rng.choice([0, 1, 0x7F, 0xFF, 0xFFFFFFFE, 0xFFFFFFFF, rng.getrandbits(32)])
        data[at : at + width] = value.to_bytes(4, "little")[:width]
    return data


source, target = map(pathlib.Path, sys.argv[1:])
target.mkdir()
for file in sorted(source.iterdir()):
    if file.suffix in {".md", ".json"}:
        continue
    rng = random.Random(file.name)
    for number in range(VARIANTS):
        (target / f"{file.stem}-{number}").write_bytes(damaged(file.read_bytes(), rng))
