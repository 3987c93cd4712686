"""Figures of the lessons on spectra, lenses and the eye."""

import math

from drawing import (BALL, BLUE, EDGE, GREEN, INK, IVORY, LINE, MUTED, ORANGE, RED, SMALL, VIOLET,
                     WATER, Drawing, french)

# Lines seen in the light of gases, nanometres.
LINES = {"hydrogène": [410.2, 434.0, 486.1, 656.3], "sodium": [589.3], "mercure": [404.7, 435.8,
         546.1, 578.0]}

# A lens of 20 cm, an object at 30 cm, of 6.0 cm.
FOCAL, OBJECT, TALL = 20, 30, 6.0  # cm

# Where a colour of the spectrum is purest, nanometres, and its red, green and blue.
HUES = [(390, (70, 0, 100)), (420, (100, 0, 190)), (450, (30, 40, 235)), (480, (0, 150, 240)),
        (510, (0, 200, 60)),
        (560, (170, 215, 0)), (585, (250, 200, 0)), (610, (255, 110, 0)), (645, (235, 20, 10)),
        (700, (120, 0, 0))]


def colour(nanometres, bright=1.0):
    for (start, one), (end, two) in zip(HUES, HUES[1:]):
        if start <= nanometres <= end:
            share = (nanometres - start) / (end - start)
            return "#" + "".join(f"{round(bright * (a + share * (b - a))):02x}" for a, b in zip(one,
                                 two))
    return "#000000"


def glow(nanometres, kelvin):
    """What a hot body sends out at a wavelength, by Planck, in no unit."""
    return 1 / (nanometres / 500) ** 5 / (math.exp(14387769 / (nanometres * kelvin)) - 1)


def spectra():
    d = Drawing(575, 296, "Cinq spectres de 400 à 700 nanomètres : deux filaments, l’un à 2 000, "
                          "l’autre à 3 000 kelvins, spectres continus ; hydrogène, sodium et "
                          "mercure, spectres de raies")
    left, wide = 130, 420
    place = lambda nanometres: left + wide * (nanometres - 400) / 300
    rows = [("filament, 2 000 K", 2000), ("filament, 3 000 K", 3000), *LINES.items()]
    for index, (name, what) in enumerate(rows):
        y = 12 + 46 * index
        d.text(left - 12, y + 20, name, SMALL if index < 2 else 13, INK, "end", index >= 2)
        d.rect(left, y, wide, 32, "#101010")
        if index < 2:
            most = glow(700, what)  # each as an eye that has got used to it sees it
            for step in range(140):
                nanometres = 400 + 300 * (step + 0.5) / 140
                bright = min(1.0, (glow(nanometres, what) / most) ** 0.45)
                d.rect(left + wide * step / 140, y, wide / 140 + 0.4, 32, colour(nanometres,
                       bright))
        else:
            for nanometres in what:
                d.rect(place(nanometres) - 1.5, y, 3, 32, colour(nanometres, 1.0))
    for nanometres in range(400, 701, 50):
        d.line(place(nanometres), 240, place(nanometres), 246, INK, 1.3)
        d.text(place(nanometres), 262, str(nanometres), SMALL, MUTED, "middle")
    d.line(left, 240, left + wide, 240, INK, LINE)
    d.text(left + wide, 284, "longueur d’onde *λ* dans le vide (nm)", anchor="end")
    return d


def lens(d, x, y, half):
    d.arrow(x, y, x, y - half, BLUE, 2.6, head=11)
    d.arrow(x, y, x, y + half, BLUE, 2.6, head=11)


def magnification():
    image = 1 / (1 / FOCAL - 1 / OBJECT)
    ratio = -image / OBJECT
    d = Drawing(575, 266, "Une lentille de distance focale 20 centimètres ; un objet de 6,0 "
                          "centimètres à 30 centimètres donne à 60 centimètres une image renversée "
                          "de "
                          "12 centimètres")
    scale, up = 5.2, 8  # pixels a centimetre, along and across
    x, y = 196, 110
    place = lambda along, across: (x + scale * along, y - up * across)
    d.line(20, y, 560, y, MUTED, 1.2, "8 3 2 3")
    lens(d, x, y, 102)
    a, b = place(-OBJECT, 0), place(-OBJECT, TALL)
    a2, b2 = place(image, 0), place(image, ratio * TALL)
    d.arrow(*a, *b, BLUE, 2.6)
    d.arrow(*a2, *b2, BLUE, 2.6)
    d.line(*b, *b2, RED, LINE)
    d.line(*b, *place(0, TALL), GREEN, LINE)
    d.line(*place(0, TALL), *b2, GREEN, LINE)
    for words, point, dx, dy in (("A", a, -6, 18), ("B", b, -6, -6), ("A′", a2, -4, -8),
                                 ("B′", b2, 10, 6), ("O", (x, y), 6, -8)):
        d.text(point[0] + dx, point[1] + dy, words, bold=True)
    focus = place(FOCAL, 0)
    d.line(focus[0], y - 5, focus[0], y + 5, INK, LINE)
    d.text(focus[0] + 2, y - 10, "F′", bold=True)
    d.span(a[0], 236, x, 236, GREEN)
    d.text((a[0] + x) / 2, 254, f"{OBJECT} cm", SMALL, GREEN, "middle")
    d.span(x, 236, a2[0], 236, GREEN)
    d.text((x + a2[0]) / 2, 254, f"{french(image)} cm", SMALL, GREEN, "middle")
    d.text(300, 30, f"*γ* = {french(ratio, 1)}", 16, VIOLET)
    d.lines(380, 24, ["image renversée,", "deux fois plus grande"], SMALL, VIOLET, step=16)
    return d


def eye():
    d = Drawing(575, 236, "L’œil et son modèle, l’œil réduit : le diaphragme pour l’iris, la "
                          "lentille pour la cornée et le cristallin, l’écran pour la rétine")
    x, y = 140, 104
    d.circle(x, y, 74, IVORY, EDGE, 2)
    d.path(f"M{x - 66} {y - 34}Q{x - 102} {y} {x - 66} {y + 34}", BLUE, 2, WATER)
    d.parts.append(f'<ellipse cx="{x - 50}" cy="{y}" rx="10" ry="25" fill="{BALL}" stroke="{BLUE}" '
                   'stroke-width="1.6"/>')
    d.line(x - 62, y - 38, x - 62, y - 13, ORANGE, 4)
    d.line(x - 62, y + 13, x - 62, y + 38, ORANGE, 4)
    d.path(f"M{x + 30} {y - 60}A68 68 0 0 1 {x + 30} {y + 60}", RED, 4)
    d.line(x + 72, y + 14, x + 104, y + 26, "#e9c58f", 9)
    d.text(26, 42, "iris", SMALL, ORANGE)
    d.line(48, 42, x - 64, y - 36, ORANGE, 1)
    d.text(6, 150, "cornée", SMALL, BLUE)
    d.line(40, 138, x - 84, y + 6, BLUE, 1)
    d.text(96, 196, "cristallin", SMALL, BLUE)
    d.line(112, 182, x - 48, y + 24, BLUE, 1)
    d.text(206, 62, "rétine", SMALL, RED)
    d.line(204, 62, x + 60, y - 32, RED, 1)
    d.text(208, 158, "nerf optique", SMALL, MUTED)
    d.text(140, 226, "l’œil", ink=BLUE, anchor="middle", bold=True)
    d.arrow(262, y, 306, y, INK, LINE)
    left, screen = 384, 512
    d.line(320, y, 560, y, MUTED, 1.2, "8 3 2 3")
    d.line(left - 14, y - 78, left - 14, y - 26, ORANGE, 5)
    d.line(left - 14, y + 26, left - 14, y + 78, ORANGE, 5)
    lens(d, left, y, 76)
    d.line(screen, y - 70, screen, y + 70, RED, 4)
    for height in (-16, 16):
        d.line(320, y + height, left, y + height, RED, 1.4)
        d.line(left, y + height, screen, y, RED, 1.4)
    d.text(left - 22, 24, "diaphragme", SMALL, ORANGE, "end")
    d.text(left + 8, 24, "lentille", SMALL, BLUE)
    d.text(screen, 24, "écran", SMALL, RED, "middle")
    d.span(left, 196, screen, 196, GREEN)
    d.text((left + screen) / 2, 212, "17 mm, fixe", SMALL, GREEN, "middle")
    d.text(440, 230, "l’œil réduit", ink=BLUE, anchor="middle", bold=True)
    return d


FIGURES = {"spectres": spectra, "grandissement": magnification, "oeil-reduit": eye}
