"""Figures of the lessons on telling species: tests and chromatography."""

from drawing import (BLUE, EDGE, GLASS, GREEN, GROUND, INK, IVORY, LINE, MUTED, ORANGE, RULE,
                     SMALL, WATER, WHITE, Drawing, french)

FRONT = 8.0  # cm above the start, of the solvent
PLATE = {"A": (2.4, 6.4), "B": (2.4,), "C": (4.8,), "D": (6.4,)}  # cm above the start, of the spots
SPOTS = {2.4: "#e0a11c", 4.8: "#b3261e", 6.4: "#2f6fd0"}


def tube(d, x, y, high=96, mouth_down=False):
    """A test tube of 34 pixels, its middle at x; y is the upper end."""
    if mouth_down:
        d.path(f"M{x - 17} {y + high}V{y + 17}A17 17 0 0 1 {x + 17} {y + 17}V{y + high}", GLASS,
               1.8)
        d.line(x - 21, y + high, x + 21, y + high, GLASS, 1.8)
    else:
        d.path(f"M{x - 17} {y}V{y + high - 17}A17 17 0 0 0 {x + 17} {y + high - 17}V{y}", GLASS,
               1.8)
        d.line(x - 21, y, x + 21, y, GLASS, 1.8)


def flame(d, x, y, size=1.0):
    """Its foot at x, y."""
    way = lambda s: (f"M{x} {y - 30 * s:.1f}C{x + 3 * s:.1f} {y - 20 * s:.1f} {x + 9 * s:.1f} "
                     f"{y - 14 * s:.1f} {x + 8 * s:.1f} {y - 6 * s:.1f}"
                     f"A8 8 0 0 1 {x - 8 * s:.1f} {y - 6 * s:.1f}C{x - 9 * s:.1f} {y - 14 * s:.1f} "
                     f"{x - 3 * s:.1f} {y - 20 * s:.1f} {x} {y - 30 * s:.1f}Z")
    d.path(way(size), "none", 0, "#f0962e")
    d.path(way(0.55 * size), "none", 0, "#ffe28a")


def splint(d, x1, y1, x2, y2):
    d.line(x1, y1, x2, y2, "#b98b52", 5)


def tests():
    d = Drawing(575, 262, "Quatre tests : l’eau bleuit le sulfate de cuivre anhydre blanc ; le "
                          "dihydrogène détone près d’une flamme ; le "
                          "dioxygène ranime une bûchette incandescente ; le dioxyde de carbone "
                          "trouble l’eau de chaux")
    places = [72 + 144 * index for index in range(4)]
    for index, (name, formula, first, second) in enumerate((
            ("eau", "H_{2}O", "sulfate de cuivre", "blanc → bleu"),
            ("dihydrogène", "H_{2}", "près d’une flamme", "« pop »"),
            ("dioxygène", "O_{2}", "bûchette rougeoyante", "elle se rallume"),
            ("dioxyde de carbone", "CO_{2}", "eau de chaux", "elle se trouble"))):
        d.text(places[index], 194, name, ink=BLUE, anchor="middle", bold=True)
        d.text(places[index], 212, formula, ink=BLUE, anchor="middle")
        d.text(places[index], 232, first, SMALL, MUTED, "middle")
        d.text(places[index], 250, second, anchor="middle")
        if index:
            d.line(144 * index, 14, 144 * index, 254, RULE, 1)
    x = places[0]  # a dish with the white powder, half of it blue
    d.area([(x - 44, 152), (x - 26, 136), (x, 130), (x, 152)], "#f5f5f2", EDGE, 1)
    d.area([(x, 152), (x, 130), (x + 26, 136), (x + 44, 152)], "#3f86d8", EDGE, 1)
    d.path(f"M{x - 56} 144Q{x - 50} 158 {x - 36} 158H{x + 36}Q{x + 50} 158 {x + 56} 144", GLASS,
           2.2)
    d.path(f"M{x + 14} 46V78L{x + 18} 92L{x + 22} 78V46Z", GLASS, 1.6, WATER)
    d.path(f"M{x + 18} 98q5 8 0 11q-5 -3 0 -11Z", BLUE, 1, WATER)
    d.rect(x + 11, 26, 14, 20, "#c9543f", None, round=6)
    d.text(x - 24, 124, "avant", SMALL, MUTED, "middle")
    d.text(x + 42, 124, "après", SMALL, MUTED, "middle")
    x = places[1]  # the light gas is kept with the mouth down
    tube(d, x, 20, mouth_down=True)
    splint(d, x + 58, 168, x + 10, 142)
    flame(d, x + 8, 146, 0.9)
    for dx, dy in ((-30, 126), (-34, 142), (30, 122)):
        d.line(x + dx, dy, x + dx * 1.45, dy + (4 if dy > 130 else -3), ORANGE, 2)
    x = places[2]
    tube(d, x, 72)
    splint(d, x + 26, 20, x + 3, 98)
    flame(d, x + 2, 112, 1.0)
    x = places[3]
    d.rect(x - 16, 104, 32, 46, "#e9e9e4")
    d.path(f"M{x - 16} 148H{x + 16}A16 16 0 0 1 {x - 16} 148Z", "none", 0, "#e9e9e4")
    tube(d, x, 72, 98)
    for dx, dy in ((-9, 120), (4, 114), (10, 132), (-4, 140), (6, 150), (-10, 150), (1, 128),
                   (11, 144), (-6, 158)):
        d.circle(x + dx, dy, 2.2, WHITE, "#b9b3a2", 0.7)
    d.path(f"M{x - 46} 30H{x - 10}Q{x} 30 {x} 40V150", EDGE, 3)
    d.path(f"M{x - 46} 30H{x - 10}Q{x} 30 {x} 40V150", WHITE, 1.2)
    d.text(x - 30, 22, "gaz", SMALL, MUTED, "middle")
    for dy in (136, 124):
        d.circle(x + 5, dy, 2.6, "none", BLUE, 1)
    return d


def chromatography():
    d = Drawing(575, 262, "Chromatographie : à gauche, la plaque dans la cuve où l’éluant monte ; "
                          "à droite, la plaque révélée, le front à 8,0 "
                          "centimètres, les taches de A à la hauteur de celles de B et de D")
    # the tank
    d.rect(40, 54, 130, 158, WHITE, GLASS, 2, 6)
    d.rect(42, 186, 126, 25, WATER)
    d.rect(32, 44, 146, 10, GROUND, EDGE, 1.2, 2)
    d.rect(76, 72, 58, 132, IVORY, EDGE, 1.2)
    d.rect(77, 108, 56, 95, "#d3e3f6")
    d.line(76, 176, 134, 176, MUTED, 1, "3 3")
    for index, x in enumerate((85, 98, 111, 124)):
        d.dot(x, 176, INK, 2.6)
    d.arrow(150, 172, 150, 116, BLUE, LINE)
    d.lines(178, 136, ["l’éluant", "monte"], SMALL, BLUE, step=15)
    d.text(178, 202, "éluant", SMALL, MUTED)
    d.line(170, 198, 176, 198, MUTED, 1)
    d.text(105, 236, "la cuve", ink=BLUE, anchor="middle", bold=True)
    # the plate
    left, start, scale = 286, 214, 22.0  # pixels; pixels a centimetre
    front = start - FRONT * scale
    d.rect(left, 14, 152, 218, IVORY, EDGE, 1.4)
    d.line(left, start, left + 152, start, MUTED, 1, "3 3")
    d.line(left, front, left + 152, front, BLUE, 1.2, "3 3")
    for index, (name, heights) in enumerate(PLATE.items()):
        x = left + 22 + 36 * index
        d.path(f"M{x - 3} {start}h6M{x} {start - 3}v6", MUTED, 1.2)
        d.text(x, start + 15, name, SMALL, INK, "middle", True)
        for high in heights:
            d.parts.append(f'<ellipse cx="{x}" cy="{start - high * scale:.1f}" rx="8" ry="6" '
                           f'fill="{SPOTS[high]}"/>')
    d.span(left + 172, start, left + 172, front, BLUE)
    d.text(left + 180, front + 22, f"*H* = {french(FRONT, 1)} cm", ink=BLUE)
    d.span(left + 192, start, left + 192, start - 2.4 * scale, GREEN)
    d.text(left + 200, start - 22, "*h* = 2,4 cm", ink=GREEN)
    d.line(left + 70, start - 2.4 * scale, left + 192, start - 2.4 * scale, GREEN, 1, "3 3")
    d.text(left - 8, front + 4, "front", SMALL, BLUE, "end")
    d.text(left + 184, 108, "*R*_{f} =", ink=GREEN)
    d.text(left + 232, 100, "*h*", ink=GREEN, anchor="middle")
    d.line(left + 222, 104, left + 242, 104, GREEN, 1.2)
    d.text(left + 232, 118, "*H*", ink=GREEN, anchor="middle")
    d.text(left + 184, 138, "= 0,30", ink=GREEN)
    d.text(left + 76, 252, "la plaque révélée", ink=BLUE, anchor="middle", bold=True)
    return d


FIGURES = {"tests-especes": tests, "chromatographie": chromatography}
