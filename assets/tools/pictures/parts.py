# SPDX-License-Identifier: MIT
"""The things that buttons are about (nouns): tile, tiles, palette, address, file, window and so on.

Every part is drawn where and as large as it is needed, always with the common stroke width.
"""

import math

from .style import (BLUE, GREEN, INK, LILAC, NAVY, ORANGE, PURPLE, RED, STROKE, WHITE, YELLOW, box,
                    dashed, disc, dot, flat, line, outlined, path, polar, polygon, rect, shape,
                    turned)


def floppy(x, y, s):
    """A diskette: saving. The side s is about 18."""
    left, top, right, bottom = x + 0.75, y + 0.75, x + s - 0.75, y + s - 0.75
    body = path("M{},{} H{} L{},{} V{} H{} Z", left, top, right - 3, right, top + 3, bottom, left)
    return (shape(body, "navy")
            + rect(x + s * 0.28, top, s * 0.44, s * 0.3, "steel")
            + rect(x + s * 0.53, top + 1, s * 0.11, s * 0.2, INK)
            + rect(x + s * 0.2, y + s * 0.5, s * 0.6, s * 0.5 - 1.5, WHITE)
            + rect(x + s * 0.3, y + s * 0.6, s * 0.4, 1, ORANGE)
            + rect(x + s * 0.3, y + s * 0.76, s * 0.4, 1, ORANGE))


def folder_back(x, y, w, h):
    """The rear half of an open folder with its tab."""
    left, top, right, bottom = x + 0.75, y + 0.75, x + w - 3.75, y + h - 0.75
    return shape(path("M{},{} V{} L{},{} H{} L{},{} H{} V{} Z", left, bottom, top + 1, left + 1, top,
                      left + w * 0.3, left + w * 0.3 + 2, top + 2.25, right, bottom), "orange")


def folder_front(x, y, w, h):
    """The flap of an open folder."""
    left, right, bottom = x + 0.75, x + w - 0.75, y + h - 0.75
    return shape(path("M{},{} L{},{} H{} L{},{} Z", left, bottom, left + 3.5, y + h * 0.45, right,
                      right - 3.5, bottom), "yellow")


def folder(x, y, w, h):
    """An open folder: loading."""
    return folder_back(x, y, w, h) + folder_front(x, y, w, h)


def closed_folder(x, y, w, h):
    """A closed folder."""
    left, top, right, bottom = x + 0.75, y + 0.75, x + w - 0.75, y + h - 0.75
    return (shape(path("M{},{} V{} L{},{} H{} L{},{} H{} V{} Z", left, bottom, top + 1, left + 1,
                       top, left + w * 0.3, left + w * 0.3 + 2, top + 2.25, right, bottom), "orange")
            + shape(path("M{},{} H{} V{} H{} Z", left, top + 5, right, bottom, left), "yellow"))


def pixels(rows, x, y, size, key, fill):
    """One path of all pixels of one kind; a run in a row becomes one rectangle."""
    d = ""
    for row, text in enumerate(rows):
        column = 0
        while column < len(text):
            run = len(text) - column - len(text[column:].lstrip(key))
            if run:
                d += path("M{},{}h{}v{}h{}Z", x + column * size, y + row * size, run * size, size,
                          -run * size)
            column += max(run, 1)
    return flat(d, fill) if d else ""


CRITTER = (
    ".#...#.",
    "..#.#..",
    ".#####.",
    "##.#.##",
    "#######",
    "#.###.#",
    "..#.#..",
)


def tile(x, y, s):
    """One tile: a square with a picture of seven by seven pixels. Sharp with sides of 11 and 18."""
    pixel = int((s - 2 * STROKE) / 7 * 2) / 2
    margin = (s - 7 * pixel) / 2
    return box(x, y, s, s, PURPLE, 1) + pixels(CRITTER, x + margin, y + margin, pixel, "#", YELLOW)


def tiles(x, y, s, count=2, colours=(PURPLE, YELLOW, ORANGE, BLUE)):
    """Many tiles: separate squares in a grid."""
    cell = (s - STROKE) / count
    cells = "".join(
        rect(x + STROKE / 2 + column * cell, y + STROKE / 2 + row * cell, cell, cell,
             colours[(column + row * (count if count % 2 else count + 1) + row // 2) % len(colours)])
        for row in range(count) for column in range(count))
    bars = "".join(path("M{},{} V{} M{},{} H{}", x + STROKE / 2 + i * cell, y + 1, y + s - 1, x + 1,
                        y + STROKE / 2 + i * cell, x + s - 1) for i in range(1, count))
    return cells + line(bars, INK, 1, "butt") + box(x, y, s, s, "none", 1)


def frame(x, y, s, count):
    """A dashed square with solid corners: a place, not a thing; count dashes to a side."""
    side = s - STROKE
    pitch = side / count
    d = path("M{},{} h{} v{} h{} Z", x + 0.75, y + 0.75, side, side, -side)
    return flat(d, WHITE) + dashed(d, INK, STROKE, pitch * 0.58, pitch * 0.42)


def slots(x, y, s):
    """Empty places for four tiles."""
    cell = (s - 1) / 2
    return "".join(frame(x + column * (cell + 1), y + row * (cell + 1), cell, 2)
                   for row in range(2) for column in range(2))


def pin(cx, tip, h):
    """An address: the marker of a place, standing on its tip."""
    radius = h * 0.36
    top = tip - h + 0.75
    cy = top + radius
    side = radius * 0.9
    body = path("M{},{} C{},{} {},{} {},{} A{},{} 0 1 1 {},{} C{},{} {},{} {},{} Z",
                cx, tip - 0.75, cx - side * 0.4, tip - h * 0.28, cx - radius, cy + radius * 0.75,
                cx - radius, cy, radius, radius, cx + radius, cy,
                cx + radius, cy + radius * 0.75, cx + side * 0.4, tip - h * 0.28, cx, tip - 0.75)
    return shape(body, "red") + dot(cx, cy, radius * 0.42, WHITE)


def palette(x, y, w, h, blobs=4):
    """A painter's palette: a set of colours."""
    def at(*pairs):
        return [v for px, py in pairs for v in (x + 0.75 + px * (w - 1.5), y + 0.75 + py * (h - 1.5))]
    body = path("M{},{} C{},{} {},{} {},{} C{},{} {},{} {},{} C{},{} {},{} {},{}"
                " C{},{} {},{} {},{} C{},{} {},{} {},{} C{},{} {},{} {},{} Z",
                *at((.5, 0), (.78, 0), (1, .2), (1, .46), (1, .7), (.84, .72), (.73, .72),
                    (.6, .72), (.58, .8), (.62, .87), (.67, .95), (.6, 1), (.5, 1),
                    (.2, 1), (0, .78), (0, .5), (0, .2), (.22, 0), (.5, 0)))
    spots = {4: ((.2, .5, RED), (.36, .22, "#FFB000"), (.66, .22, GREEN), (.82, .46, BLUE)),
             3: ((.24, .5, RED), (.48, .25, GREEN), (.78, .42, BLUE))}[blobs]
    radius = w * (0.105 if blobs == 4 else 0.125)
    return shape(body, "paper") + "".join(
        dot(*at((px, py)), radius, colour) for px, py, colour in spots) + (
            dot(*at((.36, .76)), radius, PURPLE) if blobs == 4 else "")


def star(cx, cy, radius):
    """A favourite."""
    outer = radius - 0.75
    points = [polar(cx, cy, outer if i % 2 == 0 else outer * 0.45, -90 + 36 * i) for i in range(10)]
    return shape(polygon(points), "yellow")


def page(x, y, w, h, fold=5):
    """A sheet with a folded corner: a file."""
    left, top, right, bottom = x + 0.75, y + 0.75, x + w - 0.75, y + h - 0.75
    sheet = path("M{},{} H{} L{},{} V{} H{} Z", left, top, right - fold, right, top + fold, bottom,
                 left)
    corner = path("M{},{} V{} H{}", right - fold, top, top + fold, right)
    return shape(sheet, "paper") + shape(corner + " Z", LILAC)


def chip(x, y, w, h, legs=4):
    """A ROM chip with legs above and below."""
    pitch = (w - 1) / legs
    feet = "".join(path("M{},{} V{}", x + 0.5 + pitch * (i + 0.5), y, y + h) for i in range(legs))
    notch = path("M{},{} a{},{} 0 0 1 0,{} Z", x + 1.25, y + h / 2 - 1.5, 1.5, 1.5, 3)
    return (line(feet, INK, 1.5, "butt") + box(x, y + 2, w, h - 4, "#6A5C9C", 1)
            + flat(notch, WHITE) + line(path("M{},{} H{}", x + 5, y + h / 2, x + w - 2.5), WHITE, 1.25, "butt"))


def picture(x, y, w, h):
    """A framed landscape: a bitmap file."""
    left, right, bottom = x + 1.5, x + w - 1.5, y + h - 1.5
    hills = polygon([(left, bottom), (left, bottom - h * 0.12), (left + w * 0.28, bottom - h * 0.42),
                     (left + w * 0.46, bottom - h * 0.2), (left + w * 0.58, bottom - h * 0.32),
                     (right, bottom - h * 0.06), (right, bottom)])
    return (box(x, y, w, h, "sky", 1) + flat(hills, GREEN)
            + dot(x + w * 0.7, y + h * 0.33, w * 0.12, ORANGE) + box(x, y, w, h, "none", 1))


def window(x, y, w, h, bar=4):
    """A window with its title bar."""
    return (box(x, y, w, h, "paper") + rect(x + STROKE, y + STROKE, w - 2 * STROKE, bar - 1.5, PURPLE)
            + line(path("M{},{} H{}", x + 1, y + bar + 0.5, x + w - 1), INK, 1, "butt"))


def layout(x, y, w, h):
    """An arrangement of windows: two beside a wide one."""
    split = x + w * 0.4
    return (box(x, y, w, h, "paper", 1)
            + rect(x + STROKE, y + STROKE, split - x - STROKE, h - 2 * STROKE, "orange")
            + rect(split, y + STROKE, w - STROKE - (split - x), h * 0.45 - STROKE, "purple")
            + line(path("M{},{} V{} M{},{} H{}", split, y + 1, y + h - 1, split, y + h * 0.45,
                        x + w - 1), INK, 1.25, "butt")
            + box(x, y, w, h, "none", 1))


def clock(cx, cy, radius):
    """A clock face: what was used lately."""
    return (disc(cx, cy, radius, "paper")
            + line(path("M{},{} V{} L{},{}", cx, cy - radius * 0.55, cy, cx + radius * 0.4,
                        cy + radius * 0.28), INK, STROKE))


def magnifier(cx, cy, radius, reach):
    """A magnifying glass whose handle points to the lower right."""
    near, far = radius * 0.72, radius * 0.72 + reach
    handle = path("M{},{} L{},{}", cx + near, cy + near, cx + far, cy + far)
    return outlined(handle, ORANGE, 2.25) + disc(cx, cy, radius, "sky")


def pencil(x, y, length, angle=-45):
    """A pencil with its tip at the point, lying along the angle."""
    body = (shape(path("M{},{} H{} V{} H{} Z", x + 4, y - 2.25, x + length, y + 2.25, x + 4), "orange")
            + shape(path("M{},{} L{},{} V{} Z", x, y, x + 4.5, y - 2.25, y + 2.25), "paper")
            + flat(path("M{},{} l{},{} v{} Z", x - 0.3, y, 2.4, -1.3, 2.6), INK)
            + shape(path("M{},{} H{} V{} H{} Z", x + length - 3, y - 2.25, x + length, y + 2.25,
                         x + length - 3), "red"))
    return turned(body, angle, x, y)


def brush(x, y, length, angle=-45):
    """A paint brush with its tip at the point."""
    hair = path("M{},{} C{},{} {},{} {},{} V{} C{},{} {},{} {},{} Z", x, y, x + 1, y - 2.2, x + 3,
                y - 4, x + 8, y - 3, y + 3, x + 5, y + 4.4, x + 2, y + 2, x, y)
    body = (shape(path("M{},{} L{},{} V{} L{},{} Z", x + 10, y - 2.25, x + length, y - 1, y + 1,
                       x + 10, y + 2.25), "orange")
            + shape(hair, "purple")
            + shape(path("M{},{} H{} V{} H{} Z", x + 7.5, y - 2.75, x + 11, y + 2.75, x + 7.5),
                    "steel"))
    return turned(body, angle, x, y)


def eraser(x, y, w=11, h=7):
    """A rubber standing on its corner at the point, leaning to the right: wiping out."""
    body = (box(x, y - h, w, h, "#FF9DB0", 1)
            + shape(path("M{},{} H{} V{} H{} Z", x + w * 0.45, y - h + 0.75, x + w - 0.75, y - 0.75,
                         x + w * 0.45), "blue"))
    return turned(body, -45, x, y)


def eye(cx, cy, w, h):
    """An open eye: showing and hiding."""
    lens = path("M{},{} Q{},{} {},{} Q{},{} {},{} Z", cx - w / 2 + 0.75, cy, cx, cy - h, cx + w / 2 - 0.75,
                cy, cx, cy + h, cx - w / 2 + 0.75, cy)
    return shape(lens, WHITE) + dot(cx, cy, h * 0.36, INK)


def gear(cx, cy, radius, teeth=8):
    """A toothed wheel: settings."""
    points = []
    for i in range(teeth):
        middle = 360 / teeth * i
        for turn, reach in ((-15, 0.72), (-9, 1), (9, 1), (15, 0.72)):
            points.append(polar(cx, cy, (radius - 0.75) * reach, middle + turn))
    return shape(polygon(points), "steel") + disc(cx, cy, radius * 0.34, "orange")


def wrench(x0, y0, x1, y1, jaw=3.2):
    """A spanner from its end to its open jaw: repair, tool."""
    heading = math.degrees(math.atan2(y1 - y0, x1 - x0))
    points = [polar(x1, y1, jaw, heading + 40 + i * 28) for i in range(11)]
    open_jaw = "M" + " L".join(path("{},{}", *p) for p in points)
    ex, ey = polar(x1, y1, jaw, heading + 180)
    shaft = path("M{},{} L{},{}", x0, y0, ex, ey)
    return (line(shaft, INK, 5) + line(open_jaw, INK, 4.75)
            + line(shaft, "#C9C3DC", 2.25) + line(open_jaw, "#C9C3DC", 2))


def die(x, y, s):
    """A die with five pips: chance."""
    pips = ((.28, .28, RED), (.72, .28, GREEN), (.5, .5, PURPLE), (.28, .72, BLUE), (.72, .72, ORANGE))
    return box(x, y, s, s, "paper", 3.5) + "".join(
        dot(x + s * px, y + s * py, s * 0.1, colour) for px, py, colour in pips)


def pointer(x, y, h):
    """The mouse arrow with its tip at the point."""
    u = h / 16
    outline = [(0, 0), (0, 13), (3.2, 10), (5.4, 15.2), (8, 14.1), (5.8, 9), (10, 9)]
    return shape(polygon([(x + px * u, y + py * u) for px, py in outline]), WHITE)


def envelope(x, y, w, h):
    """A letter."""
    return box(x, y, w, h, "paper") + line(
        path("M{},{} L{},{} L{},{}", x + 1.5, y + 1.75, x + w / 2, y + h * 0.58, x + w - 1.5, y + 1.75))


def globe(cx, cy, radius):
    """The web."""
    r = radius - 0.75
    bulge = r * 0.5
    lines = (path("M{},{} C{},{} {},{} {},{} C{},{} {},{} {},{}", cx, cy - r, cx - bulge * 1.35,
                  cy - r * 0.5, cx - bulge * 1.35, cy + r * 0.5, cx, cy + r, cx + bulge * 1.35,
                  cy + r * 0.5, cx + bulge * 1.35, cy - r * 0.5, cx, cy - r)
             + path("M{},{} H{}", cx - r, cy, cx + r))
    return disc(cx, cy, radius, "sky") + line(lines, NAVY, 1.25)
