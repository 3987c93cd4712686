"""Figures of the lessons on pure bodies and mixtures."""

import math
import random

from drawing import (BALL, BLUE, EDGE, GLASS, GREEN, GROUND, INK, LINE, MUTED, ORANGE, RED, RULE,
                     SMALL, WATER, WHITE, Drawing, Plot, french)

OIL, SUGAR, SAND = "#f3dd8f", "#c8702a", "#b39a6c"
HOT, COLD = "#e9923a", "#7fa3c7"

# Heating 100 g of ice: J·g⁻¹·K⁻¹, J·g⁻¹, W.
ICE, LIQUID, FUSION, HEATING = 2.06, 4.18, 334, 50
SALT, FREEZING = 5.0, 1.86  # g of salt in 100 g of water; K·kg·mol⁻¹

# Melting and boiling points under 1 013 hPa, °C.
POINTS = [("dioxygène", -219, -183), ("éthanol", -114, 78), ("acétone", -95, 56), ("eau", 0, 100),
          ("cyclohexane", 6.5, 81), ("naphtalène", 80, 218)]

# Air without its vapour: shares of volume in percent, molar masses in g/mol.
AIR = [("diazote N_{2}", 78.1, 28.0, BALL), ("dioxygène O_{2}", 20.9, 32.0, "#e08a80"),
       ("argon et autres", 1.0, 39.9, "#c9b6e0")]

FRONT, SPOTS = 8.0, (2.4, 4.8, 6.4)  # cm, above the start; of the plate


def beaker(d, x, y, wide, high):
    d.path(f"M{x} {y}V{y + high}H{x + wide}V{y}", GLASS, 1.8)


def mixtures():
    d = Drawing(575, 230, "Quatre béchers et leurs molécules : eau distillée, corps pur ; eau "
                          "sucrée, mélange homogène ; eau et huile, eau et "
                          "sable, mélanges hétérogènes")
    cases = [("eau distillée", "corps pur", GREEN), ("eau sucrée", "mélange homogène", BLUE),
             ("eau et huile", "mélange hétérogène", ORANGE),
             ("eau et sable", "mélange hétérogène", ORANGE)]
    for index, (name, kind, ink) in enumerate(cases):
        lot, x = random.Random(11 + index), 72 + 144 * index
        d.rect(x - 36, 26, 72, 54, WATER)
        if index == 2:
            d.rect(x - 36, 26, 72, 18, OIL)
        if index == 3:
            d.area([(x - 36, 80), (x - 36, 66), (x - 10, 62), (x + 20, 66), (x + 36, 63),
                    (x + 36, 80)], SAND)
        beaker(d, x - 36, 10, 72, 70)
        d.line(x, (58, 58, 44, 65)[index], x, 98, EDGE, 1)
        d.circle(x, 140, 42, WHITE, EDGE, 1.4)
        for row in range(6):
            for column in range(6):
                px = x - 32.5 + 13 * column + lot.uniform(-2, 2)
                py = 140 - 32.5 + 13 * row + lot.uniform(-2, 2)
                if math.hypot(px - x, py - 140) > 37:
                    continue
                if index == 1 and (row * 2 + column * 3) % 7 == 0:
                    d.circle(px, py, 5.4, SUGAR, None)
                elif index == 2 and row < 3:
                    d.rect(px - 6, py - 3, 12, 6, "#d8b23c", None, round=3)
                elif index == 3 and row > 2:
                    continue
                else:
                    d.circle(px, py, 3.8, COLD, None)
        if index == 3:
            d.path(f"M{x - 39} 148Q{x} 138 {x + 39} 150A41 41 0 0 1 {x - 39} 148Z", EDGE, 1, SAND)
        d.text(x, 204, name, anchor="middle", bold=True)
        d.text(x, 222, kind, ink=ink, anchor="middle")
    return d


def mass_and_volume():
    d = Drawing(520, 286, "Masse de liquides en fonction de leur volume : des droites qui passent "
                          "par l’origine ; celle du liquide inconnu est "
                          "sous celle de l’eau")
    plot = Plot(d, 56, 36, 380, 200, (0, 100), (0, 120))
    plot.axes(20, 20, "*V* (mL)", "*m* (g)")
    for name, density, ink in (("glycérol", 1.26, MUTED), ("eau", 1.00, BLUE),
                               ("inconnu", 0.789, RED)):
        end = min(100, 120 / density)
        plot.curve(lambda volume: density * volume, ink, 0, end, 2)
        x, y = plot.at(end, density * end)
        d.text(x + 8, y + 5 if end == 100 else y + 18, name, ink=ink, bold=True)
    for volume, mass in ((20, 15.8), (40, 31.4), (60, 47.4), (80, 63.2)):
        d.cross(*plot.at(volume, mass))
    x, y = plot.at(80, 63.2)
    d.line(x, y, x, 236, GREEN, 1.3, "4 3")
    d.line(56, y, x, y, GREEN, 1.3, "4 3")
    d.text(70, y - 8, "63,2 g pour 80,0 mL", ink=GREEN)
    return d


def layers():
    d = Drawing(560, 262, "Une éprouvette où l’huile flotte sur l’eau et l’eau sur le miel : un "
                          "bouchon flotte sur l’huile, le polyéthylène sur "
                          "l’eau, le PVC sur le miel, la bille d’acier coule")
    x, wide = 210, 110
    layers = [("huile", 0.92, 60, OIL), ("eau", 1.00, 56, WATER), ("miel", 1.42, 66, "#e0a84a")]
    y = 46
    tops = []
    for name, density, high, fill in layers:
        d.rect(x, y, wide, high, fill)
        d.text(x - 18, y + high / 2 + 5, f"{name} : {french(density, 2)}", ink=INK, anchor="end")
        tops.append(y)
        y += high
    d.path(f"M{x} 16V{y - 8}Q{x} {y} {x + 8} {y}H{x + wide - 8}Q{x + wide} {y} {x + wide} "
           f"{y - 8}V16", GLASS, 2.2)
    d.rect(x - 14, y, wide + 28, 8, GROUND, EDGE, 1.2)
    # each floats so deep that it weighs as much as the liquids whose place it takes
    side = 26
    for index, (name, density, fill, at) in enumerate((("liège", 0.24, "#d0a878", 34),
                                                       ("polyéthylène", 0.95, WHITE, 66),
                                                        ("PVC", 1.38, "#9aa7b2", 34),
                                                       ("acier", 7.80, "#6b6454", 70))):
        if index < 3:
            over = [0, *[layer[1] for layer in layers]][index]
            share = (density - over) / (layers[index][1] - over)
            top = tops[index] - side * (1 - share)
        else:
            top = y - side - 2
        left = x + at - side / 2
        if name == "acier":
            d.circle(x + at, top + side / 2, side / 2, fill, INK, 1.2)
        else:
            d.rect(left, top, side, side, fill, INK, 1.2, 2)
        d.line(left + side + 3, top + side / 2, x + wide + 26, top + side / 2, RULE, 1)
        d.text(x + wide + 32, top + side / 2 + 5, f"{name} : {french(density, 2)}", ink=BLUE)
    d.text(265, 256, "masses volumiques en g/mL", SMALL, MUTED, "middle")
    return d


def heated_ice():
    """Turning points of 100 g of pure ice from −20 °C to 20 °C: minutes, °C."""
    times = [0, 100 * ICE * 20, 100 * FUSION, 100 * LIQUID * 20]
    ends = [sum(times[:n + 1]) / HEATING / 60 for n in range(4)]
    return list(zip(ends, (-20, 0, 0, 20)))


def heated_brine():
    """The same of frozen salt water: the ice melts over a range, since what is molten is ever less salty."""
    start = FREEZING * 2 * SALT / 58.44 * 10
    minutes, temperature, rows = 0.0, -20.0, [(0.0, -20.0)]
    while temperature < 20:
        step = 0.05
        molten = min(100, 100 * start / max(1e-9, -temperature)) if temperature < 0 else 100
        heat = (molten * LIQUID + (100 - molten) * ICE) * step
        following = min(100, 100 * start / -(temperature + step)) if temperature + step < 0 else 100
        heat += max(0, following - molten) * FUSION
        minutes += heat / HEATING / 60
        temperature += step
        rows.append((minutes, temperature))
    return rows


def melting_curves():
    d = Drawing(575, 258, "Température de la glace que l’on chauffe : un palier à 0 degré pour "
                          "l’eau pure, pas de palier pour l’eau salée")
    for left, name, rows, ink in ((52, "eau pure", heated_ice(), BLUE),
                                  (350, "eau salée", heated_brine(), ORANGE)):
        plot = Plot(d, left, 44, 176, 160, (0, 16), (-20, 20))
        plot.axes(4, 10, "*t* (min)", "*θ* (°C)")
        zero = plot.at(0, 0)[1]
        d.line(left, zero, left + 176, zero, EDGE, 1)
        d.curve([plot.at(*row) for row in rows], ink, 2.4)
        d.text(left + 176, 36, name, ink=ink, anchor="end", bold=True)
    plot = Plot(d, 52, 44, 176, 160, (0, 16), (-20, 20))
    (start, _), (end, _) = heated_ice()[1:3]
    x1, x2, y = plot.at(start, 0)[0], plot.at(end, 0)[0], plot.at(0, 0)[1]
    d.span(x1, y - 14, x2, y - 14, GREEN)
    d.text((x1 + x2) / 2, y - 22, "palier", ink=GREEN, anchor="middle")
    d.text((x1 + x2) / 2, y + 20, "solide + liquide", SMALL, MUTED, "middle")
    d.text(420, 66, "pas de palier", ink=GREEN, anchor="middle")
    d.text(52, 254, "100 g de glace, chauffés par 50 W", SMALL, MUTED)
    return d


def state_ranges():
    d = Drawing(575, 240, "États de six espèces selon la température : températures de fusion et "
                          "d’ébullition, et état à 20 degrés")
    left, wide, low, high = 104, 440, -275, 250
    place = lambda degrees: left + wide * (degrees - low) / (high - low)
    for index, (name, melting, boiling) in enumerate(POINTS):
        y = 32 + 28 * index
        d.text(left - 10, y + 14, name, anchor="end", ink=BLUE, bold=True)
        for start, end, fill in ((low, melting, COLD), (melting, boiling, WATER),
                                 (boiling, high, "#fbe9d3")):
            d.rect(place(start), y, place(end) - place(start), 18, fill)
        d.text(place(melting) - 5, y + 14, french(melting, 1 if melting == 6.5 else 0), SMALL, INK,
               "end")
        d.text(place(boiling) + 5, y + 14, french(boiling), SMALL)
    d.line(place(20), 26, place(20), 202, RED, 1.6, "5 3")
    d.text(place(20), 20, "20 °C", ink=RED, anchor="middle", bold=True)
    for degrees in range(-250, 251, 50):
        d.line(place(degrees), 202, place(degrees), 207, INK, 1.2)
        if degrees % 100 == 0:
            d.text(place(degrees), 221, french(degrees), SMALL, MUTED, "middle")
    d.line(left, 202, left + wide, 202, INK, 1.4)
    d.text(left + wide + 20, 236, "température (°C)", anchor="end")
    for x, name, fill in ((104, "solide", COLD), (184, "liquide", WATER), (268, "gaz", "#fbe9d3")):
        d.rect(x, 226, 14, 12, fill, EDGE, 0.8)
        d.text(x + 20, 237, name, SMALL)
    return d


def pie(d, x, y, radius, parts):
    """Parts are shares of 1 and colours, clockwise from the top."""
    turned = 0.0
    for share, fill in parts:
        start, end = turned, turned + 2 * math.pi * share
        d.path(f"M{x} {y}L{x + radius * math.sin(start):.2f} "
               f"{y - radius * math.cos(start):.2f}A{radius} {radius} 0 "
               f"{int(share > 0.5)} 1 {x + radius * math.sin(end):.2f} "
               f"{y - radius * math.cos(end):.2f}Z", EDGE, 1, fill)
        turned = end


def air():
    d = Drawing(560, 236, "Composition de l’air sec : en volume, 78 pour cent de diazote, 21 de "
                          "dioxygène, 1 d’argon et autres gaz ; en masse, 76, "
                          "23 et 1")
    whole = sum(share * molar for _, share, molar, _ in AIR)
    masses = [100 * share * molar / whole for _, share, molar, _ in AIR]
    volumes = [share for _, share, _, _ in AIR]
    d.text(110, 18, "en volume", ink=BLUE, anchor="middle", bold=True)
    pie(d, 110, 116, 82, [(share / 100, fill) for _, share, _, fill in AIR])
    d.text(136, 150, "N_{2}", 15, INK, "middle", True)
    d.text(74, 86, "O_{2}", 15, INK, "middle", True)
    d.text(400, 18, "en volume et en masse, %", ink=BLUE, anchor="middle", bold=True)
    plot = Plot(d, 264, 32, 280, 164, (0, 3), (0, 100))
    for value in range(0, 101, 20):
        y = plot.at(0, value)[1]
        d.line(264, y, 544, y, RULE, 1)
        d.text(256, y + 4, str(value), SMALL, MUTED, "end")
    for index, (name, _, _, fill) in enumerate(AIR):
        for offset, value, paint in ((0.2, volumes[index], fill), (0.52, masses[index], WHITE)):
            x, y = plot.at(index + offset, value)
            d.rect(x, y, 28, max(1.5, 196 - y), paint, EDGE if paint == WHITE else BLUE, 1.2)
            d.text(x + 14, y - 5, french(value), SMALL, INK, "middle")
        d.text(plot.at(index + 0.51, 0)[0], 214, name, SMALL, INK, "middle")
    d.line(264, 196, 544, 196, INK, LINE)
    d.text(404, 232, "plein : en volume ; blanc : en masse", SMALL, MUTED, "middle")
    return d


def coin():
    d = Drawing(560, 132, "Composition en masse de l’alliage des pièces de 10, 20 et 50 centimes : "
                          "89 pour cent de cuivre, 5 d’aluminium, 5 de zinc, "
                          "1 d’étain")
    left, wide = 30, 400
    d.text(left, 18, "100 g de l’alliage des pièces de 10, 20 et 50 centimes", ink=BLUE, bold=True)
    x = left
    for name, share, fill, level in (("cuivre", 89, "#d9986a", 0), ("aluminium", 5, "#d5dde4", 124),
                                     ("zinc", 5, "#a9b4bd", 106), ("étain", 1, MUTED, 88)):
        part = wide * share / 100
        d.rect(x, 32, part, 38, fill, WHITE, 1)
        if level:
            d.path(f"M{x + part / 2:.1f} 70V{level - 4}H{left + wide + 8}", EDGE, 1)
            d.text(left + wide + 13, level, f"{name} {share} g")
        else:
            d.text(x + part / 2, 56, f"{name} {share} g", anchor="middle", bold=True)
        x += part
    return d


FIGURES = {"melanges": mixtures, "masse-volume": mass_and_volume, "densites": layers,
           "fusion-courbes": melting_curves,
           "changements-etat": state_ranges, "air-composition": air, "piece-alliage": coin}

if __name__ == "__main__":
    whole = sum(share * molar for _, share, molar, _ in AIR)
    print(heated_ice(), heated_brine()[-1], FREEZING * 2 * SALT / 58.44 * 10,
          [share * molar / whole for _, share, molar, _ in AIR])
