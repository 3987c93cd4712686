"""The film of the lesson on the eye: it looks at something that comes nearer, and adapts."""

from drawing import BALL, BLUE, EDGE, GREEN, MUTED, ORANGE, RED, SMALL, Drawing
from film import caption, ease, picture


class Accommodation:
    """The reduced eye, far too large for its distances; every ray follows from the lens's focal length."""

    name, seconds = "accommodation.avi", 12.0
    lens, screen, axis, tall = 208, 298, 108, 30  # units; the depth of the eye is screen − lens
    far, near = 190, 110  # of the object, units
    coming, adapting = (1.5, 4.5), (6.5, 9.5)  # seconds

    def focal(self, distance):
        """Of the lens that shows on the screen what is so far away."""
        return 1 / (1 / distance + 1 / (self.screen - self.lens))

    def frame(self, seconds):
        d = Drawing(320, 240, "")
        distance = self.far + ease(seconds, *self.coming) * (self.near - self.far)
        focal = self.focal(self.far) + ease(seconds, *self.adapting) * (self.focal(self.near) - self.focal(self.far))
        image = 1 / (1 / focal - 1 / distance)
        d.line(4, self.axis, 316, self.axis, MUTED, 0.8, "6 3 2 3")
        self.eye(d, focal)
        tip = self.lens - distance, self.axis - self.tall
        d.arrow(tip[0], self.axis, *tip, BLUE, 2.4)
        end = self.lens + image, self.axis + self.tall * image / distance
        for height, ink in ((self.axis - self.tall, GREEN), (self.axis, RED),
                            (self.axis + 22, ORANGE)):
            d.line(*tip, self.lens, height, ink, 1.2)
            share = (self.screen - self.lens) / image
            d.line(self.lens, height, self.screen, height + share * (end[1] - height), ink, 1.2)
            if image > self.screen - self.lens + 0.3:
                d.line(self.screen, height + share * (end[1] - height), min(end[0], 316),
                       height + (min(end[0], 316) - self.lens) / image * (end[1] - height), ink,
                       0.8, "2 3")
        d.text(8, 20, "œil réduit, agrandi", SMALL, MUTED)
        if seconds >= self.adapting[0]:
            d.text(312, 20, "la distance focale diminue" if seconds < self.adapting[1] else
                   "distance focale plus petite",
                   SMALL, BLUE, "end")
        return picture(*d.parts[2:], caption(seconds, [
            (0, "L’image se forme sur la rétine : c’est net"),
                                                       (self.coming[0], "L’objet s’approche"),
            (4.6, "L’image est derrière la rétine : c’est flou"),
                                                       (self.adapting[0],
                                                        "Le cristallin se bombe : il accommode"),
            (9.8, "L’image est revenue sur la rétine : c’est net")]))

    def eye(self, d, focal):
        bulge = 4 + 12 * (self.focal(self.far) - focal) / (self.focal(self.far) - self.focal(self.near))
        x, y = self.lens, self.axis
        d.path(f"M{x} {y - 44}Q{x + bulge:.2f} {y} {x} {y + 44}Q{x - bulge:.2f} {y} {x} {y - 44}Z",
               BLUE, 1.4, BALL)
        d.line(x - 10, y - 66, x - 10, y - 36, ORANGE, 4)
        d.line(x - 10, y + 36, x - 10, y + 66, ORANGE, 4)
        d.path(f"M{x - 6} {y - 70}C{x + 50} {y - 96} {self.screen + 4} {y - 60} {self.screen} {y}"
               f"C{self.screen + 4} {y + 60} {x + 50} {y + 96} {x - 6} {y + 70}", EDGE, 2)
        d.path(f"M{self.screen} {y - 34}V{y + 34}", RED, 3.6)
        d.text(self.screen - 14, y + 50, "rétine", SMALL, RED, "end")
        d.text(x - 14, y + 82, "iris", SMALL, ORANGE, "end")
        d.text(x + 10, y - 46, "cristallin", SMALL, BLUE)
