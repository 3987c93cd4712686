"""The film of the lesson on the three states: a solid melts, molecule by molecule.

The molecules attract each other a little way off and push each other away when they touch (the
potential of Lennard-Jones); Newton's laws do the rest. Lengths are in diameters of a molecule, energy
in depths of the well. It is a pure body as such, not water, whose ice is the less dense.
"""

import math
import random

from drawing import MUTED, RED, SMALL, WHITE, Drawing
from film import GLASS, INK, caption, picture


class Melting:
    name, seconds = "fusion.avi", 12.0
    coarseness = 10  # of the compression: everything moves, and what moves is plain
    columns, rows = 8, 7
    wide = 13.0  # of the vessel
    step, steps = 0.005, 36  # of time; a frame
    weight, reach = 0.22, 2.5  # of a molecule; where the attraction ends
    left, bottom, scale = 30, 206, 20  # units; units a diameter
    cold, hot = 0.05, 0.52  # temperatures
    warming = (2.5, 8.5)  # seconds

    def __init__(self):
        lot = self.lot = random.Random(8)
        side = 2 ** (1 / 6)  # where two molecules rest
        start = (self.wide - side * (self.columns - 0.5)) / 2
        self.places = [[start + side * (column + 0.5 * (row % 2)), 0.6 + side * 0.866 * row]
                       for row in range(self.rows) for column in range(self.columns)]
        self.speeds = [[lot.gauss(0, math.sqrt(self.cold)), lot.gauss(0, math.sqrt(self.cold))] for _
                       in self.places]
        self.pushes = self.forces()

    def forces(self):
        pushes = [[0.0, -self.weight] for _ in self.places]
        places, reach = self.places, self.reach ** 2
        for i, (xi, yi) in enumerate(places):
            for j in range(i):
                dx, dy = xi - places[j][0], yi - places[j][1]
                square = dx * dx + dy * dy
                if square < reach:
                    sixth = 1 / square ** 3
                    push = 24 * sixth * (2 * sixth - 1) / square
                    pushes[i][0] += push * dx
                    pushes[i][1] += push * dy
                    pushes[j][0] -= push * dx
                    pushes[j][1] -= push * dy
            for axis, place in ((0, xi), (1, yi)):  # the walls push only
                pushes[i][axis] += 800 * max(0.0, 0.5 - place)
            pushes[i][0] -= 800 * max(0.0, xi - self.wide + 0.5)
        return pushes

    def move(self, temperature):
        """One frame; then the vessel's warmth draws the speeds towards its temperature."""
        for _ in range(self.steps):
            for place, speed, push in zip(self.places, self.speeds, self.pushes):
                for axis in (0, 1):
                    speed[axis] += push[axis] * self.step / 2
                    place[axis] += speed[axis] * self.step
            self.pushes = self.forces()
            for speed, push in zip(self.speeds, self.pushes):
                for axis in (0, 1):
                    speed[axis] += push[axis] * self.step / 2
        now = sum(vx * vx + vy * vy for vx, vy in self.speeds) / 2 / len(self.speeds)
        factor = math.sqrt(1 + 0.08 * (temperature / now - 1))
        for speed in self.speeds:
            speed[0] *= factor
            speed[1] *= factor

    def frame(self, seconds):
        start, end = self.warming
        share = min(1, max(0, (seconds - start) / (end - start)))
        if seconds > 0:
            self.move(self.cold + share * (self.hot - self.cold))
        d = Drawing(320, 240, "")
        high, right = 178, self.left + self.wide * self.scale
        d.rect(self.left, self.bottom - high, self.wide * self.scale, high, WHITE)
        for number, (x, y) in enumerate(self.places):
            fill = RED if number in (19, 36) else INK
            d.parts.append(f'<circle cx="{self.left + x * self.scale:.2f}" '
                           f'cy="{self.bottom - y * self.scale:.2f}" r="9.4" fill="{fill}"/>')
        d.path(f"M{self.left} {self.bottom - high}V{self.bottom}H{right}V{self.bottom - high}",
               GLASS, 3)
        d.text(312, 18, "deux molécules sont marquées", SMALL, MUTED, "end")
        return picture(*d.parts[2:], caption(seconds, [
            (0, "Solide : elles vibrent sur place"),
                                                       (start,
                                                        "On chauffe : elles vibrent plus fort"),
            (5.8, "Le solide fond"), (end + 0.4, "Liquide : proches, mais libres de glisser")]))
