"""Numbers of the exercises in chemistry and of their answers: see check_numbers.py."""

import math

# C1: what the ruler of the plate shows, cm; the king's crown, g and mL.
START, FRONT, YELLOW, CYAN = 1.0, 8.0, 5.9, 3.1
GOLD, SILVER, CROWN, SPILT, SWAPPED = 19.3, 10.5, 1000, 60.0, 190
VASE = math.pi * 10 ** 2

MIXTURES = [
    ("228", "32,6 − 30,0 = {2,6} mL", [32.6 - 30]),
    ("228", "(20,5)/(2,6) = {7,9} g/mL", [20.5 / 2.6]),
    ("228", "8,0 − 1,0 = {7,0} cm", [FRONT - START]),
    ("228", "5,9 − 1,0 = {4,9} cm", [YELLOW - START]),
    ("228", "3,1 − 1,0 = {2,1} cm", [CYAN - START]),
    ("228", "(4,9)/(7,0) = {0,70}", [(YELLOW - START) / (FRONT - START)]),
    ("228", "(2,1)/(7,0) = {0,30}", [(CYAN - START) / (FRONT - START)]),
    ("228", "sans ôter le 1,0 cm donnerait {0,74}", [YELLOW / FRONT]),
    ("228", "0,70 × 9,0 = {6,3} cm", [(YELLOW - START) / (FRONT - START) * 9]),
    ("228", "0,32 × 2 400 = {7,7 × 10^2} L", [0.32 * 2400]),
    ("228", "0,32 × 360 = {115} degrés", [0.32 * 360]),
    ("228", "1 000 / 19,3 = {51,8} mL", [CROWN / GOLD]),
    ("228", "1 000 / 60,0 = {16,7} g/mL", [CROWN / SPILT]),
    ("228", "Il y aurait {810} g", [CROWN - SWAPPED]),
    ("228", "(810)/(19,3) = {42,0} mL (190)/(10,5) = {18,1} mL 42,0 + 18,1 = {60,1} mL",
     [(CROWN - SWAPPED) / GOLD, SWAPPED / SILVER, (CROWN - SWAPPED) / GOLD + SWAPPED / SILVER]),
    ("228", "π × 10^2 = {314} cm^2", [VASE]),
    ("228", "60,0 / 314 = {0,19} cm", [SPILT / VASE]),
    ("228", "51,8 / 314 = {0,16} cm", [CROWN / GOLD / VASE]),
]

# C2: the straight line of the sugar, as in figures_ex_chemistry.py; the salt basin, m² and g/L; the neck, cm.
PURE, RISE, DENSITY = 0.998, 0.000385, 103.9 / 100
SUGAR = (DENSITY - PURE) / RISE
BASIN, DEPTH, SEA, SATURATED = 2000, 0.050, 35, 320
SALT = BASIN * DEPTH * 1000 * SEA
NECK, WIDE = math.pi * 0.60 ** 2 * 0.50, math.pi * 2.5 ** 2 * 0.50

SOLUTIONS = [
    ("229", "50 × 0,500 = {25} g", [50 * 0.5]),
    ("229", "50 × 0,120 = {6,0} g", [50 * 0.12]),
    ("229", "{19} g dans {0,380} L, et 19 / 0,380 = {50} g/L", [25 - 6, 0.5 - 0.12, 19 / 0.38]),
    ("229", "12,0 × 0,2500 = {3,00} g", [12 * 0.25]),
    ("229", "à {0,4} près, contre {1,1}", [7 - 6.6, 8.1 - 7]),
    ("229", "800 / 8 = {100} g/L", [800 / 8]),
    ("229", "200 / 8 = {25} mL de sirop, et {175} mL", [200 / 8, 200 - 200 / 8]),
    ("229", "20 / 6 = {3,3}", [20 / 6]),
    ("229", "103,9 / 100,0 = {1,039} g/mL", [DENSITY]),
    ("229", "on descend : c_m = {106} g/L", [SUGAR]),
    ("229", "106 × 0,33 = {35} g", [SUGAR * 0.33]),
    ("229", "(9,0 × 10,0)/(40) = {2,25} mL et de même {2,50} mL et {2,75} mL",
     [9 * 10 / 40, 10 * 10 / 40, 11 * 10 / 40]),
    ("229", "{0,18} g/L < c_m < {0,20} g/L", [20 * 9e-3, 20 * 10e-3]),
    ("229", "soit {1,0 × 10^5} L", [BASIN * DEPTH * 1000]),
    ("229", "= {3,5 × 10^6} g c'est-à-dire {3,5} t", [SALT, SALT / 1e6]),
    ("229", "320 = {1,1 × 10^4} L, ou {11} m^3", [SALT / SATURATED, SALT / SATURATED / 1000]),
    ("229", "11 / 2 000 = {0,0055} m, {5,5} mm", [SALT / SATURATED / 1000 / BASIN, SALT / SATURATED / BASIN]),
    ("229", "0,60^2 × 0,50 = {0,57} mL", [NECK]),
    ("229", "2,5^2 × 0,50 = {9,8} mL", [WIDE]),
    ("229", "(0,500)/(0,10057) = {4,97} g/L (0,500)/(0,1098) = {4,55} g/L",
     [500 / (100 + NECK), 500 / (100 + WIDE)]),
]

RESULTS = MIXTURES + SOLUTIONS
