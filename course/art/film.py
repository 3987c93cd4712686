"""What the films of the course have in common: size, colours, words, and how frames become a file.

Every frame is an SVG drawing of 320 by 240 units. Rendering needs rsvg-convert and ffmpeg.
"""

import subprocess
from concurrent.futures import ThreadPoolExecutor

WIDTH, HEIGHT = 640, 480  # of a frame, pixels; the drawings count in halves of that, 320 by 240
RATE = 25  # frames a second

GROUND, INK, GLASS, RULE = "#fffff0", "#1d4e89", "#8fa9bd", "#8c8472"
GAS, AIR, ACID, COPPER = "#a8501c", "#7fa3c7", "#8fc9c0", "#b4602c"


def text(x, y, words, size=12, weight="normal", ink=INK):
    return (f'<text x="{x}" y="{y}" text-anchor="middle" font-family="Liberation Sans" '
            f'font-size="{size}" font-weight="{weight}" fill="{ink}">{words}</text>')


def picture(*parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
            f'viewBox="0 0 {WIDTH // 2} {HEIGHT // 2}">'
            f'<rect width="100%" height="100%" fill="{GROUND}"/>{"".join(parts)}</svg>')


def caption(seconds, lines):
    """The last of `lines`, pairs of a time and words, whose time has come."""
    return text(160, 230, [words for start, words in lines if start <= seconds][-1], 13, "bold")


def ease(seconds, start, end):
    """0 before `start`, 1 after `end`, smooth between."""
    share = min(1, max(0, (seconds - start) / (end - start)))
    return share * share * (3 - 2 * share)


def pixels(svg):
    return subprocess.run(["rsvg-convert", "-f", "png"], input=svg.encode(), check=True,
                          capture_output=True).stdout


def render(film, directory):
    svgs = [film.frame(number / RATE) for number in range(int(film.seconds * RATE))]
    with ThreadPoolExecutor() as pool:
        frames = b"".join(pool.map(pixels, svgs))
    # A key frame each second keeps steps back quick.
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", "-f", "image2pipe", "-c:v", "png",
                    "-framerate", str(RATE), "-i", "-", "-c:v", "mpeg4", "-vtag", "XVID", "-bf", "0",
                    "-g", str(RATE), "-qscale:v", str(getattr(film, "coarseness", 6)), "-mbd", "rd", "-trellis", "2", "-cmp",
                    "2", "-subcmp", "2", "-pix_fmt", "yuv420p", "-bitexact",
                    str(directory / film.name)], input=frames, check=True)
