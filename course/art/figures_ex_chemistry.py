"""Figures of the exercises in chemistry; what is read from them is computed again in check_numbers_ex_chemistry.py."""

from drawing import BLUE, EDGE, INK, IVORY, MUTED, ORANGE, SMALL, Drawing, Plot
from figures_atoms import NEUTRON, PROTON, bond, nucleus, pair

# The plate of the syrup: centimetres of the ruler beside it, whose zero is not at the start.
START, FRONT = 1.0, 8.0
YELLOW, GREEN_SPOT, CYAN = "#e3c01c", "#3b9a4b", "#2f8fd0"
SYRUP = {"S": ((5.9, YELLOW), (3.1, CYAN)), "1": ((5.9, YELLOW),), "2": ((4.5, GREEN_SPOT),), "3": ((3.1, CYAN),)}

# Sugar in water at 20 °C: g/mL without sugar, and for each g/L more.
PURE, RISE = 0.998, 0.000385


def ruler(d, x, zero, scale, count):
    """Upright, its zero at `zero`; a long line each centimetre, a short one each fifth of it."""
    d.rect(x, zero - scale * count - 8, 34, scale * count + 16, "#f3e6c4", EDGE, 1.2, 2)
    for step in range(5 * count + 1):
        y = zero - scale * step / 5
        long = step % 5 == 0
        d.line(x, y, x + (12 if long else 7), y, INK, 1)
        if long:
            d.text(x + 22, y + 4, str(step // 5), SMALL, INK, "middle")


def syrup():
    d = Drawing(420, 224, "Plaque de chromatographie d’un sirop de menthe, graduée par une règle : dépôt "
                          "à 1,0 centimètre, front à 8,0 ; le sirop donne deux taches, à 3,1 et 5,9 "
                          "centimètres ; les colorants 1, 2 et 3 une tache chacun, à 5,9, 4,5 et 3,1 "
                          "centimètres")
    scale, zero, left = 23.0, 208, 120
    place = lambda centimetres: zero - scale * centimetres
    d.rect(left, place(8.7), 200, zero - place(8.7), IVORY, EDGE, 1.4)
    for height, ink in ((START, MUTED), (FRONT, BLUE)):
        d.line(left, place(height), left + 200, place(height), ink, 1.2, "3 3")
    d.text(left + 208, place(FRONT) + 4, "front", SMALL, BLUE)
    d.text(left + 208, place(START) + 4, "ligne de dépôt", SMALL, MUTED)
    for index, (name, spots) in enumerate(SYRUP.items()):
        x, y = left + 28 + 48 * index, place(START)
        d.path(f"M{x - 3} {y}h6M{x} {y - 3}v6", MUTED, 1.2)
        d.text(x, y + 18, name, 13, INK, "middle", True)
        for height, fill in spots:
            d.parts.append(f'<ellipse cx="{x}" cy="{place(height):.1f}" rx="10" ry="6.5" fill="{fill}"/>')
            d.line(left, place(height), x - 10, place(height), "#c9c2ae", 0.8, "2 3")
    ruler(d, 84, zero, scale, 8)
    d.text(76, place(8) + 4, "cm", SMALL, MUTED, "end")
    return d


def sweetness():
    d = Drawing(560, 268, "Masse volumique de solutions de sucre en fonction de leur concentration en "
                          "masse, de 0 à 200 grammes par litre : une droite, de 0,998 à 1,075 gramme par "
                          "millilitre")
    plot = Plot(d, 74, 32, 440, 190, (0, 200), (0.99, 1.08))
    plot.axes(10, 0.01, "*c*_{m} (g/L)", "*ρ* (g/mL)", y_decimals=2, labels=(2, 1))
    plot.curve(lambda sugar: PURE + RISE * sugar, BLUE, count=2)
    for sugar in range(0, 201, 50):
        d.cross(*plot.at(sugar, round(PURE + RISE * sugar, 3)))
    return d


# Molecules as a pupil may draw them: symbols and their places, bonds (two atoms, how many), free pairs (atom,
# degrees). A lacks a pair, C has only four electrons round its carbon; B and D are right.
DRAWN = {
    "A": ([("H", 0, 0), ("C", 36, 0), ("N", 72, 0)], [(0, 1, 1), (1, 2, 3)], []),
    "B": ([("H", 5, 22), ("C", 36, 4), ("H", 67, 22), ("O", 36, -32)], [(0, 1, 1), (1, 2, 1), (1, 3, 2)],
          [(3, 145), (3, 35)]),
    "C": ([("O", 0, 0), ("C", 36, 0), ("O", 72, 0)], [(0, 1, 1), (1, 2, 1)],
          [(0, 90), (0, 180), (0, 270), (2, 90), (2, 0), (2, 270)]),
    "D": ([("H", 0, 0), ("O", 36, 0), ("O", 72, 0), ("H", 108, 0)], [(0, 1, 1), (1, 2, 1), (2, 3, 1)],
          [(1, 90), (1, 270), (2, 90), (2, 270)]),
}


def drawn_molecules():
    d = Drawing(575, 128, "Quatre schémas proposés par des élèves. A : H, C et N, une liaison simple puis"
                          " une triple, sans doublet non liant. B : C lié à deux H et, par une liaison "
                          "double, à O, qui a deux doublets non liants. C : O, C et O, deux liaisons "
                          "simples, trois doublets non liants à chaque O. D : H, O, O et H, des liaisons "
                          "simples, deux doublets non liants à chaque O")
    for x, (name, (atoms, bonds, pairs)) in zip((40, 176, 308, 432), DRAWN.items()):
        for symbol, right, down in atoms:
            d.text(x + right, 58 + down, symbol, 17, INK, "middle", True)
        for one, other, count in bonds:
            bond(d, x + atoms[one][1], 52 + atoms[one][2], x + atoms[other][1], 52 + atoms[other][2], count)
        for atom, angle in pairs:
            pair(d, x + atoms[atom][1], 52 + atoms[atom][2], angle)
        places = [right for _, right, _ in atoms]
        d.text(x + (min(places) + max(places)) / 2, 114, name, 15, BLUE, "middle", True)
    return d


# Grams a mole, and where the name of the metal stands beside its line, in grams.
METALS = {"aluminium": (26.98, 108, BLUE), "fer": (55.85, 120, ORANGE), "plomb": (207.2, 120, INK)}


def metals():
    d = Drawing(560, 256, "Quantité de matière de trois métaux en fonction de leur masse, de 0 à 120 "
                          "grammes : des droites qui passent par l’origine ; 54 grammes d’aluminium ou "
                          "112 grammes de fer font 2 moles")
    plot = Plot(d, 60, 32, 380, 180, (0, 120), (0, 4))
    plot.axes(10, 0.5, "*m* (g)", "*n* (mol)", y_decimals=1, labels=(2, 2))
    for name, (molar, end, ink) in METALS.items():
        plot.curve(lambda mass: mass / molar, ink, 0, end, 2)
        x, y = plot.at(end, end / molar)
        d.text(x + 8, y + 5, name, ink=ink, bold=True)
    return d


# Water that boils on a balance: grams at first, W, J/kg as it is found (a part of the heat is lost), and by how much
# each reading is off, g.
BOILING, HEATER, FOUND = 400, 500, 2.4e6
OFF = (0, 1.5, -1, 0.5, -1.5, 1, 1.5, -1, 0, -1.5, 0.5)


def boiling_away():
    d = Drawing(560, 262, "Masse d’eau qui bout, en fonction du temps, chauffée par 500 watts : une "
                          "droite qui descend de 400 grammes au départ à 300 grammes après 8 minutes")
    plot = Plot(d, 70, 32, 420, 186, (0, 10), (260, 400))
    plot.axes(1, 20, "*t* (min)", "*m* (g)")
    left = lambda minutes: BOILING - 1000 * HEATER * 60 * minutes / FOUND
    plot.curve(left, BLUE, count=2)
    for minutes, off in enumerate(OFF):
        d.cross(*plot.at(minutes, left(minutes) + off))
    return d


# Vinegar and more and more bicarbonate: mol of acid, litres of gas a mole, how much each reading is off, L.
ACID, GAS = 0.050, 24
ERRORS = (0, 0.01, -0.02, 0.01, 0.02, -0.01, -0.01, 0.02, -0.01, 0.01, 0)


def foaming():
    d = Drawing(560, 262, "Volume de dioxyde de carbone dégagé en fonction de la quantité d’ions "
                          "hydrogénocarbonate versée dans du vinaigre : il croît jusqu’à 1,2 litre pour "
                          "0,050 mole, puis ne change plus")
    plot = Plot(d, 70, 32, 420, 186, (0, 0.10), (0, 1.4))
    plot.axes(0.01, 0.2, "*n* (mol)", "*V* (L)", 2, 1, labels=(2, 1))
    volume = lambda amount: GAS * min(amount, ACID)
    d.curve([plot.at(amount, volume(amount)) for amount in (0, ACID, 0.10)], BLUE)
    for step, off in enumerate(ERRORS):
        d.cross(*plot.at(step / 100, volume(step / 100) + off))
    return d


NUCLEI = {"A": (1, 2), "B": (2, 1), "C": (2, 2), "D": (3, 3)}  # protons, neutrons
HALF = 5.7  # thousands of years, of carbon 14


def four_nuclei():
    d = Drawing(520, 118, "Quatre noyaux. A : un proton et deux neutrons. B : deux protons et un neutron."
                          " C : deux protons et deux neutrons. D : trois protons et trois neutrons")
    for index, (name, (protons, neutrons)) in enumerate(NUCLEI.items()):
        x = 56 + 92 * index
        nucleus(d, x, 46, protons, neutrons, 12)
        d.text(x, 108, name, 15, BLUE, "middle", True)
    for y, fill, word in ((38, PROTON, "proton"), (64, NEUTRON, "neutron")):
        d.circle(420, y - 5, 7, fill, EDGE, 0.9)
        d.text(434, y, word)
    return d


def carbon_fourteen():
    d = Drawing(560, 268, "Part du carbone 14 qui reste, en pour cent, en fonction du temps en milliers "
                          "d’années : la moitié après 5 700 ans, le quart après 11 400 ans, un huitième "
                          "après 17 100 ans")
    plot = Plot(d, 60, 32, 430, 192, (0, 30), (0, 100))
    plot.axes(1, 10, "*t* (milliers d’années)", "part restante (%)", labels=(5, 2))
    plot.curve(lambda thousands: 100 * 0.5 ** (thousands / HALF), BLUE)
    return d


FIGURES = {"ex-plaque-sirop": syrup, "ex-soda-etalonnage": sweetness, "ex-lewis-a-juger": drawn_molecules,
           "ex-moles-trois-metaux": metals, "ex-eau-qui-bout": boiling_away,
           "ex-vinaigre-bicarbonate": foaming, "ex-quatre-noyaux": four_nuclei, "ex-carbone-14": carbon_fourteen}
