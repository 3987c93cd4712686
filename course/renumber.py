#!/usr/bin/env python3
"""Gives the pages of a course the places 1, 2, 3… of the reading order.

    course/renumber.py [COURSE]

A page that is put between the 12th and the 13th has `Index = 12.5` until this has been run: pages keep
the order of what they have, those of the same Index that of their numbers. Only these lines are written,
and nothing at all when a page has no Index that is a number.
"""

import os
import re
import sys
from pathlib import Path

PLACE = re.compile(rb"^Index\s*=\s*(\d+(?:\.\d+)?)[ \t]*(?=\r?$)", re.M)


def fields_of(source):
    """Where the fields end that stand between two lines +++."""
    closed = re.compile(rb"^\+\+\+\r?$", re.M).search(source, 4)
    return closed.start() if source.startswith(b"+++") and closed else 0


def replaced(path, source):
    """Writes beside the file first: it is never half written."""
    beside = path.with_name(f".{path.name}.new")
    beside.write_bytes(source)
    os.replace(beside, path)


def main():
    course = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent)
    pages = []
    for path in course.glob("pages/*"):
        if path.suffix not in (".page", ".md") or path.is_symlink():
            continue
        source = path.read_bytes()
        place = PLACE.search(source, 0, fields_of(source))
        if not place:
            sys.exit(f"{path}: no Index that is a number")
        pages.append((float(place[1]), path.name, path, source, place))
    changed = 0
    for number, (_, _, path, source, place) in enumerate(sorted(pages, key=lambda page: page[:2]), 1):
        line = b"Index = %d" % number
        if place[0] != line:
            replaced(path, source[:place.start()] + line + source[place.end():])
            changed += 1
    print(f"{len(pages)} pages, {changed} moved")


if __name__ == "__main__":
    main()
