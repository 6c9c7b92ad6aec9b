# SPDX-License-Identifier: MIT
"""The button pictures: one row of the table per picture, put together from parts and signs.

A thing with a small sign at the lower right reads "do that to the thing". Saving is a diskette and
loading a folder, with the thing at the lower right. From upper left to lower right along the bent
arrow reads "this goes there".
"""

from . import parts as p
from . import signs as s
from .style import (BLUE, INK, NAVY, ORANGE, PURPLE, RED, STROKE, WHITE, YELLOW, box, dashed, disc,
                    flat, line, path, rect, shape)

GRID = 24


def mirror_left_right():
    """Two triangles face each other over an upright dashed axis."""
    return (shape("M9.25,3.75 V20.25 H1.75 Z", "purple") + shape("M14.75,3.75 V20.25 H22.25 Z", WHITE)
            + dashed("M12,1 V23", INK, STROKE, 3, 1.75))


def mirror_top_bottom():
    """Two triangles face each other over a level dashed axis."""
    return (shape("M3.75,9.25 H20.25 V1.75 Z", "purple") + shape("M3.75,14.75 H20.25 V22.25 Z", WHITE)
            + dashed("M1,12 H23", INK, STROKE, 3, 1.75))


def strip(y):
    """Three colours of the palette side by side."""
    cells = "".join(rect(1.75 + i * 6.83, y + 0.75, 6.84, 8.5, colour)
                    for i, colour in enumerate((RED, YELLOW, BLUE)))
    bars = path("M{},{} v8.5 M{},{} v8.5", 8.58, y + 0.75, 15.42, y + 0.75)
    return cells + line(bars, INK, 1.25, "butt") + box(1, y, 22, 10, "none", 1)


def screen_grid():
    """Grid lines over a page."""
    return (box(2, 2, 20, 20, "paper", 1)
            + line("M8.5,2.5 V21.5 M15.5,2.5 V21.5 M2.5,8.5 H21.5 M2.5,15.5 H21.5", PURPLE, STROKE, "butt")
            + box(2, 2, 20, 20, "none", 1))


def bucket():
    """A bucket that pours paint."""
    pot = shape("M10.5,2.5 L20,12 L11.5,20.25 Q10.5,21.25 9.5,20.25 L2.5,13 Q1.5,12 2.5,11 Z", "steel")
    drop = shape("M20.25,13.5 C22.5,17 23,18 23,19.25 A2.6,2.6 0 0 1 17.75,19.25"
                 " C17.75,18 18.2,16.8 20.25,13.5 Z", "purple")
    paint = flat("M4.4,12 H18.2 L11,19.2 Q10.5,19.6 10,19.2 L3.6,12.8 Z", PURPLE)
    handle = line("M7,1.75 L12.5,7.25", INK, STROKE)
    return pot + paint + handle + drop


def book():
    """A book with a question mark."""
    return (shape("M3.75,19.5 V4.25 Q3.75,1.75 6.25,1.75 H20.25 V17 H6.25 Q3.75,17 3.75,19.5", "purple")
            + shape("M20.25,17 H6.25 A2.6,2.6 0 0 0 6.25,22.25 H20.25 Z", "paper")
            + s.question(12.5, 9.5, 11.5, YELLOW, 2))


def stopwatch():
    """A stopwatch."""
    return (line("M12,2 V5 M18.5,5.5 L20,7", INK, 2.5) + line("M9.5,1.75 H14.5", INK, 2.5)
            + disc(12, 14, 9, "paper")
            + flat("M12,14 V8 A6,6 0 0 1 17.6,16 Z", ORANGE) + line("M12,14 V8", INK, STROKE))


def corners():
    """Four corners around a full field: make everything fit (17 by 17)."""
    return (rect(5, 5, 7, 7, PURPLE)
            + line("M1.75,5.5 V1.75 H5.5 M11.5,1.75 H15.25 V5.5"
                   " M15.25,11.5 V15.25 H11.5 M5.5,15.25 H1.75 V11.5", INK, STROKE))


def small_c():
    """A page with the C of the target language at the lower right."""
    return p.page(12, 11, 11, 12, 3) + s.letter_c(17.5, 18, 6.5, NAVY, 1.75)


def empty_slots():
    """Empty places and an eye: show or hide what was not copied."""
    return p.frame(2, 1, 9, 2) + p.frame(13, 1, 9, 2) + p.eye(12, 16.5, 22, 9)


def reset():
    """Windows with an arrow that runs back."""
    return p.layout(1, 1, 17, 14) + s.back()


def wiped(thing, size=0):
    """A thing under the rubber; the foot of a square of that size is already blank."""
    blank = rect(2.5, 12, size - 3, size - 12.5, WHITE) if size else ""
    return thing + blank + p.eraser(14, 22.75)


def browser():
    """A window full of tiles under a magnifying glass."""
    colours = ((WHITE, YELLOW, ORANGE, WHITE), (BLUE, WHITE, YELLOW, PURPLE), (ORANGE, BLUE, WHITE, YELLOW))
    cells = "".join(rect(2 + i * 4.5, 6 + j * 4, 4.5, 4, colour)
                    for j, row in enumerate(colours) for i, colour in enumerate(row))
    bars = line("M6.5,6 V18 M11,6 V18 M15.5,6 V18 M2,10 H20 M2,14 H20", INK, 1, "butt")
    return (p.window(1, 1, 20, 18) + cells + bars + box(1, 1, 20, 18, "none")
            + p.magnifier(14, 13, 5.5, 3.25))


def floppy_with(noun):
    return p.floppy(1, 1, 18) + noun


def folder_with(noun):
    return p.folder(1, 2, 22, 17) + noun


TOOLBAR = {
    "browser": browser,
    "editor": lambda: p.tiles(1, 1, 18, 3) + p.pencil(8, 22.5, 18, -45),
    "tile-tool": lambda: p.tile(1, 1, 18) + p.wrench(12.5, 20.5, 17.75, 12),
    "pattern": lambda: p.tiles(1, 6, 17, 3) + p.pin(17, 17, 16),
    "color-set": lambda: p.palette(1, 2, 22, 20),
    "favorites": lambda: p.star(12, 12.75, 11.75),
    "file-info": lambda: p.page(2, 1, 17, 22) + disc(16.5, 16.5, 6.5, "blue") + s.letter_i(16.5, 16.5, 8.5),
    "bmp-import": lambda: p.picture(1, 1, 12, 10) + s.bend() + p.tiles(12, 12, 11),
    "bmp-export": lambda: p.tiles(1, 1, 11) + s.bend() + p.picture(11, 13, 12, 10),
    "help": book,
    "options": lambda: p.gear(12, 12, 11),
    "about": lambda: disc(12, 12, 11, "blue") + s.letter_i(12, 12, 14, WHITE, 2.75),
}


BROWSER = {
    "open": lambda: p.folder_back(1, 6, 22, 16) + p.page(8, 1, 11, 14, 4) + p.folder_front(1, 6, 22, 16),
    "close-file": lambda: p.closed_folder(1, 3, 20, 16) + s.cross_badge(17, 17, 6),
    "zoom-in": lambda: p.magnifier(10, 10, 8.75, 4.75) + line("M10,6 V14 M6,10 H14", INK, 2),
    "zoom-out": lambda: p.magnifier(10, 10, 8.75, 4.75) + line("M6,10 H14", INK, 2),
    "grid": screen_grid,
}

EDITOR = {
    "select": lambda: p.frame(1, 1, 18, 4) + p.pointer(9, 7.5, 16),
    "paint": lambda: p.brush(2, 22, 26, -45),
    "fill": bucket,
    "non-copied": empty_slots,
    "save-all": lambda: floppy_with(p.tiles(12, 12, 11)),
    "reload-all": lambda: p.tiles(1, 1, 18, 3) + s.again_badge(),
    "clear-all": lambda: wiped(p.tiles(1, 1, 18, 3), 18),
    "c-output": lambda: p.page(3, 1, 18, 22) + s.letter_c(12, 13.5, 11, NAVY, 2.75),
}

TILE_TOOL = {
    "save-tile": lambda: floppy_with(p.tile(12, 12, 11)),
    "reload-tile": lambda: p.tile(1, 1, 18) + s.again_badge(),
    "clear-tile": lambda: wiped(p.tile(1, 1, 18), 18),
    "copy-to-selection": lambda: p.tile(1, 1, 11) + s.bend() + p.frame(12, 12, 11, 3),
    "copy-to-address": lambda: p.tile(1, 1, 11) + s.bend() + p.pin(17, 23, 12),
    "flip-x": mirror_left_right,
    "flip-y": mirror_top_bottom,
    "rotate": lambda: s.quarter_left() + p.tile(9, 9, 14),
}

PATTERNS = {
    "apply": lambda: p.pin(9, 22, 20) + s.tick(9.5, 9.75, 12.5),
    "add": lambda: p.pin(9, 22, 20) + s.plus_badge(17, 17, 6),
    "delete": lambda: p.pin(9, 22, 20) + s.minus_badge(17, 17, 6),
    "save": lambda: floppy_with(p.pin(18, 23, 13)),
    "load": lambda: folder_with(p.pin(18, 23, 13)),
    "reload-tiles": lambda: p.tiles(1, 1, 18, 3) + s.again_badge(),
    "addresses-only": lambda: p.slots(1, 1, 18) + p.pin(16, 23, 17),
    "close": lambda: p.window(1, 2, 22, 20, 5) + s.cross(6.5, 9, 11),
}

COLOURS = {
    "apply-set": lambda: p.palette(1, 1, 20, 18) + s.tick(9.5, 9.75, 12.5),
    "add-set": lambda: p.palette(1, 1, 20, 18) + s.plus_badge(17, 17, 6),
    "delete-set": lambda: p.palette(1, 1, 20, 18) + s.minus_badge(17, 17, 6),
    "random": lambda: p.die(2, 2, 20),
    "load-set": lambda: folder_with(p.palette(11, 12, 12, 11, 3)),
    "save-set": lambda: floppy_with(p.palette(11, 12, 12, 11, 3)),
    "palette-in": lambda: p.chip(1, 1, 12, 11) + s.bend() + p.palette(10, 12, 13, 11, 3),
    "palette-out": lambda: p.palette(1, 1, 13, 11, 3) + s.bend() + p.chip(11, 12, 12, 11),
    "shift-left": lambda: strip(13) + s.straight(21, 6.5, 3, 6.5, 180, width=3, head=9),
    "shift-right": lambda: strip(13) + s.straight(3, 6.5, 21, 6.5, 0, width=3, head=9),
    "cancel": lambda: s.cross(1, 1, 22, 4),
}

FAVORITES = {
    "goto-favorite": lambda: p.star(10.5, 11, 10) + s.straight(10, 18, 23, 18, 0, width=3, head=9),
    "add-favorite": lambda: p.star(10.5, 11, 10) + s.plus_badge(17, 17, 6),
    "delete-favorite": lambda: p.star(10.5, 11, 10) + s.minus_badge(17, 17, 6),
    "new-list": lambda: p.page(2, 1, 16, 20) + p.star(16.5, 17, 6.5),
    "load-list": lambda: folder_with(p.star(17, 17, 6.5)),
    "save-list": lambda: floppy_with(p.star(17, 17, 6.5)),
    "sort": lambda: (s.straight(6, 2, 6, 22, 90, width=3, head=9) + s.digit_one(14, 2.5, 8, 2)
                     + s.digit_nine(14, 13.5, 8, 2)),
}

OTHERS = {
    "repair-checksum": lambda: p.page(1, 1, 17, 22) + s.sum_sign(5, 8, 7, 10) + p.wrench(12, 20.5, 17.75, 12.5),
    "convert-tiles": lambda: p.tiles(1, 1, 11) + s.bend() + small_c(),
    "convert-palette": lambda: p.palette(1, 1, 13, 11, 3) + s.bend() + small_c(),
    "benchmark": stopwatch,
    "save-warning": lambda: floppy_with(s.warning(9, 10, 14.5, 13)),
    "save-layout": lambda: floppy_with(p.layout(11, 12, 12, 11)),
    "load-layout": lambda: folder_with(p.layout(11, 12, 12, 11)),
    "reset-layout": reset,
    "clear-recent": lambda: wiped(p.clock(9, 9, 8)),
    "email": lambda: p.envelope(1, 4, 22, 16),
    "homepage": lambda: p.globe(11, 11, 10) + p.pointer(13, 11, 12),
}

SQUARE = TOOLBAR | BROWSER | EDITOR | TILE_TOOL | PATTERNS | COLOURS | FAVORITES | OTHERS

# Buttons whose face is not square: name -> width, height, picture.
ODD = {
    "recent": (10, 34, lambda: shape("M1,13.5 H9 L5,20 Z", "orange", width=1.25)),
    "goto": (18, 15, lambda: s.straight(1.5, 7.5, 17, 7.5, 0, width=3.5, head=11)),
    "fit": (17, 17, corners),
}


def pictures():
    """Every button picture: name -> (width, height, body)."""
    made = {name: (GRID, GRID, draw()) for name, draw in SQUARE.items()}
    made.update({name: (w, h, draw()) for name, (w, h, draw) in ODD.items()})
    return made
