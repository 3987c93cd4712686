"""Figures of the lessons on nodes and loops, characteristics and sensors."""

import math

from drawing import BLUE, GREEN, INK, MUTED, RED, SMALL, WHITE, Drawing, Plot, french

# A lamp: voltage in volts, current in milliamperes; a red LED.
LAMP = [(0, 0), (1, 70), (2, 108), (3, 138), (4, 163), (5, 185), (6, 205)]
RESISTOR = 47  # ohms
# A thermistor: ohms at 25 °C and its constant, kelvins.
AT_25, CONSTANT = 10_000, 3950


def wire(d, way):
    d.path(way, INK, 2)


def resistor(d, x, y, name, upright=False):
    wide, high = (20, 52) if upright else (52, 20)
    d.rect(x - wide / 2, y - high / 2, wide, high, WHITE, INK, 2)
    if upright:
        d.text(x + 18, y + 5, name, 15)
    else:
        d.text(x, y - 18, name, 15, INK, "middle")


def generator(d, x, y):
    """Upright, its plus pole above."""
    d.circle(x, y, 22, WHITE, INK, 2)
    d.text(x, y + 6, "G", 15, INK, "middle", True)
    d.text(x + 26, y - 15, "+", 15, RED, bold=True)
    d.text(x + 27, y + 29, "−", 15, BLUE, bold=True)


def node(d, x, y, name, dy):
    d.dot(x, y, INK, 4.5)
    d.text(x, y + dy, name, 15, INK, "middle", True)


def current(d, x, y, way, name, dx, dy):
    """An arrowhead on a wire; `way` is its direction in degrees, anticlockwise from the right."""
    a = math.radians(way)
    d.arrow(x - 7 * math.cos(a), y + 7 * math.sin(a), x + 7 * math.cos(a), y - 7 * math.sin(a), RED,
            2, head=13)
    d.text(x + dx, y + dy, name, 15, RED, bold=True)


def nodes_and_loops():
    d = Drawing(560, 274, "Un générateur de 6,0 volts et deux conducteurs en dérivation entre les "
                          "nœuds A et B : I égale I1 plus I2 ; dans chaque maille la somme des "
                          "tensions est nulle")
    wire(d, "M70 220V50H390V220Z")
    wire(d, "M250 50V220")
    generator(d, 70, 135)
    resistor(d, 250, 135, "*R*_{1}", True)
    resistor(d, 390, 135, "*R*_{2}", True)
    node(d, 250, 50, "A", -12)
    node(d, 250, 220, "B", 24)
    current(d, 150, 50, 0, "*I*", -4, -12)
    current(d, 250, 82, 270, "*I*_{1}", 10, 6)
    current(d, 330, 50, 0, "*I*_{2}", -4, -12)
    current(d, 390, 194, 270, "*I*_{2}", 12, 6)
    d.arrow(34, 190, 34, 82, BLUE, 2)
    d.text(26, 130, "*U*", 15, BLUE, "end")
    d.arrow(226, 190, 226, 82, BLUE, 2)
    d.text(216, 130, "*U*_{1}", 15, BLUE, "end")
    d.arrow(366, 190, 366, 82, BLUE, 2)
    d.text(356, 130, "*U*_{2}", 15, BLUE, "end")
    d.lines(434, 84, ["nœud A :", "*I* = *I*_{1} + *I*_{2}"], ink=RED, step=22)
    d.lines(434, 152, ["mailles :", "*U* = *U*_{1} = *U*_{2}"], ink=BLUE, step=22)
    d.text(280, 268, "Un nœud relie au moins trois fils ; une maille est un chemin fermé.", SMALL,
           MUTED, "middle")
    return d


def led(volts):
    """Current of a red LED in milliamperes: almost none below its threshold of 1.8 V."""
    return 20 * (math.exp((volts - 1.8) / 0.09) - 1) / (math.exp((2.0 - 1.8) / 0.09) - 1) if volts > 1.8 else 0.0


def characteristics():
    d = Drawing(575, 260, "Trois caractéristiques : conducteur ohmique, une droite ; lampe, une "
                          "courbe qui se couche ; DEL, rien avant 1,8 volt, puis une montée raide")
    cases = [("conducteur ohmique", (0, 6), 2, (0, 150), 50, "*U* = 47 Ω × *I*"), ("lampe", (0, 6),
             2, (0, 250), 50, "*U* et *I* non proportionnels"),
             ("DEL rouge", (0, 2.5), 0.5, (0, 30), 10, "seuil vers 1,8 V")]
    for index, (name, xs, x_step, ys, y_step, words) in enumerate(cases):
        plot = Plot(d, 44 + 190 * index, 52, 118, 130, xs, ys)
        plot.axes(x_step, y_step, "*U* (V)", "*I* (mA)", 1 if index == 2 else 0, labels=(2 if index == 2
                  else 1, 1))
        if index == 0:
            plot.curve(lambda volts: 1000 * volts / RESISTOR, BLUE, 0, 6, 2)
            for volts in (1.5, 3.0, 4.5, 6.0):
                d.cross(*plot.at(volts, 1000 * volts / RESISTOR))
        elif index == 1:
            plot.curve(lambda volts: 70 * volts ** 0.6, BLUE, 0, 6)
            for volts, milliamperes in LAMP:
                d.cross(*plot.at(volts, milliamperes))
        else:
            plot.curve(led, BLUE, 0, 2.03, 400)
        d.text(plot.left + 62, 20, name, ink=BLUE, anchor="middle", bold=True)
        d.text(plot.left + 62, 240, words, SMALL, GREEN, "middle")
    return d


def thermistor(celsius):
    """Ohms."""
    return AT_25 * math.exp(CONSTANT * (1 / (celsius + 273.15) - 1 / 298.15))


def sensor():
    d = Drawing(560, 276, "Courbe d’étalonnage d’une thermistance : sa résistance diminue quand la "
                          "température augmente ; 6,5 kilohms se lisent 35 degrés")
    plot = Plot(d, 60, 36, 400, 188, (0, 60), (0, 35))
    plot.axes(10, 5, "*θ* (°C)", "*R* (kΩ)")
    plot.curve(lambda celsius: thermistor(celsius) / 1000, BLUE, 0, 60)
    for celsius in range(0, 61, 10):
        d.cross(*plot.at(celsius, thermistor(celsius) / 1000))
    value = thermistor(35) / 1000
    x, y = plot.at(35, value)
    d.line(60, y, x, y, GREEN, 1.4, "4 3")
    d.line(x, y, x, 224, GREEN, 1.4, "4 3")
    d.text(76, y - 8, f"on mesure {french(value, 1)} kΩ", ink=GREEN)
    d.text(x - 8, 214, "on lit 35 °C", ink=GREEN, anchor="end")
    return d


FIGURES = {"noeuds-mailles": nodes_and_loops, "caracteristiques": characteristics, "thermistance": sensor}

if __name__ == "__main__":
    print([round(thermistor(t)) for t in range(0, 61, 5)])
