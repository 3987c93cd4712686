"""Figures of the exercises on sound, light and lenses: what pupils read, and what the answers show."""

import math

from drawing import (BLUE, EDGE, GREEN, INK, LINE, MUTED, ORANGE, RED, RULE, SMALL, WATER, Drawing, Plot)
from figures_light import LINES, colour

# Three sounds on the same screen: name, period and amplitude in divisions, partials of the shape.
DIVISION = 1.0  # ms
SOUNDS = [("A", 4.0, 2.0, [(1, 1.0)], BLUE), ("B", 2.0, 1.0, [(1, 1.0)], GREEN),
          ("C", 4.0, 1.5, [(1, 1.0), (2, 0.6), (3, 0.4)], ORANGE)]

# Delays of a clap over growing distances: metres, milliseconds; the last one was taken wrongly.
CLAPS = [(0.50, 1.5), (1.00, 2.9), (1.50, 4.4), (2.00, 5.9), (2.50, 8.9)]

# A ray into a half disc of plastic, and two rays from water into air: degrees from the normal.
PLASTIC = (60, 35)
WATER_INDEX, POOL = 1.33, (30, 60)


def three_sounds():
    d = Drawing(575, 186,
                "Trois oscillogrammes de huit divisions : deux périodes de A, grande amplitude ; quatre périodes de"
                " B, petite amplitude ; deux périodes de C, d’une autre forme")
    cell, top = 21, 30
    for index, (name, period, amplitude, partials, ink) in enumerate(SOUNDS):
        left = 14 + 190 * index
        for column in range(9):
            d.line(left + cell * column, top, left + cell * column, top + 6 * cell, RULE, 1)
        for row in range(7):
            d.line(left, top + cell * row, left + 8 * cell, top + cell * row, EDGE if row == 3 else RULE, 1)
        d.rect(left, top, 8 * cell, 6 * cell, "none", EDGE, 1.4)
        shape = lambda s: sum(share * math.sin(2 * math.pi * order * s) for order, share in partials)
        highest = max(shape(i / 500) for i in range(500))
        d.curve([(left + cell * 8 * i / 400,
                  top + 3 * cell - amplitude * cell * shape(8 * i / 400 / period) / highest)
                 for i in range(401)], ink, 2.2)
        d.text(left + 4 * cell, 20, name, 15, ink, "middle", True)
    left = 14
    d.span(left, top + 6 * cell + 16, left + cell, top + 6 * cell + 16, GREEN)
    d.text(left + cell + 10, top + 6 * cell + 20, "1 division : 1,0 ms", ink=GREEN)
    d.text(562, top + 6 * cell + 20, "Les trois écrans ont les mêmes échelles.", SMALL, MUTED, "end")
    return d


def line_of_claps():
    d = Drawing(520, 262,
                "Distance en fonction du retard : quatre points sont sur une droite qui passe par l’origine, le "
                "cinquième est à l’écart")
    plot = Plot(d, 62, 34, 380, 176, (0, 10), (0, 3.5))
    plot.axes(1, 0.5, "Δ*t* (ms)", "*d* (m)", 0, 1)
    plot.curve(lambda ms: 0.340 * ms, BLUE, 0, 10, 2)
    for metres, ms in CLAPS:
        d.cross(*plot.at(ms, metres))
    d.circle(*plot.at(*reversed(CLAPS[-1])), 11, "none", ORANGE, LINE)
    x, y = plot.at(8.9, 2.5)
    d.text(x + 2, y + 28, "douteux", SMALL, ORANGE, "middle")
    return d


def unknown_lamp():
    d = Drawing(575, 136,
                "Spectre d’une lampe, de 400 à 700 nanomètres : cinq raies sur fond noir, à 410, 434, 486, 589 et "
                "656 nanomètres")
    left, wide = 24, 525
    place = lambda nanometres: left + wide * (nanometres - 400) / 300
    d.rect(left, 12, wide, 46, "#101010")
    for nanometres in LINES["hydrogène"] + LINES["sodium"]:
        d.rect(place(nanometres) - 1.25, 12, 2.5, 46, colour(nanometres))
    for nanometres in range(400, 701, 2):
        tick = 12 if nanometres % 50 == 0 else 9 if nanometres % 10 == 0 else 5
        d.line(place(nanometres), 64, place(nanometres), 64 + tick, INK if tick > 5 else EDGE, 1)
        if nanometres % 20 == 0:
            d.text(place(nanometres), 92, str(nanometres), SMALL, MUTED, "middle")
    d.line(left, 64, left + wide, 64, INK, LINE)
    d.text(left + wide, 118, "longueur d’onde *λ* dans le vide (nm)", anchor="end")
    return d


def direction(degrees):
    """From straight up, clockwise: right and down."""
    return math.sin(math.radians(degrees)), -math.cos(math.radians(degrees))


def protractor():
    d = Drawing(420, 318,
                "Un rayon arrive sur la face plane d’un demi-disque de plastique, au centre d’un rapporteur : 60 "
                "degrés d’un côté de la normale dans l’air, 35 degrés dans le plastique")
    x, y, radius = 210, 158, 116
    d.path(f"M{x - 88} {y}A88 88 0 0 0 {x + 88} {y}Z", EDGE, LINE, WATER)
    for degrees in range(0, 360, 5):
        right, down = direction(degrees)
        inner = radius - (9 if degrees % 10 == 0 else 5)
        d.line(x + inner * right, y + inner * down, x + radius * right, y + radius * down, EDGE, 1)
        if degrees % 10 == 0:
            shown = min(degrees % 180, 180 - degrees % 180)
            d.text(x + (radius + 16) * right, y + (radius + 16) * down + 4, str(shown), SMALL, MUTED, "middle")
    d.circle(x, y, radius, "none", EDGE, 1)
    d.line(x, y - radius, x, y + radius, MUTED, 1, "6 4")
    right, down = direction(-PLASTIC[0])
    d.line(x + radius * right, y + radius * down, x, y, RED, 2.2)
    d.arrow(x + 90 * right, y + 90 * down, x + 46 * right, y + 46 * down, RED, 2.2)
    right, down = direction(180 - PLASTIC[1])
    d.line(x, y, x + radius * right, y + radius * down, RED, 2.2)
    d.arrow(x, y, x + 62 * right, y + 62 * down, RED, 2.2)
    d.text(x + 34, y - 30, "air", ink=MUTED)
    d.text(x - 62, y + 34, "plastique", SMALL, MUTED)
    return d


def pool():
    d = Drawing(520, 254,
                "Deux rayons d’une lampe sous l’eau : à 30 degrés de la normale l’un sort à 41,7 degrés, à 60 "
                "degrés l’autre est réfléchi totalement")
    surface, deep = 98, 132
    d.rect(10, surface, 500, 148, WATER)
    d.line(10, surface, 510, surface, BLUE, LINE)
    lamp = 96, surface + deep
    for degrees in POOL:
        at = lamp[0] + deep * math.tan(math.radians(degrees))
        d.line(at, surface - 84, at, surface + 62, MUTED, 1, "6 4")
        d.line(*lamp, at, surface, RED, 2)
        d.arrow(*lamp, (lamp[0] + at) / 2, surface + deep / 2, RED, 2)
        sine = WATER_INDEX * math.sin(math.radians(degrees))
        right, down = direction(math.degrees(math.asin(sine))) if sine <= 1 else direction(180 - degrees)
        long = 104
        d.arrow(at, surface, at + long * right, surface + long * down, RED, 2)
        d.arc(at, surface, 36, 270 - degrees, 270, GREEN)
        d.text(at - 4 - 0.5 * degrees, surface + (66 if degrees < 45 else 52), f"{degrees}°", ink=GREEN,
               anchor="middle")
        if sine <= 1:
            d.arc(at, surface, 44, 90 - math.degrees(math.asin(sine)), 90, GREEN)
            d.text(at + 5, surface - 52, "41,7°", ink=GREEN)
        else:
            d.arc(at, surface, 36, 270, 270 + degrees, GREEN)
            d.text(at + 4 + 0.5 * degrees, surface + 52, f"{degrees}°", ink=GREEN, anchor="middle")
    d.dot(*lamp, ORANGE, 6)
    d.text(lamp[0] - 14, lamp[1] + 5, "lampe", ink=ORANGE, anchor="end")
    d.text(20, surface - 10, "air", ink=MUTED)
    d.text(20, surface + 20, "eau", ink=BLUE)
    return d


FIGURES = {"ex-oscillogrammes": three_sounds, "ex-droite-son": line_of_claps,
           "ex-spectre-lampe": unknown_lamp, "ex-rapporteur": protractor, "ex-piscine": pool}
