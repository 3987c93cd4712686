"""Figures of the lessons on electrons, the periodic table, molecules, and nuclei."""

import math
import random

from drawing import (BLUE, EDGE, GREEN, GREEN_TINT, INK, IVORY, LINE, MUTED, ORANGE, PALE, RED,
                     RULE, SMALL, WHITE, Drawing, width)

SYMBOLS = "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar".split()
ROOM = [("1s", 2), ("2s", 2), ("2p", 6), ("3s", 2), ("3p", 6)]  # electrons that a subshell takes

PROTON, NEUTRON = "#d9695f", "#b9c2cc"


def configuration(electrons):
    """Pairs of a subshell and its electrons."""
    filled = []
    for name, room in ROOM:
        if electrons:
            taken = min(room, electrons)
            filled.append((name, taken))
            electrons -= taken
    return filled


def outer(electrons):
    """Electrons of the outer shell."""
    filled = configuration(electrons)
    return sum(count for name, count in filled if name[0] == filled[-1][0][0])


def configurations():
    d = Drawing(575, 244, "Configurations électroniques de l’hydrogène, du carbone, de l’oxygène, "
                          "du néon et du sodium, électron par électron dans les sous-couches 1s, "
                          "2s, 2p, 3s")
    lefts = {"1s": 150, "2s": 214, "2p": 278, "3s": 406}
    for name, left in lefts.items():
        d.text(left + {"1s": 23, "2s": 23, "2p": 57, "3s": 23}[name], 20, name, 14, BLUE, "middle",
               True)
    d.text(472, 20, "on écrit", SMALL, MUTED)
    for index, symbol in enumerate(("H", "C", "O", "Ne", "Na")):
        number, y = SYMBOLS.index(symbol) + 1, 34 + 42 * index
        d.text(14, y + 21, symbol, 15, INK, bold=True)
        d.text(44, y + 21, f"*Z* = {number}", ink=MUTED)
        filled = configuration(number)
        shells = max(int(name[0]) for name, _ in filled)
        for name, left in lefts.items():
            places = 6 if name == "2p" else 2
            taken = dict(filled).get(name, 0)
            last = int(name[0]) == shells and taken
            wide = 114 if name == "2p" else 46
            d.rect(left, y, wide, 30, GREEN_TINT if last else WHITE, GREEN if last else RULE, 1.4 if last
                   else 1, 4)
            for place in range(places):
                x = left + wide * (place + 0.5) / places
                d.circle(x, y + 15, 5.5, *((BLUE, None) if place < taken else (WHITE, RULE)))
        d.text(472, y + 20, " ".join(f"{name}^{{{count}}}" for name, count in filled))
    return d


def table():
    d = Drawing(575, 250, "Les dix-huit premiers éléments du tableau périodique en trois lignes ; "
                          "sous chaque symbole ses électrons de valence ; même "
                          "colonne, même nombre")
    left, top, wide, high = 34, 48, 66, 58
    columns = [1, 2, 13, 14, 15, 16, 17, 18]
    families = {1: "#f8dccb", 17: "#d6ecd9", 18: "#e3d9f0"}
    for index, column in enumerate(columns):
        d.text(left + wide * index + wide / 2, 38, str(column), SMALL, MUTED, "middle")
    for number, symbol in enumerate(SYMBOLS, 1):
        row = 0 if number <= 2 else 1 if number <= 10 else 2
        place = {1: 0, 2: 7}.get(number, (number - 3) % 8)
        x, y = left + wide * place, top + high * row
        fill = IVORY if symbol == "H" else families.get(columns[place], WHITE)
        d.rect(x, y, wide - 3, high - 3, fill, EDGE, 1, 3)
        d.text(x + 6, y + 15, str(number), SMALL, MUTED)
        d.text(x + 30, y + 32, symbol, 18, INK, "middle", True)
        count = outer(number)
        for electron in range(count):
            d.dot(x + 31 + 6.4 * (electron - (count - 1) / 2), y + 46, BLUE, 2.4)
    for row in range(3):
        d.text(22, top + high * row + 33, str(row + 1), SMALL, MUTED, "middle")
    d.text(left, 16, "colonne (famille)", SMALL, MUTED)
    d.text(287, 242, "Les points bleus : les électrons de valence. De 13 à 18, le chiffre des "
                     "unités les donne (sauf He, qui en a 2).", SMALL, MUTED, "middle")
    for x, words, fill in ((102, "alcalins", families[1]), (232, "halogènes", families[17]),
                           (372, "gaz nobles", families[18])):
        d.rect(x + 30, 54, 14, 12, fill, EDGE, 0.8)
        d.text(x + 50, 65, words, SMALL)
    return d


def bond(d, x1, y1, x2, y2, count=1, gap=10):
    """Lines between two symbols, `gap` from their middles."""
    length = math.hypot(x2 - x1, y2 - y1)
    ux, uy = (x2 - x1) / length, (y2 - y1) / length
    for line in range(count):
        off = 4.5 * (line - (count - 1) / 2)
        d.line(x1 + gap * ux - off * uy, y1 + gap * uy + off * ux, x2 - gap * ux - off * uy, y2 - gap * uy
               + off * ux, INK, LINE)


def pair(d, x, y, angle):
    """A free pair beside a symbol; degrees, from the right, anticlockwise."""
    a = math.radians(angle)
    px, py = x + 12 * math.cos(a), y - 12 * math.sin(a)
    d.line(px - 7 * math.sin(a), py - 7 * math.cos(a), px + 7 * math.sin(a), py + 7 * math.cos(a),
           BLUE, 2)


def lewis():
    d = Drawing(575, 236, "Schémas de Lewis du dihydrogène, de l’eau, de l’ammoniac, du méthane, "
                          "du dioxygène, du diazote et du dioxyde de carbone ; "
                          "les doublets non liants sont bleus")
    def atom(x, y, symbol):
        d.text(x, y + 6, symbol, 17, INK, "middle", True)
    def name(x, y, words, formula):
        d.text(x, y, words, SMALL, MUTED, "middle")
        d.text(x, y + 17, formula, ink=BLUE, anchor="middle", bold=True)
    def chain(x, y, symbols, bonds):
        for index, symbol in enumerate(symbols):
            atom(x + 36 * index, y, symbol)
            if index:
                bond(d, x + 36 * (index - 1), y, x + 36 * index, y, bonds[index - 1])
    y = 60
    chain(52, y, "HH", [1])
    name(70, 112, "dihydrogène", "H_{2}")
    chain(176, y, "HOH", [1, 1])
    pair(d, 212, y, 90), pair(d, 212, y, 270)
    name(212, 112, "eau", "H_{2}O")
    chain(322, y, "HNH", [1, 1])
    atom(358, y - 36, "H"), bond(d, 358, y, 358, y - 36)
    pair(d, 358, y, 270)
    name(358, 112, "ammoniac", "NH_{3}")
    chain(466, y, "HCH", [1, 1])
    atom(502, y - 36, "H"), bond(d, 502, y, 502, y - 36)
    atom(502, y + 36, "H"), bond(d, 502, y, 502, y + 36)
    name(560 - 58, 128, "méthane", "CH_{4}")
    y = 178
    chain(92, y, "OO", [2])
    for angle, x in ((125, 92), (235, 92), (55, 128), (305, 128)):
        pair(d, x, y, angle)
    name(110, 212, "dioxygène", "O_{2}")
    chain(250, y, "NN", [3])
    pair(d, 250, y, 180), pair(d, 286, y, 0)
    name(268, 212, "diazote", "N_{2}")
    chain(384, y, "OCO", [2, 2])
    for angle, x in ((125, 384), (235, 384), (55, 456), (305, 456)):
        pair(d, x, y, angle)
    name(420, 212, "dioxyde de carbone", "CO_{2}")
    return d


FEW = {1: [(0, 0)], 2: [(-0.8, 0), (0.8, 0)], 3: [(0, -0.95), (-0.9, 0.6), (0.9, 0.6)],
       4: [(-0.8, -0.8), (0.8, -0.8), (0.8, 0.8), (-0.8, 0.8)],
       6: [(-1.6, -0.8), (1.6, -0.8), (0, -0.8), (0, 0.8), (-1.6, 0.8), (1.6, 0.8)]}  # places of a few grains, in radii


def nucleus(d, x, y, protons, neutrons, radius=8):
    """Grains packed round the middle; which of them are protons is drawn by lot."""
    kinds = [PROTON] * protons + [NEUTRON] * neutrons
    if len(kinds) in FEW:
        kinds = kinds[::2] + kinds[1::2]  # like beside unlike
        places = FEW[len(kinds)]
    else:
        random.Random(len(kinds)).shuffle(kinds)
        places = [(0.98 * math.sqrt(index) * math.cos(2.39996 * index), 0.98 * math.sqrt(index) * math.sin(2.39996 * index))
                  for index in range(len(kinds))]
    for kind, (right, down) in zip(kinds, places):
        d.circle(x + radius * right, y + radius * down, radius, kind, EDGE, 0.9)


def nuclide(d, x, y, mass, charge, symbol, size=20, ink=INK):
    """A symbol with its mass number above its charge, x where the symbol starts."""
    small = round(0.65 * size)
    d.text(x - 2, y - 0.45 * size, str(mass), small, ink, "end")
    d.text(x - 2, y + 0.22 * size, str(charge), small, ink, "end")
    d.text(x, y, symbol, size, ink)


def isotopes():
    d = Drawing(575, 222, "À gauche la notation : A nucléons, Z protons ; à droite les trois "
                          "isotopes de l’hydrogène, un proton et zéro, un ou deux "
                          "neutrons")
    nuclide(d, 110, 92, 14, 6, "C", 46)
    d.lines(128, 138, ["6 protons,", "14 − 6 = 8 neutrons"], ink=INK, anchor="middle")
    d.arrow(54, 36, 71, 50, ORANGE, LINE)
    d.text(14, 30, "nombre de masse *A*", ink=ORANGE)
    d.text(14, 190, "*Z* = 6 protons : c’est du carbone", ink=RED)
    d.arrow(40, 174, 78, 114, RED, LINE)
    d.line(228, 14, 228, 206, RULE, 1)
    d.text(400, 24, "trois isotopes de l’hydrogène", ink=BLUE, anchor="middle", bold=True)
    for index, (neutrons, name, share) in enumerate(((0, "hydrogène", "99,99 %"),
                                                     (1, "deutérium", "0,01 %"),
                                                     (2, "tritium", "radioactif"))):
        x = 290 + 112 * index
        nucleus(d, x, 78, 1, neutrons, 12)
        nuclide(d, x, 142, 1 + neutrons, 1, "H", 22)
        d.text(x, 176, name, anchor="middle")
        d.text(x, 196, share, SMALL, MUTED, "middle")
    d.circle(246, 212, 5, PROTON, EDGE, 0.9)
    d.text(256, 216, "proton", SMALL)
    d.circle(316, 212, 5, NEUTRON, EDGE, 0.9)
    d.text(326, 216, "neutron", SMALL)
    return d


def room(term):
    """Of a term of a nuclear equation: pixels before its symbol, and from there on."""
    if isinstance(term, tuple):  # its numbers, its symbol
        return max(width(str(part), 11) for part in term[:2]) + 2, width(term[2], 17) + 5
    return (0, 38) if term == "→" else (0, width(term, 16) + 7)


def fission_and_fusion():
    d = Drawing(575, 342, "En haut la fission : un neutron casse un noyau d’uranium 235 en "
                          "strontium 94, xénon 140 et deux neutrons ; en bas la fusion : "
                          "deutérium et tritium donnent hélium 4 et un neutron")
    def neutron(x, y):
        d.circle(x, y, 5, NEUTRON, EDGE, 0.9)
    def equation(y, terms):
        """Terms are nuclides or signs, in a row round the middle."""
        x = 287 - sum(sum(room(term)) for term in terms) / 2
        for term in terms:
            before, after = room(term)
            x += before
            if isinstance(term, tuple):
                nuclide(d, x, y, *term, 17)
            elif term == "→":
                d.arrow(x + 2, y - 6, x + 30, y - 6, INK, LINE)
            else:
                d.text(x, y, term, 16)
            x += after
    d.text(14, 20, "fission", 15, BLUE, bold=True)
    neutron(64, 76)
    d.arrow(74, 76, 112, 76, INK, LINE)
    nucleus(d, 176, 76, 92, 143, 3.4)
    d.arrow(244, 76, 290, 76, INK, LINE)
    nucleus(d, 336, 42, 38, 56, 3.4)
    nucleus(d, 374, 116, 54, 86, 3.4)
    for x, y, tx, ty in ((420, 58, 456, 46), (424, 92, 462, 102)):
        neutron(x, y)
        d.arrow(x + 8, y + (ty - y) * 0.2, tx, ty, INK, LINE)
    d.lines(478, 66, ["+ beaucoup", "d’énergie"], ink=RED)
    equation(180, [(1, 0, "n"), "+", (235, 92, "U"), "→", (94, 38, "Sr"), "+", (140, 54, "Xe"), "+",
                   "2", (1, 0, "n")])
    d.line(14, 202, 560, 202, RULE, 1)
    d.text(14, 226, "fusion", 15, BLUE, bold=True)
    nucleus(d, 110, 264, 1, 1, 9)
    nucleus(d, 190, 264, 1, 2, 9)
    d.text(150, 270, "+", 16, anchor="middle")
    d.arrow(238, 264, 284, 264, INK, LINE)
    nucleus(d, 336, 264, 2, 2, 9)
    d.circle(420, 250, 9, NEUTRON, EDGE, 0.9)
    d.arrow(432, 246, 462, 236, INK, LINE)
    d.lines(478, 258, ["+ beaucoup", "d’énergie"], ink=RED)
    equation(330, [(2, 1, "H"), "+", (3, 1, "H"), "→", (4, 2, "He"), "+", (1, 0, "n")])
    return d


def power_station():
    d = Drawing(575, 236, "Schéma d’une centrale nucléaire : le cœur chauffe l’eau du circuit "
                          "primaire, le générateur de vapeur fait tourner la turbine et "
                          "l’alternateur, le condenseur est refroidi par un fleuve")
    hot, warm, cold = "#d9695f", "#e0a84a", "#7fa3c7"
    d.path("M16 212V64A104 54 0 0 1 224 64V212Z", EDGE, 1.6, IVORY)
    d.rect(40, 96, 52, 92, WHITE, EDGE, 1.6, 14)
    for x in (54, 66, 78):
        d.line(x, 124, x, 170, ORANGE, 4)
    d.text(66, 206, "cœur", SMALL, INK, "middle")
    d.rect(146, 84, 52, 104, WHITE, EDGE, 1.6, 14)
    d.rect(148, 140, 48, 46, "#dbe9f8", round=10)
    d.lines(172, 60, ["générateur", "de vapeur"], SMALL, INK, "middle", step=14)
    d.path("M92 112H160V172H92", hot, 3)
    d.arrow(110, 112, 132, 112, hot, 3)
    d.arrow(134, 172, 112, 172, hot, 3)
    d.text(120, 146, "primaire", SMALL, "#b3261e", "middle")
    d.path("M198 104H296", warm, 3)
    d.arrow(236, 104, 266, 104, warm, 3)
    d.text(262, 94, "vapeur", SMALL, ORANGE, "middle")
    d.area([(296, 92), (348, 74), (348, 134), (296, 116)], PALE, BLUE, LINE)
    d.text(322, 66, "turbine", SMALL, INK, "middle")
    d.line(348, 104, 388, 104, INK, 3)
    d.circle(416, 104, 28, WHITE, BLUE, LINE)
    d.path("M402 104q7 -16 14 0t14 0", BLUE, LINE)
    d.text(416, 66, "alternateur", SMALL, INK, "middle")
    d.line(444, 104, 500, 104, INK, 1.6)
    d.text(504, 108, "réseau", SMALL)
    d.rect(296, 150, 76, 44, WHITE, EDGE, 1.6, 6)
    d.line(322, 126, 322, 150, warm, 3)
    d.path("M312 194V206H240V172H198", cold, 3)
    d.arrow(262, 206, 244, 206, cold, 3)
    d.text(334, 214, "condenseur", SMALL, INK, "start")
    d.path("M440 164H350V182H440", cold, 3)
    d.arrow(432, 164, 400, 164, cold, 3)
    d.arrow(400, 182, 436, 182, cold, 3)
    d.text(446, 178, "fleuve ou mer", SMALL, BLUE)
    return d


FIGURES = {"configurations": configurations, "tableau-dix-huit": table, "lewis": lewis, "isotopes": isotopes,
           "fission-fusion": fission_and_fusion, "centrale": power_station}
