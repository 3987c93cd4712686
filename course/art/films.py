#!/usr/bin/env python3
"""Renders the films of the course into AVI files, all of them or those named.

    art/films.py files [NAME.avi ...]

needs rsvg-convert and ffmpeg.
"""

import sys
from pathlib import Path

from film import render
from film_eye import Accommodation
from film_gases import Balloon, Diffusion
from film_melting import Melting
from film_motion import Fall, Valve
from film_solutions import Dilution
from film_sound import Sound


def main(directory, *names):
    for film in (Diffusion, Balloon, Valve, Fall, Dilution, Sound, Melting, Accommodation):
        if not names or film.name in names:
            render(film(), Path(directory))


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit("usage: films.py DIRECTORY [NAME.avi ...]")
    main(*sys.argv[1:])
