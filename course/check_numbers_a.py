"""Numbers of the pages on measuring, describing a motion and inertia: see check_numbers.py."""

import math

G = 9.81
SERIES = {19.7: 1, 19.8: 1, 19.9: 3, 20.0: 4, 20.1: 5, 20.2: 3, 20.3: 2, 20.4: 1}
DURATIONS = [duration for duration, times in SERIES.items() for _ in range(times)]
MEAN = sum(DURATIONS) / len(DURATIONS)
DEVIATION = math.sqrt(sum((duration - MEAN) ** 2 for duration in DURATIONS) / (len(DURATIONS) - 1))
UNCERTAINTY = DEVIATION / math.sqrt(len(DURATIONS))
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
]
