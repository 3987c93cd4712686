"""Numbers of the pages on pure bodies and mixtures: see check_numbers.py."""

# Molar masses, g/mol, and the volume fractions of dry air.
NITROGEN, OXYGEN, ARGON, WATER, ANHYDROUS = 28.01, 32.00, 39.95, 18.015, 159.61
AIR = {NITROGEN: 0.781, OXYGEN: 0.209, ARGON: 0.010}
AIR_MASS = sum(mass * part for mass, part in AIR.items())

# What the curve of the ice is computed from, as in figures_mixtures.py: g, W, °C, J/(g·K), J/g.
ICE, POWER, START, HEAT, FUSION = 100, 50, -20, 2.06, 334
WARM = ICE * HEAT * -START / POWER / 60
MOLTEN = WARM + ICE * FUSION / POWER / 60

RESULTS = [
    ("031", "1,5 × 80 = {120} mg", [1.5 * 80]),
    ("032", "1 g/mL = {1} kg/L = {1 000} kg/m^3", [1e-3 / 1e-3, 1e-3 / 1e-6]),
    ("032", "(63,2)/(80,0) = {0,790} g/mL", [63.2 / 80]),
    ("032", "= 0,92 × 5,0 = {4,6} kg", [0.92 * 5]),
    ("033", "fondre à {1,4} min et finit à {12,5} min", [WARM, MOLTEN]),
    ("033", "12,5 − 1,4 = {11,1} min", [MOLTEN - WARM]),
    ("034", "affiche {1,25} g", [0.80 * (ANHYDROUS + 5 * WATER) / ANHYDROUS]),
    ("034", "1,25 − 0,80 = {0,45} g", [0.80 * 5 * WATER / ANHYDROUS]),
    ("035", "(2,4)/(8,0) = {0,30}", [2.4 / 8]),
    ("035", "(4,8)/(8,0) = {0,60}", [4.8 / 8]),
    ("035", "(6,4)/(8,0) = {0,80}", [6.4 / 8]),
    ("036", "0,89 × 4,10 = {3,6} g", [0.89 * 4.10]),
    ("036", "0,70 × 100 = {70} mL", [0.70 * 100]),
    ("036", "0,789 × 70 = {55} g", [0.789 * 70]),
    ("036", "en volume {78,1} % {20,9} % {1,0} %", [100 * part for part in AIR.values()]),
    ("036", "en masse {75,5} % {23,1} % {1,4} %",
     [100 * mass * part / AIR_MASS for mass, part in AIR.items()]),
    ("036", "0,21 × 60 = {13} m^3", [0.209 * 60]),
    ("036", "0,21 × 360 = {76} degrés", [0.21 * 360]),
    ("128", "1 g/mL = {1} kg/L = {1 000} kg/m^3", [1, 1e-3 / 1e-6]),
    ("128", "{78} % de diazote, {21} % de dioxygène, {1} % d'argon", [100 * part for part in AIR.values()]),
    ("Q903", "(200)/(250) = {0,800} g/mL", [200 / 250]),
    ("Q903", "{1,25} est le quotient", [250 / 200]),
    ("Q903", "; {50} est la différence", [250 - 200]),
    ("Q903", "{50 000} est leur produit", [250 * 200]),
    ("Q904", "(30)/(40) = {0,75} g/mL", [30 / 40]),
    ("Q909", "(3,0)/(7,5) = {0,40}", [3.0 / 7.5]),
    ("Q909", "{2,5} est le quotient", [7.5 / 3.0]),
    ("Q909", "{4,5} cm est la distance", [7.5 - 3.0]),
    ("Q910", "50 / 5 = {10} L", [50 / 5]),
    ("Q910", "{40} L est le reste", [50 - 10]),
    ("Q910", "{2,4} L est 50 divisé", [50 / 21]),
]
