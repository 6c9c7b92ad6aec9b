# SPDX-License-Identifier: MIT
"""The pictures of the message box: faces with words, the four signs, the keyboard markers."""

from . import signs as s
from .lettering import word
from .style import INK, NAVY, WHITE, box, disc, line, path, polar, polygon, shape

FACES = ("OK", "Cancel", "Yes", "No", "Abort", "Retry", "Ignore")


def face(text):
    """A button face of 80 by 32 with the word drawn in."""
    return box(1, 1, 78, 30, "paper", 3) + word(text, 40, 21, NAVY, 2)


def octagon():
    """A stop sign with a cross."""
    corners = [polar(24, 24, 22.25, 22.5 + 45 * i) for i in range(8)]
    return shape(polygon(corners), "red", width=2.5) + line("M16.5,16.5 L31.5,31.5 M31.5,16.5 L16.5,31.5",
                                                            WHITE, 5)


def bubble():
    """A question mark in a speech bubble."""
    d = ("M24,3.5 C36,3.5 44.75,10.5 44.75,20.5 C44.75,30.5 36,37.5 24,37.5 C22.6,37.5 21.2,37.4 19.9,37.2"
         " L9.5,44.5 L11.6,34.4 C6.3,31.3 3.25,26.4 3.25,20.5 C3.25,10.5 12,3.5 24,3.5 Z")
    return shape(d, "purple", width=2.5) + s.question(24, 20.5, 24, WHITE, 4.5)


def enter():
    """A green key with the return arrow."""
    turn = "M23,9 V16.5 H10 M14.5,11.5 L9.5,16.5 L14.5,21.5"
    return box(2, 2, 28, 28, "green", 4, 2) + line(turn, INK, 5.5) + line(turn, WHITE, 3)


def escape():
    """A red disc with a cross."""
    return disc(16, 16, 14, "red", 2) + line("M11,11 L21,21 M21,11 L11,21", INK, 5.5) + line(
        "M11,11 L21,21 M21,11 L11,21", WHITE, 3)


def pictures():
    """Every picture of the message box: name -> (width, height, body)."""
    made = {f"face-{text.lower()}": (80, 32, face(text)) for text in FACES}
    made |= {
        "msg-info": (48, 48, disc(24, 24, 22, "blue", 2.5) + s.letter_i(24, 24, 29, WHITE, 5.5)),
        "msg-exclamation": (48, 48, shape(path("M24,4.25 L45.25,42.75 H2.75 Z"), "yellow", width=2.5)
                            + line("M24,17 V28", INK, 5) + f'<circle cx="24" cy="36" r="3" fill="{INK}"/>'),
        "msg-question": (48, 48, bubble()),
        "msg-critical": (48, 48, octagon()),
        "mark-enter": (32, 32, enter()),
        "mark-escape": (32, 32, escape()),
        "yes-mark": (32, 32, s.tick(2, 2, 28, 5)),
        "no-mark": (32, 32, s.cross(2, 2, 28, 5)),
        "blank": (4, 4, '<rect width="4" height="4" fill="none"/>'),
    }
    return made
