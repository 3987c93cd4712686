"""Figures of the exercises on circuits and sensors: a circuit to calculate, characteristics to read."""

from drawing import BLUE, GREEN, INK, ORANGE, RED, WHITE, Drawing, Plot
from figures_circuits import current, generator, node, wire

RESISTORS = [("A", 100, BLUE), ("B", 300, GREEN)]  # ohms
SHARED = (4.0, 40)  # volts and milliamperes at which the lamp's curve meets the first resistor's


def filament(volts):
    """Current of the lamp in milliamperes; hotter, it resists more."""
    return SHARED[1] * (volts / SHARED[0]) ** 0.55


def bulb(d, x, y, name, right, down, anchor="start"):
    d.circle(x, y, 17, WHITE, INK, 2)
    d.path(f"M{x - 12} {y - 12}l24 24M{x + 12} {y - 12}l-24 24", INK, 1.6)
    d.text(x + right, y + down, name, 15, INK, anchor, True)


def three_bulbs():
    d = Drawing(520, 228,
                "Un générateur, une lampe L1 en série avec deux lampes L2 et L3 en dérivation entre les nœuds A et "
                "B")
    wire(d, "M80 186V54H420V186Z")
    wire(d, "M300 54V186")
    generator(d, 80, 120)
    bulb(d, 200, 54, "L_{1}", 0, -25, "middle")
    bulb(d, 300, 128, "L_{2}", 25, 5)
    bulb(d, 420, 120, "L_{3}", 25, 5)
    node(d, 300, 54, "A", -12)
    node(d, 300, 186, "B", 24)
    current(d, 128, 54, 0, "*I*", -4, -12)
    current(d, 300, 86, 270, "*I*_{2}", 10, 6)
    current(d, 366, 54, 0, "*I*_{3}", -4, -12)
    d.arrow(40, 170, 40, 70, BLUE, 2)
    d.text(32, 125, "*U*", 15, BLUE, "end")
    d.arrow(236, 86, 164, 86, BLUE, 2)
    d.text(200, 108, "*U*_{1}", 15, BLUE, "middle")
    d.arrow(270, 168, 270, 92, BLUE, 2)
    d.text(261, 150, "*U*_{2}", 15, BLUE, "end")
    return d


def three_characteristics():
    d = Drawing(520, 250,
                "Caractéristiques de trois dipôles : A et B sont des droites qui passent par l’origine, à 60 et 20 "
                "milliampères sous 6 volts ; C est une courbe qui se couche et croise A à 4 volts")
    plot = Plot(d, 62, 36, 370, 164, (0, 6), (0, 60))
    plot.axes(1, 5, "*U* (V)", "*I* (mA)", labels=(1, 2))
    for name, ohms, ink in RESISTORS:
        plot.named_curve(name, lambda volts: 1000 * volts / ohms, ink)
    plot.named_curve("C", filament, ORANGE, 400)
    return d


FIGURES = {"ex-circuit": three_bulbs, "ex-caracteristiques": three_characteristics}
