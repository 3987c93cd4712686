"""Figures of the lessons on solutions."""

import math

from drawing import (BLUE, EDGE, GLASS, GREEN, INK, IVORY, MUTED, ORANGE, RED, RULE, SMALL, WATER,
                     WHITE, Drawing, french)

CRYSTAL, TINT = "#2f6fd0", (47, 111, 208)  # copper sulphate
PURPLE = (142, 36, 120)  # permanganate
SCALE = [4, 8, 12, 16, 20]  # mg/L
UNKNOWN = 10  # mg/L, between the second and the third


def seen(colour, concentration, thickness=1.0):
    """What a solution looks like on white: each colour is weakened as its thickness and concentration ask for."""
    return "#" + "".join(f"{round(255 * (max(value, 8) / 255) ** (concentration * thickness)):02x}"
                         for value in colour)


def flask(d, x, y, fill=None, level=0.0, size=1.0, stopper=False):
    """A flask with a mark, its foot at x, y; 96 pixels high. Filled to a share: 0.66 is two thirds of the
    bulb, 1 the mark."""
    radius, neck, high = 26 * size, 4.5 * size, 96 * size
    centre = y - radius
    join = centre - math.sqrt(radius ** 2 - neck ** 2)
    mark = y - 76 * size
    flat = radius * 0.55  # half the width of its foot
    foot = centre + math.sqrt(radius ** 2 - flat ** 2)
    if fill and level > 0:
        top = mark if level >= 1 else foot - level * (foot - centre + radius)
        if level >= 1:
            way = (f"M{x - neck:.1f} {top:.1f}V{join:.1f}A{radius:.1f} {radius:.1f} 0 0 0 "
                   f"{x - flat:.1f} {foot:.1f}H{x + flat:.1f}"
                   f"A{radius:.1f} {radius:.1f} 0 0 0 {x + neck:.1f} {join:.1f}V{top:.1f}Z")
        else:
            half = math.sqrt(max(0.0, radius ** 2 - (top - centre) ** 2))
            way = (f"M{x - half:.1f} {top:.1f}A{radius:.1f} {radius:.1f} 0 0 0 {x - flat:.1f} "
                   f"{foot:.1f}H{x + flat:.1f}"
                   f"A{radius:.1f} {radius:.1f} 0 0 0 {x + half:.1f} {top:.1f}Z")
        d.path(way, "none", 0, fill)
    d.path(f"M{x - neck:.1f} {y - high:.1f}V{join:.1f}A{radius:.1f} {radius:.1f} 0 0 0 "
           f"{x - flat:.1f} {foot:.1f}H{x + flat:.1f}"
           f"A{radius:.1f} {radius:.1f} 0 0 0 {x + neck:.1f} {join:.1f}V{y - high:.1f}", GLASS, 1.8)
    d.line(x - neck - 4, mark, x + neck + 4, mark, INK, 1.3)
    if stopper:
        d.rect(x - neck - 1, y - high - 6, 2 * neck + 2, 9, "#b98b52", None, round=2)


def beaker(d, x, y, wide, high, level, fill):
    """Its lower left corner at x, y."""
    d.rect(x, y - level, wide, level, fill)
    d.path(f"M{x} {y - high}V{y}H{x + wide}V{y - high}", GLASS, 1.8)


def wash_bottle(d, x, y):
    """The end of its tube at x, y."""
    d.path(f"M{x} {y}Q{x} {y - 16} {x + 14} {y - 16}Q{x + 26} {y - 16} {x + 26} {y - 6}", EDGE, 1.8)
    d.rect(x + 16, y - 6, 20, 6, EDGE, None, round=1)
    d.path(f"M{x + 14} {y + 2}h24v32q0 3 -3 3h-18q-3 0 -3 -3Z", EDGE, 1.2, WATER)


def step_number(d, x, y, count):
    d.circle(x, y, 10, BLUE, None)
    d.text(x, y + 4.5, str(count), SMALL, WHITE, "middle", True)


def concentrations():
    d = Drawing(560, 226, "Trois solutions : 5,0 grammes dans 250 millilitres et 10,0 grammes dans "
                          "500 millilitres ont la même concentration, "
                          "20 grammes par litre ; 5,0 grammes dans 500 millilitres font 10 grammes "
                          "par litre et une teinte plus claire")
    for index, (mass, volume) in enumerate(((5.0, 250), (5.0, 500), (10.0, 500))):
        x = 96 + 184 * index
        strength = mass / volume * 1000
        high = 110 * volume / 500
        beaker(d, x - 40, 142, 80, 128, high, seen(TINT, strength / 20))
        for mark in (250, 500):
            d.line(x + 40, 142 - 110 * mark / 500, x + 46, 142 - 110 * mark / 500, EDGE, 1.2)
            if index == 0:
                d.text(x + 50, 146 - 110 * mark / 500, f"{mark} mL", SMALL, MUTED)
        d.text(x, 166, f"*m* = {french(mass, 1)} g", anchor="middle")
        d.text(x, 184, f"*V* = {volume} mL", anchor="middle")
        d.text(x, 210, f"*c*_{{m}} = {french(strength)} g/L", 15, BLUE if strength > 15 else ORANGE,
               "middle", True)
    return d


def two_quotients():
    d = Drawing(560, 200, "Deux quotients à ne pas confondre : la concentration en masse, masse du "
                          "soluté divisée par le volume de la solution ; la "
                          "masse volumique, masse de la solution divisée par son volume")
    for x, name, letter, top, ink in ((140, "concentration en masse", "*c*_{m}", "masse du soluté",
                                       ORANGE),
                                      (420, "masse volumique", "*ρ*", "masse de la solution",
                                       BLUE)):
        d.text(x, 20, name, ink=ink, anchor="middle", bold=True)
        beaker(d, x - 132, 128, 60, 88, 66, WATER)
        if ink == ORANGE:
            for dx, dy in ((10, 12), (24, 30), (42, 16), (16, 48), (36, 52), (50, 40), (28, 10),
                           (9, 32)):
                d.circle(x - 132 + dx, 128 - dy, 3.4, ORANGE, None)
        else:
            d.rect(x - 130, 63, 56, 63, "none", BLUE, 2.4, dash="5 3")
        d.text(x - 28, 92, f"{letter} =", 16, ink, "end")
        left = x - 18
        d.text(left + 69, 80, top, ink=ink, anchor="middle")
        d.line(left, 87, left + 138, 87, ink, 1.3)
        d.text(left + 69, 103, "volume de la solution", ink=INK, anchor="middle")
    d.line(280, 10, 280, 140, RULE, 1)
    d.lines(140, 164, ["10,0 g de sucre dans 100,0 mL :", "*c*_{m} = 100 g/L"], ink=ORANGE, anchor="middle")
    d.lines(420, 164, ["100,0 mL de cette solution : 103,7 g,", "*ρ* = 1 037 g/L"], ink=BLUE, anchor="middle")
    return d


def dissolving():
    d = Drawing(575, 356, "Préparer une solution par dissolution, six étapes : peser, verser dans "
                          "la fiole, rincer, remplir aux deux tiers et agiter, "
                          "compléter jusqu’au trait de jauge, boucher et retourner")
    words = [("Peser le solide dans", "une coupelle tarée."),
             ("Le verser dans la fiole,", "par l’entonnoir."),
             ("Rincer coupelle et", "entonnoir : tout passe."),
             ("Eau aux deux tiers,", "boucher, agiter."),
             ("Compléter, à la fin", "goutte à goutte."),
             ("Boucher, retourner :", "c’est homogène.")]
    for index, rows in enumerate(words):
        x, y = 96 + 192 * (index % 3), 134 + 178 * (index // 3)
        step_number(d, x - 66, y - 104, index + 1)
        d.lines(x, y + 20, rows, anchor="middle", step=17)
        if index == 0:
            d.area([(x - 44, y), (x - 36, y - 34), (x + 36, y - 34), (x + 44, y)], IVORY, EDGE, 1.4)
            d.rect(x - 26, y - 24, 52, 16, WHITE, EDGE, 1)
            d.text(x, y - 12, "5,00 g", SMALL, INK, "middle")
            d.rect(x - 34, y - 40, 68, 6, EDGE)
            d.area([(x - 15, y - 49), (x, y - 61), (x + 15, y - 49)], CRYSTAL)
            d.path(f"M{x - 26} {y - 52}Q{x - 20} {y - 41} {x} {y - 41}Q{x + 20} {y - 41} {x + 26} "
                   f"{y - 52}", GLASS, 1.8)
            continue
        fill, level = (None, 0) if index in (1, 2) else (seen(TINT, 0.55), 0.66) if index == 3 else (seen(TINT,
                                                                                                     0.45),
                                                                                                     1)
        shown = 2 if index == 2 else index
        if shown == 2:
            fill, level = seen(TINT, 1.2), 0.16
        flask(d, x, y, fill, level, stopper=index in (3, 5))
        if index in (1, 2):
            d.path(f"M{x - 15} {y - 112}L{x - 2.5} {y - 98}V{y - 80}M{x + 15} {y - 112}L{x + 2.5} "
                   f"{y - 98}V{y - 80}", EDGE, 1.6)
            d.area([(x - 9, y - 5.5), (x, y - 12), (x + 9, y - 5.5)], CRYSTAL)
        if index == 1:
            d.path(f"M{x + 18} {y - 118}l20 -6M{x + 18} {y - 118}q-2 -8 6 -10", GLASS, 1.8)
            for dx, dy in ((8, -116), (3, -108), (0, -98)):
                d.circle(x + dx, y + dy, 1.8, CRYSTAL, None)
        if index == 2:
            wash_bottle(d, x + 12, y - 108)
            d.line(x + 12, y - 107, x + 7, y - 103, "#7fb0e6", 2)
        if index == 3:
            d.path(f"M{x - 40} {y - 14}q-8 -12 0 -24M{x + 40} {y - 14}q8 -12 0 -24", MUTED, 1.6)
        if index == 4:
            wash_bottle(d, x + 1, y - 102)
            d.path(f"M{x + 1} {y - 99}q3 5 0 7q-3 -2 0 -7Z", BLUE, 0.8, WATER)
            d.text(x - 14, y - 72, "trait", SMALL, MUTED, "end")
        if index == 5:
            d.path(f"M{x - 40} {y - 20}q-10 -30 8 -54m-9 4l9 -4l1 10M{x + 40} {y - 74}q10 30 -8 "
                   "54m9 -4l-9 4l-1 -10", MUTED, 1.6)
    return d


def meniscus():
    d = Drawing(520, 190, "Lecture du niveau : l’œil à la hauteur du trait, le bas du ménisque "
                          "touche le trait ; plus haut ou plus bas, on se trompe")
    for x, shift, word, ink in ((110, 0, "le bas du ménisque touche le trait : juste", GREEN),):
        top, bottom, y = 14, 176, 92
        d.path(f"M{x - 34} {y - 9}Q{x - 30} {y} {x} {y}Q{x + 30} {y} {x + 34} "
               f"{y - 9}V{bottom}H{x - 34}Z", "none", 0, seen(TINT, 0.4))
        d.path(f"M{x - 34} {top}V{bottom}M{x + 34} {top}V{bottom}", GLASS, 2.2)
        d.path(f"M{x - 34} {y - 9}Q{x - 30} {y} {x} {y}Q{x + 30} {y} {x + 34} {y - 9}", BLUE, 1.6)
        d.line(x - 40, y, x + 40, y, INK, 1.6)
    for y, word, ink in ((34, "œil trop haut : on s’arrête trop bas", RED),
                         (92, "œil à la hauteur du trait : juste", GREEN),
                         (150, "œil trop bas : on verse trop", RED)):
        d.line(150, 92 + (y - 92) * 0.12, 240, y, ink, 1.2, "4 3")
        d.path(f"M246 {y}Q260 {y - 13} 276 {y}Q260 {y + 13} 246 {y}Z", ink, 1.5, WHITE)
        d.dot(258, y, ink, 4.5)
        d.text(288, y + 5, word, ink=ink)
    return d


def diluting():
    d = Drawing(575, 210, "Diluer dix fois : prélever 10,0 millilitres de solution mère à la "
                          "pipette jaugée, les verser dans une fiole de 100,0 "
                          "millilitres, compléter jusqu’au trait de jauge, agiter")
    words = [("Prélever 10,0 mL", "de solution mère."), ("Verser dans une fiole", "de 100,0 mL."),
             ("Compléter d’eau", "jusqu’au trait."), ("Boucher, agiter :", "solution fille.")]
    mother, daughter = seen(TINT, 1.6), seen(TINT, 0.16)
    for index, rows in enumerate(words):
        x, y = 76 + 142 * index, 156
        step_number(d, x - 56, 16, index + 1)
        d.lines(x, y + 26, rows, anchor="middle", step=18)
        if index == 0:
            beaker(d, x - 34, y, 68, 62, 40, mother)
        else:
            flask(d, x, y, *((mother, 0.13) if index == 1 else (daughter, 1)), stopper=index == 3)
        if index < 2:
            foot = y - 14 if index == 0 else y - 84
            pipette(d, x, foot, mother if index == 0 else None)
        if index == 2:
            wash_bottle(d, x + 1, y - 102)
            d.path(f"M{x + 1} {y - 99}q3 5 0 7q-3 -2 0 -7Z", BLUE, 0.8, WATER)
    return d


def pipette(d, x, y, fill):
    """Its tip at x, y; 60 pixels and the bulb above."""
    way = (f"M{x - 1.2} {y}V{y - 16}Q{x - 5} {y - 19} {x - 5} {y - 23}V{y - 32}Q{x - 5} {y - 36} "
           f"{x - 1.2} {y - 39}V{y - 56}H{x + 1.2}"
           f"V{y - 39}Q{x + 5} {y - 36} {x + 5} {y - 32}V{y - 23}Q{x + 5} {y - 19} {x + 1.2} "
           f"{y - 16}V{y}Z")
    d.path(way, GLASS, 1.2, fill or WHITE)
    d.rect(x - 4, y - 66, 8, 12, EDGE, None, round=3)


def scale_of_colours():
    d = Drawing(575, 206, "Échelle de teintes : cinq tubes de 4 à 20 milligrammes par litre ; la "
                          "teinte de la solution inconnue est entre celles "
                          "des tubes à 8 et à 12 milligrammes par litre")
    places = {4: 60, 8: 150, "?": 240, 12: 330, 16: 420, 20: 510}
    for value, x in places.items():
        strength = UNKNOWN if value == "?" else value
        fill = seen(PURPLE, strength / 12)
        ink = RED if value == "?" else INK
        d.path(f"M{x - 15} 44V120A15 15 0 0 0 {x + 15} 120V44Z", "none", 0, fill)
        d.path(f"M{x - 16} 22V120A16 16 0 0 0 {x + 16} 120V22", RED if value == "?" else GLASS, 1.8)
        d.line(x - 20, 22, x + 20, 22, RED if value == "?" else GLASS, 1.8)
        d.text(x, 158, "inconnue" if value == "?" else str(value), 13 if value == "?" else 15, ink,
               "middle", True)
    d.line(30, 138, 545, 138, EDGE, 3)
    d.text(285, 200, "*c*_{m} en mg/L ; même tube, même épaisseur, même éclairage, fond blanc",
           SMALL, MUTED, "middle")
    d.text(240, 178, "8 mg/L < *c*_{m} < 12 mg/L", ink=RED, anchor="middle")
    return d


FIGURES = {"concentration-masse": concentrations, "deux-quotients": two_quotients, "dissolution": dissolving,
           "menisque": meniscus, "dilution-etapes": diluting, "echelle-teintes": scale_of_colours}
