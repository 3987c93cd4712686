#!/usr/bin/env python3
"""Computes the numbers of the course again, and tells which ones disagree.

    course/check_numbers.py [COURSE]

reads the pages and questions as plain text: fractions as (a)/(b), exponents as ^b. Two kinds of
numbers are computed. Sums that stand in the text, "3,0 / 0,064 = 47", are found wherever they are.
The others (tables, conversions, results of a formula) are listed in RESULTS, here and in the
check_numbers_*.py of the later chapters, each with the words around it. A number agrees when the exact result rounds to it with the figures shown. Disagreements
and listed words that no longer stand in the source are told as FILE:LINE, and the status is 1.
"""

import importlib
import math
import re
import sys
from pathlib import Path

import plain_text

NUMBER = r"(?<![\d,^])[−-]?(?:\d{1,3}(?: \d{3})+(?!\d)|\d+)(?:,\d+)?(?: × 10\^[−-]?\d+)?"
LISTED = NUMBER.replace(",^]", ",]", 1)  # exponents too, such as the electrons of a subshell
G, C, NA = 9.81, 299792458, 6.02214076e23


def sine(degrees):
    return math.sin(math.radians(degrees))


def refracted(degrees, n1, n2):
    return math.degrees(math.asin(n1 * sine(degrees) / n2))


def limit(n1, n2=1.0):
    return math.degrees(math.asin(n2 / n1))


# Page, or question with Q, words with each number to check in braces, and the exact values of these numbers.
RESULTS = [
    ("004", "volume molaire d’un gaz à 20 °C V_m {24,1}", [8.314462618 * 293.15 / 101.325]),
    ("004", "une année de lumière {9,46 × 10^15}", [C * 365.25 * 86400]),
    ("005", "{9,46 × 10^15} m. C’est", [C * 365.25 * 86400]),
    ("010", "de Paris à Marseille 660 km {2,2} ms", [660e6 / C]),
    ("010", "384 400 km {1,3} s", [384.4e6 / C]),
    ("010", "149,6 millions de km 8 min {19} s", [149.6e9 / C - 480]),
    ("010", "{9,46 × 10^15} m. Regarder", [C * 365.25 * 86400]),
    ("012", "300 000 {225 000} {200 000} {124 000}", [C / 1.33e3, C / 1.5e3, C / 2.42e3]),
    ("013", "sin i_1 0 {0,259} {0,500} {0,707} {0,866} {0,966}",
     [sine(a) for a in (15, 30, 45, 60, 75)]),
    ("013", "sin i_2 0 {0,195} {0,376} {0,532} {0,651} {0,726}",
     [sine(a) / 1.33 for a in (15, 30, 45, 60, 75)]),
    ("013", "Angle i_2 0° {11,2}° {22,1}° {32,1}° {40,6}° {46,6}°",
     [refracted(a, 1, 1.33) for a in (15, 30, 45, 60, 75)]),
    ("013", "sin 30°)/(1,33) = (0,500)/(1,33) = {0,376} i_2 = {22,1}°",
     [0.5 / 1.33, refracted(30, 1, 1.33)]),
    ("013", "sin 40° / 1,50 = {0,429}, donc i_2 = {25,4}°", [sine(40) / 1.5, refracted(40, 1, 1.5)]),
    ("013", "sin 30 vaut {−0,988}", [math.sin(30)]),
    ("014", "Angle limite θ {48,8}° {41,8}° {24,4}°", [limit(1.33), limit(1.5), limit(2.42)]),
    ("015", "{1} δ {2} δ {5} δ {10} δ {20} δ", [1, 2, 5, 10, 20]),
    ("016", "OA′ = {60} cm et", [1 / (1 / 20 - 1 / 30)]),
    ("016", "−30 cm) = {−2,0}", [-2]),
    ("016", "(20 cm), donc OA′ = {−20} cm", [1 / (1 / 20 - 1 / 10)]),
    ("020", "un escargot 0,001 {0,0036}", [0.001 * 3.6]),
    ("020", "un marcheur 1,4 {5}", [1.4 * 3.6]),
    ("020", "sur 100 m 10,4 {37,4}", [10.4 * 3.6]),
    ("020", "grande vitesse 89 {320}", [89 * 3.6]),
    ("020", "à 15 °C 340 {1 220}", [340 * 3.6]),
    ("020", "7 660 {27 600}", [7660 * 3.6]),
    ("020", "10 m/s, c’est {36} km/h", [36]),
    ("020", "9 000)/(1 500) = {6,0} m/s", [6]),
    ("021", "Vitesse v (m/s) 0 {9,8} {19,6} {29,4} {39,2}", [G * t for t in (1, 2, 3, 4)]),
    ("021", "Vitesse v (km/h) 0 {35} {71} {106} {141}", [G * t * 3.6 for t in (1, 2, 3, 4)]),
    ("021", "Hauteur h (m) 0 {4,9} {19,6} {44,1} {78,5}", [G * t * t / 2 for t in (1, 2, 3, 4)]),
    ("021", "{19,6} m/s, soit environ 20 m/s, ou {71} km/h", [2 * G, 2 * G * 3.6]),
    ("021", "√(2 × 9,81 × 20) = {19,8} m/s", [math.sqrt(2 * G * 20)]),
    ("022", "Poids (N) {81,0} {186} {491}", [50 * 1.62, 50 * 3.71, 50 * 9.81]),
    ("022", "(3,43)/(9,81) = {0,350} kg", [3.43 / 9.81]),
    ("023", "(9,81) = {20} m", [14 ** 2 / G]),
    ("025", "Quotient U / I (V/A) — {47} {47} {47} {47}",
     [1.5 / 0.032, 3 / 0.064, 4.5 / 0.096, 6 / 0.128]),
    ("041", "L’ion Cu^2+ en a perdu deux : il lui en reste {27}", [29 - 2]),
    ("041", "l’ion Cl^− en a donc {18}", [17 + 1]),
    ("043", "[H_3O^+] = 1,0 × 10^−3 mol·L^−1, alors pH = {3,0}", [-math.log10(1.0e-3)]),
    ("048", "0 °C 1 013 hPa {22,4}", [8.314462618 * 273.15 / 101.325]),
    ("048", "20 °C 1 013 hPa {24,1}", [8.314462618 * 293.15 / 101.325]),
    ("049", "n = (6,0)/(342,0) = {1,8 × 10^−2} mol", [6 / 342]),
    ("049", "N = (6,0)/(342,0) × 6,022 × 10^23 = {1,1 × 10^22}", [6 / 342 * NA]),
    ("Q103", "8 s, elle ne ferait que {2,4} millions", [8 * C / 1e9]),
    ("Q106", "{0,67} est le quotient renversé", [2 / 3]),
    ("Q107", "= {0,532}, donc i_2 = {32,1}°", [sine(45) / 1.33, refracted(45, 1, 1.33)]),
    ("Q107", "{70,1}° échange", [math.degrees(math.asin(1.33 * sine(45)))]),
    ("Q108", "= {0,667}, soit θ = {41,8}°", [1 / 1.5, limit(1.5)]),
    ("Q207", "{0,042} est le quotient renversé", [0.5 / 12]),
    ("Q207", "{6,0} est le produit", [6]),
    ("Q1003", "Que vaut alors son pH ? 2,0 {4,0}", [3 + 1]),
]


def flattened(path):
    """The text of a source, white space squeezed, and the line of each of its characters."""
    source = path.read_text(encoding="utf-8")
    text, lines = (plain_text.markdown if path.suffix == ".md" else without_directives)(source)
    squeezed, kept = "", []
    for character, number in zip(text, lines):
        if character in " \t" and squeezed.endswith((" ", "\t")):
            if character == "\t":
                squeezed = squeezed[:-1] + character
            continue
        squeezed += character
        kept.append(number)
    return squeezed, kept


def without_directives(source):
    """The text of a source with its directives left out, and the line of each of its characters."""
    text, lines = "", []

    def add(piece, number):
        nonlocal text
        text += piece
        lines.extend([number] * len(piece))

    def close():  # a tab: no sum reaches over the end of a cell
        if text:
            add("\t", lines[-1])

    symbol = False
    for number, line in enumerate(source.split("\n"), 1):
        line = line.replace("\u00a0", " ")
        if not line.startswith("##"):
            paragraph = line.endswith("¶")
            line = line.rstrip("¶")
            if symbol:
                line = line.translate(str.maketrans("abdDglmnpqrW", "αβδΔγλμνπθρΩ"))
            add(line, number)
            if paragraph:
                close()
            continue
        key = line[2:]
        if key.startswith("FONT"):
            symbol = key == "FONT01"
        elif key.startswith("EXP") and not key.startswith(("EXO",)):
            add("^" + key[3:], number)
        elif key.startswith("POLY"):
            add(key[4:], number)
        elif key.startswith("IND"):
            add("_" + key[3:], number)
        elif key == "SI08" and text.endswith("10"):  # the exponent of a denominator
            add("^", number)
        elif key == "SQD":
            add("√(", number)
        elif key.startswith("SQF"):
            add(")", number)
        elif key.startswith("FRAC"):
            top, _, bottom = key[4:].rpartition("#")
            add(f"({top})/({bottom})", number)
        elif key == "NUMERATEUR":
            add("(", number)
        elif key == "DENOMINATEUR":
            add(")/(", number)
        elif key == "FINFRAC":
            add(")", number)
        elif key.startswith(("VA1", "VE1", "LIERT")):
            add(key[3:].partition("#")[0] if key[0] == "V" else key[5:].rpartition("#")[0], number)
        elif key.startswith(("TAB", "FIN")):
            close()
    return text, lines


def value(shown):
    """The value of a number as shown, and half a unit of its last figure."""
    mantissa, _, power = shown.replace("−", "-").partition(" × 10^")
    mantissa = mantissa.replace(" ", "")
    scale = 10.0 ** int(power or 0)
    decimals = len(mantissa.partition(",")[2])
    whole = mantissa.rstrip("0") if not decimals and len(mantissa.strip("-")) > 2 else mantissa
    unit = 10.0 ** -decimals * 10 ** (len(mantissa) - len(whole))
    return float(mantissa.replace(",", ".")) * scale, unit * scale / 2


def agrees(shown, exact):
    stated, margin = value(shown)
    return abs(stated - exact) <= margin * (1 + 1e-9) + 1e-12 * abs(exact)


SUM = re.compile(rf"(?<![√\w,^])((?:\(? ?(?:½|{NUMBER})(?:\^2)?\)?(?: ?[×/+−] ?|/))+"
                 rf"\(? ?{NUMBER}(?:\^2)?\)?) = ({NUMBER})")


def evaluated(expression):
    expression = re.sub(r" × 10\^([−-]?\d+)", lambda m: "e" + m[1].replace("−", "-"), expression)
    expression = expression.replace("½", "0.5").replace("^2", "**2").replace("×", "*").replace("−", "-")
    expression = re.sub(r"(?<=\d) (?=\d)", "", expression).replace(",", ".")
    expression = re.sub(r"(?<![\d.])0+(?=\d)", "", expression)
    if not re.fullmatch(r"[\d.e*/+() -]+", expression):
        return None
    try:
        return eval(expression, {"__builtins__": {}})  # nothing but digits and signs is left
    except SyntaxError:
        return None


def main():
    course = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent)
    sources = [path for place in ("pages/*.page", "pages/*.md", "exercises/*/*.question", "exercises/*/*.md")
               for path in sorted(course.glob(place))]
    listed = {}
    chapters = [importlib.import_module(path.stem).RESULTS
                for path in sorted(Path(__file__).parent.glob("check_numbers_*.py"))]
    for name, words, exact in sum(chapters, RESULTS):
        listed.setdefault(name, []).append((words, exact))
    faults, checked = [], 0
    for path in sources:
        cells, lines = flattened(path)
        kind = "Q" if path.parent.parent.name == "exercises" else ""
        for words, exact in listed.pop(kind + re.match(r"\d*", path.name)[0], []):
            pieces = [re.escape(piece).replace("\\ ", r"[ \t]") for piece in re.split(r"\{[^}]*\}", words)]
            found = re.search(f"({LISTED})".join(pieces), cells)
            if not found:
                faults.append(f"{path}:1: no longer stands here: {words}")
                continue
            if found.re.groups != len(exact):
                sys.exit(f"{path.name}: {found.re.groups} numbers, {len(exact)} results: {words}")
            for group, result in enumerate(exact, 1):
                checked += 1
                if not agrees(found[group], result):
                    line = lines[found.start(group)]
                    faults.append(f"{path}:{line}: {found[group]} should be {result:.6g} in: {words}")
        for match in SUM.finditer(cells):
            result = evaluated(match[1])
            if result is None:
                continue
            checked += 1
            if not agrees(match[2].strip(), result):
                faults.append(f"{path}:{lines[match.start()]}: {match[0]} (exactly {result:.6g})")
    faults += [f"{name}: no such page or question" for name in listed]
    print("\n".join(faults + [f"{checked} numbers, {len(faults)} disagreements"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
