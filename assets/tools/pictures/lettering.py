# SPDX-License-Identifier: MIT
"""A small alphabet of round strokes, so that no picture needs a font.

A letter is drawn with its stem's centre at x = 0 and its baseline's centre at y = 0 (y grows
downwards). Capitals are 11 high, small letters 7, between the centres of the strokes. A row holds
the path, the width between the outermost centres, and the gaps before and after (straight sides
keep more distance than round or open ones).
"""

from .style import number

CAPITAL = 11
STRAIGHT, ROUND, OPEN = 1.9, 1.3, 0.7

# letter: (path at the origin, width, gap before, gap after)
LETTERS = {
    "O": ("M5.5,0 A5.5,5.5 0 0 1 5.5,-11 A5.5,5.5 0 0 1 5.5,0 Z", 11, ROUND, ROUND),
    "K": ("M0,0 V-11 M7,-11 L0,-4 M2.6,-6.4 L7.5,0", 7.5, STRAIGHT, OPEN),
    "C": ("M9.3,-9 A5.5,5.5 0 1 0 9.3,-2", 9.3, ROUND, OPEN),
    "Y": ("M0,-11 L4.25,-5 L8.5,-11 M4.25,-5 V0", 8.5, OPEN, OPEN),
    "N": ("M0,0 V-11 L8,0 V-11", 8, STRAIGHT, STRAIGHT),
    "A": ("M0,0 L4.5,-11 L9,0 M1.5,-3.7 H7.5", 9, OPEN, OPEN),
    "R": ("M0,0 V-11 H3.9 A3.05,3.05 0 0 1 3.9,-4.9 H0 M3.6,-4.9 L7.2,0", 7.2, STRAIGHT, OPEN),
    "I": ("M0,0 V-11", 0, STRAIGHT, STRAIGHT),
    "a": ("M7,-7 V0 M7,-3.5 A3.5,3.5 0 1 1 0,-3.5 A3.5,3.5 0 0 1 7,-3.5", 7, ROUND, STRAIGHT),
    "b": ("M0,-11 V0 M0,-3.5 A3.5,3.5 0 1 1 7,-3.5 A3.5,3.5 0 0 1 0,-3.5", 7, STRAIGHT, ROUND),
    "c": ("M6.1,-5.8 A3.5,3.5 0 1 0 6.1,-1.2", 6.1, ROUND, OPEN),
    "e": ("M0.1,-3.6 H7 A3.5,3.5 0 1 0 6.1,-1.2", 7, ROUND, OPEN),
    "g": ("M7,-7 V0.8 A3.3,3.3 0 0 1 0.7,2.2 M7,-3.5 A3.5,3.5 0 1 1 0,-3.5 A3.5,3.5 0 0 1 7,-3.5", 7, ROUND,
          STRAIGHT),
    "l": ("M0,-11 V0", 0, STRAIGHT, STRAIGHT),
    "n": ("M0,-7 V0 M0,-4 A3,3 0 0 1 6,-4 V0", 6, STRAIGHT, STRAIGHT),
    "o": ("M3.5,0 A3.5,3.5 0 0 1 3.5,-7 A3.5,3.5 0 0 1 3.5,0 Z", 7, ROUND, ROUND),
    "r": ("M0,-7 V0 M0,-3.8 A3.2,3.2 0 0 1 3.8,-6.9", 3.8, STRAIGHT, OPEN),
    "s": ("M5,-5.9 C4.4,-6.7 3.6,-7 2.6,-7 C1.2,-7 0.2,-6.3 0.2,-5.2 C0.2,-2.8 5.3,-4.4 5.3,-1.8"
          " C5.3,-0.7 4.2,0 2.7,0 C1.5,0 0.6,-0.4 0,-1.2", 5.3, ROUND, ROUND),
    "t": ("M2,-10 V-1.9 Q2,0 3.9,0 H4.3 M0,-7 H4.3", 4.3, OPEN, OPEN),
    "y": ("M0,-7 L3.25,0 M6.5,-7 L2.6,1.5 Q1.8,3.4 0,3.3", 6.5, OPEN, OPEN),
}

# Pairs whose shapes leave a hole between them.
KERNING = {"Ye": -1.6, "Re": -0.2, "ry": -0.2, "tr": 0.2, "or": 0, "rt": 0.2, "no": -0.1, "Ca": 0}


def placed(word):
    """The letters of a word with the x of their stem, and the width between the outer centres."""
    x, previous, places = 0.0, "", []
    for letter in word:
        _, width, before, after = LETTERS[letter]
        if previous:
            x += LETTERS[previous][3] + before + KERNING.get(previous + letter, 0)
        places.append((letter, x))
        x += width
        previous = letter
    return places, x


def word(text, cx, baseline, colour, weight):
    """The word centred on cx. Stems fall on whole numbers where one letter's place decides it."""
    places, width = placed(text)
    left = cx - width / 2
    return "".join(
        f'<g transform="translate({number(round((left + x) * 2) / 2)} {number(baseline)})">'
        f'<path d="{LETTERS[letter][0]}" fill="none" stroke="{colour}" stroke-width="{number(weight)}"'
        ' stroke-linecap="round" stroke-linejoin="round"/></g>' for letter, x in places)
