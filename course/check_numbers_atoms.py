"""Numbers of the pages on atoms, ions and molecules: see check_numbers.py.

Configurations and valence electrons are filled in here from the atomic number alone.
"""

ROOM = [("1s", 2), ("2s", 2), ("2p", 6), ("3s", 2), ("3p", 6)]


def filled(electrons):
    """The electrons of each subshell, as far as there are any."""
    shown = []
    for _, room in ROOM:
        if electrons > 0:
            shown.append(min(room, electrons))
        electrons -= room
    return shown


def valence(electrons):
    shells = [int(name[0]) for name, _ in ROOM[:len(filled(electrons))]]
    return sum(count for shell, count in zip(shells, filled(electrons)) if shell == shells[-1])


RESULTS = [
    ("053", "2 + 2 + 6 + 2 + 4 = {16}", [sum(filled(16))]),
    ("053", "1s^{2} 2s^{2} 2p^{6} 3s^{2} 3p^{4}", filled(16)),
    ("053", "2 + 4 = {6} électrons de valence", [valence(16)]),
    ("053", "16 + 2 = {18} : 1s^{2} 2s^{2} 2p^{6} 3s^{2} 3p^{6}", [18] + filled(18)),
    ("053", "1s^{2} 2s^{2} 2p^{6} 3s^{1}. L'ion Na+", filled(11)),
    ("053", "le dernier : 1s^{2} 2s^{2} 2p^{6}, la", filled(10)),
    ("054", "colonne 17, a {7} électrons de valence ; il en gagne 8 − 7 = {1}", [valence(9), 8 - valence(9)]),
    ("054", "2, en perd {2}", [valence(12)]),
    ("054", "2 − 2 × 1 = {0}", [0]),
    ("054", "2 × 3 − 3 × 2 = {0}", [2 * valence(13) - 3 * (8 - valence(8))]),
    ("054", "13 − 10 = {3}", [valence(13)]),
    ("054", "n'en a que {2}", [valence(2)]),
    ("054", "trouvé six ans après, en {1875}", [1869 + 6]),
    ("055", "{4} électrons de valence pour C, {6} pour chaque O", [valence(6), valence(8)]),
    ("055", "4 + 2 × 6 = {16} (16)/(2) = {8}", [valence(6) + 2 * valence(8), 16 / 2]),
    ("055", "soit 4 × 2 = {8} électrons ; autour de chaque O, 2 liants et 2 non liants, soit (2 + 2) × 2 = {8}",
     [8, 8]),
    ("055", "5 + 3 × 1 = {8} électrons, soit {4} doublets", [valence(7) + 3 * valence(1), 8 / 2]),
    ("130", "alcalins {1}", [valence(3)]),
    ("130", "2 — {2} Mg^2+", [valence(12)]),
    ("130", "16 — {6} O^2−", [valence(16)]),
    ("130", "halogènes {7}", [valence(17)]),
    ("130", "gaz nobles {8} (He : {2})", [valence(18), valence(2)]),
]
