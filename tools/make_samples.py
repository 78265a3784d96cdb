#!/usr/bin/env python3
"""Draws the gallery's sample pictures.

    make_samples.py OUTDIR

    landscape.bmp   24 bits: a photo-like picture with soft gradients
    portal.gif      4 bits: a structural drawing of thin lines
    load.gif        4 bits, animated: a load crosses a beam; frames of several sizes, delays and disposals,
                    a comment and a loop count
"""
import math
import pathlib
import struct
import sys

from make_pictures import Image, bmp_bytes

KEEP, TO_BACKGROUND, TO_PREVIOUS = 1, 2, 3  # disposals of a GIF frame

# ---- drawing -------------------------------------------------------------------------------------------------------

# 16 colours of the drawings; the last one stands for "transparent" where a frame has that
PAPER, INK, STEEL, LIGHT, RED, BLUE, GREEN, GREY, SHADE, ORANGE, CLEAR = range(11)
PALETTE = [
    (0xFD, 0xFC, 0xF7), (0x1C, 0x22, 0x2B), (0x3E, 0x5C, 0x76), (0x9F, 0xB6, 0xC8), (0xC2, 0x30, 0x2B),
    (0x1F, 0x5F, 0xBF), (0x2E, 0x7D, 0x4F), (0x8A, 0x8F, 0x98), (0xE4, 0xE6, 0xE3), (0xE0, 0x8A, 0x1E),
    (0xFD, 0xFC, 0xF7)] + [(0, 0, 0)] * 5

# letters of 3 by 5 points, a row a digit: 4 is the left point, 1 the right one
LETTERS = {
    "0": "75557", "1": "26227", "2": "71747", "3": "71717", "4": "55711", "5": "74717", "6": "74757", "7": "71122",
    "8": "75757", "9": "75717", ".": "00002", " ": "00000", "A": "25755", "B": "65656", "C": "34443", "F": "74644",
    "H": "55755", "E": "74647", "I": "72227", "P": "65644", "k": "45655", "N": "57755", "m": "00775", "=": "07070",
    "/": "11244", "q": "07571", "x": "00525", "O": "75557", "K": "55655",
}


class Drawing:
    """Palette indexes, rows from the top."""

    def __init__(self, width, height, index=PAPER):
        self.width, self.height = width, height
        self.rows = [bytearray([index]) * width for _ in range(height)]

    def dot(self, x, y, index):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.rows[y][x] = index

    def line(self, x0, y0, x1, y1, index, width=1, dash=None):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        for step in range(steps + 1):
            if dash and step % sum(dash) >= dash[0]:
                continue
            x, y = round(x0 + (x1 - x0) * step / steps), round(y0 + (y1 - y0) * step / steps)
            for i in range(width):
                for j in range(width):
                    self.dot(x + i - width // 2, y + j - width // 2, index)

    def box(self, x0, y0, x1, y1, index):
        for y in range(y0, y1):
            self.line(x0, y, x1 - 1, y, index)

    def text(self, x, y, text, index, size=2):
        for letter in text:
            for row, bits in enumerate(LETTERS[letter]):
                for column in range(3):
                    if int(bits) & 4 >> column:
                        self.box(x + column * size, y + row * size, x + (column + 1) * size, y + (row + 1) * size, index)
            x += 4 * size

    def arrow(self, x, y0, y1, index):
        self.line(x, y0, x, y1, index)
        way = 1 if y1 > y0 else -1
        for i in range(5):
            self.line(x - i // 2, y1 - way * i, x + i // 2, y1 - way * i, index)

    def dimension(self, x0, x1, y, text):
        self.line(x0, y, x1, y, GREY)
        for x in (x0, x1):
            self.line(x, y - 4, x, y + 4, GREY)
            self.line(x - 3, y + 3, x + 3, y - 3, INK)
        self.text((x0 + x1) // 2 - len(text) * 4, y - 14, text, INK)

    def hinge(self, x, y):
        for i in range(10):
            self.line(x - i // 2 - 2, y + i, x + i // 2 + 2, y + i, LIGHT if 0 < i < 9 else INK)
        self.line(x - 12, y + 10, x + 12, y + 10, INK)
        for i in range(-12, 12, 4):
            self.line(x + i, y + 15, x + i + 4, y + 11, GREY)

    def cut(self, x0, y0, x1, y1):
        part = Drawing(x1 - x0, y1 - y0)
        part.rows = [row[x0:x1] for row in self.rows[y0:y1]]
        return part


def portal():
    """A portal frame with its loads, axes and dimensions."""
    d = Drawing(360, 270)
    left, middle, right, ground, eaves, ridge = 48, 168, 288, 215, 105, 65
    for x in range(0, 360, 20):
        d.line(x, 0, x, 269, SHADE)
    for y in range(10, 270, 20):
        d.line(0, y, 359, y, SHADE)
    for x, name in ((left, "A"), (middle, "B"), (right, "C")):
        d.line(x, 24, x, 235, GREY, dash=(9, 3))
        for angle in range(0, 360, 6):
            d.dot(round(x + 9 * math.cos(math.radians(angle))), round(14 + 9 * math.sin(math.radians(angle))), INK)
        d.text(x - 3, 9, name, INK)
    for x0, y0, x1, y1 in ((left, ground, left, eaves), (right, ground, right, eaves),
                           (left, eaves, middle, ridge), (middle, ridge, right, eaves)):
        d.line(x0, y0, x1, y1, STEEL, 6)
        d.line(x0, y0, x1, y1, LIGHT, 2)
    for x in (left, right):
        d.box(x - 8, ground, x + 9, ground + 3, INK)
        d.hinge(x, ground + 3)
    for step in range(13):
        x = left + step * 20
        d.arrow(x, 38, round(eaves - (eaves - ridge) * (1 - abs(x - middle) / (middle - left))) - 6, RED)
    d.line(left, 38, right, 38, RED)
    d.text(left + 22, 25, "q=5.2kN/m", RED)
    d.dimension(left, right, 258, "12.00")
    d.line(320, eaves, 320, ground, GREY)
    for y in (eaves, ground):
        d.line(316, y, 324, y, GREY)
        d.line(317, y + 3, 323, y - 3, INK)
    d.text(326, (eaves + ground) // 2 - 5, "5.50", INK)
    d.text(left + 14, 150, "HEA 200", BLUE)
    d.text(middle - 30, 112, "IPE 300", BLUE)
    return d


def beam(position):
    """A beam that bends below a load; `position` from 0 to 1, or None without load."""
    d = Drawing(240, 140)
    left, right, level = 30, 210, 76
    depth = 0 if position is None else 15 * math.sin(math.pi * position)
    peak = 0.5 if position is None else min(max(position, 0.001), 0.999)
    def sag(x):
        t = (x - left) / (right - left)
        return depth * math.sin(math.pi * (0.5 * t / peak if t < peak else 0.5 + 0.5 * (t - peak) / (1 - peak)))
    d.line(left, level, right, level, GREY, dash=(4, 4))
    for x in range(left, right + 1):
        y = round(level + sag(x))
        d.line(x, y - 4, x, y + 4, STEEL)
        d.dot(x, y - 4, INK)
        d.dot(x, y + 4, INK)
        d.dot(x, y, LIGHT)
    for x in (left, right):
        d.hinge(x, level + 5)
    d.dimension(left, right, 128, "6.00")
    if position is not None:
        x = round(left + (right - left) * position)
        y = round(level + sag(x)) - 6
        d.arrow(x, y - 26, y, RED)
        d.box(x - 11, y - 44, x + 12, y - 28, ORANGE)
        d.text(x - 4, y - 41, "F", INK)
    return d


# ---- GIF -----------------------------------------------------------------------------------------------------------

def lzw(indexes, size):
    """The raster of a frame, in sub-blocks, behind its byte for the code size."""
    clear, end = 1 << size, (1 << size) + 1
    out, waiting, count = bytearray(), 0, 0
    table, width, string = {}, size + 1, b""

    def put(code):
        nonlocal waiting, count
        waiting |= code << count
        count += width
        while count >= 8:
            out.append(waiting & 255)
            waiting >>= 8
            count -= 8

    put(clear)
    for index in indexes:
        longer = string + bytes([index])
        if len(longer) == 1 or longer in table:
            string = longer
            continue
        put(table[string] if len(string) > 1 else string[0])
        if len(table) + end + 1 < 4096:
            table[longer] = len(table) + end + 1
            if len(table) + end + 1 > 1 << width and width < 12:
                width += 1
        else:
            put(clear)
            table, width = {}, size + 1
        string = longer[-1:]
    put(table[string] if len(string) > 1 else string[0])
    put(end)
    if count:
        out.append(waiting & 255)
    blocks = b"".join(bytes([len(out[i:i + 255])]) + out[i:i + 255] for i in range(0, len(out), 255))
    return bytes([size]) + blocks + b"\0"


class Gif:
    """A GIF stream with a table of 16 colours for all frames."""

    def __init__(self, width, height):
        self.head = b"GIF89a" + struct.pack("<HHBBB", width, height, 0xB3, 0, 0)
        self.head += b"".join(bytes(colour) for colour in PALETTE)
        self.body = b""

    def loops(self, count):
        self.body += b"\x21\xFF\x0BNETSCAPE2.0\x03\x01" + struct.pack("<H", count) + b"\0"

    def comment(self, text):
        self.body += b"\x21\xFE" + bytes([len(text)]) + text + b"\0"

    def frame(self, drawing, left=0, top=0, delay=0, disposal=0, transparent=None):
        flags = disposal << 2 | (transparent is not None)
        self.body += b"\x21\xF9\x04" + struct.pack("<BHB", flags, delay, transparent or 0) + b"\0"
        self.body += b"," + struct.pack("<HHHHB", left, top, drawing.width, drawing.height, 0)
        self.body += lzw(b"".join(drawing.rows), 4)

    def bytes(self):
        return self.head + self.body + b";"


def portal_gif():
    gif = Gif(360, 270)
    gif.frame(portal())
    return gif.bytes()


def load_gif():
    gif = Gif(240, 140)
    gif.loops(3)
    gif.comment(b"A load of 10 kN crosses a beam of 6 m; nine frames, three ways to leave one.")
    gif.frame(beam(None), delay=60, disposal=KEEP)
    for step in range(1, 6):  # whole strips over the first frame
        gif.frame(beam(step / 6).cut(18, 8, 222, 104), 18, 8, delay=14, disposal=KEEP)
    stamp = Drawing(44, 26, CLEAR)
    stamp.line(1, 1, 42, 1, GREEN, 2), stamp.line(1, 24, 42, 24, GREEN, 2)
    stamp.line(1, 1, 1, 24, GREEN, 2), stamp.line(42, 1, 42, 24, GREEN, 2)
    stamp.text(11, 6, "OK", GREEN, 3)
    gif.frame(stamp, 12, 14, delay=80, disposal=TO_PREVIOUS, transparent=CLEAR)  # goes away again
    gif.frame(beam(None).cut(18, 8, 222, 104), 18, 8, delay=30, disposal=TO_BACKGROUND)
    gif.frame(stamp, 98, 44, delay=70, disposal=KEEP, transparent=CLEAR)  # on what the frame before left empty
    return gif.bytes()


# ---- the landscape -------------------------------------------------------------------------------------------------

def blend(one, other, part):
    part = min(max(part, 0), 1)
    return tuple(a + (b - a) * part for a, b in zip(one, other))


def noise(x, y):
    """A smooth hash: between 0 and 1."""
    def corner(i, j):
        n = (i * 374761393 + j * 668265263) & 0xFFFFFFFF
        n = ((n ^ n >> 13) * 1274126177) & 0xFFFFFFFF
        return (n >> 8 & 0xFFFF) / 0xFFFF
    i, j = math.floor(x), math.floor(y)
    u, v = (t * t * (3 - 2 * t) for t in (x - i, y - j))
    above = corner(i, j) * (1 - u) + corner(i + 1, j) * u
    below = corner(i, j + 1) * (1 - u) + corner(i + 1, j + 1) * u
    return above * (1 - v) + below * v


def landscape(width=360, height=240):
    """An evening sky with a sun, hills in haze, and water that repeats them."""
    shore = round(height * 0.68)
    hills = [((0.50, 0.10, 2.5, 1), (150, 120, 150)), ((0.57, 0.09, 4, 7), (95, 85, 125)),
             ((0.64, 0.06, 7, 3), (48, 50, 80))]
    def colour(x, y):
        sky = blend((38, 62, 120), (250, 176, 110), (y / shore) ** 1.3)
        far = math.hypot(x - width * 0.66, (y - height * 0.42) * 1.05) / height
        sky = blend(sky, (255, 240, 205), max(0, 1 - far * 2.2) ** 2)
        if far < 0.055:
            sky = (255, 250, 232)
        sky = blend(sky, (255, 220, 200), 0.35 * max(0, noise(x / 46, y / 9 + 20) - 0.45) * 2)
        for (base, swing, count, seed), tone in hills:
            top = height * (base - swing * noise(x / width * count, seed) - 0.02 * noise(x / 9, seed + 9))
            if y > top:
                sky = blend(tone, (225, 165, 135), 0.35 * (1 - (y - top) / height * 5))
        return sky
    image = Image(width, height, None)
    for y in range(height):
        for x in range(width):
            if y < shore:
                pixel = colour(x, y)
            else:
                ripple = noise(x / 14, y * 0.9) - 0.5
                pixel = blend(colour(x + ripple * 10, max(0, 2 * shore - y + ripple * 4)), (22, 34, 62), 0.42)
            grain = 5 * (noise(x * 1.7, y * 1.7) - 0.5)
            image.rows[y][x] = tuple(min(max(round(c + grain), 0), 255) for c in pixel) + (255,)
    return image


def main(arguments):
    if len(arguments) != 1:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    out = pathlib.Path(arguments[0])
    out.mkdir(parents=True, exist_ok=True)
    (out / "landscape.bmp").write_bytes(bmp_bytes(landscape(), 24))
    (out / "portal.gif").write_bytes(portal_gif())
    (out / "load.gif").write_bytes(load_gif())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
