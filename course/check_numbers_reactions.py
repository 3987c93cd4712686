"""Numbers of the pages on reactions: see check_numbers.py."""

WATER = 4.18  # joules for a gram and a degree
METHANE, OXYGEN = 2.0, 3.0  # mol, of CH4 + 2 O2 -> CO2 + 2 H2O
ADVANCE = min(METHANE / 1, OXYGEN / 2)
HYDROGEN, OTHER_OXYGEN = 4.0, 3.0  # mol, of 2 H2 + O2 -> 2 H2O

RESULTS = [
    ("059", "(2,0)/(1) = {2,0}", [METHANE / 1]),
    ("059", "(3,0)/(2) = {1,5}", [OXYGEN / 2]),
    ("059", "avec lui {1,5} mol de méthane", [ADVANCE]),
    ("059", "2,0 − 1,5 = {0,5} mol", [METHANE - ADVANCE]),
    ("059", "Il se forme {1,5} mol", [ADVANCE]),
    ("059", "2 × 1,5 = {3,0} mol", [2 * ADVANCE]),
    ("059", "2,0 × 16,0 + 3,0 × 32,0 = {128} g", [METHANE * 16 + OXYGEN * 32]),
    ("059", "0,5 × 16,0 + 1,5 × 44,0 + 3,0 × 18,0 = {128} g",
     [(METHANE - ADVANCE) * 16 + ADVANCE * 44 + 2 * ADVANCE * 18]),
    ("059", "3,0 − 2 × 1,0 = {1,0} mol", [OXYGEN - 2 * 1.0]),
    ("079", "26,5 − 20,0 = {6,5} °C", [26.5 - 20]),
    ("079", "200 × 4,18 × 6,5 = {5,4 × 10^3} J", [200 * WATER * 6.5]),
    ("079", "un écart de {5,5} °C", [20 - 14.5]),
    ("079", "100 × 4,18 × 5,5 = {2,3 × 10^3} J", [100 * WATER * 5.5]),
    ("079", "100 × 86 400 = {8,64 × 10^6} J", [100 * 24 * 3600]),
    ("080", "0,81 × 10,0 = {8,1} g", [0.81 * 10]),
    ("080", "(3,0)/(5,0) = {0,60}", [3 / 5]),
    ("080", "on aurait {12} g d'arôme", [0.81 * 10 / 88.15 * 130.19]),
    ("080", "(7,2)/(12) = {0,60}, soit {60} %", [7.2 / 12, 100 * 7.2 / 12]),
    ("Q1302", "(6)/(2) = {3}", [2 * 3 / 2]),
    ("Q1303", "(4,0)/(2) = {2,0}", [HYDROGEN / 2]),
    ("Q1304", "3,0 − 2,0 = {1,0} mol", [OTHER_OXYGEN - HYDROGEN / 2]),
    ("Q1308", "200 × 4,18 × 5,0 = {4,2 × 10^3} J, ou {4,2} kJ", [200 * WATER * 5, 0.2 * WATER * 5]),
    ("Q1308", "{0,84} oublie l'écart ; {17} prend", [0.2 * WATER, 0.2 * WATER * 20]),
    ("Q1308", "et {21} celle de la fin", [0.2 * WATER * 25]),
]
