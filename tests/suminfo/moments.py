"""Creates a stream with times of many centuries, and the table expected by Python: moments.py STREAM TABLE"""
import datetime
import pathlib
import random
import struct
import sys

from code_pages import stream

EPOCH = datetime.datetime(1601, 1, 1)
SECOND = 10_000_000

days = [datetime.datetime(year, month, day) for year in (1604, 1700, 1900, 2000, 2004, 2023, 2100, 2400, 9996, 9999)
        for month, day in ((1, 1), (2, 28), (3, 1), (12, 31))]
days += [datetime.datetime(year, 2, 29) for year in (1604, 2000, 2024, 2400)]
rng = random.Random(1)
last = datetime.datetime(9999, 12, 31, 23, 59, 59)
moments = [EPOCH + datetime.timedelta(seconds=1)] + days + [last]
moments += [EPOCH + datetime.timedelta(seconds=rng.randrange(int((last - EPOCH).total_seconds()))) for _ in range(500)]

ticks = [round((moment - EPOCH).total_seconds()) * SECOND + rng.randrange(SECOND) for moment in moments]
shown = [f"{moment:%Y-%m-%d %H:%M:%S} UTC" for moment in moments]
for number, text in ((0, "never"), (2**63 - 1, "30828-09-14 02:48:05 UTC"), (2**63, f"{2**63} (no date)"),
                     (2**64 - 1, f"{2**64 - 1} (no date)")):
    ticks.append(number)
    shown.append(text)

pathlib.Path(sys.argv[1]).write_bytes(stream(1252, [struct.pack("<IQ", 64, number) for number in ticks]))
pathlib.Path(sys.argv[2]).write_text("".join(text + "\n" for text in shown))
