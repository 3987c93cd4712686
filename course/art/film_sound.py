"""The film of the lesson on sound: layers of air in front of a loudspeaker, a thousand times slower."""

import math
import random

from drawing import BALL, EDGE, GREEN, MUTED, RED, SMALL, WHITE, Drawing, french
from film import INK, caption, picture

SPEED, FREQUENCY, SLOWER = 340, 500, 1000  # m/s, Hz
METRE = 120  # units
LENGTH = SPEED / FREQUENCY  # of a wave, metres
PERIOD = SLOWER / FREQUENCY  # seconds of the film: fifty frames


class Sound:
    """Each dot of air swings about its place; the compression goes on. The swing is shown far too wide."""

    name, seconds = "son.avi", 10.0
    start = 1.0  # seconds
    speaker, top, bottom, end = 44, 34, 118, 314  # units; the air, and where the membrane rests
    swing, marked = 8.5, 1.00  # units; metres from the speaker

    def __init__(self):
        lot = random.Random(2)
        self.air = [(self.speaker + 4 + 5.2 * column + lot.uniform(-2, 2), self.top + 6 + 8.5 * (row
                     + lot.uniform(-0.4, 0.4)))
                    for column in range(52) for row in range(10)]

    def moved(self, x, seconds):
        """How far the air whose place is x has moved, units."""
        since = (seconds - self.start) / PERIOD - (x - self.speaker) / METRE / LENGTH
        if since <= 0:
            return 0.0
        grown = min(1, since) ** 2 * (3 - 2 * min(1, since))  # from rest to full width over a period
        return self.swing * grown * math.sin(2 * math.pi * since)

    def frame(self, seconds):
        d = Drawing(320, 240, "")
        d.rect(self.speaker, self.top, self.end - self.speaker, self.bottom - self.top, WHITE)
        for x, y in self.air:
            at = x + self.moved(x, seconds)
            if at < self.end - 1:
                d.parts.append(f'<circle cx="{at:.2f}" cy="{y:.2f}" r="1.3" fill="#7fa3c7"/>')
        place = self.speaker + self.marked * METRE
        at = place + self.moved(place, seconds)
        d.line(place, self.top, place, self.bottom, RED, 0.8, "3 3")
        d.circle(at, 76, 3.6, RED, None)
        self.draw_speaker(d, self.moved(self.speaker, seconds))
        self.ruler(d)
        self.pressure(d, seconds)
        passed = max(0, seconds - self.start) / SLOWER * 1000
        d.text(312, 20, f"*t* = {french(passed, 2)} ms", ink=MUTED, anchor="end")
        d.text(8, 20, "ralenti mille fois", SMALL, MUTED)
        return picture(*d.parts[2:], caption(seconds, [
            (0, "L’air est au repos"), (self.start, "La membrane vibre : 500 fois par seconde"),
            (4.2, "Le son avance, l’air reste sur place"),
                                                       (7.2,
                                                        "Suivez une compression sur la règle")]))

    def draw_speaker(self, d, moved):
        d.rect(6, 44, 16, 64, EDGE, None, round=2)
        x = self.speaker + moved
        d.path(f"M22 62L{x - 3:.1f} 40V112L22 90Z", INK, 1.4, BALL)

    def ruler(self, d):
        y = 124
        d.line(self.speaker, y, self.end, y, INK, 1)
        for tenth in range(23):
            x = self.speaker + tenth * METRE / 10
            d.line(x, y, x, y + (7 if tenth % 5 == 0 else 4), INK, 0.9)
            if tenth % 5 == 0:
                d.text(x, y + 19, french(tenth / 10, 1), SMALL, INK, "middle")
        d.text(self.end - 2, y + 19, "m", SMALL, INK, "end")

    def pressure(self, d, seconds):
        """Where the air is pressed together its pressure is above that of the air at rest."""
        middle = 188
        d.line(self.speaker, middle, self.end, middle, EDGE, 0.8)
        points = []
        for step in range(2 * (self.end - self.speaker)):
            x = self.speaker + step / 2
            press = -(self.moved(x + 0.5, seconds) - self.moved(x - 0.5, seconds))
            points.append((x, middle - 36 * press))
        d.curve(points, GREEN, 1.6)
        d.text(6, 158, "pression", SMALL, GREEN)
