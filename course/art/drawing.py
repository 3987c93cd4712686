"""The hand that draws the figures of the course: palette, line widths, faces, letters of physics.

A figure is an SVG of fixed size, shown at that size. Coordinates and sizes are pixels, y downwards.
Every figure has a title, for readers who do not see it.
"""

import math
import re
import struct
from functools import lru_cache
from html import escape
from pathlib import Path

INK, MUTED, EDGE, RULE = "#23211c", "#6b6454", "#8c8472", "#d9d3c3"
BLUE, BALL, PALE = "#1d4e89", "#bcd0e8", "#d3e3f6"
GREEN, RED, VIOLET, ORANGE = "#1c7540", "#b3261e", "#6a3d9a", "#a8501c"
GREEN_TINT, RED_TINT = "#e4f3e8", "#fbe9e7"
IVORY, GROUND, WHITE, WATER, GLASS = "#fffff0", "#f1eddf", "#ffffff", "#dbe9f8", "#8c8472"
SPEED, FORCE, LENGTH = RED, VIOLET, GREEN  # what a colour always stands for

LINE, THIN, STRONG = 1.6, 1.0, 2.2  # widths of lines
TEXT, SMALL, INDEX = 13, 12, 10  # sizes of letters; nothing is smaller

FACES = Path("/usr/share/fonts/truetype/liberation2")  # has the widths of Arial


@lru_cache
def advances(bold, italic):
    """Widths of the letters of a face by code point, in shares of its size."""
    style = ("Bold" if bold else "") + ("Italic" if italic else "") or "Regular"
    data = (FACES / f"LiberationSans-{style}.ttf").read_bytes()
    tables = {data[at:at + 4]: struct.unpack(">I", data[at + 8:at + 12])[0]
              for at in range(12, 12 + 16 * struct.unpack(">H", data[4:6])[0], 16)}
    units = struct.unpack(">H", data[tables[b"head"] + 18:tables[b"head"] + 20])[0]
    count = struct.unpack(">H", data[tables[b"hhea"] + 34:tables[b"hhea"] + 36])[0]
    widths = [struct.unpack(">H", data[at:at + 2])[0] / units
              for at in range(tables[b"hmtx"], tables[b"hmtx"] + 4 * count, 4)]
    return {code: widths[min(glyph, count - 1)] for code, glyph in glyphs(data, tables[b"cmap"])}


def glyphs(data, cmap):
    """Pairs of code point and glyph of the Windows Unicode table (format 4) of a TrueType file."""
    for number in range(struct.unpack(">H", data[cmap + 2:cmap + 4])[0]):
        system, coding, offset = struct.unpack(">HHI", data[cmap + 4 + 8 * number:cmap + 12 + 8 * number])
        if (system, coding) == (3, 1):
            break
    table = cmap + offset
    segments = struct.unpack(">H", data[table + 6:table + 8])[0] // 2
    column = lambda index: struct.unpack(
        f">{segments}H", data[table + 14 + index:table + 14 + index + 2 * segments])
    ends, starts = column(0), column(2 * segments + 2)
    deltas, ranges = column(4 * segments + 2), column(6 * segments + 2)
    for segment in range(segments):
        for code in range(starts[segment], ends[segment] + 1):
            glyph = code
            if ranges[segment]:
                at = (table + 16 + 6 * segments + 2 * segment + ranges[segment]
                      + 2 * (code - starts[segment]))
                glyph = struct.unpack(">H", data[at:at + 2])[0]
            yield code, (glyph + deltas[segment]) % 65536


def width(words, size=TEXT, bold=False, italic=False):
    """Of plain words, in pixels; a letter that the face has not is an error."""
    return size * sum(advances(bold, italic)[ord(letter)] for letter in words)


def number(value):
    """As short as an attribute can be."""
    return f"{value + 0.0:.1f}".removesuffix(".0")


def french(value, decimals=0):
    """With a decimal comma, a true minus sign and no-break spaces between thousands."""
    return f"{value:,.{decimals}f}".replace(",", " ").replace(".", ",").replace("-", "−")


UNITS = "m|cm|mm|km|nm|s|ms|min|g|kg|mg|mol|L|mL|N|kN|K|°C|V|A|mA|Ω|kΩ|Hz|kHz|dB|J|W|%|m/s|g/L|mg/L|g/mL|N/kg"


def typeset(words):
    """With the no-break spaces that French wants: before tall signs, inside quotation marks, between a
    number and its unit, and around the signs of a formula."""
    words = re.sub(r" (?=[:;!?»=×÷<>→])|(?<=[«=×÷<>→]) |(?<=[\d*}~]) (?=[+−])|(?<=[+−]) (?=[\d*~])",
                   "\u00a0", words)
    return re.sub(rf"(?<=\d) (?=(?:{UNITS})(?![\w/]))|(?<=\d) (?=\d{{3}}\b)", "\u00a0", words)


class Drawing:
    """A figure that is being drawn."""

    def __init__(self, wide, high, title):
        self.parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{wide}" height="{high}" '
                      f'viewBox="0 0 {wide} {high}">',
                      f"<title>{escape(typeset(title), quote=False)}</title>"]
        self.wide, self.high = wide, high

    def svg(self):
        return "\n".join([*self.parts, "</svg>", ""])

    def shape(self, name, fill="none", ink=None, line=LINE, dash=None, **places):
        attributes = "".join(f' {key}="{number(value) if not isinstance(value, str) else value}"'
                             for key, value in places.items())
        drawn = f' fill="{fill}"'
        if ink:
            drawn += f' stroke="{ink}" stroke-width="{number(line)}"'
            if name in ("path", "polyline"):
                drawn += ' stroke-linecap="round" stroke-linejoin="round"'
        if dash:
            drawn += f' stroke-dasharray="{dash}"'
        self.parts.append(f"<{name}{attributes}{drawn}/>")

    def line(self, x1, y1, x2, y2, ink=INK, line=LINE, dash=None):
        self.path(f"M{number(x1)} {number(y1)}L{number(x2)} {number(y2)}", ink, line, dash=dash)

    def path(self, way, ink=INK, line=LINE, fill="none", dash=None):
        self.shape("path", fill, ink, line, dash, d=way)

    def curve(self, points, ink=BLUE, line=2, dash=None):
        self.shape("polyline", "none", ink, line, dash,
                   points=" ".join(f"{number(x)},{number(y)}" for x, y in points))

    def area(self, points, fill, ink=None, line=LINE):
        self.shape("polygon", fill, ink, line,
                   points=" ".join(f"{number(x)},{number(y)}" for x, y in points))

    def circle(self, x, y, radius, fill=BALL, ink=BLUE, line=1.3, dash=None):
        self.shape("circle", fill, ink, line, dash, cx=x, cy=y, r=radius)

    def rect(self, x, y, wide, high, fill="none", ink=None, line=LINE, round=0, dash=None):
        places = {"x": x, "y": y, "width": wide, "height": high}
        self.shape("rect", fill, ink, line, dash, **places, **({"rx": round} if round else {}))

    def dot(self, x, y, ink=INK, radius=3):
        self.circle(x, y, radius, ink, None)

    def cross(self, x, y, ink=RED, arm=4.5):
        """A measured point."""
        self.path(f"M{number(x - arm)} {number(y)}h{number(2 * arm)}M{number(x)} {number(y - arm)}"
                  f"v{number(2 * arm)}", ink, 1.8)

    def arrow(self, x1, y1, x2, y2, ink=FORCE, line=STRONG, dash=None, head=9):
        """Its tip is at the second point, exactly: lengths of vectors can be measured."""
        length = math.hypot(x2 - x1, y2 - y1)
        along, across = ((x2 - x1) / length, (y2 - y1) / length), ((y1 - y2) / length, (x2 - x1) / length)
        head = min(head, 0.7 * length)
        back = (x2 - head * along[0], y2 - head * along[1])
        half = 0.44 * head
        self.line(x1, y1, x2 - 0.8 * head * along[0], y2 - 0.8 * head * along[1], ink, line, dash)
        self.area([(x2, y2), (back[0] + half * across[0], back[1] + half * across[1]),
                   (back[0] - half * across[0], back[1] - half * across[1])], ink)

    def span(self, x1, y1, x2, y2, ink=LENGTH, tick=4, line=1.5):
        """A length: a line between two ticks across its ends."""
        length = math.hypot(x2 - x1, y2 - y1)
        across = (tick * (y1 - y2) / length, tick * (x2 - x1) / length)
        self.line(x1, y1, x2, y2, ink, line)
        for x, y in ((x1, y1), (x2, y2)):
            self.line(x - across[0], y - across[1], x + across[0], y + across[1], ink, line)

    def arc(self, x, y, radius, start, end, ink=LENGTH, line=1.5):
        """An angle; degrees, from the right, anticlockwise, `end` after `start`."""
        place = lambda angle: (f"{number(x + radius * math.cos(math.radians(angle)))} "
                               f"{number(y - radius * math.sin(math.radians(angle)))}")
        self.path(f"M{place(start)}A{number(radius)} {number(radius)} 0 {int(end - start > 180)} 0 "
                  f"{place(end)}", ink, line)

    def text(self, x, y, words, size=TEXT, ink=INK, anchor="start", bold=False):
        """Words with the letters of physics: *italic*, ~under the arrow of a vector~, _{index},
        ^{exponent}. Words that would be cut at an edge of the figure are an error."""
        runs = list(pieces(typeset(words), size))
        whole = sum(width(part, part_size, bold, italic) for part, part_size, _, italic, _ in runs)
        x -= {"start": 0, "middle": whole / 2, "end": whole}[anchor]
        if x < 0 or x + whole > self.wide or y < 0.75 * size or y > self.high - 0.2 * size:
            raise ValueError(f"cut: {words!r} at {x:.0f} to {x + whole:.0f}, {y:.0f}")
        over = None  # where the arrow of a vector starts
        for part, part_size, rise, italic, vector in runs:
            if vector != (over is not None):
                if over is None:
                    over = x
                else:
                    self.over(over, x, y - 0.86 * size, ink)
                    over = None
            shown = part.lstrip(" \u00a0")
            start = x + width(part[:len(part) - len(shown)], part_size, bold, italic)
            style = (' font-weight="bold"' if bold else "") + (' font-style="italic"' if italic else
                                                               "")
            if shown:
                self.parts.append(f'<text x="{number(start)}" y="{number(y - rise)}" '
                                  'font-family="Arial" '
                                  f'font-size="{part_size}" fill="{ink}"{style}>'
                                  f"{escape(shown, quote=False)}</text>")
            x += width(part, part_size, bold, italic)
        if over is not None:
            self.over(over, x, y - 0.86 * size, ink)

    def over(self, start, end, y, ink):
        """The arrow above the letters of a vector."""
        spare = max(0, 10 - (end - start)) / 2  # a narrow letter has an arrow wider than itself
        start, end = start + 1 - spare, end + 1 + spare
        self.path(f"M{number(start)} {number(y)}H{number(end)}M{number(end - 3)} {number(y - 2)}"
                  f"L{number(end)} {number(y)}L{number(end - 3)} {number(y + 2)}", ink, 1)

    def lines(self, x, y, rows, size=TEXT, ink=INK, anchor="start", bold=False, step=18):
        for index, row in enumerate(rows):
            self.text(x, y + step * index, row, size, ink, anchor, bold)


def pieces(words, size):
    """Runs of letters of one style: letters, size, rise, italic, under an arrow."""
    small = max(INDEX, round(0.72 * size))
    italic = vector = False
    for token in re.findall(r"[_^]\{[^}]*\}|[*~]|[^*~_^]+", words):
        if token == "*":
            italic = not italic
        elif token == "~":
            vector = not vector
        elif token[0] in "_^":
            rise = 0.38 * size if token[0] == "^" else -0.24 * size
            yield token[2:-1], small, rise, italic, vector
        else:
            yield token, size, 0, italic, vector


class Plot:
    """Axes with a grid: values to pixels, and the lines and words around them."""

    def __init__(self, drawing, left, top, wide, high, x_range, y_range):
        self.drawing, self.left, self.top, self.wide, self.high = drawing, left, top, wide, high
        self.x_range, self.y_range = x_range, y_range

    def at(self, x, y):
        (x0, x1), (y0, y1) = self.x_range, self.y_range
        return (self.left + self.wide * (x - x0) / (x1 - x0),
                self.top + self.high * (1 - (y - y0) / (y1 - y0)))

    def axes(self, x_steps, y_steps, x_name, y_name, x_decimals=0, y_decimals=0, labels=(1, 1)):
        """Steps are pairs of a step's size and of every how many-th gets its number (`labels`)."""
        d, bottom = self.drawing, self.top + self.high
        for index, value in enumerate(steps(self.x_range, x_steps)):
            x = self.at(value, 0)[0]
            d.line(x, bottom, x, self.top, RULE, THIN)
            if index % labels[0] == 0:
                d.text(x, bottom + 17, french(value, x_decimals), SMALL, MUTED, "middle")
        for index, value in enumerate(steps(self.y_range, y_steps)):
            y = self.at(0, value)[1]
            d.line(self.left, y, self.left + self.wide, y, RULE, THIN)
            if index % labels[1] == 0:
                d.text(self.left - 8, y + 4, french(value, y_decimals), SMALL, MUTED, "end")
        d.arrow(self.left, bottom, self.left, self.top - 18, INK, LINE, head=10)
        d.arrow(self.left, bottom, self.left + self.wide + 22, bottom, INK, LINE, head=10)
        d.text(self.left + 11, self.top - 9, y_name)
        d.text(self.left + self.wide + 22, bottom + 34, x_name, anchor="end")

    def curve(self, function, ink=BLUE, start=None, end=None, count=120, line=2, dash=None):
        start = self.x_range[0] if start is None else start
        end = self.x_range[1] if end is None else end
        values = [start + (end - start) * i / count for i in range(count + 1)]
        self.drawing.curve([self.at(x, function(x)) for x in values], ink, line, dash)

    def named_curve(self, name, function, ink, count=2):
        """A curve through the whole plot with its name at the end; a straight line unless told otherwise."""
        self.curve(function, ink, count=count)
        x, y = self.at(self.x_range[1], function(self.x_range[1]))
        self.drawing.text(x + 10, y + 5, name, 15, ink, bold=True)


def steps(limits, step):
    return [limits[0] + step * i for i in range(int(round((limits[1] - limits[0]) / step, 6)) + 1)]
