#!/usr/bin/env python3
"""Carries out the Python programs of the course, and tells which do not print what the page says.

    course/check_programs.py [COURSE]

The blocks of a page in Markdown that begin with ```python go on from one another, as a pupil would
type them; what they print stands in the ```text block that follows. Blocks that draw with matplotlib,
which nothing else here needs, are only compiled. Numbers agree to ten figures: the last ones are the
interpreter's. The status is 1 when a program fails or prints something else.
"""

import contextlib
import io
import math
import re
import sys
from pathlib import Path

BLOCK = re.compile(r"^```(python|text)\n(.*?)^```$", re.M | re.S)


def same(printed, shown):
    """Word by word, numbers as numbers."""
    pairs = list(zip(printed.split(), shown.split()))
    return len(printed.split()) == len(shown.split()) and all(one == other or close(one, other)
                                                              for one, other in pairs)


def close(one, other):
    try:
        return math.isclose(float(one), float(other), rel_tol=1e-10)
    except ValueError:
        return False


def faults_of(source):
    """Line and sentence of every block that fails or disagrees, and the number of blocks."""
    names, printed, faults = {}, "", []
    blocks = list(BLOCK.finditer(source))
    for block in blocks:
        line, text = source.count("\n", 0, block.start()) + 1, block[2]
        if block[1] == "text":
            if not same(printed, text):
                faults.append((line, f"the program prints {printed!r}"))
            printed = ""
            continue
        if printed:
            faults.append((line, f"nothing tells what the program before prints: {printed!r}"))
        try:
            program = compile(text, "page", "exec")
            output = io.StringIO()
            if "matplotlib" not in text:
                with contextlib.redirect_stdout(output):
                    exec(program, names)
            printed = output.getvalue()
        except Exception as reason:  # whatever a program of a page may do wrong
            faults.append((line, f"the program fails: {reason}"))
            printed = ""
    if printed:
        faults.append((line, f"nothing tells what the program prints: {printed!r}"))
    return faults, len(blocks)


def main():
    course = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent)
    faults, checked = [], 0
    for path in sorted(course.glob("pages/*.md")):
        found, blocks = faults_of(path.read_text(encoding="utf-8"))
        faults += [f"{path}:{line}: {sentence}" for line, sentence in found]
        checked += blocks
    print("\n".join(faults + [f"{checked} blocks, {len(faults)} disagreements"]))
    return 1 if faults or not checked else 0


if __name__ == "__main__":
    sys.exit(main())
