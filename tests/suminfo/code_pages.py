"""Creates streams with texts of every byte, and of every pair of lead byte and byte, in many code pages, and names of
custom properties in scripts with and without case: code_pages.py FOLDER"""
import pathlib
import struct
import sys

USER_DEFINED = bytes.fromhex("05d5cdd59c2e1b10939708002b2cf9ae")
KNOWN = [0, 1, 2, 3, 37, 437, 500, 708, 720, 737, 775, 850, 852, *range(855, 858), *range(860, 867), 869, 874, 875, 932, 936,
         949, 950, 1026, 1200, 1201, *range(1250, 1259), 1361, *range(10000, 10009), 10010, 10017, 10021, 10029, 10079, 10081,
         10082, 20127, 20866, 20932, 20949, 21866, *range(28591, 28600), 28603, 28605, 50220, 65000, 65001]
UNKNOWN = [10018, 28600]  # the system searches its files for these at each conversion, which is slow

PAIRED = {932, 936, 949, 950, 1200, 1361, 10001, 10002, 10003, 10008, 20932, 20949}


def text(data):
    return struct.pack("<II", 30, len(data) + 1) + data + b"\0"


def padded(data):
    return data + bytes(-len(data) % 4)


def stream(code_page, values, names=()):
    """Returns a set of one section: its code page, a dictionary if there are names, and the values from ID 2 on."""
    parts = [(1, struct.pack("<IHH", 2, code_page, 0))]
    if names:
        entries = b"".join(struct.pack("<II", i, len(n) + 1) + n + b"\0" for i, n in names)
        parts.append((0, struct.pack("<I", len(names)) + entries))
    parts += [(2 + i, value) for i, value in enumerate(values)]
    table, body = b"", b""
    for number, value in parts:
        table += struct.pack("<II", number, 8 + 8 * len(parts) + len(body))
        body += padded(value)
    section = struct.pack("<II", 8 + len(table) + len(body), len(parts)) + table + body
    return struct.pack("<HHI16xI", 0xFFFE, 0, 0x20006, 1) + USER_DEFINED + struct.pack("<I", 48) + section


# Valid and invalid UTF-8: overlong forms, surrogates, out of range, truncated.
SEQUENCES = ["c3a9", "c080", "c1bf", "e08080", "e09fbf", "e0a080", "eda080", "edbfbf", "ee8080", "f0808080", "f08fbfbf",
             "f0908080", "f48fbfbf", "f4908080", "f5808080", "f8888080", "ff", "80", "c3", "e282", "f09f98", "c341", "efbfbe"]

NAMES = {1251: ["Название", "ДАТА", "ёж"], 1252: ["Größe", "ÉTÉ", "Straße µ ÿ"], 1253: ["Όνομα", "ΣΊΓΜΑΣ ς"], 932: ["名前", "ＡＢＣ", "ソ表"],
         1254: ["İSTANBUL ı"], 65001: ["Ǆ ǅ ǆ ﬀ", "Ω Å K", "ſ"], 936: ["日期"]}


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir()
    for code_page in KNOWN + UNKNOWN:
        singles = [bytes([byte]) for byte in range(1, 256)]
        leads = range(0x81, 0xFF, 5) if code_page in PAIRED else []
        pairs = [bytes([lead, second]) for lead in leads for second in range(0x40, 0xFF, 7)]
        if code_page == 65001:
            pairs = [bytes.fromhex(sequence) for sequence in SEQUENCES]
        (folder / f"page{code_page}").write_bytes(stream(code_page, [text(t) for t in singles + pairs + [b""]]))
    for code_page, words in NAMES.items():
        encoding = "utf-8" if code_page == 65001 else f"cp{code_page}"
        for place, word in enumerate(words):
            names = [(2, word.encode(encoding))]
            (folder / f"name{code_page}-{place}").write_bytes(stream(code_page, [text(b"value")], names))


if __name__ == "__main__":
    main()
