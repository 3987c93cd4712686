#!/usr/bin/env python3
"""Looks every word of the course up in hunspell's French dictionary.

    check_spelling.py        words that neither the dictionary nor words.txt knows, with file and line; 1 if any

What is read: the texts, titles, link captions and tooltips of pages and questions, the titles and
comments of the tests, the words of the drawings. words.txt has the names, units and terms that the
dictionary lacks.
"""

import html
import pathlib
import re
import subprocess
import sys

from plain_text import markdown

HERE = pathlib.Path(__file__).resolve().parent
FIELDS = re.compile(r'^(?:titre|Titre|solution) = "(.*)"')
WORD = re.compile(r"[^\W\d_]+(?:['-][^\W\d_]+)*")


def lines_with_fields(source):
    """Lines with their numbers and whether they are the source's own; of its fields the words, which are not."""
    fields = False
    for number, line in enumerate(source.split("\n"), 1):
        if line == "+++":
            fields = not fields and number == 1
        elif fields:
            found = FIELDS.match(line)
            yield number, found[1] if found else "", False
        else:
            yield number, line, True


def page_lines(source):
    """Words of a page or question in directives, with their lines."""
    for number, line, is_text in lines_with_fields(source):
        if is_text and line.startswith("##"):
            found = re.match(r"##LIER(?:T|I|1)?(.*?)#", line) if not line.startswith("##LIERX") else None
            titled = re.match(r"##TITBAR(.*)", line)
            line = found[1] if found else titled[1] if titled else ""
        yield number, line.replace("¶", " ")


def words_of_block(block):
    """The words of raw directives; of a program nothing but its lines."""
    lines = [line.removeprefix(block[1]) for line in block[3].split("\n")]
    words = [line if block[2] == "directives" else "" for _, line in page_lines("\n".join(lines))]
    return "\n".join(["", *words])


def markdown_lines(source):
    """The same of one in Markdown: runs of one line, without formulas and programs."""
    source = re.sub(r"^((?:> ?)*)```([a-z]+)\n(.*?)^\1```$", words_of_block, source, flags=re.S | re.M)
    source = re.sub(r"`[^`\n]*`", " ", source)
    source = re.sub(r"\$\$.*?\$\$|\$[^$\n]*\$", lambda formula: "\n" * formula[0].count("\n") or " ", source,
                    flags=re.S)
    source = re.sub(r"(?<=\])\([^()]*\)", " ", source)
    for number, line, _ in lines_with_fields(source):
        yield number, re.sub(r"[*`|\[\]]", " ", line)


def drawing_lines(source):
    """Words of a drawing; those of one letter, and letters with an index, are symbols."""
    for number, line in enumerate(source.split("\n"), 1):
        if re.search(r"<(?:text|tspan|title)", line):
            yield number, html.unescape(re.sub(r"<[^>]*>", " ", line))


def readers():
    for folder in ("pages", "exercises"):
        for path in sorted((HERE / folder).rglob("*")):
            if path.suffix in (".page", ".question", ".toml"):
                yield path, page_lines
            elif path.suffix == ".md":
                yield path, markdown_lines
    for path in sorted((HERE / "files").glob("*.svg")):
        yield path, drawing_lines


def main():
    places = {}
    for path, lines in readers():
        text = path.read_text(encoding="utf-8")
        if path.suffix == ".toml":
            text = "+++\n" + text + "\n+++"
        for number, line in lines(text):
            line = line.replace("’", "'").replace("\u00a0", " ").replace("\u202f", " ")
            for word in WORD.findall(line):
                places.setdefault(word, (path.relative_to(HERE), number))
    known = {word for line in (HERE / "words.txt").read_text(encoding="utf-8").split("\n")
             if not line.startswith("#") for word in line.split()}
    asked = sorted(word for word in places if len(word) > 1 and word not in known)
    told = subprocess.run(["hunspell", "-d", "fr_FR", "-i", "utf-8", "-l"], input="\n".join(asked),
                          capture_output=True, text=True, check=True).stdout.split()
    wrong = [word for word in asked if word in set(told)]
    for word in wrong:
        print(f"{places[word][0]}:{places[word][1]}: {word}")
    print(f"{len(places)} words, {len(wrong)} unknown")
    return 1 if wrong or len(places) < 1000 else 0


if __name__ == "__main__":
    sys.exit(main())
