"""Figures of the lessons on describing a motion."""

import math

from drawing import (BALL, BLUE, EDGE, GREEN, GROUND, INK, IVORY, LINE, MUTED, ORANGE, RED, RULE,
                     SMALL, SPEED, Drawing, Plot, french)

G = 9.81  # N/kg
WHEEL = 0.35  # radius of a bicycle's wheel, metres

# The film of the falling ball: 25 pictures a second, the ball let go at picture 0.
INTERVAL = 1 / 25
FALL = [0.5 * G * (INTERVAL * i) ** 2 for i in range(16)]  # metres
READ = [round(y, 2) for y in FALL]  # to a centimetre, as the ruler in the film allows
SPEEDS = [(READ[i + 1] - READ[i - 1]) / (2 * INTERVAL) for i in range(1, 15)]  # of pictures 1 to 14

# A model train on a circle: radius in metres, speed in m/s, seconds between two pictures.
TRACK, TRAIN, STEP = 0.60, 0.90, 0.20
CHORD = 2 * TRACK * math.sin(TRAIN * STEP / TRACK / 2)


def scales():
    d = Drawing(575, 210, "Axe des longueurs en puissances de dix, du noyau d’un atome, 10 "
                          "puissance −15 mètre, "
                          "à la Galaxie, 10 puissance 21 mètres")
    left, step = 28, 14.4  # pixels; pixels a power of ten
    place = lambda metres: left + (math.log10(metres) + 15) * step
    d.arrow(12, 116, 566, 116, INK, LINE, head=10)
    for power in range(-15, 22):
        x = left + (power + 15) * step
        d.line(x, 112, x, 120, INK if power % 3 == 0 else EDGE, 1.4 if power % 3 == 0 else 1)
        if power % 3 == 0:
            d.text(x, 138, f"10^{{{french(power)}}}" if power else "1", SMALL, INK, "middle")
    d.text(566, 96, "m", anchor="end")
    above = [(2e-15, 1, "noyau"), (1e-10, 0, "atome"), (1e-6, 1, "bactérie"), (1.7, 0, "élève"),
             (1.3e7, 1, "Terre"), (1.5e11, 0, "Terre–Soleil"), (9.5e20, 1, "Galaxie")]
    for metres, row, name in above:
        x, y = place(metres), 68 - 34 * row
        d.line(x, y + 6, x, 108, RULE, 1)
        d.dot(x, 116, BLUE, 4)
        anchor = "end" if metres > 1e19 else "start" if metres < 1e-13 else "middle"
        d.text(x + {"end": 10, "start": -10, "middle": 0}[anchor], y, name, ink=BLUE, anchor=anchor)
    for start, end, name in ((1e-15, 1e-8, "microscopique"), (1e-5, 1e5, "à notre échelle"),
                             (1e6, 1e21, "astronomique")):
        d.span(place(start), 162, place(end), 162, GREEN)
        d.text((place(start) + place(end)) / 2, 182, name, ink=GREEN, anchor="middle")
    d.text(287, 204, "D’une graduation à la suivante, la longueur est dix fois plus grande.", SMALL,
           MUTED, "middle")
    return d


def wheel(d, x, y, radius, angle):
    """`angle`: of the valve, degrees clockwise from the lowest point."""
    d.circle(x, y, radius, "none", EDGE, 3)
    for spoke in range(0, 360, 45):
        turned = math.radians(spoke + angle)
        d.line(x, y, x - 0.94 * radius * math.sin(turned), y + 0.94 * radius * math.cos(turned),
               RULE, 1)
    d.dot(x, y, EDGE, 4)


def valve(x, y, radius, angle):
    return x - radius * math.sin(angle), y + radius * math.cos(angle)


def frames_of_a_wheel():
    d = Drawing(575, 232, "La valve d’une roue de vélo décrit un cercle dans le référentiel du "
                          "vélo, et une suite "
                          "d’arches dans le référentiel de la route")
    radius, ground = 44, 150
    here, start = 88, 236
    far = start + 2 * math.pi * radius  # without slipping, one turn takes the wheel this far
    d.text(here, 20, "dans le référentiel du vélo", ink=BLUE, anchor="middle", bold=True)
    wheel(d, here, ground - radius, radius, 0)
    d.circle(here, ground - radius, radius, "none", RED, 2)
    for step in range(12):
        d.dot(*valve(here, ground - radius, radius, math.pi * step / 6), RED, 3.6)
    d.arrow(here + 57, 82, here + 57, 132, RED, LINE)
    d.text(here, 186, "trajectoire : un cercle", ink=RED, anchor="middle")
    d.line(178, 10, 178, 192, RULE, 1)
    d.text((start + far) / 2, 20, "dans le référentiel de la route", ink=BLUE, anchor="middle", bold=True)
    d.rect(190, ground, 380, 10, GROUND)
    d.line(190, ground, 570, ground, EDGE, LINE)
    wheel(d, start, ground - radius, radius, 0)
    wheel(d, far, ground - radius, radius, 0)
    arches = [valve(start + radius * a, ground - radius, radius, a) for a in (0.05 * i for i in range(-28,
              155))]
    d.curve(arches, RED, 2)
    for step in range(-2, 15):
        turned = math.pi * step / 6
        d.dot(*valve(start + radius * turned, ground - radius, radius, turned), RED, 3.6)
    d.span(start, 172, far, 172, GREEN)
    d.text((start + far) / 2, 191, f"un tour : 2π*R* = {french(2 * math.pi * WHEEL, 1)} m", ink=GREEN,
           anchor="middle")
    d.text(287, 224, f"Roue de rayon *R* = {french(100 * WHEEL)} cm ; la valve, un douzième de "
                     "tour après l’autre.", SMALL, MUTED, "middle")
    return d


def displacement():
    d = Drawing(560, 234, "Dans des rues à angle droit, une élève parcourt 700 mètres de A à B ; "
                          "le vecteur déplacement "
                          "AB, en ligne droite, mesure 500 mètres")
    left, bottom, scale = 96, 206, 0.56  # pixels; pixels a metre
    place = lambda x, y: (left + scale * x, bottom - scale * y)
    for x, wide in ((-60, 50), (10, 80), (110, 80), (210, 80), (310, 80), (410, 50)):
        for y in (10, 110, 210):
            d.rect(*place(x, y + 80), wide * scale, 80 * scale, GROUND)
    way = [(0, 0), (200, 0), (200, 100), (400, 100), (400, 300)]
    d.curve([place(*point) for point in way], ORANGE, 3)
    for x, y, words in ((100, 0, "200 m"), (300, 100, "200 m")):
        d.text(place(x, 0)[0], place(0, y)[1] + 17, words, ink=ORANGE, anchor="middle")
    d.text(place(200, 0)[0] + 8, place(0, 50)[1] + 5, "100 m", ink=ORANGE)
    d.text(place(400, 0)[0] + 8, place(0, 200)[1] + 5, "200 m", ink=ORANGE)
    d.arrow(*place(0, 0), *place(400, 300), INK)
    d.dot(*place(0, 0), INK, 4)
    d.dot(*place(400, 300), INK, 4)
    d.text(place(0, 0)[0] - 10, bottom + 5, "A", 15, bold=True, anchor="end")
    d.text(place(400, 0)[0] + 10, place(0, 300)[1] + 5, "B", 15, bold=True)
    d.text(place(170, 0)[0] - 12, place(0, 180)[1] + 2, "~AB~", 15, INK, "end")
    d.lines(404, 84, ["Chemin parcouru :", "200 + 100 + 200 + 200", "= 700 m"], ink=ORANGE)
    d.lines(404, 156, ["Vecteur déplacement :", "AB = 500 m"], ink=INK)
    d.span(404, 204, 404 + 100 * scale, 204, GREEN)
    d.text(404 + 100 * scale + 10, 208, "100 m", SMALL, GREEN)
    return d


def velocity():
    d = Drawing(560, 252, "Un petit train sur une voie circulaire, photographié toutes les 0,20 s "
                          ": entre deux positions le "
                          "vecteur déplacement, et deux vecteurs vitesse de même longueur et de "
                          "directions différentes")
    x, y, scale = 222, 232, 300  # the centre, pixels; pixels a metre
    arrow = 90  # pixels for 0.90 m/s
    angle = lambda i: math.pi - 0.17 - i * TRAIN * STEP / TRACK
    place = lambda i: (x + TRACK * scale * math.cos(angle(i)), y - TRACK * scale * math.sin(angle(i)))
    radius = TRACK * scale
    d.path(f"M{x - radius} {y}A{radius} {radius} 0 0 1 {x + radius} {y}", RULE, 5)
    for i in range(10):
        d.circle(*place(i), 5, BALL, BLUE)
    for i in range(10):
        px, py = x + (radius - 18) * math.cos(angle(i)), y - (radius - 18) * math.sin(angle(i))
        d.text(px, py + 5, f"M_{{{i}}}", SMALL, MUTED, "middle")
    for i, right, down in ((3, -6, -14), (5, -4, -14), (7, 8, 0)):
        (ax, ay), (bx, by) = place(i), place(i + 1)
        tip = ax + arrow * (bx - ax) / scale / CHORD, ay + arrow * (by - ay) / scale / CHORD
        d.arrow(ax, ay, *tip, SPEED)
        d.text(tip[0] + right, tip[1] + down, f"~*v*~_{{{i}}}", 15, SPEED)
    d.arrow(*place(1), *place(2), GREEN)
    mx, my = place(1.5)
    d.text(mx - 12, my + 6, "~M_{1}M_{2}~", ink=GREEN, anchor="end")
    d.dot(x, y, INK, 3)
    d.line(x, y, *place(6.5), EDGE, 1, "4 3")
    d.text(x + 44, y - 88, f"*R* = {french(TRACK, 2)} m", ink=MUTED, anchor="end")
    d.lines(426, 60, ["Deux images se suivent", f"de Δ*t* = {french(STEP, 2)} s."], SMALL, MUTED,
            step=16)
    d.span(448, 206, 448 + arrow / 0.9, 206, SPEED)
    d.text(448, 224, "1 m/s", SMALL, SPEED)
    d.span(448, 168, 448 + 0.2 * scale, 168, GREEN)
    d.text(448, 186, "0,20 m", SMALL, GREEN)
    return d


def tracking():
    d = Drawing(560, 352, "Pointage de la bille sur les images du film : origine au centre de la "
                          "bille lâchée, axe vers le bas, "
                          "étalon de 1,00 m sur la règle, positions de plus en plus écartées")
    left, top, scale = 116, 24, 166  # pixels a metre
    d.rect(left - 8, top - 8, 42, 1.8 * scale + 16, IVORY, EDGE, 1, 2)
    for mark in range(37):
        y = top + mark * 0.05 * scale
        d.line(left + 34, y, left + (22 if mark % 2 == 0 else 27), y, EDGE, 1)
        if mark % 4 == 0:
            d.text(left + 20, y + 4, french(mark * 5), SMALL, MUTED, "end")
    d.text(left + 13, 12, "cm", SMALL, MUTED, "middle")
    x = 210
    d.arrow(x, top, x, top + 1.8 * scale + 24, INK, LINE, head=10)
    d.text(x + 12, top + 1.8 * scale + 22, "*y*", 15)
    d.text(x + 14, top + 5, "O (image 0)", SMALL, MUTED)
    for i, y in enumerate(FALL):
        d.cross(x, top + y * scale, RED, 5)
        if i >= 7:
            d.text(x + 14, top + y * scale + 4, str(i), SMALL, MUTED)
    d.span(left - 22, top, left - 22, top + scale, GREEN)
    d.lines(left - 32, top + scale / 2, ["étalon", "1,00 m"], ink=GREEN, anchor="end", step=16)
    rows = [("1.", "Repérer l’instant du départ :", "c’est l’image 0, *t* = 0."),
            ("2.", "Donner l’échelle : deux points", "de la règle distants de 1,00 m."),
            ("3.", "Choisir l’origine O et l’axe *y*,", "ici vertical, vers le bas."),
            ("4.", "Avancer d’une image, *t* augmente",
             f"de {french(INTERVAL, 3)} s ; pointer le centre.")]
    for index, (mark, first, second) in enumerate(rows):
        y = 62 + 62 * index
        d.text(318, y, mark, ink=BLUE, bold=True)
        d.text(340, y, first)
        d.text(340, y + 18, second)
    return d


def fall_graphs():
    d = Drawing(575, 256, "Deux graphiques de la chute relevée sur le film : la distance parcourue "
                          "croît de plus en plus "
                          "vite, la vitesse croît proportionnellement au temps")
    for left, limit, step, name, values, decimals in (
            (44, 2.0, 0.5, "*y* (m)", list(enumerate(READ)), 1),
                                                      (346, 6, 1, "*v* (m/s)", list(enumerate(SPEEDS,
                                                       1)), 0)):
        plot = Plot(d, left, 36, 190, 160, (0, 0.6), (0, limit))
        plot.axes(0.1, step, "*t* (s)", name, 1, decimals)
        plot.curve((lambda t: 0.5 * G * t * t) if limit == 2 else (lambda t: G * t), BLUE, 0, 0.6,
                   60)
        for i, value in values:
            d.cross(*plot.at(i * INTERVAL, value), RED, 4)
    d.text(60, 56, "parabole", ink=BLUE)
    d.text(362, 56, "droite : *v* = *g* × *t*", ink=BLUE)
    d.text(44, 252, "croix : relevées sur le film ; traits : le modèle, *g* = 9,81 N/kg", SMALL,
           MUTED)
    return d


FIGURES = {"echelles-longueurs": scales, "roue-referentiels": frames_of_a_wheel,
           "vecteur-deplacement": displacement, "vecteurs-vitesse": velocity,
           "chute-pointage": tracking, "chute-graphes": fall_graphs}

if __name__ == "__main__":
    print([round(y, 4) for y in FALL], READ, [round(v, 2) for v in SPEEDS], CHORD, CHORD / STEP)
