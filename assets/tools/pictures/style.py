# SPDX-License-Identifier: MIT
"""What every picture shares: ink, stroke width, colours, light, and the basic shapes.

Lengths are units of the picture's own view box; on the 24 unit grid one unit is one pixel of a
24 pixel picture. Boxes are given by their OUTER edge: the stroke lies inside, so that an edge on a
whole number is a sharp edge.
"""

import math
import re

INK = "#1B1147"
STROKE = 1.5
CORNER = 1.5

WHITE = "#FFFFFF"
PURPLE = "#800080"
ORANGE = "#FF8000"
NAVY = "#000080"
YELLOW = "#FFE11A"
GREEN = "#1F9A3A"
RED = "#D8202E"
BLUE = "#3A5FE0"
LILAC = "#E9DDF3"

# The light falls from the top left: (light, body) of each material.
MATERIALS = {
    "paper": (WHITE, "#DED6EC"),
    "purple": ("#CF5FCF", PURPLE),
    "navy": ("#5A6BE0", "#10108C"),
    "blue": ("#8FB2FF", BLUE),
    "sky": ("#E2EEFF", "#9CBCF8"),
    "orange": ("#FFC070", ORANGE),
    "yellow": ("#FFF7A0", "#FFCB14"),
    "green": ("#86E070", GREEN),
    "red": ("#FF8F80", RED),
    "steel": ("#F6F4FB", "#A49DBE"),
}


def number(value):
    """Shortest text of a coordinate, to a hundredth of a unit."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def path(template, *values):
    """Fills the {} of a path text with coordinates."""
    return template.format(*[number(v) for v in values])


def paint(fill):
    """A material becomes its gradient, anything else is a plain colour."""
    return f"url(#{fill})" if fill in MATERIALS else fill


def shape(d, fill, ink=INK, width=STROKE):
    """A filled path with the common outline."""
    return (f'<path d="{d}" fill="{paint(fill)}" stroke="{ink}" stroke-width="{number(width)}"'
            ' stroke-linejoin="round"/>')


def flat(d, fill):
    """A filled path without outline."""
    return f'<path d="{d}" fill="{paint(fill)}"/>'


def line(d, colour=INK, width=STROKE, cap="round"):
    """A stroke without filling."""
    return (f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{number(width)}"'
            f' stroke-linecap="{cap}" stroke-linejoin="round"/>')


def dashed(d, colour, width, dash, gap):
    """A dashed stroke that starts in the middle of a dash."""
    return (f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{number(width)}"'
            f' stroke-dasharray="{number(dash)},{number(gap)}" stroke-dashoffset="{number(dash / 2)}"/>')


def outlined(d, colour, width=2.0, edge=1.25):
    """A coloured stroke with the common dark edge on both sides."""
    return line(d, INK, width + 2 * edge) + line(d, colour, width)


def rect(x, y, w, h, fill):
    """A plain rectangle."""
    return (f'<rect x="{number(x)}" y="{number(y)}" width="{number(w)}" height="{number(h)}"'
            f' fill="{paint(fill)}"/>')


def box(x, y, w, h, fill, corner=CORNER, width=STROKE, ink=INK):
    """A rounded rectangle with the common outline inside the given outer edges."""
    half = width / 2
    return (f'<rect x="{number(x + half)}" y="{number(y + half)}" width="{number(w - width)}"'
            f' height="{number(h - width)}" rx="{number(corner)}" fill="{paint(fill)}"'
            f' stroke="{ink}" stroke-width="{number(width)}"/>')


def disc(cx, cy, radius, fill, width=STROKE):
    """A circle with the common outline inside the outer radius."""
    return (f'<circle cx="{number(cx)}" cy="{number(cy)}" r="{number(radius - width / 2)}"'
            f' fill="{paint(fill)}" stroke="{INK}" stroke-width="{number(width)}"/>')


def dot(cx, cy, radius, fill):
    """A circle without outline."""
    return (f'<circle cx="{number(cx)}" cy="{number(cy)}" r="{number(radius)}"'
            f' fill="{paint(fill)}"/>')


def polygon(points):
    """The closed path through the given points."""
    return "M" + " L".join(f"{number(x)},{number(y)}" for x, y in points) + " Z"


def turned(content, angle, cx, cy):
    """The content turned clockwise by an angle in degrees about a point."""
    return f'<g transform="rotate({number(angle)} {number(cx)} {number(cy)})">{content}</g>'


def polar(cx, cy, radius, degrees):
    """The point at an angle, clockwise from three o'clock."""
    turn = math.radians(degrees)
    return cx + radius * math.cos(turn), cy + radius * math.sin(turn)


def arc(cx, cy, radius, first, last):
    """The path of an arc, clockwise from the first to the last angle in degrees."""
    x0, y0 = polar(cx, cy, radius, first)
    x1, y1 = polar(cx, cy, radius, last)
    large = 1 if (last - first) > 180 else 0
    return path("M{},{} A{},{} 0 " + f"{large} 1" + " {},{}", x0, y0, radius, radius, x1, y1)


def document(width, height, body):
    """The whole file: header, the gradients in use, the body."""
    used = sorted(set(re.findall(r"url\(#(\w+)\)", body)) & set(MATERIALS))
    stops = "".join(
        f'<linearGradient id="{name}" x1="0" y1="0" x2="0.5" y2="1">'
        f'<stop offset="0" stop-color="{MATERIALS[name][0]}"/>'
        f'<stop offset="1" stop-color="{MATERIALS[name][1]}"/></linearGradient>\n' for name in used)
    defs = f"<defs>\n{stops}</defs>\n" if used else ""
    body = re.sub(r"(?<=>)(?=<(?!/))", "\n", body)
    return ('<!-- SPDX-License-Identifier: MIT -->\n'
            '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny"'
            f' width="{width}" height="{height}" viewBox="0 0 {width} {height}">\n'
            f"{defs}{body}\n</svg>\n")
