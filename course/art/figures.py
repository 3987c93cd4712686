#!/usr/bin/env python3
"""Draws the figures of the lessons, every one or those named.

    art/figures.py files [NAME ...]

needs nothing but Python and the face Liberation Sans. What a figure shows is computed where it is
drawn: figures_*.py, one a chapter, the numbers first.
"""

import sys
from pathlib import Path

import figures_atoms
import figures_changes
import figures_circuits
import figures_ex_chemistry
import figures_ex_circuits
import figures_ex_forces
import figures_ex_lenses
import figures_ex_motion
import figures_ex_waves
import figures_forces
import figures_inertia
import figures_light
import figures_measures
import figures_mixtures
import figures_motion
import figures_solutions
import figures_sound
import figures_species

CHAPTERS = [figures_measures, figures_motion, figures_forces, figures_inertia, figures_mixtures,
            figures_species, figures_solutions, figures_sound, figures_atoms, figures_changes,
            figures_light, figures_circuits, figures_ex_waves, figures_ex_lenses, figures_ex_motion,
            figures_ex_forces, figures_ex_circuits, figures_ex_chemistry]


def main(directory, *names):
    figures = {name: draw for chapter in CHAPTERS for name, draw in chapter.FIGURES.items()}
    for name in names or figures:
        (Path(directory) / f"{name}.svg").write_text(figures[name]().svg(), encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit("usage: figures.py DIRECTORY [NAME ...]")
    main(*sys.argv[1:])
