"""Figures of the exercises on describing a motion, and on inertia: positions, journeys, speeds to read."""

import math

from drawing import (BALL, BLUE, EDGE, GREEN, INK, LINE, MUTED, RULE, SMALL, SPEED, Drawing, Plot, french)

# A bicycle that brakes, and a way to school.
INTERVAL = 0.50  # s between two pictures of the bicycle
BICYCLE = [0, 3.0, 6.0, 9.0, 11.4, 13.2, 14.4]  # m
WAY_TO_SCHOOL = [(0, 0), (10, 0.80), (15, 0.80), (25, 5.00)]  # minutes, kilometres

# A lift, and a car in a bend.
LIFT = [(0, 0), (2, 1.5), (8, 1.5), (10, 0)]  # seconds, metres a second
CAR, TURN = 12, 60  # speed of the car in m/s, degrees that it turns between two positions


def speed_of_bicycle(picture):
    """m/s, from the pictures before and after."""
    return (BICYCLE[picture + 1] - BICYCLE[picture - 1]) / (2 * INTERVAL)


def bicycle(solved):
    d = Drawing(575, 152 if solved else 108,
                "Sept positions d’un vélo, à 0 ; 3,0 ; 6,0 ; 9,0 ; 11,4 ; 13,2 et 14,4 mètres"
                + (" ; le vecteur vitesse en M2 est deux fois plus long que celui en M5" if solved else ""))
    left, metre, y = 26, 35, 44
    ground = y + (42 if solved else 28)
    for place, at in enumerate(BICYCLE):
        x = left + metre * at
        d.line(x, y, x, ground, RULE, 1)
        d.circle(x, y, 6, BALL, BLUE)
        d.text(x, y - 14, f"M_{{{place}}}", SMALL, MUTED, "middle")
    d.line(left, ground, left + 15 * metre, ground, INK, LINE)
    for metres in range(16):
        x = left + metre * metres
        d.line(x, ground, x, ground + (8 if metres % 5 == 0 else 5), INK if metres % 5 == 0 else EDGE, 1.2)
        if metres % 5 == 0:
            d.text(x, ground + 22, french(metres), SMALL, MUTED, "middle")
    d.text(left + 15 * metre + 2, ground - 8, "m", SMALL, MUTED)
    if solved:
        for place in (2, 5):
            x, speed = left + metre * BICYCLE[place], speed_of_bicycle(place)
            d.arrow(x, y, x + 16 * speed, y, SPEED)
            d.text(x + 8 * speed, y + 27, f"~*v*~_{{{place}}}", 15, SPEED, "middle")
        d.span(left, 140, left + 32, 140, SPEED)
        d.text(left + 42, 144, "2 m/s", SMALL, SPEED)
    return d


def way_to_school():
    d = Drawing(520, 192,
                "Distance parcourue en fonction du temps : 0,80 kilomètre en 10 minutes, un arrêt de 5 minutes, "
                "puis 5,00 kilomètres à 25 minutes")
    plot = Plot(d, 62, 30, 380, 110, (0, 25), (0, 5))
    plot.axes(5, 1, "*t* (min)", "*d* (km)")
    for tenths in range(5, 50, 5):
        y = plot.at(0, tenths / 10)[1]
        if tenths % 10:
            d.line(62, y, 66, y, EDGE, 1)
    d.curve([plot.at(*point) for point in WAY_TO_SCHOOL], BLUE, 2.4)
    for point in WAY_TO_SCHOOL:
        d.dot(*plot.at(*point), BLUE, 3.5)
    x, y = plot.at(10, 0.80)
    d.line(62, y, x, y, GREEN, 1.2, "4 3")
    d.text(70, y - 6, "0,80 km", SMALL, GREEN)
    return d


def lift():
    d = Drawing(520, 236,
                "Vitesse d’un ascenseur en fonction du temps : elle augmente de 0 à 1,5 mètre par seconde en 2 "
                "secondes, reste constante jusqu’à 8 secondes, et revient à 0 à 10 secondes")
    plot = Plot(d, 62, 36, 380, 150, (0, 10), (0, 2))
    plot.axes(1, 0.5, "*t* (s)", "*v* (m/s)", 0, 1)
    d.curve([plot.at(*point) for point in LIFT], SPEED, 2.4)
    return d


def bend(solved):
    d = Drawing(575 if solved else 440, 210,
                "Une voiture dans un virage, à deux positions : deux vecteurs vitesse de même longueur, le "
                "second tourné de 60 degrés"
                + (" ; leur différence est dirigée vers l’intérieur du virage" if solved else ""))
    x, y, radius = 190, 226, 148
    along = lambda degrees, far: (x + far * math.cos(math.radians(degrees)), y - far * math.sin(math.radians(degrees)))
    for far in (radius - 17, radius + 17):
        d.curve([along(degrees, far) for degrees in range(16, 165)], EDGE, 1.4)
    d.curve([along(degrees, radius) for degrees in range(16, 165)], RULE, 1, "6 5")
    long = 7.0 * CAR  # seven pixels for 1 m/s
    for name, degrees, dx, dy in (("1", 90 + TURN / 2, -14, -8), ("2", 90 - TURN / 2, 4, -14)):
        car = along(degrees, radius)
        way = math.radians(degrees - 90)
        tip = car[0] + long * math.cos(way), car[1] - long * math.sin(way)
        d.circle(*car, 6, BALL, BLUE)
        d.arrow(*car, *tip, SPEED)
        d.text(tip[0] + dx, tip[1] + dy, f"~*v*~_{{{name}}}", 15, SPEED)
        d.text(*along(degrees, radius - 40), name, 15, BLUE, "middle", True)
    if not solved:
        d.span(372, 190, 372 + 28, 190, SPEED)
        d.text(408, 194, "4 m/s", SMALL, SPEED, "start")
        return d
    start, long = (446, 104), 8.0 * CAR
    tips = [(start[0] + long * math.cos(math.radians(way)), start[1] - long * math.sin(math.radians(way)))
            for way in (TURN / 2, -TURN / 2)]
    for name, tip, dy in (("1", tips[0], -12), ("2", tips[1], 26)):
        d.arrow(*start, *tip, SPEED)
        d.text((start[0] + tip[0]) / 2 - 8, (start[1] + tip[1]) / 2 + dy, f"~*v*~_{{{name}}}", 15, SPEED, "middle")
    d.arrow(*tips[0], *tips[1], INK)
    d.text(tips[0][0] + 6, start[1] + 80, "~*v*~_{2} − ~*v*~_{1}", 15, INK, "middle")
    return d


FIGURES = {"ex-velo": lambda: bicycle(False), "ex-velo-vecteurs": lambda: bicycle(True), "ex-trajet": way_to_school,
           "ex-ascenseur": lift, "ex-virage": lambda: bend(False), "ex-virage-vecteurs": lambda: bend(True)}
