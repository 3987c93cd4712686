"""Figures of the lessons on sound."""

import math
import random

from drawing import (BALL, BLUE, EDGE, GREEN, GREEN_TINT, INK, LINE, MUTED, ORANGE, RED, RULE,
                     SMALL, VIOLET, WHITE, Drawing, french)

SPEED = 340  # m/s, in air at 15 °C
GAP = 1.70  # metres between two microphones
TONE = 440  # Hz

LEVELS = [(0, "seuil d’audibilité"), (30, "chambre calme"), (60, "conversation"),
          (85, "cantine bruyante"),
          (105, "concert"), (130, "avion au décollage")]  # dB


def wave():
    d = Drawing(575, 236, "Un son dans l’air à un instant : zones comprimées et zones détendues, "
                          "et la courbe de la pression ; une longueur "
                          "d’onde sépare deux compressions")
    lot, left, right, length, swing = random.Random(9), 70, 545, 150, 17
    middle = lambda x: swing * math.sin(2 * math.pi * (x - left) / length)
    d.rect(left, 20, right - left, 76, WHITE, RULE, 1)
    for column in range(120):
        for row in range(8):
            x = left + 4.2 * column + lot.uniform(-2, 2)
            at = x + middle(x)
            y = 28.5 + 8.4 * (row + lot.uniform(-0.4, 0.4))
            if left + 2 < at < right - 2:
                d.circle(at, y, 1.5, "#7fa3c7", None)
    d.rect(14, 30, 18, 56, EDGE, None, round=2)
    d.path("M32 48L62 24V92L32 68Z", BLUE, 1.4, BALL)
    d.line(left, 150, right, 150, EDGE, 1)
    points = [(x, 150 - 28 * math.cos(2 * math.pi * (x - left) / length + math.pi)) for x in range(left,
              right + 1)]
    d.curve(points, GREEN, 2)
    d.text(62, 154, "pression", SMALL, GREEN, "end")
    first, second = left + length / 2, left + 1.5 * length
    for x in (first, second):
        d.line(x, 98, x, 214, RULE, 1, "3 3")
    d.span(first, 208, second, 208, RED)
    d.text((first + second) / 2, 228, "longueur d’onde *λ*", ink=RED, anchor="middle")
    d.text(first, 14, "compression", SMALL, INK, "middle")
    d.text(left + length, 14, "détente", SMALL, MUTED, "middle")
    d.arrow(420, 218, 520, 218, BLUE, LINE)
    d.text(412, 223, "le son avance", SMALL, BLUE, "end")
    return d


def two_microphones():
    d = Drawing(575, 264, "Deux microphones distants de 1,70 mètre reçoivent un clap à 5,0 "
                          "millisecondes d’intervalle")
    d.circle(36, 52, 5, INK, None)
    for radius in (14, 24, 34):
        d.path(f"M{36 + radius * 0.7:.1f} {52 - radius * 0.7:.1f}A{radius} {radius} 0 0 1 "
               f"{36 + radius * 0.7:.1f} {52 + radius * 0.7:.1f}", EDGE, 1.4)
    d.text(36, 100, "clap", SMALL, MUTED, "middle")
    for x, name in ((130, "M_{1}"), (480, "M_{2}")):
        d.circle(x, 52, 9, BALL, BLUE, 1.4)
        d.line(x, 61, x, 84, BLUE, 2)
        d.text(x, 34, name, ink=BLUE, anchor="middle", bold=True)
    d.span(130, 94, 480, 94, GREEN)
    d.text(305, 88, f"*d* = {french(GAP, 2)} m", ink=GREEN, anchor="middle")
    left, scale = 90, 34  # pixels a millisecond
    for y, name, start in ((142, "M_{1}", 2.0), (200, "M_{2}", 2.0 + GAP / SPEED * 1000)):
        d.line(left, y, left + 12.6 * scale, y, RULE, 1)
        d.text(left - 14, y + 5, name, ink=BLUE, anchor="end", bold=True)
        points = [(left, y)]
        for step in range(600):
            t = 12.6 * step / 600
            swing = 24 * math.exp(-(t - start) / 0.8) * math.sin(2 * math.pi * (t - start) / 0.9) if t > start else 0
            points.append((left + t * scale, y - swing))
        d.curve(points, BLUE, 1.8)
    for millisecond in range(0, 13, 2):
        x = left + millisecond * scale
        d.line(x, 226, x, 231, INK, 1.2)
        d.text(x, 246, str(millisecond), SMALL, MUTED, "middle")
    d.line(left, 226, left + 12.6 * scale, 226, INK, LINE)
    d.text(left + 12.6 * scale + 8, 231, "*t* (ms)")
    first, second = left + 2 * scale, left + (2 + GAP / SPEED * 1000) * scale
    for x in (first, second):
        d.line(x, 116, x, 226, RED, 1, "3 3")
    d.span(first, 170, second, 170, RED)
    d.text((first + second) / 2, 186, f"Δ*t* = {french(GAP / SPEED * 1000, 1)} ms", ink=RED, anchor="middle")
    return d


def oscillogram():
    d = Drawing(560, 276, "Oscillogramme d’un la : dix divisions d’une milliseconde ; quatre "
                          "périodes couvrent 9,1 divisions")
    left, top, cell = 60, 44, 40
    for column in range(11):
        d.line(left + cell * column, top, left + cell * column, top + 4 * cell, RULE, 1)
    for row in range(5):
        d.line(left, top + cell * row, left + 10 * cell, top + cell * row, EDGE if row == 2 else RULE,
               1)
    d.rect(left, top, 10 * cell, 4 * cell, "none", EDGE, 1.6)
    period = 1000 / TONE * cell
    start = left + 0.45 * cell
    points = [(left + x / 2, top + 2 * cell - 1.5 * cell * math.sin(2 * math.pi * (left + x / 2 - start) / period))
              for x in range(20 * cell + 1)]
    d.curve(points, BLUE, 2.2)
    for x in (start, start + 4 * period):
        d.line(x, 30, x, top + 2 * cell, RED, 1.2, "4 3")
    d.span(start, 30, start + 4 * period, 30, RED)
    d.text(start + 2 * period, 22, "4 périodes : 9,1 divisions", ink=RED, anchor="middle")
    d.span(left, top + 4 * cell + 14, left + cell, top + 4 * cell + 14, GREEN)
    d.text(left + cell + 10, top + 4 * cell + 18, "1 division : 1,0 ms", ink=GREEN)
    d.text(60, 254, "4 *T* = 9,1 ms     *T* = 2,3 ms     *f* = 4 / 0,0091 s = 4,4 × 10^{2} Hz", 15)
    d.span(left + 10 * cell + 14, top + 2 * cell, left + 10 * cell + 14, top + 0.5 * cell, VIOLET)
    d.text(left + 10 * cell + 24, top + 1.35 * cell, "amplitude", ink=VIOLET)
    return d


def three_differences():
    d = Drawing(575, 268, "Trois paires de signaux sur la même durée : plus aigu, la fréquence "
                          "double ; plus fort, l’amplitude double ; un autre timbre, "
                          "une autre forme à la même fréquence")
    sine = lambda amount, count: lambda s: amount * math.sin(2 * math.pi * count * s)
    strings = lambda s: 17 * (math.sin(6 * math.pi * s) + 0.5 * math.sin(12 * math.pi * s + 0.6) + 0.35 * math.sin(18 * math.pi * s))
    cases = [("hauteur", "grave", sine(20, 3), "aigu", sine(20, 6)),
             ("intensité", "faible", sine(12, 3), "fort", sine(24, 3)),
             ("timbre", "diapason", sine(20, 3), "violon", strings)]
    for index, (name, first, one, second, two) in enumerate(cases):
        left, wide = 22 + 188 * index, 155
        d.text(left + wide / 2, 18, name, ink=BLUE, anchor="middle", bold=True)
        for y, words, function, ink in ((72, first, one, BLUE), (178, second, two, ORANGE)):
            d.rect(left, y - 36, wide, 72, WHITE, RULE, 1)
            d.line(left, y, left + wide, y, RULE, 1)
            d.curve([(left + wide * i / 200, y - function(i / 200)) for i in range(201)], ink, 2)
            d.text(left + wide / 2, y + 53, words, ink=ink, anchor="middle")
    d.text(287, 260, "Chaque cadre montre la même durée, à la même échelle.", SMALL, MUTED,
           "middle")
    return d


def decibels():
    d = Drawing(575, 198, "Échelle des niveaux d’intensité sonore, de 0 à 140 décibels : danger à "
                          "partir de 85 décibels, douleur à partir de 120")
    left, step, y = 36, 3.6, 92  # pixels a decibel
    for start, end, fill in ((0, 85, GREEN_TINT), (85, 120, "#fbeccf"), (120, 140, "#f6cfca")):
        d.rect(left + start * step, y, (end - start) * step, 22, fill)
    for level in range(0, 141, 10):
        d.line(left + level * step, y + 22, left + level * step, y + 28, INK, 1.2)
        if level % 20 == 0:
            d.text(left + level * step, y + 44, str(level), SMALL, MUTED, "middle")
    d.line(left, y + 22, left + 140 * step, y + 22, INK, LINE)
    d.text(left + 140 * step, y + 62, "niveau (dB)", anchor="end")
    for index, (level, name) in enumerate(LEVELS):
        x, row = left + level * step, (34, 66)[index % 2]
        d.line(x, row + 6, x, y, EDGE, 1)
        d.dot(x, y, BLUE, 4)
        d.text(x, row, name, SMALL, BLUE, "start" if level == 0 else "middle")
    for x, words, ink in ((42, "peu de risque", GREEN), (102, "danger", ORANGE),
                          (130, "douleur", RED)):
        d.text(left + x * step, y + 16, words, SMALL, ink, "middle", True)
    d.text(left, 190, "+ 10 dB : dix fois plus de puissance sonore. + 3 dB : deux fois plus.",
           SMALL, MUTED)
    return d


FIGURES = {"onde-sonore": wave, "vitesse-son": two_microphones, "oscillogramme": oscillogram,
           "hauteur-intensite-timbre": three_differences, "decibels": decibels}
