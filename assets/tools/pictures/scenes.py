# SPDX-License-Identifier: MIT
"""The application icon and the backgrounds."""

from .style import BLUE, INK, ORANGE, PURPLE, YELLOW, flat, number, rect

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
    "l": ("##", ".#", ".#", ".#", ".#", ".#", ".#"),
    "k": ("#...", "#...", "#..#", "#.#.", "##..", "#.#.", "#..#"),
    "P": ("####.", "#...#", "#...#", "####.", "#....", "#....", "#...."),
    "u": (".....", ".....", "#...#", "#...#", "#...#", "#..##", ".##.#"),
    "s": (".....", ".....", ".####", "#....", ".###.", "....#", "####."),
    " ": ("..",) * 7,
}


def pixels(rows, x, y, size, key, fill):
    """One path of all pixels of one kind; runs in a row become one rectangle."""
    d = ""
    for row, text in enumerate(rows):
        column = 0
        while column < len(text):
            run = 0
            while column + run < len(text) and text[column + run] == key:
                run += 1
            if run:
                left, top = number(x + column * size), number(y + row * size)
                d += f"M{left},{top}h{number(run * size)}v{number(size)}h{number(-run * size)}Z"
            column += max(run, 1)
    return flat(d, fill) if d else ""


def application():
    """A tile of eight by eight pixels with a B and a plus: sharp at 16, 24, 32, 48, 64 and 128."""
    body = f'<rect x="1" y="1" width="62" height="62" rx="9" fill="url(#purple)" stroke="{INK}" stroke-width="2"/>'
    return body + pixels(ICON, 0, 0, 8, "Y", YELLOW) + pixels(ICON, 0, 0, 8, "O", ORANGE)


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


INVADER = ("..#..#..", "...##...", "..####..", ".##..##.", "########", "#.####.#", "#.#..#.#", "..#..#..")
SHIP = ("...##...", "...##...", "..####..", "..#..#..", ".######.", "########", "##.##.##", "#..##..#")
HEART = (".##..##.", "########", "########", "########", ".######.", "..####..", "...##...", "........")
GEM = ("........", ".######.", "##....##", "#.####.#", ".#.##.#.", "..#..#..", "...##...", "........")
KEY = ("..####..", ".##..##.", ".##..##.", "..####..", "...##...", "...###..", "...##...", "...###..")
MUSHROOM = ("..####..", ".##..##.", "###..###", "########", "#.####.#", "..#..#..", "..#..#..", "..####..")

FRIEZE = ((INVADER, YELLOW, "#3A0A4E"), (HEART, "#FF5060", "#4C1058"), (SHIP, "#8FB2FF", "#2C0840"),
          (MUSHROOM, ORANGE, "#3A0A4E"), (GEM, "#7FE0A0", "#4C1058"), (KEY, YELLOW, "#2C0840"))


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
    for i in range(10):
        rows, colour, ground = FRIEZE[(i * 5 + i // 6) % 6]
        x, y = 14 + i * 48, 112
        body += rect(x, y, 40, 40, ground) + pixels(rows, x, y, 5, "#", colour)
    return body + plate(20, 196, 24) + plate(20, 236, 36) + plate(259, 236, 36)


def pictures():
    """Name -> (width, height, body)."""
    return {
        "brolkplus": (64, 64, application()),
        "background-tool": (64, 64, quiet("#EDE9F4", "#F1EEF7", "#E9E4F1")),
        "background-toolbar": (64, 64, weave("#E6DFF0", "#EBE5F4")),
        "background-about": (499, 361, about()),
    }
