"""Figures of the exercises on lenses and the eye: rays to judge, an image to construct, a curve to read."""

from drawing import BLUE, GREEN, INK, LINE, MUTED, ORANGE, RED, RULE, SMALL, Drawing, Plot
from figures_light import lens

# Of the rays to judge: focal length, distance of the object, its height; no unit.
JUDGED = (10, 25, 6)

# Of the image to construct, centimetres, and what a square stands for across and upwards.
FOCAL, OBJECT, TALL = 10, 30, 6
SQUARE = (5, 2)

BENCH = 20  # focal length of the lens whose curve is read, cm
PLACES = [24, 25, 30, 40, 50, 60, 80, 100]  # distances of the object, cm


def image(focal, distance):
    """Distance of the image behind the lens."""
    return 1 / (1 / focal - 1 / distance)


def axis(d, y, left, right):
    d.line(left, y, right, y, MUTED, 1.2, "8 3 2 3")


def mark(d, x, y, words, below=20):
    d.line(x, y - 5, x, y + 5, INK, LINE)
    d.text(x, y + below, words, anchor="middle", bold=True)


def way(d, points, ink, line=1.8):
    """A ray through several points, with an arrowhead in the middle of each part."""
    for (x1, y1), (x2, y2) in zip(points, points[1:]):
        d.line(x1, y1, x2, y2, ink, line)
        d.arrow(x1, y1, (x1 + x2) / 2, (y1 + y2) / 2, ink, line, head=8)


def wrong_ray():
    focal, distance, tall = JUDGED
    d = Drawing(575, 220,
                "Trois rayons partis de B : 1, parallèle à l’axe, ressort par F′ ; 2 passe par O tout droit ; 3 "
                "passe par F et ressort par F′, ce qui est faux")
    x, y, scale, up = 300, 108, 10.4, 11
    place = lambda along, across: (x + scale * along, y - up * across)
    axis(d, y, 14, 562)
    lens(d, x, y, 90)
    end = 24
    d.arrow(*place(-distance, 0), *place(-distance, tall), BLUE, 2.6)
    b = place(-distance, tall)
    way(d, [b, place(0, tall), place(end, tall * (1 - end / focal))], RED)
    way(d, [b, place(0, 0), place(end, -tall * end / distance)], GREEN)
    low = -tall * focal / (distance - focal)
    way(d, [b, place(-focal, 0), place(0, low), place(end, low * (1 - end / focal))], ORANGE)
    mark(d, *place(-focal, 0), "F")
    mark(d, *place(focal, 0), "F′", -14)
    d.text(b[0] - 6, b[1] - 4, "B", bold=True, anchor="end")
    d.text(b[0] - 6, y + 18, "A", bold=True, anchor="end")
    d.text(x + 6, y - 8, "O", bold=True)
    for words, across, ink in (("1", tall * (1 - end / focal), RED), ("2", -tall * end / distance, GREEN),
                               ("3", low * (1 - end / focal), ORANGE)):
        place_x, place_y = place(end, across)
        d.text(place_x + 8, place_y + 5, words, 15, ink, bold=True)
    return d


def squared(solved):
    title = ("Sur un quadrillage, l’image construite par trois rayons : à 15 centimètres de la lentille, "
             "renversée, haute de 3 centimètres" if solved else
             "Sur un quadrillage, une lentille, ses foyers à deux carreaux de part et d’autre, et un objet "
             "haut de trois carreaux à six carreaux d’elle")
    d = Drawing(460, 262, title)
    side, columns, rows = 28, 15, 8
    left, top = 20, 8
    x, y = left + 8 * side, top + 4 * side
    place = lambda along, across: (x + side * along / SQUARE[0], y - side * across / SQUARE[1])
    for column in range(columns + 1):
        d.line(left + side * column, top, left + side * column, top + side * rows, RULE, 1)
    for row in range(rows + 1):
        d.line(left, top + side * row, left + side * columns, top + side * row, RULE, 1)
    axis(d, y, left, left + side * columns)
    lens(d, x, y, 106)
    b = place(-OBJECT, TALL)
    d.arrow(*place(-OBJECT, 0), *b, BLUE, 2.6)
    if solved:
        far = image(FOCAL, OBJECT)
        low = -TALL * far / OBJECT
        way(d, [b, place(0, TALL), place(far, low)], RED)
        way(d, [b, place(0, 0), place(far, low)], GREEN)
        way(d, [b, place(0, low), place(far, low)], ORANGE)
        d.arrow(*place(far, 0), *place(far, low), BLUE, 2.6)
        d.text(place(far, 0)[0] + 8, y - 6, "A′", bold=True)
        d.text(place(far, 0)[0] + 10, place(0, low)[1] + 5, "B′", bold=True)
    mark(d, *place(-FOCAL, 0), "F")
    d.line(place(FOCAL, 0)[0], y - 5, place(FOCAL, 0)[0], y + 5, INK, LINE)
    d.text(place(FOCAL, 0)[0] + 5, y - 8, "F′", bold=True)
    d.text(b[0] - 6, y + 18, "A", bold=True, anchor="end")
    d.text(b[0] - 6, b[1] + 6, "B", bold=True, anchor="end")
    d.text(x + 6, y - 8, "O", bold=True)
    d.text(left, 254, "1 carreau : 5 cm en largeur, 2 cm en hauteur", SMALL, MUTED)
    return d


def curve_of_a_lens():
    d = Drawing(540, 300,
                "Distance de l’écran à la lentille en fonction de celle de l’objet : 60 centimètres pour 30, 40 "
                "pour 40 ; la courbe descend vers 20 centimètres")
    plot = Plot(d, 62, 36, 400, 210, (0, 100), (0, 120))
    plot.axes(10, 10, "de l’objet à la lentille (cm)", "de la lentille à l’écran (cm)", labels=(1, 2))
    plot.curve(lambda distance: image(BENCH, distance), BLUE, 24, 100)
    for distance in PLACES:
        d.cross(*plot.at(distance, image(BENCH, distance)))
    return d


FIGURES = {"ex-rayon-faux": wrong_ray, "ex-lentille-a-completer": lambda: squared(False),
           "ex-lentille-complete": lambda: squared(True), "ex-lentille-courbe": curve_of_a_lens}
