#!/usr/bin/env python3
"""Tells which directives of the page language no page and no question of the course uses.

    course/check_directives.py TOOL [COURSE]

TOOL is orvalente-cours, which builds the course, so that what Markdown compiles to counts too. The
names are those of the renderer's own table, so that a new one is noticed. The course shows what a page
can do: each has its use where it serves a pupil. The status is 1 when one has none.
"""

import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

TABLE = Path(__file__).resolve().parents[1] / "src/markup/directive_table.cpp"
WITHOUT_USE = {"STAY"}  # does nothing: pages of old have it


def keywords():
    found = re.findall(r'\{u"(\w+)", (?:Prefix|Whole),', TABLE.read_text(encoding="utf-8"))
    if len(found) < 50:
        sys.exit(f"{TABLE}: no table of directives")
    return sorted(found, key=len, reverse=True)


def records(tool, database, table):
    told = subprocess.run([tool, "dump", database, table], capture_output=True, text=True, check=True)
    return [json.loads(line) for line in told.stdout.splitlines()]


def sources(tool, course):
    """The text of every page and question as the program reads it."""
    with tempfile.TemporaryDirectory() as out:
        subprocess.run([tool, "build", course, "-o", out], check=True, stdout=subprocess.DEVNULL)
        for page in records(tool, f"{out}/Zekx.mdb", "cours"):
            yield page["fpc"] or ""
        for question in records(tool, f"{out}/qekx.mdb", "Contenu"):
            yield f"{question['question']}\r\n{question['SiFaux'] or ''}"


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit("usage: check_directives.py TOOL [COURSE]")
    course = sys.argv[2] if len(sys.argv) == 3 else str(Path(__file__).resolve().parent)
    names = keywords()
    used = {next((name for name in names if line.startswith("##" + name)), None)
            for text in sources(sys.argv[1], course) for line in text.splitlines()}
    missing = sorted(set(names) - used - WITHOUT_USE)
    print("\n".join([f"{name}: no page and no question uses it" for name in missing]
                    + [f"{len(names)} directives, {len(missing)} without a use"]))
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
