# SPDX-License-Identifier: MIT
"""What buttons do (verbs): arrows, plus, minus, tick, cross, and the few drawn characters."""

from .style import (GREEN, INK, NAVY, ORANGE, STROKE, WHITE, arc, disc, dot, flat, line, path,
                    polar, polygon, shape)


def arrow(shaft, tip, heading, material="orange", colour=ORANGE, width=2.25, head=7.5):
    """A thick arrow: the shaft's path, the tip of the head and its heading in degrees."""
    x, y = tip
    back = polar(x, y, head * 0.58, heading + 180)
    triangle = polygon([tip, polar(*back, head / 2, heading + 90), polar(*back, head / 2, heading - 90)])
    return (line(shaft, INK, width + 2.5, "butt") + shape(triangle, material)
            + line(shaft, colour, width, "butt"))


def straight(x0, y0, x1, y1, heading, **kind):
    """A straight thick arrow from one point to another."""
    return arrow(path("M{},{} L{},{}", x0, y0, *polar(x1, y1, 3.4, heading + 180)), (x1, y1), heading,
                 **kind)


def bend():
    """The arrow of all 'from here to there' pictures: upper left thing to lower right thing."""
    return arrow("M13,4.5 H18.5 V8", (18.5, 11.25), 90)


def quarter_left():
    """An arrow that runs counterclockwise from the top to the left side."""
    x0, y0 = polar(16, 15.5, 11, -60)
    x1, y1 = polar(16, 15.5, 11, -154)
    return arrow(path("M{},{} A11,11 0 0 0 {},{}", x0, y0, x1, y1), polar(16, 15.5, 11, 178), 100,
                 width=2.5, head=8)


def back():
    """An arrow that turns round and runs back to the left: as it was before."""
    return arrow("M14,11.25 H17 A3.75,3.75 0 0 1 17,18.75 H11.5", (8, 18.75), 180, head=8)


def again_badge(cx=16.5, cy=16.5, radius=7):
    """Reload: a light disc with an arrow that circles once."""
    r = radius * 0.5
    neck = polar(cx, cy, r, 275)
    head = polygon([polar(*neck, 3.9, 18), polar(*neck, 3, 275), polar(*neck, 3, 95)])
    return disc(cx, cy, radius, WHITE) + line(arc(cx, cy, r, 20, 275), GREEN, 2, "butt") + flat(head, GREEN)


def plus_badge(cx=17.5, cy=17.5, radius=5.5):
    """Add: a green disc with a plus."""
    a = radius * 0.48
    return disc(cx, cy, radius, "green") + line(
        path("M{},{} H{} M{},{} V{}", cx - a, cy, cx + a, cx, cy - a, cy + a), WHITE, 2, "butt")


def minus_badge(cx=17.5, cy=17.5, radius=5.5):
    """Delete: a red disc with a minus."""
    a = radius * 0.48
    return disc(cx, cy, radius, "red") + line(path("M{},{} H{}", cx - a, cy, cx + a), WHITE, 2, "butt")


def cross_badge(cx=17.5, cy=17.5, radius=5.5):
    """Close: a red disc with a cross."""
    a = radius * 0.36
    return disc(cx, cy, radius, "red") + line(
        path("M{},{} L{},{} M{},{} L{},{}", cx - a, cy - a, cx + a, cy + a, cx + a, cy - a, cx - a,
             cy + a), WHITE, 2)


def tick(x, y, s, width=3.0):
    """Apply, yes: a green tick in a square of side s."""
    d = path("M{},{} L{},{} L{},{}", x + s * 0.12, y + s * 0.55, x + s * 0.38, y + s * 0.82, x + s * 0.88,
             y + s * 0.2)
    return line(d, INK, width + 2.5) + line(d, "#3DBB4B", width)


def cross(x, y, s, width=3.0):
    """No, away with it: a red cross in a square of side s."""
    a, b = s * 0.18, s * 0.82
    d = path("M{},{} L{},{} M{},{} L{},{}", x + a, y + a, x + b, y + b, x + b, y + a, x + a, y + b)
    return line(d, INK, width + 2.5) + line(d, "#E5303C", width)


def warning(x, y, w, h, width=1.75):
    """A yellow triangle with an exclamation mark."""
    body = path("M{},{} L{},{} H{} Z", x + w / 2, y + 1, x + w - 1, y + h - 1, x + 1)
    return (shape(body, "yellow") + line(path("M{},{} V{}", x + w / 2, y + h * 0.4, y + h * 0.62), INK, width)
            + dot(x + w / 2, y + h * 0.79, width * 0.55, INK))


def letter_i(cx, cy, h, colour=WHITE, width=2.0):
    """The i of information, centred."""
    top = cy - h / 2
    return dot(cx, top + width * 0.6, width * 0.65, colour) + line(
        path("M{},{} V{}", cx, top + h * 0.42, top + h - width / 2), colour, width)


def question(cx, cy, h, colour=WHITE, width=2.0):
    """A question mark, centred."""
    top, radius = cy - h / 2 + width / 2, h * 0.235
    d = path("M{},{} A{},{} 0 1 1 {},{} Q{},{} {},{}", cx - radius, top + radius, radius, radius,
             cx + radius * 0.62, top + radius * 1.78, cx, top + radius * 2.3, cx, top + h * 0.62)
    return line(d, colour, width) + dot(cx, cy + h / 2 - width * 0.6, width * 0.65, colour)


def letter_c(cx, cy, h, colour=NAVY, width=2.5):
    """The C of the programming language, centred."""
    return line(arc(cx, cy, h / 2 - width / 2, 45, 315), colour, width)


def sum_sign(x, y, w, h, colour=NAVY, width=2.0):
    """The sum sign of a checksum."""
    return line(path("M{},{} V{} H{} L{},{} L{},{} H{} V{}", x + w, y + h * 0.18, y, x, x + w * 0.55,
                     y + h / 2, x, y + h, x + w, y + h * 0.82), colour, width)


def digit_one(x, y, h, width=STROKE):
    """The digit 1, four units wide."""
    return line(path("M{},{} L{},{} V{}", x + 0.5, y + h * 0.28, x + 2.5, y, y + h), INK, width)


def digit_nine(x, y, h, width=STROKE):
    """The digit 9, five units wide."""
    r = h * 0.3
    return line(path("M{},{} A{},{} 0 1 1 {},{} Q{},{} {},{}", x + 2 * r, y + r, r, r, x + 2 * r, y + r - 0.01,
                     x + 2 * r, y + h * 0.85, x + r * 0.7, y + h), INK, width)
