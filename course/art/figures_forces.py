"""Figures of the lessons on forces and on the principle of inertia."""

import math

from drawing import (BALL, BLUE, EDGE, FORCE, GREEN, GROUND, INK, IVORY, LINE, MUTED, PALE, RED,
                     RULE, SMALL, WHITE, Drawing, Plot, french)

GRAVITY = 6.674e-11  # N·m²·kg⁻²
EARTH, EARTH_RADIUS = 5.972e24, 6.371e6  # kg, m
G = 9.81  # N/kg


def bubble(d, x, y, words, fill=WHITE, ink=EDGE):
    d.parts.append(f'<ellipse cx="{x}" cy="{y}" rx="52" ry="22" fill="{fill}" stroke="{ink}" '
                   'stroke-width="1.6"/>')
    d.text(x, y + 5, words, ink=INK, anchor="middle", bold=ink == BLUE)


def both_ways(d, x1, y1, x2, y2, dash=None):
    ax, ay = (x1 + x2) / 2, (y1 + y2) / 2
    d.arrow(ax, ay, x1, y1, FORCE, LINE, dash)
    d.arrow(ax, ay, x2, y2, FORCE, LINE, dash)


def interactions():
    d = Drawing(560, 216, "Un livre sur une table et son diagramme : le livre est en interaction à "
                          "distance avec la Terre et "
                          "en interaction de contact avec la table")
    d.rect(40, 110, 170, 10, "#e9d8b8", EDGE, 1.2)
    d.rect(56, 120, 9, 60, "#e9d8b8", EDGE, 1.2)
    d.rect(185, 120, 9, 60, "#e9d8b8", EDGE, 1.2)
    d.rect(20, 180, 210, 10, GROUND)
    d.line(20, 180, 230, 180, EDGE, LINE)
    d.rect(86, 84, 78, 26, BALL, BLUE, LINE, 2)
    d.line(94, 84, 94, 110, BLUE, 1.2)
    d.text(125, 102, "livre", anchor="middle", ink=BLUE, bold=True)
    d.text(125, 150, "table", anchor="middle", ink=MUTED)
    d.text(125, 207, "Terre", anchor="middle", ink=MUTED)
    bubble(d, 410, 34, "livre", BALL, BLUE)
    bubble(d, 320, 150, "table")
    bubble(d, 500, 150, "Terre")
    both_ways(d, 392, 58, 336, 126)
    both_ways(d, 428, 58, 484, 126, "5 4")
    d.text(348, 92, "contact", ink=FORCE, anchor="end")
    d.text(472, 92, "à distance", ink=FORCE)
    return d


def force():
    d = Drawing(560, 176, "Une force de 60 newtons sur un ballon, ses quatre caractères : point "
                          "d’application, direction, sens et "
                          "valeur, à l’échelle de 1 centimètre pour 20 newtons")
    unit, angle = 38, math.radians(30)  # pixels for 20 N
    x, y = 168, 122
    d.rect(20, 156, 520, 10, GROUND)
    d.line(20, 156, 540, 156, EDGE, LINE)
    d.circle(x + 30, y, 34, WHITE, EDGE, LINE)
    d.path(f"M{x + 30} {y - 13}l12 9l-5 14h-14l-5 -14ZM{x + 30} {y - 13}v-21M{x + 42} {y - 4}l20 "
           f"-7M{x + 37} {y + 10}l12 17"
           f"M{x + 23} {y + 10}l-12 17M{x + 18} {y - 4}l-20 -7", EDGE, 1.2)
    ax, ay = x + 30 - 34 * math.cos(angle), y + 34 * math.sin(angle)  # where the foot touches
    tip = ax + 3 * unit * math.cos(angle), ay - 3 * unit * math.sin(angle)
    far = 1.95
    d.line(ax, ay, ax + far * 3 * unit * math.cos(angle), ay - far * 3 * unit * math.sin(angle),
           EDGE, 1, "5 4")
    d.arrow(ax, ay, *tip, FORCE, 2.6, head=12)
    d.dot(ax, ay, INK, 4)
    d.text(tip[0] - 4, tip[1] - 12, "~*F*~", 16, FORCE, "end")
    d.lines(ax - 12, ay - 34, ["point", "d’application"], SMALL, INK, "end", 15)
    d.text(ax + far * 3 * unit * math.cos(angle) + 6, ay - far * 3 * unit * math.sin(angle) + 4,
           "direction", SMALL, MUTED)
    d.text(tip[0] + 12, tip[1] + 20, "sens", SMALL, FORCE)
    d.lines(410, 76, ["valeur :", "3 × 20 = 60 N"], ink=FORCE)
    d.span(410, 124, 410 + unit, 124, GREEN)
    d.text(410 + unit + 10, 128, "20 N", ink=GREEN)
    return d


def magnet(d, x, y, left, right, name):
    """A bar magnet on a cart, its middle at x."""
    d.rect(x - 40, y, 80, 12, IVORY, EDGE, 1.4, 2)
    for wheel in (-26, 26):
        d.circle(x + wheel, y + 18, 6, WHITE, EDGE, 1.6)
    for side, pole in ((-34, left), (0, right)):
        d.rect(x + side, y - 36, 34, 36, "#e08a80" if pole == "N" else BALL, EDGE, 1.2)
        d.text(x + side + 17, y - 5, pole, anchor="middle", bold=True)
    d.text(x, y + 42, name, 15, BLUE, "middle", True)


def reciprocal():
    d = Drawing(560, 164, "Deux aimants sur des chariots s’attirent : la force de A sur B et la "
                          "force de B sur A ont la même droite "
                          "d’action, la même valeur et des sens opposés")
    y = 108
    d.line(40, y + 24, 520, y + 24, EDGE, LINE)
    middle = y - 25
    d.line(60, middle, 500, middle, RULE, 1.2, "5 4")
    magnet(d, 130, y, "S", "N", "A")
    magnet(d, 430, y, "S", "N", "B")
    d.arrow(130, middle, 240, middle, FORCE, 2.6, head=12)
    d.arrow(430, middle, 320, middle, FORCE, 2.6, head=12)
    d.dot(130, middle, INK, 3.4)
    d.dot(430, middle, INK, 3.4)
    d.text(240, middle - 16, "~*F*~_{B/A}", 16, FORCE, "middle")
    d.text(320, middle - 16, "~*F*~_{A/B}", 16, FORCE, "middle")
    d.text(280, 22, "~*F*~_{B/A} = − ~*F*~_{A/B}", 16, INK, "middle")
    d.text(130, 58, "sur A, par B", SMALL, MUTED, "middle")
    d.text(430, 58, "sur B, par A", SMALL, MUTED, "middle")
    return d


def spring_scale(d, x, y, reading, limit, way, name):
    """A spring scale that lies; `way` is the side of its hook, 1 for right."""
    d.rect(x - 84, y - 18, 168, 36, IVORY, EDGE, 1.4, 6)
    for mark in range(0, limit * 2 + 1):
        at = x - way * (70 - 140 * mark / (2 * limit))
        d.line(at, y + 14, at, y + (4 if mark % 2 == 0 else 9), INK, 1)
        if mark % 2 == 0 and mark:
            d.text(at, y - 3, str(mark // 2), SMALL, MUTED, "middle")
    at = x - way * (70 - 140 * reading / limit)
    d.line(at, y, at, y + 17, RED, 2.4)
    d.line(x + way * 84, y, x + way * 104, y, EDGE, 2)
    d.line(x - way * 84, y, x - way * 100, y, EDGE, 2)
    d.text(x, y + 40, name, ink=BLUE, anchor="middle", bold=True)


def spring_scales():
    d = Drawing(560, 132,
                "Deux dynamomètres accrochés l’un à l’autre indiquent la même valeur, 3,0 newtons")
    spring_scale(d, 148, 66, 3, 5, 1, "A : 3,0 N")
    spring_scale(d, 412, 66, 3, 5, -1, "B : 3,0 N")
    d.path("M252 66q12 -12 24 0t32 0", EDGE, 2)
    d.rect(30, 40, 18, 52, GROUND, EDGE, 1.2)
    d.arrow(512, 66, 548, 66, INK, LINE)
    d.text(39, 34, "mur", SMALL, MUTED, "middle")
    d.text(530, 52, "on tire", SMALL, MUTED, "middle")
    d.text(280, 22, "Au bout de chacun, la même force : les actions sont réciproques.", SMALL,
           MUTED, "middle")
    return d


def gravitation():
    d = Drawing(560, 190, "Deux astres A et B de centres distants de d : chacun attire l’autre, "
                          "les deux forces sont opposées et de "
                          "même valeur")
    y = 92
    d.line(110, y, 450, y, RULE, 1.2, "5 4")
    d.circle(110, y, 54, PALE, BLUE, 2)
    d.circle(450, y, 26, BALL, BLUE, 2)
    d.arrow(110, y, 230, y, FORCE, 2.6, head=12)
    d.arrow(450, y, 330, y, FORCE, 2.6, head=12)
    d.dot(110, y)
    d.dot(450, y)
    d.text(226, y - 14, "~*F*~_{B/A}", 16, FORCE, "middle")
    d.text(336, y - 14, "~*F*~_{A/B}", 16, FORCE, "middle")
    d.text(92, y - 10, "A", 15, bold=True, anchor="end")
    d.text(450, y + 19, "B", 15, bold=True, anchor="middle")
    d.text(110, y - 64, "masse *m*_{A}", ink=BLUE, anchor="middle")
    d.text(450, y - 36, "masse *m*_{B}", ink=BLUE, anchor="middle")
    for x in (110, 450):
        d.line(x, y + (24 if x == 450 else 6), x, 166, GREEN, 1, "3 3")
    d.span(110, 166, 450, 166, GREEN)
    d.text(280, 158, "*d*, d’un centre à l’autre", ink=GREEN, anchor="middle")
    return d


def attraction(radii):
    """Of the Earth on a kilogramme, newtons; distance from its centre in radii of the Earth."""
    return GRAVITY * EARTH / (radii * EARTH_RADIUS) ** 2


def gravitation_curve():
    d = Drawing(520, 268, "Courbe de la force par laquelle la Terre attire un kilogramme : elle "
                          "est divisée par quatre quand la "
                          "distance au centre double")
    plot = Plot(d, 56, 36, 400, 180, (0, 6), (0, 12))
    d.rect(56, 36, 400 / 6, 180, PALE)
    plot.axes(1, 2, "distance au centre de la Terre, en rayons terrestres", "*F* (N), pour 1,00 kg")
    d.text(56 + 200 / 6, 146, "Terre", ink=BLUE, anchor="middle")
    plot.curve(attraction, FORCE, 1, 6)
    for radii in (1, 2, 3, 4):
        x, y = plot.at(radii, attraction(radii))
        if radii < 4:
            d.line(56, y, x, y, GREEN, 1, "4 3")
        d.dot(x, y, FORCE, 4)
        d.text(x + 8, y - 6, f"{french(attraction(radii), 2)} N", ink=FORCE)
    d.lines(290, 86, ["distance × 2 : force ÷ 4", "distance × 3 : force ÷ 9"], ink=GREEN, step=30)
    return d


def support_and_thread():
    d = Drawing(560, 226, "Un livre posé sur une table : poids et réaction du support opposés ; "
                          "une lampe pendue à un fil : poids et tension "
                          "du fil opposés")
    long = 62  # pixels of both forces of a pair
    d.rect(50, 130, 180, 12, "#e9d8b8", EDGE, 1.2)
    d.rect(96, 98, 88, 32, BALL, BLUE, LINE, 2)
    d.arrow(140, 114, 140, 114 + long, FORCE)
    d.arrow(140, 130, 140, 130 - long, FORCE)
    d.dot(140, 114, INK, 3)
    d.text(150, 172, "~*P*~", 16, FORCE)
    d.text(150, 78, "~*R*~", 16, FORCE)
    d.lines(50, 196, ["Le support pousse,", "perpendiculairement à sa surface."], SMALL, MUTED, step=16)
    d.rect(350, 10, 120, 10, GROUND)
    d.line(350, 20, 470, 20, EDGE, LINE)
    d.line(410, 20, 410, 88, INK, 1.4)
    d.area([(400, 88), (420, 88), (442, 122), (378, 122)], BALL, BLUE)
    d.arrow(410, 108, 410, 108 + long, FORCE)
    d.arrow(410, 88, 410, 88 - long, FORCE)
    d.dot(410, 108, INK, 3)
    d.text(420, 166, "~*P*~", 16, FORCE)
    d.text(420, 46, "~*T*~", 16, FORCE)
    d.lines(330, 196, ["Le fil tire, dans sa direction,", "vers son autre bout."], SMALL, MUTED,
            step=16)
    return d


def slope():
    angle, weight = math.radians(30), 110  # pixels for the weight of 5.0 N
    d = Drawing(560, 262, "Un chariot retenu par un fil sur un plan incliné de 30 degrés sans "
                          "frottement : poids 5,0 newtons, réaction du "
                          "support 4,3 newtons, tension du fil 2,5 newtons")
    x0, y0, length = 60, 232, 380  # the foot of the slope
    up = math.cos(angle), -math.sin(angle)
    out = -math.sin(angle), -math.cos(angle)
    top = x0 + length * up[0], y0 + length * up[1]
    d.area([(x0, y0), top, (top[0], y0)], GROUND, EDGE, 1.4)
    d.arc(x0, y0, 46, 0, 30)
    d.text(x0 + 54, y0 - 10, "30°", ink=GREEN)
    middle = x0 + 210 * up[0] + 20 * out[0], y0 + 210 * up[1] + 20 * out[1]
    corner = lambda a, b: (middle[0] + a * up[0] + b * out[0], middle[1] + a * up[1] + b * out[1])
    peg = corner(172, 0)
    d.line(*corner(32, 0), *peg, INK, 1.4)
    d.line(*peg, peg[0] - 20 * out[0], peg[1] - 20 * out[1], EDGE, 4)
    d.area([corner(-32, -12), corner(32, -12), corner(32, 14), corner(-32, 14)], BALL, BLUE)
    for side in (-18, 18):
        d.circle(*corner(side, -14), 6, WHITE, EDGE, 1.6)
    reaction, tension = weight * math.cos(angle), weight * math.sin(angle)
    d.arrow(*middle, middle[0], middle[1] + weight, FORCE)
    d.arrow(*middle, *corner(0, reaction), FORCE)
    d.arrow(*middle, *corner(tension, 0), FORCE)
    d.dot(*middle, INK, 3)
    d.text(middle[0] + 10, middle[1] + weight - 2, "~*P*~", 16, FORCE)
    d.text(corner(0, reaction)[0] - 8, corner(0, reaction)[1] + 10, "~*R*~", 16, FORCE, "end")
    d.text(corner(tension, 0)[0] - 2, corner(tension, 0)[1] - 14, "~*T*~", 16, FORCE, "end")
    d.lines(422, 130, ["*P* = 5,0 N", "*R* = 4,3 N", "*T* = 2,5 N"], ink=FORCE)
    d.span(422, 192, 422 + weight / 5, 192, GREEN)
    d.text(422 + weight / 5 + 8, 196, "1 N", SMALL, GREEN)
    d.text(422, 222, "~*P*~ + ~*R*~ + ~*T*~ = ~0~", 15)
    return d


FIGURES = {"interactions": interactions, "force-caracteres": force, "actions-reciproques": reciprocal,
           "dynamometres": spring_scales, "gravitation": gravitation, "gravitation-courbe": gravitation_curve,
           "support-fil": support_and_thread, "plan-incline": slope}

if __name__ == "__main__":
    print([attraction(n) for n in (1, 2, 3, 4)], 5 * math.cos(math.radians(30)))
