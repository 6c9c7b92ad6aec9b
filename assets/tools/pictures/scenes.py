# SPDX-License-Identifier: MIT
"""The application icon and the backgrounds."""

from .parts import pixels
from .style import INK, ORANGE, WHITE, YELLOW, rect

ICON = (
    "........",
    ".YYY.O..",
    ".Y.YOOO.",
    ".YYY.O..",
    ".Y..Y...",
    ".Y..Y...",
    ".YYYY...",
    "........",
)

# Five by seven pixels a letter, as a tile editor would draw them.
PIXEL_FONT = {
    "B": ("####.", "#...#", "#...#", "####.", "#...#", "#...#", "####."),
    "r": (".....", ".....", "#.##.", "##..#", "#....", "#....", "#...."),
    "o": (".....", ".....", ".###.", "#...#", "#...#", "#...#", ".###."),
    "l": ("#.", "#.", "#.", "#.", "#.", "#.", "##"),
    "k": ("#...", "#...", "#..#", "#.#.", "##..", "#.#.", "#..#"),
    "P": ("####.", "#...#", "#...#", "####.", "#....", "#....", "#...."),
    "u": (".....", ".....", "#...#", "#...#", "#...#", "#..##", ".##.#"),
    "s": (".....", ".....", ".####", "#....", ".###.", "....#", "####."),
    " ": ("..",) * 7,
}


def application():
    """A tile of eight by eight pixels with a B and a plus: sharp at 16, 24, 32, 48, 64 and 128."""
    body = ('<rect x="1" y="1" width="62" height="62" rx="9" fill="url(#purple)"'
            f' stroke="{INK}" stroke-width="2"/>')
    edge = f'<path d="M36,4 H52 V12 H60 V28 H52 V36 H36 V28 H28 V12 H36 Z" fill="{INK}"/>'
    return body + pixels(ICON, 0, 0, 8, "Y", YELLOW) + edge + pixels(ICON, 0, 0, 8, "O", ORANGE)


def text_rows(text):
    """The pixel rows of a text with one pixel between the letters."""
    return [".".join(PIXEL_FONT[letter][row] for letter in text) for row in range(7)]


def quiet(base, light, dark):
    """A tile-able ground: sparse pixels barely lighter and darker than the base."""
    light_spots = ((0, 0), (24, 8), (48, 16), (8, 32), (32, 40), (56, 48), (16, 56), (40, 24))
    dark_spots = ((16, 16), (40, 56), (8, 8), (56, 24), (32, 0), (24, 48), (48, 40), (0, 40))
    return (rect(0, 0, 64, 64, base) + "".join(rect(x, y, 8, 8, light) for x, y in light_spots)
            + "".join(rect(x, y, 8, 8, dark) for x, y in dark_spots))


def weave(base, light):
    """A tile-able ground of thin slanting lines."""
    return rect(0, 0, 64, 64, base) + "".join(
        f'<path d="M{x},64 L{x + 64},0" fill="none" stroke="{light}" stroke-width="2"/>'
        for x in range(-64, 65, 8))


# Tiles of eight by eight pixels; the letters are colours of INKS.
INKS = {"y": YELLOW, "o": ORANGE, "r": "#FF4F5E", "w": WHITE, "b": "#7FA8FF", "n": "#2A2AC8", "g": "#5FD08A",
        "p": "#D86BD8", "k": "#12041C"}
FRIEZE = (
    ("..y..y..", "...yy...", "..yyyy..", ".ykyyky.", "yyyyyyyy", "yoyyyyoy", "y.o..o.y", "..o..o.."),
    ("...bb...", "..bwwb..", "..bwwb..", ".bbbbbb.", "bbnbbnbb", "bnnbbnnb", "b.noon.b", "...yy..."),
    ("........", ".rr..rr.", "rwwrrrrr", "rwrrrrrr", "rrrrrrrr", ".rrrrrr.", "..rrrr..", "...rr..."),
    ("..yyyy..", ".yoooy..", ".yo.oy..", "..yyy...", "...y....", "...yyy..", "...y....", "...yy..."),
    (".gggggg.", "gwwggggg", "gwgggggg", ".gggggg.", ".gggggg.", "..gggg..", "...gg...", "...gg..."),
    ("...oo...", "...yo...", "..oyyo..", ".ooyyoo.", ".oywwyo.", "ooywwyoo", ".ooyyoo.", "..oooo.."),
    ("bbbbbbbb", "bnnnnnnb", "bnwnnwnb", "bnnnnnnb", "bnwwwwnb", "bnnnnnnb", "bbbbbbbb", "..b..b.."),
    ("....g...", "...g....", "..rgrr..", ".rrrrrr.", ".rwrrrr.", ".rwrrrr.", ".rrrrrr.", "..rrrr.."),
    ("...pp...", "..pppp..", ".ppwwpp.", "pppwwppp", ".pppppp.", "..pkkp..", "..pkkp..", ".pppppp."),
    ("yyyyyyyy", "yooooooy", "yoyyyyoy", "yoyooyoy", "yoyooyoy", "yoyyyyoy", "yooooooy", "yyyyyyyy"),
)


def plate(x, y, height):
    """A light field for navy text, 220 wide."""
    return (f'<rect x="{x}" y="{y}" width="220" height="{height}" rx="4" fill="#EDE9F4" stroke="{INK}"'
            ' stroke-width="1.5"/>')


def about():
    """The splash picture: name, a frieze of tiles, light plates for navy text, a dark foot for white text."""
    body = ('<defs><linearGradient id="night" x1="0" y1="0" x2="0" y2="1">'
            '<stop offset="0" stop-color="#8E1A96"/><stop offset="0.55" stop-color="#4A0A62"/>'
            '<stop offset="1" stop-color="#16061F"/></linearGradient></defs>')
    body += '<rect x="0" y="0" width="499" height="361" fill="url(#night)"/>'
    rows = text_rows("Brolk Plus")
    size = 8
    left = (499 - len(rows[0]) * size) // 2
    body += pixels(rows, left + 4, 36, size, "#", "#1B0526") + pixels(rows, left, 32, size, "#", YELLOW)
    body += pixels(rows[4:], left, 32 + 4 * size, size, "#", "#FFB21A")
    for i, picture in enumerate(FRIEZE):
        x, y = 14 + i * 48, 114
        body += rect(x - 2, y - 2, 44, 44, ORANGE) + rect(x, y, 40, 40, "#24063A")
        body += "".join(pixels(picture, x, y, 5, key, INKS[key]) for key in INKS)
    return body + plate(20, 196, 24) + plate(20, 236, 36) + plate(259, 236, 36)


def pictures():
    """Name -> (width, height, body)."""
    return {
        "brolkplus": (64, 64, application()),
        "background-tool": (64, 64, quiet("#EDE9F4", "#F1EEF7", "#E9E4F1")),
        "background-toolbar": (64, 64, weave("#E6DFF0", "#EBE5F4")),
        "background-about": (499, 361, about()),
    }
