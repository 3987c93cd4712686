"""Numbers of the pages on light and spectra: see check_numbers.py."""

HYDROGEN = 1.0967758e7  # m⁻¹: the Rydberg constant of hydrogen


def balmer(level):
    """Nanometres, in a vacuum, of the line from this level down to the second."""
    return 1e9 / (HYDROGEN * (1 / 4 - 1 / level ** 2))


RESULTS = [
    ("064", "hydrogène {410}, {434}, {486}, {656}", [balmer(level) for level in (6, 5, 4, 3)]),
    ("064", "589 × 10^−9 = {5,89 × 10^−7} m", [589e-9]),
    ("122", "c = {3,00 × 10^8} m/s", [299792458]),
    ("Q110", "sa signature : {410}, {434}, {486} et {656} nm", [balmer(level) for level in (6, 5, 4, 3)]),
]
