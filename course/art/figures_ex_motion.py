"""Figures of the exercises on describing a motion, and on inertia: positions, journeys, speeds to read."""

from drawing import (BALL, BLUE, EDGE, GREEN, INK, LINE, MUTED, RULE, SMALL, SPEED, Drawing, Plot, french)

INTERVAL = 0.50  # s between two pictures of the bicycle
BICYCLE = [0, 3.0, 6.0, 9.0, 11.4, 13.2, 14.4]  # m
WAY_TO_SCHOOL = [(0, 0), (10, 0.80), (15, 0.80), (25, 5.00)]  # minutes, kilometres


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
    d = Drawing(520, 270, "Distance parcourue en fonction du temps : 0,80 kilomètre en 10 minutes, un arrêt de 5 minutes, "
                          "puis 5,00 kilomètres à 25 minutes")
    plot = Plot(d, 62, 36, 380, 184, (0, 25), (0, 5))
    plot.axes(5, 1, "*t* (min)", "*d* (km)")
    for tenths in range(2, 50, 2):
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


FIGURES = {"ex-velo": lambda: bicycle(False), "ex-velo-vecteurs": lambda: bicycle(True), "ex-trajet": way_to_school}
