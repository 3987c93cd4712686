"""The films of the lessons on gases. What moves by chance is drawn by lot from a fixed seed, so that
a film comes out the same each time."""

import math
import random

from film import ACID, AIR, COPPER, GAS, GLASS, GROUND, INK, RULE, caption, ease, picture, text


class Diffusion:
    """Two jars, the lower one with a brown gas, and the molecules in them."""

    name, seconds = "diffusion.avi", 12
    opening, opened = 1.5, 2.5  # seconds: the plate between the jars is drawn out
    step = 1.75  # of a molecule, from one frame to the next
    slices, top, bottom = 44, 28, 204  # of the jars, pixels
    box = (196, 28, 300, 204)

    def __init__(self):
        lot = random.Random(3)
        self.lot = lot
        self.shares = [0.0] * (self.slices // 2) + [1.0] * (self.slices // 2)
        left, top, right, bottom = self.box
        middle = (top + bottom) / 2
        self.molecules = []
        for index in range(48):
            gas = index % 2
            y = lot.uniform(middle + 5, bottom - 5) if gas else lot.uniform(top + 5, middle - 5)
            angle = lot.uniform(0, 2 * math.pi)
            self.molecules.append([lot.uniform(left + 5, right - 5), y, angle, gas])

    def frame(self, seconds):
        drawn = ease(seconds, self.opening, self.opened) * 96
        if seconds >= self.opened:  # no colour passes while the plate is there
            self.spread()
        self.move(drawn / 96)
        return picture(
            text(76, 19, "Ce que l’on voit"), text(248, 19, "Les molécules"),
            self.jars(drawn), self.molecule_box(drawn),
            caption(seconds, [(0, "En bas un gaz roux, en haut de l’air"),
                              (self.opening, "On retire la plaque…"),
                              (3.5, "Les deux gaz se mélangent"),
                              (10, "Chaque gaz occupe tout l’espace")]))

    def spread(self):
        """One frame of the diffusion equation; nothing leaves the jars."""
        for _ in range(6):
            old = [self.shares[0], *self.shares, self.shares[-1]]
            self.shares = [old[i] + 0.42 * (old[i - 1] - 2 * old[i] + old[i + 1])
                           for i in range(1, len(old) - 1)]

    def move(self, opened):
        """One frame of the molecules; the plate is drawn out to the right, by the share `opened`."""
        left, top, right, bottom = self.box
        middle, edge = (top + bottom) / 2, left + opened * (right - left)
        for molecule in self.molecules:
            x, y, angle, _ = molecule
            above = y < middle
            angle += self.lot.gauss(0, 0.127)
            beside = x < edge  # of the plate: where it has gone, the way is free
            x, y = x + self.step * math.cos(angle), y + self.step * math.sin(angle)
            if not left + 5 <= x <= right - 5:
                x, angle = min(max(x, left + 5), right - 5), math.pi - angle
            if beside and x >= edge and abs(y - middle) < 5:  # against the edge of the plate
                x, angle = edge - 0.1, math.pi - angle
            low, high = top + 5, bottom - 5
            if x >= edge:
                low, high = (low, middle - 5) if above else (middle + 5, high)
            if not low <= y <= high:
                y, angle = min(max(y, low), high), -angle
            molecule[:3] = x, y, angle

    def jars(self, drawn):
        stops = "".join(f'<stop offset="{i / (self.slices - 1):.3f}" stop-color="{GAS}" '
                        f'stop-opacity="{0.85 * share:.3f}"/>' for i, share in enumerate(self.shares))
        middle = (self.top + self.bottom) / 2
        return (f'<linearGradient id="g" x1="0" y1="0" x2="0" y2="1">{stops}</linearGradient>'
                f'<rect x="36" y="{self.top}" width="80" height="{self.bottom - self.top}" rx="9" '
                f'fill="url(#g)" stroke="{GLASS}" stroke-width="3"/>'
                f'<path d="M30 {middle}h6m80 0h6" stroke="{GLASS}" stroke-width="5"/>'
                f'<path d="M{30 + drawn:.1f} {middle}h92" stroke="#5f7d92" stroke-width="5" '
                f'opacity="{1 - drawn / 96:.3f}"/>')

    def molecule_box(self, drawn):
        left, top, right, bottom = self.box
        middle = (top + bottom) / 2
        dots = "".join(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4" fill="{GAS if gas else AIR}"/>'
                       for x, y, _, gas in self.molecules)
        shift = drawn / 96 * (right - left)
        return (f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" '
                f'fill="#fff" stroke="{RULE}"/>{dots}<path d="M{left + shift:.1f} '
                f'{middle}H{right}" '
                f'stroke="#5f7d92" stroke-width="4"/>')


class Balloon:
    """A brown gas, made from copper and nitric acid, is led to the bottom of a flask."""

    name, seconds = "ballon.avi", 12
    filling, full = 2.0, 9.5  # seconds
    bubbles = [(random.Random(i).uniform(38, 94), random.Random(i + 50).random()) for i in range(14)]

    def frame(self, seconds):
        return picture(self.generator(seconds), self.flask(seconds), self.tube(seconds),
                       caption(seconds, [(0, "L’acide attaque le cuivre : un gaz se forme"),
                                         (self.filling, "Plus dense que l’air, il reste au fond"),
                                         (5.5, "Il chasse l’air vers le haut"),
                                         (self.full, "Le ballon est plein de gaz")]))

    def generator(self, seconds):
        outline = "M52 62V104L22 186Q18 200 32 200H100Q114 200 110 186L80 104V62"
        brown = 0.75 * ease(seconds, 0.3, self.filling)
        rising = "".join(
            f'<circle cx="{x:.0f}" cy="{192 - 26 * ((seconds * 1.3 + phase) % 1):.1f}" r="2.4" '
            f'fill="none" stroke="{GAS}"/>' for x, phase in self.bubbles)
        return (f'<path d="{outline}Z" fill="{GAS}" fill-opacity="{brown:.3f}"/>'
                '<path d="M29 166L22 186Q18 200 32 200H100Q114 200 110 186L103 166Z" '
                f'fill="{ACID}"/>'
                f'<path d="M40 197l8-5 9 5 8-6 9 6 9-5 8 5Z" fill="{COPPER}"/>{rising}'
                f'<path d="{outline}" fill="none" stroke="{GLASS}" stroke-width="3"/>'
                f'<rect x="50" y="54" width="32" height="14" rx="3" fill="#6b6454"/>')

    def flask(self, seconds):
        level = 222 - 208 * ease(seconds, self.filling, self.full)
        leaving = "".join(
            f'<path d="M{x} {30 - 14 * ((seconds + shift) % 1):.1f}v-9m-3.5 4 3.5-4 3.5 4" '
            'fill="none" '
            f'stroke="{INK}" stroke-width="1.5"/>' for x, shift in ((242, 0), (256, 0.5)))
        outline = "M218 30V82A62 62 0 1 0 248 82V30"
        return ('<linearGradient id="f" gradientUnits="userSpaceOnUse" x1="0" '
                f'y1="{level - 16:.1f}" '
                f'x2="0" y2="{level + 16:.1f}"><stop offset="0" stop-color="{GAS}" '
                'stop-opacity="0"/>'
                f'<stop offset="1" stop-color="{GAS}" stop-opacity="0.78"/></linearGradient>'
                f'<path d="{outline}Z" fill="url(#f)"/>'
                f'<path d="{outline}" fill="none" stroke="{GLASS}" stroke-width="3"/>'
                f'{leaving if self.filling < seconds < self.full else ""}')

    def tube(self, seconds):
        path = "M66 76V40Q66 32 74 32H128Q136 32 136 24T144 16H225Q233 16 233 24V192"
        brown = 0.75 * ease(seconds, 0.8, self.filling)
        return (f'<path d="{path}" fill="none" stroke="{GLASS}" stroke-width="8"/>'
                f'<path d="{path}" fill="none" stroke="{GROUND}" stroke-width="5"/>'
                f'<path d="{path}" fill="none" stroke="{GAS}" stroke-width="5" '
                f'stroke-opacity="{brown:.3f}"/>')
