"""Plain text of pages and questions in Markdown, as check_numbers.py reads it.

Fractions are (a)/(b), exponents ^b, indices _b, square roots √(a), units and letters as they are.
"""

import re

SIGNS = {"times": "×", "cdot": "·", "pm": "±", "approx": "≈", "Delta": "Δ", "pi": "π", "degree": "°",
         "left": "", "right": "", "quad": " ", "qquad": " ", "to": "→", "ell": "ℓ", "theta": "θ", "gamma": "γ",
         "lambda": "λ", "Rightarrow": "⇒", "%": "%", ",": " ", ";": " ", "cos": "cos", "sin": "sin"}
GROUP = r"\{((?:[^{}]|\{[^{}]*\})*)\}"


def formula(source):
    """One line of text for what stands between dollar signs."""
    text = source
    for _ in range(4):  # groups in groups
        text = re.sub(r"\\d?frac" + GROUP * 2, r"(\1)/(\2)", text)
        text = re.sub(r"\\sqrt" + GROUP, r"√(\1)", text)
        text = re.sub(r"\\qty" + GROUP * 2, r"\1 \2", text)
        text = re.sub(r"\\(?:unit|text|mathrm|vec|overrightarrow|overline|bar|ce)" + GROUP, r"\1", text)
        text = re.sub(r"([_^])" + GROUP, r"\1\2", text)
    text = re.sub(r"\\([A-Za-z]+|[^A-Za-z])", lambda sign: SIGNS.get(sign[1], sign[1]), text)
    return text.replace("-", "−").replace("~", " ").replace("{", "").replace("}", "")


def markdown(source):
    """The text of a Markdown source and the line of each of its characters."""
    text, lines = "", []

    def add(piece, number):
        nonlocal text
        text += piece
        lines.extend([number] * len(piece))

    number, fields = 1, False
    for piece in re.split(r"(\$\$.*?\$\$|\$[^$\n]*\$)", source, flags=re.S):
        if piece.startswith("$"):
            add(formula(piece.strip("$").replace("\n", " ")), number)
            number += piece.count("\n")
            continue
        for line in re.split(r"(\n)", piece):
            if line == "\n":
                add(" " if text and not fields else "\t", number)
                number += 1
                continue
            if line == "+++":
                fields = not fields
            line = re.sub(r"!?\[([^][]*)\]\([^()]*\)", r"\1", line)  # links and pictures: their words
            line = re.sub(r"^\s*(?:> ?)?\s*(?:#+ |- (?:\[[ x]\] )?|\d+\. )?", "", line) if number > 1 and \
                text[-1:] in " \t" else line
            line = re.sub(r"^\+\+\+$|[*`]", "", line)
            add(line.replace("\u00a0", " ").replace("\u202f", " ").replace("|", "\t"), number)
    return text, lines
