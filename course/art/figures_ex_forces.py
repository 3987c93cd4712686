"""Figures of the exercises on forces: drawings to judge, weights to read, forces that close a triangle."""

import math

from drawing import (BALL, BLUE, EDGE, FORCE, GREEN, GROUND, INK, LINE, MUTED, ORANGE, RULE, SMALL, WHITE,
                     Drawing, Plot, french)

G = 9.81  # N/kg
WORLDS = [("A", 9.81, BLUE), ("B", 3.71, ORANGE), ("C", 1.62, GREEN)]  # N/kg: Earth, Mars, Moon

SLEDGE, SLOPE = 6.1 * G, 25  # weight in newtons, slope in degrees
JEANS, SAG = 1.0 * G, 30  # weight in newtons, angle of the line with the horizontal in degrees


def turned(x, y, long, degrees):
    """The point `long` pixels away, degrees anticlockwise from the right."""
    return x + long * math.cos(math.radians(degrees)), y - long * math.sin(math.radians(degrees))


def three_mistakes():
    d = Drawing(575, 222,
                "Trois dessins faux : une lampe au repos, la force du fil plus courte que le poids ; une bille sur "
                "un plan incliné, la force du plan verticale ; un ballon en vol, une force du pied dessus")
    for x in (194, 384):
        d.line(x, 8, x, 214, RULE, 1)
    # The lamp.
    d.rect(44, 12, 106, 8, GROUND)
    d.line(44, 20, 150, 20, EDGE, LINE)
    d.line(97, 20, 97, 96, INK, 1.4)
    d.path("M97 96L76 122H118Z", EDGE, LINE, BALL)
    d.arrow(97, 110, 97, 64, FORCE)
    d.text(106, 62, "~*T*~", 15, FORCE)
    d.arrow(97, 110, 97, 186, FORCE)
    d.text(106, 182, "~*P*~", 15, FORCE)
    d.text(97, 212, "la lampe", ink=MUTED, anchor="middle")
    # The ball on the slope.
    x, y, long = 218, 184, 146
    top = turned(x, y, long, 25)
    d.area([(x, y), top, (top[0], y)], GROUND, EDGE)
    foot = turned(x, y, 84, 25)
    middle = turned(*foot, 17, 115)
    d.circle(*middle, 17, BALL, BLUE)
    d.arrow(*middle, middle[0], middle[1] + 46, FORCE)
    d.text(middle[0] + 9, middle[1] + 44, "~*P*~", 15, FORCE)
    d.arrow(*foot, foot[0], foot[1] - 62, FORCE)
    d.text(foot[0] + 9, foot[1] - 50, "~*R*~", 15, FORCE)
    d.text(288, 212, "la bille", ink=MUTED, anchor="middle")
    # The ball in flight.
    d.path("M398 176Q470 -44 560 132", EDGE, 1.2, dash="5 4")
    d.circle(446, 92, 16, WHITE, EDGE, LINE)
    d.arrow(446, 92, 490, 34, FORCE)
    d.text(494, 46, "~*F*~", 15, FORCE)
    d.arrow(446, 92, 446, 152, FORCE)
    d.text(454, 150, "~*P*~", 15, FORCE)
    d.line(398, 186, 562, 186, EDGE, LINE)
    d.rect(398, 186, 164, 8, GROUND)
    d.text(480, 212, "le ballon", ink=MUTED, anchor="middle")
    return d


def weights():
    d = Drawing(540, 256,
                "Poids en fonction de la masse sur trois astres : trois droites qui passent par l’origine ; à 5 "
                "kilogrammes, 49 newtons sur A, 18,5 sur B, 8 sur C")
    plot = Plot(d, 62, 36, 390, 170, (0, 5), (0, 50))
    plot.axes(0.5, 5, "*m* (kg)", "*P* (N)", 0, 0, labels=(2, 2))
    for name, strength, ink in WORLDS:
        plot.named_curve(name, lambda mass: strength * mass, ink)
    return d


def sledge():
    d = Drawing(540, 246,
                "Une luge sur une pente de 25 degrés et le triangle fermé des forces : poids 60 newtons, force de "
                "la pente 54 newtons, force de la corde 25 newtons")
    x, y = 26, 214
    top = turned(x, y, 254, SLOPE)
    d.area([(x, y), top, (top[0], y)], GROUND, EDGE)
    d.arc(x, y, 56, 0, SLOPE, GREEN)
    d.text(x + 64, y - 6, f"{SLOPE}°", SMALL, GREEN)
    seat = turned(x, y, 146, SLOPE)
    middle = turned(*seat, 11, 90 + SLOPE)
    corners = [turned(*turned(*middle, along, SLOPE), across, 90 + SLOPE)
               for along, across in ((-30, -8), (30, -8), (30, 8), (-30, 8))]
    d.area(corners, BALL, BLUE)
    d.line(*turned(*middle, 30, SLOPE), *turned(*middle, 122, SLOPE), INK, 1.4)
    unit = 1.2  # pixels a newton, left
    pull, hold = SLEDGE * math.sin(math.radians(SLOPE)), SLEDGE * math.cos(math.radians(SLOPE))
    for name, newtons, degrees, right, down in (("P", SLEDGE, 270, 8, -4), ("R", hold, 90 + SLOPE, -6, -2),
                                                ("T", pull, SLOPE, 2, -8)):
        start = turned(*middle, 30, SLOPE) if name == "T" else middle
        tip = turned(*start, unit * newtons, degrees)
        d.arrow(*start, *tip, FORCE)
        d.text(tip[0] + right, tip[1] + down, f"~*{name}*~", 15, FORCE, "end" if name == "R" else "start")
    unit = 3.0  # right
    start = (404, 34)
    low = turned(*start, unit * SLEDGE, 270)
    back = turned(*low, unit * hold, 90 + SLOPE)
    d.arrow(*start, *low, FORCE)
    d.arrow(*low, *back, FORCE)
    d.arrow(*back, *start, FORCE)
    d.text(start[0] + 10, (start[1] + low[1]) / 2, "*P* = 60 N", ink=FORCE)
    d.text((low[0] + back[0]) / 2 - 10, (low[1] + back[1]) / 2 + 22, f"*R* = {french(hold)} N", ink=FORCE, anchor="end")
    d.text(back[0] - 6, back[1] - 16, f"*T* = {french(pull)} N", ink=FORCE, anchor="middle")
    d.span(464, 214, 464 + 10 * unit, 214, FORCE)
    d.text(464 + 10 * unit + 8, 218, "10 N", SMALL, FORCE)
    return d


def clothes_line(solved):
    d = Drawing(575 if solved else 420, 210,
                "Un jean pend au milieu d’une corde dont chaque moitié fait 30 degrés avec l’horizontale"
                + (" ; les trois forces forment un triangle équilatéral" if solved else ""))
    left, right, high = 40, 360, 34
    middle = (left + right) / 2, high + (right - left) / 2 * math.tan(math.radians(SAG))
    for x in (left, right):
        d.line(x, 14, x, 196, EDGE, 5)
    d.line(14, 196, 386, 196, EDGE, LINE)
    d.line(left, high, *middle, INK, 2)
    d.line(right, high, *middle, INK, 2)
    x, y = middle
    d.line(x, y, right, y, MUTED, 1, "5 4")
    d.arc(x, y, 62, 0, SAG, GREEN)
    d.text(x + 72, y - 12, f"{SAG}°", ink=GREEN)
    if not solved:
        d.area([(x - 17, y), (x + 17, y), (x + 20, y + 58), (x + 4, y + 58), (x, y + 22),
                (x - 4, y + 58), (x - 20, y + 58)], BALL, BLUE)
        return d
    unit = 6.4  # pixels a newton
    for name, degrees, dx, dy in (("P", 270, 8, 0), ("T_{1}", 180 - SAG, -2, -8), ("T_{2}", SAG, -8, -10)):
        tip = turned(x, y, unit * JEANS, degrees)
        d.arrow(x, y, *tip, FORCE)
        letter, _, index = name.partition("_")
        d.text(tip[0] + dx, tip[1] + dy, f"~*{letter}*~" + (f"_{index}" if index else ""), 15, FORCE)
    d.dot(x, y, INK, 4)
    unit = 11
    start = (530, 52)
    low = turned(*start, unit * JEANS, 270)
    corner = turned(*low, unit * JEANS, 180 - SAG)
    for one, two in ((start, low), (low, corner), (corner, start)):
        d.arrow(*one, *two, FORCE)
    d.text(start[0] + 9, (start[1] + low[1]) / 2 + 5, "~*P*~", 15, FORCE)
    d.text((low[0] + corner[0]) / 2 - 8, (low[1] + corner[1]) / 2 + 18, "~*T*~_{1}", 15, FORCE, "end")
    d.text((start[0] + corner[0]) / 2 - 8, (start[1] + corner[1]) / 2 - 8, "~*T*~_{2}", 15, FORCE, "end")
    return d


FIGURES = {"ex-forces-fausses": three_mistakes, "ex-poids-masse": weights, "ex-luge": sledge,
           "ex-corde-a-linge": lambda: clothes_line(False), "ex-corde-a-linge-forces": lambda: clothes_line(True)}
