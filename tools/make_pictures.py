#!/usr/bin/env python3
"""Draws the reports' title pictures and the window's badges into resources/Fonts.

Both show what the conditioner does: a disturbed wave comes in and a clean one goes out. Each model line has its
own colour. Needs python3-cairo and python3-pil.
"""

import io
import math
import pathlib

import cairo
from PIL import Image

TARGET = pathlib.Path(__file__).resolve().parent.parent / "resources" / "Fonts"

# Ground at the top and at the bottom, and the clean wave.
MODELS = {
    "RV": ((0.09, 0.25, 0.47), (0.05, 0.15, 0.31), (0.55, 0.83, 1.00)),
    "TR": ((0.03, 0.38, 0.38), (0.02, 0.23, 0.25), (0.58, 0.95, 0.80)),
}
WHITE = (1, 1, 1)


def rounded(context, x, y, width, height, radius):
    context.new_sub_path()
    for turn, (cx, cy) in enumerate(
        [(x + width - radius, y + radius), (x + width - radius, y + height - radius),
         (x + radius, y + height - radius), (x + radius, y + radius)]
    ):
        context.arc(cx, cy, radius, (turn - 1) * math.pi / 2, turn * math.pi / 2)
    context.close_path()


def ground(context, box, radius, top, bottom):
    x, y, width, height = box
    shade = cairo.LinearGradient(0, y, 0, y + height)
    shade.add_color_stop_rgb(0, *top)
    shade.add_color_stop_rgb(1, *bottom)
    rounded(context, x, y, width, height, radius)
    context.set_source(shade)
    context.fill()


def clean(t):
    return math.sin(2 * math.pi * t)


def disturbed(t):
    """A wave with a sag in its first half and a spike in its second, as a monitor would show it."""
    spike = 1.1 * math.exp(-(((t - 0.36) / 0.018) ** 2)) - 0.8 * math.exp(-(((t - 0.41) / 0.016) ** 2))
    return clean(t) * (0.55 if t < 0.5 else 0.95) + spike + 0.16 * math.sin(2 * math.pi * 11 * t)


def wave(context, box, function, colour, width, periods=1.0):
    x, y, across, up = box
    for i in range(401):
        t = i / 400
        point = (x + across * t, y + up / 2 * (1 - function(t * periods)))
        context.line_to(*point)
    context.set_source_rgb(*colour)
    context.set_line_width(width)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.stroke()


def axis(context, x, y, across, width):
    context.set_source_rgba(1, 1, 1, 0.28)
    context.set_line_width(width)
    context.move_to(x, y)
    context.line_to(x + across, y)
    context.stroke()


def surface(width, height):
    image = cairo.ImageSurface(cairo.FORMAT_ARGB32, width, height)
    return image, cairo.Context(image)


def pixels(image):
    data = io.BytesIO()
    image.write_to_png(data)
    return Image.open(data).convert("RGBA")


def title(model):
    """Two thirds as wide as high, on the white of the paper: the wave before and after, one above the other."""
    top, bottom, light = MODELS[model]
    image, context = surface(400, 600)
    context.set_source_rgb(*WHITE)
    context.paint()
    ground(context, (8, 8, 384, 584), 56, top, bottom)
    for middle, function, colour, width in ((180, disturbed, WHITE, 16), (420, clean, light, 22)):
        axis(context, 56, middle, 288, 4)
        wave(context, (56, middle - 88, 288, 176), function, colour, width)
    paper = Image.new("RGB", (400, 600), "white")
    paper.paste(pixels(image).convert("RGB"))
    paper.save(TARGET / f"PDF_title{model}.jpg", quality=90, dpi=(72, 72), optimize=True)


def badge(model):
    """Side by side, for a strip of 26 points height; drawn at three times that for fine screens."""
    top, bottom, light = MODELS[model]
    image, context = surface(150, 78)
    ground(context, (0, 0, 150, 78), 14, top, bottom)
    axis(context, 14, 39, 122, 1.5)
    wave(context, (14, 17, 61, 44), disturbed, WHITE, 4)
    wave(context, (75, 17, 61, 44), clean, light, 5)
    drawn = pixels(image)
    colours = drawn.convert("RGB").quantize(colors=63, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    # The corners are clear.
    clear = drawn.getchannel("A").point(lambda alpha: 255 if alpha < 128 else 0)
    colours.paste(63, mask=clear)
    colours.save(TARGET / f"Lower{model}.gif", transparency=63, optimize=False)


def main():
    TARGET.mkdir(parents=True, exist_ok=True)
    for model in MODELS:
        title(model)
        badge(model)


if __name__ == "__main__":
    main()
