#!/usr/bin/env python3
"""Draws the pictures of the catalogue's entries: writes heading.ico, group.ico and symbol.ico beside this script.

The tree's image list keeps 16 colours and no mask, so the pictures use the system's 16 colours and fill their whole
square with the tree's white. Shapes alone tell them apart: a folder, three boxes, a lozenge. The larger image is the
smaller one doubled, so that reducing it gives the same picture again.
"""

import pathlib
import struct

COLOURS = {  # the system's palette, by index: blue, green, red
    ".": (15, (255, 255, 255)),
    "K": (0, (0, 0, 0)),
    "R": (9, (0, 0, 255)),
    "N": (4, (128, 0, 0)),
    "B": (12, (255, 0, 0)),
    "C": (14, (255, 255, 0)),
    "Y": (11, (0, 255, 255)),
    "O": (3, (0, 128, 128)),
    "M": (1, (0, 0, 128)),
}

PICTURES = {
    "heading": """
................
................
..KKKKK.........
.KYYYYYK........
.KYYYYYYKKKKKK..
.KYYYYYYYYYYYYK.
.KYYYYYYYYYYYYK.
.KKKKKKKKKKKKKK.
.KYYYYYYYYYYYYK.
.KYYYYYYYYYYYYK.
.KYYYYYYYYYYYYK.
.KYYYYYYYYYYYYK.
.KOOOOOOOOOOOOK.
..KKKKKKKKKKKK..
................
................
""",
    "group": """
................
.....KKKKKK.....
.....KCCCCK.....
.....KCCCCK.....
.....KCCCCK.....
.....KCCCCK.....
.....KKKKKK.....
.......KK.......
...KKKKKKKKKK...
...K........K...
.KKKKKK..KKKKKK.
.KBBBBK..KBBBBK.
.KBBBBK..KBBBBK.
.KBBBBK..KBBBBK.
.KKKKKK..KKKKKK.
................
""",
    "symbol": """
................
.......KK.......
......KRRK......
.....KRRRRK.....
....KRR..RRK....
...KRR....RRK...
..KRR......RRK..
.KRR........RRK.
.KRR........RRK.
..KRR......RRK..
...KRR....RRK...
....KRR..RRK....
.....KRRRRK.....
......KRRK......
.......KK.......
................
""",
}


def bitmap(rows):
    """One image as an icon holds it: header, palette, 4-bit pixels and the empty mask, both from the bottom up."""
    size = len(rows)
    palette = [(0, 0, 0)] * 16
    for index, colour in COLOURS.values():
        palette[index] = colour
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 4, 0, 0, 0, 0, 16, 0)
    pixels = b""
    for row in reversed(rows):
        indices = [COLOURS[mark][0] for mark in row]
        pixels += bytes(high << 4 | low for high, low in zip(indices[::2], indices[1::2]))
    mask = b"\0" * (4 * size)
    return header + b"".join(struct.pack("BBBx", *colour) for colour in palette) + pixels + mask


def doubled(rows):
    return [line for row in rows for line in 2 * ["".join(2 * mark for mark in row)]]


def icon(rows):
    images = [(len(picture), bitmap(picture)) for picture in (rows, doubled(rows))]
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = len(directory) + 16 * len(images)
    for size, data in images:
        directory += struct.pack("<BBBBHHII", size, size, 16, 0, 1, 4, len(data), offset)
        offset += len(data)
    return directory + b"".join(data for _, data in images)


def main():
    folder = pathlib.Path(__file__).parent
    for name, picture in PICTURES.items():
        rows = picture.split()
        assert len(rows) == 16 and all(len(row) == 16 for row in rows), name
        (folder / f"{name}.ico").write_bytes(icon(rows))


if __name__ == "__main__":
    main()
