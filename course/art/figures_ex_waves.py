"""Figures of the exercises on sound, light and lenses: what pupils read, and what the answers show."""

import math

from drawing import BLUE, EDGE, GREEN, INK, LINE, MUTED, ORANGE, RED, RULE, SMALL, Drawing, Plot

# Three sounds on the same screen: name, period and amplitude in divisions, partials of the shape.
DIVISION = 1.0  # ms
SOUNDS = [("A", 4.0, 2.0, [(1, 1.0)], BLUE), ("B", 2.0, 1.0, [(1, 1.0)], GREEN),
          ("C", 4.0, 1.5, [(1, 1.0), (2, 0.6), (3, 0.4)], ORANGE)]

# Delays of a clap over growing distances: metres, milliseconds; the last one was taken wrongly.
CLAPS = [(0.50, 1.5), (1.00, 2.9), (1.50, 4.4), (2.00, 5.9), (2.50, 8.9)]


def three_sounds():
    d = Drawing(575, 218, "Trois oscillogrammes de huit divisions : deux périodes de A, grande amplitude ; quatre "
                          "périodes de B, petite amplitude ; deux périodes de C, d’une autre forme")
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
    d.text(561, 210, "Les trois écrans ont les mêmes échelles.", SMALL, MUTED, "end")
    return d


def line_of_claps():
    d = Drawing(520, 262, "Distance en fonction du retard : quatre points sont sur une droite qui passe par "
                          "l’origine, le cinquième est à l’écart")
    plot = Plot(d, 62, 34, 380, 176, (0, 10), (0, 3.5))
    plot.axes(1, 0.5, "Δ*t* (ms)", "*d* (m)", 0, 1)
    plot.curve(lambda ms: 0.340 * ms, BLUE, 0, 10, 2)
    for metres, ms in CLAPS:
        d.cross(*plot.at(ms, metres))
    d.circle(*plot.at(*reversed(CLAPS[-1])), 11, "none", ORANGE, LINE)
    x, y = plot.at(8.9, 2.5)
    d.text(x + 2, y + 28, "douteux", SMALL, ORANGE, "middle")
    return d


FIGURES = {"ex-oscillogrammes": three_sounds, "ex-droite-son": line_of_claps}
