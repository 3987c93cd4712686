"""Figures of the lessons on the principle of inertia."""

import math

from drawing import (BALL, BLUE, EDGE, FORCE, GREEN, GROUND, INK, IVORY, LINE, MUTED, RULE, SMALL,
                     SPEED, Drawing, Plot)

G = 9.81  # N/kg

# A parachutist of 80 kg. Drag is k v², with k so that the speed tends to 50 m/s, and under the open
# canopy to 5.0 m/s; k grows evenly while the canopy opens.
MASS, FREE, CANOPY = 80, 50, 5.0  # kg, m/s, m/s
OPENING, INFLATION, END = 24.0, 4.0, 40  # seconds


def drag(seconds, speed):
    share = min(1, max(0, (seconds - OPENING) / INFLATION))
    closed, opened = MASS * G / FREE ** 2, MASS * G / CANOPY ** 2
    return (closed + share * (opened - closed)) * speed ** 2


def jump(step=0.001):
    """Time, speed and drag every tenth of a second."""
    speed, rows = 0.0, []
    for i in range(int(END / step) + 1):
        seconds = i * step
        if i % 100 == 0:
            rows.append((seconds, speed, drag(seconds, speed)))
        middle = speed + (G - drag(seconds, speed) / MASS) * step / 2
        speed += (G - drag(seconds + step / 2, middle) / MASS) * step
    return rows


def puck():
    d = Drawing(560, 194, "Un palet glisse sur la glace : photographié à intervalles égaux, il "
                          "parcourt des distances égales ; son poids et "
                          "la réaction de la glace se compensent, sa vitesse ne change pas")
    y = 112
    d.rect(20, y + 10, 520, 16, "#e8f1fa")
    d.line(20, y + 10, 540, y + 10, "#7fa3c7", LINE)
    for i in range(6):
        d.rect(40 + 90 * i, y - 8, 40, 18, BALL, BLUE, LINE, 3)
    for i in (0, 4):
        d.arrow(60 + 90 * i, y - 18, 126 + 90 * i, y - 18, SPEED)
        d.text(130 + 90 * i, y - 24, "~*v*~", 16, SPEED)
    x = 240
    d.arrow(x, y + 1, x, y + 55, FORCE)
    d.arrow(x, y + 10, x, y - 44, FORCE)
    d.dot(x, y + 1, INK, 3)
    d.text(x + 9, y + 52, "~*P*~", 16, FORCE)
    d.text(x + 9, y - 34, "~*R*~", 16, FORCE)
    for i in range(3, 5):
        d.span(60 + 90 * i, y + 42, 60 + 90 * (i + 1), y + 42, GREEN)
        d.text(105 + 90 * i, y + 60, "2,0 m", SMALL, GREEN, "middle")
    d.text(280, 22, "~*P*~ + ~*R*~ = ~0~   et   ~*v*~ ne change pas", 15, INK, "middle")
    d.text(280, 188, "Une image toutes les 0,50 s : 2,0 m à chaque fois.", SMALL, MUTED, "middle")
    return d


def change_of_speed():
    d = Drawing(575, 226, "Trois mouvements où le vecteur vitesse change : chute, freinage, virage "
                          "; chaque fois le changement de la vitesse a la "
                          "direction et le sens de la force qui n’est pas compensée")
    for x, name in ((96, "chute"), (287, "freinage"), (478, "virage")):
        d.text(x, 20, name, ink=BLUE, anchor="middle", bold=True)
    for x in (192, 383):
        d.line(x, 10, x, 180, RULE, 1)
    # a ball let go: straight and faster
    d.circle(70, 44, 7, BALL, BLUE)
    d.circle(70, 104, 7, BALL, BLUE)
    d.arrow(70, 44, 70, 74, SPEED)
    d.arrow(70, 104, 70, 166, SPEED)
    d.text(54, 66, "~*v*~_{1}", 15, SPEED, "end")
    d.text(54, 146, "~*v*~_{2}", 15, SPEED, "end")
    d.arrow(130, 80, 130, 128, FORCE)
    d.text(140, 108, "~*P*~", 15, FORCE)
    # a slide that brakes: straight and slower
    for x, long in ((222, 66), (308, 32)):
        d.rect(x, 84, 26, 16, BALL, BLUE, 1.4, 2)
        d.arrow(x + 13, 70, x + 13 + long, 70, SPEED)
    d.line(204, 100, 372, 100, EDGE, LINE)
    d.text(262, 58, "~*v*~_{1}", 15, SPEED, "middle")
    d.text(338, 58, "~*v*~_{2}", 15, SPEED, "middle")
    d.arrow(330, 128, 282, 128, FORCE)
    d.text(306, 152, "frottement ~*f*~", ink=FORCE, anchor="middle")
    # a ball on a thread: the speed turns towards the thread
    x, y, radius = 452, 152, 78
    d.path(f"M{x + radius * math.cos(2.5):.1f} {y - radius * math.sin(2.5):.1f}A{radius} {radius} "
           f"0 0 1 {x + radius} {y}", RULE, 1.6, dash="5 4")
    d.dot(x, y, INK, 3)
    for angle, mark in ((1.9, 1), (0.75, 2)):
        bx, by = x + radius * math.cos(angle), y - radius * math.sin(angle)
        tip = bx + 54 * math.sin(angle), by + 54 * math.cos(angle)
        if mark == 2:
            d.line(x, y, bx, by, EDGE, 1.2)
            pull = bx - 46 * math.cos(angle), by + 46 * math.sin(angle)
            d.arrow(bx, by, *pull, FORCE)
            d.text(pull[0] - 12, pull[1] - 6, "~*T*~", 15, FORCE, "end")
        d.arrow(bx, by, *tip, SPEED)
        d.circle(bx, by, 7, BALL, BLUE)
        d.text(tip[0] + 6, tip[1] + (2 if mark == 1 else 12), f"~*v*~_{{{mark}}}", 15, SPEED)
    d.text(287, 206,
           "La vitesse change (de valeur ou de direction) : les forces ne se compensent pas.",
           anchor="middle")
    return d


def parachutist():
    d = Drawing(575, 342, "Vitesse d’un parachutiste au cours du temps : elle augmente jusqu’à 50 "
                          "mètres par seconde, reste constante, chute à "
                          "l’ouverture du parachute, puis reste à 5 mètres par seconde ; en haut, "
                          "le poids et le frottement à quatre instants")
    rows = jump()
    at = {round(seconds, 1): (speed, force) for seconds, speed, force in rows}
    plot = Plot(d, 56, 150, 440, 132, (0, END), (0, 60))
    plot.axes(5, 10, "*t* (s)", "*v* (m/s)")
    d.curve([plot.at(seconds, speed) for seconds, speed, _ in rows], SPEED, 2.2)
    scale = 27 / (MASS * G)  # pixels a newton
    for moment, words in ((5.0, "*v* augmente"), (20.0, "*v* constante"), (25.5, "*v* diminue"),
                          (36.0, "*v* constante")):
        speed, force = at[moment]
        x, y = plot.at(moment, speed)
        top = {5.0: 116, 20.0: 260, 25.5: 352, 36.0: 460}[moment]
        d.line(top, 122, x, y, RULE, 1)
        d.dot(x, y, INK, 3.4)
        d.arrow(top, 62, top, 62 + MASS * G * scale, FORCE)
        d.arrow(top, 62, top, 62 - force * scale, FORCE)
        d.circle(top, 62, 5, BALL, BLUE)
        d.text(top + 8, 92, "~*P*~", ink=FORCE)
        d.text(top + 9, 62 - min(14, force * scale / 2), "~*f*~", ink=FORCE)
        d.text(top, 116, words, SMALL, MUTED, "middle")
    d.text(plot.at(OPENING, 0)[0], 334, "ouverture", SMALL, MUTED, "middle")
    d.line(plot.at(OPENING, 0)[0], 282, plot.at(OPENING, 0)[0], 320, MUTED, 1, "3 3")
    return d


def crate():
    d = Drawing(560, 202, "Une caisse tirée à vitesse constante sur le sol : la force de traction "
                          "compense le frottement, la réaction du sol compense "
                          "le poids")
    x, y, unit = 250, 110, 0.2  # pixels a newton
    weight, pull = 40 * G * unit, 150 * unit
    d.rect(20, 142, 520, 10, GROUND)
    d.line(20, 142, 540, 142, EDGE, LINE)
    d.rect(x - 44, y - 20, 88, 52, IVORY, EDGE, LINE, 2)
    d.line(x + 44, y, x + 170, y, INK, 1.2)
    d.arrow(x + 44, y, x + 44 + pull, y, FORCE)
    d.arrow(x, 142, x - pull, 142, FORCE, 2.6)
    d.arrow(x, y, x, y + weight, FORCE)
    d.arrow(x, 142, x, 142 - weight, FORCE)
    d.dot(x, y, INK, 3)
    d.arrow(x - 40, 36, x + 20, 36, SPEED)
    d.text(x + 26, 41, "~*v*~ constante", ink=SPEED)
    d.text(x + 44 + pull, y - 12, "~*F*~", 16, FORCE, "middle")
    d.text(x - pull, 170, "~*f*~", 16, FORCE, "middle")
    d.text(x + 9, y + weight - 4, "~*P*~", 16, FORCE)
    d.text(x - 9, 80, "~*R*~", 16, FORCE, "end")
    d.lines(450, 52, ["*P* = *R* = 392 N", "*F* = *f* = 150 N"], ink=FORCE)
    d.span(450, 96, 450 + 200 * unit, 96, GREEN)
    d.text(450 + 200 * unit + 8, 100, "200 N", SMALL, GREEN)
    return d


FIGURES = {"palet-glace": puck, "vitesse-change": change_of_speed, "caisse": crate,
           "parachutiste": parachutist}

if __name__ == "__main__":
    rows = jump()
    print([(round(t, 1), round(v, 1), round(f)) for t, v, f in rows if round(t * 10) in (30, 100,
           200, 240, 250, 251, 255, 260, 270, 280, 300, 360)], max(f for _, _, f in rows))
