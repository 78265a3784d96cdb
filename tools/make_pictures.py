#!/usr/bin/env python3
"""Turns the picture recipes (text grids) into the .bmp and .ico files that the resource scripts name.

    make_pictures.py OUTDIR [--png SCALE]

Reads resources/pictures/*.txt, siblings/kitrel/resources/pictures/*.txt and gallery/pictures/*.txt in this script's
parent folder and writes one file per recipe, named after it. --png also writes each picture enlarged, to be looked at.

A recipe is a text file; a line that begins with ';' is a comment. Its settings come first:

    kind: bitmap | icon | blend
    bits: 4 | 24                  bits a pixel of a bitmap (4 has at most sixteen colours)
    size: 64x15                   of a bitmap, when it is not that of its images side by side
    colour: K RRGGBB[AA]          what the character K stands for; the colour of '.' fills what no image covers
    stop: Y RRGGBB                kind blend only: the colour of row Y, the rows between are blended

and then each image with its rows:

    image: 16x16                  one character a pixel
    image: 16x16 in 32x32         the same, in the middle of a larger empty image
    image: same in 32x32          the image before it once more, in the middle of a larger empty one

The images of a bitmap stand side by side. Each image of an icon is one of the sizes that the icon has.
"""
import pathlib
import struct
import sys
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("resources/pictures", "siblings/kitrel/resources/pictures", "gallery/pictures")


class RecipeError(Exception):
    """A recipe that cannot be drawn; the text says where and why."""


class Image:
    """A rectangle of (red, green, blue, alpha) pixels, rows from the top."""

    def __init__(self, width, height, pixel):
        self.width, self.height = width, height
        self.rows = [[pixel] * width for _ in range(height)]

    def paste(self, other, left, top):
        for y, row in enumerate(other.rows):
            self.rows[top + y][left:left + other.width] = row


def parse_colour(text):
    if len(text) not in (6, 8):
        raise ValueError(f"colour {text!r} is not RRGGBB or RRGGBBAA")
    value = bytes.fromhex(text)
    return tuple(value) + ((255,) if len(value) == 3 else ())


def parse_size(text):
    width, height = text.lower().split("x")
    return int(width), int(height)


def read_grid(lines, first, size, colours):
    """The image whose rows begin at line number `first` (counted from 0)."""
    width, height = size
    image = Image(width, height, None)
    for y in range(height):
        row = lines[first + y] if first + y < len(lines) else ""
        if len(row) != width:
            raise RecipeError(f"line {first + y + 1}: {len(row)} characters, {width} expected")
        for x, key in enumerate(row):
            if key not in colours:
                raise RecipeError(f"line {first + y + 1}: {key!r} has no colour")
            image.rows[y][x] = colours[key]
    return image


class Recipe:
    """One recipe file, read."""

    def __init__(self, path):
        self.kind, self.bits, self.size = "bitmap", 24, None
        self.colours, self.stops, self.images = {}, [], []
        lines = path.read_text(encoding="utf-8").splitlines()
        number = 0
        while number < len(lines):
            number += 1 + self.read_line(lines, number)

    def read_line(self, lines, number):
        """Reads one setting; returns how many lines after it belong to it."""
        line = lines[number].strip()
        if not line or line.startswith(";"):
            return 0
        try:
            name, _, value = line.partition(":")
            words = value.split()
            if name == "kind":
                self.kind = words[0]
            elif name == "bits":
                self.bits = int(words[0])
            elif name == "size":
                self.size = parse_size(words[0])
            elif name == "colour":
                self.colours[words[0]] = parse_colour(words[1])
            elif name == "stop":
                self.stops.append((int(words[0]), parse_colour(words[1])))
            elif name == "image":
                return self.read_image(lines, number, words)
            else:
                raise ValueError(f"unknown setting {name!r}")
        except (ValueError, IndexError) as error:
            raise RecipeError(f"line {number + 1}: {error}") from error
        return 0

    def read_image(self, lines, number, words):
        again = words[0] == "same"
        size = (self.images[-1].width, self.images[-1].height) if again else parse_size(words[0])
        image = self.images[-1] if again else read_grid(lines, number + 1, size, self.colours)
        if len(words) == 3 and words[1] == "in":
            outer = parse_size(words[2])
            whole = Image(*outer, self.colours["."])
            whole.paste(image, (outer[0] - size[0]) // 2, (outer[1] - size[1]) // 2)
            image = whole
        self.images.append(image)
        return 0 if again else size[1]

    def strip(self):
        """The images of a bitmap side by side."""
        width, height = self.size or (sum(i.width for i in self.images), max(i.height for i in self.images))
        whole = Image(width, height, self.colours["."])
        left = 0
        for image in self.images:
            whole.paste(image, left, 0)
            left += image.width
        return whole

    def blend(self):
        """Rows of one colour each, blended between the stops."""
        width, height = self.size
        whole = Image(width, height, None)
        for y in range(height):
            above = max((s for s in self.stops if s[0] <= y), key=lambda s: s[0])
            below = min((s for s in self.stops if s[0] >= y), key=lambda s: s[0])
            span = below[0] - above[0] or 1
            part = (y - above[0]) / span
            pixel = tuple(round(a + (b - a) * part) for a, b in zip(above[1], below[1]))
            whole.rows[y] = [pixel] * width
        return whole

    def pictures(self):
        if self.kind == "icon":
            return self.images
        return [self.blend() if self.kind == "blend" else self.strip()]


def padded(data, to=4):
    return data + bytes(-len(data) % to)


def bmp_bytes(image, bits):
    """A Windows bitmap file, bottom row first."""
    palette = b""
    if bits == 4:
        colours = sorted({pixel for row in image.rows for pixel in row})
        if len(colours) > 16:
            raise RecipeError(f"{len(colours)} colours, at most 16 with 4 bits")
        index = {pixel: i for i, pixel in enumerate(colours)}
        table = colours + [(0, 0, 0, 255)] * (16 - len(colours))
        palette = b"".join(bytes((b, g, r, 0)) for r, g, b, _ in table)
        rows = []
        for row in reversed(image.rows):
            nibbles = [index[pixel] for pixel in row] + [0] * (len(row) % 2)
            rows.append(padded(bytes(a << 4 | b for a, b in zip(nibbles[::2], nibbles[1::2]))))
    elif bits == 24:
        rows = [padded(b"".join(bytes((b, g, r)) for r, g, b, _ in row)) for row in reversed(image.rows)]
    else:
        raise RecipeError(f"{bits} bits a pixel: only 4 and 24 are written")
    pixels = b"".join(rows)
    offset = 14 + 40 + len(palette)
    header = struct.pack("<IiiHHIIiiII", 40, image.width, image.height, 1, bits, 0, len(pixels), 3780, 3780, 0, 0)
    return struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset) + header + palette + pixels


def icon_image_bytes(image):
    """One image of an icon: 32 bits with alpha, then the mask for those who have no alpha."""
    colour = b"".join(bytes((b, g, r, a)) for row in reversed(image.rows) for r, g, b, a in row)
    mask = b""
    for row in reversed(image.rows):
        bits = 0
        for pixel in row:
            bits = bits << 1 | (pixel[3] < 128)
        size = (image.width + 7) // 8
        mask += padded((bits << (size * 8 - image.width)).to_bytes(size, "big"))
    header = struct.pack("<IiiHHIIiiII", 40, image.width, image.height * 2, 1, 32, 0, len(colour) + len(mask), 0, 0, 0, 0)
    return header + colour + mask


def ico_bytes(images):
    parts = [icon_image_bytes(image) for image in images]
    offset = 6 + 16 * len(parts)
    head = struct.pack("<HHH", 0, 1, len(parts))
    for image, part in zip(images, parts):
        head += struct.pack("<BBBBHHII", image.width % 256, image.height % 256, 0, 0, 1, 32, len(part), offset)
        offset += len(part)
    return head + b"".join(parts)


def png_bytes(image, scale):
    """An enlarged copy, on a chequered ground where it is transparent."""
    lines = b""
    for y, row in enumerate(image.rows):
        line = b"\0"
        for x, (*colour, alpha) in enumerate(row):
            ground = 0xF0 if (x // 4 + y // 4) % 2 else 0xD8
            line += bytes((c * alpha + ground * (255 - alpha)) // 255 for c in colour) * scale
        lines += line * scale
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))
    head = struct.pack(">IIBBBBB", image.width * scale, image.height * scale, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b"")


def make(path, out, scale):
    recipe = Recipe(path)
    pictures = recipe.pictures()
    if recipe.kind == "icon":
        (out / (path.stem + ".ico")).write_bytes(ico_bytes(pictures))
    else:
        (out / (path.stem + ".bmp")).write_bytes(bmp_bytes(pictures[0], recipe.bits))
    if scale:
        for picture in pictures:
            name = f"{path.stem}-{picture.width}x{picture.height}.png"
            (out / name).write_bytes(png_bytes(picture, scale))


def main(arguments):
    scale = 0
    if len(arguments) == 3 and arguments[1] == "--png":
        scale = int(arguments[2])
    elif len(arguments) != 1:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    out = pathlib.Path(arguments[0])
    out.mkdir(parents=True, exist_ok=True)
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).glob("*.txt")):
            try:
                make(path, out, scale)
            except (RecipeError, ValueError, KeyError) as error:
                print(f"{path}: {error}", file=sys.stderr)
                return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
