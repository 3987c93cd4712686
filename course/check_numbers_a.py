"""Numbers of the pages on measuring, describing a motion and inertia: see check_numbers.py."""

import math

G = 9.81
SERIES = {19.7: 1, 19.8: 1, 19.9: 3, 20.0: 4, 20.1: 5, 20.2: 3, 20.3: 2, 20.4: 1}
DURATIONS = [duration for duration, times in SERIES.items() for _ in range(times)]
MEAN = sum(DURATIONS) / len(DURATIONS)
DEVIATION = math.sqrt(sum((duration - MEAN) ** 2 for duration in DURATIONS) / (len(DURATIONS) - 1))
UNCERTAINTY = DEVIATION / math.sqrt(len(DURATIONS))


def fallen(frame):
    """Centimetres below the start at this frame of the film, as read: whole ones."""
    return round(100 * G * (frame / 25) ** 2 / 2)


PERIOD = 2 * math.pi * math.sqrt(1.000 / G)

RESULTS = [
    ("006", "{15} mesures sur {20}",
     [sum(abs(duration - MEAN) < DEVIATION for duration in DURATIONS), len(DURATIONS)]),
    ("006", "vingt durées est {401,3} s", [sum(DURATIONS)]),
    ("006", "L’écart-type est s = {0,18} s", [DEVIATION]),
    ("006", "(0,18)/(√(20)) = {0,04} s", [UNCERTAINTY]),
    ("006", "durent ({20,07} ± {0,04}) s", [MEAN, UNCERTAINTY]),
    ("006", "T = {2,007} s et u(T) = {0,004} s", [MEAN / 10, UNCERTAINTY / 10]),
    ("007", "affiche {13,28}, mais", [3.2 * 4.15]),
    ("007", "la période de référence est {2,006} s", [PERIOD]),
    ("007", "l’écart est {0,001} s", [2.007 - 2.006]),
    ("007", "u = 0,010 s : l’écart est {0,034} s", [2.040 - 2.006]),
    ("007", "qui est {3,4} cm", [100 * ((2.040 / 2.006) ** 2 - 1)]),
    ("007", "l’écart est {0,3} g", [50.3 - 50.0]),
    ("067", "2π × 0,35 = {2,2} m", [2 * math.pi * 0.35]),
    ("067", "parcourt les mêmes {2,2} m sur son cercle, dans la même durée : {0,76} m/s",
     [2 * math.pi * 0.35, 2 * math.pi * 0.35 / (72 / 25)]),
    ("067", "double de celle du vélo, 2 × 0,76 = {1,5} m/s", [4 * math.pi * 0.35 / (72 / 25)]),
    ("067", "Galaxie, {36} puissances de dix", [round(math.log10(9.5e20)) + 15]),
    ("068", "= √(250 000) = {500} m", [math.hypot(400, 300)]),
    ("068", "La règle donne {0,18} m", [2 * 0.60 * math.sin(0.90 * 0.20 / 0.60 / 2)]),
    ("069", "t (s) 0 {0,12} {0,24} {0,36} {0,48} {0,60}", [n / 25 for n in (3, 6, 9, 12, 15)]),
    ("069", "y (cm) 0 {7} {28} {64} {113} {177}", [fallen(n) for n in (3, 6, 9, 12, 15)]),
    ("069", "augmente : {7}, puis {21}, {36}, {49}, {64} cm",
     [fallen(n) - fallen(n - 3) for n in (3, 6, 9, 12, 15)]),
    ("069", "On lit {64} cm à l’image 9 et {95} cm à l’image 11", [fallen(9), fallen(11)]),
    ("069", "À l’image 16, à {0,64} s", [16 / 25]),
    ("069", "à 1,80 m, vers {0,61} s", [math.sqrt(2 * 1.80 / G)]),
    ("074", "R = P = m g = 0,160 × 9,81 = {1,57} N", [0.160 * G]),
    ("075", "R = P = 40,0 × 9,81 = {392} N", [40.0 * G]),
    ("075", "P = 80,0 × 9,81 = {785} N", [80.0 * G]),
    ("075", "donc f = {785} N dans les deux cas", [80.0 * G]),
    ("Q810", "60,0 × 9,81 = {589} N", [60.0 * G]),
    ("Q810", "{6,12} N vient", [60.0 / G]),
    ("Q807", "Son poids vaut {785} N", [80.0 * G]),
]
