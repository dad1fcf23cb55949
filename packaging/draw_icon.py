#!/usr/bin/env python3
"""Draws the program's icon, a meter over a wave: draw_icon.py FOLDER writes zephon.svg and zephon-SIDE.png.

The drawing is a list of shapes in a square of 64 units. Each tells its SVG element, and how far a point lies
outside of it (negative: inside), from which the pictures are painted without any library.
"""

import math
import pathlib
import struct
import sys
import zlib

UNITS = 64
SIDES = (16, 22, 24, 32, 48, 64, 128, 256)


class Square:
    """A square with round corners that fills the drawing but for a margin."""

    def __init__(self, margin, radius, colour):
        self.margin, self.radius, self.colour = margin, radius, colour

    def svg(self):
        side = UNITS - 2 * self.margin
        return (
            f'<rect x="{self.margin}" y="{self.margin}" width="{side}" height="{side}"'
            f' rx="{self.radius}" fill="{self.colour}"/>'
        )

    def outside(self, x, y):
        inner = UNITS / 2 - self.margin - self.radius
        dx, dy = abs(x - UNITS / 2) - inner, abs(y - UNITS / 2) - inner
        return math.hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0) - self.radius


class Stroke:
    """A line through points, with round ends."""

    def __init__(self, points, width, colour):
        self.points, self.width, self.colour = points, width, colour

    def svg(self):
        points = " ".join(f"{x:.2f},{y:.2f}" for x, y in self.points)
        return (
            f'<polyline points="{points}" fill="none" stroke="{self.colour}" stroke-width="{self.width}"'
            ' stroke-linecap="round" stroke-linejoin="round"/>'
        )

    def outside(self, x, y):
        pairs = zip(self.points, self.points[1:])
        return min(distance(x, y, *one, *other) for one, other in pairs) - self.width / 2


def distance(x, y, ax, ay, bx, by):
    """From a point to the stretch between two others."""
    dx, dy = bx - ax, by - ay
    along = ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy)
    along = min(max(along, 0), 1)
    return math.hypot(x - ax - along * dx, y - ay - along * dy)


def on_scale(degrees, radius):
    """A point of the meter: 0 degrees is at its left end, 180 at its right."""
    angle = math.radians(180 - degrees)
    return 32 + radius * math.cos(angle), 38 - radius * math.sin(angle)


def zone(start, end, colour):
    steps = 24
    angles = [start + (end - start) * step / steps for step in range(steps + 1)]
    return Stroke([on_scale(angle, 20) for angle in angles], 6, colour)


def wave(colour):
    xs = [14 + 36 * step / 36 for step in range(37)]
    return Stroke([(x, 50 - 4.5 * math.sin((x - 14) / 36 * 4 * math.pi)) for x in xs], 2.6, colour)


DRAWING = [
    Square(2, 13, "#244a66"),
    zone(0, 24, "#e3a535"),
    zone(44, 136, "#62bd74"),
    zone(156, 180, "#dc5a4c"),
    Stroke([(32, 38), on_scale(66, 17.5)], 3.6, "#ffffff"),
    Stroke([(32, 38), (32, 38.01)], 8, "#ffffff"),
    wave("#bfdcf2"),
]


def svg():
    shapes = "\n".join("  " + shape.svg() for shape in DRAWING)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{UNITS}" height="{UNITS}"'
        f' viewBox="0 0 {UNITS} {UNITS}">\n{shapes}\n</svg>\n'
    )


def pixel(x, y, unit):
    """Red, green, blue and opacity, 0 to 255, of the pixel around a point; `unit` is its width."""
    ink, opacity = [0.0, 0.0, 0.0], 0.0
    for shape in DRAWING:
        cover = min(max(0.5 - shape.outside(x, y) / unit, 0), 1)
        colour = [int(shape.colour[i : i + 2], 16) for i in (1, 3, 5)]
        ink = [old * (1 - cover) + new * cover for old, new in zip(ink, colour)]
        opacity = opacity * (1 - cover) + cover
    return [round(value / opacity) if opacity else 0 for value in ink] + [round(255 * opacity)]


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))


def png(side):
    unit = UNITS / side
    rows = b""
    for row in range(side):
        rows += b"\0"
        for column in range(side):
            rows += bytes(pixel((column + 0.5) * unit, (row + 0.5) * unit, unit))
    header = struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0)
    return (
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", header)
        + chunk(b"IDAT", zlib.compress(rows, 9))
        + chunk(b"IEND", b"")
    )


def main():
    folder = pathlib.Path(sys.argv[1])
    (folder / "zephon.svg").write_text(svg())
    for side in SIDES:
        (folder / f"zephon-{side}.png").write_bytes(png(side))


if __name__ == "__main__":
    main()
