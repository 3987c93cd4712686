"""Figures of the lessons on changes of state and of what reactions leave and give."""

from drawing import (BALL, BLUE, EDGE, GREEN, GROUND, INK, IVORY, LINE, MUTED, ORANGE, RED, RULE,
                     SMALL,
                     WATER, WHITE, Drawing, Plot, french)

ICE, LIQUID, STEAM = 2.06, 4.18, 1.87  # J·g⁻¹·K⁻¹
FUSION, BOILING = 334, 2257  # J/g

# Burning methane, CH₄ + 2 O₂ → CO₂ + 2 H₂O: amounts at first, mol; how many react for one of the reaction.
START = [("CH_{4}", 2.0, -1), ("O_{2}", 3.0, -2), ("CO_{2}", 0.0, 1), ("H_{2}O", 0.0, 2)]


def changes_of_state():
    d = Drawing(560, 236, "Triangle des états : fusion et solidification, vaporisation et "
                          "liquéfaction, sublimation et condensation")
    places = {"solide": (110, 190), "liquide": (450, 190), "gaz": (280, 36)}
    for name, (x, y) in places.items():
        d.rect(x - 52, y - 19, 104, 38, BALL if name == "solide" else WATER if name == "liquide"
               else IVORY, BLUE, LINE, 8)
        d.text(x, y + 6, name, 16, BLUE, "middle", True)
    d.arrow(166, 182, 394, 182, RED)
    d.arrow(394, 200, 166, 200, BLUE)
    d.text(280, 172, "fusion", ink=RED, anchor="middle")
    d.text(280, 220, "solidification", ink=BLUE, anchor="middle")
    d.arrow(418, 168, 318, 60, RED)
    d.arrow(338, 52, 438, 160, BLUE)
    d.text(380, 146, "vaporisation", ink=RED, anchor="end")
    d.text(398, 100, "liquéfaction", ink=BLUE)
    d.arrow(142, 168, 242, 60, RED)
    d.arrow(222, 52, 122, 160, BLUE)
    d.text(180, 146, "sublimation", ink=RED)
    d.text(162, 100, "condensation", ink=BLUE, anchor="end")
    d.text(14, 20, "rouge : l’énergie est reçue", SMALL, RED)
    d.text(546, 20, "bleu : elle est cédée", SMALL, BLUE, "end")
    return d


def energies():
    d = Drawing(575, 226, "Énergie reçue par un gramme d’eau, de la glace à moins 20 degrés à la "
                          "vapeur à 100 degrés : 41 joules pour réchauffer la glace, 334 "
                          "pour la fondre, 418 pour chauffer l’eau, 2257 pour la vaporiser")
    parts = [("glace", 20 * ICE, "#7fa3c7"), ("fusion", FUSION, "#3f6fa8"),
             ("eau de 0 à 100 °C", 100 * LIQUID, "#e9b25a"),
             ("vaporisation", BOILING, "#c8502e")]
    left, scale, x = 20, 535 / sum(part for _, part, _ in parts), 20.0
    for index, (name, part, fill) in enumerate(parts):
        wide = part * scale
        d.rect(x, 44, wide, 50, fill, WHITE, 1)
        if wide > 120:
            d.text(x + wide / 2, 74, f"{name} : {french(part)} J", ink=WHITE, anchor="middle", bold=True)
        else:
            level = (196, 160, 124)[index]
            d.path(f"M{x + wide / 2:.1f} 96V{level - 5}H{x + wide / 2 + 10:.1f}", EDGE, 1)
            d.text(x + wide / 2 + 15, level, {"glace": "glace, de −20 à 0 °C : "}.get(name,
                   f"{name} : ") + f"{french(part)} J", ink=INK)
        x += wide
    d.text(left, 26, "Pour un gramme d’eau, de −20 °C à la vapeur à 100 °C", ink=BLUE, bold=True)
    d.span(350, 150, 350 + 500 * scale, 150, GREEN)
    d.text(350 + 500 * scale + 10, 154, "500 J", SMALL, GREEN)
    return d


def end_of(start):
    """Amounts when the first reactant has run out."""
    extent = min(amount / -count for _, amount, count in start if count < 0)
    return [(name, amount + count * extent) for name, amount, count in start]


def limiting():
    d = Drawing(575, 258, "Quantités avant et après la combustion de 2 moles de méthane dans 3 "
                          "moles de dioxygène : le dioxygène est épuisé, il reste une "
                          "demi-mole de méthane")
    for left, name, amounts in ((52, "avant", [(name, amount) for name, amount, _ in START]),
                                (338, "après", end_of(START))):
        plot = Plot(d, left, 40, 214, 150, (0, 4), (0, 3))
        for value in range(4):
            y = plot.at(0, value)[1]
            d.line(left, y, left + 214, y, RULE, 1)
            d.text(left - 8, y + 4, str(value), SMALL, MUTED, "end")
        d.text(left + 107, 18, name, 14, BLUE, "middle", True)
        for index, (species, amount) in enumerate(amounts):
            x, y = plot.at(index + 0.22, amount)
            if amount:
                d.rect(x, y, 30, 190 - y, BALL if index < 2 else "#f3dd8f", BLUE if index < 2 else ORANGE,
                       1.4)
            d.text(x + 15, y - 6, french(amount, 1) if amount else "0", SMALL, RED if amount == 0
                   and name == "après" else INK, "middle", amount == 0 and name == "après")
            d.text(x + 15, 208, species, anchor="middle")
        d.line(left, 190, left + 214, 190, INK, LINE)
    d.text(28, 18, "*n* (mol)", SMALL, MUTED, "middle")
    d.arrow(288, 116, 312, 116, INK, LINE)
    d.text(338 + 107, 228, "O_{2} épuisé : réactif limitant", ink=RED, anchor="middle")
    d.text(287, 252, "CH_{4}(g) + 2 O_{2}(g) → CO_{2}(g) + 2 H_{2}O(g)", anchor="middle")
    return d


def heat():
    d = Drawing(575, 254, "Deux béchers : l’acide et la soude se réchauffent, la réaction est "
                          "exothermique ; le bicarbonate et l’acide se refroidissent, la réaction "
                          "est endothermique")
    cases = [("exothermique", "soude + acide chlorhydrique", 20.0, 26.5, RED,
              "la température monte"),
             ("endothermique", "bicarbonate + acide citrique", 20.0, 14.5, BLUE,
              "la température baisse")]
    for index, (kind, what, before, after, ink, words) in enumerate(cases):
        x = 150 + 285 * index
        d.text(x, 20, kind, 15, ink, "middle", True)
        d.rect(x - 46, 110, 92, 66, "#fbe3dc" if index == 0 else WATER)
        d.path(f"M{x - 46} 76V176H{x + 46}V76", EDGE, 2)
        for place, degrees, label in ((x - 16, before, "avant"), (x + 24, after, "après")):
            top = 56
            d.rect(place - 4, top, 8, 98, WHITE, EDGE, 1.2, 4)
            level = 150 - (degrees - 5) * 3.4
            d.rect(place - 2, level, 4, 152 - level, RED, None)
            d.circle(place, 156, 7, RED, EDGE, 1)
            d.text(place, 48, french(degrees, 1), SMALL, INK, "middle")
        outward = index == 0
        for side in (-1, 1):
            near, far = x + side * 54, x + side * 104
            d.arrow(*(near, 140, far, 140) if outward else (far, 140, near, 140), "#e08a2e", 3, head=11)
        d.text(x - 78, 126, "énergie", SMALL, ORANGE, "middle")
        d.text(x, 198, what, anchor="middle")
        d.text(x, 218, words, ink=ink, anchor="middle")
    d.text(287, 246, "températures en °C, avant puis après le mélange", SMALL, MUTED, "middle")
    return d


IRON = 9.27e-23  # grams, one atom
NAIL = 5.6  # grams


def count_by_mass():
    d = Drawing(575, 176, "Compter en pesant : la masse d’un clou de fer divisée par la masse d’un "
                          "atome donne le nombre d’atomes, six fois dix puissance vingt-deux")
    d.rect(44, 66, 96, 9, "#9aa7b2", EDGE, 1.2)
    d.rect(36, 56, 10, 29, "#9aa7b2", EDGE, 1.2, 2)
    d.area([(140, 66), (160, 70.5), (140, 75)], "#9aa7b2", EDGE, 1.2)
    d.text(96, 30, "un clou", ink=BLUE, anchor="middle", bold=True)
    d.text(96, 118, f"{french(NAIL, 1)} g", 16, INK, "middle")
    d.text(208, 78, "÷", 26, MUTED, "middle")
    d.text(288, 30, "un atome de fer", ink=BLUE, anchor="middle", bold=True)
    d.circle(288, 70, 13, "#9aa7b2", EDGE, 1.4)
    d.text(288, 118, "9,27 × 10^{−23} g", 16, INK, "middle")
    d.text(370, 78, "=", 26, MUTED, "middle")
    d.text(472, 30, "nombre d’atomes", ink=BLUE, anchor="middle", bold=True)
    for row in range(4):
        for column in range(9):
            d.circle(424 + 12 * column + 6 * (row % 2), 54 + 11 * row, 5, "#9aa7b2", EDGE, 0.8)
    d.text(472, 118, "6,0 × 10^{22}", 16, RED, "middle", True)
    d.text(287, 160, "Les deux masses dans la même unité : on compte sans voir.", SMALL, MUTED,
           "middle")
    return d


def reflux():
    d = Drawing(560, 352, "Montage à reflux : un ballon chauffé par un chauffe-ballon, surmonté "
                          "d’un réfrigérant à eau ouvert en haut, sur un support élévateur")
    x = 220
    d.rect(x - 70, 316, 140, 8, GROUND, EDGE, 1.2)
    d.path(f"M{x - 56} 316L{x + 56} 296M{x + 56} 316L{x - 56} 296", EDGE, 2)
    d.rect(x - 64, 288, 128, 8, GROUND, EDGE, 1.2)
    d.path(f"M{x - 54} 288V244Q{x - 54} 236 {x - 46} 236H{x + 46}Q{x + 54} 236 {x + 54} 244V288Z",
           EDGE, 1.6, IVORY)
    d.path(f"M{x - 37.5} 250A40 40 0 0 0 {x + 37.5} 250Z", "none", 0, "#f3dd8f")
    d.path(f"M{x - 9} 178V197A40 40 0 1 0 {x + 9} 197V178", EDGE, 2)
    for dx, dy in ((-14, 262), (6, 268), (16, 258)):
        d.area([(x + dx, dy), (x + dx + 5, dy - 3), (x + dx + 8, dy + 3), (x + dx + 2, dy + 5)],
               MUTED)
    d.rect(x - 11, 168, 22, 14, WHITE, EDGE, 1.4)
    d.rect(x - 22, 46, 44, 118, WATER, BLUE, 1.6, 8)
    d.path(f"M{x - 7} 168V28M{x + 7} 168V28", EDGE, 1.8)
    d.path(f"M{x + 22} 146H{x + 50}", BLUE, 5)
    d.path(f"M{x - 22} 62H{x - 50}", BLUE, 5)
    d.arrow(x + 78, 146, x + 54, 146, BLUE, LINE)
    d.arrow(x - 54, 62, x - 78, 62, BLUE, LINE)
    d.text(x + 84, 151, "arrivée d’eau froide, en bas", ink=BLUE)
    d.text(x - 84, 67, "sortie d’eau", ink=BLUE, anchor="end")
    d.line(x + 8, 34, x + 82, 34, RULE, 1)
    d.text(x + 86, 39, "ouvert en haut : jamais bouché")
    d.line(x + 24, 100, x + 82, 100, RULE, 1)
    d.lines(x + 86, 97, ["réfrigérant : les vapeurs", "se liquéfient et retombent"], step=16)
    d.line(x + 36, 214, x + 82, 206, RULE, 1)
    d.text(x + 86, 210, "ballon, pierre ponce dans le mélange")
    d.line(x + 56, 262, x + 82, 262, RULE, 1)
    d.text(x + 86, 267, "chauffe-ballon")
    d.line(x + 70, 306, x + 82, 306, RULE, 1)
    d.text(x + 86, 311, "support élévateur")
    d.text(280, 344, "Chauffer accélère ; le reflux garde réactifs, produits et solvant.", SMALL,
           MUTED, "middle")
    return d


FIGURES = {"changements-etat-noms": changes_of_state, "energies-eau": energies, "reactif-limitant": limiting,
           "exo-endo": heat,
           "compter-entites": count_by_mass, "montage-reflux": reflux}

if __name__ == "__main__":
    print(end_of(START), 20 * ICE, 100 * LIQUID)
