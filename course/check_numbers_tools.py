"""Numbers of the pages on graphs and on programs, and of those for teachers: see check_numbers.py."""

from statistics import mean, stdev

# Masses in g and how far they stretch the spring, in cm: the slope of the line through the origin nearest to them.
SPRING = {50: 2.4, 100: 5.1, 150: 7.4, 200: 10.1, 250: 12.4, 300: 15.2}
SLOPE = sum(mass * length for mass, length in SPRING.items()) / sum(mass * mass for mass in SPRING)
# Twenty durations, s, and where a ball is that falls without a brake, in whole cm, every 0,040 s.
DURATIONS = [19.7, 19.8] + 3 * [19.9] + 4 * [20.0] + 5 * [20.1] + 3 * [20.2] + 2 * [20.3] + [20.4]
FALL = [round(100 * 9.81 * (0.040 * image) ** 2 / 2) for image in range(16)]
# Hours of the chapters, in the order of pages 141 and 142.
SIGNALS, MOTION, MATTER = [6, 8, 6, 8], [8, 7, 5], [8, 8, 9, 5, 4, 8, 4]

RESULTS = [
    ("008", "elle monte de {10,0} cm pour 200 g", [200 * SLOPE]),
    ("008", "(10,0)/(200) = {0,050} cm/g", [SLOPE]),
    ("008", "la droite passe à {7,5} cm", [150 * SLOPE]),
    ("009", "d’écrire ({20,07} ± {0,04}) s", [mean(DURATIONS), stdev(DURATIONS) / 20 ** 0.5]),
    ("009", "y = [{0}, {1}, {3}, {7}, {13}, {20}, {28}, {38}, {50}, {64}, {78}, {95}", FALL[:12]),
    ("009", "{113}, {133}, {154}, {177}]", FALL[12:]),
    ("009", "À l’image 10, v vaut {3,9} m/s", [(FALL[11] - FALL[9]) / 100 / 0.080]),
    ("029", "de la matière les sept de chimie {46} Mouvement et interactions trois de physique {20}",
     [sum(MATTER), sum(MOTION)]),
    ("029", "quatre de physique {28} Mesure", [sum(SIGNALS)]),
    ("029", "Elles font {98} heures, sur les {108} de l’année", [sum(MATTER + MOTION + SIGNALS) + 4, 36 * 3]),
    ("141", "compris : {48} h pour les sept", [sum(SIGNALS + MOTION)]),
    ("142", "compris : {46} h pour les sept", [sum(MATTER)]),
]
