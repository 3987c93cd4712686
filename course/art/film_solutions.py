"""The film of the lesson on diluting: ten millilitres of a blue solution become a hundred."""

import math
import random

from drawing import EDGE, MUTED, SMALL, WHITE, Drawing
from film import GLASS, INK, caption, ease, picture

BLUE, GRAIN = "#2f6fd0", "#123a80"
STOCK_DEPTH = 0.8  # absorbance of the stock solution across the beaker of 60 units


def opacity(concentration, thickness):
    """Of a colour: the share of the light that is taken (the stock's concentration is 1)."""
    return 1 - 10 ** (-STOCK_DEPTH * concentration * thickness / 60)


class Dilution:
    """Pipette, flask with a mark, water, mark. The grains stand for the solute and are counted."""

    name, seconds = "dilution.avi", 14.0
    bulb, centre, neck, mark, rim = 36, (222, 168), 6, 98, 74  # units; the flask
    beaker = (60, 148, 120, 204)  # left, top, right, bottom
    stages = [(0, "Solution mère"), (1, "On prélève 10,0 mL à la pipette jaugée"),
              (4, "On les verse dans une fiole de 100,0 mL"),
              (6.2, "On ajoute de l’eau distillée, aux deux tiers"),
              (8.2, "On bouche et on agite"), (9.8, "On complète jusqu’au trait de jauge"),
              (11.4, "Même quantité de soluté, volume × 10")]

    def __init__(self):
        lot = random.Random(4)
        self.grains = [(lot.random(), lot.random()) for _ in range(24)]
        bottom = self.centre[1] + self.bulb
        self.neck_top = self.centre[1] - math.sqrt(self.bulb ** 2 - self.neck ** 2)
        self.whole = self.filled(self.mark)
        self.levels = {}
        for tenth in range(1001):  # the level of each tenth of a millilitre
            low, high = self.mark, bottom
            for _ in range(40):
                middle = (low + high) / 2
                low, high = (middle, high) if self.filled(middle) > self.whole * tenth / 1000 else (low,
                                                                                                    middle)
            self.levels[tenth] = (low + high) / 2

    def filled(self, level):
        """Volume of the flask below a level."""
        height = self.centre[1] + self.bulb - max(level, self.neck_top)
        ball = math.pi * height ** 2 * (self.bulb - height / 3)
        return ball + math.pi * self.neck ** 2 * max(0, self.neck_top - level)

    def frame(self, seconds):
        d = Drawing(320, 240, "")
        taken = 10 * ease(seconds, 2.0, 3.0)  # millilitres
        poured = 10 * ease(seconds, 4.8, 6.0)
        water = 56.7 * ease(seconds, 6.4, 8.0) + 33.3 * ease(seconds, 10.0, 11.2)
        mixed = ease(seconds, 8.4, 9.6)
        self.flask(d, seconds, poured, water, mixed)
        self.draw_beaker(d, taken)
        self.pipette(d, seconds, taken - poured)
        self.water(d, seconds)
        return picture(*d.parts[2:], caption(seconds, self.stages))

    def draw_beaker(self, d, taken):
        left, top, right, bottom = self.beaker
        level = top + 14 + 0.5 * taken
        d.parts.append(f'<rect x="{left}" y="{level:.2f}" width="{right - left}" '
                       f'height="{bottom - level:.2f}" '
                       f'fill="{BLUE}" fill-opacity="{opacity(1, 60):.3f}"/>')
        d.path(f"M{left} {top}V{bottom}H{right}V{top}", GLASS, 2.4)
        d.lines(left - 8, 176, ["solution", "mère"], SMALL, MUTED, "end", step=15)

    def flask(self, d, seconds, poured, water, mixed):
        x, y = self.centre
        shaken = 5 * math.sin(16 * (seconds - 8.4)) if 8.4 < seconds < 9.6 else 0
        d.parts.append(f'<g transform="rotate({shaken:.2f} {x} {y + 20})">')
        side = f"V{self.neck_top:.2f}A{self.bulb} {self.bulb} 0 1"
        outline = f"M{x - self.neck} {self.rim}{side} 0 {x + self.neck} {self.neck_top:.2f}V{self.rim}"
        d.path(outline, "none", 0, WHITE)
        volume = poured + water
        if volume > 0.05:
            self.liquid(d, poured, volume, mixed)
        d.path(outline, GLASS, 2.4)
        d.path(f"M{x - 10} {self.mark}h20", INK, 1.4)
        if 8.2 <= seconds < 9.8 or seconds >= 11.4:
            d.rect(x - 7, self.rim - 7, 14, 9, EDGE, None, round=2)
        d.parts.append("</g>")
        d.path(f"M{x - 14} {self.mark}h-19", EDGE, 0.8)
        d.text(x - 37, self.mark + 4, "trait de jauge", SMALL, MUTED, "end")
        d.text(x + 44, y + 32, "100 mL", SMALL, MUTED)

    def liquid(self, d, poured, volume, mixed):
        """Before it is shaken the solution stays at the bottom, and the water above it."""
        x, y = self.centre
        level, solute = self.levels[round(10 * volume)], self.levels[round(10 * poured)]
        below = opacity(poured / volume * mixed + (1 - mixed), 2 * self.bulb)
        above = opacity(poured / volume, 2 * self.bulb) * mixed
        bottom = y + self.bulb
        share = min(1, max(0, (bottom - solute) / (bottom - level)))
        d.parts.append(
            f'<linearGradient id="l" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="{bottom}" '
            f'y2="{level:.2f}">'
            f'<stop offset="{max(0, share - 0.05):.3f}" stop-color="{BLUE}" '
            f'stop-opacity="{below:.3f}"/>'
            f'<stop offset="{min(1, share + 0.05):.3f}" stop-color="{BLUE}" '
            f'stop-opacity="{max(above, 0.04):.3f}"/>'
            f'</linearGradient><clipPath id="c"><path d="M{x - self.neck} '
            f'{self.rim}V{self.neck_top:.2f}'
            f'A{self.bulb} {self.bulb} 0 1 0 {x + self.neck} '
            f'{self.neck_top:.2f}V{self.rim}Z"/></clipPath>'
            f'<rect x="{x - 40}" y="{level:.2f}" width="80" height="{bottom - level:.2f}" '
            'fill="url(#l)" '
            f'clip-path="url(#c)"/>')
        for across, share in self.grains[:round(24 * poured / 10)]:
            around = share * (poured + mixed * (volume - poured))  # what is below the grain
            height = min(max(self.levels[round(10 * around)], level + 3), bottom - 3)
            half = math.sqrt(max(0, self.bulb ** 2 - (y - height) ** 2)) - 4
            d.dot(x + (half if height > self.neck_top else self.neck - 3) * (2 * across - 1),
                  height, GRAIN, 1.9)

    def pipette(self, d, seconds, inside):
        left, top, right, bottom = self.beaker
        across = ease(seconds, 3.5, 4.4)
        gone = ease(seconds, 6.1, 6.5)
        x = (left + right) / 2 + across * (self.centre[0] - (left + right) / 2)
        tip = 92 + 100 * ease(seconds, 1.2, 1.9) - 124 * ease(seconds, 3.0, 3.5) + 16 * ease(seconds,
                                                                                             4.4,
                                                                                             4.7)
        if gone >= 1:
            return
        tip -= 90 * gone
        outline = (f"M{x - 1.5:.2f} {tip:.2f}V{tip - 24:.2f}Q{x - 6:.2f} {tip - 28:.2f} "
                   f"{x - 6:.2f} {tip - 33:.2f}"
                   f"V{tip - 47:.2f}Q{x - 6:.2f} {tip - 52:.2f} {x - 1.5:.2f} "
                   f"{tip - 56:.2f}V{tip - 84:.2f}"
                   f"H{x + 1.5:.2f}V{tip - 56:.2f}Q{x + 6:.2f} {tip - 52:.2f} {x + 6:.2f} "
                   f"{tip - 47:.2f}"
                   f"V{tip - 33:.2f}Q{x + 6:.2f} {tip - 28:.2f} {x + 1.5:.2f} "
                   f"{tip - 24:.2f}V{tip:.2f}Z")
        d.path(outline, "none", 0, WHITE)
        if inside > 0.02:
            high = 66 * inside / 10
            d.parts.append(f'<clipPath id="p"><path d="{outline}"/></clipPath>'
                           f'<rect x="{x - 8:.2f}" y="{tip - high:.2f}" width="16" '
                           f'height="{high:.2f}" fill="{BLUE}" '
                           f'fill-opacity="{opacity(1, 40):.3f}" clip-path="url(#p)"/>')
        d.path(outline, GLASS, 1.4)
        d.rect(x - 4.5, tip - 97, 9, 14, EDGE, None, round=3)

    def water(self, d, seconds):
        arriving = min(ease(seconds, 6.0, 6.3), 1 - ease(seconds, 8.0, 8.3)) + min(
            ease(seconds, 9.6, 9.9), 1 - ease(seconds, 11.2, 11.5))
        if arriving <= 0:
            return
        shift = 80 * (1 - arriving)
        x = self.centre[0]
        d.parts.append(f'<g transform="translate({shift:.2f} 0)">')
        d.path(f"M{x + 50} 62Q{x + 50} 42 {x + 26} 44Q{x + 6} 46 {x} 62", GLASS, 2.4)
        d.path(f"M{x + 38} 64h24v-6h-24ZM{x + 34} 66h32v52q0 4 -4 4h-24q-4 0 -4 -4Z", GLASS, 1.6,
               WHITE)
        d.rect(x + 36, 84, 28, 36, "#dbe9f8", None)
        d.text(x + 50, 104, "eau", SMALL, MUTED, "middle")
        d.parts.append("</g>")
        if 6.4 < seconds < 8.0 or 10.0 < seconds < 11.2:
            d.path(f"M{x} 63V{self.rim + 20}", "#8fb7e6", 2)
