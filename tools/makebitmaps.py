#!/usr/bin/env python3
"""makebitmaps.py: draws the pictures of the module's bitmap buttons (uicomponent/shared/bitmaps).

32 x 32 pixels with 16 colours. The key colour RGB(0, 128, 0) is transparent; each sign has a light
edge around a darker inside, so that it stands out on light and on dark faces.
"""
import pathlib
import struct

SIDE = 32
KEY, EDGE, INSIDE = 0, 1, 2
FOLDER = pathlib.Path(__file__).resolve().parent.parent / "uicomponent" / "shared" / "bitmaps"

# name, and the rectangles (left, top, right, bottom) and triangles (three points) it is made of
BAR = (6, 13, 26, 19)
SIGNS = {
    "add": ([BAR, (13, 6, 19, 26)], []),
    "remove": ([BAR], []),
    "moveup": ([(12, 15, 20, 27)], [((16, 4), (28, 16), (4, 16))]),
    "movedown": ([(12, 5, 20, 17)], [((16, 28), (4, 16), (28, 16))]),
}
# file name's end, and the colour of the inside
LOOKS = {"": (24, 96, 168), "disabled": (150, 150, 150)}


def in_triangle(x, y, corners):
    signs = []
    for (ax, ay), (bx, by) in zip(corners, corners[1:] + corners[:1]):
        signs.append((bx - ax) * (y - ay) - (by - ay) * (x - ax))
    return all(s >= 0 for s in signs) or all(s <= 0 for s in signs)


def pixels(rectangles, triangles):
    def inside(x, y):
        return any(l <= x < r and t <= y < b for l, t, r, b in rectangles) or any(
            in_triangle(x + 0.5, y + 0.5, corners) for corners in triangles)

    def near(x, y):
        return any(inside(x + dx, y + dy) for dx in (-1, 0, 1) for dy in (-1, 0, 1))

    return [[INSIDE if inside(x, y) else EDGE if near(x, y) else KEY for x in range(SIDE)]
            for y in range(SIDE)]


def bitmap(rows, inside_colour):
    colours = [(0, 128, 0), (250, 250, 250), inside_colour] + [(0, 0, 0)] * 13
    palette = b"".join(struct.pack("4B", b, g, r, 0) for r, g, b in colours)
    data = b"".join(bytes(row[x] << 4 | row[x + 1] for x in range(0, SIDE, 2))
                    for row in reversed(rows))
    header = struct.pack("<IiiHHIIiiII", 40, SIDE, SIDE, 1, 4, 0, len(data), 0, 0, 16, 0)
    offset = 14 + len(header) + len(palette)
    return struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset) + header + palette + data


def main():
    FOLDER.mkdir(exist_ok=True)
    for name, shapes in SIGNS.items():
        for look, colour in LOOKS.items():
            (FOLDER / f"{name}{look}.bmp").write_bytes(bitmap(pixels(*shapes), colour))


if __name__ == "__main__":
    main()
