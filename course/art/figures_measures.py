"""Figures of the lessons on measuring and on writing a result."""

import math
import random
from statistics import mean, stdev

from drawing import (BALL, BLUE, EDGE, GREEN, GREEN_TINT, IVORY, MUTED, ORANGE, RED, RULE, SMALL,
                     WHITE, Drawing, Plot, french)

# Twenty measurements of ten swings of a pendulum of 1,000 m, seconds.
COUNTS = {19.7: 1, 19.8: 1, 19.9: 3, 20.0: 4, 20.1: 5, 20.2: 3, 20.3: 2, 20.4: 1}
SERIES = [value for value, count in COUNTS.items() for _ in range(count)]
MEAN, SPREAD = mean(SERIES), stdev(SERIES)
UNCERTAINTY = SPREAD / math.sqrt(len(SERIES))
REFERENCE = 2 * math.pi * math.sqrt(1.000 / 9.81)  # of one swing, seconds


def histogram():
    d = Drawing(520, 254,
                "Histogramme de 20 mesures de la durée de dix oscillations : elles se groupent "
                          "autour de la moyenne, 20,07 s, avec un écart-type de 0,18 s")
    plot = Plot(d, 52, 48, 400, 160, (19.6, 20.5), (0, 6))
    low, high = plot.at(MEAN - SPREAD, 0)[0], plot.at(MEAN + SPREAD, 0)[0]
    d.rect(low, 48, high - low, 160, GREEN_TINT)
    for value in range(1, 7):
        y = plot.at(0, value)[1]
        d.line(52, y, 452, y, RULE, 1)
        d.text(44, y + 4, str(value), SMALL, MUTED, "end")
    d.text(44, 212, "0", SMALL, MUTED, "end")
    for value, count in COUNTS.items():
        x, y = plot.at(value - 0.05, count)
        d.rect(x, y, 400 / 9, 208 - y, BALL, BLUE, 1.4)
        d.text(x + 200 / 9, 226, french(value, 1), SMALL, MUTED, "middle")
    d.arrow(52, 208, 52, 28, "#23211c", 1.6, head=10)
    d.arrow(52, 208, 478, 208, "#23211c", 1.6, head=10)
    d.text(8, 18, "nombre de mesures")
    d.text(478, 246, "durée de dix oscillations (s)", anchor="end")
    middle = plot.at(MEAN, 0)[0]
    d.line(middle, 208, middle, 34, RED, 2)
    d.text(middle, 28, f"moyenne {french(MEAN, 2)} s", ink=RED, anchor="middle", bold=True)
    d.span(middle, 58, high, 58, GREEN)
    d.text(high + 10, 62, f"écart-type *s* = {french(SPREAD, 2)} s", ink=GREEN)
    return d


def targets():
    d = Drawing(560, 176,
                "Quatre cibles : des tirs groupés au centre, groupés à côté, dispersés autour du "
                          "centre, dispersés à côté")
    cases = [("fidèle et juste", "centrées, serrées", 0, 5),
             ("fidèle, pas juste", "décalées, serrées", 24, 5),
             ("juste, peu fidèle", "centrées, dispersées", 0, 17),
             ("ni l’un ni l’autre", "décalées, dispersées", 24, 15)]
    for index, (name, words, shift, spread) in enumerate(cases):
        lot, x, y = random.Random(5), 70 + 140 * index, 66
        for radius, fill in ((54, IVORY), (36, WHITE), (18, IVORY)):
            d.circle(x, y, radius, fill, EDGE, 1.2)
        d.path(f"M{x - 5} {y}h10M{x} {y - 5}v10", EDGE, 1.2)
        shots = [(lot.gauss(0, 1), lot.gauss(0, 1)) for _ in range(8)]
        centre = [mean(axis) for axis in zip(*shots)]
        size = math.sqrt(mean((a - centre[0]) ** 2 + (b - centre[1]) ** 2 for a, b in shots) / 2)
        for a, b in shots:
            d.circle(x + 0.7 * shift + spread * (a - centre[0]) / size,
                     y - 0.9 * shift + spread * (b - centre[1]) / size, 3.4, RED, None)
        d.text(x, 146, name, anchor="middle", bold=True, ink=BLUE)
        d.text(x, 165, words, SMALL, MUTED, "middle")
    return d


def ruler_reading():
    d = Drawing(520, 128, "Une règle graduée en millimètres devant une tige : son extrémité se lit "
                          "3,4 cm à un "
                          "demi-millimètre près")
    left, scale = 40, 84  # pixels; pixels a centimetre
    end = left + 3.42 * scale
    d.rect(left, 26, end - left, 22, BALL, BLUE, 1.4, 2)
    d.rect(20, 54, 482, 50, IVORY, EDGE, 1.2, 3)
    for millimetre in range(55):
        x = left + millimetre * scale / 10
        tall = 22 if millimetre % 10 == 0 else 15 if millimetre % 5 == 0 else 10
        d.line(x, 54, x, 54 + tall, "#23211c", 1.2 if millimetre % 5 == 0 else 1)
        if millimetre % 10 == 0:
            d.text(x, 94, str(millimetre // 10), anchor="middle")
    d.text(494, 94, "cm", SMALL, MUTED, "end")
    d.line(end, 18, end, 72, RED, 1.6)
    d.text(end + 8, 30, "entre 34 et 35 mm,", ink=RED)
    d.text(end + 8, 46, "plus près de 34", ink=RED)
    d.span(left + scale, 114, left + 1.1 * scale, 114, GREEN, 3)
    d.text(left + 1.1 * scale + 8, 118, "une graduation : 1 mm", SMALL, GREEN)
    return d


def intervals():
    d = Drawing(540, 190,
                "Deux résultats et la valeur de référence sur un axe : 2,007 s à 0,004 s près la "
                          "contient, 2,040 s à 0,010 s près en est loin")
    left, scale = 40, 460 / 0.06
    place = lambda value: left + (value - 1.995) * scale
    d.line(place(REFERENCE), 30, place(REFERENCE), 150, GREEN, 1.6, "5 3")
    d.text(place(REFERENCE), 20, f"référence {french(REFERENCE, 3)} s", ink=GREEN, anchor="middle",
           bold=True)
    d.arrow(left - 20, 150, 528, 150, "#23211c", 1.6, head=10)
    for index in range(7):
        x = place(1.995 + 0.01 * index + 0.005) if index < 6 else None
        if x:
            d.line(x, 150, x, 156, "#23211c", 1.4)
            d.text(x, 171, french(2.0 + 0.01 * index, 2), SMALL, MUTED, "middle")
    d.text(528, 187, "période *T* (s)", anchor="end")
    for y, value, error, name, ink in ((62, 2.007, 0.004, "groupe A", BLUE),
                                       (112, 2.040, 0.010, "groupe B", ORANGE)):
        d.rect(place(value - error), y - 9, 2 * error * scale, 18, BALL if ink == BLUE else
               "#f6ead9", ink, 1.4, 2)
        d.line(place(value), y - 9, place(value), y + 9, ink, 2.2)
        at = place(value + error) + 12
        words = f"*T* = {french(value, 3)} s ; *u* = {french(error, 3)} s"
        if ink == BLUE:
            d.text(at, y - 3, name, ink=ink, bold=True)
            d.text(at, y + 14, words, ink=ink)
        else:
            d.text(place(value - error) - 12, y - 3, name, ink=ink, bold=True, anchor="end")
            d.text(place(value - error) - 12, y + 14, words, ink=ink, anchor="end")
    return d


def significant_figures():
    d = Drawing(560, 168, "Dans 0,00340 les zéros de gauche ne comptent pas, le 3, le 4 et le "
                          "dernier zéro sont "
                          "trois chiffres significatifs : on écrit 3,40 fois dix puissance moins "
                          "trois")
    x, cell = 84, 30
    for index, sign in enumerate("0,00340"):
        wide = cell if sign != "," else 14
        counts = index >= 4
        if sign != ",":
            d.rect(x, 22, wide - 4, 40, GREEN_TINT if counts else "#f1eddf", GREEN if counts else RULE,
                   1.4, 3)
        d.text(x + wide / 2 - 2, 51, sign, 24, GREEN if counts else MUTED, "middle", counts)
        if index == 4:
            first = x
        x += wide
    d.text(x + 6, 51, "m", 20)
    d.span(84, 76, first - 4, 76, MUTED)
    d.lines(first - 8, 97, ["placent la virgule :", "ne comptent pas"], ink=MUTED, anchor="end",
            step=17)
    d.span(first, 76, x - 4, 76, GREEN)
    d.text(first, 97, "3 chiffres significatifs", ink=GREEN, bold=True)
    d.text(first, 114, "le dernier zéro aussi", ink=GREEN)
    d.arrow(x + 40, 42, x + 92, 42, "#23211c", 1.6, head=10)
    d.text(x + 112, 51, "3,40 × 10^{−3} m", 20, GREEN, bold=True)
    d.text(280, 152, "Un zéro écrit à droite dit que ce chiffre a été mesuré : 3,40 n’est pas 3,4.",
           anchor="middle")
    return d


# How far a spring stretches: grams, centimetres; the slope of the line through the origin that is nearest to them.
SPRING = [(50, 2.4), (100, 5.1), (150, 7.4), (200, 10.1), (250, 12.4), (300, 15.2)]
SLOPE = sum(mass * length for mass, length in SPRING) / sum(mass * mass for mass, _ in SPRING)


def graph_and_model():
    d = Drawing(520, 278, "Allongement d’un ressort en fonction de la masse suspendue : six "
                          "points, et la droite qui passe par l’origine au plus près d’eux")
    plot = Plot(d, 56, 40, 390, 184, (0, 350), (0, 20))
    plot.axes(50, 5, "*m* (g)", "*a* (cm)")
    plot.curve(lambda mass: SLOPE * mass, BLUE, 0, 350, 2)
    for mass, length in SPRING:
        d.cross(*plot.at(mass, length), RED, 5)
    low, high = plot.at(100, SLOPE * 100), plot.at(300, SLOPE * 300)
    d.line(*low, high[0], low[1], GREEN, 1.4, "4 3")
    d.line(high[0], low[1], *high, GREEN, 1.4, "4 3")
    d.text((low[0] + high[0]) / 2, low[1] + 17, "200 g", ink=GREEN, anchor="middle")
    d.text(high[0] + 8, (low[1] + high[1]) / 2 + 8, f"{french(200 * SLOPE, 1)} cm", ink=GREEN)
    d.rect(74, 58, 162, 24, WHITE)
    d.text(80, 76, f"modèle : *a* = {french(SLOPE, 3)} × *m*", 15, BLUE)
    return d


# Three quantities that grow with another one; only the first is proportional to it.
GROWING = [("une droite par l’origine", "proportionnelles", GREEN, lambda x: 0.9 * x),
           ("une droite qui n’y passe pas", "pas proportionnelles", ORANGE, lambda x: 2 + 0.7 * x),
           ("une courbe", "pas proportionnelles", ORANGE, lambda x: 0.1 * x * x)]


def proportionality():
    d = Drawing(560, 190, "Trois graphiques : une droite qui passe par l’origine, une droite qui n’y "
                          "passe pas, une courbe ; seule la première dit une proportionnalité")
    for index, (shape, verdict, ink, law) in enumerate(GROWING):
        left = 30 + 190 * index
        plot = Plot(d, left, 24, 130, 110, (0, 10), (0, 10))
        d.arrow(left, 134, left, 14, "#23211c", 1.6, head=10)
        d.arrow(left, 134, left + 142, 134, "#23211c", 1.6, head=10)
        plot.curve(law, ink, 0, 9.5)
        d.dot(*plot.at(0, law(0)), ink, 3.5)
        d.text(left + 65, 160, shape, anchor="middle")
        d.text(left + 65, 180, verdict, ink=ink, anchor="middle", bold=True)
    return d


FIGURES = {"mesures-histogramme": histogram, "mesures-cibles": targets, "mesures-regle": ruler_reading,
           "resultat-intervalles": intervals, "chiffres-significatifs": significant_figures,
           "graphique-modele": graph_and_model, "proportionnalite": proportionality}

if __name__ == "__main__":
    print(f"{MEAN=} {SPREAD=} {UNCERTAINTY=} {REFERENCE=} {SLOPE=}")
