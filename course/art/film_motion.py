"""The films of the lessons on describing a motion: a valve seen from two frames, a falling ball."""

import math

from drawing import BALL, EDGE, GREEN, MUTED, RED, SMALL, WHITE, Drawing, french
from drawing import GROUND as SAND
from figures_motion import FALL, G, INTERVAL, valve
from film import INK, RATE, caption, picture


class Valve:
    """Two turns of a bicycle's wheel. Above, the road is at rest; below, the bicycle is."""

    name, seconds = "valve.avi", 9.0
    start, turn = 1.0, 72 / RATE  # seconds: a twelfth of a turn is six frames
    radius, first = 21, 26  # of the wheel and the place of its hub at first, units
    bike, road = 202, 104  # heights of the ground in the two halves
    hub = 160  # of the wheel that stays

    def frame(self, seconds):
        d = Drawing(320, 240, "")
        turned = 2 * math.pi * min(2, max(0, (seconds - self.start) / self.turn))
        way = self.radius * turned  # it rolls without slipping
        d.text(8, 18, "Référentiel de la route", ink=INK, bold=True)
        d.text(312, 18, f"*t* = {french(turned / 2 / math.pi * self.turn, 2)} s", ink=MUTED, anchor="end")
        self.ground(d, self.road, 0)
        self.wheel(d, self.first + way, self.road, turned)
        self.trace(d, turned, lambda a: valve(self.first + self.radius * a, self.road - self.radius,
                                              self.radius, a))
        d.line(0, 116, 320, 116, EDGE, 1)
        d.text(8, 134, "Référentiel du vélo", ink=INK, bold=True)
        self.ground(d, self.bike, way)
        self.wheel(d, self.hub, self.bike, turned)
        self.trace(d, turned, lambda a: valve(self.hub, self.bike - self.radius, self.radius, a))
        return picture(*d.parts[2:], caption(seconds, [
            (0, "La même valve, vue de deux endroits"),
            (self.start, "Un tour de roue : 72 images"),
            (self.start + 2 * self.turn, "Une suite d’arches ; un cercle")]))

    def ground(self, d, y, shift):
        d.rect(0, y, 320, 8, SAND)
        d.line(0, y, 320, y, EDGE, 1.2)
        for mark in range(-1, 20):
            x = (mark * 24 - shift) % 480 - 24
            if x < 322:
                d.line(x, y + 8, x + 5, y, EDGE, 1)

    def wheel(self, d, x, ground, turned):
        y = ground - self.radius
        d.circle(x, y, self.radius, "none", EDGE, 2.4)
        for spoke in range(8):
            d.line(x, y, *valve(x, y, 0.93 * self.radius, turned + math.pi * spoke / 4), EDGE, 0.5)
        d.path(f"M{x:.1f} {y:.1f}l-9 -34h-9M{x - 9:.1f} {y - 34:.1f}l3 -6h6", INK, 2.4)  # the fork
        d.dot(x, y, INK, 2.6)

    def trace(self, d, turned, place):
        d.curve([place(0.04 * i) for i in range(int(turned / 0.04) + 1)] + [place(turned)], RED,
                1.2)
        for step in range(int(turned * 6 / math.pi + 1e-6) + 1):
            d.dot(*place(math.pi * step / 6), RED, 2)
        d.circle(*place(turned), 3.4, RED, None)


class Fall:
    """A ball falls along a ruler of 1.80 m: each frame is where it is at that moment."""

    name, seconds = "chute.avi", 8.0
    release, all_shown = 2.0, 4.5  # seconds
    top, scale, ball, x = 20, 102, 3.8, 168  # units; units a metre; 3.7 cm; units
    depth = 1.80  # metres, to the sand

    def frame(self, seconds):
        d = Drawing(320, 240, "")
        image = round((seconds - self.release) * RATE)
        self.surroundings(d)
        fallen = min(self.depth, 0.5 * G * (INTERVAL * max(0, image)) ** 2)
        if seconds >= self.all_shown:
            for number, y in enumerate(FALL):
                self.draw_ball(d, y, 0.4)
                if number >= 7 or number in (0, 4):
                    d.text(self.x + 10, self.top + y * self.scale + 4, str(number), SMALL, MUTED)
        self.draw_ball(d, fallen)
        y = self.top + fallen * self.scale
        d.parts.append(f'<path d="M150 {y:.3f}H{self.x}" stroke="{RED}" stroke-width="0.8"/>')  # to read by
        if 0 <= image <= 15:
            d.text(222, 100, f"image {image}", 15, RED, bold=True)
            d.text(222, 122, f"*t* = {french(image * INTERVAL, 2)} s", 15)
        d.lines(222, 40, ["25 images", "par seconde"], SMALL, MUTED, step=15)
        return picture(*d.parts[2:], caption(seconds, [
            (0, "La bille est tenue en face du zéro"),
            (self.release, "Elle tombe"),
            (self.release + 16 * INTERVAL, "Revoyez la chute image par image"),
            (self.all_shown, "Toutes les positions ensemble")]))

    def draw_ball(self, d, fallen, opacity=1.0):
        y = self.top + fallen * self.scale
        d.parts.append(f'<g opacity="{opacity}">')
        d.parts.append(f'<circle cx="{self.x}" cy="{y:.3f}" r="{self.ball}" fill="{BALL}" '
                       f'stroke="{INK}"/>')
        d.parts.append(f'<path d="M{self.x - 3.8} {y:.3f}h7.6" stroke="{INK}" '
                       'stroke-width="0.6"/></g>')

    def surroundings(self, d):
        d.rect(self.x - 9, 4, 18, self.top - self.ball - 4, EDGE, None, round=2)  # the magnet
        bottom = self.top + self.depth * self.scale
        d.rect(0, bottom, 320, 12, SAND)
        d.line(0, bottom, 320, bottom, EDGE, 1)
        d.rect(112, 8, 46, bottom - 4, WHITE, EDGE, 1, 2)
        for mark in range(37):  # every 5 cm: closer ones would run together in a small window
            y = self.top + mark * 0.05 * self.scale
            d.parts.append(f'<path d="M158 {y:.3f}h-{12 if mark % 2 == 0 else 7}" stroke="{INK}" '
                           'stroke-width="0.9"/>')
            if mark % 4 == 0:
                d.text(141, y + 4, str(5 * mark), SMALL, INK, "end")
        d.text(108, 24, "cm", SMALL, MUTED, "end")
        d.span(82, self.top, 82, self.top + self.scale, GREEN)
        d.text(74, self.top + self.scale / 2 + 4, "1,00 m", SMALL, GREEN, "end")
