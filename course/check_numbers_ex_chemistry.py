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

RESULTS = MIXTURES
